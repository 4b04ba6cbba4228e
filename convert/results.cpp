// Texts, and pointer objects that own their block.
#include "convert/results.h"

#include <cstring>
#include <new>

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

PyObject *own_pointer(void *memory, swig_type_info *type) {
    PyObject *bare = SWIG_Python_NewPointerObj(memory, type, FLAG_OWN | FLAG_NOPROXY);
    if (bare == nullptr) {
        ::operator delete(memory);
        return nullptr;
    }
    if (type == nullptr || type->client_data == nullptr) return bare;
    PyObject *proxy = SWIG_Python_NewProxyInstance(type->client_data, bare);
    Py_DECREF(bare);
    return proxy;
}

PyObject *owned_copy(const void *value, std::size_t size, swig_type_info *type) {
    void *copy = ::operator new(size, std::nothrow);
    if (copy == nullptr) return PyErr_NoMemory();
    std::memcpy(copy, value, size);
    return own_pointer(copy, type);
}

}  // namespace ombra
