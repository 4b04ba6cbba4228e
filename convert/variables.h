// Getters and setters of the global variables behind `cvar`.
//
// Each is a template over the variable and its texts, so that a row of the table is two function
// addresses. A setter returns 0, or 1 with an exception set; the variable then keeps its value.
#pragma once

#include <Python.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "convert/kinds.h"
#include "convert/results.h"

namespace ombra {

// A text as a template argument.
template <std::size_t Size>
struct Literal {
    char text[Size];

    // NOLINTNEXTLINE(google-explicit-constructor): written as a plain literal.
    constexpr Literal(const char (&source)[Size]) { std::copy_n(source, Size, text); }
};

// "invalid null reference " stands before the plain text in those that have both forms.
inline constexpr std::size_t kNullPrefixLength = sizeof("invalid null reference ") - 1;

// Raises the exception class of `status` (-1 counts as a wrong type) with `text`; returns 1.
[[gnu::cold]] int refuse_variable(int status, const char *text);

// Raises `exception` with `text`; returns 1.
[[gnu::cold]] int refuse_variable_with(PyObject *exception, const char *text);

template <int *Variable, Literal Message>
struct IntVariable {
    static PyObject *get() { return PyInt_FromLong(*Variable); }

    static int set(PyObject *object) {
        long value = 0;
        int status = SWIG_AsVal_long(object, &value);
        if (status >= 0 && value != static_cast<int>(value)) status = STATUS_OVERFLOW;
        if (status < 0) return refuse_variable(status, Message.text);
        *Variable = static_cast<int>(value);
        return 0;
    }
};

// Reads a text for a variable: a private copy made with new[], null for None. A status.
int copy_text(PyObject *object, char **copy);

// The old text is freed with delete[] once the new one stands.
template <char **Variable, Literal Message>
struct TextVariable {
    static PyObject *get() { return text_result(*Variable); }

    static int set(PyObject *object) {
        char *copy = nullptr;
        const int status = copy_text(object, &copy);
        if (status < 0) return refuse_variable(status, Message.text);
        delete[] *Variable;
        *Variable = copy;
        return 0;
    }
};

// A structure, or an array of pointers: Python reads and writes it in place, and assigns it whole.
template <auto *Variable, unsigned Slot, Literal NullMessage>
struct BlockVariable {
    static PyObject *get() { return SWIG_Python_NewPointerObj(Variable, swig_type_slots[Slot], 0); }

    static int set(PyObject *object) {
        void *source = nullptr;
        const int status = SWIG_Python_ConvertPtrAndOwn(object, &source, swig_type_slots[Slot], 0);
        if (status < 0) return refuse_variable(status, NullMessage.text + kNullPrefixLength);
        if (source == nullptr) return refuse_variable_with(PyExc_ValueError, NullMessage.text);
        std::memmove(Variable, source, sizeof *Variable);
        return 0;
    }
};

template <auto *Variable, unsigned Slot, Literal Message>
struct FunctionVariable {
    static PyObject *get() {
        void *value = nullptr;
        std::memcpy(&value, Variable, sizeof value);
        return SWIG_Python_NewPointerObj(value, swig_type_slots[Slot], 0);
    }

    static int set(PyObject *object) {
        void *value = nullptr;
        const int status = SWIG_Python_ConvertFunctionPtr(object, &value, swig_type_slots[Slot]);
        if (status < 0) return refuse_variable(status, Message.text);
        std::memcpy(Variable, &value, sizeof value);
        return 0;
    }
};

// Read-only variables refuse any value, unlooked at.
template <auto &Variable, unsigned Slot, Literal Message>
struct ReadOnlyArray {
    static PyObject *get() {
        return SWIG_Python_NewPointerObj(
            const_cast<void *>(static_cast<const void *>(&Variable[0])), swig_type_slots[Slot], 0);
    }

    static int set(PyObject *) { return refuse_variable_with(PyExc_AttributeError, Message.text); }
};

template <long Number, Literal Message>
struct ReadOnlyNumber {
    static PyObject *get() { return PyInt_FromLong(Number); }

    static int set(PyObject *) { return refuse_variable_with(PyExc_AttributeError, Message.text); }
};

}  // namespace ombra
