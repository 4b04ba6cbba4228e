// The calls of the rule engine on ranges of numbers, and on the entries that test them.
#include "sdk/bcm/field.h"
#include "sdk/bcm/field_qualify.h"
#include "sdk/bcm/field_qualify_get.h"
#include "standin/chapters/field_access.h"

using namespace standin;

namespace {

using Part = FieldRange::Part;

constexpr int kMostParts = 16;
constexpr Numbering<bcm_field_range_t> kNumbers{"field_range", kFieldRanges, 1, 0x7fffffff};

int create(const char *function, int unit, bool given, bcm_field_range_t *range,
           const FieldRange &made) {
    return on_switch(function, unit, [&](Switch &chip) {
        for (const Part &part : made.parts)
            if (part.min > part.max)
                return refused(BCM_E_PARAM, "a range from " + std::to_string(part.min) + " to " +
                                                std::to_string(part.max) + " is empty");
        int status = BCM_E_NONE;
        FieldRange *const slot = new_entry(ranges_of(chip), kNumbers, given, range, status);
        if (slot != nullptr) *slot = made;
        return status;
    });
}

// A bound below zero is beyond all others, and leaves the range empty or too wide.
FieldRange single(std::uint32_t flags, bcm_l4_port_t min, bcm_l4_port_t max,
                  bcm_if_group_t interfaces) {
    return {{{flags, static_cast<std::uint32_t>(min), static_cast<std::uint32_t>(max)}},
            interfaces};
}

template <class Body>
int on_range(const char *function, int unit, bcm_field_range_t range, Body &&body) {
    return on_entry(function, unit, ranges_of, range, body);
}

int test_range(const char *function, int unit, bcm_field_entry_t entry, int qualifier,
               bcm_field_range_t range, int invert) {
    return change_rule(function, unit, entry, [&](Switch &chip, FieldEntry &rule) {
        if (!in_set(groups_of(chip)[rule.group].qualifiers.w, qualifier) || !within(invert, 0, 1))
            return int{BCM_E_PARAM};
        rule.ranges[qualifier][range] = invert;
        return int{BCM_E_NONE};
    });
}

int tested_ranges(const char *function, int unit, bcm_field_entry_t entry, int qualifier, int most,
                  bcm_field_range_t *range, int *invert, int *count) {
    return on_rule(function, unit, entry, [&](const FieldEntry &rule) {
        const auto *const checks = find_in(rule.ranges, qualifier);
        if (checks == nullptr) return int{BCM_E_NOT_FOUND};
        const int there = static_cast<int>(checks->size());
        if (most < 0 || count == nullptr || (most > 0 && (range == nullptr || invert == nullptr)))
            return int{BCM_E_PARAM};
        *count = most == 0 ? there : std::min(most, there);
        int i = 0;
        for (auto one = checks->begin(); i < most && one != checks->end(); ++one, ++i) {
            range[i] = one->first;
            invert[i] = one->second;
        }
        return int{BCM_E_NONE};
    });
}

}  // namespace

extern "C" {

int bcm_field_range_create(int unit, bcm_field_range_t *range, uint32 flags, bcm_l4_port_t min,
                           bcm_l4_port_t max) {
    return create(__func__, unit, false, range, single(flags, min, max, 0));
}

int bcm_field_range_create_id(int unit, bcm_field_range_t range, uint32 flags, bcm_l4_port_t min,
                              bcm_l4_port_t max) {
    return create(__func__, unit, true, &range, single(flags, min, max, 0));
}

int bcm_field_range_group_create(int unit, bcm_field_range_t *range, uint32 flags,
                                 bcm_l4_port_t min, bcm_l4_port_t max, bcm_if_group_t if_group) {
    return create(__func__, unit, false, range, single(flags, min, max, if_group));
}

int bcm_field_range_group_create_id(int unit, bcm_field_range_t range, uint32 flags,
                                    bcm_l4_port_t min, bcm_l4_port_t max, bcm_if_group_t if_group) {
    return create(__func__, unit, true, &range, single(flags, min, max, if_group));
}

int bcm_field_range_multi_create(int unit, bcm_field_range_t *range_id, uint32 create_flags,
                                 int count, uint32 *range_flags, uint32 *min_value,
                                 uint32 *max_value) {
    if (!within(count, 1, kMostParts) || range_flags == nullptr || min_value == nullptr ||
        max_value == nullptr) {
        return refuse(__func__, unit);
    }
    FieldRange made;
    for (int i = 0; i < count; ++i)
        made.parts.push_back({range_flags[i], min_value[i], max_value[i]});
    return create(__func__, unit, (create_flags & kWithId) != 0, range_id, made);
}

// Of a range with several parts, the first.
int bcm_field_range_get(int unit, bcm_field_range_t range, uint32 *flags, bcm_l4_port_t *min,
                        bcm_l4_port_t *max) {
    return on_range(__func__, unit, range, [&](const FieldRange &one) {
        const Part &part = one.parts.front();
        if (flags == nullptr || min == nullptr || max == nullptr) return int{BCM_E_PARAM};
        *flags = part.flags;
        *min = static_cast<bcm_l4_port_t>(part.min);
        return give(max, part.max);
    });
}

int bcm_field_range_multi_get(int unit, bcm_field_range_t range_id, int max_count,
                              uint32 *range_flags, uint32 *min_value, uint32 *max_value,
                              int *count) {
    return on_range(__func__, unit, range_id, [&](const FieldRange &one) {
        const bool room = range_flags != nullptr && min_value != nullptr && max_value != nullptr;
        if (max_count < 0 || (max_count > 0 && !room)) return int{BCM_E_PARAM};
        const int there = static_cast<int>(one.parts.size());
        for (int i = 0; i < std::min(max_count, there); ++i) {
            const Part &part = one.parts[static_cast<std::size_t>(i)];
            range_flags[i] = part.flags;
            min_value[i] = part.min;
            max_value[i] = part.max;
        }
        return give(count, max_count == 0 ? there : std::min(max_count, there));
    });
}

int bcm_field_range_destroy(int unit, bcm_field_range_t range) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return erase_object(chip, ranges_of(chip), ObjectKind::kRange, range);
    });
}

#define RANGE_CHECK(setter, getter, qualifier)                                                   \
    int setter(int unit, bcm_field_entry_t entry, bcm_field_range_t range, int invert) {         \
        return test_range(__func__, unit, entry, qualifier, range, invert);                      \
    }                                                                                            \
    int getter(int unit, bcm_field_entry_t entry, int max_count, bcm_field_range_t *range,       \
               int *invert, int *count) {                                                        \
        return tested_ranges(__func__, unit, entry, qualifier, max_count, range, invert, count); \
    }
RANGE_CHECK(bcm_field_qualify_RangeCheck, bcm_field_qualify_RangeCheck_get,
            bcmFieldQualifyRangeCheck)
RANGE_CHECK(bcm_field_qualify_L4PortRangeCheck, bcm_field_qualify_L4PortRangeCheck_get,
            bcmFieldQualifyL4PortRangeCheck)
RANGE_CHECK(bcm_field_qualify_VPortRangeCheck, bcm_field_qualify_VPortRangeCheck_get,
            bcmFieldQualifyVPortRangeCheck)
RANGE_CHECK(bcm_field_qualify_PacketLengthRangeCheck, bcm_field_qualify_PacketLengthRangeCheck_get,
            bcmFieldQualifyPacketLengthRangeCheck)
#undef RANGE_CHECK

}  // extern "C"
