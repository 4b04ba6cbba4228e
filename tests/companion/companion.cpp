// A second module of the kind, with a small type table and functions that give tests what the main
// module has no row for: pointer objects of any type, address and ownership, conversions with any
// flags, and a look at the cast lists. Some types are those of the main module, so that the two
// share them in either order of import.
//
// It is built twice, as _swig_companion and as _swig_neighbour (COMPANION_NAME): two modules with
// type objects and caches of their own, that share their types.
#include <Python.h>

#include <cstdint>
#include <cstring>
#include <vector>

#include "runtime/client_data.h"
#include "runtime/module_entry.h"
#include "runtime/module_list.h"
#include "runtime/pointer_conversion.h"
#include "runtime/py_ref.h"

#define COMPANION_TEXT_OF(name) #name
#define COMPANION_TEXT(name) COMPANION_TEXT_OF(name)
#define COMPANION_ENTRY_OF(name) init##name
#define COMPANION_ENTRY(name) COMPANION_ENTRY_OF(name)

namespace {

// In strcmp order of the names.
enum Slot : std::size_t {
    base,
    derived,
    unnamed,
    l2_addr,
    character,
    function,
    integer,
    box,
    count
};

swig_type_info types[count] = {
    {"_p_Companion_Base", "CompanionBase *|companion_base_t *", nullptr, nullptr, nullptr, 0},
    {"_p_Companion_Derived", "CompanionDerived *", nullptr, nullptr, nullptr, 0},
    {"_p_Companion_Unnamed", nullptr, nullptr, nullptr, nullptr, 0},
    {"_p_bcm_l2_addr_s", "bcm_l2_addr_s *|bcm_l2_addr_t *", nullptr, nullptr, nullptr, 0},
    {"_p_char", "char *", nullptr, nullptr, nullptr, 0},
    {"_p_f_int_p_int__int", "int (*)(int,int *)", nullptr, nullptr, nullptr, 0},
    {"_p_int", "int *", nullptr, nullptr, nullptr, 0},
    {"_p_intp", nullptr, nullptr, nullptr, nullptr, 0},
};

// The base starts eight bytes into the derived structure.
void *derived_to_base(void *pointer, int *) { return static_cast<char *>(pointer) + 8; }
void *unchanged(void *pointer, int *) { return pointer; }

constexpr swig_cast_link row(Slot source, swig_converter converter = nullptr) {
    return {&types[source], converter, nullptr, nullptr};
}
swig_cast_link casts[count][4] = {
    {row(base), row(derived, derived_to_base), row(unnamed)},
    {row(derived)},
    {row(unnamed)},
    {row(unnamed, unchanged), row(l2_addr)},
    {row(character)},
    {row(function)},
    {row(integer), row(box, unchanged)},
    {row(box)},
};

// The type of a name in any module of the process; null with LookupError.
swig_type_info *find_type(const char *name) {
    swig_module_table *head = SWIG_Python_GetModule();
    swig_type_info *type = SWIG_MangledTypeQueryModule(head, head, name);
    if (type == nullptr) PyErr_Format(PyExc_LookupError, "no type '%s'", name);
    return type;
}

// The same for an argument that can be None, which is a null type. False with LookupError.
bool find_type(const char *name, swig_type_info *&type) {
    type = name != nullptr ? find_type(name) : nullptr;
    return type != nullptr || name == nullptr;
}

void *to_pointer(unsigned long address) { return reinterpret_cast<void *>(address); }

PyObject *make(PyObject *, PyObject *args) {
    const char *name = nullptr;
    unsigned long address = 0;
    int own = 0;
    swig_type_info *type = nullptr;
    if (!PyArg_ParseTuple(args, "zk|i:make", &name, &address, &own) || !find_type(name, type))
        return nullptr;
    return SwigPyObject_New(to_pointer(address), type, own);
}

PyObject *present(PyObject *, PyObject *args) {
    const char *name = nullptr;
    unsigned long address = 0;
    int flags = 0;
    swig_type_info *type = nullptr;
    if (!PyArg_ParseTuple(args, "zk|i:present", &name, &address, &flags) || !find_type(name, type))
        return nullptr;
    return SWIG_Python_NewPointerObj(to_pointer(address), type, flags);
}

// (status, address), the address None if the conversion left it untouched.
PyObject *conversion(int status, const void *pointer, const void *untouched) {
    if (pointer == untouched) return Py_BuildValue("(iO)", status, Py_None);
    return Py_BuildValue("(iN)", status, PyLong_FromVoidPtr(const_cast<void *>(pointer)));
}

PyObject *convert(PyObject *, PyObject *args) {
    PyObject *object = nullptr;
    const char *name = nullptr;
    int flags = 0;
    swig_type_info *type = nullptr;
    if (!PyArg_ParseTuple(args, "Oz|i:convert", &object, &name, &flags) || !find_type(name, type))
        return nullptr;
    void *pointer = &pointer;
    const int status = SWIG_Python_ConvertPtrAndOwn(object, &pointer, type, flags);
    return conversion(status, pointer, &pointer);
}

PyObject *convert_function(PyObject *, PyObject *args) {
    PyObject *object = nullptr;
    const char *name = nullptr;
    swig_type_info *type = nullptr;
    if (!PyArg_ParseTuple(args, "Oz:convert_function", &object, &name) || !find_type(name, type))
        return nullptr;
    void *pointer = &pointer;
    const int status = SWIG_Python_ConvertFunctionPtr(object, &pointer, type);
    return conversion(status, pointer, &pointer);
}

PyObject *this_of(PyObject *, PyObject *object) {
    SwigPyObject *inner = SWIG_Python_GetSwigThis(object);
    return ombra::new_ref(inner != nullptr ? &inner->head : Py_None).release();
}

PyObject *type_check(PyObject *, PyObject *args) {
    const char *source = nullptr;
    const char *name = nullptr;
    if (!PyArg_ParseTuple(args, "ss:type_check", &source, &name)) return nullptr;
    swig_type_info *type = find_type(name);
    return type != nullptr ? PyBool_FromLong(SWIG_TypeCheck(source, type) != nullptr) : nullptr;
}

PyObject *cast_order(PyObject *, PyObject *args) {
    const char *name = nullptr;
    if (!PyArg_ParseTuple(args, "s:cast_order", &name)) return nullptr;
    const swig_type_info *type = find_type(name);
    ombra::PyRef names(type != nullptr ? PyList_New(0) : nullptr);
    if (names == nullptr) return nullptr;
    for (const swig_cast_link *link = type->casts; link != nullptr; link = link->next) {
        const ombra::PyRef text(PyString_FromString(link->type->name));
        if (text == nullptr || PyList_Append(names.get(), text.get()) != 0) return nullptr;
    }
    return names.release();
}

// register_class(type name, class): as the row X_swigregister of that type.
PyObject *register_class(PyObject *, PyObject *args) {
    const char *name = nullptr;
    PyObject *proxy_class = nullptr;
    if (!PyArg_ParseTuple(args, "sO:register_class", &name, &proxy_class)) return nullptr;
    swig_type_info *type = find_type(name);
    const ombra::PyRef unpacked(type != nullptr ? PyTuple_Pack(1, proxy_class) : nullptr);
    return unpacked != nullptr ? SWIG_Python_RegisterClass(type, unpacked.get()) : nullptr;
}

// registered(type name): (class or None, owned by this very type, destroy takes a tuple).
PyObject *registered(PyObject *, PyObject *args) {
    const char *name = nullptr;
    if (!PyArg_ParseTuple(args, "s:registered", &name)) return nullptr;
    const swig_type_info *type = find_type(name);
    if (type == nullptr) return nullptr;
    const SwigPyClientData *data = type->client_data;
    return Py_BuildValue("(Oii)", data != nullptr ? data->proxy_class : Py_None,
                         type->owns_client_data, data != nullptr ? data->destroy_takes_tuple : 0);
}

// Takes the classes off this module's types, so that tests do not meet those of others. The
// records stay, as after any registration that another one overwrites.
PyObject *forget_classes(PyObject *, PyObject *) {
    for (std::size_t slot = 0; slot < count; ++slot) {
        swig_type_slots[slot]->client_data = nullptr;
        swig_type_slots[slot]->owns_client_data = 0;
    }
    Py_RETURN_NONE;
}

std::vector<void *> &destroyed_pointers() {
    static std::vector<void *> pointers;
    return pointers;
}

// What the delete functions below were given since the last call, in order.
PyObject *destroyed(PyObject *, PyObject *) {
    ombra::PyRef addresses(PyList_New(0));
    for (void *pointer : destroyed_pointers()) {
        const ombra::PyRef address(PyLong_FromVoidPtr(pointer));
        if (addresses == nullptr || address == nullptr ||
            PyList_Append(addresses.get(), address.get()) != 0) {
            return nullptr;
        }
    }
    destroyed_pointers().clear();
    return addresses.release();
}

// The delete row that stands in METH_O as well as in METH_VARARGS form.
PyObject *delete_directly(PyObject *, PyObject *object) {
    void *pointer = nullptr;
    if (SWIG_Python_ConvertPtrAndOwn(object, &pointer, nullptr, FLAG_DISOWN) < 0) {
        PyErr_SetString(PyExc_TypeError, "not a pointer");
        return nullptr;
    }
    destroyed_pointers().push_back(pointer);
    Py_RETURN_NONE;
}

PyObject *delete_object(PyObject *self, PyObject *args) {
    PyObject *object = nullptr;
    return PyArg_UnpackTuple(args, "delete_object", 1, 1, &object) ? delete_directly(self, object)
                                                                   : nullptr;
}

PyObject *delete_and_raise(PyObject *self, PyObject *args) {
    const ombra::PyRef done(delete_object(self, args));
    if (done != nullptr) PyErr_SetString(PyExc_ValueError, "refused by the destructor");
    return nullptr;
}

// raise_and_empty(list): raises KeyError, and empties the list while it is on its way.
PyObject *raise_and_empty(PyObject *, PyObject *list) {
    PyErr_SetString(PyExc_KeyError, "pending");
    PyList_SetSlice(list, 0, PyList_Size(list), nullptr);
    return nullptr;
}

// The native callback, and the built-in that stands for it.
int native_callback(int number, int *) { return number + 1; }

PyObject *callback(PyObject *, PyObject *) { Py_RETURN_NONE; }

// call(address, number): calls a native function of the callback's type.
PyObject *call(PyObject *, PyObject *args) {
    unsigned long address = 0;
    int number = 0;
    if (!PyArg_ParseTuple(args, "ki:call", &address, &number)) return nullptr;
    return PyInt_FromLong(
        reinterpret_cast<int (*)(int, int *)>(to_pointer(address))(number, nullptr));
}

PyMethodDef methods[] = {
    {"SWIG_PyInstanceMethod_New", SWIG_PyInstanceMethod_New, METH_O, nullptr},
    {"make", make, METH_VARARGS, "make(type or None, address, own=0): a bare pointer object"},
    {"present", present, METH_VARARGS, "present(type or None, address, flags=0): object or proxy"},
    {"convert", convert, METH_VARARGS, "convert(object, type or None, flags=0)"},
    {"convert_function", convert_function, METH_VARARGS, "convert_function(object, type or None)"},
    {"this_of", this_of, METH_O, "this_of(object): the pointer object inside, or None"},
    {"type_check", type_check, METH_VARARGS, "type_check(source, type)"},
    {"cast_order", cast_order, METH_VARARGS, "cast_order(type): the sources from the head on"},
    {"register_class", register_class, METH_VARARGS, "register_class(type, class)"},
    {"registered", registered, METH_VARARGS, "registered(type)"},
    {"forget_classes", forget_classes, METH_NOARGS, "forget_classes()"},
    {"destroyed", destroyed, METH_NOARGS, "destroyed(): addresses since the last call"},
    {"delete_object", delete_object, METH_VARARGS, "delete_object(self)"},
    {"delete_directly", delete_directly, METH_O, "delete_directly(self)"},
    {"delete_and_raise", delete_and_raise, METH_VARARGS, "delete_and_raise(self)"},
    {"raise_and_empty", raise_and_empty, METH_O, "raise_and_empty(list)"},
    {"callback", callback, METH_VARARGS, "callback(number) -> int swig_ptr: callback_address"},
    {"null_callback", callback, METH_VARARGS, "null_callback() swig_ptr: NULL"},
    {"call", call, METH_VARARGS, "call(address, number): calls a native callback"},
    {nullptr, nullptr, 0, nullptr},
};

int number = 42;
char zeroes[512];

const swig_const_row const_rows[] = {
    {SWIG_CONST_POINTER, "callback_address", 0, reinterpret_cast<void *>(native_callback),
     &swig_type_slots[function]},
    {SWIG_CONST_POINTER, "number", 0, &number, &swig_type_slots[integer]},
    {SWIG_CONST_PACKED, "packed", sizeof number, &number, &swig_type_slots[unnamed]},
    {SWIG_CONST_PACKED, "packed_again", sizeof number, &number, &swig_type_slots[unnamed]},
    {SWIG_CONST_PACKED, "packed_511", 511, zeroes, &swig_type_slots[unnamed]},
    {SWIG_CONST_PACKED, "packed_512", 512, zeroes, &swig_type_slots[unnamed]},
    {SWIG_CONST_PACKED, "packed_null", 4, nullptr, &swig_type_slots[unnamed]},
    {SWIG_CONST_END, nullptr, 0, nullptr, nullptr},
};

const swig_constant constants[] = {
    {"FLAG_OWN", FLAG_OWN},           {"FLAG_NOPROXY", FLAG_NOPROXY},
    {"FLAG_DISOWN", FLAG_DISOWN},     {"FLAG_IMPLICIT", FLAG_IMPLICIT},
    {"STATUS_OK", STATUS_OK},         {"STATUS_GENERIC", STATUS_GENERIC},
    {"STATUS_NEWOBJ", STATUS_NEWOBJ},
};
const swig_install_step steps[] = {
    {swig_install_kind::constants, 0, sizeof constants / sizeof constants[0]},
    {swig_install_kind::cvar, 0, 0},
};

}  // namespace

swig_type_info *const swig_type_seeds[] = {&types[0], &types[1], &types[2], &types[3],
                                           &types[4], &types[5], &types[6], &types[7]};
swig_cast_link *const swig_cast_seeds[] = {casts[0], casts[1], casts[2], casts[3],
                                           casts[4], casts[5], casts[6], casts[7]};
swig_type_info *swig_type_slots[count + 1] = {};

extern "C" __attribute__((visibility("default"))) void COMPANION_ENTRY(COMPANION_NAME)() {
    static swig_module_table table = {swig_type_slots, count, nullptr, nullptr, nullptr, nullptr};
    SWIG_Python_RunEntry({COMPANION_TEXT(COMPANION_NAME), methods, const_rows, &table, constants,
                          nullptr, steps, sizeof steps / sizeof steps[0]});
}
