/* Failover: protection objects and rings that switch to a spare path. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/failover_types.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_failover_init(int unit);
int bcm_failover_cleanup(int unit);
int bcm_failover_create(int unit, uint32 flags, bcm_failover_t *failover_id);
int bcm_failover_set(int unit, bcm_failover_t failover_id, int enable);
int bcm_failover_get(int unit, bcm_failover_t failover_id, int *enable);
int bcm_failover_destroy(int unit, bcm_failover_t failover_id);
void bcm_failover_multi_level_t_init(bcm_failover_multi_level_t *multi_level);
int bcm_failover_multi_level_attach(int unit, bcm_failover_multi_level_t multi_level);
void bcm_failover_ring_t_init(bcm_failover_ring_t *ring);
int bcm_failover_ring_config_set(int unit, bcm_failover_ring_t *ring);
int bcm_failover_ring_config_get(int unit, bcm_failover_ring_t *ring);
void bcm_failover_element_t_init(bcm_failover_element_t *element);
int bcm_failover_status_set(int unit, bcm_failover_element_t *element, int value);
int bcm_failover_status_get(int unit, bcm_failover_element_t *element, int *value);

OMBRA_END_DECLS
