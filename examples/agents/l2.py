"""The MAC table of a large network: 65,536 stations, moved, aged and flushed."""

import OmbraSdkV2Helper as sdk
from OmbraSdkV2Helper import call

from agent import mac, refuse, same, start

ROOM = 65536
VLANS = range(100, 108)


def station(number, port=None):
    return sdk.bcm_l2_addr_t(mac=mac(number), vid=VLANS[number % len(VLANS)],
                             port=port or 1 + number % 48)


def main():
    unit = start()
    refuse('NOT_FOUND', sdk.bcm_l2_addr_add, unit, station(0))
    for vlan in VLANS:
        call(sdk.bcm_vlan_create, unit, vlan)
        call(sdk.bcm_vlan_port_add, unit, vlan, sdk.ports(range(1, 49)), [])
    refuse('PORT', sdk.bcm_l2_addr_add, unit, station(0, port=999))
    for number in xrange(ROOM):
        sdk.check(sdk.bcm_l2_addr_add(unit, station(number)))
    refuse('FULL', sdk.bcm_l2_addr_add, unit, station(ROOM))
    # A station that is there may move, also in a full table.
    call(sdk.bcm_l2_addr_add, unit, station(5, port=40))
    status, found = sdk.bcm_l2_addr_get(unit, mac(5), station(5).vid)
    same((status, found.port), (0, 40), 'where station 5 is')

    table = sdk.getHwMacTable(unit)
    same(len(set(row[:2] for row in table)), ROOM, 'rows of the table')
    seen = [0] * 49

    def visit(unit, entry):
        seen[entry.port] += 1

    sdk.traverse(sdk.bcm_l2_traverse, unit, visit)
    same(sum(seen), ROOM, 'rows of the traversal')
    moved_here = seen[7]

    # A port goes, then a VLAN, and their stations with them.
    call(sdk.bcm_l2_addr_delete_by_port, unit, 0, 7, 0)
    call(sdk.bcm_vlan_destroy, unit, VLANS[0])
    left = sdk.getHwMacTable(unit)
    gone = [row for row in left
            if row[1] == VLANS[0] or sdk.gport_parts(row[2])[1] == 7]
    same(gone, [], 'stations that should be gone')
    refuse('NOT_FOUND', sdk.bcm_l2_addr_get, unit, mac(0), VLANS[0])
    refuse('NOT_FOUND', sdk.bcm_l2_addr_add, unit, station(0))
    call(sdk.bcm_l2_addr_add, unit, station(ROOM + 1))
    refuse('NOT_FOUND', sdk.bcm_l2_addr_delete, unit, mac(ROOM + 2), 101)
    call(sdk.bcm_l2_clear, unit)
    same(sdk.getHwMacTable(unit), [], 'the cleared table')
    print 'l2: done, %d stations sat on port 7, %d stayed of %d' % (
        moved_here, len(left), ROOM)


if __name__ == '__main__':
    main()
