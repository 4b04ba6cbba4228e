// The stub of the proxy module, by which editors complete and check: functions with their types,
// structures with their fields, constants. Python 2.7 itself reads it too.

#include <set>

#include "generator/check/rows.h"
#include "generator/emit/emitters.h"
#include "generator/emit/output.h"

namespace generator {
namespace {

const std::string kFile = R"("""What OmbraSdkV2Helper has, for editors.

Made from all declarations by generator/emit/emit_stub.cpp. Do not edit.
"""

from typing import Any, List, Optional

@classes@
@functions@
@constants@)";

const std::string kClass = R"(class @name@(object):
    def __init__(self, **fields):
        # type: (**Any) -> None
        pass
@fields@
)";

// Words that Python keeps for itself, as a parameter or a field may be called.
std::string safe(const std::string &name) {
    static const std::set<std::string> words = {"from", "in",     "is",     "pass", "print",
                                                "exec", "lambda", "global", "None"};
    return words.contains(name) ? name + "_" : name;
}

// Whether a name can stand in a class: fields with such a name are reached by getattr().
bool is_word(const std::string &name) { return safe(name) == name; }

std::string python_type(const Model &model, const Conversion &conversion,
                        const std::string &declared) {
    switch (conversion.kind) {
        case Kind::strict_bool:
            return "bool";
        case Kind::text:
            return "Optional[str]";
        case Kind::mac_string:
            return "str";
        case Kind::port_bitmap:
            return "List[int]";
        case Kind::nothing:
            return "None";
        case Kind::pointer:
        case Kind::pointer_field:
        case Kind::function_pointer:
        case Kind::by_value:
        case Kind::reference:
        case Kind::fixed_array:
        case Kind::object:
        case Kind::none:
            return "Any";
        case Kind::nested_struct: {
            for (const auto &record : model.structs)
                if (record.name == declared) return declared;
            return "Any";
        }
        default:
            return "int";
    }
}

std::string class_text(const Model &model, const Struct &record) {
    std::string fields;
    for (const auto &field : record.fields)
        if (is_word(field.name))
            fields += "    " + field.name +
                      " = None  # type: " + python_type(model, field.conversion, field.type) + "\n";
    return fill(kClass, {{"name", record.name}, {"fields", fields}});
}

// A status may come with values, which the declaration does not tell.
std::string result_type(const Model &model, const Row &row) {
    if (row.function->hand_written.empty() && row.function->appended.empty())
        return row.result_type.empty() ? "None" : python_type(model, row.result, row.result_type);
    return "Any";
}

std::string function_text(const Model &model, const Row &row) {
    std::string names;
    std::string types;
    std::size_t place = 0;
    for (const auto &argument : row.arguments) {
        const std::string comma = names.empty() ? "" : ", ";
        ++place;
        names +=
            comma + (argument.name.empty() ? "arg" + std::to_string(place) : safe(argument.name));
        types += comma + python_type(model, argument.conversion, argument.type);
    }
    return "def " + row.name + "(" + names + "):\n    # type: (" + types + ") -> " +
           result_type(model, row) + "\n    pass\n";
}

}  // namespace

std::string emit_stub(const Model &model) {
    std::string classes;
    for (const auto &record : model.structs) classes += class_text(model, record);
    std::string functions;
    for (const auto &row : all_rows(model))
        if (row.function != nullptr) functions += function_text(model, row);
    std::string constants;
    for (const auto &step : model.install)
        if (step.what == InstallRow::What::constant)
            constants += step.name + " = " + std::to_string(step.value) + "\n";
    return fill(kFile, {{"classes", classes}, {"functions", functions}, {"constants", constants}});
}

}  // namespace generator
