// The model as JSON, one record a line: what the tests check the module against, row by row.

#include "generator/check/rows.h"
#include "generator/emit/emitters.h"
#include "generator/emit/output.h"

namespace generator {
namespace {

class Object {
  public:
    Object &add(const std::string &name, const std::string &text) {
        return add_raw(name, quoted(text));
    }
    Object &add(const std::string &name, const char *text) { return add(name, std::string(text)); }
    Object &add(const std::string &name, std::size_t number) {
        return add_raw(name, std::to_string(number));
    }
    Object &add_raw(const std::string &name, const std::string &value) {
        text_ += (text_.empty() ? "" : ", ") + quoted(name) + ": " + value;
        return *this;
    }
    std::string text() const { return "{" + text_ + "}"; }

  private:
    std::string text_;
};

std::string type_name(const Model &model, int slot) {
    const auto index = static_cast<std::size_t>(slot);
    return index < model.types.size() ? model.types[index].mangled : "";
}

Object conversion(const Model &model, const Conversion &value) {
    Object object;
    object.add("kind", traits(value.kind).name).add("type", value.text);
    object.add("size", value.size).add("align", value.align).add("count", value.count);
    if (traits(value.kind).typed) {
        object.add("slot", type_name(model, value.slot));
        object.add("result_slot", type_name(model, value.result_slot));
    }
    return object;
}

template <typename List, typename Format>
std::string list(const List &items, Format format) {
    std::string text;
    for (const auto &item : items) text += (text.empty() ? "" : ", ") + format(item);
    return "[" + text + "]";
}

std::string row_text(const Model &model, const Row &row) {
    Object object;
    object.add("name", row.name).add("role", traits(row.role).name).add("doc", row.doc);
    object.add_raw("arguments", list(row.arguments, [&](const RowArgument &argument) {
                       return conversion(model, argument.conversion)
                           .add("name", argument.name)
                           .add("text", argument.text)
                           .add("null_text", argument.null_text)
                           .text();
                   }));
    object.add("result_type", row.result_type);
    if (!row.result_type.empty() || row.role == RowRole::registration)
        object.add_raw("result", conversion(model, row.result).text());
    if (row.function != nullptr) {
        object.add("native", row.function->native);
        object.add("header", row.function->place.file);
        object.add("section", row.function->section);
        object.add("hand_written", row.function->hand_written);
        object.add("appended", row.function->appended);
        object.add_raw("module_native", row.function->module_native ? "true" : "false");
    }
    if (row.record != nullptr) object.add("class", row.record->name);
    if (row.field != nullptr) {
        object.add("field", row.field->name).add("offset", row.field->offset);
        object.add("field_type", spelled(row.field->type, row.field->bounds));
        object.add("field_null_text", row.field_null_text);
    }
    return object.text();
}

std::string struct_text(const Model &model, const Struct &record) {
    return Object()
        .add("name", record.name)
        .add("tag", record.tag)
        .add("slot", type_name(model, record.slot))
        .add("size", record.size)
        .add("align", record.align)
        .add("header", record.place.file)
        .add_raw("fields", list(record.fields,
                                [&](const Variable &field) {
                                    return conversion(model, field.conversion)
                                        .add("name", field.name)
                                        .add("declared", spelled(field.type, field.bounds))
                                        .add("offset", field.offset)
                                        .text();
                                }))
        .text();
}

std::string lines(const std::vector<std::string> &items) {
    std::string text = "[";
    for (std::size_t i = 0; i < items.size(); ++i) text += (i == 0 ? "\n" : ",\n") + items[i];
    return text + "\n]";
}

}  // namespace

std::string emit_model(const Model &model) {
    std::vector<std::string> rows;
    for (const auto &row : all_rows(model)) rows.push_back(row_text(model, row));
    std::vector<std::string> classes;
    for (const auto &record : model.structs) classes.push_back(struct_text(model, record));
    std::vector<std::string> types;
    for (const auto &row : model.types) {
        types.push_back(
            Object()
                .add("name", row.mangled)
                .add_raw("pretty", list(row.pretty, [](const auto &name) { return quoted(name); }))
                .add("twin", row.twin)
                .text());
    }
    std::vector<std::string> install;
    for (const auto &row : model.install) {
        const bool constant = row.what == InstallRow::What::constant;
        install.push_back(
            constant ? "[" + quoted(row.name) + ", " + std::to_string(row.value) + "]"
                     : "[" + quoted(row.name.empty() ? "@cvar" : "@link " + row.name) + ", null]");
    }
    std::vector<std::string> variables;
    for (const auto &variable : model.variables) {
        variables.push_back(Object()
                                .add("name", variable.name)
                                .add("type", variable.type)
                                .add("kind", variable.kind)
                                .add("slot", variable.mangled)
                                .add("detail", variable.detail)
                                .text());
    }
    std::vector<std::string> headers;
    for (const auto &header : model.headers) {
        const auto purpose = model.purposes.find(header);
        headers.push_back(
            Object()
                .add("file", header)
                .add("purpose", purpose == model.purposes.end() ? "" : purpose->second)
                .text());
    }
    return "{\"headers\": " + lines(headers) + ",\n\"rows\": " + lines(rows) +
           ",\n\"classes\": " + lines(classes) + ",\n\"types\": " + lines(types) +
           ",\n\"install\": " + lines(install) + ",\n\"variables\": " + lines(variables) + "}\n";
}

}  // namespace generator
