// What import puts into the module dictionary beside the rows; the tables are generated.
#pragma once

#include <cstddef>

#include "runtime/module_entry.h"

extern const swig_constant swig_constants[];
extern const swig_variable swig_variables[];
extern const swig_install_step swig_install_steps[];
extern const std::size_t swig_install_step_count;
