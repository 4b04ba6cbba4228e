// Makes the rows out of the model, with their names, messages and docstrings.
#include "generator/check/rows.h"

#include <algorithm>

#include "generator/check/resolve.h"

namespace generator {
namespace {

const std::string kNullPrefix = "invalid null reference ";

std::string method_text(const std::string &row, std::size_t index, const std::string &type) {
    return "in method '" + row + "', argument " + std::to_string(index + 1) + " of type '" + type +
           "'";
}

void add_argument(Row &row, const std::string &name, const Conversion &conversion,
                  bool null_refused) {
    RowArgument argument{name, conversion.text, "", "", conversion};
    argument.text = method_text(row.name, row.arguments.size(), conversion.text);
    if (null_refused) argument.null_text = kNullPrefix + argument.text;
    row.arguments.push_back(std::move(argument));
}

void finish(Row &row) {
    row.entry = (row.role == RowRole::registration ? "" : "_wrap_") + row.name;
    if (row.role == RowRole::registration) return;
    row.doc = row.name + "(";
    for (std::size_t i = 0; i < row.arguments.size(); ++i) {
        const std::string &name = row.arguments[i].name;
        row.doc += (i == 0 ? "" : ", ") + (name.empty() ? "arg" + std::to_string(i + 1) : name);
    }
    row.doc += ")";
    if (!row.result_type.empty()) row.doc += " -> " + row.result_type;
}

Row function_row(const Function &function) {
    Row row;
    row.name = function.row;
    row.function = &function;
    row.header = function.place.file;
    for (const auto &parameter : function.visible) {
        add_argument(row, parameter.name, parameter.conversion,
                     traits(parameter.conversion.kind).refuses_null);
    }
    row.result_type = function.visible_result;
    row.result = function.conversion;
    finish(row);
    return row;
}

Conversion pointer_to(const std::string &text, int slot) {
    Conversion conversion;
    conversion.kind = Kind::pointer;
    conversion.text = text;
    conversion.slot = conversion.result_slot = slot;
    conversion.size = conversion.align = 8;
    return conversion;
}

Row class_row(const Struct &record, RowRole role, const std::string &name) {
    Row row;
    row.role = role;
    row.name = name;
    row.record = &record;
    row.header = record.place.file;
    return row;
}

void add_field_rows(const Model &model, const Struct &record, const Variable &field,
                    std::vector<Row> &rows) {
    const Conversion self = pointer_to(record.tag + " *", record.slot);
    Row setter = class_row(record, RowRole::setter, record.name + "_" + field.name + "_set");
    setter.field = &field;
    add_argument(setter, "self", self, true);
    add_argument(setter, field.name, field.conversion, traits(field.conversion.kind).refuses_null);
    if (field.conversion.kind == Kind::fixed_array) {
        setter.field_null_text = kNullPrefix + "in variable '" + field.name + "' of type '" +
                                 field.conversion.text + "'";
    }
    finish(setter);
    Row getter = class_row(record, RowRole::getter, record.name + "_" + field.name + "_get");
    getter.field = &field;
    add_argument(getter, "self", self, true);
    getter.result_type = docstring_type(model, field);
    getter.result = field.conversion;
    finish(getter);
    rows.push_back(std::move(setter));
    rows.push_back(std::move(getter));
}

void add_class_rows(const Model &model, const Struct &record, std::vector<Row> &rows) {
    for (const auto &field : record.fields) add_field_rows(model, record, field, rows);
    Row create = class_row(record, RowRole::constructor, "new_" + record.name);
    create.result_type = record.name;
    create.result = pointer_to(record.tag + " *", record.slot);
    finish(create);
    Row destroy = class_row(record, RowRole::destructor, "delete_" + record.name);
    add_argument(destroy, "self", pointer_to(record.tag + " *", record.slot), false);
    finish(destroy);
    Row enrol = class_row(record, RowRole::registration, record.name + "_swigregister");
    finish(enrol);
    rows.insert(rows.end(), {std::move(create), std::move(destroy), std::move(enrol)});
}

Conversion number(Kind kind, std::size_t size, const std::string &text) {
    Conversion conversion;
    conversion.kind = kind;
    conversion.size = conversion.align = size;
    conversion.text = text;
    return conversion;
}

Helper helper(const Model &model, const std::string &name, const Conversion &value,
              const std::string &mangled_element) {
    Helper made;
    made.name = name;
    made.element = value.text;
    made.pointer = value.text + " *";
    made.value = value;
    made.element_slot = slot_of(model, mangled_element);
    return made;
}

// The element of a helper that holds a struct; nothing where the catalogue has no such class.
const Struct *helper_struct(const Model &model, const std::string &name) {
    const auto found = std::find_if(model.structs.begin(), model.structs.end(),
                                    [&](const Struct &record) { return record.name == name; });
    return found == model.structs.end() ? nullptr : &*found;
}

void add_struct_helper(const Model &model, const std::string &name, const std::string &element,
                       std::vector<Helper> &helpers) {
    const Struct *record = helper_struct(model, element);
    if (record == nullptr) return;
    Conversion value = number(Kind::by_value, record->size, element);
    value.align = record->align;
    value.slot = value.result_slot = record->slot;
    helpers.push_back(
        helper(model, name, value, model.types[static_cast<std::size_t>(record->slot)].mangled));
}

Row helper_row(RowRole role, const std::string &name) {
    Row row;
    row.role = role;
    row.name = name;
    return row;
}

std::string without_star(const Model &model, const Helper &helper) {
    return helper_struct(model, helper.element) == nullptr ? helper.pointer : helper.element;
}

void add_box_rows(const Model &model, const Helper &box, std::vector<Row> &rows) {
    const Conversion self = pointer_to(box.name + " *", box.slot);
    const Conversion element = pointer_to(box.pointer, box.element_slot);
    Row create = helper_row(RowRole::box, "new_" + box.name);
    create.result_type = box.name;
    create.result = self;
    Row destroy = helper_row(RowRole::box, "delete_" + box.name);
    add_argument(destroy, "self", self, false);
    Row assign = helper_row(RowRole::box, box.name + "_assign");
    add_argument(assign, "self", self, true);
    add_argument(assign, "value", box.value, traits(box.value.kind).refuses_null);
    Row value = helper_row(RowRole::box, box.name + "_value");
    add_argument(value, "self", self, true);
    value.result_type = box.element;
    value.result = box.value;
    Row cast = helper_row(RowRole::box, box.name + "_cast");
    add_argument(cast, "self", self, false);
    cast.result_type = without_star(model, box);
    cast.result = element;
    Row from = helper_row(RowRole::box, box.name + "_frompointer");
    add_argument(from, "t", element, false);
    from.result_type = box.name;
    from.result = self;
    Row enrol = helper_row(RowRole::registration, box.name + "_swigregister");
    enrol.result = self;
    for (Row *row : {&create, &destroy, &assign, &value, &cast, &from, &enrol}) {
        finish(*row);
        rows.push_back(std::move(*row));
    }
}

void add_array_rows(const Model &model, const Helper &array, std::vector<Row> &rows) {
    const Conversion pointer = pointer_to(array.pointer, array.element_slot);
    const Conversion index = number(Kind::signed_32, 4, "int");
    Row create = helper_row(RowRole::array, "new_" + array.name);
    add_argument(create, "nelements", index, false);
    create.result_type = without_star(model, array);
    create.result = pointer;
    Row destroy = helper_row(RowRole::array, "delete_" + array.name);
    add_argument(destroy, "ary", pointer, false);
    Row get = helper_row(RowRole::array, array.name + "_getitem");
    add_argument(get, "ary", pointer, true);
    add_argument(get, "index", index, false);
    get.result_type = array.element;
    get.result = array.value;
    Row set = helper_row(RowRole::array, array.name + "_setitem");
    add_argument(set, "ary", pointer, true);
    add_argument(set, "index", index, false);
    add_argument(set, "value", array.value, traits(array.value.kind).refuses_null);
    for (Row *row : {&create, &destroy, &get, &set}) {
        finish(*row);
        rows.push_back(std::move(*row));
    }
}

}  // namespace

int slot_of(const Model &model, const std::string &mangled) {
    const auto found = std::lower_bound(
        model.types.begin(), model.types.end(), mangled,
        [](const TypeRow &row, const std::string &name) { return row.mangled < name; });
    return static_cast<int>(found - model.types.begin());
}

std::vector<Helper> boxes(const Model &model) {
    std::vector<Helper> helpers = {
        helper(model, "intp", number(Kind::signed_32, 4, "int"), "_p_int"),
        helper(model, "uint16p", number(Kind::unsigned_16, 2, "unsigned short"),
               "_p_unsigned_short"),
        helper(model, "uint32p", number(Kind::unsigned_32, 4, "uint32"), "_p_unsigned_int"),
        helper(model, "uintp", number(Kind::unsigned_32, 4, "unsigned int"), "_p_unsigned_int"),
        helper(model, "uint64p", number(Kind::unsigned_64, 8, "uint64"), "_p_COMPILER_UINT64")};
    add_struct_helper(model, "appl_dcmn_init_param_tp", "appl_dcmn_init_param_t", helpers);
    for (auto &box : helpers) box.slot = slot_of(model, "_p_" + box.name);
    return helpers;
}

std::vector<Helper> arrays(const Model &model) {
    std::vector<Helper> helpers = {
        helper(model, "uint8Array", number(Kind::unsigned_8, 1, "uint8"), "_p_unsigned_char"),
        helper(model, "entrydata", number(Kind::unsigned_32, 4, "unsigned int"),
               "_p_unsigned_int")};
    add_struct_helper(model, "trunkMember", "bcm_trunk_member_t", helpers);
    return helpers;
}

namespace {

bool is_overloaded(const Model &model, const std::string &row) {
    return std::any_of(model.departures.begin(), model.departures.end(),
                       [&](const auto &d) { return d.word == "overload" && d.row == row; });
}

// Adds a function's row; the later shapes of an overloaded one join the docstring of the first,
// which then stands on lines of its own.
void add_function_row(const Model &model, const Function &function, std::vector<Row> &rows) {
    Row row = function_row(function);
    if (!is_overloaded(model, function.row)) {
        rows.push_back(std::move(row));
        return;
    }
    const auto first = std::find_if(rows.begin(), rows.end(),
                                    [&](const Row &other) { return other.name == row.name; });
    if (first != rows.end()) {
        first->doc += row.doc + "\n";
        return;
    }
    row.doc = "\n" + row.doc + "\n";
    rows.push_back(std::move(row));
}

}  // namespace

std::vector<Row> rows_of_header(const Model &model, const std::string &header) {
    std::vector<Row> rows;
    for (const auto &record : model.structs)
        if (record.place.file == header) add_class_rows(model, record, rows);
    for (const auto &function : model.functions)
        if (function.place.file == header) add_function_row(model, function, rows);
    return rows;
}

std::vector<Row> helper_rows(const Model &model) {
    std::vector<Row> rows;
    for (const auto &array : arrays(model)) add_array_rows(model, array, rows);
    for (const auto &box : boxes(model)) add_box_rows(model, box, rows);
    return rows;
}

std::vector<Row> all_rows(const Model &model) {
    std::vector<Row> rows = helper_rows(model);
    for (const auto &header : model.headers)
        for (auto &row : rows_of_header(model, header)) rows.push_back(std::move(row));
    return rows;
}

}  // namespace generator
