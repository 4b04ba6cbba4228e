/* Parsing: numbers, ports, addresses, memories and field names from text. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/common_types.h"
#include "sdk/bcm/field_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"
#include "sdk/soc/reg_types.h"

OMBRA_BEGIN_DECLS

/* Numbers */
int isint(char *);
uint32 parse_integer(char *str);
sal_vaddr_t parse_address(char *str);
uint64 parse_uint64(char *str);
void parse_long_integer(uint32 *val, int nval, char *str);
int parse_small_integers(int unit, char *s, soc_pbmp_t *pbmp);
int parse_num_range(int unit, char *s, int *min, int *max, int legal_min, int legal_max);
int diag_parse_range(char *low, char *high, int *min, int *max, int legal_min, int legal_max);

/* Ports and addresses */
int parse_pbmp(int unit, char *s, soc_pbmp_t *pbmp);
int parse_pp_pbmp(int unit, char *s, soc_pbmp_t *pbmp);
int parse_bcm_pbmp(int unit, char *s, bcm_pbmp_t *pbmp);
int parse_pbmp_no_error(int unit, char *s, soc_pbmp_t *pbmp);
int parse_port(int unit, char *s, soc_port_t *portp);
int parse_bcm_port(int unit, char *s, bcm_port_t *portp);
int parse_mod_port(int unit, char *s, bcm_mod_port_t *mp);
int parse_port_mode(char *str, soc_port_mode_t *mode);
int parse_port_ability(char *str, soc_port_ability_t *mode);
int parse_phy_control_longreach_ability(char *str, soc_phy_control_longreach_ability_t *ability);
int parse_ipaddr(char *str, ip_addr_t *ipaddr);

/* Memories, registers and blocks */
int parse_memory_name(int unit, soc_mem_t *result, char *str, int *copyno,
                      unsigned int *array_index);
int parse_memory_index(int unit, soc_mem_t mem, char *val_str);
unsigned int parse_memory_array_index(int unit, soc_mem_t mem, char *val_str);
int parse_cmic_regname(int unit, char *name, uint32 *offset_ptr);
int parse_symbolic_reference(int unit, soc_regaddrlist_t *alist, char *ref);
int parse_block_range(int unit, soc_block_types_t regtype, char *s, int *min, int *max,
                      soc_block_types_t mask);

/* Field processor */
bcm_field_qualify_t parse_field_qualifier(char *str);
int parse_field_qset(char *str, bcm_field_qset_t *qset);
bcm_field_group_mode_t parse_field_group_mode(char *str);
bcm_field_action_t parse_field_action(char *str);
int parse_field_aset(char *str, bcm_field_aset_t *aset, uint8 add);
bcm_field_decap_t parse_field_decap(char *str);
bcm_field_MplsOam_Control_pktType_t parse_field_MplsOamCtrlPktType(char *str);
bcm_field_oam_type_t parse_field_oam_type(char *str);
bcm_field_olp_header_type_t parse_field_olp_hdr_type(char *str);

/* Arguments of a command */
int parseEndOk(args_t *, parse_table_t *, cmd_result_t *);

OMBRA_END_DECLS
