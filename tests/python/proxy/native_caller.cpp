// Calls native callbacks the way the SDK does, from a thread of its own.
#include <thread>
#include <vector>

#include "sdk/bcm/l2_types.h"
#include "sdk/bcm/linkscan_types.h"

extern "C" {

// Returns when the handler has.
void report_link(bcm_linkscan_handler_t handler, int unit, int port, bcm_port_info_t *info) {
    std::thread([&] { handler(unit, port, info); }).join();
}

// Calls from several threads at once, `count` times from each.
void report_stations(bcm_l2_addr_callback_t callback, int threads, int count, void *cookie) {
    auto report = [&](int unit) {
        for (int i = 0; i < count; ++i) {
            bcm_l2_addr_t entry{};
            entry.port = i;
            callback(unit, &entry, 1, cookie);
        }
    };
    std::vector<std::thread> running;
    for (int i = 0; i < threads; ++i) running.emplace_back(report, i);
    for (auto &thread : running) thread.join();
}

}  // extern "C"
