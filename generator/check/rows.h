// The rows of the method table, with their texts: what the emitters of the wrappers, the method
// table, the model export and the reference share.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "generator/model/model.h"

namespace generator {

enum class RowRole {
    function,
    getter,
    setter,
    constructor,
    destructor,
    registration,
    box_new,
    box_delete,
    box_assign,
    box_value,
    box_cast,
    box_from_pointer,
    array_new,
    array_delete,
    array_get,
    array_set
};

struct RoleTraits {
    const char *name;            // "box", in model.json
    const char *call = nullptr;  // "new_box", of classes/boxes.h, for rows of helpers
    bool on_kind = false;        // `call` is a template on the element's kind
};

const RoleTraits &traits(RowRole role);

// One argument as Python passes it.
struct RowArgument {
    std::string name;       // "port"
    std::string type;       // "bcm_port_t", as the message spells it
    std::string text;       // "in method 'bcm_port_enable_get', argument 2 of type 'bcm_port_t'"
    std::string null_text;  // "invalid null reference in ...", or empty where null passes
    Conversion conversion;
};

struct Row {
    RowRole role = RowRole::function;
    std::string name;    // "bcm_port_enable_get"
    std::string entry;   // "_wrap_bcm_port_enable_get"
    std::string doc;     // "bcm_port_enable_get(unit, port, enable) -> int"; empty for none
    std::string header;  // the file that declares it, or empty
    std::vector<RowArgument> arguments;
    std::string result_type;  // "int", empty for none
    Conversion result;
    std::string field_null_text;  // "invalid null reference in variable ...", setters of arrays
    const Function *function = nullptr;
    const Struct *record = nullptr;
    const Variable *field = nullptr;
    const Helper *helper = nullptr;
};

// The rows that one header gives, in the order of the method table.
std::vector<Row> rows_of_header(const Model &model, const std::string &header);

// The rows of boxes and arrays.
std::vector<Row> helper_rows(const Model &model);

// All rows but the runtime's own first one.
std::vector<Row> all_rows(const Model &model);

// All messages of a row in one literal, each ended by a zero byte (the literal's own ends the
// last). In emit_rows.cpp.
std::string texts_of(const Row &row);

// Adds to the values of a template what it says of type slots: "slots", how many the record has,
// and "slot_list", the rest of its initialiser. The result's is the first, then come those of the
// arguments, up to the last that is read. In emit_rows.cpp.
using Holes = std::map<std::string, std::string>;
Holes with_slots(const Model &model, const Row &row, Holes holes);

// "slots::_p_int", of generated/type_slots.h.
std::string slot_name(const Model &model, int slot);

// The index of a type, by its mangled name. REQUIRES: the type exists.
int slot_of(const Model &model, const std::string &mangled);

}  // namespace generator
