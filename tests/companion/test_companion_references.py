"""No path of the runtime gains or loses references.

Each path is run a few times to warm caches up, then again and again between
readings of the interpreter's total, which the debug interpreter counts. A path
fails when every run gained, or every run lost."""

import gc
import sys
import unittest
import weakref

import _swig_companion as companion
import _swig_neighbour as neighbour
from companion_support import BASE, DERIVED, FUNCTION, INT

RUNS = 5


class Kind(object):
    __swig_destroy__ = companion.delete_object

    def __init__(self, value):
        self.this = companion.make(BASE, value + 0, 1)


class Old:
    __swig_destroy__ = companion.delete_directly


class Bare(object):
    __slots__ = ()


def refused(function, *args):
    try:
        function(*args)
    except Exception:
        sys.exc_clear()
    else:
        raise AssertionError('%r was not refused' % function)


def chain():
    head = companion.make(INT, 8)
    head.append(companion.make(DERIVED, 16))
    head.append(neighbour.make(DERIVED, 24))
    companion.convert(head, BASE, companion.FLAG_DISOWN)
    return repr(head), head.next()


def texts():
    pointer = companion.make(BASE, 8)
    return (hex(pointer), oct(pointer), int(pointer), repr(pointer),
            str(companion.packed), repr(companion.packed_512),
            str(companion.cvar))


def comparisons():
    left, right = companion.make(BASE, 8), companion.make(BASE, 16)
    return (left == right, left != right, left < right, left == 8,
            cmp(left, right), companion.packed == companion.packed_again)


def ownership():
    pointer = companion.make(BASE, 8)
    pointer.acquire()
    pointer.own(0)
    refused(pointer.own, 1, 2)
    refused(pointer.append, 5)
    return pointer.own(), pointer.next()


def conversions():
    for value in (None, 5, object(), Bare(), companion.make(BASE, 8),
                  Kind(8), weakref.proxy(Kind(8)), companion.callback):
        for name in (BASE, INT, FUNCTION, None):
            companion.convert(value, name)
            companion.convert_function(value, name)
    companion.convert('x', BASE, companion.FLAG_IMPLICIT)
    companion.convert(8, BASE, companion.FLAG_IMPLICIT)


def presentations():
    companion.present(BASE, 0)
    companion.present(BASE, 8)
    companion.present(BASE, 8, companion.FLAG_OWN)
    companion.present(BASE, 8, companion.FLAG_NOPROXY)
    companion.present(INT, 8, companion.FLAG_OWN)


def deaths():
    refused(companion.raise_and_empty, [companion.make(BASE, 8, 1),
                                        companion.make(INT, 8, 1)])


def links():
    refused(getattr, companion.cvar, 'nothing')
    refused(setattr, companion.cvar, 'nothing', 1)
    refused(delattr, companion.cvar, 'nothing')


def lost_reference():
    """Must fail: a path that keeps one object more each time."""
    kept.append(object())


kept = []


def gains(path):
    """The change of the total by each run of a path."""
    readings = [0] * (RUNS + 1)
    for run in range(-3, RUNS + 1):
        if run > -3:
            path()
        companion.destroyed()
        gc.collect()
        if run >= 0:
            readings[run] = sys.gettotalrefcount()
    return [after - before
            for before, after in zip(readings, readings[1:])]


@unittest.skipUnless(hasattr(sys, 'gettotalrefcount'),
                     'only the debug interpreter counts references')
class ReferenceTest(unittest.TestCase):

    def setUp(self):
        companion.register_class(BASE, Kind)
        companion.register_class(INT, Old)
        self.addCleanup(companion.forget_classes)

    def test_paths(self):
        for path in (chain, texts, comparisons, ownership, conversions,
                     presentations, deaths, links):
            changes = gains(path)
            self.assertIn(0, changes, '%s: %s references'
                          % (path.__name__, changes))

    def test_detector(self):
        self.assertNotIn(0, gains(lost_reference))


class ArgumentTest(unittest.TestCase):
    """The total hides a gain beside a loss: the counts of single objects."""

    def test_counts(self):
        pointer = companion.make(BASE, 8)
        proxy = Kind(8)
        watched = (pointer, proxy, proxy.this, None, Kind, BASE,
                   companion.delete_object)
        companion.register_class(BASE, Kind)
        self.addCleanup(companion.forget_classes)
        before = [sys.getrefcount(each) for each in watched]
        for name in (BASE, INT, None):
            for value in (pointer, proxy, None):
                companion.convert(value, name, companion.FLAG_IMPLICIT)
                companion.convert_function(value, name)
                companion.this_of(value)
        del name, value
        companion.present(BASE, 8, companion.FLAG_OWN)
        companion.make(BASE, 8, 1)
        self.assertTrue(pointer == proxy.this)
        refused(pointer.append, proxy)
        after = [sys.getrefcount(each) for each in watched]
        self.assertEqual(after, before)


if __name__ == '__main__':
    unittest.main()
