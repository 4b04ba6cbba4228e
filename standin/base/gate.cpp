// Calls on their way, and the table of all functions by name.
#include "standin/base/gate.h"

#include <algorithm>
#include <vector>

#include "standin/base/call_record.h"
#include "standin/base/faults.h"

namespace standin {
namespace {

thread_local OpenCall *innermost = nullptr;

std::string_view name_of(const GateRow *row) { return row->name; }

const std::vector<const GateRow *> &rows_by_name() {
    static const std::vector<const GateRow *> &rows = *[] {
        auto *const made = new std::vector<const GateRow *>;
        for (const GateRow &row : gate_rows) made->push_back(&row);
        std::ranges::stable_sort(*made, {}, name_of);
        return made;
    }();
    return rows;
}

int unit_of(const OpenCall &call) {
    return call.row().takes_unit && !call.arguments().empty()
               ? static_cast<int>(call.arguments().front().number)
               : kAnyUnit;
}

}  // namespace

std::atomic<bool> gates_open{false};

const GateRow *gate_row(std::string_view function) {
    const auto &rows = rows_by_name();
    const auto found = std::ranges::lower_bound(rows, function, {}, name_of);
    return found != rows.end() && (*found)->name == function ? *found : nullptr;
}

OpenCall::OpenCall(const GateRow &row, std::span<const Given> arguments, bool has_status)
    : row_(row), arguments_(arguments), outer_(innermost), asked_(false) {
    innermost = this;
    recorded_ = record_call(*this);
    if (!has_status) return;
    fault_ = fault_check(row.name, unit_of(*this));
    asked_ = true;
    if (fault_ != 0) record_result(recorded_, fault_, "fault");
}

OpenCall::~OpenCall() { innermost = outer_; }

void OpenCall::close(std::int64_t result) { record_result(recorded_, result, row_.layer); }

const OpenCall *OpenCall::current() { return innermost; }

}  // namespace standin
