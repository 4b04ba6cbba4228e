// Addresses as a trace writes them.
#include <cstdio>

#include "standin/pipeline/stages.h"

namespace standin {

std::string text_of_mac(const std::uint8_t *mac) {
    char text[18];
    std::snprintf(text, sizeof text, "%02x:%02x:%02x:%02x:%02x:%02x", mac[0], mac[1], mac[2],
                  mac[3], mac[4], mac[5]);
    return text;
}

std::string text_of_ip(const IpAddress &address) {
    const std::string text = text_of(host_object({0, address}));  // "host 10.0.0.1"
    return text.substr(text.find(' ') + 1);
}

}  // namespace standin
