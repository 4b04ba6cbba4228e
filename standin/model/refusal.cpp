// Sentences of refusals, and chapters that are stopped.
#include "standin/model/refusal.h"

#include <algorithm>
#include <new>

#include "standin/base/log.h"
#include "standin/model/rule_changes.h"
#include "standin/model/switch.h"

namespace standin {
namespace {

struct Refusal {
    const char *function = nullptr;
    int unit = 0;
    int status = 0;
    std::string why;
};

std::uint64_t changes_of_rules = 0;

thread_local Refusal running;
thread_local Refusal last;

// By the negative of a status.
constexpr const char *kStatusNames[] = {"NONE",   "INTERNAL", "MEMORY",    "UNIT",   "PARAM",
                                        "EMPTY",  "FULL",     "NOT_FOUND", "EXISTS", "TIMEOUT",
                                        "BUSY",   "FAIL",     "DISABLED",  "BADID",  "RESOURCE",
                                        "CONFIG", "UNAVAIL",  "INIT",      "PORT"};

std::string sentence(const Refusal &one) {
    if (one.function == nullptr) return "";
    std::string text = std::string(one.function) + "(" + std::to_string(one.unit) + "): ";
    const auto place = static_cast<std::size_t>(-one.status);
    text += place < std::size(kStatusNames) ? kStatusNames[place] : std::to_string(one.status);
    return one.why.empty() ? text : text + ": " + one.why;
}

// "bcm_l2_" for "bcm_l2_detach"; empty for a name with more words, and for ports, whose `_detach`
// is about some ports of them.
std::string_view chapter_of(std::string_view function, std::string_view last_word) {
    if (!function.starts_with("bcm_") || !function.ends_with(last_word)) return {};
    function.remove_suffix(last_word.size());
    const std::string_view word = function.substr(4);
    const bool whole = word.size() > 1 && word.find('_') == word.size() - 1;
    return whole && word != "port_" ? function : std::string_view();
}

}  // namespace

CallRecord::CallRecord(const char *function, int unit) : function_(function), unit_(unit) {
    running.why.clear();
}

int CallRecord::close(int status) const {
    if (status >= 0) return status;
    last.function = function_;
    last.unit = unit_;
    last.status = status;
    last.why.swap(running.why);
    try {
        if (log_level(kLayerBcm, kSourceApi) >= kSeverityInfo)
            log_message(kSeverityInfo, kLayerBcm, kSourceApi, kNoUnit, sentence(last));
    } catch (const std::bad_alloc &) {  // a refusal for want of memory stays one
    }
    return status;
}

int refused(int status, std::string why) {
    running.why = std::move(why);
    return status;
}

int refused_port(std::string_view field, int port) {
    return refused(BCM_E_PORT, "field " + std::string(field) + " is " + std::to_string(port) +
                                   ", a unit has 0 to " + std::to_string(kPorts - 1));
}

int refused_ports(const bcm_pbmp_t &ports) {
    int port = kPorts;
    while (port < 32 * _SHR_PBMP_WORDS - 1 && !has_port(ports, port)) ++port;
    return refused_port("pbmp", port);
}

std::string last_refusal() { return sentence(last); }

void forget_refusal() { last = {}; }

std::uint64_t rule_changes() { return changes_of_rules; }
void note_rule_change() { ++changes_of_rules; }

bool is_stopped(const Switch &chip, const char *function) {
    if (chip.stopped.empty()) return false;
    const std::string_view name = function;
    return std::ranges::any_of(chip.stopped, [&](const std::string &chapter) {
        return name.starts_with(chapter) && name.substr(chapter.size()) != "init";
    });
}

void note_chapter(Switch &chip, const char *function) {
    const std::string_view name = function;
    if (name.starts_with("bcm_field_") && !name.ends_with("_get") &&
        !name.starts_with("bcm_field_stat_"))
        note_rule_change();
    for (const std::string_view last_word : {"detach", "cleanup"})
        if (const std::string_view chapter = chapter_of(function, last_word); !chapter.empty()) {
            chip.stopped.emplace(chapter);
            for (const RegistrationRow &one : registrations())
                if (one.chapter == chapter) chip.events.handlers.remove_all(one.row);
        }
    if (chip.stopped.empty()) return;
    if (const std::string_view chapter = chapter_of(function, "init"); !chapter.empty())
        chip.stopped.erase(std::string(chapter));
}

}  // namespace standin
