/* Properties: settings of the configuration store, read for a unit. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

pbmp_t soc_property_get_bcm_pbmp(int unit, char const *name, int defneg);
uint32 soc_property_bcm_port_get(int unit, bcm_port_t aport, char const *name, uint32 defl);

OMBRA_END_DECLS
