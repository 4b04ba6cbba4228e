// The control functions, as Python sees them. They stand in the module beside the rows, and are
// written by hand: what they tell must not depend on what is tested.

#include "control.h"

#include <stdexcept>
#include <string>

#include "runtime/hex_text.h"
#include "runtime/pointer_conversion.h"
#include "toolkit/exception.h"

namespace echo {

Record record;

namespace {

enum Thrown : int { kNothing, kRuntimeError, kNumber, kRange, kForeignRange, kNoMemory };
int thrown = kNothing;

int callback_target(int number, void *) { return number; }

// taken() -> the native arguments of the last call, as bytes; None for a null text
PyObject *taken(PyObject *, PyObject *) {
    PyObject *list = PyList_New(0);
    for (unsigned i = 0; list != nullptr && i < record.count; ++i) {
        const Record::Argument &argument = record.arguments[i];
        PyObject *item = Py_None;
        Py_INCREF(item);
        if (!argument.null_text) {
            Py_DECREF(item);
            item = PyString_FromStringAndSize(reinterpret_cast<const char *>(argument.bytes),
                                              static_cast<Py_ssize_t>(argument.size));
        }
        if (item == nullptr || PyList_Append(list, item) != 0) Py_CLEAR(list);
        Py_XDECREF(item);
    }
    return list;
}

// forget(): taken() is empty until the next call
PyObject *forget(PyObject *, PyObject *) {
    record.count = 0;
    Py_RETURN_NONE;
}

// throw_next(what): the next native function throws, by the numbers of Thrown
PyObject *throw_next(PyObject *, PyObject *what) {
    thrown = static_cast<int>(PyInt_AsLong(what));
    Py_RETURN_NONE;
}

PyObject *set_failing(PyObject *, PyObject *n) {
    fail_allocation(PyInt_AsLong(n));
    Py_RETURN_NONE;
}

PyObject *get_failed(PyObject *, PyObject *) { return PyBool_FromLong(allocation_failed()); }

PyObject *get_live_blocks(PyObject *, PyObject *) { return PyInt_FromLong(live_blocks()); }

// pointer(mangled, address) -> a bare pointer object, without ownership; also for address 0
PyObject *pointer(PyObject *, PyObject *args) {
    const char *name = nullptr;
    unsigned long address = 0;
    if (!PyArg_ParseTuple(args, "sk", &name, &address)) return nullptr;
    return SwigPyObject_New(reinterpret_cast<void *>(address), SWIG_Python_TypeQuery(name), 0);
}

// memory(address, size) -> the bytes there
PyObject *memory(PyObject *, PyObject *args) {
    unsigned long address = 0;
    Py_ssize_t size = 0;
    if (!PyArg_ParseTuple(args, "kn", &address, &size)) return nullptr;
    return PyString_FromStringAndSize(reinterpret_cast<const char *>(address), size);
}

// free_value(pointer object): takes the ownership off it and frees what a result by value made
PyObject *free_value(PyObject *, PyObject *object) {
    void *value = nullptr;
    if (SWIG_Python_ConvertPtrAndOwn(object, &value, nullptr, FLAG_DISOWN) < 0) {
        PyErr_SetString(PyExc_TypeError, "no pointer object");
        return nullptr;
    }
    ::operator delete(value);
    Py_RETURN_NONE;
}

// A built-in function that is a native callback: its docstring says so.
PyObject *callback(PyObject *, PyObject *) { Py_RETURN_NONE; }
char callback_doc[128];
char other_callback_doc[128];
const char kBrokenDoc[] = "swig_ptr: _12";

PyMethodDef methods[] = {{"taken", taken, METH_NOARGS, nullptr},
                         {"forget", forget, METH_NOARGS, nullptr},
                         {"throw_next", throw_next, METH_O, nullptr},
                         {"fail_allocation", set_failing, METH_O, nullptr},
                         {"allocation_failed", get_failed, METH_NOARGS, nullptr},
                         {"live_blocks", get_live_blocks, METH_NOARGS, nullptr},
                         {"pointer", pointer, METH_VARARGS, nullptr},
                         {"memory", memory, METH_VARARGS, nullptr},
                         {"free_value", free_value, METH_O, nullptr},
                         {"callback", callback, METH_NOARGS, callback_doc},
                         {"other_callback", callback, METH_NOARGS, other_callback_doc},
                         {"broken_callback", callback, METH_NOARGS, kBrokenDoc},
                         {nullptr, nullptr, 0, nullptr}};

void write_callback_doc(char *text, const char *type) {
    auto *const target = &callback_target;
    std::string doc = "callback() swig_ptr: _";
    char digits[2 * sizeof target + 1] = {};
    SWIG_PackData(digits, &target, sizeof target);
    doc += std::string(digits) + type;
    doc.copy(text, doc.size());
}

}  // namespace

void throw_if_asked() {
    const int what = thrown;
    thrown = kNothing;
    switch (what) {
        case kRuntimeError:
            throw std::runtime_error("the echo failed");
        case kNumber:
            throw 42;
        case kRange:
            throw Lumo::RangeException("out of the toolkit's range");
        case kForeignRange:
            throw std::logic_error("UnitId::value < 0 or > 255 not allowed");
        case kNoMemory:
            throw std::bad_alloc();
        default:
            return;
    }
}

void add_control(PyObject *module) {
    write_callback_doc(callback_doc, "_p_f_int_p_void__int");
    write_callback_doc(other_callback_doc, "_p_int");
    for (PyMethodDef *method = methods; method->ml_name != nullptr; ++method)
        PyModule_AddObject(module, method->ml_name, PyCFunction_New(method, nullptr));
    auto *const target = &callback_target;
    PyModule_AddObject(module, "callback_address",
                       PyLong_FromVoidPtr(reinterpret_cast<void *>(target)));
}

}  // namespace echo
