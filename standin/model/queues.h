// The queues of the ports of one switch: how many there are, which priority goes to which, and how
// they are served.
#pragma once
#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <utility>

#include "sdk/scalars.h"
#include "standin/model/switch.h"

namespace standin {

constexpr int kQueues = 8;
constexpr int kPriorities = 16;
constexpr int kMostWeight = 127;

struct Schedule {
    int mode = 0;
    std::array<int, kQueues> weights{};
    int delay = 0;

    bool operator==(const Schedule &) const = default;
};

struct Queues {
    int number = kQueues;  // of each port
    std::map<bcm_cos_t, bcm_cos_queue_t> of_priority;
    std::map<std::pair<int, bcm_cos_t>, bcm_cos_queue_t> of_port;  // where a port differs
    std::array<Schedule, kPorts> schedules{};

    // The queue to which packets of a priority go at a port.
    bcm_cos_queue_t queue_of(int port, bcm_cos_t priority) const {
        const auto special = of_port.find({port, priority});
        if (special != of_port.end()) return std::min(special->second, number - 1);
        const auto general = of_priority.find(priority);
        const int queue = general == of_priority.end() ? priority : general->second;
        return std::min(queue, number - 1);
    }

    bool operator==(const Queues &) const = default;
};

inline void visit_state(const Queues &queues, StateVisitor &to) {
    if (queues == Queues{}) return;
    to.object("cosq", "unit");
    if (queues.number != kQueues) to.number("number", queues.number);
    for (const auto &[priority, queue] : queues.of_priority)
        to.number("priority_" + std::to_string(priority), queue);
    for (int port = 0; port < kPorts; ++port) {
        const Schedule &served = queues.schedules[static_cast<std::size_t>(port)];
        const auto special = queues.of_port.lower_bound({port, 0});
        const bool mapped = special != queues.of_port.end() && special->first.first == port;
        if (!mapped && served == Schedule{}) continue;
        to.object("cosq_port", std::to_string(port));
        for (auto at = special; at != queues.of_port.end() && at->first.first == port; ++at)
            to.number("priority_" + std::to_string(at->first.second), at->second);
        if (served.mode != 0) to.number("mode", served.mode);
        if (served.delay != 0) to.number("delay", served.delay);
        for (std::size_t i = 0; i < served.weights.size(); ++i)
            if (served.weights[i] != 0) to.number("weight_" + std::to_string(i), served.weights[i]);
    }
}

inline Queues &queues_of(Switch &chip) { return chip.layers.of<Queues>(); }

}  // namespace standin
