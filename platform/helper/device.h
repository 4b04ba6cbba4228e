/* Devices: the table of chips, how they are added, mapped and rewired, and what they are. */
#pragma once
#include "native/base.h"
#include "native/values.h"

OMBRA_BEGIN_DECLS

/* The table */
int addOmbraDevice(uint16 domain, uint8 bus, uint8 slot, uint8 function);
int addOmbraFapDeviceUnmapped(uint16 domain, uint8 bus, uint8 slot, uint8 function, uint32 is_fake);
int addOmbraFeDeviceUnmapped(uint16 domain, uint8 bus, uint8 slot, uint8 function, uint32 is_fake);
void mapOmbraDevice(int unit);
void unmapOmbraDevice(int unit);
void rewireOmbraDeviceRemap(int unit, uint16 domain, uint8 bus, uint8 slot, uint8 function);
void rewireOmbraDeviceNoRemap(int unit, uint16 domain, uint8 bus, uint8 slot, uint8 function);
int getNumDevices(void);

/* Identity */
U32 getDevId(int unit);
U32 getDevRev(int unit);
void standbyDevIdIs(int unit, U32);
void standbyRevIdIs(int unit, U32);
void standbyNumDevicesIs(U32);

/* Interrupts */
void maskDeviceInterrupts(uint8 bus);
void disconnectInterruptsToDevices(void);

OMBRA_END_DECLS
