"""Ports and links: brings ports up, follows their links, tells of changes."""

import OmbraSdkV2Helper as sdk
from OmbraSdkV2Helper import call

from agent import refuse, same, start, value

PORTS = sdk.ports(range(1, 9))
SCAN = 250000  # microseconds


def main():
    unit = start()
    heard = []

    def link_changed(unit, port, info):
        heard.append((int(port), info.linkstatus))

    sdk.bind(sdk.bcm_linkscan_handler_t, link_changed)
    call(sdk.bcm_linkscan_register, unit, sdk.bcm_linkscan_handler_t)
    refuse('EXISTS', sdk.bcm_linkscan_register, unit,
           sdk.bcm_linkscan_handler_t)
    call(sdk.bcm_linkscan_mode_set_pbm, unit, PORTS, sdk.BCM_LINKSCAN_MODE_SW)
    for port in PORTS:
        same(value(sdk.bcm_linkscan_mode_get, unit, port),
             sdk.BCM_LINKSCAN_MODE_SW, 'scan mode of port %d' % port)
        call(sdk.bcm_port_speed_set, unit, port, 10000)
        call(sdk.bcm_port_enable_set, unit, port, 1)
    call(sdk.bcm_linkscan_enable_set, unit, SCAN)

    # What is switched off has no link, and the scanner says so.
    call(sdk.bcm_port_enable_set, unit, 3, 0)
    call(sdk.bcm_linkscan_update, unit, PORTS)
    same(value(sdk.bcm_port_link_status_get, unit, 3), 0, 'link of port 3')
    call(sdk.bcm_port_enable_set, unit, 3, 1)
    call(sdk.bcm_linkscan_update, unit, PORTS)
    same([one for one in heard if one[0] == 3][-2:], [(3, 0), (3, 1)],
         'what was heard of port 3')
    print 'port 3 went down and came up'

    # A small port can't do what a large one can, and 999 is none at all.
    refuse('CONFIG', sdk.bcm_port_speed_set, unit, 1, 100000)
    call(sdk.bcm_port_speed_set, unit, 49, 100000)
    same(value(sdk.bcm_port_speed_get, unit, 1), 10000, 'speed of port 1')
    refuse('PORT', sdk.bcm_port_enable_set, unit, 999, 1)
    refuse('UNIT', sdk.bcm_port_enable_set, unit + 1, 1, 1)
    refuse('PARAM', sdk.bcm_port_loopback_set, unit, 1, 99)

    call(sdk.bcm_linkscan_unregister, unit, sdk.bcm_linkscan_handler_t)
    refuse('NOT_FOUND', sdk.bcm_linkscan_unregister, unit,
           sdk.bcm_linkscan_handler_t)
    quiet = len(heard)
    call(sdk.bcm_port_enable_set, unit, 3, 0)
    call(sdk.bcm_linkscan_update, unit, PORTS)
    same(len(heard), quiet, 'what was heard without a handler')
    print 'ports: done'


if __name__ == '__main__':
    main()
