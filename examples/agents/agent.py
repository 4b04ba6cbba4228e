"""What the agents share: a unit that runs, and calls that have to refuse."""

import OmbraSdkV2Helper as sdk


def start():
    """Adds a chip and starts it; its unit."""
    unit = sdk.check(sdk.addOmbraDevice(0, 1, 0, 0))
    for step in sdk.soc_init, sdk.soc_misc_init, sdk.bcm_init:
        sdk.call(step, unit)
    return unit


def status_of(result):
    return result[0] if isinstance(result, (list, tuple)) else result


def refuse(name, function, *args):
    """Calls a function, which has to refuse with the status BCM_E_`name`."""
    status = status_of(function(*args))
    if status != getattr(sdk, 'BCM_E_' + name):
        raise AssertionError('%s%r: %d, not BCM_E_%s' % (
            function.__name__, args[1:], status, name))


def value(function, *args, **kind):
    """The number that a function writes to its last argument."""
    box = sdk.box(kind.get('kind', 'int'))
    sdk.call(function, *(args + (box,)))
    return box.value


def fill(create, *args, **kind):
    """Makes objects until the table is full; what each call wrote to the box
    that is its last argument."""
    made = []
    while True:
        box = sdk.box(kind.get('kind', 'int'))
        status = status_of(create(*(args + (box,))))
        if status == sdk.BCM_E_FULL:
            return made
        sdk.check(status)
        made.append(box.value)


def same(found, expected, what):
    if found != expected:
        raise AssertionError('%s is %r, not %r' % (what, found, expected))


def mac(number):
    return '02:00:%02x:%02x:%02x:%02x' % tuple(
        number >> shift & 255 for shift in (24, 16, 8, 0))
