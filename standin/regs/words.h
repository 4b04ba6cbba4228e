// Single words of a unit: the hardware, and the shadow in front of it.
//
// A read is served by the shadow if it has the word; else by the hardware, whose answer the shadow
// keeps. Every write goes to both. The hardware is asked in any case
//
//   - while forceReadFromHardware() holds, and the shadow then keeps nothing of the answer;
//   - for what the chip changes by itself: volatile registers, and tables whose dynamic shadow
//     is off;
//   - in a unit that is set up for diagnostics.
//
// In a unit that is set up for initialisation a word that the shadow doesn't have is at its reset
// value, and the hardware is not asked.
//
// REQUIRES, of all functions: the model's lock is held.
#pragma once
#include <cstdint>

#include "standin/regs/unit_state.h"

namespace standin {

// BCM_E_INIT: the device is not mapped. A read then gives all ones, as the bus does.
int hardware_read(const Unit &unit, std::uint32_t address, std::uint32_t &value);
int hardware_write(const Unit &unit, std::uint32_t address, std::uint32_t value);

// `kept`: whether the shadow keeps the word. Statuses as above.
int word_read(const Unit &unit, std::uint32_t address, bool kept, std::uint32_t &value);
int word_write(const Unit &unit, std::uint32_t address, bool kept, std::uint32_t value);

// Whether the shadow keeps the word of a table.
bool keeps_entry(const UnitState &state, const MemoryLayout &layout, int array, int index);

// The bits that the word at `address` has; 0 where there is no word.
std::uint32_t word_mask(std::uint32_t address);

}  // namespace standin
