// A map of numbered objects that finds a free number without a search.
#pragma once
#include <map>
#include <optional>

namespace standin {

// Numbers from `First` upward. It keeps the free ones below the highest that was ever in use:
//
//     gaps_    4 -> 6    9 -> 9      numbers 4 to 6 and 9 are free; ranges do not overlap
//     next_    12                    so is every number from here on
template <class Key, class Value, Key First>
class NumberedMap : private std::map<Key, Value> {
    using Map = std::map<Key, Value>;

  public:
    using Map::at;
    using Map::begin;
    using Map::contains;
    using Map::empty;
    using Map::end;
    using Map::find;
    using Map::lower_bound;
    using Map::rbegin;
    using Map::size;
    using Map::upper_bound;
    using typename Map::key_type;
    using typename Map::mapped_type;

    // REQUIRES: a new `id` is not below First.
    Value &operator[](Key id) {
        if (const auto found = find(id); found != end()) return found->second;
        const auto made = Map::emplace(id, Value{}).first;
        try {
            take(id);
        } catch (...) {
            Map::erase(made);
            throw;
        }
        return made->second;
    }

    void erase(Key id) {
        if (!contains(id)) return;
        const auto right = gaps_.find(id + 1);
        const auto made = gaps_.emplace(id, right == gaps_.end() ? id : right->second).first;
        if (right != gaps_.end()) gaps_.erase(right);
        if (made != gaps_.begin() && std::prev(made)->second == id - 1) {
            std::prev(made)->second = made->second;
            gaps_.erase(made);
        }
        Map::erase(id);
    }

    std::optional<Key> lowest_free(Key last) const {
        const Key lowest = gaps_.empty() ? next_ : gaps_.begin()->first;
        return lowest <= last ? std::optional(lowest) : std::nullopt;
    }

  private:
    void take(Key id) {
        if (id >= next_) {
            if (id > next_) gaps_.emplace(next_, id - 1);
            next_ = id + 1;
            return;
        }
        const auto gap = std::prev(gaps_.upper_bound(id));
        if (gap->second > id) gaps_.emplace(id + 1, gap->second);
        if (gap->first == id)
            gaps_.erase(gap);
        else
            gap->second = id - 1;
    }

    std::map<Key, Key> gaps_;  // first and last number of each
    Key next_ = First;
};

}  // namespace standin
