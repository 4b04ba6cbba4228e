"""Runs all conformance suites in one process and says what they covered.

Under the debug interpreter the suites run three times: once to warm up, and
twice more between which the total of all references must not change.

usage: run.py [-v] [MODULE[.CLASS[.TEST]]...]
"""

import glob
import os
import re
import sys
import unittest

import leaks
import support
from totals import TOTALS

COVERED = ('rows', 'texts of arguments', 'null references of arguments',
           'null references in variables', 'texts of variables')
HERE = os.path.dirname(os.path.abspath(__file__))


def suite_names():
    files = glob.glob(os.path.join(HERE, 'test_*.py'))
    return sorted(os.path.basename(path)[:-len('.py')] for path in files)


def run_once(names, verbosity):
    """Runs the named tests; whether all passed."""
    suite = unittest.defaultTestLoader.loadTestsFromNames(names)
    runner = unittest.TextTestRunner(stream=sys.stdout, verbosity=verbosity)
    return runner.run(suite).wasSuccessful()


def covered():
    """What the suites have tried, of what the totals count. The null
    references of structures, of arrays and of nested structures are the
    tests' own extra."""
    tally = support.TALLY
    nulls = set()
    for row in support.ROWS:
        for argument in row.arguments:
            if (argument.null_text in tally.nulls and
                    argument.kind in ('by-value', 'reference')):
                nulls.add(argument.null_text)
    return [len(tally.rows), len(tally.texts), len(nulls),
            len(tally.variable_nulls), len(tally.variable_texts)]


def report():
    """Prints the coverage; whether it is whole."""
    whole = True
    for name, count in zip(COVERED, covered()):
        whole = whole and count == TOTALS[name]
        print '%-32s %6d of %6d' % (name, count, TOTALS[name])
    print '%-32s %6d' % ('argument places', len(support.TALLY.places))
    return whole


def references_hold(names):
    """Runs the suites again and compares the totals of references; as with
    each row, what changes once is a cache that filled, what changes the same
    way in every run is a fault."""
    totals = [0] * 4  # made before: a list that grows would count
    for i in range(len(totals)):
        if not run_once(names, 0):
            return False
        re.purge()
        leaks.settle()
        totals[i] = sys.gettotalrefcount()
        if i and totals[i] == totals[i - 1]:
            break
    print 'references after each run: ' + ', '.join(map(str, totals))
    gains = [after - before for before, after in zip(totals, totals[1:i + 1])]
    return not (min(gains) > 0 or max(gains) < 0)


def main(arguments):
    verbosity = 2 if '-v' in arguments else 1
    chosen = [name for name in arguments if name != '-v']
    passed = run_once(chosen or suite_names(), verbosity)
    if not chosen:
        passed = report() and passed
    if passed and support.DEBUG:
        passed = references_hold(chosen or suite_names())
    return 0 if passed else 1


if __name__ == '__main__':
    sys.exit(main(sys.argv[1:]))
