// Made from catalogue/helpers.txt by generator/emit/emit_helpers.cpp. Do not edit.
#include "classes/boxes.h"
#include "generated/entries.h"
#include "generated/type_slots.h"
#include "runtime/client_data.h"

using namespace ombra;

static constexpr CallRow row_new_tinyPairs{
    "new_tinyPairs",
    "in method 'new_tinyPairs', argument 1 of type 'int'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, slots::_p_tiny_pair_s}};
PyObject *_wrap_new_tinyPairs(PyObject *, PyObject *args) {
    return new_array<ByValue<8, 4>>(row_new_tinyPairs, args);
}

static constexpr CallRow row_delete_tinyPairs{
    "delete_tinyPairs",
    "in method 'delete_tinyPairs', argument 1 of type 'tiny_pair_t *'",
    {slots::_p_tiny_pair_s, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_delete_tinyPairs(PyObject *, PyObject *args) {
    return delete_array<ByValue<8, 4>>(row_delete_tinyPairs, args);
}

static constexpr CallRow row_tinyPairs_getitem{
    "tinyPairs_getitem",
    "invalid null reference in method 'tinyPairs_getitem', argument 1 of type 'tiny_pair_t *'\0"
    "in method 'tinyPairs_getitem', argument 2 of type 'int'",
    {slots::_p_tiny_pair_s, 0, 0, 0, 0, 0, 0, 0, 0, slots::_p_tiny_pair_s}};
PyObject *_wrap_tinyPairs_getitem(PyObject *, PyObject *args) {
    return get_item<ByValue<8, 4>>(row_tinyPairs_getitem, args);
}

static constexpr CallRow row_tinyPairs_setitem{
    "tinyPairs_setitem",
    "invalid null reference in method 'tinyPairs_setitem', argument 1 of type 'tiny_pair_t *'\0"
    "in method 'tinyPairs_setitem', argument 2 of type 'int'\0"
    "invalid null reference in method 'tinyPairs_setitem', argument 3 of type 'tiny_pair_t'",
    {slots::_p_tiny_pair_s, 0, slots::_p_tiny_pair_s, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_tinyPairs_setitem(PyObject *, PyObject *args) {
    return set_item<ByValue<8, 4>>(row_tinyPairs_setitem, args);
}

static constexpr CallRow row_new_intp{
    "new_intp",
    "",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, slots::_p_intp}};
PyObject *_wrap_new_intp(PyObject *, PyObject *args) {
    return new_box<Signed32>(row_new_intp, args);
}

static constexpr CallRow row_delete_intp{
    "delete_intp",
    "in method 'delete_intp', argument 1 of type 'intp *'",
    {slots::_p_intp, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_delete_intp(PyObject *, PyObject *args) {
    return delete_struct(row_delete_intp, args);
}

static constexpr CallRow row_intp_assign{
    "intp_assign",
    "invalid null reference in method 'intp_assign', argument 1 of type 'intp *'\0"
    "in method 'intp_assign', argument 2 of type 'int'",
    {slots::_p_intp, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_intp_assign(PyObject *, PyObject *args) {
    return assign_box<Signed32>(row_intp_assign, args);
}

static constexpr CallRow row_intp_value{
    "intp_value",
    "invalid null reference in method 'intp_value', argument 1 of type 'intp *'",
    {slots::_p_intp, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_intp_value(PyObject *, PyObject *args) {
    return box_value<Signed32>(row_intp_value, args);
}

static constexpr CallRow row_intp_cast{
    "intp_cast",
    "in method 'intp_cast', argument 1 of type 'intp *'",
    {slots::_p_intp, 0, 0, 0, 0, 0, 0, 0, 0, slots::_p_int}};
PyObject *_wrap_intp_cast(PyObject *, PyObject *args) {
    return recast(row_intp_cast, args);
}

static constexpr CallRow row_intp_frompointer{
    "intp_frompointer",
    "in method 'intp_frompointer', argument 1 of type 'int *'",
    {slots::_p_int, 0, 0, 0, 0, 0, 0, 0, 0, slots::_p_intp}};
PyObject *_wrap_intp_frompointer(PyObject *, PyObject *args) {
    return recast(row_intp_frompointer, args);
}

PyObject *intp_swigregister(PyObject *, PyObject *args) {
    return SWIG_Python_RegisterClass(swig_type_slots[slots::_p_intp], args);
}

