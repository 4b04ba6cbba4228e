// Makes the record of an element from its native type: the compiler knows the layout.
#pragma once

#include <limits>
#include <type_traits>

#include "generated/type_slots.h"
#include "native/values.h"
#include "python/companion/element.h"
#include "toolkit/values.h"

namespace companion {

// Room for a record that is known by address only. The largest of the SDK's is an order smaller.
inline constexpr std::uint32_t kUnknownRecordSize = 16384;

// The slot of the pointer to a number.
template <typename Number>
constexpr unsigned number_slot() {
    if constexpr (sizeof(Number) == 1)
        return slots::_p_unsigned_char;
    else if constexpr (sizeof(Number) == 2)
        return slots::_p_unsigned_short;
    else if constexpr (sizeof(Number) == 4)
        return std::is_signed_v<Number> ? slots::_p_int : slots::_p_unsigned_int;
    else
        return slots::_p_COMPILER_UINT64;
}

template <typename Type>
void check_number(std::uint64_t number) {
    static_cast<void>(Type(static_cast<decltype(Type().value())>(number)));
}

template <typename Item>
constexpr void set_array(Element &element, std::size_t size) {
    element.form = Form::array;
    element.size = static_cast<std::uint32_t>(size);
    element.count = static_cast<std::uint32_t>(size / sizeof(Item));
    element.inner = static_cast<std::uint16_t>(number_slot<Item>());
}

template <typename Type>
constexpr void set_class(Element &element) {
    if constexpr (requires(Type value) { value.value(); })
        element.check = check_number<Type>;
    else if constexpr (std::is_same_v<Type, _shr_pbmp_t>)
        element.form = Form::port_list;
    else if constexpr (alignof(Type) == sizeof(std::uint64_t))
        set_array<std::uint64_t>(element, sizeof(Type));
    else
        set_array<std::uint32_t>(element, sizeof(Type));
}

template <typename Type>
constexpr void set_pointer(Element &element) {
    using Target = std::remove_pointer_t<Type>;
    if constexpr (std::is_function_v<Target>) {
        element.form = Form::code_pointer;
    } else if constexpr (std::is_same_v<std::remove_const_t<Target>, char>) {
        element.form = Form::text;
    } else {
        element.form = Form::data_pointer;
        if constexpr (std::is_same_v<Type, soc_block_types_t>) element.inner = slots::_p_int;
    }
}

// Numbers, texts, pointers, arrays, and blocks of words.
template <typename Type>
constexpr Element element_of(const char *name, unsigned slot, unsigned inner) {
    Element element{name,
                    static_cast<std::uint16_t>(slot),
                    static_cast<std::uint16_t>(inner),
                    0,
                    1,
                    Form::number,
                    std::is_signed_v<Type> || std::is_enum_v<Type>,
                    nullptr};
    if constexpr (requires { sizeof(Type); }) {
        element.size = sizeof(Type);
        if constexpr (std::is_same_v<Type, unsigned char[6]>) {
            element.form = Form::mac;
        } else if constexpr (std::is_array_v<Type>) {
            using Item = std::remove_extent_t<Type>;
            set_array<std::conditional_t<std::is_arithmetic_v<Item>, Item, unsigned char>>(
                element, sizeof(Type));
        } else if constexpr (std::is_pointer_v<Type>) {
            set_pointer<Type>(element);
        } else if constexpr (std::is_class_v<Type>) {
            set_class<Type>(element);
        }
    } else {
        set_array<unsigned char>(element, kUnknownRecordSize);
    }
    return element;
}

// A structure with a class of its own.
template <typename Type>
constexpr Element structure_of(const char *name, unsigned slot, unsigned) {
    return {name,   static_cast<std::uint16_t>(slot), 0, sizeof(Type), 1, Form::structure, false,
            nullptr};
}

}  // namespace companion
