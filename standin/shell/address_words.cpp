// Addresses and bytes, both ways.
#include "standin/shell/address_words.h"

#include <arpa/inet.h>

#include <array>

#include "standin/base/scan.h"
#include "standin/text/address_text.h"

namespace standin {

std::optional<std::string> bytes_of_hex(std::string_view text) {
    std::string bytes;
    if (text.empty() || text.size() % 2 != 0) return std::nullopt;
    for (std::size_t at = 0; at < text.size(); at += 2) {
        const int high = hex_digit(text[at]);
        const int low = hex_digit(text[at + 1]);
        if (high < 0 || low < 0) return std::nullopt;
        bytes += static_cast<char>(16 * high + low);
    }
    return bytes;
}

std::string ip6_text(const std::uint8_t *bytes) {
    std::array<char, INET6_ADDRSTRLEN> text{};
    ::inet_ntop(AF_INET6, bytes, text.data(), text.size());
    return text.data();
}

std::string address_text(const IpAddress &address) {
    if (address.ip6) return ip6_text(address.bytes.data());
    std::uint32_t number = 0;
    for (std::size_t at = 0; at < 4; ++at) number = number << 8 | address.bytes[at];
    return ip_text(number);
}

IpAddress address_of(const bcm_l3_host_t &host) {
    const bool ip6 = (host.l3a_flags & kL3Ip6) != 0;
    return ip6 ? ip6_address(host.l3a_ip6_addr) : ip4_address(host.l3a_ip_addr);
}

RoutePrefix prefix_of(const bcm_l3_route_t &route) {
    const bool ip6 = (route.l3a_flags & kL3Ip6) != 0;
    return {ip6 ? ip6_address(route.l3a_ip6_net) : ip4_address(route.l3a_subnet),
            mask_length(ip6 ? ip6_address(route.l3a_ip6_mask) : ip4_address(route.l3a_ip_mask))};
}

std::string prefix_text(const RoutePrefix &prefix) {
    return address_text(prefix.address) + '/' + std::to_string(prefix.length);
}

}  // namespace standin
