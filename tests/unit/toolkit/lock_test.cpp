// The activity lock.
#include "toolkit/lock.h"

#include <gtest/gtest.h>

#include <optional>
#include <thread>
#include <vector>

namespace {

using Lumo::ActivityLockAnchor;
using Lumo::LockAnchor;

TEST(ActivityLock, IsHeldUntilTheOutermostAnchorGoes) {
    Lumo::Lock *const lock = ActivityLockAnchor::lock();
    ASSERT_EQ(lock, ActivityLockAnchor::lock());
    EXPECT_FALSE(lock->heldByCaller());
    {
        const LockAnchor outer(lock, LockAnchor::noFlags);
        { const LockAnchor inner(lock, LockAnchor::noFlags); }
        EXPECT_TRUE(lock->heldByCaller());
        std::jthread([lock] { EXPECT_FALSE(lock->heldByCaller()); });
    }
    EXPECT_FALSE(lock->heldByCaller());
}

TEST(ActivityLock, KeepsThreadsApart) {
    long plain_counter = 0;
    std::vector<std::jthread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&plain_counter] {
            for (int n = 0; n < 5'000; ++n) {
                const LockAnchor anchor(ActivityLockAnchor::lock(), LockAnchor::noFlags);
                ++plain_counter;
            }
        });
    }
    threads.clear();
    EXPECT_EQ(plain_counter, 20'000);
}

}  // namespace
