"""Compares the module with hand-written extension code (the floor) and with its peers, in one run.

    PYTHONPATH=build/lib:build/bench python2.7 bench/run.py build [--quick]

Calls run against an SDK that does nothing, so that what is measured is the binding. For all alike
the function is bound before and the empty loop taken off. Instructions are counted where valgrind
is installed, and repeat; times are medians of processor time, candidates taking turns, so that
whatever else the machine does falls on all. Prints a table and writes bench/results.txt and
bench/calls.svg into the build tree.
"""

import glob
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time

import shapes

REPETITIONS = 41
CALLS = 20000
COUNTED_CALLS = 1000
HERE = os.path.dirname(os.path.abspath(__file__))
IMPORTS = ('_OmbraSdkV2Helper', '_ombra_floor_import')


def counted(arguments, program='count.py'):
    """Runs a program under callgrind: [(its line, instructions)]."""
    folder = tempfile.mkdtemp()
    try:
        out = os.path.join(folder, 'out')
        lines = subprocess.check_output(
            ['valgrind', '--tool=callgrind', '--quiet', '--dump-before=ombra_bench_mark',
             '--callgrind-out-file=' + out, sys.executable, os.path.join(HERE, program)] +
            arguments, stderr=open(os.devnull, 'w')).splitlines()
        dumps = glob.glob(out + '.*')
        dumps.sort(key=lambda name: int(name.rsplit('.', 1)[1]))
        counts = [int(re.search(r'^totals: (\d+)', open(name).read(), re.M).group(1))
                  for name in dumps]
    finally:
        shutil.rmtree(folder)
    # The first dump is what came before the first mark; then measured parts and pauses take turns.
    assert len(counts) == 2 * len(lines), (len(counts), lines)
    return zip(lines, counts[1::2])


def count_all(number):
    """{(shape, candidate): instructions of a call or row}."""
    results = {}
    empty = None
    for line, count in counted(['calls', str(number)]):
        parts = line.split('\t')
        calls = int(parts[-1])
        if empty is None:
            empty = float(count) / calls
            continue
        shape, candidate = parts[:2]
        cost = float(count) / calls - empty
        results[shape, candidate] = cost / shapes.ROWS.get(shape, 1)
    for candidate, name in zip(('module', 'floor'), IMPORTS):
        results['import', candidate] = float(counted(['import', name])[0][1])
    return results


def median(values):
    return sorted(values)[len(values) // 2]


def time_calls(repetitions, number):
    """{(shape, candidate): nanoseconds of a call or row}."""
    results = {}
    found = shapes.candidates()
    for shape in shapes.SHAPES:
        count = shapes.number_of(shape, number)
        runs = [(shapes.run_empty, (count,))]
        names = [None]
        for candidate in found:
            call = shapes.bound(shape, candidate)
            if call is not None:
                names.append(candidate[0])
                runs.append((shapes.run, (count,) + call))
        taken = [[] for _ in runs]
        for _ in range(repetitions):
            for (function, arguments), times in zip(runs, taken):
                begin = time.clock()
                function(*arguments)
                times.append((time.clock() - begin) / count * 1e9)
        medians = [median(times) for times in taken]
        for name, value in zip(names, medians)[1:]:
            results[shape[0], name] = (value - medians[0]) / shapes.ROWS.get(shape[0], 1)
    return results


IMPORT = '''
import time
begin = time.clock()
import %s
kept = [[] for _ in xrange(1000)]
print (time.clock() - begin) * 1e9
'''


def time_imports(repetitions):
    """Each import in a process of its own, with the first collection afterwards."""
    taken = [[], []]
    for _ in range(repetitions):
        for name, times in zip(IMPORTS, taken):
            times.append(float(subprocess.check_output([sys.executable, '-c', IMPORT % name])))
    return dict((('import', candidate), median(times))
                for candidate, times in zip(('module', 'floor'), taken))


def table(results, unit):
    rows = [(shape[0], shape[3]) for shape in shapes.SHAPES] + [('import', 0.90)]
    lines = ['%-19s %10s %10s %6s %6s %s' % (
        unit, 'module', 'floor', 'ratio', 'target',
        ' '.join('%12s' % peer for peer in shapes.PEERS))]
    for name, target in rows:
        module, floor = results[name, 'module'], results[name, 'floor']
        line = '%-19s %10.0f %10.0f %6.3f %6.2f' % (name, module, floor, module / floor, target)
        for peer in shapes.PEERS:
            cost = results.get((name, peer))
            line += ' %12s' % ('' if cost is None else '%.2f' % (cost / floor))
        lines.append(line.rstrip())
    product = 1.0
    for shape in shapes.SHAPES:
        product *= results[shape[0], 'module'] / results[shape[0], 'floor']
    lines.append('geometric mean without import: %.3f' % product ** (1.0 / len(shapes.SHAPES)))
    return '\n'.join(lines)


COLOURS = {'module': '#2a7', 'ctypes typed': '#c63', 'ctypes': '#e96', 'Cython': '#36b',
           'pybind11': '#95b'}


def chart(results, unit):
    """Ratios to the floor, a group of bars for each shape; a line marks the floor."""
    bar, scale, left, widest = 9, 60.0, 140, 9.0
    parts = []
    y = 40
    for shape in shapes.SHAPES:
        floor = results[shape[0], 'floor']
        parts.append('<text x="%d" y="%d" text-anchor="end">%s</text>' % (left - 8, y + 9, shape[0]))
        for name in ['module'] + shapes.PEERS:
            cost = results.get((shape[0], name))
            if cost is None:
                continue
            ratio = cost / floor
            width = min(ratio, widest) * scale
            parts.append('<rect x="%d" y="%d" width="%.0f" height="%d" fill="%s"/>'
                         '<text x="%.0f" y="%d" font-size="9">%.2f</text>' % (
                             left, y, width, bar, COLOURS[name], left + width + 3, y + 8, ratio))
            y += bar
        y += 7
    for index, name in enumerate(['module'] + shapes.PEERS):
        x = left + 110 * index
        parts.append('<rect x="%d" y="20" width="9" height="9" fill="%s"/>'
                     '<text x="%d" y="29">%s</text>' % (x, COLOURS[name], x + 13, name))
    return ('<svg xmlns="http://www.w3.org/2000/svg" width="760" height="%d" '
            'font-family="sans-serif" font-size="11">\n<text x="8" y="13">%s, as a ratio to '
            'hand-written code</text>\n%s\n<line x1="%.0f" y1="34" x2="%.0f" y2="%d" '
            'stroke="#555"/>\n</svg>\n' % (
                y + 6, unit, '\n'.join(parts), left + scale, left + scale, y))


def main(build, quick):
    null = os.path.join(build, 'bench', 'null')  # the SDK that does nothing stands first
    if os.environ.get('LD_LIBRARY_PATH') != null:
        os.environ['LD_LIBRARY_PATH'] = null
        os.execv(sys.executable, [sys.executable] + sys.argv)
    repetitions, number = (5, 2000) if quick else (REPETITIONS, CALLS)
    names = [candidate[0] for candidate in shapes.candidates()]
    tables, pictures = [], []
    for peer in shapes.PEERS:
        if peer not in names:
            tables.append('%s: not to be had here, not measured' % peer)
    if any(os.access(os.path.join(path, 'valgrind'), os.X_OK)
           for path in os.environ['PATH'].split(':')):
        results = count_all(COUNTED_CALLS // (5 if quick else 1))
        tables.append(table(results, 'instructions'))
        pictures.append((results, 'Instructions'))
    else:
        tables.append('valgrind is not installed: instructions not counted')
    results = time_calls(repetitions, number)
    results.update(time_imports(repetitions))
    tables.append(table(results, 'nanoseconds'))
    pictures.append((results, 'Processor time'))
    text = '\n\n'.join(tables)
    print text
    with open(os.path.join(build, 'bench', 'results.txt'), 'w') as report:
        report.write(text + '\n')
    with open(os.path.join(build, 'bench', 'calls.svg'), 'w') as picture:
        picture.write(chart(*pictures[0]))


if __name__ == '__main__':
    main(os.path.abspath(sys.argv[1]), '--quick' in sys.argv)
