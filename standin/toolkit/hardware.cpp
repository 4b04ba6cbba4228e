// Constructors and destructors of the objects that stand for hardware.
#include <utility>

#include "toolkit/chip_memory.h"
#include "toolkit/mdio.h"

namespace HalMdioAccel {

Accel::~Accel() = default;

}  // namespace HalMdioAccel

namespace MdioHamImpl {

HamImpl::HamImpl(Lumo::Name name, Hardware::Mdio::BusId busId, Hardware::Mdio::PortAddr portAddr)
    : name_(std::move(name)), busId_(busId), portAddr_(portAddr) {}

HamImpl::~HamImpl() = default;

}  // namespace MdioHamImpl

namespace Hardware {

Lumo::AllocTrackTypeInfo *ChipMemory::lumoAllocTrackTypeInfo_ = nullptr;
Lumo::AllocTrackTypeInfo *HardwareShadow::lumoAllocTrackTypeInfo_ = nullptr;

ChipMemory::ChipMemory(const Place &place, bool managedBySdk)
    : place_(place), managedBySdk_(managedBySdk) {}

ChipMemory::~ChipMemory() { Lumo::AllocTrackTypeInfo::trackDeallocation(lumoAllocTrackTypeInfo_); }

HardwareShadow::HardwareShadow(int unit) : unit_(unit) {}

HardwareShadow::~HardwareShadow() {
    Lumo::AllocTrackTypeInfo::trackDeallocation(lumoAllocTrackTypeInfo_);
}

}  // namespace Hardware
