// What the MAC chapter keeps besides the table: timers and limits.
#pragma once
#include <cstdint>
#include <map>

#include "sdk/bcm/l2_types.h"
#include "standin/model/events.h"
#include "standin/model/l2_table.h"

namespace standin {

// What a watcher's `operation` says.
enum L2Event : int { kL2Added = 1, kL2Deleted = 2, kL2Learned = 3, kL2AgedOut = 4 };

// What a learn limit counts: `scope` is one bit of its flags, `number` the VLAN, port or trunk.
constexpr std::uint32_t kLimitSystem = 0x1;
constexpr std::uint32_t kLimitVlan = 0x2;
constexpr std::uint32_t kLimitPort = 0x4;
constexpr std::uint32_t kLimitTrunk = 0x8;

struct L2Scope {
    std::uint32_t scope = 0;
    int number = 0;

    auto operator<=>(const L2Scope &) const = default;
};

struct L2Chapter {
    L2Table table;
    int age_seconds = 0;  // 0: entries do not age
    std::uint64_t clock = 0;
    int freezes = 0;
    bool limits_enabled = true;
    std::map<L2Scope, int> limits;
};

// Tells the watchers of the table.
inline void note_l2(Events &events, const bcm_l2_addr_t &entry, int operation) {
    if (!events.handlers.any(Registration::kL2Address)) return;
    events.raise(Registration::kL2Address, [entry, operation](int unit, const Handler &one) {
        bcm_l2_addr_t told = entry;
        one.as<bcm_l2_addr_callback_t>()(unit, &told, operation, one.user);
    });
}

}  // namespace standin
