// The exit count of the debug build: what the module made for Python and is still there when the
// interpreter has ended. It is told on standard error if the environment has OMBRA_EXIT_COUNT.
#pragma once

#include <cstddef>

namespace ombra {

// Tells one line "MODULE: COUNT live at exit: WHAT".
void tell_live(const char *module, std::size_t count, const char *what);

// Has the module's notes told at the interpreter's end, by type, and then `tell_more` called, which
// may be null. No Python objects are left by then. Nothing in a release build. Once a module.
void count_at_exit(const char *module, void (*tell_more)());

}  // namespace ombra
