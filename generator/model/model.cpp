#include "generator/model/model.h"

namespace generator {

std::string spelled(const std::string &type, const std::vector<std::string> &bounds) {
    std::string text = type;
    for (std::size_t i = 0; i < bounds.size(); ++i) text += (i == 0 ? " [" : "[") + bounds[i] + "]";
    return text;
}

const char *kind_name(Kind kind) {
    switch (kind) {
        case Kind::none:
            return "none";
        case Kind::signed_8:
            return "signed-8";
        case Kind::signed_16:
            return "signed-16";
        case Kind::signed_32:
            return "signed-32";
        case Kind::unsigned_8:
            return "unsigned-8";
        case Kind::unsigned_16:
            return "unsigned-16";
        case Kind::unsigned_32:
            return "unsigned-32";
        case Kind::unsigned_long:
            return "unsigned-long";
        case Kind::unsigned_64:
            return "unsigned-64";
        case Kind::address_32:
            return "address-32";
        case Kind::strict_bool:
            return "strict-bool";
        case Kind::text:
            return "text";
        case Kind::pointer:
            return "pointer";
        case Kind::function_pointer:
            return "function-pointer";
        case Kind::by_value:
            return "by-value";
        case Kind::reference:
            return "reference";
        case Kind::port_bitmap:
            return "port-bitmap";
        case Kind::mac_string:
            return "mac-string";
        case Kind::fixed_array:
            return "fixed-array";
        case Kind::nested_struct:
            return "nested-struct";
        case Kind::pointer_field:
            return "pointer-field";
        case Kind::object:
            return "object";
        case Kind::nothing:
            return "nothing";
    }
    return "none";
}

}  // namespace generator
