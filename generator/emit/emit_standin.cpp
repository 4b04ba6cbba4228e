// The stand-in's generated answers: a definition of every function of the SDK and the helper
// library that no source of the stand-in models.

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

#include "generator/emit/emitters.h"
#include "generator/emit/output.h"
#include "generator/standin/plan.h"

namespace generator {
namespace {

const std::string kFile = R"(@banner@
#include "@header@"

#include "standin/@runtime@.h"

@proofs@
@kinds@@open@@functions@@close@)";

const std::string kAnswer = R"(@result@ @native@(@parameters@) {
    using namespace standin;
@bindings@    static constexpr Call call{
        @call@};
    const void *const arguments[] = {@arguments@};
    @return@;
}

)";

const std::string kInit = R"(void @native@(@parameters@) {
    using namespace standin;
@bindings@    const void *const arguments[] = {@arguments@};
    clear_record(@record@, sizeof *@record@, @bindings_or_none@, arguments);
}

)";

const std::string kDefault = R"(@result@ @native@(@parameters@) { @return@; }

)";

const std::string kQualifier = R"(int @native@(@parameters@) {
    return standin::@operation@("@row@", @unit@, @entry@, @constant@, {@values@});
}

)";

std::string number(std::size_t value) { return std::to_string(value); }

std::string name_of(const Variable &parameter, std::size_t index) {
    return parameter.name.empty() ? "arg" + number(index + 1) : parameter.name;
}

// The parameters as a definition spells them; `named` holds the ones that are used.
std::string parameters_of(const Function &function, const std::set<std::size_t> &named) {
    std::string text;
    for (std::size_t i = 0; i < function.parameters.size(); ++i) {
        const Variable &parameter = function.parameters[i];
        text += (i == 0 ? "" : ", ") +
                declared(parameter, named.contains(i) ? name_of(parameter, i) : "");
    }
    return text;
}

std::set<std::size_t> all_of(const Function &function) {
    std::set<std::size_t> all;
    for (std::size_t i = 0; i < function.parameters.size(); ++i) all.insert(i);
    return all;
}

std::string addresses_of(const Function &function) {
    std::string text;
    for (std::size_t i = 0; i < function.parameters.size(); ++i)
        text += (i == 0 ? "&" : ", &") + name_of(function.parameters[i], i);
    return text;
}

std::string unit_of(const Function &function) {
    const std::string name = name_of(function.parameters.front(), 0);
    return function.parameters.front().type == "int" ? name : "static_cast<int>(" + name + ")";
}

// "{.argument = 1, .size = 4}": what is not its field's default, which is nothing or false.
class Fields {
  public:
    explicit Fields(std::string between = ", ") : between_(std::move(between)) {}

    Fields &add(const std::string &name, const std::string &value) {
        if (!value.empty()) text_ += (text_.empty() ? "." : between_ + ".") + name + " = " + value;
        return *this;
    }
    Fields &add(const std::string &name, std::size_t value) {
        return add(name, value == 0 ? "" : number(value));
    }
    Fields &add(const std::string &name, bool value) {
        return add(name, std::string(value ? "true" : ""));
    }
    const std::string &text() const { return text_; }

  private:
    std::string between_;
    std::string text_;
};

std::string array_of(const std::string &type, const std::string &name,
                     const std::vector<Fields> &elements) {
    std::string text;
    for (const auto &element : elements)
        text += std::string(text.empty() ? "" : ",") + "\n        {" + element.text() + "}";
    return text.empty() ? ""
                        : "    static constexpr " + type + " " + name + "[] = {" + text + "};\n";
}

std::string bindings_of(const Plan &plan) {
    std::vector<Fields> elements;
    for (const auto &binding : plan.bindings)
        elements.push_back(Fields()
                               .add("argument", binding.argument)
                               .add("role", "Role::" + binding.role)
                               .add("memory", binding.memory)
                               .add("at", binding.at)
                               .add("stride", binding.stride)
                               .add("row", binding.row)
                               .add("size", binding.size));
    return array_of("Binding", "bindings", elements);
}

// A kind is a number with bounds, "0..7", or what the model knows by that name, or what rows are.
std::string kind_text(const std::string &kind) {
    static const std::map<std::string, std::string> modelled = {
        {"port", "kPort"},     {"vlan", "kVlan"},       {"stg", "kStg"},
        {"trunk", "kTrunk"},   {"hop", "kHop"},         {"multicast", "kMulticast"},
        {"mirror", "kMirror"}, {"policer", "kPolicer"}, {"rule-group", "kGroup"},
        {"rule", "kRule"},     {"range", "kRange"}};
    const std::size_t dots = kind.find("..");
    const auto known = modelled.find(kind);
    Fields fields;
    fields.add("name", quoted(kind));
    if (dots != std::string::npos)
        fields.add("sort", std::string("Sort::kNumber"))
            .add("low", kind.substr(0, dots))
            .add("high", kind.substr(dots + 2));
    else
        fields.add("sort", "Sort::" + (known == modelled.end() ? "kMade" : known->second));
    return "{" + fields.text() + "}";
}

// "kind_rule_group", "kind_0_7".
std::string kind_name(const std::string &kind) {
    std::string name = "kind_";
    for (const char one : kind)
        name += std::isalnum(static_cast<unsigned char>(one)) != 0 ? one : '_';
    return name;
}

std::string kinds_of(const std::set<std::string> &kinds) {
    std::string text;
    for (const auto &kind : kinds)
        text += "constexpr NameKind " + kind_name(kind) + kind_text(kind) + ";\n";
    return text.empty() ? ""
                        : "namespace {\nusing namespace standin;\n" + text + "}  // namespace\n\n";
}

std::string references_of(const Plan &plan) {
    static const std::map<std::string, std::string> bonds = {
        {"holds", ""}, {"leaves", "Bond::kLeaves"}, {"falls", "Bond::kFalls"}};
    std::vector<Fields> elements;
    for (const auto &one : plan.references)
        elements.push_back(Fields()
                               .add("kind", "&" + kind_name(one.kind))
                               .add("field", quoted(one.field))
                               .add("bond", bonds.at(one.bond))
                               .add("list", one.list)
                               .add("optional", one.optional)
                               .add("row", one.row)
                               .add("at", one.at)
                               .add("stride", one.stride)
                               .add("size", one.size));
    return array_of("Reference", "references", elements);
}

std::string id_of(const Plan &plan) {
    if (plan.id_kind.empty()) return "";
    return "{" +
           Fields()
               .add("kind", "&" + kind_name(plan.id_kind))
               .add("row", plan.id)
               .add("size", plan.id_size)
               .text() +
           "}";
}

std::string columns_of(const Plan &plan) {
    std::vector<Fields> elements;
    for (const auto &column : plan.columns)
        elements.push_back(
            Fields().add("row", column.row).add("size", column.size).add("number", column.number));
    return array_of("Column", "columns", elements);
}

std::string number_argument(const Shapes &shapes, const Function &function, std::size_t parameter) {
    if (parameter == 0) return "";
    const Shape shape = shapes.of(function.parameters[parameter]);
    return "{" + Fields().add("argument", parameter).add("size", shape.size).text() + "}";
}

std::string call_of(const Shapes &shapes, const Function &function, const Plan &plan) {
    return Fields(",\n        ")
        .add("name", quoted(function.row))
        .add("family", quoted(plan.family))
        .add("owner", plan.owner.empty() ? "" : quoted(plan.owner))
        .add("owner_key", plan.owner_key)
        .add("key", plan.key)
        .add("row", plan.row)
        .add("operation", "Operation::" + plan.operation)
        .add("count", number_argument(shapes, function, plan.count))
        .add("max", number_argument(shapes, function, plan.max))
        .add("filled", number_argument(shapes, function, plan.filled))
        .add("bindings", std::string(plan.bindings.empty() ? "" : "bindings"))
        .add("references", std::string(plan.references.empty() ? "" : "references"))
        .add("id", id_of(plan))
        .add("first_id", plan.first_id == 1 ? 0 : plan.first_id)
        .text();
}

// The call of the runtime, and what becomes of its status.
std::string return_of(const Function &function, const Plan &plan) {
    std::string call = "answer(call, " + unit_of(function) + ", arguments)";
    if (plan.callback != 0) {
        const std::string context = plan.context == 0
                                        ? "nullptr"
                                        : name_of(function.parameters[plan.context], plan.context);
        call = "walk(call, columns, " + unit_of(function) + ", arguments, " +
               name_of(function.parameters[plan.callback], plan.callback) + ", " + context + ")";
    }
    return (function.result == "void" ? "" : "return ") + call;
}

std::string answer_text(const Shapes &shapes, const Function &function, const Plan &plan) {
    return fill(kAnswer, {{"result", function.result},
                          {"native", function.native},
                          {"parameters", parameters_of(function, all_of(function))},
                          {"bindings", bindings_of(plan) + references_of(plan) +
                                           (plan.callback == 0 ? "" : columns_of(plan))},
                          {"call", call_of(shapes, function, plan)},
                          {"arguments", addresses_of(function)},
                          {"return", return_of(function, plan)}});
}

std::string init_text(const Function &function, const Plan &plan) {
    const Variable &record = function.parameters[plan.callback];
    return fill(kInit, {{"native", function.native},
                        {"parameters", parameters_of(function, all_of(function))},
                        {"bindings", bindings_of(plan)},
                        {"arguments", addresses_of(function)},
                        {"record", name_of(record, plan.callback)},
                        {"bindings_or_none", plan.bindings.empty() ? "{}" : "bindings"}});
}

// The values of a qualifier as blocks of memory.
std::string qualifier_text(const Shapes &shapes, const Function &function, const Plan &plan) {
    std::string values;
    for (std::size_t i = 2; i < function.parameters.size(); ++i) {
        const Shape shape = shapes.of(function.parameters[i]);
        const bool value = shape.form == Shape::Form::value;
        values += std::string(values.empty() ? "{" : ", {") + (value ? "&" : "") +
                  name_of(function.parameters[i], i) + ", " + number(shape.size) + "}";
    }
    return fill(kQualifier, {{"native", function.native},
                             {"parameters", parameters_of(function, all_of(function))},
                             {"operation", plan.operation},
                             {"row", function.row},
                             {"unit", name_of(function.parameters[0], 0)},
                             {"entry", name_of(function.parameters[1], 1)},
                             {"constant", plan.family},
                             {"values", values}});
}

// A function without a rule: BCM_E_UNAVAIL where the result is a status, else nothing.
std::string default_text(const Function &function) {
    const bool status = function.result == "int";
    const bool unit = takes_unit(function);
    std::string result = "return {}";
    if (status) {
        result = "return standin::unavailable(" + quoted(function.row) +
                 (unit ? ", " + unit_of(function) : "") + ")";
    } else if (function.result == "void") {
        result = "return";
    }
    return fill(kDefault,
                {{"result", function.result},
                 {"native", function.native},
                 {"parameters", parameters_of(function, status && unit ? std::set<std::size_t>{0}
                                                                       : std::set<std::size_t>{})},
                 {"return", result}});
}

std::string function_text(const Shapes &shapes, const Function &function, const Plan &plan) {
    if (plan.operation.empty()) return default_text(function);
    if (plan.layer == "qualifier") return qualifier_text(shapes, function, plan);
    return plan.operation == "init" ? init_text(function, plan)
                                    : answer_text(shapes, function, plan);
}

// The sizes that the bindings rely on, for the compiler to judge.
std::string proofs_of(const Shapes &shapes, const Function &function, const Plan &plan,
                      std::set<std::string> &proved) {
    std::string text;
    for (const auto &binding : plan.bindings) {
        const Variable &parameter = function.parameters[binding.argument];
        const Shape shape = shapes.of(parameter);
        if (parameter.bounds.empty() && shape.size != 0 && proved.insert(shape.type).second)
            text += "static_assert(sizeof(" + shape.type + ") == " + number(shape.size) + ");\n";
    }
    return text;
}

GeneratedAnswer answer_by_rule(const Shapes &shapes, const Function &function, const Plan &plan) {
    GeneratedAnswer answer{plan.layer, plan.family, "", ""};
    for (const auto &binding : plan.bindings) {
        const bool list = binding.role.starts_with("list");
        std::string &names = !list && binding.row < plan.key ? answer.key : answer.values;
        if (binding.role != "flags")
            names += (names.empty() ? "" : " ") + bound_name(shapes, function, binding);
    }
    return answer;
}

}  // namespace

GeneratedAnswer generated_answer(const Model &model, const Function &function) {
    const auto index = static_cast<std::size_t>(&function - model.functions.data());
    return answer_by_rule(Shapes(model), function, plans_of(model)[index]);
}

std::string standin_file(const std::string &header) {
    return "standin" + rows_file(header).substr(4);
}

std::string emit_standin(const Model &model, const std::string &header) {
    const Shapes shapes(model);
    const std::vector<Plan> &plans = plans_of(model);
    std::string functions;
    std::string proofs;
    std::set<std::string> proved;
    std::set<std::string> kinds;
    bool walks = false;
    bool qualifies = false;
    for (std::size_t i = 0; i < model.functions.size(); ++i) {
        const Function &one = model.functions[i];
        if (one.place.file != header || !one.modelled.file.empty()) continue;
        functions += function_text(shapes, model.functions[i], plans[i]);
        proofs += proofs_of(shapes, model.functions[i], plans[i], proved);
        for (const auto &reference : plans[i].references) kinds.insert(reference.kind);
        if (!plans[i].id_kind.empty()) kinds.insert(plans[i].id_kind);
        walks = walks || !plans[i].columns.empty();
        qualifies = qualifies || plans[i].layer == "qualifier";
    }
    const std::string runtime = qualifies ? "chapters/field_qualify"
                                : walks   ? "generic/walk"
                                          : "generic/call";
    const std::string root = "platform/";
    const bool linkage = header.find("_cxx.h") == std::string::npos;
    return fill(kFile, {{"banner", banner(header, "emit_standin.cpp")},
                        {"header", header.substr(root.size())},
                        {"runtime", runtime},
                        {"proofs", proofs},
                        {"kinds", kinds_of(kinds)},
                        {"open", linkage ? "extern \"C\" {\n\n" : ""},
                        {"functions", functions},
                        {"close", linkage ? "}  // extern \"C\"\n" : ""}});
}

// Who answers each function: the source that models it, or the rule with its family, the columns of
// the key and the values.
std::string emit_standin_calls(const Model &model) {
    const Shapes shapes(model);
    const std::vector<Plan> &plans = plans_of(model);
    std::string text;
    for (std::size_t i = 0; i < model.functions.size(); ++i) {
        const Function &function = model.functions[i];
        if (function.module_native) continue;
        text += function.native + "\t";
        if (function.modelled.file.empty()) {
            const GeneratedAnswer answer = answer_by_rule(shapes, function, plans[i]);
            text += answer.rule;
            for (const std::string &part : {answer.family, answer.key, answer.values})
                text += "\t" + (part.empty() ? "-" : part);
        } else {
            text += function.modelled.file;
        }
        text += "\n";
    }
    return text;
}

// For the linker: a function that is counted as modelled has to be there.
std::string emit_standin_required(const Model &model) {
    std::string text;
    for (const auto &function : model.functions)
        if (!function.modelled.file.empty() && !function.place.file.ends_with("_cxx.h"))
            text += "--require-defined=real_" + function.native + "\n";
    return text;
}

}  // namespace generator
