// The calls of the rule engine on groups.
#include "sdk/bcm/field.h"
#include "standin/chapters/field_access.h"

using namespace standin;

namespace {

constexpr Numbering<bcm_field_group_t> kNumbers{"field_group", kFieldGroups, 1, 0x7fffffff};
constexpr auto kNoMode = static_cast<bcm_field_group_mode_t>(0);

// What the many create calls have in common.
struct Wanted {
    const bcm_field_qset_t &qualifiers;
    int priority;
    bcm_field_group_mode_t mode;
    bcm_pbmp_t ports;
};

int create(Switch &chip, bool given, bcm_field_group_t *group, const Wanted &wanted) {
    if (wanted.priority < 0 && wanted.priority != BCM_FIELD_GROUP_PRIO_ANY) return BCM_E_PARAM;
    if (!is_subset(wanted.ports, kAllPorts)) return refused_ports(wanted.ports);
    int status = BCM_E_NONE;
    FieldGroup *const made = new_entry(groups_of(chip), kNumbers, given, group, status);
    if (made == nullptr) return status;
    made->qualifiers = wanted.qualifiers;
    made->priority = wanted.priority;
    made->mode = wanted.mode;
    made->ports = wanted.ports;
    return BCM_E_NONE;
}

int create_on_ports(const char *function, int unit, bool given, bcm_field_group_t *group,
                    const Wanted &wanted) {
    return on_switch(function, unit,
                     [&](Switch &chip) { return create(chip, given, group, wanted); });
}

int create_on_port(const char *function, int unit, bool given, bcm_field_group_t *group,
                   bcm_port_t port, Wanted wanted) {
    return on_switch(function, unit, [&](Switch &chip) {
        const int number = local_port(port);
        if (number < 0) return refused_port("port", port);
        wanted.ports = port_range(number, number);
        return create(chip, given, group, wanted);
    });
}

int clear_engine(const char *function, int unit) {
    return start_chapter(function, unit, "bcm_field_", [](Switch &chip) {
        const int status = erase_objects(chip, entries_of(chip), ObjectKind::kRule);
        if (status != BCM_E_NONE) return status;
        ranges_of(chip).clear();
        erase_objects(chip, stats_of(chip), ObjectKind::kCounter);
        return erase_objects(chip, groups_of(chip), ObjectKind::kGroup);
    });
}

// Installs all entries of the group, or takes all out of the hardware.
int mark_installed(const char *function, int unit, bcm_field_group_t group, bool installed) {
    return on_switch(function, unit, [&](Switch &chip) {
        if (!groups_of(chip).contains(group)) return missing(group);
        for (const bcm_field_entry_t id : entries_in(chip, group))
            entries_of(chip)[id].installed = installed;
        return BCM_E_NONE;
    });
}

int status_of(Switch &chip, bcm_field_group_t group, bcm_field_group_status_t *status) {
    bcm_field_group_status_t made{};
    made.prio_max = 0x7fffffff;
    made.entries_total = static_cast<int>(kFieldEntries);
    made.entries_free = static_cast<int>(kFieldEntries - entries_of(chip).size());
    made.counters_total = static_cast<int>(kFieldStats);
    made.counters_free = static_cast<int>(kFieldStats - stats_of(chip).size());
    made.meters_total = static_cast<int>(kPolicers);
    made.meters_free = static_cast<int>(kPolicers - chip.groups.policers.size());
    for (const bcm_field_entry_t id : entries_in(chip, group)) {
        const FieldEntry &entry = entries_of(chip)[id];
        ++made.entry_count;
        made.counter_count += entry.stat ? 1 : 0;
        made.meter_count += static_cast<int>(entry.policers.size());
    }
    return give(status, made);
}

}  // namespace

extern "C" {

int bcm_field_init(int unit) { return clear_engine(__func__, unit); }
int bcm_field_detach(int unit) { return clear_engine(__func__, unit); }

int bcm_field_group_create(int unit, bcm_field_qset_t qset, int pri, bcm_field_group_t *group) {
    return create_on_ports(__func__, unit, false, group, {qset, pri, kNoMode, kAllPorts});
}

int bcm_field_group_create_id(int unit, bcm_field_qset_t qset, int pri, bcm_field_group_t group) {
    return create_on_ports(__func__, unit, true, &group, {qset, pri, kNoMode, kAllPorts});
}

int bcm_field_group_create_mode(int unit, bcm_field_qset_t qset, int pri,
                                bcm_field_group_mode_t mode, bcm_field_group_t *group) {
    return create_on_ports(__func__, unit, false, group, {qset, pri, mode, kAllPorts});
}

int bcm_field_group_create_mode_id(int unit, bcm_field_qset_t qset, int pri,
                                   bcm_field_group_mode_t mode, bcm_field_group_t group) {
    return create_on_ports(__func__, unit, true, &group, {qset, pri, mode, kAllPorts});
}

int bcm_field_group_wlan_create_mode(int unit, bcm_field_qset_t qset, int pri,
                                     bcm_field_group_mode_t mode, bcm_field_group_t *group) {
    return create_on_ports(__func__, unit, false, group, {qset, pri, mode, {}});
}

int bcm_field_group_wlan_create_mode_id(int unit, bcm_field_qset_t qset, int pri,
                                        bcm_field_group_mode_t mode, bcm_field_group_t group) {
    return create_on_ports(__func__, unit, true, &group, {qset, pri, mode, {}});
}

int bcm_field_group_ports_create_mode(int unit, bcm_pbmp_t pbmp, bcm_field_qset_t qset, int pri,
                                      bcm_field_group_mode_t mode, bcm_field_group_t *group) {
    return create_on_ports(__func__, unit, false, group, {qset, pri, mode, pbmp});
}

int bcm_field_group_ports_create_mode_id(int unit, bcm_pbmp_t pbmp, bcm_field_qset_t qset, int pri,
                                         bcm_field_group_mode_t mode, bcm_field_group_t group) {
    return create_on_ports(__func__, unit, true, &group, {qset, pri, mode, pbmp});
}

int bcm_field_group_port_create_mode(int unit, bcm_port_t port, bcm_field_qset_t qset, int pri,
                                     bcm_field_group_mode_t mode, bcm_field_group_t *group) {
    return create_on_port(__func__, unit, false, group, port, {qset, pri, mode, {}});
}

int bcm_field_group_port_create_mode_id(int unit, bcm_port_t port, bcm_field_qset_t qset, int pri,
                                        bcm_field_group_mode_t mode, bcm_field_group_t group) {
    return create_on_port(__func__, unit, true, &group, port, {qset, pri, mode, {}});
}

// The id goes into the caller's structure, or comes from it; no ports mean all.
int bcm_field_group_config_create(int unit, bcm_field_group_config_t *group_config) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (group_config == nullptr) return BCM_E_PARAM;
        const bool given = (group_config->flags & kWithId) != 0;
        const bool some_ports = any_common(group_config->ports, kAllPorts);
        const int status = create(chip, given, &group_config->group,
                                  {group_config->qset, group_config->priority, group_config->mode,
                                   some_ports ? group_config->ports : kAllPorts});
        if (status != BCM_E_NONE) return status;
        groups_of(chip)[group_config->group].actions = group_config->aset;
        groups_of(chip)[group_config->group].presels = group_config->preselset;
        return BCM_E_NONE;
    });
}

// A group with entries or counters stays.
int bcm_field_group_destroy(int unit, bcm_field_group_t group) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return erase_object(chip, groups_of(chip), ObjectKind::kGroup, group);
    });
}

int bcm_field_group_flush(int unit, bcm_field_group_t group) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (!groups_of(chip).contains(group)) return missing(group);
        for (const bcm_field_entry_t id : entries_in(chip, group))
            erase_object(chip, entries_of(chip), ObjectKind::kRule, id);
        return BCM_E_NONE;
    });
}

int bcm_field_group_install(int unit, bcm_field_group_t group) {
    return mark_installed(__func__, unit, group, true);
}

int bcm_field_group_remove(int unit, bcm_field_group_t group) {
    return mark_installed(__func__, unit, group, false);
}

int bcm_field_group_traverse(int unit, bcm_field_group_traverse_cb callback, void *user_data) {
    if (callback == nullptr) return refuse(__func__, unit);
    return walk(__func__, unit, groups_of, [&](bcm_field_group_t group, const FieldGroup &) {
        return callback(unit, group, user_data);
    });
}

// Only while the group is empty: entries may have qualifiers that the new set lacks.
int bcm_field_group_set(int unit, bcm_field_group_t group, bcm_field_qset_t qset) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        FieldGroup *const one = find_in(groups_of(chip), group);
        if (one == nullptr) return missing(group);
        if (const auto held = entries_in(chip, group); !held.empty())
            return refused(BCM_E_BUSY, "it has " + std::to_string(held.size()) + " rules");
        one->qualifiers = qset;
        return BCM_E_NONE;
    });
}

int bcm_field_group_get(int unit, bcm_field_group_t group, bcm_field_qset_t *qset) {
    return on_group(__func__, unit, group,
                    [&](const FieldGroup &one) { return give(qset, one.qualifiers); });
}

int bcm_field_group_action_set(int unit, bcm_field_group_t group, bcm_field_aset_t aset) {
    return on_group(__func__, unit, group,
                    [&](FieldGroup &one) { return give(&one.actions, aset); });
}

int bcm_field_group_action_get(int unit, bcm_field_group_t group, bcm_field_aset_t *aset) {
    return on_group(__func__, unit, group,
                    [&](const FieldGroup &one) { return give(aset, one.actions); });
}

int bcm_field_group_enable_set(int unit, bcm_field_group_t group, int enable) {
    return on_group(__func__, unit, group, [&](FieldGroup &one) {
        return within(enable, 0, 1) ? give(&one.enable, enable) : BCM_E_PARAM;
    });
}

int bcm_field_group_enable_get(int unit, bcm_field_group_t group, int *enable) {
    return on_group(__func__, unit, group,
                    [&](const FieldGroup &one) { return give(enable, one.enable); });
}

int bcm_field_group_priority_set(int unit, bcm_field_group_t group, int priority) {
    return on_group(__func__, unit, group, [&](FieldGroup &one) {
        return priority < 0 ? BCM_E_PARAM : give(&one.priority, priority);
    });
}

int bcm_field_group_priority_get(int unit, bcm_field_group_t group, int *priority) {
    return on_group(__func__, unit, group,
                    [&](const FieldGroup &one) { return give(priority, one.priority); });
}

int bcm_field_group_mode_get(int unit, bcm_field_group_t group, bcm_field_group_mode_t *mode) {
    return on_group(__func__, unit, group,
                    [&](const FieldGroup &one) { return give(mode, one.mode); });
}

int bcm_field_group_presel_set(int unit, bcm_field_group_t group, bcm_field_presel_set_t *presel) {
    return on_group(__func__, unit, group, [&](FieldGroup &one) {
        return presel == nullptr ? BCM_E_PARAM : give(&one.presels, *presel);
    });
}

int bcm_field_group_presel_get(int unit, bcm_field_group_t group, bcm_field_presel_set_t *presel) {
    return on_group(__func__, unit, group,
                    [&](const FieldGroup &one) { return give(presel, one.presels); });
}

int bcm_field_group_ports_add(int unit, bcm_field_group_t group, bcm_pbmp_t pbmp) {
    return on_group(__func__, unit, group, [&](FieldGroup &one) {
        if (!is_subset(pbmp, kAllPorts)) return refused_ports(pbmp);
        add_ports(one.ports, pbmp);
        return BCM_E_NONE;
    });
}

int bcm_field_group_ports_remove(int unit, bcm_field_group_t group, bcm_pbmp_t pbmp) {
    return on_group(__func__, unit, group, [&](FieldGroup &one) {
        if (!is_subset(pbmp, kAllPorts)) return refused_ports(pbmp);
        remove_ports(one.ports, pbmp);
        return BCM_E_NONE;
    });
}

int bcm_field_group_ports_get(int unit, bcm_field_group_t group, bcm_pbmp_t *pbmp) {
    return on_group(__func__, unit, group,
                    [&](const FieldGroup &one) { return give(pbmp, one.ports); });
}

int bcm_field_group_status_get(int unit, bcm_field_group_t group,
                               bcm_field_group_status_t *status) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return groups_of(chip).contains(group) ? status_of(chip, group, status) : BCM_E_NOT_FOUND;
    });
}

}  // extern "C"
