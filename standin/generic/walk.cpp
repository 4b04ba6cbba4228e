// Copies of the rows that a traversal selects, and memory for its callback's arguments.
#include "standin/generic/walk.h"

#include <algorithm>

#include "standin/generic/selection.h"
#include "standin/model/model.h"
#include "standin/model/switch.h"

namespace standin {

int collect_rows(const Call &call, int unit, const void *const *arguments, bool callback_given,
                 std::vector<std::string> &rows) {
    return on_switch(call.name, unit, [&](Switch &chip) {
        const Invocation invocation(call, arguments);
        if (!callback_given) return int{BCM_E_PARAM};
        if (const int status = invocation.check(); status < 0) return status;
        if (const int status = invocation.check_names(chip); status < 0) return status;
        const auto table = chip.generic.find(std::string_view(call.family));
        if (table == chip.generic.end()) return int{BCM_E_NONE};
        for (const RowPlace &place : selected(invocation, table->second, 0))
            rows.push_back(place->second.bytes);
        return int{BCM_E_NONE};
    });
}

const Column *CallbackArguments::take(bool number, std::size_t size) {
    for (std::size_t i = 0; i < count_; ++i) {
        const Column &column = columns_[i];
        const bool fits = number ? column.size == size : column.size >= size;
        if (used_[i] || column.number != number || !fits) continue;
        used_[i] = true;
        return &column;
    }
    return nullptr;
}

void *CallbackArguments::memory(std::size_t size) {
    const Column *const column = take(false, size);
    const std::size_t bytes = column == nullptr ? size : column->size;
    auto copy = std::make_unique<std::max_align_t[]>(bytes / sizeof(std::max_align_t) + 1);
    if (column != nullptr) std::memcpy(copy.get(), row_.data() + column->row, bytes);
    copies_.push_back(std::move(copy));
    return copies_.back().get();
}

}  // namespace standin
