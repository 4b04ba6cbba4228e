// From the bytes of a frame to its headers, layer by layer.
#include "standin/pipeline/headers.h"

namespace standin {

std::optional<Reason> parse(View frame, Headers &headers) {
    if (const auto fault = parse_ethernet(frame, headers.ethernet)) return fault;
    const std::size_t at = headers.ethernet.payload;
    switch (headers.ethernet.type) {
        case kTypeArp:
            return parse_arp(frame.subspan(at), headers.arp);
        case kTypeIp4:
            if (const auto fault = parse_ip4(frame, at, headers.ip.emplace())) return fault;
            return parse_transport(frame, headers);
        case kTypeIp6:
            if (const auto fault = parse_ip6(frame, at, headers.ip.emplace())) return fault;
            return parse_transport(frame, headers);
        default:
            return std::nullopt;
    }
}

}  // namespace standin
