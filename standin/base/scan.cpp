// Cutting, trimming and comparing text without regard to the locale.
#include "standin/base/scan.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace standin {

bool same_word(std::string_view left, std::string_view right) {
    return left.size() == right.size() && starts_with_word(left, right);
}

bool starts_with_word(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() &&
           std::equal(prefix.begin(), prefix.end(), text.begin(),
                      [](char left, char right) { return to_lower(left) == to_lower(right); });
}

std::string lower_case(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(), to_lower);
    return out;
}

std::vector<std::string_view> split(std::string_view text, std::string_view separators) {
    std::vector<std::string_view> parts;
    if (trim(text).empty()) return parts;
    while (true) {
        std::size_t end = text.find_first_of(separators);
        parts.push_back(trim(text.substr(0, end)));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

bool cut(std::string_view text, char sign, std::string_view &head, std::string_view &tail) {
    std::size_t at = text.find(sign);
    head = text.substr(0, at);
    tail = at == std::string_view::npos ? std::string_view() : text.substr(at + 1);
    return at != std::string_view::npos;
}

char *copy_text(char *buf, std::int64_t bufsize, std::string_view text) {
    if (buf == nullptr || bufsize < 1) return nullptr;
    std::size_t room = static_cast<std::size_t>(bufsize) - 1;
    std::size_t length = std::min(room, text.size());
    std::memcpy(buf, text.data(), length);
    if (length < text.size()) {
        std::size_t dots = std::min<std::size_t>(3, length);
        std::memset(buf + length - dots, '.', dots);
    }
    buf[length] = '\0';
    return buf;
}

char *copy_text(char *buf, std::string_view text) {
    return copy_text(buf, static_cast<std::int64_t>(text.size()) + 1, text);
}

std::string text_of_list(const char *format, std::va_list arguments) {
    std::va_list again;
    va_copy(again, arguments);
    int length = std::vsnprintf(nullptr, 0, format, again);
    va_end(again);
    std::string out(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
    std::vsnprintf(out.data(), out.size() + 1, format, arguments);
    return out;
}

std::string text_of(const char *format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    std::string out = text_of_list(format, arguments);
    va_end(arguments);
    return out;
}

}  // namespace standin
