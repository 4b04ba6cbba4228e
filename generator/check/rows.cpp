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

Row helper_row(const Helper &helper, RowRole role, const std::string &name) {
    Row row;
    row.role = role;
    row.name = name;
    row.helper = &helper;
    return row;
}

// `element` is a pointer to the helper's element, `type` what docstrings call it.
std::vector<Row> box_rows(const Helper &box, const Conversion &element, const std::string &type) {
    const Conversion self = pointer_to(box.name + " *", box.slot);
    Row create = helper_row(box, RowRole::box_new, "new_" + box.name);
    create.result_type = box.name;
    create.result = self;
    Row destroy = helper_row(box, RowRole::box_delete, "delete_" + box.name);
    add_argument(destroy, "self", self, false);
    Row assign = helper_row(box, RowRole::box_assign, box.name + "_assign");
    add_argument(assign, "self", self, true);
    add_argument(assign, "value", box.value, traits(box.value.kind).refuses_null);
    Row value = helper_row(box, RowRole::box_value, box.name + "_value");
    add_argument(value, "self", self, true);
    value.result_type = box.element;
    value.result = box.value;
    Row cast = helper_row(box, RowRole::box_cast, box.name + "_cast");
    add_argument(cast, "self", self, false);
    cast.result_type = type;
    cast.result = element;
    Row from = helper_row(box, RowRole::box_from_pointer, box.name + "_frompointer");
    add_argument(from, "t", element, false);
    from.result_type = box.name;
    from.result = self;
    Row enrol = helper_row(box, RowRole::registration, box.name + "_swigregister");
    enrol.result = self;
    return {create, destroy, assign, value, cast, from, enrol};
}

std::vector<Row> array_rows(const Helper &array, const Conversion &element,
                            const std::string &type) {
    Conversion index;
    index.kind = Kind::signed_32;
    index.size = index.align = traits(index.kind).size;
    index.text = "int";
    Row create = helper_row(array, RowRole::array_new, "new_" + array.name);
    add_argument(create, "nelements", index, false);
    create.result_type = type;
    create.result = element;
    Row destroy = helper_row(array, RowRole::array_delete, "delete_" + array.name);
    add_argument(destroy, "ary", element, false);
    Row get = helper_row(array, RowRole::array_get, array.name + "_getitem");
    add_argument(get, "ary", element, true);
    add_argument(get, "index", index, false);
    get.result_type = array.element;
    get.result = array.value;
    Row set = helper_row(array, RowRole::array_set, array.name + "_setitem");
    add_argument(set, "ary", element, true);
    add_argument(set, "index", index, false);
    add_argument(set, "value", array.value, traits(array.value.kind).refuses_null);
    return {create, destroy, get, set};
}

// In the order of `RowRole`.
constexpr RoleTraits kRoles[] = {{"function"},
                                 {"getter"},
                                 {"setter"},
                                 {"constructor"},
                                 {"destructor"},
                                 {"registration"},
                                 {"box", "new_box", true},
                                 {"box", "delete_struct"},
                                 {"box", "assign_box", true},
                                 {"box", "box_value", true},
                                 {"box", "recast"},
                                 {"box", "recast"},
                                 {"array", "new_array", true},
                                 {"array", "delete_array", true},
                                 {"array", "get_item", true},
                                 {"array", "set_item", true}};
static_assert(std::size(kRoles) == static_cast<std::size_t>(RowRole::array_set) + 1);

}  // namespace

std::string slot_name(const Model &model, int slot) {
    const auto index = static_cast<std::size_t>(slot);
    return "slots::" + (index < model.types.size() ? model.types[index].mangled : "any_pointer");
}

const RoleTraits &traits(RowRole role) { return kRoles[static_cast<std::size_t>(role)]; }

int slot_of(const Model &model, const std::string &mangled) {
    const auto found = std::lower_bound(
        model.types.begin(), model.types.end(), mangled,
        [](const TypeRow &row, const std::string &name) { return row.mangled < name; });
    return static_cast<int>(found - model.types.begin());
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
    for (const auto &helper : model.helpers) {
        Variable pointer;
        pointer.type = helper.element + " *";
        const Conversion element = pointer_to(pointer.type, helper.element_slot);
        const auto make = helper.form == Helper::Form::box ? box_rows : array_rows;
        for (auto &row : make(helper, element, docstring_type(model, pointer))) {
            finish(row);
            rows.push_back(std::move(row));
        }
    }
    return rows;
}

std::vector<Row> all_rows(const Model &model) {
    std::vector<Row> rows = helper_rows(model);
    for (const auto &header : model.headers)
        for (auto &row : rows_of_header(model, header)) rows.push_back(std::move(row));
    return rows;
}

}  // namespace generator
