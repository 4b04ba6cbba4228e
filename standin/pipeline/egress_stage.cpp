// How a copy leaves a port: may it, with which tag, with which addresses, in which queue.
#include "sdk/constants.h"
#include "standin/model/tables.h"
#include "standin/pipeline/rules.h"
#include "standin/pipeline/stages.h"

namespace standin {
namespace {

// Whether the port sends the VLAN without a tag. What leaves a member of a trunk follows the trunk
// where the VLAN has that.
std::optional<bool> untagged_on(const Switch &chip, const Vlan &vlan, int port) {
    const auto by_gport = [&](bcm_gport_t gport) -> std::optional<bool> {
        const auto found = vlan.gports.find(gport);
        if (found == vlan.gports.end()) return std::nullopt;
        return (found->second & kVlanGportUntagged) != 0;
    };
    if (const int *const trunk = find_in(chip.groups.trunk_of, kLocalGport.of(port)))
        if (const auto said = by_gport(kTrunkGport.of(*trunk))) return said;
    if (has_port(vlan.members, port)) return has_port(vlan.untagged, port);
    return by_gport(kLocalGport.of(port));
}

// The sum of RFC 1624 after one 16-bit word of what it covers has changed.
void fix_sum(std::uint8_t *at, unsigned before, unsigned after) {
    std::uint32_t sum = (~load16(at) & 0xffffu) + (~before & 0xffffu) + after;
    while (sum > 0xffff) sum = (sum & 0xffff) + (sum >> 16);
    store16(at, ~sum & 0xffff);
}

// Changes in the IP header, which begins at `ip`.
void rewrite_ip(std::uint8_t *ip, const Packet &packet) {
    const bool ip6 = packet.headers.is_ip6();
    const IpHeader &header = *packet.headers.ip;
    std::uint8_t hops = packet.hops.value_or(header.hops);
    if (packet.rewrite.hop && hops > 0) --hops;
    const std::uint8_t service = packet.service.value_or(header.service);
    if (ip6) {
        store16(ip, 0x6000u | static_cast<unsigned>(service) << 4 | (header.flow >> 16));
        ip[7] = hops;
        return;
    }
    const unsigned first = load16(ip);
    ip[1] = service;
    fix_sum(ip + 10, first, load16(ip));
    const unsigned second = load16(ip + 8);
    ip[8] = hops;
    fix_sum(ip + 10, second, load16(ip + 8));
}

bool changes_ip(const Packet &packet) {
    return packet.headers.ip && (packet.rewrite.hop || packet.service || packet.hops);
}

// The frame as the port sends it: addresses, the tag of the VLAN if there is to be one, and all
// that stood behind the tag with which it came.
Bytes build(const Packet &packet, bool tagged, bcm_vlan_t vid, unsigned priority) {
    const EthernetHeader &header = packet.headers.ethernet;
    const std::size_t from = 2 * kMacSize + (header.tags > 0 ? kTagSize : 0);
    const std::size_t to = 2 * kMacSize + (tagged ? kTagSize : 0);
    Bytes frame(packet.frame.size() - from + to);
    std::memcpy(frame.data(), header.target, 2 * kMacSize);
    if (packet.rewrite.target != nullptr)
        std::memcpy(frame.data(), packet.new_target.data(), kMacSize);
    if (packet.rewrite.source != nullptr)
        std::memcpy(frame.data() + kMacSize, packet.new_source.data(), kMacSize);
    if (tagged) {
        store16(frame.data() + 2 * kMacSize, header.tags > 0 ? header.tag[0].type : +kTypeTag);
        store16(frame.data() + 2 * kMacSize + 2, priority << 13 | packet.drop_bit << 12 | vid);
    }
    std::memcpy(frame.data() + to, packet.frame.data() + from, packet.frame.size() - from);
    if (changes_ip(packet)) rewrite_ip(frame.data() + packet.headers.ip->at + to - from, packet);
    return frame;
}

}  // namespace

void dispatch(Run &run, int port, int queue, Bytes frame) {
    const bool returns = run.chip.ports.find(port)->loopback != BCM_PORT_LOOPBACK_NONE;
    if (returns)
        run.step("egress", [&] { return "comes back through port " + std::to_string(port); });
    else if (run.trace != nullptr)
        run.trace->sent(port, frame);
    if (!run.dry) {
        ++run.state.ended[static_cast<std::size_t>(Reason::kSent)];
        ++run.state.queued[static_cast<std::size_t>(port)][static_cast<std::size_t>(queue)];
        if (const auto capture = run.state.captures.find(port); capture != run.state.captures.end())
            capture->second.add(Capture::kOut, run.chip.now, frame);
    }
    if (returns)
        run.returning.emplace_back(port, std::move(frame));
    else
        run.departures.push_back({port, queue, std::move(frame)});
}

std::optional<Reason> egress_refusal(Run &run, const Packet &packet, int port) {
    const Port &one = *run.chip.ports.find(port);
    if (one.link() == 0) return Reason::kEgressDown;
    if (one.discard == BCM_PORT_DISCARD_ALL || one.discard == BCM_PORT_DISCARD_EGRESS)
        return Reason::kEgressDiscards;
    if (packet.out_vlan == nullptr) return Reason::kEgressVlan;
    if (!untagged_on(run.chip, *packet.out_vlan, port)) return Reason::kEgressVlan;
    const Stg &stg = *run.chip.vlans.find_stg(packet.out_vlan->stg);
    if (stg.state[static_cast<std::size_t>(port)] != BCM_STG_STP_FORWARD) return Reason::kEgressStp;
    return std::nullopt;
}

void egress_stage(Run &run, const Packet &packet, int port) {
    if (const std::optional<Reason> refusal = egress_refusal(run, packet, port))
        return run.end(*refusal, port, "port " + std::to_string(port));
    const Packet *source = &packet;
    std::optional<Packet> changed;
    if (run.state.rules.has_rules(RuleStage::kEgress)) {
        changed.emplace(packet);
        if (changed->rewrite.target != nullptr)
            changed->rewrite.target = changed->new_target.data();
        std::string dropper;
        if (apply_rules(run, *changed, RuleStage::kEgress, port, dropper))
            return run.end(Reason::kRuleDrop, port, dropper);
        source = &*changed;
    }
    bcm_vlan_t vid = source->out_vid;
    unsigned priority = source->priority;
    const bool tagged = !*untagged_on(run.chip, *source->out_vlan, port);
    if (const auto other = translation_of(run.chip, "bcm_vlan_translate_egress", port, vid)) {
        vid = other->vid;
        if (other->priority >= 0) priority = other->priority & 7;
        run.step("egress", [&] { return "translated to VLAN " + std::to_string(vid); });
    }
    Bytes frame = build(*source, tagged, vid, priority);
    const Port &one = *run.chip.ports.find(port);
    // A tag on either side does not count towards the largest frame.
    const bool any_tag = tagged || packet.headers.ethernet.tags > 0;
    if (frame.size() + kChecksumSize >
        static_cast<std::size_t>(one.frame_max) + (any_tag ? kTagSize : 0))
        return run.end(Reason::kEgressTooLong, port, "port " + std::to_string(port));
    const int queue = source->queue >= 0
                          ? source->queue
                          : queues_of(run.chip).queue_of(port, source->internal_priority);
    run.step("egress", [&] {
        return (tagged ? "tagged with VLAN " + std::to_string(vid) : std::string("untagged")) +
               ", queue " + std::to_string(queue);
    });
    count_out(run, *source, port, frame.size());
    for (const bcm_gport_t destination : mirrors_of_port(run.chip, port, true))
        mirror_to(run, *source, frame, destination);
    dispatch(run, port, queue, std::move(frame));
}

}  // namespace standin
