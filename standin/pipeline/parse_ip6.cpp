// IPv6 and its extension headers (RFC 8200).
//
//     0                  4         6      7     8         24        40
//     +------------------+---------+------+-----+---------+---------+---- extension headers
//     |6, class, flow    | payload | next |hops | source  | target  |
//
//     an extension header:  next | its length in units of 8 bytes, less one | ...
#include <algorithm>

#include "standin/pipeline/headers.h"

namespace standin {
namespace {

constexpr std::size_t kSize = 40;
constexpr std::size_t kUnit = 8;

bool is_extension(std::uint8_t next) {
    return next == kIp6HopByHop || next == kIp6Routing || next == kIp6Fragment ||
           next == kIp6Options;
}

IpAddress address_at(const std::uint8_t *first) {
    IpAddress address{true, {}};
    std::copy_n(first, address.bytes.size(), address.bytes.begin());
    return address;
}

}  // namespace

std::optional<Reason> parse_ip6(View frame, std::size_t at, IpHeader &header) {
    const View packet = frame.subspan(at);
    if (packet.size() < kSize) return Reason::kTruncated;
    const std::uint8_t *const first = packet.data();
    if (first[0] >> 4 != 6) return Reason::kBadHeader;
    header.at = at;
    header.total = kSize + load16(first + 4);
    if (packet.size() < header.total) return Reason::kTruncated;
    header.service = static_cast<std::uint8_t>(load16(first) >> 4);
    header.flow = load32(first) & 0xfffff;
    header.hops = first[7];
    header.source = address_at(first + 8);
    header.target = address_at(first + 24);
    header.size = kSize;
    header.protocol = first[6];
    while (is_extension(header.protocol) && header.fragment == 0) {
        if (header.total - header.size < kUnit) return Reason::kBadHeader;
        const std::uint8_t *const next = first + header.size;
        const std::size_t size = header.protocol == kIp6Fragment ? kUnit : (next[1] + 1u) * kUnit;
        if (header.total - header.size < size) return Reason::kBadHeader;
        if (header.protocol == kIp6HopByHop) header.options = true;
        if (header.protocol == kIp6Fragment) {
            header.fragment = static_cast<std::uint16_t>(load16(next + 2) >> 3);
            header.flags = next[3] & 1;
        }
        header.protocol = next[0];
        header.size += size;
    }
    return std::nullopt;
}

}  // namespace standin
