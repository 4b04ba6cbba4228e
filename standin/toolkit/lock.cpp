// The activity lock, which its holder may take again.
#include "toolkit/lock.h"

namespace Lumo {

void Lock::acquire() {
    mutex_.lock();
    if (depth_++ == 0) holder_.store(std::this_thread::get_id(), std::memory_order_relaxed);
}

void Lock::release() {
    if (--depth_ == 0) holder_.store(std::thread::id(), std::memory_order_relaxed);
    mutex_.unlock();
}

// Only the caller itself ever stores the caller's id, so no order is needed.
bool Lock::heldByCaller() const {
    return holder_.load(std::memory_order_relaxed) == std::this_thread::get_id();
}

LockAnchor::LockAnchor(Lock *lock, Flags) : lock_(lock) { lock_->acquire(); }
LockAnchor::~LockAnchor() { lock_->release(); }

Lock *ActivityLockAnchor::lock() {
    // Never destroyed: threads of the SDK may use it while the process ends.
    static Lock *const activity_lock = new Lock;
    return activity_lock;
}

}  // namespace Lumo
