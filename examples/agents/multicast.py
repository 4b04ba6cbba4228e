"""Multicast: groups, and the ports and VLANs that they replicate to."""

import OmbraSdkV2Helper as sdk
from OmbraSdkV2Helper import call

from agent import fill, refuse, same, start, value

VLAN = 100


def gport(port):
    return sdk.gport('local', port)


def ports_of(unit, group):
    ports = sdk.Array('bcm_gport_t', 64)
    encapsulations = sdk.Array('bcm_if_t', 64)
    count = value(sdk.bcm_multicast_egress_get, unit, group, 64, ports,
                  encapsulations)
    return [(sdk.gport_parts(port)[1], encapsulation) for port, encapsulation
            in zip(ports[:count], encapsulations[:count])]


def main():
    unit = start()
    refuse('NOT_FOUND', sdk.bcm_multicast_egress_add, unit, 1, gport(1), 0)
    group = value(sdk.bcm_multicast_create, unit, 0, kind='bcm_multicast_t')
    call(sdk.bcm_vlan_create, unit, VLAN)
    joined = []
    for port in 1, 2, 3:
        encapsulation = value(sdk.bcm_multicast_l2_encap_get, unit, group,
                              gport(port), VLAN, kind='bcm_if_t')
        call(sdk.bcm_multicast_egress_add, unit, group, gport(port),
             encapsulation)
        refuse('EXISTS', sdk.bcm_multicast_egress_add, unit, group,
               gport(port), encapsulation)
        joined.append((port, encapsulation))
    same(sorted(ports_of(unit, group)), joined, 'replications of the group')
    refuse('PORT', sdk.bcm_multicast_egress_add, unit, group, gport(999), 0)

    # A trunk that goes leaves the group.
    trunk = call(sdk.bcm_trunk_create, unit, 0, 0)
    call(sdk.bcm_multicast_egress_add, unit, group, sdk.gport('lag', trunk),
         0)
    call(sdk.bcm_trunk_destroy, unit, trunk)
    same(len(ports_of(unit, group)), 3, 'replications without the trunk')
    refuse('NOT_FOUND', sdk.bcm_multicast_egress_add, unit, group,
           sdk.gport('lag', trunk), 0)

    call(sdk.bcm_multicast_egress_delete, unit, group, gport(1), joined[0][1])
    refuse('NOT_FOUND', sdk.bcm_multicast_egress_delete, unit, group,
           gport(1), joined[0][1])
    call(sdk.bcm_multicast_destroy, unit, group)
    refuse('NOT_FOUND', sdk.bcm_multicast_destroy, unit, group)
    refuse('NOT_FOUND', sdk.bcm_multicast_egress_add, unit, group, gport(1),
           0)

    groups = fill(sdk.bcm_multicast_create, unit, 0)
    call(sdk.bcm_multicast_egress_add, unit, groups[-1], gport(9), 0)
    call(sdk.bcm_multicast_destroy, unit, groups[0])
    value(sdk.bcm_multicast_create, unit, 0)
    refuse('FULL', sdk.bcm_multicast_create, unit, 0, sdk.box('int'))
    same(ports_of(unit, groups[-1]), [(9, 0)], 'replications of the last')
    print 'multicast: done, with %d groups' % len(groups)


if __name__ == '__main__':
    main()
