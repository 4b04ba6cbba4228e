// What the sources of the bench's extension share.
//
// Calls keep the interpreter's lock, as those of the module do.
#pragma once
#include <Python.h>

#include <array>
#include <cstdint>
#include <exception>
#include <limits>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "runtime/py_ref.h"

namespace bench {

using ombra::PyRef;

// New objects; null with an exception set where there is no memory.
inline PyObject *text_object(std::string_view text) {
    return PyString_FromStringAndSize(text.data(), static_cast<Py_ssize_t>(text.size()));
}

template <class T>
PyObject *number_object(T value) {
    if constexpr (std::is_unsigned_v<T>)
        return PyLong_FromUnsignedLongLong(value);
    else
        return PyInt_FromLong(static_cast<long>(value));
}

// A list of what `make` makes of each element.
template <class Range, class Make>
PyObject *list_of(const Range &range, Make &&make) {
    PyRef list(PyList_New(0));
    if (list == nullptr) return nullptr;
    for (const auto &one : range) {
        const PyRef item(make(one));
        if (item == nullptr || PyList_Append(list.get(), item.get()) != 0) return nullptr;
    }
    return list.release();
}

// The arguments of native functions: numbers in their bounds, texts, MAC addresses of six bytes.
struct Mac {
    std::array<unsigned char, 6> bytes{};
};

template <class T>
using Place = std::conditional_t<std::is_same_v<T, unsigned char *>, Mac, T>;

bool read_argument(PyObject *object, Mac &mac);
bool read_argument(PyObject *object, const char *&text);

template <class T>
    requires std::is_integral_v<T>
bool read_argument(PyObject *object, T &value) {
    const PyRef whole(PyNumber_Index(object));
    if (whole == nullptr) return false;
    using Wide = std::conditional_t<std::is_unsigned_v<T>, unsigned long long, long long>;
    Wide wide = 0;
    if constexpr (std::is_unsigned_v<T>) {
        const PyRef number(PyNumber_Long(whole.get()));
        if (number == nullptr) return false;
        wide = PyLong_AsUnsignedLongLong(number.get());
    } else {
        wide = PyLong_AsLongLong(whole.get());
    }
    if (PyErr_Occurred() != nullptr) return false;
    if (!std::in_range<T>(wide)) {
        PyErr_SetString(PyExc_OverflowError, "the number is out of bounds");
        return false;
    }
    value = static_cast<T>(wide);
    return true;
}

inline unsigned char *given(Mac &mac) { return mac.bytes.data(); }
template <class T>
T given(T &value) {
    return value;
}

template <class R, class... A, std::size_t... I>
PyObject *call_native(R (*native)(A...), PyObject *arguments, std::index_sequence<I...>) {
    if (PyTuple_GET_SIZE(arguments) != static_cast<Py_ssize_t>(sizeof...(A))) {
        PyErr_Format(PyExc_TypeError, "takes %d arguments, not %d", static_cast<int>(sizeof...(A)),
                     static_cast<int>(PyTuple_GET_SIZE(arguments)));
        return nullptr;
    }
    [[maybe_unused]] std::tuple<Place<A>...> values{};
    if (!(read_argument(PyTuple_GET_ITEM(arguments, I), std::get<I>(values)) && ...))
        return nullptr;
    if constexpr (std::is_void_v<R>) {
        native(given(std::get<I>(values))...);
        Py_RETURN_NONE;
    } else if constexpr (std::is_integral_v<R>) {
        return number_object(native(given(std::get<I>(values))...));
    } else {
        return text_object(native(given(std::get<I>(values))...));
    }
}

// The same for a row of a method table; an exception of C++ becomes one of Python.
template <auto kNative>
PyObject *row(PyObject * /*module*/, PyObject *arguments) {
    try {
        return [&]<class R, class... A>(R (*native)(A...)) {
            return call_native(native, arguments, std::index_sequence_for<A...>());
        }(kNative);
    } catch (const std::exception &error) {
        PyErr_SetString(PyExc_RuntimeError, error.what());
        return nullptr;
    }
}

// For functions that take and give objects themselves.
template <PyObject *(*kBody)(PyObject *arguments)>
PyObject *guarded(PyObject * /*module*/, PyObject *arguments) {
    try {
        return kBody(arguments);
    } catch (const std::exception &error) {
        PyErr_SetString(PyExc_RuntimeError, error.what());
        return nullptr;
    }
}

extern PyMethodDef shown_rows[];  // records and states; ends with zeros

// Adds the named bits. False with an exception set.
bool add_constants(PyObject *module);

}  // namespace bench
