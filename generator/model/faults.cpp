// Collects and prints the faults of a run.
#include "generator/model/faults.h"

#include <algorithm>
#include <iostream>
#include <tuple>

namespace generator {

void Faults::add(const Place &place, const std::string &rule, const std::string &message) {
    faults_.push_back({place, message + " [" + rule + "]"});
}

void Faults::print() const {
    auto sorted = faults_;
    std::stable_sort(sorted.begin(), sorted.end(), [](const Fault &a, const Fault &b) {
        return std::tie(a.place.file, a.place.line) < std::tie(b.place.file, b.place.line);
    });
    for (const auto &fault : sorted) {
        std::cerr << fault.place.file << ":" << fault.place.line << ": error: " << fault.text
                  << "\n";
    }
    std::cerr << sorted.size() << (sorted.size() == 1 ? " fault\n" : " faults\n");
}

}  // namespace generator
