// The state of a unit saved, loaded and compared.
#include "standin/model/state.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <utility>

#include "standin/model/layouts.h"
#include "standin/model/model.h"
#include "standin/model/rule_changes.h"
#include "standin/model/switch.h"

namespace standin {
namespace {

template <class Row, class Name>
const Row *find_row(std::span<const Row> rows, std::string_view name, Name &&name_of) {
    const auto found = std::ranges::lower_bound(rows, name, {}, name_of);
    return found != rows.end() && name_of(*found) == name ? &*found : nullptr;
}

class Collector : public StateVisitor {
  public:
    void object(std::string_view kind, std::string_view key) override {
        objects.push_back({std::string(kind), std::string(key), {}});
    }
    void number(std::string_view field, std::int64_t value) override {
        objects.back().fields.push_back({std::string(field), value});
    }
    void text(std::string_view field, std::string_view value) override {
        objects.back().fields.push_back({std::string(field), std::string(value)});
    }

    std::vector<StateObject> objects;
};

// FNV-1a of all that is told, with the lengths of texts.
class Digest : public StateVisitor {
  public:
    void object(std::string_view kind, std::string_view key) override {
        add(kind);
        add(key);
    }
    void number(std::string_view field, std::int64_t value) override {
        add(field);
        add(value);
    }
    void text(std::string_view field, std::string_view value) override {
        add(field);
        add(value);
    }
    std::uint64_t value() const { return value_; }

  private:
    void add(std::string_view text) {
        for (const char byte : text) mix(static_cast<unsigned char>(byte));
        add(static_cast<std::int64_t>(text.size()));
    }
    void add(std::int64_t number) { mix(static_cast<std::uint64_t>(number)); }
    void mix(std::uint64_t word) { value_ = (value_ ^ word) * 0x100000001b3u; }

    std::uint64_t value_ = 0xcbf29ce484222325u;
};

using Fields = std::map<std::string, StateValue>;

Fields fields_of(const StateObject *object) {
    Fields fields;
    if (object != nullptr)
        for (const StateField &field : object->fields) fields.emplace(field.name, field.value);
    return fields;
}

StateDifference difference(const StateObject *before, const StateObject *after) {
    const StateObject &named = after != nullptr ? *after : *before;
    StateDifference one{named.kind, named.key, before != nullptr, after != nullptr, {}};
    const Fields was = fields_of(before);
    const Fields is = fields_of(after);
    const auto value = [](const Fields &fields, const std::string &name) {
        const auto found = fields.find(name);
        return found == fields.end() ? StateValue(std::int64_t{0}) : found->second;
    };
    Fields names = was;
    names.insert(is.begin(), is.end());
    for (const auto &[name, unused] : names)
        if (value(was, name) != value(is, name))
            one.fields.push_back({name, value(was, name), value(is, name)});
    return one;
}

using Place = std::pair<std::string_view, std::string_view>;  // kind and key
using Places = std::map<Place, const StateObject *>;

Places places_of(const std::vector<StateObject> &objects) {
    Places places;
    for (const StateObject &one : objects) places.emplace(Place(one.kind, one.key), &one);
    return places;
}

}  // namespace

const StructLayout *struct_layout(std::string_view name) {
    return find_row(struct_layouts, name,
                    [](const StructLayout &row) { return std::string_view(row.name); });
}

const FamilyLayout *family_layout(std::string_view family) {
    return find_row(family_layouts, family,
                    [](const FamilyLayout &row) { return std::string_view(row.family); });
}

std::string ports_text(const bcm_pbmp_t &ports) {
    constexpr int kBits = 32 * _SHR_PBMP_WORDS;
    std::string text;
    for (int first = 0; first < kBits; ++first) {
        if (!has_port(ports, first)) continue;
        int last = first;
        while (last + 1 < kBits && has_port(ports, last + 1)) ++last;
        text += (text.empty() ? "" : ",") + std::to_string(first);
        if (last > first) text += "-" + std::to_string(last);
        first = last;
    }
    return text;
}

SavedState save_state(int unit, int &status) {
    const std::lock_guard<std::mutex> guard(model_lock());
    const SwitchState *const chip = ready_switch(unit, status);
    if (chip == nullptr) return nullptr;
    auto saved = std::make_shared<Switch>();
    static_cast<SwitchState &>(*saved) = *chip;
    return saved;
}

SavedState first_state() { return std::make_shared<Switch>(); }

int load_state(int unit, const SavedState &saved) {
    SwitchState made(*saved);
    const std::lock_guard<std::mutex> guard(model_lock());
    int status = BCM_E_NONE;
    Switch *const chip = ready_switch(unit, status);
    if (chip == nullptr) return status;
    static_cast<SwitchState &>(*chip) = made;
    note_rule_change();
    return status;
}

std::vector<StateObject> objects_of(const SavedState &saved) {
    Collector collector;
    visit_state(*saved, collector);
    return std::move(collector.objects);
}

std::uint64_t state_digest(int unit) {
    const std::lock_guard<std::mutex> guard(model_lock());
    int status = BCM_E_NONE;
    Switch *const chip = ready_switch(unit, status);
    if (chip == nullptr) return 0;
    Digest digest;
    visit_state(*chip, digest);
    return digest.value();
}

std::vector<StateDifference> compare_states(const SavedState &before, const SavedState &after) {
    const std::vector<StateObject> was = objects_of(before);
    const std::vector<StateObject> is = objects_of(after);
    const Places was_at = places_of(was);
    const Places is_at = places_of(is);
    std::vector<StateDifference> differences;
    for (auto one = was.rbegin(); one != was.rend(); ++one)
        if (!is_at.contains({one->kind, one->key}))
            differences.push_back(difference(&*one, nullptr));
    for (const StateObject &one : is) {
        const auto found = was_at.find({one.kind, one.key});
        const StateObject *const then = found == was_at.end() ? nullptr : found->second;
        if (then != nullptr && *then == one) continue;
        StateDifference made = difference(then, &one);
        // Fields in another order are no difference.
        if (then == nullptr || !made.fields.empty()) differences.push_back(std::move(made));
    }
    return differences;
}

}  // namespace standin
