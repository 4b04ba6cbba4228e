// Native rows: rows whose function is the module's own and is not exported.
#pragma once
#include <Python.h>

#include "native/base.h"
#include "sdk/bcm/l2_types.h"

OMBRA_BEGIN_DECLS

// The whole L2 table of a unit: a list of (MAC text, VLAN, global port number, "static" or
// "dynamic"). A walk that fails gives the rows that it reached.
PyObject *getHwMacTable(int unit);

// What a global port number stands for: "local", "lag", "blackhole" or "unknown".
PyObject *getGPortType(unsigned long gport);

// The callback behind getHwMacTable: appends the row of `info` to the list `user_data`. Returns 0.
int l2_traverse_cb(int unit, bcm_l2_addr_t *info, void *user_data);

// Lets a Python object serve MDIO for an external 84328 PHY.
void TesselApiSetExt84328MdioAccessWrapper(int unit, int phyId, PyObject *pythonHam);

OMBRA_END_DECLS
