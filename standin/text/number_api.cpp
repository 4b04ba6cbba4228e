// Numbers, digits and lines of text: the C functions over number_text.h.
#include <string.h>

#include <algorithm>

#include "sdk/diag/format.h"
#include "sdk/diag/parse.h"
#include "sdk/diag/text.h"
#include "standin/base/number_text.h"
#include "standin/base/scan.h"

using namespace standin;

namespace {

// Longest text of a number of `nval` words must not be asked for with a wild count.
bool words_ok(const uint32 *words, int nval) { return words != nullptr && nval > 0; }

std::span<uint32> words_of(uint32 *words, int nval) {
    return {words, static_cast<std::size_t>(nval)};
}

// dst = dst + src + carry over all words, least significant first; with `invert`, + ~src.
void add_words(std::span<uint32> dst, const uint32 *src, bool invert) {
    std::uint64_t carry = invert ? 1 : 0;
    for (std::size_t at = 0; at < dst.size(); ++at) {
        carry += std::uint64_t{dst[at]} + (invert ? ~src[at] : src[at]);
        dst[at] = static_cast<uint32>(carry);
        carry >>= 32;
    }
}

// `line` with runs of blanks as tabs where they reach a tab stop.
std::string tabified(std::string_view line, std::size_t width) {
    std::string text;
    std::size_t column = 0;
    std::size_t blanks = 0;  // pending
    for (char sign : line) {
        if (sign == ' ') {
            ++blanks;
            if (++column % width != 0) continue;
            text += blanks > 1 ? '\t' : ' ';
            blanks = 0;
            continue;
        }
        if (sign == '\t') {
            column = (column / width + 1) * width;
        } else {
            text.append(blanks, ' ');
            ++column;
        }
        blanks = 0;
        text += sign;
        if (sign == '\n') column = 0;
    }
    return text.append(blanks, ' ');
}

}  // namespace

int isint(char *str) { return read_u32(view_of(str)).has_value() ? 1 : 0; }

uint32 parse_integer(char *str) { return read_u32(view_of(str)).value_or(0); }

sal_vaddr_t parse_address(char *str) {
    return static_cast<sal_vaddr_t>(read_u64(view_of(str)).value_or(0));
}

uint64 parse_uint64(char *str) { return read_u64(view_of(str)).value_or(0); }

void parse_long_integer(uint32 *val, int nval, char *str) {
    if (!words_ok(val, nval)) return;
    if (!read_words(view_of(str), words_of(val, nval))) std::fill_n(val, nval, 0U);
}

void format_long_integer(char *buf, uint32 *val, int nval) {
    if (!words_ok(val, nval)) nval = 0;
    copy_text(buf, words_text(words_of(val, nval)));
}

void format_spec_long_integer(char *buf, uint32 *val, int nval) {
    if (!words_ok(val, nval)) nval = 0;
    copy_text(buf, spec_words_text(words_of(val, nval)));
}

void format_uint64(char *buf, uint64 n) { copy_text(buf, text_of("0x%lx", n)); }

void format_uint64_decimal(char *buf, uint64 n, int comma) {
    copy_text(buf, decimal_text(n, comma != 0));
}

void add_long_integer(uint32 *dst, uint32 *src, int nval) {
    if (words_ok(dst, nval) && src != nullptr) add_words(words_of(dst, nval), src, false);
}

void sub_long_integer(uint32 *dst, uint32 *src, int nval) {
    if (words_ok(dst, nval) && src != nullptr) add_words(words_of(dst, nval), src, true);
}

void neg_long_integer(uint32 *dst, int nval) {
    if (!words_ok(dst, nval)) return;
    std::vector<uint32> value(dst, dst + nval);
    std::fill_n(dst, nval, 0U);
    add_words(words_of(dst, nval), value.data(), true);
}

int i2xdigit(int digit) { return digit >= 0 && digit < 16 ? "0123456789abcdef"[digit] : '?'; }

int xdigit2i(int digit) {
    return digit >= 0 && digit < 128 ? hex_digit(static_cast<char>(digit)) : -1;
}

// memmem takes time in proportion to the texts, whatever they are.
char const *strcaseindex(char const *s, char const *sub) {
    if (s == nullptr || sub == nullptr) return nullptr;
    const std::string text = lower_case(s);
    const std::string part = lower_case(sub);
    const void *at = ::memmem(text.data(), text.size(), part.data(), part.size());
    return at == nullptr ? nullptr : s + (static_cast<const char *>(at) - text.data());
}

char *strrepl(char *s, int start, int len, char const *repstr) {
    if (s == nullptr || start < 0 || len < 0) return s;
    std::string text(s);
    std::size_t at = static_cast<std::size_t>(start);
    if (at > text.size()) return s;
    text.replace(at, static_cast<std::size_t>(len), view_of(repstr));
    return copy_text(s, text);
}

void tabify_line(char *out, char *arg2, int tab_width) {
    std::string_view line = view_of(arg2);
    std::size_t width = tab_width > 0 ? static_cast<std::size_t>(tab_width) : 0;
    copy_text(out, width == 0 ? std::string(line) : tabified(line, width));
}
