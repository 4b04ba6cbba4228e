// Made from platform/helper/tiny_cxx.h by generator/emit/emit_rows.cpp. Do not edit.
#include "classes/accessor.h"
#include "convert/append_frame.h"
#include "convert/frame.h"
#include "generated/entries.h"
#include "generated/type_slots.h"
#include "runtime/client_data.h"
#include "api/hand_rows.h"

#include "helper/tiny_cxx.h"

using namespace ombra;

//  find(unit, where) -> int find(unit) -> int 
static constexpr CallRow row_find{
    "find",
    "in method 'find', argument 1 of type 'int'\0"
    "invalid null reference in method 'find', argument 2 of type 'tiny_opaque_t'",
    {0, slots::_p_tiny_opaque_t, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_find(PyObject *, PyObject *args) {
    return ombra::rows::find(row_find, args);
}

// tiny_report(unit) -> PyObject *
static constexpr CallRow row_tiny_report{
    "tiny_report",
    "in method 'tiny_report', argument 1 of type 'int'",
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_tiny_report(PyObject *, PyObject *args) {
    using Shape = Call<Object(Signed32)>;
    return Shape::run(row_tiny_report, Shape::native(&ombra::rows::tiny_report), args);
}

