// Allocation tracking: totals follow the objects, on the paths that fail too.
#include "toolkit/alloc_track.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>
#include <vector>

#include "toolkit/chip_memory.h"

namespace {

using Lumo::AllocTotals;
using Lumo::AllocTrackTypeInfo;

struct Tracked : Lumo::PtrInterface {
    static inline AllocTrackTypeInfo *lumoAllocTrackTypeInfo_ = nullptr;

    explicit Tracked(bool fails) {
        if (fails) throw std::runtime_error("constructor");
    }
    ~Tracked() override { AllocTrackTypeInfo::trackDeallocation(lumoAllocTrackTypeInfo_); }

    static AllocTotals live() { return AllocTrackTypeInfo::totals(lumoAllocTrackTypeInfo_); }
};

TEST(AllocTrackTest, TotalsFollowTheObjects) {
    const AllocTotals all = AllocTrackTypeInfo::totals();
    const AllocTotals none;
    {
        const auto one = Lumo::newTracked<Tracked>(false);
        const auto memory = Lumo::newTracked<Hardware::ChipMemory>(
            Hardware::ChipMemory::Place{1, 2, Hardware::ChipAddress(0x1000), 64}, true);
        EXPECT_EQ(one->references(), 1u);
        EXPECT_EQ(Tracked::live(), (AllocTotals{1, sizeof(Tracked)}));
        EXPECT_EQ(AllocTrackTypeInfo::totals(),
                  (AllocTotals{all.objects + 2,
                               all.bytes + sizeof(Tracked) + sizeof(Hardware::ChipMemory)}));
    }
    EXPECT_EQ(Tracked::live(), none);
    EXPECT_EQ(AllocTrackTypeInfo::totals(), all);
}

TEST(AllocTrackTest, ConstructorThatThrowsLeavesNothing) {
    const AllocTotals before = AllocTrackTypeInfo::totals();
    EXPECT_THROW(Lumo::newTracked<Tracked>(true), std::runtime_error);
    EXPECT_EQ(AllocTrackTypeInfo::totals(), before);
}

TEST(AllocTrackTest, ThreadsCountTogether) {
    std::vector<std::jthread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([] {
            for (int n = 0; n < 2'000; ++n) Lumo::newTracked<Tracked>(false);
        });
    }
    threads.clear();
    EXPECT_EQ(Tracked::live(), AllocTotals());
}

}  // namespace
