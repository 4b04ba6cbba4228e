// The echo module: generated rows like those of the system's own module, and the control functions.

#include "api/install_table.h"
#include "api/method_table.h"
#include "control.h"
#include "runtime/module_entry.h"

extern swig_module_table swig_module;

namespace {

const swig_const_row swig_const_rows[] = {{SWIG_CONST_END, nullptr, 0, nullptr, nullptr}};

}  // namespace

extern "C" __attribute__((visibility("default"))) void init_echo() {
    SWIG_Python_RunEntry({"_echo", swig_method_table, swig_const_rows, &swig_module, swig_constants,
                          swig_variables, swig_install_steps, swig_install_step_count});
    if (PyErr_Occurred() == nullptr) echo::add_control(PyImport_AddModule("_echo"));
}
