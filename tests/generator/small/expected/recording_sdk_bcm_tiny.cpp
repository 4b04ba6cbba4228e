// Made from platform/sdk/bcm/tiny.h by generator/emit/emit_recording.cpp. Do not edit.
#include "sdk/bcm/tiny.h"

#include "tests/recording/record.h"

using recorder::given;
using recorder::mac;
using recorder::text;

RECORDED_NUMBER(tiny_none, ())
RECORDED_NUMBER(tiny_scalars, (int8 a1, int16 a2, tiny_color_t a3, uint8 a4, uint16 a5, uint32 a6, uint64 a7, bool a8), given(a1), given(a2), given(a3), given(a4), given(a5), given(a6), given(a7), given(a8))
RECORDED_NUMBER(tiny_unnamed, (int a1, tiny_pair_t * a2), given(a1), given(a2))
RECORDED_NUMBER(tiny_pointers, (char const * a1, tiny_pair_t * a2, uint16 const * a3, void * a4, tiny_cb a5), text(a1), given(a2), given(a3), given(a4), given(a5))
RECORDED_NUMBER(tiny_values, (tiny_pair_t a1, tiny_opaque_t a2, tiny_mac_t a3, tiny_pbmp_t a4), given(a1), given(a2), given(a3), given(a4))
RECORDED_NUMBER(tiny_arrays, (int a1, unsigned int a2[2], int const a3[8]), given(a1), given(a2), given(a3))
RECORDED_NUMBER(tiny_wide, (unsigned long a1), given(a1))
RECORDED_NUMBER(tiny_long, (tiny_address_t a1), given(a1))
RECORDED_NUMBER(tiny_text, (int a1), given(a1))
RECORDED_NUMBER(tiny_truth, (int a1), given(a1))
RECORDED_BLOCK(tiny_value, tiny_opaque_t, (int a1), given(a1))
RECORDED_NUMBER(tiny_pointer, (int a1), given(a1))
RECORDED_NUMBER(tiny_speed_set, (int a1, tiny_port_t a2, int a3), given(a1), given(a2), given(a3))
RECORDED_NUMBER(tiny_speed_get, (int a1, tiny_port_t a2, int * a3), given(a1), given(a2), given(a3))
RECORDED_NUMBER(tiny_list_set, (int a1, int a2, int * a3), given(a1), given(a2), given(a3))
RECORDED_NUMBER(tiny_list_get, (int a1, int a2, int * a3, int * a4), given(a1), given(a2), given(a3), given(a4))
RECORDED_NUMBER(tiny_create, (int a1, int * a2), given(a1), given(a2))
