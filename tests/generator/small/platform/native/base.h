/* Base: what the small declarations stand on. */
#pragma once
typedef unsigned char tiny_mac_t[6];
typedef unsigned int tiny_vector_t[_SHR_BITDCLSIZE(tinyLast)];
