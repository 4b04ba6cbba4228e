/* Packets: allocating bcm_pkt_t objects and filling their blocks. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/pkt_types.h"

OMBRA_BEGIN_DECLS

void bcm_pkt_blk_t_init(bcm_pkt_blk_t *blk);
int bcm_pkt_clear(int unit, bcm_pkt_t *pkt, bcm_pkt_blk_t *blks, int blk_count, uint32 flags,
                  bcm_pkt_t **pkt_buf);
int bcm_pkt_alloc(int unit, int size, uint32 flags, bcm_pkt_t **pkt_buf);
int bcm_pkt_blk_alloc(int unit, int count, int size, uint32 flags, bcm_pkt_t ***pkt_array);
int bcm_pkt_blk_free(int unit, bcm_pkt_t **pkt_array, int count);
int bcm_pkt_byte_index(bcm_pkt_t *pkt, int offset, int *buf_index, int *buf_offset, uint8 **data);
void bcm_pkt_t_init(bcm_pkt_t *pkt);
int bcm_pkt_flags_init(int unit, bcm_pkt_t *pkt, uint32 init_flags);
int bcm_pkt_flags_len_setup(int unit, bcm_pkt_t *pkt, int blk_count, int len, uint32 flags);
int bcm_pkt_free(int unit, bcm_pkt_t *pkt);
int bcm_pkt_memcpy(bcm_pkt_t *pkt, int offset, uint8 *src, int len);
int bcm_pkt_rx_alloc(int unit, int len, bcm_pkt_t **pkt);
int bcm_pkt_rx_free(int unit, bcm_pkt_t *pkt);

OMBRA_END_DECLS
