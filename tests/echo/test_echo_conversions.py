"""One row of each conversion kind against every hostile object: what arrives,
byte for byte, and which text refuses the rest. What plain objects become, and
every result, is proved on the system's own rows, by tests/conformance."""

import ctypes
import struct
import sys
import unittest

import _echo
import hostile
from echo_support import (Block, EchoTest, bare, free, in_method,
                          null_reference, outcome)
from hostile import ADDRESS, HOSTILE, NULL, PAIR, PAIR_TYPE

# Others hold references to these, or the object drops one itself;
# test_echo_leaks.py counts them.
UNCOUNTED = ('None', "str ''", 'slots that let go of themselves')
BLOCK = Block(''.join(chr(i + 1) for i in range(24)))
MAC_FORM = "Expected a string of the form 'AA:BB:CC:DD:EE:FF'"


# What a kind makes of a hostile object: the bytes that arrive, an exception
# that comes with the place's own text, or the exception and its text.

def number(form, least=None, most=None):
    bits = 8 * struct.calcsize('=' + form)
    if form.islower():
        least, most = -2 ** (bits - 1), 2 ** (bits - 1) - 1

    def arrives(thing, made):
        if thing.number is None:
            return TypeError
        if not (least or 0) <= thing.number <= (most or 2 ** bits - 1):
            return OverflowError
        return struct.pack('=' + form, thing.number & 2 ** bits - 1
                           if least is None else thing.number)
    return arrives


def boolean(thing, made):
    return TypeError if thing.exact is None else chr(thing.exact)


def text(thing, made):
    if thing.text is None:
        return TypeError
    return None if thing.text is NULL else thing.text.split('\0')[0]


def pointer(*types):
    """Of one of these types, or of any."""
    def arrives(thing, made):
        if thing.points is NULL:
            return struct.pack('=Q', 0)
        if thing.points is None or types and not set(types) & set(
                (thing.points[0],) + thing.points[2:]):
            return TypeError
        return struct.pack('=Q', thing.points[1])
    return arrives


def reference(size, mangled):
    """What must not be null; of a size, if it travels by value."""
    def arrives(thing, made):
        found = pointer(mangled)(thing, made)
        if found == struct.pack('=Q', 0):
            return ValueError
        return _echo.memory(thing.points[1], size) if (
            size and found is not TypeError) else found
    return arrives


def ports(thing, made):
    if thing.items is None:
        return TypeError, 'Expected a list'
    words = [0] * 18
    for item in thing.items:
        if not isinstance(item, int):
            return TypeError, 'Port list must contain integers'
        if not 0 <= item < 576:
            return ValueError, 'Port number out of range'
        words[item // 32] |= 1 << item % 32
    return struct.pack('=18I', *words)


def mac(thing, made):
    if thing.mac is None:
        return TypeError, 'Expected a string'
    groups = [ctypes.c_uint() for _ in range(6)]
    count = ctypes.CDLL(None).sscanf(
        ctypes.c_char_p(thing.mac), '%2x:%2x:%2x:%2x:%2x:%2x',
        *[ctypes.byref(group) for group in groups])
    return (ValueError, MAC_FORM) if count != 6 else ''.join(
        chr(group.value & 255) for group in groups)


VALUES = [('echo_pair', 'echo_pair_t', PAIR_TYPE, 8),
          ('echo_byte', 'echo_byte_t', '_p_echo_byte_s', 1),
          ('echo_half', 'echo_half_t', '_p_echo_half_t', 2),
          ('echo_word', 'echo_word_t', '_p_echo_word_t', 4),
          ('echo_three', 'echo_three_t', '_p_echo_three_s', 12),
          ('echo_two', 'echo_two_t', '_p_echo_two_s', 16),
          ('echo_large', 'echo_large_t', '_p_echo_large_s', 24),
          ('echo_opaque_callback', 'echo_opaque_cb_t', '_p_echo_opaque_cb_t',
           8)]
KINDS = [
    ('echo_int8', 'int8', number('b')), ('echo_int16', 'int16', number('h')),
    ('echo_int', 'int', number('i')), ('echo_color', 'echo_color_t',
                                       number('i')),
    ('echo_uint8', 'uint8', number('B')),
    ('echo_uint16', 'uint16', number('H')),
    ('echo_uint32', 'uint32', number('I')),
    ('echo_uint64', 'uint64', number('Q')),
    ('echo_ulong', 'unsigned long', number('Q')),
    # Read like 64 bits, of which the upper half is dropped.
    ('echo_address', 'echo_address_t', number('I', most=2 ** 64 - 1)),
    ('echo_bool', 'bool', boolean), ('echo_text', 'char *', text),
    ('echo_constant_text', 'char const *', text),
    ('echo_pointer', 'echo_pair_t *', pointer(PAIR_TYPE)),
    ('echo_number_pointer', 'int *', pointer('_p_int', '_p_intp')),
    ('echo_constant_pointer', 'uint16 const *',
     pointer('_p_unsigned_short', '_p_uint16p')),
    ('echo_any_pointer', 'void *', pointer()),
    ('echo_callback', 'echo_cb', pointer('_p_f_int_p_void__int')),
    ('echo_array', 'int [4]', pointer('_p_int', '_p_intp')),
    ('echo_reference', 'echo_pair_t &', reference(0, PAIR_TYPE)),
    ('echo_ports', 'bcm_pbmp_t', ports), ('echo_mac', 'echo_mac_t', mac),
    ('echo_object', 'PyObject *',
     lambda thing, made: struct.pack('=Q', id(made))),
] + [(row, spelling, reference(size, mangled))
     for row, spelling, mangled, size in VALUES]


class ConversionTest(EchoTest):
    def meet(self, row, spelling, kind, thing):
        made = thing.make()
        expected = kind(thing, made)
        if expected in (TypeError, OverflowError):
            expected = expected, in_method(row, 1, spelling)
        elif expected is ValueError:
            expected = expected, null_reference(row, 1, spelling)
        del hostile.CALLS[:]
        _echo.forget()
        before = sys.getrefcount(made)
        exception, told = outcome(getattr(_echo, row), made)
        taken = _echo.taken()
        if isinstance(expected, tuple):
            if (exception, told) != expected or taken:
                self.fault('%s(%r): %r: %r, not %r: %r; called with %r', row,
                           thing, exception, told, expected[0], expected[1],
                           taken)
        elif exception is not None or taken != [expected]:
            self.fault('%s(%r): %r: %r, arrived %r, not %r', row, thing,
                       exception, told, taken, expected)
        elif told is not made and hasattr(bare(told), 'own'):
            free(told)
        if hostile.CALLS:
            self.fault('%s(%r): called %r', row, thing, hostile.CALLS)
        told = None
        if thing.name not in UNCOUNTED and sys.getrefcount(made) != before:
            self.fault('%s(%r): %+d references', row, thing,
                       sys.getrefcount(made) - before)

    def test_every_kind_meets_every_hostile_object(self):
        for row, spelling, kind in KINDS:
            for thing in HOSTILE:
                self.meet(row, spelling, kind, thing)

    def test_values_of_every_size(self):
        for row, spelling, mangled, size in VALUES:
            self.meet(row, spelling, reference(size, mangled), hostile.Hostile(
                'its own', lambda: BLOCK.pointer(mangled),
                points=(mangled, BLOCK.address)))

    def test_every_kind_was_met(self):
        """Each row of one argument stands in the table above."""
        rows = set(name for name in dir(_echo) if name.startswith('echo_') and
                   (getattr(_echo, name).__doc__ or '').count('(value)'))
        faulty = set(['echo_keeps_reference', 'echo_loses_reference'])
        self.assertEqual(rows - faulty, set(row for row, _, _ in KINDS))

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

    def test_two_macs(self):
        """The second address does not take the first one's place."""
        self.assertEqual(_echo.echo_macs('1:2:3:4:5:6', '7:8:9:a:b:c'), 0)
        self.assertEqual(_echo.taken(), ['\1\2\3\4\5\6', '\7\x08\t\n\x0b\x0c'])

    def test_refused_functions(self):
        for function in (_echo.other_callback, _echo.broken_callback,
                         hostile.NewStyle(_echo.callback)):
            self.assertEqual(
                outcome(_echo.echo_callback, function),
                (TypeError, in_method('echo_callback', 1, 'echo_cb')))


if __name__ == '__main__':
    unittest.main()
