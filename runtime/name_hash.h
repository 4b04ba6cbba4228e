// Names of constants made into interned strings by hashes that the compiler has worked out.
#pragma once

#include <Python.h>

#include <cstddef>

namespace ombra {

// What the interpreter hashes a string to where it has no seed (`-R`).
constexpr long string_hash(const char *text, std::size_t length) {
    unsigned long value = static_cast<unsigned long>(static_cast<unsigned char>(text[0])) << 7;
    for (std::size_t i = 0; i < length; ++i)
        value = value * 1000003 ^ static_cast<unsigned char>(text[i]);
    value ^= length;
    return value == ~0UL ? -2 : static_cast<long>(value);  // it keeps -1 for "not known yet"
}

// Whether this interpreter hashes so. No error stays set.
bool hashes_without_seed();

// A new interned string of that hash. Null with an exception.
PyObject *intern_hashed(const char *text, std::size_t length, long hash);

}  // namespace ombra
