// Results that are more than one call of the interpreter.
#pragma once

#include <Python.h>

#include <cstddef>

#include "runtime/type_table.h"

namespace ombra {

// A new `str` of a borrowed native text; None for null. A text of 2^31 bytes or more comes back as
// a pointer object of `char *` without ownership (None where that type is not registered).
PyObject *text_result(const char *text);

// The instance of the type's proxy class around a bare pointer object, or that object itself where
// there is no class. Takes the reference over; null with an exception, the object then let go.
PyObject *in_proxy(PyObject *bare, const swig_type_info *type);

// A bare pointer object that owns `memory`, and a note of that (native_notes.h). Null with
// MemoryError, and the memory is then still the caller's.
PyObject *noted_pointer(void *memory, swig_type_info *type);

// The same for memory from the single-object allocator, which is released here on failure.
PyObject *own_bare(void *memory, swig_type_info *type);

// An object for a native allocation that Python owns from now on: a pointer object, or an instance
// of the type's proxy class. `memory` is from the single-object allocator; on failure it is
// released here, or has died with its pointer object, and null is returned with an exception.
PyObject *own_pointer(void *memory, swig_type_info *type);

// A heap copy of `size` bytes at `value` in a new pointer object that owns it. Null with
// MemoryError, and nothing kept, when there is no memory.
PyObject *owned_copy(const void *value, std::size_t size, swig_type_info *type);

}  // namespace ombra
