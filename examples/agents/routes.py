"""Routing: interfaces, next hops, groups of them, routes and hosts."""

import OmbraSdkV2Helper as sdk
from OmbraSdkV2Helper import call

from agent import mac, refuse, same, start, value

HOPS = 4
REPLACE = 0x20  # in the flags of a route


def number(address):
    parts = [int(part) for part in address.split('.')]
    return sum(part << shift for part, shift in zip(parts, (24, 16, 8, 0)))


def route(prefix, length, hop, flags=0):
    mask = (0xffffffff << 32 - length) & 0xffffffff
    return sdk.bcm_l3_route_t(l3a_subnet=number(prefix), l3a_ip_mask=mask,
                              l3a_intf=hop, l3a_flags=flags)


def next_hop(unit, interface, index):
    hop = sdk.bcm_l3_egress_t(intf=interface, port=index, mac_addr=mac(index))
    return value(sdk.bcm_l3_egress_create, unit, 0, hop, kind='bcm_if_t')


def main():
    unit = start()
    vlan = 100
    interface = sdk.bcm_l3_intf_t(l3a_vid=vlan, l3a_mac_addr=mac(99))
    refuse('NOT_FOUND', sdk.bcm_l3_intf_create, unit, interface)
    call(sdk.bcm_vlan_create, unit, vlan)
    call(sdk.bcm_l3_intf_create, unit, interface)
    refuse('NOT_FOUND', sdk.bcm_l3_egress_create, unit, 0,
           sdk.bcm_l3_egress_t(intf=interface.l3a_intf_id + 1, port=1),
           sdk.box('bcm_if_t'))
    refuse('NOT_FOUND', sdk.bcm_l3_route_add, unit,
           route('10.0.0.0', 8, 100000))
    hops = [next_hop(unit, interface.l3a_intf_id, index)
            for index in range(1, HOPS + 1)]
    group = sdk.box('bcm_if_t')
    call(sdk.bcm_l3_egress_multipath_create, unit, 0, HOPS,
         sdk.Array('bcm_if_t', hops), group)
    group = group.value

    call(sdk.bcm_l3_route_add, unit, route('10.0.0.0', 8, group))
    call(sdk.bcm_l3_route_add, unit, route('10.1.0.0', 16, hops[0]))
    refuse('EXISTS', sdk.bcm_l3_route_add, unit,
           route('10.1.0.0', 16, hops[1]))
    call(sdk.bcm_l3_route_add, unit, route('10.1.0.0', 16, hops[1], REPLACE))
    found = route('10.1.0.0', 16, 0)
    call(sdk.bcm_l3_route_get, unit, found)
    same(found.l3a_intf, hops[1], 'next hop of 10.1.0.0/16')

    # Each step down is refused while somebody stands on it.
    refuse('BUSY', sdk.bcm_vlan_destroy, unit, vlan)
    refuse('BUSY', sdk.bcm_l3_intf_delete, unit, interface)
    refuse('BUSY', sdk.bcm_l3_egress_destroy, unit, hops[1])
    refuse('BUSY', sdk.bcm_l3_egress_multipath_destroy, unit, group)
    for gone in route('10.0.0.0', 8, 0), route('10.1.0.0', 16, 0):
        call(sdk.bcm_l3_route_delete, unit, gone)
        refuse('NOT_FOUND', sdk.bcm_l3_route_delete, unit, gone)
    call(sdk.bcm_l3_egress_multipath_destroy, unit, group)
    refuse('NOT_FOUND', sdk.bcm_l3_route_add, unit,
           route('10.0.0.0', 8, group))
    for hop in hops[1:]:
        call(sdk.bcm_l3_egress_destroy, unit, hop)
    refuse('NOT_FOUND', sdk.bcm_l3_route_add, unit,
           route('10.1.0.0', 16, hops[1]))

    # A full table still takes a route in the place of another.
    count = 0
    while True:
        one = route('%d.%d.%d.0' % (20 + (count >> 16), count >> 8 & 255,
                                    count & 255), 24, hops[0])
        status = sdk.bcm_l3_route_add(unit, one)
        if status == sdk.BCM_E_FULL:
            break
        sdk.check(status)
        count += 1
    refuse('EXISTS', sdk.bcm_l3_route_add, unit,
           route('20.0.0.0', 24, hops[0]))
    call(sdk.bcm_l3_route_add, unit, route('20.0.0.0', 24, hops[0], REPLACE))
    call(sdk.bcm_l3_route_delete, unit, route('20.0.0.0', 24, 0))
    call(sdk.bcm_l3_route_add, unit, one)
    print 'routes: done, with %d routes' % count


if __name__ == '__main__':
    main()
