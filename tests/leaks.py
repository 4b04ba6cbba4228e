"""The leak detector of all suites.

A row is hunted along one path: `call` is made over and over, and before and
after each run the detector reads what must not change: each watched object's
own count, that of None, the total of all references under the debug
interpreter, and the native blocks, where a module counts them. The total alone would hide a gain
beside a loss. What changed in the same direction in every run is a fault;
what changed once is a cache that filled.

Measuring allocates nothing that counts: the readings lie in arrays that were
made before.
"""

import array
import gc
import sys

RUNS = 3
DEBUG = hasattr(sys, 'gettotalrefcount')


native_blocks = lambda: 0  # set by who counts them


def settle():
    """Lets go of what the interpreter keeps of a call."""
    sys.exc_clear()
    sys._clear_type_cache()
    gc.collect()


class Readings(object):
    """What is read around the runs: a column for each thing that counts."""

    def __init__(self, watched):
        self.watched = watched
        self.names = (['total', 'native blocks', 'None'] +
                      ['argument %d' % (i + 1) for i in range(len(watched))])
        self.columns = [array.array('l', [0] * (RUNS + 1))
                        for _ in self.names]

    def take(self, run):
        settle()
        for i, thing in enumerate(self.watched):
            self.columns[3 + i][run] = sys.getrefcount(thing)
        self.columns[2][run] = sys.getrefcount(None)
        self.columns[1][run] = native_blocks()
        if DEBUG:
            self.columns[0][run] = sys.gettotalrefcount()

    def faults(self):
        for name, column in zip(self.names, self.columns):
            gains = [column[i + 1] - column[i] for i in range(RUNS)]
            if min(gains) > 0 or max(gains) < 0:
                yield '%s %s' % (name, ' '.join('%+d' % gain
                                                for gain in gains))


def hunt(row, path, call, watched=()):
    """Runs `call` and gives a text that names row, path and gains, or None.
    `watched` are the arguments; `call` must keep nothing itself."""
    readings = Readings(watched)
    call()
    call()
    for run in range(RUNS + 1):  # all inside, so that the loop's objects are
        if run > 0:              # there at the first reading
            call()
        readings.take(run)
    faults = list(readings.faults())
    return '%s, %s: %s' % (row, path, ', '.join(faults)) if faults else None
