// What the fuzz targets share: the entry that libFuzzer calls, and a way to say what must hold.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace fuzz {

inline std::string_view text_of(const std::uint8_t *data, std::size_t size) {
    return {reinterpret_cast<const char *>(data), size};
}

// Ends the run, so that the input is kept.
inline void must(bool holds, const char *what) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

// Takes one byte off the front, to choose by; 0 from an empty text.
inline unsigned take_choice(std::string_view &text) {
    if (text.empty()) return 0;
    unsigned choice = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    return choice;
}

}  // namespace fuzz
