"""No row keeps or loses anything, on any path; and the detector that says so
catches those that do."""

import sys
import unittest

import _echo
import hostile
from echo_rows import BLOCK, HUNTED, KEEPS_BY_RULE, row_called
from echo_support import DEBUG, EchoTest
from leaks import hunt


def swallowing(call, *arguments):
    """A call that may raise, for a hunt."""
    def attempt():
        try:
            call(*arguments)
        except BaseException:
            sys.exc_clear()
    return attempt


def raising(call, *arguments):
    """A call that has to raise."""
    def attempt():
        try:
            call(*arguments)
        except BaseException:
            sys.exc_clear()
        else:
            raise AssertionError('%r passed' % (arguments,))
    return attempt


class DetectorTest(unittest.TestCase):
    """Must fail: the three rows that have a fault, each by its name and what
    it did."""

    def test_rows_that_keep_or_lose(self):
        lost = object()
        spare = [lost] * 20
        for name, argument, fault, total in (
                ('echo_keeps_reference', object(), 'argument 1 +1 +1 +1',
                 'total +1 +1 +1'),
                ('echo_loses_reference', lost, 'argument 1 -1 -1 -1',
                 'total -1 -1 -1'),
                ('echo_keeps_memory', 16, 'native blocks +1 +1 +1', None)):
            row = row_called(name)
            text = hunt(name, 'success', lambda: row.call(argument),
                        [argument])
            self.assertTrue(text.startswith(name + ', success: '))
            self.assertIn(fault, text)
            if total:
                self.assertEqual(total in text, DEBUG)
        for _ in range(5):  # as many as were lost
            _echo.echo_keeps_reference(lost)
        self.assertEqual(len(spare), 20)

    def test_a_gain_beside_a_loss(self):
        """The total does not show it, the counts do."""
        gained, lost = object(), object()
        spare = [lost] * 20

        def call():
            _echo.echo_keeps_reference(gained)
            _echo.echo_loses_reference(lost)
        self.assertEqual(hunt('both', 'success', call, [gained, lost]),
                         'both, success: argument 1 +1 +1 +1, '
                         'argument 2 -1 -1 -1')
        for _ in range(5):
            _echo.echo_keeps_reference(lost)
        self.assertEqual(len(spare), 20)

    def test_a_cache_that_fills_once_is_no_leak(self):
        cache = []
        things = [object(), object()]

        def call():
            if len(cache) < 3:
                cache.append(things[0])
        self.assertIs(hunt('cache', 'success', call, things), None)

    def test_nothing_is_found_where_nothing_is(self):
        self.assertIs(hunt('nothing', 'success', lambda: None), None)


class LeakTest(EchoTest):
    def check(self, text):
        if text:
            self.fault('%s', text)

    def test_success(self):
        for row in HUNTED:
            call, watched = row.success()
            told = hunt(row.name, 'success', call, watched)
            if row.name in KEEPS_BY_RULE:
                self.assertEqual(told, row.name + ', success: native blocks '
                                 '+1 +1 +1')
            else:
                self.check(told)

    def test_each_refused_argument(self):
        for row in HUNTED:
            for refused in row.refused():
                attempt = raising if refused.raises else swallowing
                self.check(hunt(row.name, refused.path,
                                attempt(row.call, *refused.arguments),
                                refused.arguments))

    def test_hostile_objects(self):
        """Objects that act when they are looked at, one row of each way in."""
        acting = [thing for thing in hostile.HOSTILE
                  if type(thing.make()).__name__ not in
                  ('int', 'long', 'str', 'NoneType', 'bool')]
        self.assertGreater(len(acting), 60)
        for thing in acting:
            made = thing.make()
            for row in (_echo.echo_int, _echo.echo_text, _echo.echo_pointer,
                        _echo.echo_ports, _echo.echo_mac, _echo.echo_callback):
                self.check(hunt(row.__name__, repr(thing),
                                swallowing(row, made), [made]))

    def test_variables(self):
        values = {'echo_depth': 5, 'echo_title': 'a text',
                  'echo_shared': BLOCK.pointer('_p_echo_pair_s'),
                  'echo_hook': None}
        for name in sorted(values):
            good, bad = values[name], object()
            self.check(hunt(name, 'get', lambda: getattr(_echo.cvar, name)))
            self.check(hunt(name, 'set', lambda: setattr(_echo.cvar, name,
                                                         good), [good]))
            self.check(hunt(name, 'refused',
                            raising(setattr, _echo.cvar, name, bad), [bad]))


if __name__ == '__main__':
    unittest.main()
