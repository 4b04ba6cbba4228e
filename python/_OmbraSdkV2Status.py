"""Statuses as exceptions: what check() and call() of OmbraSdkV2Helper do.

A result has one of few forms, and this is the one place that takes them apart:

    a number                       the status, or what the function counts
    [status, value, ...]           a status and what comes with it
    (status, value, ...)           the same
    a list of anything else        the result itself: ports, rows of a table
    a text, an object, None        the result itself
"""

import _OmbraSdkV2Helper as _native
from _OmbraSdkV2Classes import NUMBERS as _NUMBERS

# What the numbers mean, by the name behind the family.
MEANINGS = {
    'BCM_E_': {
        'INTERNAL': 'the SDK found itself in a state that must not be',
        'MEMORY': 'out of memory',
        'UNIT': 'there is no such unit; addOmbraDevice() adds one',
        'PARAM': 'a parameter is out of its range',
        'EMPTY': 'the table is empty',
        'FULL': 'the table is full',
        'NOT_FOUND': 'there is no such entry',
        'EXISTS': 'the entry exists already',
        'TIMEOUT': 'the operation took too long',
        'BUSY': 'the object is in use',
        'FAIL': 'the operation failed',
        'DISABLED': 'the feature is switched off',
        'BADID': 'the identifier is not valid',
        'RESOURCE': 'no resources are left',
        'CONFIG': 'the configuration does not allow it',
        'UNAVAIL': 'this chip cannot do that',
        'INIT': 'the chapter or the unit has not been initialised; started() '
                'and soc_init() start a unit',
        'PORT': 'there is no such port',
        'LIMIT': 'a limit is reached',
    },
    'CMD_': {
        'FAIL': 'the command failed',
        'USAGE': 'the command was called with wrong arguments',
        'NFND': 'there is no such command',
        'EXIT': 'the command asked for the end of the shell',
        'INTR': 'the command was interrupted',
        'NOTIMPL': 'the command is not implemented',
    },
}
FAMILIES = {'BCM_E_': ('BCM_E_', 'SOC_E_'), 'CMD_': ('CMD_',)}

class SdkError(Exception):
    """A status with which the SDK refused. `status` is the number, `name` the
    constant, `meaning` what it says, `function` who answered it, if known."""

    def __init__(self, status, function=None, family='BCM_E_'):
        self.status = status
        self.function = function
        self.family = family
        self.name, self.meaning = _describe(status, family)
        Exception.__init__(self, '%s%s (%d): %s' % (
            function + ': ' if function else '', self.name, status,
            self.meaning))

    def __reduce__(self):
        return type(self), (self.status, self.function, self.family)


def _describe(status, family):
    for prefix in FAMILIES[family]:
        for word, meaning in MEANINGS[family].iteritems():
            if vars(_native).get(prefix + word) == status:
                return prefix + word, meaning
    return 'status', 'unknown to the SDK'


def _apart(result):
    """The status in a result, or None, and what is left without it."""
    if isinstance(result, (list, tuple)):
        if not result or type(result[0]) is not int:
            return None, result
        rest = tuple(result[1:])
        return result[0], rest[0] if len(rest) == 1 else rest
    if isinstance(result, (int, long)):
        return result, result
    return None, result


def _checked(result, function=None, family='BCM_E_'):
    status, rest = _apart(result)
    if status is not None and status < 0:
        raise SdkError(status, function, family)
    return rest


def check(result):
    """Raises SdkError for a result that is a negative status, or a list or
    tuple that begins with one. Returns what is left: of a list or tuple the
    value behind the status, or the values as a tuple; the number itself; and
    whatever has no status in front, whole.

        group = check(bcm_field_group_create(unit, qset, priority))
        rows = check(getHwMacTable(unit))
    """
    return _checked(result)


def result_type(function):
    """The declared type of what a function of the module returns, 'int' or
    'cmd_result_t'; '' for none."""
    return (function.__doc__ or '').partition('\n')[0].partition(' -> ')[2]


def is_status(function):
    """Whether the number that a function returns is a status of the SDK."""
    return (result_type(function) in ('int', 'PyObject *')
            and function.__name__ not in _NUMBERS)


def call(function, *args):
    """Calls a function and checks its result, which it knows by the declared
    type: a `cmd_result_t` is named by CMD_, a count or a text is no status
    and comes back as it is. The SdkError names the function.

        call(bcm_vlan_create, unit, 100)
    """
    try:
        result = function(*args)
    except TypeError as error:
        if ' arguments, got ' not in str(error):
            raise
        # Mostly a unit that was forgotten.
        raise TypeError('%s: it is %s' % (error, function.__doc__.strip()))
    name = function.__name__
    if result_type(function) == 'cmd_result_t':
        return _checked(result, name, 'CMD_')
    return _checked(result, name) if is_status(function) else result
