// What goes to the processor: its queue, the rates, what is told beside the bytes.
#include "sdk/constants.h"
#include "standin/pipeline/stages.h"

namespace standin {

void processor_stage(Run &run, const Packet &packet) {
    Receiver &receiver = run.state.receiver;
    const int queue = packet.cpu_queue >= 0
                          ? packet.cpu_queue
                          : receiver.queue_of(packet.reasons, packet.internal_priority);
    const std::optional<Reason> refusal =
        receiver.admit(run.chip.now, queue, packet.frame.size(), run.dry);
    if (refusal) return run.end(*refusal, -1, "queue " + std::to_string(queue));
    run.step("processor", [&] { return "queue " + std::to_string(queue); });
    if (run.trace != nullptr) run.trace->end(Reason::kToProcessor);
    if (!run.dry) ++run.state.ended[static_cast<std::size_t>(Reason::kToProcessor)];
    Delivery delivery;
    delivery.frame.assign(packet.frame.begin(), packet.frame.end());
    delivery.reasons = packet.reasons;
    delivery.port = packet.port;
    delivery.trunk = packet.trunk;
    delivery.vid = packet.vid;
    delivery.priority = packet.priority;
    delivery.drop_bit = packet.drop_bit;
    delivery.internal_priority = packet.internal_priority;
    delivery.color = packet.color;
    delivery.queue = queue;
    delivery.untagged = packet.headers.ethernet.tags == 0;
    delivery.matched = packet.matched;
    delivery.time = run.chip.now;
    run.deliveries.push_back(std::move(delivery));
}

void copy_to_processor(Run &run, const Packet &packet) {
    run.enter([] { return std::string("copy to the processor"); });
    processor_stage(run, packet);
    run.leave();
}

}  // namespace standin
