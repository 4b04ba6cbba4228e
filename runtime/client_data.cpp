// Taking from a proxy class what makes and destroys its instances, and keeping it on the type.
#include "runtime/client_data.h"

#include <cstdlib>

#include "runtime/py_ref.h"

namespace {

// Whether instances can be made of what is to be registered; false with TypeError, or with the
// exception of a built-in constructor. One that runs Python code is left to its first use.
bool makes_instances(PyObject *proxy_class) {
    if (PyClass_Check(proxy_class)) return true;
    const auto *type = reinterpret_cast<PyTypeObject *>(proxy_class);
    if (!PyType_Check(proxy_class) || type->tp_new == nullptr) {
        PyErr_Format(PyExc_TypeError, "no instances can be made of '%.200s' object",
                     Py_TYPE(proxy_class)->tp_name);
        return false;
    }
    const ombra::PyRef raw_new(PyObject_GetAttrString(proxy_class, "__new__"));
    if (raw_new == nullptr) return false;
    if (!PyCFunction_Check(raw_new.get()) || type->tp_del != nullptr) return true;
    const ombra::PyRef args(PyTuple_Pack(1, proxy_class));
    const ombra::PyRef made(args != nullptr ? PyObject_Call(raw_new.get(), args.get(), nullptr)
                                            : nullptr);
    return made != nullptr;
}

void take_raw_new(SwigPyClientData &data) {
    PyObject *const proxy_class = data.proxy_class;
    data.raw_new = nullptr;
    data.raw_new_args = proxy_class;
    if (!PyClass_Check(proxy_class)) {
        PyObject *raw_new = PyObject_GetAttrString(proxy_class, "__new__");
        PyObject *raw_new_args = raw_new != nullptr ? PyTuple_Pack(1, proxy_class) : nullptr;
        if (raw_new_args != nullptr) {
            Py_INCREF(raw_new);
            data.raw_new = raw_new;
            data.raw_new_args = raw_new_args;
        } else {
            Py_XDECREF(raw_new);
        }
    }
    Py_INCREF(data.raw_new_args);
}

// False with MemoryError: a class without its destructor would not do instead.
bool take_destroy(SwigPyClientData &data) {
    PyObject *destroy = PyObject_GetAttrString(data.proxy_class, "__swig_destroy__");
    if (PyErr_Occurred() != nullptr) {  // a failed take_raw_new as well
        if (PyErr_ExceptionMatches(PyExc_MemoryError)) return false;
        PyErr_Clear();
        Py_CLEAR(destroy);
    }
    data.destroy = destroy;
    data.destroy_takes_tuple = 0;
    if (destroy != nullptr) {
        Py_INCREF(destroy);
        // Another callable has no flags to read; it is called as Python calls it.
        const bool takes_object =
            PyCFunction_Check(destroy) && (PyCFunction_GetFlags(destroy) & METH_O) != 0;
        data.destroy_takes_tuple = takes_object ? 0 : 1;
    }
    return true;
}

}  // namespace

SwigPyClientData *SwigPyClientData_New(PyObject *proxy_class) {
    if (proxy_class == nullptr) return nullptr;
    auto *data = static_cast<SwigPyClientData *>(std::malloc(sizeof(SwigPyClientData)));
    if (data == nullptr) {
        PyErr_NoMemory();
        return nullptr;
    }
    Py_INCREF(proxy_class);
    data->proxy_class = proxy_class;
    take_raw_new(*data);
    if (!take_destroy(*data)) {
        Py_DECREF(data->raw_new_args);
        Py_DECREF(proxy_class);
        std::free(data);
        return nullptr;
    }
    data->converting = 0;
    data->direct_type = nullptr;
    return data;
}

PyObject *SWIG_Python_RegisterClass(swig_type_info *type, PyObject *args) {
    PyObject *proxy_class = nullptr;
    if (!PyArg_UnpackTuple(args, "swigregister", 1, 1, &proxy_class) ||
        !makes_instances(proxy_class)) {
        return nullptr;
    }
    SwigPyClientData *data = SwigPyClientData_New(proxy_class);
    if (data == nullptr) return nullptr;
    SWIG_TypeClientData(type, data);
    type->owns_client_data = 1;
    Py_RETURN_NONE;
}
