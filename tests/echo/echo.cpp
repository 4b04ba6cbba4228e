// The native functions of the echo module: each notes its arguments and gives them back.

#include <new>

#include "api/exported.h"
#include "api/native_rows.h"
#include "control.h"
#include "helper/echo_cxx.h"
#include "sdk/echo.h"
#include "sdk/variables.h"

using echo::enter;

// Not static, so that the compiler cannot tell that nobody reads it.
extern void *kept_block;
void *kept_block = nullptr;

namespace {

template <typename Value>
Value given_back(Value value) {
    enter(value);
    return value;
}

template <typename... Values>
int noted(const Values &...values) {
    enter(values...);
    return 0;
}

}  // namespace

int8 echo_int8(int8 value) { return given_back(value); }
int16 echo_int16(int16 value) { return given_back(value); }
int echo_int(int value) { return given_back(value); }
echo_color_t echo_color(echo_color_t value) { return given_back(value); }
uint8 echo_uint8(uint8 value) { return given_back(value); }
uint16 echo_uint16(uint16 value) { return given_back(value); }
uint32 echo_uint32(uint32 value) { return given_back(value); }
uint64 echo_uint64(uint64 value) { return given_back(value); }
echo_address_t echo_address(echo_address_t value) { return given_back(value); }
bool echo_bool(bool value) { return given_back(value); }
int echo_ulong(unsigned long value) { return noted(value); }

char *echo_text(char *value) { return given_back(value); }
char const *echo_constant_text(char const *value) { return given_back(value); }
echo_pair_t *echo_pointer(echo_pair_t *value) { return given_back(value); }
int *echo_number_pointer(int *value) { return given_back(value); }
uint16 const *echo_constant_pointer(uint16 const *value) { return given_back(value); }
void *echo_any_pointer(void *value) { return given_back(value); }
echo_cb echo_callback(echo_cb value) { return given_back(value); }
int echo_array(int value[4]) { return noted(value); }

echo_byte_t echo_byte(echo_byte_t value) { return given_back(value); }
echo_half_t echo_half(echo_half_t value) { return given_back(value); }
echo_word_t echo_word(echo_word_t value) { return given_back(value); }
echo_pair_t echo_pair(echo_pair_t value) { return given_back(value); }
echo_three_t echo_three(echo_three_t value) { return given_back(value); }
echo_two_t echo_two(echo_two_t value) { return given_back(value); }
echo_large_t echo_large(echo_large_t value) { return given_back(value); }
echo_opaque_cb_t echo_opaque_callback(echo_opaque_cb_t value) { return given_back(value); }
bcm_pbmp_t echo_ports(bcm_pbmp_t value) { return given_back(value); }
int echo_mac(echo_mac_t value) { return noted(echo::Bytes{value, sizeof(echo_mac_t)}); }

int echo_none(void) {
    enter();
    return -4;
}

void echo_nothing(void) { enter(); }

int echo_nine(int8 s8, uint64 u64, echo_large_t large, bool yes, char const *text, echo_two_t two,
              uint16 u16, bcm_pbmp_t ports, int s32) {
    return noted(s8, u64, large, yes, text, two, u16, ports, s32);
}

int echo_macs(echo_mac_t first, echo_mac_t second) {
    return noted(echo::Bytes{first, sizeof(echo_mac_t)}, echo::Bytes{second, sizeof(echo_mac_t)});
}

int echo_append(int number, int *doubled) {
    enter(number);
    *doubled = 2 * number;
    return -number;
}

int echo_pointer_ports(echo_pair_t *pointer, bcm_pbmp_t ports) { return noted(pointer, ports); }
int echo_ports_pointer(bcm_pbmp_t ports, echo_pair_t *pointer) { return noted(ports, pointer); }

int Echo::negated(int value) {
    enter(value);
    return -value;
}

int echo_reference(echo_pair_t &value) { return noted(&value); }

PyObject *echo_object(PyObject *value) {
    enter(value);
    Py_INCREF(value);
    return value;
}

int echo_keeps_reference(PyObject *value) {
    enter(value);
    Py_INCREF(value);
    return 0;
}

int echo_loses_reference(PyObject *value) {
    enter(value);
    Py_DECREF(value);
    return 0;
}

int echo_keeps_memory(int size) {
    enter(size);
    kept_block = ::operator new(static_cast<std::size_t>(size));
    return 0;
}

int echo_depth = 0;
char *echo_title = nullptr;
echo_pair_t echo_shared{};
echo_cb echo_hook = nullptr;
int echo_table[4] = {1, 2, 3, 4};
