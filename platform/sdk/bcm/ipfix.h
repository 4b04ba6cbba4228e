/* IPFIX: export of flow records, its rates and mirrors. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/ipfix_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_ipfix_register(int unit, bcm_ipfix_callback_t callback, void *userdata);
int bcm_ipfix_unregister(int unit, bcm_ipfix_callback_t callback, void *userdata);
void bcm_ipfix_config_t_init(bcm_ipfix_config_t *config);
int bcm_ipfix_config_set(int unit, bcm_ipfix_stage_t stage, bcm_port_t port,
                         bcm_ipfix_config_t *config);
int bcm_ipfix_config_get(int unit, bcm_ipfix_stage_t stage, bcm_port_t port,
                         bcm_ipfix_config_t *config);
void bcm_ipfix_mirror_config_t_init(bcm_ipfix_mirror_config_t *config);
int bcm_ipfix_mirror_config_set(int unit, bcm_ipfix_stage_t stage, bcm_gport_t port,
                                bcm_ipfix_mirror_config_t *config);
int bcm_ipfix_mirror_config_get(int unit, bcm_ipfix_stage_t stage, bcm_gport_t port,
                                bcm_ipfix_mirror_config_t *config);
int bcm_ipfix_mirror_port_dest_add(int unit, bcm_ipfix_stage_t stage, bcm_gport_t port,
                                   bcm_gport_t mirror_dest_id);
int bcm_ipfix_mirror_port_dest_get(int unit, bcm_ipfix_stage_t stage, bcm_gport_t port,
                                   int mirror_dest_max, bcm_gport_t *mirror_dest_array,
                                   int *mirror_dest_count);
int bcm_ipfix_mirror_port_dest_delete(int unit, bcm_ipfix_stage_t stage, bcm_gport_t port,
                                      bcm_gport_t mirror_dest_id);
int bcm_ipfix_mirror_port_dest_delete_all(int unit, bcm_ipfix_stage_t stage, bcm_gport_t port);
void bcm_ipfix_rate_t_init(bcm_ipfix_rate_t *rate);
int bcm_ipfix_rate_create(int unit, bcm_ipfix_rate_t *rate);
int bcm_ipfix_rate_get(int unit, bcm_ipfix_rate_t *rate);
int bcm_ipfix_rate_destroy(int unit, bcm_ipfix_rate_id_t rate_id);
int bcm_ipfix_rate_destroy_all(int unit);
int bcm_ipfix_rate_traverse(int unit, bcm_ipfix_rate_traverse_cb cb, void *userdata);
int bcm_ipfix_rate_mirror_add(int unit, bcm_ipfix_rate_id_t rate_id, bcm_gport_t mirror_dest_id);
int bcm_ipfix_rate_mirror_get(int unit, bcm_ipfix_rate_id_t rate_id, int mirror_dest_max,
                              bcm_gport_t *mirror_dest_array, int *mirror_dest_count);
int bcm_ipfix_rate_mirror_delete(int unit, bcm_ipfix_rate_id_t rate_id, bcm_gport_t mirror_dest_id);
int bcm_ipfix_rate_mirror_delete_all(int unit, bcm_ipfix_rate_id_t rate_id);

OMBRA_END_DECLS
