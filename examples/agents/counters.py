"""Counters: what each port has passed, read one by one and many at once."""

import OmbraSdkV2Helper as sdk
from OmbraSdkV2Helper import call

from agent import refuse, same, start, value

KINDS = [sdk.snmpIfInOctets, sdk.snmpIfInUcastPkts, sdk.snmpIfOutOctets]


def counters(unit, port):
    values = sdk.Array('uint64', len(KINDS))
    call(sdk.bcm_stat_multi_get, unit, port, len(KINDS),
         sdk.Array('bcm_stat_val_t', KINDS), values)
    return list(values)


def main():
    unit = start()
    call(sdk.bcm_stat_init, unit)
    before = dict((port, counters(unit, port)) for port in range(1, 49))
    for port, found in before.iteritems():
        singly = [value(sdk.bcm_stat_get, unit, port, kind, kind='uint64')
                  for kind in KINDS]
        same(found, singly, 'counters of port %d' % port)
    refuse('PORT', sdk.bcm_stat_get, unit, 999, KINDS[0], sdk.box('uint64'))
    refuse('UNIT', sdk.bcm_stat_get, unit + 1, 1, KINDS[0],
           sdk.box('uint64'))
    call(sdk.bcm_stat_clear, unit, 5)
    same(counters(unit, 5), [0] * len(KINDS), 'the cleared counters')
    refuse('PORT', sdk.bcm_stat_clear, unit, 999)
    busiest = max(before, key=lambda port: before[port][0])
    print 'counters: done, port %d has received most' % busiest


if __name__ == '__main__':
    main()
