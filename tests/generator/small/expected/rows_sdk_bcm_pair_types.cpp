// Made from platform/sdk/bcm/pair_types.h by generator/emit/emit_rows.cpp. Do not edit.
#include "classes/accessor.h"
#include "convert/append_frame.h"
#include "convert/frame.h"
#include "generated/entries.h"
#include "generated/type_slots.h"
#include "runtime/client_data.h"

#include "sdk/bcm/pair_types.h"

using namespace ombra;

static_assert(sizeof(tiny_pair_t) == 8 && alignof(tiny_pair_t) == 4);
static_assert(offsetof(tiny_pair_t, first) == 0);
static_assert(offsetof(tiny_pair_t, second) == 4);

static constexpr FieldRow row_tiny_pair_t_first_set{
    {"tiny_pair_t_first_set",
     "invalid null reference in method 'tiny_pair_t_first_set', argument 1 of type 'tiny_pair_s *'\0"
      "in method 'tiny_pair_t_first_set', argument 2 of type 'int'"},
    {0, slots::_p_tiny_pair_s, 0}, 1, 0, 4};
PyObject *_wrap_tiny_pair_t_first_set(PyObject *, PyObject *args) {
    return set_value<Signed32>(row_tiny_pair_t_first_set, args);
}

static constexpr FieldRow row_tiny_pair_t_first_get{
    {"tiny_pair_t_first_get",
     "invalid null reference in method 'tiny_pair_t_first_get', argument 1 of type 'tiny_pair_s *'"},
    {0, slots::_p_tiny_pair_s, 0}, 1, 0, 4};
PyObject *_wrap_tiny_pair_t_first_get(PyObject *, PyObject *args) {
    return get_value<Signed32>(row_tiny_pair_t_first_get, args);
}

static constexpr FieldRow row_tiny_pair_t_second_set{
    {"tiny_pair_t_second_set",
     "invalid null reference in method 'tiny_pair_t_second_set', argument 1 of type 'tiny_pair_s *'\0"
      "in method 'tiny_pair_t_second_set', argument 2 of type 'uint16'"},
    {0, slots::_p_tiny_pair_s, 0}, 1, 4, 2};
PyObject *_wrap_tiny_pair_t_second_set(PyObject *, PyObject *args) {
    return set_value<Unsigned16>(row_tiny_pair_t_second_set, args);
}

static constexpr FieldRow row_tiny_pair_t_second_get{
    {"tiny_pair_t_second_get",
     "invalid null reference in method 'tiny_pair_t_second_get', argument 1 of type 'tiny_pair_s *'"},
    {0, slots::_p_tiny_pair_s, 0}, 1, 4, 2};
PyObject *_wrap_tiny_pair_t_second_get(PyObject *, PyObject *args) {
    return get_value<Unsigned16>(row_tiny_pair_t_second_get, args);
}

static constexpr Record<CallRow, 1> row_new_tiny_pair_t{{"new_tiny_pair_t", ""},
    {slots::_p_tiny_pair_s}};
PyObject *_wrap_new_tiny_pair_t(PyObject *, PyObject *args) {
    return new_struct(row_new_tiny_pair_t, args, 8);
}

static constexpr Record<CallRow, 2> row_delete_tiny_pair_t{
    {"delete_tiny_pair_t",
     "in method 'delete_tiny_pair_t', argument 1 of type 'tiny_pair_s *'"},
    {0, slots::_p_tiny_pair_s}};
PyObject *_wrap_delete_tiny_pair_t(PyObject *, PyObject *args) {
    return delete_struct(row_delete_tiny_pair_t, args);
}

PyObject *tiny_pair_t_swigregister(PyObject *, PyObject *args) {
    return SWIG_Python_RegisterClass(swig_type_slots[slots::_p_tiny_pair_s], args);
}

