/* Text and buffers: searching, replacing, long numbers, packet buffers and dumps. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/l2_types.h"

OMBRA_BEGIN_DECLS

/* Text */
char const *strcaseindex(char const *s, char const *sub);
char *strrepl(char *s, int start, int len, char const *repstr);
void tabify_line(char *out, char *, int tab_width);
int i2xdigit(int digit);
int xdigit2i(int digit);
char *mod_port_name(int unit, int modid, int port);

/* Long numbers */
void add_long_integer(uint32 *dst, uint32 *src, int nval);
void sub_long_integer(uint32 *dst, uint32 *src, int nval);
void neg_long_integer(uint32 *dst, int nval);

/* Packet buffers */
uint32 packet_load(uint8 *addr, int size);
uint32 packet_store(uint8 *buf, int size, uint32 val, uint32 inc);
void packet_random_store(uint8 *buf, int size);
int packet_compare(uint8 *p1, uint8 *p2, int size);

/* Dumps */
void dump_l2_addr(int unit, char *pfx, bcm_l2_addr_t *l2addr);
void dump_l2_cache_addr(int unit, char *pfx, bcm_l2_cache_addr_t *l2caddr);

OMBRA_END_DECLS
