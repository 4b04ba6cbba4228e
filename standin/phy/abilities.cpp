// Abilities of ports.
#include "standin/phy/abilities.h"

#include "standin/phy/mode_text.h"

namespace standin {
namespace {

// Pause in both directions, negotiation, loopback in MAC and PHY, error correction, fiber.
constexpr std::uint32_t kAlways = 0x2f << 16 | 1 << 24;

}  // namespace

std::uint32_t supported(const Port &port) {
    std::uint32_t mode = kAlways;
    for (const SpeedBit &one : kSpeedBits)
        if (one.speed <= port.speed_max) mode |= 1u << one.bit;
    return mode;
}

std::uint32_t remote(const Port &port) { return port.peer ? supported(port) : 0; }

std::uint32_t advertised(const Port &port) {
    std::uint32_t mode = 0;
    for (const std::uint32_t word : port.advertised.words) mode |= word;
    return mode;
}

int advertise(Port &port, std::uint32_t mode) {
    if ((mode & ~supported(port)) != 0) return BCM_E_CONFIG;
    port.advertised = {};
    ability_words(mode, port.advertised.words);
    return BCM_E_NONE;
}

}  // namespace standin
