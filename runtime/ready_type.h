// Readying a type object.
#pragma once

#include <Python.h>

namespace ombra {

// PyType_Ready, which says nothing where it has no memory to order the bases. False with an
// exception.
inline bool make_ready(PyTypeObject &type) {
    if (PyType_Ready(&type) == 0) return true;
    if (PyErr_Occurred() == nullptr) PyErr_NoMemory();
    return false;
}

// The static type, after `fill(type)` has set its slots on first use. Null with an exception if it
// could not be readied; the next call tries again. REQUIRES: the interpreter lock is held, which
// stands for the guard that a static initialiser would have.
template <typename Fill>
PyTypeObject *ready_type(PyTypeObject &type, Fill fill) {
    if ((type.tp_flags & Py_TPFLAGS_READY) == 0) [[unlikely]] {
        if (type.ob_refcnt == 0) {
            type.ob_refcnt = 1;
            type.tp_flags = Py_TPFLAGS_DEFAULT;
            fill(type);
        }
        if (!make_ready(type)) return nullptr;
    }
    return &type;
}

}  // namespace ombra
