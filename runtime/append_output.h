// Results of more than one value.
#pragma once

#include <Python.h>

// Merges `object` into the result built so far and returns the new result: `object` alone in place
// of a null or None, otherwise a list, which a result that is none yet becomes the first item of.
// Takes over both references. A null `object`, whose maker has set an exception, drops the result
// and returns null; so does running out of memory.
PyObject *SWIG_Python_AppendOutput(PyObject *result, PyObject *object);
