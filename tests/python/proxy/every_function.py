"""Calls each plain function of the module once, with arguments that are made
by the proxy and its companion, and again with each of its pointers and texts
null in turn, and says what came of it.

usage: every_function.py MODEL.json

Its report ends the output: a line "NAME: what is wrong" for each function that
could not be called or whose result has another form than declared, and how
many were called. With OMBRA_TRACE set each name is told before its call.
"""

import json
import os
import shutil
import sys
import tempfile

import OmbraSdkV2Helper as sdk

# Elements behind a pointer: what a function with counts of 1 stays within.
ROOM = 16
TEXT_ROOM = 4096

# What the kinds of numbers begin with.
NUMBERS = ('signed', 'unsigned', 'address')

# Words in the names of functions that end what a unit does.
ENDING = ('detach', 'deinit', 'shutdown', 'unmap')

# Rows of boxes and arrays that are no plain functions.
STRUCTURAL = ('new_', 'delete_')


def visit(*_):
    """What every callback calls: ends a walk, declines everything else."""
    return sdk.BCM_E_FAIL


def text_buffer():
    """A text that the function may also write into."""
    return sdk.Array('char', [ord(letter) for letter in 'x'.ljust(
        TEXT_ROOM, '\0')])


def element_of(pointer):
    """'char **' -> 'char *', 'uint8 const *' -> 'uint8'."""
    name = pointer[:-1].rstrip(' ') if not pointer.endswith(
        '**') else pointer[:-1]
    return name[:-len(' const')] if name.endswith(' const') else name


def pointer_to(declared, keep):
    element = element_of(declared)
    if element == 'void':
        return sdk.Array('uint8', TEXT_ROOM)
    if element == 'Hardware::ChipMemory':
        memory = sdk.CGM_HAPMm
        holder = sdk.findChipMemory(
            0, memory, sdk.ChipAddress(sdk.tableBaseAddr(0, memory, 0).value),
            sdk.U32(4))
        keep.append(holder)
        return holder.pointer
    if hasattr(sdk, element + '_cast'):
        return getattr(sdk, element)()  # a box
    return sdk.Array(element, ROOM)


def value_of(declared):
    name = declared.split(' const')[0].split('::')[-1]
    return getattr(sdk, name)()


def make(argument, keep):
    """An argument of the declared type, and never None."""
    kind, declared = argument['kind'], argument['type']
    if kind.split('-')[0] in NUMBERS:
        return 0 if argument['name'] == 'unit' else 1
    if kind == 'strict-bool':
        return True
    if kind == 'text':
        return text_buffer()
    if kind == 'mac-string':
        return '02:00:00:00:00:01'
    if kind == 'port-bitmap':
        return [1, 2]
    if kind == 'pointer':
        return pointer_to(declared, keep)
    if kind == 'fixed-array':
        element = declared.split(' [')[0].replace(' const', '')
        return sdk.Array(element, max(argument['count'], ROOM))
    if kind == 'by-value':
        return value_of(declared)
    if kind == 'reference':
        return value_of(declared[:-len(' &')])
    if kind == 'function-pointer':
        return getattr(sdk, declared)
    if kind == 'object':
        return keep
    raise ValueError('no argument for ' + kind)


def arguments(row, keep, make=make):
    name, wanted = row['name'], row['arguments']
    made = [make(argument, keep) for argument in wanted]
    for index, argument in enumerate(wanted):
        if argument['kind'] == 'function-pointer':
            sdk.bind(str(argument['type']), visit)
            # The cookie that goes with it.
            for later in range(index, len(wanted)):
                if wanted[later]['type'] == 'void *':
                    made[later] = sdk.cookie(visit)
    if row['role'] == 'array':
        group = name.rsplit('_', 1)[0]
        made[0] = getattr(sdk, 'new_' + group)(ROOM)
    return made


def is_pointer_object(value):
    return value is None or type(value).__name__ == 'SwigPyObject' or hasattr(
        value, 'this')


RESULTS = {
    'nothing': lambda value: value is None,
    'text': lambda value: value is None or isinstance(value, str),
    'strict-bool': lambda value: isinstance(value, bool),
    'pointer': is_pointer_object,
    'by-value': is_pointer_object,
    'object': lambda value: isinstance(value, (list, tuple, str)),
}


def fault(row, keep):
    """What is wrong with a call of the row, or None."""
    made = []
    try:
        made = arguments(row, keep)
        if any(argument is None for argument in made):
            return 'no argument could be made'
        result = getattr(sdk, row['name'])(*made)
    except Exception as error:  # pylint: disable=broad-except
        # This one row has no argument that it would take, on purpose.
        if row['name'] == 'l2_traverse_cb' and isinstance(error, ValueError):
            return None
        return '%s: %s' % (type(error).__name__, error)
    finally:
        keep.extend(made)
    kind = row.get('result', {'kind': 'nothing'})['kind']
    if row.get('hand_written'):
        return None  # of a form of its own
    if row.get('appended'):
        right = isinstance(result, list) and len(result) == 2
    else:
        right = RESULTS.get(kind, lambda value: isinstance(
            value, (int, long)))(result)
    return None if right else 'the result %r is no %s' % (result, kind)


NULLABLE = ('text', 'pointer', 'fixed-array', 'function-pointer')


def null_fault(row, keep):
    """What is wrong with the calls of the row with one argument null, or None.
    The call may answer what it likes."""
    for index, argument in enumerate(row['arguments']):
        if row['role'] != 'function' or argument['kind'] not in NULLABLE:
            continue
        try:
            made = arguments(row, keep)
            keep.extend(made)
            made[index] = None
            getattr(sdk, row['name'])(*made)
        except Exception as error:  # pylint: disable=broad-except
            if not row.get('hand_written'):
                return 'null %s: %r' % (argument['name'], error)
    return None


def start():
    sdk.check(sdk.addOmbraDevice(0, 1, 0, 0))
    # What a property without a name would be found under.
    sdk.sal_config_set('.0', 'no ports')
    revive()


def revive():
    """Undoes what a call did to the unit: some are there to end it."""
    sdk.mapOmbraDevice(0)
    if sdk.soc_init(0) == 0:
        sdk.soc_misc_init(0)
        sdk.bcm_init(0)


def main(model):
    with open(model) as stream:
        rows = [row for row in json.load(stream)['rows']
                if row['role'] in ('function', 'box', 'array')
                and not row['name'].startswith(STRUCTURAL)
                and not row['name'].endswith('_swigregister')]
    folder = tempfile.mkdtemp()
    os.chdir(folder)  # for the functions that write files
    start()
    # What the SDK was given it may keep, so everything lives to the end.
    keep = []
    called = set()
    wrong = []
    for row in rows:
        if os.environ.get('OMBRA_TRACE'):
            os.write(2, row['name'] + '\n')
        found = fault(row, keep) or null_fault(row, keep)
        called.add(row['name'])
        if found:
            wrong.append('%s: %s' % (row['name'], found))
        if any(word in row['name'] for word in ENDING):
            revive()
    shutil.rmtree(folder)
    # What the SDK itself printed stands above.
    print '\nreport:\n' + '\n'.join(
        wrong + ['called %d functions' % len(called)])


if __name__ == '__main__':
    main(sys.argv[1])
