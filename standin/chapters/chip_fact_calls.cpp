// Calls about what a chip is, whatever is set on it: how much its tables hold, where its ports are
// in the numbers of the system, and how colours are coded.
#include <array>
#include <cstring>
#include <map>

#include "sdk/bcm/cosq.h"
#include "sdk/bcm/fabric.h"
#include "sdk/bcm/ipmc.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/mcast.h"
#include "sdk/bcm/petra.h"
#include "sdk/bcm/stk.h"
#include "sdk/bcm/subport.h"
#include "sdk/bcm/switch.h"
#include "standin/chapters/port_access.h"
#include "standin/model/queues.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

constexpr int kRows = 16'384;  // the most of a table that the rules keep
constexpr int kCalendar = 1 << 20;
constexpr int kBanks = 4;
constexpr int kBufferBytes = 4096;

// A number that `of(chip)` tells.
template <class T, class Of>
int tell(const char *function, int unit, T *out, Of &&of) {
    return on_switch(function, unit, [&](Switch &chip) { return give(out, of(chip)); });
}

int hosts(const Switch &chip, bool ip6) {
    int count = 0;
    for (const auto &[key, host] : chip.l3.hosts) count += key.address.ip6 == ip6 ? 1 : 0;
    return count;
}

int v4_routes(const Switch &chip) {
    int count = 0;
    for (const auto &[key, route] : chip.l3.routes) count += key.address.ip6 ? 0 : 1;
    return count;
}

// -1 for what the chip does not count.
std::int64_t objects(const Switch &chip, bcm_switch_object_t object) {
    const L3 &l3 = chip.l3;
    switch (int{object}) {
        case bcmSwitchObjectL2EntryCurrent:
            return static_cast<std::int64_t>(chip.l2.table.size());
        case bcmSwitchObjectL2EntryMax:
            return static_cast<std::int64_t>(kL2Capacity);
        case bcmSwitchObjectVlanCurrent:
            return static_cast<std::int64_t>(chip.vlans.vlans.size());
        case bcmSwitchObjectL3HostCurrent:
            return static_cast<std::int64_t>(l3.hosts.size());
        case bcmSwitchObjectL3HostV4Used:
            return hosts(chip, false);
        case bcmSwitchObjectL3HostV6Used:
            return hosts(chip, true);
        case bcmSwitchObjectL3RouteCurrent:
        case bcmSwitchObjectL3RouteTotalUsedRoutes:
            return static_cast<std::int64_t>(l3.routes.size());
        case bcmSwitchObjectL3RouteV4RoutesUsed:
            return v4_routes(chip);
        case bcmSwitchObjectL3RouteV4RoutesFree:
            return static_cast<std::int64_t>(kL3Routes - l3.routes.size());
        case bcmSwitchObjectL3RouteV4RoutesMax:
            return static_cast<std::int64_t>(kL3Routes);
        case bcmSwitchObjectL3HostV4Max:
        case bcmSwitchObjectL3HostV6Max:
            return static_cast<std::int64_t>(kL3Hosts);
        case bcmSwitchObjectL3EgressCurrent:
            return static_cast<std::int64_t>(l3.egresses.size());
        case bcmSwitchObjectL3EgressMax:
            return static_cast<std::int64_t>(kL3Egresses);
        case bcmSwitchObjectEcmpCurrent:
            return static_cast<std::int64_t>(l3.multipaths.size());
        case bcmSwitchObjectEcmpMax:
            return static_cast<std::int64_t>(kL3Multipaths);
        default:
            return -1;
    }
}

int count_objects(const char *function, int unit, int size, const bcm_switch_object_t *of,
                  int *entries) {
    return on_switch(function, unit, [&](Switch &chip) {
        if (size < 0 || (size > 0 && (of == nullptr || entries == nullptr)))
            return int{BCM_E_PARAM};
        for (int i = 0; i < size; ++i)
            if (objects(chip, of[i]) < 0)
                return refused(BCM_E_UNAVAIL,
                               "objects of the kind " + std::to_string(of[i]) + " are not counted");
        for (int i = 0; i < size; ++i) entries[i] = static_cast<int>(objects(chip, of[i]));
        return int{BCM_E_NONE};
    });
}

// What programs keep on the chip, by the kind of memory.
struct UserBuffers {
    std::map<int, std::array<std::uint8_t, kBufferBytes>> of_kind;
};

void visit_state(const UserBuffers &buffers, StateVisitor &to) {
    for (const auto &[kind, bytes] : buffers.of_kind) {
        if (bytes == std::array<std::uint8_t, kBufferBytes>{}) continue;
        to.object("user_buffer", std::to_string(kind));
        for (std::size_t at = 0; at < bytes.size(); ++at)
            if (bytes[at] != 0) to.number("byte_" + std::to_string(at), bytes[at]);
    }
}

template <class Copy>
int on_buffer(const char *function, int unit, std::uint32_t flags,
              bcm_switch_user_buffer_type_t kind, const std::uint8_t *data, int offset, int count,
              Copy &&copy) {
    return on_switch(function, unit, [&](Switch &chip) {
        constexpr int size = kBufferBytes;
        if (flags != 0 || data == nullptr || offset < 0 || !within(count, 0, size) ||
            offset > size - count)
            return int{BCM_E_PARAM};
        copy(chip.layers.of<UserBuffers>().of_kind[kind].data() + offset);
        return int{BCM_E_NONE};
    });
}

}  // namespace

extern "C" {

#define FACT(name, T, value)                                                    \
    int name(int unit, T *out) {                                                \
        return tell(__func__, unit, out, [](const Switch &) { return value; }); \
    }
FACT(bcm_fabric_calendar_max_get, int, kCalendar)
FACT(bcm_ipmc_bitmap_max_get, int, kRows)
FACT(bcm_ipmc_range_size_get, int, kRows)
FACT(bcm_l2_cache_size_get, int, kRows)
FACT(bcm_l2_station_size_get, int, kRows)
FACT(bcm_mcast_bitmap_max_get, int, kRows)
FACT(bcm_stk_modid_count, int, 1)
FACT(bcm_stk_port_modmap_group_max_get, int, kRows)
FACT(_bcm_dpp_port_pbmp_arm_get, bcm_pbmp_t, kFrontPortSet)
#undef FACT

int bcm_cosq_sched_weight_max_get(int unit, int mode, int *weight_max) {
    if (mode < 0) return refuse(__func__, unit);
    return tell(__func__, unit, weight_max, [](const Switch &) { return kMostWeight; });
}

int bcm_switch_hash_banks_max_get(int unit, bcm_switch_hash_table_t, uint32 *bank_max) {
    return tell(__func__, unit, bank_max, [](const Switch &) { return kBanks; });
}

int bcm_switch_object_count_get(int unit, bcm_switch_object_t object, int *entries) {
    return count_objects(__func__, unit, 1, &object, entries);
}

int bcm_switch_object_count_multi_get(int unit, int object_size, bcm_switch_object_t *object_array,
                                      int *entries) {
    return count_objects(__func__, unit, object_size, object_array, entries);
}

int bcm_switch_user_buffer_write(int unit, uint32 flags, bcm_switch_user_buffer_type_t type,
                                 uint8 *data, int offset, int nbytes) {
    return on_buffer(__func__, unit, flags, type, data, offset, nbytes,
                     [&](std::uint8_t *kept) { std::copy_n(data, nbytes, kept); });
}

int bcm_switch_user_buffer_read(int unit, uint32 flags, bcm_switch_user_buffer_type_t type,
                                uint8 *data, int offset, int nbytes) {
    return on_buffer(__func__, unit, flags, type, data, offset, nbytes,
                     [&](const std::uint8_t *kept) { std::copy_n(kept, nbytes, data); });
}

// A unit is module 0, and its ports have the same numbers in the system.
int bcm_stk_gport_sysport_get(int unit, bcm_gport_t gport, bcm_gport_t *sysport) {
    return on_port(__func__, unit, gport,
                   [&](const Port &) { return give(sysport, kSystemGport.of(local_port(gport))); });
}

int bcm_subport_gport_modport_get(int unit, bcm_gport_t gport, bcm_module_t *modid,
                                  bcm_port_t *port) {
    return on_port(__func__, unit, gport, [&](const Port &) {
        const int status = give(modid, 0);
        return status < 0 ? status : give(port, local_port(gport));
    });
}

int _bcm_dpp_port_mod_port_to_sys_port(int unit, bcm_module_t modid, bcm_port_t port,
                                       unsigned int *sys_port) {
    return on_port(__func__, unit, port, [&](const Port &) {
        return modid == 0 ? give(sys_port, local_port(port)) : int{BCM_E_PARAM};
    });
}

int _bcm_dpp_port_mod_port_from_sys_port(int unit, bcm_module_t *modid, bcm_port_t *mode_port,
                                         uint32 sys_port) {
    return on_port(__func__, unit, static_cast<int>(sys_port), [&](const Port &) {
        const int status = give(modid, 0);
        return status < 0 ? status : give(mode_port, static_cast<int>(sys_port));
    });
}

int _bcm_dpp_port_tpid_class_acceptable_frame_type_info_t_clear(
    int unit, _bcm_dpp_port_tpid_class_acceptable_frame_type_info_t *info) {
    return on_switch(__func__, unit, [&](Switch &) {
        return give(info, _bcm_dpp_port_tpid_class_acceptable_frame_type_info_t{});
    });
}

int _bcm_petra_port_link_get(int unit, bcm_port_t port, int, int *link) {
    return on_port(__func__, unit, port, [&](const Port &one) { return give(link, one.link()); });
}

int _bcm_petra_port_link_get_and_hook_placeholder(int unit, bcm_port_t port, int, int *link) {
    return on_port(__func__, unit, port, [&](const Port &one) { return give(link, one.link()); });
}

int _bcm_petra_port_discard_extend_get(int unit, bcm_port_t port, int *mode) {
    return get_port_field(__func__, unit, port, &Port::discard, mode);
}

// The code of a colour is its number.
int _bcm_petra_port_color_encode(int unit, bcm_color_t color, int *encoding) {
    return on_switch(__func__, unit, [&](Switch &) {
        return within<int>(color, 0, bcmColorCount - 1) ? give(encoding, color) : int{BCM_E_PARAM};
    });
}

int _bcm_petra_port_color_decode(int unit, int encoding, bcm_color_t *color) {
    return on_switch(__func__, unit, [&](Switch &) {
        return within(encoding, 0, bcmColorCount - 1) ? give(color, encoding) : int{BCM_E_PARAM};
    });
}

}  // extern "C"
