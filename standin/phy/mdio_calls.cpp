// Accessors of external PHYs, and the registers of internal ones as the platform reaches them.
#include <string>
#include <utility>

#include "helper/mdio.h"
#include "helper/mdio_cxx.h"
#include "sdk/soc/phyctrl.h"
#include "standin/base/faults.h"
#include "standin/phy/accessors.h"
#include "standin/phy/hooks.h"
#include "standin/phy/phy.h"
#include "toolkit/alloc_track.h"

using namespace standin;
using Hardware::PhyBcm::Bcm84328Version;
using Hardware::PhyBcm::ManagedPhy;
using Hardware::TesselApi::ExternalPhyId;
using Hardware::TesselApi::UnitId;

namespace {

Accessors::Key key_of(UnitId unit, ExternalPhyId phy, ManagedPhy kind) {
    return {unit.value(), phy.value(), static_cast<std::int32_t>(kind)};
}

}  // namespace

// The accessor that it replaces is dropped here, as soon as nobody is calling it. Null removes.
void TesselApiSetExtMdioAccess(UnitId unit, ExternalPhyId phyId, MdioHamImpl::HamImpl::Ptr ham,
                               ManagedPhy managedPhy) {
    if (fault_check(__func__) != BCM_E_NONE) return;
    const Accessor old = accessors().install(key_of(unit, phyId, managedPhy), std::move(ham));
}

MdioHamImpl::HamImpl::Ptr TesselApiGetExtMdioAccess(UnitId unit, ExternalPhyId phyId,
                                                    ManagedPhy managedPhy) {
    if (fault_check(__func__) != BCM_E_NONE) return nullptr;
    return accessors().find(key_of(unit, phyId, managedPhy));
}

// On standby, soc_phy_id1reg_get gives it for a port with that external PHY.
void standbyBcm84328VersionIs(UnitId unit, ExternalPhyId phyId, Bcm84328Version rev) {
    if (fault_check(__func__) != BCM_E_NONE) return;
    accessors().tell_version(unit.value(), phyId.value(), rev.value());
}

extern "C" {

// Nothing is written for a unit, port or lane that there isn't.
void TesselApiInternalPhyRead(int unit, int port, int lane, uint32 addr, uint16 *data) {
    if (data == nullptr || fault_check(__func__) != BCM_E_NONE) return;
    uint32 value = 0;
    if (soc_phyctrl_lane_reg_read(unit, port, lane, 0, addr, &value) == BCM_E_NONE)
        *data = static_cast<uint16>(value);
}

void TesselApiInternalPhyWrite(int unit, int port, int lane, uint32 addr, uint16 data) {
    if (fault_check(__func__) != BCM_E_NONE) return;
    soc_phyctrl_lane_reg_write(unit, port, lane, 0, addr, data);
}

int standin_mdio_remove(int unit, int phy, int kind) {
    if (!within(unit, 0, 255) || !within(phy, 0, int{kLastPhyAddress})) return BCM_E_PARAM;
    const Accessor old = accessors().install(
        {static_cast<std::uint32_t>(unit), static_cast<std::uint16_t>(phy), kind}, nullptr);
    return old ? BCM_E_NONE : BCM_E_NOT_FOUND;
}

void standin_mdio_clear(void) { const auto old = accessors().clear(); }

int standin_mdio_count(void) { return static_cast<int>(accessors().size()); }

int standin_live_objects(void) {
    return static_cast<int>(Lumo::AllocTrackTypeInfo::totals().objects);
}

int standin_phy_version(int unit, int phy) {
    if (!within(phy, 0, int{kLastPhyAddress})) return -1;
    const auto version =
        accessors().version(static_cast<std::uint32_t>(unit), static_cast<std::uint16_t>(phy));
    return version ? *version : -1;
}

}  // extern "C"
