// The call frame: what every plain function row does.
//
//   1. take the argument tuple apart, exact count
//   2. read the arguments from left to right; leave at the first refusal, native function uncalled
//   3. call the native function once, under the interpreter lock
//   4. turn its result into an object; a status is never looked at
//   5. release what the arguments hold (their destructors)
//
// The frame is instantiated once for each shape, the tuple of result and argument kinds. An entry
// `_wrap_NAME` is two instructions: it loads the address of the row's record and jumps here. The
// steps stand in frame_body.h.
#pragma once

#include <Python.h>

#include <type_traits>

#include "convert/kinds.h"

namespace ombra {

// Whether a declared native type may stand where a shape passes `Kind`. The shape's function type
// and the declared one must agree in what the calling convention sees: the width of numbers (and
// their sign below 32 bits, where the callee may rely on the extension), pointer or not, size and
// alignment of structures. Enumerations count as the numbers they are.
template <typename Kind, typename Declared>
constexpr bool fits_shape() {
    using Native = typename Kind::Native;
    if constexpr (std::is_void_v<Native>) {
        return std::is_void_v<Declared>;
    } else if constexpr (std::is_pointer_v<Native>) {
        return std::is_pointer_v<Declared> || std::is_reference_v<Declared>;
    } else if constexpr (std::is_arithmetic_v<Native>) {
        if constexpr (!std::is_arithmetic_v<Declared> && !std::is_enum_v<Declared>) {
            return false;
        } else {
            return sizeof(Declared) == sizeof(Native) &&
                   std::is_same_v<Declared, bool> == std::is_same_v<Native, bool> &&
                   (sizeof(Native) >= sizeof(int) ||
                    std::is_signed_v<Declared> == std::is_signed_v<Native>);
        }
    } else {
        return std::is_trivially_copyable_v<Declared> && sizeof(Declared) == sizeof(Native) &&
               alignof(Declared) == alignof(Native);
    }
}

template <typename Shape>
struct Call;

template <typename Result, typename... Args>
struct Call<Result(Args...)> {
    using Native = typename Result::Native (*)(typename Args::Native...);

    // Compares the real type of a row's native function with the shape, so that a wrong record does
    // not compile.
    template <typename R, typename... P>
    static consteval bool takes(R (*)(P...)) {
        static_assert(sizeof...(P) == sizeof...(Args), "argument count of the native function");
        static_assert((fits_shape<Args, P>() && ...), "an argument does not fit its kind");
        static_assert(fits_shape<Result, R>(), "the result does not fit its kind");
        return true;
    }

    // Defined in frame_body.h, and instantiated once for each shape by generated code.
    static PyObject *run(const FunctionRow &row, PyObject *args);
};

}  // namespace ombra
