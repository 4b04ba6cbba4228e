// Port bitmaps and the forms in which a port number comes.
#pragma once
#include <cstdint>

#include "layout/sdk_words.h"
#include "native/values.h"
#include "sdk/scalars.h"

namespace standin {

using namespace sdk_words;

// Port 0 is the processor's; the front ports follow.
constexpr int kCpuPort = 0;
constexpr int kFrontPorts = 64;
constexpr int kPorts = 1 + kFrontPorts;

// The local number behind a port argument, which is such a number or a local gport; -1 if the
// switch has no such port.
constexpr int local_port(int port) {
    if (gport_type(port) == kLocalGport.type) port &= (1 << kGportTypeShift) - 1;
    return port >= 0 && port < kPorts ? port : -1;
}

constexpr bool has_port(const bcm_pbmp_t &set, int port) {
    return (set.pbits[port / 32] >> (port % 32) & 1u) != 0;
}
constexpr void add_port(bcm_pbmp_t &set, int port) { set.pbits[port / 32] |= 1u << (port % 32); }
constexpr void remove_port(bcm_pbmp_t &set, int port) {
    set.pbits[port / 32] &= ~(1u << (port % 32));
}

// The ports from `first` to `last`.
constexpr bcm_pbmp_t port_range(int first, int last) {
    bcm_pbmp_t set{};
    for (int port = first; port <= last; ++port) add_port(set, port);
    return set;
}

constexpr void add_ports(bcm_pbmp_t &set, const bcm_pbmp_t &more) {
    for (int i = 0; i < _SHR_PBMP_WORDS; ++i) set.pbits[i] |= more.pbits[i];
}
constexpr void remove_ports(bcm_pbmp_t &set, const bcm_pbmp_t &others) {
    for (int i = 0; i < _SHR_PBMP_WORDS; ++i) set.pbits[i] &= ~others.pbits[i];
}
constexpr bool is_subset(const bcm_pbmp_t &part, const bcm_pbmp_t &whole) {
    for (int i = 0; i < _SHR_PBMP_WORDS; ++i)
        if ((part.pbits[i] & ~whole.pbits[i]) != 0) return false;
    return true;
}
constexpr bool any_common(const bcm_pbmp_t &one, const bcm_pbmp_t &other) {
    for (int i = 0; i < _SHR_PBMP_WORDS; ++i)
        if ((one.pbits[i] & other.pbits[i]) != 0) return true;
    return false;
}

inline constexpr bcm_pbmp_t kAllPorts = port_range(0, kPorts - 1);
inline constexpr bcm_pbmp_t kFrontPortSet = port_range(1, kFrontPorts);

}  // namespace standin
