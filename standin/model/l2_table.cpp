// Rows of the MAC table by key, and the squeezing out of gaps.
#include "standin/model/l2_table.h"

#include <algorithm>

namespace standin {

std::uint64_t l2_key(const bcm_mac_t mac, bcm_vlan_t vid) {
    std::uint64_t key = 0;
    for (int i = 0; i < 6; ++i) key = key << 8 | mac[i];
    return key << 16 | vid;
}

L2Row *L2Table::find(const bcm_mac_t mac, bcm_vlan_t vid) {
    const auto found = index_.find(l2_key(mac, vid));
    return found == index_.end() ? nullptr : &rows_[found->second];
}

L2Row *L2Table::put(const bcm_l2_addr_t &entry, std::size_t capacity) {
    if (L2Row *const row = find(entry.mac, entry.vid)) {
        row->entry = entry;
        return row;
    }
    if (size() >= capacity) return nullptr;
    const std::uint64_t key = l2_key(entry.mac, entry.vid);
    rows_.push_back({entry, key, last_order_ + 1, 0, false});
    index_.emplace(key, rows_.size() - 1);
    ++last_order_;
    return &rows_.back();
}

void L2Table::erase(L2Row &row) {
    index_.erase(row.key);
    row.gone = true;
    if (rows_.size() > 2 * index_.size() + 64) squeeze();
}

L2Row *L2Table::next(Cursor &cursor) {
    std::size_t place = cursor.place;
    const bool here = place > 0 && place <= rows_.size() && rows_[place - 1].order == cursor.order;
    if (!here) {
        const auto after = std::upper_bound(
            rows_.begin(), rows_.end(), cursor.order,
            [](std::uint64_t order, const L2Row &row) { return order < row.order; });
        place = static_cast<std::size_t>(after - rows_.begin());
    }
    while (place < rows_.size() && rows_[place].gone) ++place;
    if (place == rows_.size()) return nullptr;
    cursor = {rows_[place].order, place + 1};
    return &rows_[place];
}

void L2Table::squeeze() {
    std::erase_if(rows_, [](const L2Row &row) { return row.gone; });
    for (std::size_t place = 0; place < rows_.size(); ++place) index_[rows_[place].key] = place;
}

}  // namespace standin
