/* Echo types: a structure with a field of every kind. */
#pragma once
#include "native/echo_values.h"
#include "sdk/constants.h"

#define ECHO_PAIRS 3

OMBRA_BEGIN_DECLS

OMBRA_ENUM(echo_color_e, echo_color_t);

typedef int (*echo_cb)(int number, void *user_data);

typedef struct echo_pair_s {
    int first;
    uint16 second;
} echo_pair_t;

typedef struct {
    int8 s8;
    int16 s16;
    int s32;
    echo_color_t color;
    uint8 u8;
    uint16 u16;
    uint32 u32;
    uint64 u64;
    echo_address_t address;
    bool yes;
    char *name;
    char const *label;
    echo_mac_t mac;
    bcm_pbmp_t ports;
    echo_vector_t vector;
    uint16 tags[2][4];
    int numbers[2];
    echo_pair_t pair;
    echo_pair_t pairs[ECHO_PAIRS];
    echo_pair_t *next;
    void *cookie;
    echo_cb callback;
    echo_word_t word;
    echo_large_t large;
} echo_all_t;

OMBRA_END_DECLS
