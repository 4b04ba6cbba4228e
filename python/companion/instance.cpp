// The base of proxy classes: a dictionary, weak references, and attributes that have to exist.

#include "python/companion/instance.h"

#include <cstddef>

#include "runtime/pointer_conversion.h"
#include "runtime/py_ref.h"
#include "runtime/ready_type.h"

namespace companion {

namespace {

struct Instance {
    PyObject head;
    PyObject *dictionary;  // empty until somebody stores `this`
    PyObject *weak_references;
};

Instance *as_instance(PyObject *object) { return reinterpret_cast<Instance *>(object); }

// Arguments are for __init__.
PyObject *instance_new(PyTypeObject *type, PyObject *, PyObject *) {
    return type->tp_alloc(type, 0);
}

// A new structure: `this` from the class's `_new`, then the fields given as keywords.
int instance_init(PyObject *object, PyObject *args, PyObject *keywords) {
    static PyObject *const name = PyString_InternFromString("_new");
    if (PyTuple_GET_SIZE(args) != 0) {
        PyErr_Format(PyExc_TypeError, "%s takes its fields as keywords", Py_TYPE(object)->tp_name);
        return -1;
    }
    PyObject *const make = name != nullptr ? _PyType_Lookup(Py_TYPE(object), name) : nullptr;
    if (make == nullptr) {
        PyErr_Format(PyExc_TypeError, "%s objects come from the SDK", Py_TYPE(object)->tp_name);
        return -1;
    }
    const ombra::PyRef pointer(PyObject_Call(make, args, nullptr));
    PyObject *const this_name = SWIG_This();
    Instance *const self = as_instance(object);
    if (self->dictionary == nullptr) self->dictionary = PyDict_New();
    if (pointer == nullptr || this_name == nullptr || self->dictionary == nullptr ||
        PyDict_SetItem(self->dictionary, this_name, pointer.get()) != 0) {
        return -1;
    }
    PyObject *key = nullptr;
    PyObject *value = nullptr;
    for (Py_ssize_t at = 0; keywords != nullptr && PyDict_Next(keywords, &at, &key, &value);)
        if (PyObject_SetAttr(object, key, value) != 0) return -1;
    return 0;
}

int instance_traverse(PyObject *object, visitproc visit, void *arg) {
    Py_VISIT(as_instance(object)->dictionary);
    return 0;
}

int instance_clear(PyObject *object) {
    Py_CLEAR(as_instance(object)->dictionary);
    return 0;
}

void instance_dealloc(PyObject *object) {
    PyObject_GC_UnTrack(object);
    if (as_instance(object)->weak_references != nullptr) PyObject_ClearWeakRefs(object);
    instance_clear(object);
    Py_TYPE(object)->tp_free(object);
}

// A name that the class does not have is refused: it is a misspelt field.
int instance_set(PyObject *object, PyObject *name, PyObject *value) {
    PyObject *const found =
        value != nullptr && PyString_Check(name) ? _PyType_Lookup(Py_TYPE(object), name) : nullptr;
    if (found != nullptr) {
        const descrsetfunc set = Py_TYPE(found)->tp_descr_set;
        if (set == nullptr) return PyObject_GenericSetAttr(object, name, value);
        const ombra::PyRef kept = ombra::new_ref(found);
        return set(found, object, value);
    }
    if (value == nullptr || !PyString_Check(name))
        return PyObject_GenericSetAttr(object, name, value);
    PyErr_Format(PyExc_AttributeError, "%s has no field '%s'", Py_TYPE(object)->tp_name,
                 PyString_AS_STRING(name));
    return -1;
}

// Equal when the native address is the same. No order.
PyObject *instance_compare(PyObject *object, PyObject *other, int operation) {
    const SwigPyObject *left = nullptr;
    const SwigPyObject *right = nullptr;
    if ((operation == Py_EQ || operation == Py_NE) && PyObject_TypeCheck(other, instance_type())) {
        left = SWIG_Python_GetSwigThis(object);
        right = SWIG_Python_GetSwigThis(other);
    }
    if (left == nullptr || right == nullptr) return ombra::new_ref(Py_NotImplemented).release();
    return PyBool_FromLong((left->ptr == right->ptr) == (operation == Py_EQ));
}

long instance_hash(PyObject *object) {
    const SwigPyObject *const pointer = SWIG_Python_GetSwigThis(object);
    if (pointer != nullptr) return _Py_HashPointer(pointer->ptr);
    PyErr_SetString(PyExc_AttributeError, "this");
    return -1;
}

PyObject *get_dictionary(PyObject *object, void *) {
    PyObject *&dictionary = as_instance(object)->dictionary;
    if (dictionary == nullptr) dictionary = PyDict_New();
    Py_XINCREF(dictionary);
    return dictionary;
}

PyGetSetDef attributes[] = {
    {const_cast<char *>("__dict__"), get_dictionary, nullptr, nullptr, nullptr},
    {nullptr, nullptr, nullptr, nullptr, nullptr},
};

PyTypeObject type_object = {};

void fill_type(PyTypeObject &type) {
    type.tp_name = "_OmbraSdkV2Companion.Instance";
    type.tp_basicsize = sizeof(Instance);
    type.tp_dealloc = instance_dealloc;
    type.tp_hash = instance_hash;
    type.tp_getattro = PyObject_GenericGetAttr;
    type.tp_setattro = instance_set;
    type.tp_flags = Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE | Py_TPFLAGS_HAVE_GC;
    type.tp_doc = "What all proxy classes have in common: `this`, a pointer object.";
    type.tp_traverse = instance_traverse;
    type.tp_clear = instance_clear;
    type.tp_richcompare = instance_compare;
    type.tp_weaklistoffset = offsetof(Instance, weak_references);
    type.tp_getset = attributes;
    type.tp_dictoffset = offsetof(Instance, dictionary);
    type.tp_init = instance_init;
    type.tp_new = instance_new;
}

}  // namespace

PyTypeObject *instance_type() { return ombra::ready_type(type_object, fill_type); }

PyObject *new_class(PyObject *, PyObject *args) {
    PyObject *name = nullptr;
    PyTypeObject *base = nullptr;
    PyObject *members = nullptr;
    if (!PyArg_ParseTuple(args, "SO!O!:new_class", &name, &PyType_Type, &base, &PyDict_Type,
                          &members)) {
        return nullptr;
    }
    if ((base->tp_flags & Py_TPFLAGS_HEAPTYPE) == 0 || PyType_IsSubtype(base, &type_object) == 0)
        return PyErr_Format(PyExc_TypeError, "the base is a proxy class made in Python");
    ombra::PyRef object(PyType_Type.tp_alloc(&PyType_Type, 0));
    if (object == nullptr) return nullptr;
    auto *const whole = reinterpret_cast<PyHeapTypeObject *>(object.get());
    PyTypeObject *const type = &whole->ht_type;
    whole->ht_name = ombra::new_ref(name).release();
    type->tp_name = PyString_AS_STRING(name);
    type->tp_flags =
        Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HEAPTYPE | Py_TPFLAGS_BASETYPE | Py_TPFLAGS_HAVE_GC;
    type->tp_as_number = &whole->as_number;
    type->tp_as_sequence = &whole->as_sequence;
    type->tp_as_mapping = &whole->as_mapping;
    type->tp_as_buffer = &whole->as_buffer;
    type->tp_base = reinterpret_cast<PyTypeObject *>(
        ombra::new_ref(reinterpret_cast<PyObject *>(base)).release());
    type->tp_dict = PyDict_Copy(members);
    type->tp_dealloc = base->tp_dealloc;
    type->tp_traverse = base->tp_traverse;
    type->tp_clear = base->tp_clear;
    type->tp_alloc = PyType_GenericAlloc;
    type->tp_free = PyObject_GC_Del;
    if (type->tp_dict == nullptr || !ombra::make_ready(*type)) return nullptr;
    return object.release();
}

}  // namespace companion
