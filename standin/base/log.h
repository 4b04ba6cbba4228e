// The log and the trace.
//
// The log is a stream of lines on standard error, or on the descriptor that fileDescriptorIs
// hands over. A message names its layer, source and severity; it is written when its severity is
// at or below the level of its pair of layer and source. All pairs start at 3, warning.
//
//   severity   0 off   1 fatal   2 error   3 warning   4 info   5 verbose   6 debug
//
//   layer      0 app   1 bde   2 bcm   3 soc   4 phy   5 shell   6 sal   7 helper
//
//   source     0 common    1 init     2 port     3 l2       4 vlan     5 stg     6 l3
//              7 trunk     8 multicast           9 field   10 cosq    11 mirror 12 policer
//             13 stat     14 reg     15 mem     16 phy     17 mdio    18 packet 19 oam
//             20 mpls     21 config  22 shell   23 api
//
// A line:  WARNING sal.config u0 store.c:41 load(): text of the message
// Unit, place and function are left out where they are unknown. There is no time in it: two runs
// write the same log.
//
// The trace is what the library tells about its own work: calls (_bcm_debug_api), register
// accesses while korvelBdeMemTrace is on, shell commands, and every message that the log took.
// While capture is on it is collected for getTrace; while traceToLog is on it goes to the log,
// whatever the levels are.
//
// Safe to use from several threads. Nothing here fails: what cannot be written is dropped, also
// what a full pipe does not take whose reader is this process.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace standin {

enum Severity : int {
    kSeverityOff,
    kSeverityFatal,
    kSeverityError,
    kSeverityWarning,
    kSeverityInfo,
    kSeverityVerbose,
    kSeverityDebug,
    kSeverities
};

enum Layer : int {
    kLayerApp,
    kLayerBde,
    kLayerBcm,
    kLayerSoc,
    kLayerPhy,
    kLayerShell,
    kLayerSal,
    kLayerHelper,
    kLayers
};

enum Source : int {
    kSourceCommon,
    kSourceInit,
    kSourcePort,
    kSourceL2,
    kSourceVlan,
    kSourceStg,
    kSourceL3,
    kSourceTrunk,
    kSourceMulticast,
    kSourceField,
    kSourceCosq,
    kSourceMirror,
    kSourcePolicer,
    kSourceStat,
    kSourceReg,
    kSourceMem,
    kSourcePhy,
    kSourceMdio,
    kSourcePacket,
    kSourceOam,
    kSourceMpls,
    kSourceConfig,
    kSourceShell,
    kSourceApi,
    kSources
};

inline constexpr int kNoUnit = -1;
inline constexpr int kEvery = -1;  // as a layer or source: all of them

// "error", or a null pointer for a number that has no name.
const char *severity_name(int severity);
const char *layer_name(int layer);
const char *source_name(int source);

// The number of a name, or of a number in range as text; nothing otherwise.
std::optional<int> severity_of(std::string_view text);
std::optional<int> layer_of(std::string_view text);
std::optional<int> source_of(std::string_view text);

// Sets the level of one pair, of a row or of all. False, and no change, for a number out of range.
bool log_level_set(int layer, int source, int severity);
// The level of a pair; 0 for a number out of range.
int log_level(int layer, int source);

struct LogOrigin {
    std::string_view file;  // "store.c"
    unsigned line = 0;
    std::string_view function;  // "load"
};

// Writes one message if its level allows. A number out of range stands as itself in the line and
// is written at warning or more severe.
void log_message(int severity, int layer, int source, int unit, std::string_view text,
                 const LogOrigin &origin = {});

// Where the log goes: a descriptor of its own, made from `fd`; the caller keeps `fd` and may
// close it. Standard error for a negative one; unchanged, with false, for one that is not open.
bool log_descriptor_set(int fd);

// Adds a line to the trace.
void trace(std::string_view text);

// Whether anybody would see a trace line: lets callers skip the work of making one.
bool trace_wanted();

// On: forgets what was collected and collects anew. Off: keeps it and collects no more. The
// setting trace_capture_limit (1 MiB without) bounds it; the oldest lines go first.
void trace_capture_set(bool enable);
bool trace_capture();
std::string trace_text();

void trace_to_log_set(bool enable);
bool trace_to_log();

// The trace of register and memory accesses at bus level.
void bde_trace_set(bool enable, std::string_view tag);
bool bde_trace();
// Traces one access if that is on: "<tag>: u0 read 0x00001234 = 0x00000001".
void bde_trace_access(int unit, bool write, std::uint32_t address, std::uint32_t value);

}  // namespace standin
