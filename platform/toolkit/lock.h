// Toolkit: the activity lock.
//
// Order of locks: the interpreter lock first, then the activity lock. A thread that holds the
// activity lock and not the interpreter lock must not ask for the latter, so neither may it drop
// what could be the last reference to a PyObjHandle.
#pragma once

#include <atomic>
#include <mutex>
#include <thread>

namespace Lumo {

// A lock that its holder may take again.
class Lock {
  public:
    Lock() = default;
    Lock(const Lock &) = delete;
    Lock &operator=(const Lock &) = delete;

    void acquire();
    // REQUIRES: heldByCaller().
    void release();
    bool heldByCaller() const;

  private:
    std::recursive_mutex mutex_;
    std::atomic<std::thread::id> holder_;
    unsigned depth_ = 0;  // written by the holder only
};

// Holds a lock from its construction to its destruction.
class LockAnchor {
  public:
    enum Flags : int { noFlags = 0 };

    LockAnchor(Lock *lock, Flags flags);
    LockAnchor(const LockAnchor &) = delete;
    LockAnchor &operator=(const LockAnchor &) = delete;
    ~LockAnchor();

  private:
    Lock *lock_;
};

class ActivityLockAnchor {
  public:
    // The one lock under which objects of the toolkit are put together. Never null.
    static Lock *lock();
};

}  // namespace Lumo
