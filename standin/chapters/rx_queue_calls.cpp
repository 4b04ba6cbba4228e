// The calls of the receive chapter on queues: rates, bursts, lengths, and which packets go where.
#include "sdk/bcm/rx.h"
#include "standin/chapters/packet_run.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

template <class Body>
int on_receiver(const char *function, int unit, Body &&body) {
    return on_switch(function, unit,
                     [&](Switch &chip) { return int{body(pipeline_of(chip).receiver)}; });
}

template <class Body>
int on_queue(const char *function, int unit, int queue, Body &&body) {
    return on_receiver(function, unit, [&](Receiver &receiver) {
        if (!within(queue, 0, kCpuQueues - 1))
            return refused(BCM_E_PARAM, "queue " + std::to_string(queue) + " is outside 0 to 47");
        return int{body(receiver.queues[static_cast<std::size_t>(queue)])};
    });
}

int put(int &field, int value) {
    if (value < 0) return BCM_E_PARAM;
    field = value;
    return BCM_E_NONE;
}

// What the pipeline can send a packet to the processor for.
constexpr int kReasonsGiven[] = {
    bcmRxReasonArp,           bcmRxReasonBpdu,           bcmRxReasonDhcp,
    bcmRxReasonFilterMatch,   bcmRxReasonFilterRedirect, bcmRxReasonIgmp,
    bcmRxReasonL2Cpu,         bcmRxReasonL2DestMiss,     bcmRxReasonL3DestMiss,
    bcmRxReasonL3HeaderError, bcmRxReasonL3MtuFail,      bcmRxReasonL3Slowpath,
    bcmRxReasonMcastMiss,     bcmRxReasonNhop,           bcmRxReasonProtocol,
    bcmRxReasonTtl1,          bcmRxReasonUnknownVlan};

bcm_rx_reasons_t reasons_given() {
    bcm_rx_reasons_t reasons{};
    for (const int reason : kReasonsGiven) add_reason(reasons, reason);
    return reasons;
}

int set_mapping(const char *function, int unit, const bcm_rx_cosq_mapping_t &row) {
    return on_receiver(function, unit, [&](Receiver &receiver) {
        if (!within(row.index, 0, kCosqMappings - 1) || !within(row.cosq, 0, kCpuQueues - 1))
            return int{BCM_E_PARAM};
        if (row.packet_type_mask != 0)
            return refused(BCM_E_UNAVAIL, "packets are not told apart by their type");
        receiver.mappings[row.index] = row;
        return int{BCM_E_NONE};
    });
}

template <class Body>
int on_mapping(const char *function, int unit, int index, Body &&body) {
    return on_receiver(function, unit, [&](Receiver &receiver) {
        const auto *const row = find_in(receiver.mappings, index);
        return row == nullptr ? missing(index) : int{body(*row)};
    });
}

}  // namespace

extern "C" {

// 0 does not limit.
#define RX_SET(name, field)                                                                 \
    int name(int unit, int value) {                                                         \
        return on_receiver(__func__, unit,                                                  \
                           [&](Receiver &receiver) { return put(receiver.field, value); }); \
    }
#define RX_GET(name, field)                                                                        \
    int name(int unit, int *value) {                                                               \
        return on_receiver(__func__, unit,                                                         \
                           [&](const Receiver &receiver) { return give(value, receiver.field); }); \
    }
#define RX_COS_SET(name, field)                                                    \
    int name(int unit, int cos, int value) {                                       \
        return on_queue(__func__, unit, cos,                                       \
                        [&](CpuQueue &queue) { return put(queue.field, value); }); \
    }
#define RX_COS_GET(name, field)                                                           \
    int name(int unit, int cos, int *value) {                                             \
        return on_queue(__func__, unit, cos,                                              \
                        [&](const CpuQueue &queue) { return give(value, queue.field); }); \
    }
RX_SET(bcm_rx_rate_set, limit.rate)
RX_GET(bcm_rx_rate_get, limit.rate)
RX_SET(bcm_rx_burst_set, limit.burst)
RX_GET(bcm_rx_burst_get, limit.burst)
RX_SET(bcm_rx_cpu_rate_set, cpu_limit.rate)
RX_GET(bcm_rx_cpu_rate_get, cpu_limit.rate)
RX_COS_SET(bcm_rx_cos_rate_set, limit.rate)
RX_COS_GET(bcm_rx_cos_rate_get, limit.rate)
RX_COS_SET(bcm_rx_cos_burst_set, limit.burst)
RX_COS_GET(bcm_rx_cos_burst_get, limit.burst)
RX_COS_SET(bcm_rx_cos_max_len_set, longest)
RX_COS_GET(bcm_rx_cos_max_len_get, longest)
RX_COS_GET(bcm_rx_queue_packet_count_get, packets)
#undef RX_SET
#undef RX_GET
#undef RX_COS_SET
#undef RX_COS_GET

int bcm_rx_queue_channel_set(int unit, bcm_cos_queue_t cosq, bcm_rx_chan_t channel) {
    return on_queue(__func__, unit, cosq, [&](CpuQueue &queue) {
        return within(channel, 0, 3) ? put(queue.channel, channel) : BCM_E_PARAM;
    });
}

int bcm_rx_queue_channel_get(int unit, bcm_cos_queue_t cosq, bcm_rx_chan_t *channel) {
    return on_queue(__func__, unit, cosq,
                    [&](const CpuQueue &queue) { return give(channel, queue.channel); });
}

int bcm_rx_queue_max_get(int unit, bcm_cos_queue_t *cosq) {
    return on_receiver(__func__, unit,
                       [&](const Receiver &) { return give(cosq, kCpuQueues - 1); });
}

// The packets that may still come before the rate stops them; -1 without a limit.
int bcm_rx_queue_rate_limit_status_get(int unit, bcm_cos_queue_t cosq, int *packet_tokens) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (!within(cosq, 0, kCpuQueues - 1)) return int{BCM_E_PARAM};
        const auto &queue = pipeline_of(chip).receiver.queues[static_cast<std::size_t>(cosq)];
        return give(packet_tokens, queue.limit.tokens(chip.now));
    });
}

int bcm_rx_reasons_get(int unit, bcm_rx_reasons_t *reasons) {
    return on_receiver(__func__, unit,
                       [&](const Receiver &) { return give(reasons, reasons_given()); });
}

void bcm_rx_reasons_t_init(bcm_rx_reasons_t *reasons) {
    if (reasons != nullptr) *reasons = bcm_rx_reasons_t{};
}

int bcm_rx_cosq_mapping_reasons_get(int unit, bcm_rx_reasons_t *reasons) {
    return on_receiver(__func__, unit,
                       [&](const Receiver &) { return give(reasons, reasons_given()); });
}

int bcm_rx_cosq_mapping_size_get(int unit, int *size) {
    return on_receiver(__func__, unit, [&](const Receiver &) { return give(size, kCosqMappings); });
}

int bcm_rx_cosq_mapping_set(int unit, int index, bcm_rx_reasons_t reasons,
                            bcm_rx_reasons_t reasons_mask, uint8 int_prio, uint8 int_prio_mask,
                            uint32 packet_type, uint32 packet_type_mask, bcm_cos_queue_t cosq) {
    return set_mapping(__func__, unit,
                       {0, index, reasons, reasons_mask, int_prio, int_prio_mask, packet_type,
                        packet_type_mask, cosq});
}

int bcm_rx_cosq_mapping_get(int unit, int index, bcm_rx_reasons_t *reasons,
                            bcm_rx_reasons_t *reasons_mask, uint8 *int_prio, uint8 *int_prio_mask,
                            uint32 *packet_type, uint32 *packet_type_mask, bcm_cos_queue_t *cosq) {
    return on_mapping(__func__, unit, index, [&](const bcm_rx_cosq_mapping_t &row) {
        for (const int status :
             {give(reasons, row.reasons), give(reasons_mask, row.reasons_mask),
              give(int_prio, row.int_prio), give(int_prio_mask, row.int_prio_mask),
              give(packet_type, row.packet_type), give(packet_type_mask, row.packet_type_mask),
              give(cosq, row.cosq)})
            if (status != BCM_E_NONE) return status;
        return int{BCM_E_NONE};
    });
}

int bcm_rx_cosq_mapping_delete(int unit, int index) {
    return on_receiver(__func__, unit, [&](Receiver &receiver) {
        return receiver.mappings.erase(index) == 0 ? missing(index) : int{BCM_E_NONE};
    });
}

int bcm_rx_cosq_mapping_extended_set(int unit, uint32 /*options*/,
                                     bcm_rx_cosq_mapping_t *cosq_mapping) {
    if (cosq_mapping == nullptr) return refuse(__func__, unit);
    return set_mapping(__func__, unit, *cosq_mapping);
}

int bcm_rx_cosq_mapping_extended_get(int unit, bcm_rx_cosq_mapping_t *cosq_mapping) {
    if (cosq_mapping == nullptr) return refuse(__func__, unit);
    return on_mapping(__func__, unit, cosq_mapping->index,
                      [&](const bcm_rx_cosq_mapping_t &row) { return give(cosq_mapping, row); });
}

}  // extern "C"
