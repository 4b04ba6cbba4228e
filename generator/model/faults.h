// Faults of a run: collected, sorted by place, printed in the form that editors jump to.
#pragma once

#include <string>
#include <vector>

#include "generator/model/model.h"

namespace generator {

class Faults {
  public:
    // `rule` is the short name of the rule that is broken; `message` says what was found, what was
    // expected and what to do.
    void add(const Place &place, const std::string &rule, const std::string &message);

    bool none() const { return faults_.empty(); }

    // Prints "file:line: error: message [rule]" for each fault, and their number.
    void print() const;

  private:
    struct Fault {
        Place place;
        std::string text;
    };
    std::vector<Fault> faults_;
};

}  // namespace generator
