// The rows of a header: records, entries, and the proofs of layouts.
#include <algorithm>
#include <set>

#include "generator/check/rows.h"
#include "generator/emit/emitters.h"
#include "generator/emit/output.h"

namespace generator {
namespace {

const std::string kFile = R"(@banner@
#include "classes/accessor.h"
#include "convert/append_frame.h"
#include "convert/frame.h"
#include "generated/entries.h"
#include "generated/type_slots.h"
#include "runtime/client_data.h"
@hand@
#include "@header@"

using namespace ombra;

@rows@)";

const std::string kFunction = R"(// @doc@
static const Record<FunctionRow, @slots@> row_@name@{
    {reinterpret_cast<NativeFunction>(&@native@),
     {"@name@",
      @texts@}}@slot_list@};
PyObject *@entry@(PyObject *, PyObject *args) {
    using Shape = @frame@<@shape@>;
    static_assert(Shape::takes(&@native@));
    return Shape::run(row_@name@, args);
}

)";

const std::string kEntry = R"(// @doc@
static constexpr Record<CallRow, @slots@> row_@name@{
    {"@name@",
     @texts@}@slot_list@};
PyObject *@entry@(PyObject *, PyObject *args) {
    return ombra::rows::@name@(row_@name@, args);
}

)";

const std::string kField = R"(static constexpr FieldRow row_@name@{
    {"@name@",
     @texts@},
    {0, @self@, @field@}, @count@, @offset@, @size@};
PyObject *@entry@(PyObject *, PyObject *args) {
    return @accessor@(row_@name@, args);
}

)";

const std::string kConstructor =
    R"(static constexpr Record<CallRow, @slots@> row_@name@{{"@name@", ""}@slot_list@};
PyObject *@entry@(PyObject *, PyObject *args) {
    return new_struct(row_@name@, args, @size@);
}

)";

const std::string kDestructor = R"(static constexpr Record<CallRow, @slots@> row_@name@{
    {"@name@",
     @texts@}@slot_list@};
PyObject *@entry@(PyObject *, PyObject *args) {
    return delete_struct(row_@name@, args);
}

)";

const std::string kRegistration = R"(PyObject *@entry@(PyObject *, PyObject *args) {
    return SWIG_Python_RegisterClass(swig_type_slots[@slot@], args);
}

)";

const std::string kProof =
    R"(static_assert(sizeof(@class@) == @size@ && alignof(@class@) == @align@);
)";

const std::string kFieldProof = R"(static_assert(offsetof(@class@, @field@) == @offset@);
)";

// The slot of a conversion; 0 where its objects carry no type.
std::string slot_text(const Model &model, const Conversion &conversion, int slot) {
    return traits(conversion.kind).typed ? slot_name(model, slot) : "0";
}

std::string shape_of(const Row &row) {
    const bool body = row.function->hand_written == "body";
    std::string shape = (body ? "Object" : kind_class(row.result)) + "(";
    for (std::size_t i = 0; i < row.arguments.size(); ++i)
        shape += (i == 0 ? "" : ", ") + kind_class(row.arguments[i].conversion);
    return shape + ")";
}

std::string function_text(const Model &model, const Row &row) {
    const Function &function = *row.function;
    std::string doc = row.doc;
    std::replace(doc.begin(), doc.end(), '\n', ' ');
    const bool body = function.hand_written == "body";
    const std::string native = body                     ? "ombra::rows::" + row.name
                               : function.module_native ? "::" + function.native
                                                        : function.native;
    const bool entry = function.hand_written == "entry";
    return fill(entry ? kEntry : kFunction,
                with_slots(model, row,
                           {{"doc", doc},
                            {"name", row.name},
                            {"entry", row.entry},
                            {"texts", texts_of(row)},
                            {"frame", function.appended.empty() ? "Call" : "AppendCall"},
                            {"shape", shape_of(row)},
                            {"native", native}}));
}

// "get_value" and "set_value" are templates on the kind.
std::string accessor_of(const Variable &field, bool getter) {
    const KindTraits &kind = traits(field.conversion.kind);
    const std::string name = getter ? kind.getter : kind.setter;
    if (name.ends_with("_value")) return name + "<" + kind_class(field.conversion) + ">";
    return name == "set_text" && field.type == "char const *" ? "set_constant_text" : name;
}

std::string field_text(const Model &model, const Row &row) {
    const Conversion &field = row.field->conversion;
    const bool getter = row.role == RowRole::getter;
    const std::string slot = slot_text(model, field, getter ? field.result_slot : field.slot);
    return fill(kField, {{"name", row.name},
                         {"entry", row.entry},
                         {"texts", texts_of(row)},
                         {"self", slot_name(model, row.record->slot)},
                         {"field", slot},
                         {"offset", std::to_string(row.field->offset)},
                         {"size", std::to_string(field.size)},
                         {"count", std::to_string(field.count)},
                         {"accessor", accessor_of(*row.field, getter)}});
}

std::string row_text(const Model &model, const Row &row) {
    const Struct *record = row.record;
    const Holes holes =
        with_slots(model, row,
                   {{"name", row.name},
                    {"entry", row.entry},
                    {"texts", texts_of(row)},
                    {"slot", record == nullptr ? "" : slot_name(model, record->slot)},
                    {"size", record == nullptr ? "" : std::to_string(record->size)}});
    switch (row.role) {
        case RowRole::function:
            return function_text(model, row);
        case RowRole::getter:
        case RowRole::setter:
            return field_text(model, row);
        case RowRole::constructor:
            return fill(kConstructor, holes);
        case RowRole::destructor:
            return fill(kDestructor, holes);
        default:
            return fill(kRegistration, holes);
    }
}

std::string proof(const Struct &record) {
    std::string text = fill(kProof, {{"class", record.name},
                                     {"size", std::to_string(record.size)},
                                     {"align", std::to_string(record.align)}});
    for (const auto &field : record.fields) {
        text += fill(kFieldProof, {{"class", record.name},
                                   {"field", field.name},
                                   {"offset", std::to_string(field.offset)}});
    }
    return text + "\n";
}

}  // namespace

std::string texts_of(const Row &row) {
    std::vector<std::string> texts;
    for (const auto &argument : row.arguments)
        texts.push_back(argument.null_text.empty() ? argument.text : argument.null_text);
    if (!row.field_null_text.empty()) texts.push_back(row.field_null_text);
    std::string literal;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        literal += i == 0 ? "" : "\n      ";
        literal += quoted(texts[i]);
        if (i + 1 < texts.size()) literal.insert(literal.size() - 1, "\\0");
    }
    return literal.empty() ? "\"\"" : literal;
}

Holes with_slots(const Model &model, const Row &row, Holes holes) {
    std::string list = slot_text(model, row.result, row.result.result_slot);
    std::string kept = traits(row.result.kind).typed ? list : "";
    std::size_t count = kept.empty() ? 0 : 1;
    for (std::size_t i = 0; i < row.arguments.size(); ++i) {
        const Conversion &argument = row.arguments[i].conversion;
        list += ", " + slot_text(model, argument, argument.slot);
        if (!traits(argument.kind).typed) continue;
        kept = list;
        count = i + 2;
    }
    holes["slots"] = std::to_string(count);
    holes["slot_list"] = count == 0 ? "" : ",\n    {" + kept + "}";
    return holes;
}

std::string emit_shapes(const Model &model, unsigned part) {
    std::set<std::string> shapes;
    for (const auto &row : all_rows(model)) {
        if (row.function != nullptr && row.function->hand_written != "entry") {
            shapes.insert((row.function->appended.empty() ? "Call<" : "AppendCall<") +
                          shape_of(row) + ">");
        }
    }
    std::string text = banner("all declarations", "emit_rows.cpp") +
                       "\n#include \"convert/frame_body.h\"\n\nnamespace ombra {\n\n";
    std::size_t index = 0;
    for (const auto &shape : shapes)
        if (index++ % kShapeParts == part) text += "template struct " + shape + ";\n";
    return text + "\n}  // namespace ombra\n";
}

std::string kind_class(const Conversion &conversion) {
    const std::string name = traits(conversion.kind).frame;
    if (conversion.kind != Kind::by_value) return name;
    return name + "<" + std::to_string(conversion.size) + ", " + std::to_string(conversion.align) +
           ">";
}

std::string rows_file(const std::string &header) {
    const std::string root = "platform/";
    std::string name = header.rfind(root, 0) == 0 ? header.substr(root.size()) : header;
    name.erase(name.size() - 2);
    std::replace(name.begin(), name.end(), '/', '_');
    return "rows_" + name + ".cpp";
}

std::string banner(const std::string &source, const std::string &emitter) {
    return "// Made from " + source + " by generator/emit/" + emitter + ". Do not edit.";
}

std::string emit_rows(const Model &model, const std::string &header) {
    std::string text;
    for (const auto &record : model.structs)
        if (record.place.file == header) text += proof(record);
    for (const auto &row : rows_of_header(model, header)) text += row_text(model, row);
    const bool hand =
        std::any_of(model.functions.begin(), model.functions.end(), [&](const Function &function) {
            return function.place.file == header && !function.hand_written.empty();
        });
    const std::string root = "platform/";
    return fill(kFile,
                {{"hand", hand ? "#include \"api/hand_rows.h\"\n" : ""},
                 {"banner", banner(header, "emit_rows.cpp")},
                 {"header", header.rfind(root, 0) == 0 ? header.substr(root.size()) : header},
                 {"rows", text}});
}

}  // namespace generator
