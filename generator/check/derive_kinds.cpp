// Kinds that follow from the typedefs.
#include "generator/check/derive_kinds.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace generator {
namespace {

class Derivation {
  public:
    explicit Derivation(const Model &model) {
        for (const auto &row : model.kinds) listed_.emplace(row.type, row);
        for (const auto &row : model.typedefs)
            if (row.bounds.empty()) targets_.emplace(row.name, row.type);
    }

    KindRow of(const std::string &type) const {
        if (const auto row = listed_.find(type); row != listed_.end()) return row->second;
        return of_declaration(type);
    }

    // What holds without a line of the table.
    KindRow of_declaration(const std::string &type) const {
        KindRow row;
        if (const auto target = targets_.find(type); target != targets_.end()) {
            row = of(target->second);
        } else {
            row.kind = type.ends_with(" &") ? Kind::reference : kind_of_native(type);
            row.size = traits(row.kind).size;
            row.align = traits(row.kind).align;
        }
        row.type = type;
        row.derived = true;
        return row;
    }

  private:
    std::map<std::string, KindRow> listed_;
    std::map<std::string, std::string> targets_;
};

}  // namespace

void derive_kinds(Model &model, Faults &faults) {
    const Derivation derivation(model);
    std::set<std::string> names;
    for (const auto &row : model.typedefs)
        if (row.bounds.empty()) names.insert(row.name);
    for (int kind = 0; kind <= static_cast<int>(Kind::nothing); ++kind)
        for (const char *native : traits(static_cast<Kind>(kind)).natives)
            if (native != nullptr) names.emplace(native);
    for (auto &row : model.kinds) {
        names.erase(row.type);
        if (derivation.of_declaration(row.type).kind != row.kind) continue;
        faults.add(row.place, "kind-needed",
                   "'" + row.type + "' has this kind by its declaration; remove the line");
        row.used = true;
    }
    for (const auto &name : names)
        if (KindRow row = derivation.of(name); row.kind != Kind::none)
            model.kinds.push_back(std::move(row));
    std::stable_sort(model.kinds.begin(), model.kinds.end(), [](const auto &a, const auto &b) {
        return std::tie(a.kind, a.type) < std::tie(b.kind, b.type);
    });
}

}  // namespace generator
