// Shadow objects: the shadow of a unit and the tables behind it, as counted objects.
#pragma once
#include "native/values.h"
#include "toolkit/chip_memory.h"
#include "toolkit/values.h"

Hardware::HardwareShadow::Ptr getHwShadow(int unit);
bool tableNotManagedBySdk(Hardware::ChipMemory const *);

namespace TesselApi {

U32 tableBaseAddr(int unit, int mem, int arrayIndex);

// By address and size, or by the base address of the table. Null if there is no such table.
Hardware::ChipMemory::Ptr findChipMemory(int unit, int mem, Hardware::ChipAddress sca,
                                         U32 sizeBytes);
Hardware::ChipMemory::Ptr findChipMemory(int unit, int mem, int baseAddr);

}  // namespace TesselApi
