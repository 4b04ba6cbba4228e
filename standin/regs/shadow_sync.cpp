// Synchronising: every word that the shadow has of a register is held against the hardware.
//
// The result of a synchronisation is the number of elements of registers that differed, and
// kNoAddress, all ones, where it could not be done: no unit, or a device that is not mapped.
#include <algorithm>
#include <string>

#include "helper/shadow.h"
#include "standin/base/number_text.h"
#include "standin/base/rows.h"
#include "standin/base/scan.h"
#include "standin/regs/access.h"
#include "standin/regs/dump_file.h"
#include "standin/regs/words.h"

using namespace standin;

namespace {

constexpr std::uint32_t kNotDone = kNoAddress;

std::string element_text(const RegisterLayout &layout, int instance, int index) {
    return register_text(layout, port_of(layout, instance), index);
}

// "IHP_GENERAL_TRAP.1 (0x24002000) = 0x12", as the shell shows a register.
std::string value_line(const RegisterLayout &layout, int instance, int index,
                       std::span<const std::uint32_t> value) {
    return element_text(layout, instance, index) +
           text_of(" (0x%08x) = ", element_address(layout, instance, index)) + words_text(value) +
           '\n';
}

// Holds one element against the hardware, and repairs the shadow if asked to. False: the hardware
// does not answer.
bool compare(Unit &unit, const RegisterLayout &layout, int instance, int index,
             SyncRecord &record) {
    bool in_shadow = false;
    const std::size_t before = record.differences.size();
    std::uint32_t address = element_address(layout, instance, index);
    for (unsigned word = 0; word < layout.words(); ++word, address += 4) {
        const auto found = unit.file.shadow.find(address);
        if (found == unit.file.shadow.end()) continue;
        in_shadow = true;
        std::uint32_t hardware = 0;
        if (hardware_read(unit, address, hardware) < 0) return false;
        if (hardware == found->second) continue;
        record.differences.push_back(
            {&layout, instance, index, word, address, found->second, hardware});
        if (record.repaired) found->second = hardware;
    }
    if (in_shadow) ++record.compared;
    if (record.differences.size() > before) ++record.differing;
    return true;
}

// Visits all elements, `visit(layout, instance, index)`, until one answers false.
template <class Visit>
bool each_element(std::span<const RegisterLayout> layouts, Visit &&visit) {
    for (const RegisterLayout &layout : layouts) {
        for (int instance = 0; instance < layout.instances(); ++instance) {
            for (int index = 0; index < layout.elements; ++index)
                if (!visit(layout, instance, index)) return false;
        }
    }
    return true;
}

// Adds the line of an element with the value that the API would read.
bool add_line(Unit &unit, const RegisterLayout &layout, int instance, int index,
              std::string &text) {
    std::array<std::uint32_t, kMostWords> value{};
    std::uint32_t address = element_address(layout, instance, index);
    for (unsigned word = 0; word < layout.words(); ++word, address += 4)
        if (word_read(unit, address, !layout.is_volatile, value[word]) < 0) return false;
    text += value_line(layout, instance, index, std::span(value).first(layout.words()));
    return true;
}

struct SyncRequest {
    bool repair;
    bool dump;  // adds a line for each element that the shadow has
};

std::uint32_t synchronise(const char *function, int unit, std::span<const RegisterLayout> layouts,
                          const SyncRequest &request, std::string &text) {
    std::uint32_t result = kNotDone;
    on_unit(function, unit, Need::kDevice, [&](Unit &view) {
        if (!view.device.mapped) return BCM_E_INIT;
        SyncRecord record;
        record.repaired = request.repair;
        each_element(layouts, [&](const RegisterLayout &layout, int instance, int index) {
            const unsigned before = record.compared;
            if (!compare(view, layout, instance, index, record)) return false;
            const bool shown = request.dump && record.compared > before;
            return !shown || add_line(view, layout, instance, index, text);
        });
        result = record.differing;
        view.file.last_sync = std::move(record);
        return BCM_E_NONE;
    });
    return result;
}

std::string sync_text(int unit, const SyncRecord &record) {
    std::string text =
        text_of("# unit %d: %u registers compared, %u different%s\n", unit, record.compared,
                record.differing, record.repaired ? ", shadow repaired" : "");
    static constexpr RowColumn kColumns[] = {{"register", "Register", CellKind::kText},
                                             {"address", "Address", CellKind::kText},
                                             {"word", ">Word", CellKind::kNumber},
                                             {"shadow", ">Shadow", CellKind::kText},
                                             {"hardware", ">Hardware", CellKind::kText}};
    Rows table(kColumns);
    for (const Difference &one : record.differences) {
        table.row({element_text(*one.layout, one.instance, one.index),
                   text_of("0x%08x", one.address), one.word, text_of("0x%08x", one.shadow),
                   text_of("0x%08x", one.hardware)});
    }
    return text + table.text();
}

}  // namespace

extern "C" {

// With `syncWithHardware` the shadow takes over what hardware holds; without, differences are
// counted and left. With `dumpRegistersDuringSync` each register that the shadow has is printed,
// with the value that it ends up with.
uint syncRegisters(uint unit, bool dumpRegistersDuringSync, bool syncWithHardware) {
    std::string text;
    const std::uint32_t result = synchronise(__func__, unit_number(unit), all_registers(),
                                             {syncWithHardware, dumpRegistersDuringSync}, text);
    out(text);
    return result;
}

// The same for one register, in all its instances; the shadow is repaired. All ones as well for a
// register that there isn't.
uint syncSpecificRegister(uint unit, U32 reg) {
    std::string text;
    const RegisterLayout *const layout = find_register(static_cast<int>(reg));
    if (layout == nullptr) return kNotDone;
    return synchronise(__func__, unit_number(unit), {layout, 1}, {true, false}, text);
}

// What the last synchronisation of the unit saw. BCM_E_FAIL: the file can't be written.
int dumpRegSyncData(int unit, char const *fname) {
    return dump(__func__, unit, fname,
                [](const Unit &view) { return sync_text(view.number, view.file.last_sync); });
}

// A line for each element of each register of the unit, with the value that a read gives.
void printAllRegisters(uint unit) {
    std::string text;
    on_unit(__func__, unit_number(unit), Need::kReset, [&](Unit &view) {
        each_element(all_registers(), [&](const RegisterLayout &layout, int instance, int index) {
            return add_line(view, layout, instance, index, text);
        });
        return BCM_E_NONE;
    });
    out(text);
}

}  // extern "C"
