// The calls that read and write the settings of one port.
#include <algorithm>
#include <cstring>

#include "sdk/bcm/port.h"
#include "standin/chapters/port_access.h"

using namespace standin;

namespace {

constexpr int kMost = 0x7fffffff;

}  // namespace

extern "C" {

// A pair of calls over one whole-number field with the bounds of its values.
#define PORT_PAIR(setter, getter, field, low, high)                                            \
    int setter(int unit, bcm_port_t port, int value) {                                         \
        return set_port_field(__func__, unit, port, &Port::field, value, int{low}, int{high}); \
    }                                                                                          \
    int getter(int unit, bcm_port_t port, int *value) {                                        \
        return get_port_field(__func__, unit, port, &Port::field, value);                      \
    }

PORT_PAIR(bcm_port_enable_set, bcm_port_enable_get, enable, 0, 1)
PORT_PAIR(bcm_port_autoneg_set, bcm_port_autoneg_get, autoneg, 0, 1)
PORT_PAIR(bcm_port_duplex_set, bcm_port_duplex_get, duplex, 0, 1)
PORT_PAIR(bcm_port_frame_max_set, bcm_port_frame_max_get, frame_max, kSmallestFrame, kLargestFrame)
PORT_PAIR(bcm_port_loopback_set, bcm_port_loopback_get, loopback, BCM_PORT_LOOPBACK_NONE,
          BCM_PORT_LOOPBACK_COUNT - 1)
PORT_PAIR(bcm_port_discard_set, bcm_port_discard_get, discard, BCM_PORT_DISCARD_NONE,
          BCM_PORT_DISCARD_COUNT - 1)
PORT_PAIR(bcm_port_ifilter_set, bcm_port_ifilter_get, ifilter, 0, 1)
PORT_PAIR(bcm_port_bpdu_enable_set, bcm_port_bpdu_enable_get, bpdu_enable, 0, 1)
PORT_PAIR(bcm_port_l3_enable_set, bcm_port_l3_enable_get, l3_enable, 0, 1)
PORT_PAIR(bcm_port_master_set, bcm_port_master_get, master, 0, kMost)
PORT_PAIR(bcm_port_jam_set, bcm_port_jam_get, jam, 0, 1)
PORT_PAIR(bcm_port_pfm_set, bcm_port_pfm_get, pfm, 0, 3)
PORT_PAIR(bcm_port_untagged_priority_set, bcm_port_untagged_priority_get, untagged_priority, -1, 7)
#undef PORT_PAIR

int bcm_port_speed_set(int unit, bcm_port_t port, int speed) {
    return on_port(__func__, unit, port, [&](Port &one) {
        if (speed == 0) speed = one.speed_max;
        if (!can_run_at(one, speed)) return BCM_E_CONFIG;
        one.speed = speed;
        return BCM_E_NONE;
    });
}

int bcm_port_speed_get(int unit, bcm_port_t port, int *speed) {
    return get_port_field(__func__, unit, port, &Port::speed, speed);
}

int bcm_port_speed_max(int unit, bcm_port_t port, int *speed) {
    return get_port_field(__func__, unit, port, &Port::speed_max, speed);
}

int bcm_port_learn_set(int unit, bcm_port_t port, uint32 flags) {
    return set_port_field(__func__, unit, port, &Port::learn, flags, 0u, ~0u);
}

int bcm_port_learn_get(int unit, bcm_port_t port, uint32 *flags) {
    return get_port_field(__func__, unit, port, &Port::learn, flags);
}

int bcm_port_learn_modify(int unit, bcm_port_t port, uint32 add, uint32 remove) {
    return on_port(__func__, unit, port, [&](Port &one) {
        one.learn = (one.learn | add) & ~remove;
        return BCM_E_NONE;
    });
}

int bcm_port_link_status_get(int unit, bcm_port_t port, int *status) {
    return on_port(__func__, unit, port, [&](const Port &one) { return give(status, one.link()); });
}

int bcm_port_link_state_get(int unit, bcm_port_t port, uint32 flags, bcm_port_link_state_t *state) {
    return on_port(__func__, unit, port, [&](const Port &one) {
        if (flags != 0) return BCM_E_PARAM;
        return give(state, bcm_port_link_state_t{one.link(), one.link_failed ? 1 : 0});
    });
}

int bcm_port_link_failed_clear(int unit, bcm_port_t port) {
    return on_port(__func__, unit, port, [](Port &one) {
        one.link_failed = false;
        return BCM_E_NONE;
    });
}

int bcm_port_untagged_vlan_set(int unit, bcm_port_t port, bcm_vlan_t vid) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        Port *const one = chip.ports.find(port);
        if (one == nullptr) return refused_port("port", port);
        if (!is_vlan(vid)) return BCM_E_PARAM;
        return change(chip, object(ObjectKind::kPort, local_port(port)), *one,
                      [&](Port &made) { return give(&made.untagged_vlan, vid); });
    });
}

int bcm_port_untagged_vlan_get(int unit, bcm_port_t port, bcm_vlan_t *vid_ptr) {
    return get_port_field(__func__, unit, port, &Port::untagged_vlan, vid_ptr);
}

int bcm_port_pause_set(int unit, bcm_port_t port, int pause_tx, int pause_rx) {
    return on_port(__func__, unit, port, [&](Port &one) {
        if (!within(pause_tx, 0, 1) || !within(pause_rx, 0, 1)) return BCM_E_PARAM;
        one.pause_tx = pause_tx;
        one.pause_rx = pause_rx;
        return BCM_E_NONE;
    });
}

int bcm_port_pause_get(int unit, bcm_port_t port, int *pause_tx, int *pause_rx) {
    return on_port(__func__, unit, port, [&](const Port &one) {
        if (pause_tx == nullptr || pause_rx == nullptr) return BCM_E_PARAM;
        *pause_tx = one.pause_tx;
        *pause_rx = one.pause_rx;
        return BCM_E_NONE;
    });
}

int bcm_port_pause_sym_set(int unit, bcm_port_t port, int pause) {
    return on_port(__func__, unit, port, [&](Port &one) {
        if (!within(pause, BCM_PORT_PAUSE_NONE, BCM_PORT_PAUSE_SYM)) return BCM_E_PARAM;
        one.pause_rx = (pause & BCM_PORT_PAUSE_ASYM_RX) != 0;
        one.pause_tx = (pause & BCM_PORT_PAUSE_ASYM_TX) != 0;
        return BCM_E_NONE;
    });
}

int bcm_port_pause_sym_get(int unit, bcm_port_t port, int *pause) {
    return on_port(__func__, unit, port, [&](const Port &one) {
        return give(pause, (one.pause_rx != 0 ? BCM_PORT_PAUSE_ASYM_RX : 0) |
                               (one.pause_tx != 0 ? BCM_PORT_PAUSE_ASYM_TX : 0));
    });
}

int bcm_port_pause_addr_set(int unit, bcm_port_t port, bcm_mac_t mac) {
    return on_port(__func__, unit, port, [&](Port &one) {
        if (mac == nullptr) return BCM_E_PARAM;
        std::copy_n(mac, one.pause_address.size(), one.pause_address.begin());
        return BCM_E_NONE;
    });
}

int bcm_port_pause_addr_get(int unit, bcm_port_t port, bcm_mac_t mac) {
    return on_port(__func__, unit, port, [&](const Port &one) {
        if (mac == nullptr) return BCM_E_PARAM;
        std::ranges::copy(one.pause_address, mac);
        return BCM_E_NONE;
    });
}

int bcm_port_control_set(int unit, bcm_port_t port, bcm_port_control_t type, int value) {
    return on_port(__func__, unit, port, [&](Port &one) {
        if (type < 0) return BCM_E_PARAM;
        one.controls[type] = value;
        return BCM_E_NONE;
    });
}

int bcm_port_control_get(int unit, bcm_port_t port, bcm_port_control_t type, int *value) {
    return on_port(__func__, unit, port, [&](const Port &one) {
        if (type < 0) return BCM_E_PARAM;
        const auto found = one.controls.find(type);
        return give(value, found == one.controls.end() ? 0 : found->second);
    });
}

int bcm_port_ability_advert_set(int unit, bcm_port_t port, bcm_port_ability_t *ability_mask) {
    return on_port(__func__, unit, port, [&](Port &one) {
        return ability_mask == nullptr ? BCM_E_PARAM : give(&one.advertised, *ability_mask);
    });
}

int bcm_port_ability_advert_get(int unit, bcm_port_t port, bcm_port_ability_t *ability_mask) {
    return get_port_field(__func__, unit, port, &Port::advertised, ability_mask);
}

// Also sets the state in every spanning tree group that there is.
int bcm_port_stp_set(int unit, bcm_port_t port, int stp_state) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        const int number = local_port(port);
        if (number < 0) return refused_port("port", port);
        if (!within(stp_state, 0, BCM_STG_STP_COUNT - 1)) return BCM_E_PARAM;
        for (auto &[id, stg] : chip.vlans.stgs)
            stg.state[static_cast<std::size_t>(number)] = stp_state;
        return BCM_E_NONE;
    });
}

int bcm_port_stp_get(int unit, bcm_port_t port, int *stp_state) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        const int number = local_port(port);
        if (number < 0) return refused_port("port", port);
        const Stg &stg = chip.vlans.stgs.at(chip.vlans.default_stg);
        return give(stp_state, stg.state[static_cast<std::size_t>(number)]);
    });
}

}  // extern "C"
