// Several interpreters in one process, each scenario in a process of its own: callbacks and
// traversals in a second one, classes and callables of one that has ended, and the end of all with
// much still alive.
#include <Python.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <iterator>

namespace {

// Ends the scenario if the code raises.
void run(const char *code) {
    if (PyRun_SimpleString(code) != 0) std::_Exit(1);
}

const char kNative[] =
    "import _OmbraSdkV2Companion as companion, _OmbraSdkV2Helper as m\n"
    "def traverse(function, callback, visit):\n"
    "    key = companion.cookie(visit)\n"
    "    try:\n"
    "        return function(0, callback, key)\n"
    "    finally:\n"
    "        companion.release(key)\n"
    "def add(number):\n"
    "    entry = m.new_bcm_l2_addr_t()\n"
    "    m.bcm_l2_addr_t_vid_set(entry, 1)\n"
    "    m.bcm_l2_addr_t_port_set(entry, 1)\n"
    "    m.bcm_l2_addr_t_mac_set(entry, '00:00:00:00:02:%02x' % number)\n"
    "    assert m.bcm_l2_addr_add(0, entry) == 0\n"
    "    m.delete_bcm_l2_addr_t(entry)\n"
    "def count():\n"
    "    seen = []\n"
    "    assert traverse(m.bcm_l2_traverse, companion.bcm_l2_traverse_cb,\n"
    "                    lambda *a: seen.append(a)) == 0\n"
    "    return len(seen)\n";

const char kStart[] =
    "assert m.addOmbraDevice(0, 1, 0, 0) == 0\n"
    "assert m.soc_init(0) == 0 and m.soc_misc_init(0) == 0 and m.bcm_init(0) == 0\n"
    "add(1)\n"
    "add(2)\n";

// What works in the first interpreter, whatever another one did.
const char kProxies[] =
    "import OmbraSdkV2Helper as sdk\n"
    "a = sdk.Array('bcm_l2_addr_t', 2)\n"
    "a[0].vid = 9\n"
    "assert a[0].vid == 9\n"
    "assert sdk.bcm_ip_addr_t().addr.ipv4_addr == 0\n"
    "assert sdk.traverse(sdk.bcm_l2_traverse, 0, lambda *_: None) in (0, -17)\n";

const char kRefused[] =
    "try:\n"
    "    import OmbraSdkV2Helper\n"
    "except ImportError as error:\n"
    "    assert 'first interpreter' in str(error)\n"
    "else:\n"
    "    raise AssertionError('proxies of a second interpreter')\n";

class Second {
  public:
    Second() : first_(PyThreadState_Get()), own_(Py_NewInterpreter()) {
        if (own_ == nullptr) std::_Exit(2);
    }
    Second(const Second &) = delete;
    Second &operator=(const Second &) = delete;
    ~Second() {
        Py_EndInterpreter(own_);
        PyThreadState_Swap(first_);
    }

  private:
    PyThreadState *first_;
    PyThreadState *own_;
};

void callbacks_in_a_second() {
    run(kNative);
    run(kStart);
    {
        const Second second;
        run(kNative);
        run("assert count() == 2; add(3); assert count() == 3\n");
    }
    run("assert count() == 3\n");
}

void first_is_called_back_from_a_second() {
    run(kNative);
    run(kStart);
    run("seen = []\n"
        "key = companion.cookie(lambda *a: seen.append(a))\n"
        "m.bcm_l2_addr_register(0, companion.bcm_l2_addr_callback_t, key)\n");
    {
        const Second second;
        run(kNative);
        run("add(4)\n");
    }
    run("assert seen, seen\n");
}

void callables_end_with_their_interpreter() {
    run(kNative);
    run(kStart);
    {
        const Second second;
        run(kNative);
        run("import sys\n"
            "def visit(*_):\n"
            "    raise AssertionError('ended')\n"
            "companion.callback_errors(visit)\n"
            "companion.bind(companion.bcm_l2_traverse_cb, visit)\n"
            "key = companion.cookie(visit)\n"
            "m.bcm_l2_addr_register(0, companion.bcm_l2_addr_callback_t, key)\n");
    }
    run("import sys, StringIO\n"
        "sys.stderr = StringIO.StringIO()\n"
        "add(5)\n"
        "assert m.bcm_l2_traverse(0, companion.bcm_l2_traverse_cb, None) < 0\n"
        "assert not sys.stderr.getvalue(), sys.stderr.getvalue()\n"
        "companion.bind(companion.bcm_l2_traverse_cb, lambda *_: 1 / 0)\n"
        "m.bcm_l2_traverse(0, companion.bcm_l2_traverse_cb, None)\n"
        "assert 'ZeroDivisionError' in sys.stderr.getvalue(), sys.stderr.getvalue()\n"
        "assert companion.callback_errors(None) is None\n");
}

void proxies_first() {
    run(kNative);
    run(kStart);
    run(kProxies);
    {
        const Second second;
        run(kRefused);
        run(kNative);
        run("assert count() == 2\n");
    }
    run(kProxies);
}

void proxies_later() {
    {
        const Second second;
        run(kNative);
        run(kStart);
        run(kRefused);
    }
    run(kProxies);
    const Second second;
    run(kRefused);
}

void modules_of_different_interpreters() {
    {
        const Second second;
        run("import _OmbraSdkV2Companion as companion\n"
            "kept = companion.Array('int', 3)\n");
    }
    run(kNative);
    run(kStart);
    run("a = companion.Array('bcm_l2_addr_t', 1)\n"
        "try:\n"
        "    m.delete_bcm_l2_addr_t(a)\n"
        "except ValueError:\n"
        "    pass\n"
        "else:\n"
        "    raise AssertionError('an array was deleted')\n"
        "try:\n"
        "    import OmbraSdkV2Helper\n"
        "except ImportError as error:\n"
        "    assert 'share their types' in str(error), error\n"
        "else:\n"
        "    raise AssertionError('proxies without shared types')\n");
}

void ends_with_much_alive() {
    run(kNative);
    run(kStart);
    run(kProxies);
    run("import sys\n"
        "class Cycle(object):\n"
        "    def call(self, *_):\n"
        "        pass\n"
        "one, two = Cycle(), sdk.bcm_l2_addr_t(vid=1)\n"
        "one.two, one.self = two, one\n"
        "two.__dict__['one'] = one\n"
        "sys.kept = [one, two, sdk.Array('int', 5), sdk.U32(1), sdk.intp(3),\n"
        "            sdk.bcm_ip_addr_t().addr, sdk.cookie(one.call), m.getHwShadow(0)]\n"
        "sdk.bind(sdk.bcm_linkscan_handler_t, lambda *_: two)\n"
        "sdk.bcm_linkscan_register(0, sdk.bcm_linkscan_handler_t)\n"
        "sdk.bcm_l2_addr_register(0, sdk.bcm_l2_addr_callback_t, sys.kept[6])\n"
        "del one, two\n");
}

struct Scenario {
    const char *name;
    void (*play)();
};

const Scenario scenarios[] = {
    {"callbacks in a second interpreter", callbacks_in_a_second},
    {"the first is called back from a second", first_is_called_back_from_a_second},
    {"callables end with their interpreter", callables_end_with_their_interpreter},
    {"proxies in the first, then a second", proxies_first},
    {"proxies in a second, then the first", proxies_later},
    {"modules of different interpreters", modules_of_different_interpreters},
    {"the end with much alive", ends_with_much_alive},
};

// A scenario that waits for ever is ended as well.
bool passes(const Scenario &scenario) {
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        alarm(60);
        Py_InitializeEx(0);
        scenario.play();
        Py_Finalize();
        std::_Exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (status != 0) std::printf("%s: status %#x\n", scenario.name, static_cast<unsigned>(status));
    return status == 0;
}

}  // namespace

int main() {
    int failed = 0;
    for (const Scenario &scenario : scenarios) failed += passes(scenario) ? 0 : 1;
    std::printf("%zu scenarios, %d failed\n", std::size(scenarios), failed);
    return failed == 0 ? 0 : 1;
}
