// The second half of Part: from columns to the bindings of each member.

#include <algorithm>

#include "generator/standin/part.h"

namespace generator {
namespace {

using Form = Shape::Form;

bool comes_in(const std::string &verb) {
    return verb == "set" || verb == "create" || verb == "add" || verb == "update";
}

bool goes_out(const std::string &verb) { return verb == "get" || verb == "find"; }

bool removes(const std::string &verb) {
    return verb == "remove" || verb == "destroy" || verb == "remove_all";
}

bool gives_id(const Member &member, const PlanColumn &column) {
    return (member.verb == "create" || member.verb == "add") && column.key && !column.given &&
           column.number && column.size <= 4;
}

bool is_control_word(const std::string &name) {
    return name == "flags" || name == "options" || name == "l3a_flags";
}

}  // namespace

std::string Part::role_of(const Member &member, const Shape &shape, const PlanColumn &column,
                          bool element) const {
    const bool by_value = shape.form != Form::memory;
    if (shape.form == Form::callback) return "callback";
    if (column.list) return comes_in(member.verb) ? "list_in" : "list_out";
    if (comes_in(member.verb)) {
        if (!by_value && !shape.array && gives_id(member, column)) return "id";
        return column.key && !element ? "select" : "write";
    }
    if (by_value) return "select";
    if (removes(member.verb)) return column.key ? "select" : "";
    const bool sought =
        member.verb == "find" && shape.record != nullptr && member.shapes.size() > 2;
    const bool wide = shape.array || shape.record != nullptr || keyed_by_arrays();
    const bool whole_key = column.key && wide && !(enumerates_ && element);
    return sought || whole_key ? "select" : "read";
}

// The column that a parameter goes to, or null.
const PlanColumn *Part::column_of(const Member &member, std::size_t i,
                                  const std::set<const PlanColumn *> &bound) {
    const Shape &shape = member.shapes[i];
    const PlanColumn *column = column_for(member, shape);
    if (column == nullptr && is_element(member, i)) return column_for_element(shape, bound);
    const bool makes = member.verb == "create" || member.verb == "add";
    if (column == nullptr && makes && shape.form == Form::memory && shape.number) {
        for (const auto &candidate : columns_)  // where the id goes, whatever its name
            if (gives_id(member, candidate) && candidate.type == shape.type) column = &candidate;
    }
    return column;
}

// What stands beside the columns. Nothing if the parameter is none of that, else whether the plan
// may have it.
std::optional<bool> Part::bind_aside(const Member &member, std::size_t i, Plan &plan) {
    const Shape &shape = member.shapes[i];
    if (member.verb == "traverse" && shape.form == Form::callback) {
        plan.callback = i;
        return true;
    }
    if (member.verb == "traverse" && shape.form == Form::context) {
        plan.context = i;
        return true;
    }
    if (shape.form == Form::opaque || (member.verb == "traverse" && shape.form == Form::memory))
        return false;
    if (is_control(member, i)) return shape.form != Form::text || plan.layer == "registration";
    return std::nullopt;
}

// A walk or a removal of all that asks for a value of the records: those of a group.
void Part::bind_by_field(const Member &member, std::size_t i, Plan &plan) const {
    const Shape &shape = member.shapes[i];
    if (member.verb != "remove_all" && member.verb != "traverse") return;
    if (shape.form != Form::value || is_control_word(shape.name)) return;
    for (const auto &column : columns_) {
        if (column.record == nullptr || column.list) continue;
        const Variable *field = shapes_.field(*column.record, shape.name, "");
        if (field == nullptr || shapes_.field_size(*field) != shape.size) continue;
        PlanBinding binding{i, "select"};
        binding.row = column.row + field->offset;
        binding.size = shape.size;
        plan.bindings.push_back(binding);
        return;
    }
}

// False if the parameter is one that no rule covers.
bool Part::bind_parameter(const Member &member, std::size_t i, Plan &plan,
                          std::set<const PlanColumn *> &bound) {
    if (const auto aside = bind_aside(member, i, plan)) return *aside;
    const Shape &shape = member.shapes[i];
    const PlanColumn *column = column_of(member, i, bound);
    if (column == nullptr && shape.form == Form::callback) {
        plan.bindings.push_back({i, "callback"});  // no part of the key, but it has to be there
        return true;
    }
    if (column == nullptr) {
        bind_by_field(member, i, plan);
        return shape.form != Form::memory || shape.record != nullptr;
    }
    if (!comes_in(member.verb) && is_control_word(shape.name) && shape.form == Form::value &&
        !column->key) {
        return true;  // flags of this call, not those of the row
    }
    const bool element = is_element(member, i);
    const std::string role = role_of(member, shape, *column, element);
    if (role.empty()) return true;
    const bool scalar = comes_in(member.verb) && shape.form == Form::memory && shape.number &&
                        !shape.array && !element;
    if ((element && !column->list && !enumerates_ && !keyed_by_arrays()) ||
        (scalar && role != "id" && (member.verb != "set" || !given_back(shape.name))) ||
        column->size != shape.size || !bound.insert(column).second) {
        return false;  // a second result, of which nothing tells what it is, or no such row
    }
    PlanBinding binding{i, role, shape.form == Form::memory};
    binding.stride = element && !column->list ? shape.size : 0;
    binding.row = column->row;
    binding.size = shape.size;
    plan.bindings.push_back(binding);
    return true;
}

// The field of the struct behind an address that is a column; null if there is none.
const Variable *Part::field_for(const Member &member, const Shape &shape,
                                const PlanColumn &column) const {
    if (shape.form != Form::memory || shape.record == nullptr ||
        (member.verb == "find" && member.shapes.size() > 2) ||
        (enumerates_ && form(member).filled != 0)) {
        return nullptr;
    }
    const std::string other = same_column(column.name);
    const Variable *field = other.empty() ? shapes_.field(*shape.record, column.name, column.type)
                                          : shapes_.field(*shape.record, other, "");
    return field != nullptr && shapes_.field_size(*field) == column.size ? field : nullptr;
}

// Keys that are fields of a struct behind an address.
void Part::bind_embedded(const Member &member, Plan &plan, std::set<const PlanColumn *> &bound) {
    if (member.verb == "remove_all" || member.verb == "traverse") return;
    const auto is_open = [&](const auto &column) { return column.key && !bound.contains(&column); };
    const bool alone = std::count_if(columns_.begin(), columns_.end(), is_open) == 1;
    for (const auto &column : columns_) {
        for (std::size_t i = 1; i < member.shapes.size() && is_open(column); ++i) {
            const Variable *field = field_for(member, member.shapes[i], column);
            if (field == nullptr) continue;
            const bool element = is_element(member, i);
            PlanBinding binding{i, "select", true, field->offset};
            if (element && comes_in(member.verb))
                binding.role = "write";
            else if (alone && gives_id(member, column))
                binding.role = "id";
            binding.stride = element ? member.shapes[i].size : 0;
            binding.row = column.row;
            binding.size = column.size;
            plan.bindings.push_back(binding);
            bound.insert(&column);
        }
    }
}

// The flags of a call, which may ask for an id or for replacement: an argument, or else a field of
// the record that holds the key or that an id is given to.
void Part::bind_flags(const Member &member, Plan &plan) const {
    if (member.verb != "create" && member.verb != "add") return;
    const auto holds_key = [&](std::size_t i) {
        return std::any_of(plan.bindings.begin(), plan.bindings.end(), [&](const auto &binding) {
            const bool id = binding.role == "id";
            return id || (binding.argument == i && binding.role == "select" &&
                          binding.size < member.shapes[i].size);
        });
    };
    for (std::size_t i = 1; i < member.shapes.size(); ++i) {
        const Shape &shape = member.shapes[i];
        if (shape.form == Form::value && shape.size == 4 && is_control_word(shape.name)) {
            PlanBinding binding{i, "flags", false};
            binding.size = 4;
            plan.bindings.push_back(binding);
            return;
        }
    }
    for (std::size_t i = 1; i < member.shapes.size(); ++i) {
        const Shape &shape = member.shapes[i];
        if (shape.form != Form::memory || shape.record == nullptr || is_element(member, i) ||
            !holds_key(i)) {
            continue;
        }
        const Variable *field = shapes_.field(*shape.record, "flags", "");
        if (field != nullptr && shapes_.field_size(*field) <= 4) {
            PlanBinding binding{i, "flags", true, field->offset};
            binding.size = shapes_.field_size(*field);
            plan.bindings.push_back(binding);
        }
    }
}

// Whether the set form names, by value, one of several rows that the get form would give: then it
// stands for all of them.
bool Part::sets_one_of_several(const Member &member) const {
    const Member *get = first("get", false);
    if (form(member).any() || get == nullptr) return form(member).any();
    return std::any_of(columns_.begin(), columns_.end(), [&](const PlanColumn &column) {
        return column.key && column.number &&
               std::any_of(get->shapes.begin(), get->shapes.end(), [&](const Shape &shape) {
                   return shape.form == Form::memory && shape.name == column.name;
               });
    });
}

std::string Part::operation_of(const Member &member, const Plan &plan) const {
    const auto has_role = [&](const char *role) {
        return std::any_of(plan.bindings.begin(), plan.bindings.end(),
                           [&](const PlanBinding &binding) { return binding.role == role; });
    };
    const bool made = has("create") || has("add");
    if (member.verb == "create" || member.verb == "add") return has_role("id") ? "create" : "add";
    if (member.verb == "set") {
        if (enumerates_ && has("add") && sets_one_of_several(member)) return "replace";
        return made ? "update" : "store";
    }
    if (member.verb == "get") {
        if (enumerates_ && form(member).any()) return "list";
        return has("set") && !made ? "read" : "find";
    }
    if (member.verb == "destroy") return "remove";
    return member.verb == "traverse" ? "list" : member.verb;
}

bool Part::complete(const Member &member, const Plan &plan,
                    const std::set<const PlanColumn *> &bound) const {
    const bool keyed = std::all_of(columns_.begin(), columns_.end(), [&](const auto &column) {
        return !column.key || bound.contains(&column);
    });
    if (comes_in(member.verb)) return keyed;
    if (goes_out(member.verb)) {
        return std::any_of(plan.bindings.begin(), plan.bindings.end(), [](const auto &binding) {
            return binding.role == "read" || binding.role == "list_out";
        });
    }
    if (member.verb == "traverse") return plan.callback != 0;
    return member.verb == "remove_all" || key_ == 0 || !plan.bindings.empty();
}

bool Part::bind(Member &member, Plan &plan) {
    std::set<const PlanColumn *> bound;
    const auto &list = form(member);
    plan.family = name_;
    plan.owner = owner_;
    for (const auto &column : owner_.empty() ? std::vector<PlanColumn>{} : owner_keys_)
        plan.owner_key += column.size;
    plan.key = key_;
    plan.row = row_;
    plan.count = list.count;
    plan.max = list.max;
    plan.filled = list.filled;
    for (const bool by_value : {true, false}) {
        for (std::size_t i = 1; i < member.shapes.size(); ++i) {
            if ((member.shapes[i].form != Form::memory) == by_value &&
                !bind_parameter(member, i, plan, bound)) {
                return false;
            }
        }
    }
    bind_embedded(member, plan, bound);
    if (!complete(member, plan, bound)) return false;
    bind_flags(member, plan);
    plan.operation = operation_of(member, plan);
    const Member *get = first("get", false);
    for (auto &binding : plan.bindings) {  // what the get form reports is what is replaced
        const std::string &name = member.shapes[binding.argument].name;
        const bool replaces = plan.operation == "replace" && !list.any() && get != nullptr;
        if (replaces && std::any_of(get->shapes.begin(), get->shapes.end(), [&](const auto &shape) {
                return shape.name == name && shape.form == Form::memory;
            })) {
            binding.role = "write";
        }
    }
    for (const auto &column : columns_)
        if (member.verb == "traverse" && !column.list) plan.columns.push_back(column);
    return true;
}

// A family that takes and never gives, save by its set form, is none.
void Part::drop_if_mute() {
    const bool speaks = std::any_of(members_.begin(), members_.end(), [](const Member &member) {
        return !member.plan->operation.empty() && (!comes_in(member.verb) || member.verb == "set");
    });
    for (auto &member : members_) *member.plan = speaks ? *member.plan : Plan{};
}

void Part::bind_members(const std::string &layer) {
    std::set<std::pair<std::string, std::size_t>> written;
    const auto place = [](const PlanBinding &binding) {
        return std::pair(std::string(binding.role.rfind("list", 0) == 0 ? "list" : "row"),
                         binding.row);
    };
    for (const bool in : {true, false}) {
        for (auto &member : members_) {
            if (comes_in(member.verb) != in || (!in && written.empty() && key_ + row_ != 0))
                continue;
            Plan plan;
            plan.layer = layer;
            if (!bind(member, plan)) continue;
            bool tells = !goes_out(member.verb);
            for (const auto &binding : plan.bindings) {
                if (in) written.insert(place(binding));
                const bool out = binding.role == "read" || binding.role == "list_out";
                tells = tells || (out && written.contains(place(binding)));
            }
            if (tells) *member.plan = plan;
        }
    }
    drop_if_mute();
}

}  // namespace generator
