/* Symbols: functions of the SDK that the module calls by itself and that are no rows. */
#pragma once
#include "native/base.h"
#include "native/values.h"

OMBRA_BEGIN_DECLS

/* Clears the record. */
void SOC_PPC_LAG_MEMBER_clear(SOC_PPC_LAG_MEMBER *member);

/* Adds the member to a LAG. `*success` receives whether the chip took it. */
int soc_ppd_lag_member_add(int unit, uint32 lag_ndx, SOC_PPC_LAG_MEMBER *member, int *success);

/* Takes the member out of a LAG. */
int soc_ppd_lag_member_remove(int unit, uint32 lag_ndx, SOC_PPC_LAG_MEMBER *member);

OMBRA_END_DECLS
