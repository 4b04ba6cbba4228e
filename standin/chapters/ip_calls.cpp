// Masks of IPv4 and IPv6 addresses, without a unit.
#include <algorithm>

#include "sdk/bcm/ip.h"
#include "standin/base/faults.h"
#include "standin/model/l3.h"
#include "standin/model/model.h"

using namespace standin;

extern "C" {

// A length outside 0 to 32 is taken as the nearest one.
bcm_ip_t bcm_ip_mask_create(int len) {
    const int bits = std::clamp(len, 0, 32);
    return bits == 0 ? 0 : ~bcm_ip_t{0} << (32 - bits);
}

// -1 for a mask with holes.
int bcm_ip_mask_length(bcm_ip_t ip) { return mask_length(ip4_address(ip)); }

int bcm_ip6_mask_create(unsigned char ip6[16], int len) {
    if (ip6 == nullptr || !within(len, 0, 128)) return BCM_E_PARAM;
    IpAddress all;
    all.ip6 = true;
    all.bytes.fill(0xff);
    std::ranges::copy(masked(all, len).bytes, ip6);
    return BCM_E_NONE;
}

int bcm_ip6_mask_length(unsigned char ip6[16]) {
    return ip6 == nullptr ? -1 : mask_length(ip6_address(ip6));
}

}  // extern "C"
