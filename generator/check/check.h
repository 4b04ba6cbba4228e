// The check pass: every rule that the declarations must keep, looked at over the whole.
#pragma once

#include <ostream>

#include "generator/model/faults.h"
#include "generator/model/model.h"

namespace generator {

// Marks the departures that it uses.
void check(Model &model, Faults &faults);

// Every rule with what it says, one a line.
void list_rules(std::ostream &out);

}  // namespace generator
