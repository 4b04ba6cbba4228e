"""Link aggregation: trunks, their members, and what stands on them."""

import OmbraSdkV2Helper as sdk
from OmbraSdkV2Helper import call

from agent import mac, refuse, same, start, value


def members(ports):
    return sdk.Array('bcm_trunk_member_t', [
        sdk.bcm_trunk_member_t(gport=sdk.gport('local', port))
        for port in ports])


def set_members(unit, trunk, ports):
    return sdk.bcm_trunk_set(unit, trunk, sdk.bcm_trunk_info_t(), len(ports),
                             members(ports))


def ports_of(unit, trunk):
    found = sdk.Array('bcm_trunk_member_t', 64)
    count = call(sdk.bcm_trunk_get, unit, trunk, sdk.bcm_trunk_info_t(), 64,
                 found)
    return [sdk.gport_parts(one.gport)[1] for one in found[:count]]


def main():
    unit = start()
    refuse('NOT_FOUND', set_members, unit, 1, [1])
    trunk = call(sdk.bcm_trunk_create, unit, 0, 0)
    other = call(sdk.bcm_trunk_create, unit, 0, 0)
    call(set_members, unit, trunk, [1, 2, 3])
    member = members([4])[0]
    call(sdk.bcm_trunk_member_add, unit, trunk, member)
    refuse('EXISTS', sdk.bcm_trunk_member_add, unit, trunk, member)
    refuse('EXISTS', sdk.bcm_trunk_member_add, unit, other, member)
    refuse('PORT', set_members, unit, other, [5, 999])
    same(ports_of(unit, trunk), [1, 2, 3, 4], 'members of the trunk')
    same(ports_of(unit, other), [], 'members of the other trunk')
    same(value(sdk.bcm_trunk_find, unit, 0, 3), trunk, 'trunk of port 3')

    # A station on the trunk goes with it; a mirror holds it.
    station = sdk.bcm_l2_addr_t(mac=mac(1), vid=1, tgid=trunk,
                                flags=sdk.L2_FLAG_TRUNK)
    call(sdk.bcm_l2_addr_add, unit, station)
    mirror = sdk.bcm_mirror_destination_t(gport=sdk.gport('lag', trunk))
    call(sdk.bcm_mirror_destination_create, unit, mirror)
    refuse('BUSY', sdk.bcm_trunk_destroy, unit, trunk)
    call(sdk.bcm_mirror_destination_destroy, unit, mirror.mirror_dest_id)
    call(sdk.bcm_trunk_destroy, unit, trunk)
    refuse('NOT_FOUND', sdk.bcm_l2_addr_get, unit, mac(1), 1)
    refuse('NOT_FOUND', sdk.bcm_l2_addr_add, unit, station)
    refuse('NOT_FOUND', sdk.bcm_trunk_destroy, unit, trunk)
    refuse('NOT_FOUND', sdk.bcm_trunk_member_add, unit, trunk, member)
    call(sdk.bcm_trunk_member_add, unit, other, member)
    print 'ports of trunk %d: %r' % (other, ports_of(unit, other))

    # In a full table a trunk can still be changed, or make room for another.
    made = []
    while True:
        result = sdk.bcm_trunk_create(unit, 0, 0)
        if result[0] == sdk.BCM_E_FULL:
            break
        made.append(sdk.check(result))
    call(set_members, unit, made[-1], [7, 8])
    call(sdk.bcm_trunk_destroy, unit, made[0])
    made[0] = call(sdk.bcm_trunk_create, unit, 0, 0)
    same(ports_of(unit, made[-1]), [7, 8], 'members of the last trunk')
    print 'lag: done, with %d trunks' % (len(made) + 1)


if __name__ == '__main__':
    main()
