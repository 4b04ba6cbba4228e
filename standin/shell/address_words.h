// Addresses and plain bytes as words.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "sdk/bcm/l3_types.h"
#include "standin/model/l3.h"

namespace standin {

// Two digits a byte; nothing for another text.
std::optional<std::string> bytes_of_hex(std::string_view text);

// "fd00::1"
std::string ip6_text(const std::uint8_t *bytes);
// "10.0.0.1" or "fd00::1"
std::string address_text(const IpAddress &address);

IpAddress address_of(const bcm_l3_host_t &host);

// The prefix of a route as it was given, bits behind its length too.
struct RoutePrefix {
    IpAddress address;
    int length = 0;
};
RoutePrefix prefix_of(const bcm_l3_route_t &route);
std::string prefix_text(const RoutePrefix &prefix);

}  // namespace standin
