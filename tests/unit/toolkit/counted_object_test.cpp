// Counted objects: the count word, its flags, disposal, and what the pointer does to them.
#include "toolkit/ptr.h"

#include <gtest/gtest.h>

#include <cstring>
#include <thread>
#include <vector>

namespace {

struct Base : Lumo::PtrInterface {};

struct Counted : Base {
    explicit Counted(int *deaths) : deaths_(deaths) {}
    ~Counted() override {
        ++*deaths_;
        // What destructors do: hand out the object once more, and drop it.
        const Lumo::Ptr<Counted> visit(this);
    }

  private:
    int *deaths_;
};

// Each test twice: with plain counts and with atomic ones.
class CountedObject : public ::testing::TestWithParam<bool> {
  protected:
    void SetUp() override { Lumo::VFPtrInterface::threadSafePointers_ = GetParam(); }
    void TearDown() override { Lumo::VFPtrInterface::threadSafePointers_ = true; }

    Lumo::Ptr<Counted> make() { return Lumo::Ptr<Counted>::adopt(new Counted(&deaths_)); }

    int deaths_ = 0;
};

TEST_P(CountedObject, LivesAsLongAsAReferenceDoes) {
    {
        Lumo::Ptr<Base> second;
        {
            const auto first = make();
            EXPECT_EQ(first->references(), 1u);
            second = first;
            EXPECT_EQ(first->references(), 2u);
            const Lumo::Ptr<Counted> by_object(first.get());
            EXPECT_EQ(first->references(), 3u);
        }
        EXPECT_EQ(deaths_, 0);
        EXPECT_EQ(second->references(), 1u);
        const Lumo::Ptr<Base> moved = std::move(second);
        EXPECT_EQ(moved->references(), 1u);
    }
    EXPECT_EQ(deaths_, 1);
}

TEST_P(CountedObject, AssignmentSurvivesItself) {
    auto pointer = make();
    pointer = *&pointer;
    EXPECT_EQ(pointer->references(), 1u);
    pointer = nullptr;
    EXPECT_EQ(deaths_, 1);
}

TEST_P(CountedObject, FlagsAreNoPartOfTheCount) {
    {
        const auto pointer = make();
        pointer->hasNotificationActiveIs(true);
        EXPECT_TRUE(pointer->hasNotificationActive());
        EXPECT_EQ(pointer->references(), 1u);
        const Lumo::Ptr<Base> other = pointer;
        EXPECT_EQ(other->references(), 2u);
        pointer->hasNotificationActiveIs(false);
        EXPECT_FALSE(pointer->hasNotificationActive());
        pointer->hasNotificationActiveIs(true);
    }
    EXPECT_EQ(deaths_, 1);  // at a word of 0x80000000
}

INSTANTIATE_TEST_SUITE_P(Counts, CountedObject, ::testing::Bool(),
                         [](const auto &test) { return test.param ? "Atomic" : "Plain"; });

TEST(CountedObjectThreads, AtomicCountsLoseNothing) {
    int deaths = 0;
    {
        const auto shared = Lumo::Ptr<Counted>::adopt(new Counted(&deaths));
        std::vector<std::jthread> threads;
        threads.reserve(4);
        for (int i = 0; i < 4; ++i) {
            threads.emplace_back([copy = shared] {
                for (int n = 0; n < 20'000; ++n) static_cast<void>(Lumo::Ptr<Counted>(copy));
            });
        }
        threads.clear();
        EXPECT_EQ(shared->references(), 1u);
    }
    EXPECT_EQ(deaths, 1);
}

// Other builds of the toolkit rely on the slots: a virtual member's address holds its offset in
// the virtual table, plus one.
TEST(CountedObjectLayout, VirtualOperationsKeepTheirSlots) {
    struct MemberPointer {
        std::size_t address;
        std::ptrdiff_t adjustment;
    };
    const auto slot = [](auto member) {
        MemberPointer pointer;
        static_assert(sizeof pointer == sizeof member);
        std::memcpy(&pointer, &member, sizeof pointer);
        return (pointer.address - 1) / sizeof(void *);
    };
    EXPECT_EQ(slot(&Lumo::PtrInterface::onZeroReferences), 0u);
    EXPECT_EQ(slot(&Lumo::PtrInterface::hasNotificationActiveIs), 1u);
}

}  // namespace
