// Which queue a packet goes to, and whether the rates let it pass.
#include "standin/pipeline/receiver.h"

#include <algorithm>

#include "sdk/constants.h"

namespace standin {
namespace {

bool fits(const bcm_rx_cosq_mapping_t &row, const bcm_rx_reasons_t &reasons, int priority) {
    for (int i = 0; i < _SHR_RX_REASON_WORDS; ++i)
        if (((reasons.pbits[i] ^ row.reasons.pbits[i]) & row.reasons_mask.pbits[i]) != 0)
            return false;
    return ((priority ^ row.int_prio) & row.int_prio_mask) == 0;
}

}  // namespace

bcm_rx_cfg_t first_rx_config() {
    bcm_rx_cfg_t config{};
    config.pkt_size = 16'384;
    config.pkts_per_chain = 16;
    config.max_burst = 0;
    for (bcm_rx_chan_cfg_t &channel : config.chan_cfg) channel.cos_bmp = 0;
    config.chan_cfg[1].chains = 4;
    config.chan_cfg[1].cos_bmp = 0xffffffff;
    return config;
}

int RateLimit::tokens(std::uint64_t now) const {
    if (rate <= 0) return -1;
    return static_cast<int>(bucket.level(now, static_cast<std::uint64_t>(rate),
                                         static_cast<std::uint64_t>(std::max(burst, 1))));
}

bool RateLimit::take(std::uint64_t now, bool dry) {
    if (rate <= 0) return true;
    if (tokens(now) < 1) return false;
    if (!dry)
        bucket.take(now, static_cast<std::uint64_t>(rate),
                    static_cast<std::uint64_t>(std::max(burst, 1)), 1);
    return true;
}

int Receiver::queue_of(const bcm_rx_reasons_t &reasons, int priority) const {
    for (const auto &[index, row] : mappings)
        if (fits(row, reasons, priority)) return std::clamp(row.cosq, 0, kCpuQueues - 1);
    return 0;
}

std::optional<Reason> Receiver::admit(std::uint64_t now, int queue, std::size_t size, bool dry) {
    CpuQueue &one = queues[static_cast<std::size_t>(queue)];
    if (!active) return Reason::kRxStopped;
    if (size > static_cast<std::size_t>(config.pkt_size) ||
        (one.longest > 0 && size > static_cast<std::size_t>(one.longest)))
        return Reason::kRxTooLong;
    for (RateLimit *const limit_now : {&one.limit, &limit, &cpu_limit})
        if (!limit_now->take(now, true)) return Reason::kRxRate;
    for (RateLimit *const limit_now : {&one.limit, &limit, &cpu_limit}) limit_now->take(now, dry);
    if (!dry) ++one.packets;
    return std::nullopt;
}

}  // namespace standin
