// The control record of a unit: the block of memory behind `soc_control[unit]`.
//
// Nobody outside the chip library knows more of it than these 32-bit cells:
//
//     0x1c0e0 + 4 * core   copy number of the egress queueing block of a core, 0x1c620 of all
//     0x1c104 + 4 * core   ingress header block, first stage, 0x1c628 of all
//     0x1c10c + 4 * core   ingress header block, second stage, 0x1c62c of all
//     0x1c120 + 4 * core   ingress queue manager, 0x1c634 of all
//     0x3560c + 4 * mem    default copy number of a memory, for `mem` from 0 to 10,999
#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

namespace standin {

constexpr int kMemories = 11'000;
constexpr std::size_t kMemoryCells = 0x3560c;
constexpr std::size_t kControlRecordBytes = kMemoryCells + 4 * std::size_t{kMemories};

class ControlRecord {
  public:
    ControlRecord() = default;
    ControlRecord(const ControlRecord &) = delete;
    ControlRecord &operator=(const ControlRecord &) = delete;
    ~ControlRecord();

    // Fills the record and publishes it as `soc_control[unit]`, until this object dies.
    void attach(int unit);

  private:
    void put(std::size_t offset, std::int32_t value);

    int unit_ = -1;
    std::vector<std::uint32_t> words_;
};

}  // namespace standin
