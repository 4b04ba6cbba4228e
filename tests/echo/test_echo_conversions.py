"""Every conversion kind against every hostile object, shapes of several
arguments, and callbacks."""

import struct
import sys
import unittest

import _echo
import hostile
from echo_kinds import (Address, Anything, Arrives, Bool, Mac, Pointer, Ports,
                        Reference, Text, Value, signed, unsigned)
from echo_support import Block, EchoTest, address, in_method, outcome
from hostile import ADDRESS, HOSTILE, PAIR, PAIR_TYPE

# Others hold references to these, or the object drops one itself;
# test_echo_leaks.py counts them.
UNCOUNTED = ('None', "str ''", 'slots that let go of themselves')
BLOCK = Block(''.join(chr(i + 1) for i in range(24)))

KINDS = [
    signed('echo_int8', 'int8', 8, 'b'),
    signed('echo_int16', 'int16', 16, 'h'),
    signed('echo_int', 'int', 32, 'i'),
    signed('echo_color', 'echo_color_t', 32, 'i'),
    unsigned('echo_uint8', 'uint8', 8, 'B'),
    unsigned('echo_uint16', 'uint16', 16, 'H'),
    unsigned('echo_uint32', 'uint32', 32, 'I'),
    unsigned('echo_uint64', 'uint64', 64, 'Q'),
    unsigned('echo_ulong', 'unsigned long', 64, 'Q', False),
    Address('echo_address', 'echo_address_t', 0, 2 ** 64 - 1, 'I'),
    Bool('echo_bool', 'bool'),
    Text('echo_text', 'char *'),
    Text('echo_constant_text', 'char const *'),
    Pointer('echo_pointer', 'echo_pair_t *', [PAIR_TYPE]),
    Pointer('echo_number_pointer', 'int *', ['_p_int', '_p_intp']),
    Pointer('echo_constant_pointer', 'uint16 const *',
            ['_p_unsigned_short', '_p_uint16p']),
    Pointer('echo_any_pointer', 'void *', None),
    Pointer('echo_callback', 'echo_cb', ['_p_f_int_p_void__int']),
    Pointer('echo_array', 'int [4]', ['_p_int', '_p_intp'], False),
    Reference('echo_reference', 'echo_pair_t &', [PAIR_TYPE], False),
    Value('echo_pair', 'echo_pair_t', PAIR_TYPE, 8, padding=2),
    Value('echo_byte', 'echo_byte_t', '_p_echo_byte_s', 1),
    Value('echo_half', 'echo_half_t', '_p_echo_half_t', 2),
    Value('echo_word', 'echo_word_t', '_p_echo_word_t', 4),
    Value('echo_three', 'echo_three_t', '_p_echo_three_s', 12),
    Value('echo_two', 'echo_two_t', '_p_echo_two_s', 16),
    Value('echo_large', 'echo_large_t', '_p_echo_large_s', 24),
    Value('echo_opaque_callback', 'echo_opaque_cb_t', '_p_echo_opaque_cb_t',
          8),
    Ports('echo_ports', 'bcm_pbmp_t'),
    Mac('echo_mac', 'echo_mac_t'),
    Anything('echo_object', 'PyObject *'),
]


class ConversionTest(EchoTest):
    def meet(self, kind, thing):
        made = thing.make()
        expected = kind.expected(thing, made)
        del hostile.CALLS[:]
        _echo.forget()
        before = sys.getrefcount(made)
        exception, told = outcome(getattr(_echo, kind.row), made)
        taken = _echo.taken()
        if not isinstance(expected, Arrives):
            if (exception, told) != expected:
                self.fault('%s(%r): %r: %r, not %r: %r', kind.row, thing,
                           exception, told, *expected)
            if taken:
                self.fault('%s(%r): the native function was called',
                           kind.row, thing)
        elif exception is not None:
            self.fault('%s(%r): %r: %s', kind.row, thing, exception, told)
        else:
            wrong = expected.check(told)
            if taken != [expected.content]:
                self.fault('%s(%r): %r arrived, not %r', kind.row, thing,
                           taken, expected.content)
            if wrong:
                self.fault('%s(%r): %s', kind.row, thing, wrong)
        if hostile.CALLS:
            self.fault('%s(%r): called %r', kind.row, thing, hostile.CALLS)
        told = None
        if thing.name not in UNCOUNTED and sys.getrefcount(made) != before:
            self.fault('%s(%r): %+d references', kind.row, thing,
                       sys.getrefcount(made) - before)

    def test_every_kind_meets_every_hostile_object(self):
        for kind in KINDS:
            for thing in HOSTILE:
                self.meet(kind, thing)

    def test_values_of_their_own_type(self):
        own = [kind for kind in KINDS if isinstance(kind, Value)]
        self.assertEqual(len(own), 8)
        for kind in own:
            thing = hostile.Hostile(
                'its own', lambda: BLOCK.pointer(kind.types[0]),
                points=(kind.types[0], BLOCK.address))
            self.meet(kind, thing)

    def test_texts_behind_pointers(self):
        block = Block('native\0more')
        for row in (_echo.echo_text, _echo.echo_constant_text):
            self.assertEqual(row(block.pointer('_p_char')), 'native')
            self.assertIs(row(_echo.pointer('_p_char', 0)), None)

    def test_every_kind_was_met(self):
        """Each row of one argument stands in the table above."""
        rows = set(name for name in dir(_echo) if name.startswith('echo_') and
                   (getattr(_echo, name).__doc__ or '').count('(value)'))
        known = set(kind.row for kind in KINDS)
        faulty = set(['echo_keeps_reference', 'echo_loses_reference'])
        self.assertEqual(rows - faulty, known)


class CallbackTest(unittest.TestCase):
    """Native functions in docstrings of built-in functions."""

    def test_the_function_of_a_docstring(self):
        result = _echo.echo_callback(_echo.callback)
        self.assertEqual(address(result), _echo.callback_address)
        self.assertEqual(_echo.taken(),
                         [struct.pack('=Q', _echo.callback_address)])
        again = _echo.echo_callback(result)
        self.assertEqual(address(again), _echo.callback_address)

    def test_refused_functions(self):
        text = in_method('echo_callback', 1, 'echo_cb')
        for function in (_echo.other_callback, _echo.broken_callback, len,
                         _echo.echo_callback, lambda: 0,
                         hostile.NewStyle(_echo.callback)):
            self.assertEqual(outcome(_echo.echo_callback, function),
                             (TypeError, text))

    def test_no_function_for_a_data_pointer(self):
        self.assertRaises(TypeError, _echo.echo_any_pointer, _echo.callback)


class ShapeTest(EchoTest):
    """Rows of several arguments: width, order, and counts."""
    types = ['int8', 'uint64', 'echo_large_t', 'bool', 'char const *',
             'echo_two_t', 'uint16', 'bcm_pbmp_t', 'int']

    def nine(self):
        return [-2, 2 ** 64 - 3, BLOCK.pointer('_p_echo_large_s'), True,
                'text', BLOCK.pointer('_p_echo_two_s'), 65534, [0, 575],
                -2 ** 31]

    def test_nine_of_different_width(self):
        self.assertEqual(_echo.echo_nine(*self.nine()), 0)
        content = BLOCK.content()
        self.assertEqual(_echo.taken(), [
            '\xfe', struct.pack('=Q', 2 ** 64 - 3), content, '\1', 'text',
            content[:16], struct.pack('=H', 65534),
            struct.pack('=18I', *([1] + [0] * 16 + [2 ** 31])),
            struct.pack('=i', -2 ** 31)])

    def test_each_place_is_refused_by_its_own_text(self):
        wrong = object()
        for place, spelling in enumerate(self.types):
            for later in range(place, 9):
                arguments = self.nine()
                arguments[place] = arguments[later] = wrong
                _echo.forget()
                text = ('Expected a list' if spelling == 'bcm_pbmp_t' else
                        in_method('echo_nine', place + 1, spelling))
                self.assertEqual(outcome(_echo.echo_nine, *arguments),
                                 (TypeError, text))
                self.assertEqual(_echo.taken(), [])

    def test_counts(self):
        rows = [(_echo.echo_none, 0), (_echo.echo_int, 1),
                (_echo.echo_macs, 2), (_echo.echo_nine, 9),
                (_echo.echo_append, 1), (_echo.negated, 1),
                (_echo.new_echo_pair_t, 0), (_echo.delete_echo_pair_t, 1),
                (_echo.echo_pair_t_first_get, 1),
                (_echo.echo_pair_t_first_set, 2), (_echo.new_intp, 0),
                (_echo.uint8Array_setitem, 3)]
        for row, count in rows:
            for given in (count - 1, count + 1, 30):
                if given < 0:
                    continue
                _echo.forget()
                exception, text = outcome(row, *[None] * given)
                self.assertEqual(exception, TypeError)
                self.assertTrue(text.startswith(row.__name__ + ' expected'),
                                text)
                self.assertEqual(_echo.taken(), [])
            self.assertRaises(TypeError, row, unit=1)

    def test_results(self):
        self.assertEqual(_echo.echo_none(), -4)
        self.assertIs(_echo.echo_nothing(), None)
        self.assertEqual(_echo.echo_append(21), [-21, 42])
        self.assertEqual(_echo.negated(-2 ** 31 + 1), 2 ** 31 - 1)
        self.assertEqual(_echo.echo_macs('1:2:3:4:5:6', '7:8:9:a:b:c'), 0)
        self.assertEqual(_echo.taken(), ['\1\2\3\4\5\6', '\7\x08\t\n\x0b\x0c'])

    def test_an_object_that_changes_its_neighbour(self):
        """From left to right: what was converted before stays."""
        def emptying():
            del ports[:]
            return PAIR
        for row, bits in ((_echo.echo_pointer_ports, 0),
                          (_echo.echo_ports_pointer, 2)):
            ports = [1]
            pair = hostile.Slots(emptying)
            arguments = ([pair, ports] if bits == 0 else [ports, pair])
            self.assertEqual(row(*arguments), 0)
            words = struct.pack('=18I', bits, *[0] * 17)
            self.assertEqual(sorted(_echo.taken()),
                             sorted([struct.pack('=Q', ADDRESS), words]))
            self.assertEqual(ports, [])


if __name__ == '__main__':
    unittest.main()
