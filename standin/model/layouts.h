// How structures, and the rows of calls without a model, lie in memory: tables that the generator
// makes of the declarations (made/standin_layouts.cpp), for whoever shows a value field by field.
#pragma once
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace standin {

enum class LayoutForm : std::uint8_t {
    kSigned,
    kUnsigned,
    kBytes,    // a union, an address: nothing that could be told apart
    kPortSet,  // bcm_pbmp_t
    kMac,      // bcm_mac_t
    kPointer,  // says nothing of what it points at
    kStruct
};

struct LayoutField {
    const char *name;  // "port", in a row also "info.port"
    std::uint32_t offset;
    std::uint32_t size;   // of one element
    std::uint32_t count;  // elements of an array, else 1
    LayoutForm form;
    std::uint16_t inner;  // of a structure, its place in struct_layouts
};

struct StructLayout {
    const char *name;  // "bcm_l2_addr_t"
    std::span<const LayoutField> fields;
};

// A row of a generic table; the fields of the key come first.
struct FamilyLayout {
    const char *family;  // "bcm_vlan_control"
    std::uint32_t key;   // bytes of the key
    std::span<const LayoutField> fields;
};

// By name.
extern const std::span<const StructLayout> struct_layouts;
extern const std::span<const FamilyLayout> family_layouts;

// Null for a name that is not there.
const StructLayout *struct_layout(std::string_view name);
const FamilyLayout *family_layout(std::string_view family);

}  // namespace standin
