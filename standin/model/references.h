// Which objects of one switch name which others, and what that means for both.
//
// Each use of a name is a line of `kUses`, with one of three bonds:
//
//     holds    what is named cannot go: BCM_E_BUSY
//     leaves   what is named goes, and its user stays without it
//     falls    its user goes along
//
// What an object names is read from itself by `names_of`. The index is the other direction, so that
// the end of an object costs its users and not the tables in which they might stand:
//
//     object named -> { (bond, user, use), ... }     those that hold come first
//
// Objects that are always there, as ports are, have no place in the index.
#pragma once
#include <compare>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "standin/model/field.h"
#include "standin/model/groups.h"
#include "standin/model/l2_chapter.h"
#include "standin/model/l3.h"
#include "standin/model/object.h"
#include "standin/model/ports.h"
#include "standin/model/vlans.h"

namespace standin {

struct Switch;

enum class Use : std::uint8_t {
    kPortVlan,
    kVlanStg,
    kVlanPort,
    kVlanTrunk,
    kTrunkPort,
    kMacVlan,
    kMacPort,
    kMacTrunk,
    kLimitedVlan,
    kLimitedPort,
    kLimitedTrunk,
    kInterfaceVlan,
    kEgressInterface,
    kEgressPort,
    kEgressTrunk,
    kMultipathEgress,
    kHostHop,
    kRouteHop,
    kMulticastPort,
    kMulticastTrunk,
    kMirrorPort,
    kMirrorTrunk,
    kMirroredPort,
    kRuleGroup,
    kRuleCounter,
    kRulePolicer,
    kRuleMirror,
    kRuleRange,
    kCounterGroup,
    kRowHolds,  // of functions without a model; catalogue/standin.txt has their fields
    kRowLeaves,
    kRowFalls
};

struct UseRow {
    Use use;
    ObjectKind user;
    const char *field;
    Bond bond;
};
const UseRow &row_of(Use use);

struct Name {
    Use use;
    Object target;
};
using Names = std::vector<Name>;

class References {
  public:
    // BCM_E_BUSY if one of the users of `target` holds it, or what would fall with it.
    int check_unused(Switch &chip, const Object &target) const;

    void link(const Object &user, const Names &names);
    void unlink(const Object &user, const Names &names);

    // Calls `visit(user)` for each object that uses `target` that way. Costs by the number of its
    // users of that kind: a VLAN with many addresses finds its interfaces as fast as one with none.
    template <class Visit>
    void each_user(const Object &target, Use use, Visit &&visit) const {
        const auto found = users_.find(target);
        if (found == users_.end()) return;
        const UseRow &row = row_of(use);
        for (auto one = found->second.lower_bound({row.bond, {row.user}, Use{}});
             one != found->second.end() && one->bond == row.bond && one->user.kind == row.user;
             ++one)
            if (one->use == use) visit(one->user);
    }

    // Ends the use of `target` by all that use it. REQUIRES: nobody holds it.
    void dissolve(Switch &chip, const Object &target);

  private:
    struct User {
        Bond bond{};
        Object user;
        Use use{};

        auto operator<=>(const User &) const = default;
    };
    struct Mix {
        std::size_t operator()(const Object &object) const;
    };

    std::unordered_map<Object, std::set<User>, Mix> users_;
};

Object mac_object(const bcm_l2_addr_t &entry);
Object limit_object(const L2Scope &scope);
Object host_object(const HostKey &key);
Object route_object(const RouteKey &key);
Object mirrored_object(int port, std::uint32_t flags);

bool exists(Switch &chip, const Object &object);

// "trunk 3", "route 10.0.0.0/8 of VRF 0". REQUIRES: no row; row_text() is for those.
std::string text_of(const Object &object);

// What an object names. A black hole, the interface 0 and the like name nothing.
Names names_of(const Port &port);
Names names_of(const Vlan &vlan);
Names names_of(const Trunk &trunk);
Names names_of(const bcm_l2_addr_t &entry);
Names names_of(const L2Scope &scope);
Names names_of(const bcm_l3_intf_t &intf);
Names names_of(const bcm_l3_egress_t &egress);
Names names_of(const std::vector<bcm_if_t> &paths);
Names names_of(const bcm_l3_host_t &host);
Names names_of(const bcm_l3_route_t &route);
Names names_of(const MulticastGroup &group);
Names names_of(const bcm_mirror_destination_t &destination);
Names names_of(const MirroredTo &mirrored);
Names names_of(const FieldEntry &rule);
Names names_of(const FieldStat &counter);
inline Names names_of(const Policer &) { return {}; }
inline Names names_of(const FieldGroup &) { return {}; }
inline Names names_of(const FieldRange &) { return {}; }

// BCM_E_NONE if all that is named is there; else BCM_E_PORT, or BCM_E_NOT_FOUND.
int check_names(Switch &chip, const Names &names);

// Gives an object its value. Refused, with nothing changed, if that names what is not there.
template <class T>
int assign(Switch &chip, const Object &self, T &slot, T value);

// Changes an object that is there by `edit(copy)`, which answers a status; refused as `assign`.
template <class T, class Edit>
int change(Switch &chip, const Object &self, T &slot, Edit &&edit);

// Before an object leaves its table: BCM_E_BUSY if it is held, else it is used by nobody and uses
// nothing any more.
template <class T>
int retire(Switch &chip, const Object &self, const T &value);

// The ports and VLANs that are there on the first day.
void link_first_day(Switch &chip);
// The ports name the default VLAN when they are new.
void link_ports(Switch &chip);
void unlink_ports(Switch &chip);

// The table of uses, for documents and tests.
const std::vector<UseRow> &all_uses();

}  // namespace standin
