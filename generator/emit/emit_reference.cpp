// The reference: a page for each header, with every row's call, types and result.

#include <algorithm>

#include "generator/check/rows.h"
#include "generator/emit/emitters.h"
#include "generator/emit/output.h"

namespace generator {
namespace {

const std::string kPage = R"(# @title@

@purpose@

Declared in `@header@`.

@classes@@functions@)";

const std::string kClass = R"(## class @name@

@size@ bytes. `new_@name@()`, `delete_@name@(self)`, `@name@_swigregister(class)`; for each field
`@name@_FIELD_get(self)` and `@name@_FIELD_set(self, value)`.

| field | type | kind |
|---|---|---|
@fields@
)";

// "bcm_l2_types" for "platform/sdk/bcm/l2_types.h".
std::string title_of(const std::string &header) {
    std::string name = rows_file(header);
    name = name.substr(5, name.size() - 9);
    return name.rfind("sdk_", 0) == 0 ? name.substr(4) : name;
}

// Types stand in tables: a pipe would end the cell.
std::string cell(std::string text) {
    for (std::size_t at = text.find('|'); at != std::string::npos; at = text.find('|', at + 2))
        text.insert(at, "\\");
    return "`" + text + "`";
}

std::string class_text(const Struct &record) {
    std::string fields;
    for (const auto &field : record.fields) {
        fields += "| " + field.name + " | " + cell(spelled(field.type, field.bounds)) + " | " +
                  traits(field.conversion.kind).name + " |\n";
    }
    return fill(kClass,
                {{"name", record.name}, {"size", std::to_string(record.size)}, {"fields", fields}});
}

std::string function_text(const Row &row) {
    std::string types;
    for (const auto &argument : row.arguments) types += (types.empty() ? "" : ", ") + argument.type;
    std::string call = row.doc;
    std::replace(call.begin(), call.end(), '\n', ' ');
    return "| " + cell(call) + " | " + (types.empty() ? "none" : cell(types)) + " |\n";
}

}  // namespace

std::string reference_file(const std::string &header) {
    return "reference/" + title_of(header) + ".md";
}

std::string emit_reference(const Model &model, const std::string &header) {
    std::string classes;
    for (const auto &record : model.structs)
        if (record.place.file == header) classes += class_text(record);
    std::string functions;
    for (const auto &row : rows_of_header(model, header))
        if (row.function != nullptr) functions += function_text(row);
    if (!functions.empty())
        functions = "## functions\n\n| call | argument types |\n|---|---|\n" + functions;
    const auto purpose = model.purposes.find(header);
    return fill(kPage, {{"title", title_of(header)},
                        {"purpose", purpose == model.purposes.end() ? "" : purpose->second},
                        {"header", header},
                        {"classes", classes},
                        {"functions", functions}});
}

std::string emit_reference_index(const Model &model) {
    std::string text =
        "# Reference\n\nEvery row of the module, by the header that declares it.\n\n"
        "| page | what it is for |\n|---|---|\n";
    for (const auto &header : model.headers) {
        const auto purpose = model.purposes.find(header);
        const std::string page = title_of(header);
        text += "| [" + page + "](" + page + ".md) | " +
                (purpose == model.purposes.end() ? "" : purpose->second) + " |\n";
    }
    return text;
}

}  // namespace generator
