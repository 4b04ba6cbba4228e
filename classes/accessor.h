// Struct classes: constructors, destructors and field accessors.
//
// One rule for every class. A class differs from another only in its native type, a field only in
// its kind and place, so the machine code below is shared by all fields of a kind, and a row is a
// FieldRow. Conversions come before the store: after any failure the field keeps its old value.
//
// A `self` that is null (None passes for any pointer) is never read or written through. Setters of
// numbers, port lists, nested structures, pointers and values skip the store and return None; all
// getters, and the setters of texts, MAC addresses and arrays, raise ValueError for argument 1,
// after the value has been converted.
#pragma once

#include <Python.h>

#include <type_traits>

#include "convert/kinds.h"
#include "convert/row.h"

namespace ombra {

// Numbers, bool and port lists: the field's native value, in and out. FunctionPointer stores a
// native function.
template <typename Kind>
PyObject *get_value(const FieldRow &row, PyObject *args);
template <typename Kind>
PyObject *set_value(const FieldRow &row, PyObject *args);

// Opaque values of any size: an owned heap copy out.
PyObject *get_copy(const FieldRow &row, PyObject *args);

// Opaque values and nested structures are assigned whole, by value; a null value raises ValueError
// for argument 2.
PyObject *set_copy(const FieldRow &row, PyObject *args);

// Nested structures and inline arrays: a pointer object that aliases the parent, holding no
// reference to it.
PyObject *get_alias(const FieldRow &row, PyObject *args);

// An inline array: `count` elements of `size` bytes, index 0 upward, from the pointer given. The
// caller's storage must reach that far: a pointer has no length to check.
PyObject *set_array(const FieldRow &row, PyObject *args);

// Stored pointers, data and code alike: a pointer object of the stored value, without ownership.
PyObject *get_pointer(const FieldRow &row, PyObject *args);

// Stores a data pointer. The value's pointer object gives its ownership up, since the structure
// holds the pointer from now on; so it does even when a null `self` skips the store.
PyObject *set_pointer(const FieldRow &row, PyObject *args);

// MAC addresses as text.
PyObject *get_mac(const FieldRow &row, PyObject *args);
PyObject *set_mac(const FieldRow &row, PyObject *args);

// Texts. A setter stores a private copy made with new[]. It frees the old text of a `char *` field,
// and leaves that of a `char const *` field alone, which nobody owns.
PyObject *get_text(const FieldRow &row, PyObject *args);
PyObject *set_text(const FieldRow &row, PyObject *args);
PyObject *set_constant_text(const FieldRow &row, PyObject *args);

// new_X: a zeroed struct in a bare pointer object that owns it. `size` is that of the struct.
PyObject *new_struct(const CallRow &row, PyObject *args, std::size_t size);

// delete_X: takes the ownership off the object and releases the struct, and nothing inside it.
// None is a null pointer and returns None. An address that is no live struct of the class, such as
// that of an alias, an array or what was deleted before, is refused with ValueError
// (native_notes.h).
PyObject *delete_struct(const CallRow &row, PyObject *args);

}  // namespace ombra
