"""What the tests of devices share."""

import ctypes
import unittest

import OmbraSdkV2Bench as bench
import OmbraSdkV2Helper as sdk

# Kind 3, the one that TesselApiSetExt84328MdioAccessWrapper installs for.
KIND_84328 = 3


def references(holder):
    """The references to the object in a holder of a counted pointer; None for
    a holder of null."""
    counted = ctypes.c_void_p.from_address(int(holder.this)).value
    if counted is None:
        return None
    return ctypes.c_uint32.from_address(counted + 8).value & 0x5fffffff


class DeviceTest(unittest.TestCase):
    """One device of its own, unit 0, which runs."""

    def setUp(self):
        bench.reset()
        sdk.check(sdk.addOmbraDevice(0, 1, 0, 0))
        sdk.check(sdk.soc_init(0))

    def tearDown(self):
        bench.reset()

    def assertStatus(self, expected, status):
        """Names both when they differ."""
        self.assertEqual(expected, status,
                         'status %d, not %d' % (status, expected))
