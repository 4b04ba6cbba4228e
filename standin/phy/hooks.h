// What a test may do with external PHYs that no agent can.
//
// standin_mdio_remove and standin_mdio_clear drop accessors. One that serves a Python object takes
// the interpreter's lock for that by itself, so the caller may have it or not.
#pragma once

extern "C" {

// Removes an accessor; `kind` is the number of its ManagedPhy. BCM_E_NOT_FOUND: there is none.
int standin_mdio_remove(int unit, int phy, int kind);

// Removes all accessors, and forgets the versions told.
void standin_mdio_clear(void);

// How many accessors are installed.
int standin_mdio_count(void);

// The version of an external PHY as told for the time on standby, -1 if nothing was told.
int standin_phy_version(int unit, int phy);

// Allocations of the toolkit that are alive: objects of all its classes.
int standin_live_objects(void);
}
