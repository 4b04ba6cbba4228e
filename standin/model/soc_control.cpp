// Filling the copy numbers of a control record and publishing it.
#include "standin/model/soc_control.h"

#include "layout/sdk_words.h"
#include "sdk/constants.h"
#include "sdk/variables.h"

extern "C" {
soc_control_t *soc_control[SOC_MAX_NUM_DEVICES];
}

namespace standin {
namespace {

using namespace sdk_words;

constexpr CopyCells kBlocks[] = {kEgressQueueing, kIngressHeader1, kIngressHeader2,
                                 kIngressQueueManager};

// Each kind of block has as many numbers, kind after kind behind those of the memories. The copy
// that stands for all cores of a kind is the one behind theirs.
constexpr std::int32_t kCopies = 8;

}  // namespace

ControlRecord::~ControlRecord() {
    if (unit_ >= 0) soc_control[unit_] = nullptr;
}

void ControlRecord::attach(int unit) {
    words_.assign(memory_cell(kMemories) / sizeof words_[0], 0);
    std::int32_t copy = kCopies;
    for (const CopyCells &block : kBlocks) {
        for (int core = 0; core < kCores; ++core) put(block.of_core(core), copy + core);
        put(block.all_cores, copy + kCores);
        copy += kCopies;
    }
    for (int mem = 0; mem < kMemories; ++mem) put(memory_cell(mem), mem % kCopies);
    unit_ = unit;
    soc_control[unit] = reinterpret_cast<soc_control_t *>(words_.data());
}

void ControlRecord::put(std::size_t offset, std::int32_t value) {
    words_[offset / sizeof words_[0]] = static_cast<std::uint32_t>(value);
}

}  // namespace standin
