// The unusual ways of pointer conversion: casts, proxies, docstrings, ownership.
#include "runtime/pointer_conversion.h"

#include <cstring>

#include "runtime/assertions.h"
#include "runtime/hex_text.h"
#include "runtime/py_ref.h"

using ombra::as_pointer_object;
using ombra::PyRef;

namespace {

PyObject *swig_this_name = nullptr;

// A reference to what a look-up lends, or null. Look-ups run foreign code, that of keys for
// instance, which may let go of anything that is not held.
PyRef held(PyObject *borrowed) { return borrowed != nullptr ? ombra::new_ref(borrowed) : nullptr; }

// `this` of an object without an instance dictionary. Whoever answers keeps it alive: an answer
// that nobody else holds counts as none.
PyRef this_attribute(PyObject *object, PyObject *name) {
    PyRef found(PyObject_GetAttr(object, name));
    if (found == nullptr)
        PyErr_Clear();
    else if (Py_REFCNT(found.get()) == 1)
        found.reset();
    return found;
}

// The next object on the way to a pointer object, or null.
PyRef step_inward(PyObject *object, PyObject *name) {
    if (PyInstance_Check(object)) {
        const auto *instance = reinterpret_cast<PyInstanceObject *>(object);
        const PyRef dictionary = held(instance->in_dict);
        const PyRef members = held(instance->in_class->cl_dict);
        return held(_PyInstance_Lookup(object, name));
    }
    if (PyObject **place = _PyObject_GetDictPtr(object)) {
        const PyRef dictionary = held(*place);
        return dictionary != nullptr ? held(PyDict_GetItem(dictionary.get(), name)) : nullptr;
    }
    if (PyWeakref_CheckProxy(object))
        return held(PyWeakref_GET_OBJECT(object));  // None once it is dead
    return this_attribute(object, name);
}

// The link of a chain that fits the wanted type, and the cast that it takes. No link if none fits;
// no cast if the type is the wanted one itself or any will do.
struct Match {
    SwigPyObject *link = nullptr;
    const swig_cast_link *cast = nullptr;
};

Match find_match(SwigPyObject *head, swig_type_info *wanted) {
    if (wanted == nullptr) return {head, nullptr};
    ombra::RingGuard ring;
    for (SwigPyObject *link = head; link != nullptr; link = as_pointer_object(link->next)) {
        if (ring.closes(link)) break;
        if (link->type == wanted) return {link, nullptr};
        if (link->type != nullptr) {
            if (const swig_cast_link *cast = SWIG_TypeCheck(link->type->name, wanted))
                return {link, cast};
        }
    }
    return {};
}

// `condition` is what does not hold if the converter allocates: nobody here could own the result.
void *cast_pointer(const swig_cast_link *cast, void *pointer, const char *condition,
                   const char *function) {
    if (cast == nullptr || cast->converter == nullptr) return pointer;
    int new_memory = 0;
    void *converted = cast->converter(pointer, &new_memory);
    if (new_memory != 0) ombra::assertion_failed(condition, function);
    return converted;
}

int convert_chain(SwigPyObject *head, void **out, swig_type_info *wanted, int flags) {
    const Match match = find_match(head, wanted);
    if (match.link == nullptr) return STATUS_GENERIC;
    if (out != nullptr)
        *out = cast_pointer(match.cast, match.link->ptr, "own", "SWIG_Python_ConvertPtrAndOwn");
    if ((flags & FLAG_DISOWN) != 0) match.link->own = 0;
    return STATUS_OK;
}

// Makes an instance of the wanted type's proxy class from the object, and takes the pointer and
// the ownership out of it. `converting` keeps the constructor from coming back here.
int convert_implicitly(PyObject *object, void **out, swig_type_info *wanted) {
    SwigPyClientData *data = wanted != nullptr ? wanted->client_data : nullptr;
    if (data == nullptr || data->converting != 0 || data->proxy_class == nullptr)
        return STATUS_GENERIC;
    data->converting = 1;
    const PyRef made(PyObject_CallFunctionObjArgs(data->proxy_class, object, nullptr));
    data->converting = 0;
    if (PyErr_Occurred() != nullptr) {
        PyErr_Clear();
        return STATUS_GENERIC;
    }
    SwigPyObject *inner = made != nullptr ? SWIG_Python_GetSwigThis(made.get()) : nullptr;
    void *pointer = nullptr;
    if (inner == nullptr || convert_chain(inner, &pointer, wanted, 0) < 0) return STATUS_GENERIC;
    if (out == nullptr) return STATUS_OK;
    *out = pointer;
    inner->own = 0;
    return STATUS_NEWOBJ;
}

// Reads what stands behind the marker in a docstring. Returns the mangled name of the function's
// type, or null.
const char *unpack_function(const char *text, void **function, const swig_type_info *wanted) {
    if (*text == '_') return SWIG_UnpackData(text + 1, function, sizeof *function);
    *function = nullptr;
    return std::strcmp(text, "NULL") == 0 ? wanted->name : nullptr;
}

// As the instance's dictionary holds it, the proxy keeps the pointer object alive, and with it the
// ownership. False with an error on failure.
bool put_this(PyObject *dictionary, PyObject *pointer_object) {
    PyObject *name = SWIG_This();
    return name != nullptr && PyDict_SetItem(dictionary, name, pointer_object) == 0;
}

}  // namespace

PyObject *SWIG_This() {
    if (swig_this_name == nullptr) {
        // Interned like the names in instance dictionaries, so that a lookup hits by address.
        swig_this_name = PyString_InternFromString("this");
    }
    return swig_this_name;
}

void SWIG_Python_ReleaseThis() { Py_CLEAR(swig_this_name); }

SwigPyObject *SWIG_Python_GetSwigThis(PyObject *object) {
    if (object == nullptr || SwigPyObject_Test(object)) return as_pointer_object(object);
    ombra::RingGuard ring;
    PyRef current = ombra::new_ref(object);
    while (!SwigPyObject_Test(current.get())) {
        PyObject *name = SWIG_This();
        if (name == nullptr) PyErr_Clear();
        if (name == nullptr || ring.closes(current.get())) return nullptr;
        current = step_inward(current.get(), name);
        if (current == nullptr) return nullptr;
    }
    // The caller borrows it from whoever keeps it: what lives by this reference alone counts as
    // none.
    return Py_REFCNT(current.get()) > 1 ? as_pointer_object(current.get()) : nullptr;
}

int ombra::convert_pointer(PyObject *object, void **out, swig_type_info *wanted, int flags) {
    if (object == nullptr) return STATUS_GENERIC;
    int status = STATUS_GENERIC;
    if (SwigPyObject *head = SWIG_Python_GetSwigThis(object))
        status = convert_chain(head, out, wanted, flags);
    if (status < 0 && (flags & FLAG_IMPLICIT) != 0)
        status = convert_implicitly(object, out, wanted);
    if (status < 0 && object == Py_None) {
        if (out != nullptr) *out = nullptr;
        PyErr_Clear();
        status = STATUS_OK;
    }
    return status;
}

int SWIG_Python_ConvertFunctionPtr(PyObject *object, void **out, swig_type_info *wanted) {
    if (object == nullptr || !PyCFunction_Check(object))
        return SWIG_Python_ConvertPtrAndOwn(object, out, wanted, 0);
    static const char marker[] = "swig_ptr: ";
    const char *text = reinterpret_cast<PyCFunctionObject *>(object)->m_ml->ml_doc;
    text = text != nullptr ? std::strstr(text, marker) : nullptr;
    if (text == nullptr || wanted == nullptr) return STATUS_GENERIC;
    void *function = nullptr;
    const char *type_name = unpack_function(text + sizeof marker - 1, &function, wanted);
    const swig_cast_link *cast = type_name != nullptr ? SWIG_TypeCheck(type_name, wanted) : nullptr;
    if (cast == nullptr) return STATUS_GENERIC;
    if (out != nullptr)
        *out = cast_pointer(cast, function, "!newmemory", "SWIG_Python_ConvertFunctionPtr");
    return STATUS_OK;
}

PyObject *SWIG_Python_NewPointerObj(void *pointer, swig_type_info *type, int flags) {
    if (pointer == nullptr) Py_RETURN_NONE;
    if ((flags & (1 << 2)) != 0) [[unlikely]]
        ombra::assertion_failed("!(flags & (0x1 << 2))", "SWIG_Python_NewPointerObj");
    const SwigPyClientData *data = type != nullptr ? type->client_data : nullptr;
    PyObject *object = SwigPyObject_New(pointer, type, flags & FLAG_OWN);
    if (object == nullptr || data == nullptr || (flags & FLAG_NOPROXY) != 0) return object;
    PyObject *instance = SWIG_Python_NewProxyInstance(data, object);
    Py_DECREF(object);
    return instance;
}

PyObject *SWIG_Python_NewProxyInstance(const SwigPyClientData *data, PyObject *pointer_object) {
    if (data->raw_new == nullptr) {
        const PyRef dictionary(PyDict_New());
        if (dictionary == nullptr || !put_this(dictionary.get(), pointer_object)) return nullptr;
        return PyInstance_NewRaw(data->raw_new_args, dictionary.get());
    }
    PyRef instance(PyObject_Call(data->raw_new, data->raw_new_args, nullptr));
    if (instance == nullptr) return nullptr;
    PyObject **dictionary = _PyObject_GetDictPtr(instance.get());
    if (dictionary != nullptr && *dictionary == nullptr) {
        *dictionary = PyDict_New();
        if (*dictionary == nullptr || !put_this(*dictionary, pointer_object)) return nullptr;
    }
    return instance.release();
}
