"""Quality of service: maps of priorities, queues, schedulers, policers."""

import OmbraSdkV2Helper as sdk
from OmbraSdkV2Helper import call

from agent import refuse, same, start, value

INGRESS, L2, WITH_ID = 0x1, 0x8, 0x10  # in the flags of a map
PORT, MAPS = 3, 8


def entry(priority):
    return sdk.bcm_qos_map_t(pkt_pri=priority, int_pri=7 - priority, color=0)


def main():
    unit = start()
    call(sdk.bcm_qos_init, unit)
    call(sdk.bcm_cosq_init, unit)
    refuse('NOT_FOUND', sdk.bcm_qos_map_add, unit, L2, entry(0), 5)
    made = [value(sdk.bcm_qos_map_create, unit, INGRESS | L2)
            for _ in range(MAPS)]
    same(len(set(made)), MAPS, 'numbers of the maps')
    first = made[0]
    for priority in range(8):
        call(sdk.bcm_qos_map_add, unit, L2, entry(priority), first)
    found = sdk.Array('bcm_qos_map_t', 16)
    count = value(sdk.bcm_qos_map_multi_get, unit, L2, first, 16, found)
    same(sorted((one.pkt_pri, one.int_pri) for one in found[:count]),
         [(priority, 7 - priority) for priority in range(8)],
         'entries of the map')
    refuse('EXISTS', sdk.bcm_qos_map_create, unit, INGRESS | L2 | WITH_ID,
           sdk.box('int', first))

    call(sdk.bcm_qos_port_map_set, unit, PORT, first, made[1])
    ingress, egress = sdk.box('int'), sdk.box('int')
    call(sdk.bcm_qos_port_map_get, unit, PORT, ingress, egress)
    same((ingress.value, egress.value), (first, made[1]), 'maps of the port')
    refuse('PORT', sdk.bcm_qos_port_map_set, unit, 999, first, made[1])
    for number in made[2:]:
        call(sdk.bcm_qos_map_destroy, unit, number)
        refuse('NOT_FOUND', sdk.bcm_qos_map_destroy, unit, number)
    refuse('NOT_FOUND', sdk.bcm_qos_map_add, unit, L2, entry(0), made[2])

    # Each priority has a queue of its own, from the last to the first.
    call(sdk.bcm_cosq_config_set, unit, 8)
    for priority in range(8):
        call(sdk.bcm_cosq_mapping_set, unit, priority, 7 - priority)
    same([value(sdk.bcm_cosq_mapping_get, unit, priority,
                kind='bcm_cos_queue_t') for priority in range(8)],
         range(7, -1, -1), 'queues of the priorities')
    call(sdk.bcm_cosq_port_bandwidth_set, unit, PORT, 2, 1000, 5000, 0)

    policer = value(sdk.bcm_policer_create, unit, sdk.bcm_policer_config_t(
        mode=sdk.bcmPolicerModeCommitted, ckbits_sec=2000, ckbits_burst=64))
    config = sdk.bcm_policer_config_t()
    call(sdk.bcm_policer_get, unit, policer, config)
    same(config.ckbits_sec, 2000, 'rate of the policer')
    call(sdk.bcm_policer_destroy, unit, policer)
    refuse('NOT_FOUND', sdk.bcm_policer_get, unit, policer, config)
    print 'qos: done, with %d maps' % MAPS


if __name__ == '__main__':
    main()
