// Ethernet with up to two tags.
//
//     0       6       12     14
//     +-------+-------+------+----
//     | target| source| type | ...           untagged
//     +-------+-------+------+------+----
//     | target| source| tag (type, control) | type | ...
//
// A third tag is payload of its type. A number below 0x600 in the place of the type is a length.
#include <algorithm>

#include "standin/pipeline/headers.h"

namespace standin {
namespace {

constexpr std::uint16_t kFirstType = 0x600;

bool is_tag(std::uint16_t type) {
    return type == kTypeTag || type == kTypeServiceTag || type == kTypeOldTag;
}

}  // namespace

bool EthernetHeader::is_broadcast() const {
    return std::all_of(target, target + kMacSize, [](std::uint8_t byte) { return byte == 0xff; });
}

std::optional<Reason> parse_ethernet(View frame, EthernetHeader &header) {
    if (frame.size() < kEthernetSize) return Reason::kTooShort;
    header.target = frame.data();
    header.source = frame.data() + kMacSize;
    std::size_t at = 2 * kMacSize;
    std::uint16_t type = load16(frame.data() + at);
    while (header.tags < 2 && is_tag(type)) {
        if (frame.size() < at + kTagSize + 2) return Reason::kTruncated;
        header.tag[header.tags++] = {type, load16(frame.data() + at + 2)};
        at += kTagSize;
        type = load16(frame.data() + at);
    }
    header.payload = at + 2;
    if (type >= kFirstType)
        header.type = type;
    else if (type > frame.size() - header.payload)
        return Reason::kTruncated;
    return std::nullopt;
}

}  // namespace standin
