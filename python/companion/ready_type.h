// Readying a static type object.
#pragma once

#include <Python.h>

namespace companion {

// The type, after `fill(type)` has set its slots on first use. Null with an error if it could not
// be readied; the next call tries again. REQUIRES: the interpreter lock is held, which stands for
// the guard that a static initialiser would have.
template <typename Fill>
PyTypeObject *ready_type(PyTypeObject &type, Fill fill) {
    if ((type.tp_flags & Py_TPFLAGS_READY) == 0) [[unlikely]] {
        type.ob_refcnt = 1;
        type.tp_flags = Py_TPFLAGS_DEFAULT;
        fill(type);
        if (PyType_Ready(&type) != 0) return nullptr;
    }
    return &type;
}

}  // namespace companion
