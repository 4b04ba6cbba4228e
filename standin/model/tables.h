// What the chapters of numbered objects have in common.
#pragma once
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "standin/model/model.h"
#include "standin/model/switch.h"

namespace standin {

// Flags of create calls that have no constants of their own: the caller gives the id; the object
// of that id is replaced.
constexpr std::uint32_t kWithId = 0x10;
constexpr std::uint32_t kReplace = 0x20;

template <class Map>
auto *find_in(Map &map, const typename Map::key_type &key) {
    const auto found = map.find(key);
    return found == map.end() ? nullptr : &found->second;
}

// BCM_E_NOT_FOUND for a number that nothing in its table has.
template <class Key>
int missing(const Key &key) {
    return refused(BCM_E_NOT_FOUND, "there is no " + std::to_string(key));
}

// on_switch with an object found in `table`; BCM_E_NOT_FOUND if it is not there. `table` is a
// function from Switch& to a map.
template <class Table, class Key, class Body>
int on_entry(const char *function, int unit, Table &&table, const Key &key, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) {
        auto *const entry = find_in(table(chip), key);
        return entry == nullptr ? missing(key) : body(*entry);
    });
}

// An unused number from `first` to `last`, or nothing: the one after the highest in use while
// there is one, so that making many objects does not search, else the lowest.
template <class Map>
std::optional<typename Map::key_type> free_id(const Map &map, typename Map::key_type first,
                                              typename Map::key_type last) {
    if (map.empty()) return first;
    const auto highest = map.rbegin()->first;
    if (highest < last) return highest + 1;
    if constexpr (requires { map.lowest_free(last); }) return map.lowest_free(last);
    typename Map::key_type id = first;
    for (auto it = map.begin(); it != map.end() && it->first == id && id <= last; ++it) ++id;
    return id <= last ? std::optional(id) : std::nullopt;
}

// What a create call asks of a table: its name among the faults, how many it holds, its numbers.
template <class Key>
struct Numbering {
    const char *name;
    std::size_t capacity;
    Key first;
    Key last;
};

// Where a new object goes: under `*id` if `given`, else under a free number, which is written to
// `*id`. Null with a status: BCM_E_PARAM, BCM_E_EXISTS, BCM_E_FULL.
template <class Map>
typename Map::mapped_type *new_entry(Map &map, const Numbering<typename Map::key_type> &numbering,
                                     bool given, typename Map::key_type *id, int &status) {
    const auto none = [&](int why, std::string text) {
        status = refused(why, numbering.name + (" " + std::move(text)));
        return nullptr;
    };
    if (id == nullptr) return none(BCM_E_PARAM, "without a place for its number");
    if (given) {
        if (!within(*id, numbering.first, numbering.last))
            return none(BCM_E_PARAM, std::to_string(*id) + " is outside " +
                                         std::to_string(numbering.first) + " to " +
                                         std::to_string(numbering.last));
        if (map.contains(*id)) return none(BCM_E_EXISTS, std::to_string(*id) + " is there");
    }
    const std::size_t capacity = table_capacity(numbering.name, numbering.capacity);
    if (map.size() >= capacity)
        return none(BCM_E_FULL,
                    "has " + std::to_string(map.size()) + " of " + std::to_string(capacity));
    if (!given) {
        const auto number = free_id(map, numbering.first, numbering.last);
        if (!number) return none(BCM_E_FULL, "has no free number");
        *id = *number;
    }
    status = BCM_E_NONE;
    return &map[*id];
}

// Calls `visit(key, copy of the value)` for the entries of `table`, ascending, without the lock,
// so that it may change the table. A negative answer ends the walk and is its status.
template <class Table, class Visit>
int walk(const char *function, int unit, Table &&table, Visit &&visit) {
    using Map = std::remove_reference_t<decltype(table(std::declval<Switch &>()))>;
    if (const int fault = fault_check(function, unit); fault != BCM_E_NONE) return fault;
    std::optional<typename Map::key_type> last;
    for (;;) {
        std::optional<std::pair<typename Map::key_type, typename Map::mapped_type>> at;
        {
            const std::lock_guard<std::mutex> guard(model_lock());
            int status = BCM_E_NONE;
            Switch *const chip = ready_switch(unit, status);
            if (chip == nullptr) return status;
            if (is_stopped(*chip, function)) return BCM_E_INIT;
            Map &map = table(*chip);
            const auto next = last ? map.upper_bound(*last) : map.begin();
            if (next == map.end()) return BCM_E_NONE;
            at.emplace(*next);
        }
        last = at->first;
        int answer = callback_fault_check(function, unit);
        if (answer == 0) answer = visit(at->first, at->second);
        if (answer < 0) return answer;
    }
}

// Clears a chapter by `clear(chip)`, a status, and with it what the calls without a model keep,
// whose families start with `prefix`. Nothing changes if something else holds any of it.
template <class Clear>
int clear_chapter(Switch &chip, std::string_view prefix, Clear &&clear) {
    int status = check_forgettable(chip, prefix);
    if (status != BCM_E_NONE) return status;
    suspend_rows(chip, prefix);
    status = clear(chip);
    status == BCM_E_NONE ? forget_rows(chip, prefix) : resume_rows(chip, prefix);
    return status;
}

// Starts a chapter anew: what `clear` takes out of a switch, and what calls without a model keep.
template <class Clear>
int start_chapter(const char *function, int unit, std::string_view prefix, Clear clear) {
    return on_switch(function, unit,
                     [&](Switch &chip) { return clear_chapter(chip, prefix, clear); });
}

// Takes an object out of its table; BCM_E_BUSY while it is held.
template <class Map>
int erase_object(Switch &chip, Map &map, ObjectKind kind, typename Map::key_type id) {
    const auto *const one = find_in(map, id);
    if (one == nullptr) return missing(id);
    const int status = retire(chip, object(kind, id), *one);
    if (status == BCM_E_NONE) map.erase(id);
    return status;
}

// Takes all objects out of a table but `kept`; none while one of the others is held.
template <class Map>
int erase_objects(Switch &chip, Map &map, ObjectKind kind,
                  std::optional<typename Map::key_type> kept = {}) {
    for (const auto &[id, one] : map) {
        if (kept == id) continue;
        const int status = chip.references.check_unused(chip, object(kind, id));
        if (status != BCM_E_NONE) return status;
    }
    for (auto at = map.begin(); at != map.end();) {
        const auto id = at++->first;
        if (kept != id) erase_object(chip, map, kind, id);
    }
    return BCM_E_NONE;
}

// What a call answers whose callback is null, after the unit.
inline int refuse(const char *function, int unit) {
    return on_switch(function, unit, [](Switch &) { return int{BCM_E_PARAM}; });
}

}  // namespace standin
