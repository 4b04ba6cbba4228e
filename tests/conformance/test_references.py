"""No call keeps or loses a reference: each argument's own count around a call,
on every path. Under the debug interpreter run.py compares the totals."""

import array
import sys

from kinds import kind_of, null_reference, valid_objects, values
from support import (FUNCTIONS, ODD_PLACES, RECORDER, ConformanceTest,
                     disown)

# They keep or make objects by their nature; test_departures.py counts theirs.
KEEPING = frozenset(['TesselApiSetExtMdioAccess', 'getHwShadow',
                     'TesselApiSetExt84328MdioAccessWrapper',
                     'TesselApiGetExtMdioAccess', 'findChipMemory'])


def fresh(value):
    """An equal object of our own, whose count nobody else changes."""
    if type(value) is str and len(value) > 1:
        return ''.join(list(value))
    if type(value) is unicode and len(value) > 1:
        return u''.join(list(value))
    if type(value) is list:
        return list(value)
    if type(value) is int and abs(value) > 300:
        return int(str(value))
    if type(value) is long:
        return long(str(value))
    if type(value) is float:
        return float(str(value))
    return value


class ReferenceTest(ConformanceTest):
    def attempt(self, row, arguments):
        try:
            disown(row.call(*arguments))
        except Exception:
            sys.exc_clear()

    def own_counts(self, row, arguments, path):
        """Each argument's count, and None's, before and after a call."""
        counted = arguments + [None]
        # Arrays hold numbers, not references; the first call settles what
        # the interpreter keeps of an exception.
        before = array.array('l', range(len(counted)))
        after = array.array('l', range(len(counted)))
        self.attempt(row, arguments)
        for i, item in enumerate(counted):
            before[i] = sys.getrefcount(item)
        self.attempt(row, arguments)
        for i, item in enumerate(counted):
            after[i] = sys.getrefcount(item)
        if before != after:
            self.fault('%s, %s: the counts %r became %r'
                       % (row.name, path, list(before), list(after)))

    def paths(self, row):
        """(what happens, arguments) for each way through a row."""
        valids = valid_objects(row)
        usual = values(valids)
        yield 'success', usual, valids
        for place, argument in enumerate(row.arguments):
            if (row.name, place) in ODD_PLACES:
                continue
            texts = set()
            for refused in kind_of(argument).refused(row, place):
                if (refused.exception, refused.text) in texts:
                    continue
                texts.add((refused.exception, refused.text))
                yield ('argument %d refused, %s'
                       % (place + 1, refused.exception.__name__),
                       usual[:place] + [refused.value] + usual[place + 1:],
                       valids)
            if null_reference(row, place) in [text for _, text in texts]:
                yield ('argument %d null' % (place + 1),
                       usual[:place] + [None] + usual[place + 1:], valids)

    def rows(self):
        return [row for row in FUNCTIONS if row.name not in KEEPING]

    def test_each_arguments_own_count(self):
        for row in self.rows():
            for path, arguments, keep in self.paths(row):
                self.own_counts(row, [fresh(value) for value in arguments],
                                path)
        self.finish()

    def test_native_exceptions(self):
        for row in self.rows():
            valids = valid_objects(row)
            for form in (RECORDER.STANDARD, RECORDER.OTHER):
                RECORDER.throw(form)
                self.own_counts(row, values(valids), 'native exception')
        self.finish()
