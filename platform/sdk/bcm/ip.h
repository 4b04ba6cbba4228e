/* IP: masks of IPv4 and IPv6 addresses, without a unit. */
#pragma once
#include "native/base.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_ip6_mask_create(unsigned char ip6[16], int len);
int bcm_ip6_mask_length(unsigned char ip6[16]);
bcm_ip_t bcm_ip_mask_create(int len);
int bcm_ip_mask_length(bcm_ip_t ip);

OMBRA_END_DECLS
