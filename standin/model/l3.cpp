// Addresses and masks of both versions.
#include "standin/model/l3.h"

#include <algorithm>
#include <bit>

namespace standin {

IpAddress ip4_address(bcm_ip_t address) {
    IpAddress made;
    for (std::size_t i = 0; i < 4; ++i)
        made.bytes[i] = static_cast<std::uint8_t>(address >> (24 - 8 * i));
    return made;
}

IpAddress ip6_address(const bcm_ip6_t address) {
    IpAddress made;
    made.ip6 = true;
    std::copy_n(address, made.bytes.size(), made.bytes.begin());
    return made;
}

IpAddress masked(IpAddress address, int length) {
    for (int bit = length; bit < address.bits(); ++bit) {
        std::uint8_t &byte = address.bytes[static_cast<std::size_t>(bit / 8)];
        byte = static_cast<std::uint8_t>(byte & ~(0x80u >> (bit % 8)));
    }
    return address;
}

int mask_length(const IpAddress &mask) {
    int length = 0;
    for (const std::uint8_t byte : mask.bytes) length += std::popcount(byte);
    return masked(mask, length) == mask ? length : -1;
}

}  // namespace standin
