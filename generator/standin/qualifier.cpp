// The forms of the qualifier rule: `bcm_field_qualify_X(unit, entry, data)` or `(unit, entry, data,
// mask)` with a get form that has pointers to the same, where bcmFieldQualifyX is a constant.

#include "generator/standin/plan.h"

namespace generator {
namespace {

using Form = Shape::Form;

const std::string kPrefix = "bcm_field_qualify_";
const std::string kGet = "_get";
constexpr std::size_t kValues = 2;  // the first parameter behind unit and entry

// Whether the set form has one or two values of one type, and the get form pointers to them.
bool is_pair(const Shapes &shapes, const Function &set, const Function &get) {
    const std::size_t count = set.parameters.size();
    if (count <= kValues || count > kValues + 2 || get.parameters.size() != count) return false;
    const std::string &type = set.parameters[kValues].type;
    for (std::size_t i = kValues; i < count; ++i) {
        const Shape in = shapes.of(set.parameters[i]);
        const Shape out = shapes.of(get.parameters[i]);
        const bool by_value = in.form == Form::value || (in.form == Form::memory && in.array);
        if (set.parameters[i].type != type || !by_value || in.size != out.size ||
            out.form != Form::memory || out.array || (!in.array && in.type != out.type)) {
            return false;
        }
    }
    return true;
}

}  // namespace

bool plan_qualifier(const Shapes &shapes, const std::map<std::string, const Function *> &rows,
                    Member &member) {
    std::string set = member.function->row;
    if (!set.starts_with(kPrefix)) return false;
    const bool reads = set.ends_with(kGet);
    if (reads) set.erase(set.size() - kGet.size());
    const auto in = rows.find(set);
    const auto out = rows.find(set + kGet);
    if (in == rows.end() || out == rows.end() || !is_pair(shapes, *in->second, *out->second))
        return false;
    const std::string name = set.substr(kPrefix.size());
    const StandinRow *other = shapes.known("qualifier", name);
    const std::string constant = "bcmFieldQualify" + (other == nullptr ? name : other->details);
    if (!shapes.is_constant(constant)) return false;
    member.plan->layer = "qualifier";
    member.plan->operation = reads ? "get_qualifier" : "set_qualifier";
    member.plan->family = constant;
    return true;
}

}  // namespace generator
