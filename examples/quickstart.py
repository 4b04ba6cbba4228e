"""A tour in one page: two chips, ports, VLANs, a filled L2 table.

Run it with `make demo`, or with the module on the path.
"""

from collections import Counter

import OmbraSdkV2Helper as sdk
from OmbraSdkV2Helper import SdkError, check

# Flag bits of an L2 entry.
DISCARD, STATIC, TRUNK = 0x4, 0x20, 0x80

VLANS = (100, 200)
PORTS = range(1, 25)
STATIONS = 300


def start(bus):
    """Adds the chip on a PCI bus and starts it; returns its unit."""
    unit = check(sdk.addOmbraDevice(0, bus, 0, 0))
    check(sdk.soc_init(unit))
    check(sdk.soc_misc_init(unit))
    check(sdk.bcm_init(unit))
    return unit


def set_up_ports(unit):
    """Switches the ports on and puts each into both VLANs."""
    for port in PORTS:
        check(sdk.bcm_port_speed_set(unit, port, 10000))
        check(sdk.bcm_port_enable_set(unit, port, True))
    for vid in VLANS:
        check(sdk.bcm_vlan_create(unit, vid))
        check(sdk.bcm_vlan_port_add(unit, vid, PORTS, []))
    # Ports 1 and 2 are one link.
    trunk = check(sdk.bcm_trunk_create(unit, 0, 0))
    members = sdk.Array('bcm_trunk_member_t',
                        [sdk.bcm_trunk_member_t(gport=port) for port in (1, 2)])
    check(sdk.bcm_trunk_set(unit, trunk, sdk.bcm_trunk_info_t(), 2, members))
    return trunk


def learn_stations(unit, trunk):
    """Fills the L2 table: most stations sit on ports, some on the trunk, and
    one is not wanted."""
    for number in range(STATIONS):
        address = sdk.bcm_l2_addr_t(
            mac='02:00:00:00:%02x:%02x' % (number >> 8, number & 255),
            vid=VLANS[number % len(VLANS)], port=PORTS[number % len(PORTS)])
        if number % 10 == 0:
            address.flags = TRUNK
            address.tgid = trunk
        if number % 50 == 7:
            address.flags |= STATIC
        check(sdk.bcm_l2_addr_add(unit, address))
    check(sdk.bcm_l2_addr_add(unit, sdk.bcm_l2_addr_t(
        mac='02:00:00:00:ff:ff', vid=VLANS[0],
        flags=STATIC | DISCARD)))


def show_table(unit, rows=8):
    """Prints the chip's L2 table: a summary and the first rows."""
    table = sdk.getHwMacTable(unit)
    kinds = Counter(sdk.getGPortType(gport) for _, _, gport, _ in table)
    ages = Counter(age for _, _, _, age in table)
    print '%d entries: %s; %s' % (
        len(table),
        ', '.join('%d %s' % (n, kind) for kind, n in kinds.most_common()),
        ', '.join('%d %s' % (n, age) for age, n in ages.most_common()))
    print
    print '  %-17s  %4s  %-9s  %6s  %s' % (
        'station', 'VLAN', 'where', 'number', 'age')
    for mac, vid, gport, age in sorted(table)[:rows]:
        where = sdk.getGPortType(gport)
        number = '' if where == 'blackhole' else gport & 0x7ff
        print '  %s  %4d  %-9s  %6s  %s' % (mac, vid, where, number, age)
    print '  ...'


def main():
    units = [start(bus) for bus in (1, 2)]
    for unit in units:
        print 'Unit %d: chip %#x, %d ports' % (
            unit, sdk.getDevId(unit).value,
            len(check(sdk.bcm_port_config_get(unit)).port))
    print
    unit = units[0]
    learn_stations(unit, set_up_ports(unit))
    show_table(unit)
    print
    print 'What the SDK refuses is a status, or an exception if you check it:'
    print '  bcm_vlan_create(%d, %d) -> %d' % (
        unit, VLANS[0], sdk.bcm_vlan_create(unit, VLANS[0]))
    try:
        check(sdk.bcm_vlan_create(unit, VLANS[0]))
    except SdkError as error:
        print '  SdkError:', error
    print 'What does not fit its type never reaches the SDK:'
    try:
        sdk.bcm_vlan_create(unit, 65536)
    except OverflowError as error:
        print '  OverflowError:', error


if __name__ == '__main__':
    main()
