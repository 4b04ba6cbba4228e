// A call with its arguments, and the rows that it means.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "standin/generic/call.h"
#include "standin/model/generic_tables.h"

namespace standin {

class Invocation {
  public:
    Invocation(const Call &call, const void *const *arguments)
        : call_(call), arguments_(arguments) {}

    // BCM_E_PARAM: an address that is needed is null, or a number of elements is out of bounds.
    int check() const;

    int count() const { return number(call_.count, 1); }  // elements that come in
    // Elements that fit, where the call names a limit or else the number it wants.
    int max() const { return number(call_.max, count()); }
    std::uint32_t flags() const;

    // The bytes of a binding for the element of that index, in the caller's memory.
    const char *source(const Binding &binding, int element) const;
    char *target(const Binding &binding, int element) const;

    // Null without an argument of that role.
    const Binding *find(Role role) const;

    // BCM_E_PORT, BCM_E_NOT_FOUND or BCM_E_PARAM: something that comes in names what is not there.
    int check_names(Switch &chip) const;

    // A row of the element, with what it names.
    GenericRow row(Switch &chip, int element) const;
    // Writes what comes in for the element into a row.
    void fill(std::string &bytes, int element) const;
    // The lists of a row, as they come in.
    std::vector<std::string> lists() const;
    // Writes what goes out for the element; null stands for a row of zeros.
    void give(const GenericRow *row, int element) const;
    void give_lists(const GenericRow *row) const;
    // Tells how many elements there are, where the call asks for it.
    void give_count(int count) const;

    const Call &call() const { return call_; }

    template <class Visit>
    void each(Visit &&visit) const {
        for (const Binding &binding : call_.bindings) visit(binding);
    }

  private:
    int number(const Number &number, int otherwise) const;
    bool is_null(const Binding &binding) const;

    const Call &call_;
    const void *const *arguments_;
};

// The rows that the selecting arguments pick, in the order in which they came.
std::vector<RowPlace> selected(const Invocation &invocation, GenericTable &table, int element);

}  // namespace standin
