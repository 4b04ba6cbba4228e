// Ports and sets of ports as text.
//
// A list is made of items joined by ',' or blanks, all of them put together:
//   7        a port number, 0 to 575          3-8      numbers, both ends included
//   xe2      a port by its name               xe0-xe3  ports of that type, by the number in the
//   name xe       every port of the type           all, *   every port of the unit none     nothing
//   0x1f0    a bitmap, bit n for port n, in one number !xe2     with any of these behind it: taken
//   out of what stands before it; `~` is the same
// Names are those that the unit gives; without a unit there are only numbers.
#pragma once

#include <bitset>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace standin {

inline constexpr int kPortBits = 576;
using PortSet = std::bitset<kPortBits>;

struct PortName {
    int port;          // 5
    std::string name;  // "xe2": letters, then a number; "cpu" has none
};
// The ports of a unit by ascending number; empty for a unit that is not there.
using PortNames = std::vector<PortName>;

PortSet port_set(std::span<const std::uint32_t> words);
// REQUIRES: 18 words.
void port_words(const PortSet &set, std::span<std::uint32_t> words);

// Reads a list; an empty text, or one that breaks the rules, gives nothing, with the reason in
// `fault` ("'xe9' is no port").
std::optional<PortSet> read_port_list(std::string_view text, const PortNames &names,
                                      std::string &fault);

// Names where the unit has them, else numbers, neighbours as ranges: "cpu0,xe0-xe3,70". "none"
// for the empty set. read_port_list with the same names gives the set back.
std::string port_list_text(const PortSet &set, const PortNames &names);

// One port by number or name.
std::optional<int> read_port(std::string_view text, const PortNames &names);

// The name, or the number.
std::string port_text(int port, const PortNames &names);

}  // namespace standin
