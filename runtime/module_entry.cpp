// Filling the module's dictionary: methods, constants, docstrings, `cvar`.
#include "runtime/module_entry.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <string_view>

#include "runtime/collector_pause.h"
#include "runtime/hex_text.h"
#include "runtime/module_list.h"
#include "runtime/packed_object.h"
#include "runtime/pointer_conversion.h"
#include "runtime/set_aside.h"

namespace {

constexpr std::string_view kMarker = "swig_ptr: ";

const swig_const_row *find_named_row(const swig_const_row *rows, std::string_view text) {
    for (const swig_const_row *row = rows; row->kind != SWIG_CONST_END; ++row)
        if (text.starts_with(row->name)) return row;
    return nullptr;
}

char *append_text(char *out, std::string_view text) {
    std::memcpy(out, text.data(), text.size());
    return out + text.size();
}

// The text in front of the marker, the marker, and the pointer with its type. Null without memory.
char *callback_docstring(std::string_view before, void *pointer, std::string_view type_name) {
    const std::size_t digits = 2 * sizeof pointer;
    const std::size_t length = before.size() + kMarker.size() + 1 + digits + type_name.size();
    char *text = static_cast<char *>(std::malloc(length + 1));
    if (text != nullptr) {
        char *out = append_text(append_text(text, before), kMarker);
        *out++ = '_';
        out = SWIG_PackData(out, &pointer, sizeof pointer);
        *append_text(out, type_name) = '\0';
    }
    return text;
}

PyObject *object_of_row(const swig_const_row &row) {
    if (row.kind == SWIG_CONST_POINTER) return SWIG_Python_NewPointerObj(row.pointer, *row.type, 0);
    if (row.kind != SWIG_CONST_PACKED) return nullptr;
    if (row.pointer == nullptr) Py_RETURN_NONE;
    return SwigPyPacked_New(row.pointer, row.size, *row.type);
}

void install_constants(PyObject *dictionary, const swig_constant *first, std::size_t count) {
    const bool hashed = ombra::hashes_without_seed();
    for (const swig_constant *constant = first; constant != first + count; ++constant) {
        PyObject *const value = PyInt_FromLong(constant->value);
        if (!hashed) {
            SWIG_Python_SetConstant(dictionary, constant->name, value);
            continue;
        }
        const ombra::PyRef held(value);
        const ombra::PyRef name(
            ombra::intern_hashed(constant->name, constant->length, constant->hash));
        if (name == nullptr || value == nullptr) return;
        PyDict_SetItem(dictionary, name.get(), value);
    }
}

void link_variables(const swig_variable *first, std::size_t count) {
    PyObject *cvar = SWIG_Python_cvar();
    for (const swig_variable *variable = first; cvar != nullptr && variable != first + count;
         ++variable) {
        SWIG_Python_addvarlink(cvar, variable->name, variable->get, variable->set,
                               variable->read_only);
    }
}

void install(PyObject *dictionary, const swig_module_definition &definition,
             const swig_install_step &step) {
    switch (step.kind) {
        case swig_install_kind::constants:
            install_constants(dictionary, definition.constants + step.first, step.count);
            break;
        case swig_install_kind::cvar:
            if (PyObject *cvar = SWIG_Python_cvar()) PyDict_SetItemString(dictionary, "cvar", cvar);
            break;
        case swig_install_kind::link:
            link_variables(definition.variables + step.first, step.count);
            break;
    }
}

// The name behind the packages.
const char *last_part(const char *name) {
    const char *const dot = std::strrchr(name, '.');
    return dot != nullptr ? dot + 1 : name;
}

// The name that Py_InitModule4 will give the module: inside a package, the importer's own.
const char *full_name(const char *name) {
    const char *const context = _Py_PackageContext;
    return context != nullptr && std::strcmp(last_part(context), name) == 0 ? context : name;
}

PyObject *init_module(const swig_module_definition &definition) {
    PyObject *const module = PyImport_AddModule(full_name(definition.name));
    if (module == nullptr) return nullptr;
    const ombra::CollectorPause pause(PyModule_GetDict(module));
    return Py_InitModule4(definition.name, definition.methods, nullptr, nullptr,
                          PYTHON_API_VERSION);
}

// The first exception of a thread needs memory of its own. Had here, while there is some, it cannot
// be what a failed allocation is told by.
void throw_once() {
    static bool thrown = false;
    if (thrown) return;
    thrown = true;
    try {
        throw std::bad_alloc();
    } catch (const std::bad_alloc &) {
    }
}

// False with an exception, and the module then half made.
bool fill_module(const swig_module_definition &definition) {
    throw_once();
    SWIG_Python_PatchDocstrings(definition.methods, definition.const_rows, swig_type_seeds,
                                swig_type_slots);
    if (PyErr_Occurred() != nullptr) return false;
    PyObject *const module = init_module(definition);
    if (module == nullptr) return false;
    PyObject *dictionary = PyModule_GetDict(module);
    SWIG_Python_JoinModuleList(*definition.table, swig_type_seeds, swig_cast_seeds);
    if (PyErr_Occurred() != nullptr || SWIG_This() == nullptr) return false;
    SWIG_Python_InstallRows(dictionary, definition.const_rows);
    PyEval_InitThreads();
    for (std::size_t index = 0; index < definition.step_count; ++index) {
        if (PyErr_Occurred() != nullptr) return false;
        install(dictionary, definition, definition.steps[index]);
    }
    return PyErr_Occurred() == nullptr && (definition.finish == nullptr || definition.finish());
}

// Takes a module out of the interpreter's table, under its own name or in a package. Needs no
// memory, and keeps the exception that is set.
void take_module_back(const char *name) {
    PyObject *const modules = PyImport_GetModuleDict();
    PyObject *key = nullptr;
    Py_ssize_t position = 0;
    while (PyDict_Next(modules, &position, &key, nullptr) != 0) {
        if (!PyString_Check(key) || std::strcmp(last_part(PyString_AS_STRING(key)), name) != 0)
            continue;
        const ombra::SetAside set_aside;
        PyDict_DelItem(modules, key);
        return;
    }
}

}  // namespace

bool SWIG_Python_RunEntry(const swig_module_definition &definition) {
    PyObject *const cvar = definition.step_count != 0 ? SWIG_Python_cvar() : nullptr;
    if (cvar == nullptr && definition.step_count != 0) return false;
    const swig_varlink_entry *const links =
        cvar != nullptr ? reinterpret_cast<swig_varlink_object *>(cvar)->vars : nullptr;
    if (fill_module(definition)) return true;
    take_module_back(definition.name);
    if (cvar != nullptr) SWIG_Python_droplinks(cvar, links);
    return false;
}

void SWIG_Python_PatchDocstrings(PyMethodDef *methods, const swig_const_row *rows,
                                 swig_type_info *const *type_seeds, swig_type_info **type_slots) {
    if (rows->kind == SWIG_CONST_END) return;  // no row that a marker could name
    for (PyMethodDef *method = methods; method->ml_name != nullptr; ++method) {
        const char *marker =
            method->ml_doc != nullptr ? std::strstr(method->ml_doc, kMarker.data()) : nullptr;
        if (marker == nullptr) continue;
        const swig_const_row *row = find_named_row(rows, marker + kMarker.size());
        if (row == nullptr || row->kind != SWIG_CONST_POINTER || row->pointer == nullptr) continue;
        const std::string_view before(method->ml_doc,
                                      static_cast<std::size_t>(marker - method->ml_doc));
        const swig_type_info *type = type_seeds[row->type - type_slots];
        char *text = callback_docstring(before, row->pointer, type->name);
        if (text == nullptr) {
            PyErr_NoMemory();
            return;
        }
        method->ml_doc = text;
    }
}

void SWIG_Python_InstallRows(PyObject *dictionary, const swig_const_row *rows) {
    const swig_const_row *row = rows;
    for (; row->kind != SWIG_CONST_END && PyErr_Occurred() == nullptr; ++row)
        SWIG_Python_SetConstant(dictionary, row->name, object_of_row(*row));
}

void SWIG_Python_SetConstant(PyObject *dictionary, const char *name, PyObject *object) {
    if (object != nullptr) {
        PyDict_SetItemString(dictionary, name, object);
        Py_DECREF(object);
    }
}

PyObject *SWIG_PyInstanceMethod_New(PyObject *, PyObject *) { return nullptr; }
