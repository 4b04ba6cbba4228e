// Results that are texts of the toolkit.
#pragma once

#include <Python.h>

#include "toolkit/string.h"

namespace ombra {

// A new `str` of `text`, which ends at its first zero byte; the empty string for an empty text.
// Null, with the interpreter's exception, when there is no memory for it; throws std::bad_alloc
// when there is none for the native copy.
inline PyObject *text_result(const Lumo::String &text) {
    const std::string native = text.stdString();
    return PyString_FromString(native.c_str());
}

}  // namespace ombra
