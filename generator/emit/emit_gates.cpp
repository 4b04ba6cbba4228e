// The gates of the stand-in: each function of C linkage that it exports is a few instructions that
// pass a call on to what answers it, and tell the bench of it while that listens.

#include "generator/emit/emitters.h"
#include "generator/emit/output.h"
#include "generator/standin/plan.h"

namespace generator {
namespace {

const std::string kNames = R"(@banner@
#pragma once

@names@)";

const std::string kFile = R"(@banner@
#include "@header@"

#include "standin/base/gate.h"

@gates@)";

const std::string kGate = R"(extern "C" decltype(@name@) real_@name@;
extern "C" @result@ @name@(@parameters@) {
    if (standin::gates_shut()) [[likely]]
        return real_@name@(@arguments@);
    return standin::pass(standin::gate_rows[@number@], real_@name@, {@given@}@more@);
}

)";

const std::string kTable = R"(@banner@
#include "standin/base/gate.h"

namespace standin {
namespace {

const GateRow kRows[] = {
@rows@};

}  // namespace

const std::span<const GateRow> gate_rows(kRows);

}  // namespace standin
)";

const std::string kModelled = "standin/";

bool is_gated(const Function &function) {
    return !function.module_native && !function.place.file.ends_with("_cxx.h");
}

std::string parameter_name(const Function &function, std::size_t index) {
    const std::string &name = function.parameters[index].name;
    return name.empty() ? "arg" + std::to_string(index + 1) : name;
}

// "mac(source)": what the declared type alone says of an argument.
std::string given(const Function &function, std::size_t index) {
    const Variable &parameter = function.parameters[index];
    const std::string name = parameter_name(function, index);
    const bool plain = parameter.bounds.empty();
    if (plain && (parameter.type == "char *" || parameter.type == "char const *"))
        return "standin::text(" + name + ")";
    return plain && parameter.type == "bcm_mac_t" ? "standin::mac(" + name + ")" : name;
}

std::string gate_text(const Function &function, std::size_t number) {
    std::string parameters;
    std::string arguments;
    std::string forms;
    for (std::size_t i = 0; i < function.parameters.size(); ++i) {
        const std::string comma = i == 0 ? "" : ", ";
        parameters += comma + declared(function.parameters[i], parameter_name(function, i));
        arguments += comma + parameter_name(function, i);
        forms += comma + given(function, i);
    }
    return fill(kGate, {{"number", std::to_string(number)},
                        {"result", function.result},
                        {"name", function.native},
                        {"parameters", parameters},
                        {"arguments", arguments},
                        {"given", forms},
                        {"more", arguments.empty() ? "" : ", " + arguments}});
}

// "chapters" for what is modelled there, else the rule.
std::string layer_of(const Function &function, const Plan &plan) {
    const std::string &file = function.modelled.file;
    if (!file.starts_with(kModelled)) return plan.layer;
    return file.substr(kModelled.size(), file.find('/', kModelled.size()) - kModelled.size());
}

std::string row_text(const Function &function, const Plan &plan) {
    std::string parameters;
    for (std::size_t i = 0; i < function.parameters.size(); ++i)
        parameters += (i == 0 ? "" : " ") + parameter_name(function, i);
    return "    {" + quoted(function.native) + ", " + quoted(layer_of(function, plan)) + ", " +
           quoted(parameters) + ", " + (takes_unit(function) ? "true" : "false") + "},\n";
}

}  // namespace

std::string gates_file(const std::string &header) { return "gates" + rows_file(header).substr(4); }

// The sources of the stand-in define the functions under these names.
std::string emit_gate_names(const Model &model) {
    std::string names;
    for (const auto &function : model.functions)
        if (is_gated(function))
            names +=
                "#pragma redefine_extname " + function.native + " real_" + function.native + "\n";
    return fill(kNames,
                {{"banner", banner("all declarations", "emit_gates.cpp")}, {"names", names}});
}

std::string emit_gates(const Model &model, const std::string &header) {
    std::string gates;
    for (std::size_t i = 0; i < model.functions.size(); ++i)
        if (model.functions[i].place.file == header && is_gated(model.functions[i]))
            gates += gate_text(model.functions[i], i);
    const std::string root = "platform/";
    return fill(kFile, {{"banner", banner(header, "emit_gates.cpp")},
                        {"header", header.substr(root.size())},
                        {"gates", gates}});
}

// Of every function, in the order of the model; those without a gate too.
std::string emit_gate_table(const Model &model) {
    const std::vector<Plan> &plans = plans_of(model);
    std::string rows;
    for (std::size_t i = 0; i < model.functions.size(); ++i)
        rows += row_text(model.functions[i], plans[i]);
    return fill(kTable, {{"banner", banner("all declarations", "emit_gates.cpp")}, {"rows", rows}});
}

}  // namespace generator
