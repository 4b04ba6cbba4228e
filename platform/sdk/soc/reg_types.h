/* Registers: descriptions, addresses and access functions. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A register wider than 64 bits: its size, reset value and mask. */
typedef struct soc_large_reg_info_t {
    uint32 size;
    uint32 *reset;
    uint32 *mask;
} soc_reg_above_64_info_t;

/* The step from element to element of a register array. */
typedef struct {
    uint32 element_skip;
} soc_reg_array_info_t;

/* A register at an address. */
typedef struct {
    uint32 addr;
    int valid;
    soc_reg_t reg;
    int idx;
    soc_block_t block;
    soc_port_t port;
    soc_cos_t cos;
    int is_custom;
    uint8 acc_type;
    soc_field_t field;
} soc_regaddrinfo_t;

/* Told of each access to a snooped register. */
typedef void (*soc_reg_snoop_cb_t)(int unit, soc_reg_t reg, soc_regaddrinfo_t *ainfo, uint32 flags,
                                   uint32 data_hi, uint32 data_lo, void *user_data);

/* The description of a register. */
typedef struct {
    soc_block_types_t block;
    soc_regtype_t regtype;
    int numels;
    uint32 offset;
    uint32 flags;
    int nFields;
    soc_field_info_t *fields;
    uint32 rst_val_lo;
    uint32 rst_val_hi;
    uint32 rst_mask_lo;
    uint32 rst_mask_hi;
    int ctr_idx;
    int numelportlist_idx;
    uint32 access_latency_mode;
    soc_reg_snoop_cb_t snoop_cb;
    void *snoop_user_data;
    uint32 snoop_flags;
} soc_reg_info_t;

/* A list of registers. */
typedef struct {
    int count;
    soc_regaddrinfo_t *ainfo;
} soc_regaddrlist_t;

/* A range of ports with an index of its own. */
typedef struct {
    int f_idx;
    int l_idx;
    int pl_idx;
} soc_numelport_set_t;

/* Reads an entry of a memory. */
typedef int (*soc_mem_array_read_f)(int unit, soc_mem_t mem, uint32 array_index, int copyno,
                                    int index, void *entry_data);

/* Writes an entry of a memory. */
typedef int (*soc_mem_array_write_f)(int unit, soc_mem_t mem, uint32 array_index, int copyno,
                                     int index, void *entry_data);

/* Reads a register of 32 bits. */
typedef int (*soc_reg32_get_f)(int unit, soc_reg_t reg, int port, int index, uint32 *data);

/* Writes a register of 32 bits. */
typedef int (*soc_reg32_set_f)(int unit, soc_reg_t reg, int port, int index, uint32 data);

/* Reads a register of 64 bits. */
typedef int (*soc_reg64_get_f)(int unit, soc_reg_t reg, int port, int index, uint64 *data);

/* Writes a register of 64 bits. */
typedef int (*soc_reg64_set_f)(int unit, soc_reg_t reg, int port, int index, uint64 data);

/* Reads a wider register. */
typedef int (*soc_reg_above64_get_f)(int unit, soc_reg_t reg, int port, int index,
                                     soc_reg_above_64_val_t data);

/* Writes a wider register. */
typedef int (*soc_reg_above64_set_f)(int unit, soc_reg_t reg, int port, int index,
                                     soc_reg_above_64_val_t data);

/* The functions by which registers and memories are reached. */
typedef struct soc_reg_access_s {
    soc_reg32_get_f reg32_get;
    soc_reg64_get_f reg64_get;
    soc_reg_above64_get_f reg_above64_get;
    soc_reg32_set_f reg32_set;
    soc_reg64_set_f reg64_set;
    soc_reg_above64_set_f reg_above64_set;
    soc_mem_array_read_f mem_read;
    soc_mem_array_write_f mem_write;
} soc_reg_access_t;

/* The functions by which registers of chosen ports are reached. */
typedef struct soc_custom_reg_access_s {
    soc_reg32_get_f custom_reg32_get;
    soc_reg64_get_f custom_reg64_get;
    soc_reg_above64_get_f custom_reg_above64_get;
    soc_reg32_set_f custom_reg32_set;
    soc_reg64_set_f custom_reg64_set;
    soc_reg_above64_set_f custom_reg_above64_set;
    soc_pbmp_t custom_port_pbmp;
} soc_custom_reg_access_t;

/* The blocks that a broadcast write reaches. */
typedef struct soc_reg_brdc_block_info_s {
    soc_block_t blk_type;
    int blk_ids[128];
} soc_reg_brdc_block_info_t;

/* Called for each register. */
typedef int (*soc_reg_iter_f)(int unit, soc_regaddrinfo_t *ainfo, void *data);

OMBRA_END_DECLS
