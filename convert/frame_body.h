// The steps of the call frame; frame.h tells them. Included where shapes are instantiated, and by
// rows that are written by hand.
#pragma once

#include <Python.h>
#include <cxxabi.h>

#include <cstddef>
#include <type_traits>
#include <utility>

#include "convert/append_frame.h"
#include "convert/frame.h"
#include "runtime/append_output.h"

namespace ombra {

// The kinds of all arguments. No tuple: that would zero them, and a read writes each whole.
template <std::size_t Index, typename Kind>
struct Argument {
    Kind kind;
};
template <typename Indices, typename... Args>
struct Arguments;
template <std::size_t... I, typename... Args>
struct Arguments<std::index_sequence<I...>, Args...> : Argument<I, Args>... {};

// The frame around `body`, which gets the native values of the arguments and makes the Python
// result. What a native function throws becomes a Python exception; a thread that is being
// cancelled goes on unwinding.
template <typename... Args, typename Body>
[[gnu::always_inline]] inline PyObject *call_with(const CallRow &row, PyObject *args, Body body) {
    return [&]<std::size_t... I>(std::index_sequence<I...>) -> PyObject * {
        constexpr auto count = static_cast<Py_ssize_t>(sizeof...(Args));
        [[maybe_unused]] PyObject *items[sizeof...(Args) + 1] = {};
        if (!PyArg_UnpackTuple(args, const_cast<char *>(row.name), count, count, &items[I]...))
            return nullptr;  // 1
        [[maybe_unused]] Arguments<std::index_sequence<I...>, Args...> values;
        if (!(static_cast<Argument<I, Args> &>(values).kind.read(items[I], row, I) && ...))
            return nullptr;  // 2
        try {
            return body(static_cast<Argument<I, Args> &>(values).kind.native()...);  // 3, 4
        } catch (abi::__forced_unwind &) {
            throw;
        } catch (...) {
            return native_exception();
        }
    }(std::index_sequence_for<Args...>());
}

template <typename Result, typename... Args>
PyObject *Call<Result(Args...)>::run(const FunctionRow &row, PyObject *args) {
    return call_with<Args...>(row.call, args, [&](const auto &...values) -> PyObject * {
        const auto native = reinterpret_cast<Native>(row.native);
        if constexpr (std::is_void_v<typename Result::Native>) {
            native(values...);
            Py_RETURN_NONE;
        } else {
            return Result::result(native(values...), row.call);
        }
    });
}

template <typename Result, typename... Args>
PyObject *AppendCall<Result(Args...)>::run(const FunctionRow &row, PyObject *args) {
    return call_with<Args...>(row.call, args, [&](const auto &...values) {
        int output = 0;
        PyObject *status =
            Result::result(reinterpret_cast<Native>(row.native)(values..., &output), row.call);
        if (status == nullptr) return status;  // the output alone would hide the exception
        return SWIG_Python_AppendOutput(status, PyInt_FromLong(output));
    });
}

}  // namespace ombra
