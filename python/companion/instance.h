// The base of all proxy classes, and the descriptor of a structure's field.
//
//     [ interpreter's header | dictionary | weak references ]
//
// The dictionary is made by whoever stores `this`: the runtime for a result, __init__ for a new
// structure. A field calls the module's own rows with that pointer object, without a Python frame
// in between, and finds them when it is first used.
#pragma once

#include <Python.h>

namespace companion {

// The type objects, readied on first use; null with an error if that failed.
PyTypeObject *instance_type();
PyTypeObject *field_type();

// new_class(name, base, members): what `type` would make of the same arguments, for a class that
// defines no special method of its own: the slots are the base's, and need not be looked for, which
// is nine tenths of the work.
PyObject *new_class(PyObject *, PyObject *args);

// add_fields(members, class name, table, rows): a field in `members` for every line "name: type" of
// the table. Returns the tuple of the names. `rows` is the dictionary of the main module.
PyObject *add_fields(PyObject *, PyObject *args);

}  // namespace companion
