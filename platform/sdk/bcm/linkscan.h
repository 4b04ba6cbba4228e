/* Linkscan: the scanner that watches links in the background, and waiting for a link. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/linkscan_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_linkscan_init(int unit);
int bcm_linkscan_detach(int unit);
int bcm_linkscan_update(int unit, bcm_pbmp_t pbm);
int bcm_linkscan_enable_set(int unit, int us);
int bcm_linkscan_enable_get(int unit, int *us);
int bcm_linkscan_register(int unit, bcm_linkscan_handler_t handler);
int bcm_linkscan_unregister(int unit, bcm_linkscan_handler_t handler);
int bcm_link_change(int unit, bcm_pbmp_t pbmp);
int bcm_linkscan_dump(int unit);
int bcm_linkscan_enable_port_get(int unit, bcm_port_t port);
int bcm_linkscan_mode_set(int unit, bcm_port_t port, int mode);
int bcm_linkscan_mode_get(int unit, bcm_port_t port, int *mode);
int bcm_linkscan_mode_set_pbm(int unit, bcm_pbmp_t pbm, int mode);
int bcm_linkscan_port_register(int unit, bcm_port_t port, bcm_linkscan_port_handler_t handler);
int bcm_linkscan_port_unregister(int unit, bcm_port_t port, bcm_linkscan_port_handler_t handler);
int bcm_linkscan_trigger_event_set(int unit, bcm_port_t port, uint32 flags,
                                   bcm_linkscan_trigger_event_t event, int enable);
int bcm_linkscan_trigger_event_get(int unit, bcm_port_t port, uint32 flags,
                                   bcm_linkscan_trigger_event_t event, int *enable);
int bcm_link_wait(int unit, bcm_pbmp_t *pbm, int us);

OMBRA_END_DECLS
