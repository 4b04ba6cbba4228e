// The calls of the rule engine on the actions of an entry.
#include <algorithm>

#include "sdk/bcm/field.h"
#include "standin/chapters/field_access.h"

using namespace standin;

namespace {

// An empty action set of a group allows every action.
bool allowed(const FieldGroup &group, int action) {
    const auto &words = group.actions.w;
    const bool empty = std::ranges::all_of(words, [](SHR_BITDCL word) { return word == 0; });
    return empty || in_set(words, action);
}

int add(const char *function, int unit, bcm_field_entry_t entry, bcm_field_action_t action,
        const FieldAction &made) {
    return change_rule(function, unit, entry, [&](Switch &chip, FieldEntry &rule) {
        if (!within<int>(action, 0, bcmFieldActionCount - 1)) return BCM_E_PARAM;
        if (!allowed(groups_of(chip)[rule.group], action)) return BCM_E_PARAM;
        return rule.actions.emplace(action, made).second ? BCM_E_NONE : BCM_E_EXISTS;
    });
}

template <class Body>
int on_action(const char *function, int unit, bcm_field_entry_t entry, bcm_field_action_t action,
              Body &&body) {
    return on_rule(function, unit, entry, [&](const FieldEntry &rule) {
        const FieldAction *const found = find_in(rule.actions, action);
        return found == nullptr ? BCM_E_NOT_FOUND : body(*found);
    });
}

}  // namespace

extern "C" {

int bcm_field_action_add(int unit, bcm_field_entry_t entry, bcm_field_action_t action,
                         uint32 param0, uint32 param1) {
    return add(__func__, unit, entry, action, {param0, param1, {}, {}});
}

int bcm_field_action_get(int unit, bcm_field_entry_t entry, bcm_field_action_t action,
                         uint32 *param0, uint32 *param1) {
    return on_action(__func__, unit, entry, action, [&](const FieldAction &one) {
        if (param0 == nullptr) return BCM_E_PARAM;
        *param0 = one.param0;
        return give(param1, one.param1);
    });
}

int bcm_field_action_mac_add(int unit, bcm_field_entry_t entry, bcm_field_action_t action,
                             bcm_mac_t mac) {
    if (mac == nullptr) return refuse(__func__, unit);
    FieldAction made;
    std::copy_n(mac, 6, made.mac.emplace().begin());
    return add(__func__, unit, entry, action, made);
}

int bcm_field_action_mac_get(int unit, bcm_field_entry_t entry, bcm_field_action_t action,
                             bcm_mac_t *mac) {
    return on_action(__func__, unit, entry, action, [&](const FieldAction &one) {
        if (!one.mac) return BCM_E_NOT_FOUND;
        if (mac == nullptr) return BCM_E_PARAM;
        std::copy(one.mac->begin(), one.mac->end(), *mac);
        return BCM_E_NONE;
    });
}

int bcm_field_action_ports_add(int unit, bcm_field_entry_t entry, bcm_field_action_t action,
                               bcm_pbmp_t pbmp) {
    return add(__func__, unit, entry, action, {0, 0, {}, pbmp});
}

int bcm_field_action_ports_get(int unit, bcm_field_entry_t entry, bcm_field_action_t action,
                               bcm_pbmp_t *pbmp) {
    return on_action(__func__, unit, entry, action, [&](const FieldAction &one) {
        return one.ports ? give(pbmp, *one.ports) : BCM_E_NOT_FOUND;
    });
}

int bcm_field_action_remove(int unit, bcm_field_entry_t entry, bcm_field_action_t action) {
    return change_rule(__func__, unit, entry, [&](Switch &, FieldEntry &rule) {
        return rule.actions.erase(action) == 0 ? BCM_E_NOT_FOUND : BCM_E_NONE;
    });
}

// Only an action with these parameters.
int bcm_field_action_delete(int unit, bcm_field_entry_t entry, bcm_field_action_t action,
                            uint32 param0, uint32 param1) {
    return change_rule(__func__, unit, entry, [&](Switch &, FieldEntry &rule) {
        const FieldAction *const one = find_in(rule.actions, action);
        if (one == nullptr || one->param0 != param0 || one->param1 != param1)
            return BCM_E_NOT_FOUND;
        rule.actions.erase(action);
        return BCM_E_NONE;
    });
}

int bcm_field_action_remove_all(int unit, bcm_field_entry_t entry) {
    return change_rule(__func__, unit, entry, [](Switch &, FieldEntry &rule) {
        rule.actions.clear();
        return BCM_E_NONE;
    });
}

}  // extern "C"
