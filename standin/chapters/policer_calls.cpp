// The calls of the policer chapter on single policers.
#include "sdk/bcm/policer.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

constexpr Numbering<bcm_policer_t> kNumbers{"policer", kPolicers, 1, static_cast<int>(kPolicers)};

auto &policers_of(Switch &chip) { return chip.groups.policers; }

int clear_policers(const char *function, int unit) {
    return start_chapter(function, unit, "bcm_policer_", [](Switch &chip) {
        return erase_objects(chip, policers_of(chip), ObjectKind::kPolicer);
    });
}

}  // namespace

extern "C" {

int bcm_policer_init(int unit) { return clear_policers(__func__, unit); }
int bcm_policer_destroy_all(int unit) { return clear_policers(__func__, unit); }

int bcm_policer_create(int unit, bcm_policer_config_t *pol_cfg, bcm_policer_t *policer_id) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (pol_cfg == nullptr) return BCM_E_PARAM;
        int status = BCM_E_NONE;
        const bool given = (pol_cfg->flags & kWithId) != 0;
        Policer *const made = new_entry(policers_of(chip), kNumbers, given, policer_id, status);
        if (made != nullptr) made->config = *pol_cfg;
        return status;
    });
}

int bcm_policer_set(int unit, bcm_policer_t policer_id, bcm_policer_config_t *pol_cfg) {
    return on_entry(__func__, unit, policers_of, policer_id, [&](Policer &one) {
        return pol_cfg == nullptr ? BCM_E_PARAM : give(&one.config, *pol_cfg);
    });
}

int bcm_policer_get(int unit, bcm_policer_t policer_id, bcm_policer_config_t *pol_cfg) {
    return on_entry(__func__, unit, policers_of, policer_id,
                    [&](const Policer &one) { return give(pol_cfg, one.config); });
}

int bcm_policer_destroy(int unit, bcm_policer_t policer_id) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return erase_object(chip, policers_of(chip), ObjectKind::kPolicer, policer_id);
    });
}

int bcm_policer_traverse(int unit, bcm_policer_traverse_cb cb, void *user_data) {
    if (cb == nullptr) return refuse(__func__, unit);
    return walk(__func__, unit, policers_of, [&](bcm_policer_t id, Policer &one) {
        return cb(unit, id, &one.config, user_data);
    });
}

}  // extern "C"
