/* Application: start of the diagnostic application and of the system on top of a chip. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/diag/appl_types.h"
#include "sdk/enums.h"

OMBRA_BEGIN_DECLS

/* System */
int system_init(int unit);
int system_shutdown(int unit, int cleanup);

/* Application */
cmd_result_t appl_dcmn_init_usage_parse(int unit, args_t *a, appl_dcmn_init_param_t *init_param);
int appl_dcmn_init(int unit, appl_dcmn_init_param_t *init_param);
int appl_dcmn_deinit(int unit, appl_dcmn_init_param_t *init_param);

/* Diagnostics */
int appl_dpp_bcm_diag_init(int unit, appl_dcmn_init_param_t *init_param);
int appl_dpp_bcm_diag_init_py(int unit, int nof_devices, int mymodid, int cosq_disable);
int appl_dpp_stk_diag_init(int unit);
int appl_dpp_cosq_diag_init(int unit);

OMBRA_END_DECLS
