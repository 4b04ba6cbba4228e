/* Bus: words at bus addresses, below registers and tables. */
#pragma once
#include "native/base.h"
#include "native/values.h"

OMBRA_BEGIN_DECLS

unsigned int korvel_read_low(int unit, uint32 addr);
int korvel_write_low(int unit, uint32 addr, uint32 data);
U32 sbusFormatAddress(int unit, U32 addr);

OMBRA_END_DECLS
