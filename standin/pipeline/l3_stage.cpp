// Routing: host, longest prefix, one of several paths, hop count, addresses of the next hop.
#include <algorithm>
#include <bit>

#include "sdk/constants.h"
#include "standin/model/tables.h"
#include "standin/pipeline/stages.h"

namespace standin {
namespace {

int common_bits(const IpAddress &one, const IpAddress &other) {
    int bits = 0;
    for (std::size_t i = 0; i < one.bytes.size() && bits < one.bits(); ++i, bits += 8) {
        const auto differ = static_cast<std::uint8_t>(one.bytes[i] ^ other.bytes[i]);
        if (differ != 0) return std::min(bits + std::countl_zero(differ), one.bits());
    }
    return one.bits();
}

// The route with the longest prefix. The table is in the order of addresses and, for equal ones,
// lengths, so the last entry up to the address is the one, or else shares its first bits with all
// that can still fit: each step shortens the prefix, and there are seldom more than two or three.
const std::pair<const RouteKey, bcm_l3_route_t> *longest_prefix(const L3 &l3, bcm_vrf_t vrf,
                                                                const IpAddress &address) {
    for (int length = address.bits(); length >= 0;) {
        const RouteKey wanted{vrf, masked(address, length), length};
        auto at = l3.routes.upper_bound(wanted);
        if (at == l3.routes.begin()) return nullptr;
        --at;
        const RouteKey &key = at->first;
        if (key.vrf != vrf || key.address.ip6 != address.ip6) return nullptr;
        const int shared = common_bits(key.address, address);
        if (shared >= key.length) return &*at;
        length = std::min(shared, length - 1);
    }
    return nullptr;
}

void end_route(Packet &packet, Reason reason, std::string object = {}) {
    packet.way = {.kind = Way::Kind::kEnd, .reason = reason, .object = std::move(object)};
}

void trap(Run &run, Packet &packet, int control, int reason) {
    if (control >= 0 && switch_control(run.chip, control) == 0) return;
    packet.copied = true;
    add_reason(packet.reasons, reason);
}

void to_processor(Packet &packet, std::string object) {
    packet.way = {.kind = Way::Kind::kProcessor, .object = std::move(object)};
    add_reason(packet.reasons, bcmRxReasonNhop);
}

// The way to a port or trunk; an interface says the VLAN and the source address.
void leave_through(Run &run, Packet &packet, bcm_if_t number, const std::uint8_t *target, int port,
                   bool trunk, std::string object) {
    const bcm_l3_intf_t *const intf = find_in(run.chip.l3.interfaces, number);
    if (intf == nullptr) return end_route(packet, Reason::kRouteDrop, std::move(object));
    if (!trunk && port == kCpuPort) return to_processor(packet, std::move(object));
    const IpHeader &ip = *packet.headers.ip;
    if (intf->l3a_mtu > 0 && ip.total > static_cast<std::size_t>(intf->l3a_mtu)) {
        trap(run, packet, bcmSwitchL3MtuFailToCpu, bcmRxReasonL3MtuFail);
        return end_route(packet, Reason::kTooLargeToRoute,
                         text_of(standin::object(ObjectKind::kInterface, number)));
    }
    std::memcpy(packet.new_target.data(), target, kMacSize);
    std::memcpy(packet.new_source.data(), intf->l3a_mac_addr, kMacSize);
    packet.rewrite = {packet.new_target.data(), packet.new_source.data(), true};
    packet.routed = true;
    packet.out_vid = intf->l3a_vid;
    packet.out_vlan = run.chip.vlans.find(packet.out_vid);
    packet.way = {
        .kind = trunk ? Way::Kind::kTrunk : Way::Kind::kPort, .number = port, .object = object};
    run.step(
        "l3",
        [&] {
            return "to " + text_of_mac(target) + " in VLAN " + std::to_string(packet.out_vid) +
                   (trunk ? " on trunk " : " on port ") + std::to_string(port) + ", hops " +
                   std::to_string(ip.hops) + " -> " + std::to_string(ip.hops - 1);
        },
        std::move(object));
}

void leave_by(Run &run, Packet &packet, bcm_if_t number, const bcm_l3_egress_t &egress,
              std::string object) {
    if (egress.module != 0) return end_route(packet, Reason::kElsewhere, std::move(object));
    const int type = gport_type(egress.port);
    if (type == kBlackHoleGport.type || egress.intf == 0)
        return end_route(packet, Reason::kRouteDrop, std::move(object));
    const bool trunk = type == kTrunkGport.type;
    const int port = trunk ? egress.port & kTrunkGport.mask : local_port(egress.port);
    if (port < 0) return end_route(packet, Reason::kElsewhere, std::move(object));
    leave_through(
        run, packet, egress.intf, egress.mac_addr, port, trunk,
        object + (object.empty() ? "" : ", ") +
            (run.trace == nullptr ? "" : text_of(standin::object(ObjectKind::kEgress, number))));
}

}  // namespace

void route_to(Run &run, Packet &packet, bcm_if_t hop, const bcm_mac_t beside, int port,
              std::string object) {
    const L3 &l3 = run.chip.l3;
    if (hop >= kFirstMultipath) {
        const std::vector<bcm_if_t> *const paths = find_in(l3.multipaths, hop);
        if (paths == nullptr || paths->empty())
            return end_route(packet, Reason::kRouteDrop, std::move(object));
        const std::size_t chosen = flow_hash(packet, 0) % paths->size();
        run.step(
            "l3",
            [&] {
                return "path " + std::to_string(chosen + 1) + " of " +
                       std::to_string(paths->size());
            },
            run.trace == nullptr ? std::string()
                                 : text_of(standin::object(ObjectKind::kMultipath, hop)));
        hop = (*paths)[chosen];
    }
    if (const bcm_l3_egress_t *const egress = find_in(l3.egresses, hop))
        return leave_by(run, packet, hop, *egress, std::move(object));
    if (hop == 0) return end_route(packet, Reason::kRouteDrop, std::move(object));
    static constexpr bcm_mac_t kNobody{};
    if (beside == nullptr || std::memcmp(beside, kNobody, sizeof kNobody) == 0)
        return to_processor(packet, std::move(object));
    leave_through(run, packet, hop, beside, port, false, std::move(object));
}

void l3_stage(Run &run, Packet &packet) {
    const IpHeader &ip = *packet.headers.ip;
    if (!ip.checksum_right) {
        trap(run, packet, bcmSwitchL3HeaderErrToCpu, bcmRxReasonL3HeaderError);
        return end_route(packet, Reason::kBadChecksum);
    }
    const L3 &l3 = run.chip.l3;
    std::string by;
    const HostKey key{packet.vrf, ip.target};
    const bcm_l3_host_t *const host = find_in(l3.hosts, key);
    const auto *const route = host != nullptr ? nullptr : longest_prefix(l3, packet.vrf, ip.target);
    packet.host_known = host != nullptr;
    packet.route_known = route != nullptr;
    if (host == nullptr && route == nullptr) {
        trap(run, packet, ip.source.ip6 ? bcmSwitchV6L3DstMissToCpu : bcmSwitchV4L3DstMissToCpu,
             bcmRxReasonL3DestMiss);
        return end_route(packet, Reason::kNoRoute);
    }
    if (run.trace != nullptr)
        by = text_of(host != nullptr ? host_object(key) : route_object(route->first));
    const auto [hop, beside, port] =
        host != nullptr ? std::tuple(host->l3a_intf, &host->l3a_nexthop_mac, host->l3a_port_tgid)
                        : std::tuple(route->second.l3a_intf, &route->second.l3a_nexthop_mac,
                                     route->second.l3a_port_tgid);
    route_to(run, packet, hop, *beside, local_port(port), std::move(by));
    if (!packet.routed) return;
    // What has no hop left may still be for the router itself (RFC 1812, 5.3.1).
    if (ip.hops <= 1) {
        packet.routed = false;
        packet.rewrite = {};
        trap(run, packet, bcmSwitchL3UcastTtl1ToCpu, bcmRxReasonTtl1);
        return end_route(packet, Reason::kTtlExpired);
    }
    if (ip.options) trap(run, packet, bcmSwitchL3SlowpathToCpu, bcmRxReasonL3Slowpath);
}

}  // namespace standin
