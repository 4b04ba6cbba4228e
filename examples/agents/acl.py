"""Access lists: rules that drop, count and police what they match."""

import OmbraSdkV2Helper as sdk
from OmbraSdkV2Helper import call

from agent import refuse, same, start, value

DENIED = ['10.0.0.%d' % host for host in range(1, 6)]


def number(address):
    parts = [int(part) for part in address.split('.')]
    return sum(part << shift for part, shift in zip(parts, (24, 16, 8, 0)))


def make_group(unit, priority):
    qualifiers = sdk.bcm_field_qset_t()
    for one in sdk.bcmFieldQualifyDstIp, sdk.bcmFieldQualifyInPort:
        sdk.bcm_field_qset_add(qualifiers, one)
    return call(sdk.bcm_field_group_create, unit, qualifiers, priority)


def deny(unit, group, address):
    entry = call(sdk.bcm_field_entry_create, unit, group)
    call(sdk.bcm_field_qualify_DstIp, unit, entry, number(address),
         0xffffffff)
    call(sdk.bcm_field_action_add, unit, entry, sdk.bcmFieldActionDrop, 0, 0)
    call(sdk.bcm_field_entry_install, unit, entry)
    return entry


def main():
    unit = start()
    refuse('NOT_FOUND', sdk.bcm_field_entry_create, unit, 1)
    group = make_group(unit, 10)
    rules = dict((address, deny(unit, group, address)) for address in DENIED)
    first = rules[DENIED[0]]

    # What the group does not know cannot be asked of its rules.
    refuse('PARAM', sdk.bcm_field_qualify_SrcIp, unit, first, 1, 1)
    refuse('NOT_FOUND', sdk.bcm_field_action_remove, unit, first,
           sdk.bcmFieldActionCopyToCpu)
    refuse('EXISTS', sdk.bcm_field_action_add, unit, first,
           sdk.bcmFieldActionDrop, 0, 0)

    # A counter and a policer are held by the rule that uses them.
    kinds = sdk.Array('bcm_field_stat_t', [sdk.bcmFieldStatPackets, sdk.bcmFieldStatBytes])
    counter = sdk.box('int')
    refuse('NOT_FOUND', sdk.bcm_field_entry_stat_attach, unit, first, 1)
    call(sdk.bcm_field_stat_create, unit, group, 2, kinds, counter)
    counter = counter.value
    call(sdk.bcm_field_entry_stat_attach, unit, first, counter)
    policer = value(sdk.bcm_policer_create, unit,
                    sdk.bcm_policer_config_t(mode=sdk.bcmPolicerModeCommitted,
                                             ckbits_sec=1000,
                                             ckbits_burst=64))
    call(sdk.bcm_field_entry_policer_attach, unit, first, 0, policer)
    refuse('BUSY', sdk.bcm_field_stat_destroy, unit, counter)
    refuse('BUSY', sdk.bcm_policer_destroy, unit, policer)
    refuse('BUSY', sdk.bcm_field_group_destroy, unit, group)

    call(sdk.bcm_field_entry_destroy, unit, first)
    refuse('NOT_FOUND', sdk.bcm_field_entry_install, unit, first)
    call(sdk.bcm_field_stat_destroy, unit, counter)
    call(sdk.bcm_policer_destroy, unit, policer)
    second = rules[DENIED[1]]
    refuse('NOT_FOUND', sdk.bcm_field_entry_stat_attach, unit, second,
           counter)
    refuse('NOT_FOUND', sdk.bcm_field_entry_policer_attach, unit, second, 0,
           policer)
    refuse('NOT_FOUND', sdk.bcm_policer_destroy, unit, policer)

    # Full: a rule more is refused, and one that goes makes room.
    count = len(DENIED) - 1
    while True:
        result = sdk.bcm_field_entry_create(unit, group)
        if result[0] == sdk.BCM_E_FULL:
            break
        last = sdk.check(result)
        count += 1
    call(sdk.bcm_field_entry_destroy, unit, last)
    deny(unit, group, '10.1.0.1')
    refuse('FULL', sdk.bcm_field_entry_create, unit, group)
    call(sdk.bcm_field_entry_destroy_all, unit)
    call(sdk.bcm_field_group_destroy, unit, group)
    refuse('NOT_FOUND', sdk.bcm_field_group_destroy, unit, group)
    same(sdk.bcm_field_qualify_DstIp(unit, second, 1, 1), sdk.BCM_E_NOT_FOUND,
         'status of a rule that is gone')
    print 'acl: done, with %d rules' % count


if __name__ == '__main__':
    main()
