// Looks at catalogue/standin.txt once the planner has run: what it says must exist and be needed.

#include <algorithm>
#include <array>
#include <sstream>

#include "generator/standin/plan.h"

namespace generator {
namespace {

constexpr std::array<const char *, 7> kWords = {
    "key", "family", "unfit", "keyed-arrays", "same-column", "set-prefix", "qualifier"};

const Struct *struct_named(const Model &model, const std::string &name) {
    const auto found = std::find_if(model.structs.begin(), model.structs.end(),
                                    [&](const Struct &one) { return one.name == name; });
    return found == model.structs.end() ? nullptr : &*found;
}

bool has_name(const std::vector<Variable> &variables, const std::string &name) {
    return std::any_of(variables.begin(), variables.end(),
                       [&](const Variable &one) { return one.name == name; });
}

// The names of a key line that are no fields of its struct.
void check_key(const Model &model, const StandinRow &row, Faults &faults) {
    const Struct *record = struct_named(model, row.name);
    if (record == nullptr || row.details == "-") return;
    std::string list;
    for (const auto &field : record->fields) list += (list.empty() ? "" : ", ") + field.name;
    std::istringstream names(row.details);
    for (std::string name; names >> name;) {
        if (!has_name(record->fields, name)) {
            faults.add(row.place, "standin-field",
                       "'" + row.name + "' has no field '" + name + "'; write one of " + list +
                           ", or '-' for all of it");
        }
    }
}

// The other name of a column is a parameter of the family, or a field of one.
void check_column(const Model &model, const StandinRow &row, Faults &faults) {
    const std::string family = row.name.substr(0, row.name.find('.'));
    for (const auto &function : model.functions) {
        if (!function.row.starts_with(family + "_")) continue;
        if (has_name(function.parameters, row.details)) return;
        for (const auto &parameter : function.parameters) {
            const Struct *record =
                struct_named(model, parameter.type.substr(0, parameter.type.find(' ')));
            if (record != nullptr && has_name(record->fields, row.details)) return;
        }
    }
    faults.add(row.place, "standin-field",
               "no function of '" + family + "' has a parameter or a field '" + row.details +
                   "'; correct the name or remove the line");
}

}  // namespace

void check_standin(const Model &model, Faults &faults) {
    plans_of(model);  // marks what it uses
    for (const auto &row : model.standin) {
        if (std::find(kWords.begin(), kWords.end(), row.word) == kWords.end()) {
            faults.add(row.place, "standin-word",
                       "'" + row.word + "' is no word of this table; its head lists them");
        } else if (!row.used) {
            faults.add(row.place, "standin-unused",
                       "no function needs '" + row.word + "' of '" + row.name +
                           "'; correct the name or remove the line");
        } else if (row.word == "key") {
            check_key(model, row, faults);
        } else if (row.word == "same-column") {
            check_column(model, row, faults);
        }
    }
}

}  // namespace generator
