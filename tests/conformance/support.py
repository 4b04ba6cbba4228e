"""What the conformance tests share: the model, the module, and the recording
SDK behind it.

The environment names the files: OMBRA_MODEL (model.json), OMBRA_MODULE (the
module's own file) and OMBRA_ROOT (the project).
"""

import ctypes
import json
import os
import sys
import unittest

import _OmbraSdkV2Helper as module
import _swig_companion as companion

MODULE_FILE = os.environ['OMBRA_MODULE']
ROOT = os.environ['OMBRA_ROOT']
DEBUG = hasattr(sys, 'gettotalrefcount')
NUMBER, ADDRESS, TEXT, BYTES, OBJECT = range(5)


class Record(object):
    """One object of the model, its members as attributes."""

    def __init__(self, members):
        self.__dict__.update(members)


class Row(Record):
    def __init__(self, members):
        Record.__init__(self, members)
        self.arguments = [Record(argument) for argument in self.arguments]
        if hasattr(self, 'result'):
            self.result = Record(self.result)

    @property
    def call(self):
        return getattr(module, self.name)


def as_str(value):
    """JSON without unicode, since the interpreter's own texts are str."""
    if isinstance(value, unicode):
        return str(value)
    if isinstance(value, list):
        return [as_str(item) for item in value]
    return value


def load_model():
    def members(pairs):
        return dict((str(name), as_str(value)) for name, value in pairs)
    with open(os.environ['OMBRA_MODEL']) as model:
        return Record(json.load(model, object_pairs_hook=members))


MODEL = load_model()
ROWS = [Row(row) for row in MODEL.rows]
CLASSES = [Record(record) for record in MODEL.classes]
TYPES = dict((row['name'], Record(row)) for row in MODEL.types)
FUNCTIONS = [row for row in ROWS if row.role == 'function']
BY_NAME = dict((row.name, row) for row in ROWS)

# Rows whose native function is called under their own name with what Python
# passed; the others have tests of their own.
PLAIN = [row for row in FUNCTIONS
         if not row.hand_written and not row.module_native]

# Argument places that no kind reads (test_departures.py).
ODD_PLACES = frozenset([('bcm_l2_addr_get', 2), ('bcm_trunk_create', 2),
                        ('format_ipaddr', 0), ('findChipMemory', 0),
                        ('findChipMemory', 1), ('findChipMemory', 2),
                        ('findChipMemory', 3)])


class Tally(object):
    """What the suites have covered; run.py compares it with the totals."""

    def __init__(self):
        self.rows = set()
        self.places = set()
        self.texts = set()
        self.nulls = set()
        self.variable_nulls = set()
        self.variable_texts = set()

    def note(self, text):
        """Files a text that was raised under its form."""
        if text.startswith('in method '):
            self.texts.add(text)
        elif text.startswith('invalid null reference in method '):
            self.nulls.add(text)
        elif text.startswith('invalid null reference in variable '):
            self.variable_nulls.add(text)
        elif text.startswith("in variable '") and 'read-only' not in text:
            self.variable_texts.add(text)


TALLY = Tally()


class RecordedArgument(ctypes.Structure):
    _fields_ = [('what', ctypes.c_uint32), ('size', ctypes.c_uint32),
                ('value', ctypes.c_uint64), ('bytes', ctypes.c_void_p)]


class Recording(ctypes.Structure):
    _fields_ = [('calls', ctypes.c_uint64), ('name', ctypes.c_char_p),
                ('count', ctypes.c_uint64),
                ('arguments', RecordedArgument * 12)]


class Recorder(object):
    """The recording SDK; see tests/recording/recording.h."""

    def __init__(self):
        # Loaded already, by the module: this is a second name for it.
        self.library = ctypes.CDLL('libOmbraSdkV2Helper.so.0')
        last = self.library.recording_last
        last.restype = ctypes.POINTER(Recording)
        self.last = last().contents
        self.reset = self.library.recording_reset
        self.reset.restype = None
        self.throw = self.library.recording_throw
        self._result = self.library.recording_set_result
        self._result.argtypes = [ctypes.c_uint64]
        self._fill = self.library.recording_fill_pointer
        self._fill.argtypes = [ctypes.c_uint, ctypes.c_char_p, ctypes.c_size_t]
        self._call_back = self.library.recording_call_back
        self._call_back.argtypes = [ctypes.c_uint, ctypes.c_void_p,
                                    ctypes.c_size_t, ctypes.c_size_t]
        references = self.library.recording_object_references
        references.restype = ctypes.c_uint64
        self.object_references = references

    def set_result(self, bits):
        self._result(bits & (2 ** 64 - 1))

    def set_text(self, text):
        self.library.recording_set_text(text, ctypes.c_size_t(len(text)))

    def set_block(self, block):
        self.library.recording_set_block(block, ctypes.c_size_t(len(block)))

    def fill(self, index, block):
        self._fill(index, block, len(block))

    def call_back(self, index, entries, stride, count):
        self._call_back(index, entries, stride, count)

    def argument(self, index):
        return self.last.arguments[index]

    def bytes_of(self, index):
        argument = self.last.arguments[index]
        return ctypes.string_at(argument.bytes, argument.size)

    def variable(self, kind, name):
        return kind.in_dll(self.library, name)


RECORDER = Recorder()


def pattern(size, seed):
    """Bytes that differ from each other and from those of another seed."""
    block = bytearray(size)
    for i in xrange(size):
        block[i] = (7 * i + 31 * seed + 1) & 0xff
    return str(block)


def storage(text):
    """The address of a str's own bytes."""
    return id(text) + str.__basicsize__ - 1


def pointer(slot, address, own=0):
    """A pointer object of any type; an empty slot stands for void *."""
    return companion.make(slot or '_p_void', address, own)


def stranger(slot):
    """A pointer object of a type that does not pass for another's slot."""
    for other in ('_p_char', '_p_bcm_pkt_blk_s', '_p_cmd_s'):
        if slot not in (other, ''):
            return pointer(other, 0x1000)


def address_of(pointer_object):
    """As an int as far as it is one, so that it compares with other ints."""
    return int(long(pointer_object))


def display_name(slot):
    pretty = TYPES[slot].pretty
    return pretty[-1].split('|')[-1] if pretty else slot


def disown(value):
    """Lets an owned result go without a word: most opaque types have no
    destructor, and say so on standard output."""
    for item in value if isinstance(value, (list, tuple)) else [value]:
        if type(item).__name__ == 'SwigPyObject':
            item.disown()
    return value


class ConformanceTest(unittest.TestCase):
    """Ends with the first differences of each test listed, not one alone: a
    test goes over a whole table."""

    limit = 20

    def setUp(self):
        RECORDER.reset()
        self.faults = []
        self.fault_count = 0

    def tearDown(self):
        RECORDER.reset()

    def fault(self, message):
        self.fault_count += 1
        if len(self.faults) < self.limit:
            self.faults.append(message)

    def finish(self):
        """To be called at the end of a test that uses the checks below."""
        if self.fault_count:
            faults, self.faults = self.faults, []
            self.fail('%d faults, the first:\n  %s'
                      % (self.fault_count, '\n  '.join(faults)))

    def same(self, got, expected, where):
        """Equal, and of the same type."""
        if got != expected or type(got) is not type(expected):
            self.fault('%s: got %r, expected %r' % (where, got, expected))
            return False
        return True

    def is_pointer(self, result, slot, own, where, address=None):
        """A bare pointer object of a type, whether it owns, and its address
        unless any will do."""
        self.same((repr(result).split("'")[1], result.own()),
                  (display_name(slot), own), where)
        if address is not None:
            self.same(address_of(result), address, where)

    def refuses(self, row, arguments, exception, text):
        """The call raises exactly this, and calls nothing."""
        calls = RECORDER.last.calls
        try:
            got = row.call(*arguments)
        except exception as caught:
            if type(caught) is not exception or str(caught) != text:
                self.fault('%s%r: got %s, %r, expected %s, %r'
                           % (row.name, arguments, type(caught).__name__,
                              str(caught), exception.__name__, text))
            else:
                TALLY.note(text)
        except BaseException as caught:
            self.fault('%s%r: got %s, %r, expected %s, %r'
                       % (row.name, arguments, type(caught).__name__,
                          str(caught), exception.__name__, text))
        else:
            self.fault('%s%r: returned %r, expected %s, %r'
                       % (row.name, arguments, disown(got), exception.__name__,
                          text))
        if RECORDER.last.calls != calls:
            self.fault('%s%r: the native function was called'
                       % (row.name, arguments))
