// Made from generator/check/rows.cpp by generator/emit/emit_helpers.cpp. Do not edit.
#include "classes/boxes.h"
#include "generated/entries.h"
#include "runtime/client_data.h"

using namespace ombra;

static constexpr CallRow row_new_uint8Array{
    "new_uint8Array",
    "in method 'new_uint8Array', argument 1 of type 'int'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 15}};
PyObject *_wrap_new_uint8Array(PyObject *, PyObject *args) {
    return new_array<Unsigned8>(row_new_uint8Array, args);
}

static constexpr CallRow row_delete_uint8Array{
    "delete_uint8Array",
    "in method 'delete_uint8Array', argument 1 of type 'uint8 *'",
    {15, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_delete_uint8Array(PyObject *, PyObject *args) {
    return delete_array<Unsigned8>(row_delete_uint8Array, args);
}

static constexpr CallRow row_uint8Array_getitem{
    "uint8Array_getitem",
    "invalid null reference in method 'uint8Array_getitem', argument 1 of type 'uint8 *'\0"
    "in method 'uint8Array_getitem', argument 2 of type 'int'",
    {15, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_uint8Array_getitem(PyObject *, PyObject *args) {
    return get_item<Unsigned8>(row_uint8Array_getitem, args);
}

static constexpr CallRow row_uint8Array_setitem{
    "uint8Array_setitem",
    "invalid null reference in method 'uint8Array_setitem', argument 1 of type 'uint8 *'\0"
    "in method 'uint8Array_setitem', argument 2 of type 'int'\0"
    "in method 'uint8Array_setitem', argument 3 of type 'uint8'",
    {15, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_uint8Array_setitem(PyObject *, PyObject *args) {
    return set_item<Unsigned8>(row_uint8Array_setitem, args);
}

static constexpr CallRow row_new_entrydata{
    "new_entrydata",
    "in method 'new_entrydata', argument 1 of type 'int'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 16}};
PyObject *_wrap_new_entrydata(PyObject *, PyObject *args) {
    return new_array<Unsigned32>(row_new_entrydata, args);
}

static constexpr CallRow row_delete_entrydata{
    "delete_entrydata",
    "in method 'delete_entrydata', argument 1 of type 'unsigned int *'",
    {16, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_delete_entrydata(PyObject *, PyObject *args) {
    return delete_array<Unsigned32>(row_delete_entrydata, args);
}

static constexpr CallRow row_entrydata_getitem{
    "entrydata_getitem",
    "invalid null reference in method 'entrydata_getitem', argument 1 of type 'unsigned int *'\0"
    "in method 'entrydata_getitem', argument 2 of type 'int'",
    {16, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_entrydata_getitem(PyObject *, PyObject *args) {
    return get_item<Unsigned32>(row_entrydata_getitem, args);
}

static constexpr CallRow row_entrydata_setitem{
    "entrydata_setitem",
    "invalid null reference in method 'entrydata_setitem', argument 1 of type 'unsigned int *'\0"
    "in method 'entrydata_setitem', argument 2 of type 'int'\0"
    "in method 'entrydata_setitem', argument 3 of type 'unsigned int'",
    {16, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_entrydata_setitem(PyObject *, PyObject *args) {
    return set_item<Unsigned32>(row_entrydata_setitem, args);
}

static constexpr CallRow row_new_intp{
    "new_intp",
    "",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 6}};
PyObject *_wrap_new_intp(PyObject *, PyObject *args) {
    return new_box<Signed32>(row_new_intp, args);
}

static constexpr CallRow row_delete_intp{
    "delete_intp",
    "in method 'delete_intp', argument 1 of type 'intp *'",
    {6, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_delete_intp(PyObject *, PyObject *args) {
    return delete_struct(row_delete_intp, args);
}

static constexpr CallRow row_intp_assign{
    "intp_assign",
    "invalid null reference in method 'intp_assign', argument 1 of type 'intp *'\0"
    "in method 'intp_assign', argument 2 of type 'int'",
    {6, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_intp_assign(PyObject *, PyObject *args) {
    return assign_box<Signed32>(row_intp_assign, args);
}

static constexpr CallRow row_intp_value{
    "intp_value",
    "invalid null reference in method 'intp_value', argument 1 of type 'intp *'",
    {6, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_intp_value(PyObject *, PyObject *args) {
    return box_value<Signed32>(row_intp_value, args);
}

static constexpr CallRow row_intp_cast{
    "intp_cast",
    "in method 'intp_cast', argument 1 of type 'intp *'",
    {6, 0, 0, 0, 0, 0, 0, 0, 0, 5}};
PyObject *_wrap_intp_cast(PyObject *, PyObject *args) {
    return recast(row_intp_cast, args);
}

static constexpr CallRow row_intp_frompointer{
    "intp_frompointer",
    "in method 'intp_frompointer', argument 1 of type 'int *'",
    {5, 0, 0, 0, 0, 0, 0, 0, 0, 6}};
PyObject *_wrap_intp_frompointer(PyObject *, PyObject *args) {
    return recast(row_intp_frompointer, args);
}

PyObject *intp_swigregister(PyObject *, PyObject *args) {
    return SWIG_Python_RegisterClass(swig_type_slots[6], args);
}

static constexpr CallRow row_new_uint16p{
    "new_uint16p",
    "",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 11}};
PyObject *_wrap_new_uint16p(PyObject *, PyObject *args) {
    return new_box<Unsigned16>(row_new_uint16p, args);
}

static constexpr CallRow row_delete_uint16p{
    "delete_uint16p",
    "in method 'delete_uint16p', argument 1 of type 'uint16p *'",
    {11, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_delete_uint16p(PyObject *, PyObject *args) {
    return delete_struct(row_delete_uint16p, args);
}

static constexpr CallRow row_uint16p_assign{
    "uint16p_assign",
    "invalid null reference in method 'uint16p_assign', argument 1 of type 'uint16p *'\0"
    "in method 'uint16p_assign', argument 2 of type 'unsigned short'",
    {11, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_uint16p_assign(PyObject *, PyObject *args) {
    return assign_box<Unsigned16>(row_uint16p_assign, args);
}

static constexpr CallRow row_uint16p_value{
    "uint16p_value",
    "invalid null reference in method 'uint16p_value', argument 1 of type 'uint16p *'",
    {11, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_uint16p_value(PyObject *, PyObject *args) {
    return box_value<Unsigned16>(row_uint16p_value, args);
}

static constexpr CallRow row_uint16p_cast{
    "uint16p_cast",
    "in method 'uint16p_cast', argument 1 of type 'uint16p *'",
    {11, 0, 0, 0, 0, 0, 0, 0, 0, 17}};
PyObject *_wrap_uint16p_cast(PyObject *, PyObject *args) {
    return recast(row_uint16p_cast, args);
}

static constexpr CallRow row_uint16p_frompointer{
    "uint16p_frompointer",
    "in method 'uint16p_frompointer', argument 1 of type 'unsigned short *'",
    {17, 0, 0, 0, 0, 0, 0, 0, 0, 11}};
PyObject *_wrap_uint16p_frompointer(PyObject *, PyObject *args) {
    return recast(row_uint16p_frompointer, args);
}

PyObject *uint16p_swigregister(PyObject *, PyObject *args) {
    return SWIG_Python_RegisterClass(swig_type_slots[11], args);
}

static constexpr CallRow row_new_uint32p{
    "new_uint32p",
    "",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 12}};
PyObject *_wrap_new_uint32p(PyObject *, PyObject *args) {
    return new_box<Unsigned32>(row_new_uint32p, args);
}

static constexpr CallRow row_delete_uint32p{
    "delete_uint32p",
    "in method 'delete_uint32p', argument 1 of type 'uint32p *'",
    {12, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_delete_uint32p(PyObject *, PyObject *args) {
    return delete_struct(row_delete_uint32p, args);
}

static constexpr CallRow row_uint32p_assign{
    "uint32p_assign",
    "invalid null reference in method 'uint32p_assign', argument 1 of type 'uint32p *'\0"
    "in method 'uint32p_assign', argument 2 of type 'uint32'",
    {12, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_uint32p_assign(PyObject *, PyObject *args) {
    return assign_box<Unsigned32>(row_uint32p_assign, args);
}

static constexpr CallRow row_uint32p_value{
    "uint32p_value",
    "invalid null reference in method 'uint32p_value', argument 1 of type 'uint32p *'",
    {12, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_uint32p_value(PyObject *, PyObject *args) {
    return box_value<Unsigned32>(row_uint32p_value, args);
}

static constexpr CallRow row_uint32p_cast{
    "uint32p_cast",
    "in method 'uint32p_cast', argument 1 of type 'uint32p *'",
    {12, 0, 0, 0, 0, 0, 0, 0, 0, 16}};
PyObject *_wrap_uint32p_cast(PyObject *, PyObject *args) {
    return recast(row_uint32p_cast, args);
}

static constexpr CallRow row_uint32p_frompointer{
    "uint32p_frompointer",
    "in method 'uint32p_frompointer', argument 1 of type 'uint32 *'",
    {16, 0, 0, 0, 0, 0, 0, 0, 0, 12}};
PyObject *_wrap_uint32p_frompointer(PyObject *, PyObject *args) {
    return recast(row_uint32p_frompointer, args);
}

PyObject *uint32p_swigregister(PyObject *, PyObject *args) {
    return SWIG_Python_RegisterClass(swig_type_slots[12], args);
}

static constexpr CallRow row_new_uintp{
    "new_uintp",
    "",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 14}};
PyObject *_wrap_new_uintp(PyObject *, PyObject *args) {
    return new_box<Unsigned32>(row_new_uintp, args);
}

static constexpr CallRow row_delete_uintp{
    "delete_uintp",
    "in method 'delete_uintp', argument 1 of type 'uintp *'",
    {14, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_delete_uintp(PyObject *, PyObject *args) {
    return delete_struct(row_delete_uintp, args);
}

static constexpr CallRow row_uintp_assign{
    "uintp_assign",
    "invalid null reference in method 'uintp_assign', argument 1 of type 'uintp *'\0"
    "in method 'uintp_assign', argument 2 of type 'unsigned int'",
    {14, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_uintp_assign(PyObject *, PyObject *args) {
    return assign_box<Unsigned32>(row_uintp_assign, args);
}

static constexpr CallRow row_uintp_value{
    "uintp_value",
    "invalid null reference in method 'uintp_value', argument 1 of type 'uintp *'",
    {14, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_uintp_value(PyObject *, PyObject *args) {
    return box_value<Unsigned32>(row_uintp_value, args);
}

static constexpr CallRow row_uintp_cast{
    "uintp_cast",
    "in method 'uintp_cast', argument 1 of type 'uintp *'",
    {14, 0, 0, 0, 0, 0, 0, 0, 0, 16}};
PyObject *_wrap_uintp_cast(PyObject *, PyObject *args) {
    return recast(row_uintp_cast, args);
}

static constexpr CallRow row_uintp_frompointer{
    "uintp_frompointer",
    "in method 'uintp_frompointer', argument 1 of type 'unsigned int *'",
    {16, 0, 0, 0, 0, 0, 0, 0, 0, 14}};
PyObject *_wrap_uintp_frompointer(PyObject *, PyObject *args) {
    return recast(row_uintp_frompointer, args);
}

PyObject *uintp_swigregister(PyObject *, PyObject *args) {
    return SWIG_Python_RegisterClass(swig_type_slots[14], args);
}

static constexpr CallRow row_new_uint64p{
    "new_uint64p",
    "",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 13}};
PyObject *_wrap_new_uint64p(PyObject *, PyObject *args) {
    return new_box<Unsigned64>(row_new_uint64p, args);
}

static constexpr CallRow row_delete_uint64p{
    "delete_uint64p",
    "in method 'delete_uint64p', argument 1 of type 'uint64p *'",
    {13, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_delete_uint64p(PyObject *, PyObject *args) {
    return delete_struct(row_delete_uint64p, args);
}

static constexpr CallRow row_uint64p_assign{
    "uint64p_assign",
    "invalid null reference in method 'uint64p_assign', argument 1 of type 'uint64p *'\0"
    "in method 'uint64p_assign', argument 2 of type 'uint64'",
    {13, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_uint64p_assign(PyObject *, PyObject *args) {
    return assign_box<Unsigned64>(row_uint64p_assign, args);
}

static constexpr CallRow row_uint64p_value{
    "uint64p_value",
    "invalid null reference in method 'uint64p_value', argument 1 of type 'uint64p *'",
    {13, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_uint64p_value(PyObject *, PyObject *args) {
    return box_value<Unsigned64>(row_uint64p_value, args);
}

static constexpr CallRow row_uint64p_cast{
    "uint64p_cast",
    "in method 'uint64p_cast', argument 1 of type 'uint64p *'",
    {13, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_uint64p_cast(PyObject *, PyObject *args) {
    return recast(row_uint64p_cast, args);
}

static constexpr CallRow row_uint64p_frompointer{
    "uint64p_frompointer",
    "in method 'uint64p_frompointer', argument 1 of type 'uint64 *'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 13}};
PyObject *_wrap_uint64p_frompointer(PyObject *, PyObject *args) {
    return recast(row_uint64p_frompointer, args);
}

PyObject *uint64p_swigregister(PyObject *, PyObject *args) {
    return SWIG_Python_RegisterClass(swig_type_slots[13], args);
}

