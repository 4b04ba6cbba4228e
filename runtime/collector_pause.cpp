// Switching the collector through its module, the only way that this interpreter has.
#include "runtime/collector_pause.h"

#include <iterator>

#include "runtime/set_aside.h"

namespace {

// The import of the collector's module, which itself imports another.
ombra::PyRef import_collector() {
    static const char *const names[] = {"gc", "time"};
    PyObject *const modules = PyImport_GetModuleDict();
    bool known[std::size(names)];
    for (std::size_t i = 0; i < std::size(names); ++i)
        known[i] = PyDict_GetItemString(modules, names[i]) != nullptr;
    ombra::PyRef collector(
        PyImport_ImportModuleLevel(const_cast<char *>(names[0]), nullptr, nullptr, nullptr, 0));
    for (std::size_t i = 0; i < std::size(names); ++i)
        if (!known[i] && PyDict_DelItemString(modules, names[i]) != 0) PyErr_Clear();
    return collector;
}

// The result of a function of the collector, or null. No error stays set.
template <typename... Arguments>
ombra::PyRef call(PyObject *collector, const char *name, const char *format = nullptr,
                  Arguments... arguments) {
    ombra::PyRef result(PyObject_CallMethod(collector, const_cast<char *>(name),
                                            const_cast<char *>(format), arguments...));
    if (result == nullptr) PyErr_Clear();
    return result;
}

// A dictionary is known to the collector from its first container on, which is yet to come.
void age(PyObject *collector, PyObject *dictionary) {
    if (!_PyObject_GC_IS_TRACKED(dictionary)) PyObject_GC_Track(dictionary);
    call(collector, "collect", "i", 0);
}

}  // namespace

ombra::CollectorPause::CollectorPause(PyObject *filled) {
    const SetAside set_aside;
    PyRef collector = import_collector();
    if (collector == nullptr) {
        PyErr_Clear();
        return;
    }
    const PyRef enabled = call(collector.get(), "isenabled");
    if (enabled.get() != Py_True) return;
    age(collector.get(), filled);
    if (call(collector.get(), "disable") != nullptr) collector_ = std::move(collector);
}

ombra::CollectorPause::~CollectorPause() {
    if (collector_ == nullptr) return;
    const SetAside set_aside;
    call(collector_.get(), "enable");
}
