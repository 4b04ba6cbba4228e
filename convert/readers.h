// Readers: from a Python object to a native 64-bit number, bool or text.
//
// Each returns a status of runtime/status.h: 0, STATUS_TYPE, STATUS_OVERFLOW or, for
// SWIG_AsVal_bool, STATUS_GENERIC. None leaves a Python exception set. A null `out` makes a reader
// a mere test. The type flags of the object decide, so a subclass counts like its base and `bool`
// counts as `int`; no number protocol is called, so a float never becomes a number.
#pragma once

#include <Python.h>

#include "runtime/status.h"

namespace ombra {

// The readers behind `int`: `long` objects, and everything that is no number.
int long_from_other(PyObject *object, long *out);
int unsigned_long_from_other(PyObject *object, unsigned long *out);
int unsigned_long_long_from_long(PyObject *object, unsigned long long *out);

}  // namespace ombra

inline int SWIG_AsVal_long(PyObject *object, long *out) {
    if (!PyInt_Check(object)) return ombra::long_from_other(object, out);
    if (out != nullptr) *out = PyInt_AS_LONG(object);
    return STATUS_OK;
}

inline int SWIG_AsVal_unsigned_SS_long(PyObject *object, unsigned long *out) {
    if (!PyInt_Check(object)) return ombra::unsigned_long_from_other(object, out);
    const long value = PyInt_AS_LONG(object);
    if (value < 0) return STATUS_OVERFLOW;
    if (out != nullptr) *out = static_cast<unsigned long>(value);
    return STATUS_OK;
}

inline int SWIG_AsVal_unsigned_SS_long_SS_long(PyObject *object, unsigned long long *out) {
    if (PyLong_Check(object)) return ombra::unsigned_long_long_from_long(object, out);
    unsigned long value = 0;
    const int status = SWIG_AsVal_unsigned_SS_long(object, &value);
    if (status >= 0 && out != nullptr) *out = value;
    return status;
}

// Truth of any object; STATUS_GENERIC when the object's own test raises (the error is cleared).
int SWIG_AsVal_bool(PyObject *object, bool *out);

// Text of a `str`, of a `char *` pointer object, or null for None; anything else STATUS_TYPE.
//
// `size` counts the terminator (0 for a null pointer). `alloc` goes in as a wish and comes out as
// a fact: with STATUS_NEWOBJ the text of a `str` is copied with new[], and the caller owns the
// copy; with any other value, or for anything but a `str`, `text` borrows the object's storage
// and `alloc` becomes 0. STATUS_MEMORY, with nothing made, when there is no memory for a copy.
int SWIG_AsCharPtrAndSize(PyObject *object, char **text, std::size_t *size, int *alloc);
