// The native function of a callback type: packs its arguments and has Python called.
#pragma once

#include <type_traits>

#include "generated/type_slots.h"
#include "python/companion/callbacks.h"
#include "sdk/bcm/pkt_types.h"
#include "sdk/bcm/rx_types.h"
#include "sdk/constants.h"
#include "sdk/diag/shell_types.h"

namespace companion {

// The slot of the pointer to a type. The generated code adds every structure.
template <typename Type>
inline constexpr unsigned pointee_slot = 0;
template <>
inline constexpr unsigned pointee_slot<int> = slots::_p_int;
template <>
inline constexpr unsigned pointee_slot<unsigned int> = slots::_p_unsigned_int;
template <>
inline constexpr unsigned pointee_slot<uint64> = slots::_p_COMPILER_UINT64;
template <>
inline constexpr unsigned pointee_slot<void *> = slots::_p_p_void;
template <>
inline constexpr unsigned pointee_slot<bcm_pkt_t *> = slots::_p_p_bcm_pkt_s;
template <>
inline constexpr unsigned pointee_slot<args_t> = slots::_p_args_t;
template <>
inline constexpr unsigned pointee_slot<std::remove_pointer_t<bcm_pkt_cb_f>> =
    slots::_p_f_int_p_bcm_pkt_s_p_void__void;
template <>
inline constexpr unsigned pointee_slot<std::remove_pointer_t<bcm_rx_cb_f>> =
    slots::_p_f_int_p_bcm_pkt_s_p_void__bcm_rx_e;

template <typename Type>
Argument argument(Type value) {
    if constexpr (!std::is_pointer_v<Type>) {
        return {Argument::Form::number, 0, static_cast<std::uint64_t>(value), nullptr};
    } else {
        using Target = std::remove_const_t<std::remove_pointer_t<Type>>;
        if constexpr (std::is_void_v<Target>) {
            return {Argument::Form::address, slots::_p_void, 0, value};
        } else if constexpr (std::is_same_v<Target, char>) {
            return {Argument::Form::text, 0, 0, value};
        } else if constexpr (std::is_same_v<Target, uint8>) {
            return {Argument::Form::mac, 0, 0, value};  // no callback has other bytes
        } else {
            static_assert(pointee_slot<Target> != 0, "a pointer to a type without a slot");
            return {Argument::Form::pointer, pointee_slot<Target>, 0,
                    reinterpret_cast<const void *>(value)};
        }
    }
}

template <typename Result>
constexpr Answers answers_of() {
    if constexpr (std::is_same_v<Result, bcm_rx_t>)
        return {BCM_RX_NOT_HANDLED, BCM_RX_NOT_HANDLED};
    else if constexpr (std::is_same_v<Result, cmd_result_t>)
        return {CMD_OK, CMD_FAIL};
    else
        return {BCM_E_NONE, BCM_E_FAIL};
}

template <unsigned Index, typename Signature>
struct Trampoline;

template <unsigned Index, typename Result, typename... Args>
struct Trampoline<Index, Result (*)(Args...)> {
    static constexpr Answers answers = answers_of<Result>();
    static constexpr bool keeps_arguments = std::is_same_v<Result, bcm_rx_t>;

    static Result call(Args... args) {
        const Argument arguments[] = {argument(args)...};
        const int answer = run_callback(callbacks[Index], arguments, sizeof...(Args));
        if constexpr (!std::is_void_v<Result>) return static_cast<Result>(answer);
    }
};

template <unsigned Index, typename Signature>
Callback callback_of(const char *name) {
    using Native = Trampoline<Index, Signature>;
    return {name, reinterpret_cast<void *>(&Native::call), Native::answers,
            Native::keeps_arguments};
}

}  // namespace companion
