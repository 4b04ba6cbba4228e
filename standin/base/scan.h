// Small readers of text, shared by every parser: ASCII only, independent of the locale.
#pragma once

#include <cstdarg>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace standin {

constexpr bool is_blank(char sign) { return sign == ' ' || (sign >= '\t' && sign <= '\r'); }
constexpr bool is_digit(char sign) { return sign >= '0' && sign <= '9'; }
constexpr char to_lower(char sign) {
    return sign >= 'A' && sign <= 'Z' ? static_cast<char>(sign - 'A' + 'a') : sign;
}
constexpr bool is_alpha(char sign) { return to_lower(sign) >= 'a' && to_lower(sign) <= 'z'; }
constexpr bool is_alnum(char sign) { return is_digit(sign) || is_alpha(sign); }
constexpr bool is_printable(char sign) { return sign >= ' ' && sign <= '~'; }

// The value of a hexadecimal digit, or -1.
constexpr int hex_digit(char sign) {
    if (is_digit(sign)) return sign - '0';
    char low = to_lower(sign);
    return low >= 'a' && low <= 'f' ? low - 'a' + 10 : -1;
}

// `text` without the blanks at its start, or at both ends.
constexpr std::string_view trim_left(std::string_view text) {
    while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
    return text;
}
constexpr std::string_view trim(std::string_view text) {
    text = trim_left(text);
    while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
    return text;
}

// A null pointer reads as the empty text, which every parser refuses in its own way.
constexpr std::string_view view_of(const char *text) {
    return text != nullptr ? std::string_view(text) : std::string_view();
}

// Comparison and prefix test without regard to case.
bool same_word(std::string_view left, std::string_view right);
bool starts_with_word(std::string_view text, std::string_view prefix);

std::string lower_case(std::string_view text);

// The parts of `text` between the signs in `separators`, blanks around each dropped, empty parts
// kept. An empty text has no parts.
std::vector<std::string_view> split(std::string_view text, std::string_view separators);

// Splits at the first `sign`: false, with `head` all of it, when there is none.
bool cut(std::string_view text, char sign, std::string_view &head, std::string_view &tail);

// Writes `text` and a zero byte into `buf`, at most `bufsize` bytes in all. A text that does not
// fit is cut and ends in as many dots as there is room for, up to three: no parser reads such a
// text back as something else. Returns `buf`, or null, with nothing written, for a null `buf` or a
// `bufsize` below 1.
char *copy_text(char *buf, std::int64_t bufsize, std::string_view text);

// The same for the operations without a size: the caller has given room for the longest text.
char *copy_text(char *buf, std::string_view text);

// "%x" and the like, as a text.
[[gnu::format(printf, 1, 2)]] std::string text_of(const char *format, ...);
[[gnu::format(printf, 1, 0)]] std::string text_of_list(const char *format, std::va_list arguments);

}  // namespace standin
