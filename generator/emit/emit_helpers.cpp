// The rows of boxes and arrays.
#include "generator/check/rows.h"
#include "generator/emit/emitters.h"
#include "generator/emit/output.h"

namespace generator {
namespace {

const std::string kFile = R"(@banner@
#include "classes/boxes.h"
#include "generated/entries.h"
#include "runtime/client_data.h"

using namespace ombra;

@rows@)";

const std::string kRow = R"(static constexpr CallRow row_@name@{
    "@name@",
    @texts@,
    {@slots@}};
PyObject *@entry@(PyObject *, PyObject *args) {
    return @call@(row_@name@, args);
}

)";

const std::string kRegistration = R"(PyObject *@entry@(PyObject *, PyObject *args) {
    return SWIG_Python_RegisterClass(swig_type_slots[@slot@], args);
}

)";

bool ends_with(const std::string &text, const std::string &end) {
    return text.size() >= end.size() &&
           text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// The template of classes/boxes.h that a row instantiates.
std::string call_of(const Row &row, const Helper &helper) {
    const std::string kind = kind_class(helper.value);
    const bool box = row.role == RowRole::box;
    if (row.name.rfind("new_", 0) == 0) return (box ? "new_box<" : "new_array<") + kind + ">";
    if (row.name.rfind("delete_", 0) == 0)
        return box ? "delete_struct" : "delete_array<" + kind + ">";
    if (!box) return (ends_with(row.name, "_getitem") ? "get_item<" : "set_item<") + kind + ">";
    if (ends_with(row.name, "_assign")) return "assign_box<" + kind + ">";
    return ends_with(row.name, "_value") ? "box_value<" + kind + ">" : "recast";
}

std::string row_text(const Row &row, const Helper &helper) {
    if (row.role == RowRole::registration) {
        return fill(kRegistration,
                    {{"entry", row.entry}, {"slot", std::to_string(row.result.slot)}});
    }
    return fill(kRow, {{"name", row.name},
                       {"entry", row.entry},
                       {"texts", texts_of(row)},
                       {"slots", slots_of(row, row.result.result_slot)},
                       {"call", call_of(row, helper)}});
}

}  // namespace

std::string emit_helpers(const Model &model) {
    std::vector<Helper> helpers = arrays(model);
    const auto box_helpers = boxes(model);
    helpers.insert(helpers.end(), box_helpers.begin(), box_helpers.end());
    std::string text;
    for (const auto &row : helper_rows(model)) {
        for (const auto &helper : helpers) {
            const bool its_own = row.name == "new_" + helper.name ||
                                 row.name == "delete_" + helper.name ||
                                 row.name.rfind(helper.name + "_", 0) == 0;
            if (its_own) {
                text += row_text(row, helper);
                break;
            }
        }
    }
    return fill(kFile, {{"banner", banner("generator/check/rows.cpp", "emit_helpers.cpp")},
                        {"rows", text}});
}

}  // namespace generator
