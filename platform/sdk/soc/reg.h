/* Registers: whole and by field, 32, 64 and more bits wide, their addresses and their watchers. */
#pragma once
#include "native/base.h"
#include "sdk/diag/shell_types.h"
#include "sdk/scalars.h"
#include "sdk/soc/reg_types.h"

OMBRA_BEGIN_DECLS

/* Whole registers */
int soc_reg_read(int unit, soc_reg_t reg, uint32 addr, uint64 *data);
int soc_reg_write(int unit, soc_reg_t reg, uint32 addr, uint64 data);
int soc_reg_get(int unit, soc_reg_t reg, int port, int index, uint64 *data);
int soc_reg_set(int unit, soc_reg_t reg, int port, int index, uint64 data);
int soc_reg32_read(int unit, uint32 addr, uint32 *data);
int soc_reg32_write(int unit, uint32 addr, uint32 data);
int soc_reg32_get(int unit, soc_reg_t reg, int port, int index, uint32 *data);
int soc_reg32_set(int unit, soc_reg_t reg, int port, int index, uint32 data);
int soc_reg64_read(int unit, uint32 addr, uint64 *data);
int soc_reg64_write(int unit, uint32 addr, uint64 data);
int soc_reg64_get(int unit, soc_reg_t reg, int port, int index, uint64 *data);
int soc_reg64_set(int unit, soc_reg_t reg, int port, int index, uint64 data);
int soc_reg_above_64_get(int unit, soc_reg_t reg, int port, int index, unsigned int data[20]);
int soc_reg_above_64_set(int unit, soc_reg_t reg, int port, int index, unsigned int data[20]);

/* Fields of a value in hand */
uint32 soc_reg_field_get(int unit, soc_reg_t reg, uint32 regval, soc_field_t field);
void soc_reg_field_set(int unit, soc_reg_t reg, uint32 *regval, soc_field_t field, uint32 value);
uint64 soc_reg64_field_get(int unit, soc_reg_t reg, uint64 regval, soc_field_t field);
void soc_reg64_field_set(int unit, soc_reg_t reg, uint64 *regval, soc_field_t field, uint64 value);
uint32 soc_reg64_field32_get(int unit, soc_reg_t reg, uint64 regval, soc_field_t field);
void soc_reg64_field32_set(int unit, soc_reg_t reg, uint64 *regval, soc_field_t field,
                           uint32 value);
void soc_reg_above_64_field_get(int unit, soc_reg_t reg, unsigned int regval[20], soc_field_t field,
                                unsigned int field_val[20]);
void soc_reg_above_64_field_set(int unit, soc_reg_t reg, unsigned int regval[20], soc_field_t field,
                                unsigned int const value[20]);
uint32 soc_reg_above_64_field32_get(int unit, soc_reg_t reg, unsigned int regval[20],
                                    soc_field_t field);
void soc_reg_above_64_field32_set(int unit, soc_reg_t reg, unsigned int regval[20],
                                  soc_field_t field, uint32 value);
uint64 soc_reg_above_64_field64_get(int unit, soc_reg_t reg, unsigned int regval[20],
                                    soc_field_t field);
void soc_reg_above_64_field64_set(int unit, soc_reg_t reg, unsigned int regval[20],
                                  soc_field_t field, uint64 value);

/* Fields of the register itself */
int soc_reg_above_64_field_read(int unit, soc_reg_t reg, soc_port_t port, int index,
                                soc_field_t field, unsigned int out_field_val[20]);
int soc_reg_above_64_field32_read(int unit, soc_reg_t reg, soc_port_t port, int index,
                                  soc_field_t field, uint32 *out_field_val);
int soc_reg_above_64_field64_read(int unit, soc_reg_t reg, soc_port_t port, int index,
                                  soc_field_t field, uint64 *out_field_val);
int soc_reg_field32_modify(int unit, soc_reg_t reg, soc_port_t port, soc_field_t field,
                           uint32 value);
int soc_reg_fields32_modify(int unit, soc_reg_t reg, soc_port_t port, int field_count,
                            soc_field_t *fields, uint32 *values);
int soc_reg_above_64_field32_modify(int unit, soc_reg_t reg, soc_port_t port, int index,
                                    soc_field_t field, uint32 value);
int soc_reg_above_64_field64_modify(int unit, soc_reg_t reg, soc_port_t port, int index,
                                    soc_field_t field, uint64 value);

/* Properties of a field */
int soc_reg_field_length(int unit, soc_reg_t reg, soc_field_t field);
int soc_reg_field_valid(int unit, soc_reg_t reg, soc_field_t field);
int soc_reg_field_validate(int unit, soc_reg_t reg, soc_field_t field, uint32 value);
int soc_reg64_field_validate(int unit, soc_reg_t reg, soc_field_t field, uint64 value);
int soc_reg_signed_field_mask(int unit, soc_reg_t reg, soc_field_t field, int32 value_in,
                              uint32 *value_out);

/* Descriptions and addresses */
uint32 soc_reg_addr(int unit, soc_reg_t reg, int port, int index);
uint32 soc_reg_addr_get(int unit, soc_reg_t reg, int port, int index, uint32 options, int *blk,
                        uint8 *acc_type);
int soc_reg_bytes(int unit, soc_reg_t reg);
uint32 soc_reg_datamask(int unit, soc_reg_t reg, int flags);
uint64 soc_reg64_datamask(int unit, soc_reg_t reg, int flags);
void soc_reg_above_64_datamask(int unit, soc_reg_t reg, int flags, unsigned int datamask[20]);
int soc_reg_port_idx_valid(int unit, soc_reg_t reg, soc_port_t port, int idx);
void soc_regaddrinfo_get(int unit, soc_regaddrinfo_t *ainfo, uint32 addr);
void soc_regaddrinfo_extended_get(int unit, soc_regaddrinfo_t *ainfo, soc_block_t block,
                                  int acc_type, uint32 addr);
int soc_regaddrlist_alloc(soc_regaddrlist_t *addrlist);
int soc_regaddrlist_free(soc_regaddrlist_t *addrlist);
int soc_reg_iterate(int unit, soc_reg_iter_f do_it, void *data);
void soc_reg_sprint_addr(int unit, char *bp, soc_regaddrinfo_t *ainfo);
void soc_reg_sprint_data(int unit, char *bp, char *infix, soc_reg_t reg, uint32 value);
int reg_mask_subset(int unit, soc_regaddrinfo_t *ainfo, uint64 *mask);
int rval_test_skip_reg(int unit, soc_regaddrinfo_t *ainfo, reg_data_t *rd);

/* Observers and overrides */
void soc_reg_snoop_register(int unit, soc_reg_t reg, uint32 flags, soc_reg_snoop_cb_t snoop_cb,
                            void *user_data);
void soc_reg_snoop_unregister(int unit, soc_reg_t reg);
void soc_reg_watch_set(int unit, int value);
int soc_reg_access_func_register(int unit, soc_reg_access_t *reg_access);

OMBRA_END_DECLS
