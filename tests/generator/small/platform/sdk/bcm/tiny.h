/* Tiny: one row of every shape of argument and result. */
#pragma once
#include "sdk/bcm/tiny_types.h"

OMBRA_BEGIN_DECLS

int tiny_none(void);
void tiny_scalars(int8 a, int16 b, tiny_color_t c, uint8 d, uint16 e, uint32 f, uint64 g, bool h);
int tiny_unnamed(int, tiny_pair_t *);
int tiny_pointers(char const *text, tiny_pair_t *pair, uint16 const *tags, void *any, tiny_cb cb);
int tiny_values(tiny_pair_t pair, tiny_opaque_t opaque, tiny_mac_t mac, tiny_pbmp_t ports);
int tiny_arrays(int unit, unsigned int words[2], int const weights[8]);
int tiny_wide(unsigned long number);
uint64 tiny_long(tiny_address_t address);
char *tiny_text(int unit);
bool tiny_truth(int unit);
tiny_opaque_t tiny_value(int unit);
tiny_pair_t *tiny_pointer(int unit);

int tiny_speed_set(int unit, tiny_port_t port, int speed);
int tiny_speed_get(int unit, tiny_port_t port, int *speed);
int tiny_list_set(int unit, int count, int *list);
int tiny_list_get(int unit, int max, int *list, int *count);
int tiny_create(int unit, int *id);

OMBRA_END_DECLS
