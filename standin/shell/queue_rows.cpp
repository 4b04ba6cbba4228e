// What the queues of a unit hold, row by row.
#include "standin/shell/queue_rows.h"

#include <algorithm>
#include <cstddef>

namespace standin {
namespace {

using Rows = std::vector<std::string>;

template <class Row>
std::string bytes_of(const Row &row) {
    return {reinterpret_cast<const char *>(&row), sizeof row};
}

Rows counts(const Queues &queues) { return {bytes_of(QueueCountRow{queues.number})}; }

Rows maps(const Queues &queues) {
    Rows rows;
    for (const auto &[priority, queue] : queues.of_priority)
        rows.push_back(bytes_of(QueueMapRow{priority, queue}));
    return rows;
}

Rows port_maps(const Queues &queues) {
    Rows rows;
    for (const auto &[place, queue] : queues.of_port)
        rows.push_back(bytes_of(PortQueueMapRow{place.first, place.second, queue}));
    return rows;
}

// The ports that are served alike have one row.
Rows schedules(const Queues &queues) {
    std::vector<QueueSchedRow> made;
    for (int port = 0; port < kPorts; ++port) {
        const Schedule &one = queues.schedules[static_cast<std::size_t>(port)];
        if (one == Schedule{}) continue;
        auto row = std::find_if(made.begin(), made.end(), [&](const QueueSchedRow &other) {
            return other.mode == one.mode && other.delay == one.delay &&
                   std::ranges::equal(other.weights, one.weights);
        });
        if (row == made.end()) {
            row = made.insert(made.end(),
                              {.pbm = {}, .mode = one.mode, .weights = {}, .delay = one.delay});
            std::ranges::copy(one.weights, row->weights);
        }
        add_port(row->pbm, port);
    }
    Rows rows;
    for (const QueueSchedRow &row : made) rows.push_back(bytes_of(row));
    return rows;
}

constexpr LayoutField number(const char *name, std::size_t offset, std::uint32_t count = 1) {
    return {name, static_cast<std::uint32_t>(offset), sizeof(int), count, LayoutForm::kSigned, 0};
}

constexpr LayoutField kCount[] = {number("numq", offsetof(QueueCountRow, numq))};
constexpr LayoutField kMap[] = {number("priority", offsetof(QueueMapRow, priority)),
                                number("cosq", offsetof(QueueMapRow, cosq))};
constexpr LayoutField kPortMap[] = {number("port", offsetof(PortQueueMapRow, port)),
                                    number("priority", offsetof(PortQueueMapRow, priority)),
                                    number("cosq", offsetof(PortQueueMapRow, cosq))};
constexpr LayoutField kSched[] = {
    {"pbm", offsetof(QueueSchedRow, pbm), sizeof(bcm_pbmp_t), 1, LayoutForm::kPortSet, 0},
    number("mode", offsetof(QueueSchedRow, mode)),
    number("weights", offsetof(QueueSchedRow, weights), kQueues),
    number("delay", offsetof(QueueSchedRow, delay))};

constexpr QueueRows kRows[] = {
    {{"cosq map", offsetof(QueueMapRow, cosq), kMap}, maps},
    {{"cosq portmap", offsetof(PortQueueMapRow, cosq), kPortMap}, port_maps},
    {{"cosq sched", offsetof(QueueSchedRow, mode), kSched}, schedules},
    {{"cosq queues", 0, kCount}, counts}};

}  // namespace

const std::span<const QueueRows> queue_rows = kRows;

const QueueRows *queue_rows_of(std::string_view command) {
    const auto *const found = std::ranges::find_if(
        kRows, [&](const QueueRows &one) { return command == one.layout.family; });
    return found == std::end(kRows) ? nullptr : found;
}

}  // namespace standin
