// What a port can do, as text: items joined by ',' or blanks, "none" for nothing.
//
// Each item has a bit of soc_port_mode_t:
//
//   bit  item       short      bit  item       short      bit  item       short
//    0   10hd       10h         9   10000fd    10gf       18   an         an
//    1   10fd       10f        10   20000fd    20gf       19   lb_mac     lbm
//    2   100hd      100h       11   25000fd    25gf       20   lb_phy     lbp
//    3   100fd      100f       12   40000fd    40gf       21   fec        fec
//    4   1000hd     1gh        13   50000fd    50gf       22   eee        eee
//    5   1000fd     1gf        14   100000fd   100gf      23   copper     cu
//    6   2500fd     2500f      15   200000fd   200gf      24   fiber      fi
//    7   5000fd     5gf        16   pause_tx   ptx        25   backplane  bp
//    8   400000fd   400gf      17   pause_rx   prx
//
// Bits 26 to 31 have no name and stand together as one number, "0x4000000". Both forms are read.
//
// soc_port_ability_t keeps the same items in words of one sort each, by the bits above:
// words[0] full duplex speeds, [1] half duplex speeds, [2] pause, [3] loopback, [4] medium,
// [5] everything else. The other words are 0.
//
// A long reach ability is a set of SOC_PHY_CONTROL_LONGREACH_ABILITY_ bits, each by the rest of
// its name ("100M_2PAIR"), or a number for bits without a name.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace standin {

std::optional<std::uint32_t> read_port_mode(std::string_view text);
std::string port_mode_text(std::uint32_t mode, bool abbreviated);

// Spreads a mode over the words of an ability. REQUIRES: at least 6 words.
void ability_words(std::uint32_t mode, std::span<std::uint32_t> words);

std::optional<std::int32_t> read_long_reach(std::string_view text);
std::string long_reach_text(std::int32_t ability);

}  // namespace standin
