// Putting entries into the MAC table, and whether a packet may.
#include "standin/model/l2_learn.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include "standin/model/tables.h"

namespace standin {
namespace {

// How many learned entries there are in the scope of the entry; nothing where it is in another.
std::optional<std::size_t> learned_beside(const L2Table &table, const L2Scope &scope,
                                          const bcm_l2_addr_t &entry) {
    const bool trunk = on_trunk(entry);
    if (scope.scope == kLimitSystem) return table.learned();
    if (scope.scope == kLimitVlan) {
        if (entry.vid != scope.number) return std::nullopt;
        return table.learned_in(entry.vid);
    }
    const int number = trunk ? entry.tgid : entry.port;
    if (trunk != (scope.scope == kLimitTrunk) || number != scope.number) return std::nullopt;
    return table.learned_from(trunk, number);
}

// Whether one more learned entry would pass a limit.
bool limit_reached(const L2Chapter &l2, const bcm_l2_addr_t &entry) {
    if (!l2.limits_enabled) return false;
    return std::ranges::any_of(l2.limits, [&](const auto &one) {
        const auto learned = learned_beside(l2.table, one.first, entry);
        return learned && *learned >= static_cast<std::size_t>(one.second);
    });
}

Names without(Names names, const Names &others) {
    std::erase_if(names, [&](const Name &one) {
        return std::ranges::any_of(others, [&](const Name &other) {
            return one.use == other.use && one.target == other.target;
        });
    });
    return names;
}

// Takes new names back unless the entry that has them is there.
struct Undo {
    Undo(Switch &of, const Object &user, const Names &fresh) : chip(of), self(user), names(fresh) {}
    ~Undo() {
        if (!done) chip.references.unlink(self, names);
    }
    Undo(const Undo &) = delete;
    Undo &operator=(const Undo &) = delete;

    Switch &chip;
    const Object &self;
    const Names &names;
    bool done = false;
};

}  // namespace

int put_l2_entry(Switch &chip, const bcm_l2_addr_t &entry, int event) {
    L2Chapter &l2 = chip.l2;
    if (!is_vlan(entry.vid))
        return refused(BCM_E_PARAM,
                       "field vid is " + std::to_string(entry.vid) + ", allowed is 1 to 4094");
    const Names names = names_of(entry);
    if (const int status = check_names(chip, names); status != BCM_E_NONE) return status;
    const Object self = mac_object(entry);
    L2Row *row = l2.table.find_key(self.number);
    const Names before = row == nullptr ? Names{} : names_of(row->entry);
    const std::size_t capacity = table_capacity("l2", kL2Capacity);
    const Names fresh = without(names, before);
    const Names stale = without(before, names);
    Undo undo(chip, self, fresh);  // what can fail comes first
    chip.references.link(self, fresh);
    row = l2.table.put(entry, capacity);
    if (row == nullptr)
        return refused(BCM_E_FULL, std::to_string(l2.table.size()) + " addresses are there");
    undo.done = true;
    chip.references.unlink(self, stale);
    row->heard = l2.clock;
    note_l2(chip.events, entry, event);
    return BCM_E_NONE;
}

int learn_entry(Switch &chip, const bcm_l2_addr_t &entry) {
    L2Chapter &l2 = chip.l2;
    if (l2.freezes > 0) return refused(BCM_E_DISABLED, "the table is frozen");
    L2Row *const row = l2.table.find(entry.mac, entry.vid);
    if (row != nullptr && row->is_static())
        return refused(BCM_E_DISABLED, "a static entry is there");
    if (row != nullptr && std::memcmp(&row->entry, &entry, sizeof entry) == 0) {
        row->heard = l2.clock;
        return BCM_E_NONE;
    }
    if (row == nullptr && limit_reached(l2, entry)) return BCM_E_RESOURCE;
    return put_l2_entry(chip, entry, kL2Learned);
}

}  // namespace standin
