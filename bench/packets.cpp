// Frames a second through the whole pipeline of the stand-in, in memory on one thread: by size, by
// the number of rules, by the number of MAC addresses and routes. Prints a table.
//
//     packet_bench [FRAMES [ROW]]     how many frames a row sends, 400,000 unless given; one row
//     alone
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "helper/device.h"
#include "sdk/bcm/field.h"
#include "sdk/bcm/field_qualify.h"
#include "sdk/bcm/ip.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/l3.h"
#include "sdk/bcm/port.h"
#include "sdk/constants.h"
#include "sdk/soc/init.h"
#include "standin/chapters/hooks.h"
#include "standin/chapters/packet_hooks.h"

namespace {

constexpr int kKnown = 64;  // stations that the frames go to
constexpr uint8 kRouter[6] = {2, 0, 0, 0, 0, 0xee};

void must(int status, const char *what) {
    if (status >= 0) return;
    std::fprintf(stderr, "%s: %s\n", what, standin_last_refusal());
    std::exit(1);
}
#define MUST(call) must(call, #call)

void put_mac(uint8 *at, std::uint32_t number) {
    const uint8 mac[6] = {2,
                          0,
                          0,
                          static_cast<uint8>(number >> 16),
                          static_cast<uint8>(number >> 8),
                          static_cast<uint8>(number)};
    std::memcpy(at, mac, sizeof mac);
}

// Station `number` is on port 1 + number % 16, all in VLAN 1.
void add_stations(int count) {
    for (int i = 0; i < count; ++i) {
        bcm_l2_addr_t entry{};
        put_mac(entry.mac, static_cast<std::uint32_t>(i));
        entry.vid = 1;
        entry.port = 1 + i % 16;
        MUST(bcm_l2_addr_add(0, &entry));
    }
}

// Rules that look at the source net and the protocol's port; no frame here matches one.
void add_rules(int count) {
    if (count == 0) return;
    bcm_field_qset_t set{};
    for (const int id :
         {+bcmFieldQualifyStageIngress, +bcmFieldQualifySrcIp, +bcmFieldQualifyL4DstPort})
        set.w[id / 32] |= 1u << (id % 32);
    bcm_field_group_t group = 0;
    MUST(bcm_field_group_create(0, set, 1, &group));
    for (int i = 0; i < count; ++i) {
        bcm_field_entry_t entry = 0;
        MUST(bcm_field_entry_create(0, group, &entry));
        MUST(bcm_field_qualify_SrcIp(0, entry, 0xc0000000u + static_cast<std::uint32_t>(i), ~0u));
        if (i % 2 == 0) MUST(bcm_field_qualify_L4DstPort(0, entry, 80, 0xffff));
        MUST(bcm_field_action_add(0, entry, static_cast<bcm_field_action_t>(bcmFieldActionDrop), 0,
                                  0));
        MUST(bcm_field_entry_install(0, entry));
    }
}

void add_routes(int count) {
    bcm_l3_intf_t intf{};
    std::memcpy(intf.l3a_mac_addr, kRouter, sizeof kRouter);
    intf.l3a_vid = 1;
    MUST(bcm_l3_intf_create(0, &intf));
    for (int port = 1; port <= 16; ++port) MUST(bcm_port_l3_enable_set(0, port, 1));
    bcm_l3_egress_t hop{};
    hop.intf = intf.l3a_intf_id;
    hop.port = 17;
    put_mac(hop.mac_addr, 77);
    bcm_if_t number = 0;
    MUST(bcm_l3_egress_create(0, 0, &hop, &number));
    for (int i = 0; i < count; ++i) {
        bcm_l3_route_t route{};
        route.l3a_subnet = 0x0a000000u + (static_cast<std::uint32_t>(i) << 7);
        route.l3a_ip_mask = bcm_ip_mask_create(25);
        route.l3a_intf = number;
        MUST(bcm_l3_route_add(0, &route));
    }
}

// UDP over IPv4 in `size` bytes, of which the last four are the checksum of the wire.
std::vector<uint8> make_frame(int size, bool routed, int flow) {
    std::vector<uint8> frame(static_cast<std::size_t>(size) - 4, 0);
    put_mac(frame.data() + 6, static_cast<std::uint32_t>(flow * 16));  // on port 1
    if (routed)
        std::memcpy(frame.data(), kRouter, sizeof kRouter);
    else
        put_mac(frame.data(), static_cast<std::uint32_t>(flow * 16 + 1 + flow % 15));
    const uint8 header[] = {8,  0, 0x45, 0,  0, 0, 0, 0,  0, 0, 64,
                            17, 0, 0,    10, 9, 9, 9, 10, 0, 0, 1};
    std::memcpy(frame.data() + 12, header, sizeof header);
    const int total = size - 4 - 14;
    frame[16] = static_cast<uint8>(total >> 8);
    frame[17] = static_cast<uint8>(total);
    frame[32] = static_cast<uint8>(flow);
    frame[38] = static_cast<uint8>((total - 20) >> 8);
    frame[39] = static_cast<uint8>(total - 20);
    unsigned sum = 0;
    for (std::size_t i = 14; i < 34; i += 2)
        sum += static_cast<unsigned>(frame[i] << 8 | frame[i + 1]);
    sum = ~((sum & 0xffff) + (sum >> 16)) & 0xffff;
    frame[24] = static_cast<uint8>(sum >> 8);
    frame[25] = static_cast<uint8>(sum);
    return frame;
}

struct Row {
    const char *what;
    int stations, rules, routes, size;
};
constexpr Row kRows[] = {{"bridged", 2048, 0, 0, 64},     {"bridged", 2048, 16'384, 0, 64},
                         {"bridged", 2048, 0, 0, 1500},   {"bridged", 2048, 16'384, 0, 1500},
                         {"bridged", 65'536, 0, 0, 64},   {"routed", 2048, 0, 100, 64},
                         {"routed", 2048, 0, 65'536, 64}, {"routed", 2048, 16'384, 65'536, 1500}};

void run(const Row &row, int frames) {
    standin_reset();
    MUST(addOmbraDevice(0, 1, 0, 0));
    MUST(soc_init(0));
    add_stations(row.stations);
    add_rules(row.rules);
    if (row.routes > 0) add_routes(row.routes);
    std::vector<std::vector<uint8>> flows;
    for (int i = 0; i < kKnown; ++i) flows.push_back(make_frame(row.size, row.routes > 0, i));
    int copies = 0;
    const auto count = [](void *context, int, const uint8 *, int) {
        ++*static_cast<int *>(context);
    };
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < frames; ++i) {
        const std::vector<uint8> &frame = flows[static_cast<std::size_t>(i % kKnown)];
        MUST(standin_packet_inject(0, 1, frame.data(), static_cast<int>(frame.size()), count,
                                   &copies));
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::printf(
        "%-10s %5d bytes %7d addresses %6d rules %7d routes %10.0f frames/s  %d%% arrived\n",
        row.what, row.size, row.stations, row.rules, row.routes, frames / took.count(),
        static_cast<int>(100.0 * copies / frames));
}

}  // namespace

int main(int argc, char **argv) {
    const int frames = argc > 1 ? std::max(1, std::atoi(argv[1])) : 400'000;
    const int only = argc > 2 ? std::atoi(argv[2]) : -1;
    int number = 0;
    for (const Row &row : kRows)
        if (const int its = number++; only < 0 || only == its) run(row, frames);
    return 0;
}
