"""Finding one's way: what describe() and find() of OmbraSdkV2Helper do.

Loaded when one of them is first called. All that is said comes from the
declarations: types and chapters from the tables of _OmbraSdkV2Manual, names of
parameters from the docstrings.
"""

import _OmbraSdkV2Classes as tables
import _OmbraSdkV2Companion as companion
import _OmbraSdkV2Helper as native
from _OmbraSdkV2Manual import CHAPTERS
from _OmbraSdkV2Status import is_status, result_type

# What comes back where the declaration does not tell.
_FORMS = {
    'bcm_port_pause_get': '(status, pause_tx, pause_rx)',
    'bcm_port_untagged_vlan_get': '(status, vid)',
    'bcm_vlan_port_get': '(status, ports, untagged ports), or '
                         '(status, None, None)',
    'bcm_stg_stp_get': '(0, state), or (status,)',
    'bcm_stg_list': '(0, [stg, ...]), or (status,)',
    'bcm_stg_vlan_list': '(0, [vid, ...]), or (status,)',
    'getHwMacTable': '[(mac, vid, global port, "static" or "dynamic"), ...]',
}

# Ends of names that belong together.
_VERBS = ('set', 'get', 'add', 'delete', 'remove', 'create', 'destroy',
          'traverse', 'register', 'unregister', 'init', 'read', 'write',
          'enable', 'clear', 'delete_all', 'id')


class _Entry(object):
    """A function of the manual."""

    def __init__(self, line, purpose, section):
        parts = line.split('|')
        self.name = parts[0]
        self.appended = ''
        if parts[-1].startswith('> '):
            self.appended = parts.pop()[2:]
        self.types = parts[1:]
        self.purpose = purpose
        self.section = section


def _read():
    entries = {}
    for purpose, lines in CHAPTERS:
        section = ''
        for line in lines.splitlines():
            if line.startswith('# '):
                section = line[2:]
            else:
                entry = _Entry(line, purpose, section)
                entries[entry.name] = entry
    return entries


entries = _read()
_classes = dict(tables.CLASSES)
_values = dict((type_name, name) for name, type_name, _ in tables.VALUES)
_boxes = frozenset(companion.native_types())


def _pointed(declared):
    """'bcm_l2_addr_t' for 'bcm_l2_addr_t const *'; '' for no pointer."""
    pointed = declared[:-2] if declared.endswith(' *') else ''
    return pointed[:-6] if pointed.endswith(' const') else pointed


def expression(declared):
    """What makes a value of a declared type, in Python; '' for numbers, which
    need nothing, and for what only the SDK makes."""
    pointed = _pointed(declared)
    for one in (declared, pointed):
        if one in _classes:
            return one + '()'
    if declared in _values:
        return _values[declared] + '()'
    if declared == 'bcm_pbmp_t':
        return '[1, 2]'
    if declared == 'bcm_mac_t':
        return "'00:11:22:33:44:55'"
    if declared in ('char *', 'char const *'):
        return "'text'"
    return 'box(%r)' % pointed if pointed in _boxes else ''


def value_of(declared, has_cookie):
    """How a value of a declared type is made."""
    pointed = _pointed(declared)
    callback = getattr(companion, declared, None)
    if pointed in _classes:
        return 'make one with %s(), or several with Array(%r, n)' % (
            pointed, pointed)
    if declared in _classes:
        return 'make one with %s()' % declared
    if declared in _values:
        return 'make one with %s(...)' % _values[declared]
    if declared == 'bcm_pbmp_t':
        return 'a list of ports; ports() makes one of any numbers'
    if declared == 'bcm_mac_t':
        return "a text, '00:11:22:33:44:55'"
    if callback is not None and 'native callback' in (callback.__doc__ or ''):
        signature = callback.__doc__.splitlines()[0].partition(', ')[2]
        way = 'with a cookie()' if has_cookie else 'set by bind()'
        return 'pass the callback %s %s: %s' % (declared, way, signature)
    if declared in ('char *', 'char const *'):
        return 'a text'
    if pointed in _boxes:
        return 'make one with box(%r), or several with Array(%r, n)' % (
            pointed, pointed)
    return ''


def fields(name):
    """The lines "field: type" of a structure."""
    return _classes[name]


def parameters(function):
    names = (function.__doc__ or '').partition('(')[2].partition(')')[0]
    return names.split(', ') if names else []


def result_of(function, entry):
    declared = result_type(function)
    if entry.appended:
        return '[status, %s]' % entry.appended
    if entry.name in _FORMS:
        return _FORMS[entry.name]
    if declared == 'cmd_result_t':
        return 'a cmd_result_t: CMD_OK, or a negative CMD_ number'
    if is_status(function):
        return 'a status: BCM_E_NONE, or a negative BCM_E_ number'
    return declared or 'None'


def _stem(name):
    stem, _, verb = name.rpartition('_')
    return stem if verb in _VERBS else name


_relations = {}  # stem -> names, filled when first asked


def related(name):
    """Names of the functions that differ in their verb alone."""
    if not _relations:
        for other in sorted(entries):
            _relations.setdefault(_stem(other), []).append(other)
    return [other for other in _relations.get(_stem(name), ())
            if other != name]


def taker(name):
    """Which helper passes a Python callable to a function: 'registered',
    'traverse' or ''."""
    if name.endswith('_register'):
        called = name in tables.CALLBACKS or name in tables.BOUND
        return 'registered' if called else ''
    walks = name.endswith(('traverse', '_age', '_iterate'))
    return 'traverse' if walks and name in tables.CALLBACKS else ''


def description(thing):
    """The text of describe()."""
    name = thing if isinstance(thing, str) else thing.__name__
    if name in _classes:
        return ('%s: a structure. Fields and their types:\n\n%s'
                % (name, _classes[name])).rstrip()
    if name not in entries:
        value = vars(native).get(name)
        if isinstance(value, (int, long)):
            return '%s = %d, a constant' % (name, value)
        raise ValueError('nothing is called %r; find() searches' % name)
    function, entry = getattr(native, name), entries[name]
    lines = [function.__doc__.splitlines()[0],
             '    ' + entry.purpose
             + (' ' + entry.section + '.' if entry.section else '')]
    for parameter, declared in zip(parameters(function), entry.types):
        lines.append(('    %-12s %s' % (parameter, declared)).ljust(40)
                     + ' ' + value_of(declared, name in tables.CALLBACKS))
    lines.append('    returns      ' + result_of(function, entry))
    others = related(name)
    if others:
        lines.append('    related      ' + ', '.join(others))
    if taker(name):
        lines.append('    calls back; %s() passes a Python callable'
                     % taker(name))
    return '\n'.join(line.rstrip() for line in lines)


def find(words):
    """Names of functions, structures and constants in which all words stand;
    behind them those where they stand in name, chapter and section
    together."""
    wanted = words.lower().split()
    by_name, by_purpose = [], []
    names = set(entries) | set(_classes) | set(
        name for name, value in vars(native).iteritems()
        if isinstance(value, (int, long)))
    for name in names:
        lower = name.lower()
        if all(word in lower for word in wanted):
            by_name.append(name)
        elif name in entries:
            entry = entries[name]
            text = ' '.join((lower, entry.purpose, entry.section)).lower()
            if all(word in text for word in wanted):
                by_purpose.append(name)
    return sorted(by_name, key=lambda name: (len(name), name)) + sorted(
        by_purpose)
