// What the start of a unit tells its stack.
#pragma once
#include "standin/model/switch.h"

namespace standin {

// Gives the unit its module number; whoever watches the stack hears of a new one. BCM_E_PARAM.
int set_module_number(Switch &chip, int module);

}  // namespace standin
