/* MDIO: registers of the PHYs inside a chip. */
#pragma once
#include "native/base.h"

OMBRA_BEGIN_DECLS

void TesselApiInternalPhyRead(int unit, int port, int lane, uint32 addr, uint16 *data);
void TesselApiInternalPhyWrite(int unit, int port, int lane, uint32 addr, uint16 data);

OMBRA_END_DECLS
