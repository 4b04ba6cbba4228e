"""Fields, boxes, arrays and variables where memory changes hands, which only
this module's counted allocations show. What is stored and what is refused is
proved on the system's own rows, by conformance/test_fields.py,
test_helpers.py and test_variables.py."""

import unittest

import _echo
from echo_support import Block, EchoTest, address, outcome
from hostile import PAIR, PAIR_BYTES, PAIR_TYPE

SOURCE = Block(PAIR_BYTES + 'second..' + 'third...')


class FieldTest(EchoTest):
    def setUp(self):
        EchoTest.setUp(self)
        self.record = _echo.new_echo_all_t()

    def test_who_frees_an_old_text(self):
        """A `char *` field frees it, a `char const *` field does not."""
        for setter, kept in ((_echo.echo_all_t_name_set, 0),
                             (_echo.echo_all_t_label_set, 2)):
            setter(self.record, 'first')
            before = _echo.live_blocks()
            setter(self.record, 'second')
            setter(self.record, 'third')
            self.assertEqual(_echo.live_blocks() - before, kept)
            setter(self.record, None)
            self.assertEqual(_echo.live_blocks() - before,
                             kept - (1 if kept == 0 else 0))

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
        # CRASHES: delete_echo_pair_t of an alias, or twice of one object: the
        # address is no block of its own. What it belongs to cannot be known.

    def test_texts_of_arrays(self):
        array = _echo.new_entrydata(3)
        box = _echo.uintp_frompointer(array)
        for call, arguments, error, text in (
                (_echo.entrydata_getitem, (array, 3), IndexError,
                 'the index is outside the array'),
                (_echo.entrydata_setitem, (array, -1, 1), IndexError,
                 'the index is outside the array'),
                (_echo.new_entrydata, (-1,), ValueError,
                 'the element count is negative'),
                (_echo.delete_uintp, (box,), ValueError,
                 'a live array is deleted by its own row'),
                (_echo.delete_entrydata, (PAIR,), TypeError,
                 "in method 'delete_entrydata', argument 1 of type "
                 "'unsigned int *'")):
            self.assertEqual(outcome(call, *arguments), (error, text))
        _echo.delete_entrydata(array)
        self.assertEqual(outcome(_echo.delete_entrydata, array),
                         (ValueError, 'the pointer is no live array'))
        # CRASHES: an index behind a pointer that is no live array, as a
        # field's alias: such a pointer has no length.

    def test_texts_of_variables_are_copies(self):
        _echo.cvar.echo_title = None
        before = _echo.live_blocks()
        _echo.cvar.echo_title = 'first'
        block = Block('behind a pointer\0')
        _echo.cvar.echo_title = block.pointer('_p_char')
        self.assertEqual(_echo.cvar.echo_title, 'behind a pointer')
        _echo.cvar.echo_title = None
        self.assertIs(_echo.cvar.echo_title, None)
        del block
        self.assertEqual(_echo.live_blocks(), before)


if __name__ == '__main__':
    unittest.main()
