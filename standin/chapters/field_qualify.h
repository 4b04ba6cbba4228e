// What the generated calls of the rule engine's qualifiers are made of, beside the generic answers.
//
// A qualifier that the set of the entry's group lacks is refused with BCM_E_PARAM. The get form
// answers BCM_E_NOT_FOUND for one that was not set.
#pragma once
#include <cstddef>
#include <initializer_list>

#include "sdk/bcm/field.h"
#include "standin/generic/call.h"

namespace standin {

// One value of a qualifier as memory: where it comes from or goes to.
struct Source {
    const void *bytes;
    std::size_t size;
};
struct Target {
    void *bytes;
    std::size_t size;
};

int set_qualifier(const char *function, int unit, bcm_field_entry_t entry, int id,
                  std::initializer_list<Source> values);
int get_qualifier(const char *function, int unit, bcm_field_entry_t entry, int id,
                  std::initializer_list<Target> values);

}  // namespace standin
