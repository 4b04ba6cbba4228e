// Types of other modules of the kind, which are known by their name alone.
#pragma once

#include <Python.h>

#include <cstring>

namespace ombra {

// Whether `type` is that of another module for objects of `size` bytes with the name. A type made
// in Python never is one, nor is one whose objects are too small to be read as ours.
inline bool is_foreign_type(const PyTypeObject *type, const char *name, std::size_t size) {
    return (type->tp_flags & Py_TPFLAGS_HEAPTYPE) == 0 &&
           type->tp_basicsize >= static_cast<Py_ssize_t>(size) &&
           std::strcmp(type->tp_name, name) == 0;
}

}  // namespace ombra
