// An object of one switch, whatever its kind, and the bonds between two of them.
#pragma once
#include <compare>
#include <cstdint>

namespace standin {

enum class Bond : std::uint8_t { kHolds, kLeaves, kFalls };

enum class ObjectKind : std::uint8_t {
    kPort,
    kVlan,
    kStg,
    kTrunk,
    kMacRow,
    kLearnLimit,
    kInterface,
    kEgress,
    kMultipath,
    kHost,
    kRoute,
    kMulticast,
    kMirror,
    kMirroredPort,
    kPolicer,
    kGroup,
    kRule,
    kCounter,
    kRange,
    kRow  // of a function without a model, by its serial number
};

// An object by the key of its table, in as many of these words as the key needs.
struct Object {
    ObjectKind kind{};
    std::uint16_t length = 0;
    std::int32_t scope = 0;
    std::uint64_t number = 0;
    std::uint64_t low = 0;

    auto operator<=>(const Object &) const = default;
};

constexpr Object object(ObjectKind kind, std::int64_t number) {
    return {kind, 0, 0, static_cast<std::uint64_t>(number), 0};
}

}  // namespace standin
