"""Random calls over all rows of the module, with hostile objects, in child
processes. Nothing that Python passes may end the process, but for what the
rules leave unguarded: docs/reliability.md lists that, and the pools of objects
below keep exactly that out.

usage: calls.py CALLS [SEED] [CALLS PER CHILD]
       calls.py --child CALLS SEED PROGRESS

A child that dies is told with its seed and the row that it was in; the same
child runs again by the second form. The seed says everything that is called.
"""

import functools
import json
import mmap
import os
import random
import subprocess
import sys
import tempfile
import time
import weakref

# Parameters and fields that say how many elements stand behind a pointer: a
# buffer that is shorter than its count is the caller's fault, and no buffer
# here has fewer elements.
COUNTS = ('count', 'max', 'size', 'len', 'num', 'nof', 'nval', 'nbytes',
          'nstat', 'length', 'width', 'elements', 'bufsize', 'tab', 'start')
ELEMENTS = 64
WORDS = 1 << 16

# Texts that a function fills, by their names, and rows that have one under
# another name. They are long and new: what is written into a text of Python's
# is written for all who hold it.
FILLED = ('buf', 'out', 'bp', 'subtype')
FILLS = {'strrepl': 's', 'bcm_port_phy_drv_name_get': 'name',
         'soc_phyctrl_drv_name_get': 'name'}


def filled(row, argument):
    return argument['type'] == 'char *' and (
        argument['name'] in FILLED or FILLS.get(row) == argument['name'])


def new_text(dice):
    return dice.choice((None, 5, 'z' * dice.randrange(99) + '\0' * (1 << 19)))


def is_count(name):
    return any(word in name.lower() for word in COUNTS)


def start(module):
    """A unit that runs."""
    if module.getNumDevices() == 0:
        module.addOmbraDevice(0, 1, 0, 0)
    for step in (module.soc_init, module.soc_misc_init, module.bcm_init):
        if step(0) != 0:
            raise AssertionError(step.__name__)


class Row(object):
    """A row and a maker of arguments for each of its places."""

    def __init__(self, record, call, pools):
        self.name = str(record['name'])
        self.call = call
        self.places = [new_text if filled(self.name, argument)
                       else pools.for_argument(argument)
                       for argument in record['arguments']]
        if record['role'] == 'registration':
            self.places = [pools.classes]

    def arguments(self, dice):
        places = self.places
        if dice.random() < 0.01:  # a wrong count
            return tuple([5] * (len(places) + dice.choice((-1, 1))))
        return tuple([dice.choice(place) if isinstance(place, list)
                      else place(dice) for place in places])


class Raising(object):
    __slots__ = ()

    def __getattr__(self, name):
        raise KeyboardInterrupt(name)

    __int__ = __index__ = __len__ = __nonzero__ = __iter__ = lambda self: 1 / 0


class Impostor(object):
    __slots__ = ('a', 'b', 'c', 'd')


class Proxy(object):
    def __init__(self, this):
        self.this = this


class OldProxy:
    def __init__(self, this):
        self.this = this


class LyingInt(int):
    __int__ = __index__ = __long__ = lambda self: 1 / 0


class Pools(object):
    """Objects by what they are; pointers by the type that they point to."""

    numbers = ([0, 1, 2, 3, 4, 5, 7, 10, 31, 32, 63, 64, 100, -1, -2, True,
                0L, 3L, LyingInt(3)] +
               [sign * (2 ** bits + more) for bits in (8, 12, 16, 24, 31, 32,
                                                       63, 64)
                for sign in (1, -1) for more in (-1, 0, 1)] + [2 ** 70])
    counts = [0, 1, 2, 3, 8, ELEMENTS, True, 2L] * 4 + [-1, None, 'x']
    texts = ['', 'x', 'text', 'cut\0off', '\xff\xfe', 'y' * 300, 'xe1',
             '0-5', '0x10', '01:02:03:04:05:06', 'unknown', 'help', 'port',
             '%s%n%d', u'text', u'\xe4', None, bytearray('x')]
    macs = ['01:02:03:04:05:06', '1:2:3:4:5:6', '', 'x', '1:2:3:4:5',
            u'01:02:03:04:05:06', '1:2:3:4:5:g', None, 5, ['1:2:3:4:5:6']]
    lists = [[], [0], [1, 2, 3], [575], [576], [-1], [2 ** 40], ['x'], [1L],
             [None], range(100), (1, 2), None, 5, LyingInt(1), [LyingInt(2)]]
    truths = [True, False, 0, 1, None, 'x', LyingInt(1)]

    def __init__(self, module, companion, dice):
        self.by_slot = {}
        self.kept = []
        for name in companion.native_types():
            try:
                array = companion.Array(name, ELEMENTS)
                if len(array.bytes()) // ELEMENTS <= 8:
                    array = companion.Array(name, WORDS)
            except ValueError:
                continue
            self.kept.append(array)
            text = repr(array.this)
            mangled = text[text.index("'") + 1:text.rindex("'")]
            self.by_slot.setdefault(mangled, []).append(array)
        self.companion = companion
        self.module = module
        impostors = []
        for name in ('SwigPyObject', 'SwigPyPacked', 'other'):
            impostor = type(name, (Impostor,), {'__slots__': ()})()
            impostor.a = impostor.b = impostor.c = impostor.d = 2 ** 40
            impostors.append(impostor)
        self.others = impostors + [
            None, 0, 1.5, 1j, 'text', u'text', [], {}, (), object(), object,
            Raising(), len, Proxy, OldProxy, Proxy(None), OldProxy(5),
            module.soc_init, NotImplemented, module.cvar, module]
        ring = Proxy(None)
        ring.this = ring
        self.others.append(ring)
        self.callbacks = [None, None, 5, len, lambda *_: 0, object()] + [
            getattr(companion, name) for name in dir(companion)
            if isinstance(getattr(companion, name), type(len)) and
            'swig_ptr: ' in (getattr(companion, name).__doc__ or '')]
        self.classes = [5, None, 'x', len, Proxy, type(None)]
        self.pointers = {}

    def pointing(self, argument):
        """Pointers of the argument's own type, and a few of all others."""
        names = [argument['type']] + [
            name for name in self.by_slot
            if name.replace(' ', '') == argument['type'].replace(' ', '')]
        found = []
        for name in names:
            for array in self.by_slot.get(name, ()):
                found += [array, array.this, Proxy(array), OldProxy(array),
                          weakref.proxy(array), array]
        return found

    def for_argument(self, argument):
        kind, name = argument['kind'], argument['name']
        if kind in ('mac-string',):
            return self.macs
        if kind == 'port-bitmap':
            return self.lists
        if kind == 'strict-bool':
            return self.truths
        if kind == 'function-pointer':
            return self.callbacks
        if kind == 'text':
            return (self.texts if argument['type'] == 'char *'
                    else self.texts + ['y' * 3000])
        if kind.startswith(('signed', 'unsigned', 'address')):
            if is_count(name):
                return self.counts
            return self.numbers + [0, 0, 0, 0, 1, 1, 1, 2] * 30 + [None, 'x']
        own = self.pointing(argument)
        return own * 12 + self.others if own else self.others


def make_rows(seed):
    import _OmbraSdkV2Companion as companion
    import _OmbraSdkV2Helper as module
    dice = random.Random(seed)
    with open(os.path.join(os.environ['OMBRA_BUILD'], 'made',
                           'model.json')) as text:
        records = json.load(text)['rows']
    pools = Pools(module, companion, dice)
    rows, makers, deleters = [], [], {}
    for record in records:
        name = record['name']
        row = Row(record, getattr(module, name), pools)
        if record['role'] == 'constructor':
            makers.append(row)
        if record['role'] == 'destructor':
            deleters[name[len('delete_'):]] = row.call
        else:
            rows.append(row)
    for name in str(module.cvar)[1:-1].split(', '):
        row = Row({'name': name, 'arguments': [], 'role': ''},
                  functools.partial(setattr, module.cvar, name), pools)
        row.places = [pools.numbers * 6 + pools.texts + pools.others]
        rows += [row] * 10
    start(module)
    return dice, rows, makers, deleters, pools


def lives(dice, maker, deleters, pools):
    """A structure from its birth to its death, in one of several ways."""
    made = maker.call()
    name = maker.name[len('new_'):]
    way = dice.randrange(4)
    if way == 0:
        deleters[name](made)
        try:
            deleters[name](made)
        except ValueError:
            pass
        else:
            raise AssertionError('%s was deleted twice' % name)
    elif way == 1:
        wrong = dice.choice(deleters.values())
        try:
            wrong(made)
        except (TypeError, ValueError):
            pass
        else:
            made.disown()
    elif way == 2:
        made.append(maker.call())
        deleters[name](made.next())
        deleters[name](made)
    else:
        for wrong in (dice.choice(pools.kept), dice.choice(pools.others)):
            try:
                deleters[name](wrong)
            except (TypeError, ValueError):
                pass
        made.disown()
        deleters[name](made)


def child(calls, seed, progress):
    sys.setcheckinterval(1000)
    dice, rows, makers, deleters, pools = make_rows(seed)
    with open(progress, 'r+b') as where:
        told = mmap.mmap(where.fileno(), 64)
    raised = 0
    for number in xrange(calls):
        if number % 16 == 0:
            maker = dice.choice(makers)
            told[:] = maker.name[:63].ljust(64)
            lives(dice, maker, deleters, pools)
            continue
        row = dice.choice(rows)
        arguments = row.arguments(dice)
        told[:] = row.name[:63].ljust(64)
        try:
            result = row.call(*arguments)
        except (TypeError, ValueError, OverflowError, RuntimeError,
                AttributeError, IndexError, NotImplementedError):
            raised += 1
        else:
            for part in result if isinstance(result, list) else [result]:
                if type(part).__name__ == 'SwigPyObject':
                    part.disown()  # opaque results have no destructor
    sys.stderr.write('calls %d raised %d\n' % (calls, raised))


def run(calls, seed, share):
    """Runs the children; returns the number that died."""
    folder = tempfile.mkdtemp()
    progress = os.path.join(folder, 'progress')
    with open(progress, 'wb') as where:
        where.write('\0' * 64)
    started, died, done, raised = time.time(), 0, 0, 0
    script = os.path.abspath(__file__)
    while done < calls:
        one = min(share, calls - done)
        with open(os.devnull, 'r+b') as null:
            process = subprocess.Popen(
                [os.environ.get('OMBRA_PYTHON', sys.executable), script,
                 '--child', str(one), str(seed), progress],
                cwd=folder, stdin=null, stdout=null, stderr=subprocess.PIPE)
            errors = process.communicate()[1]
        lines = [line for line in errors.splitlines()
                 if line.startswith('calls ')]
        if process.returncode != 0 or not lines:
            died += 1
            with open(progress, 'rb') as where:
                row = where.read().strip('\0 ')
            print 'died: seed %d, status %d, in %s\n%s' % (
                seed, process.returncode, row, '\n'.join(
                    line[:200] for line in errors.splitlines()[-30:]))
        else:
            raised += int(lines[0].split()[3])
        done += one
        seed += 1
    print '%d calls, %d raised, %d children died, %.0f s' % (
        done, raised, died, time.time() - started)
    return died


if __name__ == '__main__':
    if sys.argv[1] == '--child':
        child(int(sys.argv[2]), int(sys.argv[3]), sys.argv[4])
    else:
        given = [int(word) for word in sys.argv[1:]]
        sys.exit(1 if run(*(given + [1, 20000][len(given) - 1:])) else 0)
