// What IP carries: TCP (RFC 9293), UDP (RFC 768) and ICMP (RFC 792, RFC 4443), as far as a switch
// looks into them. Fragments behind the first have no such header.
//
//     TCP   source 2 | target 2 | sequence 4 | answer 4 | words 4 bits .. flags 8 bits | ...   20
//     UDP   source 2 | target 2 | length 2 | checksum 2                                         8
//     ICMP  type 1 | code 1 | checksum 2 | ...                                                  8
#include "standin/pipeline/headers.h"

namespace standin {

std::optional<Reason> parse_transport(View frame, Headers &headers) {
    const IpHeader &ip = *headers.ip;
    if (ip.fragment != 0) return std::nullopt;
    const View data = frame.subspan(ip.at + ip.size, ip.total - ip.size);
    const std::uint8_t *const at = data.data();
    switch (ip.protocol) {
        case kTcp:
            if (data.size() < 20) return Reason::kTruncated;
            if (at[12] >> 4 < 5) return Reason::kBadHeader;
            if (data.size() < static_cast<std::size_t>(at[12] >> 4) * 4) return Reason::kTruncated;
            headers.ports = PortsHeader{load16(at), load16(at + 2), at[13]};
            return std::nullopt;
        case kUdp:
            if (data.size() < 8) return Reason::kTruncated;
            if (load16(at + 4) < 8) return Reason::kBadHeader;
            if (!ip.is_fragment() && data.size() < load16(at + 4)) return Reason::kTruncated;
            headers.ports = PortsHeader{load16(at), load16(at + 2), 0};
            return std::nullopt;
        case kIcmp:
        case kIcmp6:
            if ((ip.protocol == kIcmp6) != headers.is_ip6()) return std::nullopt;
            if (data.size() < 4) return Reason::kTruncated;
            headers.icmp = IcmpHeader{at[0], at[1]};
            return std::nullopt;
        default:
            return std::nullopt;
    }
}

}  // namespace standin
