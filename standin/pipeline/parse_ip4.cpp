// IPv4 (RFC 791).
//
//     0          1        2         4       6             8    9         10        12      16    20
//     +----------+--------+---------+-------+-------------+----+---------+---------+-------+-----+
//     |4, words  |service | total   | id    |flags, offset|hops|protocol |checksum |source |target
//
// The first byte has the length of the header in words; options follow the 20 bytes.
#include "standin/pipeline/headers.h"

namespace standin {

std::optional<Reason> parse_ip4(View frame, std::size_t at, IpHeader &header) {
    constexpr std::size_t kSize = 20;
    const View packet = frame.subspan(at);
    if (packet.size() < kSize) return Reason::kTruncated;
    const std::uint8_t *const first = packet.data();
    header.at = at;
    header.size = static_cast<std::size_t>(first[0] & 0xf) * 4;
    header.total = load16(first + 2);
    if (first[0] >> 4 != 4 || header.size < kSize || header.total < header.size)
        return Reason::kBadHeader;
    if (packet.size() < header.total) return Reason::kTruncated;
    header.service = first[1];
    header.flags = static_cast<std::uint8_t>(first[6] >> 5 & 3);
    header.fragment = load16(first + 6) & 0x1fff;
    header.hops = first[8];
    header.protocol = first[9];
    header.source = ip4_address(load32(first + 12));
    header.target = ip4_address(load32(first + 16));
    header.options = header.size > kSize;
    header.checksum_right = ones_sum(packet.first(header.size)) == 0xffff;
    return std::nullopt;
}

}  // namespace standin
