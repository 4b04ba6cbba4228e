// Commands on the rule engine: groups, rules with what they match and do, counters and ranges.
#include <algorithm>
#include <cstring>

#include "sdk/bcm/field.h"
#include "sdk/bcm/field_qualify.h"
#include "standin/base/output.h"
#include "standin/base/scan.h"
#include "standin/chapters/field_qualify.h"
#include "standin/model/model.h"
#include "standin/model/switch.h"
#include "standin/model/tables.h"
#include "standin/shell/commands.h"
#include "standin/shell/field_words.h"
#include "standin/text/unit_ports.h"

namespace standin {
namespace {

// Copies what the table of rules shows, so that nothing is printed under the lock.
template <class Body>
int on_rules(const CommandCall &call, Body &&body) {
    return on_switch("field show", call.unit(), [&](Switch &chip) {
        body(chip.field);
        return BCM_E_NONE;
    });
}

bool is_asked(const CommandCall &call, const char *param, int number) {
    return !call.has(param) || call.number(param) == number;
}

cmd_result_t end_table(const CommandCall &call, const Rows &rows, const char *param, int status) {
    if (status >= 0 && call.has(param) && rows.size() == 0) status = BCM_E_NOT_FOUND;
    if (status < 0) return report(call, status);
    rows.show();
    return kOk;
}

constexpr RowColumn kGroupColumns[] = {
    {"group", ">Group", CellKind::kNumber}, {"priority", ">Priority", CellKind::kNumber},
    {"mode", ">Mode", CellKind::kNumber},   {"enable", "Enabled", CellKind::kTruth},
    {"ports", "Ports", CellKind::kNumbers}, {"qset", "Qualifiers", CellKind::kText},
    {"aset", "Actions", CellKind::kText}};

cmd_result_t group_show(CommandCall &call) {
    const PortNames names = unit_ports(call.unit());
    Rows rows(kGroupColumns);
    const int status = on_rules(call, [&](const Field &field) {
        for (const auto &[id, one] : field.groups) {
            if (!is_asked(call, "GROUP", id)) continue;
            rows.row({id, one.priority, static_cast<int>(one.mode), one.enable != 0,
                      ports_cell(port_set_of(one.ports), names),
                      names_text(one.qualifiers.w, field_qualifier_names()),
                      names_text(one.actions.w, field_action_names())});
        }
    });
    return end_table(call, rows, "GROUP", status);
}

template <class Set>
void put_bits(Set &set, const std::vector<std::int32_t> &bits) {
    for (const std::int32_t bit : bits) set.w[bit / 32] |= 1U << (bit % 32);
}

// Without ports a group has all of them.
cmd_result_t group_create(CommandCall &call) {
    bcm_field_qset_t qualifiers{};
    put_bits(qualifiers, call["qualifiers"].numbers);
    const bcm_pbmp_t ports = call.has("ports") ? pbmp_of(call.given_ports("ports")) : kAllPorts;
    const auto mode = static_cast<bcm_field_group_mode_t>(call.number("mode"));
    const int priority = call.number("priority");
    bcm_field_group_t group = call.number("id");
    const int status = call.has("id") ? bcm_field_group_ports_create_mode_id(
                                            call.unit(), ports, qualifiers, priority, mode, group)
                                      : bcm_field_group_ports_create_mode(
                                            call.unit(), ports, qualifiers, priority, mode, &group);
    if (status >= 0 && !call.has("id")) outf("%d\n", group);
    return report(call, status);
}

cmd_result_t group_set(CommandCall &call) {
    const int group = call.number("GROUP");
    int status = BCM_E_NONE;
    if (call.has("actions")) {
        bcm_field_aset_t actions{};
        put_bits(actions, call["actions"].numbers);
        status = bcm_field_group_action_set(call.unit(), group, actions);
    }
    if (status >= 0 && call.has("presels")) {
        bcm_field_presel_set_t presels{};
        put_bits(presels, call["presels"].numbers);
        status = bcm_field_group_presel_set(call.unit(), group, &presels);
    }
    if (status >= 0 && call.has("priority"))
        status = bcm_field_group_priority_set(call.unit(), group, call.number("priority"));
    if (status >= 0 && call.has("enable"))
        status = bcm_field_group_enable_set(call.unit(), group, call.number("enable"));
    return report(call, status);
}

// A call that takes the unit and one number.
template <const char *param, int (*change)(int, int)>
cmd_result_t change_one(CommandCall &call) {
    return report(call, change(call.unit(), call.number(param)));
}
constexpr char kGroupWord[] = "GROUP";
constexpr char kRuleWord[] = "RULE";
constexpr char kCounterWord[] = "COUNTER";

constexpr RowColumn kEntryColumns[] = {
    {"entry", ">Rule", CellKind::kNumber},        {"group", ">Group", CellKind::kNumber},
    {"priority", ">Priority", CellKind::kNumber}, {"enable", "Enabled", CellKind::kTruth},
    {"installed", "Installed", CellKind::kTruth}, {"qualifiers", "Matches", CellKind::kText},
    {"actions", "Does", CellKind::kText},         {"stat", ">Counter", CellKind::kNumber},
    {"policers", "Policers", CellKind::kNumbers}};

std::vector<Cell> rule_cells(int id, const FieldEntry &rule, const PortNames &names) {
    std::string matches;
    const auto add = [](std::string &text, const std::string &more) {
        text += (text.empty() ? "" : "; ") + more;
    };
    for (const auto &[qualifier, bytes] : rule.qualifiers)
        add(matches, qualifier_words(qualifier.first, bytes));
    for (const auto &[qualifier, ranges] : rule.ranges)
        for (const auto &[range, turned] : ranges)
            add(matches, field_qualifier_names().name(qualifier, true) + (turned ? " not" : "") +
                             " range " + std::to_string(range));
    std::string does;
    for (const auto &[action, one] : rule.actions) add(does, action_words(action, one, names));
    Cell::Numbers policers;
    for (const auto &[level, policer] : rule.policers) policers.push_back(policer);
    return {id,
            rule.group,
            rule.priority,
            rule.enable != 0,
            rule.installed,
            matches,
            does,
            rule.stat ? Cell(*rule.stat) : Cell(),
            Cell(std::move(policers), "")};
}

cmd_result_t entry_show(CommandCall &call) {
    const PortNames names = unit_ports(call.unit());
    Rows rows(kEntryColumns);
    const int status = on_rules(call, [&](const Field &field) {
        for (const auto &[id, one] : field.entries)
            if (is_asked(call, kRuleWord, id) && is_asked(call, "group", one.group))
                rows.row(rule_cells(id, one, names));
    });
    return end_table(call, rows, kRuleWord, status);
}

cmd_result_t entry_create(CommandCall &call) {
    bcm_field_entry_t entry = call.number("id");
    const bool given = call.has("id");
    const int group = call.number("GROUP");
    int status = given ? bcm_field_entry_create_id(call.unit(), group, entry)
                       : bcm_field_entry_create(call.unit(), group, &entry);
    if (status >= 0 && call.has("priority"))
        status = bcm_field_entry_prio_set(call.unit(), entry, call.number("priority"));
    if (status >= 0 && !given) outf("%d\n", entry);
    return report(call, status);
}

cmd_result_t entry_set(CommandCall &call) {
    const int entry = call.number(kRuleWord);
    int status = BCM_E_NONE;
    if (call.has("priority"))
        status = bcm_field_entry_prio_set(call.unit(), entry, call.number("priority"));
    if (status >= 0 && call.has("enable"))
        status = bcm_field_entry_enable_set(call.unit(), entry, call.number("enable"));
    return report(call, status);
}

// Data and mask behind one another, as the calls of the qualifier keep them.
cmd_result_t do_qualify(CommandCall &call) {
    const auto width = static_cast<std::size_t>(call.number("width", 4));
    std::string bytes;
    for (const Value *one : call.all("VALUE")) {
        const std::optional<std::string> more = value_bytes(one->text, width);
        if (!more) {
            out_fault(call.name() + ' ' + one->text + ": " + kValueForms);
            return kUsage;
        }
        bytes += *more;
    }
    return report(call, set_qualifier("field qualify", call.unit(), call.number(kRuleWord),
                                      call.number("QUALIFIER"), {{bytes.data(), bytes.size()}}));
}

cmd_result_t do_unqualify(CommandCall &call) {
    const auto qualifier = static_cast<bcm_field_qualify_t>(call.number("QUALIFIER"));
    return report(call, bcm_field_qualifier_delete(call.unit(), call.number(kRuleWord), qualifier));
}

cmd_result_t do_action(CommandCall &call) {
    const int entry = call.number(kRuleWord);
    const auto action = static_cast<bcm_field_action_t>(call.number("ACTION"));
    if (call.has("mac")) {
        MacBytes mac = call["mac"].mac;
        return report(call, bcm_field_action_mac_add(call.unit(), entry, action, mac.data()));
    }
    if (call.has("ports"))
        return report(call, bcm_field_action_ports_add(call.unit(), entry, action,
                                                       pbmp_of(call.given_ports("ports"))));
    return report(call, bcm_field_action_add(call.unit(), entry, action,
                                             static_cast<uint32>(call["PARAM0"].number),
                                             static_cast<uint32>(call["PARAM1"].number)));
}

cmd_result_t do_inaction(CommandCall &call) {
    const auto action = static_cast<bcm_field_action_t>(call.number("ACTION"));
    return report(call, bcm_field_action_remove(call.unit(), call.number(kRuleWord), action));
}

constexpr RowColumn kStatColumns[] = {{"stat", ">Counter", CellKind::kNumber},
                                      {"group", ">Group", CellKind::kNumber},
                                      {"kind", "Counts", CellKind::kText},
                                      {"value", ">Value", CellKind::kNumber}};

cmd_result_t stat_show(CommandCall &call) {
    Rows rows(kStatColumns);
    const int status = on_rules(call, [&](const Field &field) {
        for (const auto &[id, one] : field.stats)
            for (const auto &[kind, value] : one.values)
                if (is_asked(call, kCounterWord, id))
                    rows.row(
                        {id, one.group, field_stat_names().name(kind, true), std::uint64_t{value}});
    });
    return end_table(call, rows, kCounterWord, status);
}

cmd_result_t stat_create(CommandCall &call) {
    std::vector<bcm_field_stat_t> kinds;
    for (const std::int32_t one : call["KINDS"].numbers)
        kinds.push_back(static_cast<bcm_field_stat_t>(one));
    int id = call.number("id");
    const int count = static_cast<int>(kinds.size());
    const int group = call.number("GROUP");
    const int status = call.has("id")
                           ? bcm_field_stat_create_id(call.unit(), group, count, kinds.data(), id)
                           : bcm_field_stat_create(call.unit(), group, count, kinds.data(), &id);
    if (status >= 0 && !call.has("id")) outf("%d\n", id);
    return report(call, status);
}

cmd_result_t stat_attach(CommandCall &call) {
    const auto action = static_cast<bcm_field_stat_action_t>(call.number("action"));
    return report(call, bcm_field_entry_stat_extended_attach(call.unit(), call.number(kRuleWord),
                                                             call.number(kCounterWord), action));
}

cmd_result_t stat_detach(CommandCall &call) {
    return report(call, bcm_field_entry_stat_detach(call.unit(), call.number(kRuleWord),
                                                    call.number(kCounterWord)));
}

cmd_result_t do_police(CommandCall &call) {
    return report(call,
                  bcm_field_entry_policer_attach(call.unit(), call.number(kRuleWord),
                                                 call.number("LEVEL"), call.number("POLICER")));
}

cmd_result_t do_unpolice(CommandCall &call) {
    return report(call, bcm_field_entry_policer_detach(call.unit(), call.number(kRuleWord),
                                                       call.number("LEVEL")));
}

constexpr RowColumn kRangeColumns[] = {{"range", ">Range", CellKind::kNumber},
                                       {"min", ">From", CellKind::kNumber},
                                       {"max", ">To", CellKind::kNumber},
                                       {"flags", ">Flags", CellKind::kNumber},
                                       {"if_group", nullptr, CellKind::kNumber}};

cmd_result_t range_show(CommandCall &call) {
    Rows rows(kRangeColumns);
    const int status = on_rules(call, [&](const Field &field) {
        for (const auto &[id, one] : field.ranges)
            for (const FieldRange::Part &part : one.parts)
                if (is_asked(call, "RANGE", static_cast<int>(id)))
                    rows.row({id, part.min, part.max, part.flags, one.interfaces});
    });
    return end_table(call, rows, "RANGE", status);
}

// Parts come as FROM-TO or FROM-TO:FLAGS.
cmd_result_t range_create(CommandCall &call) {
    std::vector<uint32> flags;
    std::vector<uint32> low;
    std::vector<uint32> high;
    for (const Value *one : call.all("PART")) {
        const std::optional<FieldRange::Part> part = read_part(one->text);
        if (!part) {
            out_fault(call.name() + ' ' + one->text + ": as 100-200 or 100-200:FLAGS");
            return kUsage;
        }
        flags.push_back(part->flags);
        low.push_back(part->min);
        high.push_back(part->max);
    }
    auto range = static_cast<bcm_field_range_t>(call.number("id"));
    const bool given = call.has("id");
    const int status = call.has("interfaces")
                           ? bcm_field_range_group_create_id(
                                 call.unit(), range, flags[0], static_cast<bcm_l4_port_t>(low[0]),
                                 static_cast<bcm_l4_port_t>(high[0]), call.number("interfaces"))
                           : bcm_field_range_multi_create(call.unit(), &range, given ? kWithId : 0,
                                                          static_cast<int>(flags.size()),
                                                          flags.data(), low.data(), high.data());
    if (status >= 0 && !given) outf("%d\n", range);
    return report(call, status);
}

bcm_field_range_t range_of(const CommandCall &call, const char *param) {
    return static_cast<bcm_field_range_t>(call.number(param));
}

cmd_result_t range_destroy(CommandCall &call) {
    return report(call, bcm_field_range_destroy(call.unit(), range_of(call, "RANGE")));
}

cmd_result_t range_check(CommandCall &call) {
    using Check = int (*)(int, bcm_field_entry_t, bcm_field_range_t, int);
    constexpr std::pair<int, Check> kChecks[] = {
        {bcmFieldQualifyRangeCheck, bcm_field_qualify_RangeCheck},
        {bcmFieldQualifyL4PortRangeCheck, bcm_field_qualify_L4PortRangeCheck},
        {bcmFieldQualifyVPortRangeCheck, bcm_field_qualify_VPortRangeCheck},
        {bcmFieldQualifyPacketLengthRangeCheck, bcm_field_qualify_PacketLengthRangeCheck}};
    for (const auto &[qualifier, check] : kChecks)
        if (qualifier == call.number("QUALIFIER"))
            return report(call, check(call.unit(), call.number(kRuleWord), range_of(call, "RANGE"),
                                      call.number("not")));
    return refuse(call, "no qualifier that tests ranges, as L4PortRangeCheck");
}

template <class Map>
std::vector<Candidate> list_keys(int unit, Map Field::*table) {
    std::vector<Candidate> all;
    on_switch("field show", unit, [&](Switch &chip) {
        for (const auto &one : chip.field.*table) all.push_back({std::to_string(one.first), ""});
        return BCM_E_NONE;
    });
    return all;
}
std::vector<Candidate> list_groups(int unit) { return list_keys(unit, &Field::groups); }
std::vector<Candidate> list_rules(int unit) { return list_keys(unit, &Field::entries); }
std::vector<Candidate> list_counters(int unit) { return list_keys(unit, &Field::stats); }
std::vector<Candidate> list_ranges(int unit) { return list_keys(unit, &Field::ranges); }

constexpr Param kGroup = place(kGroupWord, 0, INT32_MAX, "The group").there(list_groups);
constexpr Param kRule = place(kRuleWord, 0, INT32_MAX, "The rule").there(list_rules);
constexpr Param kCounter = place(kCounterWord, 0, INT32_MAX, "The counter").there(list_counters);
constexpr Param kRange = place("RANGE", 0, INT32_MAX, "The range").there(list_ranges);
constexpr Param kId = option("id", 0, INT32_MAX, "The number that it gets");
constexpr Param kQualifier =
    place("QUALIFIER", field_qualifier_names, false, 1023, "What is looked at");
constexpr Param kAction = place("ACTION", field_action_names, false, 1023, "What is done");

constexpr Param kGroupShow[] = {kGroup};
constexpr Param kGroupOnly[] = {kGroup.need()};
constexpr Param kGroupCreate[] = {
    option("qualifiers", field_qualifier_names, true, 1023, "What its rules may look at").need(),
    option("priority", INT32_MIN, INT32_MAX, "Which group goes first"),
    option("mode", INT32_MIN, INT32_MAX, "How wide its rules are"),
    option("ports", Kind::kPortList, "Where it holds"), kId};
constexpr Param kGroupSet[] = {
    kGroup.need(), option("actions", field_action_names, true, 1023, "What its rules may do"),
    option("priority", 0, INT32_MAX, "Which group goes first"),
    option("enable", Kind::kTruth, "Whether it is in force"),
    option("presels", field_presel_names, true, 1023, "When it is asked")};
constexpr Param kEntryShow[] = {kRule,
                                option("group", 0, INT32_MAX, "Of one group").there(list_groups)};
constexpr Param kEntryCreate[] = {
    kGroup.need(), option("priority", INT32_MIN, INT32_MAX, "Which rule goes first"), kId};
constexpr Param kEntrySet[] = {kRule.need(),
                               option("priority", INT32_MIN, INT32_MAX, "Which rule goes first"),
                               option("enable", Kind::kTruth, "Whether it is in force")};
constexpr Param kRuleOnly[] = {kRule.need()};
constexpr Param kQualify[] = {
    kRule.need(), kQualifier.need(),
    place("VALUE", Kind::kText, "The data, then the mask where it has one").need().many(),
    option("width", 1, 8, "The bytes of a number; 4 without")};
constexpr Param kRuleQualifier[] = {kRule.need(), kQualifier.need()};
constexpr Param kActionAdd[] = {kRule.need(),
                                kAction.need(),
                                place("PARAM0", 0, 0xffff'ffff, "Its first number"),
                                place("PARAM1", 0, 0xffff'ffff, "Its second number"),
                                option("mac", Kind::kMac, "Its address").among('a'),
                                option("ports", Kind::kPortList, "Its ports").among('a')};
constexpr Param kRuleAction[] = {kRule.need(), kAction.need()};
constexpr Param kStatShow[] = {kCounter};
constexpr Param kStatOnly[] = {kCounter.need()};
constexpr Param kStatCreate[] = {
    kGroup.need(), place("KINDS", field_stat_names, true, 1023, "What it counts").need(), kId};
constexpr Param kStatAttach[] = {kRule.need(), kCounter.need(),
                                 option("action", 0, INT32_MAX, "How it counts")};
constexpr Param kStatDetach[] = {kRule.need(), kCounter.need()};
constexpr Param kLevel = place("LEVEL", 0, INT32_MAX, "The level");
constexpr Param kPolice[] = {kRule.need(), kLevel.need(),
                             place("POLICER", 0, INT32_MAX, "The policer").need()};
constexpr Param kUnpolice[] = {kRule.need(), kLevel.need()};
constexpr Param kRangeShow[] = {kRange};
constexpr Param kRangeOnly[] = {kRange.need()};
constexpr Param kRangeCreate[] = {
    place("PART", Kind::kText, "FROM-TO, and the flags of it behind ':'").need().many(),
    option("interfaces", INT32_MIN, INT32_MAX, "The group of interfaces"), kId};
constexpr Param kRangeCheck[] = {kRule.need(), kQualifier.need(), kRange.need(),
                                 flag("not", "What is in none")};

constexpr Form kForms[] = {
    {"group show", "The groups", "field group show 1", group_show, kGroupShow, kGroupColumns},
    {"group create", "Make a group; without a number the shell prints the one it got",
     "field group create qualifiers=SrcIp,InPort priority=5 id=1", group_create, kGroupCreate},
    {"group set",
     "Change a group",
     "field group set 1 actions=Drop,CopyToCpu",
     group_set,
     kGroupSet,
     {},
     nullptr,
     true},
    {"group flush", "Remove the rules of a group", "field group flush 1",
     change_one<kGroupWord, bcm_field_group_flush>, kGroupOnly},
    {"group destroy", "Remove a group without rules", "field group destroy 1",
     change_one<kGroupWord, bcm_field_group_destroy>, kGroupOnly},
    {"entry show", "The rules", "field entry show group=1", entry_show, kEntryShow, kEntryColumns},
    {"entry create",
     "Make a rule; without a number the shell prints the one it got",
     "field entry create 1 priority=10 id=7",
     entry_create,
     kEntryCreate,
     {},
     nullptr,
     true},
    {"entry set",
     "Change a rule",
     "field entry set 7 enable=no",
     entry_set,
     kEntrySet,
     {},
     nullptr,
     true},
    {"entry destroy", "Remove a rule", "field entry destroy 7",
     change_one<kRuleWord, bcm_field_entry_destroy>, kRuleOnly},
    {"qualify", "What a rule matches", "field qualify 7 SrcIp 10.0.0.0 255.0.0.0", do_qualify,
     kQualify},
    {"unqualify", "Match something no more", "field unqualify 7 SrcIp", do_unqualify,
     kRuleQualifier},
    {"action add", "What a rule does", "field action add 7 Drop", do_action, kActionAdd},
    {"action remove", "Do something no more", "field action remove 7 Drop", do_inaction,
     kRuleAction},
    {"install", "Put a rule into the hardware", "field install 7",
     change_one<kRuleWord, bcm_field_entry_install>, kRuleOnly},
    {"remove", "Take a rule out of the hardware", "field remove 7",
     change_one<kRuleWord, bcm_field_entry_remove>, kRuleOnly},
    {"stat show", "The counters", "field stat show 3", stat_show, kStatShow, kStatColumns},
    {"stat create", "Make a counter; without a number the shell prints the one it got",
     "field stat create 1 Packets,Bytes id=3", stat_create, kStatCreate},
    {"stat attach", "Let a rule count", "field stat attach 7 3", stat_attach, kStatAttach},
    {"stat detach", "Let a rule count no more", "field stat detach 7 3", stat_detach, kStatDetach},
    {"stat destroy", "Remove a counter", "field stat destroy 3",
     change_one<kCounterWord, bcm_field_stat_destroy>, kStatOnly},
    {"police", "Let a policer measure what a rule matches", "field police 7 0 4", do_police,
     kPolice},
    {"unpolice", "Measure no more", "field unpolice 7 0", do_unpolice, kUnpolice},
    {"range show", "The ranges", "field range show 2", range_show, kRangeShow, kRangeColumns},
    {"range create", "Make a range; without a number the shell prints the one it got",
     "field range create 100-200 id=2", range_create, kRangeCreate},
    {"range check", "Let a rule match what is in a range", "field range check 7 L4PortRangeCheck 2",
     range_check, kRangeCheck},
    {"range destroy", "Remove a range", "field range destroy 2", range_destroy, kRangeOnly}};
constexpr Command kField =
    configuring({"field", "The rule engine", kForms, "", false,
                 "A value that a rule matches is a number, an address, or hex: and its bytes."});

constexpr const Command *kCommands[] = {&kField};
static_assert(complete(kCommands));

}  // namespace

std::span<const Command *const> field_commands() { return kCommands; }

}  // namespace standin
