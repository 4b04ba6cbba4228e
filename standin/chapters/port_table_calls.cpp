// The calls that tell which ports a switch has, and how they are wired and named.
#include <algorithm>

#include "sdk/bcm/port.h"
#include "standin/chapters/hooks.h"
#include "standin/chapters/linkscan.h"
#include "standin/chapters/port_access.h"
#include "standin/model/named.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

bool good_settings(const bcm_port_info_t &info) {
    return within(info.enable, 0, 1) && within(info.autoneg, 0, 1) && within(info.duplex, 0, 1) &&
           within(info.discard, 0, BCM_PORT_DISCARD_COUNT - 1) && info.vlanfilter <= 1 &&
           within(info.untagged_priority, -1, 7) && is_vlan(info.untagged_vlan) &&
           within(info.loopback, 0, BCM_PORT_LOOPBACK_COUNT - 1) && within(info.pause_tx, 0, 1) &&
           within(info.pause_rx, 0, 1) && within(info.linkscan, 0, BCM_LINKSCAN_MODE_COUNT - 1) &&
           within(info.frame_max, kSmallestFrame, kLargestFrame);
}

template <class T>
void copy(T &to, const auto &from) {
    to = static_cast<T>(from);
}

// Calls `each` with every setting that the structure and the port have in common, but the address.
void each_setting(auto &info, auto &port, auto each) {
    each(info.enable, port.enable);
    each(info.autoneg, port.autoneg);
    each(info.speed, port.speed);
    each(info.duplex, port.duplex);
    each(info.linkscan, port.linkscan);
    each(info.learn, port.learn);
    each(info.discard, port.discard);
    each(info.vlanfilter, port.ifilter);
    each(info.untagged_priority, port.untagged_priority);
    each(info.untagged_vlan, port.untagged_vlan);
    each(info.pfm, port.pfm);
    each(info.loopback, port.loopback);
    each(info.phy_master, port.master);
    each(info.pause_tx, port.pause_tx);
    each(info.pause_rx, port.pause_rx);
    each(info.local_ability, port.advertised);
    each(info.frame_max, port.frame_max);
}

int clear_ports(Switch &chip) {
    unlink_ports(chip);
    Ports fresh;
    for (int number = 0; number < kPorts; ++number)  // what the scanner has told stays told
        fresh.find(number)->scanned_link = chip.ports.find(number)->scanned_link;
    chip.ports = std::move(fresh);
    link_ports(chip);
    return BCM_E_NONE;
}

int tell_settings(const char *function, int unit, bcm_port_t port, bcm_port_info_t *info) {
    return on_switch(function, unit, [&](Switch &chip) {
        const int number = local_port(port);
        if (number < 0) return refused_port("port", port);
        return info == nullptr ? BCM_E_PARAM : give(info, port_info(chip, number));
    });
}

// What of the structure can be set; all or nothing. The masks of actions are not looked at.
int take_settings(const char *function, int unit, bcm_port_t port, const bcm_port_info_t *info) {
    return on_switch(function, unit, [&](Switch &chip) {
        Port *const one = chip.ports.find(port);
        if (one == nullptr) return refused_port("port", port);
        if (info == nullptr || !good_settings(*info)) return BCM_E_PARAM;
        if (!can_run_at(*one, info->speed)) return BCM_E_CONFIG;
        const Object self = object(ObjectKind::kPort, local_port(port));
        const int status = change(chip, self, *one, [&](Port &made) {
            each_setting(*info, made, [](const auto &told, auto &kept) { copy(kept, told); });
            std::copy_n(info->pause_mac, made.pause_address.size(), made.pause_address.begin());
            return BCM_E_NONE;
        });
        if (status == BCM_E_NONE) scan_link(chip, local_port(port), ScanCause::kChange);
        return status;
    });
}

}  // namespace

namespace standin {

bcm_port_info_t port_info(Switch &chip, int number) {
    const Port &port = *chip.ports.find(number);
    const Stg &stg = chip.vlans.stgs.at(chip.vlans.default_stg);
    bcm_port_info_t info{};
    each_setting(info, port, [](auto &told, const auto &kept) { copy(told, kept); });
    info.linkstatus = port.link();
    info.speed_max = port.speed_max;
    info.stp_state = stg.state[static_cast<std::size_t>(number)];
    std::ranges::copy(port.pause_address, info.pause_mac);
    return info;
}

}  // namespace standin

extern "C" {

int bcm_port_init(int unit) { return start_chapter(__func__, unit, "bcm_port_", clear_ports); }
int bcm_port_clear(int unit) { return start_chapter(__func__, unit, "bcm_port_", clear_ports); }

int bcm_port_config_get(int unit, bcm_port_config_t *config) {
    return on_switch(__func__, unit, [&](Switch &) {
        if (config == nullptr) return BCM_E_PARAM;
        *config = bcm_port_config_t{};
        config->xe = port_range(1, kLastSmallPort);
        config->ce = port_range(kLastSmallPort + 1, kFrontPorts);
        config->e = config->port = config->nif = kFrontPortSet;
        config->cpu = port_range(kCpuPort, kCpuPort);
        config->all = kAllPorts;
        config->per_pipe[0] = port_range(1, kFrontPorts / 2);
        config->per_pipe[1] = port_range(kFrontPorts / 2 + 1, kFrontPorts);
        return BCM_E_NONE;
    });
}

int bcm_port_get(int unit, bcm_port_t port, uint32 *flags,
                 bcm_port_interface_info_t *interface_info, bcm_port_mapping_info_t *mapping_info) {
    return on_switch(__func__, unit, [&](Switch &) {
        const int number = local_port(port);
        if (number < 0) return refused_port("port", port);
        if (flags == nullptr || interface_info == nullptr || mapping_info == nullptr)
            return BCM_E_PARAM;
        *flags = 0;
        *interface_info = bcm_port_interface_info_t{};
        interface_info->phy_port = static_cast<uint32>(number);
        interface_info->num_lanes = is_large(number) ? 4 : 1;
        add_port(interface_info->phy_pbmp, number);
        *mapping_info = bcm_port_mapping_info_t{};
        mapping_info->core = core_of(number);
        mapping_info->tm_port = static_cast<uint32>(number);
        mapping_info->num_priorities = 8;
        return BCM_E_NONE;
    });
}

int bcm_port_gport_get(int unit, bcm_port_t port, bcm_gport_t *gport) {
    return on_switch(__func__, unit, [&](Switch &) {
        const int number = local_port(port);
        return number < 0 ? refused_port("port", port) : give(gport, kLocalGport.of(number));
    });
}

int bcm_port_local_get(int unit, bcm_gport_t gport, bcm_port_t *local_port_out) {
    return on_switch(__func__, unit, [&](Switch &) {
        const int number = local_port(gport);
        return number < 0 ? refused_port("gport", gport) : give(local_port_out, number);
    });
}

// "xe7"; null for a port or unit that is not there. The text lives as long as the chip does.
char *bcm_port_name(int unit, int port) {
    char *name = nullptr;
    on_port(__func__, unit, port, [&](Port &one) {
        name = one.name.data();
        return BCM_E_NONE;
    });
    return name;
}

int bcm_port_info_get(int unit, bcm_port_t port, bcm_port_info_t *info) {
    return tell_settings(__func__, unit, port, info);
}
int bcm_port_info_save(int unit, bcm_port_t port, bcm_port_info_t *info) {
    return tell_settings(__func__, unit, port, info);
}

int bcm_port_info_set(int unit, bcm_port_t port, bcm_port_info_t *info) {
    return take_settings(__func__, unit, port, info);
}
int bcm_port_info_restore(int unit, bcm_port_t port, bcm_port_info_t *info) {
    return take_settings(__func__, unit, port, info);
}

int bcm_port_probe(int unit, bcm_pbmp_t pbmp, bcm_pbmp_t *okay_pbmp) {
    return on_switch(__func__, unit, [&](Switch &) {
        return is_subset(pbmp, kAllPorts) ? give(okay_pbmp, pbmp) : refused_ports(pbmp);
    });
}

// A port that is detached is disabled.
int bcm_port_detach(int unit, bcm_pbmp_t pbmp, bcm_pbmp_t *detached) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (!is_subset(pbmp, kAllPorts)) return refused_ports(pbmp);
        if (detached == nullptr) return int{BCM_E_PARAM};
        for (int port = 0; port < kPorts; ++port) {
            if (!has_port(pbmp, port)) continue;
            chip.ports.find(port)->enable = 0;
            note_link(chip, port);
        }
        return give(detached, pbmp);
    });
}

// The processor's port has no interface to the network.
int bcm_port_to_nif_id(int unit, bcm_port_t port, int *nif_id) {
    return on_switch(__func__, unit, [&](Switch &) {
        const int number = local_port(port);
        return number < 1 ? refused_port("port", port) : give(nif_id, number);
    });
}

// The number of a port that the unit does not have is no gport that could be made.
int bcm_port_gport_is_free(int unit, bcm_gport_t port) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (check_named(chip, kPortKind, "port", port) == BCM_E_NONE)
            return refused(BCM_E_EXISTS, "gport " + std::to_string(port) + " is in use");
        const int type = gport_type(port);
        return type <= 0 || type == kLocalGport.type ? refused_port("port", port) : int{BCM_E_NONE};
    });
}

int standin_link_set(int unit, int port, int present) {
    return on_port(__func__, unit, port, [&](Port &one) {
        const int before = one.link();
        one.peer = present != 0;
        if (before != 0 && one.link() == 0) one.link_failed = true;
        return BCM_E_NONE;
    });
}

int standin_port_traffic(int unit, int port, int outwards, unsigned packets,
                         unsigned long long bytes) {
    return on_port(__func__, unit, port, [&](Port &one) {
        if (one.link() == 0) return BCM_E_DISABLED;
        PortCounters &counters = outwards != 0 ? one.out : one.in;
        counters.packets += packets;
        counters.bytes += bytes;
        return BCM_E_NONE;
    });
}

}  // extern "C"
