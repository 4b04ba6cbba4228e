// Interfaces, egress objects, multipath groups, hosts and routes of one switch.
#pragma once
#include <array>
#include <compare>
#include <cstdint>
#include <map>
#include <vector>

#include "sdk/bcm/l3_types.h"
#include "standin/model/numbered_map.h"

namespace standin {

constexpr std::size_t kL3Interfaces = 4096;
constexpr std::size_t kL3Egresses = 32'768;
constexpr std::size_t kL3Multipaths = 1024;
constexpr std::size_t kL3Hosts = 65'536;
constexpr std::size_t kL3Routes = 131'072;
constexpr int kMultipathMembers = 64;

// Where the numbers of the three kinds of next hops begin.
constexpr bcm_if_t kFirstInterface = 1;
constexpr bcm_if_t kFirstEgress = 100'000;
constexpr bcm_if_t kFirstMultipath = 200'000;

// A bit of the flags of hosts and routes: the address is the one of IPv6.
constexpr std::uint32_t kL3Ip6 = 0x2;

struct IpAddress {
    bool ip6 = false;
    std::array<std::uint8_t, 16> bytes{};  // the first four for IPv4

    int bits() const { return ip6 ? 128 : 32; }
    auto operator<=>(const IpAddress &) const = default;
};

struct HostKey {
    bcm_vrf_t vrf = 0;
    IpAddress address;

    auto operator<=>(const HostKey &) const = default;
};

// The address has no bit behind the prefix.
struct RouteKey {
    bcm_vrf_t vrf = 0;
    IpAddress address;
    int length = 0;

    auto operator<=>(const RouteKey &) const = default;
};

struct L3 {
    NumberedMap<bcm_if_t, bcm_l3_intf_t, kFirstInterface> interfaces;
    NumberedMap<bcm_if_t, bcm_l3_egress_t, kFirstEgress> egresses;
    NumberedMap<bcm_if_t, std::vector<bcm_if_t>, kFirstMultipath> multipaths;
    std::map<HostKey, bcm_l3_host_t> hosts;
    std::map<RouteKey, bcm_l3_route_t> routes;
    int max_ecmp = kMultipathMembers;
};

IpAddress ip4_address(bcm_ip_t address);
IpAddress ip6_address(const bcm_ip6_t address);

// The bits behind a prefix of `length` cleared.
IpAddress masked(IpAddress address, int length);

// The length of a mask whose set bits come first; -1 for another.
int mask_length(const IpAddress &mask);

}  // namespace standin
