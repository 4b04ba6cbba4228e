// Type library: a table of a chip, and the shadow of a unit, as counted objects.
#pragma once

#include <cstdint>

#include "toolkit/alloc_track.h"
#include "toolkit/ptr.h"
#include "toolkit/values.h"

namespace Hardware {

// One table of a chip: where it lies, and who manages it.
class ChipMemory : public Lumo::PtrInterface {
  public:
    typedef Lumo::Ptr<ChipMemory> Ptr;

    static Lumo::AllocTrackTypeInfo *lumoAllocTrackTypeInfo_;

    struct Place {
        int unit = 0;
        int mem = 0;
        ChipAddress address;
        std::uint32_t sizeBytes = 0;
    };

    ChipMemory(const Place &place, bool managedBySdk);
    ~ChipMemory() override;

    const Place &place() const noexcept { return place_; }
    bool managedBySdk() const noexcept { return managedBySdk_; }

  private:
    Place place_;
    bool managedBySdk_;
};

// Stands for the software copy of a unit's registers and tables.
class HardwareShadow : public Lumo::PtrInterface {
  public:
    typedef Lumo::Ptr<HardwareShadow> Ptr;

    static Lumo::AllocTrackTypeInfo *lumoAllocTrackTypeInfo_;

    explicit HardwareShadow(int unit);
    ~HardwareShadow() override;

    int unit() const noexcept { return unit_; }

  private:
    int unit_;
};

}  // namespace Hardware
