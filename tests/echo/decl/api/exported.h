/* Echo, exported: references. */
#pragma once
#include "sdk/echo_types.h"

OMBRA_BEGIN_DECLS

int echo_reference(echo_pair_t &value);

OMBRA_END_DECLS
