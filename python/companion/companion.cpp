// The companion module: makes what the SDK's functions take and the main module has no row for.
//
// It is a module of the same kind, and joins the list of types that all of them share, so that its
// objects pass in the main module and the main module's here. Its own tables of types are those of
// the main module. Nothing of the main module is changed by it.

#include <Python.h>

#include <cstring>
#include <new>
#include <vector>

#include "convert/readers.h"
#include "python/companion/array.h"
#include "python/companion/callbacks.h"
#include "python/companion/instance.h"
#include "runtime/client_data.h"
#include "runtime/module_entry.h"
#include "runtime/pointer_conversion.h"
#include "runtime/py_ref.h"
#include "toolkit/ptr.h"

extern swig_module_table swig_module;

namespace companion {

namespace {

using Counted = Lumo::Ptr<Lumo::PtrInterface>;

// The native memory of a value object and its element; null with an exception.
void *value_place(PyObject *object, const Element *&element) {
    const SwigPyObject *pointer = SWIG_Python_GetSwigThis(object);
    element = pointer != nullptr ? element_behind(pointer->type) : nullptr;
    if (element == nullptr || element->form == Form::structure) {
        PyErr_SetString(PyExc_TypeError, "a value object is wanted");
        return nullptr;
    }
    if (pointer->ptr == nullptr) PyErr_SetString(PyExc_ValueError, "the value is gone");
    return pointer->ptr;
}

// A callback that travels as a value: none given means the one that calls Python.
bool store_own_callback(const Element &element, void *place) {
    const Callback *callback = find_callback(element.name);
    if (callback == nullptr) {
        PyErr_SetString(PyExc_ValueError, "no native callback has this name");
        return false;
    }
    std::memcpy(place, &callback->address, sizeof callback->address);
    return true;
}

// new_value(type, value=None): a bare pointer object that owns a new value.
PyObject *new_value(PyObject *, PyObject *args) {
    const char *name = nullptr;
    PyObject *value = Py_None;
    if (!PyArg_ParseTuple(args, "s|O:new_value", &name, &value)) return nullptr;
    const Element *element = find_element(name);
    if (element == nullptr) return nullptr;
    void *place = ::operator new(element->size, std::nothrow);
    if (place == nullptr) return PyErr_NoMemory();
    std::memset(place, 0, element->size);
    bool stored = true;
    if (value != Py_None)
        stored = store(*element, place, value);
    else if (element->form == Form::code_pointer)
        stored = store_own_callback(*element, place);
    PyObject *object = stored ? SWIG_Python_NewPointerObj(place, swig_type_slots[element->slot],
                                                          FLAG_OWN | FLAG_NOPROXY)
                              : nullptr;
    if (object == nullptr) ::operator delete(place);
    return object;
}

PyObject *get_value(PyObject *, PyObject *object) {
    const Element *element = nullptr;
    void *place = value_place(object, element);
    return place != nullptr ? load(*element, place, object) : nullptr;
}

// set_value(object, value)
PyObject *set_value(PyObject *, PyObject *args) {
    PyObject *object = nullptr;
    PyObject *value = nullptr;
    if (!PyArg_ParseTuple(args, "OO:set_value", &object, &value)) return nullptr;
    const Element *element = nullptr;
    void *place = value_place(object, element);
    if (place == nullptr || !store(*element, place, value)) return nullptr;
    Py_RETURN_NONE;
}

// The __swig_destroy__ of value classes. All makers of values use the single-object allocator.
PyObject *delete_value(PyObject *, PyObject *args) {
    PyObject *object = nullptr;
    const Element *element = nullptr;
    if (!PyArg_UnpackTuple(args, "delete_value", 1, 1, &object)) return nullptr;
    void *place = value_place(object, element);
    if (place == nullptr) return nullptr;
    if (Py_TYPE(object) == array_type())
        return PyErr_Format(PyExc_TypeError, "an Array frees its memory by itself");
    SWIG_Python_GetSwigThis(object)->own = 0;
    ::operator delete(place);
    Py_RETURN_NONE;
}

// The counted pointer in a holder; null with TypeError.
Counted *held(PyObject *object) {
    const SwigPyObject *pointer = SWIG_Python_GetSwigThis(object);
    const char *end = pointer != nullptr && pointer->type != nullptr
                          ? std::strstr(pointer->type->name, "__Ptr")
                          : nullptr;
    if (end == nullptr || end[sizeof "__Ptr" - 1] != '\0' || pointer->ptr == nullptr) {
        PyErr_SetString(PyExc_TypeError, "a holder of a counted pointer is wanted");
        return nullptr;
    }
    return static_cast<Counted *>(pointer->ptr);
}

// The __swig_destroy__ of holders: drops the reference and the holder.
PyObject *delete_holder(PyObject *, PyObject *args) {
    PyObject *object = nullptr;
    if (!PyArg_UnpackTuple(args, "delete_holder", 1, 1, &object)) return nullptr;
    Counted *holder = held(object);
    if (holder == nullptr) return nullptr;
    SWIG_Python_GetSwigThis(object)->own = 0;
    delete holder;
    Py_RETURN_NONE;
}

// A pointer object for what a holder holds, of the type named in front of "__Ptr" where there is
// one, else of `void *`; None for null.
PyObject *held_pointer(PyObject *, PyObject *object) {
    const Counted *holder = held(object);
    if (holder == nullptr) return nullptr;
    const char *name = SWIG_Python_GetSwigThis(object)->type->name;
    std::vector<char> target(name, name + std::strlen(name) - (sizeof "__Ptr" - 1));
    target.push_back('\0');
    swig_type_info *type = SWIG_MangledTypeQueryModule(&swig_module, &swig_module, target.data());
    return SWIG_Python_NewPointerObj(holder->get(),
                                     type != nullptr ? type : SWIG_Python_TypeQuery("_p_void"), 0);
}

// view(type, pointer, count=1, owner=pointer): an Array over native memory.
PyObject *view(PyObject *, PyObject *args) {
    const char *name = nullptr;
    PyObject *object = nullptr;
    Py_ssize_t count = 1;
    PyObject *owner = nullptr;
    if (!PyArg_ParseTuple(args, "sO|nO:view", &name, &object, &count, &owner)) return nullptr;
    const Element *element = find_element(name);
    if (element == nullptr) return nullptr;
    void *place = nullptr;
    if (SWIG_Python_ConvertPtrAndOwn(object, &place, swig_type_slots[element->slot], 0) < 0)
        return PyErr_Format(PyExc_TypeError, "a pointer of type '%s *' is wanted", name);
    if (place == nullptr || count < 0)
        return PyErr_Format(PyExc_ValueError, "a view of a null pointer or of a negative count");
    return new_view(*element, place, static_cast<std::size_t>(count),
                    owner != nullptr ? owner : object);
}

// register_class(type, class): instances of the class stand for values of the type from now on.
PyObject *register_class(PyObject *, PyObject *args) {
    const char *name = nullptr;
    PyObject *proxy_class = nullptr;
    if (!PyArg_ParseTuple(args, "sO:register_class", &name, &proxy_class)) return nullptr;
    std::vector<char> pretty(name, name + std::strlen(name));
    pretty.insert(pretty.end(), {' ', '*', '\0'});
    swig_type_info *type = SWIG_Python_TypeQuery(pretty.data());
    if (type == nullptr)
        return PyErr_Format(PyExc_ValueError, "no native type is called '%s'", name);
    const ombra::PyRef unpacked(PyTuple_Pack(1, proxy_class));
    return unpacked != nullptr ? SWIG_Python_RegisterClass(type, unpacked.get()) : nullptr;
}

// Whether a name of the main module stands behind a class: people use the class.
bool is_behind_class(PyObject *name, PyObject *value) {
    if (!PyCFunction_Check(value)) return false;
    const char *const doc = reinterpret_cast<PyCFunctionObject *>(value)->m_ml->ml_doc;
    if (doc == nullptr) return true;  // registrations
    const char *const text = PyString_AS_STRING(name);
    if (std::strncmp(text, "new_", 4) == 0) return std::strstr(doc, "()") != nullptr;
    const Py_ssize_t length = PyString_GET_SIZE(name);
    const char *const end = text + (length > 4 ? length - 4 : 0);
    return (std::strcmp(end, "_get") == 0 || std::strcmp(end, "_set") == 0 ||
            std::strncmp(text, "delete_", 7) == 0) &&
           std::strncmp(doc + length, "(self", 5) == 0;
}

// take_names(namespace, source): enters all of a dictionary into another. One by one, since the
// dictionary's own update() would make room for twice as many. Returns the names that people look
// for.
PyObject *take_names(PyObject *, PyObject *args) {
    PyObject *target = nullptr;
    PyObject *source = nullptr;
    if (!PyArg_ParseTuple(args, "O!O!:take_names", &PyDict_Type, &target, &PyDict_Type, &source))
        return nullptr;
    ombra::PyRef names(PyList_New(0));
    PyObject *name = nullptr;
    PyObject *value = nullptr;
    for (Py_ssize_t at = 0; names != nullptr && PyDict_Next(source, &at, &name, &value);) {
        if (!PyString_Check(name)) continue;
        if (PyDict_SetItem(target, name, value) != 0) return nullptr;
        if (PyString_AS_STRING(name)[0] != '_' && !is_behind_class(name, value) &&
            PyList_Append(names.get(), name) != 0) {
            return nullptr;
        }
    }
    return names.release();
}

// native_types(): the names that Array takes.
PyObject *native_types(PyObject *, PyObject *) {
    ombra::PyRef list(PyList_New(static_cast<Py_ssize_t>(element_count)));
    for (std::size_t i = 0; list != nullptr && i < element_count; ++i) {
        PyObject *name = PyString_FromString(elements[i].name);
        if (name == nullptr) return nullptr;
        PyList_SET_ITEM(list.get(), static_cast<Py_ssize_t>(i), name);
    }
    return list.release();
}

constexpr PyMethodDef own_methods[] = {
    {"SWIG_PyInstanceMethod_New", SWIG_PyInstanceMethod_New, METH_O, nullptr},
    {"new_value", new_value, METH_VARARGS, "new_value(type, value=None): an owning pointer object"},
    {"get_value", get_value, METH_O, "get_value(object): what a value object stands for"},
    {"set_value", set_value, METH_VARARGS, "set_value(object, value)"},
    {"delete_value", delete_value, METH_VARARGS, "delete_value(object): the end of a value"},
    {"delete_holder", delete_holder, METH_VARARGS, "delete_holder(object): drops the reference"},
    {"held_pointer", held_pointer, METH_O, "held_pointer(holder): a plain pointer, or None"},
    {"view", view, METH_VARARGS,
     "view(type, pointer, count=1, owner=pointer) -> Array over native memory, which reaches as "
     "far "
     "as the caller says. Keeps `owner`."},
    {"register_class", register_class, METH_VARARGS, "register_class(type, class)"},
    {"take_names", take_names, METH_VARARGS, "take_names(namespace, source) -> public names"},
    {"new_class", new_class, METH_VARARGS, "new_class(name, base, members) -> class"},
    {"add_fields", add_fields, METH_VARARGS,
     "add_fields(members, class_name, table, rows) -> names of the fields added to `members`"},
    {"native_types", native_types, METH_NOARGS, "native_types(): the names that Array takes"},
    {"cookie", new_cookie, METH_O,
     "cookie(callable) -> pointer: names a callable to a native callback. The callable is kept "
     "until release(cookie), also when nobody keeps the cookie: a registered callback stays safe."},
    {"release", release_cookie, METH_O,
     "release(cookie) -> bool: lets go of the callable. A callback that still gets the cookie "
     "answers with a failure. False for a cookie that was released before."},
    {"callback_errors", callback_errors, METH_O,
     "callback_errors(hook) -> hook before: calls hook(type, value, traceback) for an exception "
     "that leaves a callback; None, as at first, is sys.excepthook."},
    {"bind", bind, METH_VARARGS,
     "bind(callback, callable): sets the callable of a callback that has no cookie; None takes it "
     "away. Returns the one before, or None."},
};

// The module's own functions, and behind them a built-in for each callback.
std::vector<PyMethodDef> &all_methods() {
    static auto &all =
        *new std::vector<PyMethodDef>(std::begin(own_methods), std::end(own_methods));
    return all;
}

void add_type(PyObject *module, const char *name, PyTypeObject *type) {
    if (module != nullptr && type != nullptr)
        PyModule_AddObject(module, name,
                           ombra::new_ref(reinterpret_cast<PyObject *>(type)).release());
}

void init() {
    std::vector<PyMethodDef> &methods = all_methods();
    const PyMethodDef *callback = callback_methods;
    if (methods.size() == std::size(own_methods)) {
        do {
            methods.push_back(*callback);
        } while ((callback++)->ml_name != nullptr);
    }
    SWIG_Python_RunEntry({"_OmbraSdkV2Companion", methods.data(), callback_rows, &swig_module,
                          nullptr, nullptr, nullptr, 0});
    PyObject *module = PyImport_AddModule("_OmbraSdkV2Companion");
    add_type(module, "Array", array_type());
    add_type(module, "Instance", instance_type());
    add_type(module, "Field", field_type());
}

}  // namespace

}  // namespace companion

extern "C" __attribute__((visibility("default"))) void init_OmbraSdkV2Companion() {
    companion::init();
}
