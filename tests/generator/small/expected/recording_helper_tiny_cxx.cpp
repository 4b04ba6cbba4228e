// Made from platform/helper/tiny_cxx.h by generator/emit/emit_recording.cpp. Do not edit.
#include "helper/tiny_cxx.h"

#include "tests/recording/record.h"

using recorder::given;
using recorder::mac;
using recorder::text;

RECORDED_CXX(Tiny::find, int, (int a1, tiny_opaque_t a2), given(a1), given(a2))
RECORDED_CXX(Tiny::find, int, (int a1), given(a1))
RECORDED_CXX(tiny_report, Tiny::String, (int a1), given(a1))
