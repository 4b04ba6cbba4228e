// Made from platform/sdk/bcm/stg.h by generator/emit/emit_rows.cpp. Do not edit.
#include "classes/accessor.h"
#include "convert/append_frame.h"
#include "convert/frame.h"
#include "generated/entries.h"
#include "generated/type_slots.h"
#include "runtime/client_data.h"
#include "api/hand_rows.h"

#include "sdk/bcm/stg.h"

using namespace ombra;

// bcm_stg_init(unit) -> int
static constexpr CallRow row_bcm_stg_init{
    "bcm_stg_init",
    "in method 'bcm_stg_init', argument 1 of type 'int'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_bcm_stg_init(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32)>;
    return Shape::run(row_bcm_stg_init, Shape::native(&bcm_stg_init), args);
}

// bcm_stg_clear(unit) -> int
static constexpr CallRow row_bcm_stg_clear{
    "bcm_stg_clear",
    "in method 'bcm_stg_clear', argument 1 of type 'int'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_bcm_stg_clear(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32)>;
    return Shape::run(row_bcm_stg_clear, Shape::native(&bcm_stg_clear), args);
}

// bcm_stg_create(unit, stg_ptr) -> int
static constexpr CallRow row_bcm_stg_create{
    "bcm_stg_create",
    "in method 'bcm_stg_create', argument 1 of type 'int'\0"
    "in method 'bcm_stg_create', argument 2 of type 'bcm_stg_t *'",
    {0, slots::_p_int, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_bcm_stg_create(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Pointer)>;
    return Shape::run(row_bcm_stg_create, Shape::native(&bcm_stg_create), args);
}

// bcm_stg_create_id(unit, stg) -> int
static constexpr CallRow row_bcm_stg_create_id{
    "bcm_stg_create_id",
    "in method 'bcm_stg_create_id', argument 1 of type 'int'\0"
    "in method 'bcm_stg_create_id', argument 2 of type 'bcm_stg_t'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_bcm_stg_create_id(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Signed32)>;
    return Shape::run(row_bcm_stg_create_id, Shape::native(&bcm_stg_create_id), args);
}

// bcm_stg_destroy(unit, stg) -> int
static constexpr CallRow row_bcm_stg_destroy{
    "bcm_stg_destroy",
    "in method 'bcm_stg_destroy', argument 1 of type 'int'\0"
    "in method 'bcm_stg_destroy', argument 2 of type 'bcm_stg_t'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_bcm_stg_destroy(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Signed32)>;
    return Shape::run(row_bcm_stg_destroy, Shape::native(&bcm_stg_destroy), args);
}

// bcm_stg_count_get(unit, count) -> int
static constexpr CallRow row_bcm_stg_count_get{
    "bcm_stg_count_get",
    "in method 'bcm_stg_count_get', argument 1 of type 'int'\0"
    "in method 'bcm_stg_count_get', argument 2 of type 'int *'",
    {0, slots::_p_int, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_bcm_stg_count_get(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Pointer)>;
    return Shape::run(row_bcm_stg_count_get, Shape::native(&bcm_stg_count_get), args);
}

// bcm_stg_default_set(unit, stg) -> int
static constexpr CallRow row_bcm_stg_default_set{
    "bcm_stg_default_set",
    "in method 'bcm_stg_default_set', argument 1 of type 'int'\0"
    "in method 'bcm_stg_default_set', argument 2 of type 'bcm_stg_t'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_bcm_stg_default_set(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Signed32)>;
    return Shape::run(row_bcm_stg_default_set, Shape::native(&bcm_stg_default_set), args);
}

// bcm_stg_default_get(unit, stg) -> int
static constexpr CallRow row_bcm_stg_default_get{
    "bcm_stg_default_get",
    "in method 'bcm_stg_default_get', argument 1 of type 'int'\0"
    "in method 'bcm_stg_default_get', argument 2 of type 'bcm_stg_t *'",
    {0, slots::_p_int, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_bcm_stg_default_get(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Pointer)>;
    return Shape::run(row_bcm_stg_default_get, Shape::native(&bcm_stg_default_get), args);
}

// bcm_stg_list(unit) -> PyObject *
static constexpr CallRow row_bcm_stg_list{
    "bcm_stg_list",
    "in method 'bcm_stg_list', argument 1 of type 'int'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_bcm_stg_list(PyObject *, PyObject *args) {
    using Shape = Call<Object(Signed32)>;
    return Shape::run(row_bcm_stg_list, Shape::native(&ombra::rows::bcm_stg_list), args);
}

// bcm_stg_list_destroy(unit, list, count) -> int
static constexpr CallRow row_bcm_stg_list_destroy{
    "bcm_stg_list_destroy",
    "in method 'bcm_stg_list_destroy', argument 1 of type 'int'\0"
    "in method 'bcm_stg_list_destroy', argument 2 of type 'bcm_stg_t *'\0"
    "in method 'bcm_stg_list_destroy', argument 3 of type 'int'",
    {0, slots::_p_int, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_bcm_stg_list_destroy(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Pointer, Signed32)>;
    return Shape::run(row_bcm_stg_list_destroy, Shape::native(&bcm_stg_list_destroy), args);
}

// bcm_stg_stp_set(unit, stg, port, stp_state) -> int
static constexpr CallRow row_bcm_stg_stp_set{
    "bcm_stg_stp_set",
    "in method 'bcm_stg_stp_set', argument 1 of type 'int'\0"
    "in method 'bcm_stg_stp_set', argument 2 of type 'bcm_stg_t'\0"
    "in method 'bcm_stg_stp_set', argument 3 of type 'bcm_port_t'\0"
    "in method 'bcm_stg_stp_set', argument 4 of type 'int'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_bcm_stg_stp_set(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Signed32, Signed32, Signed32)>;
    return Shape::run(row_bcm_stg_stp_set, Shape::native(&bcm_stg_stp_set), args);
}

// bcm_stg_stp_get(unit, stg, port) -> PyObject *
static constexpr CallRow row_bcm_stg_stp_get{
    "bcm_stg_stp_get",
    "in method 'bcm_stg_stp_get', argument 1 of type 'int'\0"
    "in method 'bcm_stg_stp_get', argument 2 of type 'bcm_stg_t'\0"
    "in method 'bcm_stg_stp_get', argument 3 of type 'bcm_port_t'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_bcm_stg_stp_get(PyObject *, PyObject *args) {
    using Shape = Call<Object(Signed32, Signed32, Signed32)>;
    return Shape::run(row_bcm_stg_stp_get, Shape::native(&ombra::rows::bcm_stg_stp_get), args);
}

// bcm_stg_vlan_add(unit, stg, vid) -> int
static constexpr CallRow row_bcm_stg_vlan_add{
    "bcm_stg_vlan_add",
    "in method 'bcm_stg_vlan_add', argument 1 of type 'int'\0"
    "in method 'bcm_stg_vlan_add', argument 2 of type 'bcm_stg_t'\0"
    "in method 'bcm_stg_vlan_add', argument 3 of type 'bcm_vlan_t'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_bcm_stg_vlan_add(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Signed32, Unsigned16)>;
    return Shape::run(row_bcm_stg_vlan_add, Shape::native(&bcm_stg_vlan_add), args);
}

// bcm_stg_vlan_remove(unit, stg, vid) -> int
static constexpr CallRow row_bcm_stg_vlan_remove{
    "bcm_stg_vlan_remove",
    "in method 'bcm_stg_vlan_remove', argument 1 of type 'int'\0"
    "in method 'bcm_stg_vlan_remove', argument 2 of type 'bcm_stg_t'\0"
    "in method 'bcm_stg_vlan_remove', argument 3 of type 'bcm_vlan_t'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_bcm_stg_vlan_remove(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Signed32, Unsigned16)>;
    return Shape::run(row_bcm_stg_vlan_remove, Shape::native(&bcm_stg_vlan_remove), args);
}

// bcm_stg_vlan_remove_all(unit, stg) -> int
static constexpr CallRow row_bcm_stg_vlan_remove_all{
    "bcm_stg_vlan_remove_all",
    "in method 'bcm_stg_vlan_remove_all', argument 1 of type 'int'\0"
    "in method 'bcm_stg_vlan_remove_all', argument 2 of type 'bcm_stg_t'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_bcm_stg_vlan_remove_all(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Signed32)>;
    return Shape::run(row_bcm_stg_vlan_remove_all, Shape::native(&bcm_stg_vlan_remove_all), args);
}

// bcm_stg_vlan_list(unit, stg) -> PyObject *
static constexpr CallRow row_bcm_stg_vlan_list{
    "bcm_stg_vlan_list",
    "in method 'bcm_stg_vlan_list', argument 1 of type 'int'\0"
    "in method 'bcm_stg_vlan_list', argument 2 of type 'bcm_stg_t'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_bcm_stg_vlan_list(PyObject *, PyObject *args) {
    using Shape = Call<Object(Signed32, Signed32)>;
    return Shape::run(row_bcm_stg_vlan_list, Shape::native(&ombra::rows::bcm_stg_vlan_list), args);
}

// bcm_stg_vlan_list_destroy(unit, list, count) -> int
static constexpr CallRow row_bcm_stg_vlan_list_destroy{
    "bcm_stg_vlan_list_destroy",
    "in method 'bcm_stg_vlan_list_destroy', argument 1 of type 'int'\0"
    "in method 'bcm_stg_vlan_list_destroy', argument 2 of type 'bcm_vlan_t *'\0"
    "in method 'bcm_stg_vlan_list_destroy', argument 3 of type 'int'",
    {0, slots::_p_unsigned_short, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_bcm_stg_vlan_list_destroy(PyObject *, PyObject *args) {
    using Shape = Call<Signed32(Signed32, Pointer, Signed32)>;
    return Shape::run(row_bcm_stg_vlan_list_destroy, Shape::native(&bcm_stg_vlan_list_destroy), args);
}

