// Made from platform/sdk/bcm/tiny.h by generator/emit/emit_rows.cpp. Do not edit.
#include "classes/accessor.h"
#include "convert/append_frame.h"
#include "convert/frame.h"
#include "generated/entries.h"
#include "generated/type_slots.h"
#include "runtime/client_data.h"

#include "sdk/bcm/tiny.h"

using namespace ombra;

// tiny_none() -> int
static constexpr CallRow row_tiny_none{
    "tiny_none",
    "",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_tiny_none(PyObject *, PyObject *args) {
    using Shape = Call<Signed32()>;
    return Shape::run(row_tiny_none, Shape::native(&tiny_none), args);
}

// tiny_scalars(a, b, c, d, e, f, g, h)
static constexpr CallRow row_tiny_scalars{
    "tiny_scalars",
    "in method 'tiny_scalars', argument 1 of type 'int8'\0"
    "in method 'tiny_scalars', argument 2 of type 'int16'\0"
    "in method 'tiny_scalars', argument 3 of type 'tiny_color_t'\0"
    "in method 'tiny_scalars', argument 4 of type 'uint8'\0"
    "in method 'tiny_scalars', argument 5 of type 'uint16'\0"
    "in method 'tiny_scalars', argument 6 of type 'uint32'\0"
    "in method 'tiny_scalars', argument 7 of type 'uint64'\0"
    "in method 'tiny_scalars', argument 8 of type 'bool'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_tiny_scalars(PyObject *, PyObject *args) {
    using Shape = Call<Nothing(Signed8, Signed16, Signed32, Unsigned8, Unsigned16, Unsigned32, Unsigned64, StrictBool)>;
    return Shape::run(row_tiny_scalars, Shape::native(&tiny_scalars), args);
}

// tiny_unnamed(arg1, arg2) -> int
static constexpr CallRow row_tiny_unnamed{
    "tiny_unnamed",
    "in method 'tiny_unnamed', argument 1 of type 'int'\0"
    "in method 'tiny_unnamed', argument 2 of type 'tiny_pair_t *'",
    {0, slots::_p_tiny_pair_s, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_tiny_unnamed(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Pointer)>;
    return Shape::run(row_tiny_unnamed, Shape::native(&tiny_unnamed), args);
}

// tiny_pointers(text, pair, tags, any, cb) -> int
static constexpr CallRow row_tiny_pointers{
    "tiny_pointers",
    "in method 'tiny_pointers', argument 1 of type 'char const *'\0"
    "in method 'tiny_pointers', argument 2 of type 'tiny_pair_t *'\0"
    "in method 'tiny_pointers', argument 3 of type 'uint16 const *'\0"
    "in method 'tiny_pointers', argument 4 of type 'void *'\0"
    "in method 'tiny_pointers', argument 5 of type 'tiny_cb'",
    {0, slots::_p_tiny_pair_s, slots::_p_unsigned_short, slots::any_pointer, slots::_p_f_int_p_void__int, 0, 0, 0, 0, 0}};
PyObject *_wrap_tiny_pointers(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Text, Pointer, Pointer, Pointer, FunctionPointer)>;
    return Shape::run(row_tiny_pointers, Shape::native(&tiny_pointers), args);
}

// tiny_values(pair, opaque, mac, ports) -> int
static constexpr CallRow row_tiny_values{
    "tiny_values",
    "invalid null reference in method 'tiny_values', argument 1 of type 'tiny_pair_t'\0"
    "invalid null reference in method 'tiny_values', argument 2 of type 'tiny_opaque_t'\0"
    "in method 'tiny_values', argument 3 of type 'tiny_mac_t'\0"
    "in method 'tiny_values', argument 4 of type 'tiny_pbmp_t'",
    {slots::_p_tiny_pair_s, slots::_p_tiny_opaque_t, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_tiny_values(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(ByValue<8, 4>, ByValue<24, 4>, MacString, PortBitmap)>;
    return Shape::run(row_tiny_values, Shape::native(&tiny_values), args);
}

// tiny_arrays(unit, words, weights) -> int
static constexpr CallRow row_tiny_arrays{
    "tiny_arrays",
    "in method 'tiny_arrays', argument 1 of type 'int'\0"
    "in method 'tiny_arrays', argument 2 of type 'unsigned int [2]'\0"
    "in method 'tiny_arrays', argument 3 of type 'int const [8]'",
    {0, slots::_p_unsigned_int, slots::_p_int, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_tiny_arrays(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Pointer, Pointer)>;
    return Shape::run(row_tiny_arrays, Shape::native(&tiny_arrays), args);
}

// tiny_wide(number) -> int
static constexpr CallRow row_tiny_wide{
    "tiny_wide",
    "in method 'tiny_wide', argument 1 of type 'unsigned long'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_tiny_wide(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(UnsignedLong)>;
    return Shape::run(row_tiny_wide, Shape::native(&tiny_wide), args);
}

// tiny_long(address) -> uint64
static constexpr CallRow row_tiny_long{
    "tiny_long",
    "in method 'tiny_long', argument 1 of type 'tiny_address_t'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_tiny_long(PyObject *, PyObject *args) {
    using Shape = Call<Unsigned64(Address32)>;
    return Shape::run(row_tiny_long, Shape::native(&tiny_long), args);
}

// tiny_text(unit) -> char *
static constexpr CallRow row_tiny_text{
    "tiny_text",
    "in method 'tiny_text', argument 1 of type 'int'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_tiny_text(PyObject *, PyObject *args) {
    using Shape = Call<Text(Signed32)>;
    return Shape::run(row_tiny_text, Shape::native(&tiny_text), args);
}

// tiny_truth(unit) -> bool
static constexpr CallRow row_tiny_truth{
    "tiny_truth",
    "in method 'tiny_truth', argument 1 of type 'int'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_tiny_truth(PyObject *, PyObject *args) {
    using Shape = Call<StrictBool(Signed32)>;
    return Shape::run(row_tiny_truth, Shape::native(&tiny_truth), args);
}

// tiny_value(unit) -> tiny_opaque_t
static constexpr CallRow row_tiny_value{
    "tiny_value",
    "in method 'tiny_value', argument 1 of type 'int'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, slots::_p_tiny_opaque_t}};
PyObject *_wrap_tiny_value(PyObject *, PyObject *args) {
    using Shape = Call<ByValue<24, 4>(Signed32)>;
    return Shape::run(row_tiny_value, Shape::native(&tiny_value), args);
}

// tiny_pointer(unit) -> tiny_pair_t *
static constexpr CallRow row_tiny_pointer{
    "tiny_pointer",
    "in method 'tiny_pointer', argument 1 of type 'int'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, slots::_p_tiny_pair_s}};
PyObject *_wrap_tiny_pointer(PyObject *, PyObject *args) {
    using Shape = Call<Pointer(Signed32)>;
    return Shape::run(row_tiny_pointer, Shape::native(&tiny_pointer), args);
}

// tiny_speed_set(unit, port, speed) -> int
static constexpr CallRow row_tiny_speed_set{
    "tiny_speed_set",
    "in method 'tiny_speed_set', argument 1 of type 'int'\0"
    "in method 'tiny_speed_set', argument 2 of type 'tiny_port_t'\0"
    "in method 'tiny_speed_set', argument 3 of type 'int'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_tiny_speed_set(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Signed32, Signed32)>;
    return Shape::run(row_tiny_speed_set, Shape::native(&tiny_speed_set), args);
}

// tiny_speed_get(unit, port, speed) -> int
static constexpr CallRow row_tiny_speed_get{
    "tiny_speed_get",
    "in method 'tiny_speed_get', argument 1 of type 'int'\0"
    "in method 'tiny_speed_get', argument 2 of type 'tiny_port_t'\0"
    "in method 'tiny_speed_get', argument 3 of type 'int *'",
    {0, 0, slots::_p_int, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_tiny_speed_get(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Signed32, Pointer)>;
    return Shape::run(row_tiny_speed_get, Shape::native(&tiny_speed_get), args);
}

// tiny_list_set(unit, count, list) -> int
static constexpr CallRow row_tiny_list_set{
    "tiny_list_set",
    "in method 'tiny_list_set', argument 1 of type 'int'\0"
    "in method 'tiny_list_set', argument 2 of type 'int'\0"
    "in method 'tiny_list_set', argument 3 of type 'int *'",
    {0, 0, slots::_p_int, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_tiny_list_set(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Signed32, Pointer)>;
    return Shape::run(row_tiny_list_set, Shape::native(&tiny_list_set), args);
}

// tiny_list_get(unit, max, list, count) -> int
static constexpr CallRow row_tiny_list_get{
    "tiny_list_get",
    "in method 'tiny_list_get', argument 1 of type 'int'\0"
    "in method 'tiny_list_get', argument 2 of type 'int'\0"
    "in method 'tiny_list_get', argument 3 of type 'int *'\0"
    "in method 'tiny_list_get', argument 4 of type 'int *'",
    {0, 0, slots::_p_int, slots::_p_int, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_tiny_list_get(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Signed32, Pointer, Pointer)>;
    return Shape::run(row_tiny_list_get, Shape::native(&tiny_list_get), args);
}

// tiny_create(unit) -> int
static constexpr CallRow row_tiny_create{
    "tiny_create",
    "in method 'tiny_create', argument 1 of type 'int'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_tiny_create(PyObject *, PyObject *args) {
    using Shape = AppendCall<Signed32(Signed32)>;
    return Shape::run(row_tiny_create, Shape::native(&tiny_create), args);
}

