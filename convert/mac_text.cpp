// MAC addresses read from text and written with a table of digits.
#include "convert/mac_text.h"

#include <array>
#include <cstdio>

#include "convert/refuse.h"

namespace {

constexpr unsigned kBytes = 6;
constexpr unsigned kStride = 3;  // two digits and a colon
constexpr unsigned kTextLength = kBytes * kStride - 1;

// What is no digit is negative, and stays so under what is done with digits.
constexpr std::array<signed char, 256> digit_values() {
    std::array<signed char, 256> values{};
    values.fill(-1);
    for (signed char i = 0; i < 10; ++i) values[static_cast<unsigned char>('0' + i)] = i;
    for (signed char i = 0; i < 6; ++i) {
        values[static_cast<unsigned char>('a' + i)] = static_cast<signed char>(10 + i);
        values[static_cast<unsigned char>('A' + i)] = static_cast<signed char>(10 + i);
    }
    return values;
}

constexpr std::array<signed char, 256> kDigits = digit_values();

int digit(char character) { return kDigits[static_cast<unsigned char>(character)]; }

// The plain form, two digits a group: ten times as fast as sscanf. Anything else, also what
// sscanf would take ("+1", "0x", blanks), is left to sscanf.
// REQUIRES: 17 characters at `text`.
bool read_plain(const char *text, uint8 out[kBytes]) {
    int bad = 0;
    for (unsigned i = 0; i < kBytes; ++i) {
        const int byte = digit(text[i * kStride]) * 16 | digit(text[i * kStride + 1]);
        bad |= byte;
        if (i + 1 < kBytes) bad |= (text[i * kStride + 2] == ':') - 1;
        out[i] = static_cast<uint8>(byte);
    }
    return bad >= 0;
}

[[gnu::cold, gnu::noinline]] bool read_scanned(PyObject *object, uint8 out[kBytes]) {
    const char *text = PyString_AsString(object);
    if (text == nullptr) return ombra::refuse_with(PyExc_TypeError, "Expected a string");
    std::array<unsigned, kBytes> groups{};
    const int count = std::sscanf(text, "%2x:%2x:%2x:%2x:%2x:%2x", &groups[0], &groups[1],
                                  &groups[2], &groups[3], &groups[4], &groups[5]);
    if (count != static_cast<int>(kBytes)) {
        return ombra::refuse_with(PyExc_ValueError,
                                  "Expected a string of the form 'AA:BB:CC:DD:EE:FF'");
    }
    for (unsigned i = 0; i < kBytes; ++i) out[i] = static_cast<uint8>(groups[i]);
    return true;
}

// Without a terminator.
[[gnu::always_inline]] inline void write_text(const uint8 mac[kBytes], char *out) {
    static constexpr char kHex[] = "0123456789abcdef";
    for (unsigned i = 0; i < kBytes; ++i) {
        out[i * kStride] = kHex[mac[i] >> 4U];
        out[i * kStride + 1] = kHex[mac[i] & 0xfU];
        if (i + 1 < kBytes) out[i * kStride + 2] = ':';
    }
}

}  // namespace

bool ombra::read_mac(PyObject *object, uint8 out[6]) {
    if (PyString_Check(object) && PyString_GET_SIZE(object) >= kTextLength &&
        read_plain(PyString_AS_STRING(object), out)) [[likely]] {
        return true;
    }
    return read_scanned(object, out);
}

PyObject *ombra::mac_text(const uint8 mac[6]) {
    PyObject *text = PyString_FromStringAndSize(nullptr, kTextLength);
    if (text != nullptr) write_text(mac, PyString_AS_STRING(text));
    return text;
}

void pyStringToMacaddr(PyObject *object, uint8 out[6]) { ombra::read_mac(object, out); }

const char *macaddrToString(const uint8 mac[6]) {
    static std::array<char, kTextLength + 1> buffer;  // its last byte stays the terminator
    write_text(mac, buffer.data());
    return buffer.data();
}
