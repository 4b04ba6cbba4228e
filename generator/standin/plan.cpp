// Sorts the functions into families by their names, and plans each family.
#include "generator/standin/plan.h"

#include <algorithm>
#include <array>
#include <set>

#include "generator/standin/part.h"

namespace generator {
namespace {

struct Ending {
    const char *ending;
    const char *verb;
    const char *table;  // what remains of the ending in the name of the family
};

// The first that fits counts.
constexpr std::array<Ending, 26> kEndings = {{
    {"_destroy_all", "destroy_all", ""},
    {"_delete_all", "remove_all", ""},
    {"_remove_all", "remove_all", ""},
    {"_clear", "remove_all", ""},
    {"_create_id", "create", ""},
    {"_create_with_id", "create", ""},
    {"_create", "create", ""},
    {"_destroy", "destroy", ""},
    {"_delete", "remove", ""},
    {"_remove", "remove", ""},
    {"_add", "add", ""},
    {"_get_all", "get", ""},
    {"_attach_get", "get", "_attach"},
    {"_get", "get", ""},
    {"_set", "set", ""},
    {"_find", "find", ""},
    {"_traverse", "traverse", ""},
    {"_update", "update", ""},
    {"_unregister", "remove", "_register"},
    {"_register", "add", "_register"},
    {"_attach", "add", "_attach"},
    {"_detach", "remove", "_attach"},
    {"_t_init", "init", "_t_init"},
    {"_init", "forget", "_"},
    {"_cleanup", "forget", "_"},
    {"_deinit", "forget", "_"},
}};

bool ends_with(const std::string &text, const std::string &end) {
    return text.size() >= end.size() &&
           text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// The family of a function, and its verb there; no verb if the name has none.
std::pair<std::string, std::string> family_of(const Shapes &shapes, const Function &function) {
    const std::string &name = function.row;
    if (const StandinRow *said = shapes.known("form", name); said != nullptr) {
        const std::size_t dot = said->details.rfind('.');
        if (dot != std::string::npos)
            return {said->details.substr(0, dot), said->details.substr(dot + 1)};
    }
    const bool chapter = function.parameters.size() == 1 && takes_unit(function);
    for (const auto &row : kEndings) {
        if (!ends_with(name, row.ending)) continue;
        const std::string stem = name.substr(0, name.size() - std::string(row.ending).size());
        if (std::string(row.verb) == "forget" && !chapter) continue;
        if (chapter && std::string(row.ending) == "_detach") return {stem + "_", "forget"};
        const StandinRow *other = shapes.known("family", stem);
        return {(other == nullptr ? stem : other->details) + row.table, row.verb};
    }
    return {name, shapes.known_prefix("set-prefix", name) ? "set" : ""};
}

// Clears the record, then copies the other parameters into the fields of their names.
void plan_init(const Shapes &shapes, Member &member) {
    Plan plan;
    plan.layer = "init";
    plan.operation = "init";
    for (std::size_t i = 0; i < member.shapes.size(); ++i) {
        if (member.shapes[i].form == Shape::Form::memory && member.shapes[i].record != nullptr) {
            plan.callback = i;
            plan.row = member.shapes[i].size;
        }
    }
    if (plan.row == 0) return;
    const Struct &record = *member.shapes[plan.callback].record;
    for (std::size_t i = 0; i < member.shapes.size(); ++i) {
        const Shape &shape = member.shapes[i];
        const Variable *field = i == plan.callback ? nullptr : shapes.field(record, shape.name, "");
        if (field != nullptr && shapes.field_size(*field) == shape.size) {
            PlanBinding binding{i, "write", shape.form == Shape::Form::memory};
            binding.row = field->offset;
            binding.size = shape.size;
            plan.bindings.push_back(binding);
        }
    }
    *member.plan = plan;
}

void plan_forget(const std::string &family, Member &member) {
    member.plan->layer = "init";
    member.plan->operation = "forget";
    member.plan->family = family;
}

bool any_verb(const std::vector<Member> &members, const std::set<std::string> &verbs) {
    return std::any_of(members.begin(), members.end(),
                       [&](const Member &member) { return verbs.contains(member.verb); });
}

std::string layer_of(const std::vector<Member> &members, const std::string &family) {
    if (ends_with(family, "_register")) return "registration";
    if (any_verb(members, {"create", "destroy"})) return "generic-object";
    return any_verb(members, {"add", "remove"}) ? "generic-table" : "generic-pair";
}

// Whether the member asks by more than the key of the objects.
bool asks_by_more(const Member &member, const Part &objects) {
    return std::any_of(member.shapes.begin() + 1, member.shapes.end(), [&](const Shape &shape) {
        const bool key = std::any_of(
            objects.columns().begin(), objects.columns().end(),
            [&](const PlanColumn &column) { return column.key && column.name == shape.name; });
        const Shape::Form form = shape.form;
        return member.verb == "get" && form == Shape::Form::value && !key &&
               shape.name != "flags" && shape.name.find("max") == std::string::npos;
    });
}

// Whether a get form gives something that no create form takes.
bool tells_of_rows(const std::vector<Member> &members) {
    const auto made_with = [&](const std::string &name) {
        return std::any_of(members.begin(), members.end(), [&](const Member &member) {
            return member.verb == "create" &&
                   std::any_of(member.shapes.begin(), member.shapes.end(),
                               [&](const Shape &shape) { return shape.name == name; });
        });
    };
    return std::any_of(members.begin(), members.end(), [&](const Member &member) {
        return member.verb == "get" &&
               std::any_of(member.shapes.begin(), member.shapes.end(), [&](const Shape &shape) {
                   return shape.form == Shape::Form::memory && !made_with(shape.name);
               });
    });
}

}  // namespace

bool takes_unit(const Function &function) {
    if (function.parameters.empty()) return false;
    const Variable &first = function.parameters.front();
    const bool number = first.type == "int" || first.type == "uint32" || first.type == "uint";
    return number && (first.name == "unit" || (first.name.empty() && first.type == "int" &&
                                               function.row.rfind("bcm_", 0) == 0));
}

void plan_family(const Shapes &shapes, const std::string &family, std::vector<Member> members) {
    if (shapes.known("unfit", family) != nullptr) return;
    const std::string layer = layer_of(members, family);
    std::vector<Member> objects;
    std::vector<Member> rows;
    const bool both = any_verb(members, {"destroy"}) && any_verb(members, {"add"});
    for (const auto &member : members) {
        if (any_verb(members, {"destroy"}) && !both && member.verb == "remove")
            continue;  // takes the object out of the hardware only
        static const std::set<std::string> of_rows = {"add", "remove", "remove_all"};
        (both && of_rows.contains(member.verb) ? rows : objects).push_back(member);
    }
    // A set or get form that asks by more than the objects' key is of the rows.
    if (any_verb(objects, {"create"})) {
        Part whole(shapes, family, objects);
        const bool keyed = whole.find_columns();
        const bool more = keyed && std::any_of(objects.begin(), objects.end(), [&](auto &member) {
                              return asks_by_more(member, whole);
                          });
        if (more || (both && tells_of_rows(objects))) {
            const auto accessors = std::stable_partition(
                objects.begin(), objects.end(),
                [](const Member &member) { return member.verb != "set" && member.verb != "get"; });
            rows.insert(rows.end(), accessors, objects.end());
            objects.erase(accessors, objects.end());
        }
    }
    for (auto &member : objects)
        member.verb = member.verb == "destroy_all" ? "remove_all" : member.verb;
    Part part(shapes, family, objects);
    if (part.find_columns()) part.bind_members(layer);
    Part inner(shapes, family + "/members", rows);
    inner.belongs_to(part);
    if (!rows.empty() && inner.find_columns()) inner.bind_members(layer_of(rows, family));
}

namespace {

std::vector<Plan> plan_all(const Model &model) {
    const Shapes shapes(model);
    std::vector<Plan> plans(model.functions.size());
    std::map<std::string, const Function *> rows;
    for (const auto &function : model.functions) rows[function.row] = &function;
    std::map<std::string, std::vector<Member>> families;
    for (std::size_t i = 0; i < model.functions.size(); ++i) {
        const Function &function = model.functions[i];
        const auto [family, verb] = family_of(shapes, function);
        Member member{&function, verb, {}, &plans[i]};
        for (const auto &parameter : function.parameters)
            member.shapes.push_back(shapes.of(parameter));
        const bool status = function.result == "int" || function.result == "void";
        if (verb == "init")
            plan_init(shapes, member);
        else if (function.module_native || !status || !takes_unit(function))
            continue;
        else if (verb == "forget")
            plan_forget(family, member);
        else if (!plan_qualifier(shapes, rows, member) && !plan_statistic(shapes, member) &&
                 !verb.empty())
            families[family].push_back(member);
    }
    for (const auto &[family, members] : families) plan_family(shapes, family, members);
    for (std::size_t i = 0; i < plans.size(); ++i) {
        const Function &function = model.functions[i];
        if (!plans[i].operation.empty() || function.module_native || !takes_unit(function))
            continue;
        Member member{&function, "", {}, &plans[i]};
        for (const auto &parameter : function.parameters)
            member.shapes.push_back(shapes.of(parameter));
        plan_still(shapes, member);
    }
    plan_references(model, shapes, plans);
    return plans;
}

}  // namespace

const std::vector<Plan> &plans_of(const Model &model) {
    static const Model *planned = nullptr;
    static std::vector<Plan> plans;
    if (planned != &model) {
        plans = plan_all(model);
        planned = &model;
    }
    return plans;
}

std::string bound_name(const Shapes &shapes, const Function &function, const PlanBinding &binding) {
    const Variable &parameter = function.parameters[binding.argument];
    const Shape shape = shapes.of(parameter);
    std::string name =
        parameter.name.empty() ? "arg" + std::to_string(binding.argument + 1) : parameter.name;
    if (shape.record == nullptr || binding.size == shape.size) return name;
    for (const auto &field : shape.record->fields)
        if (field.offset == binding.at) return name + "." + field.name;
    return name;
}

}  // namespace generator
