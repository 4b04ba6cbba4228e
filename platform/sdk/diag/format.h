/* Formatting: numbers, ports, addresses and field names into a text of the caller. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/field_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Numbers */
void format_uint64(char *buf, uint64 n);
void format_uint64_decimal(char *buf, uint64 n, int comma);
void format_long_integer(char *buf, uint32 *val, int nval);
void format_spec_long_integer(char *buf, uint32 *val, int nval);

/* Ports and addresses */
char *format_pbmp(int unit, char *buf, int bufsize, soc_pbmp_t pbmp);
char *format_bcm_pbmp(int unit, char *buf, int bufsize, bcm_pbmp_t pbmp);
char *format_gport(char *buf, bcm_gport_t gport);
void format_port_mode(char *buf, int bufsize, soc_port_mode_t mode, int abbrev);
void format_phy_control_longreach_ability(char *buf, int bufsize,
                                          soc_phy_control_longreach_ability_t ability);
void format_ipaddr(char buf[IPADDR_STR_LEN], ip_addr_t ipaddr);
void format_ipaddr_mask(char *buf, ip_addr_t ipaddr, ip_addr_t mask);

/* Field processor */
char *format_field_qualifier(char *buf, bcm_field_qualify_t qual, int brief);
char *format_field_qset(char *buf, bcm_field_qset_t qset, char *separator);
char *format_field_group_mode(char *buf, bcm_field_group_mode_t mode, int brief);
char *format_field_action(char *buf, bcm_field_action_t action, int brief);
char *format_field_aset(char *buf, bcm_field_aset_t aset, char *separator);
char *format_field_decap(char *buf, bcm_field_decap_t decap);

OMBRA_END_DECLS
