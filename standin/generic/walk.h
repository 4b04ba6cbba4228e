// Traversals: a callback for each selected row.
#pragma once
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

#include "standin/base/faults.h"
#include "standin/generic/call.h"

namespace standin {

// The selected rows of `call`, copied; a callback may change the table. The status of the call so
// far.
int collect_rows(const Call &call, int unit, const void *const *arguments, bool callback_given,
                 std::vector<std::string> &rows);

// The arguments of a callback, made of a row: a number takes the next column of its size that is
// a number, an address the next column that is none and is large enough. Where there is no such
// column, the number is 0 and the memory is zeros.
class CallbackArguments {
  public:
    CallbackArguments(const std::string &row, const Column *columns, std::size_t count, void *user)
        : row_(row), columns_(columns), count_(count), used_(count), user_(user) {}

    template <class A>
    A next() {
        if constexpr (std::is_same_v<A, void *>) {
            return user_;
        } else if constexpr (std::is_pointer_v<A>) {
            return static_cast<A>(memory(sizeof(std::remove_pointer_t<A>)));
        } else {
            A value{};
            if (const Column *const column = take(true, sizeof(A)))
                std::memcpy(&value, row_.data() + column->row, sizeof(A));
            return value;
        }
    }

  private:
    const Column *take(bool number, std::size_t size);
    void *memory(std::size_t size);  // ours, until this object dies

    const std::string &row_;
    const Column *columns_;
    std::size_t count_;
    std::vector<bool> used_;
    std::vector<std::unique_ptr<std::max_align_t[]>> copies_;
    void *user_;
};

// Calls `visit(unit, ..., user)` for each selected row, without the lock. A negative answer ends
// the walk and is its status.
template <std::size_t kColumns, class... A>
int walk(const Call &call, const Column (&columns)[kColumns], int unit,
         const void *const *arguments, int (*visit)(int, A...), void *user) {
    std::vector<std::string> rows;
    const int status = collect_rows(call, unit, arguments, visit != nullptr, rows);
    if (status < 0) return status;
    for (const std::string &row : rows) {
        CallbackArguments source(row, columns, kColumns, user);
        std::tuple<A...> values{source.template next<A>()...};
        int result = callback_fault_check(call.name, unit);
        if (result == 0)
            result = std::apply([&](A... value) { return visit(unit, value...); }, values);
        if (result < 0) return result;
    }
    return 0;
}

}  // namespace standin
