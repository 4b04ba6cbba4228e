"""A bench for the tests of agents: what happens around a unit of the
stand-in, calls that fail, a record of calls, and states of a unit.

It is there beside the stand-in only, and not on a switch.

    import OmbraSdkV2Bench as bench

    bench.link_set(0, 5, 0)                 # the far end of port 5 goes
    bench.learn(0, '02:00:00:00:00:0a', 1, 3)
    bench.time_pass(0, 300 * 1000000)       # addresses age

    with bench.fault('bcm_vlan_create', status=-14, after=2):
        agent.start()                       # its third VLAN has no room
    with bench.recording() as calls:
        agent.start()
    with bench.unchanged(0):
        agent.stop_and_start()

What happens answers with a status, as the calls of the SDK do.
"""

import atexit
import collections
import sys

import _OmbraSdkV2Bench as _native
from _OmbraSdkV2Bench import *  # noqa: the hooks and the named bits

# A call that was made: `arguments` are its (name, value) pairs, with None for
# a null address and True for another; `layer` is who answered: a room of the
# stand-in, a generic rule, 'fault', or '' for a call without a number.
Call = collections.namedtuple('Call', 'function arguments result layer')

Object = collections.namedtuple('Object', 'kind key fields')

# An object that came, went or changed. `fields` are those that differ, as
# (name, before, after).
Difference = collections.namedtuple('Difference',
                                    'kind key was_there is_there fields')


class NeverMet(AssertionError):
    """A fault was set, and no call has met it."""


def never_met():
    """The faults that were set and that no call has met."""
    return _native.faults_never_met()


class fault(object):
    """A block in which calls of `function` fail, or with callback=True the
    functions that were given to it.

    status is what they answer; 0 lets them go on. The first `after` calls
    pass, and `count` calls are met. Only calls of `unit` and with the
    arguments `where` (by name, numbers) are. Raises ValueError for what means
    nothing, and NeverMet at the end of a block that no call has met."""

    def __init__(self, function, status=0, after=None, count=None,
                 delay_us=None, unit=None, where=None, callback=False):
        self.name = ('callback.' if callback else '') + function
        items = [('status', status), ('after', after), ('count', count),
                 ('delay_us', delay_us), ('unit', unit)]
        items += [('arg.' + name, value)
                  for name, value in sorted((where or {}).items())]
        self.value = ','.join('%s:%d' % item for item in items
                              if item[1] is not None)

    def __enter__(self):
        _native.fault_set(self.name, self.value)
        return self

    @property
    def met(self):
        """Whether a call has met it."""
        return self.name not in [one.split(' ')[0] for one in never_met()]

    def __exit__(self, kind, error, trace):
        _native.fault_end(self.name)
        if kind is None and not self.met:
            raise NeverMet('%s (%s)' % (self.name, self.value))


class capacity(fault):
    """A block in which a table holds `entries` at most; by default no more
    than it has."""

    def __init__(self, table, entries='full'):
        self.name = 'table.' + table
        self.value = str(entries)


class recording(object):
    """A block whose calls are recorded: a list of Call, full at its end."""

    def __enter__(self):
        self.calls = []
        _native.record(1)
        return self.calls

    def __exit__(self, kind, error, trace):
        _native.record(0)
        self.calls.extend(calls())


def calls():
    """The calls that were recorded."""
    made, left_out = _native.recorded()
    if left_out:
        raise MemoryError('%d calls had no room in the record' % left_out)
    return [Call(*one) for one in made]


def save(unit):
    """The state of a unit: for load(), objects() and compare()."""
    state = _native.save(unit)
    if isinstance(state, (int, long)):
        raise ValueError('unit %d has no state: status %d' % (unit, state))
    return state


def objects(state):
    """The objects of a state, in the order of their references."""
    return [Object(*one) for one in _native.objects(state)]


def compare(before, after):
    """What `after` has otherwise, object by object."""
    return [Difference(*one) for one in _native.compare(before, after)]


class unchanged(object):
    """A block that has to leave a unit as it was."""

    def __init__(self, unit):
        self.unit = unit

    def __enter__(self):
        self.before = save(self.unit)
        return self

    def __exit__(self, kind, error, trace):
        if kind is not None:
            return
        found = compare(self.before, save(self.unit))
        if found:
            raise AssertionError('unit %d has changed: %s' % (
                self.unit, ', '.join('%s %s' % one[:2] for one in found)))


@atexit.register
def _tell():
    for one in never_met():
        sys.stderr.write('fault set, but never met: %s\n' % one)
