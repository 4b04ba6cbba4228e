/* Platform: start of the helper library, and what it is told of the system around it. */
#pragma once
#include "helper/device_types.h"
#include "native/base.h"

OMBRA_BEGIN_DECLS

/* Start */
int KorvelBasicInit(void);
int KorvelInit(tridentPortMap_t *portMap, int numPorts);
void TesselApiSetSocProperties(char const *fname);
void setOmbraAgentName(char *);
void fileDescriptorIs(int fd);

/* Standby, switchover and shutdown */
void standbySupIs(bool);
void ssoIs(bool);
void isShuttingDownIs(bool);

/* Queries */
uint32 fapToSystemPhyPortId(uint32 fapId, uint32 fapPortId);
int korvel_soc_jer_fqp_pqp_new_algo_enable_get(int unit);

OMBRA_END_DECLS
