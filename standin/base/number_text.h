// Numbers as text.
//
// Forms that every number parser reads, blanks around it allowed, letters of either case:
//   123  1,234,567   decimal, with a ',' between groups of three or without
//   0x1f  0x1_f      hexadecimal, '_' allowed between digits
//   0b101            binary, the same
// and a '-' or '+' before it where the parser says so. A leading 0 does not mean octal.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace standin {

// A whole number of at most 64 bits without a sign; nothing if it is none or too large.
std::optional<std::uint64_t> read_u64(std::string_view text);

// A number from -2^31 to 2^32 - 1, a negative one as its two's complement.
std::optional<std::uint32_t> read_u32(std::string_view text);

// A number from -2^31 to 2^31 - 1.
std::optional<std::int32_t> read_i32(std::string_view text);

// yes, on, true, enable or a number other than 0; no, off, false, disable or 0.
std::optional<bool> read_truth(std::string_view text);

// The number as 32-bit words, least significant word first, modulo 2^(32 * words.size()); a '-'
// gives the two's complement. False, with the words untouched, if it is no number.
bool read_words(std::string_view text, std::span<std::uint32_t> words);

// The same for a number of `bits` bits at most, or a negative one that they hold; false for any
// other. REQUIRES: the words have so many bits.
bool read_words(std::string_view text, std::span<std::uint32_t> words, unsigned bits);

// "0x" and the digits without leading zeros; at most 2 + 8 * words.size() characters. "0x0" for
// none.
std::string words_text(std::span<const std::uint32_t> words);

// "0x" and all digits, '_' between words: 1 + 9 * words.size() characters, "0x0" for none.
std::string spec_words_text(std::span<const std::uint32_t> words);

// Decimal digits, with a ',' between groups of three or without; at most 26 characters.
std::string decimal_text(std::uint64_t number, bool comma);

// "0a0b": two digits a byte.
std::string hex_text(const void *bytes, std::size_t size);

// "02:00:00:00:00:0a"
std::string mac_text(const std::uint8_t *bytes);

}  // namespace standin
