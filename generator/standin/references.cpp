// Which objects the rows of a family name: by the types of their columns, with exceptions by name.

#include <algorithm>
#include <array>
#include <set>
#include <sstream>

#include "generator/standin/plan.h"

namespace generator {
namespace {

constexpr std::array<const char *, 3> kBonds = {"holds", "leaves", "falls"};

// Where the ids begin that a family gives out, if others give out numbers of the same kind: each
// family has a block of its own, behind what the model has.
struct IdBlocks {
    const char *kind;
    std::size_t first;
    std::size_t step;
};
constexpr std::array<IdBlocks, 3> kIdBlocks = {
    {{"port", std::size_t{30} << 26, 1 << 16}, {"vlan", 4096, 4096}, {"", 1, 4096}}};

// What the table says of a number: "port holds" is a kind with a bond.
struct Said {
    std::string kind;  // empty: it names nothing
    std::string bond;
};

class Finder {
  public:
    Finder(const Shapes &shapes, std::string family)
        : shapes_(shapes), family_(std::move(family)) {}

    // Of a parameter, or of a field of `record`. The most special line counts.
    Said said(const std::string &record, const std::string &name, const std::string &type) const {
        for (const std::string &key :
             {family_ + "." + name, record + "." + name, type + "." + name, type}) {
            if (key == type && shapes_.is_plain_number(type, name)) return {};
            const StandinRow *row = shapes_.known("names", key);
            if (row == nullptr) continue;
            std::istringstream words(row->details);
            Said said;
            words >> said.kind >> said.bond;
            if (said.kind == "-") said.kind.clear();
            return said;
        }
        return {};
    }

  private:
    const Shapes &shapes_;
    std::string family_;
};

// A place in the memory of a parameter, and where the row has it.
struct Span {
    std::size_t from = 0;
    std::size_t to = 0;
    std::ptrdiff_t shift = 0;
};

class Collector {
  public:
    Collector(const Shapes &shapes, const Function &function, Plan &plan)
        : shapes_(shapes), function_(function), finder_(shapes, plan.family), plan_(plan) {}

    void collect() {
        for (const auto &binding : plan_.bindings) {
            const bool list = binding.role == "list_in";
            if (binding.role != "select" && binding.role != "write" && !list) continue;
            const Shape shape = shapes_.of(function_.parameters[binding.argument]);
            proto_ = {};
            proto_.list = list;
            proto_.stride = list ? shape.size : 0;
            if (shape.record == nullptr && !shape.array) {
                add(finder_.said("", shape.name, shape.type), shape.name, shape.size,
                    list ? 0 : binding.row, binding.row, false);
            } else if (shape.record != nullptr) {
                const auto shift = list ? 0
                                        : static_cast<std::ptrdiff_t>(binding.row) -
                                              static_cast<std::ptrdiff_t>(binding.at);
                list_ = binding.row;
                const std::size_t size = list ? shape.size : binding.size;
                add_fields(*shape.record, 0, {binding.at, binding.at + size, shift});
            }
        }
    }

  private:
    void add_fields(const Struct &record, std::size_t base, const Span &span) {
        for (const auto &field : record.fields) {
            const std::size_t at = base + field.offset;
            const Shape shape = shapes_.of(field);
            const std::size_t size = shapes_.field_size(field);
            if (at < span.from || at + size > span.to) continue;
            if (shape.record != nullptr && !field.type.ends_with(" *")) {
                add_fields(*shape.record, at, span);
                continue;
            }
            const bool whole = field.bounds.empty() && shape.number && size <= 4;
            const auto place =
                static_cast<std::size_t>(static_cast<std::ptrdiff_t>(at) + span.shift);
            if (whole && !field.type.ends_with(" *"))
                add(finder_.said(record.name, field.name, field.type), field.name, size, place,
                    list_, true);
        }
    }

    // `place` is in the row or in the element of a list, which is the one of that number.
    void add(const Said &said, const std::string &name, std::size_t size, std::size_t place,
             std::size_t list, bool field) {
        if (said.kind.empty()) return;
        PlanReference made = proto_;
        made.kind = said.kind;
        made.field = name;
        made.size = size;
        made.row = made.list ? list : place;
        made.at = made.list ? place : 0;
        const bool key = !made.list && place < plan_.key;
        made.optional = field || !key;
        made.bond = !said.bond.empty()                   ? said.bond
                    : key                                ? "falls"
                    : plan_.layer == "generic-pair"      ? "leaves"
                    : plan_.layer == "generic-statistic" ? "leaves"
                                                         : "holds";
        if (key && place < plan_.owner_key) return;  // the owner has to be there in any case
        plan_.references.push_back(made);
    }

    const Shapes &shapes_;
    const Function &function_;
    Finder finder_;
    Plan &plan_;
    PlanReference proto_;
    std::size_t list_ = 0;
};

struct OwnId {
    std::string kind;
    std::string name;
    std::size_t row = 0;
    std::size_t size = 0;
};

// The ids that families give out, by family.
std::map<std::string, OwnId> own_ids(const Model &model, const Shapes &shapes,
                                     const std::vector<Plan> &plans) {
    std::map<std::string, OwnId> ids;
    for (std::size_t i = 0; i < plans.size(); ++i) {
        for (const auto &binding : plans[i].bindings) {
            if (binding.role != "id") continue;
            const Variable &parameter = model.functions[i].parameters[binding.argument];
            const Shape shape = shapes.of(parameter);
            std::string name = shape.name;
            std::string type = shape.type;
            if (shape.record != nullptr)
                for (const auto &field : shape.record->fields)
                    if (field.offset == binding.at)
                        std::tie(name, type) = std::tie(field.name, field.type);
            const Finder finder(shapes, plans[i].family);
            const std::string record = shape.record == nullptr ? "" : shape.record->name;
            OwnId &own = ids[plans[i].family];
            own = {finder.said(record, name, type).kind, name, binding.row, binding.size};
        }
    }
    return ids;
}

std::map<std::string, std::size_t> first_ids(const std::map<std::string, OwnId> &ids) {
    std::map<std::string, std::size_t> givers;  // of each kind
    for (const auto &[family, own] : ids) ++givers[own.kind];
    std::map<std::string, std::size_t> next;
    std::map<std::string, std::size_t> first;
    for (const auto &[family, own] : ids) {
        const auto block = std::find_if(
            kIdBlocks.begin(), kIdBlocks.end(), [&kind = own.kind](const IdBlocks &one) {
                return kind == one.kind || std::string(one.kind).empty();
            });
        const bool shared = givers[own.kind] > 1 && own.size > 1 && !own.kind.empty();
        const bool plain = std::string(block->kind).empty();
        first[family] = plain && !shared ? 1 : block->first + next[own.kind]++ * block->step;
    }
    return first;
}

}  // namespace

void plan_references(const Model &model, const Shapes &shapes, std::vector<Plan> &plans) {
    const auto ids = own_ids(model, shapes, plans);
    const auto first = first_ids(ids);
    for (std::size_t i = 0; i < plans.size(); ++i) {
        Plan &plan = plans[i];
        if (plan.family.empty() || plan.bindings.empty()) continue;
        if (plan.operation == "init" || plan.layer == "qualifier") continue;
        Collector(shapes, model.functions[i], plan).collect();
        const auto own = ids.find(plan.family);
        if (own == ids.end()) continue;
        std::erase_if(plan.references, [&](const PlanReference &one) {  // nor in a record's copy
            return !one.list && (one.row == own->second.row || one.field == own->second.name);
        });
        plan.id_kind = own->second.kind;
        plan.id = own->second.row;
        plan.id_size = own->second.size;
        plan.first_id = first.at(plan.family);
    }
}

}  // namespace generator
