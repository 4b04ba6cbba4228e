// Bits and numbers that the stand-in chose itself, since no declaration has them: by name, and all
// of them with what they mean in the list BITS.
#include "standin/bench/bench.h"
#include "standin/chapters/l2_select.h"
#include "standin/model/l2_chapter.h"
#include "standin/model/l3.h"
#include "standin/model/tables.h"
#include "standin/model/vlans.h"

namespace bench {
namespace {

using namespace standin;

struct Constant {
    const char *name;
    long value;
    const char *meaning;
};

constexpr Constant kConstants[] = {
    {"WITH_ID", kWithId, "create calls: the caller gives the number"},
    {"REPLACE", kReplace, "create and add calls: in the place of the one there"},
    {"L2_BLACKHOLE", kL2BlackHole, "MAC addresses: the destination is nowhere"},
    {"L2_STATIC", kL2Static, "MAC addresses, and bulk deletes of them: static ones"},
    {"L2_TRUNK", kL2Trunk, "MAC addresses: the destination is a trunk"},
    {"L2_ADDED", kL2Added, "operation told to a watcher: added"},
    {"L2_DELETED", kL2Deleted, "operation told to a watcher: deleted"},
    {"L2_LEARNED", kL2Learned, "operation told to a watcher: learned"},
    {"L2_AGED_OUT", kL2AgedOut, "operation told to a watcher: aged out"},
    {"MATCH_MAC", kMatchMac, "bcm_l2_replace and matched traversals: the address counts"},
    {"MATCH_VLAN", kMatchVlan, "the same: the VLAN counts"},
    {"MATCH_DESTINATION", kMatchDestination, "the same: the destination counts"},
    {"MATCH_STATIC", kMatchStatic, "the same: static entries too"},
    {"LIMIT_SYSTEM", kLimitSystem, "learn limits: of the system"},
    {"LIMIT_VLAN", kLimitVlan, "learn limits: of a VLAN"},
    {"LIMIT_PORT", kLimitPort, "learn limits: of a port"},
    {"LIMIT_TRUNK", kLimitTrunk, "learn limits: of a trunk"},
    {"VLAN_UNTAGGED", kVlanGportUntagged, "bcm_vlan_gport_add: without a tag"},
    {"L3_IP6", kL3Ip6, "hosts and routes: IPv6"},
};

}  // namespace

bool add_constants(PyObject *module) {
    for (const Constant &one : kConstants)
        if (PyModule_AddIntConstant(module, one.name, one.value) != 0) return false;
    PyObject *const all = list_of(kConstants, [](const Constant &one) {
        return Py_BuildValue("(sls)", one.name, one.value, one.meaning);
    });
    return all != nullptr && PyModule_AddObject(module, "BITS", all) == 0;
}

}  // namespace bench
