// Made from catalogue/types.txt by generator/emit/emit_tables.cpp. Do not edit.
#include "runtime/type_table.h"

// Every cast passes the pointer unchanged: a twin is the same memory under another name.
static void *identity(void *pointer, int *) {
    return pointer;
}

static swig_type_info type_p_COMPILER_UINT64{"_p_COMPILER_UINT64", "uint64 *", nullptr, nullptr, nullptr, 0};
static swig_type_info type_p_a__4___uint16p{"_p_a__4___uint16p", nullptr, nullptr, nullptr, nullptr, 0};
static swig_type_info type_p_a__4___unsigned_short{"_p_a__4___unsigned_short", "uint16 (*)[(4)]", nullptr, nullptr, nullptr, 0};
static swig_type_info type_p_f_int_p_void__int{"_p_f_int_p_void__int", "int (*)(int,void *)|tiny_cb", nullptr, nullptr, nullptr, 0};
static swig_type_info type_p_f_int_p_void__intp{"_p_f_int_p_void__intp", nullptr, nullptr, nullptr, nullptr, 0};
static swig_type_info type_p_int{"_p_int", "int *|tiny_port_t *", nullptr, nullptr, nullptr, 0};
static swig_type_info type_p_intp{"_p_intp", "intp *", nullptr, nullptr, nullptr, 0};
static swig_type_info type_p_tiny_all_t{"_p_tiny_all_t", "tiny_all_t *", nullptr, nullptr, nullptr, 0};
static swig_type_info type_p_tiny_any{"_p_tiny_any", "tiny_any *", nullptr, nullptr, nullptr, 0};
static swig_type_info type_p_tiny_opaque_t{"_p_tiny_opaque_t", "tiny_opaque_t *", nullptr, nullptr, nullptr, 0};
static swig_type_info type_p_tiny_pair_s{"_p_tiny_pair_s", "tiny_pair_s *|tiny_pair_t *", nullptr, nullptr, nullptr, 0};
static swig_type_info type_p_uint16p{"_p_uint16p", nullptr, nullptr, nullptr, nullptr, 0};
static swig_type_info type_p_uintp{"_p_uintp", nullptr, nullptr, nullptr, nullptr, 0};
static swig_type_info type_p_unsigned_char{"_p_unsigned_char", "uint8 *|unsigned char *", nullptr, nullptr, nullptr, 0};
static swig_type_info type_p_unsigned_int{"_p_unsigned_int", "unsigned int *|uint32 *", nullptr, nullptr, nullptr, 0};
static swig_type_info type_p_unsigned_short{"_p_unsigned_short", "unsigned short *|uint16 *", nullptr, nullptr, nullptr, 0};
static swig_type_info type_p_void{"_p_void", "void *", nullptr, nullptr, nullptr, 0};
static swig_cast_link casts_p_COMPILER_UINT64[] = {{&type_p_COMPILER_UINT64, nullptr, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr}};
static swig_cast_link casts_p_a__4___uint16p[] = {{&type_p_a__4___uint16p, nullptr, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr}};
static swig_cast_link casts_p_a__4___unsigned_short[] = {{&type_p_a__4___uint16p, identity, nullptr, nullptr}, {&type_p_a__4___unsigned_short, nullptr, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr}};
static swig_cast_link casts_p_f_int_p_void__int[] = {{&type_p_f_int_p_void__int, nullptr, nullptr, nullptr}, {&type_p_f_int_p_void__intp, identity, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr}};
static swig_cast_link casts_p_f_int_p_void__intp[] = {{&type_p_f_int_p_void__intp, nullptr, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr}};
static swig_cast_link casts_p_int[] = {{&type_p_int, nullptr, nullptr, nullptr}, {&type_p_intp, identity, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr}};
static swig_cast_link casts_p_intp[] = {{&type_p_intp, nullptr, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr}};
static swig_cast_link casts_p_tiny_all_t[] = {{&type_p_tiny_all_t, nullptr, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr}};
static swig_cast_link casts_p_tiny_any[] = {{&type_p_tiny_any, nullptr, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr}};
static swig_cast_link casts_p_tiny_opaque_t[] = {{&type_p_tiny_opaque_t, nullptr, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr}};
static swig_cast_link casts_p_tiny_pair_s[] = {{&type_p_tiny_pair_s, nullptr, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr}};
static swig_cast_link casts_p_uint16p[] = {{&type_p_uint16p, nullptr, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr}};
static swig_cast_link casts_p_uintp[] = {{&type_p_uintp, nullptr, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr}};
static swig_cast_link casts_p_unsigned_char[] = {{&type_p_unsigned_char, nullptr, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr}};
static swig_cast_link casts_p_unsigned_int[] = {{&type_p_uintp, identity, nullptr, nullptr}, {&type_p_unsigned_int, nullptr, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr}};
static swig_cast_link casts_p_unsigned_short[] = {{&type_p_uint16p, identity, nullptr, nullptr}, {&type_p_unsigned_short, nullptr, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr}};
static swig_cast_link casts_p_void[] = {{&type_p_void, nullptr, nullptr, nullptr}, {nullptr, nullptr, nullptr, nullptr}};

swig_type_info *const swig_type_seeds[] = {
    &type_p_COMPILER_UINT64,
    &type_p_a__4___uint16p,
    &type_p_a__4___unsigned_short,
    &type_p_f_int_p_void__int,
    &type_p_f_int_p_void__intp,
    &type_p_int,
    &type_p_intp,
    &type_p_tiny_all_t,
    &type_p_tiny_any,
    &type_p_tiny_opaque_t,
    &type_p_tiny_pair_s,
    &type_p_uint16p,
    &type_p_uintp,
    &type_p_unsigned_char,
    &type_p_unsigned_int,
    &type_p_unsigned_short,
    &type_p_void,
};

swig_cast_link *const swig_cast_seeds[] = {
    casts_p_COMPILER_UINT64,
    casts_p_a__4___uint16p,
    casts_p_a__4___unsigned_short,
    casts_p_f_int_p_void__int,
    casts_p_f_int_p_void__intp,
    casts_p_int,
    casts_p_intp,
    casts_p_tiny_all_t,
    casts_p_tiny_any,
    casts_p_tiny_opaque_t,
    casts_p_tiny_pair_s,
    casts_p_uint16p,
    casts_p_uintp,
    casts_p_unsigned_char,
    casts_p_unsigned_int,
    casts_p_unsigned_short,
    casts_p_void,
};

swig_type_info *swig_type_slots[18];

swig_module_table swig_module{swig_type_slots, 17, nullptr, nullptr, nullptr, nullptr};
