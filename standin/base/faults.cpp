// Faults read from their settings, waited out and counted down.
#include "standin/base/faults.h"

#include <algorithm>
#include <atomic>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <thread>

#include "standin/base/config_store.h"

namespace standin {
namespace {

constexpr long kLongestDelay = 10'000'000;

struct Fault {
    int status = 0;
    long count = -1;  // calls left, -1 without an end
    long delay_us = 0;
};

std::optional<long> number(std::string_view text) {
    long value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

// One item of a setting; false if it means nothing.
bool read_item(std::string_view item, Fault &fault) {
    const std::size_t colon = item.find(':');
    if (colon == std::string_view::npos) return false;
    const std::string_view name = item.substr(0, colon);
    const std::optional<long> value = number(item.substr(colon + 1));
    if (!value) return false;
    if (name == "status" && *value >= std::numeric_limits<int>::min() &&
        *value <= std::numeric_limits<int>::max()) {
        fault.status = static_cast<int>(*value);
    } else if (name == "count" && *value > 0) {
        fault.count = *value;
    } else if (name == "delay_us" && *value >= 0) {
        fault.delay_us = std::min(*value, kLongestDelay);
    } else {
        return false;
    }
    return true;
}

// Nothing, with the item that means nothing in `word`, for a value that cannot be read.
std::optional<Fault> read_fault(std::string_view text, std::string_view &word) {
    Fault fault;
    do {
        const std::size_t comma = std::min(text.find(','), text.size());
        word = text.substr(0, comma);
        if (!read_item(word, fault)) return std::nullopt;
        text.remove_prefix(std::min(comma + 1, text.size()));
    } while (!text.empty());
    return fault;
}

// The limit of a table.
std::optional<std::size_t> read_limit(std::string_view text) {
    if (text == "full") return 0;
    const std::optional<long> limit = number(text);
    if (!limit || *limit < 0) return std::nullopt;
    return static_cast<std::size_t>(*limit);
}

std::string written(const Fault &fault) {
    return "status:" + std::to_string(fault.status) + ",count:" + std::to_string(fault.count) +
           ",delay_us:" + std::to_string(fault.delay_us);
}

// Generation of the store that was last looked at, plus one, and in bit 0 whether it has faults.
std::atomic<std::uint64_t> looked_at{0};

}  // namespace

bool faults_armed() {
    const std::uint64_t now = config_generation();
    const std::uint64_t seen = looked_at.load(std::memory_order_acquire);
    if (seen >> 1 == now + 1) return (seen & 1) != 0;
    const bool armed = !config_entries("fault.*").empty();
    looked_at.store((now + 1) << 1 | (armed ? 1u : 0u), std::memory_order_release);
    return armed;
}

int fault_check(std::string_view function) {
    if (!faults_armed()) return 0;
    std::string name = "fault.";
    name += function;
    const std::optional<std::string> text = config_get(name);
    if (!text) return 0;
    std::string_view word;
    std::optional<Fault> fault = read_fault(*text, word);
    if (!fault) return 0;
    if (fault->count > 0) {
        --fault->count;
        if (fault->count == 0)
            config_remove(name);
        else
            config_set(name, written(*fault));
    }
    if (fault->delay_us > 0)
        std::this_thread::sleep_for(std::chrono::microseconds(fault->delay_us));
    return fault->status;
}

std::optional<std::string> fault_misread(std::string_view name, std::string_view value) {
    constexpr std::string_view kFault = "fault.";
    constexpr std::string_view kTable = "table.";
    if (!name.starts_with(kFault)) return std::nullopt;
    name.remove_prefix(kFault.size());
    std::string_view word = value;
    const bool good = name.starts_with(kTable) ? read_limit(value).has_value()
                                               : read_fault(value, word).has_value();
    return good ? std::nullopt : std::optional(std::string(word));
}

std::size_t table_capacity(std::string_view name, std::size_t usual) {
    if (!faults_armed()) return usual;
    const std::optional<std::string> text = config_get("fault.table." + std::string(name));
    if (!text) return usual;
    return read_limit(*text).value_or(usual);
}

}  // namespace standin
