// Digits from bytes, and bytes from digits.
#include "runtime/hex_text.h"

namespace {

// -1 for a character that is no digit, the terminator included.
int digit_value(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    return -1;
}

}  // namespace

char *SWIG_PackData(char *text, const void *bytes, std::size_t size) {
    static const char digits[] = "0123456789abcdef";
    const auto *byte = static_cast<const unsigned char *>(bytes);
    for (const unsigned char *const end = byte + size; byte != end; ++byte) {
        *text++ = digits[*byte >> 4U];
        *text++ = digits[*byte & 0xfU];
    }
    return text;
}

const char *SWIG_UnpackData(const char *text, void *bytes, std::size_t size) {
    auto *byte = static_cast<unsigned char *>(bytes);
    for (const unsigned char *const end = byte + size; byte != end; ++byte) {
        const int high = digit_value(text[0]);
        const int low = high < 0 ? -1 : digit_value(text[1]);
        if (low < 0) return nullptr;
        *byte = static_cast<unsigned char>(high * 16 + low);
        text += 2;
    }
    return text;
}
