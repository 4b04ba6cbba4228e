// The module: its tables, and the entry that the interpreter calls.

#include "api/install_table.h"
#include "api/method_table.h"
#include "runtime/exit_count.h"
#include "runtime/module_entry.h"
#include "runtime/native_notes.h"

extern swig_module_table swig_module;

namespace {

// No constant of this module is a pointer: all are set one by one from the install table.
const swig_const_row swig_const_rows[] = {{SWIG_CONST_END, nullptr, 0, nullptr, nullptr}};

}  // namespace

// The entry returns nothing: the interpreter judges the import by the exception that is set.
extern "C" __attribute__((visibility("default"))) void init_OmbraSdkV2Helper() {
    static const char name[] = "_OmbraSdkV2Helper";
    if (SWIG_Python_RunEntry({name, swig_method_table, swig_const_rows, &swig_module,
                              swig_constants, swig_variables, swig_install_steps,
                              swig_install_step_count, ombra::share_notes}))
        ombra::count_at_exit(name, nullptr);
}
