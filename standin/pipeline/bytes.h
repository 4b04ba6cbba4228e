// Numbers in network order, read and written at any place.
#pragma once
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

namespace standin {

using Bytes = std::vector<std::uint8_t>;
using View = std::span<const std::uint8_t>;

inline std::uint16_t load16(const std::uint8_t *at) {
    return static_cast<std::uint16_t>(at[0] << 8 | at[1]);
}
inline std::uint32_t load32(const std::uint8_t *at) {
    return static_cast<std::uint32_t>(load16(at)) << 16 | load16(at + 2);
}
inline void store16(std::uint8_t *at, unsigned value) {
    at[0] = static_cast<std::uint8_t>(value >> 8);
    at[1] = static_cast<std::uint8_t>(value);
}
inline void store32(std::uint8_t *at, std::uint32_t value) {
    store16(at, value >> 16);
    store16(at + 2, value & 0xffff);
}

// The ones' complement sum of RFC 1071, not complemented; `sum` goes on.
inline std::uint32_t ones_sum(View bytes, std::uint32_t sum = 0) {
    std::size_t i = 0;
    for (; i + 1 < bytes.size(); i += 2) sum += load16(bytes.data() + i);
    if (i < bytes.size()) sum += static_cast<std::uint32_t>(bytes[i]) << 8;
    while (sum > 0xffff) sum = (sum & 0xffff) + (sum >> 16);
    return sum;
}

}  // namespace standin
