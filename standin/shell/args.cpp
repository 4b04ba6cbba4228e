// Taking words off a command's arguments, and storing options by key.
#include "standin/shell/args.h"

#include <algorithm>

#include "sdk/constants.h"
#include "sdk/diag/parse.h"
#include "standin/base/number_text.h"
#include "standin/base/output.h"
#include "standin/base/scan.h"
#include "standin/text/unit_ports.h"

using namespace standin;

namespace {

// Stores what a reader found.
template <class T, class V>
bool keep(std::optional<T> &value, const std::optional<V> &found) {
    if (found) value = *found;
    return found.has_value();
}

bool is_there(int port, const PortNames &names) {
    if (names.empty()) return true;
    return std::any_of(names.begin(), names.end(),
                       [port](const PortName &entry) { return entry.port == port; });
}

// A global port, which is one of the unit's where it names a local one.
std::optional<std::int32_t> read_port_there(std::string_view text, const PortNames &names) {
    std::optional<std::int32_t> gport = read_gport(text, names);
    bool local = gport && (gport_type(*gport) == 0 || gport_type(*gport) == kLocalGport.type);
    if (local && !is_there(plain_port(*gport), names)) return std::nullopt;
    return gport;
}

}  // namespace

std::optional<PortSet> standin::read_ports_there(std::string_view text, const PortNames &names,
                                                 std::string &fault) {
    std::optional<PortSet> ports = read_port_list(text, names, fault);
    for (std::size_t at = 0; ports && at < ports->size(); ++at) {
        int port = static_cast<int>(at);
        if (!(*ports)[at] || is_there(port, names)) continue;
        fault = "no port " + std::to_string(port);
        return std::nullopt;
    }
    return ports;
}

std::optional<std::string> args_s::peek() const {
    return empty() ? std::nullopt : std::optional(words[next]);
}

std::optional<std::string> args_s::take() {
    std::optional<std::string> word = peek();
    if (word) ++next;
    return word;
}

bool args_s::take_word(std::string_view word) {
    bool it_is = !empty() && same_word(words[next], word);
    if (it_is) ++next;
    return it_is;
}

std::string args_s::take_rest() {
    std::string rest;
    while (!empty()) {
        if (!rest.empty()) rest += ' ';
        rest += words[next++];
    }
    return rest;
}

parse_table_s::parse_table_s(int unit) : names_(unit_ports(unit)) {}

void parse_table_s::add(std::string key, std::optional<std::int32_t> &value) {
    options_.push_back({std::move(key), false, [&value](std::string_view text) {
                            if (std::optional<bool> truth = read_truth(text)) value = *truth;
                            return keep(value, read_i32(text)) || read_truth(text).has_value();
                        }});
}

void parse_table_s::add(std::string key, std::optional<std::string> &value) {
    options_.push_back({std::move(key), false, [&value](std::string_view text) {
                            value = std::string(text);
                            return true;
                        }});
}

void parse_table_s::add(std::string key, std::optional<PortSet> &value) {
    options_.push_back({std::move(key), false, [this, &value](std::string_view text) {
                            std::string reason;
                            return keep(value, read_ports_there(text, names_, reason));
                        }});
}

void parse_table_s::add(std::string key, std::optional<MacBytes> &value) {
    options_.push_back({std::move(key), false,
                        [&value](std::string_view text) { return keep(value, read_mac(text)); }});
}

void parse_table_s::add_port(std::string key, std::optional<std::int32_t> &value) {
    options_.push_back({std::move(key), false, [this, &value](std::string_view text) {
                            return keep(value, read_port_there(text, names_));
                        }});
}

void parse_table_s::add_flag(std::string key, bool &value) {
    options_.push_back({std::move(key), true, [&value](std::string_view text) {
                            std::optional<bool> truth = read_truth(text);
                            if (truth) value = *truth;
                            return truth.has_value();
                        }});
}

bool parse_table_s::read(std::string_view word) {
    std::string_view key;
    std::string_view value;
    bool has_value = cut(word, '=', key, value);
    for (const Option &option : options_) {
        if (!same_word(option.key, key) || !(has_value || option.flag)) continue;
        if (!option.set(has_value ? value : "yes") && fault_.empty())
            fault_ = "bad value in '" + std::string(word) + "'";
        return true;
    }
    return false;
}

void parse_table_s::parse(args_s &args) {
    std::vector<std::string> left(args.words.begin(),
                                  args.words.begin() + static_cast<std::ptrdiff_t>(args.next));
    for (std::size_t at = args.next; at < args.words.size(); ++at)
        if (!read(args.words[at])) left.push_back(args.words[at]);
    args.words = std::move(left);
}

int parseEndOk(args_t *arg1, parse_table_t *arg2, cmd_result_t *arg3) {
    std::string fault = arg2 != nullptr ? arg2->fault() : "no table";
    if (arg1 == nullptr) fault = "no arguments";
    if (fault.empty() && !arg1->empty()) fault = "unknown option '" + *arg1->peek() + "'";
    if (arg3 != nullptr) *arg3 = static_cast<cmd_result_t>(fault.empty() ? CMD_OK : CMD_USAGE);
    if (fault.empty()) return 1;
    if (arg1 != nullptr && arg2 != nullptr) outf("%s: %s\n", arg1->command.c_str(), fault.c_str());
    return 0;
}
