// What the proxy module knows of the declarations: classes with their fields, values, boxes, and
// which functions call back.

#include <algorithm>
#include <map>
#include <set>

#include "generator/check/bounds.h"
#include "generator/check/rows.h"
#include "generator/emit/emitters.h"
#include "generator/emit/output.h"

namespace generator {
namespace {

const std::string kFile = R"("""The classes and callbacks of the SDK, as tables.

Made from all declarations by generator/emit/emit_proxy.cpp. Do not edit.
"""

# Structures, each with a line "name: type" for every field.
CLASSES = (
@classes@)

# Boxes, each with the structure in it, or None for a number.
BOXES = (
@boxes@)

# Opaque values: the class, the type, and other names of the class.
VALUES = (
@values@)

# Counted pointers of the platform: the class and the type.
HOLDERS = (
@holders@)

# Functions that call back with a cookie: the callback, its place, and the place of the cookie.
CALLBACKS = {
@callbacks@}

# Functions that call back without one: the callback and its place.
BOUND = {
@bound@}

# Functions whose number is no status: counts, lengths, truth values, places.
NUMBERS = frozenset((
@numbers@))
)";

const std::string kClass = R"(    ('@name@', '''\
@fields@'''),
)";

// "uint16 [2][4]": bounds as numbers, since a person wants the length.
std::string with_numbers(const Variable &field) {
    const Conversion &conversion = field.conversion;
    if (conversion.kind != Kind::fixed_array) return spelled(field.type, field.bounds);
    const std::string element = conversion.text.substr(0, conversion.text.find(" ["));
    if (field.bounds.size() < 2) return element + " [" + std::to_string(conversion.count) + "]";
    const auto inner = static_cast<std::size_t>(evaluate(field.bounds[1], {}).value());
    return element + " [" + std::to_string(conversion.count / inner) + "][" +
           std::to_string(inner) + "]";
}

std::string classes(const Model &model) {
    std::string text;
    for (const auto &record : model.structs) {
        std::string fields;
        for (const auto &field : record.fields)
            fields += field.name + ": " + with_numbers(field) + "\n";
        text += fill(kClass, {{"name", record.name}, {"fields", fields}});
    }
    return text;
}

std::string box_lines(const Model &model) {
    std::string text;
    for (const auto &box : model.helpers) {
        if (box.form != Helper::Form::box) continue;
        const bool structure = box.value.kind == Kind::by_value;
        text += "    ('" + box.name + "', " +
                (structure ? "'" + box.element + "'" : std::string("None")) + "),\n";
    }
    return text;
}

bool is_counted_pointer(const std::string &type) { return type.find("::Ptr") != std::string::npos; }

// "Hardware::TesselApi::UnitId" -> "UnitId", "Hardware::ChipMemory::Ptr" -> "ChipMemoryPtr".
std::string class_name(std::string type) {
    if (is_counted_pointer(type)) type.erase(type.rfind("::"), 2);
    const std::size_t scope = type.rfind("::");
    return scope == std::string::npos ? type : type.substr(scope + 2);
}

std::string value_lines(const Model &model) {
    std::map<int, std::string> class_of_slot;
    std::map<std::string, std::string> aliases;
    std::vector<OpaqueValue> firsts;
    for (const auto &value : opaque_values(model)) {
        if (is_counted_pointer(value.type)) continue;
        const auto [known, is_new] = class_of_slot.emplace(value.slot, class_name(value.type));
        if (is_new)
            firsts.push_back(value);
        else
            aliases[known->second] += "'" + class_name(value.type) + "', ";
    }
    std::string text;
    for (const auto &value : firsts) {
        const std::string name = class_name(value.type);
        text += "    ('" + name + "', '" + value.type + "', (" + aliases[name] + ")),\n";
    }
    return text;
}

std::string holder_lines(const Model &model) {
    std::string text;
    for (const auto &value : opaque_values(model))
        if (is_counted_pointer(value.type))
            text += "    ('" + class_name(value.type) + "', '" + value.type + "'),\n";
    return text;
}

// The lines of functions whose callback has a cookie, or of those where it has none.
std::string callback_lines(const Model &model, bool with_cookie) {
    std::string text;
    for (const auto &function : model.functions) {
        const auto &parameters = function.visible;
        const auto callback = std::find_if(parameters.begin(), parameters.end(), [](auto &one) {
            return one.conversion.kind == Kind::function_pointer;
        });
        const auto cookie = std::find_if(callback, parameters.end(),
                                         [](auto &one) { return one.type == "void *"; });
        if (callback == parameters.end() || (cookie != parameters.end()) != with_cookie) continue;
        text += "    '" + function.row + "': ('" + callback->type + "', " +
                std::to_string(callback - parameters.begin());
        if (with_cookie) text += ", " + std::to_string(cookie - parameters.begin());
        text += "),\n";
    }
    return text;
}

std::string number_lines(const Model &model) {
    std::string text;
    for (const auto &departure : model.departures)
        if (departure.word == "number") text += "    '" + departure.row + "',\n";
    return text;
}

}  // namespace

std::vector<OpaqueValue> opaque_values(const Model &model) {
    std::set<int> structures;
    for (const auto &record : model.structs) structures.insert(record.slot);
    std::map<std::string, int> found;
    const auto add = [&](const Conversion &conversion) {
        if (conversion.kind == Kind::by_value && !structures.contains(conversion.slot)) {
            const std::string &text = conversion.text;
            found.emplace(text.substr(0, text.find(" const")), conversion.slot);
        }
    };
    for (const auto &record : model.structs)
        for (const auto &field : record.fields) add(field.conversion);
    for (const auto &row : all_rows(model)) {
        for (const auto &argument : row.arguments) add(argument.conversion);
        add(row.result);
    }
    std::vector<OpaqueValue> values;
    for (const auto &[type, slot] : found) values.push_back({type, slot});
    return values;
}

std::string emit_proxy(const Model &model) {
    return fill(kFile, {{"classes", classes(model)},
                        {"boxes", box_lines(model)},
                        {"values", value_lines(model)},
                        {"holders", holder_lines(model)},
                        {"callbacks", callback_lines(model, true)},
                        {"bound", callback_lines(model, false)},
                        {"numbers", number_lines(model)}});
}

}  // namespace generator
