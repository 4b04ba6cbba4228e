// What registers and memories a chip has: their bits, fields, number and place on the bus.
//
// The tables of register_rows.cpp and memory_rows.cpp name each register and memory once, with
// its fields from bit 0 upward. All else follows by rule:
//
//     width       the sum of its fields, in whole words of 32 bits, least word first
//     block       the part of the name in front of the first '_'
//     instances   of a block: one for each core, for each port, or one for the chip
//
// A bus address counts bytes, and every word of 32 bits has its own, a multiple of 4:
//
//     31     25 24                                0
//     | block  | offset in the block              |
//
//     block 0            management registers, plain words from 0 to 0x3fffc
//     offset 0 .. fffff  registers: 0x1000 for each register of the block, by ascending number;
//                        in it ports, then elements, each on a power of two
//     offset above       memories: where the name says so (IHB_MEM_F30000: 0xf30000), the others
//                        from 0x1000000, 0x20000 for each, by ascending number; in it array after
//                        array, entry after entry
//
// The two cores of a block are two numbers of a block. A port of a per-port block is none.
#pragma once
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace standin {

// Records that a list made by soc_regaddrlist_alloc has room for; parse_symbolic_reference never
// fills in more.
inline constexpr std::size_t kRegisterListRoom = 64;

constexpr unsigned kWordBits = 32;
constexpr unsigned kBlockShift = 25;
constexpr std::uint32_t kOffsetMask = (1u << kBlockShift) - 1;
constexpr std::uint32_t kManagementEnd = 0x40000;
constexpr std::uint32_t kRegisterSlot = 0x1000;
constexpr std::uint32_t kRegistersEnd = 0x100000;
constexpr std::uint32_t kMemorySlot = 0x20000;
constexpr std::uint32_t kFirstMemory = 0x1000000;

// What a call gives that has an address to give and no status.
constexpr std::uint32_t kNoAddress = 0xffffffff;

// -- rows of the data files -------------------------------------------------------------------

enum class RegisterKind : std::uint8_t {
    kShadowed,
    kVolatile  // the chip changes it by itself, so no copy of it is kept
};

enum class MemoryKind : std::uint8_t {
    kSdk,         // managed by the chip library
    kInterfaces,  // the same; holds logical interfaces
    kPlatform     // managed by the platform
};

struct FieldRow {
    int id;
    const char *name;
    unsigned bits;
};

struct RegisterRow {
    int id;
    const char *name;  // without the ending of its constant
    int elements;
    RegisterKind kind;
    std::uint32_t reset;  // of the first word; the others start at 0
    std::initializer_list<FieldRow> fields;
};

struct MemoryRow {
    int id;
    const char *name;
    int entries;
    int arrays;
    MemoryKind kind;
    std::initializer_list<FieldRow> fields;
};

// Both by ascending number.
std::span<const RegisterRow> register_rows();
std::span<const MemoryRow> memory_rows();

// -- what follows from them -------------------------------------------------------------------

struct FieldPlace {
    int id;
    const char *name;
    unsigned first;  // bit
    unsigned bits;
};

enum class Scope : std::uint8_t { kChip, kCore, kPort };

struct Block {
    std::string_view name;
    Scope scope;
    int number;  // of its first core
    int count;   // numbers that it takes: 2 with cores
};

// The fields of a register, or of an entry of a memory.
struct Layout {
    int id = 0;
    const char *name = nullptr;
    const Block *block = nullptr;
    std::uint32_t offset = 0;  // in the block
    unsigned bits = 0;
    std::vector<FieldPlace> fields;  // from bit 0 upward

    unsigned words() const { return (bits + kWordBits - 1) / kWordBits; }
    // The bits of word `word` that are there.
    std::uint32_t mask(unsigned word) const;
    // Null for a field that it doesn't have.
    const FieldPlace *field(int field_id) const;
};

struct RegisterLayout : Layout {
    int elements = 1;
    bool is_volatile = false;
    std::uint32_t reset = 0;

    // Bytes from element to element.
    std::uint32_t step() const;
    // Ports, cores or 1: how many of it there are, each with all its elements.
    int instances() const;
};

struct MemoryLayout : Layout {
    int entries = 0;
    int arrays = 1;
    MemoryKind kind = MemoryKind::kSdk;

    std::uint32_t entry_bytes() const { return words() * 4; }
    std::uint32_t array_bytes() const {
        return static_cast<std::uint32_t>(entries) * entry_bytes();
    }
};

// Null for a number that no register, or memory, of the chip has.
const RegisterLayout *find_register(int id);
const MemoryLayout *find_memory(int id);

std::span<const RegisterLayout> all_registers();
std::span<const MemoryLayout> all_memories();

// -- addresses --------------------------------------------------------------------------------

// One element of one instance of a register. `instance` is a port or a core, 0 for the chip.
std::uint32_t element_address(const RegisterLayout &layout, int instance, int index);
// One entry in the copy of one core, 0 where there are no cores.
std::uint32_t entry_address(const MemoryLayout &layout, int core, int array, int index);

struct RegisterPlace {
    const RegisterLayout *layout;
    int instance;
    int index;
    unsigned word;  // of the element
};
struct MemoryPlace {
    const MemoryLayout *layout;
    int core;
    int array;
    int index;
    unsigned word;
};

// What lies at an address: nothing where it is no multiple of 4 or between two things.
std::optional<RegisterPlace> find_register_at(std::uint32_t address);
std::optional<MemoryPlace> find_memory_at(std::uint32_t address);
constexpr bool is_management(std::uint32_t address) {
    return address < kManagementEnd && address % 4 == 0;
}

}  // namespace standin
