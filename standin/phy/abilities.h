// What a port can do, says that it can do, and what the far end can, as bits of soc_port_mode_t.
#pragma once
#include <cstdint>

#include "standin/model/ports.h"

namespace standin {

struct SpeedBit {
    int speed;
    unsigned bit;  // of full duplex, as mode_text.h lists them
};
inline constexpr SpeedBit kSpeedBits[] = {{10, 1},      {100, 3},     {1'000, 5},    {2'500, 6},
                                          {5'000, 7},   {10'000, 9},  {20'000, 10},  {25'000, 11},
                                          {40'000, 12}, {50'000, 13}, {100'000, 14}, {200'000, 15}};

std::uint32_t supported(const Port &port);
// What the far end, which is one of our kind, can do: nothing if nobody is there.
std::uint32_t remote(const Port &port);
std::uint32_t advertised(const Port &port);
// BCM_E_CONFIG for what the port can't do.
int advertise(Port &port, std::uint32_t mode);

}  // namespace standin
