// ARP of IPv4 over Ethernet (RFC 826).
//
//     0         2        4    5    6           8          14         18         24       28
//     +---------+--------+----+----+-----------+----------+----------+----------+--------+
//     | hardware|protocol| 6  | 4  | operation |sender MAC|sender IP |target MAC|target  |
//
// Other pairs of address families are carried as any other payload.
#include "standin/pipeline/headers.h"

namespace standin {

std::optional<Reason> parse_arp(View payload, std::optional<ArpHeader> &header) {
    constexpr std::size_t kSize = 28;
    if (payload.size() < 8) return Reason::kTruncated;
    const std::uint8_t *const at = payload.data();
    if (load16(at) != 1 || load16(at + 2) != kTypeIp4) return std::nullopt;
    if (at[4] != 6 || at[5] != 4) return Reason::kBadHeader;
    if (payload.size() < kSize) return Reason::kTruncated;
    header = ArpHeader{load16(at + 6), load32(at + 14), load32(at + 24)};
    return std::nullopt;
}

}  // namespace standin
