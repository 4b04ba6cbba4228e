// The processor's receive side of one switch: whether it runs, which queue, how fast.
#pragma once
#include <array>
#include <cstdint>
#include <map>
#include <optional>

#include "sdk/bcm/rx_types.h"
#include "standin/pipeline/meter.h"
#include "standin/pipeline/reasons.h"

namespace standin {

constexpr int kCpuQueues = 48;
constexpr int kCosqMappings = 256;

bcm_rx_cfg_t first_rx_config();

struct RateLimit {
    int rate = 0;   // packets a second; 0 does not limit
    int burst = 0;  // packets at once; 0 stands for one
    Bucket bucket;

    // The packets that may still come; -1 without a limit.
    int tokens(std::uint64_t now) const;
    bool take(std::uint64_t now, bool dry);
};

struct CpuQueue {
    RateLimit limit;
    int longest = 0;  // bytes; 0 does not limit
    int channel = 0;
    std::uint64_t packets = 0;  // that came to it
};

struct Receiver {
    bool active = false;
    bcm_rx_cfg_t config = first_rx_config();
    RateLimit limit;      // of the unit
    RateLimit cpu_limit;  // of what the processor takes in all
    std::array<CpuQueue, kCpuQueues> queues{};
    std::map<int, bcm_rx_cosq_mapping_t> mappings;  // by index: the lowest that fits counts
    std::uint64_t delivered = 0;
    std::uint64_t handled = 0;
    std::uint64_t owned = 0;
    std::uint64_t unclaimed = 0;  // no listener took it

    // The queue of a packet that came for these reasons.
    int queue_of(const bcm_rx_reasons_t &reasons, int priority) const;

    // Nothing if a packet of that size may pass now, else why not. Takes a token unless `dry`.
    std::optional<Reason> admit(std::uint64_t now, int queue, std::size_t size, bool dry);
};

inline void add_reason(bcm_rx_reasons_t &reasons, int reason) {
    reasons.pbits[reason / 32] |= 1u << (reason % 32);
}

}  // namespace standin
