// One row for each kind of word: its name, an example, how it is read, and what there is of it.
#include "standin/shell/values.h"

#include <arpa/inet.h>
#include <glob.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>

#include "sdk/soc/reg.h"
#include "standin/base/config_store.h"
#include "standin/base/number_text.h"
#include "standin/base/scan.h"
#include "standin/shell/commands.h"
#include "standin/shell/fields.h"
#include "standin/shell/session.h"
#include "standin/text/identifier_text.h"
#include "standin/text/name_text.h"
#include "standin/text/unit_ports.h"

namespace standin {
namespace {

using Fault = std::optional<ValueFault>;
using Read = Fault (*)(const Param &, std::string_view, const Context &, Value &);
using List = std::vector<Candidate> (*)(const Param &, std::string_view, const Context &);

Fault wrong(const Param &param) { return ValueFault{right_there(param)}; }

Fault read_text(const Param &, std::string_view, const Context &, Value &) { return std::nullopt; }

Fault read_number(const Param &param, std::string_view word, const Context &, Value &value) {
    const bool minus = word.starts_with('-');
    const std::optional<bool> truth = read_truth(word);  // yes is 1, no is 0
    const std::optional<std::uint64_t> size = read_u64(minus ? word.substr(1) : word);
    if (!size && truth) {
        value.number = *truth ? 1 : 0;
        return value.number < param.low || value.number > param.high ? wrong(param) : std::nullopt;
    }
    if (!size || *size > 0x7fffffffffffffffU) return wrong(param);
    value.number = static_cast<std::int64_t>(*size) * (minus ? -1 : 1);
    return value.number < param.low || value.number > param.high ? wrong(param) : std::nullopt;
}

Fault read_truth_word(const Param &param, std::string_view word, const Context &, Value &value) {
    const std::optional<bool> truth = read_truth(word);
    const std::optional<std::uint64_t> number = read_u64(word);
    if (!truth || number.value_or(0) > 1) return wrong(param);
    value.number = *truth ? 1 : 0;
    return std::nullopt;
}

Fault read_choice(const Param &param, std::string_view word, const Context &context, Value &value) {
    const std::optional<std::size_t> at = one_of(param.words, word, context.prompt);
    if (!at) {
        const std::string near =
            nearest(word, std::vector<std::string>(param.words.begin(), param.words.end()));
        return ValueFault{right_there(param) +
                          (near.empty() ? "" : "; did you mean '" + near + "'?")};
    }
    value.number = static_cast<std::int64_t>(*at);
    value.text = param.words[*at];
    return std::nullopt;
}

Fault read_one_port(const Param &param, std::string_view word, const Context &context,
                    Value &value) {
    const PortNames names = unit_ports(context.unit);
    const std::optional<std::int32_t> gport = read_gport(word, names);
    if (!gport) return wrong(param);
    const bool local = gport_type(*gport) == 0 || gport_type(*gport) == kLocalGport.type;
    const int port = plain_port(*gport);
    const bool there = std::any_of(names.begin(), names.end(),
                                   [port](const PortName &one) { return one.port == port; });
    value.number = *gport;
    if (!local || there || names.empty()) return std::nullopt;
    return ValueFault{"no port " + std::to_string(port), true};
}

Fault read_ports(const Param &, std::string_view word, const Context &context, Value &value) {
    const PortNames names = unit_ports(context.unit);
    if (names.empty())
        return ValueFault{"unit " + std::to_string(context.unit) + " has no ports", true};
    std::string fault;
    const std::optional<PortSet> ports = read_port_list(word, names, fault);
    if (!ports) return ValueFault{fault, true};
    PortSet there;
    for (const PortName &one : names) there.set(static_cast<std::size_t>(one.port));
    value.ports = *ports;
    const PortSet absent = *ports & ~there;
    if (absent.none()) return std::nullopt;
    return ValueFault{"no port " + std::to_string(absent._Find_first()), true};
}

Fault read_mac_word(const Param &param, std::string_view word, const Context &, Value &value) {
    const std::optional<MacBytes> mac = read_mac(word);
    if (!mac) return wrong(param);
    value.mac = *mac;
    return std::nullopt;
}

Fault read_address(const Param &param, std::string_view word, const Context &, Value &value) {
    std::string_view head;
    std::string_view length;
    const bool has_length = cut(word, '/', head, length);
    const bool ip6 = head.find(':') != std::string_view::npos;
    if (has_length != (param.kind == Kind::kPrefix)) return wrong(param);
    value.ip = {};
    value.ip.ip6 = ip6;
    const std::optional<std::uint32_t> ip4 = ip6 ? std::nullopt : read_ip(head);
    if (ip4) value.ip = ip4_address(*ip4);
    if (!ip4 &&
        (!ip6 || ::inet_pton(AF_INET6, std::string(head).c_str(), value.ip.bytes.data()) != 1))
        return wrong(param);
    if (!has_length) return std::nullopt;
    const std::optional<std::uint32_t> bits = read_u32(length);
    if (!bits || *bits > (ip6 ? 128U : 32U)) return wrong(param);
    value.number = static_cast<std::int64_t>(*bits);
    return std::nullopt;
}

Fault read_register(const Param &, std::string_view word, const Context &context, Value &) {
    if (read_register_ref(word, unit_ports(context.unit))) return std::nullopt;
    return ValueFault{"no register '" + std::string(word) + '\'', true};
}

Fault read_memory(const Param &, std::string_view word, const Context &, Value &) {
    if (read_memory_ref(word)) return std::nullopt;
    return ValueFault{"no memory '" + std::string(word) + '\'', true};
}

Fault read_wide(const Param &param, std::string_view word, const Context &, Value &) {
    std::array<std::uint32_t, 64> words{};
    return read_words(word, words) ? std::nullopt : wrong(param);
}

Fault read_pair(const Param &param, std::string_view word, const Context &, Value &) {
    return word.find('=') != std::string_view::npos && word.front() != '=' ? std::nullopt
                                                                           : wrong(param);
}

Fault read_field_word(const Param &, std::string_view word, const Context &context, Value &) {
    const std::optional<std::string> fault =
        write_field(fields_of(*context.call), word, unit_ports(context.unit), nullptr);
    return fault ? Fault(ValueFault{*fault}) : std::nullopt;
}

Fault read_names(const Param &param, std::string_view word, const Context &, Value &value) {
    const NameFamily &names = param.names();
    if (param.kind == Kind::kNames && same_word(word, "none")) return std::nullopt;
    for (std::string_view one : split(word, param.kind == Kind::kNames ? "," : "")) {
        const std::optional<std::int32_t> number = names.value(one);
        if (number && *number >= 0 && *number <= param.high) {
            value.numbers.push_back(*number);
            continue;
        }
        std::vector<std::string> all;
        for (const auto &[id, name] : names.all()) all.push_back(name);
        const std::string near = nearest(one, all);
        return ValueFault{"no '" + std::string(one) + '\'' +
                          (near.empty() ? "; '?' lists them" : "; did you mean '" + near + "'?")};
    }
    if (value.numbers.empty()) return wrong(param);
    value.number = value.numbers.front();
    return std::nullopt;
}

Fault read_variable(const Param &param, std::string_view word, const Context &, Value &) {
    const bool good = !word.empty() && !is_digit(word.front()) &&
                      std::all_of(word.begin(), word.end(),
                                  [](char sign) { return is_alnum(sign) || sign == '_'; });
    return good ? std::nullopt : wrong(param);
}

Fault read_unit(const Param &param, std::string_view word, const Context &, Value &value) {
    const std::optional<std::int32_t> unit = read_i32(word);
    if (!unit) return wrong(param);
    value.number = *unit;
    if (unit_attached(*unit)) return std::nullopt;
    return ValueFault{"unit " + std::string(word) + " is not attached", true};
}

std::vector<Candidate> no_list(const Param &, std::string_view, const Context &) { return {}; }

std::vector<Candidate> list_truths(const Param &, std::string_view, const Context &) {
    return {{"yes", ""}, {"no", ""}};
}

std::vector<Candidate> list_choices(const Param &param, std::string_view, const Context &) {
    std::vector<Candidate> all;
    for (const char *word : param.words) all.push_back({word, ""});
    return all;
}

// The last member of a list that is being typed; what stands before it is kept.
std::vector<Candidate> list_ports(const Param &param, std::string_view begun,
                                  const Context &context) {
    std::vector<Candidate> all;
    std::size_t from = begun.find_last_of(",-!~");
    if (param.kind == Kind::kPort || from == std::string_view::npos)
        from = 0;
    else
        ++from;
    const std::string head(begun.substr(0, from));
    for (const PortName &one : unit_ports(context.unit))
        all.push_back({head + one.name, "port " + std::to_string(one.port)});
    if (param.kind == Kind::kPortList && head.empty()) {
        all.push_back({"all", "every port"});
        all.push_back({"none", "no port"});
    }
    return all;
}

std::vector<Candidate> list_identifiers(Identifier kind) {
    std::vector<Candidate> all;
    for (const IdentifierName &one : identifiers(kind))
        all.push_back({std::string(one.name), "number " + std::to_string(one.id)});
    return all;
}

std::vector<Candidate> list_registers(const Param &, std::string_view, const Context &) {
    return list_identifiers(Identifier::kRegister);
}

std::vector<Candidate> list_memories(const Param &, std::string_view, const Context &) {
    return list_identifiers(Identifier::kMemory);
}

// The fields of the register that stands before.
std::vector<Candidate> list_register_fields(const Param &, std::string_view,
                                            const Context &context) {
    std::vector<Candidate> all;
    if (context.call == nullptr || !context.call->has("REGISTER")) return all;
    const auto ref = read_register_ref(context.call->text("REGISTER"), unit_ports(context.unit));
    if (!ref || ref->address) return all;
    for (const IdentifierName &one : identifiers(Identifier::kField)) {
        if (soc_reg_field_valid(context.unit, ref->reg, one.id) == 0) continue;
        const int bits = soc_reg_field_length(context.unit, ref->reg, one.id);
        all.push_back(
            {std::string(one.name) + '=', text_of("%d bit%s", bits, bits == 1 ? "" : "s")});
    }
    return all;
}

std::vector<Candidate> list_struct_fields(const Param &, std::string_view, const Context &context) {
    return context.call == nullptr ? std::vector<Candidate>{}
                                   : list_fields(fields_of(*context.call));
}

std::vector<Candidate> list_constants(const Param &param, std::string_view begun, const Context &) {
    const std::size_t comma = param.kind == Kind::kNames ? begun.rfind(',') : begun.npos;
    const std::string head(begun.substr(0, comma == begun.npos ? 0 : comma + 1));
    std::vector<Candidate> all;
    for (const auto &[id, name] : param.names().all())
        if (id >= 0 && id <= param.high) all.push_back({head + name, std::to_string(id)});
    return all;
}

std::vector<Candidate> list_files(const Param &, std::string_view begun, const Context &) {
    std::vector<Candidate> all;
    std::string pattern;
    for (char sign : begun) {
        if (std::string_view("*?[\\").find(sign) != std::string_view::npos) pattern += '\\';
        pattern += sign;
    }
    glob_t found{};
    if (::glob((pattern + '*').c_str(), GLOB_MARK, nullptr, &found) == 0)
        for (std::size_t at = 0; at < found.gl_pathc; ++at) all.push_back({found.gl_pathv[at], ""});
    ::globfree(&found);
    return all;
}

std::vector<Candidate> list_variables(const Param &, std::string_view, const Context &) {
    std::vector<Candidate> all;
    for (const auto &[name, value] : Shell::instance().variables()) all.push_back({name, value});
    return all;
}

std::vector<Candidate> list_settings(const Param &param, std::string_view, const Context &) {
    std::vector<Candidate> all;
    const char *end = param.kind == Kind::kSettings ? "=" : "";
    for (const ConfigEntry &one : config_entries()) all.push_back({one.name + end, one.value});
    return all;
}

std::vector<Candidate> list_units(const Param &, std::string_view, const Context &) {
    std::vector<Candidate> all;
    for (int unit : attached_units()) all.push_back({std::to_string(unit), ""});
    return all;
}

std::vector<Candidate> list_commands(const Param &, std::string_view, const Context &) {
    std::vector<Candidate> all;
    for (const Command *one : all_commands()) all.push_back({one->name, one->help});
    return all;
}

struct KindRow {
    Kind kind;
    const char *name;   // for a usage line; null: the parameter's own name
    const char *right;  // what is right; null: made from the parameter
    const char *example;
    Read read;
    List list;
};
constexpr KindRow kKinds[] = {
    {Kind::kText, nullptr, "any word", "word", read_text, no_list},
    {Kind::kNumber, nullptr, nullptr, nullptr, read_number, no_list},
    {Kind::kTruth, "yes|no", "yes or no", "yes", read_truth_word, list_truths},
    {Kind::kChoice, nullptr, nullptr, nullptr, read_choice, list_choices},
    {Kind::kPort, "PORT", "a port, as xe1, 3 or trunk.7", "xe1", read_one_port, list_ports},
    {Kind::kPortList, "PORTS", "ports, as xe1-xe4,9", "xe1-xe4", read_ports, list_ports},
    {Kind::kMac, "MAC", "a MAC address, as 02:00:00:00:00:0a", "02:00:00:00:00:0a", read_mac_word,
     no_list},
    {Kind::kIp, "IP", "an address, as 10.0.0.1 or fd00::1", "10.0.0.1", read_address, no_list},
    {Kind::kPrefix, "IP/LENGTH", "an address and a length, as 10.0.0.0/8 or fd00::/16",
     "10.0.0.0/8", read_address, no_list},
    {Kind::kRegister, nullptr, "a register, as NAME, NAME.PORTS, NAME[INDEX] or 0x1a40",
     "CLP_XMAC_PAUSE_CTRL.xe1", read_register, list_registers},
    {Kind::kMemory, nullptr, "a memory, as NAME or NAME[3]", "IHP_RESERVED_MC", read_memory,
     list_memories},
    {Kind::kFieldValue, nullptr, "a field and its value, as RX_PAUSE_EN=1", "RX_PAUSE_EN=1",
     read_pair, list_register_fields},
    {Kind::kStructField, nullptr, "a field of the structure and its value", "flags=1",
     read_field_word, list_struct_fields},
    {Kind::kName, "NAME", "a name or its number", "Drop", read_names, list_constants},
    {Kind::kNames, "NAMES", "names or numbers, with commas between", "SrcIp,DstIp", read_names,
     list_constants},
    {Kind::kWide, nullptr, "a number of any width", "0x1f", read_wide, no_list},
    {Kind::kSettings, nullptr, "a name and a value, as port_speed.1=25000", "port_speed.1=25000",
     read_pair, list_settings},
    {Kind::kFile, nullptr, "a file", "switch.rc", read_text, list_files},
    {Kind::kVariable, nullptr, "a name of letters, digits and '_'", "name", read_variable,
     list_variables},
    {Kind::kConfig, nullptr, "a setting", "port_speed.1", read_text, list_settings},
    {Kind::kUnit, nullptr, "a unit", "0", read_unit, list_units},
    {Kind::kCommand, nullptr, "a command", "vlan", read_text, list_commands},
    {Kind::kLine, nullptr, "commands in quotes", "'ps xe1; l2'", read_text, no_list},
    {Kind::kRest, nullptr, "a command", "counters xe1", read_text, list_commands},
};

const KindRow &row_of(Kind kind) { return kKinds[static_cast<std::size_t>(kind)]; }

constexpr bool in_order() {
    for (std::size_t at = 0; at < std::size(kKinds); ++at)
        if (kKinds[at].kind != static_cast<Kind>(at)) return false;
    return std::size(kKinds) == static_cast<std::size_t>(Kind::kRest) + 1;
}
static_assert(in_order());

// How many signs have to be changed, added, dropped or swapped.
std::size_t distance(std::string_view left, std::string_view right) {
    std::vector<std::vector<std::size_t>> cost(left.size() + 1,
                                               std::vector<std::size_t>(right.size() + 1));
    for (std::size_t at = 0; at <= left.size(); ++at) {
        for (std::size_t to = 0; to <= right.size(); ++to) {
            if (at == 0 || to == 0) {
                cost[at][to] = at + to;
                continue;
            }
            const bool same = to_lower(left[at - 1]) == to_lower(right[to - 1]);
            cost[at][to] = std::min({cost[at - 1][to] + 1, cost[at][to - 1] + 1,
                                     cost[at - 1][to - 1] + (same ? 0 : 1)});
            if (at > 1 && to > 1 && left[at - 1] == right[to - 2] && left[at - 2] == right[to - 1])
                cost[at][to] = std::min(cost[at][to], cost[at - 2][to - 2] + 1);
        }
    }
    return cost[left.size()][right.size()];
}

}  // namespace

std::optional<ValueFault> read_value(const Param &param, std::string_view word,
                                     const Context &context, Value &value) {
    value.text = word;
    return row_of(param.kind).read(param, word, context, value);
}

std::string list_text(const std::vector<std::string> &words) {
    std::string text;
    for (std::size_t at = 0; at < words.size(); ++at)
        text += (at == 0 ? "" : at + 1 == words.size() ? " or " : ", ") + words[at];
    return text;
}

std::string right_there(const Param &param) {
    if (param.kind == Kind::kNumber && param.high == INT64_MAX) return "a number";
    if (param.kind == Kind::kNumber)
        return std::to_string(param.low) + " to " + std::to_string(param.high);
    if (param.kind == Kind::kChoice)
        return list_text(std::vector<std::string>(param.words.begin(), param.words.end()));
    return row_of(param.kind).right;
}

std::string placeholder(const Param &param) {
    if (param.how == Param::How::kPlace) return param.name;
    if (param.kind == Kind::kNumber) return "N";
    if (param.kind == Kind::kChoice) {
        std::string text;
        for (const char *word : param.words) text += (text.empty() ? "" : "|") + std::string(word);
        return text.size() > 40 ? "WORD" : text;
    }
    const char *name = row_of(param.kind).name;
    return name == nullptr ? "WORD" : name;
}

std::string example_of(const Param &param) {
    std::string value;
    if (param.kind == Kind::kNumber)
        value = std::to_string(std::min(std::max<std::int64_t>(param.low, 10), param.high));
    else if (param.kind == Kind::kChoice)
        value = param.words.empty() ? "word" : param.words.front();
    else
        value = row_of(param.kind).example;
    if (param.how == Param::How::kFlag) return param.name;
    return param.how == Param::How::kOption ? std::string(param.name) + '=' + value : value;
}

std::vector<Candidate> candidates(const Param &param, std::string_view begun,
                                  const Context &context) {
    std::vector<Candidate> all = param.list != nullptr
                                     ? param.list(context.unit)
                                     : row_of(param.kind).list(param, begun, context);
    std::erase_if(all, [&](const Candidate &one) { return !starts_with_word(one.word, begun); });
    return all;
}

std::optional<std::size_t> one_of(std::span<const char *const> words, std::string_view word,
                                  bool prefix) {
    std::optional<std::size_t> found;
    bool unique = true;
    for (std::size_t at = 0; at < words.size(); ++at) {
        if (same_word(words[at], word)) return at;
        if (!prefix || word.empty() || !starts_with_word(words[at], word)) continue;
        unique = !found;
        found = at;
    }
    return unique ? found : std::nullopt;
}

std::string nearest(std::string_view word, const std::vector<std::string> &words) {
    std::string best;
    if (word.size() > 40) return best;
    std::size_t least = std::max<std::size_t>(word.size() / 3, 1) + 1;
    for (const std::string &one : words) {
        const std::size_t far = one.size() > 40 ? least : distance(word, one);
        if (far >= least || far >= one.size()) continue;
        least = far;
        best = one;
    }
    return best;
}

}  // namespace standin
