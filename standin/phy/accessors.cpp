// The book of installed PHY accessors and told versions, under its lock.
#include "standin/phy/accessors.h"

#include <limits>
#include <utility>

namespace standin {

Accessor Accessors::install(const Key &key, Accessor accessor) {
    const std::lock_guard<std::mutex> guard(lock_);
    if (accessor) {
        std::swap(accessors_[key], accessor);
        return accessor;
    }
    const auto found = accessors_.find(key);
    if (found == accessors_.end()) return nullptr;
    Accessor old = std::move(found->second);
    accessors_.erase(found);
    return old;
}

Accessor Accessors::find(const Key &key) const {
    const std::lock_guard<std::mutex> guard(lock_);
    const auto found = accessors_.find(key);
    return found == accessors_.end() ? nullptr : found->second;
}

Accessors::Book::const_iterator Accessors::lowest(std::uint32_t unit, std::uint16_t phy) const {
    const auto at = accessors_.lower_bound({unit, phy, std::numeric_limits<std::int32_t>::min()});
    if (at == accessors_.end()) return at;
    const auto &[of_unit, of_phy, kind] = at->first;
    return of_unit == unit && of_phy == phy ? at : accessors_.end();
}

Accessor Accessors::find(std::uint32_t unit, std::uint16_t phy) const {
    const std::lock_guard<std::mutex> guard(lock_);
    const auto at = lowest(unit, phy);
    return at == accessors_.end() ? nullptr : at->second;
}

bool Accessors::has(std::uint32_t unit, std::uint16_t phy) const {
    const std::lock_guard<std::mutex> guard(lock_);
    return lowest(unit, phy) != accessors_.end();
}

void Accessors::tell_version(std::uint32_t unit, std::uint16_t phy, std::uint16_t version) {
    const std::lock_guard<std::mutex> guard(lock_);
    versions_[{unit, phy}] = version;
}

std::optional<std::uint16_t> Accessors::version(std::uint32_t unit, std::uint16_t phy) const {
    const std::lock_guard<std::mutex> guard(lock_);
    const auto found = versions_.find({unit, phy});
    return found == versions_.end() ? std::nullopt : std::optional(found->second);
}

std::size_t Accessors::size() const {
    const std::lock_guard<std::mutex> guard(lock_);
    return accessors_.size();
}

std::map<Accessors::Key, Accessor> Accessors::clear() {
    const std::lock_guard<std::mutex> guard(lock_);
    versions_.clear();
    return std::exchange(accessors_, {});
}

Accessors &accessors() {
    // Never destroyed: the interpreter, which its objects may need, ends before the process does.
    static Accessors &book = *new Accessors;
    return book;
}

}  // namespace standin
