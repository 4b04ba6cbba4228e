/* Base: what the small declarations stand on. */
#pragma once
typedef signed char int8;
typedef short int16;
typedef unsigned char uint8;
typedef unsigned short uint16;
typedef unsigned int uint32;
typedef unsigned char tiny_mac_t[6];
typedef unsigned int tiny_vector_t[_SHR_BITDCLSIZE(tinyLast)];
