// VLANs and groups on the first day, and the port states of spanning trees.
#include "standin/model/vlans.h"

#include "standin/model/model.h"

namespace standin {

Vlans::Vlans() {
    stgs[kFirstStg].state.fill(BCM_STG_STP_FORWARD);
    vlans[kFirstVlan] = first_vlan();
}

Vlan Vlans::first_vlan() {
    Vlan first;
    first.members = kAllPorts;
    first.untagged = kAllPorts;
    return first;
}

Vlan *Vlans::find(bcm_vlan_t vid) {
    const auto found = vlans.find(vid);
    return found == vlans.end() ? nullptr : &found->second;
}

Stg *Vlans::find_stg(bcm_stg_t stg) {
    const auto found = stgs.find(stg);
    return found == stgs.end() ? nullptr : &found->second;
}

namespace {

// Where a group keeps the state of a port; null with a status.
int *stp_cell(Vlans &vlans, bcm_stg_t stg, bcm_port_t port, int &status) {
    Stg *const group = vlans.find_stg(stg);
    const int number = local_port(port);
    status = number < 0         ? refused_port("port", port)
             : group == nullptr ? refused(BCM_E_NOT_FOUND,
                                          "there is no spanning tree group " + std::to_string(stg))
                                : BCM_E_NONE;
    return status == BCM_E_NONE ? &group->state[static_cast<std::size_t>(number)] : nullptr;
}

}  // namespace

int set_stp(Vlans &vlans, bcm_stg_t stg, bcm_port_t port, int state) {
    int status = BCM_E_NONE;
    int *const cell = stp_cell(vlans, stg, port, status);
    if (cell == nullptr) return status;
    if (!within(state, 0, BCM_STG_STP_COUNT - 1)) return BCM_E_PARAM;
    *cell = state;
    return BCM_E_NONE;
}

int get_stp(Vlans &vlans, bcm_stg_t stg, bcm_port_t port, int *state) {
    int status = BCM_E_NONE;
    const int *const cell = stp_cell(vlans, stg, port, status);
    return cell == nullptr ? status : give(state, *cell);
}

}  // namespace standin
