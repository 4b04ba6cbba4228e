// The registers of an internal PHY that IEEE 802.3 gives a meaning, as another view of what its
// port and driver have: what a call sets is read here, and what is written here the calls see.
//
//     device 0   clause 22: control, status, identity, advertisement and that of the far end, the
//                same for 1000 Mbit/s, extended status; 13 and 14 reach the devices below
//     device 1   PMA: control, status, identity, speeds, devices, type, transmit and signal
//     device 3   PCS: the same, and the state of the receiver
//     device 7   negotiation: control, status, identity, both base pages
//
// A bit that only the chip sets ignores what is written. The bit for a link is 0 once after the
// link was down, in each device. The reset bit resets the PHY and is 0 when it is read. All lanes
// show the registers of their PHY. Every other register holds what was written.
#pragma once
#include <cstdint>

#include "standin/phy/phy.h"

namespace standin {

// An identifier has its high half in register 2, its low half in register 3.
constexpr std::uint16_t kIdHigh = 0xa100;
constexpr std::uint16_t kIdLow = 0x0011;

constexpr unsigned kPma = 1;
constexpr unsigned kPcs = 3;
constexpr unsigned kNegotiation = 7;

// Bits that an external PHY shares, in control and status of its PMA.
constexpr std::uint16_t kResetBit = 0x8000;
constexpr std::uint16_t kLowPowerBit = 0x0800;
constexpr std::uint16_t kLinkBit = 0x0004;

// `address` has the device in its upper half. A read clears what latches.
std::uint16_t read_internal(PhyView &view, int lane, std::uint32_t address);
void write_internal(PhyView &view, int lane, std::uint32_t address, std::uint16_t value);

// What the reset bit and the calls that reset do: the driver's settings are those of the first day,
// and the loopback of the PHY ends.
void reset_internal(PhyView &view);

}  // namespace standin
