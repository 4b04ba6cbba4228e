// The calls of the routing chapter on hosts and routes.
#include "sdk/bcm/l3.h"
#include "standin/model/loans.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

// What hosts and routes have in common: how the key is made of the caller's structure, where the
// entries are kept and how many there may be.
struct Hosts {
    using Entry = bcm_l3_host_t;
    static constexpr const char *kName = "l3_host";
    static constexpr std::size_t kCapacity = kL3Hosts;

    static Object self(const HostKey &key) { return host_object(key); }
    static std::map<HostKey, Entry> &table(Switch &chip) { return chip.l3.hosts; }
    static bool key(const Entry &host, HostKey &made) {
        const bool ip6 = (host.l3a_flags & kL3Ip6) != 0;
        made = {host.l3a_vrf, ip6 ? ip6_address(host.l3a_ip6_addr) : ip4_address(host.l3a_ip_addr)};
        return true;
    }
};

struct Routes {
    using Entry = bcm_l3_route_t;
    static constexpr const char *kName = "l3_route";
    static constexpr std::size_t kCapacity = kL3Routes;

    static Object self(const RouteKey &key) { return route_object(key); }
    static std::map<RouteKey, Entry> &table(Switch &chip) { return chip.l3.routes; }
    // False for a mask with holes.
    static bool key(const Entry &route, RouteKey &made) {
        const bool ip6 = (route.l3a_flags & kL3Ip6) != 0;
        const int length =
            mask_length(ip6 ? ip6_address(route.l3a_ip6_mask) : ip4_address(route.l3a_ip_mask));
        if (length < 0) return false;
        const IpAddress net = ip6 ? ip6_address(route.l3a_ip6_net) : ip4_address(route.l3a_subnet);
        made = {route.l3a_vrf, masked(net, length), length};
        return true;
    }
};

// on_switch with the key of the caller's structure.
template <class Kind, class Body>
int on_key(const char *function, int unit, const typename Kind::Entry *info, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) {
        typename std::remove_reference_t<decltype(Kind::table(chip))>::key_type key;
        if (info == nullptr || !Kind::key(*info, key)) return int{BCM_E_PARAM};
        return body(chip, Kind::table(chip), key);
    });
}

// An entry that is there already has to be replaced expressly.
template <class Kind>
int add(const char *function, int unit, const typename Kind::Entry *info) {
    return on_key<Kind>(function, unit, info, [&](Switch &chip, auto &table, const auto &key) {
        const int status = check_names(chip, names_of(*info));
        if (status != BCM_E_NONE) return status;
        const auto *const there = find_in(table, key);
        if (there != nullptr && (info->l3a_flags & kReplace) == 0)
            return refused(BCM_E_EXISTS, text_of(Kind::self(key)) + " is there");
        if (there == nullptr && table.size() >= table_capacity(Kind::kName, Kind::kCapacity))
            return refused(BCM_E_FULL, std::to_string(table.size()) + " are there");
        auto made = *info;
        made.l3a_flags &= ~kReplace;
        return assign(chip, Kind::self(key), table[key], made);
    });
}

template <class Kind>
int gone(const auto &key) {
    return refused(BCM_E_NOT_FOUND, "there is no " + text_of(Kind::self(key)));
}

template <class Kind>
int get(const char *function, int unit, typename Kind::Entry *info) {
    return on_key<Kind>(function, unit, info, [&](Switch &, auto &table, const auto &key) {
        const auto *const there = find_in(table, key);
        return there == nullptr ? gone<Kind>(key) : give(info, *there);
    });
}

template <class Kind>
int remove(const char *function, int unit, const typename Kind::Entry *info) {
    return on_key<Kind>(function, unit, info, [&](Switch &chip, auto &table, const auto &key) {
        const auto *const there = find_in(table, key);
        if (there == nullptr) return gone<Kind>(key);
        chip.references.unlink(Kind::self(key), names_of(*there));
        table.erase(key);
        return BCM_E_NONE;
    });
}

template <class Kind, class Pick>
int remove_picked(const char *function, int unit, Pick &&pick) {
    return on_switch(function, unit, [&](Switch &chip) {
        std::erase_if(Kind::table(chip), [&](const auto &one) {
            if (!pick(one.first, one.second)) return false;
            chip.references.unlink(Kind::self(one.first), names_of(one.second));
            return true;
        });
        return BCM_E_NONE;
    });
}

template <class Kind>
int remove_by_interface(const char *function, int unit, const typename Kind::Entry *info) {
    if (info == nullptr) return refuse(function, unit);
    return remove_picked<Kind>(function, unit, [&](const auto &, const auto &one) {
        return one.l3a_intf == info->l3a_intf;
    });
}

// The route with the longest prefix, up to that length, that covers the address.
int find_covering(const std::map<RouteKey, bcm_l3_route_t> &routes, bcm_vrf_t vrf,
                  const IpAddress &address, int longest, bcm_l3_route_t *route) {
    for (int length = longest; length >= 0; --length)
        if (const auto *const found =
                find_in(routes, RouteKey{vrf, masked(address, length), length}))
            return give(route, *found);
    return refused(BCM_E_NOT_FOUND, "no route covers the address");
}

// Entries of the family that the flags name, numbered from 0; those from `start` to `end` are
// called.
template <class Kind, class Visit>
int traverse(const char *function, int unit, std::uint32_t flags, std::uint32_t start,
             std::uint32_t end, Visit &&visit) {
    std::uint32_t index = 0;
    return walk(function, unit, Kind::table, [&](const auto &, auto &entry) {
        if ((entry.l3a_flags & kL3Ip6) != (flags & kL3Ip6)) return 0;
        const std::uint32_t number = index++;
        return within(number, start, end) ? visit(static_cast<int>(number), entry) : 0;
    });
}

}  // namespace

extern "C" {

int bcm_l3_host_add(int unit, bcm_l3_host_t *info) { return add<Hosts>(__func__, unit, info); }
int bcm_l3_host_find(int unit, bcm_l3_host_t *info) { return get<Hosts>(__func__, unit, info); }
int bcm_l3_host_delete(int unit, bcm_l3_host_t *info) {
    return remove<Hosts>(__func__, unit, info);
}

int bcm_l3_host_delete_all(int unit, bcm_l3_host_t *) {
    return remove_picked<Hosts>(__func__, unit, [](const auto &, const auto &) { return true; });
}

int bcm_l3_host_delete_by_interface(int unit, bcm_l3_host_t *info) {
    return remove_by_interface<Hosts>(__func__, unit, info);
}

int bcm_l3_host_delete_by_network(int unit, bcm_l3_route_t *info) {
    RouteKey net;
    if (info == nullptr || !Routes::key(*info, net)) return refuse(__func__, unit);
    return remove_picked<Hosts>(__func__, unit, [&](const HostKey &key, const bcm_l3_host_t &) {
        return key.vrf == net.vrf && masked(key.address, net.length) == net.address;
    });
}

int bcm_l3_host_traverse(int unit, uint32 flags, uint32 start, uint32 end,
                         bcm_l3_host_traverse_cb trav_fn, void *user_data) {
    if (trav_fn == nullptr) return refuse(__func__, unit);
    return traverse<Hosts>(__func__, unit, flags, start, end, [&](int index, bcm_l3_host_t &one) {
        return trav_fn(unit, index, &one, user_data);
    });
}

int bcm_l3_route_add(int unit, bcm_l3_route_t *info) { return add<Routes>(__func__, unit, info); }
int bcm_l3_route_get(int unit, bcm_l3_route_t *info) { return get<Routes>(__func__, unit, info); }
int bcm_l3_route_delete(int unit, bcm_l3_route_t *info) {
    return remove<Routes>(__func__, unit, info);
}

int bcm_l3_route_delete_all(int unit, bcm_l3_route_t *) {
    return remove_picked<Routes>(__func__, unit, [](const auto &, const auto &) { return true; });
}

int bcm_l3_route_delete_by_interface(int unit, bcm_l3_route_t *info) {
    return remove_by_interface<Routes>(__func__, unit, info);
}

// The route with the longest prefix that covers the host.
int bcm_l3_route_find(int unit, bcm_l3_host_t *host, bcm_l3_route_t *route) {
    return on_key<Hosts>(__func__, unit, host, [&](Switch &chip, auto &, const HostKey &key) {
        if (route == nullptr) return BCM_E_PARAM;
        return find_covering(chip.l3.routes, key.vrf, key.address, key.address.bits(), route);
    });
}

// The next shorter prefix that covers a route.
int bcm_l3_subnet_route_find(int unit, bcm_l3_route_t *route, bcm_l3_route_t *subnet_route) {
    return on_key<Routes>(__func__, unit, route, [&](Switch &, auto &table, const RouteKey &key) {
        if (subnet_route == nullptr) return int{BCM_E_PARAM};
        if (!table.contains(key)) return gone<Routes>(key);
        return find_covering(table, key.vrf, key.address, key.length - 1, subnet_route);
    });
}

// A route has one hop, which may be a group of several.
int bcm_l3_route_multipath_get(int unit, bcm_l3_route_t *info, bcm_l3_route_t *path_array,
                               int path_max, int *path_count) {
    return on_key<Routes>(__func__, unit, info, [&](Switch &, auto &table, const RouteKey &key) {
        const auto *const there = find_in(table, key);
        if (there == nullptr) return gone<Routes>(key);
        return give_array(std::vector{*there}, path_max, path_array, path_count);
    });
}

int bcm_l3_route_traverse(int unit, uint32 flags, uint32 start, uint32 end,
                          bcm_l3_route_traverse_cb trav_fn, void *user_data) {
    if (trav_fn == nullptr) return refuse(__func__, unit);
    return traverse<Routes>(__func__, unit, flags, start, end, [&](int index, bcm_l3_route_t &one) {
        return trav_fn(unit, index, &one, user_data);
    });
}

int bcm_l3_route_max_ecmp_set(int unit, int max) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (!within(max, 1, kMultipathMembers)) return BCM_E_PARAM;
        chip.l3.max_ecmp = max;
        return BCM_E_NONE;
    });
}

int bcm_l3_route_max_ecmp_get(int unit, int *max) {
    return on_switch(__func__, unit, [&](Switch &chip) { return give(max, chip.l3.max_ecmp); });
}

}  // extern "C"
