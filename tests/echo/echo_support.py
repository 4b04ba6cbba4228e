"""What all tests of the echo module share: proxy classes, memory to point at,
and ways to look at objects."""

import json
import os
import sys
import unittest

import _echo
import leaks

DEBUG = hasattr(sys, 'gettotalrefcount')
leaks.native_blocks = _echo.live_blocks


def proxy_class(name):
    """A proxy class, registered, so that what Python owns is freed."""
    made = type(name, (object,),
                {'__swig_destroy__': getattr(_echo, 'delete_' + name)})
    getattr(_echo, name + '_swigregister')(made)
    return made


PROXIES = dict((name, proxy_class(name))
               for name in ('echo_pair_t', 'echo_all_t', 'intp', 'uint16p',
                            'uint32p', 'uintp', 'uint64p'))


def new_pair():
    return _echo.new_echo_pair_t()


def bare(thing):
    """The pointer object in a result."""
    return thing.__dict__['this'] if hasattr(thing, '__dict__') else thing


def address(thing):
    """The address in a result, 0 for None."""
    return 0 if thing is None else int(bare(thing))


def free(thing):
    """Frees a result that travelled by value, once its proxy is the only one
    that holds the pointer object."""
    if hasattr(thing, '__dict__'):
        assert sys.getrefcount(thing.__dict__['this']) == 2
    if bare(thing).own():
        _echo.free_value(thing)


class Block(object):
    """Native bytes of the test's own."""

    def __init__(self, content):
        self.array = _echo.new_uint8Array(len(content))
        for i, byte in enumerate(content):
            _echo.uint8Array_setitem(self.array, i, ord(byte))
        self.size = len(content)
        self.address = int(self.array)

    def content(self):
        return _echo.memory(self.address, self.size)

    def pointer(self, mangled):
        return _echo.pointer(mangled, self.address)

    def __del__(self):
        _echo.delete_uint8Array(self.array)


def in_method(row, place, spelling):
    """The text of a refused argument; `place` counts from 1."""
    return ("in method '%s', argument %d of type '%s'"
            % (row, place, spelling))


def null_reference(row, place, spelling):
    return 'invalid null reference ' + in_method(row, place, spelling)


def outcome(call, *arguments):
    """What a call gave: (None, result), or (exception class, text)."""
    try:
        return None, call(*arguments)
    except BaseException as error:
        return type(error), str(error)
    finally:
        sys.exc_clear()


def model():
    with open(os.environ['ECHO_MODEL']) as text:
        return json.load(text)


class EchoTest(unittest.TestCase):
    """A test that goes on after a fault and tells them all."""
    maxDiff = None

    def setUp(self):
        self.faults = []

    def fault(self, text, *values):
        self.faults.append(text % values)

    def tearDown(self):
        told = '\n'.join(self.faults[:30])
        self.assertEqual(len(self.faults), 0,
                         '%d faults\n%s' % (len(self.faults), told))
