// The one road to a register and to an entry of a memory: checks, access functions of the caller,
// shadow, hardware, and then snoops and watches.
//
// Which instance of a register is meant:
//
//     one for the chip     port 0 or REG_PORT_ANY
//     one for each core    the core; REG_PORT_ANY: a read takes core 0, a write reaches both
//     one for each port    the port, or a local gport; BCM_E_PORT for REG_PORT_ANY
//
// Which copy of a memory is meant: the copy numbers of the control record, as the get_copyno_*
// helpers give them. -1, 0, the number of all cores and the default number of the memory stand for
// no copy in particular: a read takes core 0, a write reaches all.
#pragma once
#include <cstdint>
#include <span>
#include <string>

#include "standin/regs/unit_state.h"

namespace standin {

constexpr unsigned kMostWords = SOC_REG_ABOVE_64_MAX_SIZE_U32;
constexpr int kEveryCopy = -1;

enum class Direction : std::uint8_t { kRead, kWrite };

// From which instance, core or port, and how many of them one after another.
struct Instances {
    int first = 0;
    int count = 0;
};

// BCM_E_PORT. The instances that a write reaches; a read takes the first.
int find_instances(const RegisterLayout &layout, int port, Instances &found);
// BCM_E_PARAM for a number that is none of the memory's.
int find_copies(int unit, const MemoryLayout &layout, int copyno, Instances &found);

struct RegisterCall {
    int unit;
    int reg;
    int port;
    int index;
    Direction direction;
};
// Reads or writes an element. A read fills all of `value`, with zeros above the register; a write
// takes as many words as the register has, and drops bits that it doesn't have.
//
// BCM_E_NOT_FOUND: no such register; BCM_E_PORT; BCM_E_PARAM: no such element, or a register wider
// than `value`; BCM_E_INIT: the hardware is needed and the device is not mapped.
int access_register(const char *function, const RegisterCall &call, std::span<std::uint32_t> value);

struct MemoryCall {
    int unit;
    int memory;
    unsigned array;
    int copyno;
    int index;
    Direction direction;
};
// Reads or writes an entry: as many words as an entry has. Null `entry`: BCM_E_PARAM.
// BCM_E_DISABLED: the table is the platform's, which is filling it (see docs/registers.md).
int access_memory(const char *function, const MemoryCall &call, std::uint32_t *entry);

// The same two by a bus address, and management registers. BCM_E_NOT_FOUND: there is nothing at one
// of the words; BCM_E_PARAM: the address is inside a register, or that is wider than `value`.
int access_words(const char *function, int unit, std::uint32_t address, Direction direction,
                 std::span<std::uint32_t> value);

// "IHP_GENERAL_TRAP.1[2]", the port and the index where they say something.
std::string register_text(const RegisterLayout &layout, int port, int index);

// Describes the element of one instance.
soc_regaddrinfo_t describe(const RegisterLayout &layout, int instance, int index);

// The port argument that names an instance.
int port_of(const RegisterLayout &layout, int instance);

}  // namespace standin
