// Calls about what never moves in this switch: readings give zeros and no elements.

#include <sstream>

#include "generator/standin/plan.h"

namespace generator {
namespace {

using Form = Shape::Form;

bool has_word(const std::string &name, std::initializer_list<const char *> words) {
    std::istringstream rest(name);
    for (std::string word; std::getline(rest, word, '_');)
        for (const char *const one : words)
            if (word == one) return true;
    return false;
}

// How many elements fit, and where their number goes; zeros unless the function has both.
std::pair<std::size_t, std::size_t> list_of(const Member &member) {
    std::size_t max = 0;
    std::size_t filled = 0;
    for (std::size_t i = 1; i < member.shapes.size(); ++i) {
        const Shape &shape = member.shapes[i];
        if (!shape.number || shape.array) continue;
        if (shape.form == Form::value && has_word(shape.name, {"max", "size"})) max = i;
        if (shape.form == Form::memory && has_word(shape.name, {"count", "actual"})) filled = i;
    }
    return max != 0 && filled != 0 ? std::pair(max, filled)
                                   : std::pair(std::size_t{0}, std::size_t{0});
}

}  // namespace

bool plan_still(const Shapes &shapes, Member &member) {
    const StandinRow *row = shapes.known_pattern("still", member.function->row);
    if (row == nullptr) return false;
    Plan plan;
    plan.layer = "still";
    plan.family = member.function->row;
    std::tie(plan.max, plan.filled) = list_of(member);
    plan.operation = plan.max == 0 ? "read" : "list";
    for (std::size_t i = 1; i < member.shapes.size(); ++i) {
        const Shape &shape = member.shapes[i];
        const bool in = shape.form == Form::value;
        if (shape.form == Form::opaque || shape.form == Form::text) return false;
        if (shape.form == Form::callback) plan.bindings.push_back({i, "callback"});
        if ((!in && shape.form != Form::memory) || i == plan.max || i == plan.filled) continue;
        PlanBinding binding{i, in ? "select" : "read", !in};
        binding.stride = !in && plan.max != 0 ? shape.size : 0;
        binding.row = plan.row;
        binding.size = shape.size;
        plan.bindings.push_back(binding);
        if (in) plan.row += shape.size;
    }
    plan.key = plan.row;
    *member.plan = plan;
    return true;
}

}  // namespace generator
