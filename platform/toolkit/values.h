// Type library: the small values that name hardware. They travel by value, in registers.
#pragma once

#include <cstdint>
#include <type_traits>

#include "toolkit/exception.h"

namespace Hardware {

// A number with a type of its own. Two values of one type compare; two types never mix.
template <class Rep>
class Value {
  public:
    constexpr Value() = default;
    constexpr explicit Value(Rep value) : value_(value) {}

    constexpr Rep value() const { return value_; }
    friend constexpr bool operator==(Value, Value) = default;

  private:
    Rep value_ = 0;
};

// An address in the chip's own address space.
class ChipAddress : public Value<std::uint64_t> {
  public:
    using Value::Value;
};

namespace TesselApi {

// A unit of the platform, 0 to 255.
class UnitId : public Value<std::uint32_t> {
  public:
    constexpr UnitId() = default;
    // Throws by Lumo::throwRangeException() for a number above 255.
    constexpr explicit UnitId(std::uint32_t unit) : Value(unit) {
        if (unit > 255) Lumo::throwRangeException("UnitId::value < 0 or > 255 not allowed");
    }
};

// A PHY outside the chip, 0 to 0x3FF.
class ExternalPhyId : public Value<std::uint16_t> {
  public:
    constexpr ExternalPhyId() = default;
    // Throws by Lumo::throwRangeException() for a number above 0x3FF.
    constexpr explicit ExternalPhyId(std::uint16_t phy) : Value(phy) {
        if (phy > 0x3FF)
            Lumo::throwRangeException("ExternalPhyId::value < 0 or > 0x03ff not allowed");
    }
};

}  // namespace TesselApi

namespace PhyBcm {

// Selects the kind of an external PHY. Any 32-bit number passes; one has a name.
enum class ManagedPhy : std::int32_t { phy84328 = 3 };

// The version word of an 84328 PHY.
class Bcm84328Version : public Value<std::uint16_t> {
  public:
    using Value::Value;
};

}  // namespace PhyBcm

namespace Mdio {

// An MDIO bus of the platform.
class BusId : public Value<std::uint16_t> {
  public:
    using Value::Value;
};

// The address of a PHY on its bus.
class PortAddr : public Value<std::uint8_t> {
  public:
    using Value::Value;
};

}  // namespace Mdio

// How the values travel: a change here changes the binary interface of every library.
template <class T, std::size_t size>
inline constexpr bool travelsInRegister =
    std::is_trivially_copyable_v<T> && sizeof(T) == size && alignof(T) == size;

static_assert(travelsInRegister<TesselApi::UnitId, 4>);
static_assert(travelsInRegister<TesselApi::ExternalPhyId, 2>);
static_assert(travelsInRegister<PhyBcm::ManagedPhy, 4>);
static_assert(travelsInRegister<PhyBcm::Bcm84328Version, 2>);
static_assert(travelsInRegister<ChipAddress, 8>);
static_assert(travelsInRegister<Mdio::BusId, 2>);
static_assert(travelsInRegister<Mdio::PortAddr, 1>);

}  // namespace Hardware
