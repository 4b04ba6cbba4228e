/* Tiny: one field of every kind. */
#pragma once
#include "sdk/bcm/pair_types.h"
#define TINY_PORTS 4

OMBRA_ENUM(tiny_color_e, tiny_color_t);
typedef int tiny_port_t;
typedef int (*tiny_cb)(int unit, void *user_data);

typedef struct {
    int8 s8;
    int16 s16;
    tiny_color_t color;
    uint8 u8;
    uint16 u16;
    uint32 u32;
    uint64 u64;
    tiny_address_t address;
    bool yes;
    char *name;
    char const *label;
    tiny_mac_t mac;
    tiny_pbmp_t ports;
    tiny_vector_t vector;
    uint16 tags[2][(4)];
    tiny_pair_t pair;
    tiny_pair_t pairs[TINY_PORTS];
    tiny_pair_t *next;
    void *cookie;
    tiny_cb callback;
    tiny_opaque_t opaque;
} tiny_all_t;

union tiny_any {
    uint8 low;
    uint64 whole;
};
