// What the parsers find in a frame. Each of them checks the lengths of its own header once; the
// stages read these records and never the bytes.
#pragma once
#include <cstddef>
#include <cstdint>
#include <optional>

#include "standin/model/l3.h"
#include "standin/pipeline/bytes.h"
#include "standin/pipeline/reasons.h"

namespace standin {

constexpr std::size_t kMacSize = 6;
constexpr std::size_t kTagSize = 4;
constexpr std::size_t kEthernetSize = 14;
constexpr std::size_t kChecksumSize = 4;  // of the frame, on the wire only

enum EtherType : std::uint16_t {
    kTypeIp4 = 0x0800,
    kTypeArp = 0x0806,
    kTypeTag = 0x8100,
    kTypeIp6 = 0x86dd,
    kTypePause = 0x8808,
    kTypeServiceTag = 0x88a8,
    kTypeOldTag = 0x9100
};

enum IpProtocol : std::uint8_t {
    kIcmp = 1,
    kIgmp = 2,
    kTcp = 6,
    kUdp = 17,
    kIp6HopByHop = 0,
    kIp6Routing = 43,
    kIp6Fragment = 44,
    kIcmp6 = 58,
    kNoNextHeader = 59,
    kIp6Options = 60
};

struct Tag {
    std::uint16_t type = kTypeTag;
    std::uint16_t control = 0;  // 3 bits of priority, the drop bit, 12 bits of VLAN

    std::uint16_t vlan() const { return control & 0xfff; }
    std::uint8_t priority() const { return static_cast<std::uint8_t>(control >> 13); }
    std::uint8_t drop_bit() const { return control >> 12 & 1; }
};

struct EthernetHeader {
    const std::uint8_t *target = nullptr;
    const std::uint8_t *source = nullptr;
    int tags = 0;             // 0 to 2
    Tag tag[2];               // the outer one first
    std::uint16_t type = 0;   // 0: a length stood in its place
    std::size_t payload = 0;  // where what follows the tags and the type begins

    bool is_group() const { return (target[0] & 1) != 0; }
    bool is_broadcast() const;
};

struct ArpHeader {
    std::uint16_t operation = 0;  // 1 asks, 2 answers
    std::uint32_t sender = 0;
    std::uint32_t target = 0;
};

// Of either version.
struct IpHeader {
    IpAddress source;
    IpAddress target;
    std::size_t at = 0;     // where it begins in the frame
    std::size_t size = 0;   // with options or extension headers
    std::size_t total = 0;  // with what it carries
    std::uint8_t service = 0;
    std::uint8_t hops = 0;
    std::uint8_t protocol = 0;   // of what it carries
    std::uint8_t flags = 0;      // bit 0 more fragments, bit 1 do not fragment
    std::uint16_t fragment = 0;  // offset in units of 8 bytes
    std::uint32_t flow = 0;
    bool options = false;        // IPv4 options, or a hop-by-hop header
    bool checksum_right = true;  // IPv6 has none

    bool is_fragment() const { return fragment != 0 || (flags & 1) != 0; }
};

struct PortsHeader {  // TCP and UDP
    std::uint16_t source = 0;
    std::uint16_t target = 0;
    std::uint8_t flags = 0;  // of TCP
};

struct IcmpHeader {
    std::uint8_t type = 0;
    std::uint8_t code = 0;
};

struct Headers {
    EthernetHeader ethernet;
    std::optional<ArpHeader> arp;
    std::optional<IpHeader> ip;
    std::optional<PortsHeader> ports;
    std::optional<IcmpHeader> icmp;

    bool is_ip4() const { return ip && !ip->source.ip6; }
    bool is_ip6() const { return ip && ip->source.ip6; }
};

// Nothing if the whole frame could be read, else what is wrong with it.
std::optional<Reason> parse(View frame, Headers &headers);

// The parts of `parse`, a file each.
std::optional<Reason> parse_ethernet(View frame, EthernetHeader &header);
std::optional<Reason> parse_arp(View payload, std::optional<ArpHeader> &header);
std::optional<Reason> parse_ip4(View frame, std::size_t at, IpHeader &header);
std::optional<Reason> parse_ip6(View frame, std::size_t at, IpHeader &header);
std::optional<Reason> parse_transport(View frame, Headers &headers);

}  // namespace standin
