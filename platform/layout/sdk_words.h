// Where the SDK keeps what in its numbers and records, as far as no declaration says it. The module
// and the stand-in both read it here.
#pragma once
#include <cstddef>
#include <cstdint>

namespace sdk_words {

// A global port number: a type, and from bit 0 upward the number, as far as `mask` leaves room.
constexpr int kGportTypeShift = 26;

struct Gport {
    int type;
    int mask;

    constexpr int of(int number) const { return type << kGportTypeShift | number; }
    constexpr int cut(int number) const { return of(number & mask); }
};
inline constexpr Gport kLocalGport{1, 0x7ff};
inline constexpr Gport kTrunkGport{3, 0x3ffffff};
inline constexpr Gport kBlackHoleGport{4, 0};
inline constexpr Gport kMirrorGport{21, 0x3ffffff};
inline constexpr Gport kSystemGport{27, 0xffffff};

constexpr int gport_type(int gport) { return gport >> kGportTypeShift; }

// Bits of `bcm_l2_addr_t.flags`.
constexpr std::uint32_t kL2BlackHole = 0x04;  // the destination is nowhere
constexpr std::uint32_t kL2Static = 0x20;
constexpr std::uint32_t kL2Trunk = 0x80;  // the destination is a trunk

// The control record behind `soc_control[unit]`: 32-bit copy numbers at these byte positions. Of a
// block there is one number for each core, and one for all; of a memory one by its identifier.
constexpr int kCores = 2;
struct CopyCells {
    std::size_t first_core;
    std::size_t all_cores;

    constexpr std::size_t of_core(int core) const {
        return first_core + sizeof(std::int32_t) * static_cast<std::size_t>(core);
    }
};
inline constexpr CopyCells kEgressQueueing{0x1c0e0, 0x1c620};       // EGQ
inline constexpr CopyCells kIngressHeader1{0x1c104, 0x1c628};       // IHB
inline constexpr CopyCells kIngressHeader2{0x1c10c, 0x1c62c};       // IHP
inline constexpr CopyCells kIngressQueueManager{0x1c120, 0x1c634};  // IQM

constexpr int kMemories = 11'000;
constexpr std::size_t memory_cell(int memory) {
    return 0x3560c + sizeof(std::int32_t) * static_cast<std::size_t>(memory);
}

}  // namespace sdk_words
