// Toolkit: how many objects of each class are alive.
#pragma once

#include <atomic>
#include <cstddef>
#include <new>
#include <typeinfo>
#include <utility>

#include "toolkit/ptr.h"

namespace Lumo {

struct AllocTotals {
    std::size_t objects = 0;
    std::size_t bytes = 0;

    friend bool operator==(const AllocTotals &, const AllocTotals &) = default;
};

// The record of one class. The class keeps its address in a static slot, `lumoAllocTrackTypeInfo_`,
// null before the first object. Records live to the end of the process. Safe on any thread.
class AllocTrackTypeInfo {
  public:
    AllocTrackTypeInfo(const AllocTrackTypeInfo &) = delete;
    AllocTrackTypeInfo &operator=(const AllocTrackTypeInfo &) = delete;

    // Counts an object of `size` bytes before its memory is taken; makes the record in `slot` if
    // there is none. All objects of a class have one size. Throws std::bad_alloc.
    static void trackAllocation(AllocTrackTypeInfo *&slot, const std::type_info &type,
                                std::size_t size);

    // Counts an object less. Called by the destructor of its class, or, where the constructor
    // throws, by whoever called trackAllocation().
    static void trackDeallocation(AllocTrackTypeInfo *info) noexcept;

    // What is alive: of all classes, and of the class whose slot holds `info`, which may be null.
    static AllocTotals totals();
    static AllocTotals totals(const AllocTrackTypeInfo *info);

  private:
    AllocTrackTypeInfo(std::size_t size, AllocTrackTypeInfo *next) : size_(size), next_(next) {}
    AllocTotals live() const;

    std::size_t const size_;
    AllocTrackTypeInfo *const next_;  // all records form a list
    std::atomic<std::size_t> objects_ = 0;
};

// A new T and its first reference. Whatever throws on the way, memory and totals are as before.
template <class T, class... Args>
Ptr<T> newTracked(Args &&...args) {
    AllocTrackTypeInfo::trackAllocation(T::lumoAllocTrackTypeInfo_, typeid(T), sizeof(T));
    void *memory = nullptr;
    try {
        memory = PtrInterface::lumoMemAlloc(sizeof(T));
        return Ptr<T>::adopt(::new (memory) T(std::forward<Args>(args)...));
    } catch (...) {
        AllocTrackTypeInfo::trackDeallocation(T::lumoAllocTrackTypeInfo_);
        ::operator delete(memory);
        throw;
    }
}

}  // namespace Lumo
