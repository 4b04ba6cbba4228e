// Reads from a declared type how its values lie in memory.
#include "generator/standin/shapes.h"

#include <algorithm>
#include <sstream>

namespace generator {
namespace {

const std::unordered_map<std::string, std::size_t> kNumbers = {
    {"char", 1},  {"signed char", 1},    {"unsigned char", 1}, {"bool", 1},
    {"short", 2}, {"unsigned short", 2}, {"int", 4},           {"unsigned int", 4},
    {"long", 8},  {"unsigned long", 8}};

bool ends_with(const std::string &text, const std::string &end) {
    return text.size() >= end.size() &&
           text.compare(text.size() - end.size(), end.size(), end) == 0;
}

}  // namespace

Shapes::Shapes(const Model &model) : model_(model) {
    for (const auto &record : model.structs) structs_[record.name] = &record;
    for (const auto &row : model.typedefs) typedefs_[row.name] = &row;
    for (const auto &row : model.kinds) kinds_[row.type] = &row;
    for (const auto &row : model.standin) {
        known_[{row.word, row.name}] = &row;
        std::istringstream names(row.word == "numbers" ? row.details : "");
        for (std::string name; names >> name;) plain_[{row.name, name}] = &row;
    }
    names_.insert(model.defines.begin(), model.defines.end());
    for (const auto &row : model.install)
        if (row.what == InstallRow::What::constant)
            names_.emplace(row.name, std::to_string(row.value));
}

const StandinRow *Shapes::known(const std::string &word, const std::string &name) const {
    const auto found = known_.find({word, name});
    if (found == known_.end()) return nullptr;
    found->second->used = true;
    return found->second;
}

const StandinRow *Shapes::known_pattern(const std::string &word, const std::string &name) const {
    if (const StandinRow *exact = known(word, name); exact != nullptr) return exact;
    for (const auto &row : model_.standin) {
        if (row.word != word || !ends_with(row.name, "*")) continue;
        if (!name.starts_with(row.name.substr(0, row.name.size() - 1))) continue;
        row.used = true;
        return &row;
    }
    return nullptr;
}

bool Shapes::is_plain_number(const std::string &type, const std::string &name) const {
    const auto found = plain_.find({type, name});
    return found != plain_.end() && (found->second->used = true);
}

bool Shapes::known_prefix(const std::string &word, const std::string &name) const {
    return std::any_of(model_.standin.begin(), model_.standin.end(), [&](const StandinRow &row) {
        return row.word == word && name.starts_with(row.name) && (row.used = true);
    });
}

std::size_t Shapes::elements(const std::vector<std::string> &bounds) const {
    std::size_t count = 1;
    for (const auto &bound : bounds) {
        const auto value = evaluate(bound, names_);
        count *= value && *value > 0 ? static_cast<std::size_t>(*value) : 0;
    }
    return count;
}

Shapes::Layout Shapes::layout(const std::string &type) const {
    Layout layout;
    if (const auto number = kNumbers.find(type); number != kNumbers.end()) {
        layout.size = number->second;
        layout.number = true;
        return layout;
    }
    const auto alias = model_.aliases.find(type);
    const auto record = structs_.find(alias == model_.aliases.end() ? type : alias->second);
    if (record != structs_.end()) {
        layout.size = record->second->size;
        layout.record = record->second;
        return layout;
    }
    const auto kind = kinds_.find(type);
    if (kind != kinds_.end() && kind->second->kind == Kind::by_value)
        layout.size = kind->second->size;
    if (kind != kinds_.end() && kind->second->kind == Kind::port_bitmap) layout.size = 72;
    if (const auto row = typedefs_.find(type); row != typedefs_.end()) {
        const Layout base = this->layout(row->second->type);
        layout.array = base.array || !row->second->bounds.empty();
        layout.number = base.number && !layout.array;
        layout.record = layout.array ? nullptr : base.record;
        layout.size = base.size != 0 ? base.size * elements(row->second->bounds) : layout.size;
    }
    return layout;
}

Shape Shapes::of(const Variable &parameter) const {
    Shape shape;
    shape.name = parameter.name;
    std::string type = parameter.type;
    if (const std::size_t at = type.find(" const"); at != std::string::npos) {
        shape.constant = true;
        type.erase(at, 6);
    }
    shape.type = type;
    if (type == "char *" || (type == "char" && !parameter.bounds.empty())) {
        shape.form = Shape::Form::text;
        return shape;
    }
    if (type == "void *") {
        shape.form = Shape::Form::context;
        return shape;
    }
    const bool opaque_callback = parameter.conversion.kind == Kind::by_value &&
                                 parameter.conversion.size == sizeof(void *) &&
                                 type.find("_cb") != std::string::npos;
    if (parameter.conversion.kind == Kind::function_pointer || opaque_callback) {
        shape.form = Shape::Form::callback;
        shape.size = sizeof(void *);
        return shape;
    }
    const bool pointer = ends_with(type, " *");
    if (pointer) shape.type.erase(type.size() - 2);
    const Layout layout = this->layout(shape.type);
    shape.size = layout.size * elements(parameter.bounds);
    shape.record = parameter.bounds.empty() ? layout.record : nullptr;
    shape.number = layout.number && parameter.bounds.empty();
    shape.array = !pointer && (layout.array || !parameter.bounds.empty());
    if (shape.size != 0)
        shape.form = pointer || shape.array ? Shape::Form::memory : Shape::Form::value;
    return shape;
}

const Variable *Shapes::field(const Struct &record, const std::string &name,
                              const std::string &type) const {
    const Variable *found = nullptr;
    std::size_t of_type = 0;
    for (const auto &field : record.fields) {
        if (field.name == name) return &field;
        if (field.type == type && field.bounds.empty()) {
            found = &field;
            ++of_type;
        }
    }
    return of_type == 1 && type != "int" && type != "uint32" ? found : nullptr;
}

std::size_t Shapes::field_size(const Variable &field) const {
    const std::size_t base = layout(field.type).size;
    return base != 0 ? base * elements(field.bounds) : field.conversion.size;
}

}  // namespace generator
