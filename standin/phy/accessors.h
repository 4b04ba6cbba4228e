// The accessors of external PHYs that the platform has installed, and what it told of those PHYs
// for the time on standby.
//
// The book has a lock of its own, below the model's. An accessor is called, and its last reference
// dropped, without any lock: it may take that of an interpreter, and call back.
#pragma once
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <tuple>

#include "toolkit/mdio.h"
#include "toolkit/values.h"

namespace standin {

using Accessor = MdioHamImpl::HamImpl::Ptr;

class Accessors {
  public:
    using Key = std::tuple<std::uint32_t, std::uint16_t, std::int32_t>;  // unit, PHY, kind

    // Keeps a reference; gives back the accessor that was there, or null. Null for `accessor`
    // leaves the place free.
    [[nodiscard]] Accessor install(const Key &key, Accessor accessor);
    Accessor find(const Key &key) const;
    // The one of the lowest kind that an external PHY has.
    Accessor find(std::uint32_t unit, std::uint16_t phy) const;
    // Whether it has any. Takes no reference, so it may be asked under the model's lock.
    bool has(std::uint32_t unit, std::uint16_t phy) const;

    void tell_version(std::uint32_t unit, std::uint16_t phy, std::uint16_t version);
    std::optional<std::uint16_t> version(std::uint32_t unit, std::uint16_t phy) const;

    std::size_t size() const;
    // Forgets everything; what it held goes when the result does.
    [[nodiscard]] std::map<Key, Accessor> clear();

  private:
    using Book = std::map<Key, Accessor>;
    // REQUIRES: the lock is held.
    Book::const_iterator lowest(std::uint32_t unit, std::uint16_t phy) const;

    mutable std::mutex lock_;
    Book accessors_;
    std::map<std::pair<std::uint32_t, std::uint16_t>, std::uint16_t> versions_;
};

Accessors &accessors();

}  // namespace standin
