// What the generated functions of the recording SDK are made of: each is one call of record().
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <type_traits>

#include "tests/recording/recording.h"
#include "toolkit/chip_memory.h"
#include "toolkit/mdio.h"
#include "toolkit/string.h"

namespace recorder {

// An argument as it arrived. `source` is where its bytes lie during the call.
struct Given {
    recording_what what;
    std::size_t size;
    std::uint64_t value;
    const void *source;
};

template <typename Type>
Given given(const Type &argument) {
    if constexpr (std::is_enum_v<Type>) {
        return given(static_cast<std::underlying_type_t<Type>>(argument));
    } else if constexpr (std::is_integral_v<Type>) {
        return {RECORDING_NUMBER, sizeof argument, static_cast<std::uint64_t>(argument), nullptr};
    } else if constexpr (std::is_pointer_v<Type>) {
        return {RECORDING_ADDRESS, sizeof argument, reinterpret_cast<std::uint64_t>(argument),
                nullptr};
    } else {
        static_assert(std::is_trivially_copyable_v<Type>);
        return {RECORDING_BYTES, sizeof argument, reinterpret_cast<std::uint64_t>(&argument),
                &argument};
    }
}

// A counted pointer: its object is held until the next reset.
Given given(const MdioHamImpl::HamImpl::Ptr &argument);

// A text, which may be null.
Given text(const char *argument);

// The six bytes of a MAC address.
inline Given mac(const void *argument) {
    return {RECORDING_BYTES, 6, reinterpret_cast<std::uint64_t>(argument), argument};
}

// Records the call, writes and calls what the test has asked for, and returns the result register:
// the low `size` bytes are the result that was set, all other bits are ones.
std::uint64_t record(const char *name, std::size_t size, std::initializer_list<Given> arguments);

// The bytes of a result that is no number.
void copy_block(void *result, std::size_t size);

template <typename Block>
Block block() {
    Block result;
    copy_block(&result, sizeof result);
    return result;
}

// The results of C++ functions. `bits` is what record() returned.
template <typename Result>
Result answer(std::uint64_t bits) {
    return static_cast<Result>(bits);
}
template <>
inline bool answer<bool>(std::uint64_t bits) {
    return (bits & 0xff) != 0;
}
template <>
Lumo::String answer<Lumo::String>(std::uint64_t bits);
template <>
Hardware::HardwareShadow::Ptr answer<Hardware::HardwareShadow::Ptr>(std::uint64_t bits);
template <>
Hardware::ChipMemory::Ptr answer<Hardware::ChipMemory::Ptr>(std::uint64_t bits);
template <>
MdioHamImpl::HamImpl::Ptr answer<MdioHamImpl::HamImpl::Ptr>(std::uint64_t bits);

// Bytes of the declared result of a function, 0 for none. Compiles only if the function that
// defines it has the same parameters.
template <typename Declared, typename... Parameters>
consteval std::size_t result_size(Declared (*)(Parameters...), std::uint64_t (*)(Parameters...)) {
    if constexpr (std::is_void_v<Declared>) {
        return 0;
    } else {
        static_assert(sizeof(Declared) <= sizeof(std::uint64_t));
        return sizeof(Declared);
    }
}

}  // namespace recorder

// A C function whose result fits the result register. It is defined under another name that returns
// the whole register, and bears the symbol by its label, so that the bits above a narrow result are
// really set: the compiler of the function by its own type could clear them.
#define RECORDED_NUMBER(name, parameters, ...)                                         \
    extern "C" std::uint64_t recorded_##name parameters __asm__(#name);                \
    extern "C" std::uint64_t recorded_##name parameters {                              \
        return recorder::record(#name, recorder::result_size(&name, &recorded_##name), \
                                {__VA_ARGS__});                                        \
    }

// A C function that returns a structure.
#define RECORDED_BLOCK(name, type, parameters, ...) \
    extern "C" type name parameters {               \
        recorder::record(#name, 0, {__VA_ARGS__});  \
        return recorder::block<type>();             \
    }

// A C++ function, which has its symbol from its prototype.
#define RECORDED_CXX(name, type, parameters, ...)                                 \
    type name parameters {                                                        \
        return recorder::answer<type>(recorder::record(#name, 8, {__VA_ARGS__})); \
    }
