// Looks at catalogue/standin.txt once the planner has run: what it says must exist and be needed.

#include <algorithm>
#include <array>
#include <set>
#include <sstream>

#include "generator/standin/plan.h"

namespace generator {
namespace {

constexpr std::array<const char *, 12> kWords = {
    "key",       "family", "unfit",   "keyed-arrays", "same-column", "set-prefix",
    "qualifier", "names",  "numbers", "form",         "still",       "none"};

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

// The names of a numbers line that no argument and no field of its type has.
void check_numbers(const Model &model, const StandinRow &row, Faults &faults) {
    std::set<std::string> there;
    const auto note = [&](const std::vector<Variable> &variables) {
        for (const auto &one : variables)
            if (one.type == row.name || one.type == row.name + " *") there.insert(one.name);
    };
    for (const auto &function : model.functions) note(function.parameters);
    for (const auto &record : model.structs) note(record.fields);
    std::istringstream names(row.details);
    for (std::string name; names >> name;)
        if (!there.contains(name))
            faults.add(row.place, "standin-field",
                       "no argument or field of the type '" + row.name + "' has the name '" + name +
                           "'; correct the name");
}

// What a number is said to name: "-", bounds, or a kind, with a bond or none. Only `kinds` can be
// named: of others there is none.
void check_names(const StandinRow &row, const std::set<std::string> &kinds, Faults &faults) {
    std::istringstream words(row.details);
    std::string kind;
    std::string bond;
    std::string rest;
    words >> kind >> bond >> rest;
    const bool bonded = bond.empty() || bond == "holds" || bond == "leaves" || bond == "falls";
    if (!bonded || !rest.empty())
        faults.add(
            row.place, "standin-names",
            "'" + row.details + "' is no kind with a bond; write one of holds, leaves, falls");
    if (kind != "-" && kind.find("..") == std::string::npos && !kinds.contains(kind))
        faults.add(row.place, "standin-names",
                   "there are no objects of the kind '" + kind + "'; correct the name");
}

// What the model has, and the ids that families give out.
std::set<std::string> kinds_of(const Model &model) {
    std::set<std::string> kinds = {"port",   "vlan",    "stg",        "trunk", "hop",  "multicast",
                                   "mirror", "policer", "rule-group", "rule",  "range"};
    for (const auto &plan : plans_of(model)) kinds.insert(plan.id_kind);
    return kinds;
}

// A function without an answer has its reason, once the table gives any.
void check_answered(const Model &model, Faults &faults) {
    const Shapes shapes(model);
    if (std::none_of(model.standin.begin(), model.standin.end(),
                     [](const StandinRow &row) { return row.word == "none"; }))
        return;
    for (std::size_t i = 0; i < model.functions.size(); ++i) {
        const Function &function = model.functions[i];
        if (function.module_native || !function.modelled.file.empty()) continue;
        if (plans_of(model)[i].operation.empty() &&
            shapes.known_pattern("none", function.row) == nullptr)
            faults.add(function.place, "standin-none",
                       "neither a model nor a rule answers '" + function.row +
                           "'; define it in the stand-in, or write a line 'none' with the reason");
    }
}

}  // namespace

void check_standin(const Model &model, Faults &faults) {
    const std::set<std::string> kinds = kinds_of(model);  // the plans mark what they use
    check_answered(model, faults);
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
        } else if (row.word == "names") {
            check_names(row, kinds, faults);
        } else if (row.word == "numbers") {
            check_numbers(model, row, faults);
        }
    }
}

}  // namespace generator
