// Addresses, global ports and ranges of numbers as text.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "standin/text/port_text.h"

#include "standin/base/number_text.h"

namespace standin {

using MacBytes = std::array<std::uint8_t, 6>;

// "10.0.0.1", four numbers of 0 to 255, or the whole address as one number (0x0a000001). A mask
// behind it, as length or as address ("/8", "/255.0.0.0"), is checked and left out.
std::optional<std::uint32_t> read_ip(std::string_view text);
std::string ip_text(std::uint32_t address);

// "10.0.0.0/8"; the mask as an address where its ones do not stand together at the top.
std::string ip_mask_text(std::uint32_t address, std::uint32_t mask);

// Six bytes of one or two hexadecimal digits, joined by ':' or '-'.
std::optional<MacBytes> read_mac(std::string_view text);

// A global port number: "local.5", "trunk.7", "blackhole", "sysport.300", else "0x18000003".
// read_gport reads these, any number, and the names of ports, which stand for local ports.
std::string gport_text(std::int32_t gport);
std::optional<std::int32_t> read_gport(std::string_view text, const PortNames &names);

struct ModPort {
    std::int32_t mod;
    std::int32_t port;
};
// "3:17" or "3.17", the port also by name; without the module it is 0.
std::optional<ModPort> read_mod_port(std::string_view text, const PortNames &names);
// "3:17", with the port's name for module 0, which is the unit itself.
std::string mod_port_text(ModPort at, const PortNames &names);

struct Range {
    std::int32_t low;
    std::int32_t high;
};
// "5" or "5-9", each end a number, or `min` or `max` for the legal ends; "all" or "*" is the
// whole. Nothing when low > high or an end is not legal.
std::optional<Range> read_range(std::string_view text, Range legal);
// Two ends as texts of their own; an empty `high` is the same as `low`.
std::optional<Range> read_range(std::string_view low, std::string_view high, Range legal);

}  // namespace standin
