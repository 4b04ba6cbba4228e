// The processor's side: packets and buffers, handlers in their order, queues and rates, sending.
#include <cstring>
#include <thread>

#include "frames.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/pkt.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/rx.h"
#include "sdk/bcm/switch.h"
#include "sdk/bcm/tx.h"
#include "sdk/bcm/vlan.h"

namespace standin {
namespace {

#define OK(call) ASSERT_EQ(call, BCM_E_NONE) << standin_last_refusal()

constexpr auto kNotHandled = static_cast<bcm_rx_t>(BCM_RX_NOT_HANDLED);
constexpr auto kHandled = static_cast<bcm_rx_t>(BCM_RX_HANDLED);
constexpr auto kOwned = static_cast<bcm_rx_t>(BCM_RX_HANDLED_OWNED);

// What handlers heard, and what they answer, by their cookie.
struct Heard {
    std::string calls;
    std::map<char, bcm_rx_t> answers;
    std::vector<bcm_pkt_t *> owned;
    bcm_pkt_t last{};
    Frame frame;
} heard;

bcm_rx_t listen(int /*unit*/, bcm_pkt_t *packet, void *cookie) {
    const char name = *static_cast<const char *>(cookie);
    heard.calls += name;
    heard.last = *packet;
    heard.frame.assign(packet->pkt_data[0].data,
                       packet->pkt_data[0].data + packet->pkt_data[0].len);
    const bcm_rx_t answer = heard.answers.contains(name) ? heard.answers[name] : kNotHandled;
    if (answer == kOwned) heard.owned.push_back(packet);
    return answer;
}

// Station 2 is the processor; ports 1 and 2 untagged, 3 tagged in VLAN 100.
struct Processor : Chip {
    void SetUp() override {
        Chip::SetUp();
        heard = {};
        OK(bcm_vlan_create(0, 100));
        OK(bcm_vlan_port_add(0, 100, ports({0, 1, 2, 3}), ports({1, 2})));
        for (const int port : {1, 2}) OK(bcm_port_untagged_vlan_set(0, port, 100));
        bcm_l2_addr_t entry{};
        std::memcpy(entry.mac, Mac(2).data(), 6);
        entry.vid = 100;
        OK(bcm_l2_addr_add(0, &entry));
        OK(bcm_rx_start(0, nullptr));
    }
    static int add(const char *name, int priority) {
        return bcm_rx_register(0, name, listen, static_cast<uint8>(priority),
                               const_cast<char *>(name), 0);
    }
    static std::string counts() {
        unsigned long long handled = 0, owned = 0, unclaimed = 0;
        EXPECT_EQ(standin_packet_received(0, &handled, &owned, &unclaimed), BCM_E_NONE);
        int packets = 0, buffers = 0;
        standin_packet_unfreed(0, &packets, &buffers);
        return std::to_string(handled) + " handled, " + std::to_string(owned) + " owned, " +
               std::to_string(unclaimed) + " unclaimed, " + std::to_string(packets) + "+" +
               std::to_string(buffers) + " out";
    }
};

TEST_F(Processor, HandlersHearByPriorityUntilOneTakesIt) {
    OK(add("a", 10));
    OK(add("b", 200));
    OK(add("c", 10));
    EXPECT_EQ(add("a", 10), BCM_E_EXISTS);
    inject(1, plain());
    EXPECT_EQ(heard.calls, "bac");
    EXPECT_EQ(counts(), "0 handled, 0 owned, 1 unclaimed, 0+0 out");
    heard.answers['a'] = kHandled;
    inject(1, plain());
    EXPECT_EQ(heard.calls, "bacba");
    EXPECT_EQ(heard.frame, plain());
    EXPECT_EQ(heard.last.vlan, 100);
    EXPECT_EQ(heard.last.rx_port, 1);
    EXPECT_EQ(heard.last.rx_untagged, 1);
    EXPECT_EQ(heard.last.rx_reason, static_cast<uint32>(bcmRxReasonL2Cpu));
    EXPECT_EQ(counts(), "1 handled, 0 owned, 1 unclaimed, 0+0 out");

    heard.answers['b'] = kOwned;
    inject(1, plain());
    EXPECT_EQ(counts(), "1 handled, 1 owned, 1 unclaimed, 1+1 out");
    bcm_pkt_t *const mine = heard.owned.at(0);
    OK(bcm_rx_free(0, mine->pkt_data[0].data));
    EXPECT_EQ(bcm_rx_free(0, mine->alloc_ptr), BCM_E_PARAM) << "it is gone";
    OK(bcm_pkt_free(0, mine));
    EXPECT_EQ(bcm_pkt_free(0, mine), BCM_E_NOT_FOUND) << "twice";
    EXPECT_EQ(counts(), "1 handled, 1 owned, 1 unclaimed, 0+0 out");

    OK(bcm_rx_unregister(0, listen, 200));
    EXPECT_EQ(bcm_rx_unregister(0, listen, 200), BCM_E_NOT_FOUND);
    OK(bcm_rx_stop(0, nullptr));
    EXPECT_EQ(bcm_rx_active(0), 0);
    inject(1, plain());
    EXPECT_EQ(heard.calls, "bacbab") << "nobody hears while it is stopped";
}

// A handler may do what an agent does: answer, unregister itself, stop the receiver.
TEST_F(Processor, AHandlerMaySendAndStop) {
    static int sends;
    sends = 0;
    const auto answer = [](int unit, bcm_pkt_t *packet, void *) -> bcm_rx_t {
        packet->tx_pbmp = ports({3});
        EXPECT_EQ(bcm_tx(unit, packet, nullptr), BCM_E_NONE);
        EXPECT_EQ(bcm_rx_stop(unit, nullptr), BCM_E_NONE);
        ++sends;
        return kHandled;
    };
    OK(bcm_rx_register(0, "answer", answer, 1, nullptr, 0));
    inject(1, plain());
    inject(1, plain());
    EXPECT_EQ(sends, 1);
    EXPECT_EQ(ended()["sent"], 1u);
    EXPECT_EQ(ended()["rx_stopped"], 1u);
}

TEST_F(Processor, ReasonsGoToQueuesThatHaveRates) {
    OK(control(bcmSwitchArpRequestToCpu));
    bcm_rx_reasons_t reasons{};
    reasons.pbits[bcmRxReasonArp / 32] |= 1u << (bcmRxReasonArp % 32);
    OK(bcm_rx_cosq_mapping_set(0, 3, reasons, reasons, 0, 0, 0, 0, 7));
    static char every[] = "e", seven[] = "7";
    OK(bcm_rx_queue_register(0, "seven", 7, listen, 9, seven, 0));
    OK(bcm_rx_register(0, "every", listen, 1, every, 0));
    const Frame request = Frame(6, 0xff) + mac(1) + n16(0x0806) + arp(1, 1, 2);
    inject(1, request);
    inject(1, plain());
    EXPECT_EQ(heard.calls, "7ee");
    OK(bcm_rx_cos_rate_set(0, 7, 10));
    OK(bcm_rx_cos_burst_set(0, 7, 2));
    int tokens = 0;
    OK(bcm_rx_queue_rate_limit_status_get(0, 7, &tokens));
    EXPECT_EQ(tokens, 2);
    for (int i = 0; i < 5; ++i) inject(1, request);
    EXPECT_EQ(ended()["rx_rate"], 3u);
    OK(standin_time_pass(0, 100'000));
    inject(1, request);
    inject(1, request);
    EXPECT_EQ(ended()["rx_rate"], 4u);
    int count = 0;
    OK(bcm_rx_queue_packet_count_get(0, 7, &count));
    EXPECT_EQ(count, 4);
    OK(bcm_rx_cos_max_len_set(0, 0, 50));
    inject(1, plain());
    EXPECT_EQ(ended()["rx_too_long"], 1u);
    EXPECT_EQ(bcm_rx_cos_rate_set(0, 48, 1), BCM_E_PARAM);
}

TEST_F(Processor, TheReceiverMayBringItsOwnBuffers) {
    static int out;
    static uint8 memory[2000];
    out = 0;
    bcm_rx_cfg_t config{};
    OK(bcm_rx_cfg_get(0, &config));
    EXPECT_EQ(bcm_rx_start(0, &config), BCM_E_BUSY);
    OK(bcm_rx_stop(0, nullptr));
    config.rx_alloc = [](int, int, uint32, void **data) -> int {
        *data = memory;
        return ++out > 2 ? BCM_E_MEMORY : BCM_E_NONE;
    };
    EXPECT_EQ(bcm_rx_start(0, &config), BCM_E_PARAM) << "without its other half";
    config.rx_free = [](int, void *data) -> int {
        EXPECT_EQ(data, memory);
        return --out;
    };
    OK(bcm_rx_start(0, &config));
    OK(add("a", 1));
    inject(1, plain());
    EXPECT_EQ(out, 0);
    out = 2;
    inject(1, plain());
    EXPECT_EQ(ended()["rx_no_buffer"], 1u);
    EXPECT_EQ(heard.calls, "a");
}

TEST_F(Processor, PacketsHaveBlocksThatAreFilledAndFreed) {
    bcm_pkt_t *packet = nullptr;
    OK(bcm_pkt_alloc(0, 100, 0, &packet));
    EXPECT_EQ(packet->blk_count, 1);
    EXPECT_EQ(packet->pkt_data[0].len, 100);
    EXPECT_EQ(counts(), "0 handled, 0 owned, 0 unclaimed, 1+1 out");
    Frame bytes(100, 7);
    OK(bcm_pkt_memcpy(packet, 0, bytes.data(), 100));
    EXPECT_EQ(packet->pkt_data[0].data[99], 7);
    EXPECT_EQ(bcm_pkt_memcpy(packet, 1, bytes.data(), 100), BCM_E_PARAM);
    EXPECT_EQ(bcm_pkt_alloc(0, -1, 0, &packet), BCM_E_PARAM);
    EXPECT_EQ(bcm_pkt_alloc(0, 10, 0, nullptr), BCM_E_PARAM);
    OK(bcm_pkt_free(0, packet));
    bcm_pkt_t mine{};
    EXPECT_EQ(bcm_pkt_free(0, &mine), BCM_E_NOT_FOUND) << "not made here";
    EXPECT_EQ(bcm_pkt_free(0, nullptr), BCM_E_PARAM);

    bcm_pkt_t **several = nullptr;
    OK(bcm_pkt_blk_alloc(0, 3, 64, 0, &several));
    OK(bcm_pkt_blk_free(0, several, 3));
    // A packet of the caller in two blocks, the second one byte long.
    uint8 first[4] = {}, second[1] = {};
    bcm_pkt_blk_t blocks[] = {{first, 4}, {second, 1}};
    OK(bcm_pkt_clear(0, &mine, blocks, 2, 0, nullptr));
    OK(bcm_pkt_memcpy(&mine, 2, bytes.data(), 3));
    EXPECT_EQ(second[0], 7);
    EXPECT_EQ(first[1], 0);
    int block = 0, at = 0;
    uint8 *data = nullptr;
    OK(bcm_pkt_byte_index(&mine, 4, &block, &at, &data));
    EXPECT_EQ(block, 1);
    EXPECT_EQ(data, second);
    EXPECT_EQ(bcm_pkt_byte_index(&mine, 5, nullptr, nullptr, nullptr), BCM_E_PARAM);

    void *buffer = nullptr;
    OK(bcm_rx_pool_setup(1, 256));
    OK(bcm_rx_pool_alloc(0, 256, 0, &buffer));
    void *none = nullptr;
    EXPECT_EQ(bcm_rx_pool_alloc(0, 256, 0, &none), BCM_E_RESOURCE);
    EXPECT_EQ(bcm_rx_pool_cleanup(), BCM_E_BUSY);
    OK(bcm_rx_pool_free(0, buffer));
    OK(bcm_rx_pool_cleanup());
    EXPECT_EQ(counts(), "0 handled, 0 owned, 0 unclaimed, 0+0 out");
}

// A packet of the caller around these bytes.
struct Mine {
    explicit Mine(Frame its_bytes) : bytes(std::move(its_bytes)) {
        block = {bytes.data(), static_cast<int>(bytes.size())};
        packet.pkt_data = &block;
        packet.blk_count = 1;
    }
    Frame bytes;
    bcm_pkt_blk_t block{};
    bcm_pkt_t packet{};
};

std::vector<std::uint8_t> captured(int port) {
    const uint8 *file = nullptr;
    int size = 0;
    EXPECT_EQ(standin_packet_capture_get(0, port, &file, &size, nullptr), BCM_E_NONE);
    return size < 40 ? Frame{} : Frame(file + 40, file + size);
}

TEST_F(Processor, SendsToPortsOrThroughThePipeline) {
    for (const int port : {1, 3}) OK(standin_packet_capture(0, port, 2));
    Mine to_ports(plain(tag(100)));
    to_ports.packet.tx_pbmp = ports({1, 3});
    to_ports.packet.tx_upbmp = ports({1});
    static int done;
    done = 0;
    to_ports.packet.call_back = [](int, bcm_pkt_t *, void *cookie) {
        done += *static_cast<int *>(cookie);
    };
    int five = 5;
    OK(bcm_tx(0, &to_ports.packet, &five));
    EXPECT_EQ(done, 5);
    EXPECT_EQ(captured(1), plain());
    EXPECT_EQ(captured(3), plain(tag(100)));

    for (const int port : {1, 3}) OK(standin_packet_capture(0, port, 2));
    Mine through(mac(1) + mac(2) + tag(100) + n16(0x88b5) + Frame(46));
    OK(bcm_tx(0, &through.packet, nullptr));
    EXPECT_EQ(captured(1).size(), 60u) << "flooded";
    EXPECT_EQ(captured(3).size(), 64u);

    Mine nothing({});
    EXPECT_EQ(bcm_tx(0, &nothing.packet, nullptr), BCM_E_PARAM);
    EXPECT_EQ(bcm_tx(0, nullptr, nullptr), BCM_E_PARAM);
    to_ports.packet.tx_pbmp.pbits[5] = 1;
    EXPECT_EQ(bcm_tx(0, &to_ports.packet, nullptr), BCM_E_PORT);
    to_ports.packet.tx_pbmp = ports({2});
    bcm_pkt_t *both[] = {&to_ports.packet, &through.packet};
    static int ends;
    ends = 0;
    OK(bcm_tx_array(
        0, both, 2, [](int, bcm_pkt_t *, void *) { ++ends; }, nullptr));
    EXPECT_EQ(ends, 1);
    OK(bcm_port_enable_set(0, 2, 0));
    OK(bcm_tx(0, &to_ports.packet, &five));
    EXPECT_EQ(ended()["egress_down"], 1u);
}

// Frames on one thread while another registers and stops: no lock is held while handlers run.
TEST_F(Processor, ThreadsDoNotWaitForHandlers) {
    static std::atomic<bool> inside, go_on;
    inside = go_on = false;
    const auto wait = [](int, bcm_pkt_t *, void *) -> bcm_rx_t {
        inside = true;
        while (!go_on) std::this_thread::yield();
        return kHandled;
    };
    OK(bcm_rx_register(0, "wait", wait, 1, nullptr, 0));
    std::thread reader([] { inject(1, plain()); });
    while (!inside) std::this_thread::yield();
    EXPECT_EQ(bcm_rx_unregister(0, wait, 1), BCM_E_NONE);
    EXPECT_EQ(bcm_rx_stop(0, nullptr), BCM_E_NONE);
    EXPECT_EQ(ended()["to_processor"], 1u);
    go_on = true;
    reader.join();
    EXPECT_EQ(counts(), "1 handled, 0 owned, 0 unclaimed, 0+0 out");
}

}  // namespace
}  // namespace standin
