// Handing packets to the processor's handlers.
#include "standin/chapters/packet_run.h"

#include <algorithm>
#include <memory>

#include "sdk/bcm/rx_types.h"
#include "standin/chapters/packet_book.h"
#include "standin/model/events.h"

namespace standin {
namespace {

// With the chip of a unit, under the lock; false if there is none any more.
template <class Body>
bool with_chip(int unit, Body &&body) {
    const std::lock_guard<std::mutex> guard(model_lock());
    int status = BCM_E_NONE;
    Switch *const chip = ready_switch(unit, status);
    if (chip != nullptr) body(*chip);
    return chip != nullptr;
}

void describe(bcm_pkt_t &packet, int unit, const Delivery &delivery) {
    packet.rx_unit = packet.unit = static_cast<uint8>(unit);
    packet.rx_port = static_cast<uint8>(delivery.port);
    packet.src_port = static_cast<int16>(delivery.port);
    packet.src_gport = kLocalGport.of(delivery.port);
    packet.src_trunk = delivery.trunk;
    packet.vlan = delivery.vid;
    packet.vlan_pri = delivery.priority;
    packet.vlan_cfi = delivery.drop_bit;
    packet.prio_int = static_cast<uint8>(delivery.internal_priority);
    packet.color = static_cast<bcm_color_t>(delivery.color);
    packet.cos = packet.rx_cpu_cos = static_cast<uint8>(delivery.queue);
    packet.rx_untagged = delivery.untagged;
    packet.rx_reasons = delivery.reasons;
    packet.rx_matched = delivery.matched;
    packet.rx_timestamp = static_cast<uint32>(delivery.time);
    packet.rx_timestamp_upper = static_cast<uint32>(delivery.time >> 32);
    for (int reason = 0; reason < bcmRxReasonCount && packet.rx_reason == 0; ++reason)
        if ((delivery.reasons.pbits[reason / 32] >> (reason % 32) & 1u) != 0)
            packet.rx_reason = static_cast<uint32>(reason);
}

// Those that hear of a packet in the queue: highest priority first, then in the order in which they
// came.
std::vector<Handler> audience_of(const Handlers &handlers, int queue) {
    std::vector<Handler> found;
    for (const Registration row : {Registration::kRx, Registration::kRxQueue})
        for (const Handler *one = handlers.next(row, 0, last_handler()); one != nullptr;
             one = handlers.next(row, one->number, last_handler()))
            if (row == Registration::kRx || one->key[kKeyQueue] == queue) found.push_back(*one);
    std::ranges::sort(found, [](const Handler &one, const Handler &other) {
        if (one.key[kKeyPriority] != other.key[kKeyPriority])
            return one.key[kKeyPriority] > other.key[kKeyPriority];
        return one.number < other.number;
    });
    return found;
}

bool is_there_still(int unit, const Handler &handler) {
    bool is = false;
    with_chip(unit, [&](const Switch &chip) {
        is = chip.events.handlers.next(handler.row, handler.number - 1, handler.number) != nullptr;
    });
    return is;
}

// Calls the handlers in their order until one takes the packet.
int ask(int unit, bcm_pkt_t *packet, const std::vector<Handler> &handlers) {
    for (const Handler &one : handlers) {
        if (!is_there_still(unit, one)) continue;
        const int answer = one.as<bcm_rx_cb_f>()(unit, packet, one.user);
        if (answer == BCM_RX_HANDLED || answer == BCM_RX_HANDLED_OWNED) return answer;
    }
    return BCM_RX_NOT_HANDLED;
}

void note(int unit, int answer) {
    with_chip(unit, [&](Switch &chip) {
        Receiver &receiver = pipeline_of(chip).receiver;
        ++receiver.delivered;
        ++(answer == BCM_RX_HANDLED_OWNED ? receiver.owned
           : answer == BCM_RX_HANDLED     ? receiver.handled
                                          : receiver.unclaimed);
    });
}

// The receiver's allocator had nothing: what was counted as delivered ends otherwise.
void note_no_buffer(int unit) {
    with_chip(unit, [](Switch &chip) {
        auto &ended = pipeline_of(chip).ended;
        --ended[static_cast<std::size_t>(Reason::kToProcessor)];
        ++ended[static_cast<std::size_t>(Reason::kRxNoBuffer)];
    });
}

void deliver(int unit, const Delivery &delivery) {
    std::vector<Handler> handlers;
    bcm_rx_cfg_t config{};
    if (!with_chip(unit, [&](Switch &chip) {
            handlers = audience_of(chip.events.handlers, delivery.queue);
            config = pipeline_of(chip).receiver.config;
        }))
        return;
    const int size = static_cast<int>(delivery.frame.size());
    void *data = nullptr;
    const bool own = config.rx_alloc == nullptr || config.rx_free == nullptr;
    if (own)
        data = take_buffer(unit, size);
    else if (config.rx_alloc(unit, size, 0, &data) != BCM_E_NONE)
        data = nullptr;
    if (data == nullptr) return note_no_buffer(unit);
    std::memcpy(data, delivery.frame.data(), delivery.frame.size());
    bcm_pkt_t *const packet = take_packet_around(unit, data, size);
    describe(*packet, unit, delivery);
    const int answer = ask(unit, packet, handlers);
    note(unit, answer);
    if (answer == BCM_RX_HANDLED_OWNED) return;  // the handler frees both
    free_packet(packet);
    if (!own) config.rx_free(unit, data);
}

}  // namespace

void hand_over(Run &run) {
    struct Work {
        std::vector<Departure> departures;
        std::vector<Delivery> deliveries;
    };
    Work made{any_joined() ? run.departures : std::vector<Departure>{}, std::move(run.deliveries)};
    if (made.departures.empty() && made.deliveries.empty()) return;
    const auto work = std::make_shared<const Work>(std::move(made));
    run.chip.events.raise([work](int unit) {
        for (const Departure &one : work->departures) send_to_interface(unit, one.port, one.frame);
        for (const Delivery &one : work->deliveries) deliver(unit, one);
    });
}

}  // namespace standin
