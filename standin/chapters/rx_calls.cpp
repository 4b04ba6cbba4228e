// The calls of the receive chapter on the engine: starting, stopping, who hears of packets,
// buffers.
#include "sdk/bcm/rx.h"

#include "standin/chapters/packet_book.h"
#include "standin/chapters/packet_run.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

constexpr int kSmallestBuffer = 64;

template <class Body>
int on_receiver(const char *function, int unit, Body &&body) {
    return on_switch(function, unit,
                     [&](Switch &chip) { return int{body(pipeline_of(chip).receiver)}; });
}

int check_config(const bcm_rx_cfg_t &config) {
    if (!within(config.pkt_size, kSmallestBuffer, kLargestBuffer))
        return refused(BCM_E_PARAM, "field pkt_size is " + std::to_string(config.pkt_size) +
                                        ", allowed is 64 to 65536");
    if (config.pkts_per_chain < 0 || config.global_pps < 0 || config.max_burst < 0)
        return refused(BCM_E_PARAM, "a number of packets is negative");
    if ((config.rx_alloc == nullptr) != (config.rx_free == nullptr))
        return refused(BCM_E_PARAM, "rx_alloc and rx_free go together");
    return BCM_E_NONE;
}

void clear(Switch &chip) {
    pipeline_of(chip).receiver = Receiver{};
    chip.events.handlers.remove_all(Registration::kRx);
    chip.events.handlers.remove_all(Registration::kRxQueue);
}

// A name is for people only; one callback may listen at several priorities.
Handler listener(Registration row, bcm_rx_cb_f callback, int priority, int queue, void *cookie,
                 std::uint32_t flags) {
    return handler(row, callback, cookie, {priority, queue, flags});
}

int add_listener(const char *function, int unit, const char *name, const Handler &one) {
    return on_switch(function, unit, [&](Switch &chip) {
        if (name == nullptr || one.call == nullptr) return int{BCM_E_PARAM};
        return chip.events.handlers.add(one);
    });
}

// Unregistering names neither cookie nor flags.
int remove_listeners(const char *function, int unit, const Handler &wanted) {
    return on_switch(function, unit, [&](Switch &chip) {
        Handlers &handlers = chip.events.handlers;
        int status = BCM_E_NOT_FOUND;
        for (const Handler *one = handlers.next(wanted.row, 0, last_handler()); one != nullptr;) {
            const Handler found = *one;
            if (found.call == wanted.call && found.key[kKeyPriority] == wanted.key[kKeyPriority] &&
                found.key[kKeyQueue] == wanted.key[kKeyQueue])
                status = handlers.remove(found);
            one = handlers.next(wanted.row, found.number, last_handler());
        }
        return status;
    });
}

int give_buffer(const char *function, int unit, int size, void **out, BufferKind kind) {
    return on_switch(function, unit, [&](Switch &) {
        if (out == nullptr || !within(size, 0, kLargestBuffer)) return int{BCM_E_PARAM};
        if (kind == BufferKind::kPool && !pool_has(size)) return int{BCM_E_RESOURCE};
        return give(out, take_buffer(unit, size, kind));
    });
}

// Works also while the chip is not ready.
int take_buffer_back(const char *function, int unit, void *data) {
    if (const int fault = fault_check(function); fault != BCM_E_NONE) return fault;
    if (const int status = unit_status(unit); status == BCM_E_UNIT) return status;
    return free_buffer(data);
}

}  // namespace

extern "C" {

int bcm_rx_init(int unit) {
    return start_chapter(__func__, unit, "bcm_rx_", [](Switch &chip) {
        clear(chip);
        return int{BCM_E_NONE};
    });
}

int bcm_rx_clear(int unit) {
    return on_switch(__func__, unit, [](Switch &chip) {
        clear(chip);
        return int{BCM_E_NONE};
    });
}

int bcm_rx_cfg_init(int unit) {
    return on_receiver(__func__, unit, [](Receiver &receiver) {
        if (receiver.active) return BCM_E_BUSY;
        receiver.config = first_rx_config();
        return BCM_E_NONE;
    });
}

int bcm_rx_cfg_get(int unit, bcm_rx_cfg_t *cfg) {
    return on_receiver(__func__, unit,
                       [&](const Receiver &receiver) { return give(cfg, receiver.config); });
}

// Without a configuration as it was last.
int bcm_rx_start(int unit, bcm_rx_cfg_t *cfg) {
    return on_receiver(__func__, unit, [&](Receiver &receiver) -> int {
        if (receiver.active) return refused(BCM_E_BUSY, "it runs already");
        if (cfg != nullptr) {
            if (const int status = check_config(*cfg); status != BCM_E_NONE) return status;
            receiver.config = *cfg;
        }
        receiver.limit.rate = receiver.config.global_pps;
        receiver.limit.burst = receiver.config.max_burst;
        receiver.active = true;
        return BCM_E_NONE;
    });
}

// Waits for nobody: a packet that is being looked at stays with who looks.
int bcm_rx_stop(int unit, bcm_rx_cfg_t *cfg) {
    return on_receiver(__func__, unit, [&](Receiver &receiver) {
        receiver.active = false;
        return cfg == nullptr ? BCM_E_NONE : give(cfg, receiver.config);
    });
}

int bcm_rx_active(int unit) {
    return on_receiver(__func__, unit, [](const Receiver &receiver) { return receiver.active; });
}

// Those of one channel are all that there are.
int bcm_rx_channels_running(int unit, uint32 *channels) {
    return on_receiver(__func__, unit, [&](const Receiver &receiver) {
        uint32 running = 0;
        for (int i = 0; receiver.active && i < 4; ++i)
            if (receiver.config.chan_cfg[i].chains > 0) running |= 1u << i;
        return give(channels, running);
    });
}

int bcm_rx_register(int unit, char const *name, bcm_rx_cb_f callback, uint8 priority, void *cookie,
                    uint32 flags) {
    return add_listener(__func__, unit, name,
                        listener(Registration::kRx, callback, priority, 0, cookie, flags));
}

int bcm_rx_unregister(int unit, bcm_rx_cb_f callback, uint8 priority) {
    return remove_listeners(__func__, unit,
                            listener(Registration::kRx, callback, priority, 0, nullptr, 0));
}

int bcm_rx_queue_register(int unit, char const *name, bcm_cos_queue_t cosq, bcm_rx_cb_f callback,
                          uint8 priority, void *cookie, uint32 flags) {
    if (!within(cosq, 0, kCpuQueues - 1)) return refuse(__func__, unit);
    return add_listener(__func__, unit, name,
                        listener(Registration::kRxQueue, callback, priority, cosq, cookie, flags));
}

int bcm_rx_queue_unregister(int unit, bcm_cos_queue_t cosq, bcm_rx_cb_f callback, uint8 priority) {
    return remove_listeners(__func__, unit,
                            listener(Registration::kRxQueue, callback, priority, cosq, nullptr, 0));
}

int bcm_rx_alloc(int unit, int pkt_size, uint32 /*flags*/, void **pkt_data) {
    return give_buffer(__func__, unit, pkt_size, pkt_data, BufferKind::kPlain);
}

int bcm_rx_free(int unit, void *pkt_data) { return take_buffer_back(__func__, unit, pkt_data); }

int bcm_rx_free_enqueue(int unit, void *pkt_data) {
    return take_buffer_back(__func__, unit, pkt_data);
}

int bcm_rx_pool_alloc(int unit, int pkt_size, uint32 /*flags*/, void **pkt_data) {
    return give_buffer(__func__, unit, pkt_size, pkt_data, BufferKind::kPool);
}

int bcm_rx_pool_free(int unit, void *pkt_data) {
    return take_buffer_back(__func__, unit, pkt_data);
}

int bcm_rx_pool_setup(int pkt_count, int bytes_per_pkt) {
    if (const int fault = fault_check(__func__); fault != BCM_E_NONE) return fault;
    return pool_setup(pkt_count, bytes_per_pkt);
}

int bcm_rx_pool_setup_done(void) {
    if (const int fault = fault_check(__func__); fault != BCM_E_NONE) return fault;
    return pool_is_set();
}

int bcm_rx_pool_cleanup(void) {
    if (const int fault = fault_check(__func__); fault != BCM_E_NONE) return fault;
    return pool_cleanup();
}

}  // extern "C"
