// Client data: what the registration of a proxy class leaves on a type.
#pragma once

#include <Python.h>

#include <cstdint>

#include "runtime/type_table.h"

// One record per registration, made with malloc. It is never freed, since pointer objects reach it
// through their type to the end of the process. The layout is shared like that of the types.
struct SwigPyClientData {
    PyObject *proxy_class;             // the class as registered
    PyObject *raw_new;                 // its __new__; null for an old-style class
    PyObject *raw_new_args;            // (class,) for raw_new, otherwise the class itself
    PyObject *destroy;                 // its __swig_destroy__, a `delete_` row, or null
    std::int32_t destroy_takes_tuple;  // 0 if `destroy` is a built-in flagged METH_O
    std::int32_t converting;           // 1 while an implicit conversion into the class runs
    PyTypeObject *direct_type;         // null
};

// The record of a class. It holds a reference to each object named above, and one more to
// `raw_new`, `raw_new_args` and `destroy`: what SWIG_Python_DestroyModule drops leaves them valid
// for pointer objects that die after it.
// Null for a null class; null with MemoryError if the allocation failed. No other error stays set.
SwigPyClientData *SwigPyClientData_New(PyObject *proxy_class);

// The body of a row X_swigregister(class): unpacks one object under the name "swigregister" and
// attaches it to the type. An earlier registration is overwritten and not released. Returns None,
// or null with an exception.
PyObject *SWIG_Python_RegisterClass(swig_type_info *type, PyObject *args);
