// The type Array: a row of native elements that Python reads and writes in place.
//
// An Array owns its memory, or is a view of memory that belongs to its owner, an object that it
// keeps alive. Its attribute `this` is a pointer object of the element's pointer type, so that an
// Array passes wherever the SDK takes such a pointer; it dies with the Array.
#pragma once

#include <Python.h>

#include <cstddef>

#include "python/companion/element.h"

namespace companion {

// The type object, readied on first use; null with an error if that failed.
PyTypeObject *array_type();

// A view of `count` elements at `place`. New reference, or null with an exception. `owner` may be
// null: then the memory has to outlive the view, or forget_view() has to end it.
PyObject *new_view(const Element &element, void *place, std::size_t count, PyObject *owner);

// An Array of its own memory with the values of a sequence. New reference, or null with an
// exception.
PyObject *new_filled(const Element &element, PyObject *values);

// Ends a view whose memory is about to go: it has no elements from then on, and its `this` is null.
// REQUIRES: an Array.
void forget_view(PyObject *array);

// Writes `count` elements at `place` from a sequence of that length, or from a str where they are
// bytes. False with an exception; elements before the one at fault are then written.
bool store_items(const Element &element, void *place, std::size_t count, PyObject *values);

}  // namespace companion
