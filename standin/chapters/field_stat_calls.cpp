// The calls of the rule engine on counters.
#include "sdk/bcm/field.h"
#include "standin/chapters/field_access.h"
#include "standin/chapters/hooks.h"
#include "standin/model/loans.h"

using namespace standin;

namespace {

constexpr Numbering<int> kNumbers{"field_stat", kFieldStats, 1, 0x7fffffff};

int create(const char *function, int unit, bcm_field_group_t group, int count,
           const bcm_field_stat_t *kinds, bool given, int *id) {
    return on_switch(function, unit, [&](Switch &chip) {
        if (!groups_of(chip).contains(group)) return missing(group);
        if (count < 1 || kinds == nullptr) return BCM_E_PARAM;
        for (int i = 0; i < count; ++i)
            if (!within<int>(kinds[i], 0, bcmFieldStatCount - 1)) return BCM_E_PARAM;
        int status = BCM_E_NONE;
        FieldStat *const made = new_entry(stats_of(chip), kNumbers, given, id, status);
        if (made == nullptr) return status;
        FieldStat counter;
        counter.group = group;
        counter.kinds.assign(kinds, kinds + count);
        for (int i = 0; i < count; ++i) counter.values[kinds[i]] = 0;
        return assign(chip, object(ObjectKind::kCounter, *id), *made, std::move(counter));
    });
}

// The value of a kind that the counter was made with; null for another.
template <class Body>
int on_value(const char *function, int unit, int stat_id, bcm_field_stat_t stat, Body &&body) {
    return on_entry(function, unit, stats_of, stat_id, [&](FieldStat &one) {
        std::uint64_t *const value = find_in(one.values, stat);
        return value == nullptr ? BCM_E_NOT_FOUND : body(*value);
    });
}

template <class T>
int get(const char *function, int unit, int stat_id, bcm_field_stat_t stat, T *value) {
    return on_value(function, unit, stat_id, stat,
                    [&](std::uint64_t &one) { return give(value, one); });
}

template <class T>
int multi_get(const char *function, int unit, int stat_id, int count, const bcm_field_stat_t *kinds,
              T *values) {
    return on_entry(function, unit, stats_of, stat_id, [&](const FieldStat &one) {
        if (count < 1 || kinds == nullptr || values == nullptr) return BCM_E_PARAM;
        for (int i = 0; i < count; ++i) {
            const std::uint64_t *const value = find_in(one.values, kinds[i]);
            if (value == nullptr) return BCM_E_NOT_FOUND;
            values[i] = static_cast<T>(*value);
        }
        return BCM_E_NONE;
    });
}

int set(const char *function, int unit, int stat_id, bcm_field_stat_t stat, std::uint64_t value) {
    return on_value(function, unit, stat_id, stat,
                    [&](std::uint64_t &one) { return give(&one, value); });
}

int set_all(const char *function, int unit, int stat_id, std::uint64_t value) {
    return on_entry(function, unit, stats_of, stat_id, [&](FieldStat &one) {
        for (auto &[kind, its_value] : one.values) its_value = value;
        return BCM_E_NONE;
    });
}

}  // namespace

extern "C" {

int bcm_field_stat_create(int unit, bcm_field_group_t group, int nstat, bcm_field_stat_t *stat_arr,
                          int *stat_id) {
    return create(__func__, unit, group, nstat, stat_arr, false, stat_id);
}

int bcm_field_stat_create_id(int unit, bcm_field_group_t group, int nstat,
                             bcm_field_stat_t *stat_arr, int stat_id) {
    return create(__func__, unit, group, nstat, stat_arr, true, &stat_id);
}

int bcm_field_stat_destroy(int unit, int stat_id) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return erase_object(chip, stats_of(chip), ObjectKind::kCounter, stat_id);
    });
}

int bcm_field_stat_size(int unit, int stat_id, int *stat_size) {
    return on_entry(__func__, unit, stats_of, stat_id,
                    [&](const FieldStat &one) { return give(stat_size, one.kinds.size()); });
}

int bcm_field_stat_config_get(int unit, int stat_id, int nstat, bcm_field_stat_t *stat_arr) {
    return on_entry(__func__, unit, stats_of, stat_id, [&](const FieldStat &one) {
        int count = 0;
        return nstat < 1 ? BCM_E_PARAM : give_array(one.kinds, nstat, stat_arr, &count);
    });
}

int bcm_field_stat_get(int unit, int stat_id, bcm_field_stat_t stat, uint64 *value) {
    return get(__func__, unit, stat_id, stat, value);
}

int bcm_field_stat_get32(int unit, int stat_id, bcm_field_stat_t stat, uint32 *value) {
    return get(__func__, unit, stat_id, stat, value);
}

int bcm_field_stat_sync_get(int unit, int stat_id, bcm_field_stat_t stat, uint64 *value) {
    return get(__func__, unit, stat_id, stat, value);
}

int bcm_field_stat_sync_get32(int unit, int stat_id, bcm_field_stat_t stat, uint32 *value) {
    return get(__func__, unit, stat_id, stat, value);
}

int bcm_field_stat_multi_get(int unit, int stat_id, int nstat, bcm_field_stat_t *stat_arr,
                             uint64 *value_arr) {
    return multi_get(__func__, unit, stat_id, nstat, stat_arr, value_arr);
}

int bcm_field_stat_multi_get32(int unit, int stat_id, int nstat, bcm_field_stat_t *stat_arr,
                               uint32 *value_arr) {
    return multi_get(__func__, unit, stat_id, nstat, stat_arr, value_arr);
}

int bcm_field_stat_set(int unit, int stat_id, bcm_field_stat_t stat, uint64 value) {
    return set(__func__, unit, stat_id, stat, value);
}

int bcm_field_stat_set32(int unit, int stat_id, bcm_field_stat_t stat, uint32 value) {
    return set(__func__, unit, stat_id, stat, value);
}

int bcm_field_stat_all_set(int unit, int stat_id, uint64 value) {
    return set_all(__func__, unit, stat_id, value);
}

int bcm_field_stat_all_set32(int unit, int stat_id, uint32 value) {
    return set_all(__func__, unit, stat_id, value);
}

// The kinds of bytes and packets stand in turns: even ones count bytes.
int standin_field_stat_hit(int unit, int stat_id, unsigned packets, unsigned long long bytes) {
    return on_entry(__func__, unit, stats_of, stat_id, [&](FieldStat &one) {
        for (auto &[kind, value] : one.values) value += kind % 2 == 0 ? bytes : packets;
        return BCM_E_NONE;
    });
}

}  // extern "C"
