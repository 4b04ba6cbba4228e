// Memory of counted objects, and their end at zero references.
#include "toolkit/ptr.h"

#include <new>

namespace Lumo {

bool VFPtrInterface::threadSafePointers_ = true;

VFPtrInterface::~VFPtrInterface() = default;

PtrInterface::PtrInterface() = default;
PtrInterface::~PtrInterface() = default;

void *PtrInterface::lumoMemAlloc(std::size_t size) { return ::operator new(size); }

bool PtrInterface::hasNotificationActive() const {
    return (std::atomic_ref(countWord_).load(std::memory_order_relaxed) & notificationActiveFlag) !=
           0;
}

void PtrInterface::handleZeroRef() const {
    // The destructors may hand out references to the object and drop them again, so that the count
    // comes back to 0 during the disposal. The flag makes the second visit a no-op.
    std::uint32_t const before = std::atomic_ref(countWord_).fetch_or(disposingFlag);
    if ((before & disposingFlag) != 0) return;
    const_cast<PtrInterface *>(this)->onZeroReferences();
}

void PtrInterface::onZeroReferences() { delete this; }

void PtrInterface::hasNotificationActiveIs(bool active) {
    std::atomic_ref word(countWord_);
    if (active)
        word.fetch_or(notificationActiveFlag);
    else
        word.fetch_and(~notificationActiveFlag);
}

}  // namespace Lumo
