// The generator: reads the declarations, checks them, writes what the build is made of.
//
//     generator --root DIR --out DIR     reads DIR/platform, DIR/catalogue and DIR/api, and from
//                                        DIR/standin the names that it defines
//     generator --list-rules             what the check pass looks at
//     generator --root DIR --list-kinds  the declared types that cross, with their kinds
//     generator --root DIR --explain ROW a row's whole way, from its declaration to who answers it
//
// Exit status 0 and one line of totals, or 1 with every fault of the run and no output written.

#include <algorithm>
#include <filesystem>
#include <functional>
#include <iostream>
#include <optional>
#include <set>
#include <vector>

#include "generator/check/check.h"
#include "generator/check/resolve.h"
#include "generator/check/rows.h"
#include "generator/emit/emitters.h"
#include "generator/emit/output.h"
#include "generator/model/faults.h"
#include "generator/read/read_catalogue.h"
#include "generator/read/read_headers.h"
#include "generator/read/read_standin.h"
#include "generator/standin/plan.h"

namespace generator {
namespace {

namespace fs = std::filesystem;

// Files below `folder`, as paths from `root`, in path order. A missing folder has none.
std::vector<std::string> files_below(const fs::path &root, const std::string &folder,
                                     const char *extension) {
    std::vector<std::string> headers;
    if (!fs::exists(root / folder)) return headers;
    for (const auto &entry : fs::recursive_directory_iterator(root / folder))
        if (entry.path().extension() == extension)
            headers.push_back(fs::relative(entry.path(), root).string());
    std::sort(headers.begin(), headers.end());
    return headers;
}

void read_headers(const fs::path &root, Model &model, Faults &faults) {
    const auto read = [&](const std::string &header, HeaderRole role) {
        read_header(header, read_file(root / header), role, model, faults);
        if (role != HeaderRole::types_only) model.headers.push_back(header);
    };
    for (const auto &header : files_below(root, "platform/native", ".h"))
        read(header, HeaderRole::types_only);
    for (const char *folder : {"platform/helper", "platform/sdk"})
        for (const auto &header : files_below(root, folder, ".h")) read(header, HeaderRole::bound);
    for (const char *header : {"api/exported.h", "api/native_rows.h"})
        if (fs::exists(root / header)) read(header, HeaderRole::module_native);
    for (const auto &file : files_below(root, "standin", ".cpp"))
        read_definitions(file, read_file(root / file), model);
}

void read_catalogue(const fs::path &root, Model &model, Faults &faults) {
    using Read = void (*)(const std::string &, const std::string &, Model &, Faults &);
    const std::pair<const char *, Read> tables[] = {
        {"catalogue/types.txt", read_types},         {"catalogue/kinds.txt", read_kinds},
        {"catalogue/constants.txt", read_constants}, {"catalogue/variables.txt", read_variables},
        {"catalogue/helpers.txt", read_helpers},     {"catalogue/departures.txt", read_departures},
        {"catalogue/standin.txt", read_standin}};
    for (const auto &[table, read] : tables) {
        if (!fs::exists(root / table))
            faults.add({table, 1}, "table-missing",
                       "the table is not there; make it, if only of a comment on its columns");
        read(table, read_file(root / table), model, faults);
    }
}

using Emitter = std::function<std::string(const Model &)>;

// Whether the functions of a header stand outside the module. Headers of types have none.
bool has_natives_outside(const std::string &header) {
    const std::string types = "_types.h";
    return header.rfind("platform/", 0) == 0 &&
           (header.size() < types.size() ||
            header.compare(header.size() - types.size(), types.size(), types) != 0);
}

// Every output with its emitter.
std::vector<std::pair<std::string, Emitter>> outputs(const Model &model) {
    std::vector<std::pair<std::string, Emitter>> list = {
        {"generated/entries.h", emit_entries},
        {"generated/type_slots.h", emit_type_slots},
        {"sdk/constants.h", emit_constants_header},
        {"method_table.cpp", emit_method_table},
        {"type_table.cpp", emit_type_table},
        {"install_table.cpp", emit_install_table},
        {"rows_helpers.cpp", emit_helpers},
        {"constant_names.cpp", emit_constant_names},
        {"standin_calls.txt", emit_standin_calls},
        {"standin_gate_names.h", emit_gate_names},
        {"standin_gates.cpp", emit_gate_table},
        {"standin_layouts.cpp", emit_layouts},
        {"standin_required.txt", emit_standin_required},
        {"_OmbraSdkV2Classes.py", emit_proxy},
        {"_OmbraSdkV2Manual.py", emit_manual},
        {"OmbraSdkV2Helper.pyi", emit_stub},
        {"companion_elements.cpp", emit_companion_elements},
        {"companion_callbacks.cpp", emit_companion_callbacks},
        {"model.json", emit_model}};
    for (unsigned part = 0; part < kShapeParts; ++part) {
        list.emplace_back("shapes_" + std::to_string(part) + ".cpp",
                          [part](const Model &whole) { return emit_shapes(whole, part); });
    }
    for (const auto &header : model.headers) {
        list.emplace_back(rows_file(header),
                          [header](const Model &whole) { return emit_rows(whole, header); });
        if (has_natives_outside(header)) {
            list.emplace_back(recording_file(header), [header](const Model &whole) {
                return emit_recording(whole, header);
            });
            list.emplace_back(gates_file(header),
                              [header](const Model &whole) { return emit_gates(whole, header); });
            list.emplace_back(standin_file(header),
                              [header](const Model &whole) { return emit_standin(whole, header); });
        }
    }
    return list;
}

// The declarations, checked. False after telling the faults.
bool read_checked(const fs::path &root, Model &model) {
    Faults faults;
    read_headers(root, model, faults);
    read_catalogue(root, model, faults);
    resolve(model, faults);
    check(model, faults);
    if (faults.none()) check_standin(model, faults);
    if (!faults.none()) faults.print();
    return faults.none();
}

int generate(const fs::path &root, const fs::path &out) {
    Model model;
    if (!read_checked(root, model)) return 1;
    for (const auto &[file, emitter] : outputs(model)) {
        if (!write_if_changed(out / file, emitter(model))) {
            std::cerr << (out / file).string() << ": cannot be written\n";
            return 1;
        }
    }
    std::size_t fields = 0;
    for (const auto &record : model.structs) fields += record.fields.size();
    std::cout << "checked " << model.functions.size() << " functions, " << model.structs.size()
              << " classes with " << fields << " fields, " << model.types.size() << " types, "
              << all_rows(model).size() + 1 << " rows\n";
    return 0;
}

int list_kinds(const fs::path &root) {
    Model model;
    if (!read_checked(root, model)) return 1;
    for (const auto &row : model.kinds)
        if (row.used) std::cout << traits(row.kind).name << "\t" << row.type << "\n";
    return 0;
}

int explain_row(const fs::path &root, const std::string &name) {
    Model model;
    if (!read_checked(root, model)) return 1;
    const std::string text = explain(model, name);
    std::cout << text;
    if (!text.empty()) return 0;
    std::cerr << "no row '" << name << "'\n";
    for (const auto &near : near_names(model, name)) std::cerr << "  near it: " << near << "\n";
    return 1;
}

int run(const std::vector<std::string> &arguments) {
    std::optional<fs::path> root;
    std::optional<fs::path> out;
    std::optional<std::string> row;
    bool kinds = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == "--list-rules") {
            list_rules(std::cout);
            return 0;
        }
        if (arguments[i] == "--list-kinds")
            kinds = true;
        else if (arguments[i] == "--root" && i + 1 < arguments.size())
            root = arguments[++i];
        else if (arguments[i] == "--out" && i + 1 < arguments.size())
            out = arguments[++i];
        else if (arguments[i] == "--explain" && i + 1 < arguments.size())
            row = arguments[++i];
    }
    if (kinds && root) return list_kinds(*root);
    if (row && root) return explain_row(*root, *row);
    if (!root || !out) {
        std::cerr << "usage: generator --root DIR --out DIR | --list-rules | "
                     "--root DIR --list-kinds | --root DIR --explain ROW\n";
        return 2;
    }
    return generate(*root, *out);
}

}  // namespace
}  // namespace generator

int main(int count, char **values) { return generator::run({values + 1, values + count}); }
