// Reads the tables of catalogue/ into the model. Each table's first lines say its columns.
#pragma once

#include <string>

#include "generator/model/faults.h"
#include "generator/model/model.h"

namespace generator {

void read_types(const std::string &file, const std::string &source, Model &model, Faults &faults);
void read_kinds(const std::string &file, const std::string &source, Model &model, Faults &faults);
void read_constants(const std::string &file, const std::string &source, Model &model,
                    Faults &faults);
void read_variables(const std::string &file, const std::string &source, Model &model,
                    Faults &faults);
void read_helpers(const std::string &file, const std::string &source, Model &model, Faults &faults);
void read_departures(const std::string &file, const std::string &source, Model &model,
                     Faults &faults);
void read_standin(const std::string &file, const std::string &source, Model &model, Faults &faults);

// Pieces of `text` between separators; an empty text has no pieces.
std::vector<std::string> split(const std::string &text, char separator);

}  // namespace generator
