// Faults read from their settings, waited out and counted down.
#include "standin/base/faults.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <limits>
#include <map>
#include <mutex>
#include <thread>
#include <utility>

#include "standin/base/call_record.h"
#include "standin/base/config_store.h"
#include "standin/base/fault_pause.h"
#include "standin/base/gate.h"

namespace standin {
namespace {

constexpr std::int64_t kLongestDelay = 10'000'000;
constexpr std::string_view kFault = "fault.";
constexpr std::string_view kCallback = "callback.";
constexpr std::string_view kTable = "table.";
constexpr std::string_view kArgument = "arg.";

struct Fault {
    std::int64_t status = 0;
    std::int64_t after = 0;
    std::int64_t count = -1;  // calls left, -1 without an end
    std::int64_t delay_us = 0;
    std::int64_t unit = kAnyUnit;
    std::map<std::string, std::int64_t, std::less<>> arguments;
};

struct Item {
    const char *name;
    std::int64_t Fault::*place;
    std::int64_t least;
    std::int64_t most;
    const char *meaning;
};

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
constexpr std::array kItems = {
    Item{"status", &Fault::status, std::numeric_limits<int>::min(), std::numeric_limits<int>::max(),
         "status:<n>"},
    Item{"after", &Fault::after, 0, kMost, "after:<calls>"},
    Item{"count", &Fault::count, 1, kMost, "count:<calls>"},
    Item{"delay_us", &Fault::delay_us, 0, kMost, "delay_us:<microseconds>"},
    Item{"unit", &Fault::unit, 0, std::numeric_limits<int>::max(), "unit:<n>"},
};

std::optional<std::int64_t> number(std::string_view text) {
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

bool has_word(std::string_view words, std::string_view wanted) {
    while (!words.empty()) {
        const std::size_t end = std::min(words.find(' '), words.size());
        if (words.substr(0, end) == wanted) return true;
        words.remove_prefix(std::min(end + 1, words.size()));
    }
    return false;
}

// One item of a setting; false if it means nothing. Any name of an argument is one without a row.
bool read_item(std::string_view item, const GateRow *row, Fault &fault) {
    const std::size_t colon = item.find(':');
    if (colon == std::string_view::npos) return false;
    std::string_view name = item.substr(0, colon);
    const std::optional<std::int64_t> value = number(item.substr(colon + 1));
    if (!value) return false;
    if (name.starts_with(kArgument)) {
        name.remove_prefix(kArgument.size());
        if (row != nullptr && !has_word(row->parameters, name)) return false;
        fault.arguments.insert_or_assign(std::string(name), *value);
        return true;
    }
    for (const Item &known : kItems) {
        if (name != known.name || *value < known.least || *value > known.most) continue;
        fault.*known.place = *value;
        return true;
    }
    return false;
}

// Nothing, with the item that means nothing in `word`, for a value that cannot be read.
std::optional<Fault> read_fault(std::string_view text, const GateRow *row, std::string_view &word) {
    Fault fault;
    do {
        const std::size_t comma = std::min(text.find(','), text.size());
        word = text.substr(0, comma);
        if (!read_item(word, row, fault)) return std::nullopt;
        text.remove_prefix(std::min(comma + 1, text.size()));
    } while (!text.empty());
    return fault;
}

// The limit of a table.
std::optional<std::size_t> read_limit(std::string_view text) {
    if (text == "full") return 0;
    const std::optional<std::int64_t> limit = number(text);
    if (!limit || *limit < 0) return std::nullopt;
    return static_cast<std::size_t>(*limit);
}

// What a setting says, in the form in which it is read; items that say nothing are left out.
std::string written(const Fault &fault) {
    const Fault plain;
    std::string text;
    for (const Item &item : kItems)
        if (fault.*item.place != plain.*item.place || item.place == &Fault::status)
            text += (text.empty() ? "" : ",") + std::string(item.name) + ":" +
                    std::to_string(fault.*item.place);
    for (const auto &[name, value] : fault.arguments)
        text += "," + std::string(kArgument) + name + ":" + std::to_string(value);
    return text;
}

// Which faults were set, and which of them met a call.
struct Watch {
    std::mutex lock;
    std::map<std::string, std::string, std::less<>> unmet;  // value by name
    std::atomic<TableLookup> lookup{nullptr};
};

// Never destroyed: native threads may still call while the process ends.
Watch &watch() {
    static Watch &the_watch = *new Watch;
    return the_watch;
}

void note_met(std::string_view name) {
    Watch &all = watch();
    const std::lock_guard<std::mutex> guard(all.lock);
    if (const auto found = all.unmet.find(name); found != all.unmet.end()) all.unmet.erase(found);
}

// The call of the user's whose function asks, or null where the library calls by itself.
const OpenCall *call_of(std::string_view function) {
    const OpenCall *const call = OpenCall::current();
    return call != nullptr && call->row().name == function ? call : nullptr;
}

bool is_meant(const Fault &fault, int unit, const OpenCall *call) {
    if (fault.unit != kAnyUnit && fault.unit != unit) return false;
    if (fault.arguments.empty()) return true;
    if (call == nullptr) return false;
    std::string_view names = call->row().parameters;
    std::size_t met = 0;
    for (const Given &given : call->arguments()) {
        const std::size_t end = std::min(names.find(' '), names.size());
        const auto wanted = fault.arguments.find(names.substr(0, end));
        names.remove_prefix(std::min(end + 1, names.size()));
        if (wanted == fault.arguments.end()) continue;
        const bool is_number = given.form == Given::Form::kNumber;
        if (is_number ? given.number != wanted->second
                      : given.address != nullptr || wanted->second != 0)
            return false;
        ++met;
    }
    return met == fault.arguments.size();
}

thread_local int pauses = 0;

// Serves one setting: counts, waits, answers.
int meet(const std::string &name, int unit, const OpenCall *call) {
    if (pauses > 0) return 0;
    const std::optional<std::string> text = config_get(name);
    if (!text) return 0;
    std::string_view word;
    std::optional<Fault> fault = read_fault(*text, nullptr, word);
    if (!fault || !is_meant(*fault, unit, call)) return 0;
    if (fault->after > 0) {
        --fault->after;
        config_count(name, written(*fault));
        return 0;
    }
    note_met(name);
    if (fault->count > 0) {
        --fault->count;
        if (fault->count == 0)
            config_remove(name);
        else
            config_count(name, written(*fault));
    }
    if (fault->delay_us > 0)
        std::this_thread::sleep_for(
            std::chrono::microseconds(std::min(fault->delay_us, kLongestDelay)));
    return static_cast<int>(fault->status);
}

std::string no_item(std::string_view word) {
    std::string text = "no fault is '" + std::string(word) + "': there are ";
    for (const Item &item : kItems) text += std::string(item.meaning) + ", ";
    return text + "arg.<name>:<n>";
}

std::optional<std::string> table_misread(std::string_view table, std::string_view value) {
    const std::optional<std::size_t> limit = read_limit(value);
    if (!limit) return "no limit is '" + std::string(value) + "': there are full, <entries>";
    const TableLookup lookup = watch().lookup;
    if (lookup == nullptr) return std::nullopt;
    const std::optional<std::size_t> held = lookup(table);
    if (!held) return "there is no table '" + std::string(table) + "'";
    if (value == "full" || *held <= *limit) return std::nullopt;
    return "table " + std::string(table) + " holds " + std::to_string(*held) + " entries";
}

}  // namespace

FaultPause::FaultPause() { ++pauses; }
FaultPause::~FaultPause() { --pauses; }

bool faults_armed() { return config_has_faults(); }

int fault_check(std::string_view function, int unit) {
    if (!faults_armed()) return 0;
    const OpenCall *const call = call_of(function);
    if (call != nullptr && call->is_asked()) return 0;
    return meet(std::string(kFault).append(function), unit, call);
}

int callback_fault_check(std::string_view function, int unit) {
    if (!faults_armed()) return 0;
    return meet(std::string(kFault).append(kCallback).append(function), unit, call_of(function));
}

std::optional<std::string> fault_misread(std::string_view name, std::string_view value) {
    if (!name.starts_with(kFault)) return std::nullopt;
    name.remove_prefix(kFault.size());
    if (name.starts_with(kTable)) return table_misread(name.substr(kTable.size()), value);
    if (name.starts_with(kCallback)) name.remove_prefix(kCallback.size());
    const GateRow *const row = gate_row(name);
    if (row == nullptr) return "there is no function '" + std::string(name) + "'";
    std::string_view word;
    if (read_fault(value, row, word)) return std::nullopt;
    return no_item(word);
}

std::size_t table_capacity(std::string_view name, std::size_t usual) {
    if (!faults_armed()) return usual;
    const std::string setting = std::string(kFault).append(kTable).append(name);
    const std::optional<std::string> text = config_get(setting);
    if (!text) return usual;
    note_met(setting);
    return read_limit(*text).value_or(usual);
}

void set_table_lookup(TableLookup lookup) { watch().lookup = lookup; }

void set_gates() { gates_open = faults_armed() || is_recording(); }

void note_fault(std::string_view name, std::string_view value) {
    if (!name.starts_with(kFault)) return;
    Watch &all = watch();
    const std::lock_guard<std::mutex> guard(all.lock);
    all.unmet.insert_or_assign(std::string(name), std::string(value));
}

std::vector<std::string> faults_never_met() {
    Watch &all = watch();
    const std::lock_guard<std::mutex> guard(all.lock);
    std::vector<std::string> told;
    for (const auto &[name, value] : all.unmet)
        told.push_back(name.substr(kFault.size()) + " (" + value + ")");
    return told;
}

void forget_faults() {
    Watch &all = watch();
    const std::lock_guard<std::mutex> guard(all.lock);
    all.unmet.clear();
}

}  // namespace standin
