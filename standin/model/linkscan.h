// What the scanner of links remembers; what it does is in standin/chapters/linkscan.h.
#pragma once
#include <cstdint>

namespace standin {

struct Linkscan {
    int interval = 0;        // microseconds; 0: nothing is scanned
    std::uint64_t next = 0;  // when, on the chip's own clock
};

}  // namespace standin
