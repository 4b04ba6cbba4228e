"""Hostile objects, shared by all tests: what looks like a value and is none,
what is one and lies about it, what acts when it is looked at.

A Hostile says what it is by the interpreter's own type flags, which decide;
what its methods claim does not count:

    number   its value if it is an `int` or `long`
    is_int   whether it is an `int`, `bool` included
    exact    True or False if it is exactly that
    text     its bytes if it is a `str`, NULL for None
    mac      its text if it is a `str` or a `unicode` that encodes
    items    its items if it is a `list`
    points   (mangled type, address) if a pointer object is found in it, NULL
             for None

`make()` gives a fresh object. CRASHES marks what has no defined answer; it is
written down, and never made.
"""

import sys
import weakref

import _echo
import echo_support

NULL = object()
CALLS = []  # the methods of hostile objects that were called


class Hostile(object):
    def __init__(self, name, make, number=None, is_int=False, exact=None,
                 text=None, mac=None, items=None, points=None):
        self.name = name
        self.make = make
        self.number = number
        self.is_int = is_int
        self.exact = exact
        self.text = text
        self.mac = mac
        self.items = items
        self.points = points

    def __repr__(self):
        return self.name


def lying(base, name, answer):
    """A subclass of `base` whose protocol methods all give `answer()`."""
    def method(called):
        def call(self, *arguments):
            CALLS.append(called)
            return answer()
        return call
    names = ['__int__', '__long__', '__index__', '__nonzero__', '__len__',
             '__float__', '__hash__', '__cmp__', '__eq__', '__iter__',
             '__getitem__', '__str__', '__unicode__', '__coerce__']
    members = dict((called, method(called)) for called in names)
    members['__slots__'] = ()
    return type(name, (base,), members)


def raising():
    raise KeyboardInterrupt('a hostile object was looked at')


ANSWERS = [('raises', raising), ('says one', lambda: 1),
           ('says text', lambda: 'text'), ('says None', lambda: None),
           ('says huge', lambda: 2 ** 70)]


# A pair that lives as long as this file, and its address.
PAIR = echo_support.new_pair()
_echo.echo_pair_t_first_set(PAIR, -7)
_echo.echo_pair_t_second_set(PAIR, 65535)
ADDRESS = int(PAIR)
PAIR_BYTES = _echo.memory(ADDRESS, 8)
PAIR_TYPE = '_p_echo_pair_s'
TO_PAIR = (PAIR_TYPE, ADDRESS)


class NewStyle(object):
    """A proxy as the proxy module makes them."""

    def __init__(self, this):
        self.__dict__['this'] = this

    def __getattr__(self, name):
        CALLS.append(name)
        raise KeyboardInterrupt(name)


class OldStyle:
    def __init__(self, this):
        self.__dict__['this'] = this

    def __getattr__(self, name):
        CALLS.append(name)
        raise KeyboardInterrupt(name)


class Empty(object):
    """Has a dictionary without `this`: its __getattr__ is not asked."""

    def __getattr__(self, name):
        CALLS.append(name)
        return PAIR


class Slots(object):
    """Has no dictionary, so `this` is asked for like any attribute."""
    __slots__ = ('answer', '__weakref__')

    def __init__(self, answer):
        self.answer = answer

    def __getattr__(self, name):
        if name != 'this':
            raise AttributeError(name)
        return self.answer()


class ClassThis(object):
    """A pointer in the class: only the class itself has it."""
    this = PAIR


class Callable(NewStyle):
    """Its weak proxy is of another type than that of others."""

    def __call__(self):
        CALLS.append('__call__')


class Claims(object):
    """Says that it is an int, a bool and a list."""
    __slots__ = ()
    __class__ = property(lambda self: bool)


def ring():
    """A proxy that is its own inner object."""
    proxy = NewStyle(None)
    proxy.__dict__['this'] = proxy
    return proxy


def ring_of_two():
    first, second = NewStyle(None), NewStyle(None)
    first.__dict__['this'] = second
    second.__dict__['this'] = first
    return first


class Holder(Slots):
    """Slots that hold something besides."""
    __slots__ = ('held',)


class Kept(object):
    """Keeps what weak proxies of it need."""
    alive = []

    @classmethod
    def proxy(cls, thing):
        cls.alive[:] = [thing]
        return weakref.proxy(thing)

    @classmethod
    def only_by_its_answer(cls):
        """A weak proxy of an object that its own answer lets go, and with it
        the pointer object that it answers with."""
        def act():
            thing = cls.alive.pop()
            return thing.held
        thing = Holder(act)
        thing.held = _echo.pointer(PAIR_TYPE, ADDRESS)
        cls.alive[:] = [thing]
        return weakref.proxy(thing)

    @classmethod
    def only_by_itself(cls, answer):
        """Drops every reference that it can reach, then answers."""
        def act():
            del cls.alive[:]
            return answer()
        thing = Slots(act)
        cls.alive[:] = [thing]
        return thing


def dead_proxy():
    return weakref.proxy(NewStyle(PAIR))


def chain(*types):
    """A pointer object of the first type with others behind it."""
    head = _echo.pointer(types[0], ADDRESS)
    for name in types[1:]:
        head.append(_echo.pointer(name, ADDRESS))
    return head


def self_chain():
    link = _echo.pointer('_p_int', ADDRESS)
    link.append(link)
    return link


def number(value):
    name = '%s %d' % (type(value).__name__, value)
    return Hostile(name, lambda: value, number=value,
                   is_int=isinstance(value, int))


def limits():
    """Each end of each width, one beyond, and what no 64 bits hold."""
    values = set([0, 1, -1])
    for bits in (8, 16, 32, 64):
        for power in (2 ** (bits - 1), 2 ** bits):
            values.update([power - 1, power, power + 1,
                           -power - 1, -power, -power + 1])
    values.update([2 ** 70, -2 ** 70])
    found = []
    for value in sorted(values):
        if isinstance(value, int):
            found.append(number(value))
        found.append(number(long(value)))
    return found


def numbers_that_lie():
    return [Hostile('%s %d that %s' % (base.__name__, value, answer),
                    lambda kind=lying(base, answer, give), value=value:
                    kind(value), number=value, is_int=base is int)
            for answer, give in ANSWERS
            for base, value in ((int, 5), (int, -129), (long, 5),
                                (long, 2 ** 66))]


def objects_that_lie():
    return [Hostile('object that ' + answer,
                    lying(object, 'object that ' + answer, give))
            for answer, give in ANSWERS]


class LyingText(str):
    def __str__(self):
        CALLS.append('__str__')
        raise KeyboardInterrupt('__str__')

    def __len__(self):
        CALLS.append('__len__')
        return 10 ** 6

    __getitem__ = __iter__ = __unicode__ = encode = __str__


def text(value, kind=str):
    return Hostile('%s %r' % (kind.__name__, value), lambda: kind(value),
                   text=value, mac=value)


def texts():
    """Strings; some are MAC addresses in one of the forms that pass."""
    plain = ['', 'text', 'cut\0off', '\0', '\xff\xfe', 'x' * 70,
             '01:02:03:AA:bb:Fc', '1:2:3:4:5:6', ' 1: 2:\t3:4:5:6',
             '01:02:03:04:05:06:07', '01:02:03:04:05:06 and more',
             '01:02:03:04:05:06\0more', '+1:-2:0x:3:4:5', '010203040506',
             '01-02-03-04-05-06', '01:02:03:04:05', '01:02:03:04:05:',
             '01:02:03:04:05:\0', '01:02:03:04:05:6', '001:2:3:4:5:6',
             ':1:2:3:4:5', '1:2:3:4:5:g', '01:02:03:04:05:0g', '01:02:03:04:05-06']
    found = [text(value) for value in plain]
    found += [text(value, LyingText) for value in ('text', '1:2:3:4:5:6')]
    for value in (u'', u'text', u'01:02:03:04:05:06'):
        found.append(Hostile(repr(value), lambda value=value: value,
                             mac=str(value)))
    found.append(Hostile('unicode beyond ASCII', lambda: u'\xe4\u20ac'))
    found.append(Hostile('bytearray', lambda: bytearray('1:2:3:4:5:6')))
    found.append(Hostile('buffer', lambda: buffer('1:2:3:4:5:6')))
    return found


class LyingList(list):
    def __len__(self):
        CALLS.append('__len__')
        return 10 ** 6

    def __iter__(self):
        CALLS.append('__iter__')
        raise KeyboardInterrupt('__iter__')

    __getitem__ = __iter__


def list_of(*items):
    return Hostile('list %r' % (items,), lambda: list(items),
                   items=list(items))


def with_neighbour(kind):
    """A list with an item that would empty the list, were it ever asked."""
    def make():
        found = [1]

        class Emptying(kind):
            def act(self, *arguments):
                CALLS.append('emptied')
                del found[:]
                return 3
            __int__ = __index__ = __long__ = __nonzero__ = act
        found.append(Emptying(2) if kind is not object else Emptying())
        found.append(3)
        return found
    return make


def lists():
    found = [list_of(), list_of(0), list_of(31, 32), list_of(570, 571, 575),
             list_of(3, 1, 1), list_of(True, False), list_of(575),
             list_of(576), list_of(-1), list_of(2 ** 31), list_of(2 ** 32),
             list_of(sys.maxint), list_of(-sys.maxint - 1),
             list_of(1, 576, 'x'),
             list_of(1L), list_of(1, '2'), list_of(None), list_of(1.0),
             list_of([1]), list_of(1, 2 ** 64), list_of(*range(576))]
    found += [
        Hostile('list that lies', lambda: LyingList([1, 40]), items=[1, 40]),
        Hostile('list with an int that would empty it', with_neighbour(int),
                items=[1, 2, 3]),
        Hostile('list with an object that would empty it',
                with_neighbour(object), items=[1, object(), 3]),
        Hostile('tuple', lambda: (1, 2)), Hostile('set', lambda: set([1])),
        Hostile('iterator', lambda: iter([1])),
        Hostile('dictionary', lambda: {1: 2}),
        Hostile('xrange', lambda: xrange(3))]
    return found


def booleans():
    return [Hostile('True', lambda: True, number=1, is_int=True, exact=True),
            Hostile('False', lambda: False, number=0, is_int=True,
                    exact=False)]


def pointers():
    def pair():
        return PAIR

    return [
        Hostile('None', lambda: None, text=NULL, points=NULL),
        Hostile('pointer object', pair, points=TO_PAIR),
        Hostile('null pointer object', lambda: _echo.pointer(PAIR_TYPE, 0),
                points=(PAIR_TYPE, 0)),
        Hostile('pointer object of int',
                lambda: _echo.pointer('_p_int', ADDRESS),
                points=('_p_int', ADDRESS)),
        Hostile('box of int', lambda: _echo.pointer('_p_intp', ADDRESS),
                points=('_p_intp', ADDRESS)),
        Hostile('pointer object of nothing known',
                lambda: _echo.pointer('_p_nothing', ADDRESS),
                points=('', ADDRESS)),
        Hostile('chain whose second link fits',
                lambda: chain('_p_int', PAIR_TYPE),
                points=('_p_int', ADDRESS, PAIR_TYPE)),
        Hostile('chain in a ring', self_chain, points=('_p_int', ADDRESS)),
        Hostile('proxy', lambda: NewStyle(PAIR), points=TO_PAIR),
        Hostile('old-style proxy', lambda: OldStyle(PAIR), points=TO_PAIR),
        Hostile('proxy of a proxy', lambda: NewStyle(OldStyle(PAIR)),
                points=TO_PAIR),
        Hostile('proxy of a number', lambda: NewStyle(5)),
        Hostile('proxy of None', lambda: NewStyle(None)),
        Hostile('old-style proxy of nothing', lambda: OldStyle(None)),
        Hostile('proxy of itself', ring),
        Hostile('two proxies of each other', ring_of_two),
        Hostile('object that would answer', Empty),
        Hostile('slots with a pointer', lambda: Slots(pair), points=TO_PAIR),
        Hostile('slots with a number', lambda: Slots(lambda: 5)),
        Hostile('slots that raise', lambda: Slots(raising)),
        Hostile('slots with an object that nobody keeps',
                lambda: Slots(lambda: _echo.pointer(PAIR_TYPE, ADDRESS))),
        Hostile('slots that let go of themselves',
                lambda: Kept.only_by_itself(pair), points=TO_PAIR),
        Hostile('weak proxy of slots that let go of themselves',
                Kept.only_by_its_answer),
        Hostile('weak proxy', lambda: Kept.proxy(NewStyle(PAIR)),
                points=TO_PAIR),
        Hostile('weak proxy of slots', lambda: Kept.proxy(Slots(pair)),
                points=TO_PAIR),
        Hostile('weak proxy of what can be called',
                lambda: Kept.proxy(Callable(PAIR)), points=TO_PAIR),
        Hostile('weak proxy that is dead', dead_proxy),
        Hostile('class with a pointer', lambda: ClassThis, points=TO_PAIR),
        Hostile('instance of a class with a pointer', ClassThis),
        Hostile('weak proxy of a number that lies',
                lambda: Kept.proxy(NewStyle(5))),
        Hostile('class', lambda: NewStyle),
        Hostile('old-style class', lambda: OldStyle),
        Hostile('built-in function', lambda: len),
        Hostile('row', lambda: _echo.echo_int),
        Hostile('function', lambda: raising),
        Hostile('claims to be a bool', Claims)]

# CRASHES: an object that, while a later argument is converted, deletes the
# last reference to the pointer object of an earlier one: the native function
# gets the address of what is gone. A pointer has no length and no life of its
# own; whoever passes one keeps what it belongs to.
#
# CRASHES: a pointer object of a wrong address, `pointer(PAIR_TYPE, 1)`, for a
# value or a reference. The type of a pointer is checked, its address cannot
# be.


def others():
    return [Hostile('float', lambda: 1.0), Hostile('complex', lambda: 1j),
            Hostile('object', object),
            Hostile('NotImplemented', lambda: NotImplemented),
            Hostile('Ellipsis', lambda: Ellipsis)]


HOSTILE = (limits() + booleans() + numbers_that_lie() + objects_that_lie() +
           texts() + lists() + pointers() + others())
