// Why a frame, or a copy of one, came to its end: one closed list. Each end has one reason, and
// each reason its counter.
#pragma once
#include <cstddef>
#include <cstdint>

namespace standin {

enum class Outcome : std::uint8_t { kSent, kToProcessor, kDropped, kConsumed };

enum class Reason : std::uint8_t {
    kSent,
    kToProcessor,
    kPause,
    kTooShort,
    kTooLong,
    kTruncated,
    kBadHeader,
    kPortDown,
    kPortDiscards,
    kReservedAddress,
    kUnknownVlan,
    kVlanFilter,
    kStpState,
    kGroupSource,
    kProtocolDrop,
    kBlackHole,
    kRuleDrop,
    kBadChecksum,
    kTtlExpired,
    kNoRoute,
    kRouteDrop,
    kTooLargeToRoute,
    kNoMember,
    kSamePort,
    kTrunkEmpty,
    kElsewhere,
    kEgressDown,
    kEgressDiscards,
    kEgressVlan,
    kEgressStp,
    kEgressTooLong,
    kLoop,
    kRxStopped,
    kRxTooLong,
    kRxRate,
    kRxNoBuffer,
};

struct ReasonRow {
    Reason reason;
    Outcome outcome;
    const char *name;      // "stp_state"
    const char *stage;     // where frames end so
    const char *sentence;  // "the port does not forward in the spanning tree"
};

constexpr std::size_t kReasons = static_cast<std::size_t>(Reason::kRxNoBuffer) + 1;

const ReasonRow &row_of(Reason reason);
const char *word_of(Outcome outcome);  // "dropped"

}  // namespace standin
