// Time, which stands still until a test lets it pass.
#include "standin/chapters/hooks.h"
#include "standin/chapters/l2_select.h"
#include "standin/chapters/linkscan.h"

using namespace standin;

namespace {

constexpr std::uint64_t kSecond = 1'000'000;

void age_addresses(Switch &chip) {
    L2Chapter &l2 = chip.l2;
    if (l2.clock == chip.now / kSecond) return;
    l2.clock = chip.now / kSecond;
    if (l2.age_seconds == 0 || l2.freezes > 0) return;
    const auto limit = static_cast<std::uint64_t>(l2.age_seconds);
    erase_rows(chip, kL2AgedOut,
               [&](const L2Row &row) { return !row.is_static() && l2.clock - row.heard >= limit; });
}

}  // namespace

extern "C" {

int standin_time_pass(int unit, unsigned long long microseconds) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        chip.now += microseconds;
        age_addresses(chip);
        scan_due_links(chip);
        return BCM_E_NONE;
    });
}

}  // extern "C"
