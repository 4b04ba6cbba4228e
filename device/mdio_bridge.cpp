// Wrapping the Python object and installing it as an accessor.
#include "device/mdio_bridge.h"

#include <cstdint>
#include <utility>

#include "helper/mdio_cxx.h"
#include "toolkit/lock.h"
#include "toolkit/mdio.h"

// The steps of the bridge:
//
//    1  take the activity lock
//    2  make the accessor's name
//    3  create the handle                          4  adopt it, and tell it that it is complete
//    5  a null accelerator, and the name as such
//    6  create the accessor                        7  tell it that it is complete
//    8  drop the temporaries, the lock last
//    9  take a second reference, as the interface that the helper library knows
//   10  check the ranges, the PHY first
//   11  hand the accessor over
//   12  drop both references
//
// Locals do the dropping, so their order of declaration is the order of the steps, and a throw
// anywhere unwinds what there is.

using Hardware::TesselApi::PythonMdioAccessWrapper;

namespace {

Lumo::Ptr<PythonMdioAccessWrapper> make_accessor(int unit, int phyId, PyObject *pythonHam) {
    const Lumo::LockAnchor anchor(Lumo::ActivityLockAnchor::lock(),
                                  Lumo::LockAnchor::noFlags);                   // 1
    const Lumo::String text = Lumo::format("PythonAccess-%d-%d", unit, phyId);  // 2
    const auto handle = Lumo::newTracked<Lumo::PyObjHandle>(pythonHam, false);  // 3
    handle->hasNotificationActiveIs(true);                                      // 4
    const Lumo::Ptr<HalMdioAccel::Accel> accel;                                 // 5
    const Lumo::Name name(text);
    auto accessor = Lumo::newTracked<PythonMdioAccessWrapper>(
        name, Hardware::Mdio::BusId(0), Hardware::Mdio::PortAddr(0), accel, handle);  // 6
    accessor->hasNotificationActiveIs(true);                                          // 7
    return accessor;                                                                  // 8
}

}  // namespace

void TesselApiSetExtMdioAccessWrapper(int unit, int phyId, PyObject *pythonHam,
                                      Hardware::PhyBcm::ManagedPhy managedPhy) {
    const auto accessor = make_accessor(unit, phyId, pythonHam);
    Lumo::Ptr<MdioHamImpl::HamImpl> ham = accessor;                                           // 9
    const Hardware::TesselApi::ExternalPhyId checked_phy(static_cast<std::uint16_t>(phyId));  // 10
    const Hardware::TesselApi::UnitId checked_unit(static_cast<std::uint32_t>(unit));
    TesselApiSetExtMdioAccess(checked_unit, checked_phy, std::move(ham), managedPhy);  // 11, 12
}
