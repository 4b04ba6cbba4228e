// What the tests steer and read beside the generated rows: the arguments that the last native
// function got, the exception that the next one throws, and the allocation that fails.
#pragma once

#include <Python.h>

#include <cstddef>
#include <cstring>

namespace echo {

inline constexpr std::size_t kMostBytes = 96;
inline constexpr unsigned kMostArguments = 9;

// The native values of one call, as bytes. A text is noted by what it points at.
struct Record {
    struct Argument {
        unsigned char bytes[kMostBytes];
        std::size_t size;
        bool null_text;
    };
    Argument arguments[kMostArguments];
    unsigned count;
};

extern Record record;

// Throws what the tests asked for, once.
void throw_if_asked();

inline void note_bytes(const void *bytes, std::size_t size) {
    Record::Argument &argument = record.arguments[record.count++];
    argument.size = size < kMostBytes ? size : kMostBytes;
    argument.null_text = bytes == nullptr;
    if (bytes != nullptr) std::memcpy(argument.bytes, bytes, argument.size);
}

template <typename Value>
void note(const Value &value) {
    static_assert(sizeof value <= kMostBytes);
    note_bytes(&value, sizeof value);
}

inline void note(const char *text) { note_bytes(text, text == nullptr ? 0 : std::strlen(text)); }
inline void note(char *text) { note(static_cast<const char *>(text)); }

// How many bytes an array parameter is noted with.
struct Bytes {
    const void *from;
    std::size_t size;
};
inline void note(const Bytes &bytes) { note_bytes(bytes.from, bytes.size); }

// Every native function begins with this.
template <typename... Values>
void enter(const Values &...values) {
    record.count = 0;
    (note(values), ...);
    throw_if_asked();
}

// Lets the n-th allocation from now fail, counted from 1: operator new, malloc, and the
// interpreter's makers of objects, as far as this module calls them. 0: none.
void fail_allocation(long n);

// Whether one failed since fail_allocation(); none will from now on.
bool allocation_failed();

// Native blocks of this module that are not freed: new less delete.
long live_blocks();

// Adds the control functions to the module.
void add_control(PyObject *module);

}  // namespace echo
