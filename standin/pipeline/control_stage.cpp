// Protocols that concern the switch itself: link protocols, ARP, DHCP, IGMP, neighbour discovery.
#include "sdk/constants.h"
#include "standin/pipeline/stages.h"

namespace standin {
namespace {

constexpr std::uint8_t kLinkPrefix[] = {0x01, 0x80, 0xc2, 0x00, 0x00};

// 01:80:c2:00:00:00 to 0f, which no bridge forwards (802.1Q, table 8-1).
bool is_link_address(const std::uint8_t *target) {
    return std::memcmp(target, kLinkPrefix, sizeof kLinkPrefix) == 0 && target[5] < 0x10;
}

struct Protocol {
    bool (*is)(const Headers &);
    int to_processor;  // a switch control
    int drop;          // another, or -1
    int reason;        // for which the processor gets it
};

bool is_dhcp(const Headers &headers) {
    const auto is = [&](unsigned port) {
        return headers.ports->target == port || headers.ports->source == port;
    };
    return headers.ports && headers.ip->protocol == kUdp && (is(67) || is(68));
}

bool is_neighbour(const Headers &headers) {
    return headers.is_ip6() && headers.icmp && headers.icmp->type >= 133 &&
           headers.icmp->type <= 137;
}

constexpr Protocol kProtocols[] = {
    {[](const Headers &one) { return one.arp && one.arp->operation == 1; },
     bcmSwitchArpRequestToCpu, bcmSwitchArpRequestDrop, bcmRxReasonArp},
    {[](const Headers &one) { return one.arp && one.arp->operation == 2; }, bcmSwitchArpReplyToCpu,
     bcmSwitchArpReplyDrop, bcmRxReasonArp},
    {is_dhcp, bcmSwitchDhcpPktToCpu, bcmSwitchDhcpPktDrop, bcmRxReasonDhcp},
    {[](const Headers &one) { return one.is_ip4() && one.ip->protocol == kIgmp; },
     bcmSwitchIgmpPktToCpu, bcmSwitchIgmpPktDrop, bcmRxReasonIgmp},
    {is_neighbour, bcmSwitchNdPktToCpu, bcmSwitchNdPktDrop, bcmRxReasonProtocol},
};

}  // namespace

Verdict control_stage(Run &run, Packet &packet) {
    if (packet.port == kCpuPort) return Verdict::next();
    if (is_link_address(packet.headers.ethernet.target)) {
        const Port &port = *run.chip.ports.find(packet.port);
        if (port.bpdu_enable == 0) return Verdict::end(run, packet, Reason::kReservedAddress);
        add_reason(packet.reasons, bcmRxReasonBpdu);
        run.step("control", [] { return std::string("a link protocol"); });
        processor_stage(run, packet);
        return Verdict::taken();
    }
    for (const Protocol &one : kProtocols) {
        if (!one.is(packet.headers)) continue;
        if (switch_control(run.chip, one.to_processor) != 0) {
            packet.copied = true;
            add_reason(packet.reasons, one.reason);
            run.step("control", [] { return std::string("copied to the processor"); });
        }
        if (switch_control(run.chip, one.drop) == 0) continue;
        if (packet.copied) copy_to_processor(run, packet);
        return Verdict::end(run, packet, Reason::kProtocolDrop);
    }
    return Verdict::next();
}

}  // namespace standin
