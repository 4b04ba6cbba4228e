// The rule engine of one switch: groups, entries with qualifiers and actions, counters.
//
// Each entry and each counter belongs to a group that exists.
#pragma once
#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "sdk/bcm/field_types.h"
#include "standin/model/numbered_map.h"
#include "standin/model/port_set.h"

namespace standin {

constexpr std::size_t kFieldGroups = 128;
constexpr std::size_t kFieldEntries = 16'384;
constexpr std::size_t kFieldStats = 8192;
constexpr std::size_t kFieldRanges = 128;

struct FieldGroup {
    bcm_field_qset_t qualifiers{};
    bcm_field_aset_t actions{};
    bcm_pbmp_t ports = kAllPorts;
    int priority = 0;
    bcm_field_group_mode_t mode{};
    int enable = 1;
    bcm_field_presel_set_t presels{};
};

struct FieldAction {
    std::uint32_t param0 = 0;
    std::uint32_t param1 = 0;
    std::optional<std::array<std::uint8_t, 6>> mac;
    std::optional<bcm_pbmp_t> ports;
};

// A number is in a range if it is in one of its parts.
struct FieldRange {
    struct Part {
        std::uint32_t flags = 0;
        std::uint32_t min = 0;
        std::uint32_t max = 0;
    };
    std::vector<Part> parts;
    bcm_if_group_t interfaces = 0;
};

// By a qualifier's number: ranges that are tested, and whether the answer is turned round.
using RangeChecks = std::map<int, std::map<bcm_field_range_t, int>>;

struct FieldEntry {
    bcm_field_group_t group = 0;
    int priority = 0;
    int enable = 1;
    bool installed = false;
    // Data and mask as their bytes; equal ids of different widths are different qualifiers.
    std::map<std::pair<int, std::size_t>, std::vector<std::uint8_t>> qualifiers;
    RangeChecks ranges;
    std::map<bcm_field_action_t, FieldAction> actions;
    std::optional<int> stat;
    bcm_field_stat_action_t stat_action{};
    std::map<int, bcm_policer_t> policers;  // by level
};

struct FieldStat {
    bcm_field_group_t group = 0;
    std::vector<bcm_field_stat_t> kinds;
    std::map<bcm_field_stat_t, std::uint64_t> values;
};

struct Field {
    std::map<bcm_field_group_t, FieldGroup> groups;
    NumberedMap<bcm_field_entry_t, FieldEntry, 1> entries;
    NumberedMap<int, FieldStat, 1> stats;
    std::map<bcm_field_range_t, FieldRange> ranges;
};

}  // namespace standin
