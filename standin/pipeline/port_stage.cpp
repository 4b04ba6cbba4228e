// The port that a frame arrives on: is it up, does it take such frames, are they of a size.
#include "sdk/constants.h"
#include "standin/model/tables.h"
#include "standin/pipeline/stages.h"

namespace standin {
namespace {

constexpr std::uint8_t kPauseAddress[kMacSize] = {0x01, 0x80, 0xc2, 0, 0, 0x01};

// Tags do not count towards the largest frame, the checksum on the wire does.
bool fits(const Packet &packet, const Port &port) {
    const auto tags = static_cast<std::size_t>(packet.headers.ethernet.tags) * kTagSize;
    return packet.frame.size() + kChecksumSize <= static_cast<std::size_t>(port.frame_max) + tags;
}

bool discards(const Port &port, bool tagged) {
    switch (port.discard) {
        case BCM_PORT_DISCARD_ALL:
        case BCM_PORT_DISCARD_INGRESS:
            return true;
        case BCM_PORT_DISCARD_TAG:
            return tagged;
        case BCM_PORT_DISCARD_UNTAG:
            return !tagged;
        default:
            return false;
    }
}

bool is_pause(const EthernetHeader &header) {
    return header.type == kTypePause && std::memcmp(header.target, kPauseAddress, kMacSize) == 0;
}

}  // namespace

Verdict parse_stage(Run &run, Packet &packet) {
    const std::optional<Reason> fault = parse(packet.frame, packet.headers);
    if (fault) return Verdict::end(run, packet, *fault);
    const EthernetHeader &header = packet.headers.ethernet;
    run.step("parse", [&] {
        return text_of_mac(header.source) + " to " + text_of_mac(header.target) + ", " +
               std::to_string(header.tags) + " tags";
    });
    if (packet.headers.ip)
        run.step("parse", [&] {
            const IpHeader &ip = *packet.headers.ip;
            return text_of_ip(ip.source) + " to " + text_of_ip(ip.target) + ", protocol " +
                   std::to_string(ip.protocol) + ", " + std::to_string(ip.hops) + " hops left";
        });
    return Verdict::next();
}

Verdict port_stage(Run &run, Packet &packet) {
    const Port &port = *run.chip.ports.find(packet.port);
    const int *const trunk = find_in(run.chip.groups.trunk_of, kLocalGport.of(packet.port));
    if (trunk != nullptr) packet.trunk = *trunk;
    if (packet.port == kCpuPort) return Verdict::next();
    if (port.link() == 0) return Verdict::end(run, packet, Reason::kPortDown);
    const EthernetHeader &header = packet.headers.ethernet;
    const bool tagged = header.tags > 0 && header.tag[0].vlan() != 0;
    if (is_pause(header)) return Verdict::end(run, packet, Reason::kPause);
    if (discards(port, tagged)) return Verdict::end(run, packet, Reason::kPortDiscards);
    if (!fits(packet, port)) return Verdict::end(run, packet, Reason::kTooLong);
    if (packet.trunk >= 0)
        run.step("port", [&] { return "a member of trunk " + std::to_string(packet.trunk); });
    return Verdict::next();
}

}  // namespace standin
