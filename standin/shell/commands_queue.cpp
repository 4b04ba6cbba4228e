// Commands on quality of service: maps of priorities, queues and their schedulers. Most of their
// calls have no model, so the words are the fields of the rows that they keep.
#include <array>
#include <cstring>

#include "sdk/bcm/cosq.h"
#include "sdk/bcm/qos.h"
#include "standin/base/output.h"
#include "standin/model/model.h"
#include "standin/model/switch.h"
#include "standin/model/tables.h"
#include "standin/shell/commands.h"
#include "standin/shell/fields.h"
#include "standin/shell/queue_rows.h"
#include "standin/text/unit_ports.h"

namespace standin {
namespace {

constexpr const char *kFieldWords = "FIELD=VALUE";

// A row with the fields that were given, and zeros.
template <class Row>
Row row_of(const CommandCall &call) {
    Row row{};
    write_fields(call, kFieldWords, &row);
    return row;
}

cmd_result_t family_show(CommandCall &call) { return show_family(call, call.form().layout); }

struct MapRow {
    int map_id;
};
cmd_result_t qos_create(CommandCall &call) {
    int id = row_of<MapRow>(call).map_id;
    const bool given = call.has(kFieldWords);
    const int status = bcm_qos_map_create(call.unit(), given ? kWithId : 0, &id);
    if (status >= 0 && !given) outf("%d\n", id);
    return report(call, status);
}

cmd_result_t qos_destroy(CommandCall &call) {
    return report(call, bcm_qos_map_destroy(call.unit(), call.number("MAP")));
}

struct MemberRow {
    int map_id;
    bcm_qos_map_t map;
};
template <int (*change)(int, uint32, bcm_qos_map_t *, int)>
cmd_result_t qos_change(CommandCall &call) {
    auto row = row_of<MemberRow>(call);
    return report(call, change(call.unit(), 0, &row.map, row.map_id));
}

struct PortMapRow {
    bcm_gport_t port;
    int ing_map, egr_map;
};
cmd_result_t qos_port(CommandCall &call) {
    const auto row = row_of<PortMapRow>(call);
    return report(call, bcm_qos_port_map_set(call.unit(), row.port, row.ing_map, row.egr_map));
}

cmd_result_t queues_show(CommandCall &call) {
    const QueueRows &rows_of = *queue_rows_of(call.form().layout);
    Rows rows(columns_of(call.form()));
    const PortNames names = unit_ports(call.unit());
    const int status = on_switch("cosq show", call.unit(), [&](Switch &chip) {
        for (const std::string &row : rows_of.of(queues_of(chip)))
            rows.row(cells_of(rows.columns(), rows_of.layout.fields, row.data(), names, {}));
        return BCM_E_NONE;
    });
    if (status < 0) return report(call, status);
    rows.show();
    return kOk;
}

cmd_result_t cosq_queues(CommandCall &call) {
    return report(call, bcm_cosq_config_set(call.unit(), row_of<QueueCountRow>(call).numq));
}

cmd_result_t cosq_map(CommandCall &call) {
    const auto row = row_of<QueueMapRow>(call);
    return report(call, bcm_cosq_mapping_set(call.unit(), row.priority, row.cosq));
}

cmd_result_t cosq_portmap(CommandCall &call) {
    const auto row = row_of<PortQueueMapRow>(call);
    return report(call, bcm_cosq_port_mapping_set(call.unit(), row.port, row.priority, row.cosq));
}

struct BandwidthRow {
    int port, cosq;
    uint32 kbits_sec_min, kbits_sec_max, flags;
};
template <auto set>
cmd_result_t cosq_bandwidth(CommandCall &call) {
    const auto row = row_of<BandwidthRow>(call);
    return report(call, set(call.unit(), row.port, row.cosq, row.kbits_sec_min, row.kbits_sec_max,
                            row.flags));
}

cmd_result_t cosq_sched(CommandCall &call) {
    const auto row = row_of<QueueSchedRow>(call);
    return report(call,
                  bcm_cosq_port_sched_set(call.unit(), row.pbm, row.mode, row.weights, row.delay));
}

struct GportSchedRow {
    int gport, cosq, mode, weight;
};
cmd_result_t cosq_gsched(CommandCall &call) {
    const auto row = row_of<GportSchedRow>(call);
    return report(call,
                  bcm_cosq_gport_sched_set(call.unit(), row.gport, row.cosq, row.mode, row.weight));
}

constexpr Param kFields[] = {
    place(kFieldWords, Kind::kStructField, "A field and what it shall be").need().many()};
constexpr Param kSomeFields[] = {
    place(kFieldWords, Kind::kStructField, "A field and what it shall be").many()};
constexpr Param kMap[] = {place("MAP", INT32_MIN, INT32_MAX, "The map").need()};

constexpr Form kQosForms[] = {
    {"show", "The maps", "qos show", family_show, {}, {}, "bcm_qos_map"},
    {"create",
     "Make a map; without a number the shell prints the one it got",
     "qos create map_id=3",
     qos_create,
     kSomeFields,
     {},
     "bcm_qos_map"},
    {"destroy", "Remove a map", "qos destroy 3", qos_destroy, kMap},
    {"map show", "What the maps map", "qos map show", family_show, {}, {}, "bcm_qos_map/members"},
    {"add",
     "Map one priority",
     "qos add map_id=3 map.pkt_pri=5 map.int_pri=7",
     qos_change<bcm_qos_map_add>,
     kFields,
     {},
     "bcm_qos_map/members"},
    {"remove",
     "Map it no more",
     "qos remove map_id=3 map.pkt_pri=5 map.int_pri=7",
     qos_change<bcm_qos_map_delete>,
     kFields,
     {},
     "bcm_qos_map/members"},
    {"port show", "The maps of ports", "qos port show", family_show, {}, {}, "bcm_qos_port_map"},
    {"port",
     "Choose the maps of a port",
     "qos port port=3 ing_map=3 egr_map=3",
     qos_port,
     kFields,
     {},
     "bcm_qos_port_map"}};
constexpr Command kQos = configuring({"qos", "Maps of priorities", kQosForms, "show"});

constexpr Form kCosqForms[] = {
    {"queues show",
     "How many queues there are",
     "cosq queues show",
     queues_show,
     {},
     {},
     "cosq queues"},
    {"queues",
     "Choose how many queues there are",
     "cosq queues numq=8",
     cosq_queues,
     kFields,
     {},
     "cosq queues"},
    {"map show", "The queues of priorities", "cosq map show", queues_show, {}, {}, "cosq map"},
    {"map",
     "Choose the queue of a priority",
     "cosq map priority=5 cosq=3",
     cosq_map,
     kFields,
     {},
     "cosq map"},
    {"portmap show",
     "The queues of priorities at ports where they differ",
     "cosq portmap show",
     queues_show,
     {},
     {},
     "cosq portmap"},
    {"portmap",
     "Choose the queue of a priority at a port",
     "cosq portmap port=3 priority=5 cosq=2",
     cosq_portmap,
     kFields,
     {},
     "cosq portmap"},
    {"bandwidth show",
     "What queues of ports may send",
     "cosq bandwidth show",
     family_show,
     {},
     {},
     "bcm_cosq_port_bandwidth"},
    {"bandwidth",
     "Choose what a queue of a port may send",
     "cosq bandwidth port=3 cosq=1 kbits_sec_max=100000",
     cosq_bandwidth<bcm_cosq_port_bandwidth_set>,
     kFields,
     {},
     "bcm_cosq_port_bandwidth"},
    {"sched show",
     "How ports choose among queues",
     "cosq sched show",
     queues_show,
     {},
     {},
     "cosq sched"},
    {"sched",
     "Choose how ports choose among queues",
     "cosq sched pbm=xe1-xe4 mode=2 weights[0]=1 weights[1]=4",
     cosq_sched,
     kFields,
     {},
     "cosq sched"},
    {"gbandwidth show",
     "What queues of global ports may send",
     "cosq gbandwidth show",
     family_show,
     {},
     {},
     "bcm_cosq_gport_bandwidth"},
    {"gbandwidth",
     "Choose what a queue of a global port may send",
     "cosq gbandwidth gport=3 cosq=1 kbits_sec_max=100000",
     cosq_bandwidth<bcm_cosq_gport_bandwidth_set>,
     kFields,
     {},
     "bcm_cosq_gport_bandwidth"},
    {"gsched show",
     "How global ports choose among queues",
     "cosq gsched show",
     family_show,
     {},
     {},
     "bcm_cosq_gport_sched"},
    {"gsched",
     "Choose how a global port chooses among queues",
     "cosq gsched gport=3 cosq=1 mode=2 weight=4",
     cosq_gsched,
     kFields,
     {},
     "bcm_cosq_gport_sched"}};
constexpr Command kCosq = configuring({"cosq", "Queues and their schedulers", kCosqForms});

// Every table of the calls without a model.
constexpr RowColumn kFamilyColumns[] = {{"family", "Family", CellKind::kText},
                                        {"rows", ">Rows", CellKind::kNumber}};

cmd_result_t table_list(CommandCall &call) {
    Rows rows(kFamilyColumns);
    for (const auto &[family, count] : families_of(call.unit())) rows.row({family, count});
    rows.instead("every table is empty");
    rows.show();
    return kOk;
}

cmd_result_t table_show(CommandCall &call) { return show_family(call, call.text("FAMILY")); }

std::vector<Candidate> list_families(int unit) {
    std::vector<Candidate> all;
    for (const auto &[family, count] : families_of(unit))
        all.push_back({family, std::to_string(count) + (count == 1 ? " row" : " rows")});
    return all;
}

constexpr Param kTableShow[] = {
    place("FAMILY", Kind::kText, "The functions that share the table").need().there(list_families)};
constexpr Form kTableForms[] = {
    {"list", "The tables that have rows", "table list", table_list, {}, kFamilyColumns},
    {"show", "The rows of a table", "table show bcm_qos_map", table_show, kTableShow}};
constexpr Command kTable = {"table", "The tables of functions without a model", kTableForms,
                            "list"};

constexpr const Command *kCommands[] = {&kCosq, &kQos, &kTable};
static_assert(complete(kCommands));

}  // namespace

std::span<const Command *const> queue_commands() { return kCommands; }

}  // namespace standin
