// Rows of the MAC table by key, and the squeezing out of gaps.
#include "standin/model/l2_table.h"

#include <algorithm>

namespace standin {

std::uint64_t l2_key(const bcm_mac_t mac, bcm_vlan_t vid) {
    std::uint64_t key = 0;
    for (int i = 0; i < 6; ++i) key = key << 8 | mac[i];
    return key << 16 | vid;
}

std::size_t L2Index::home_of(std::uint64_t key) const {
    key *= 0x9E3779B97F4A7C15u;  // addresses differ in few bits; spread them
    return static_cast<std::size_t>(key ^ (key >> 32)) & (slots_.size() - 1);
}

std::size_t L2Index::slot_of(std::uint64_t key) const {
    std::size_t slot = home_of(key);
    while (slots_[slot].number != kNone && slots_[slot].key != key)
        slot = (slot + 1) & (slots_.size() - 1);
    return slot;
}

void L2Index::insert(std::uint64_t key, std::uint32_t number) {
    if (2 * (size_ + 1) > slots_.size()) {
        std::vector<Slot> old(2 * slots_.size());
        old.swap(slots_);
        for (const Slot &slot : old)
            if (slot.number != kNone) slots_[slot_of(slot.key)] = slot;
    }
    ++size_;
    slots_[slot_of(key)] = {key, number};
}

// Those behind the gap move up, unless that took them in front of their home.
void L2Index::erase(std::uint64_t key) {
    const std::size_t mask = slots_.size() - 1;
    std::size_t gap = slot_of(key);
    for (std::size_t slot = (gap + 1) & mask; slots_[slot].number != kNone;
         slot = (slot + 1) & mask) {
        if (((slot - home_of(slots_[slot].key)) & mask) < ((slot - gap) & mask)) continue;
        slots_[gap] = slots_[slot];
        gap = slot;
    }
    slots_[gap] = {};
    --size_;
}

L2Row *L2Table::find(const bcm_mac_t mac, bcm_vlan_t vid) { return find_key(l2_key(mac, vid)); }

L2Row *L2Table::find_key(std::uint64_t key) {
    const std::uint32_t place = index_.find(key);
    return place == L2Index::kNone ? nullptr : &rows_[place];
}

void L2Table::make_counters(const bcm_l2_addr_t &entry) {
    const bool trunk = on_trunk(entry);
    learned_at_[counter_of(kVlan, entry.vid)];
    learned_at_[counter_of(trunk ? kTrunk : kPort, trunk ? entry.tgid : entry.port)];
}

void L2Table::count(const bcm_l2_addr_t &entry, bool more) {
    if (is_static(entry)) return;
    const bool trunk = on_trunk(entry);
    const std::size_t change = more ? 1 : ~std::size_t{0};
    learned_ += change;
    learned_at_.find(counter_of(kVlan, entry.vid))->second += change;
    learned_at_.find(counter_of(trunk ? kTrunk : kPort, trunk ? entry.tgid : entry.port))->second +=
        change;
}

L2Row *L2Table::put(const bcm_l2_addr_t &entry, std::size_t capacity) {
    make_counters(entry);
    if (L2Row *const row = find(entry.mac, entry.vid)) {
        count(row->entry, false);
        count(entry, true);
        row->entry = entry;
        return row;
    }
    if (size() >= capacity) return nullptr;
    const std::size_t places = rows_.size();
    const std::uint32_t place = take_place();
    try {
        index_.insert(l2_key(entry.mac, entry.vid), place);
    } catch (...) {
        walk_.pop_back();
        orders_.resize(places);
        rows_.size() > places ? rows_.pop_back() : free_.push_back(place);
        throw;
    }
    rows_[place] = {0, entry};
    orders_[place] = ++last_order_;
    count(entry, true);
    return &rows_[place];
}

void L2Table::erase(L2Row &row) {
    const std::uint64_t key = l2_key(row.entry.mac, row.entry.vid);
    const std::uint32_t place = index_.find(key);
    free_.push_back(place);  // the only step that can fail
    index_.erase(key);
    count(row.entry, false);
    orders_[place] = 0;
    if (walk_.size() > 2 * index_.size() + 64) squeeze();
}

L2Row *L2Table::next(Cursor &cursor) {
    std::size_t step = cursor.step;
    const bool here = step > 0 && step <= walk_.size() && walk_[step - 1].order == cursor.order;
    if (!here) {
        const auto after = std::upper_bound(
            walk_.begin(), walk_.end(), cursor.order,
            [](std::uint64_t order, const Step &one) { return order < one.order; });
        step = static_cast<std::size_t>(after - walk_.begin());
    }
    while (step < walk_.size() && is_gone(walk_[step])) ++step;
    if (step == walk_.size()) return nullptr;
    cursor = {walk_[step].order, step + 1};
    return &rows_[walk_[step].place];
}

// With its step in the walk, or neither of them.
std::uint32_t L2Table::take_place() {
    const bool fresh = free_.empty();
    const auto place = fresh ? static_cast<std::uint32_t>(rows_.size()) : free_.back();
    walk_.push_back({last_order_ + 1, place});
    try {
        if (fresh) orders_.push_back(0);
        if (fresh) rows_.emplace_back();
    } catch (...) {
        walk_.pop_back();
        orders_.resize(rows_.size());
        throw;
    }
    if (!fresh) free_.pop_back();
    return place;
}

void L2Table::squeeze() {
    std::erase_if(walk_, [this](const Step &step) { return is_gone(step); });
}

}  // namespace standin
