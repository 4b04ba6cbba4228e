// References to registers and memories as text.
//
//   memory     NAME  NAME[3]  NAME.1  NAME[3].1  NAME.*      array index, then copy
//   register   NAME  NAME[2]  NAME[0-3]  NAME.xe0-xe3  NAME.1,3[2]   ports, then index
//   address    0x1a40
// NAME is a name from the lists of identifiers, with its ending or without, or a number of them.
// The management registers have names of their own, listed in identifier_text.cpp.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standin/text/address_text.h"

namespace standin {

inline constexpr std::int32_t kEveryCopy = -1;
inline constexpr std::int32_t kNoPort = -10;  // the port of a register that has none

struct MemoryRef {
    std::int32_t memory;
    std::int32_t copy;  // kEveryCopy without one
    std::uint32_t array_index;
};
std::optional<MemoryRef> read_memory_ref(std::string_view text);
// "IHP_RESERVED_MC[3].1", the index and the copy where they say something.
std::string memory_ref_text(const MemoryRef &ref);

struct RegisterRef {
    std::optional<std::uint32_t> address;  // of a text that is an address; the rest is unused then
    std::int32_t reg;
    std::vector<int> ports;  // kNoPort alone without any
    Range index;             // 0 to 0 without one
};
std::optional<RegisterRef> read_register_ref(std::string_view text, const PortNames &names);

// The offset of a management register, by name or as a number that is a multiple of 4 below
// 0x40000.
std::optional<std::uint32_t> read_cmic_register(std::string_view text);

}  // namespace standin
