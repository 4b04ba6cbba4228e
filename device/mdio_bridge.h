// The MDIO bridge: a Python object becomes the accessor of an external PHY.
#pragma once

#include "toolkit/py_handle.h"
#include "toolkit/values.h"

// Wraps `pythonHam`, which may be any object, None included, in an accessor and installs it in the
// helper library for (unit, phyId, managedPhy). The helper library then keeps the accessor, and
// the accessor the object; this module keeps nothing.
//
// Throws what the toolkit and the helper library throw, and Lumo::RangeException, in this order,
// for the low 16 bits of `phyId` above 0x3FF and for a `unit` outside 0 to 255. Both are looked at
// after the accessor is built, so that its name is made of the numbers as they came in. Whatever is
// thrown, every reference that was taken is dropped again.
//
// REQUIRES: the interpreter lock. `pythonHam` is borrowed.
void TesselApiSetExtMdioAccessWrapper(int unit, int phyId, PyObject *pythonHam,
                                      Hardware::PhyBcm::ManagedPhy managedPhy);
