// Names that come in order, made into interned strings without hashing again what neighbours share.
#pragma once

#include <Python.h>

#include <array>
#include <cstddef>

namespace ombra {

// Hashes a row of names the way that the interpreter hashes strings. Thousands of names that mostly
// begin like the one before are a tenth of an import. Where the interpreter hashes otherwise, as
// with a random seed, strings are left to it.
class NameHash {
  public:
    // A new interned string. `shared` is how many characters `name` has in common with the name of
    // the call before; `length` is less than 256. Null with an exception.
    PyObject *intern(const char *name, std::size_t length, std::size_t shared);

  private:
    enum class State { unknown, same, other };

    State state_ = State::unknown;
    std::array<unsigned long, 256> running_{};  // the hash in front of each character
};

}  // namespace ombra
