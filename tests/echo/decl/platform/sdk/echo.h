/* Echo: one row for every kind and shape. Each notes what it got, and gives it back where it can.
 */
#pragma once
#include "sdk/echo_types.h"

OMBRA_BEGIN_DECLS

int8 echo_int8(int8 value);
int16 echo_int16(int16 value);
int echo_int(int value);
echo_color_t echo_color(echo_color_t value);
uint8 echo_uint8(uint8 value);
uint16 echo_uint16(uint16 value);
uint32 echo_uint32(uint32 value);
uint64 echo_uint64(uint64 value);
echo_address_t echo_address(echo_address_t value);
bool echo_bool(bool value);
int echo_ulong(unsigned long value);

char *echo_text(char *value);
char const *echo_constant_text(char const *value);
echo_pair_t *echo_pointer(echo_pair_t *value);
int *echo_number_pointer(int *value);
uint16 const *echo_constant_pointer(uint16 const *value);
void *echo_any_pointer(void *value);
echo_cb echo_callback(echo_cb value);
int echo_array(int value[4]);

echo_byte_t echo_byte(echo_byte_t value);
echo_half_t echo_half(echo_half_t value);
echo_word_t echo_word(echo_word_t value);
echo_pair_t echo_pair(echo_pair_t value);
echo_three_t echo_three(echo_three_t value);
echo_two_t echo_two(echo_two_t value);
echo_large_t echo_large(echo_large_t value);
echo_opaque_cb_t echo_opaque_callback(echo_opaque_cb_t value);
bcm_pbmp_t echo_ports(bcm_pbmp_t value);
int echo_mac(echo_mac_t value);

/* Shapes: none, no result, nine of different width and passing class, a hidden output. */
int echo_none(void);
void echo_nothing(void);
int echo_nine(int8 s8, uint64 u64, echo_large_t large, bool yes, char const *text, echo_two_t two,
              uint16 u16, bcm_pbmp_t ports, int s32);
int echo_macs(echo_mac_t first, echo_mac_t second);
int echo_append(int number, int *doubled);

/* Neighbours: an object that changes another argument while it is converted. */
int echo_pointer_ports(echo_pair_t *pointer, bcm_pbmp_t ports);
int echo_ports_pointer(bcm_pbmp_t ports, echo_pair_t *pointer);

OMBRA_END_DECLS
