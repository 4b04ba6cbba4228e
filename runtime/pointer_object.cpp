// The Python type of pointer objects: its methods, chains and destruction.
#include "runtime/pointer_object.h"

#include <cstdio>
#include <cstring>

#include "runtime/client_data.h"
#include "runtime/py_ref.h"
#include "runtime/ready_type.h"
#include "runtime/set_aside.h"

using ombra::as_pointer_object;
using ombra::PyRef;

PyTypeObject SwigPyObject_type_object;

namespace {

// Calls a `destroy` flagged METH_O with the dying object itself. For the time of the call the
// object has a reference again, so that the callee may take and drop one without a second death.
// REQUIRES: `destroy` is a built-in function, and it keeps no reference to its argument.
PyObject *destroy_directly(PyObject *destroy, SwigPyObject *self) {
    PyObject *object = &self->head;
    ++object->ob_refcnt;
    PyObject *result = PyCFunction_GetFunction(destroy)(PyCFunction_GetSelf(destroy), object);
    --object->ob_refcnt;
    return result;
}

// The stand-in for the dying object does not own, so its own death runs no destructor.
PyObject *destroy_through_tuple(PyObject *destroy, const SwigPyObject *self) {
    const PyRef temporary(SwigPyObject_New(self->ptr, self->type, 0));
    if (temporary == nullptr) return nullptr;
    return PyObject_CallFunctionObjArgs(destroy, temporary.get(), nullptr);
}

// Runs the native destructor. An object can die while an exception is on its way, so that one is
// set aside.
void destroy_native(const SwigPyClientData &data, SwigPyObject *self) {
    PyRef result;  // dropped once the exception is back
    const ombra::SetAside set_aside;
    result.reset(data.destroy_takes_tuple != 0 ? destroy_through_tuple(data.destroy, self)
                                               : destroy_directly(data.destroy, self));
    if (result == nullptr) PyErr_WriteUnraisable(data.destroy);
}

// Drops a chain. Links that nobody else holds are taken apart one by one: a long chain would
// otherwise nest one death in the other until the stack ends, also one of two modules' objects.
void release_chain(PyObject *next) {
    while (next != nullptr) {
        PyObject *after = nullptr;
        if (Py_REFCNT(next) == 1 && SwigPyObject_Test(next)) {
            after = as_pointer_object(next)->next;
            as_pointer_object(next)->next = nullptr;
        }
        Py_DECREF(next);
        next = after;
    }
}

void SwigPyObject_dealloc(PyObject *object) {
    SwigPyObject *self = as_pointer_object(object);
    if (self->own == 1) {
        const SwigPyClientData *data = self->type != nullptr ? self->type->client_data : nullptr;
        if (data != nullptr && data->destroy != nullptr) {
            destroy_native(*data, self);
        } else {
            std::printf("swig/python detected a memory leak of type '%s', no destructor found.\n",
                        ombra::display_name_or_unknown(self->type));
        }
    }
    release_chain(self->next);
    PyObject_FREE(object);
}

PyObject *SwigPyObject_format(const char *format, PyObject *object) {
    const PyRef pattern(PyString_FromString(format));
    const PyRef value(SwigPyObject_long(object));
    if (pattern == nullptr || value == nullptr) return nullptr;
    const PyRef values(PyTuple_Pack(1, value.get()));
    return values != nullptr ? PyString_Format(pattern.get(), values.get()) : nullptr;
}

// Calls `visit` for each link of a chain. True if the chain runs in a ring, where it ends.
// REQUIRES: `visit` runs no Python code.
template <typename Visit>
bool walk_chain(PyObject *object, Visit visit) {
    ombra::RingGuard ring;
    for (; object != nullptr; object = as_pointer_object(object)->next) {
        if (ring.closes(object)) return true;
        visit(object);
    }
    return false;
}

// Writes as much of a link's text as fits, with its terminator; returns the length of the whole.
std::size_t write_link(char *out, std::size_t room, PyObject *object) {
    const int length =
        std::snprintf(out, room, "<Swig Object of type '%s' at %p>",
                      ombra::display_name_or_unknown(as_pointer_object(object)->type),
                      static_cast<void *>(object));
    return static_cast<std::size_t>(length);
}

// A method without arguments, as the interpreter calls it.
template <PyObject *(*method)(PyObject *)>
PyObject *no_arguments(PyObject *object, PyObject *) {
    return method(object);
}

PyMethodDef SwigPyObject_methods[] = {
    {"disown", no_arguments<SwigPyObject_disown>, METH_NOARGS, "releases ownership of the pointer"},
    {"acquire", no_arguments<SwigPyObject_acquire>, METH_NOARGS,
     "acquires ownership of the pointer"},
    {"own", SwigPyObject_own, METH_VARARGS, "returns/sets ownership of the pointer"},
    {"append", SwigPyObject_append, METH_O, "appends another 'this' object"},
    {"next", no_arguments<SwigPyObject_next>, METH_NOARGS, "returns the next 'this' object"},
    {"__repr__", no_arguments<SwigPyObject_repr>, METH_NOARGS, "returns object representation"},
    {nullptr, nullptr, 0, nullptr},
};

PyNumberMethods SwigPyObject_number_methods;

// No tp_hash: with comparison set and __hash__ not, the interpreter makes the type unhashable.
void fill_type(PyTypeObject &type) {
    SwigPyObject_number_methods.nb_int = SwigPyObject_long;
    SwigPyObject_number_methods.nb_long = SwigPyObject_long;
    SwigPyObject_number_methods.nb_oct = SwigPyObject_oct;
    SwigPyObject_number_methods.nb_hex = SwigPyObject_hex;

    type.tp_name = "SwigPyObject";
    type.tp_basicsize = sizeof(SwigPyObject);
    type.tp_dealloc = SwigPyObject_dealloc;
    type.tp_compare = SwigPyObject_compare;
    type.tp_repr = SwigPyObject_repr;
    type.tp_as_number = &SwigPyObject_number_methods;
    type.tp_getattro = PyObject_GenericGetAttr;
    type.tp_doc = "Swig object carries a C/C++ instance pointer";
    type.tp_richcompare = SwigPyObject_richcompare;
    type.tp_methods = SwigPyObject_methods;
}

[[gnu::cold, gnu::noinline]] PyTypeObject *SwigPyObject_TypeOnce() {
    return ombra::ready_type(SwigPyObject_type_object, fill_type);
}

}  // namespace

PyTypeObject *SwigPyObject_type() {
    // Without a guarded static, so that it inlines into SwigPyObject_New. The lock is held.
    static PyTypeObject *type = nullptr;
    if (type == nullptr) [[unlikely]]
        type = SwigPyObject_TypeOnce();
    return type;
}

PyObject *SwigPyObject_New(void *ptr, swig_type_info *type, int own) {
    PyTypeObject *const object_type = SwigPyObject_type();
    auto *self = static_cast<SwigPyObject *>(PyObject_MALLOC(sizeof(SwigPyObject)));
    if (self == nullptr || object_type == nullptr) [[unlikely]] {
        PyObject_FREE(self);
        return PyErr_NoMemory();
    }
    PyObject_INIT(&self->head, object_type);
    self->ptr = ptr;
    self->type = type;
    self->own = own;
    self->next = nullptr;
    return &self->head;
}

int SwigPyObject_compare(PyObject *left, PyObject *right) {
    const auto left_value = reinterpret_cast<std::uintptr_t>(as_pointer_object(left)->ptr);
    const auto right_value = reinterpret_cast<std::uintptr_t>(as_pointer_object(right)->ptr);
    return left_value < right_value ? -1 : (left_value > right_value ? 1 : 0);
}

PyObject *SwigPyObject_richcompare(PyObject *left, PyObject *right, int operation) {
    if ((operation != Py_EQ && operation != Py_NE) || !SwigPyObject_Test(right)) {
        Py_INCREF(Py_NotImplemented);
        return Py_NotImplemented;
    }
    const bool equal = SwigPyObject_compare(left, right) == 0;
    return PyBool_FromLong(equal == (operation == Py_EQ));
}

PyObject *SwigPyObject_long(PyObject *object) {
    return PyLong_FromVoidPtr(as_pointer_object(object)->ptr);
}

PyObject *SwigPyObject_oct(PyObject *object) { return SwigPyObject_format("%o", object); }

PyObject *SwigPyObject_hex(PyObject *object) { return SwigPyObject_format("%x", object); }

// The chain is measured first and then written in place, since a text that grows link by link is
// copied as often.
PyObject *SwigPyObject_repr(PyObject *object) {
    static const char kRing[] = "...";
    std::size_t length = 0;
    const bool is_ring =
        walk_chain(object, [&](PyObject *link) { length += write_link(nullptr, 0, link); });
    if (is_ring) length += sizeof kRing - 1;
    PyObject *text = PyString_FromStringAndSize(nullptr, static_cast<Py_ssize_t>(length));
    if (text == nullptr) return nullptr;
    char *out = PyString_AS_STRING(text);
    const char *const end = out + length + 1;
    walk_chain(object, [&](PyObject *link) {
        out += write_link(out, static_cast<std::size_t>(end - out), link);
    });
    if (is_ring) std::memcpy(out, kRing, sizeof kRing);
    return text;
}

PyObject *SwigPyObject_disown(PyObject *object) {
    as_pointer_object(object)->own = 0;
    Py_RETURN_NONE;
}

PyObject *SwigPyObject_acquire(PyObject *object) {
    as_pointer_object(object)->own = 1;
    Py_RETURN_NONE;
}

PyObject *SwigPyObject_own(PyObject *object, PyObject *args) {
    PyObject *value = nullptr;
    if (!PyArg_UnpackTuple(args, "own", 0, 1, &value)) return nullptr;
    SwigPyObject *self = as_pointer_object(object);
    const long before = self->own;
    if (value != nullptr) {
        const int truth = PyObject_IsTrue(value);
        self->own = truth != 0 ? 1 : 0;
        if (truth < 0) return nullptr;  // the value's own exception
    }
    return PyBool_FromLong(before);
}

PyObject *SwigPyObject_append(PyObject *object, PyObject *other) {
    if (!SwigPyObject_Test(other)) {
        PyErr_SetString(PyExc_TypeError, "Attempt to append a non SwigPyObject");
        return nullptr;
    }
    PyObject *before = as_pointer_object(object)->next;
    Py_INCREF(other);
    as_pointer_object(object)->next = other;
    Py_XDECREF(before);
    Py_RETURN_NONE;
}

PyObject *SwigPyObject_next(PyObject *object) {
    PyObject *next = as_pointer_object(object)->next;
    if (next == nullptr) Py_RETURN_NONE;
    Py_INCREF(next);
    return next;
}
