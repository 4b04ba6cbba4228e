"""Mirroring: copies of what passes a port, to where somebody listens."""

import OmbraSdkV2Helper as sdk
from OmbraSdkV2Helper import call

from agent import refuse, same, start, value

INGRESS = 1  # in the flags of a port: what arrives there


def destination(port):
    return sdk.bcm_mirror_destination_t(gport=sdk.gport('local', port))


def destinations_of(unit, port):
    found = sdk.Array('bcm_gport_t', 8)
    count = value(sdk.bcm_mirror_port_dest_get, unit, port, INGRESS, 8, found)
    return list(found[:count])


def main():
    unit = start()
    call(sdk.bcm_mirror_init, unit)
    analyser = destination(48)
    refuse('NOT_FOUND', sdk.bcm_mirror_port_dest_add, unit, 1, INGRESS,
           sdk.gport('local', 48))
    refuse('PORT', sdk.bcm_mirror_destination_create, unit, destination(999))
    call(sdk.bcm_mirror_destination_create, unit, analyser)
    name = analyser.mirror_dest_id
    for port in 1, 2:
        call(sdk.bcm_mirror_port_dest_add, unit, port, INGRESS, name)
        same(destinations_of(unit, port), [name], 'copies of a port')
    refuse('EXISTS', sdk.bcm_mirror_port_dest_add, unit, 1, INGRESS, name)
    refuse('PORT', sdk.bcm_mirror_port_dest_add, unit, 999, INGRESS, name)

    refuse('BUSY', sdk.bcm_mirror_destination_destroy, unit, name)
    for port in 1, 2:
        call(sdk.bcm_mirror_port_dest_delete, unit, port, INGRESS, name)
    refuse('NOT_FOUND', sdk.bcm_mirror_port_dest_delete, unit, 1, INGRESS,
           name)
    call(sdk.bcm_mirror_destination_destroy, unit, name)
    refuse('NOT_FOUND', sdk.bcm_mirror_destination_destroy, unit, name)
    refuse('NOT_FOUND', sdk.bcm_mirror_port_dest_add, unit, 1, INGRESS, name)

    made = []
    while True:
        one = destination(1 + len(made) % 48)
        status = sdk.bcm_mirror_destination_create(unit, one)
        if status == sdk.BCM_E_FULL:
            break
        sdk.check(status)
        made.append(one.mirror_dest_id)
    call(sdk.bcm_mirror_port_dest_add, unit, 3, INGRESS, made[-1])
    call(sdk.bcm_mirror_destination_destroy, unit, made[0])
    call(sdk.bcm_mirror_destination_create, unit, destination(7))
    refuse('BUSY', sdk.bcm_mirror_destination_destroy, unit, made[-1])
    print 'mirror: done, with %d destinations' % len(made)


if __name__ == '__main__':
    main()
