// The levels, descriptors and captured lines behind the log and the trace.
#include "standin/base/log.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <mutex>
#include <span>

#include "standin/base/config_store.h"
#include "standin/base/descriptor.h"
#include "standin/base/number_text.h"
#include "standin/base/scan.h"

namespace standin {

namespace {

constexpr std::array<const char *, kSeverities> kSeverityNames = {
    "off", "fatal", "error", "warning", "info", "verbose", "debug"};
constexpr std::array<const char *, kLayers> kLayerNames = {"app", "bde",   "bcm", "soc",
                                                           "phy", "shell", "sal", "helper"};
constexpr std::array<const char *, kSources> kSourceNames = {
    "common",    "init",  "port",   "l2",     "vlan",    "stg",    "l3",    "trunk",
    "multicast", "field", "cosq",   "mirror", "policer", "stat",   "reg",   "mem",
    "phy",       "mdio",  "packet", "oam",    "mpls",    "config", "shell", "api"};

constexpr std::size_t kCaptureLimit = 1024 * 1024;

struct Log {
    // Levels are read on every message, so they stand outside the lock.
    std::array<std::atomic<int>, std::size_t{kLayers} * kSources> levels;
    std::atomic<bool> capturing{false};
    std::atomic<bool> to_log{false};
    std::atomic<bool> bde{false};

    std::mutex lock;  // guards the rest
    int descriptor = STDERR_FILENO;
    std::string captured;
    std::size_t forgotten = 0;  // bytes at its front
    std::size_t limit = kCaptureLimit;
    std::string bde_tag;

    Log() {
        for (std::atomic<int> &level : levels) level = kSeverityWarning;
    }
};

// Never destroyed: threads of the process may log while it ends.
Log &the_log() {
    static Log &one = *new Log;
    return one;
}

bool in_range(int number, int count) { return number >= 0 && number < count; }

const char *name_in(std::span<const char *const> names, int number) {
    bool known = in_range(number, static_cast<int>(names.size()));
    return known ? names[static_cast<std::size_t>(number)] : nullptr;
}

std::optional<int> number_in(std::span<const char *const> names, std::string_view text) {
    for (std::size_t at = 0; at < names.size(); ++at)
        if (same_word(names[at], text)) return static_cast<int>(at);
    std::optional<std::int32_t> number = read_i32(text);
    if (number && name_in(names, *number) != nullptr) return *number;
    return std::nullopt;
}

std::string name_or_number(const char *name, int number) {
    return name != nullptr ? name : std::to_string(number);
}

std::size_t level_index(int layer, int source) {
    return static_cast<std::size_t>(layer) * kSources + static_cast<std::size_t>(source);
}

// REQUIRES: the lock is held.
void write_line(Log &log, std::string_view line) {
    while (!line.empty() && wait_writable(log.descriptor)) {
        ssize_t done =
            ::write(log.descriptor, line.data(), std::min<size_t>(line.size(), kSureBytes));
        if (done < 0 && errno == EINTR) continue;
        if (done <= 0) return;
        line.remove_prefix(static_cast<std::size_t>(done));
    }
}

// REQUIRES: the lock is held.
void capture_line(Log &log, std::string_view line) {
    if (!log.capturing) return;
    log.captured += line;
    std::size_t kept = log.captured.size() - log.forgotten;
    if (kept <= log.limit) return;
    std::size_t end = log.captured.find('\n', log.captured.size() - log.limit - 1);
    log.forgotten = end == std::string::npos ? log.captured.size() : end + 1;
    if (log.forgotten < log.limit && log.forgotten < log.captured.size()) return;
    // As much goes as stays, so that a line costs the same whatever the limit is.
    log.captured.erase(0, log.forgotten);
    log.forgotten = 0;
}

std::string message_line(int severity, int layer, int source, int unit, std::string_view text,
                         const LogOrigin &origin) {
    std::string line = name_or_number(severity_name(severity), severity);
    for (char &sign : line)
        if (is_alpha(sign)) sign = static_cast<char>(to_lower(sign) - 'a' + 'A');
    line += ' ' + name_or_number(layer_name(layer), layer);
    line += '.' + name_or_number(source_name(source), source);
    if (unit >= 0) line += " u" + std::to_string(unit);
    if (!origin.file.empty()) {
        std::string_view file = origin.file.substr(origin.file.find_last_of('/') + 1);
        line += ' ' + std::string(file) + ':' + std::to_string(origin.line);
    }
    if (!origin.function.empty()) line += ' ' + std::string(origin.function) + "()";
    line += ": ";
    while (!text.empty() && text.back() == '\n') text.remove_suffix(1);
    return (line += text) += '\n';
}

}  // namespace

const char *severity_name(int severity) { return name_in(kSeverityNames, severity); }
const char *layer_name(int layer) { return name_in(kLayerNames, layer); }
const char *source_name(int source) { return name_in(kSourceNames, source); }
std::optional<int> severity_of(std::string_view text) { return number_in(kSeverityNames, text); }
std::optional<int> layer_of(std::string_view text) { return number_in(kLayerNames, text); }
std::optional<int> source_of(std::string_view text) { return number_in(kSourceNames, text); }

bool log_level_set(int layer, int source, int severity) {
    bool layer_ok = layer == kEvery || in_range(layer, kLayers);
    bool source_ok = source == kEvery || in_range(source, kSources);
    if (!layer_ok || !source_ok || !in_range(severity, kSeverities)) return false;
    for (int row = 0; row < kLayers; ++row) {
        for (int column = 0; column < kSources; ++column) {
            bool meant =
                (layer == kEvery || layer == row) && (source == kEvery || source == column);
            if (meant) the_log().levels[level_index(row, column)] = severity;
        }
    }
    return true;
}

int log_level(int layer, int source) {
    if (!in_range(layer, kLayers) || !in_range(source, kSources)) return kSeverityOff;
    return the_log().levels[level_index(layer, source)];
}

void log_message(int severity, int layer, int source, int unit, std::string_view text,
                 const LogOrigin &origin) {
    bool known = in_range(layer, kLayers) && in_range(source, kSources);
    int level = known ? log_level(layer, source) : kSeverityWarning;
    if (severity <= kSeverityOff || severity > level) return;
    std::string line = message_line(severity, layer, source, unit, text, origin);
    Log &log = the_log();
    std::lock_guard hold(log.lock);
    write_line(log, line);
    capture_line(log, line);
}

bool log_descriptor_set(int fd) {
    int own = fd < 0 ? STDERR_FILENO : ::fcntl(fd, F_DUPFD_CLOEXEC, 3);
    if (own < 0) return false;
    Log &log = the_log();
    std::lock_guard hold(log.lock);
    if (log.descriptor != STDERR_FILENO) ::close(log.descriptor);
    log.descriptor = own;
    return true;
}

void trace(std::string_view text) {
    if (!trace_wanted()) return;
    std::string line = "TRACE " + std::string(text) + '\n';
    Log &log = the_log();
    std::lock_guard hold(log.lock);
    if (log.to_log) write_line(log, line);
    capture_line(log, line);
}

bool trace_wanted() { return the_log().capturing || the_log().to_log; }

void trace_capture_set(bool enable) {
    // The setting is read before the lock is taken: the store logs under none of its own.
    std::uint32_t limit = property_number("trace_capture_limit", 0, -1, kCaptureLimit);
    Log &log = the_log();
    std::lock_guard hold(log.lock);
    if (enable) {
        log.captured.clear();
        log.forgotten = 0;
    }
    log.limit = limit;
    log.capturing = enable;
}

bool trace_capture() { return the_log().capturing; }

std::string trace_text() {
    Log &log = the_log();
    std::lock_guard hold(log.lock);
    return log.captured.substr(log.forgotten);
}

void trace_to_log_set(bool enable) { the_log().to_log = enable; }

bool trace_to_log() { return the_log().to_log; }

void bde_trace_set(bool enable, std::string_view tag) {
    Log &log = the_log();
    std::lock_guard hold(log.lock);
    log.bde_tag = tag.empty() ? "bde" : std::string(tag);
    log.bde = enable;
}

bool bde_trace() { return the_log().bde; }

void bde_trace_access(int unit, bool write, std::uint32_t address, std::uint32_t value) {
    Log &log = the_log();
    if (!log.bde || !trace_wanted()) return;
    std::string tag;
    {
        std::lock_guard hold(log.lock);
        tag = log.bde_tag;
    }
    trace(text_of("%s: u%d %s 0x%08x = 0x%08x", tag.c_str(), unit, write ? "write" : "read",
                  address, value));
}

}  // namespace standin
