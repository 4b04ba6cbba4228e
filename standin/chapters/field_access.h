// How the calls of the rule engine reach groups, entries and counters.
#pragma once
#include "standin/model/tables.h"

namespace standin {

inline std::map<bcm_field_group_t, FieldGroup> &groups_of(Switch &chip) {
    return chip.field.groups;
}
inline std::map<bcm_field_entry_t, FieldEntry> &entries_of(Switch &chip) {
    return chip.field.entries;
}
inline std::map<int, FieldStat> &stats_of(Switch &chip) { return chip.field.stats; }

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

// Takes an entry out of the engine, and its hold on counters and policers.
// REQUIRES: the entry is there.
void erase_rule(Switch &chip, bcm_field_entry_t entry);

// A copy of an entry holds the same counters and policers.
void hold_links(Switch &chip, const FieldEntry &entry);

}  // namespace standin
