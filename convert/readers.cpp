// Readers of numbers, bools and texts that take more than a type test.
#include "convert/readers.h"

#include <cstring>
#include <new>

#include "runtime/pointer_conversion.h"
#include "runtime/type_table.h"

namespace ombra {
namespace {

// A failed read of a `long` is always an overflow: the type is known to be right.
template <typename Value>
int checked(Value value, Value *out) {
    if (value == static_cast<Value>(-1) && PyErr_Occurred() != nullptr) {
        PyErr_Clear();
        return STATUS_OVERFLOW;
    }
    if (out != nullptr) *out = value;
    return STATUS_OK;
}

}  // namespace

int long_from_other(PyObject *object, long *out) {
    return PyLong_Check(object) ? checked(PyLong_AsLong(object), out) : STATUS_TYPE;
}

int unsigned_long_from_other(PyObject *object, unsigned long *out) {
    return PyLong_Check(object) ? checked(PyLong_AsUnsignedLong(object), out) : STATUS_TYPE;
}

int unsigned_long_long_from_long(PyObject *object, unsigned long long *out) {
    return checked(PyLong_AsUnsignedLongLong(object), out);
}

}  // namespace ombra

int SWIG_AsVal_bool(PyObject *object, bool *out) {
    const int truth = PyObject_IsTrue(object);
    if (truth == -1) {
        PyErr_Clear();
        return STATUS_GENERIC;
    }
    if (out != nullptr) *out = truth != 0;
    return STATUS_OK;
}

namespace {

int text_of_string(PyObject *object, char **text, std::size_t *size, int *alloc) {
    char *storage = nullptr;
    Py_ssize_t length = 0;
    PyString_AsStringAndSize(object, &storage, &length);
    const std::size_t bytes = static_cast<std::size_t>(length) + 1;
    if (text != nullptr) {
        if (alloc != nullptr && *alloc == STATUS_NEWOBJ) {
            char *const copy = new (std::nothrow) char[bytes];
            if (copy == nullptr) return STATUS_MEMORY;
            std::memcpy(copy, storage, bytes);
            *text = copy;
        } else {
            *text = storage;
            if (alloc != nullptr) *alloc = 0;
        }
    }
    if (size != nullptr) *size = bytes;
    return STATUS_OK;
}

}  // namespace

int SWIG_AsCharPtrAndSize(PyObject *object, char **text, std::size_t *size, int *alloc) {
    if (PyString_Check(object)) return text_of_string(object, text, size, alloc);
    swig_type_info *descriptor = SWIG_pchar_descriptor();
    if (descriptor == nullptr) return STATUS_TYPE;
    void *pointer = nullptr;
    if (SWIG_Python_ConvertPtrAndOwn(object, &pointer, descriptor, 0) != STATUS_OK)
        return STATUS_TYPE;
    char *const characters = static_cast<char *>(pointer);
    if (text != nullptr) *text = characters;
    if (size != nullptr) *size = characters == nullptr ? 0 : std::strlen(characters) + 1;
    if (alloc != nullptr) *alloc = 0;
    return STATUS_OK;
}
