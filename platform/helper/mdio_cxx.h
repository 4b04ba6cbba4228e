// MDIO accessors: what serves an external PHY, and the version it has while on standby.
#pragma once
#include "toolkit/mdio.h"
#include "toolkit/values.h"

// Keeps the accessor by a reference of its own. Python sees another form of this row.
void TesselApiSetExtMdioAccess(Hardware::TesselApi::UnitId unit,
                               Hardware::TesselApi::ExternalPhyId phyId,
                               MdioHamImpl::HamImpl::Ptr ham,
                               Hardware::PhyBcm::ManagedPhy managedPhy);
MdioHamImpl::HamImpl::Ptr TesselApiGetExtMdioAccess(Hardware::TesselApi::UnitId unit,
                                                    Hardware::TesselApi::ExternalPhyId phyId,
                                                    Hardware::PhyBcm::ManagedPhy managedPhy);
void standbyBcm84328VersionIs(Hardware::TesselApi::UnitId unit,
                              Hardware::TesselApi::ExternalPhyId phyId,
                              Hardware::PhyBcm::Bcm84328Version rev);
