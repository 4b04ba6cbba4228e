// Time, which stands still until a test lets it pass, and the interfaces that tell it.
#include <map>

#include "sdk/bcm/time.h"
#include "standin/chapters/hooks.h"
#include "standin/chapters/l2_select.h"
#include "standin/chapters/linkscan.h"
#include "standin/chapters/registration.h"
#include "standin/model/layouts.h"
#include "standin/model/tables.h"
#include "standin/model/telling.h"

using namespace standin;

namespace {

constexpr std::uint64_t kSecond = 1'000'000;          // in the chip's microseconds
constexpr std::int64_t kNanoseconds = 1'000'000'000;  // of a second
constexpr int kFastestBeat = 1'000'000;               // a second
constexpr std::uint32_t kReplaceInterface = 0x20;

void age_addresses(Switch &chip) {
    L2Chapter &l2 = chip.l2;
    if (l2.clock == chip.now / kSecond) return;
    l2.clock = chip.now / kSecond;
    if (l2.age_seconds == 0 || l2.freezes > 0) return;
    const auto limit = static_cast<std::uint64_t>(l2.age_seconds);
    erase_rows(chip, kL2AgedOut,
               [&](const L2Row &row) { return !row.is_static() && l2.clock - row.heard >= limit; });
}

struct TimeInterface {
    bcm_time_interface_t info{};
    bool beats = false;
    std::uint64_t since = 0;  // when its heartbeat was turned on
};

struct Times {
    std::map<int, TimeInterface> interfaces;
};

void visit_state(const Times &times, StateVisitor &to) {
    for (const auto &[id, one] : times.interfaces) {
        to.object("time_interface", std::to_string(id));
        visit_struct(to, "", *struct_layout("bcm_time_interface_t"), &one.info);
        to.number("beats", one.beats);
        to.number("since", static_cast<std::int64_t>(one.since));
    }
}

std::map<int, TimeInterface> &interfaces_of(Switch &chip) {
    return chip.layers.of<Times>().interfaces;
}

// -- moments -------------------------------------------------------------------------------------

bcm_time_spec_t moment(std::uint64_t seconds, std::uint64_t nanoseconds) {
    bcm_time_spec_t made{};
    made.seconds = seconds;
    made.nanoseconds = static_cast<std::uint32_t>(nanoseconds);
    return made;
}

// Seconds wrap as unsigned numbers do.
bcm_time_spec_t sum(const bcm_time_spec_t &one, const bcm_time_spec_t &other) {
    std::uint64_t seconds = 0;
    std::int64_t rest = 0;
    for (const bcm_time_spec_t *part : {&one, &other}) {
        seconds += part->isnegative != 0 ? 0 - part->seconds : part->seconds;
        rest += part->isnegative != 0 ? -std::int64_t{part->nanoseconds} : part->nanoseconds;
    }
    const auto carry = static_cast<std::uint64_t>((rest + 2 * kNanoseconds) / kNanoseconds) - 2;
    seconds += carry;
    rest = (rest + 2 * kNanoseconds) % kNanoseconds;
    if (static_cast<std::int64_t>(seconds) >= 0)
        return moment(seconds, static_cast<std::uint64_t>(rest));
    bcm_time_spec_t made = moment(0 - seconds - (rest == 0 ? 0 : 1),
                                  static_cast<std::uint64_t>(rest == 0 ? 0 : kNanoseconds - rest));
    made.isnegative = 1;
    return made;
}

// What an interface reads at a moment of the chip's clock, which runs true.
bcm_time_capture_t capture(const bcm_time_interface_t &info, const bcm_time_spec_t &at) {
    bcm_time_capture_t made{};
    made.free = made.syntonous = at;
    made.synchronous = sum(at, info.offset);
    return made;
}

// -- heartbeats ----------------------------------------------------------------------------------

// The beats from the start up to `elapsed`, at `hz` a second.
std::uint64_t beats_in(std::uint64_t elapsed, std::uint64_t hz) {
    return elapsed / kSecond * hz + elapsed % kSecond * hz / kSecond;
}

bcm_time_spec_t time_of_beat(std::uint64_t since, std::uint64_t beat, std::uint64_t hz) {
    const auto unit = static_cast<std::uint64_t>(kNanoseconds);
    return sum(moment(since / kSecond, since % kSecond * (unit / kSecond)),
               moment(beat / hz, beat % hz * unit / hz));
}

// Each beat asks again for the handler, which may have gone with the one before.
void beat(Switch &chip, std::uint64_t before) {
    for (const auto &[id, one] : interfaces_of(chip)) {
        if (!one.beats || chip.events.handlers.find(Registration::kHeartbeat, {id}) == nullptr)
            continue;
        const auto hz = static_cast<std::uint64_t>(one.info.heartbeat_hz);
        const std::uint64_t first = beats_in(before - one.since, hz);
        const std::uint64_t last = beats_in(chip.now - one.since, hz);
        if (first == last) continue;
        chip.events.raise([=, id = id, one = one](int unit) {
            for (std::uint64_t count = first + 1; count <= last; ++count) {
                const auto told = first_handler(unit, Registration::kHeartbeat, {id});
                if (!told) return;
                if (callback_fault_check("bcm_time_heartbeat_register", unit) != 0) continue;
                bcm_time_capture_t at = capture(one.info, time_of_beat(one.since, count, hz));
                told->as<bcm_time_heartbeat_cb>()(unit, id, &at, told->user);
            }
        });
    }
}

int clear_times(Switch &chip) {
    interfaces_of(chip).clear();
    chip.events.handlers.remove_all(Registration::kHeartbeat);
    return BCM_E_NONE;
}

// on_switch with an interface; BCM_E_NOT_FOUND.
template <class Body>
int on_interface(const char *function, int unit, bcm_time_if_t id, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) {
        const auto found = interfaces_of(chip).find(id);
        return found == interfaces_of(chip).end() ? missing(id) : body(chip, found->second);
    });
}

bool is_moment(const bcm_time_spec_t &one) { return one.nanoseconds < kNanoseconds; }

}  // namespace

extern "C" {

int standin_time_pass(int unit, unsigned long long microseconds) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        const std::uint64_t before = chip.now;
        chip.now += microseconds;
        age_addresses(chip);
        scan_due_links(chip);
        beat(chip, before);
        return BCM_E_NONE;
    });
}

int bcm_time_init(int unit) { return start_chapter(__func__, unit, "bcm_time_", clear_times); }
int bcm_time_deinit(int unit) { return start_chapter(__func__, unit, "bcm_time_", clear_times); }

int bcm_time_interface_add(int unit, bcm_time_interface_t *intf) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (intf == nullptr || !within(intf->heartbeat_hz, 0, kFastestBeat) ||
            !is_moment(intf->drift) || !is_moment(intf->offset) || !is_moment(intf->accuracy) ||
            !is_moment(intf->ntp_offset)) {
            return int{BCM_E_PARAM};
        }
        auto &all = interfaces_of(chip);
        const auto found = all.find(intf->id);
        if (found == all.end()) {
            all[intf->id].info = *intf;
        } else {
            if ((intf->flags & kReplaceInterface) == 0) return int{BCM_E_EXISTS};
            found->second.info = *intf;
            if (intf->heartbeat_hz == 0) found->second.beats = false;
            found->second.since = chip.now;
        }
        return int{BCM_E_NONE};
    });
}

int bcm_time_interface_get(int unit, bcm_time_interface_t *intf) {
    if (intf == nullptr) return refuse(__func__, unit);
    return on_interface(__func__, unit, intf->id, [&](Switch &, const TimeInterface &one) {
        *intf = one.info;
        return int{BCM_E_NONE};
    });
}

int bcm_time_interface_delete(int unit, bcm_time_if_t if_id) {
    return on_interface(__func__, unit, if_id, [&](Switch &chip, const TimeInterface &) {
        const Handler *const told = chip.events.handlers.find(Registration::kHeartbeat, {if_id});
        if (told != nullptr) chip.events.handlers.remove(Handler(*told));
        interfaces_of(chip).erase(if_id);
        return int{BCM_E_NONE};
    });
}

int bcm_time_interface_delete_all(int unit) { return on_switch(__func__, unit, clear_times); }

int bcm_time_interface_traverse(int unit, bcm_time_interface_traverse_cb cb, void *user_data) {
    if (cb == nullptr) return refuse(__func__, unit);
    return walk(__func__, unit, interfaces_of,
                [&](int, TimeInterface &one) { return cb(unit, &one.info, user_data); });
}

// The first beat comes one period after it is turned on; an interface of no frequency has none.
int bcm_time_heartbeat_enable_set(int unit, bcm_time_if_t if_id, int enable) {
    return on_interface(__func__, unit, if_id, [&](Switch &chip, TimeInterface &one) {
        if (enable != 0 && one.info.heartbeat_hz == 0)
            return refused(BCM_E_CONFIG, "field heartbeat_hz of the interface is 0");
        if (enable != 0 && !one.beats) one.since = chip.now;
        one.beats = enable != 0;
        return int{BCM_E_NONE};
    });
}

int bcm_time_heartbeat_enable_get(int unit, bcm_time_if_t if_id, int *enable) {
    return on_interface(__func__, unit, if_id, [&](Switch &, const TimeInterface &one) {
        return give(enable, one.beats);
    });
}

// An interface has one handler.
int bcm_time_heartbeat_register(int unit, bcm_time_if_t if_id, bcm_time_heartbeat_cb cb,
                                void *user_data) {
    return on_interface(__func__, unit, if_id, [&](Switch &chip, const TimeInterface &) {
        return set_handler(chip, handler(Registration::kHeartbeat, cb, user_data, {if_id}));
    });
}

int bcm_time_heartbeat_unregister(int unit, bcm_time_if_t if_id) {
    return on_interface(__func__, unit, if_id, [&](Switch &chip, const TimeInterface &) {
        return clear_handler(chip, Registration::kHeartbeat, {if_id});
    });
}

int bcm_time_capture_get(int unit, bcm_time_if_t if_id, bcm_time_capture_t *capture_out) {
    return on_interface(__func__, unit, if_id, [&](Switch &chip, const TimeInterface &one) {
        if (capture_out == nullptr) return int{BCM_E_PARAM};
        *capture_out = capture(one.info, time_of_beat(chip.now, 0, 1));
        return int{BCM_E_NONE};
    });
}

}  // extern "C"
