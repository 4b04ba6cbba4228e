// The stand-in's generated answers: a definition of every function of the SDK and the helper
// library that no source of the stand-in models.

#include <algorithm>
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
@open@@functions@@close@)";

const std::string kAnswer = R"(@result@ @native@(@parameters@) {
    using namespace standin;
@bindings@    static constexpr Call call{"@row@", "@family@", @owner@, @owner_key@, @key@, @bytes@,
                               Operation::@operation@, @count@, @max@, @filled@, @bound@};
    const void *const arguments[] = {@arguments@};
    @return@;
}

)";

const std::string kInit = R"(void @native@(@parameters@) {
    using namespace standin;
@bindings@    const void *const arguments[] = {@arguments@};
    clear_record(@record@, sizeof *@record@, @bound@, arguments);
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
        text += i == 0 ? "" : ", ";
        text += parameter.type;
        text += named.contains(i) ? " " + name_of(parameter, i) : "";
        for (const auto &bound : parameter.bounds) text += "[" + bound + "]";
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

std::string bindings_of(const Plan &plan) {
    if (plan.bindings.empty()) return "";
    std::string text = "    static constexpr Binding bindings[] = {";
    for (const auto &binding : plan.bindings) {
        text += "\n        {" + number(binding.argument) + ", Role::" + binding.role + ", " +
                (binding.memory ? "true" : "false");
        for (const std::size_t value : {binding.at, binding.stride, binding.row, binding.size})
            text += ", " + number(value);
        text += "},";
    }
    text.back() = '}';
    return text + ";\n";
}

std::string columns_of(const Plan &plan) {
    std::string text = "    static constexpr Column columns[] = {";
    for (const auto &column : plan.columns) {
        text += "{" + number(column.row) + ", " + number(column.size) + ", " +
                (column.number ? "true" : "false") + "}, ";
    }
    text.erase(text.size() - 2);
    return text + "};\n";
}

std::string number_argument(const Shapes &shapes, const Function &function, std::size_t parameter) {
    if (parameter == 0) return "{}";
    const Shape shape = shapes.of(function.parameters[parameter]);
    return "{" + number(parameter) + ", " + number(shape.size) + "}";
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
    const bool bound = !plan.bindings.empty();
    return fill(kAnswer,
                {{"result", function.result},
                 {"native", function.native},
                 {"parameters", parameters_of(function, all_of(function))},
                 {"bindings", bindings_of(plan) + (plan.callback == 0 ? "" : columns_of(plan))},
                 {"row", function.row},
                 {"family", plan.family},
                 {"owner", plan.owner.empty() ? "nullptr" : quoted(plan.owner)},
                 {"owner_key", number(plan.owner_key)},
                 {"key", number(plan.key)},
                 {"bytes", number(plan.row)},
                 {"operation", plan.operation},
                 {"count", number_argument(shapes, function, plan.count)},
                 {"max", number_argument(shapes, function, plan.max)},
                 {"filled", number_argument(shapes, function, plan.filled)},
                 {"bound", bound ? "bindings, " + number(plan.bindings.size()) : "nullptr, 0"},
                 {"arguments", addresses_of(function)},
                 {"return", return_of(function, plan)}});
}

std::string init_text(const Function &function, const Plan &plan) {
    const bool bound = !plan.bindings.empty();
    const Variable &record = function.parameters[plan.callback];
    return fill(kInit,
                {{"native", function.native},
                 {"parameters", parameters_of(function, all_of(function))},
                 {"bindings", bindings_of(plan)},
                 {"arguments", addresses_of(function)},
                 {"record", name_of(record, plan.callback)},
                 {"bound", bound ? "bindings, " + number(plan.bindings.size()) : "nullptr, 0"}});
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

// "port", or "map.gport" for a field behind an address.
std::string bound_name(const Shapes &shapes, const Function &function, const PlanBinding &binding) {
    const Variable &parameter = function.parameters[binding.argument];
    const Shape shape = shapes.of(parameter);
    std::string name = name_of(parameter, binding.argument);
    if (shape.record == nullptr || binding.size == shape.size) return name;
    for (const auto &field : shape.record->fields)
        if (field.offset == binding.at) return name + "." + field.name;
    return name;
}

// "standin/chapters/l2_calls.cpp", or rule, family, key and values between tabs.
std::string answer_of(const Shapes &shapes, const Function &function, const Plan &plan) {
    if (!function.modelled.empty()) return function.modelled;
    std::string key;
    std::string values;
    for (const auto &binding : plan.bindings) {
        const bool list = binding.role.starts_with("list");
        std::string &names = !list && binding.row < plan.key ? key : values;
        if (binding.role != "flags")
            names += (names.empty() ? "" : " ") + bound_name(shapes, function, binding);
    }
    std::string text = plan.layer;
    for (const std::string &part : {plan.family, key, values})
        text += "\t" + (part.empty() ? "-" : part);
    return text;
}

}  // namespace

std::string standin_file(const std::string &header) {
    return "standin" + rows_file(header).substr(4);
}

std::string emit_standin(const Model &model, const std::string &header) {
    const Shapes shapes(model);
    const std::vector<Plan> &plans = plans_of(model);
    std::string functions;
    std::string proofs;
    std::set<std::string> proved;
    bool walks = false;
    bool qualifies = false;
    for (std::size_t i = 0; i < model.functions.size(); ++i) {
        const Function &one = model.functions[i];
        if (one.place.file != header || !one.modelled.empty()) continue;
        functions += function_text(shapes, model.functions[i], plans[i]);
        proofs += proofs_of(shapes, model.functions[i], plans[i], proved);
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
        text += function.native + "\t" + answer_of(shapes, function, plans[i]) + "\n";
    }
    return text;
}

// For the linker: a function that is counted as modelled has to be there.
std::string emit_standin_required(const Model &model) {
    std::string text;
    for (const auto &function : model.functions)
        if (!function.modelled.empty() && !function.place.file.ends_with("_cxx.h"))
            text += "--require-defined=" + function.native + "\n";
    return text;
}

}  // namespace generator
