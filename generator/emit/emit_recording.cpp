// The recording SDK: every function outside the module, defined as one call of the recorder
// (tests/recording/record.h), so that tests see what the module really passes.

#include <algorithm>

#include "generator/emit/emitters.h"
#include "generator/emit/output.h"

namespace generator {
namespace {

const std::string kFile = R"(@banner@
#include "@header@"

#include "tests/recording/record.h"

using recorder::given;
using recorder::mac;
using recorder::text;

@functions@)";

const std::string kNumber = R"(RECORDED_NUMBER(@name@, (@parameters@)@arguments@)
)";

const std::string kOther = R"(@form@(@name@, @type@, (@parameters@)@arguments@)
)";

bool ends_with(const std::string &text, const std::string &end) {
    return text.size() >= end.size() &&
           text.compare(text.size() - end.size(), end.size(), end) == 0;
}

std::string parameter_name(std::size_t index) { return "a" + std::to_string(index + 1); }

// "int a1, unsigned char a2[16]", with the native types and names of our own.
std::string parameters_of(const Function &function) {
    std::string text;
    for (std::size_t i = 0; i < function.parameters.size(); ++i) {
        const Variable &parameter = function.parameters[i];
        text += (i == 0 ? "" : ", ") + parameter.type + " " + parameter_name(i);
        for (const auto &bound : parameter.bounds) text += "[" + bound + "]";
    }
    return text;
}

// ", given(a1), mac(a2)": the recorder tells numbers, addresses and structures apart by their
// types; what an address stands for, only the declared name says.
std::string arguments_of(const Function &function) {
    std::string text;
    for (std::size_t i = 0; i < function.parameters.size(); ++i) {
        const Variable &parameter = function.parameters[i];
        const bool is_text = parameter.type == "char *" || parameter.type == "char const *";
        const bool is_mac = parameter.type == "bcm_mac_t";
        const char *form = !parameter.bounds.empty() ? "given"
                           : is_text                 ? "text"
                           : is_mac                  ? "mac"
                                                     : "given";
        text += std::string(", ") + form + "(" + parameter_name(i) + ")";
    }
    return text;
}

std::string function_text(const Function &function) {
    constexpr std::size_t register_size = 8;
    const bool cxx = ends_with(function.place.file, "_cxx.h");
    const bool number = !cxx && function.conversion.size <= register_size;
    return fill(number ? kNumber : kOther, {{"form", cxx ? "RECORDED_CXX" : "RECORDED_BLOCK"},
                                            {"name", function.native},
                                            {"type", function.result},
                                            {"parameters", parameters_of(function)},
                                            {"arguments", arguments_of(function)}});
}

}  // namespace

std::string recording_file(const std::string &header) {
    std::string name = rows_file(header);
    return name.replace(0, name.find('_'), "recording");
}

std::string emit_recording(const Model &model, const std::string &header) {
    std::string functions;
    for (const auto &function : model.functions)
        if (function.place.file == header) functions += function_text(function);
    const std::string root = "platform/";
    return fill(kFile, {{"banner", banner(header, "emit_recording.cpp")},
                        {"header", header.substr(root.size())},
                        {"functions", functions}});
}

}  // namespace generator
