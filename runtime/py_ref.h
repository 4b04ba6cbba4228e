// Owned references to Python objects.
#pragma once

#include <Python.h>

#include <memory>

namespace ombra {

struct PyRelease {
    void operator()(PyObject *object) const { Py_DECREF(object); }
};

// Holds one reference, or null. `PyRef(f())` takes over the reference that f() returned;
// `release()` hands it on.
using PyRef = std::unique_ptr<PyObject, PyRelease>;

// One more reference to a borrowed object that is not null.
inline PyRef new_ref(PyObject *borrowed) {
    Py_INCREF(borrowed);
    return PyRef(borrowed);
}

}  // namespace ombra
