// The frame of rows with a hidden output: a number that the native function writes through its last
// parameter, which Python does not pass, and which joins the result as [status, number].
#pragma once

#include <cstddef>
#include <tuple>
#include <type_traits>
#include <utility>

#include "convert/frame.h"

namespace ombra {

template <typename Shape>
struct AppendCall;

// The number is appended whatever the status says, and means something only after a status of 0.
// It comes back sign-extended, also where the argument of the same type is unsigned.
template <typename Result, typename... Args>
struct AppendCall<Result(Args...)> {
    using Native = typename Result::Native (*)(typename Args::Native..., int *);

    template <typename R, typename... P>
    static consteval bool takes(R (*)(P...)) {
        static_assert(sizeof...(P) == sizeof...(Args) + 1, "the hidden output comes last");
        static_assert(fits_output<P...>(std::index_sequence_for<Args...>()));
        static_assert(fits_shape<Result, R>(), "the result does not fit its kind");
        return true;
    }

    static PyObject *run(const FunctionRow &row, PyObject *args);

  private:
    template <typename... P, std::size_t... I>
    static constexpr bool fits_output(std::index_sequence<I...>) {
        using Declared = std::tuple<P...>;
        using Output = std::tuple_element_t<sizeof...(Args), Declared>;
        return (fits_shape<Args, std::tuple_element_t<I, Declared>>() && ...) &&
               std::is_pointer_v<Output> && sizeof(std::remove_pointer_t<Output>) == sizeof(int);
    }
};

}  // namespace ombra
