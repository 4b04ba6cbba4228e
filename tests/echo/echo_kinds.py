"""The conversion kinds as the tests know them, written by hand: what arrives
for an object, byte for byte, or which exception comes with which text; and
what the result has to be."""

import ctypes
import struct
import sys

import _echo
from echo_support import address, bare, free, in_method, null_reference
from hostile import NULL

MAC_FORM = "Expected a string of the form 'AA:BB:CC:DD:EE:FF'"


class Arrives(object):
    def __init__(self, content, check=None):
        self.content = content    # the bytes; None for a null text
        self.check = check        # for the result: a text if it is wrong


class Kind(object):
    """One place of one row, and what it makes of a hostile object."""
    place = 1

    def __init__(self, row, spelling):
        self.row = row
        self.spelling = spelling

    @property
    def text(self):
        return in_method(self.row, self.place, self.spelling)

    @property
    def null(self):
        return null_reference(self.row, self.place, self.spelling)

    def expected(self, thing, made):
        """Arrives, or (exception class, text)."""
        raise NotImplementedError

    def wrong_type(self):
        return TypeError, self.text


def is_exactly(kind, value):
    """A check for a result of one class and value."""
    def check(result):
        if type(result) is not kind or result != value:
            return '%r came back, not %r' % (result, kind(value))
    return check


def is_none(result):
    if result is not None:
        return '%r came back, not None' % (result,)


def is_zero(result):
    return is_exactly(int, 0)(result)


class Number(Kind):
    def __init__(self, row, spelling, least, most, form, gives_back=True):
        Kind.__init__(self, row, spelling)
        self.least = least
        self.most = most
        self.form = form
        self.gives_back = gives_back

    def native(self, value):
        return value

    def expected(self, thing, made):
        if thing.number is None:
            return self.wrong_type()
        if not self.least <= thing.number <= self.most:
            return OverflowError, self.text
        value = self.native(thing.number)
        kind = int if value <= sys.maxint else long
        check = is_exactly(kind, value) if self.gives_back else is_zero
        return Arrives(struct.pack('=' + self.form, value), check)


class Address(Number):
    """Read like 64 bits, of which the upper half is dropped."""

    def native(self, value):
        return value & 0xffffffff


class Bool(Kind):
    def expected(self, thing, made):
        if thing.exact is None:
            return self.wrong_type()
        return Arrives(chr(thing.exact), is_exactly(bool, thing.exact))


class Text(Kind):
    def expected(self, thing, made):
        if thing.text is None:
            return self.wrong_type()
        if thing.text is NULL:
            return Arrives(None, is_none)
        seen = thing.text.split('\0')[0]
        return Arrives(seen, is_exactly(str, seen))


class Pointer(Kind):
    def __init__(self, row, spelling, types, check=True):
        Kind.__init__(self, row, spelling)
        self.types = types  # what passes; None: any pointer
        self.gives_back = check

    def found(self, thing):
        """The address that is found in the object, or None."""
        if thing.points is None:
            return None
        if thing.points is NULL:
            return 0
        types = (thing.points[0],) + thing.points[2:]
        if self.types is None or set(types) & set(self.types):
            return thing.points[1]
        return None

    def expected(self, thing, made):
        found = self.found(thing)
        if found is None:
            return self.wrong_type()

        def check(result):
            if address(result) != found:
                return '%r came back' % (result,)
            if result is not None and bare(result).own():
                return 'the result is owned'
        return Arrives(struct.pack('=Q', found),
                       check if self.gives_back else is_zero)


class Reference(Pointer):
    def expected(self, thing, made):
        if self.found(thing) == 0:
            return ValueError, self.null
        return Pointer.expected(self, thing, made)


class Value(Reference):
    def __init__(self, row, spelling, mangled, size, padding=0):
        Reference.__init__(self, row, spelling, [mangled])
        self.size = size
        self.read = size - padding  # what a copy by the compiler keeps

    def expected(self, thing, made):
        expected = Reference.expected(self, thing, made)
        if not isinstance(expected, Arrives):
            return expected
        source = self.found(thing)
        content = _echo.memory(source, self.size)

        def check(result):
            if address(result) == source or not bare(result).own():
                return 'the result is no copy of its own'
            copy = _echo.memory(address(result), self.read)
            if copy != content[:self.read]:
                return 'the copy differs'
            free(result)
        return Arrives(content, check)


class Ports(Kind):
    def expected(self, thing, made):
        if thing.items is None:
            return TypeError, 'Expected a list'
        words = [0] * 18
        for item in thing.items:
            if not isinstance(item, int):
                return TypeError, 'Port list must contain integers'
            if not 0 <= item < 576:
                return ValueError, 'Port number out of range'
            words[item // 32] |= 1 << item % 32
        ports = sorted(set(long(item) for item in thing.items if item < 571))

        def check(result):
            if result != ports or [1 for port in result
                                   if type(port) is not long]:
                return '%r came back' % (result,)
        return Arrives(struct.pack('=18I', *words), check)


class Mac(Kind):
    def expected(self, thing, made):
        if thing.mac is None:
            return TypeError, 'Expected a string'
        groups = [ctypes.c_uint() for _ in range(6)]
        count = ctypes.CDLL(None).sscanf(
            ctypes.c_char_p(thing.mac), '%2x:%2x:%2x:%2x:%2x:%2x',
            *[ctypes.byref(group) for group in groups])
        if count != 6:
            return ValueError, MAC_FORM
        return Arrives(''.join(chr(group.value & 255) for group in groups),
                       is_zero)


class Anything(Kind):
    def expected(self, thing, made):
        def check(result):
            if result is not made:
                return 'another object came back'
        return Arrives(struct.pack('=Q', id(made)), check)


def signed(row, spelling, bits, form):
    return Number(row, spelling, -2 ** (bits - 1), 2 ** (bits - 1) - 1, form)


def unsigned(row, spelling, bits, form, gives_back=True):
    return Number(row, spelling, 0, 2 ** bits - 1, form, gives_back)
