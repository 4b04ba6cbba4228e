// Filling in checksums and cutting TCP segments.
#include "standin/pipeline/offload.h"

#include <algorithm>
#include <array>

#include "standin/pipeline/headers.h"

namespace standin {
namespace {

enum TcpFlag : std::uint8_t { kFin = 0x01, kPush = 0x08, kWindowReduced = 0x80 };

// The headers of a segment: lengths, number, flags and sums for its part of the payload.
void fix_segment(Bytes &segment, const Headers &headers, std::size_t index, std::size_t offset,
                 bool last) {
    const IpHeader &ip = *headers.ip;
    std::uint8_t *const packet = segment.data() + ip.at;
    std::uint8_t *const tcp = packet + ip.size;
    const std::size_t total = segment.size() - ip.at;
    if (headers.is_ip4()) {
        store16(packet + 2, static_cast<unsigned>(total));
        store16(packet + 4, (load16(packet + 4) + static_cast<unsigned>(index)) & 0xffff);
        store16(packet + 10, 0);
        store16(packet + 10, ~ones_sum({packet, ip.size}) & 0xffff);
    } else {
        store16(packet + 4, static_cast<unsigned>(total - 40));
    }
    store32(tcp + 4, load32(tcp + 4) + static_cast<std::uint32_t>(offset));
    if (!last) tcp[13] &= static_cast<std::uint8_t>(~(kFin | kPush));
    if (index > 0) tcp[13] &= static_cast<std::uint8_t>(~kWindowReduced);
    store16(tcp + 16, 0);
    const std::size_t size = headers.is_ip4() ? 4 : 16;
    store16(tcp + 16, transport_sum({ip.source.bytes.data(), size}, {ip.target.bytes.data(), size},
                                    kTcp, {tcp, total - ip.size}));
}

std::vector<Bytes> cut(const Bytes &frame, std::size_t most) {
    Headers headers;
    if (parse(frame, headers) || !headers.ip || !headers.ports || headers.ip->protocol != kTcp)
        return {};
    const IpHeader &ip = *headers.ip;
    const std::size_t tcp = ip.at + ip.size;
    const std::size_t start = tcp + static_cast<std::size_t>(frame[tcp + 12] >> 4) * 4;
    const std::size_t end = ip.at + ip.total;
    std::vector<Bytes> segments;
    for (std::size_t at = start; at < end; at += most) {
        const std::size_t size = std::min(most, end - at);
        Bytes segment(frame.begin(), frame.begin() + static_cast<std::ptrdiff_t>(start));
        segment.insert(segment.end(), frame.begin() + static_cast<std::ptrdiff_t>(at),
                       frame.begin() + static_cast<std::ptrdiff_t>(at + size));
        fix_segment(segment, headers, segments.size(), at - start, at + size == end);
        segments.push_back(std::move(segment));
    }
    return segments;
}

}  // namespace

std::uint16_t transport_sum(View source, View target, unsigned protocol, View data) {
    std::array<std::uint8_t, 8> end{};
    store32(end.data(), static_cast<std::uint32_t>(data.size()));
    end[7] = static_cast<std::uint8_t>(protocol);
    const std::uint32_t sum = ones_sum(data, ones_sum(end, ones_sum(target, ones_sum(source))));
    return static_cast<std::uint16_t>(~sum);
}

std::vector<Bytes> finish(Bytes frame, const Offload &offload) {
    if (offload.segment > 0) return cut(frame, offload.segment);
    if (offload.sums) {
        const std::size_t at = offload.from + offload.at;
        if (offload.from > frame.size() || at + 2 > frame.size()) return {};
        const std::uint32_t sum = ones_sum(View(frame).subspan(offload.from));
        const unsigned found = ~sum & 0xffff;
        store16(frame.data() + at, found == 0 ? 0xffff : found);  // 0 says that there is none
    }
    std::vector<Bytes> frames;
    frames.push_back(std::move(frame));
    return frames;
}

void insert_tag(Bytes &frame, unsigned type, unsigned control) {
    if (frame.size() < 2 * kMacSize) return;
    std::array<std::uint8_t, kTagSize> tag{};
    store16(tag.data(), type);
    store16(tag.data() + 2, control);
    frame.insert(frame.begin() + 2 * kMacSize, tag.begin(), tag.end());
}

}  // namespace standin
