"""Small helpers of OmbraSdkV2Helper: ports, flags, entries of tables,
packets, and blocks that put back what they set up."""

import sys
from operator import index

import _OmbraSdkV2Classes as tables
import _OmbraSdkV2Companion as companion
import _OmbraSdkV2Helper as native
from _OmbraSdkV2Status import call

# Bits of bcm_l2_addr_t.flags for which the SDK has no constant.
L2_FLAG_BLACKHOLE = 0x04  # the destination is nowhere
L2_FLAG_STATIC = 0x20     # the entry does not age
L2_FLAG_TRUNK = 0x80      # the destination is the trunk in `tgid`

# Kinds of global port numbers: the number in front, and room behind.
_GPORTS = {
    'local': (1 << 26, 0x7ff),
    'lag': (3 << 26, 0x3ffffff),
    'blackhole': (4 << 26, 0),
    'system': (27 << 26, 0xffffff),
}


def ports(numbers):
    """A list of ports as the module's functions take it, of any numbers: what
    they give out is `long`, and what they take has to be `int`.

        bcm_vlan_port_add(unit, 200, ports(members), [])
    """
    return [int(index(number)) for number in numbers]


def gport(kind, number=0):
    """A global port number: gport('local', 5), gport('lag', 2),
    gport('system', 7), gport('blackhole')."""
    if kind not in _GPORTS:
        raise ValueError('%r is no kind of global port: %s'
                         % (kind, ', '.join(sorted(_GPORTS))))
    base, most = _GPORTS[kind]
    if not 0 <= number <= most:
        raise ValueError('a %s port is 0 to %d, not %d' % (kind, most, number))
    return base | number


def gport_parts(number):
    """The kind and the number in a global port number, as in the rows of
    getHwMacTable(): ('local', 5). ('unknown', number) for any other."""
    for kind, (base, most) in _GPORTS.iteritems():
        if base <= number <= base + most:
            return kind, int(number - base)
    return 'unknown', number


# Where the bits of a field lie in an entry, by unit, table and field.
_field_bits = {}


def _bits_of_field(unit, mem, words, field):
    """Bits of the entry, from the lowest of the field upward. The SDK tells
    them by what it reads out of entries with few bits set."""
    key = unit, mem, field, words
    if key not in _field_bits:
        probe = companion.Array('uint32', words)
        found = {}
        for word in range(words):
            probe[word] = 0xffffffff
            if native.soc_mem_field32_get(unit, mem, probe, field):
                for bit in range(32):
                    probe[word] = 1 << bit
                    value = native.soc_mem_field32_get(unit, mem, probe, field)
                    if value:
                        found[value.bit_length() - 1] = word, bit
            probe[word] = 0
        _field_bits[key] = [found[place] for place in sorted(found)]
    return _field_bits[key]


def mem_field_get(unit, mem, entry, field):
    """A field of a table entry: soc_mem_field32_get()."""
    return native.soc_mem_field32_get(unit, mem, entry, field)


def mem_field_set(unit, mem, entry, field, value):
    """Sets a field of a table entry in an Array of words, as soc_mem_read()
    fills it and soc_mem_write() takes it.

        entry = Array('uint32', 8)
        call(soc_mem_read, unit, mem, copyno, 5, entry)
        mem_field_set(unit, mem, entry, field, 3)
        call(soc_mem_write, unit, mem, copyno, 5, entry)
    """
    bits = _bits_of_field(unit, mem, len(entry), field)
    if not bits:
        raise ValueError('table %d has no field %d in %d words'
                         % (mem, field, len(entry)))
    if not 0 <= value < 1 << len(bits):
        raise ValueError('the field has %d bits, too few for %d'
                         % (len(bits), value))
    for place, (word, bit) in enumerate(bits):
        cleared = entry[word] & ~(1 << bit)
        entry[word] = cleared | (value >> place & 1) << bit


def packet(data, **fields):
    """A packet of one block with these bytes, for bcm_tx(). With `tx_pbmp` it
    leaves by those ports as it is, and by those of `tx_upbmp` without its
    tag; without ports it goes through the switch.

        check(bcm_tx(unit, packet(frame, tx_pbmp=[1, 2]), None))
    """
    made = companion.Array('bcm_pkt_s', 1)[0]
    made.blk_count = 1
    made.pkt_len = made.tot_len = len(data)
    block = made._pkt_data  # the packet's own, so there is none to free
    block.data = companion.Array('uint8', data)
    block.len = len(data)
    made.pkt_data = block
    for name, value in fields.iteritems():
        setattr(made, name, value)
    return made


def packet_bytes(packet_):
    """The bytes of all blocks of a packet, as a handler of bcm_rx_register()
    gets it."""
    if not packet_.blk_count:
        return ''
    blocks = companion.view('bcm_pkt_blk_t', packet_.pkt_data,
                            packet_.blk_count)
    return ''.join(companion.view('uint8', block.data, block.len).bytes()
                   for block in blocks if block.len > 0)


def traverse(function, *args):
    """Calls a function that calls back for each entry, with a Python callable
    in the place of its callback and without the cookie:

        traverse(bcm_l2_traverse, unit, visit)      # visit(unit, info)

    A callable that returns a negative number ends the walk; the result is the
    function's status. An exception ends it as well and is raised here. What
    the callable is given is gone when it returns: keep a copy().
    """
    if function.__name__ not in tables.CALLBACKS:
        raise TypeError('%s does not call back with a cookie'
                        % function.__name__)
    name, place, cookie_place = tables.CALLBACKS[function.__name__]
    visit = args[place]
    raised = []

    def guarded(*entry):
        try:
            answer = visit(*entry)
            return None if answer is None else index(answer)
        except BaseException:
            raised.append(sys.exc_info())
            return native.BCM_E_FAIL

    key = companion.cookie(guarded)
    args = list(args)
    args[place] = getattr(companion, name)
    args.insert(cookie_place, key)
    try:
        result = function(*args)
    finally:
        companion.release(key)
    if raised:
        raise raised[0][0], raised[0][1], raised[0][2]
    return result


def _leave(raised, function, *args):
    """What ends a block: its refusal raises, but never hides what the block
    has raised itself."""
    if raised is None:
        call(function, *args)
    else:
        function(*args)


def _names(function):
    """The names of a function's parameters."""
    return function.__doc__.partition('(')[2].partition(')')[0].split(', ')


class started(object):
    """Starts a unit that was added, and stops it at the end of the block.

        with started(unit):
            ...
    """

    def __init__(self, unit):
        self.unit = unit

    def __enter__(self):
        try:
            for step in native.soc_init, native.soc_misc_init, native.bcm_init:
                call(step, self.unit)
        except Exception:
            native.soc_deinit(self.unit)
            raise
        return self.unit

    def __exit__(self, raised=None, *_):
        _leave(raised, native.soc_deinit, self.unit)


class registered(object):
    """A Python callable in the place of a native callback, without the
    cookie, registered for the length of the block:

        with registered(bcm_l2_addr_register, bcm_l2_addr_unregister,
                        unit, heard):
            ...

    A callback without a cookie, such as bcm_linkscan_handler_t, has one
    callable in the process; the one before is bound again at the end.
    """

    def __init__(self, register, unregister, *args):
        name = register.__name__
        if name in tables.CALLBACKS:
            callback, place, self.cookie_place = tables.CALLBACKS[name]
        elif name in tables.BOUND:
            callback, place = tables.BOUND[name]
            self.cookie_place = None
        else:
            raise TypeError('%s takes no callback' % name)
        self.register = register
        self.unregister = unregister
        self.callable = args[place]
        self.args = list(args)
        self.args[place] = self.callback = getattr(companion, callback)

    def __enter__(self):
        self.whole = list(self.args)
        if self.cookie_place is None:
            self.before = companion.bind(self.callback, self.callable)
        else:
            self.cookie = companion.cookie(self.callable)
            self.whole.insert(self.cookie_place, self.cookie)
        # What ends it takes some of what began it, under the same names.
        given = dict(zip(_names(self.register), self.whole))
        self.last = [given[name] for name in _names(self.unregister)]
        try:
            call(self.register, *self.whole)
        except Exception:
            self._let_go()
            raise

    def __exit__(self, raised=None, *_):
        try:
            _leave(raised, self.unregister, *self.last)
        finally:
            self._let_go()

    def _let_go(self):
        if self.cookie_place is None:
            companion.bind(self.callback, self.before)
        else:
            companion.release(self.cookie)


class _NoMdio(object):
    """What serves a PHY whose object has gone."""

    def read(self, *_):
        raise IOError('the MDIO object of this PHY has gone')

    write = read


_mdio = {}  # the objects of blocks, by unit, PHY and kind


class mdio_access(object):
    """Serves an external PHY by a Python object for the length of the block:
    its read(bus, phy, device, register) gives a number of 16 bits, its
    write(bus, phy, device, register, value) takes one. `kind` is that of
    ManagedPhy.

        with mdio_access(unit, phy, bench):
            ...

    Behind the block that of the block around it serves, or none: the SDK has
    no call that takes an object away, so one that refuses is put there.
    """

    def __init__(self, unit, phy, served, kind=3):
        self.place = unit, phy, kind
        self.served = served

    def _install(self, served):
        unit, phy, kind = self.place
        native.TesselApiSetExtMdioAccess(
            unit, phy, _NoMdio() if served is None else served,
            companion.new_value('Hardware::PhyBcm::ManagedPhy', kind))
        _mdio[self.place] = served

    def __enter__(self):
        self.before = _mdio.get(self.place)
        self._install(self.served)
        return self.served

    def __exit__(self, *_):
        self._install(self.before)


class log_to(object):
    """Hands the SDK's log lines of a block to a logger of `logging`, at its
    end, a line a record. What is logged is said by KorvelSetTraceLevel()."""

    def __init__(self, logger, level=20):
        self.logger = logger
        self.level = level

    def __enter__(self):
        from tempfile import TemporaryFile  # slow to load, and seldom needed
        self.log = TemporaryFile()
        native.fileDescriptorIs(self.log.fileno())

    def __exit__(self, *_):
        native.fileDescriptorIs(-1)
        with self.log as log:
            log.seek(0)
            for line in log:
                self.logger.log(self.level, '%s', line.rstrip('\n'))


class trace_to(object):
    """Collects the platform's trace for the length of the block, and hands it
    to a logger of `logging` at the end, a line a record."""

    def __init__(self, logger, level=10):
        self.logger = logger
        self.level = level

    def __enter__(self):
        native.captureTrace(True)

    def __exit__(self, *_):
        native.captureTrace(False)
        for line in native.getTrace().splitlines():
            self.logger.log(self.level, '%s', line)
