// Exported helpers: small native functions that live in the module itself. The module exports each
// as a dynamic symbol of the same name, beside its entry.
//
// Python rows call them with converted arguments. A native caller must keep the ranges as well:
// what lies outside a set changes nothing and tests as 0.
#pragma once
#include "native/base.h"
#include "sdk/bcm/field_types.h"

#pragma GCC visibility push(default)
OMBRA_BEGIN_DECLS

// Qualifier sets. `e` is a bit number in the words of the set. test returns the bit where it
// stands, not 1.
void bcm_field_qset_init(bcm_field_qset_t &qset);
void bcm_field_qset_add(bcm_field_qset_t &qset, bcm_field_qualify_e e);
void bcm_field_qset_remove(bcm_field_qset_t &qset, bcm_field_qualify_e e);
unsigned int bcm_field_qset_test(bcm_field_qset_t &qset, bcm_field_qualify_e e);

// Action sets, in the same way.
void bcm_field_aset_init(bcm_field_aset_t &aset);
void bcm_field_aset_add(bcm_field_aset_t &aset, bcm_field_action_e e);
void bcm_field_aset_remove(bcm_field_aset_t &aset, bcm_field_action_e e);
unsigned int bcm_field_aset_test(bcm_field_aset_t &aset, bcm_field_action_e e);

// System ports as global port numbers: type 27 from bit 26 upward, the port in the low 24 bits.
// The second returns -1 for a number of another type.
int bcm_get_gport_from_sys_port_id(int sysPortId);
int bcm_get_sys_port_id_from_gport(int gPort);

// Which copy of a block or memory serves a core of the unit; -1 where there is none.
int get_copyno_any(int unit, int mem);
int get_copyno_egq(int unit, int core);
int get_copyno_ihb(int unit, int core);
int get_copyno_ihp(int unit, int core);
int get_copyno_iqm(int unit, int core);

// Members of a LAG. The SDK's status is not passed on.
void soc_ppd_lag_member_add_wrapper(int unit, uint32 lag_ndx, uint32 sys_port, uint32 member_id);
void soc_ppd_lag_member_remove_wrapper(int unit, uint32 lag_ndx, uint32 sys_port, uint32 member_id);

OMBRA_END_DECLS
#pragma GCC visibility pop
