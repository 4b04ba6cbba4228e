// Checks, the caller's access functions, the words and the watchers, in this order.
#include "standin/regs/access.h"

#include <algorithm>
#include <array>
#include <optional>

#include "sdk/variables.h"
#include "standin/base/number_text.h"
#include "standin/base/output.h"
#include "standin/model/rehearsal.h"
#include "standin/model/soc_control.h"
#include "standin/regs/words.h"

namespace standin {
namespace {

using Value = std::array<std::uint32_t, kMostWords>;

constexpr std::uint32_t kSnoopRead = 1;
constexpr std::uint32_t kSnoopWrite = 2;

// An access function of the caller that asks for the register again gets our own access.
thread_local bool in_access_function = false;

template <class Call>
int call_outside(Call &&call) {
    struct Inside {
        Inside() { in_access_function = true; }
        ~Inside() { in_access_function = false; }
    } const inside;
    return call();
}

// Whether nobody outside is asked: inside of an access function, and in a rehearsal.
bool is_own() { return in_access_function || Rehearsal::is_on(); }

// What is to be done once the lock is free.
struct Afterwards {
    soc_reg_access_t access{};
    std::optional<RegisterSnoop> snoop;
    bool watched = false;
};

// Whether the caller has given a function for an access of this width.
bool overridden(const soc_reg_access_t &access, unsigned words, bool write) {
    if (words == 1) return write ? access.reg32_set != nullptr : access.reg32_get != nullptr;
    if (words == 2) return write ? access.reg64_set != nullptr : access.reg64_get != nullptr;
    return write ? access.reg_above64_set != nullptr : access.reg_above64_get != nullptr;
}

int run_override(const soc_reg_access_t &access, const RegisterCall &call, unsigned words,
                 Value &value) {
    const bool write = call.direction == Direction::kWrite;
    uint64 wide = uint64{value[1]} << 32 | value[0];
    return call_outside([&] {
        if (words == 1) {
            return write ? access.reg32_set(call.unit, call.reg, call.port, call.index, value[0])
                         : access.reg32_get(call.unit, call.reg, call.port, call.index, &value[0]);
        }
        if (words > 2) {
            const auto function = write ? access.reg_above64_set : access.reg_above64_get;
            return function(call.unit, call.reg, call.port, call.index, value.data());
        }
        if (write) return access.reg64_set(call.unit, call.reg, call.port, call.index, wide);
        const int status = access.reg64_get(call.unit, call.reg, call.port, call.index, &wide);
        value[0] = static_cast<std::uint32_t>(wide);
        value[1] = static_cast<std::uint32_t>(wide >> 32);
        return status;
    });
}

// The access itself, on the words of the register.
int run_access(const Unit &unit, const RegisterLayout &layout, const Instances &instances,
               const RegisterCall &call, Value &value) {
    const bool kept = !layout.is_volatile;
    const bool write = call.direction == Direction::kWrite;
    int status = BCM_E_NONE;
    for (int i = 0; i < (write ? instances.count : 1); ++i) {
        std::uint32_t address = element_address(layout, instances.first + i, call.index);
        for (unsigned word = 0; word < layout.words() && status == BCM_E_NONE; ++word) {
            status = write ? word_write(unit, address, kept, value[word])
                           : word_read(unit, address, kept, value[word]);
            address += 4;
        }
    }
    return status;
}

void watch(const char *what, int unit, Direction direction, const std::string &name,
           std::span<const std::uint32_t> value) {
    outf("u%d %s %s %s = %s\n", unit, what, direction == Direction::kWrite ? "write" : "read",
         name.c_str(), words_text(value).c_str());
}

void tell_of_one(const Afterwards &after, const RegisterLayout &layout, int instance,
                 const RegisterCall &call, const Value &value) {
    if (after.watched) {
        watch("reg", call.unit, call.direction,
              register_text(layout, port_of(layout, instance), call.index),
              std::span(value).first(layout.words()));
    }
    const std::uint32_t kind = call.direction == Direction::kWrite ? kSnoopWrite : kSnoopRead;
    if (after.snoop && (after.snoop->flags == 0 || (after.snoop->flags & kind) != 0)) {
        soc_regaddrinfo_t where = describe(layout, instance, call.index);
        after.snoop->call(call.unit, call.reg, &where, kind, value[1], value[0], after.snoop->user);
    }
}

// A write tells of each instance that it reached.
void tell_observers(const Afterwards &after, const RegisterLayout &layout,
                    const Instances &instances, const RegisterCall &call, const Value &value) {
    const int count = call.direction == Direction::kWrite ? instances.count : 1;
    for (int i = 0; i < count; ++i) tell_of_one(after, layout, instances.first + i, call, value);
}

// The 32-bit cell at `offset` of the control record.
std::int32_t control_cell(int unit, std::size_t offset) {
    const auto *const words = reinterpret_cast<const std::int32_t *>(soc_control[unit]);
    return words[offset / sizeof words[0]];
}

constexpr std::pair<std::string_view, CopyCells> kCopyCells[] = {
    {"EGQ", kEgressQueueing},
    {"IHB", kIngressHeader1},
    {"IHP", kIngressHeader2},
    {"IQM", kIngressQueueManager},
};

bool table_open(const Unit &unit, const MemoryLayout &layout) {
    return layout.kind != MemoryKind::kPlatform || !unit.state.init_stands() ||
           unit.state.all_tables || (unit.device.fake && shadow_policy().sim_all_tables);
}

int run_access(const Unit &unit, const MemoryLayout &layout, const Instances &copies,
               const MemoryCall &call, std::uint32_t *entry) {
    const int array = static_cast<int>(call.array);
    const bool kept = keeps_entry(unit.state, layout, array, call.index);
    const bool write = call.direction == Direction::kWrite;
    int status = BCM_E_NONE;
    for (int i = 0; i < (write ? copies.count : 1); ++i) {
        std::uint32_t address = entry_address(layout, copies.first + i, array, call.index);
        for (unsigned word = 0; word < layout.words() && status == BCM_E_NONE; ++word) {
            status = write ? word_write(unit, address, kept, entry[word] & layout.mask(word))
                           : word_read(unit, address, kept, entry[word]);
            address += 4;
        }
    }
    return status;
}

// The number by which a call names the copy of a core.
int copy_of(int unit, const MemoryLayout &layout, int core) {
    for (const auto &[block, cells] : kCopyCells)
        if (block == layout.block->name) return control_cell(unit, cells.of_core(core));
    return kEveryCopy;
}

// One word of an entry, by way of the whole of it.
int access_entry_word(const char *function, int unit, const MemoryPlace &place, Direction direction,
                      std::uint32_t &word) {
    MemoryCall call{unit,
                    place.layout->id,
                    static_cast<unsigned>(place.array),
                    copy_of(unit, *place.layout, place.core),
                    place.index,
                    Direction::kRead};
    Value entry{};
    const bool write = direction == Direction::kWrite;
    int status = BCM_E_NONE;
    if (!write || place.layout->words() > 1) status = access_memory(function, call, entry.data());
    if (status < 0) return status;
    if (!write) {
        word = entry[place.word];
        return status;
    }
    entry[place.word] = word;
    call.direction = Direction::kWrite;
    return access_memory(function, call, entry.data());
}

int access_management(const char *function, int unit, std::uint32_t address, Direction direction,
                      std::span<std::uint32_t> words) {
    return on_unit(function, unit, Need::kReset, [&](Unit &view) {
        int status = BCM_E_NONE;
        for (std::uint32_t &word : words) {
            if (status == BCM_E_NONE)
                status = direction == Direction::kRead ? word_read(view, address, false, word)
                                                       : word_write(view, address, false, word);
            address += 4;
        }
        return status;
    });
}

}  // namespace

int find_instances(const RegisterLayout &layout, int port, Instances &found) {
    if (layout.block->scope == Scope::kPort) {
        found = {local_port(port), 1};
        return found.first < 0 ? BCM_E_PORT : BCM_E_NONE;
    }
    const bool any = port == REG_PORT_ANY;
    found = any ? Instances{0, layout.instances()} : Instances{port, 1};
    return any || within(port, 0, layout.instances() - 1) ? BCM_E_NONE : BCM_E_PORT;
}

int find_copies(int unit, const MemoryLayout &layout, int copyno, Instances &found) {
    found = {0, layout.block->count};
    if (copyno == kEveryCopy || copyno == 0 || copyno == control_cell(unit, memory_cell(layout.id)))
        return BCM_E_NONE;
    for (const auto &[block, cells] : kCopyCells) {
        if (block != layout.block->name) continue;
        if (copyno == control_cell(unit, cells.all_cores)) return BCM_E_NONE;
        for (int core = 0; core < layout.block->count; ++core) {
            if (copyno != control_cell(unit, cells.of_core(core))) continue;
            found = {core, 1};
            return BCM_E_NONE;
        }
    }
    return BCM_E_PARAM;
}

int access_register(const char *function, const RegisterCall &call,
                    std::span<std::uint32_t> value) {
    const RegisterLayout *const layout = find_register(call.reg);
    const bool write = call.direction == Direction::kWrite;
    Value words{};
    Instances instances;
    Afterwards after;
    bool outside = false;
    int status = on_unit(function, call.unit, Need::kReset, [&](Unit &unit) {
        if (layout == nullptr) return BCM_E_NOT_FOUND;
        if (const int bad = find_instances(*layout, call.port, instances); bad < 0) return bad;
        if (!within(call.index, 0, layout->elements - 1)) return BCM_E_PARAM;
        if (layout->words() > value.size()) return BCM_E_PARAM;
        for (unsigned i = 0; write && i < layout->words(); ++i)
            words[i] = value[i] & layout->mask(i);
        const auto snoop = unit.state.snoops.find(call.reg);
        if (snoop != unit.state.snoops.end() && !Rehearsal::is_on()) after.snoop = snoop->second;
        after.watched = unit.state.watch_registers;
        after.access = unit.state.access;
        outside = !is_own() && overridden(after.access, layout->words(), write);
        return outside ? BCM_E_NONE : run_access(unit, *layout, instances, call, words);
    });
    if (outside) status = run_override(after.access, call, layout->words(), words);
    if (status < 0) return status;
    tell_observers(after, *layout, instances, call, words);
    if (!write) std::copy_n(words.begin(), value.size(), value.begin());
    return status;
}

int access_memory(const char *function, const MemoryCall &call, std::uint32_t *entry) {
    const MemoryLayout *const layout = find_memory(call.memory);
    Value words{};  // the caller's entry is written when all has gone well
    const bool write = call.direction == Direction::kWrite;
    soc_mem_array_read_f outside = nullptr;  // the type of both directions
    bool watched = false;
    int status = on_unit(function, call.unit, Need::kReset, [&](Unit &unit) {
        if (layout == nullptr) return BCM_E_NOT_FOUND;
        Instances copies;
        if (entry == nullptr || call.array >= static_cast<unsigned>(layout->arrays) ||
            !within(call.index, 0, layout->entries - 1) ||
            find_copies(call.unit, *layout, call.copyno, copies) < 0) {
            return BCM_E_PARAM;
        }
        if (!table_open(unit, *layout)) return BCM_E_DISABLED;
        watched = unit.state.watch_memories;
        if (write) std::copy_n(entry, layout->words(), words.begin());
        if (!is_own()) outside = write ? unit.state.access.mem_write : unit.state.access.mem_read;
        return outside != nullptr ? BCM_E_NONE
                                  : run_access(unit, *layout, copies, call, words.data());
    });
    if (status >= 0 && outside != nullptr) {
        status = call_outside([&] {
            return outside(call.unit, call.memory, call.array, call.copyno, call.index,
                           words.data());
        });
    }
    if (status >= 0 && !write) std::copy_n(words.begin(), layout->words(), entry);
    if (status >= 0 && watched) {
        std::string name = layout->name;
        if (call.array > 0) name += '[' + std::to_string(call.array) + ']';
        watch("mem", call.unit, call.direction, name + ' ' + std::to_string(call.index),
              {entry, layout->words()});
    }
    return status;
}

int access_words(const char *function, int unit, std::uint32_t address, Direction direction,
                 std::span<std::uint32_t> value) {
    if (const int status = unit_reachable(unit, Need::kReset); status < 0) return status;
    if (const auto place = find_register_at(address)) {
        if (place->word != 0) return BCM_E_PARAM;
        const RegisterCall call{unit, place->layout->id, port_of(*place->layout, place->instance),
                                place->index, direction};
        return access_register(function, call, value);
    }
    const auto last = address + 4 * static_cast<std::uint32_t>(value.size() - 1);
    if (is_management(address) && is_management(last))
        return access_management(function, unit, address, direction, value);
    if (!find_memory_at(address) || !find_memory_at(last)) return BCM_E_NOT_FOUND;
    for (std::uint32_t &word : value) {
        const int status =
            access_entry_word(function, unit, *find_memory_at(address), direction, word);
        if (status < 0) return status;
        address += 4;
    }
    return BCM_E_NONE;
}

std::string register_text(const RegisterLayout &layout, int port, int index) {
    std::string text = layout.name;
    if (port >= 0) text += '.' + std::to_string(port);
    if (index > 0) text += '[' + std::to_string(index) + ']';
    return text;
}

int port_of(const RegisterLayout &layout, int instance) {
    return layout.block->scope == Scope::kChip ? REG_PORT_ANY : instance;
}

soc_regaddrinfo_t describe(const RegisterLayout &layout, int instance, int index) {
    soc_regaddrinfo_t info{};
    info.addr = element_address(layout, instance, index);
    info.valid = 1;
    info.reg = layout.id;
    info.idx = index;
    info.block = static_cast<int>(info.addr >> kBlockShift);
    info.port = port_of(layout, instance);
    info.cos = -1;
    info.field = -1;
    return info;
}

}  // namespace standin
