/* Stacking: module ids, stack ports, and how a module reaches its neighbours. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/stk_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Module id and mode */
int bcm_stk_init(int unit);
int bcm_stk_modid_set(int unit, int modid);
int bcm_stk_modid_get(int unit, int *modid);
int bcm_stk_modid_count(int unit, int *num_modid);
int bcm_stk_my_modid_set(int unit, int my_modid);
int bcm_stk_my_modid_get(int unit, int *my_modid);
int bcm_stk_mode_set(int unit, uint32 mode);
int bcm_stk_mode_get(int unit, uint32 *mode);
int bcm_stk_module_control_set(int unit, uint32 flags, bcm_module_t modid,
                               bcm_stk_module_control_t type, int arg);
int bcm_stk_module_control_get(int unit, uint32 flags, bcm_module_t modid,
                               bcm_stk_module_control_t type, int *arg);
int bcm_stk_module_enable(int unit, bcm_module_t modid, int nports, int enable);
int bcm_stk_module_max_set(int unit, uint32 flags, bcm_module_t modid);
int bcm_stk_module_max_get(int unit, uint32 flags, bcm_module_t *modid);
int bcm_stk_module_protocol_set(int unit, bcm_module_t modid, bcm_module_protocol_t protocol);
int bcm_stk_module_protocol_get(int unit, bcm_module_t modid, bcm_module_protocol_t *protocol);
void bcm_stk_modid_config_t_init(bcm_stk_modid_config_t *config);
int bcm_stk_modid_config_add(int unit, bcm_stk_modid_config_t *config);
int bcm_stk_modid_config_set(int unit, bcm_stk_modid_config_t *config);
int bcm_stk_modid_config_get(int unit, bcm_stk_modid_config_t *config);
int bcm_stk_modid_config_get_all(int unit, int config_max, bcm_stk_modid_config_t *config_array,
                                 int *config_count);
int bcm_stk_modid_config_delete(int unit, bcm_stk_modid_config_t *config);
int bcm_stk_modid_config_delete_all(int unit);

/* Stack ports */
int bcm_stk_port_set(int unit, bcm_port_t port, uint32 flags);
int bcm_stk_port_get(int unit, bcm_port_t port, uint32 *flags);
int bcm_stk_pbmp_get(int unit, bcm_pbmp_t *current_pbmp, bcm_pbmp_t *inactive_pbmp);
int bcm_stk_update_callback_register(int unit, bcm_stk_cb_f cb, void *user_data);
int bcm_stk_update_callback_unregister(int unit, bcm_stk_cb_f cb, void *user_data);
int bcm_stk_port_modmap_group_set(int unit, bcm_port_t port, int group);
int bcm_stk_port_modmap_group_get(int unit, bcm_port_t port, int *group);
int bcm_stk_port_modmap_group_max_get(int unit, int *group_max);

/* Routes to modules */
int bcm_stk_modport_add(int unit, int dest_modid, bcm_port_t dest_port);
int bcm_stk_modport_set(int unit, int dest_modid, int dest_port);
int bcm_stk_modport_get(int unit, int dest_modid, int *dest_port);
int bcm_stk_modport_get_all(int unit, int dest_modid, int dest_port_max, int *dest_port_array,
                            int *dest_port_count);
int bcm_stk_modport_clear(int unit, int dest_modid);
int bcm_stk_modport_delete(int unit, int dest_modid, bcm_port_t dest_port);
int bcm_stk_modport_clear_all(int unit);
int bcm_stk_modport_remote_map_set(int unit, bcm_gport_t port, uint32 flags, int remote_modid,
                                   bcm_port_t remote_port);
int bcm_stk_modport_remote_map_get(int unit, bcm_gport_t port, uint32 flags, int *remote_modid,
                                   bcm_port_t *remote_port);
int bcm_stk_port_modport_add(int unit, bcm_port_t port, bcm_module_t dest_modid,
                             bcm_port_t dest_port);
int bcm_stk_port_modport_set(int unit, bcm_port_t port, bcm_module_t dest_modid,
                             bcm_port_t dest_port);
int bcm_stk_port_modport_get(int unit, bcm_port_t port, bcm_module_t dest_modid,
                             bcm_port_t *dest_port);
int bcm_stk_port_modport_get_all(int unit, bcm_port_t port, bcm_module_t dest_modid,
                                 int dest_port_max, bcm_port_t *dest_port_array,
                                 int *dest_port_count);
int bcm_stk_port_modport_clear(int unit, bcm_port_t port, bcm_module_t dest_modid);
int bcm_stk_port_modport_delete(int unit, bcm_port_t port, bcm_module_t dest_modid,
                                bcm_port_t dest_port);
int bcm_stk_port_modport_clear_all(int unit, bcm_port_t port);
int bcm_stk_ucbitmap_set(int unit, int port, int dest_modid, bcm_pbmp_t pbmp);
int bcm_stk_ucbitmap_get(int unit, int port, int dest_modid, bcm_pbmp_t *pbmp);
int bcm_stk_ucbitmap_del(int unit, bcm_port_t port, int dest_modid, bcm_pbmp_t pbmp);

/* Module mapping */
int bcm_stk_modmap_enable_set(int unit, bcm_port_t port, int enable);
int bcm_stk_modmap_enable_get(int unit, bcm_port_t port, int *enable);
int bcm_stk_modmap_register(int unit, bcm_stk_modmap_cb_t cb);
int bcm_stk_modmap_unregister(int unit);
int bcm_stk_modmap_map(int unit, int set_or_get, bcm_module_t modid_in, bcm_port_t port_in,
                       bcm_module_t *modid_out, bcm_port_t *port_out);
int bcm_stk_fmod_lmod_mapping_set(int unit, bcm_port_t port, bcm_module_t fmod, bcm_module_t lmod);
int bcm_stk_fmod_lmod_mapping_get(int unit, bcm_port_t port, bcm_module_t *fmod,
                                  bcm_module_t *lmod);
int bcm_stk_fmod_smod_mapping_set(int unit, bcm_port_t port, bcm_module_t fmod, bcm_module_t smod,
                                  bcm_port_t sport, uint32 flags);
int bcm_stk_fmod_smod_mapping_get(int unit, bcm_port_t port, bcm_module_t fmod, bcm_module_t *smod,
                                  bcm_port_t *sport, uint32 *flags);
int bcm_stk_modid_domain_add(int unit, int modid, int domain);
int bcm_stk_modid_domain_get(int unit, int modid, int domain_max, int *domain_array,
                             int *domain_count);
int bcm_stk_modid_domain_delete(int unit, int modid, int domain);
int bcm_stk_domain_stk_trunk_add(int unit, int domain, bcm_trunk_t tid);
int bcm_stk_domain_stk_trunk_get(int unit, bcm_trunk_t tid, int domain_max, int *domain_array,
                                 int *domain_count);
int bcm_stk_domain_stk_trunk_delete(int unit, int domain, bcm_trunk_t tid);

/* Steering */
int bcm_stk_steering_clear(int unit, int modid);
int bcm_stk_steering_clear_all(int unit);
int bcm_stk_steering_multicast_set(int unit, int flags, bcm_multicast_t first_group,
                                   bcm_multicast_t last_group, int gport_count,
                                   bcm_gport_t *gport_array);
int bcm_stk_steering_unicast_set(int unit, int flags, bcm_module_t src_modid,
                                 bcm_module_t dest_modid, int gport_count,
                                 bcm_gport_t *gport_array);

/* System ports and fabric ports */
int bcm_stk_gport_sysport_get(int unit, bcm_gport_t gport, bcm_gport_t *sysport);
int bcm_stk_sysport_gport_set(int unit, bcm_gport_t sysport, bcm_gport_t gport);
int bcm_stk_sysport_gport_get(int unit, bcm_gport_t sysport, bcm_gport_t *gport);
int bcm_stk_system_gport_map_create(int unit, bcm_stk_system_gport_map_t *map);
int bcm_stk_system_gport_map_get(int unit, bcm_stk_system_gport_map_t *map);
int bcm_stk_system_gport_map_destroy(int unit, bcm_gport_t gport);
int bcm_stk_fabric_map_set(int unit, bcm_gport_t switch_port, bcm_gport_t fabric_port);
int bcm_stk_fabric_map_get(int unit, bcm_gport_t switch_port, bcm_gport_t *fabric_port);

OMBRA_END_DECLS
