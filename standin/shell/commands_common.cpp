// What several commands share: status texts, cells of ports, patterns of names.
#include <fnmatch.h>

#include "standin/base/output.h"
#include "standin/base/scan.h"
#include "standin/model/refusal.h"
#include "standin/shell/commands.h"
#include "standin/text/name_text.h"
#include "standin/text/unit_ports.h"

namespace standin {
namespace {

// By the negative of a status.
constexpr const char *kMeanings[] = {"well",
                                     "an internal error",
                                     "out of memory",
                                     "no such unit",
                                     "a bad parameter",
                                     "the table is empty",
                                     "the table is full",
                                     "it is not there",
                                     "it is there already",
                                     "it took too long",
                                     "it is in use",
                                     "it failed",
                                     "it is switched off",
                                     "a bad identifier",
                                     "out of room",
                                     "it does not fit the configuration",
                                     "not available",
                                     "not initialised: 'init' does it",
                                     "no such port"};

}  // namespace

std::string status_text(int status) {
    static const NameFamily &names = *new NameFamily("BCM_E_");
    return names.name(status, false);
}

std::string status_meaning(int status) {
    const auto place = static_cast<std::size_t>(-std::int64_t{status});
    std::string text = status_text(status);
    if (place < std::size(kMeanings)) text += std::string(": ") + kMeanings[place];
    // "call(unit): STATUS: why"; another status is another call's.
    const std::string refusal = last_refusal();
    const std::string brief = "): " + text.substr(0, text.find(':')).erase(0, 6) + ": ";
    const std::size_t at = refusal.find(brief);
    return at == std::string::npos ? text : text + "; " + refusal.substr(at + brief.size());
}

cmd_result_t report(const CommandCall &call, int status) {
    return status >= 0 ? kOk : refuse(call, status_meaning(status));
}

cmd_result_t refuse(const CommandCall &call, const std::string &text) {
    out_fault(call.name() + ": " + text);
    return kFail;
}

Cell ports_cell(const PortSet &ports, const PortNames &names) {
    Cell::Numbers numbers;
    for (std::size_t at = 0; at < ports.size(); ++at)
        if (ports[at]) numbers.push_back(static_cast<std::int64_t>(at));
    return {std::move(numbers), port_list_text(ports, names)};
}

Cell port_cell(int port, const PortNames &names) {
    return {std::int64_t{port}, port_text(port, names)};
}

cmd_result_t for_ports(const PortSet &ports, const std::function<cmd_result_t(int)> &each) {
    for (std::size_t at = 0; at < ports.size(); ++at) {
        if (!ports[at]) continue;
        cmd_result_t result = each(static_cast<int>(at));
        if (result != kOk) return result;
    }
    return kOk;
}

bool name_matches(std::string_view name, const std::string &pattern) {
    std::string text = lower_case(name);
    std::string wanted = lower_case(pattern);
    if (wanted.find_first_of("*?[") == std::string::npos)
        return text.find(wanted) != std::string::npos;
    return fnmatch(wanted.c_str(), text.c_str(), 0) == 0;
}

}  // namespace standin
