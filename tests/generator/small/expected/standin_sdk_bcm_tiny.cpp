// Made from platform/sdk/bcm/tiny.h by generator/emit/emit_standin.cpp. Do not edit.
#include "sdk/bcm/tiny.h"

#include "standin/generic/call.h"

static_assert(sizeof(tiny_port_t) == 4);
static_assert(sizeof(int) == 4);

namespace {
using namespace standin;
constexpr NameKind kind_port{.name = "port", .sort = Sort::kPort};
}  // namespace

extern "C" {

int tiny_none() { return standin::unavailable("tiny_none"); }

void tiny_scalars(int8, int16, tiny_color_t, uint8, uint16, uint32, uint64, bool) { return; }

int tiny_unnamed(int, tiny_pair_t *) { return standin::unavailable("tiny_unnamed"); }

int tiny_pointers(char const *, tiny_pair_t *, uint16 const *, void *, tiny_cb) { return standin::unavailable("tiny_pointers"); }

int tiny_values(tiny_pair_t, tiny_opaque_t, tiny_mac_t, tiny_pbmp_t) { return standin::unavailable("tiny_values"); }

int tiny_arrays(int unit, unsigned int[2], int const[8]) { return standin::unavailable("tiny_arrays", unit); }

int tiny_wide(unsigned long) { return standin::unavailable("tiny_wide"); }

uint64 tiny_long(tiny_address_t) { return {}; }

char * tiny_text(int) { return {}; }

bool tiny_truth(int) { return {}; }

tiny_opaque_t tiny_value(int) { return {}; }

tiny_pair_t * tiny_pointer(int) { return {}; }

int tiny_speed_set(int unit, tiny_port_t port, int speed) {
    using namespace standin;
    static constexpr Binding bindings[] = {
        {.argument = 1, .role = Role::select, .size = 4},
        {.argument = 2, .role = Role::write, .row = 4, .size = 4}};
    static constexpr Reference references[] = {
        {.kind = &kind_port, .field = "port", .bond = Bond::kFalls, .size = 4}};
    static constexpr Call call{
        .name = "tiny_speed_set",
        .family = "tiny_speed",
        .key = 4,
        .row = 8,
        .operation = Operation::store,
        .bindings = bindings,
        .references = references};
    const void *const arguments[] = {&unit, &port, &speed};
    return answer(call, unit, arguments);
}

int tiny_speed_get(int unit, tiny_port_t port, int *speed) {
    using namespace standin;
    static constexpr Binding bindings[] = {
        {.argument = 1, .role = Role::select, .size = 4},
        {.argument = 2, .role = Role::read, .memory = true, .row = 4, .size = 4}};
    static constexpr Reference references[] = {
        {.kind = &kind_port, .field = "port", .bond = Bond::kFalls, .size = 4}};
    static constexpr Call call{
        .name = "tiny_speed_get",
        .family = "tiny_speed",
        .key = 4,
        .row = 8,
        .operation = Operation::read,
        .bindings = bindings,
        .references = references};
    const void *const arguments[] = {&unit, &port, &speed};
    return answer(call, unit, arguments);
}

int tiny_list_set(int unit, int count, int *list) {
    using namespace standin;
    static constexpr Binding bindings[] = {
        {.argument = 2, .role = Role::list_in, .memory = true, .size = 4}};
    static constexpr Call call{
        .name = "tiny_list_set",
        .family = "tiny_list",
        .operation = Operation::store,
        .count = {.argument = 1, .size = 4},
        .bindings = bindings};
    const void *const arguments[] = {&unit, &count, &list};
    return answer(call, unit, arguments);
}

int tiny_list_get(int unit, int max, int *list, int *count) {
    using namespace standin;
    static constexpr Binding bindings[] = {
        {.argument = 2, .role = Role::list_out, .memory = true, .size = 4}};
    static constexpr Call call{
        .name = "tiny_list_get",
        .family = "tiny_list",
        .operation = Operation::read,
        .max = {.argument = 1, .size = 4},
        .filled = {.argument = 3, .size = 4},
        .bindings = bindings};
    const void *const arguments[] = {&unit, &max, &list, &count};
    return answer(call, unit, arguments);
}

int tiny_create(int unit, int *) { return standin::unavailable("tiny_create", unit); }

}  // extern "C"
