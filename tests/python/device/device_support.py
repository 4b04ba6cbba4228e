"""What the tests of devices share."""

import ctypes
import os
import sys
import tempfile
import unittest

import OmbraSdkV2Helper as sdk

# The library under the module, with the hooks of the stand-in. Its calls keep
# the interpreter lock, as those of the module do.
hooks = ctypes.PyDLL('libOmbraSdkV2Helper.so.0')

# The port of a register that has none, and of a register for all cores.
ANY = sdk.REG_PORT_ANY

# Kind 3, the one that TesselApiSetExt84328MdioAccessWrapper installs for.
KIND_84328 = 3


def references(holder):
    """The references to the object in a holder of a counted pointer; None for
    a holder of null."""
    counted = ctypes.c_void_p.from_address(int(holder.this)).value
    if counted is None:
        return None
    return ctypes.c_uint32.from_address(counted + 8).value & 0x5fffffff


def printed(call, *arguments):
    """What a call wrote to the descriptor of standard output."""
    sys.stdout.flush()
    with tempfile.TemporaryFile() as into:
        kept = os.dup(1)
        os.dup2(into.fileno(), 1)
        try:
            call(*arguments)
            flush()
        finally:
            os.dup2(kept, 1)
            os.close(kept)
        into.seek(0)
        return into.read()


def flush():
    """Empties the buffers of the C library."""
    ctypes.CDLL(None).fflush(None)


def read(unit, reg, port=ANY, index=0):
    """A register of up to 64 bits."""
    value = sdk.box('uint64')
    sdk.check(sdk.soc_reg_get(unit, reg, port, index, value))
    return value.value


class DeviceTest(unittest.TestCase):
    """One device of its own, unit 0, which runs."""

    def setUp(self):
        hooks.standin_mdio_clear()
        hooks.standin_reset()
        hooks.standin_shadow_reset()
        sdk.check(sdk.addOmbraDevice(0, 1, 0, 0))
        sdk.check(sdk.soc_init(0))

    def tearDown(self):
        hooks.standin_mdio_clear()
        hooks.standin_reset()
        hooks.standin_shadow_reset()

    def assertStatus(self, expected, status):
        """Names both when they differ."""
        self.assertEqual(expected, status,
                         'status %d, not %d' % (status, expected))
