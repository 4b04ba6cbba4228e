"""Spanning tree: groups of VLANs, and the state of each port in each group."""

import OmbraSdkV2Helper as sdk
from OmbraSdkV2Helper import call

from agent import fill, refuse, same, start, value

BLOCK, FORWARD = sdk.BCM_STG_STP_BLOCK, sdk.BCM_STG_STP_FORWARD


def state(unit, group, port):
    return call(sdk.bcm_stg_stp_get, unit, group, port)


def main():
    unit = start()
    first = value(sdk.bcm_stg_default_get, unit, kind='bcm_stg_t')
    refuse('NOT_FOUND', sdk.bcm_stg_vlan_add, unit, first + 1, 1)
    group = value(sdk.bcm_stg_create, unit, kind='bcm_stg_t')
    refuse('NOT_FOUND', sdk.bcm_stg_vlan_add, unit, group, 100)
    for vlan in 100, 101:
        call(sdk.bcm_vlan_create, unit, vlan)
        call(sdk.bcm_stg_vlan_add, unit, group, vlan)
        same(value(sdk.bcm_vlan_stg_get, unit, vlan, kind='bcm_stg_t'), group, 'group of a VLAN')
    call(sdk.bcm_stg_stp_set, unit, group, 5, BLOCK)
    call(sdk.bcm_stg_stp_set, unit, first, 5, FORWARD)
    same(state(unit, group, 5), 'discarding', 'port 5 in the group')
    same(state(unit, first, 5), 'forwarding', 'port 5 in the first group')
    refuse('PARAM', sdk.bcm_stg_stp_set, unit, group, 5, 99)
    refuse('PORT', sdk.bcm_stg_stp_set, unit, group, 999, FORWARD)

    # The first group stays; the VLANs of another return to it.
    refuse('BADID', sdk.bcm_stg_destroy, unit, first)
    call(sdk.bcm_stg_destroy, unit, group)
    same(value(sdk.bcm_vlan_stg_get, unit, 100, kind='bcm_stg_t'), first, 'group of VLAN 100')
    refuse('NOT_FOUND', sdk.bcm_stg_destroy, unit, group)
    refuse('NOT_FOUND', sdk.bcm_stg_stp_set, unit, group, 5, FORWARD)
    refuse('NOT_FOUND', sdk.bcm_stg_stp_get, unit, group, 5)

    groups = fill(sdk.bcm_stg_create, unit, kind='bcm_stg_t')
    call(sdk.bcm_stg_destroy, unit, groups[3])
    same(value(sdk.bcm_stg_create, unit, kind='bcm_stg_t'), groups[3], 'the group with room')
    call(sdk.bcm_stg_vlan_add, unit, groups[3], 101)
    call(sdk.bcm_vlan_destroy, unit, 101)
    refuse('NOT_FOUND', sdk.bcm_stg_vlan_add, unit, groups[3], 101)
    print 'stg: done, with %d groups' % (len(groups) + 1)


if __name__ == '__main__':
    main()
