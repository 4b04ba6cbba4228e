// Growing a single result into a list.
#include "runtime/append_output.h"

#include <utility>

#include "runtime/py_ref.h"

using ombra::PyRef;

PyObject *SWIG_Python_AppendOutput(PyObject *result, PyObject *object) {
    PyRef merged(result);
    PyRef item(object);
    if (item == nullptr) return nullptr;
    if (merged == nullptr || merged.get() == Py_None) return item.release();
    if (!PyList_Check(merged.get())) {
        PyRef list(PyList_New(1));
        if (list == nullptr) return nullptr;
        PyList_SET_ITEM(list.get(), 0, merged.release());
        merged = std::move(list);
    }
    return PyList_Append(merged.get(), item.get()) == 0 ? merged.release() : nullptr;
}
