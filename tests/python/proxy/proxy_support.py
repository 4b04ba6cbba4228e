"""What the tests of the proxy share."""

import os
import subprocess
import sys

import OmbraSdkV2Helper as sdk


def started_unit():
    """A unit of the stand-in that runs, with an empty L2 table."""
    if sdk.getNumDevices() == 0:
        sdk.check(sdk.addOmbraDevice(0, 1, 0, 0))
    sdk.check(sdk.soc_init(0))
    sdk.check(sdk.soc_misc_init(0))
    sdk.check(sdk.bcm_init(0))
    sdk.check(sdk.bcm_l2_clear(0))
    return 0


def run_child(*command):
    """Runs this interpreter on a command without input. Returns its output
    and what it wrote to standard error; fails if the child did."""
    with open(os.devnull) as nothing:
        child = subprocess.Popen((sys.executable,) + command, stdin=nothing,
                                 stdout=subprocess.PIPE,
                                 stderr=subprocess.PIPE)
        output, errors = child.communicate()
    if child.returncode != 0:
        raise AssertionError('%r ended with %d: %s'
                             % (command, child.returncode, errors))
    return output, errors


def pointer_of(callback):
    """The address of a native callback, which its docstring carries."""
    digits = callback.__doc__.split('swig_ptr: _')[1][:16]
    return int(''.join(reversed([digits[i:i + 2]
                                 for i in range(0, 16, 2)])), 16)


