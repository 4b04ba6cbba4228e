"""Fields, boxes, arrays and variables where memory changes hands, which only
this module's counted allocations show. What is stored and what is refused is
proved on the system's own rows, by conformance/test_fields.py,
test_helpers.py and test_variables.py."""

import unittest

import _echo
from echo_support import Block, EchoTest, address
from hostile import PAIR, PAIR_BYTES, PAIR_TYPE

SOURCE = Block(PAIR_BYTES + 'second..' + 'third...')


class FieldTest(EchoTest):
    def setUp(self):
        EchoTest.setUp(self)
        self.record = _echo.new_echo_all_t()

    def test_overlapping_elements(self):
        """In index order: an array assigned from its own inside repeats."""
        pairs = _echo.echo_all_t_pairs_get(self.record)
        _echo.echo_all_t_pairs_set(self.record, SOURCE.pointer(PAIR_TYPE))
        second = _echo.pointer(PAIR_TYPE, address(pairs) + 8)
        # The last element read lies behind the array, in `next`.
        _echo.echo_all_t_pairs_set(self.record, second)
        self.assertEqual(_echo.memory(address(pairs), 24),
                         'second..' + 'third...' + '\0' * 8)
        _echo.echo_all_t_pairs_set(self.record, pairs)
        self.assertEqual(_echo.memory(address(pairs), 8), 'second..')

    def test_who_owns_a_pointer(self):
        """A refusal, and a plain argument, leave it with Python."""
        pair = _echo.new_echo_pair_t()
        for call in (_echo.echo_pointer, _echo.echo_pair,
                     _echo.echo_reference):
            call(pair)
            self.assertTrue(pair.own())
        self.assertRaises(TypeError, _echo.echo_all_t_next_set, PAIR, pair)
        self.assertTrue(pair.own())

    def test_deletion(self):
        before = _echo.live_blocks()
        pair = _echo.new_echo_pair_t()
        self.assertIs(_echo.delete_echo_pair_t(pair), None)
        self.assertFalse(pair.own())
        self.assertIs(_echo.delete_echo_pair_t(None), None)
        del pair
        owned = _echo.new_echo_pair_t()
        del owned
        self.assertEqual(_echo.live_blocks(), before)
        # Only what is live and of the class is freed, and once.
        pair, record = _echo.new_echo_pair_t(), _echo.new_echo_all_t()
        box, array = _echo.new_intp(), _echo.new_entrydata(1)
        twin = _echo.pointer(PAIR_TYPE, int(pair))
        for wrong in (_echo.echo_all_t_pair_get(record),
                      _echo.pointer(PAIR_TYPE, int(box)),
                      _echo.pointer(PAIR_TYPE, int(array)),
                      _echo.pointer(PAIR_TYPE, 8)):
            self.assertRaises(ValueError, _echo.delete_echo_pair_t, wrong)
        self.assertTrue(pair.own())
        self.assertIs(_echo.delete_echo_pair_t(twin), None)
        self.assertRaises(ValueError, _echo.delete_echo_pair_t, pair)
        self.assertFalse(pair.own())  # given up before the refusal
        _echo.delete_entrydata(array)


if __name__ == '__main__':
    unittest.main()
