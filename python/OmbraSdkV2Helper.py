"""The chip SDK in Python.

Everything of the module _OmbraSdkV2Helper is here under its own name: the
functions of the SDK and of the platform, the constants, the variables in
`cvar`. On top of it:

* classes for the SDK's structures, with their fields as attributes:
  bcm_l2_addr_t(mac='00:11:22:33:44:55', vid=5);
* values that the SDK knows by name alone, made from plain numbers:
  soc_port_t(3), U32(1), UnitId(0), bcm_rx_reasons_t([1, 0, 0, 0, 0, 0]);
* native variables and arrays for parameters that are pointers:
  box('int'), box('char *'), Array('bcm_trunk_member_t', 8);
* native callbacks that call Python: one for each callback type, under its
  name, with cookie(), release() and bind(); and traverse(), which needs none
  of them;
* check() and call(), which turn a refusal of the SDK into an exception,
  SdkError;
* ports(), which makes a port list that came out fit to go in again; gport()
  and gport_parts() for global port numbers; mem_field_set() for table entries;
* packet() and packet_bytes(), which make a packet of bytes and read one back;
* describe() and find(), which know all functions, structures and constants;
* started(), registered(), mdio_access(), log_to() and trace_to(), blocks that
  put back what they set up; callback_errors(), a hook for exceptions in
  callbacks.

The plain functions take and return what they always did: a status is a number.

    >>> from OmbraSdkV2Helper import *
    >>> unit = check(addOmbraDevice(0, 1, 0, 0))
    >>> check(soc_init(unit))
    0
    >>> link = box('int')
    >>> check(bcm_port_link_status_get(unit, 1, link))
    0
    >>> link.value
    1
"""

import sys as _sys

# Python 3 gets this far.
if _sys.version_info[0] != 2:
    raise ImportError('OmbraSdkV2Helper is for Python 2.7: run it with '
                      'python2.7 in the place of Python %d.%d'
                      % _sys.version_info[:2])

import _OmbraSdkV2Classes as _tables
import _OmbraSdkV2Companion as _companion
import _OmbraSdkV2Helper as _native
import _OmbraSdkV2Proxy as _proxy
from _OmbraSdkV2Aids import (
    L2_FLAG_BLACKHOLE, L2_FLAG_STATIC, L2_FLAG_TRUNK, gport, gport_parts, log_to,
    mdio_access, mem_field_get, mem_field_set, packet, packet_bytes, ports,
    registered, started, trace_to, traverse)
from _OmbraSdkV2Companion import (
    Array, bind, callback_errors, cookie, release, view)
from _OmbraSdkV2Proxy import Struct, Value, box
from _OmbraSdkV2Status import SdkError, call, check

__version__ = '1.1.0'


def describe(thing):
    """Prints what a function, structure or constant is: declared types, what
    to make a value of, what comes back, related calls. Takes it or its name.
    """
    import _OmbraSdkV2Guide
    _sys.stdout.write(_OmbraSdkV2Guide.description(thing) + '\n')


def find(words):
    """Names in which all words stand, or in their chapter: find('vlan gport').
    """
    import _OmbraSdkV2Guide
    return _OmbraSdkV2Guide.find(words)


if not _companion.in_first_interpreter():
    raise ImportError('the classes of OmbraSdkV2Helper are registered for the '
                      'whole process, which the first interpreter alone '
                      'outlives; use _OmbraSdkV2Helper and '
                      '_OmbraSdkV2Companion in this one')

_BUILT_IN = type(len)


def _fill(namespace):
    """Puts the names of the module, the callbacks and the classes here."""
    rows = vars(_native)
    before = namespace.get('_own')  # of a load before a reload
    own = dict((name, value) for name, value in namespace.iteritems()
               if before is None or name in before or name not in rows)
    public = _companion.take_names(namespace, rows)
    made = {}
    for name, function in vars(_companion).iteritems():
        if isinstance(function, _BUILT_IN) and 'swig_ptr: ' in (
                function.__doc__ or ''):
            made[name] = function
    for name, table in _tables.CLASSES:
        made[name] = _proxy.struct_class(name, table, rows)
    for name, element in _tables.BOXES:
        made[name] = _proxy.box_class(name, made.get(element), rows)
    _companion.add_deleters(made, [rows['delete_' + name] for name, _
                                   in _tables.CLASSES + _tables.BOXES])
    for name, type_name, others in _tables.VALUES:
        value = _proxy.value_class(name, type_name)
        made.update((one, value) for one in (name,) + others)
    for name, type_name in _tables.HOLDERS:
        made[name] = _proxy.holder_class(name, type_name)
    if before is not None:
        own = dict((name, value) for name, value in own.iteritems()
                   if name in before or name not in made)
    made.update(own)
    for name, value in made.iteritems():  # one by one, as take_names() does
        namespace[name] = value
    # What `import *` brings and completion shows: all but the rows behind the
    # classes, which stay attributes.
    public.extend(name for name in made if name not in rows
                  and name[0] != '_' and ' ' not in name)
    namespace['__all__'] = public
    namespace['_own'] = frozenset(own)
    # Where one of the two modules was first imported by an interpreter that
    # has ended, they know each other's types by name alone.
    if type(Array('bcm_l2_addr_t', 1)[0]) is not namespace['bcm_l2_addr_t']:
        raise ImportError('_OmbraSdkV2Helper and _OmbraSdkV2Companion were '
                          'first imported by different interpreters and do '
                          'not share their types')


_fill(globals())
