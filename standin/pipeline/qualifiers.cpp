// What each qualifier means of a packet.
#include <algorithm>
#include <cstring>
#include <iterator>

#include "sdk/constants.h"
#include "standin/model/tables.h"
#include "standin/pipeline/packet.h"
#include "standin/pipeline/stages.h"

namespace standin {
namespace {

using Number = std::optional<std::uint64_t>;
using Ask = Number (*)(const Subject &);

Number tag_of(const Subject &subject) {
    const Packet &packet = subject.packet;
    return packet.priority << 13 | packet.drop_bit << 12 | packet.vid;
}
const Tag *inner_of(const Subject &subject) {
    const EthernetHeader &ethernet = subject.packet.headers.ethernet;
    return ethernet.tags == 2 ? &ethernet.tag[1] : nullptr;
}
const IpHeader *ip_of(const Subject &subject, bool ip6) {
    const auto &ip = subject.packet.headers.ip;
    return ip && ip->source.ip6 == ip6 ? &*ip : nullptr;
}

#define PACKET(what) [](const Subject &subject) -> Number { return subject.packet.what; }
#define ETHERNET(what) \
    [](const Subject &subject) -> Number { return subject.packet.headers.ethernet.what; }
// Of a part of the headers that may not be there.
#define PART(part, what)                                                       \
    [](const Subject &subject) -> Number {                                     \
        const auto &part = subject.packet.headers.part;                        \
        return part ? Number(static_cast<std::uint64_t>(what)) : std::nullopt; \
    }
#define INNER(what)                                                   \
    [](const Subject &subject) -> Number {                            \
        const Tag *const inner = inner_of(subject);                   \
        return inner != nullptr ? Number(inner->what) : std::nullopt; \
    }
#define IP(version, what)                                                               \
    [](const Subject &subject) -> Number {                                              \
        const IpHeader *const ip = ip_of(subject, (version) == 6);                      \
        return ip != nullptr ? Number(static_cast<std::uint64_t>(what)) : std::nullopt; \
    }

struct NumberRow {
    int qualifier;
    Ask ask;
};

constexpr NumberRow kNumbers[] = {
    {bcmFieldQualifyInPort, PACKET(port)},
    {bcmFieldQualifySrcTrunk,
     [](const Subject &subject) -> Number {
         const int trunk = subject.packet.trunk;
         return trunk >= 0 ? Number(static_cast<std::uint64_t>(trunk)) : std::nullopt;
     }},
    {bcmFieldQualifyOutPort,
     [](const Subject &subject) -> Number {
         if (subject.out >= 0) return subject.out;
         const Way &way = subject.packet.way;
         return way.kind == Way::Kind::kPort ? Number(way.number) : std::nullopt;
     }},
    {bcmFieldQualifyEtherType, ETHERNET(type)},
    {bcmFieldQualifyOuterVlan, tag_of},
    {bcmFieldQualifyOuterVlanId, PACKET(vid)},
    {bcmFieldQualifyForwardingVlanId, PACKET(vid)},
    {bcmFieldQualifyOuterVlanPri, PACKET(priority)},
    {bcmFieldQualifyOuterVlanCfi, PACKET(drop_bit)},
    {bcmFieldQualifyInnerVlan, INNER(control)},
    {bcmFieldQualifyInnerVlanId, INNER(vlan())},
    {bcmFieldQualifyInnerVlanPri, INNER(priority())},
    {bcmFieldQualifyInnerVlanCfi, INNER(drop_bit())},
    {bcmFieldQualifySrcIp, IP(4, load32(ip->source.bytes.data()))},
    {bcmFieldQualifyDstIp, IP(4, load32(ip->target.bytes.data()))},
    {bcmFieldQualifyIpProtocol, PART(ip, ip->protocol)},
    {bcmFieldQualifyIp6NextHeader, IP(6, ip->protocol)},
    {bcmFieldQualifyDSCP, PART(ip, ip->service >> 2)},
    {bcmFieldQualifyTos, PART(ip, ip->service)},
    {bcmFieldQualifyEcnValue, PART(ip, ip->service & 3)},
    {bcmFieldQualifyIp6TrafficClass, IP(6, ip->service)},
    {bcmFieldQualifyTtl, PART(ip, ip->hops)},
    {bcmFieldQualifyIp6HopLimit, IP(6, ip->hops)},
    {bcmFieldQualifyIpFlags, IP(4, ip->flags)},
    {bcmFieldQualifyIp6FlowLabel, IP(6, ip->flow)},
    {bcmFieldQualifyPacketLength, PART(ip, ip->total)},
    {bcmFieldQualifySrcIpEqualDstIp, PART(ip, ip->source == ip->target)},
    {bcmFieldQualifyL4SrcPort, PART(ports, ports->source)},
    {bcmFieldQualifyL4DstPort, PART(ports, ports->target)},
    {bcmFieldQualifyEqualL4Port, PART(ports, ports->source == ports->target)},
    {bcmFieldQualifyTcpControl,
     [](const Subject &subject) -> Number {
         const Headers &headers = subject.packet.headers;
         return headers.ports && headers.ip->protocol == kTcp ? Number(headers.ports->flags)
                                                              : std::nullopt;
     }},
    {bcmFieldQualifyIcmpTypeCode, PART(icmp, icmp->type << 8 | icmp->code)},
    {bcmFieldQualifyArpSenderIp4, PART(arp, arp->sender)},
    {bcmFieldQualifyArpTargetIp4, PART(arp, arp->target)},
    {bcmFieldQualifyIntPriority,
     [](const Subject &subject) -> Number {
         return static_cast<std::uint64_t>(subject.packet.internal_priority);
     }},
    {bcmFieldQualifyVrf, PACKET(vrf)},
    {bcmFieldQualifyL3Routable, PACKET(station)},
    {bcmFieldQualifyMyStationHit, PACKET(station)},
    {bcmFieldQualifyL2SrcHit, PACKET(source_known)},
    {bcmFieldQualifyL2DestHit, PACKET(target_known)},
    {bcmFieldQualifyL3DestHostHit, PACKET(host_known)},
    {bcmFieldQualifyL3DestRouteHit, PACKET(route_known)},
};

#undef PACKET
#undef ETHERNET
#undef PART
#undef INNER
#undef IP

const std::uint8_t *bytes_of(int qualifier, const Subject &subject, std::size_t &size) {
    const Headers &headers = subject.packet.headers;
    size = kMacSize;
    switch (qualifier) {
        case bcmFieldQualifySrcMac:
            return headers.ethernet.source;
        case bcmFieldQualifyDstMac:
            return headers.ethernet.target;
        case bcmFieldQualifySrcIp6:
            size = 16;
            return headers.is_ip6() ? headers.ip->source.bytes.data() : nullptr;
        case bcmFieldQualifyDstIp6:
            size = 16;
            return headers.is_ip6() ? headers.ip->target.bytes.data() : nullptr;
        default:
            return nullptr;
    }
}

constexpr int kAddresses[] = {bcmFieldQualifySrcMac, bcmFieldQualifyDstMac, bcmFieldQualifySrcIp6,
                              bcmFieldQualifyDstIp6};

bool is_ip_type(const Headers &headers, int type) {
    const bool ip4 = headers.is_ip4();
    const bool ip6 = headers.is_ip6();
    switch (type) {
        case bcmFieldIpTypeAny:
            return true;
        case bcmFieldIpTypeNonIp:
            return !headers.ip;
        case bcmFieldIpTypeIpv4Not:
            return !ip4;
        case bcmFieldIpTypeIpv4NoOpts:
            return ip4 && !headers.ip->options;
        case bcmFieldIpTypeIpv4WithOpts:
            return ip4 && headers.ip->options;
        case bcmFieldIpTypeIpv4Any:
            return ip4;
        case bcmFieldIpTypeIpv6Not:
            return !ip6;
        case bcmFieldIpTypeIpv6NoExtHdr:
            return ip6 && headers.ip->size == 40;
        case bcmFieldIpTypeIpv6:
            return ip6;
        case bcmFieldIpTypeIp:
            return headers.ip.has_value();
        case bcmFieldIpTypeArp:
            return headers.arp.has_value();
        case bcmFieldIpTypeArpRequest:
            return headers.arp && headers.arp->operation == 1;
        case bcmFieldIpTypeArpReply:
            return headers.arp && headers.arp->operation == 2;
        default:
            return false;
    }
}

bool is_fragment(const Headers &headers, int kind) {
    if (!headers.ip) return false;
    const bool first = headers.ip->fragment == 0;
    const bool part = headers.ip->is_fragment();
    switch (kind) {
        case bcmFieldIpFragNon:
            return !part;
        case bcmFieldIpFragFirst:
            return part && first;
        case bcmFieldIpFragNonOrFirst:
            return first;
        case bcmFieldIpFragNotFirst:
            return !first;
        default:
            return part;
    }
}

bool is_protocol(const Headers &headers, int protocol) {
    if (!headers.ip) return false;
    const int found = headers.ip->protocol;
    switch (protocol) {
        case bcmFieldIpProtocolCommonTcp:
            return found == kTcp;
        case bcmFieldIpProtocolCommonUdp:
            return found == kUdp;
        case bcmFieldIpProtocolCommonIgmp:
            return found == kIgmp;
        case bcmFieldIpProtocolCommonIcmp:
            return found == kIcmp;
        case bcmFieldIpProtocolCommonIp6Icmp:
            return found == kIcmp6;
        case bcmFieldIpProtocolCommonTcpUdp:
            return found == kTcp || found == kUdp;
        default:
            return false;
    }
}

// The number at a place of the bytes as the call gave them.
template <class T>
T given(const std::vector<std::uint8_t> &bytes, std::size_t at = 0) {
    T value{};
    if (at + sizeof value <= bytes.size()) std::memcpy(&value, bytes.data() + at, sizeof value);
    return value;
}

// Flags of a range that have no constants: which numbers it looks at; none of them means the
// target.
constexpr std::uint32_t kRangeSource = 0x1;
constexpr std::uint32_t kRangeTarget = 0x2;

bool in_part(const PortsHeader &ports, const FieldRange::Part &part) {
    const auto inside = [&](unsigned port) { return port >= part.min && port <= part.max; };
    const bool none = (part.flags & (kRangeSource | kRangeTarget)) == 0;
    return ((none || (part.flags & kRangeTarget) != 0) && inside(ports.target)) ||
           ((part.flags & kRangeSource) != 0 && inside(ports.source));
}

}  // namespace

QualifierKind kind_of(int qualifier) {
    if (std::ranges::find(kNumbers, qualifier, &NumberRow::qualifier) != std::end(kNumbers) ||
        std::ranges::find(kAddresses, qualifier) != std::end(kAddresses))
        return QualifierKind::kValue;
    switch (qualifier) {
        case bcmFieldQualifyInPorts:
        case bcmFieldQualifySrcPort:
        case bcmFieldQualifyIpType:
        case bcmFieldQualifyIpFrag:
        case bcmFieldQualifyIpProtocolCommon:
        case bcmFieldQualifyL2Format:
        case bcmFieldQualifyArpOpcode:
        case bcmFieldQualifyColor:
        case bcmFieldQualifyStpState:
            return QualifierKind::kCondition;
        default:
            return QualifierKind::kUnknown;
    }
}

bool value_of(int qualifier, const Subject &subject, std::uint8_t *value, std::size_t size) {
    const auto row = std::ranges::find(kNumbers, qualifier, &NumberRow::qualifier);
    if (row != std::end(kNumbers)) {
        const Number number = row->ask(subject);
        if (!number || size > sizeof *number) return false;
        std::memcpy(value, &*number, size);
        return true;
    }
    std::size_t length = 0;
    const std::uint8_t *const bytes = bytes_of(qualifier, subject, length);
    if (bytes == nullptr || length != size) return false;
    std::memcpy(value, bytes, size);
    return true;
}

bool holds(int qualifier, const Subject &subject, const std::vector<std::uint8_t> &bytes) {
    const Packet &packet = subject.packet;
    const Headers &headers = packet.headers;
    switch (qualifier) {
        case bcmFieldQualifyInPorts: {
            const auto data = given<bcm_pbmp_t>(bytes);
            const auto mask = given<bcm_pbmp_t>(bytes, sizeof data);
            return !has_port(mask, packet.port) || has_port(data, packet.port);
        }
        case bcmFieldQualifySrcPort:  // module and its mask, port and its mask
            return (given<bcm_module_t>(bytes) & given<bcm_module_t>(bytes, 4)) == 0 &&
                   ((packet.port ^ given<bcm_port_t>(bytes, 8)) & given<bcm_port_t>(bytes, 12)) ==
                       0;
        case bcmFieldQualifyIpType:
            return is_ip_type(headers, given<int>(bytes));
        case bcmFieldQualifyIpFrag:
            return is_fragment(headers, given<int>(bytes));
        case bcmFieldQualifyIpProtocolCommon:
            return is_protocol(headers, given<int>(bytes));
        case bcmFieldQualifyL2Format:
            return given<int>(bytes) == bcmFieldL2FormatAny ||
                   (headers.ethernet.type != 0 ? given<int>(bytes) == bcmFieldL2FormatEthII
                                               : given<int>(bytes) == bcmFieldL2Format802dot3);
        case bcmFieldQualifyArpOpcode:
            return headers.arp && headers.arp->operation == given<int>(bytes) + 1;
        case bcmFieldQualifyColor:
            return bytes.size() == 1 && packet.color == bytes[0];
        case bcmFieldQualifyStpState:
            return bytes.size() == 1 && packet.stp == bytes[0];
        default:
            return false;
    }
}

bool tests_ports(int qualifier) {
    return qualifier == bcmFieldQualifyRangeCheck || qualifier == bcmFieldQualifyL4PortRangeCheck;
}

bool in_ranges(const Subject &subject, const FieldEntry &rule) {
    const auto &ports = subject.packet.headers.ports;
    for (const auto &[qualifier, checks] : rule.ranges)
        for (const auto &[id, inverted] : checks) {
            const FieldRange *const range = find_in(subject.chip.field.ranges, id);
            if (range == nullptr || !ports) return false;
            const bool inside = std::ranges::any_of(
                range->parts, [&](const FieldRange::Part &part) { return in_part(*ports, part); });
            if (inside == (inverted != 0)) return false;
        }
    return true;
}

}  // namespace standin
