// Rows whose results are texts or counted pointers of the toolkit, and the MDIO bridge.

#include "api/hand_rows.h"
#include "convert/refuse.h"
#include "device/counted_result.h"
#include "device/find_chip_memory.h"
#include "device/mdio_bridge.h"
#include "device/text_result.h"
#include "generated/type_slots.h"
#include "helper/mdio_cxx.h"
#include "helper/shadow_cxx.h"
#include "helper/shell_cxx.h"
#include "helper/trace_cxx.h"

namespace ombra::rows {

PyObject *getTrace() { return text_result(::getTrace()); }

PyObject *sdc(int unit, char *command) { return text_result(::sdc(unit, command)); }

PyObject *getHwShadow(int unit) {
    return counted_result(::getHwShadow(unit),
                          swig_type_slots[slots::_p_Hardware__HardwareShadow__Ptr]);
}

PyObject *TesselApiGetExtMdioAccess(Hardware::TesselApi::UnitId unit,
                                    Hardware::TesselApi::ExternalPhyId phyId,
                                    Hardware::PhyBcm::ManagedPhy managedPhy) {
    return counted_result(::TesselApiGetExtMdioAccess(unit, phyId, managedPhy),
                          swig_type_slots[slots::_p_MdioHamImpl__HamImpl__Ptr]);
}

PyObject *TesselApiSetExtMdioAccess(int unit, int phyId, PyObject *pythonHam,
                                    Hardware::PhyBcm::ManagedPhy managedPhy) {
    TesselApiSetExtMdioAccessWrapper(unit, phyId, pythonHam, managedPhy);
    Py_RETURN_NONE;
}

PyObject *TesselApiSetExt84328MdioAccessWrapper(int unit, int phyId, PyObject *pythonHam) {
    constexpr int phy_84328 = 3;
    return TesselApiSetExtMdioAccess(unit, phyId, pythonHam,
                                     Hardware::PhyBcm::ManagedPhy(phy_84328));
}

PyObject *findChipMemory(const CallRow &by_address, PyObject *args) {
    // The type of the result is that of the first shape.
    static constexpr char by_base_texts[] =
        "in method 'findChipMemory', argument 1 of type 'int'\0"
        "in method 'findChipMemory', argument 2 of type 'int'\0"
        "in method 'findChipMemory', argument 3 of type 'int'";
    const CallRow by_base{by_address.name, by_base_texts};
    return find_chip_memory({by_address, by_base}, args);
}

}  // namespace ombra::rows
