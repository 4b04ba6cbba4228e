#include "standin/model/soc_control.h"

#include "sdk/constants.h"
#include "sdk/variables.h"

extern "C" {
soc_control_t *soc_control[SOC_MAX_NUM_DEVICES];
}

namespace standin {
namespace {

constexpr int kCores = 2;

// The cells of one kind of block: where they are, and the copy number of its first core.
struct BlockCells {
    std::size_t per_core;
    std::size_t all_cores;
    std::int32_t first_copy;
};

constexpr BlockCells kBlocks[] = {
    {0x1c0e0, 0x1c620, 8},
    {0x1c104, 0x1c628, 16},
    {0x1c10c, 0x1c62c, 24},
    {0x1c120, 0x1c634, 32},
};

// The copy that stands for all cores of a kind is the one behind theirs.
constexpr std::int32_t kCopies = 8;

}  // namespace

ControlRecord::~ControlRecord() {
    if (unit_ >= 0) soc_control[unit_] = nullptr;
}

void ControlRecord::attach(int unit) {
    words_.assign(kControlRecordBytes / sizeof words_[0], 0);
    for (const BlockCells &block : kBlocks) {
        for (int core = 0; core < kCores; ++core)
            put(block.per_core + 4 * static_cast<std::size_t>(core), block.first_copy + core);
        put(block.all_cores, block.first_copy + kCores);
    }
    for (int mem = 0; mem < kMemories; ++mem)
        put(kMemoryCells + 4 * static_cast<std::size_t>(mem), mem % kCopies);
    unit_ = unit;
    soc_control[unit] = reinterpret_cast<soc_control_t *>(words_.data());
}

void ControlRecord::put(std::size_t offset, std::int32_t value) {
    words_[offset / sizeof words_[0]] = static_cast<std::uint32_t>(value);
}

}  // namespace standin
