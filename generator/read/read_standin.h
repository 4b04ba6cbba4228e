// Finds the functions that the stand-in's sources define.
#pragma once

#include <string>

#include "generator/model/model.h"

namespace generator {

// Marks the functions of the model that `source`, the text of `file`, defines. A definition begins
// at the start of its line; a macro that defines functions is called there and spells their names.
void read_definitions(const std::string &file, const std::string &source, Model &model);

}  // namespace generator
