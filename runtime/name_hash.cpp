// The interpreter's hash of a string, continued from the name before.
#include "runtime/name_hash.h"

PyObject *ombra::NameHash::intern(const char *name, std::size_t length, std::size_t shared) {
    PyObject *text = PyString_FromStringAndSize(name, static_cast<Py_ssize_t>(length));
    if (text == nullptr) return nullptr;
    if (state_ != State::other) {
        const auto *const bytes = reinterpret_cast<const unsigned char *>(name);
        if (state_ == State::unknown) shared = 0;
        if (shared == 0) running_[0] = static_cast<unsigned long>(bytes[0]) << 7;
        unsigned long value = running_[shared];
#pragma GCC unroll 8
        for (std::size_t i = shared; i < length; ++i)
            running_[i + 1] = value = value * 1000003 ^ bytes[i];
        const long hash = static_cast<long>(value ^ length);
        if (state_ == State::unknown)
            state_ = PyObject_Hash(text) == hash ? State::same : State::other;
        else if (hash != -1)  // which the interpreter keeps for "not known yet"
            reinterpret_cast<PyStringObject *>(text)->ob_shash = hash;
    }
    PyString_InternInPlace(&text);
    return text;
}
