// What passed a port, told apart further than the model's packets and bytes.
#pragma once
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>

namespace standin {

constexpr std::size_t kSizeClasses = 10;

// The class of a frame of that many bytes on the wire: up to 64, 127, 255, 511, 1023, 1518, 2047,
// 4095, 9216, and above.
constexpr std::size_t size_class(std::size_t bytes) {
    constexpr std::size_t kLast[] = {64, 127, 255, 511, 1023, 1518, 2047, 4095, 9216};
    std::size_t found = 0;
    while (found < std::size(kLast) && bytes > kLast[found]) ++found;
    return found;
}

// In one direction. What is no multicast and no broadcast is unicast; errors and discards are among
// the packets that came in, and besides those that went out.
struct Traffic {
    std::uint64_t multicast = 0;
    std::uint64_t broadcast = 0;
    std::uint64_t discards = 0;
    std::uint64_t errors = 0;
    std::array<std::uint64_t, kSizeClasses> by_size{};
};

struct PortTraffic {
    Traffic in;
    Traffic out;
};

}  // namespace standin
