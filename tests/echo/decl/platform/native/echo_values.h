/* Echo values: types that travel by value and that the binding knows by their size alone. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/constants.h"

OMBRA_BEGIN_DECLS

typedef unsigned int echo_address_t;
typedef unsigned char echo_mac_t[6];
typedef uint32 echo_vector_t[_SHR_BITDCLSIZE(echoVectorBits)];

/* In a register, in two, and in memory. */
typedef struct echo_byte_s {
    uint8 byte;
} echo_byte_t;
typedef unsigned short echo_half_t;
typedef int echo_word_t;
typedef struct echo_three_s {
    uint32 words[3];
} echo_three_t;
typedef struct echo_two_s {
    uint64 words[2];
} echo_two_t;
typedef struct echo_large_s {
    uint32 words[6];
} echo_large_t;
typedef void (*echo_opaque_cb_t)(void);

OMBRA_END_DECLS
