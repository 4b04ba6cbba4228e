// The calls of the queue chapter on the queues of a port: their number, the priorities that go to
// them, and how they are served. What is set for all ports reaches each of them.
#include <algorithm>

#include "sdk/bcm/cosq.h"
#include "standin/model/queues.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

int check_mapping(const Queues &queues, bcm_cos_t priority, bcm_cos_queue_t queue) {
    if (!within(priority, 0, kPriorities - 1))
        return refused(BCM_E_PARAM, "field priority is " + std::to_string(priority) +
                                        ", outside 0 to " + std::to_string(kPriorities - 1));
    if (within(queue, 0, queues.number - 1)) return BCM_E_NONE;
    return refused(BCM_E_PARAM, "field cosq is " + std::to_string(queue) + ", a port has 0 to " +
                                    std::to_string(queues.number - 1));
}

// on_switch with the local number of the port.
template <class Body>
int on_queues(const char *function, int unit, bcm_port_t port, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) {
        const int number = local_port(port);
        return number < 0 ? refused_port("port", port) : body(queues_of(chip), number);
    });
}

// The priorities and queues of a call's arrays; all or nothing.
int map_all(Queues &queues, int port, int count, const bcm_cos_t *priorities,
            const bcm_cos_queue_t *cosqs) {
    if (count < 0 || (count > 0 && (priorities == nullptr || cosqs == nullptr))) return BCM_E_PARAM;
    for (int i = 0; i < count; ++i)
        if (const int status = check_mapping(queues, priorities[i], cosqs[i]); status < 0)
            return status;
    for (int i = 0; i < count; ++i) queues.of_port[{port, priorities[i]}] = cosqs[i];
    return BCM_E_NONE;
}

int set_schedule(const char *function, int unit, const bcm_pbmp_t &ports, int mode,
                 const int *weights, int delay) {
    return on_switch(function, unit, [&](Switch &chip) {
        if (!is_subset(ports, kAllPorts)) return refused_ports(ports);
        if (mode < 0 || delay < 0 || weights == nullptr || !any_common(ports, kAllPorts))
            return int{BCM_E_PARAM};
        Schedule made{mode, {}, delay};
        std::copy_n(weights, kQueues, made.weights.begin());
        for (const int weight : made.weights)
            if (!within(weight, 0, kMostWeight))
                return refused(BCM_E_PARAM, "a weight is " + std::to_string(weight) +
                                                ", outside 0 to " + std::to_string(kMostWeight));
        for (int port = 0; port < kPorts; ++port)
            if (has_port(ports, port))
                queues_of(chip).schedules[static_cast<std::size_t>(port)] = made;
        return int{BCM_E_NONE};
    });
}

// BCM_E_CONFIG where the ports are served in different ways.
int get_schedule(const char *function, int unit, const bcm_pbmp_t &ports, int *mode, int *weights,
                 int *delay) {
    return on_switch(function, unit, [&](Switch &chip) {
        if (!is_subset(ports, kAllPorts)) return refused_ports(ports);
        if (mode == nullptr || weights == nullptr || delay == nullptr) return int{BCM_E_PARAM};
        const Schedule *first = nullptr;
        for (int port = 0; port < kPorts; ++port) {
            if (!has_port(ports, port)) continue;
            const Schedule &one = queues_of(chip).schedules[static_cast<std::size_t>(port)];
            first = first == nullptr ? &one : first;
            if (one != *first)
                return refused(BCM_E_CONFIG,
                               "port " + std::to_string(port) + " is served in another way");
        }
        if (first == nullptr) return int{BCM_E_PARAM};
        *mode = first->mode;
        std::ranges::copy(first->weights, weights);
        *delay = first->delay;
        return int{BCM_E_NONE};
    });
}

int clear_queues(const char *function, int unit) {
    return start_chapter(function, unit, "bcm_cosq_", [](Switch &chip) {
        queues_of(chip) = Queues{};
        return BCM_E_NONE;
    });
}

}  // namespace

extern "C" {

int bcm_cosq_init(int unit) { return clear_queues(__func__, unit); }
int bcm_cosq_detach(int unit) { return clear_queues(__func__, unit); }

// Priorities whose queue goes are of the last one then.
int bcm_cosq_config_set(int unit, int numq) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (!within(numq, 1, kQueues))
            return refused(BCM_E_PARAM, "field numq is " + std::to_string(numq) +
                                            ", outside 1 to " + std::to_string(kQueues));
        queues_of(chip).number = numq;
        return int{BCM_E_NONE};
    });
}

int bcm_cosq_config_get(int unit, int *numq) {
    return on_switch(__func__, unit,
                     [&](Switch &chip) { return give(numq, queues_of(chip).number); });
}

int bcm_cosq_mapping_set(int unit, bcm_cos_t priority, bcm_cos_queue_t cosq) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        Queues &queues = queues_of(chip);
        if (const int status = check_mapping(queues, priority, cosq); status < 0) return status;
        queues.of_priority[priority] = cosq;
        std::erase_if(queues.of_port,
                      [&](const auto &one) { return one.first.second == priority; });
        return int{BCM_E_NONE};
    });
}

int bcm_cosq_mapping_get(int unit, bcm_cos_t priority, bcm_cos_queue_t *cosq) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        const int status = check_mapping(queues_of(chip), priority, 0);
        return status < 0 ? status : give(cosq, queues_of(chip).queue_of(-1, priority));
    });
}

int bcm_cosq_port_mapping_set(int unit, bcm_port_t port, bcm_cos_t priority, bcm_cos_queue_t cosq) {
    return on_queues(__func__, unit, port, [&](Queues &queues, int number) {
        return map_all(queues, number, 1, &priority, &cosq);
    });
}

int bcm_cosq_port_mapping_get(int unit, bcm_port_t port, bcm_cos_t priority,
                              bcm_cos_queue_t *cosq) {
    return on_queues(__func__, unit, port, [&](const Queues &queues, int number) {
        const int status = check_mapping(queues, priority, 0);
        return status < 0 ? status : give(cosq, queues.queue_of(number, priority));
    });
}

int bcm_cosq_port_mapping_multi_set(int unit, bcm_port_t port, int array_max,
                                    bcm_cos_t *priority_array, bcm_cos_queue_t *cosq_array) {
    return on_queues(__func__, unit, port, [&](Queues &queues, int number) {
        return map_all(queues, number, array_max, priority_array, cosq_array);
    });
}

// The caller says of which priorities.
int bcm_cosq_port_mapping_multi_get(int unit, bcm_port_t port, int array_max,
                                    bcm_cos_t *priority_array, bcm_cos_queue_t *cosq_array) {
    return on_queues(__func__, unit, port, [&](const Queues &queues, int number) {
        const bool none = priority_array == nullptr || cosq_array == nullptr;
        if (array_max < 0 || (array_max > 0 && none)) return int{BCM_E_PARAM};
        for (int i = 0; i < array_max; ++i)
            if (const int status = check_mapping(queues, priority_array[i], 0); status < 0)
                return status;
        for (int i = 0; i < array_max; ++i)
            cosq_array[i] = queues.queue_of(number, priority_array[i]);
        return int{BCM_E_NONE};
    });
}

int bcm_cosq_port_sched_set(int unit, bcm_pbmp_t pbm, int mode, int const weights[8], int delay) {
    return set_schedule(__func__, unit, pbm, mode, weights, delay);
}

int bcm_cosq_port_sched_get(int unit, bcm_pbmp_t pbm, int *mode, int weights[8], int *delay) {
    return get_schedule(__func__, unit, pbm, mode, weights, delay);
}

int bcm_cosq_sched_set(int unit, int mode, int const weights[8], int delay) {
    return set_schedule(__func__, unit, kAllPorts, mode, weights, delay);
}

int bcm_cosq_sched_get(int unit, int *mode, int weights[8], int *delay) {
    return get_schedule(__func__, unit, kAllPorts, mode, weights, delay);
}

}  // extern "C"
