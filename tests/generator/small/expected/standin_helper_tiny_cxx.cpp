// Made from platform/helper/tiny_cxx.h by generator/emit/emit_standin.cpp. Do not edit.
#include "helper/tiny_cxx.h"

#include "standin/generic/call.h"


int Tiny::find(int unit, tiny_opaque_t) { return standin::unavailable("find", unit); }

int Tiny::find(int unit) { return standin::unavailable("find", unit); }

Tiny::String tiny_report(int) { return {}; }

