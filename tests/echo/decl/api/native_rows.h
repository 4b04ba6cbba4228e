/* Echo, native: rows that see Python objects. The last three have faults, for the leak detector. */
#pragma once
#include <Python.h>

#include "sdk/echo_types.h"

OMBRA_BEGIN_DECLS

PyObject *echo_object(PyObject *value);

/* Keeps a reference of the object, drops one that it does not hold, keeps native memory. */
int echo_keeps_reference(PyObject *value);
int echo_loses_reference(PyObject *value);
int echo_keeps_memory(int size);

OMBRA_END_DECLS
