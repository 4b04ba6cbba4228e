// Hashing thousands of names is a tenth of an import, and their hashes are known beforehand.
#include "runtime/name_hash.h"

#include "runtime/py_ref.h"

bool ombra::hashes_without_seed() {
    static constexpr char kProbe[] = "probe";
    constexpr std::size_t length = sizeof kProbe - 1;
    const PyRef text(PyString_FromStringAndSize(kProbe, length));
    if (text == nullptr) {
        PyErr_Clear();
        return false;
    }
    return PyObject_Hash(text.get()) == string_hash(kProbe, length);
}

PyObject *ombra::intern_hashed(const char *text, std::size_t length, long hash) {
    PyObject *name = PyString_FromStringAndSize(text, static_cast<Py_ssize_t>(length));
    if (name == nullptr) return nullptr;
    reinterpret_cast<PyStringObject *>(name)->ob_shash = hash;
    PyString_InternInPlace(&name);
    return name;
}
