// The MAC table of one switch: rows by address and VLAN, walked in the order of insertion.
//
//     rows_    | row | row | gone | row | ...      ascending by `order`; gaps are squeezed out
//     index_   key -> place in rows_               when they outnumber the rows
//
// A walk survives every change in between, also that of the row at hand, since it remembers the
// order of the last row and not its place.
#pragma once
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "layout/sdk_words.h"
#include "sdk/bcm/l2_types.h"

namespace standin {

using namespace sdk_words;

constexpr std::size_t kL2Capacity = 65'536;

struct L2Row {
    bcm_l2_addr_t entry{};
    std::uint64_t key = 0;
    std::uint64_t order = 0;
    std::uint64_t heard = 0;  // when a packet last came from it, on the table's own clock
    bool gone = false;

    bool is_static() const { return (entry.flags & kL2Static) != 0; }
};

class L2Table {
  public:
    struct Cursor {
        std::uint64_t order = 0;  // of the last row given
        std::size_t place = 0;    // where the next one probably is
    };

    // Null if there is none. Valid until the next `put` or `erase`.
    L2Row *find(const bcm_mac_t mac, bcm_vlan_t vid);

    // Adds the entry, or replaces the one of the same address and VLAN, which keeps its place in
    // a walk. Null: `capacity` rows are there already.
    L2Row *put(const bcm_l2_addr_t &entry, std::size_t capacity);

    // REQUIRES: `row` is in the table.
    void erase(L2Row &row);

    // The row after the cursor, or null at the end.
    L2Row *next(Cursor &cursor);

    std::size_t size() const { return index_.size(); }

  private:
    struct Mix {
        std::size_t operator()(std::uint64_t key) const {
            key *= 0x9E3779B97F4A7C15u;  // addresses differ in few bits; spread them
            return static_cast<std::size_t>(key ^ (key >> 32));
        }
    };

    void squeeze();

    std::vector<L2Row> rows_;
    std::unordered_map<std::uint64_t, std::size_t, Mix> index_;
    std::uint64_t last_order_ = 0;
};

// 48 bits of address and 16 of VLAN.
std::uint64_t l2_key(const bcm_mac_t mac, bcm_vlan_t vid);

}  // namespace standin
