// Made from api/exported.h by generator/emit/emit_rows.cpp. Do not edit.
#include "classes/accessor.h"
#include "convert/append_frame.h"
#include "convert/frame.h"
#include "generated/entries.h"
#include "generated/type_slots.h"
#include "runtime/client_data.h"

#include "api/exported.h"

using namespace ombra;

// tiny_test(pair, e) -> unsigned int
static constexpr CallRow row_tiny_test{
    "tiny_test",
    "invalid null reference in method 'tiny_test', argument 1 of type 'tiny_pair_t &'\0"
    "in method 'tiny_test', argument 2 of type 'tiny_color_e'",
    {slots::_p_tiny_pair_s, 0, 0, 0, 0, 0, 0, 0, 0, 0}};
PyObject *_wrap_tiny_test(PyObject *, PyObject *args) {
    using Shape = Call<Unsigned32(Reference, Signed32)>;
    return Shape::run(row_tiny_test, Shape::native(&::tiny_test), args);
}

