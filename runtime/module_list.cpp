// Joining the ring of type tables, and settling each type with its namesakes.
#include "runtime/module_list.h"

#include "runtime/client_data.h"
#include "runtime/pointer_conversion.h"
#include "runtime/py_ref.h"

using ombra::PyRef;

namespace {

constexpr char kModuleName[] = "swig_runtime_data4";
constexpr char kAttributeName[] = "type_pointer_capsule";
constexpr char kCapsuleName[] = "swig_runtime_data4.type_pointer_capsule";

bool is_listed(const swig_module_table *head, const swig_module_table *wanted) {
    const swig_module_table *table = head;
    do {
        if (table == wanted) return true;
        table = table->next;
    } while (table != head);
    return false;
}

// The type of that name in another module, or null.
swig_type_info *find_elsewhere(swig_module_table &table, const char *name) {
    return table.next != &table ? SWIG_MangledTypeQueryModule(table.next, &table, name) : nullptr;
}

swig_type_info *shared_or_own(swig_module_table &table, swig_type_info *seed) {
    swig_type_info *shared = find_elsewhere(table, seed->name);
    if (shared == nullptr) return seed;
    if (seed->client_data != nullptr) shared->client_data = seed->client_data;
    return shared;
}

// Whether the row has to go into the type's cast list. A row of an own type is turned to the
// shared descriptor of its source.
bool is_missing(swig_module_table &table, swig_type_info *type, const swig_type_info *seed,
                swig_cast_link &row) {
    swig_type_info *source = find_elsewhere(table, row.type->name);
    if (source == nullptr) return true;
    if (type == seed) {
        row.type = source;
        return true;
    }
    return SWIG_TypeCheck(source->name, type) == nullptr;
}

void push_front(swig_type_info *type, swig_cast_link &row) {
    if (type->casts != nullptr) {
        type->casts->prev = &row;
        row.next = type->casts;
    }
    type->casts = &row;
}

// Whether there is a list that a look-up without memory did not find; then with MemoryError.
bool is_list_missed() {
    const PyRef module_name(PyString_FromString(kModuleName));
    const PyRef attribute(PyString_FromString(kAttributeName));
    if (module_name == nullptr || attribute == nullptr) return true;
    PyObject *const module = PyDict_GetItem(PyImport_GetModuleDict(), module_name.get());
    PyObject *const capsule = module != nullptr && PyModule_Check(module)
                                  ? PyDict_GetItem(PyModule_GetDict(module), attribute.get())
                                  : nullptr;
    if (capsule == nullptr || PyCapsule_IsValid(capsule, kCapsuleName) == 0) return false;
    PyErr_NoMemory();
    return true;
}

}  // namespace

swig_module_table *SWIG_Python_GetModule() {
    static void *cache = nullptr;
    if (cache == nullptr) {
        cache = PyCapsule_Import(kCapsuleName, 0);
        if (PyErr_Occurred() != nullptr) {
            PyErr_Clear();
            cache = nullptr;
        }
    }
    return static_cast<swig_module_table *>(cache);
}

PyObject *SWIG_Python_GetModuleCapsule() {
    const PyRef module(PyImport_ImportModule(kModuleName));
    return module != nullptr ? PyObject_GetAttrString(module.get(), kAttributeName) : nullptr;
}

void SWIG_Python_SetModule(swig_module_table *table) {
    static PyMethodDef no_methods[] = {{nullptr, nullptr, 0, nullptr}};
    PyObject *module =
        Py_InitModule4(kModuleName, no_methods, nullptr, nullptr, PYTHON_API_VERSION);
    PyObject *capsule = PyCapsule_New(table, kCapsuleName, SWIG_Python_DestroyModule);
    if (capsule == nullptr) return;
    // PyModule_AddObject takes the reference over, unless it fails.
    if (module == nullptr || PyModule_AddObject(module, kAttributeName, capsule) != 0)
        Py_DECREF(capsule);
}

void SWIG_Python_DestroyModule(PyObject *capsule) {
    const auto *table =
        static_cast<swig_module_table *>(PyCapsule_GetPointer(capsule, kCapsuleName));
    if (table == nullptr) return;
    for (std::uint64_t index = 0; index < table->size; ++index) {
        const swig_type_info *type = table->types[index];
        const SwigPyClientData *data = type->client_data;
        if (type->owns_client_data != 0 && data != nullptr) {
            Py_XDECREF(data->raw_new);
            Py_XDECREF(data->raw_new_args);
            Py_XDECREF(data->destroy);
        }
    }
    SWIG_Python_ReleaseThis();
}

void SWIG_Python_JoinModuleList(swig_module_table &table, swig_type_info *const *type_seeds,
                                swig_cast_link *const *cast_seeds) {
    swig_module_table *const head = SWIG_Python_GetModule();
    if (head == nullptr && is_list_missed()) return;
    const bool first_run = table.next == nullptr;
    if (first_run) {
        table.next = &table;
        table.type_seeds = type_seeds;
        table.cast_seeds = cast_seeds;
    }
    if (head == nullptr) {
        SWIG_Python_SetModule(&table);
    } else {
        if (is_listed(head, &table)) return;
        table.next = head->next;
        head->next = &table;
    }
    if (!first_run) return;
    for (std::uint64_t index = 0; index < table.size; ++index) {
        swig_type_info *const seed = type_seeds[index];
        swig_type_info *const type = shared_or_own(table, seed);
        for (swig_cast_link *row = cast_seeds[index]; row->type != nullptr; ++row)
            if (is_missing(table, type, seed, *row)) push_front(type, *row);
        table.types[index] = type;
    }
    table.types[table.size] = nullptr;
}
