// Tiny: a row that lives in the module.
#pragma once
#include "sdk/bcm/tiny_types.h"

unsigned int tiny_test(tiny_pair_t &pair, tiny_color_e e);
