// Packed objects: a private copy of a block of bytes with a run-time type, for values that are no
// plain pointers. Made only for rows of kind 5 of a module's constant table.
#pragma once

#include <Python.h>

#include <cstddef>

#include "runtime/type_table.h"

struct SwigPyPacked {
    PyObject head;
    void *pack;            // `size` bytes, made with malloc, owned
    swig_type_info *type;  // not null
    std::size_t size;
};

// Longest text form of a block, terminator included: 511 bytes have one, 512 have none.
inline constexpr std::size_t SWIG_PACKED_TEXT_SIZE = 1024;

// The type object, readied on first use; null with an error if that failed.
PyTypeObject *SwigPyPacked_type();

// Whether an object is a packed object of this or another module of the kind.
bool SwigPyPacked_Test(PyObject *object);

// An object with a copy of the bytes. Null with MemoryError on failure.
PyObject *SwigPyPacked_New(const void *bytes, std::size_t size, swig_type_info *type);

// Writes an underscore, the bytes in hexadecimal and a terminator. Returns `buffer`, or null with
// the buffer untouched if the text does not fit into SWIG_PACKED_TEXT_SIZE characters.
char *SWIG_PackDataName(char *buffer, const void *bytes, std::size_t size);
