// The method table, whose rows are generated.
#pragma once

#include <Python.h>

extern PyMethodDef swig_method_table[];  // ended by a row without a name
