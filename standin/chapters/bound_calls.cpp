// Calls that fit a rule but for their form: a number of elements that goes in and out by one
// address, an id beside the number that asks for it, a table that is asked from its other side.
// They are bound by hand to the tables that the rules use.
#include "sdk/bcm/cosq.h"
#include "sdk/bcm/fabric.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/qos.h"
#include "sdk/bcm/stat.h"
#include "standin/generic/call.h"
#include "standin/model/named.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

constexpr NameKind kMapKind{.name = "qos-map"};

constexpr std::uint32_t kBindingBytes = 4;

// A number by value, a number behind an address, an array of numbers with a row for each element.
constexpr Binding in(std::uint8_t argument, std::uint32_t row, Role role = Role::select) {
    return {.argument = argument, .role = role, .row = row, .size = kBindingBytes};
}
constexpr Binding behind(std::uint8_t argument, std::uint32_t row, Role role = Role::read) {
    return {.argument = argument, .role = role, .memory = true, .row = row, .size = kBindingBytes};
}
constexpr Binding each(std::uint8_t argument, std::uint32_t row, std::uint32_t size, Role role) {
    return {argument, role, true, 0, size, row, size};
}
constexpr Binding list(std::uint8_t argument, std::uint32_t number, Role role) {
    return {argument, role, true, 0, 0, number, kBindingBytes};
}
constexpr Reference port_at(const char *field, std::uint32_t row, Bond bond = Bond::kFalls) {
    return {.kind = &kPortKind, .field = field, .bond = bond, .row = row, .size = kBindingBytes};
}

// -- scheduler tree: rows of scheduler, input and queue
// ---------------------------------------------

constexpr Reference kTreePorts[] = {port_at("sched_gport", 0), port_at("input_gport", 4)};

constexpr Call tree_call(const char *name, Operation operation, std::span<const Binding> bindings,
                         std::span<const Reference> references) {
    return {.name = name,
            .family = "bcm_cosq_gport_attach",
            .key = 12,
            .row = 12,
            .operation = operation,
            .bindings = bindings,
            .references = references};
}

// -- queues of an ingress port: rows of port, priority and id, with where they lead
// ----------------

constexpr Reference kQueuePorts[] = {port_at("ingress_port", 0)};
constexpr Reference kQueueEnds[] = {port_at("ingress_port", 0),
                                    port_at("out_gport", 12, Bond::kHolds)};

constexpr Call queue_call(const char *name, Operation operation, std::span<const Binding> bindings,
                          std::span<const Reference> references) {
    return {.name = name,
            .family = "bcm_cosq_gport_queue_attach",
            .key = 12,
            .row = 20,
            .operation = operation,
            .bindings = bindings,
            .references = references};
}

// -- counters of two gports: rows of both, queue and statistic, with the value
// ---------------------

constexpr Reference kCounted[] = {
    {.kind = &kPortKind, .field = "ingress_gport", .optional = true, .row = 0, .size = 4},
    {.kind = &kPortKind, .field = "egress_gport", .optional = true, .row = 4, .size = 4}};

constexpr Call counter_call(const char *name, Operation operation,
                            std::span<const Binding> bindings) {
    return {.name = name,
            .family = "bcm_cosq_gport_statistic_multi",
            .key = 16,
            .row = 24,
            .operation = operation,
            .count = {4, 4},
            .bindings = bindings,
            .references = kCounted};
}

// -- the L2 cache: rows of index and entry --------------------------------------------------------

constexpr std::uint32_t kCacheRow = 4 + sizeof(bcm_l2_cache_addr_t);

constexpr Binding cache_entry(std::uint8_t argument, Role role) {
    return {argument, role, true, 0, 0, 4, sizeof(bcm_l2_cache_addr_t)};
}

constexpr Call cache_call(const char *name, Operation operation,
                          std::span<const Binding> bindings) {
    return {.name = name,
            .family = "bcm_l2_cache",
            .key = 4,
            .row = kCacheRow,
            .operation = operation,
            .bindings = bindings};
}

}  // namespace

extern "C" {

int bcm_cosq_gport_child_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                             bcm_gport_t *child_gport) {
    static constexpr Binding bindings[] = {in(1, 0), in(2, 8), behind(3, 4)};
    static constexpr Call call =
        tree_call("bcm_cosq_gport_child_get", Operation::find, bindings, {kTreePorts, 1});
    const void *const arguments[] = {&unit, &gport, &cosq, &child_gport};
    return answer(call, unit, arguments);
}

int bcm_cosq_gport_parent_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                              bcm_gport_t *parent_gport) {
    static constexpr Binding bindings[] = {in(1, 4), in(2, 8), behind(3, 0)};
    static constexpr Call call =
        tree_call("bcm_cosq_gport_parent_get", Operation::find, bindings, {kTreePorts + 1, 1});
    const void *const arguments[] = {&unit, &gport, &cosq, &parent_gport};
    return answer(call, unit, arguments);
}

// From wherever the input was attached.
int bcm_cosq_gport_reattach(int unit, bcm_gport_t sched_gport, bcm_gport_t input_gport,
                            bcm_cos_queue_t cosq) {
    static constexpr Binding bindings[] = {in(1, 0, Role::write), in(2, 4), in(3, 8, Role::write)};
    static constexpr Call call =
        tree_call("bcm_cosq_gport_reattach", Operation::replace, bindings, kTreePorts);
    const void *const arguments[] = {&unit, &sched_gport, &input_gport, &cosq};
    return answer(call, unit, arguments);
}

int bcm_cosq_gport_queue_attach(int unit, uint32 flags, bcm_gport_t ingress_port,
                                bcm_cos_t ingress_pri, bcm_gport_t out_gport, bcm_cos_t out_queue,
                                int *queue_id) {
    static constexpr Binding bindings[] = {
        in(1, 0, Role::flags), in(2, 0), in(3, 4), in(4, 12, Role::write), in(5, 16, Role::write),
        behind(6, 8, Role::id)};
    static constexpr Call call =
        queue_call("bcm_cosq_gport_queue_attach", Operation::create, bindings, kQueueEnds);
    const void *const arguments[] = {&unit,      &flags,     &ingress_port, &ingress_pri,
                                     &out_gport, &out_queue, &queue_id};
    return answer(call, unit, arguments);
}

int bcm_cosq_gport_queue_detach(int unit, bcm_gport_t gport, bcm_cos_t ingress_pri, int queue_id) {
    static constexpr Binding bindings[] = {in(1, 0), in(2, 4), in(3, 8)};
    static constexpr Call call =
        queue_call("bcm_cosq_gport_queue_detach", Operation::remove, bindings, kQueuePorts);
    const void *const arguments[] = {&unit, &gport, &ingress_pri, &queue_id};
    return answer(call, unit, arguments);
}

int bcm_cosq_gport_queue_attach_get(int unit, bcm_gport_t gport, bcm_cos_t ingress_pri,
                                    bcm_gport_t *out_gport, bcm_cos_t *out_queue, int queue_id) {
    static constexpr Binding bindings[] = {in(1, 0), in(2, 4), behind(3, 12), behind(4, 16),
                                           in(5, 8)};
    static constexpr Call call =
        queue_call("bcm_cosq_gport_queue_attach_get", Operation::find, bindings, kQueuePorts);
    const void *const arguments[] = {&unit,      &gport,     &ingress_pri,
                                     &out_gport, &out_queue, &queue_id};
    return answer(call, unit, arguments);
}

// One value for all the statistics.
int bcm_cosq_gport_statistic_multi_set(int unit, bcm_gport_t ingress_gport,
                                       bcm_gport_t egress_gport, bcm_cos_queue_t cosq,
                                       int stat_count, bcm_cosq_gport_stats_t *stat_array,
                                       uint64 value) {
    static constexpr Binding bindings[] = {
        in(1, 0),
        in(2, 4),
        in(3, 8),
        each(5, 12, 4, Role::select),
        {.argument = 6, .role = Role::write, .row = 16, .size = 8}};
    static constexpr Call call =
        counter_call("bcm_cosq_gport_statistic_multi_set", Operation::store, bindings);
    const void *const arguments[] = {&unit,       &ingress_gport, &egress_gport, &cosq,
                                     &stat_count, &stat_array,    &value};
    return answer(call, unit, arguments);
}

int bcm_cosq_gport_statistic_multi_get(int unit, bcm_gport_t ingress_gport,
                                       bcm_gport_t egress_gport, bcm_cos_queue_t cosq, int stat_max,
                                       bcm_cosq_gport_stats_t *stat_array, int clear_on_read,
                                       uint64 *value_array) {
    static constexpr Binding bindings[] = {
        in(1, 0), in(2, 4), in(3, 8), each(5, 12, 4, Role::select), each(6, 16, 8, Role::read)};
    static constexpr Call call =
        counter_call("bcm_cosq_gport_statistic_multi_get", Operation::read, bindings);
    static constexpr Call clear =
        counter_call("bcm_cosq_gport_statistic_multi_get", Operation::remove_all, {bindings, 4});
    const void *const arguments[] = {&unit,     &ingress_gport, &egress_gport, &cosq,
                                     &stat_max, &stat_array,    &value_array};
    const int status = answer(call, unit, arguments);
    return status < 0 || clear_on_read == 0 ? status : answer(clear, unit, arguments);
}

int bcm_fabric_calendar_multi_set(int unit, int calendar_id, int *entry_count,
                                  bcm_gport_t *gport_array, bcm_cos_queue_t *cosq_array) {
    static constexpr Binding bindings[] = {in(1, 0), list(3, 0, Role::list_in),
                                           list(4, 1, Role::list_in)};
    static constexpr Reference references[] = {{.kind = &kPortKind,
                                                .field = "gport_array",
                                                .bond = Bond::kLeaves,
                                                .list = true,
                                                .optional = true,
                                                .stride = 4,
                                                .size = 4}};
    static constexpr Call call{.name = "bcm_fabric_calendar_multi_set",
                               .family = "bcm_fabric_calendar_multi",
                               .key = 4,
                               .row = 4,
                               .count = {2, 4},
                               .bindings = bindings,
                               .references = references};
    const int count = entry_count == nullptr ? -1 : *entry_count;
    const void *const arguments[] = {&unit, &calendar_id, &count, &gport_array, &cosq_array};
    return answer(call, unit, arguments);
}

int bcm_fabric_calendar_multi_get(int unit, int calendar_id, int *entry_count,
                                  bcm_gport_t *gport_array, bcm_cos_queue_t *cosq_array) {
    static constexpr Binding bindings[] = {in(1, 0), list(3, 0, Role::list_out),
                                           list(4, 1, Role::list_out)};
    static constexpr Call call{.name = "bcm_fabric_calendar_multi_get",
                               .family = "bcm_fabric_calendar_multi",
                               .key = 4,
                               .row = 4,
                               .operation = Operation::read,
                               .max = {2, 4},
                               .filled = {5, 4},
                               .bindings = bindings};
    const int max = entry_count == nullptr ? -1 : *entry_count;
    const void *const arguments[] = {&unit,        &calendar_id, &max,
                                     &gport_array, &cosq_array,  &entry_count};
    return answer(call, unit, arguments);
}

// -1 asks for a free place.
int bcm_l2_cache_set(int unit, int index, bcm_l2_cache_addr_t *addr, int *index_used) {
    static constexpr Binding bindings[] = {in(1, 0, Role::flags), cache_entry(2, Role::write),
                                           behind(3, 0, Role::id)};
    static constexpr Call call = cache_call("bcm_l2_cache_set", Operation::create, bindings);
    const std::uint32_t flags = index == -1 ? 0 : kWithId | kReplace;
    int used = index;
    int *const place = &used;
    const void *const arguments[] = {&unit, &flags, &addr, &place};
    const int status = index < -1 ? refuse(__func__, unit) : answer(call, unit, arguments);
    if (status == BCM_E_NONE && index_used != nullptr) *index_used = used;
    return status;
}

int bcm_l2_cache_get(int unit, int index, bcm_l2_cache_addr_t *addr) {
    static constexpr Binding bindings[] = {in(1, 0), cache_entry(2, Role::read)};
    static constexpr Call call = cache_call("bcm_l2_cache_get", Operation::find, bindings);
    const void *const arguments[] = {&unit, &index, &addr};
    return answer(call, unit, arguments);
}

int bcm_l2_cache_delete(int unit, int index) {
    static constexpr Binding bindings[] = {in(1, 0)};
    static constexpr Call call = cache_call("bcm_l2_cache_delete", Operation::remove, bindings);
    const void *const arguments[] = {&unit, &index};
    return answer(call, unit, arguments);
}

int bcm_l2_cache_delete_all(int unit) {
    static constexpr Call call = cache_call("bcm_l2_cache_delete_all", Operation::remove_all, {});
    const void *const arguments[] = {&unit};
    return answer(call, unit, arguments);
}

// Whether the counter has that trigger: as many rows as the call can be told of, which is one.
int bcm_stat_custom_check(int unit, bcm_port_t port, bcm_stat_val_t type,
                          bcm_custom_stat_trigger_t trigger, int *result) {
    static constexpr Binding bindings[] = {in(1, 0), in(2, 4), in(3, 8)};
    static constexpr Reference references[] = {port_at("port", 0)};
    static constexpr Call call{.name = "bcm_stat_custom_check",
                               .family = "bcm_stat_custom",
                               .key = 12,
                               .row = 12,
                               .operation = Operation::list,
                               .filled = {4, 4},
                               .bindings = bindings,
                               .references = references};
    const void *const arguments[] = {&unit, &port, &type, &trigger, &result};
    return answer(call, unit, arguments);
}

// The map keeps its flags for bcm_qos_multi_get.
int bcm_qos_map_create(int unit, uint32 flags, int *map_id) {
    static constexpr Binding bindings[] = {in(1, 0, Role::flags), in(1, 4, Role::write),
                                           behind(2, 0, Role::id)};
    static constexpr Call call{.name = "bcm_qos_map_create",
                               .family = "bcm_qos_map",
                               .key = 4,
                               .row = 8,
                               .operation = Operation::create,
                               .bindings = bindings,
                               .id = {&kMapKind, 0, 4}};
    const void *const arguments[] = {&unit, &flags, &map_id};
    return answer(call, unit, arguments);
}

int bcm_qos_multi_get(int unit, int array_size, int *map_ids_array, int *flags_array,
                      int *array_count) {
    static constexpr Binding bindings[] = {each(2, 0, 4, Role::read), each(3, 4, 4, Role::read)};
    static constexpr Call call{.name = "bcm_qos_multi_get",
                               .family = "bcm_qos_map",
                               .key = 4,
                               .row = 8,
                               .operation = Operation::list,
                               .max = {1, 4},
                               .filled = {4, 4},
                               .bindings = bindings};
    const void *const arguments[] = {&unit, &array_size, &map_ids_array, &flags_array,
                                     &array_count};
    return answer(call, unit, arguments);
}

// The map of one side: 1 is what comes in, 2 what goes out.
int bcm_qos_port_map_type_get(int unit, bcm_gport_t port, uint32 flags, int *map_id) {
    static constexpr Binding in_map[] = {in(1, 0), behind(3, 4)};
    static constexpr Binding out_map[] = {in(1, 0), behind(3, 8)};
    static constexpr Reference references[] = {port_at("port", 0)};
    static constexpr auto call_of = [](std::span<const Binding> bindings) {
        return Call{.name = "bcm_qos_port_map_type_get",
                    .family = "bcm_qos_port_map",
                    .key = 4,
                    .row = 12,
                    .operation = Operation::read,
                    .bindings = bindings,
                    .references = references};
    };
    static constexpr Call calls[] = {call_of(in_map), call_of(out_map)};
    if (flags != 1 && flags != 2) return refuse(__func__, unit);
    const void *const arguments[] = {&unit, &port, &flags, &map_id};
    return answer(calls[flags - 1], unit, arguments);
}

}  // extern "C"
