// The list of type tables that all modules of the kind in a process share.
//
// The module that comes first publishes its table in a capsule and is the head of a ring; those
// that come later stand behind the head and use the descriptors that they find there in place of
// their own. So a pointer object of one module passes the type test of another.
#pragma once

#include <Python.h>

#include "runtime/type_table.h"

// The head of the list, through a cache; null if no module of the kind has been loaded. A failed
// import of the capsule is no error, and none stays set.
swig_module_table *SWIG_Python_GetModule();

// Publishes a table as the head: the module "swig_runtime_data4" with the attribute
// "type_pointer_capsule". Can leave an exception if memory runs out.
void SWIG_Python_SetModule(swig_module_table *table);

// That capsule, new reference; null with an exception.
PyObject *SWIG_Python_GetModuleCapsule();

// The destructor of that capsule, at interpreter shutdown: drops the references of client data
// held in `raw_new`, `raw_new_args` and `destroy` for the types of the table that own theirs, and
// the string "this". The records stay.
void SWIG_Python_DestroyModule(PyObject *capsule);

// Joins a table to the list and fills its type slots: with the descriptor of another module where
// one has the name, and with the own seed otherwise. Links the cast rows that the types lack. A
// repeat run, of a second interpreter, leaves types and casts as they are.
//
// REQUIRES: `type_seeds` and `cast_seeds` have table.size entries in the table's order, and
// table.types has room for one slot more.
void SWIG_Python_JoinModuleList(swig_module_table &table, swig_type_info *const *type_seeds,
                                swig_cast_link *const *cast_seeds);
