// From the way of a packet to the ports of its copies.
#include "sdk/constants.h"
#include "standin/model/tables.h"
#include "standin/pipeline/stages.h"

namespace standin {
namespace {

bool came_from(const Run &run, const Packet &packet, int port) {
    if (packet.routed) return false;
    if (port == packet.port) return true;
    const int *const trunk = find_in(run.chip.groups.trunk_of, kLocalGport.of(port));
    return trunk != nullptr && packet.trunk == *trunk;
}

// Of each trunk the one member that takes the packet; all other ports as they are.
bcm_pbmp_t one_of_each_trunk(Run &run, const Packet &packet, bcm_pbmp_t ports) {
    for (const auto &[number, trunk] : run.chip.groups.trunks) {
        bcm_pbmp_t members{};
        for (const bcm_trunk_member_t &member : trunk.members)
            if (const int port = local_port(member.gport); port >= 0) add_port(members, port);
        if (!any_common(ports, members)) continue;
        remove_ports(ports, members);
        if (const int port = trunk_member(run, packet, number); port >= 0) add_port(ports, port);
    }
    return ports;
}

// Copies to those of the ports that would send one.
void send_to_all(Run &run, const Packet &packet, bcm_pbmp_t ports, const char *what) {
    remove_ports(ports, packet.masked);
    remove_port(ports, kCpuPort);
    int copies = 0;
    for (int port = 1; port < kPorts; ++port) {
        if (!has_port(ports, port) || came_from(run, packet, port)) continue;
        const std::optional<Reason> refusal = egress_refusal(run, packet, port);
        if (refusal) {
            run.step(what, [&] {
                return "not port " + std::to_string(port) + ": " + row_of(*refusal).sentence;
            });
            continue;
        }
        ++copies;
        run.enter([&] { return "copy to port " + std::to_string(port); });
        egress_stage(run, packet, port);
        run.leave();
    }
    if (copies == 0) run.end(Reason::kNoMember, packet.port);
}

void flood(Run &run, const Packet &packet) {
    bcm_pbmp_t ports = packet.out_vlan->members;
    for (const auto &[gport, flags] : packet.out_vlan->gports) {
        if (gport_type(gport) != kTrunkGport.type) continue;
        const int port = trunk_member(run, packet, gport & kTrunkGport.mask);
        if (port >= 0) add_port(ports, port);
    }
    if (!run.chip.groups.trunks.empty()) ports = one_of_each_trunk(run, packet, ports);
    send_to_all(run, packet, ports, "flood");
}

// A member with an interface is routed to it, the others are bridged.
void to_group_member(Run &run, const Packet &packet, bcm_gport_t gport, bcm_if_t encap) {
    const bool trunk = gport_type(gport) == kTrunkGport.type;
    const int port =
        trunk ? trunk_member(run, packet, gport & kTrunkGport.mask) : local_port(gport);
    if (port <= 0) return run.end(trunk ? Reason::kTrunkEmpty : Reason::kElsewhere, packet.port);
    const bcm_l3_intf_t *const intf = find_in(run.chip.l3.interfaces, encap);
    if (intf == nullptr) {
        if (came_from(run, packet, port)) return run.end(Reason::kSamePort, packet.port);
        return egress_stage(run, packet, port);
    }
    if (!packet.headers.ip || packet.headers.ip->hops <= 1)
        return run.end(Reason::kTtlExpired, packet.port);
    Packet copy = packet;
    std::memcpy(copy.new_source.data(), intf->l3a_mac_addr, kMacSize);
    copy.rewrite = {nullptr, copy.new_source.data(), true};
    copy.routed = true;
    copy.out_vid = intf->l3a_vid;
    copy.out_vlan = run.chip.vlans.find(copy.out_vid);
    egress_stage(run, copy, port);
}

void to_group(Run &run, const Packet &packet, bcm_multicast_t number) {
    const MulticastGroup *const group = find_in(run.chip.groups.multicast, number);
    if (group == nullptr || group->egress.empty())
        return run.end(Reason::kNoMember, packet.port, "multicast group " + std::to_string(number));
    for (const auto &[gport, encap] : group->egress) {
        run.enter([&] { return "copy of multicast group " + std::to_string(number); });
        to_group_member(run, packet, gport, encap);
        run.leave();
    }
}

// To one port, if that may be.
void unicast(Run &run, const Packet &packet, int port) {
    if (has_port(packet.masked, port)) return run.end(Reason::kRuleDrop, packet.port);
    if (came_from(run, packet, port)) return run.end(Reason::kSamePort, packet.port);
    egress_stage(run, packet, port);
}

void go(Run &run, const Packet &packet) {
    const Way &way = packet.way;
    switch (way.kind) {
        case Way::Kind::kPort:
            return unicast(run, packet, way.number);
        case Way::Kind::kTrunk: {
            if (!packet.routed && packet.trunk == way.number)
                return run.end(Reason::kSamePort, packet.port);
            const int port = trunk_member(run, packet, way.number);
            if (port < 0)
                return run.end(Reason::kTrunkEmpty, packet.port,
                               "trunk " + std::to_string(way.number));
            return unicast(run, packet, port);
        }
        case Way::Kind::kFlood:
            return flood(run, packet);
        case Way::Kind::kGroup:
            return to_group(run, packet, way.number);
        case Way::Kind::kPortSet:
            return send_to_all(run, packet, way.ports, "ports");
        case Way::Kind::kProcessor:
            return processor_stage(run, packet);
        case Way::Kind::kEnd:
        case Way::Kind::kNowhere:
            return run.end(way.reason, packet.port, way.object);
    }
}

}  // namespace

void forward_stage(Run &run, Packet &packet) {
    const bool branches = packet.copied && packet.way.kind != Way::Kind::kProcessor;
    if (branches) copy_to_processor(run, packet);
    const bool adds = any_common(packet.added, kAllPorts) && packet.way.kind != Way::Kind::kEnd;
    if (adds) {
        run.enter([] { return std::string("copies that a rule adds"); });
        send_to_all(run, packet, packet.added, "added");
        run.leave();
    }
    if (!branches && !adds) return go(run, packet);
    run.enter([] { return std::string("the packet itself"); });
    go(run, packet);
    run.leave();
}

}  // namespace standin
