// The conversion kinds: how a declared type crosses. kinds.cpp holds the one table of them.
#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace generator {

enum class Kind {
    none,
    signed_8,
    signed_16,
    signed_32,
    unsigned_8,
    unsigned_16,
    unsigned_32,
    unsigned_long,
    unsigned_64,
    address_32,
    strict_bool,
    text,
    pointer,
    function_pointer,
    by_value,
    reference,
    port_bitmap,
    mac_string,
    fixed_array,
    nested_struct,
    pointer_field,
    object,  // any Python object, passed through; only in hand-written rows
    nothing  // a `void` result
};

// What the generator knows of a kind.
struct KindTraits {
    Kind kind;
    const char *name;   // "signed-32", in the tables, in model.json and in the tests
    const char *frame;  // "Signed32", the class of convert/kinds.h
    // Bytes of the native value and its alignment. A by-value line gives its own.
    std::size_t size = 8;
    std::size_t align = 8;
    std::array<const char *, 2> natives = {};  // the C types that are of this kind by themselves
    const char *getter = "get_value";          // of classes/accessor.h; a template on `frame`
    const char *setter = "set_value";          // where it ends in "_value"
    bool typed = false;                        // its objects carry a type slot
    bool refuses_null = false;                 // as an argument
    bool no_result = false;                    // it goes in and does not come out
};

const KindTraits &traits(Kind kind);

// The kind of a table's name, of a C type; Kind::none where there is no such.
Kind kind_of_name(const std::string &name);
Kind kind_of_native(const std::string &type);

}  // namespace generator
