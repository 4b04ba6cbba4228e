// Made from all declarations by generator/emit/emit_companion.cpp. Do not edit.
#include "python/companion/trampoline.h"

#include "helper/tiny_cxx.h"
#include "sdk/bcm/tiny.h"
#include "sdk/bcm/tiny_types.h"

namespace companion {

template <>
inline constexpr unsigned pointee_slot<tiny_pair_t> = 10;
template <>
inline constexpr unsigned pointee_slot<tiny_all_t> = 7;
template <>
inline constexpr unsigned pointee_slot<tiny_any> = 8;

const Callback callbacks[] = {
    callback_of<0, tiny_cb>("tiny_cb"),
};

const std::size_t callback_count = sizeof callbacks / sizeof callbacks[0];

const swig_const_row callback_rows[] = {
    {SWIG_CONST_POINTER, "tiny_cb_address", 0, callbacks[0].address,
     &swig_type_slots[3]},
    {SWIG_CONST_END, nullptr, 0, nullptr, nullptr},
};

PyMethodDef callback_methods[] = {
    {"tiny_cb", refuse_call, METH_VARARGS,
     "tiny_cb: native callback, int (*)(int,void *)\nswig_ptr: tiny_cb_address"},
    {nullptr, nullptr, 0, nullptr},
};

}  // namespace companion
