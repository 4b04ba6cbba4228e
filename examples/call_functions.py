"""Calling the SDK: statuses, results through pointers, callbacks."""

import OmbraSdkV2Helper as sdk
from OmbraSdkV2Helper import check

unit = check(sdk.addOmbraDevice(0, 1, 0, 0))
check(sdk.soc_init(unit))
check(sdk.bcm_init(unit))

# A plain call returns the status, a number. check() raises if it is negative.
status = sdk.bcm_port_speed_set(unit, 1, 10000)
print 'bcm_port_speed_set ->', status
try:
    check(sdk.bcm_port_speed_set(unit, 999, 10000))
except sdk.SdkError as error:
    print 'port 999:', error

# What a function gives back through a pointer lands in a box.
speed = sdk.box('int')
check(sdk.bcm_port_speed_get(unit, 1, speed))
print 'speed of port 1:', speed.value

# Several numbers land in an array. Some functions append their output to the
# status instead; check() hands it out.
trunk = check(sdk.bcm_trunk_create(unit, 0, 0))
members = sdk.Array('bcm_trunk_member_t',
                    [sdk.bcm_trunk_member_t(gport=port) for port in (1, 2)])
check(sdk.bcm_trunk_set(unit, trunk, sdk.bcm_trunk_info_t(), len(members),
                        members))
found = sdk.Array('bcm_trunk_member_t', 8)
count = check(sdk.bcm_trunk_get(unit, trunk, sdk.bcm_trunk_info_t(),
                                len(found), found))
print 'trunk %d has %d members: %s' % (
    trunk, count, [hex(member.gport) for member in found[:count]])

# Port lists and MAC addresses are plain Python values.
check(sdk.bcm_vlan_create(unit, 10))
check(sdk.bcm_vlan_port_add(unit, 10, [1, 2, 3], [3]))
print 'VLAN 10:', check(sdk.bcm_vlan_port_get(unit, 10))


# A traversal calls Python for each entry; an exception ends it.
def visit(unit, entry):
    print '  %s is on port %d' % (entry.mac, entry.port)


for last in range(1, 4):
    check(sdk.bcm_l2_addr_add(unit, sdk.bcm_l2_addr_t(
        mac='02:00:00:00:00:%02x' % last, vid=10, port=last)))
print 'stations:'
check(sdk.traverse(sdk.bcm_l2_traverse, unit, visit))

# A registered callback is kept alive by its cookie until that is released.
events = []
cookie = sdk.cookie(lambda unit, entry, operation:
                    events.append((entry.mac, operation)))
registration = (unit, sdk.bcm_l2_addr_callback_t, cookie)
check(sdk.bcm_l2_addr_register(*registration))
check(sdk.bcm_l2_addr_delete(unit, '02:00:00:00:00:01', 10))
check(sdk.bcm_l2_addr_unregister(*registration))
sdk.release(cookie)
print 'events:', events
