// The list of tracked classes, and sums over their live objects.
#include "toolkit/alloc_track.h"

#include <mutex>

namespace Lumo {
namespace {

std::mutex records_mutex;
AllocTrackTypeInfo *records = nullptr;  // guarded by records_mutex

}  // namespace

void AllocTrackTypeInfo::trackAllocation(AllocTrackTypeInfo *&slot, const std::type_info &,
                                         std::size_t size) {
    std::lock_guard const guard(records_mutex);
    if (!slot) slot = records = new AllocTrackTypeInfo(size, records);
    slot->objects_.fetch_add(1, std::memory_order_relaxed);
}

void AllocTrackTypeInfo::trackDeallocation(AllocTrackTypeInfo *info) noexcept {
    info->objects_.fetch_sub(1, std::memory_order_relaxed);
}

AllocTotals AllocTrackTypeInfo::live() const {
    std::size_t const objects = objects_.load(std::memory_order_relaxed);
    return {objects, objects * size_};
}

AllocTotals AllocTrackTypeInfo::totals() {
    std::lock_guard const guard(records_mutex);
    AllocTotals sum;
    for (const AllocTrackTypeInfo *record = records; record; record = record->next_) {
        const AllocTotals live = record->live();
        sum.objects += live.objects;
        sum.bytes += live.bytes;
    }
    return sum;
}

AllocTotals AllocTrackTypeInfo::totals(const AllocTrackTypeInfo *info) {
    return info ? info->live() : AllocTotals();
}

}  // namespace Lumo
