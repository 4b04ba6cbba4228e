// Native threads and Python threads in one process: both call the library, and MDIO accessors and
// callbacks lead from one kind to the other. It ends well when nothing waits for ever, no status is
// wrong, and no accessor is left; under ThreadSanitizer also when no two threads race.
//
// usage: soak_threads [ROUNDS [SEED]]
#include <Python.h>

#include <unistd.h>

#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

#include "helper/mdio.h"
#include "helper/mdio_cxx.h"
#include "helper/platform.h"
#include "helper/shell_cxx.h"
#include "helper/trace.h"
#include "helper/trace_cxx.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/l3.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/vlan.h"
#include "sdk/diag/shell.h"
#include "sdk/sal/config.h"
#include "sdk/soc/mem.h"
#include "sdk/soc/phyctrl.h"
#include "sdk/soc/reg.h"
#include "standin/chapters/hooks.h"
#include "standin/phy/hooks.h"

namespace {

constexpr int kNativeThreads = 3;
constexpr unsigned kPatience = 600;  // seconds, then something waits for ever

std::atomic<long> wrong{0};

void expect(bool good, const char *what) {
    if (good) return;
    if (wrong++ < 10) std::fprintf(stderr, "wrong: %s\n", what);
}

// The same numbers for a seed.
class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(seed * 0x9e3779b97f4a7c15u + 1) {}
    int below(int limit) {
        state_ ^= state_ << 13;
        state_ ^= state_ >> 7;
        state_ ^= state_ << 17;
        return static_cast<int>(state_ >> 33) % limit;
    }

  private:
    std::uint64_t state_;
};

void say(const char *text) { KorvelWriteBslLogMsg("threads.cpp", 1, "say", 5, 2, 3, 0, text); }

std::string shell(std::string line) { return sdc(0, line.data()).stdString(); }

// Called by whoever changes the table, which may be a thread with the interpreter lock.
void on_address(int unit, bcm_l2_addr_t *entry, int, void *) {
    int enabled = 0;
    expect(bcm_port_enable_get(unit, entry->port, &enabled) == 0, "a call in a callback");
    say("address");
}

// -- what a native thread does --------------------------------------------------------------------

void reach_external_phy(Random &random) {
    const int port = 1 + random.below(4);
    uint32 value = 0;
    // A Python object answers, or nobody: it may have been replaced or removed.
    soc_phyctrl_reg_read(0, port, 0, 1 << 16, &value);
    soc_phyctrl_reg_write(0, port, 0, 1 << 16, value & 0xffff);
    expect(soc_phyctrl_drv_name(0, port) != nullptr, "name of a PHY");
    if (random.below(8) == 0) standin_mdio_remove(0, port, 3);
}

void change_addresses(Random &random) {
    bcm_l2_addr_t entry{};
    bcm_mac_t mac{2, 0, 0, 0, 0, static_cast<unsigned char>(random.below(64))};
    bcm_l2_addr_t_init(&entry, mac, 1);
    entry.port = 1 + random.below(8);
    expect(bcm_l2_addr_add(0, &entry) == 0, "an address");
    standin_l2_learn(0, mac, 1, 1 + random.below(8));
    if (random.below(2) == 0) bcm_l2_addr_delete(0, mac, 1);
    bcm_l2_traverse(
        0, [](int, bcm_l2_addr_t *, void *) { return 0; }, nullptr);
}

void change_store(Random &random) {
    std::string name = "soak_" + std::to_string(random.below(8));
    std::string value = std::to_string(random.below(1000));
    expect(sal_config_set(name.data(), value.data()) == 0, "a setting");
    const char *got = sal_config_get(name.c_str());
    expect(got != nullptr && *got != '\0', "a setting that is there");
    diag_rc_set(0, value.c_str());
    const char *file = nullptr;
    diag_rc_get(0, &file);
    expect(file != nullptr && *file != '\0', "a start-up file");
}

void write_log(Random &random) {
    if (random.below(16) == 0) captureTrace(random.below(2) == 0);
    say("from a native thread");
    getTrace();
}

void run_commands(Random &random) {
    static const std::array<const char *, 6> lines{
        "phy xe1 0x10000", "ps xe1-xe4",  "setenv n $n1; printenv",
        "l2 show",         "vlan show 1", "getreg CLP_XMAC_PAUSE_CTRL.xe1",
    };
    const char *line = lines[static_cast<std::size_t>(random.below(int{lines.size()}))];
    expect(shell(line).find("BCM_E_UNIT") == std::string::npos, line);
}

void reach_registers(Random &random) {
    uint64 value = 0;
    expect(soc_reg_get(0, RBCAr, 1 + random.below(8), 0, &value) == 0, "a register");
    unsigned int entry[20] = {};
    expect(soc_mem_read(0, IHP_RESERVED_MCm, -1, random.below(4), entry) == 0, "a memory");
}

void native_thread(int number, long rounds, std::uint64_t seed) {
    static constexpr std::array work{reach_external_phy, change_addresses, change_store,
                                     write_log,          run_commands,     reach_registers};
    Random random(seed + static_cast<std::uint64_t>(number));
    for (long round = 0; round < rounds; ++round)
        work[static_cast<std::size_t>(random.below(int{work.size()}))](random);
}

// -- what the Python threads do -------------------------------------------------------------------

constexpr char kSetUp[] = R"(
import random, threading
import _OmbraSdkV2Helper as sdk
assert sdk.addOmbraDevice(0, 1, 0, 0) == 0
assert sdk.soc_init(0) == 0

class Phy(object):
    def read(self, bus, port, device, register):
        return len(sdk.sdc(0, 'echo -n four'))  # back into the library
    def write(self, bus, port, device, register, value):
        sdk.sal_config_set('soak_written', str(value))
    def __del__(self):
        sdk.bcm_port_phy_drv_name_get(0, 1, None, 0)

def install(draw):
    sdk.TesselApiSetExt84328MdioAccessWrapper(0, draw.randrange(1, 5), Phy())

def call(draw):
    sdk.bcm_port_phy_set(0, draw.randrange(1, 5), 0, 1 << 16, 7)
    sdk.bcm_port_speed_set(0, draw.randrange(1, 5), 10000)
    sdk.getHwMacTable(0)

def talk(draw):
    sdk.captureTrace(draw.random() < 0.5)
    sdk.KorvelWriteBslLogMsg('threads.py', 1, 'talk', 5, 2, 3, 0, 'from Python')
    sdk.getTrace()
    sdk.sal_config_set('soak_%d' % draw.randrange(8), 'python')

def command(draw):
    sdk.sdc(0, draw.choice(['phy xe1 0x10000', 'ps', 'phy xe2 0x10000 7', 'config show soak']))

def work(rounds, seed):
    try:
        draw = random.Random(seed)
        for _ in xrange(rounds):
            draw.choice([install, call, talk, command])(draw)
        done.append(seed)
    except BaseException as error:
        print '%r' % error

def run(rounds, seed):
    threads = [threading.Thread(target=work, args=(rounds, seed + n)) for n in range(2)]
    for thread in threads: thread.start()
    for thread in threads: thread.join()

done = []
)";

int soak(long rounds, std::uint64_t seed) {
    if (PyRun_SimpleString(kSetUp) != 0) return 1;
    expect(bcm_l2_addr_register(0, on_address, nullptr) == 0, "the callback");
    std::vector<std::thread> threads;
    for (int number = 0; number < kNativeThreads; ++number)
        threads.emplace_back(native_thread, number, rounds, seed);
    const std::string call = "run(" + std::to_string(rounds) + ", " + std::to_string(seed) + ")\n" +
                             "assert len(done) == 2\n";
    expect(PyRun_SimpleString(call.c_str()) == 0, "the Python threads");
    PyThreadState *const state = PyEval_SaveThread();
    for (std::thread &thread : threads) thread.join();
    PyEval_RestoreThread(state);
    standin_mdio_clear();
    expect(standin_mdio_count() == 0 && standin_live_objects() == 0, "no accessor is left");
    std::printf("%ld rounds of seed %lu: %ld wrong\n", rounds, seed, wrong.load());
    return wrong == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char **argv) {
    const long rounds = argc > 1 ? std::atol(argv[1]) : 300;
    const std::uint64_t seed = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 1;
    ::alarm(kPatience);
    Py_NoSiteFlag = 1;
    Py_InitializeEx(0);
    PyEval_InitThreads();
    return soak(rounds, seed);
}
