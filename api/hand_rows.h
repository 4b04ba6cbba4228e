// Rows whose body no prototype gives.
//
// The generated entry reads the arguments and calls the body with native values; a body returns a
// new reference, or null with an exception. Rows that read their arguments in a way of their own
// take the record and the tuple instead. catalogue/departures.txt lists them with their reasons.
#pragma once

#include <Python.h>

#include "convert/row.h"
#include "sdk/bcm/l2_types.h"
#include "sdk/scalars.h"
#include "toolkit/values.h"

namespace ombra::rows {

// Results of fixed shape: the status first, then the values, whatever the status says.
PyObject *bcm_port_pause_get(int unit, bcm_port_t port);          // (status, bool, bool)
PyObject *bcm_port_untagged_vlan_get(int unit, bcm_port_t port);  // (status, vid)
PyObject *bcm_vlan_port_get(int unit, bcm_vlan_t vid);            // (status, list, list), or Nones

// Results that are shorter after a failed call: (status,) alone.
PyObject *bcm_stg_stp_get(int unit, bcm_stg_t stg, bcm_port_t port);  // (0, "forwarding")
PyObject *bcm_stg_list(int unit);                                     // (0, [stg, ...])
PyObject *bcm_stg_vlan_list(int unit, bcm_stg_t stg);                 // (0, [vid, ...])

// [status, value], with arguments that no kind reads.
PyObject *bcm_trunk_create(const CallRow &row, PyObject *args);
PyObject *bcm_l2_addr_get(const CallRow &row, PyObject *args);
PyObject *bcm_port_config_get(const CallRow &row, PyObject *args);

// The hardware L2 table as a list of (mac, vid, global port, "static" or "dynamic"). The status of
// the walk is dropped: a failed one gives the rows reached so far.
PyObject *getHwMacTable(int unit);

// The kind of a global port number: "local", "lag", "blackhole" or "unknown".
PyObject *getGPortType(unsigned long gport);

// The native callback behind the snapshot, called from Python: always ValueError, since no pointer
// object can hold the list that it appends to. Neither pointer is touched.
PyObject *l2_traverse_cb(int unit, bcm_l2_addr_t *info, void *user_data);

// Formats into a 16-byte array of the row's own; no text comes back.
PyObject *format_ipaddr(const CallRow &row, PyObject *args);

// Texts and counted pointers of the toolkit.
PyObject *getTrace();
PyObject *sdc(int unit, char *command);
PyObject *getHwShadow(int unit);
PyObject *findChipMemory(const CallRow &row, PyObject *args);

// The MDIO bridge.
PyObject *TesselApiGetExtMdioAccess(Hardware::TesselApi::UnitId unit,
                                    Hardware::TesselApi::ExternalPhyId phyId,
                                    Hardware::PhyBcm::ManagedPhy managedPhy);
PyObject *TesselApiSetExtMdioAccess(int unit, int phyId, PyObject *pythonHam,
                                    Hardware::PhyBcm::ManagedPhy managedPhy);
PyObject *TesselApiSetExt84328MdioAccessWrapper(int unit, int phyId, PyObject *pythonHam);

}  // namespace ombra::rows
