"""The conversion kinds as the tests know them, written by hand: which objects
pass and how they arrive, which are refused and how.

Every text is put together here from the row's name, the place and the type's
spelling; the model's own texts are not looked at.
"""

import struct

from support import (ADDRESS, BYTES, CLASSES, NUMBER, RECORDER, TEXT, TYPES,
                     module, pattern, pointer, storage, stranger)

FORMATS = {'signed-8': 'b', 'signed-16': 'h', 'signed-32': 'i',
           'unsigned-8': 'B', 'unsigned-16': 'H', 'unsigned-32': 'I',
           'unsigned-long': 'Q', 'unsigned-64': 'Q', 'address-32': 'I',
           'strict-bool': '?'}

MAC_FORM = "Expected a string of the form 'AA:BB:CC:DD:EE:FF'"


def in_method(row, place):
    """The text of a refused argument."""
    return ("in method '%s', argument %d of type '%s'"
            % (row.name, place + 1, row.arguments[place].type))


def null_reference(row, place):
    return 'invalid null reference ' + in_method(row, place)


class Valid(object):
    """An object that passes, and what arrives for it."""

    def __init__(self, value, arrives, keep=None):
        self.value = value
        self.arrives = arrives  # a number, an address, or bytes
        self.keep = keep        # what the address belongs to


class Refused(object):
    def __init__(self, value, exception, text):
        self.value = value
        self.exception = exception
        self.text = text


class Kind(object):
    """Argument places of one kind. `valid(argument, place)` begins with the
    value that the row's other tests pass: it tells places apart."""

    def valid(self, argument, place):
        raise NotImplementedError

    def wrong(self, argument):
        """Objects refused with TypeError and the place's text."""
        return []

    def beyond(self, argument):
        """Numbers refused with OverflowError and the place's text."""
        return []

    def refused(self, row, place):
        text = in_method(row, place)
        argument = row.arguments[place]
        return ([Refused(value, TypeError, text)
                 for value in self.wrong(argument)] +
                [Refused(value, OverflowError, text)
                 for value in self.beyond(argument)])

    def arrived(self, index, argument, valid):
        """A message about what the native function got, None if it is
        right."""
        got = RECORDER.argument(index)
        if got.value != valid.arrives:
            return '%#x arrived, not %#x' % (got.value, valid.arrives)
        return None


class Number(Kind):
    def __init__(self, least, most, size):
        self.least = least
        self.most = most
        self.size = size

    def distinct(self, place):
        """A number whose every byte tells something, of the sign that a
        mistaken width would lose."""
        value = sum((0x81 + 16 * place % 0x70 + i) << 8 * i
                    for i in range(self.size))
        return value if self.least == 0 else value - (1 << 8 * self.size)

    def valid(self, argument, place):
        values = [self.distinct(place), self.least, self.most, long(self.most),
                  0, True]
        return [Valid(value, value & (2 ** 64 - 1)) for value in values]

    def wrong(self, argument):
        return [1.0, '1', u'1', None, [], stranger('')]

    def beyond(self, argument):
        values = [self.least - 1, self.most + 1, 2 ** 63, 2 ** 64, -1, -1L,
                  -2 ** 63 - 1]
        return [value for value in values
                if not self.least <= value <= self.most]

    def arrived(self, index, argument, valid):
        got = RECORDER.argument(index)
        if (got.what, got.size) != (NUMBER, self.size):
            return 'a native value of %d bytes' % got.size
        if self.size == 4:
            # Some identifiers are signed natively and unsigned in Python.
            if RECORDER.bytes_of(index) != struct.pack('<Q',
                                                       valid.arrives)[:4]:
                return '%#x arrived' % got.value
            return None
        return Kind.arrived(self, index, argument, valid)


class CutNumber(Number):
    """32 bits that are read like 64."""

    def valid(self, argument, place):
        values = [self.distinct(place), 0, 2 ** 32 - 1, 2 ** 32 + 5,
                  2 ** 64 - 1, True]
        return [Valid(value, value & (2 ** 32 - 1)) for value in values]


class StrictBool(Kind):
    def valid(self, argument, place):
        return [Valid(value, int(value)) for value in (True, False)]

    def wrong(self, argument):
        return [0, 1, 1L, None, 'True', 1.0]

    def arrived(self, index, argument, valid):
        got = RECORDER.argument(index)
        if (got.what, got.size) != (NUMBER, 1):
            return 'no bool'
        return Kind.arrived(self, index, argument, valid)


class Text(Kind):
    def valid(self, argument, place):
        own = 'text %d' % place
        cut = 'cut\0off %d' % place
        native = 'native %d' % place
        return [Valid(own, storage(own)), Valid(cut, storage(cut)),
                Valid('', storage('')), Valid(None, 0),
                Valid(pointer('_p_char', storage(native)), storage(native),
                      native)]

    def wrong(self, argument):
        return [5, 1.0, u'text', [], stranger('_p_char')]

    def arrived(self, index, argument, valid):
        got = RECORDER.argument(index)
        if got.what != TEXT:
            return 'no text'
        if valid.arrives:
            text = valid.keep or valid.value
            if RECORDER.bytes_of(index) != text.split('\0')[0]:
                return '%r arrived' % RECORDER.bytes_of(index)
        return Kind.arrived(self, index, argument, valid)


class Pointer(Kind):
    """Data pointers, array parameters and native functions alike."""

    def valid(self, argument, place):
        address = 0x7f0012340000 + 0x1000 * place + 8
        objects = [Valid(pointer(argument.slot, address), address),
                   Valid(None, 0), Valid(pointer(argument.slot, 0), 0)]
        if not argument.slot:
            objects.append(Valid(pointer('_p_cmd_s', address), address))
        elif TYPES[argument.slot].twin:
            objects.append(Valid(pointer(TYPES[argument.slot].twin, address),
                                 address))
        return objects

    def wrong(self, argument):
        values = [0, 5, 'text', 1.0, [], int, module.soc_init, len,
                  lambda *any_: 0]
        if argument.slot:
            values += [stranger(argument.slot)]
        return values

    def arrived(self, index, argument, valid):
        if RECORDER.argument(index).what != ADDRESS:
            return 'no address'
        return Kind.arrived(self, index, argument, valid)


class Reference(Pointer):
    def valid(self, argument, place):
        size, = [record.size for record in CLASSES
                 if record.slot == argument.slot]
        block = pattern(size, place)
        return [Valid(pointer(argument.slot, storage(block)), storage(block),
                      block)]

    def refused(self, row, place):
        text = null_reference(row, place)
        null = pointer(row.arguments[place].slot, 0)
        return (Pointer.refused(self, row, place) +
                [Refused(None, ValueError, text),
                 Refused(null, ValueError, text)])


class ByValue(Reference):
    def valid(self, argument, place):
        blocks = [pattern(argument.size, 2 * place),
                  pattern(argument.size, 2 * place + 1)]
        valid = [Valid(pointer(argument.slot, storage(block)), block, block)
                 for block in blocks]
        twin = TYPES[argument.slot].twin
        if twin:
            valid.append(Valid(pointer(twin, storage(blocks[0])), blocks[0],
                               blocks[0]))
        return valid

    def arrived(self, index, argument, valid):
        got = RECORDER.argument(index)
        if got.what not in (NUMBER, ADDRESS, BYTES):
            return 'no value'
        if RECORDER.bytes_of(index) != valid.arrives:
            return '%r arrived, not %r' % (RECORDER.bytes_of(index),
                                           valid.arrives)
        return None


class Bytes(Kind):
    def arrived(self, index, argument, valid):
        if RECORDER.bytes_of(index) != valid.arrives:
            return '%r arrived' % RECORDER.bytes_of(index)
        return None


class MacString(Bytes):
    def valid(self, argument, place):
        forms = [('%02x:bb:CC:0d:1e:ff' % (place + 0xa0),
                  chr(place + 0xa0) + '\xbb\xcc\x0d\x1e\xff'),
                 ('1:2:3:4:5:6', '\1\2\3\4\5\6'),
                 (u'01:02:03:04:05:06 and more', '\1\2\3\4\5\6'),
                 (' 1: 2: 3: 4: 5: 6', '\1\2\3\4\5\6')]
        return [Valid(text, bytes_) for text, bytes_ in forms]

    def refused(self, row, place):
        return ([Refused(value, TypeError, 'Expected a string')
                 for value in (5, None, 1.0, [], stranger(''), u'\xe4')] +
                [Refused(value, ValueError, MAC_FORM)
                 for value in ('', '112233445566', '11-22-33-44-55-66',
                               '11:22:33:44:55', '11:22:33:44:55:gg')])


def bitmap(ports):
    words = [0] * 18
    for port in ports:
        words[port // 32] |= 1 << port % 32
    return struct.pack('<18I', *words)


class PortBitmap(Bytes):
    def valid(self, argument, place):
        lists = [[place, 31, 32, 500 + place], [], [570, 571, 575], [3, 1, 1],
                 [True], range(576)]
        return [Valid(ports, bitmap(ports)) for ports in lists]

    def refused(self, row, place):
        return ([Refused(value, TypeError, 'Expected a list')
                 for value in ((1, 2), None, 5, 'x', stranger(''))] +
                [Refused(value, TypeError, 'Port list must contain integers')
                 for value in ([1L], [1, '2'], [None], [1.0])] +
                [Refused(value, ValueError, 'Port number out of range')
                 for value in ([-1], [1, 576], [2 ** 62])])


class AnyObject(Kind):
    def valid(self, argument, place):
        anything = object()
        return [Valid(anything, id(anything))]


def numbers():
    kinds = {}
    for bits in (8, 16, 32):
        kinds['signed-%d' % bits] = Number(-2 ** (bits - 1),
                                           2 ** (bits - 1) - 1, bits // 8)
        kinds['unsigned-%d' % bits] = Number(0, 2 ** bits - 1, bits // 8)
    kinds['unsigned-64'] = kinds['unsigned-long'] = Number(0, 2 ** 64 - 1, 8)
    kinds['address-32'] = CutNumber(0, 2 ** 64 - 1, 4)
    return kinds


KINDS = numbers()
KINDS.update({'strict-bool': StrictBool(), 'text': Text(),
              'pointer': Pointer(), 'function-pointer': Pointer(),
              'fixed-array': Pointer(), 'pointer-field': Pointer(),
              'reference': Reference(), 'by-value': ByValue(),
              'nested-struct': ByValue(), 'mac-string': MacString(),
              'port-bitmap': PortBitmap(), 'object': AnyObject()})


def kind_of(argument):
    # The one array that takes a Python text.
    if argument.type.startswith('char ['):
        return KINDS['text']
    return KINDS[argument.kind]


def valid_objects(row):
    """For each argument a Valid that passes; keep it alive for the call."""
    return [kind_of(argument).valid(argument, place)[0]
            for place, argument in enumerate(row.arguments)]


def values(valids):
    return [valid.value for valid in valids]
