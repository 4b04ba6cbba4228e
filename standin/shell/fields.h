// The fields of a structure, or of a row of a generic table, as words: "port=3",
// "mac_addr=02:00:00:00:00:0a", "ftmh.ttl=4", "weights[2]=7".
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "standin/base/rows.h"
#include "standin/model/layouts.h"
#include "standin/shell/commands.h"

namespace standin {

using LayoutFields = std::span<const LayoutField>;

// Those of the structure that the form names, or of the family that the call does; empty for
// neither.
LayoutFields fields_of(const CommandCall &call);

// Writes the value of "field=value" to `memory`, which may be null to try it; why it cannot be.
std::optional<std::string> write_field(LayoutFields fields, std::string_view word,
                                       const PortNames &names, void *memory);
// Writes the words of a parameter. REQUIRES: they were read.
void write_fields(const CommandCall &call, std::string_view param, void *memory);

// The words that make `memory` out of `base`, or of zeros without one, each with a blank before it.
// The fields in `but` are left out; those in the first `always` bytes are told in any case.
std::string field_words(LayoutFields fields, const void *memory, const PortNames &names,
                        const void *base = nullptr, std::span<const std::string_view> but = {},
                        std::size_t always = 0);

// Names with "=" behind, for completion.
std::vector<Candidate> list_fields(LayoutFields fields);

// The columns of a form: its own, then the fields of its structure that are not among them, which
// a text shows when it is asked for them. They last.
std::span<const RowColumn> columns_of(const Form &form);
std::span<const RowColumn> columns_of(LayoutFields fields, std::span<const RowColumn> own,
                                      bool shown);
// The cells of all columns that are fields; the others have those that `own` gives, in order.
std::vector<Cell> cells_of(std::span<const RowColumn> columns, LayoutFields fields,
                           const void *memory, const PortNames &names, std::vector<Cell> own);

// A table of the structures of a form: what `own` gives fills the first columns, fields the rest.
class StructRows {
  public:
    explicit StructRows(const CommandCall &call);

    void row(std::vector<Cell> own, const void *memory);
    // BCM_E_NOT_FOUND where the parameter picked one row and there is none.
    cmd_result_t show(std::string_view param) const;

  private:
    const CommandCall &call_;
    LayoutFields fields_;
    PortNames names_;
    Rows rows_;
};

// The tables of the calls without a model that have rows, with how many.
std::vector<std::pair<std::string, std::size_t>> families_of(int unit);
// Shows the rows of one of them; a text for a family that there is not.
cmd_result_t show_family(const CommandCall &call, const std::string &family);

}  // namespace standin
