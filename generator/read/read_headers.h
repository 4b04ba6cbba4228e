// Reads the declarations of a header into the model; docs/declarations.md is the grammar.
#pragma once

#include <string>

#include "generator/model/faults.h"
#include "generator/model/model.h"

namespace generator {

enum class HeaderRole {
    bound,          // every prototype is a row, every struct a class
    module_native,  // the same, defined in the module itself
    types_only  // only its typedefs and defines count; what is beyond the grammar is passed over
};

// `file` is the path as messages name it, `source` the text.
void read_header(const std::string &file, const std::string &source, HeaderRole role, Model &model,
                 Faults &faults);

}  // namespace generator
