/* Echo, C++: a row with C++ linkage inside a namespace. */
#pragma once
#include "sdk/echo_types.h"

namespace Echo {

int negated(int value);

}  // namespace Echo
