// Tiny: rows with C++ linkage.
#pragma once
#include "sdk/bcm/tiny_types.h"

namespace Tiny {

int find(int unit, tiny_opaque_t where);
int find(int unit);

}  // namespace Tiny

Tiny::String tiny_report(int unit);
