// Who is told of what, when, and by which thread.
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "chip_fixture.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/linkscan.h"
#include "sdk/bcm/oam.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/time.h"
#include "standin/model/registrations.h"

namespace standin {
namespace {

// A link handler has no argument of its own, so what it does and hears is the process's.
struct Heard {
    std::vector<std::string> told;
    std::function<void(const std::string &)> then;
    std::thread::id thread;
} heard;

template <char Name>
void on_link(int, bcm_port_t port, bcm_port_info_t *info) {
    const std::string text = Name + std::to_string(port) + (info->linkstatus != 0 ? "+" : "-");
    heard.told.push_back(text);
    heard.thread = std::this_thread::get_id();
    if (heard.then) heard.then(text);
}

using Told = std::vector<std::string>;

class Events : public Chip {
  protected:
    void SetUp() override {
        Chip::SetUp();
        heard = {};
        bcm_linkscan_enable_set(0, 250'000);
        for (const int port : {1, 2, 3}) bcm_linkscan_mode_set(0, port, BCM_LINKSCAN_MODE_SW);
        bcm_linkscan_register(0, on_link<'a'>);
    }
    static Told told() { return std::exchange(heard.told, {}); }
};

TEST_F(Events, EveryChangeOfAScannedLinkIsToldInTheThreadOfItsCall) {
    struct Case {
        const char *what;
        std::function<void()> change;
        Told told;
    };
    const Case cases[] = {
        {"far end", [] { standin_link_set(0, 1, 0); }, {"a1-"}},
        {"nothing new", [] { standin_link_set(0, 1, 0); }, {}},
        {"loopback", [] { bcm_port_loopback_set(0, 1, BCM_PORT_LOOPBACK_MAC); }, {"a1+"}},
        {"no loopback", [] { bcm_port_loopback_set(0, 1, BCM_PORT_LOOPBACK_NONE); }, {"a1-"}},
        {"far end back", [] { standin_link_set(0, 1, 1); }, {"a1+"}},
        {"disabled", [] { bcm_port_enable_set(0, 2, 0); }, {"a2-"}},
        {"record",
         [] {
             bcm_port_info_t info{};
             bcm_port_info_get(0, 2, &info);
             info.enable = 1;
             bcm_port_info_set(0, 2, &info);
         },
         {"a2+"}},
        {"not scanned", [] { standin_link_set(0, 4, 0); }, {}},
        {"mode",
         [] {
             bcm_linkscan_mode_set_pbm(0, ports({4, 5}), BCM_LINKSCAN_MODE_SW);
         },
         {"a5+"}},
        {"no mode", [] { bcm_port_linkscan_set(0, 5, BCM_LINKSCAN_MODE_NONE); }, {}},
        {"no scan", [] { standin_link_set(0, 5, 0); }, {}},
        {"update",
         [] {
             bcm_linkscan_update(0, ports({4, 5}));
         },
         {"a5-"}},
        {"a change that is none",
         [] {
             bcm_link_change(0, ports({3, 4}));
         },
         {"a3-", "a3+"}},
        {"all at once",
         [] {
             bcm_port_clear(0);
             bcm_linkscan_update(0, kAllPorts);
         },
         {}},
        {"off",
         [] {
             bcm_linkscan_enable_set(0, 0);
             standin_link_set(0, 1, 0);
         },
         {}},
        {"on",
         [] {
             bcm_linkscan_mode_set(0, 1, BCM_LINKSCAN_MODE_SW);
             bcm_linkscan_enable_set(0, 1);
         },
         {"a1-"}},
    };
    for (const Case &one : cases) {
        SCOPED_TRACE(one.what);
        told();
        one.change();
        if (one.what == std::string("all at once"))
            EXPECT_EQ(told().size(), kPorts - 3u) << "all but those whose link was told as up";
        else
            EXPECT_EQ(told(), one.told);
    }
    EXPECT_EQ(heard.thread, std::this_thread::get_id());
}

TEST_F(Events, AHandlerMayUnregisterAndCall) {
    bcm_linkscan_register(0, on_link<'b'>);
    EXPECT_EQ(bcm_linkscan_register(0, on_link<'b'>), BCM_E_EXISTS);
    EXPECT_EQ(bcm_linkscan_register(0, nullptr), BCM_E_PARAM);
    heard.then = [](const std::string &text) {  // what it causes comes after what waits
        if (text == "a1-") standin_link_set(0, 2, 0);
        if (text == "b1-") bcm_linkscan_unregister(0, on_link<'b'>);
        if (text == "a2-") bcm_linkscan_register(0, on_link<'c'>);
    };
    standin_link_set(0, 1, 0);
    EXPECT_EQ(told(), (Told{"a1-", "b1-", "a2-"})) << "the new one was not there then";
    heard.then = [](const std::string &) { bcm_linkscan_unregister(0, on_link<'c'>); };
    standin_link_set(0, 1, 1);
    EXPECT_EQ(told(), Told{"a1+"}) << "another one ends it";
    EXPECT_EQ(bcm_linkscan_unregister(0, on_link<'c'>), BCM_E_NOT_FOUND);
    heard.then = nullptr;
    bcm_linkscan_detach(0);
    EXPECT_EQ(bcm_linkscan_update(0, ports({1})), BCM_E_INIT);
    EXPECT_EQ(bcm_linkscan_init(0), BCM_E_NONE);
    standin_link_set(0, 1, 0);
    bcm_linkscan_update(0, ports({1, 2}));
    EXPECT_EQ(told(), Told{}) << "the handlers are gone";
}

TEST_F(Events, AResetInAHandlerEndsWhatWaits) {
    bcm_linkscan_register(0, on_link<'b'>);
    heard.then = [](const std::string &) { soc_reset_init(0); };
    bcm_linkscan_update(0, ports({1, 2, 3}));
    standin_link_set(0, 1, 0);
    EXPECT_EQ(told(), Told{"a1-"});
}

TEST_F(Events, HardwareScansByInterrupt) {
    bcm_linkscan_mode_set(0, 1, BCM_LINKSCAN_MODE_HW);
    standin_link_set(0, 1, 0);
    EXPECT_EQ(told(), Told{"a1-"});
    maskDeviceInterrupts(1);
    standin_link_set(0, 1, 1);
    standin_link_set(0, 2, 0);
    EXPECT_EQ(told(), Told{"a2-"}) << "software needs none";
    standin_time_pass(0, 1'000'000);
    EXPECT_EQ(told(), Told{});
    bcm_linkscan_update(0, ports({1}));
    EXPECT_EQ(told(), Told{"a1+"});
}

int far_link;
int asked;

int read_link(int, bcm_port_t, int *link) {
    ++asked;
    *link = far_link;
    return BCM_E_NONE;
}

TEST_F(Events, APortsHandlerReadsTheLinkInThePlaceOfTheScanner) {
    far_link = 0;
    EXPECT_EQ(bcm_linkscan_port_register(0, 3, read_link), BCM_E_NONE);
    EXPECT_EQ(bcm_linkscan_port_register(0, 3, read_link), BCM_E_EXISTS);
    EXPECT_EQ(told(), Told{"a3-"});
    int link = 1;
    bcm_port_link_status_get(0, 3, &link);
    EXPECT_EQ(link, 0);
    asked = 0;
    far_link = 1;
    standin_time_pass(0, 249'999);
    EXPECT_EQ(asked, 0);
    standin_time_pass(0, 1);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(told(), Told{"a3+"});
    far_link = 0;
    EXPECT_EQ(bcm_linkscan_port_unregister(0, 3, read_link), BCM_E_NONE);
    EXPECT_EQ(told(), Told{}) << "the far end is there as before";
    EXPECT_EQ(bcm_linkscan_port_unregister(0, 3, read_link), BCM_E_NOT_FOUND);
}

TEST_F(Events, WaitingTellsWhichLinksAreUp) {
    standin_link_set(0, 2, 0);
    bcm_pbmp_t set = ports({1, 2});
    EXPECT_EQ(bcm_link_wait(0, &set, 1'000), BCM_E_TIMEOUT);
    EXPECT_EQ(set, ports({1}));
    EXPECT_EQ(bcm_link_wait(0, &set, 1'000), BCM_E_NONE);
    EXPECT_EQ(bcm_link_wait(0, nullptr, 1'000), BCM_E_PARAM);
    EXPECT_EQ(bcm_linkscan_enable_port_get(0, 1), BCM_E_NONE);
    EXPECT_EQ(bcm_linkscan_enable_port_get(0, 7), BCM_E_DISABLED);
}

int beat_again(int unit, bcm_time_if_t id, bcm_time_capture_t *time, void *user) {
    auto &beats = *static_cast<std::vector<std::uint64_t> *>(user);
    beats.push_back(time->synchronous.seconds * 1'000 + time->synchronous.nanoseconds / 1'000'000);
    return beats.size() == 5 ? bcm_time_heartbeat_unregister(unit, id) : int{BCM_E_NONE};
}

TEST_F(Events, AHeartbeatBeatsAtItsTimesWhileItIsHeard) {
    std::vector<std::uint64_t> beats;
    bcm_time_interface_t one{};
    one.id = 3;
    EXPECT_EQ(bcm_time_heartbeat_register(0, 3, beat_again, &beats), BCM_E_NOT_FOUND);
    ASSERT_EQ(bcm_time_interface_add(0, &one), BCM_E_NONE);
    EXPECT_EQ(bcm_time_interface_add(0, &one), BCM_E_EXISTS);
    EXPECT_EQ(bcm_time_heartbeat_enable_set(0, 3, 1), BCM_E_CONFIG) << "it has no frequency";
    one.flags = 0x20;  // in the place of the one there
    one.heartbeat_hz = 4;
    one.offset = {1, 0, 400'000'000};
    ASSERT_EQ(bcm_time_interface_add(0, &one), BCM_E_NONE);
    standin_time_pass(0, 150'000);
    ASSERT_EQ(bcm_time_heartbeat_enable_set(0, 3, 1), BCM_E_NONE);
    EXPECT_EQ(bcm_time_heartbeat_register(0, 3, beat_again, &beats), BCM_E_NONE);
    EXPECT_EQ(bcm_time_heartbeat_register(0, 3, beat_again, &beats), BCM_E_EXISTS);
    standin_time_pass(0, 249'999);
    EXPECT_TRUE(beats.empty());
    standin_time_pass(0, 1);
    standin_time_pass(0, 60'000'000);
    EXPECT_EQ(beats, (std::vector<std::uint64_t>{0, 250, 500, 750, 1000}));
    bcm_time_capture_t now{};
    EXPECT_EQ(bcm_time_capture_get(0, 3, &now), BCM_E_NONE);
    EXPECT_EQ(now.free.seconds, 60u);
    EXPECT_EQ(now.synchronous.nanoseconds, 0u);
    one.offset = {1, 100, 0};
    ASSERT_EQ(bcm_time_interface_add(0, &one), BCM_E_NONE);
    EXPECT_EQ(bcm_time_capture_get(0, 3, &now), BCM_E_NONE);
    EXPECT_EQ(now.synchronous.isnegative, 1);
    EXPECT_EQ(now.synchronous.seconds, 39u);
    EXPECT_EQ(now.synchronous.nanoseconds, 600'000'000u);
    EXPECT_EQ(bcm_time_interface_delete(0, 3), BCM_E_NONE);
    EXPECT_EQ(bcm_time_heartbeat_unregister(0, 3), BCM_E_NOT_FOUND);
}

// What the handlers of maintenance events were told, with the number that is their argument.
std::vector<std::pair<int, int>> maintained;

int on_oam(int, uint32, bcm_oam_event_type_t type, bcm_oam_group_t, bcm_oam_endpoint_t,
           void *user) {
    maintained.emplace_back(*static_cast<int *>(user), type);
    return BCM_E_NONE;
}

TEST_F(Events, ATypeOfAnEventIsTakenBackByItself) {
    maintained.clear();
    int first = 1;
    int second = 2;
    const bcm_oam_event_types_t both{{1u << 3, 1u << 8}};
    const bcm_oam_event_types_t one{{1u << 3}};
    EXPECT_EQ(bcm_oam_event_register(0, {}, on_oam, &first), BCM_E_PARAM);
    EXPECT_EQ(bcm_oam_event_unregister(0, both, on_oam), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_oam_event_register(0, one, on_oam, &first), BCM_E_NONE);
    EXPECT_EQ(bcm_oam_event_register(0, both, on_oam, &second), BCM_E_NONE);
    EXPECT_EQ(bcm_oam_event_register(0, both, on_oam, &second), BCM_E_EXISTS);
    for (const int type : {3, 40, 4}) standin_oam_event(0, type, 0, 0, 0);
    EXPECT_EQ(bcm_oam_event_unregister(0, one, on_oam), BCM_E_NONE);
    for (const int type : {3, 40}) standin_oam_event(0, type, 0, 0, 0);
    EXPECT_EQ(maintained, (std::vector<std::pair<int, int>>{{1, 3}, {2, 40}, {2, 40}}));
    EXPECT_EQ(standin_oam_event(0, bcmOAMEventCount, 0, 0, 0), BCM_E_PARAM);
    EXPECT_EQ(bcm_oam_detach(0), BCM_E_NONE);
    EXPECT_EQ(bcm_oam_init(0), BCM_E_NONE);
    standin_oam_event(0, 40, 0, 0, 0);
    EXPECT_EQ(maintained.size(), 3u) << "the chapter's handlers end with it";
}

TEST(Registrations, StandInTheOrderOfTheirNumbers) {
    int number = 0;
    for (const RegistrationRow &one : registrations())
        EXPECT_EQ(static_cast<int>(one.row), number++) << one.function;
    EXPECT_EQ(number, 27);
}

}  // namespace
}  // namespace standin
