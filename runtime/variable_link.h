// The variable link: one object, `cvar`, whose attributes are native global variables. Reading an
// attribute calls the variable's getter, assigning to it the setter.
#pragma once

#include <Python.h>

// Returns a new reference, or null with or without an exception.
using swig_variable_getter = PyObject *(*)();

// Takes the value, which is not null unless the variable is read-only. Returns 0, or 1 with an
// exception and the variable as it was.
using swig_variable_setter = int (*)(PyObject *value);

struct swig_varlink_entry {
    char *name;  // private copy, made with malloc
    swig_variable_getter get_attr;
    swig_variable_setter set_attr;
    swig_varlink_entry *next;
    bool read_only;  // the setter refuses whatever comes, also a deletion
};

struct swig_varlink_object {
    PyObject head;
    swig_varlink_entry *vars;  // in reverse order of linking
};

// A new object without variables, or null with an exception.
PyObject *SWIG_Python_newvarlink();

// Adds a variable at the head of the list, where it hides an earlier one of its name. `name` is
// copied. False with MemoryError on failure. REQUIRES: `object` is a link object.
bool SWIG_Python_addvarlink(PyObject *object, const char *name, swig_variable_getter get_attr,
                            swig_variable_setter set_attr, bool read_only = false);

// Takes away the variables that were added since `kept` was the head of the list. REQUIRES:
// `object` is a link object.
void SWIG_Python_droplinks(PyObject *object, const swig_varlink_entry *kept);

// The module's one link object, borrowed, made on first use and kept for the life of the process.
// Null with an exception if it cannot be made.
PyObject *SWIG_Python_cvar();
