// The table of kinds.
#include "generator/model/kinds.h"

#include <algorithm>

namespace generator {
namespace {

constexpr std::size_t kPortWords = 18;

// In the order of `Kind`.
constexpr KindTraits kKinds[] = {
    {Kind::none, "none", "Pointer", 0, 0},
    {Kind::signed_8, "signed-8", "Signed8", 1, 1, {"signed char"}},
    {Kind::signed_16, "signed-16", "Signed16", 2, 2, {"short"}},
    {Kind::signed_32, "signed-32", "Signed32", 4, 4, {"int"}},
    {Kind::unsigned_8, "unsigned-8", "Unsigned8", 1, 1, {"unsigned char"}},
    {Kind::unsigned_16, "unsigned-16", "Unsigned16", 2, 2, {"unsigned short"}},
    {Kind::unsigned_32, "unsigned-32", "Unsigned32", 4, 4, {"unsigned int"}},
    {.kind = Kind::unsigned_long,
     .name = "unsigned-long",
     .frame = "UnsignedLong",
     .natives = {"unsigned long"},
     .no_result = true},
    {Kind::unsigned_64, "unsigned-64", "Unsigned64"},
    {Kind::address_32, "address-32", "Address32", 4, 4},
    {Kind::strict_bool, "strict-bool", "StrictBool", 1, 1, {"bool"}},
    {.kind = Kind::text,
     .name = "text",
     .frame = "Text",
     .natives = {"char *", "char const *"},
     .getter = "get_text",
     .setter = "set_text"},
    {.kind = Kind::pointer, .name = "pointer", .frame = "Pointer", .typed = true},
    {.kind = Kind::function_pointer,
     .name = "function-pointer",
     .frame = "FunctionPointer",
     .natives = {"(*)"},
     .getter = "get_pointer",
     .typed = true},
    {.kind = Kind::by_value,
     .name = "by-value",
     .frame = "ByValue",
     .getter = "get_copy",
     .setter = "set_copy",
     .typed = true,
     .refuses_null = true},
    {.kind = Kind::reference,
     .name = "reference",
     .frame = "Reference",
     .typed = true,
     .refuses_null = true,
     .no_result = true},
    {Kind::port_bitmap, "port-bitmap", "PortBitmap", 4 * kPortWords, 4},
    {.kind = Kind::mac_string,
     .name = "mac-string",
     .frame = "MacString",
     .size = 6,
     .align = 1,
     .getter = "get_mac",
     .setter = "set_mac",
     .no_result = true},
    {.kind = Kind::fixed_array,
     .name = "fixed-array",
     .frame = "Pointer",
     .getter = "get_alias",
     .setter = "set_array",
     .typed = true,
     .no_result = true},
    {.kind = Kind::nested_struct,
     .name = "nested-struct",
     .frame = "Pointer",
     .getter = "get_alias",
     .setter = "set_copy",
     .typed = true,
     .refuses_null = true},
    {.kind = Kind::pointer_field,
     .name = "pointer-field",
     .frame = "Pointer",
     .getter = "get_pointer",
     .setter = "set_pointer",
     .typed = true},
    {Kind::object, "object", "Object"},
    {Kind::nothing, "nothing", "Nothing", 0, 0},
};

constexpr bool in_order() {
    for (std::size_t i = 0; i < std::size(kKinds); ++i)
        if (static_cast<std::size_t>(kKinds[i].kind) != i) return false;
    return std::size(kKinds) == static_cast<std::size_t>(Kind::nothing) + 1;
}
static_assert(in_order());

template <typename Wanted>
Kind first_kind(Wanted wanted) {
    const auto found = std::find_if(std::begin(kKinds), std::end(kKinds), wanted);
    return found == std::end(kKinds) ? Kind::none : found->kind;
}

}  // namespace

const KindTraits &traits(Kind kind) { return kKinds[static_cast<std::size_t>(kind)]; }

Kind kind_of_name(const std::string &name) {
    return first_kind([&](const KindTraits &row) { return name == row.name; });
}

Kind kind_of_native(const std::string &type) {
    return first_kind([&](const KindTraits &row) {
        return std::any_of(row.natives.begin(), row.natives.end(),
                           [&](const char *native) { return native != nullptr && type == native; });
    });
}

}  // namespace generator
