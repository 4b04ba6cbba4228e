/* Init: attaching, finding and starting units. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/init_types.h"

OMBRA_BEGIN_DECLS

int bcm_init(int unit);
int bcm_detach(int unit);
int bcm_clear(int unit);
int bcm_attach(int unit, char *type, char *subtype, int remunit);
int bcm_find(char *type, char *subtype, int remunit);
int bcm_attach_register(int unit, bcm_attach_cb_t cb, void *user_data);
int bcm_attach_unregister(int unit, bcm_attach_cb_t cb, void *user_data);
int bcm_attach_check(int unit);
int bcm_attach_early_txrx(int unit, char *type, char *subtype, int remunit);
void bcm_attach_info_t_init(bcm_attach_info_t *info);
int bcm_attach_max(int *max_units);
int bcm_init_check(int unit);
int bcm_detach_late_txrx(int unit);
void bcm_detach_retry_t_init(bcm_detach_retry_t *retry);
int bcm_detach_retry_set(int unit, bcm_detach_retry_t *retry);
int bcm_detach_retry_get(int unit, bcm_detach_retry_t *retry);
void bcm_info_t_init(bcm_info_t *info);
int bcm_info_get(int unit, bcm_info_t *info);
char *bcm_module_name(int unit, int bcm_module);
int bcm_init_selective(int unit, uint32 flags);
int bcm_unit_local(int unit);
int bcm_unit_max(void);
int bcm_unit_remote(int unit);
int bcm_unit_remote_unit_get(int unit, int *remote_unit);
int bcm_unit_subtype_get(int unit, char *subtype, int maxlen);
int bcm_unit_valid(int unit);

OMBRA_END_DECLS
