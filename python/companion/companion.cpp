// The companion module: makes what the SDK's functions take and the main module has no row for.
//
// It is a module of the same kind, and joins the list of types that all of them share, so that its
// objects pass in the main module and the main module's here. Its own tables of types are those of
// the main module. Nothing of the main module is changed by it.

#include <Python.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <new>

#include "convert/results.h"
#include "generated/type_slots.h"
#include "python/companion/array.h"
#include "python/companion/callbacks.h"
#include "python/companion/instance.h"
#include "runtime/client_data.h"
#include "runtime/exit_count.h"
#include "runtime/module_entry.h"
#include "runtime/native_notes.h"
#include "runtime/pointer_conversion.h"
#include "runtime/py_ref.h"
#include "toolkit/ptr.h"

extern swig_module_table swig_module;

namespace companion {

namespace {

using Counted = Lumo::Ptr<Lumo::PtrInterface>;

constexpr char kName[] = "_OmbraSdkV2Companion";

// The pointer object of a value object, borrowed, and its element; null with an exception. What it
// points to is there.
SwigPyObject *value_pointer(PyObject *object, const Element *&element) {
    SwigPyObject *pointer = SWIG_Python_GetSwigThis(object);
    element = pointer != nullptr ? element_behind(pointer->type) : nullptr;
    if (element == nullptr || element->form == Form::structure) {
        PyErr_SetString(PyExc_TypeError, "a value object is wanted");
        return nullptr;
    }
    if (pointer->ptr == nullptr) {
        PyErr_SetString(PyExc_ValueError, "the value is gone");
        return nullptr;
    }
    return pointer;
}

// Takes the note of an owned object away, wherever it was made. False with ValueError where it is
// none, or none any more.
bool take_note(const SwigPyObject &pointer) {
    return ombra::forget_owned(pointer.ptr, pointer.type) ||
           ombra::forget_owned_elsewhere(pointer.ptr, pointer.type) ||
           ombra::may_free_unnoted(pointer.ptr);
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
    if (stored) return ombra::own_bare(place, swig_type_slots[element->slot]);
    ::operator delete(place);
    return nullptr;
}

PyObject *get_value(PyObject *, PyObject *object) {
    const Element *element = nullptr;
    const SwigPyObject *pointer = value_pointer(object, element);
    return pointer != nullptr ? load(*element, pointer->ptr, object) : nullptr;
}

// set_value(object, value)
PyObject *set_value(PyObject *, PyObject *args) {
    PyObject *object = nullptr;
    PyObject *value = nullptr;
    if (!PyArg_ParseTuple(args, "OO:set_value", &object, &value)) return nullptr;
    const Element *element = nullptr;
    const SwigPyObject *pointer = value_pointer(object, element);
    if (pointer == nullptr || !store(*element, pointer->ptr, value)) return nullptr;
    Py_RETURN_NONE;
}

// The __swig_destroy__ of value classes. All makers of values use the single-object allocator.
PyObject *delete_value(PyObject *, PyObject *args) {
    PyObject *object = nullptr;
    const Element *element = nullptr;
    if (!PyArg_UnpackTuple(args, "delete_value", 1, 1, &object)) return nullptr;
    SwigPyObject *pointer = value_pointer(object, element);
    if (pointer == nullptr) return nullptr;
    pointer->own = 0;
    if (!take_note(*pointer)) return nullptr;
    ::operator delete(pointer->ptr);
    Py_RETURN_NONE;
}

// The pointer object of a holder, borrowed; null with TypeError.
SwigPyObject *holder_pointer(PyObject *object) {
    SwigPyObject *pointer = SWIG_Python_GetSwigThis(object);
    const char *end = pointer != nullptr && pointer->type != nullptr
                          ? std::strstr(pointer->type->name, "__Ptr")
                          : nullptr;
    if (end == nullptr || end[sizeof "__Ptr" - 1] != '\0' || pointer->ptr == nullptr) {
        PyErr_SetString(PyExc_TypeError, "a holder of a counted pointer is wanted");
        return nullptr;
    }
    return pointer;
}

// The __swig_destroy__ of holders: drops the reference and the holder.
PyObject *delete_holder(PyObject *, PyObject *args) {
    PyObject *object = nullptr;
    if (!PyArg_UnpackTuple(args, "delete_holder", 1, 1, &object)) return nullptr;
    SwigPyObject *pointer = holder_pointer(object);
    if (pointer == nullptr) return nullptr;
    pointer->own = 0;
    if (!take_note(*pointer)) return nullptr;
    delete static_cast<Counted *>(pointer->ptr);
    Py_RETURN_NONE;
}

// A pointer object for what a holder holds, of the type named in front of "__Ptr" where there is
// one, else of `void *`; None for null.
PyObject *held_pointer(PyObject *, PyObject *object) {
    const SwigPyObject *pointer = holder_pointer(object);
    if (pointer == nullptr) return nullptr;
    const auto *holder = static_cast<Counted *>(pointer->ptr);
    const char *name = pointer->type->name;
    const ombra::PyRef target(PyString_FromStringAndSize(
        name, static_cast<Py_ssize_t>(std::strlen(name) - (sizeof "__Ptr" - 1))));
    if (target == nullptr) return nullptr;
    swig_type_info *type =
        SWIG_MangledTypeQueryModule(&swig_module, &swig_module, PyString_AS_STRING(target.get()));
    return SWIG_Python_NewPointerObj(holder->get(),
                                     type != nullptr ? type : swig_type_slots[slots::_p_void], 0);
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

// Ends an object whose type has `row` as its destructor: 1, or 0 for any other object; -1 with
// ValueError for one that Python does not own, or no more. The pointer object is null from then on,
// and keeps the memory as a link of its chain, so that what was read out of it in place stays good
// for as long as it keeps the object.
int retire(PyObject *row, PyObject *object) {
    SwigPyObject *pointer = SWIG_Python_GetSwigThis(object);
    const SwigPyClientData *data =
        pointer != nullptr && pointer->type != nullptr ? pointer->type->client_data : nullptr;
    if (data == nullptr || data->destroy != row || pointer->ptr == nullptr) return 0;
    pointer->own = 0;
    if (!ombra::is_owned_anywhere(pointer->ptr, pointer->type) &&
        !ombra::may_free_unnoted(pointer->ptr)) {
        return -1;
    }
    PyObject *memory = SwigPyObject_New(pointer->ptr, pointer->type, FLAG_OWN);
    if (memory == nullptr) return -1;
    ombra::as_pointer_object(memory)->next = pointer->next;
    pointer->next = memory;
    pointer->ptr = nullptr;
    return 1;
}

// A delete_ row as people have it.
PyObject *retire_by_row(PyObject *row, PyObject *args) {
    const int retired = PyTuple_GET_SIZE(args) == 1 ? retire(row, PyTuple_GET_ITEM(args, 0)) : 0;
    if (retired == 0) return PyObject_Call(row, args, nullptr);
    return retired > 0 ? ombra::new_ref(Py_None).release() : nullptr;
}

// Room for so many methods, which lasts: the interpreter keeps them. Null with MemoryError.
PyMethodDef *deleter_methods(std::size_t count) {
    static PyMethodDef *room = nullptr;
    static std::size_t size = 0;
    if (room != nullptr && count <= size) return room;  // a reload
    auto *const made = PyMem_New(PyMethodDef, count);
    if (made == nullptr) return reinterpret_cast<PyMethodDef *>(PyErr_NoMemory());
    size = count;
    return room = made;
}

// add_deleters(namespace, rows): enters a function of its name for each delete_ row.
PyObject *add_deleters(PyObject *, PyObject *args) {
    PyObject *target = nullptr;
    PyObject *rows = nullptr;
    if (!PyArg_ParseTuple(args, "O!O!:add_deleters", &PyDict_Type, &target, &PyList_Type, &rows))
        return nullptr;
    const ombra::PyRef module(PyString_FromString("OmbraSdkV2Helper"));
    PyMethodDef *method = deleter_methods(static_cast<std::size_t>(PyList_GET_SIZE(rows)));
    if (module == nullptr || method == nullptr) return nullptr;
    for (Py_ssize_t i = 0; i < PyList_GET_SIZE(rows); ++i, ++method) {
        PyObject *const row = PyList_GET_ITEM(rows, i);
        if (!PyCFunction_Check(row)) return PyErr_Format(PyExc_TypeError, "rows are wanted");
        const PyMethodDef &native = *reinterpret_cast<PyCFunctionObject *>(row)->m_ml;
        *method = {native.ml_name, retire_by_row, METH_VARARGS, native.ml_doc};
        const ombra::PyRef made(PyCFunction_NewEx(method, row, module.get()));
        if (made == nullptr || PyDict_SetItemString(target, native.ml_name, made.get()) != 0)
            return nullptr;
    }
    Py_RETURN_NONE;
}

// register_class(type, class): instances of the class stand for values of the type from now on.
PyObject *register_class(PyObject *, PyObject *args) {
    const char *name = nullptr;
    PyObject *proxy_class = nullptr;
    if (!PyArg_ParseTuple(args, "sO:register_class", &name, &proxy_class)) return nullptr;
    const ombra::PyRef pretty(PyString_FromFormat("%s *", name));
    if (pretty == nullptr) return nullptr;
    swig_type_info *type = ombra::find_spelling(&swig_module, PyString_AS_STRING(pretty.get()));
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

// A class can be registered for the whole process alone. One of another interpreter than the first
// would end before the others, and leave them instances whose code is gone.
PyObject *in_first_interpreter(PyObject *, PyObject *) {
    return PyBool_FromLong(is_first_interpreter());
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
    {"add_deleters", add_deleters, METH_VARARGS,
     "add_deleters(namespace, rows): functions for delete_ rows. What they delete is null, and its "
     "memory lasts as long as what was read out of it."},
    {"register_class", register_class, METH_VARARGS, "register_class(type, class)"},
    {"take_names", take_names, METH_VARARGS, "take_names(namespace, source) -> public names"},
    {"new_class", new_class, METH_VARARGS, "new_class(name, base, members) -> class"},
    {"add_fields", add_fields, METH_VARARGS,
     "add_fields(members, class_name, table, rows) -> names of the fields added to `members`"},
    {"in_first_interpreter", in_first_interpreter, METH_NOARGS,
     "in_first_interpreter() -> bool: whether the interpreter outlives all others of the process"},
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

// The module's own functions, and behind them the built-ins of the callbacks and the end. Made
// once, and never freed, since the interpreter keeps it; null without memory.
PyMethodDef *all_methods() {
    static PyMethodDef *all = nullptr;
    if (all != nullptr) return all;
    const PyMethodDef *end = callback_methods;
    while (end->ml_name != nullptr) ++end;
    const std::size_t count = static_cast<std::size_t>(end + 1 - callback_methods);
    all = static_cast<PyMethodDef *>(
        PyMem_Malloc((std::size(own_methods) + count) * sizeof(PyMethodDef)));
    if (all != nullptr) {
        std::copy_n(callback_methods, count,
                    std::copy(std::begin(own_methods), std::end(own_methods), all));
    }
    return all;
}

bool add_type(const char *name, PyTypeObject *type) {
    PyObject *module = PyImport_AddModule(kName);
    if (module == nullptr || type == nullptr) return false;
    PyObject *object = ombra::new_ref(reinterpret_cast<PyObject *>(type)).release();
    if (PyModule_AddObject(module, name, object) == 0) return true;
    Py_DECREF(object);
    return false;
}

bool add_types() {
    return add_type("Array", array_type()) && add_type("Instance", instance_type()) &&
           add_type("Field", field_type());
}

bool finish() { return add_types() && ombra::share_notes(); }

void init() {
    PyMethodDef *methods = all_methods();
    if (methods == nullptr) {
        PyErr_NoMemory();
        return;
    }
    if (SWIG_Python_RunEntry(
            {kName, methods, callback_rows, &swig_module, nullptr, nullptr, nullptr, 0, finish}))
        ombra::count_at_exit(kName, tell_live_callbacks);
}

}  // namespace

}  // namespace companion

extern "C" __attribute__((visibility("default"))) void init_OmbraSdkV2Companion() {
    companion::init();
}
