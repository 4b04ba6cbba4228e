// The tables that stand once: methods, types, constants and variables.
#include <algorithm>

#include "generator/check/rows.h"
#include "generator/emit/emitters.h"
#include "generator/emit/output.h"

namespace generator {
namespace {

const std::string kMethods = R"(@banner@
#include "api/method_table.h"

#include "generated/entries.h"
#include "runtime/module_entry.h"

PyMethodDef swig_method_table[] = {
    {"SWIG_PyInstanceMethod_New", SWIG_PyInstanceMethod_New, METH_O, nullptr},
@rows@    {nullptr, nullptr, 0, nullptr}};
)";

const std::string kTypes = R"(@banner@
#include "runtime/type_table.h"

// Every cast passes the pointer unchanged: a twin is the same memory under another name.
static void *identity(void *pointer, int *) {
    return pointer;
}

@records@
swig_type_info *const swig_type_seeds[] = {
@seeds@};

swig_cast_link *const swig_cast_seeds[] = {
@casts@};

swig_type_info *swig_type_slots[@slots@];

swig_module_table swig_module{swig_type_slots, @count@, nullptr, nullptr, nullptr, nullptr};
)";

const std::string kInstall = R"(@banner@
#include "convert/variables.h"
#include "api/install_table.h"
#include "generated/type_slots.h"
#include "sdk/variables.h"

using namespace ombra;

constinit const swig_constant swig_constants[] = {
@constants@};

const swig_variable swig_variables[] = {
@variables@};

const swig_install_step swig_install_steps[] = {
@steps@};

const std::size_t swig_install_step_count = @count@;
)";

std::string number(std::size_t value) { return std::to_string(value); }

// The variable templates of convert/variables.h, by the kind column of variables.txt.
std::string variable_text(const GlobalVariable &variable) {
    const std::string in_method =
        "\"in variable '" + variable.name + "' of type '" + variable.type + "'\"";
    const std::string null_form = "\"invalid null reference in variable '" + variable.name +
                                  "' of type '" + variable.type + "'\"";
    const std::string slot = "slots::" + variable.mangled;
    std::string access;
    if (variable.kind == "int") {
        access = "IntVariable<&" + variable.name + ", Literal{" + in_method + "}>";
    } else if (variable.kind == "text") {
        access = "TextVariable<&" + variable.name + ", Literal{" + in_method + "}>";
    } else if (variable.kind == "struct" || variable.kind == "pointer-array") {
        access = "BlockVariable<&" + variable.name + ", " + slot + ", Literal{" + null_form + "}>";
    } else if (variable.kind == "function") {
        access =
            "FunctionVariable<&" + variable.name + ", " + slot + ", Literal{" + in_method + "}>";
    } else if (variable.kind == "read-only-array") {
        access = "ReadOnlyArray<" + variable.name + ", " + slot + ", Literal{\"in variable " +
                 "'read-only " + variable.name + "' of type '" + variable.type + "'\"}>";
    } else {
        access = "ReadOnlyNumber<" + variable.detail + ", Literal{\"Variable " + variable.name +
                 " is read-only.\"}>";
    }
    const bool read_only = variable.kind.rfind("read-only", 0) == 0;
    return "    {\"" + variable.name + "\", " + access + "::get, " + access + "::set, " +
           (read_only ? "true" : "false") + "},\n";
}

}  // namespace

std::string emit_method_table(const Model &model) {
    std::string rows;
    for (const auto &row : all_rows(model)) {
        rows += "    {\"" + row.name + "\", " + row.entry + ", METH_VARARGS, " +
                (row.doc.empty() ? "nullptr" : quoted(row.doc)) + "},\n";
    }
    return fill(kMethods,
                {{"banner", banner("all declarations", "emit_tables.cpp")}, {"rows", rows}});
}

std::string emit_entries(const Model &model) {
    std::string text =
        banner("all declarations", "emit_tables.cpp") +
        "\n#pragma once\n\n#include <Python.h>\n\n"
        "// An entry ends in a jump, so it has no frame to unwind: what the frame lets "
        "pass\n// passes it by.\n"
        "#define OMBRA_ENTRY [[gnu::nothrow]] PyObject *\n\n";
    for (const auto &row : all_rows(model))
        text += "OMBRA_ENTRY " + row.entry + "(PyObject *, PyObject *);\n";
    return text;
}

std::string emit_type_table(const Model &model) {
    std::string records;
    std::string seeds;
    std::string casts;
    for (const auto &row : model.types) {
        std::string pretty;
        for (const auto &name : row.pretty) pretty += (pretty.empty() ? "" : "|") + name;
        records += "static swig_type_info type" + row.mangled + "{\"" + row.mangled + "\", " +
                   (pretty.empty() ? "nullptr" : quoted(pretty)) +
                   ", nullptr, nullptr, nullptr, 0};\n";
        seeds += "    &type" + row.mangled + ",\n";
        casts += "    casts" + row.mangled + ",\n";
    }
    for (const auto &row : model.types) {
        std::vector<std::string> sources = {row.mangled};
        if (!row.twin.empty()) {
            sources.push_back(row.twin);
            std::sort(sources.begin(), sources.end());
        }
        records += "static swig_cast_link casts" + row.mangled + "[] = {";
        for (const auto &source : sources) {
            records += "{&type" + source + ", " + (source == row.mangled ? "nullptr" : "identity") +
                       ", nullptr, nullptr}, ";
        }
        records += "{nullptr, nullptr, nullptr, nullptr}};\n";
    }
    return fill(kTypes, {{"banner", banner("catalogue/types.txt", "emit_tables.cpp")},
                         {"records", records},
                         {"seeds", seeds},
                         {"casts", casts},
                         {"slots", number(model.types.size() + 1)},
                         {"count", number(model.types.size())}});
}

std::string emit_type_slots(const Model &model) {
    std::string text = banner("catalogue/types.txt", "emit_tables.cpp") +
                       "\n#pragma once\n\nnamespace slots {\n\n";
    for (std::size_t i = 0; i < model.types.size(); ++i)
        text += "inline constexpr unsigned " + model.types[i].mangled + " = " + number(i) + ";\n";
    text += "inline constexpr unsigned any_pointer = " + number(model.types.size()) + ";\n";
    return text + "\n}  // namespace slots\n";
}

std::string emit_install_table(const Model &model) {
    std::string constants;
    std::string variables;
    std::string steps;
    std::size_t constant_count = 0;
    std::size_t step_count = 0;
    const auto add_step = [&](const std::string &kind, std::size_t first, std::size_t count) {
        steps += "    {swig_install_kind::" + kind + ", " + number(first) + ", " + number(count) +
                 "},\n";
        ++step_count;
    };
    std::size_t run_begin = 0;
    const auto end_run = [&] {
        if (constant_count > run_begin)
            add_step("constants", run_begin, constant_count - run_begin);
        run_begin = constant_count;
    };
    for (const auto &row : model.install) {
        if (row.what == InstallRow::What::constant) {
            constants += "    {\"" + row.name + "\", " + std::to_string(row.value) + "},\n";
            ++constant_count;
            continue;
        }
        end_run();
        if (row.what == InstallRow::What::cvar) {
            add_step("cvar", 0, 0);
            continue;
        }
        const auto found = std::find_if(model.variables.begin(), model.variables.end(),
                                        [&](const auto &v) { return v.name == row.name; });
        add_step("link", static_cast<std::size_t>(found - model.variables.begin()), 1);
    }
    end_run();
    for (const auto &variable : model.variables) variables += variable_text(variable);
    return fill(kInstall, {{"banner", banner("catalogue/constants.txt", "emit_tables.cpp")},
                           {"constants", constants},
                           {"variables", variables},
                           {"steps", steps},
                           {"count", number(step_count)}});
}

std::string emit_constants_header(const Model &model) {
    std::string cxx;
    std::string c;
    for (const auto &row : model.install) {
        if (row.what == InstallRow::What::constant) {
            cxx += "inline constexpr int " + row.name + " = " + std::to_string(row.value) + ";\n";
            c += "    " + row.name + " = " + std::to_string(row.value) + ",\n";
        }
    }
    return banner("catalogue/constants.txt", "emit_tables.cpp") +
           "\n#pragma once\n\n#ifdef __cplusplus\n" + cxx + "#else\nenum {\n" + c + "};\n#endif\n";
}

std::string emit_constant_names(const Model &model) {
    std::string text = banner("catalogue/constants.txt", "emit_tables.cpp") +
                       "\n#include \"standin/text/names.h\"\n\n"
                       "const ConstantName standin_constants[] = {\n";
    std::size_t count = 0;
    for (const auto &row : model.install) {
        if (row.what == InstallRow::What::constant) {
            text += "    {\"" + row.name + "\", " + std::to_string(row.value) + "},\n";
            ++count;
        }
    }
    return text + "};\n\nconst std::size_t standin_constant_count = " + number(count) + ";\n";
}

}  // namespace generator
