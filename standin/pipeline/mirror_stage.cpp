// Copies to mirror destinations: of what comes in by a port, of what leaves by one, and of what a
// rule names. A copy is the frame as it is at that place, whatever VLAN the destination is in.
#include <algorithm>

#include "sdk/constants.h"
#include "standin/model/tables.h"
#include "standin/pipeline/stages.h"

namespace standin {
namespace {

// Flags of a mirrored port that have no constants; neither of them means both.
constexpr std::uint32_t kMirrorIngress = 0x2;
constexpr std::uint32_t kMirrorEgress = 0x4;

void emit(Run &run, const Packet &packet, View frame, int port) {
    run.enter([&] { return "mirror copy to port " + std::to_string(port); });
    const Port &one = *run.chip.ports.find(port);
    if (one.link() == 0) {
        run.end(Reason::kEgressDown, port, "port " + std::to_string(port));
    } else {
        count_out(run, packet, port, frame.size());
        dispatch(run, port, 0, Bytes(frame.begin(), frame.end()));
    }
    run.leave();
}

}  // namespace

std::vector<bcm_gport_t> mirrors_of_port(const Switch &chip, int port, bool outwards) {
    const Mirrors &mirrors = chip.groups.mirrors;
    std::vector<bcm_gport_t> found;
    if (!mirrors.of_port.empty()) {
        const std::uint32_t wanted = outwards ? kMirrorEgress : kMirrorIngress;
        for (auto at = mirrors.of_port.lower_bound({port, 0});
             at != mirrors.of_port.end() && at->first.first == port; ++at) {
            const std::uint32_t flags = at->first.second & (kMirrorIngress | kMirrorEgress);
            if (flags == 0 || (flags & wanted) != 0)
                found.insert(found.end(), at->second.destinations.begin(),
                             at->second.destinations.end());
        }
    }
    if (mirrors.mode != 0 && mirrors.to >= 0 &&
        has_port(outwards ? mirrors.egress : mirrors.ingress, port))
        found.push_back(kLocalGport.of(mirrors.to));
    return found;
}

void mirror_to(Run &run, const Packet &packet, View frame, bcm_gport_t destination) {
    bcm_gport_t gport = destination;
    if (gport_type(destination) == kMirrorGport.type) {
        const auto *const found = find_in(run.chip.groups.mirrors.destinations, destination);
        if (found == nullptr) return;
        gport = found->gport;
        if (found->tunnel_id != 0 || found->gre_protocol != 0 || found->src_addr != 0)
            run.cannot("mirror destinations with a tunnel send the plain frame");
        if (found->sample_rate_dividend != 0)
            run.cannot("mirror destinations that sample take every frame");
    }
    const bool trunk = gport_type(gport) == kTrunkGport.type;
    const int port =
        trunk ? trunk_member(run, packet, gport & kTrunkGport.mask) : local_port(gport);
    if (port > 0) return emit(run, packet, frame, port);
    run.enter([] { return std::string("mirror copy"); });
    run.end(trunk ? Reason::kTrunkEmpty : Reason::kElsewhere, packet.port);
    run.leave();
}

void mirror_stage(Run &run, const Packet &packet) {
    std::vector<bcm_gport_t> destinations = mirrors_of_port(run.chip, packet.port, false);
    destinations.insert(destinations.end(), packet.mirrors.begin(), packet.mirrors.end());
    std::ranges::sort(destinations);
    const auto same = std::ranges::unique(destinations);
    destinations.erase(same.begin(), same.end());
    for (const bcm_gport_t destination : destinations)
        mirror_to(run, packet, packet.frame, destination);
}

}  // namespace standin
