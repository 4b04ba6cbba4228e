"""Calls each function that has a unit, on unit 1 of two: with the number of
something that is not there in each argument that names something, then with
numbers drawn by a seed. Tells the status of each call, and what it did that no
call may do: take such a number, change a state and refuse, or touch the other
unit.

usage: sweep.py MODEL.json SEED
"""

import json
import os
import random
import re
import shutil
import sys
import tempfile

from calls import is_count
import every_function
import OmbraSdkV2Bench as bench
import OmbraSdkV2Helper as sdk

NUMBERS = (0, 1, 2, 3, 5, 16, 100, 999, 5000, 70000)
# These start and end the unit, or write what has been collected.
LEFT_OUT = every_function.ENDING + ('init', 'reset', 'shell', 'clear', 'load')

# By declared type: a number that names nothing.
NOTHING = {
    'bcm_port_t': 999, 'bcm_gport_t': 999, 'bcm_vlan_t': 4000,
    'bcm_trunk_t': 5000, 'bcm_multicast_t': 5000, 'bcm_policer_t': 5000,
    'bcm_field_entry_t': 5000, 'bcm_field_group_t': 5000, 'bcm_stg_t': 200,
    'bcm_if_t': 100500}
# What makes the object itself, numbers of other devices, of packets or of
# encapsulations, and a walk over what a group has: rows and arguments.
FREE = re.compile(r'_create|_delete_by|delete_all|encap|remote|sport'
                  r'|(old|new|inner|outer|match)_(vid|vlan)|dst_entry'
                  r'|group_traverse')


def is_swept(row):
    wanted = row['arguments']
    return (row['role'] == 'function' and wanted
            and row['name'].startswith(('bcm_', 'soc_'))
            and wanted[0]['name'] in ('unit', 'arg1')
            and row.get('result', {}).get('type') == 'int'
            and not any(word in row['name'] for word in LEFT_OUT))


def status_of(result):
    return result[0] if isinstance(result, (list, tuple)) else result


def takers(rows, keep):
    """Functions and arguments that take what names nothing."""
    def make(argument, keep):
        if argument is named:
            return NOTHING[argument['type']]
        if argument['kind'].split('-')[0] in ('signed', 'unsigned'):
            return 1
        return every_function.make(argument, keep)

    for row in rows:
        for named in row['arguments'][1:]:
            place = '%s.%s' % (row['name'], named['name'])
            if named['type'] in NOTHING and not FREE.search(place):
                made = every_function.arguments(row, keep, make)
                keep.extend(made)
                status = status_of(getattr(sdk, row['name'])(*made))
                if status >= 0:
                    yield '%s: took %d' % (place, NOTHING[named['type']])


def main(model, seed):
    dice = random.Random(seed)

    def make(argument, keep):
        if argument['kind'].split('-')[0] in ('signed', 'unsigned'):
            name = argument['name']
            # A buffer has no room for any number.
            return 1 if name in ('unit', 'arg1') or is_count(
                name) else dice.choice(NUMBERS)
        return every_function.make(argument, keep)

    with open(model) as stream:
        rows = [row for row in json.load(stream)['rows'] if is_swept(row)]
    folder = tempfile.mkdtemp()
    os.chdir(folder)
    for unit in 0, 1:
        sdk.check(sdk.addOmbraDevice(0, 1 + unit, 0, 0))
        for step in sdk.soc_init, sdk.soc_misc_init, sdk.bcm_init:
            sdk.call(step, unit)
    states = [bench.digest(unit) for unit in (0, 1)]
    keep = []
    wrong = list(takers(rows, keep))
    if [bench.digest(unit) for unit in (0, 1)] != states:
        wrong.append('a state: changed by calls that refused')
    statuses = []
    for number, row in enumerate(rows):
        made = every_function.arguments(row, keep, make)
        keep.extend(made)
        try:
            status = status_of(getattr(sdk, row['name'])(*made))
        except (OverflowError, TypeError, ValueError):
            status = None  # a number that the type has no room for
        statuses.append('%s %s' % (row['name'], status))
        before, states[1] = states[1], bench.digest(1)
        if status is not None and status < 0 and states[1] != before:
            wrong.append('%s: %s, and changed' % (row['name'], status))
        if number % 32 == 31 and bench.digest(0) != states[0]:
            wrong.append('%s, or one before: touched the other unit'
                         % row['name'])
            states[0] = bench.digest(0)
    shutil.rmtree(folder)
    print '\nreport:\n' + '\n'.join(
        wrong + ['called %d functions' % len(rows)] + statuses +
        ['%016x' % bench.digest(1)])


if __name__ == '__main__':
    main(sys.argv[1], int(sys.argv[2]))
