// The queues of a unit as rows, which commands take and show field by field: one row for how many
// there are, one for each priority, and so on. A kind of rows is named after its command.
#pragma once
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sdk/scalars.h"
#include "standin/model/queues.h"
#include "standin/model/layouts.h"

namespace standin {

struct QueueCountRow {
    int numq;
};
struct QueueMapRow {
    int priority, cosq;
};
struct PortQueueMapRow {
    int port, priority, cosq;
};
struct QueueSchedRow {
    bcm_pbmp_t pbm;
    int mode;
    int weights[kQueues];
    int delay;
};

struct QueueRows {
    FamilyLayout layout;  // "cosq map"
    std::vector<std::string> (*of)(const Queues &queues);
};

// In the order in which their commands make the queues again: a mapping may name a queue that a
// smaller number of them leaves out.
extern const std::span<const QueueRows> queue_rows;
// Null for a name that is not there.
const QueueRows *queue_rows_of(std::string_view command);

}  // namespace standin
