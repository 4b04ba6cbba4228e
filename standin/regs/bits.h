// Bits of a value that stands in words of 32 bits, least word first.
#pragma once
#include <algorithm>
#include <cstdint>
#include <span>

namespace standin {

// The lowest `bits` bits set.
constexpr std::uint64_t low_mask(unsigned bits) {
    return bits >= 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << bits) - 1;
}

// `bits` bits, up to 64, from bit `first`. REQUIRES: they lie in `words`.
constexpr std::uint64_t get_bits(std::span<const std::uint32_t> words, unsigned first,
                                 unsigned bits) {
    std::uint64_t value = 0;
    for (unsigned done = 0; done < bits;) {
        const unsigned at = first + done;
        const unsigned part = std::min(bits - done, 32 - at % 32);
        const std::uint64_t piece = words[at / 32] >> at % 32 & low_mask(part);
        value |= piece << done;
        done += part;
    }
    return value;
}

// Puts the lowest `bits` bits of `value` there. REQUIRES: as above.
constexpr void put_bits(std::span<std::uint32_t> words, unsigned first, unsigned bits,
                        std::uint64_t value) {
    for (unsigned done = 0; done < bits;) {
        const unsigned at = first + done;
        const unsigned part = std::min(bits - done, 32 - at % 32);
        const auto mask = static_cast<std::uint32_t>(low_mask(part)) << at % 32;
        const auto piece = static_cast<std::uint32_t>(value >> done) << at % 32 & mask;
        words[at / 32] = (words[at / 32] & ~mask) | piece;
        done += part;
    }
}

}  // namespace standin
