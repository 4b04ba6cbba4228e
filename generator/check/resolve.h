// Gives every declared type its conversion, every struct its layout, every row its visible form.
#pragma once

#include "generator/model/faults.h"
#include "generator/model/model.h"

namespace generator {

// Fills the resolved parts of the model. Adds the twins to the type table, and sorts it.
void resolve(Model &model, Faults &faults);

// The declared type of a docstring: a pointer to a class and an array of classes name the class.
std::string docstring_type(const Model &model, const Variable &variable);

}  // namespace generator
