// The forms of the statistic rule: counters by the object's key and the number of the statistic.

#include <array>

#include "generator/standin/plan.h"

namespace generator {
namespace {

using Form = Shape::Form;

struct StatisticForm {
    const char *ending;
    const char *table;  // of the family
    const char *operation;
    std::size_t behind;  // parameters behind the key
};

// `key..., stat, val`; `key..., nstat, stat_arr, value_arr`; `key..., stat, num_entries,
// counter_indexes, counter_values`; `key..., stat_counter_id`; `key..., stat, stat_counter_id`;
// `key..., stat`.
constexpr std::array<StatisticForm, 26> kForms = {{
    {"_stat_get", "_stat", "read", 2},
    {"_stat_get32", "_stat", "read", 2},
    {"_stat_sync_get", "_stat", "read", 2},
    {"_stat_sync_get32", "_stat", "read", 2},
    {"_stat_set", "_stat", "store", 2},
    {"_stat_set32", "_stat", "store", 2},
    {"_stat_extended_get", "_stat_extended", "read", 2},
    {"_stat_extended_get32", "_stat_extended", "read", 2},
    {"_stat_multi_get", "_stat", "read", 3},
    {"_stat_multi_get32", "_stat", "read", 3},
    {"_stat_sync_multi_get", "_stat", "read", 3},
    {"_stat_sync_multi_get32", "_stat", "read", 3},
    {"_stat_multi_set", "_stat", "store", 3},
    {"_stat_multi_set32", "_stat", "store", 3},
    {"_stat_counter_get", "_stat_counter", "read", 4},
    {"_stat_counter_sync_get", "_stat_counter", "read", 4},
    {"_stat_flex_counter_get", "_stat_flex_counter", "read", 4},
    {"_stat_flex_counter_sync_get", "_stat_flex_counter", "read", 4},
    {"_stat_counter_set", "_stat_counter", "store", 4},
    {"_stat_flex_counter_set", "_stat_flex_counter", "store", 4},
    {"_stat_attach", "_stat_attach", "add", 1},
    {"_stat_detach", "_stat_attach", "remove", 0},
    {"_stat_id_get", "_stat_attach", "find", 2},
    {"_stat_detach_with_id", "_stat_attach", "remove", 1},
    {"_stat_clear", "_stat", "remove_all", 1},
    {"_stat_extended_clear", "_stat_extended", "remove_all", 1},
}};

constexpr std::size_t kCounterBytes = 8;

const StatisticForm *form_of(const std::string &name) {
    for (const auto &form : kForms)
        if (name.ends_with(form.ending)) return &form;
    return nullptr;
}

bool is_number(const Shape &shape, Form form) { return shape.form == form && shape.number; }

// Whether the parameters behind the key are those of the form.
bool fits(const Member &member, const StatisticForm &form) {
    const auto &shapes = member.shapes;
    if (shapes.size() < form.behind + 2) return false;
    const auto behind = [&](std::size_t i) -> const Shape & {
        return shapes[shapes.size() - form.behind + i];
    };
    const bool in = std::string(form.operation) == "store";
    switch (form.behind) {
        case 1:
            return is_number(behind(0), Form::value);
        case 2:
            return behind(0).form == Form::value &&
                   is_number(behind(1), in ? Form::value : Form::memory);
        case 3:
            return is_number(behind(0), Form::value) && is_number(behind(1), Form::memory) &&
                   is_number(behind(2), Form::memory);
        case 4:
            return behind(0).form == Form::value && is_number(behind(1), Form::value) &&
                   is_number(behind(2), Form::memory) && behind(3).record != nullptr;
        default:
            return true;
    }
}

// Binds a parameter to the next bytes of the row.
void append(Plan &plan, const Member &member, std::size_t argument, const char *role,
            bool element) {
    const Shape &shape = member.shapes[argument];
    PlanBinding binding{argument, role, shape.form == Form::memory};
    binding.stride = element ? shape.size : 0;
    binding.row = plan.row;
    binding.size = shape.size;
    plan.bindings.push_back(binding);
    plan.row += shape.size;
}

// The parameters of the object's key. False if one of them is no part of a key.
bool append_keys(const Shapes &shapes, Plan &plan, const Member &member, std::size_t end) {
    for (std::size_t i = 1; i < end; ++i) {
        const Shape &shape = member.shapes[i];
        if (shape.form == Form::value || (shape.form == Form::memory && shape.array)) {
            append(plan, member, i, "select", false);
            continue;
        }
        if (shape.form != Form::memory || shape.record == nullptr) return false;
        for (const auto &column : key_columns(shapes, shape)) {
            const Variable *field =
                column.record != nullptr ? nullptr : shapes.field(*shape.record, column.name, "");
            PlanBinding binding{i, "select", true};
            binding.at = field == nullptr ? 0 : field->offset;
            binding.row = plan.row;
            binding.size = column.size;
            plan.bindings.push_back(binding);
            plan.row += column.size;
        }
    }
    return true;
}

}  // namespace

bool plan_statistic(const Shapes &shapes, Member &member) {
    const std::string &name = member.function->row;
    const StatisticForm *form = form_of(name);
    if (form == nullptr || !fits(member, *form)) return false;
    const std::size_t key_end = member.shapes.size() - form->behind;
    const bool attached = std::string(form->table) == "_stat_attach";
    const char *out = std::string(form->operation) == "store" ? "write" : "read";
    Plan plan;
    plan.layer = "generic-statistic";
    plan.operation = form->operation;
    plan.family = name.substr(0, name.size() - std::string(form->ending).size()) + form->table;
    if (!append_keys(shapes, plan, member, key_end)) return false;
    if (form->behind == 3)
        plan.count = key_end;
    else if (form->behind == 4)
        plan.count = key_end + 1;
    const bool clears = plan.operation == "remove_all";
    if ((form->behind >= 2 || clears) && !attached) {  // the number of the statistic
        append(plan, member, form->behind == 3 ? key_end + 1 : key_end, "select",
               form->behind == 3);
    }
    if (form->behind == 4) append(plan, member, key_end + 2, "select", true);
    plan.key = plan.row;
    if (form->behind == 1 && attached)
        append(plan, member, member.shapes.size() - 1, plan.operation == "add" ? "write" : "select",
               false);
    else if (form->behind != 0 && !clears)
        append(plan, member, member.shapes.size() - 1, out, form->behind >= 3);
    const std::size_t value = form->behind == 4 ? member.shapes.back().size
                              : attached        ? 4
                                                : kCounterBytes;
    plan.row = plan.key + value;
    *member.plan = plan;
    return true;
}

}  // namespace generator
