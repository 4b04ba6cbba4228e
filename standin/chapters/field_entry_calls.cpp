// The calls of the rule engine on entries and what is attached to them.
#include "sdk/bcm/field.h"
#include "standin/chapters/field_access.h"
#include "standin/model/loans.h"

using namespace standin;

namespace {

constexpr Numbering<bcm_field_entry_t> kNumbers{"field_entry", kFieldEntries, 1, 0x7fffffff};

int put(Switch &chip, bool given, bcm_field_entry_t *entry, const FieldEntry &rule) {
    int status = BCM_E_NONE;
    FieldEntry *const made = new_entry(entries_of(chip), kNumbers, given, entry, status);
    return made == nullptr ? status : assign(chip, object(ObjectKind::kRule, *entry), *made, rule);
}

int create(const char *function, int unit, bcm_field_group_t group, bool given,
           bcm_field_entry_t *entry) {
    return on_switch(function, unit, [&](Switch &chip) {
        FieldEntry rule;
        rule.group = group;
        return groups_of(chip).contains(group) ? put(chip, given, entry, rule) : missing(group);
    });
}

// The copy is not in the hardware.
int copy(const char *function, int unit, bcm_field_entry_t source, bool given,
         bcm_field_entry_t *target) {
    return on_switch(function, unit, [&](Switch &chip) {
        const FieldEntry *const from = find_in(entries_of(chip), source);
        if (from == nullptr) return missing(source);
        FieldEntry rule = *from;
        rule.installed = false;
        return put(chip, given, target, rule);
    });
}

int attach_stat(const char *function, int unit, bcm_field_entry_t entry, int stat_id,
                bcm_field_stat_action_t action) {
    return change_rule(function, unit, entry, [&](Switch &chip, FieldEntry &rule) {
        const FieldStat *const stat = find_in(stats_of(chip), stat_id);
        if (stat != nullptr && stat->group != rule.group)
            return refused(BCM_E_PARAM, "counter " + std::to_string(stat_id) + " is of group " +
                                            std::to_string(stat->group));
        if (rule.stat) return refused(BCM_E_EXISTS, "it has counter " + std::to_string(*rule.stat));
        rule.stat = stat_id;
        rule.stat_action = action;
        return int{BCM_E_NONE};
    });
}

int mark_installed(const char *function, int unit, bcm_field_entry_t entry, bool installed) {
    return on_rule(function, unit, entry, [&](FieldEntry &rule) {
        rule.installed = installed;
        return BCM_E_NONE;
    });
}

}  // namespace

extern "C" {

int bcm_field_entry_create(int unit, bcm_field_group_t group, bcm_field_entry_t *entry) {
    return create(__func__, unit, group, false, entry);
}

int bcm_field_entry_create_id(int unit, bcm_field_group_t group, bcm_field_entry_t entry) {
    return create(__func__, unit, group, true, &entry);
}

int bcm_field_entry_copy(int unit, bcm_field_entry_t src_entry, bcm_field_entry_t *dst_entry) {
    return copy(__func__, unit, src_entry, false, dst_entry);
}

int bcm_field_entry_copy_id(int unit, bcm_field_entry_t src_entry, bcm_field_entry_t dst_entry) {
    return copy(__func__, unit, src_entry, true, &dst_entry);
}

int bcm_field_entry_destroy(int unit, bcm_field_entry_t entry) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return erase_object(chip, entries_of(chip), ObjectKind::kRule, entry);
    });
}

int bcm_field_entry_destroy_all(int unit) {
    return on_switch(__func__, unit, [](Switch &chip) {
        return erase_objects(chip, entries_of(chip), ObjectKind::kRule);
    });
}

int bcm_field_entry_install(int unit, bcm_field_entry_t entry) {
    return mark_installed(__func__, unit, entry, true);
}

// Only what is in the hardware can be put there again.
int bcm_field_entry_reinstall(int unit, bcm_field_entry_t entry) {
    return on_rule(__func__, unit, entry, [](const FieldEntry &rule) {
        return rule.installed ? BCM_E_NONE : BCM_E_NOT_FOUND;
    });
}

int bcm_field_entry_remove(int unit, bcm_field_entry_t entry) {
    return mark_installed(__func__, unit, entry, false);
}

int bcm_field_entry_multi_get(int unit, bcm_field_group_t group, int entry_size,
                              bcm_field_entry_t *entry_array, int *entry_count) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (!groups_of(chip).contains(group)) return missing(group);
        return give_array(entries_in(chip, group), entry_size, entry_array, entry_count);
    });
}

int bcm_field_entry_enable_set(int unit, bcm_field_entry_t entry, int enable) {
    return on_rule(__func__, unit, entry, [&](FieldEntry &rule) {
        return within(enable, 0, 1) ? give(&rule.enable, enable) : BCM_E_PARAM;
    });
}

int bcm_field_entry_enable_get(int unit, bcm_field_entry_t entry, int *enable) {
    return on_rule(__func__, unit, entry,
                   [&](const FieldEntry &rule) { return give(enable, rule.enable); });
}

int bcm_field_entry_prio_set(int unit, bcm_field_entry_t entry, int prio) {
    return on_rule(__func__, unit, entry, [&](FieldEntry &rule) {
        return prio < BCM_FIELD_ENTRY_PRIO_LOWEST ? BCM_E_PARAM : give(&rule.priority, prio);
    });
}

int bcm_field_entry_prio_get(int unit, bcm_field_entry_t entry, int *prio) {
    return on_rule(__func__, unit, entry,
                   [&](const FieldEntry &rule) { return give(prio, rule.priority); });
}

int bcm_field_entry_stat_attach(int unit, bcm_field_entry_t entry, int stat_id) {
    return attach_stat(__func__, unit, entry, stat_id, {});
}

int bcm_field_entry_stat_extended_attach(int unit, bcm_field_entry_t entry, int stat_id,
                                         bcm_field_stat_action_t action) {
    return attach_stat(__func__, unit, entry, stat_id, action);
}

int bcm_field_entry_stat_get(int unit, bcm_field_entry_t entry, int *stat_id) {
    return on_rule(__func__, unit, entry, [&](const FieldEntry &rule) {
        return rule.stat ? give(stat_id, *rule.stat) : BCM_E_NOT_FOUND;
    });
}

int bcm_field_entry_stat_extended_get(int unit, bcm_field_entry_t entry, int *stat_id,
                                      bcm_field_stat_action_t *action) {
    return on_rule(__func__, unit, entry, [&](const FieldEntry &rule) {
        if (!rule.stat) return BCM_E_NOT_FOUND;
        if (stat_id == nullptr) return BCM_E_PARAM;
        *stat_id = *rule.stat;
        return give(action, rule.stat_action);
    });
}

int bcm_field_entry_stat_detach(int unit, bcm_field_entry_t entry, int stat_id) {
    return change_rule(__func__, unit, entry, [&](Switch &, FieldEntry &rule) {
        if (rule.stat != stat_id) return missing(stat_id);
        rule.stat.reset();
        return int{BCM_E_NONE};
    });
}

int bcm_field_entry_policer_attach(int unit, bcm_field_entry_t entry_id, int level,
                                   bcm_policer_t policer_id) {
    return change_rule(__func__, unit, entry_id, [&](Switch &chip, FieldEntry &rule) {
        if (!chip.groups.policers.contains(policer_id)) return missing(policer_id);
        if (level < 0) return BCM_E_PARAM;
        return rule.policers.emplace(level, policer_id).second ? BCM_E_NONE : BCM_E_EXISTS;
    });
}

int bcm_field_entry_policer_get(int unit, bcm_field_entry_t entry_id, int level,
                                bcm_policer_t *policer_id) {
    return on_rule(__func__, unit, entry_id, [&](const FieldEntry &rule) {
        const bcm_policer_t *const policer = find_in(rule.policers, level);
        return policer == nullptr ? BCM_E_NOT_FOUND : give(policer_id, *policer);
    });
}

int bcm_field_entry_policer_detach(int unit, bcm_field_entry_t entry_id, int level) {
    return change_rule(__func__, unit, entry_id, [&](Switch &, FieldEntry &rule) {
        return rule.policers.erase(level) == 0 ? missing(level) : BCM_E_NONE;
    });
}

int bcm_field_entry_policer_detach_all(int unit, bcm_field_entry_t entry_id) {
    return change_rule(__func__, unit, entry_id, [](Switch &, FieldEntry &rule) {
        rule.policers.clear();
        return BCM_E_NONE;
    });
}

}  // extern "C"
