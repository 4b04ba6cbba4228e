// Gives every scalar, enumeration and callback that is declared its conversion kind.
#pragma once

#include "generator/model/faults.h"
#include "generator/model/model.h"

namespace generator {

// Adds what follows from the typedefs to the kinds that the table lists, and sorts them by kind and
// type. A typedef of a listed type is of that type's kind.
void derive_kinds(Model &model, Faults &faults);

}  // namespace generator
