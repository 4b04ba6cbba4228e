// Registers of clauses 22 and 45, each with what reads it and what a write does.
#include "standin/phy/standard_registers.h"

#include <algorithm>
#include <iterator>

#include "standin/phy/abilities.h"

namespace standin {
namespace {

// -- bits ----------------------------------------------------------------------------------------

constexpr unsigned kSpeedLow = 1u << 13;
constexpr unsigned kNegotiate = 1u << 12;
constexpr unsigned kDuplex = 1u << 8;
constexpr unsigned kSpeedHigh = 1u << 6;
constexpr unsigned kSpeedBoth = kSpeedHigh | kSpeedLow;
constexpr unsigned kLoopback = 1u << 14;  // clause 22 and PCS
constexpr unsigned kPmaLoopback = 1u << 0;
constexpr unsigned kSelector = 1;      // of IEEE 802.3, in an advertisement
constexpr unsigned kPresent = 0x8000;  // in status 2: bits 15 and 14 are 10
constexpr unsigned kDevices = 1u << 0 | 1u << kPma | 1u << kPcs | 1u << kNegotiation;

// Speeds by bits 5 to 2 of a control register of clause 45.
struct SpeedCode {
    int speed;
    unsigned code;
};
constexpr SpeedCode kSpeedCodes[] = {{10'000, 0}, {40'000, 2}, {100'000, 3}, {25'000, 4},
                                     {50'000, 5}, {2'500, 6},  {5'000, 7},   {200'000, 9}};

// A bit of a register beside the bit of soc_port_mode_t.
struct ModeBit {
    unsigned bit;
    unsigned mode;
};
constexpr ModeBit kBasePage[] = {{5, 0}, {6, 1}, {7, 2}, {8, 3}, {10, 17}, {11, 16}};
constexpr ModeBit kGigabitControl[] = {{8, 4}, {9, 5}};
constexpr ModeBit kGigabitStatus[] = {{10, 4}, {11, 5}};
constexpr ModeBit kExtended[] = {{12, 4}, {13, 5}, {14, 4}, {15, 5}};
constexpr ModeBit kAbilities[] = {{11, 0}, {12, 1}, {13, 2}, {14, 3}, {3, 18}};
constexpr ModeBit kPmaSpeeds[] = {{0, 9}, {4, 5}, {5, 3}, {6, 1}, {8, 12}, {9, 14}, {11, 11}};
constexpr ModeBit kPcsSpeeds[] = {{0, 9}, {2, 12}, {3, 14}, {4, 11}};
constexpr ModeBit kPausePage[] = {{10, 17}, {11, 16}};
constexpr ModeBit kTechnologies[] = {{5, 5}, {7, 9}, {8, 12}, {13, 14}, {15, 11}};

using ModeBits = std::span<const ModeBit>;

unsigned bits_of(ModeBits rows, std::uint32_t mode) {
    unsigned bits = 0;
    for (const ModeBit &one : rows) bits |= (mode >> one.mode & 1) << one.bit;
    return bits;
}

// Advertises by one register, as far as the port can; what others say stays.
void advertise_bits(Port &port, ModeBits rows, unsigned bits) {
    std::uint32_t mode = advertised(port);
    for (const ModeBit &one : rows) {
        mode &= ~(1u << one.mode);
        mode |= (bits >> one.bit & 1) << one.mode;
    }
    advertise(port, mode & supported(port));
}

// -- control and status --------------------------------------------------------------------------

unsigned speed_bits(int speed) {
    if (speed == 10) return 0;
    if (speed == 100) return kSpeedLow;
    if (speed == 1'000) return kSpeedHigh;
    const auto *const found = std::ranges::find(kSpeedCodes, speed, &SpeedCode::speed);
    return found == std::end(kSpeedCodes) ? kSpeedBoth : kSpeedBoth | found->code << 2;
}

// Nothing for bits that name no speed, or, with both speed bits of clause 22, another one.
void set_speed(Port &port, unsigned bits, bool coded) {
    int speed = port.speed;
    switch (bits & kSpeedBoth) {
        case 0:
            speed = 10;
            break;
        case kSpeedLow:
            speed = 100;
            break;
        case kSpeedHigh:
            speed = 1'000;
            break;
        default:
            if (!coded) break;
            const auto *const found =
                std::ranges::find(kSpeedCodes, bits >> 2 & 0xf, &SpeedCode::code);
            if (found != std::end(kSpeedCodes)) speed = found->speed;
    }
    if (can_run_at(port, speed)) port.speed = speed;
}

void set_loopback(Port &port, bool on) {
    if (on)
        port.loopback = BCM_PORT_LOOPBACK_PHY;
    else if (port.loopback == BCM_PORT_LOOPBACK_PHY)
        port.loopback = BCM_PORT_LOOPBACK_NONE;
}

bool loops(const Port &port) { return port.loopback == BCM_PORT_LOOPBACK_PHY; }
unsigned when(bool holds, unsigned bits) { return holds ? bits : 0; }

// What control registers have in common; `loopback` is the bit for it, 0 for none.
unsigned control(const Port &port, unsigned loopback) {
    return when(loops(port), loopback) | when(port.enable == 0, kLowPowerBit);
}

void set_control(PhyView &view, unsigned value, unsigned loopback) {
    if ((value & kResetBit) != 0) {
        reset_internal(view);
        return;
    }
    view.port.enable = (value & kLowPowerBit) == 0;
    if (loopback != 0) set_loopback(view.port, (value & loopback) != 0);
}

unsigned basic_control(const Port &port) {
    return control(port, kLoopback) | (speed_bits(port.speed) & kSpeedBoth) |
           when(port.autoneg != 0, kNegotiate) | when(port.duplex != 0, kDuplex);
}

void set_basic_control(PhyView &view, unsigned value) {
    set_control(view, value, kLoopback);
    if ((value & kResetBit) != 0) return;
    view.port.autoneg = (value & kNegotiate) != 0;
    view.port.duplex = (value & kDuplex) != 0;
    set_speed(view.port, value, false);
}

// The link as a device tells it: down once more if it was down since the last time.
unsigned link_bit(PhyView &view, unsigned device) {
    const unsigned mark = 1u << device;
    const bool up = link_of(view) != 0;
    std::uint32_t &marks = view.all.fell[static_cast<std::size_t>(view.number)];
    const bool fell = (marks & mark) != 0;
    marks = up ? marks & ~mark : marks | mark;
    return when(up && !fell, kLinkBit);
}

bool is_negotiated(const PhyView &view) { return view.port.autoneg != 0 && link_of(view) != 0; }

unsigned basic_status(PhyView &view) {
    return link_bit(view, 0) | bits_of(kAbilities, supported(view.port)) | 1u << 8 |
           when(is_negotiated(view), 1u << 5) | 1u << 0;
}

unsigned negotiation_status(PhyView &view) {
    return link_bit(view, kNegotiation) | 1u << 3 | when(is_negotiated(view), 1u << 5 | 1u << 6) |
           when(view.port.peer, 1u << 0);
}

// PMA and PCS: low power ability, and a fault where a port that is on has no link.
unsigned device_status(PhyView &view, unsigned device) {
    const bool fault = view.port.enable != 0 && link_of(view) == 0;
    return link_bit(view, device) | 1u << 1 | when(fault, 1u << 7);
}

// -- the table -----------------------------------------------------------------------------------

struct StandardRegister {
    unsigned device;
    unsigned number;
    unsigned (*read)(PhyView &view);
    void (*write)(PhyView &view, unsigned value);  // null: a write changes nothing
};

constexpr StandardRegister kRegisters[] = {
    {0, 0, [](PhyView &view) { return basic_control(view.port); }, set_basic_control},
    {0, 1, basic_status, nullptr},
    {0, 4, [](PhyView &view) { return bits_of(kBasePage, advertised(view.port)) | kSelector; },
     [](PhyView &view, unsigned value) { advertise_bits(view.port, kBasePage, value); }},
    {0, 5,
     [](PhyView &view) {
         return bits_of(kBasePage, remote(view.port)) | when(view.port.peer, kSelector);
     },
     nullptr},
    {0, 6, [](PhyView &view) { return when(view.port.peer, 1u << 0); }, nullptr},
    {0, 9, [](PhyView &view) { return bits_of(kGigabitControl, advertised(view.port)); },
     [](PhyView &view, unsigned value) { advertise_bits(view.port, kGigabitControl, value); }},
    {0, 10,
     [](PhyView &view) {
         return bits_of(kGigabitStatus, remote(view.port)) |
                when(link_of(view) != 0, 1u << 13 | 1u << 12);
     },
     nullptr},
    {0, 15, [](PhyView &view) { return bits_of(kExtended, supported(view.port)); }, nullptr},
    {kPma, 0,
     [](PhyView &view) { return control(view.port, kPmaLoopback) | speed_bits(view.port.speed); },
     [](PhyView &view, unsigned value) {
         set_control(view, value, kPmaLoopback);
         if ((value & kResetBit) == 0) set_speed(view.port, value, true);
     }},
    {kPma, 1, [](PhyView &view) { return device_status(view, kPma); }, nullptr},
    {kPma, 4, [](PhyView &view) { return bits_of(kPmaSpeeds, supported(view.port)); }, nullptr},
    // Loopback and the turning off of the transmitter are there.
    {kPma, 8, [](PhyView &) { return kPresent | 1u << 8 | 1u << 0; }, nullptr},
    {kPma, 9, [](PhyView &view) { return when(view.phy.tx_enabled == 0, 1u << 0); },
     [](PhyView &view, unsigned value) { view.phy.tx_enabled = (value & 1) == 0; }},
    {kPma, 10, [](PhyView &view) { return when(view.port.peer, 1u << 0); }, nullptr},
    {kPcs, 0,
     [](PhyView &view) { return control(view.port, kLoopback) | speed_bits(view.port.speed); },
     [](PhyView &view, unsigned value) {
         set_control(view, value, kLoopback);
         if ((value & kResetBit) == 0) set_speed(view.port, value, true);
     }},
    {kPcs, 1, [](PhyView &view) { return device_status(view, kPcs); }, nullptr},
    {kPcs, 4, [](PhyView &view) { return bits_of(kPcsSpeeds, supported(view.port)); }, nullptr},
    {kPcs, 8, [](PhyView &) { return kPresent; }, nullptr},
    // Receive link and block lock.
    {kPcs, 32, [](PhyView &view) { return when(link_of(view) != 0, 1u << 12 | 1u << 0); }, nullptr},
    {kNegotiation, 0, [](PhyView &view) { return when(view.port.autoneg != 0, kNegotiate); },
     [](PhyView &view, unsigned value) {
         if ((value & kResetBit) != 0)
             reset_internal(view);
         else
             view.port.autoneg = (value & kNegotiate) != 0;
     }},
    {kNegotiation, 1, negotiation_status, nullptr},
    {kNegotiation, 16,
     [](PhyView &view) { return bits_of(kPausePage, advertised(view.port)) | kSelector; },
     [](PhyView &view, unsigned value) { advertise_bits(view.port, kPausePage, value); }},
    {kNegotiation, 17, [](PhyView &view) { return bits_of(kTechnologies, advertised(view.port)); },
     [](PhyView &view, unsigned value) { advertise_bits(view.port, kTechnologies, value); }},
    {kNegotiation, 19,
     [](PhyView &view) {
         return bits_of(kPausePage, remote(view.port)) | when(view.port.peer, kSelector);
     },
     nullptr},
    {kNegotiation, 20, [](PhyView &view) { return bits_of(kTechnologies, remote(view.port)); },
     nullptr},
};

bool is_device(unsigned device) { return device < 32 && (kDevices >> device & 1) != 0; }

// Identity, and which devices there are, which every device has at the same place.
std::optional<std::uint16_t> constant(unsigned device, unsigned number) {
    if (!is_device(device)) return std::nullopt;
    if (number == 2) return kIdHigh;
    if (number == 3) return kIdLow;
    if (device != 0 && number == 5) return static_cast<std::uint16_t>(kDevices);
    if (device != 0 && number == 6) return std::uint16_t{0};
    return std::nullopt;
}

const StandardRegister *find_standard(unsigned device, unsigned number) {
    const auto *const found = std::ranges::find_if(kRegisters, [&](const StandardRegister &one) {
        return one.device == device && one.number == number;
    });
    return found == std::end(kRegisters) ? nullptr : found;
}

// -- the way to the devices by way of registers 13 and 14 of clause 22 ---------------------------

constexpr std::uint32_t kAccessControl = 13;
constexpr std::uint32_t kAccessData = 14;

std::uint16_t kept(const Phy &phy, int lane, std::uint32_t address) {
    const auto found = phy.registers.find({lane, address});
    return found == phy.registers.end() ? std::uint16_t{0} : found->second;
}

// Bits 15 and 14 of register 13: 0 register 14 is the address, 1 the data, 2 the data with the
// address counted up after each access, 3 after each write.
struct Access {
    unsigned function;
    std::uint32_t device;  // in the upper half
};

Access access_of(const Phy &phy, int lane) {
    const unsigned control = kept(phy, lane, kAccessControl);
    return {control >> 14, (control & 0x1f) << 16};
}

std::uint16_t &access_address(Phy &phy, int lane, std::uint32_t device) {
    return phy.access_addresses[{lane, device}];
}

std::uint16_t read_data(PhyView &view, int lane) {
    const Access access = access_of(view.phy, lane);
    std::uint16_t &at = access_address(view.phy, lane, access.device);
    if (access.function == 0) return at;
    const std::uint16_t value =
        access.device == 0 ? std::uint16_t{0} : read_internal(view, lane, access.device | at);
    if (access.function == 2) ++at;
    return value;
}

void write_data(PhyView &view, int lane, std::uint16_t value) {
    const Access access = access_of(view.phy, lane);
    std::uint16_t &at = access_address(view.phy, lane, access.device);
    if (access.function == 0) {
        at = value;
        return;
    }
    const std::uint32_t address = access.device | at;
    if (access.function >= 2) ++at;
    if (access.device != 0) write_internal(view, lane, address, value);
}

}  // namespace

std::uint16_t read_internal(PhyView &view, int lane, std::uint32_t address) {
    const unsigned device = address >> 16;
    const unsigned number = address & 0xffff;
    if (const auto value = constant(device, number)) return *value;
    if (address == kAccessData) return read_data(view, lane);
    const StandardRegister *const found = find_standard(device, number);
    return found == nullptr ? kept(view.phy, lane, address)
                            : static_cast<std::uint16_t>(found->read(view));
}

void write_internal(PhyView &view, int lane, std::uint32_t address, std::uint16_t value) {
    const unsigned device = address >> 16;
    const unsigned number = address & 0xffff;
    if (constant(device, number)) return;
    if (address == kAccessData) {
        write_data(view, lane, value);
        return;
    }
    const StandardRegister *const found = find_standard(device, number);
    if (found == nullptr)
        view.phy.registers[{lane, address}] = value;
    else if (found->write != nullptr)
        found->write(view, value);
}

void reset_internal(PhyView &view) {
    view.phy.reset();
    set_loopback(view.port, false);
}

}  // namespace standin
