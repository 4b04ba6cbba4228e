/* Pair: a class whose rows are compared whole. */
#pragma once
#include "native/base.h"

typedef struct tiny_pair_s {
    int first;
    uint16 second;
} tiny_pair_t;
