// The MAC table of one switch: rows by address and VLAN, walked in the order of insertion.
//
//     rows_    | row | free | row | row | ...      in any order; a free place is taken first
//     walk_    (order, place) ascending by order; those of rows that are gone are squeezed out
//              when they outnumber the others
//     orders_  order of the row at each place, 0 for a free one: tells the walk what is gone
//     index_   key -> place in rows_, open addressing: one cache line a look-up
//
// So an add and a delete move nothing but themselves, however full the table is, and a squeeze
// reads 24 bytes a row. A walk survives every change in between, also that of the row at hand,
// since it remembers the order of the last row and not its place.
#pragma once
#include <cstddef>
#include <cstdint>
#include <deque>
#include <unordered_map>
#include <vector>

#include "layout/sdk_words.h"
#include "sdk/bcm/l2_types.h"

namespace standin {

using namespace sdk_words;

constexpr int kL2FlagTexts = 8;  // in bcm_l2_flags_str

constexpr std::size_t kL2Capacity = 65'536;

constexpr bool is_static(const bcm_l2_addr_t &entry) { return (entry.flags & kL2Static) != 0; }
constexpr bool on_trunk(const bcm_l2_addr_t &entry) { return (entry.flags & kL2Trunk) != 0; }

struct L2Row {
    std::uint64_t heard = 0;  // when a packet last came from it, on the table's own clock
    bcm_l2_addr_t entry{};

    bool is_static() const { return standin::is_static(entry); }
};

// Keys, each with a number below 2^32 - 1. No key is there twice.
class L2Index {
  public:
    // The number of a key; `kNone` if it is not there.
    std::uint32_t find(std::uint64_t key) const { return slots_[slot_of(key)].number; }

    // REQUIRES: the key is not there.
    void insert(std::uint64_t key, std::uint32_t number);

    // REQUIRES: the key is there.
    void erase(std::uint64_t key);

    std::size_t size() const { return size_; }

    static constexpr std::uint32_t kNone = ~0u;

  private:
    struct Slot {
        std::uint64_t key = 0;
        std::uint32_t number = kNone;  // kNone: free
    };

    std::size_t home_of(std::uint64_t key) const;
    std::size_t slot_of(std::uint64_t key) const;  // its own, or the free one where it belongs

    std::vector<Slot> slots_ = std::vector<Slot>(64);  // a power of two, at most half of it used
    std::size_t size_ = 0;
};

class L2Table {
  public:
    struct Cursor {
        std::uint64_t order = 0;  // of the last row given
        std::size_t step = 0;     // where in the walk the next one probably is
    };

    // Null if there is none. Valid until the next `put` or `erase`.
    L2Row *find(const bcm_mac_t mac, bcm_vlan_t vid);
    L2Row *find_key(std::uint64_t key);

    // Adds the entry, or replaces the one of the same address and VLAN, which keeps its place in
    // a walk. Null: `capacity` rows are there already.
    L2Row *put(const bcm_l2_addr_t &entry, std::size_t capacity);

    // REQUIRES: `row` is in the table.
    void erase(L2Row &row);

    // The row after the cursor, or null at the end.
    L2Row *next(Cursor &cursor);

    std::size_t size() const { return index_.size(); }

    // How many rows are not static: of all, of a VLAN, of a port or trunk.
    std::size_t learned() const { return learned_; }
    std::size_t learned_in(bcm_vlan_t vid) const { return learned_at(counter_of(kVlan, vid)); }
    std::size_t learned_from(bool trunk, int number) const {
        return learned_at(counter_of(trunk ? kTrunk : kPort, number));
    }

  private:
    enum Kind : std::uint64_t { kVlan, kPort, kTrunk };
    static std::uint64_t counter_of(Kind kind, int number) {
        return kind << 32 | static_cast<std::uint32_t>(number);
    }
    std::size_t learned_at(std::uint64_t counter) const {
        const auto found = learned_at_.find(counter);
        return found == learned_at_.end() ? 0 : found->second;
    }
    // Makes the counters of an entry, so that `count` cannot fail.
    void make_counters(const bcm_l2_addr_t &entry);
    void count(const bcm_l2_addr_t &entry, bool more);

    struct Step {
        std::uint64_t order = 0;
        std::uint32_t place = 0;  // in rows_
    };

    bool is_gone(const Step &step) const { return orders_[step.place] != step.order; }
    std::uint32_t take_place();
    void squeeze();

    std::deque<L2Row> rows_;
    std::vector<std::uint64_t> orders_;
    std::vector<std::uint32_t> free_;
    std::vector<Step> walk_;
    L2Index index_;
    std::uint64_t last_order_ = 0;
    std::size_t learned_ = 0;
    std::unordered_map<std::uint64_t, std::size_t> learned_at_;  // by kind and number
};

// 48 bits of address and 16 of VLAN.
std::uint64_t l2_key(const bcm_mac_t mac, bcm_vlan_t vid);

}  // namespace standin
