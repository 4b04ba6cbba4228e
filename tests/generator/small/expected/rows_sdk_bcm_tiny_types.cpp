// Made from platform/sdk/bcm/tiny_types.h by generator/emit/emit_rows.cpp. Do not edit.
#include "classes/accessor.h"
#include "convert/append_frame.h"
#include "convert/frame.h"
#include "generated/entries.h"
#include "generated/type_slots.h"
#include "runtime/client_data.h"

#include "sdk/bcm/tiny_types.h"

using namespace ombra;

static_assert(sizeof(tiny_pair_t) == 8 && alignof(tiny_pair_t) == 4);
static_assert(offsetof(tiny_pair_t, first) == 0);
static_assert(offsetof(tiny_pair_t, second) == 4);

static_assert(sizeof(tiny_all_t) == 240 && alignof(tiny_all_t) == 8);
static_assert(offsetof(tiny_all_t, s8) == 0);
static_assert(offsetof(tiny_all_t, s16) == 2);
static_assert(offsetof(tiny_all_t, color) == 4);
static_assert(offsetof(tiny_all_t, u8) == 8);
static_assert(offsetof(tiny_all_t, u16) == 10);
static_assert(offsetof(tiny_all_t, u32) == 12);
static_assert(offsetof(tiny_all_t, u64) == 16);
static_assert(offsetof(tiny_all_t, address) == 24);
static_assert(offsetof(tiny_all_t, yes) == 28);
static_assert(offsetof(tiny_all_t, name) == 32);
static_assert(offsetof(tiny_all_t, label) == 40);
static_assert(offsetof(tiny_all_t, mac) == 48);
static_assert(offsetof(tiny_all_t, ports) == 56);
static_assert(offsetof(tiny_all_t, vector) == 128);
static_assert(offsetof(tiny_all_t, tags) == 136);
static_assert(offsetof(tiny_all_t, pair) == 152);
static_assert(offsetof(tiny_all_t, pairs) == 160);
static_assert(offsetof(tiny_all_t, next) == 192);
static_assert(offsetof(tiny_all_t, cookie) == 200);
static_assert(offsetof(tiny_all_t, callback) == 208);
static_assert(offsetof(tiny_all_t, opaque) == 216);

static_assert(sizeof(tiny_any) == 8 && alignof(tiny_any) == 8);
static_assert(offsetof(tiny_any, low) == 0);
static_assert(offsetof(tiny_any, whole) == 0);

static constexpr FieldRow row_tiny_pair_t_first_set{
    {"tiny_pair_t_first_set",
     "invalid null reference in method 'tiny_pair_t_first_set', argument 1 of type 'tiny_pair_s *'\0"
    "in method 'tiny_pair_t_first_set', argument 2 of type 'int'",
     {slots::_p_tiny_pair_s, 0}},
    0, 4, 1};
PyObject *_wrap_tiny_pair_t_first_set(PyObject *, PyObject *args) {
    return set_value<Signed32>(row_tiny_pair_t_first_set, args);
}

static constexpr FieldRow row_tiny_pair_t_first_get{
    {"tiny_pair_t_first_get",
     "invalid null reference in method 'tiny_pair_t_first_get', argument 1 of type 'tiny_pair_s *'",
     {slots::_p_tiny_pair_s, 0}},
    0, 4, 1};
PyObject *_wrap_tiny_pair_t_first_get(PyObject *, PyObject *args) {
    return get_value<Signed32>(row_tiny_pair_t_first_get, args);
}

static constexpr FieldRow row_tiny_pair_t_second_set{
    {"tiny_pair_t_second_set",
     "invalid null reference in method 'tiny_pair_t_second_set', argument 1 of type 'tiny_pair_s *'\0"
    "in method 'tiny_pair_t_second_set', argument 2 of type 'uint16'",
     {slots::_p_tiny_pair_s, 0}},
    4, 2, 1};
PyObject *_wrap_tiny_pair_t_second_set(PyObject *, PyObject *args) {
    return set_value<Unsigned16>(row_tiny_pair_t_second_set, args);
}

static constexpr FieldRow row_tiny_pair_t_second_get{
    {"tiny_pair_t_second_get",
     "invalid null reference in method 'tiny_pair_t_second_get', argument 1 of type 'tiny_pair_s *'",
     {slots::_p_tiny_pair_s, 0}},
    4, 2, 1};
PyObject *_wrap_tiny_pair_t_second_get(PyObject *, PyObject *args) {
    return get_value<Unsigned16>(row_tiny_pair_t_second_get, args);
}

static constexpr CallRow row_new_tiny_pair_t{"new_tiny_pair_t", "", {0, 0, 0, 0, 0, 0, 0, 0, 0, slots::_p_tiny_pair_s}};
PyObject *_wrap_new_tiny_pair_t(PyObject *, PyObject *args) {
    return new_struct(row_new_tiny_pair_t, args, 8);
}

static constexpr CallRow row_delete_tiny_pair_t{
    "delete_tiny_pair_t",
    "in method 'delete_tiny_pair_t', argument 1 of type 'tiny_pair_s *'",
    {slots::_p_tiny_pair_s, 0, 0, 0, 0, 0, 0, 0, 0, slots::_p_tiny_pair_s}};
PyObject *_wrap_delete_tiny_pair_t(PyObject *, PyObject *args) {
    return delete_struct(row_delete_tiny_pair_t, args);
}

PyObject *tiny_pair_t_swigregister(PyObject *, PyObject *args) {
    return SWIG_Python_RegisterClass(swig_type_slots[slots::_p_tiny_pair_s], args);
}

static constexpr FieldRow row_tiny_all_t_s8_set{
    {"tiny_all_t_s8_set",
     "invalid null reference in method 'tiny_all_t_s8_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_s8_set', argument 2 of type 'int8'",
     {slots::_p_tiny_all_t, 0}},
    0, 1, 1};
PyObject *_wrap_tiny_all_t_s8_set(PyObject *, PyObject *args) {
    return set_value<Signed8>(row_tiny_all_t_s8_set, args);
}

static constexpr FieldRow row_tiny_all_t_s8_get{
    {"tiny_all_t_s8_get",
     "invalid null reference in method 'tiny_all_t_s8_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, 0}},
    0, 1, 1};
PyObject *_wrap_tiny_all_t_s8_get(PyObject *, PyObject *args) {
    return get_value<Signed8>(row_tiny_all_t_s8_get, args);
}

static constexpr FieldRow row_tiny_all_t_s16_set{
    {"tiny_all_t_s16_set",
     "invalid null reference in method 'tiny_all_t_s16_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_s16_set', argument 2 of type 'int16'",
     {slots::_p_tiny_all_t, 0}},
    2, 2, 1};
PyObject *_wrap_tiny_all_t_s16_set(PyObject *, PyObject *args) {
    return set_value<Signed16>(row_tiny_all_t_s16_set, args);
}

static constexpr FieldRow row_tiny_all_t_s16_get{
    {"tiny_all_t_s16_get",
     "invalid null reference in method 'tiny_all_t_s16_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, 0}},
    2, 2, 1};
PyObject *_wrap_tiny_all_t_s16_get(PyObject *, PyObject *args) {
    return get_value<Signed16>(row_tiny_all_t_s16_get, args);
}

static constexpr FieldRow row_tiny_all_t_color_set{
    {"tiny_all_t_color_set",
     "invalid null reference in method 'tiny_all_t_color_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_color_set', argument 2 of type 'tiny_color_t'",
     {slots::_p_tiny_all_t, 0}},
    4, 4, 1};
PyObject *_wrap_tiny_all_t_color_set(PyObject *, PyObject *args) {
    return set_value<Signed32>(row_tiny_all_t_color_set, args);
}

static constexpr FieldRow row_tiny_all_t_color_get{
    {"tiny_all_t_color_get",
     "invalid null reference in method 'tiny_all_t_color_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, 0}},
    4, 4, 1};
PyObject *_wrap_tiny_all_t_color_get(PyObject *, PyObject *args) {
    return get_value<Signed32>(row_tiny_all_t_color_get, args);
}

static constexpr FieldRow row_tiny_all_t_u8_set{
    {"tiny_all_t_u8_set",
     "invalid null reference in method 'tiny_all_t_u8_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_u8_set', argument 2 of type 'uint8'",
     {slots::_p_tiny_all_t, 0}},
    8, 1, 1};
PyObject *_wrap_tiny_all_t_u8_set(PyObject *, PyObject *args) {
    return set_value<Unsigned8>(row_tiny_all_t_u8_set, args);
}

static constexpr FieldRow row_tiny_all_t_u8_get{
    {"tiny_all_t_u8_get",
     "invalid null reference in method 'tiny_all_t_u8_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, 0}},
    8, 1, 1};
PyObject *_wrap_tiny_all_t_u8_get(PyObject *, PyObject *args) {
    return get_value<Unsigned8>(row_tiny_all_t_u8_get, args);
}

static constexpr FieldRow row_tiny_all_t_u16_set{
    {"tiny_all_t_u16_set",
     "invalid null reference in method 'tiny_all_t_u16_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_u16_set', argument 2 of type 'uint16'",
     {slots::_p_tiny_all_t, 0}},
    10, 2, 1};
PyObject *_wrap_tiny_all_t_u16_set(PyObject *, PyObject *args) {
    return set_value<Unsigned16>(row_tiny_all_t_u16_set, args);
}

static constexpr FieldRow row_tiny_all_t_u16_get{
    {"tiny_all_t_u16_get",
     "invalid null reference in method 'tiny_all_t_u16_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, 0}},
    10, 2, 1};
PyObject *_wrap_tiny_all_t_u16_get(PyObject *, PyObject *args) {
    return get_value<Unsigned16>(row_tiny_all_t_u16_get, args);
}

static constexpr FieldRow row_tiny_all_t_u32_set{
    {"tiny_all_t_u32_set",
     "invalid null reference in method 'tiny_all_t_u32_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_u32_set', argument 2 of type 'uint32'",
     {slots::_p_tiny_all_t, 0}},
    12, 4, 1};
PyObject *_wrap_tiny_all_t_u32_set(PyObject *, PyObject *args) {
    return set_value<Unsigned32>(row_tiny_all_t_u32_set, args);
}

static constexpr FieldRow row_tiny_all_t_u32_get{
    {"tiny_all_t_u32_get",
     "invalid null reference in method 'tiny_all_t_u32_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, 0}},
    12, 4, 1};
PyObject *_wrap_tiny_all_t_u32_get(PyObject *, PyObject *args) {
    return get_value<Unsigned32>(row_tiny_all_t_u32_get, args);
}

static constexpr FieldRow row_tiny_all_t_u64_set{
    {"tiny_all_t_u64_set",
     "invalid null reference in method 'tiny_all_t_u64_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_u64_set', argument 2 of type 'uint64'",
     {slots::_p_tiny_all_t, 0}},
    16, 8, 1};
PyObject *_wrap_tiny_all_t_u64_set(PyObject *, PyObject *args) {
    return set_value<Unsigned64>(row_tiny_all_t_u64_set, args);
}

static constexpr FieldRow row_tiny_all_t_u64_get{
    {"tiny_all_t_u64_get",
     "invalid null reference in method 'tiny_all_t_u64_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, 0}},
    16, 8, 1};
PyObject *_wrap_tiny_all_t_u64_get(PyObject *, PyObject *args) {
    return get_value<Unsigned64>(row_tiny_all_t_u64_get, args);
}

static constexpr FieldRow row_tiny_all_t_address_set{
    {"tiny_all_t_address_set",
     "invalid null reference in method 'tiny_all_t_address_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_address_set', argument 2 of type 'tiny_address_t'",
     {slots::_p_tiny_all_t, 0}},
    24, 4, 1};
PyObject *_wrap_tiny_all_t_address_set(PyObject *, PyObject *args) {
    return set_value<Address32>(row_tiny_all_t_address_set, args);
}

static constexpr FieldRow row_tiny_all_t_address_get{
    {"tiny_all_t_address_get",
     "invalid null reference in method 'tiny_all_t_address_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, 0}},
    24, 4, 1};
PyObject *_wrap_tiny_all_t_address_get(PyObject *, PyObject *args) {
    return get_value<Address32>(row_tiny_all_t_address_get, args);
}

static constexpr FieldRow row_tiny_all_t_yes_set{
    {"tiny_all_t_yes_set",
     "invalid null reference in method 'tiny_all_t_yes_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_yes_set', argument 2 of type 'bool'",
     {slots::_p_tiny_all_t, 0}},
    28, 1, 1};
PyObject *_wrap_tiny_all_t_yes_set(PyObject *, PyObject *args) {
    return set_value<StrictBool>(row_tiny_all_t_yes_set, args);
}

static constexpr FieldRow row_tiny_all_t_yes_get{
    {"tiny_all_t_yes_get",
     "invalid null reference in method 'tiny_all_t_yes_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, 0}},
    28, 1, 1};
PyObject *_wrap_tiny_all_t_yes_get(PyObject *, PyObject *args) {
    return get_value<StrictBool>(row_tiny_all_t_yes_get, args);
}

static constexpr FieldRow row_tiny_all_t_name_set{
    {"tiny_all_t_name_set",
     "invalid null reference in method 'tiny_all_t_name_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_name_set', argument 2 of type 'char *'",
     {slots::_p_tiny_all_t, 0}},
    32, 8, 1};
PyObject *_wrap_tiny_all_t_name_set(PyObject *, PyObject *args) {
    return set_text(row_tiny_all_t_name_set, args);
}

static constexpr FieldRow row_tiny_all_t_name_get{
    {"tiny_all_t_name_get",
     "invalid null reference in method 'tiny_all_t_name_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, 0}},
    32, 8, 1};
PyObject *_wrap_tiny_all_t_name_get(PyObject *, PyObject *args) {
    return get_text(row_tiny_all_t_name_get, args);
}

static constexpr FieldRow row_tiny_all_t_label_set{
    {"tiny_all_t_label_set",
     "invalid null reference in method 'tiny_all_t_label_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_label_set', argument 2 of type 'char const *'",
     {slots::_p_tiny_all_t, 0}},
    40, 8, 1};
PyObject *_wrap_tiny_all_t_label_set(PyObject *, PyObject *args) {
    return set_constant_text(row_tiny_all_t_label_set, args);
}

static constexpr FieldRow row_tiny_all_t_label_get{
    {"tiny_all_t_label_get",
     "invalid null reference in method 'tiny_all_t_label_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, 0}},
    40, 8, 1};
PyObject *_wrap_tiny_all_t_label_get(PyObject *, PyObject *args) {
    return get_text(row_tiny_all_t_label_get, args);
}

static constexpr FieldRow row_tiny_all_t_mac_set{
    {"tiny_all_t_mac_set",
     "invalid null reference in method 'tiny_all_t_mac_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_mac_set', argument 2 of type 'tiny_mac_t'",
     {slots::_p_tiny_all_t, 0}},
    48, 6, 1};
PyObject *_wrap_tiny_all_t_mac_set(PyObject *, PyObject *args) {
    return set_mac(row_tiny_all_t_mac_set, args);
}

static constexpr FieldRow row_tiny_all_t_mac_get{
    {"tiny_all_t_mac_get",
     "invalid null reference in method 'tiny_all_t_mac_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, 0}},
    48, 6, 1};
PyObject *_wrap_tiny_all_t_mac_get(PyObject *, PyObject *args) {
    return get_mac(row_tiny_all_t_mac_get, args);
}

static constexpr FieldRow row_tiny_all_t_ports_set{
    {"tiny_all_t_ports_set",
     "invalid null reference in method 'tiny_all_t_ports_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_ports_set', argument 2 of type 'tiny_pbmp_t'",
     {slots::_p_tiny_all_t, 0}},
    56, 72, 1};
PyObject *_wrap_tiny_all_t_ports_set(PyObject *, PyObject *args) {
    return set_value<PortBitmap>(row_tiny_all_t_ports_set, args);
}

static constexpr FieldRow row_tiny_all_t_ports_get{
    {"tiny_all_t_ports_get",
     "invalid null reference in method 'tiny_all_t_ports_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, 0}},
    56, 72, 1};
PyObject *_wrap_tiny_all_t_ports_get(PyObject *, PyObject *args) {
    return get_value<PortBitmap>(row_tiny_all_t_ports_get, args);
}

static constexpr FieldRow row_tiny_all_t_vector_set{
    {"tiny_all_t_vector_set",
     "invalid null reference in method 'tiny_all_t_vector_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_vector_set', argument 2 of type 'unsigned int [_SHR_BITDCLSIZE(tinyLast)]'\0"
    "invalid null reference in variable 'vector' of type 'unsigned int [_SHR_BITDCLSIZE(tinyLast)]'",
     {slots::_p_tiny_all_t, slots::_p_unsigned_int}},
    128, 4, 2};
PyObject *_wrap_tiny_all_t_vector_set(PyObject *, PyObject *args) {
    return set_array(row_tiny_all_t_vector_set, args);
}

static constexpr FieldRow row_tiny_all_t_vector_get{
    {"tiny_all_t_vector_get",
     "invalid null reference in method 'tiny_all_t_vector_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, slots::_p_unsigned_int}},
    128, 4, 2};
PyObject *_wrap_tiny_all_t_vector_get(PyObject *, PyObject *args) {
    return get_alias(row_tiny_all_t_vector_get, args);
}

static constexpr FieldRow row_tiny_all_t_tags_set{
    {"tiny_all_t_tags_set",
     "invalid null reference in method 'tiny_all_t_tags_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_tags_set', argument 2 of type 'uint16 [2][(4)]'\0"
    "invalid null reference in variable 'tags' of type 'uint16 [2][(4)]'",
     {slots::_p_tiny_all_t, slots::_p_a__4___unsigned_short}},
    136, 2, 8};
PyObject *_wrap_tiny_all_t_tags_set(PyObject *, PyObject *args) {
    return set_array(row_tiny_all_t_tags_set, args);
}

static constexpr FieldRow row_tiny_all_t_tags_get{
    {"tiny_all_t_tags_get",
     "invalid null reference in method 'tiny_all_t_tags_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, slots::_p_a__4___unsigned_short}},
    136, 2, 8};
PyObject *_wrap_tiny_all_t_tags_get(PyObject *, PyObject *args) {
    return get_alias(row_tiny_all_t_tags_get, args);
}

static constexpr FieldRow row_tiny_all_t_pair_set{
    {"tiny_all_t_pair_set",
     "invalid null reference in method 'tiny_all_t_pair_set', argument 1 of type 'tiny_all_t *'\0"
    "invalid null reference in method 'tiny_all_t_pair_set', argument 2 of type 'tiny_pair_t *'",
     {slots::_p_tiny_all_t, slots::_p_tiny_pair_s}},
    152, 8, 1};
PyObject *_wrap_tiny_all_t_pair_set(PyObject *, PyObject *args) {
    return set_copy(row_tiny_all_t_pair_set, args);
}

static constexpr FieldRow row_tiny_all_t_pair_get{
    {"tiny_all_t_pair_get",
     "invalid null reference in method 'tiny_all_t_pair_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, slots::_p_tiny_pair_s}},
    152, 8, 1};
PyObject *_wrap_tiny_all_t_pair_get(PyObject *, PyObject *args) {
    return get_alias(row_tiny_all_t_pair_get, args);
}

static constexpr FieldRow row_tiny_all_t_pairs_set{
    {"tiny_all_t_pairs_set",
     "invalid null reference in method 'tiny_all_t_pairs_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_pairs_set', argument 2 of type 'tiny_pair_t [TINY_PORTS]'\0"
    "invalid null reference in variable 'pairs' of type 'tiny_pair_t [TINY_PORTS]'",
     {slots::_p_tiny_all_t, slots::_p_tiny_pair_s}},
    160, 8, 4};
PyObject *_wrap_tiny_all_t_pairs_set(PyObject *, PyObject *args) {
    return set_array(row_tiny_all_t_pairs_set, args);
}

static constexpr FieldRow row_tiny_all_t_pairs_get{
    {"tiny_all_t_pairs_get",
     "invalid null reference in method 'tiny_all_t_pairs_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, slots::_p_tiny_pair_s}},
    160, 8, 4};
PyObject *_wrap_tiny_all_t_pairs_get(PyObject *, PyObject *args) {
    return get_alias(row_tiny_all_t_pairs_get, args);
}

static constexpr FieldRow row_tiny_all_t_next_set{
    {"tiny_all_t_next_set",
     "invalid null reference in method 'tiny_all_t_next_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_next_set', argument 2 of type 'tiny_pair_t *'",
     {slots::_p_tiny_all_t, slots::_p_tiny_pair_s}},
    192, 8, 1};
PyObject *_wrap_tiny_all_t_next_set(PyObject *, PyObject *args) {
    return set_pointer(row_tiny_all_t_next_set, args);
}

static constexpr FieldRow row_tiny_all_t_next_get{
    {"tiny_all_t_next_get",
     "invalid null reference in method 'tiny_all_t_next_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, slots::_p_tiny_pair_s}},
    192, 8, 1};
PyObject *_wrap_tiny_all_t_next_get(PyObject *, PyObject *args) {
    return get_pointer(row_tiny_all_t_next_get, args);
}

static constexpr FieldRow row_tiny_all_t_cookie_set{
    {"tiny_all_t_cookie_set",
     "invalid null reference in method 'tiny_all_t_cookie_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_cookie_set', argument 2 of type 'void *'",
     {slots::_p_tiny_all_t, slots::any_pointer}},
    200, 8, 1};
PyObject *_wrap_tiny_all_t_cookie_set(PyObject *, PyObject *args) {
    return set_pointer(row_tiny_all_t_cookie_set, args);
}

static constexpr FieldRow row_tiny_all_t_cookie_get{
    {"tiny_all_t_cookie_get",
     "invalid null reference in method 'tiny_all_t_cookie_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, slots::_p_void}},
    200, 8, 1};
PyObject *_wrap_tiny_all_t_cookie_get(PyObject *, PyObject *args) {
    return get_pointer(row_tiny_all_t_cookie_get, args);
}

static constexpr FieldRow row_tiny_all_t_callback_set{
    {"tiny_all_t_callback_set",
     "invalid null reference in method 'tiny_all_t_callback_set', argument 1 of type 'tiny_all_t *'\0"
    "in method 'tiny_all_t_callback_set', argument 2 of type 'tiny_cb'",
     {slots::_p_tiny_all_t, slots::_p_f_int_p_void__int}},
    208, 8, 1};
PyObject *_wrap_tiny_all_t_callback_set(PyObject *, PyObject *args) {
    return set_value<FunctionPointer>(row_tiny_all_t_callback_set, args);
}

static constexpr FieldRow row_tiny_all_t_callback_get{
    {"tiny_all_t_callback_get",
     "invalid null reference in method 'tiny_all_t_callback_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, slots::_p_f_int_p_void__int}},
    208, 8, 1};
PyObject *_wrap_tiny_all_t_callback_get(PyObject *, PyObject *args) {
    return get_pointer(row_tiny_all_t_callback_get, args);
}

static constexpr FieldRow row_tiny_all_t_opaque_set{
    {"tiny_all_t_opaque_set",
     "invalid null reference in method 'tiny_all_t_opaque_set', argument 1 of type 'tiny_all_t *'\0"
    "invalid null reference in method 'tiny_all_t_opaque_set', argument 2 of type 'tiny_opaque_t'",
     {slots::_p_tiny_all_t, slots::_p_tiny_opaque_t}},
    216, 24, 1};
PyObject *_wrap_tiny_all_t_opaque_set(PyObject *, PyObject *args) {
    return set_copy(row_tiny_all_t_opaque_set, args);
}

static constexpr FieldRow row_tiny_all_t_opaque_get{
    {"tiny_all_t_opaque_get",
     "invalid null reference in method 'tiny_all_t_opaque_get', argument 1 of type 'tiny_all_t *'",
     {slots::_p_tiny_all_t, slots::_p_tiny_opaque_t}},
    216, 24, 1};
PyObject *_wrap_tiny_all_t_opaque_get(PyObject *, PyObject *args) {
    return get_copy(row_tiny_all_t_opaque_get, args);
}

static constexpr CallRow row_new_tiny_all_t{"new_tiny_all_t", "", {0, 0, 0, 0, 0, 0, 0, 0, 0, slots::_p_tiny_all_t}};
PyObject *_wrap_new_tiny_all_t(PyObject *, PyObject *args) {
    return new_struct(row_new_tiny_all_t, args, 240);
}

static constexpr CallRow row_delete_tiny_all_t{
    "delete_tiny_all_t",
    "in method 'delete_tiny_all_t', argument 1 of type 'tiny_all_t *'",
    {slots::_p_tiny_all_t, 0, 0, 0, 0, 0, 0, 0, 0, slots::_p_tiny_all_t}};
PyObject *_wrap_delete_tiny_all_t(PyObject *, PyObject *args) {
    return delete_struct(row_delete_tiny_all_t, args);
}

PyObject *tiny_all_t_swigregister(PyObject *, PyObject *args) {
    return SWIG_Python_RegisterClass(swig_type_slots[slots::_p_tiny_all_t], args);
}

static constexpr FieldRow row_tiny_any_low_set{
    {"tiny_any_low_set",
     "invalid null reference in method 'tiny_any_low_set', argument 1 of type 'tiny_any *'\0"
    "in method 'tiny_any_low_set', argument 2 of type 'uint8'",
     {slots::_p_tiny_any, 0}},
    0, 1, 1};
PyObject *_wrap_tiny_any_low_set(PyObject *, PyObject *args) {
    return set_value<Unsigned8>(row_tiny_any_low_set, args);
}

static constexpr FieldRow row_tiny_any_low_get{
    {"tiny_any_low_get",
     "invalid null reference in method 'tiny_any_low_get', argument 1 of type 'tiny_any *'",
     {slots::_p_tiny_any, 0}},
    0, 1, 1};
PyObject *_wrap_tiny_any_low_get(PyObject *, PyObject *args) {
    return get_value<Unsigned8>(row_tiny_any_low_get, args);
}

static constexpr FieldRow row_tiny_any_whole_set{
    {"tiny_any_whole_set",
     "invalid null reference in method 'tiny_any_whole_set', argument 1 of type 'tiny_any *'\0"
    "in method 'tiny_any_whole_set', argument 2 of type 'uint64'",
     {slots::_p_tiny_any, 0}},
    0, 8, 1};
PyObject *_wrap_tiny_any_whole_set(PyObject *, PyObject *args) {
    return set_value<Unsigned64>(row_tiny_any_whole_set, args);
}

static constexpr FieldRow row_tiny_any_whole_get{
    {"tiny_any_whole_get",
     "invalid null reference in method 'tiny_any_whole_get', argument 1 of type 'tiny_any *'",
     {slots::_p_tiny_any, 0}},
    0, 8, 1};
PyObject *_wrap_tiny_any_whole_get(PyObject *, PyObject *args) {
    return get_value<Unsigned64>(row_tiny_any_whole_get, args);
}

static constexpr CallRow row_new_tiny_any{"new_tiny_any", "", {0, 0, 0, 0, 0, 0, 0, 0, 0, slots::_p_tiny_any}};
PyObject *_wrap_new_tiny_any(PyObject *, PyObject *args) {
    return new_struct(row_new_tiny_any, args, 8);
}

static constexpr CallRow row_delete_tiny_any{
    "delete_tiny_any",
    "in method 'delete_tiny_any', argument 1 of type 'tiny_any *'",
    {slots::_p_tiny_any, 0, 0, 0, 0, 0, 0, 0, 0, slots::_p_tiny_any}};
PyObject *_wrap_delete_tiny_any(PyObject *, PyObject *args) {
    return delete_struct(row_delete_tiny_any, args);
}

PyObject *tiny_any_swigregister(PyObject *, PyObject *args) {
    return SWIG_Python_RegisterClass(swig_type_slots[slots::_p_tiny_any], args);
}

