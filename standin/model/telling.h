// For whoever raises events of the chip itself, or tells handlers one by one.
#pragma once
#include <array>
#include <optional>

#include "standin/model/events.h"

namespace standin {

// An event of the chip itself.
void note_switch_event(Events &events, int event, std::array<unsigned, 3> arguments);

// The next handler of a row after number `after`, up to `last`, or the first one with a key. Both
// take the lock.
std::optional<Handler> next_handler(int unit, Registration row, std::uint64_t after,
                                    std::uint64_t last);
std::optional<Handler> first_handler(int unit, Registration row, const HandlerKey &key = {});

}  // namespace standin
