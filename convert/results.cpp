// Texts, and pointer objects that own their block.
#include "convert/results.h"

#include <cstring>
#include <new>

#include "runtime/native_notes.h"
#include "runtime/pointer_conversion.h"

namespace ombra {

PyObject *text_result(const char *text) {
    if (text == nullptr) Py_RETURN_NONE;
    constexpr std::size_t limit = std::size_t{1} << 31U;
    const std::size_t length = std::strlen(text);
    if (length < limit) return PyString_FromStringAndSize(text, static_cast<Py_ssize_t>(length));
    swig_type_info *descriptor = SWIG_pchar_descriptor();
    if (descriptor == nullptr) Py_RETURN_NONE;
    return SWIG_Python_NewPointerObj(const_cast<char *>(text), descriptor, 0);
}

PyObject *in_proxy(PyObject *bare, const swig_type_info *type) {
    if (type == nullptr || type->client_data == nullptr) return bare;
    PyObject *proxy = SWIG_Python_NewProxyInstance(type->client_data, bare);
    Py_DECREF(bare);
    return proxy;
}

PyObject *noted_pointer(void *memory, swig_type_info *type) {
    if (type != nullptr && !note_owned(memory, type)) return PyErr_NoMemory();
    PyObject *bare = SwigPyObject_New(memory, type, FLAG_OWN);
    if (bare == nullptr) [[unlikely]]
        forget_owned(memory, type);
    return bare;
}

PyObject *own_bare(void *memory, swig_type_info *type) {
    PyObject *bare = noted_pointer(memory, type);
    if (bare == nullptr) [[unlikely]]
        ::operator delete(memory);
    return bare;
}

PyObject *own_pointer(void *memory, swig_type_info *type) {
    PyObject *bare = own_bare(memory, type);
    return bare != nullptr ? in_proxy(bare, type) : nullptr;
}

PyObject *owned_copy(const void *value, std::size_t size, swig_type_info *type) {
    void *copy = ::operator new(size, std::nothrow);
    if (copy == nullptr) return PyErr_NoMemory();
    std::memcpy(copy, value, size);
    return own_pointer(copy, type);
}

}  // namespace ombra
