"""Compares the module with hand-written extension code and with ctypes, in one run.

    PYTHONPATH=build/lib:build/bench python2.7 bench/run.py build [--quick]

Calls run against an SDK that does nothing, so that what is measured is the binding; the snapshot
runs against the stand-in. Every figure is a ratio of medians: candidate and floor take turns, so
that whatever else the machine does falls on both. Prints a table and writes bench/calls.svg and
bench/results.txt into the build tree.
"""

import ctypes
import os
import subprocess
import sys
import timeit

REPETITIONS = 41
CALLS = 20000

# name, statement (m is the module under test), whether ctypes can do the same, the target.
CALLS_TABLE = [
    ('0 arguments', 'm.getNumDevices()', None, 1.05),
    ('1 int', 'm.soc_init(0)', ('soc_init', '(0)'), 1.05),
    ('3 ints', 'm.bcm_port_speed_set(0, 1, 1000)',
     ('bcm_port_speed_set', '(0, 1, 1000)'), 1.05),
    ('5 integers', 'm.bcm_field_action_add(0, 5, 7, 1, 2)',
     ('bcm_field_action_add', '(0, 5, 7, 1, 2)'), 1.05),
    ('9 integers', 'm.bcm_petra_tpid_profile_info_set(0, 1, 2, 3, 4, 5, 6, 7, 8)',
     ('bcm_petra_tpid_profile_info_set', '(0, 1, 2, 3, 4, 5, 6, 7, 8)'), 1.05),
    ('pointer', 'm.bcm_port_speed_get(0, 1, box)',
     ('bcm_port_speed_get', '(0, 1, cbox)'), 1.05),
    ('text', 'm.bcm_field_show(0, "x")', ('bcm_field_show', '(0, "x")'), 1.05),
    ('by value', 'm.bcm_field_group_create_id(0, qset, 1, 2)', None, 1.05),
    ('MAC text', 'm.bcm_l2_addr_delete(0, "00:11:22:aa:bb:cc", 10)', None, 1.05),
    ('port lists, 0', 'm.bcm_vlan_port_add(0, 10, none, none)', None, 1.1),
    ('port lists, 1', 'm.bcm_vlan_port_add(0, 10, one, one)', None, 1.1),
    ('port lists, 48', 'm.bcm_vlan_port_add(0, 10, some, some)', None, 1.1),
    ('port lists, 571', 'm.bcm_vlan_port_add(0, 10, every, every)', None, 1.1),
    ('get int field', 'm.bcm_l2_addr_t_port_get(entry)', None, 1.05),
    ('set int field', 'm.bcm_l2_addr_t_port_set(entry, 5)', None, 1.05),
    ('get MAC field', 'm.bcm_l2_addr_t_mac_get(entry)', None, 1.05),
    ('set MAC field', 'm.bcm_l2_addr_t_mac_set(entry, "00:11:22:aa:bb:cc")', None, 1.05),
    ('get port list, 0', 'm.bcm_l2_addr_t_block_bitmap_get(entry)', None, 1.1),
    ('get port list, 1', 'm.bcm_l2_addr_t_block_bitmap_get(one_port)', None, 1.1),
    ('get port list, 48', 'm.bcm_l2_addr_t_block_bitmap_get(some_ports)', None, 1.1),
    ('get port list, 571', 'm.bcm_l2_addr_t_block_bitmap_get(every_port)', None, 1.1),
    ('set port list, 1', 'm.bcm_l2_addr_t_block_bitmap_set(one_port, one)', None, 1.1),
    ('set port list, 48', 'm.bcm_l2_addr_t_block_bitmap_set(some_ports, some)', None, 1.1),
]

SETUP = '''
import _OmbraSdkV2Helper as module, _ombra_floor as floor, ctypes
owner = module.new_intp()
box = module.intp_cast(owner)
cbox = ctypes.byref(ctypes.c_int())
qset = module.new_bcm_field_qset_t()
entry = module.new_bcm_l2_addr_t()
none, one, some, every = [], [7], range(48), range(571)
one_port, some_ports, every_port = [module.new_bcm_l2_addr_t() for i in range(3)]
module.bcm_l2_addr_t_block_bitmap_set(one_port, [7])
module.bcm_l2_addr_t_block_bitmap_set(some_ports, some)
module.bcm_l2_addr_t_block_bitmap_set(every_port, every)
floor.bind(box, qset, entry)
for made in (owner, qset, entry, one_port, some_ports, every_port):
    made.disown()  # kept to the end: without a proxy nothing would free them
sdk = ctypes.CDLL('libOmbraSdkV2Helper.so.0')
m = %s
'''


def median(values):
    return sorted(values)[len(values) // 2]


def interleaved(timers, repetitions, number):
    """Median time of one run of each timer, in nanoseconds."""
    times = [[] for _ in timers]
    for timer in timers:
        timer.timeit(number // 10 + 1)
    for _ in range(repetitions):
        for timer, taken in zip(timers, times):
            taken.append(timer.timeit(number) / number * 1e9)
    return [median(taken) for taken in times]


def measure_calls(repetitions, number):
    rows = []
    for name, statement, foreign, target in CALLS_TABLE:
        timers = [timeit.Timer(statement, SETUP % 'module'),
                  timeit.Timer(statement, SETUP % 'floor')]
        if foreign:
            timers.append(timeit.Timer('f' + foreign[1], SETUP % 'sdk' + 'f = m.' + foreign[0]))
        count = max(number // (20 if '571' in name else 1), 1)
        rows.append((name, interleaved(timers, repetitions, count), target))
    return rows


IMPORT = '''
import time
start = time.time()
import %s
print (time.time() - start) * 1e9
'''


def measure_import(repetitions, environment):
    """Each import in a process of its own; what both load is loaded before."""
    times = [[], []]
    for _ in range(repetitions):
        for name, taken in zip(('_OmbraSdkV2Helper', '_ombra_floor_import'), times):
            taken.append(float(subprocess.check_output(
                [sys.executable, '-c', IMPORT % name], env=environment)))
    return [('import', [median(taken) for taken in times], 1.0)]


SNAPSHOT = '''
import timeit, sys
sys.path.insert(0, %r)
import run
print run.measure_snapshot(%d)
'''


def measure_snapshot(repetitions):
    """Runs in a process of its own, whose SDK is the stand-in."""
    import _OmbraSdkV2Helper as module
    import _ombra_floor as floor
    module.addOmbraDevice(0, 1, 0, 0)
    module.soc_init(0)
    entry = module.new_bcm_l2_addr_t()
    box, qset = module.new_intp(), module.new_bcm_field_qset_t()
    floor.bind(module.intp_cast(box), qset, entry)
    for made in (box, qset, entry):
        made.disown()
    for vid in range(1, 257):
        for low in range(256):
            module.bcm_l2_addr_t_init(entry, '02:00:00:00:00:%02x' % low, vid)
            module.bcm_l2_addr_t_port_set(entry, 1 + low % 64)
            module.bcm_l2_addr_add(0, entry)
    assert len(module.getHwMacTable(0)) == 65536
    timers = [timeit.Timer(lambda: module.getHwMacTable(0)),
              timeit.Timer(lambda: floor.getHwMacTable(0))]
    return interleaved(timers, repetitions, 1)


def table(rows):
    lines = ['%-20s %12s %12s %7s %7s %12s %7s'
             % ('', 'module', 'floor', 'ratio', 'target', 'ctypes', 'times')]
    for name, times, target in rows:
        line = '%-20s %9.0f ns %9.0f ns %7.3f %7.2f' % (
            name, times[0], times[1], times[0] / times[1], target)
        if len(times) > 2:
            line += ' %9.0f ns %7.1f' % (times[2], times[2] / times[0])
        lines.append(line)
    return '\n'.join(lines)


def chart(rows):
    """Ratios to the floor as horizontal bars; a line marks the floor."""
    height = 22
    parts = ['<svg xmlns="http://www.w3.org/2000/svg" width="640" height="%d" '
             'font-family="sans-serif" font-size="12">' % (height * len(rows) + 30)]
    for i, (name, times, target) in enumerate(rows):
        ratio = times[0] / times[1]
        y = 10 + i * height
        colour = '#3a7' if ratio <= target else '#c63'
        parts.append('<text x="150" y="%d" text-anchor="end">%s</text>' % (y + 13, name))
        parts.append('<rect x="160" y="%d" width="%.0f" height="16" fill="%s"/>'
                     % (y, ratio * 300, colour))
        parts.append('<text x="%.0f" y="%d">%.2f</text>' % (166 + ratio * 300, y + 13, ratio))
    parts.append('<line x1="460" y1="0" x2="460" y2="%d" stroke="#555"/>' % (height * len(rows)))
    return '\n'.join(parts + ['</svg>\n'])


def with_null_sdk(build):
    """The environment in which the SDK that does nothing stands first."""
    environment = dict(os.environ)
    environment['LD_LIBRARY_PATH'] = os.path.join(build, 'bench', 'null')
    return environment


def main(build, quick):
    repetitions, number = (7, 4000) if quick else (REPETITIONS, CALLS)
    environment = with_null_sdk(build)
    if os.environ.get('LD_LIBRARY_PATH') != environment['LD_LIBRARY_PATH']:
        os.execve(sys.executable, [sys.executable] + sys.argv, environment)
    rows = measure_calls(repetitions, number)
    rows += measure_import(repetitions, environment)
    del os.environ['LD_LIBRARY_PATH']
    here = os.path.dirname(os.path.abspath(__file__))
    times = subprocess.check_output([sys.executable, '-c', SNAPSHOT % (here, repetitions)])
    rows.append(('snapshot, 65536', eval(times), 1.05))
    text = table(rows)
    print text
    with open(os.path.join(build, 'bench', 'results.txt'), 'w') as results:
        results.write(text + '\n')
    with open(os.path.join(build, 'bench', 'calls.svg'), 'w') as picture:
        picture.write(chart(rows))


if __name__ == '__main__':
    main(os.path.abspath(sys.argv[1]), '--quick' in sys.argv)
