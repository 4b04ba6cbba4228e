// How the calls of the rule engine reach groups, entries and counters.
#pragma once
#include "standin/model/tables.h"

namespace standin {

inline std::map<bcm_field_group_t, FieldGroup> &groups_of(Switch &chip) {
    return chip.field.groups;
}
inline auto &entries_of(Switch &chip) { return chip.field.entries; }
inline std::map<bcm_field_range_t, FieldRange> &ranges_of(Switch &chip) {
    return chip.field.ranges;
}
inline auto &stats_of(Switch &chip) { return chip.field.stats; }

template <class Body>
int on_group(const char *function, int unit, bcm_field_group_t group, Body &&body) {
    return on_entry(function, unit, groups_of, group, body);
}

template <class Body>
int on_rule(const char *function, int unit, bcm_field_entry_t entry, Body &&body) {
    return on_entry(function, unit, entries_of, entry, body);
}

// Whether bit `number` is set in the words of a qualifier or action set.
template <std::size_t N>
bool in_set(const SHR_BITDCL (&words)[N], int number) {
    if (!within(number, 0, static_cast<int>(32 * N) - 1)) return false;
    return (words[number / 32] >> (number % 32) & 1u) != 0;
}

// The rules of a group, ascending.
inline std::vector<bcm_field_entry_t> entries_in(const Switch &chip, bcm_field_group_t group) {
    std::vector<bcm_field_entry_t> found;
    chip.references.each_user(
        object(ObjectKind::kGroup, group), Use::kRuleGroup,
        [&](const Object &rule) { found.push_back(static_cast<bcm_field_entry_t>(rule.number)); });
    return found;
}

// Changes a rule by `edit(chip, copy)`, which answers a status; refused whole.
template <class Edit>
int change_rule(const char *function, int unit, bcm_field_entry_t entry, Edit &&edit) {
    return on_switch(function, unit, [&](Switch &chip) {
        FieldEntry *const rule = find_in(entries_of(chip), entry);
        if (rule == nullptr) return missing(entry);
        return change(chip, object(ObjectKind::kRule, entry), *rule,
                      [&](FieldEntry &made) { return edit(chip, made); });
    });
}

}  // namespace standin
