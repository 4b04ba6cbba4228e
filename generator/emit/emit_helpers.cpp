// The rows of boxes and arrays.
#include "generator/check/rows.h"
#include "generator/emit/emitters.h"
#include "generator/emit/output.h"

namespace generator {
namespace {

const std::string kFile = R"(@banner@
#include "classes/boxes.h"
#include "generated/entries.h"
#include "generated/type_slots.h"
#include "runtime/client_data.h"

using namespace ombra;

@rows@)";

const std::string kRow = R"(static constexpr Record<CallRow, @slots@> row_@name@{
    {"@name@",
     @texts@}@slot_list@};
PyObject *@entry@(PyObject *, PyObject *args) {
    return @call@(row_@name@, args);
}

)";

const std::string kRegistration = R"(PyObject *@entry@(PyObject *, PyObject *args) {
    return SWIG_Python_RegisterClass(swig_type_slots[@slot@], args);
}

)";

// The function of classes/boxes.h that a row calls.
std::string call_of(const Row &row) {
    const RoleTraits &role = traits(row.role);
    return role.call + (role.on_kind ? "<" + kind_class(row.helper->value) + ">" : std::string());
}

std::string row_text(const Model &model, const Row &row) {
    if (row.role == RowRole::registration) {
        return fill(kRegistration,
                    {{"entry", row.entry}, {"slot", slot_name(model, row.result.slot)}});
    }
    return fill(kRow, with_slots(model, row,
                                 {{"name", row.name},
                                  {"entry", row.entry},
                                  {"texts", texts_of(row)},
                                  {"call", call_of(row)}}));
}

}  // namespace

std::string emit_helpers(const Model &model) {
    std::string text;
    for (const auto &row : helper_rows(model)) text += row_text(model, row);
    return fill(kFile,
                {{"banner", banner("catalogue/helpers.txt", "emit_helpers.cpp")}, {"rows", text}});
}

}  // namespace generator
