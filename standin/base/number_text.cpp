// Parsers and formatters of numbers of 32 and 64 bits.
#include "standin/base/number_text.h"

#include <algorithm>
#include <bit>
#include <vector>

#include "standin/base/scan.h"

namespace standin {
namespace {

// The digits of a number that has been found well-formed, most significant first.
struct Digits {
    unsigned base;
    std::string values;  // one digit value (0 to 15) a character
};

// A ',' must have groups of three behind it and one to three digits before the first.
bool commas_ok(std::string_view text) {
    std::size_t first = text.find(',');
    if (first == std::string_view::npos) return true;
    if (first < 1 || first > 3 || (text.size() - first) % 4 != 0) return false;
    for (std::size_t at = first; at < text.size(); ++at)
        if ((text[at] == ',') != ((at - first) % 4 == 0)) return false;
    return true;
}

std::optional<Digits> read_digits(std::string_view text) {
    Digits out{10, {}};
    if (starts_with_word(text, "0x")) out.base = 16;
    if (starts_with_word(text, "0b")) out.base = 2;
    if (out.base == 10 && !commas_ok(text)) return std::nullopt;
    if (out.base != 10) text.remove_prefix(2);
    char separator = out.base == 10 ? ',' : '_';
    char last = separator;
    for (char sign : text) {
        if (sign != separator) {
            int digit = hex_digit(sign);
            if (digit < 0 || static_cast<unsigned>(digit) >= out.base) return std::nullopt;
            out.values += static_cast<char>(digit);
        } else if (last == separator) {
            return std::nullopt;
        }
        last = sign;
    }
    if (last == separator) return std::nullopt;  // also the empty text
    return out;
}

bool take_minus(std::string_view &text) {
    text = trim(text);
    bool minus = !text.empty() && text.front() == '-';
    if (minus || (!text.empty() && text.front() == '+')) text.remove_prefix(1);
    return minus;
}

std::optional<std::uint64_t> value_of(const Digits &digits) {
    std::uint64_t value = 0;
    for (char digit : digits.values) {
        if (__builtin_mul_overflow(value, std::uint64_t{digits.base}, &value) ||
            __builtin_add_overflow(value, static_cast<std::uint64_t>(digit), &value)) {
            return std::nullopt;
        }
    }
    return value;
}

// The digits as words, least significant first; false if that took more words.
bool fill_words(const Digits &digits, std::span<std::uint32_t> words) {
    std::uint64_t lost = 0;
    std::fill(words.begin(), words.end(), 0U);
    for (char digit : digits.values) {
        std::uint64_t carry = static_cast<std::uint64_t>(digit);
        for (std::uint32_t &word : words) {
            carry += std::uint64_t{word} * digits.base;
            word = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
        lost |= carry;
    }
    return lost == 0;
}

void negate(std::span<std::uint32_t> words) {
    std::uint64_t carry = 1;
    for (std::uint32_t &word : words) {
        carry += static_cast<std::uint32_t>(~word);
        word = static_cast<std::uint32_t>(carry);
        carry >>= 32;
    }
}

unsigned bit_width(std::span<const std::uint32_t> words) {
    std::size_t top = words.size();
    while (top > 0 && words[top - 1] == 0) --top;
    if (top == 0) return 0;
    return static_cast<unsigned>(32 * (top - 1)) +
           static_cast<unsigned>(std::bit_width(words[top - 1]));
}

}  // namespace

std::optional<std::uint64_t> read_u64(std::string_view text) {
    std::optional<Digits> digits = read_digits(trim(text));
    return digits ? value_of(*digits) : std::nullopt;
}

std::optional<std::uint32_t> read_u32(std::string_view text) {
    bool minus = take_minus(text);
    std::optional<Digits> digits = read_digits(text);
    std::optional<std::uint64_t> value = digits ? value_of(*digits) : std::nullopt;
    if (!value || *value > (minus ? 0x80000000U : 0xffffffffU)) return std::nullopt;
    std::uint32_t low = static_cast<std::uint32_t>(*value);
    return minus ? 0U - low : low;
}

std::optional<std::int32_t> read_i32(std::string_view text) {
    std::string_view unsigned_text = text;
    bool minus = take_minus(unsigned_text);
    std::optional<std::uint32_t> value = read_u32(text);
    if (!value || (!minus && *value > 0x7fffffffU)) return std::nullopt;
    return static_cast<std::int32_t>(*value);
}

std::optional<bool> read_truth(std::string_view text) {
    text = trim(text);
    for (std::string_view word : {"yes", "on", "true", "enable"})
        if (same_word(text, word)) return true;
    for (std::string_view word : {"no", "off", "false", "disable"})
        if (same_word(text, word)) return false;
    std::optional<std::uint64_t> number = read_u64(text);
    if (!number) return std::nullopt;
    return *number != 0;
}

bool read_words(std::string_view text, std::span<std::uint32_t> words) {
    bool minus = take_minus(text);
    std::optional<Digits> digits = read_digits(text);
    if (!digits) return false;
    fill_words(*digits, words);
    if (minus) negate(words);
    return true;
}

bool read_words(std::string_view text, std::span<std::uint32_t> words, unsigned bits) {
    bool minus = take_minus(text);
    std::optional<Digits> digits = read_digits(text);
    std::vector<std::uint32_t> value(words.size());
    if (!digits || !fill_words(*digits, value)) return false;
    unsigned width = bit_width(value);
    if (minus && width > 0) {
        // -n takes the bits of n - 1, which are those of its complement turned round, and a sign.
        negate(value);
        std::vector<std::uint32_t> turned(value);
        for (std::uint32_t &word : turned) word = ~word;
        width = bit_width(turned) + 1;
    }
    if (width > bits) return false;
    for (unsigned at = bits; at < 32 * value.size(); ++at) value[at / 32] &= ~(1U << (at % 32));
    std::copy(value.begin(), value.end(), words.begin());
    return true;
}

std::string words_text(std::span<const std::uint32_t> words) {
    while (words.size() > 1 && words.back() == 0) words = words.first(words.size() - 1);
    if (words.empty()) return "0x0";
    std::string out = text_of("0x%x", words.back());
    for (std::size_t left = words.size() - 1; left > 0; --left)
        out += text_of("%08x", words[left - 1]);
    return out;
}

std::string spec_words_text(std::span<const std::uint32_t> words) {
    if (words.empty()) return "0x0";
    std::string out = text_of("0x%08x", words.back());
    for (std::size_t left = words.size() - 1; left > 0; --left)
        out += text_of("_%08x", words[left - 1]);
    return out;
}

std::string decimal_text(std::uint64_t number, bool comma) {
    std::string out = std::to_string(number);
    if (!comma) return out;
    for (std::size_t at = out.size(); at > 3; at -= 3) out.insert(at - 3, 1, ',');
    return out;
}

std::string hex_text(const void *bytes, std::size_t size) {
    constexpr const char *kDigits = "0123456789abcdef";
    std::string text;
    for (std::size_t i = 0; i < size; ++i) {
        const auto byte = static_cast<const unsigned char *>(bytes)[i];
        text += kDigits[byte >> 4];
        text += kDigits[byte & 0xf];
    }
    return text;
}

std::string mac_text(const std::uint8_t *mac) {
    std::string text;
    for (int i = 0; i < 6; ++i) text += (i == 0 ? "" : ":") + hex_text(mac + i, 1);
    return text;
}

}  // namespace standin
