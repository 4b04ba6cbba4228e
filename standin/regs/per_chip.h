// State that is kept beside the chip model, and goes when the chip or the device goes.
//
// The model does not tell when it replaces a chip. So each state has a mark, and leaves it in
// something of the model's that goes with the chip (or the device). A mark that is not there any
// more means a new one, which starts with a new state.
#pragma once
#include <array>
#include <cstdint>
#include <memory>
#include <string_view>

#include "sdk/variables.h"
#include "standin/model/device_table.h"

namespace standin {

// One T for each unit; all of it stands under the model's lock.
template <class T>
class Marked {
  public:
    // The state of `unit`, made anew if `mark` is not that of the state. REQUIRES: a device.
    T &of(int unit, std::uint32_t &mark) {
        Slot &slot = slots_[static_cast<std::size_t>(unit)];
        if (slot.state == nullptr || mark == 0 || mark != slot.mark) {
            slot.state = std::make_unique<T>();
            slot.mark = mark = ++last_mark_;
        }
        return *slot.state;
    }

    void clear() { slots_ = {}; }

  private:
    struct Slot {
        std::uint32_t mark = 0;
        std::unique_ptr<T> state;
    };
    std::array<Slot, kMaxUnits> slots_;
    std::uint32_t last_mark_ = 0;
};

// State of a chip: a reset of the chip starts it anew.
template <class T>
class PerChip {
  public:
    // `name` is the family under which the mark is kept; no family of functions has a blank in it.
    explicit PerChip(std::string_view name) : name_(name) {}

    T &of(int unit, Switch &chip) {
        std::uint64_t &kept = chip.generic[std::string(name_)].last_id;
        auto mark = static_cast<std::uint32_t>(kept);
        T &state = states_.of(unit, mark);
        kept = mark;
        return state;
    }

  private:
    std::string_view name_;
    Marked<T> states_;
};

// State of a device: it stays when the chip is reset. The mark is one of the first words of the
// control record, of which nobody outside knows more than a few cells far behind.
enum class MarkWord : std::uint8_t { kUnitState, kPhyTables };

template <class T>
class PerDevice {
  public:
    // `word` is its own for each T.
    explicit PerDevice(MarkWord word) : word_(static_cast<std::size_t>(word)) {}

    T &of(int unit) {
        return states_.of(unit, reinterpret_cast<std::uint32_t *>(soc_control[unit])[word_]);
    }
    void clear() { states_.clear(); }

  private:
    std::size_t word_;
    Marked<T> states_;
};

}  // namespace standin
