"""How the operations of the stand-in grow with their tables: instructions of each, with few rows
and with as many as the table holds.

    growth.py            counts under callgrind, prints a table; fails where one grows beyond a
                         logarithm of the rows
    growth.py --fill     what runs under callgrind
"""

import math
import random
import sys

import OmbraSdkV2Helper as sdk

# Rows of the tables: a part of what they hold, then all but the rows that the operations add.
SHARES = (16, 4, 1)
CALLS = 64
# A logarithm may have this much on top, for what caches and allocation add.
SLACK = 1.25


def mac(number):
    return '02:00:%02x:%02x:%02x:%02x' % tuple(
        number >> shift & 255 for shift in (24, 16, 8, 0))


def station(number):
    return sdk.bcm_l2_addr_t(mac=mac(number), vid=1, port=1 + number % 48)


def route(number):
    return sdk.bcm_l3_route_t(l3a_subnet=number << 8, l3a_ip_mask=0xffffff00, l3a_intf=hop)


def host(number):
    return sdk.bcm_l3_host_t(l3a_ip_addr=number, l3a_intf=hop)


def with_box(function, *args):
    def make(number):
        box = sdk.box('int')
        status = function(*((0,) + args + (box,)))
        return box.value if status == 0 else sdk.check(status)
    return make


def with_rows(function, row):
    """A function of rows that are known by a number of the caller's."""
    def make(number):
        sdk.check(function(0, row(number)))
        return number
    return make


def first(result):
    return sdk.check(result)


hop = 0


def start():
    """A unit with what the rows stand on: a next hop and a group of rules."""
    global hop
    sdk.check(sdk.addOmbraDevice(0, 1, 0, 0))
    for step in sdk.soc_init, sdk.soc_misc_init, sdk.bcm_init:
        sdk.call(step, 0)
    interface = sdk.bcm_l3_intf_t(l3a_vid=1)
    sdk.call(sdk.bcm_l3_intf_create, 0, interface)
    box = sdk.box('bcm_if_t')
    sdk.call(sdk.bcm_l3_egress_create, 0, 0,
             sdk.bcm_l3_egress_t(intf=interface.l3a_intf_id, port=1), box)
    hop = box.value
    return sdk.call(sdk.bcm_field_group_create, 0, sdk.bcm_field_qset_t(), 1)


def tables(group):
    """Name, rows that fit, and the functions that make, find and take out one row: of the row's
    number by the count, then of what the first gave."""
    flags = sdk.box('uint32')
    config = sdk.bcm_policer_config_t(mode=sdk.bcmPolicerModeCommitted, ckbits_sec=64)
    return (
        ('MAC addresses', 65536, with_rows(sdk.bcm_l2_addr_add, station),
         lambda key: first(sdk.bcm_l2_addr_get(0, mac(key), 1)),
         lambda key: sdk.bcm_l2_addr_delete(0, mac(key), 1)),
        ('routes', 131072, with_rows(sdk.bcm_l3_route_add, route),
         lambda key: sdk.bcm_l3_route_get(0, route(key)),
         lambda key: sdk.bcm_l3_route_delete(0, route(key))),
        ('hosts', 65536, with_rows(sdk.bcm_l3_host_add, host),
         lambda key: sdk.bcm_l3_host_find(0, host(key)),
         lambda key: sdk.bcm_l3_host_delete(0, host(key))),
        ('rules', 16384,
         lambda number: first(sdk.bcm_field_entry_create(0, group)),
         lambda key: sdk.bcm_field_entry_prio_get(0, key, sdk.box('int')),
         lambda key: sdk.bcm_field_entry_destroy(0, key)),
        ('multicast groups', 4096, with_box(sdk.bcm_multicast_create, 0),
         lambda key: sdk.bcm_multicast_group_get(0, key, flags),
         lambda key: sdk.bcm_multicast_destroy(0, key)),
        ('policers', 4096, with_box(sdk.bcm_policer_create, config),
         lambda key: sdk.bcm_policer_get(0, key, config),
         lambda key: sdk.bcm_policer_destroy(0, key)),
        ('QoS maps, without a model', 4096, with_box(sdk.bcm_qos_map_create, 0),
         lambda key: sdk.bcm_qos_map_multi_get(0, 0, key, 0, None, sdk.box('int')),
         lambda key: sdk.bcm_qos_map_destroy(0, key)))


def measured(mark, name, rows, calls):
    mark()
    for call, key in calls:
        call(key)
    mark()
    print '%s\t%d' % (name, rows)


def fill():
    from _ombra_floor import mark
    dice = random.Random(1)
    group = start()
    for name, room, make, find, take in tables(group):
        keys, number = [], 0
        for share in SHARES:
            while len(keys) < room // share - CALLS:
                keys.append(make(number))
                number += 1
            dice.shuffle(keys)
            measured(mark, name + ': find', len(keys), [(find, key) for key in keys[:CALLS]])
            measured(mark, name + ': take out', len(keys), [(take, key) for key in keys[:CALLS]])
            del keys[:CALLS]
            measured(mark, name + ': make', len(keys),
                     [(lambda one: keys.append(make(one)), number + one)
                      for one in range(CALLS)])
            number += CALLS
        for key in keys:
            take(key)


def main():
    import run
    found = {}
    for line, count in run.counted(['--fill'], 'growth.py'):
        name, rows = line.split('\t')
        found.setdefault(name, []).append((int(rows), count / CALLS))
    print 'instructions of one call, by rows'
    beyond = []
    for name in sorted(found):
        counts = sorted(found[name])
        (few, least), (many, most) = counts[0], counts[-1]
        allowed = SLACK * math.log(many) / math.log(few)
        growth = float(most) / least
        if growth > allowed:
            beyond.append(name)
        print '%-38s %s  x%.2f of x%.2f' % (
            name, '  '.join('%6d: %6d' % one for one in counts), growth, allowed)
    if beyond:
        raise SystemExit('beyond a logarithm: ' + ', '.join(beyond))


if __name__ == '__main__':
    fill() if sys.argv[1:] == ['--fill'] else main()
