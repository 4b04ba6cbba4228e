// Counts the notes by type once the interpreter has ended.
#include "runtime/exit_count.h"

#include <Python.h>

#include <cstdio>
#include <cstdlib>

#include "runtime/native_notes.h"

namespace ombra {

void tell_live(const char *module, std::size_t count, const char *what) {
    if (count != 0) std::fprintf(stderr, "%s: %zu live at exit: %s\n", module, count, what);
}

#ifdef Py_DEBUG

namespace {

const char *module_name;
void (*more)();

// visit_notes() takes a plain function.
const swig_type_info *counted_type;
std::size_t counted;

std::size_t count_of(const swig_type_info *type) {
    counted_type = type;
    counted = 0;
    visit_notes([](const NativeNote &note) { counted += note.type == counted_type ? 1 : 0; });
    return counted;
}

void tell() {
    tell_live(module_name, count_of(nullptr), "array");
    for (swig_type_info *const *type = swig_type_slots; *type != nullptr; ++type)
        tell_live(module_name, count_of(*type), display_name_or_unknown(*type));
    if (more != nullptr) more();
}

}  // namespace

void count_at_exit(const char *module, void (*tell_more)()) {
    if (module_name != nullptr || std::getenv("OMBRA_EXIT_COUNT") == nullptr) return;
    module_name = module;
    more = tell_more;
    Py_AtExit(tell);
}

#else

void count_at_exit(const char *, void (*)()) {}

#endif

}  // namespace ombra
