/* Echo variables: one global of every kind. */
#pragma once
#include "sdk/echo_types.h"

OMBRA_BEGIN_DECLS

extern int echo_depth;
extern char *echo_title;
extern echo_pair_t echo_shared;
extern echo_cb echo_hook;
extern int echo_table[4];

OMBRA_END_DECLS
