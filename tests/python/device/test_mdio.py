"""MDIO served by Python objects, from the module through the helper library
to the object and back. What the object may do wrong is tested below, in
unit/toolkit/python_mdio_test.cpp."""

import gc
import unittest
import weakref

from device_support import (KIND_84328, DeviceTest, hooks, references, sdk)

UNIT = 0


class Bench(object):
    """An MDIO bus over a dictionary."""

    def __init__(self):
        self.registers = {}
        self.calls = 0

    def read(self, bus, port, device, register):
        self.calls += 1
        return self.registers.get((device, register), 0)

    def write(self, bus, port, device, register, value):
        self.calls += 1
        self.registers[device, register] = value


def install(phy, bench):
    """Makes the bench the external PHY of the port with that number."""
    sdk.TesselApiSetExt84328MdioAccessWrapper(UNIT, phy, bench)


def port(number):
    """The object that the calls on PHYs take for a port."""
    return sdk.soc_phy_addr_to_port(UNIT, number)


def reg_read(number, address):
    """A status and the value."""
    value = sdk.box('uint32')
    value.value = 0x7777
    return (sdk.soc_phyctrl_reg_read(UNIT, port(number), 0, address, value),
            value.value)


class MdioTest(DeviceTest):

    def test_an_object_that_answers(self):
        bench = Bench()
        install(7, bench)
        self.assertStatus(0, sdk.soc_phyctrl_reg_write(
            UNIT, port(7), 0, 3 << 16 | 0x8001, 0x1234))
        self.assertEqual({(3, 0x8001): 0x1234}, bench.registers)
        self.assertEqual((0, 0x1234), reg_read(7, 3 << 16 | 0x8001))
        self.assertEqual((0, 0), reg_read(8, 3 << 16 | 0x8001))
        self.assertStatus(0, sdk.soc_phyctrl_reg_modify(
            UNIT, port(7), 0, 3 << 16 | 0x8001, 0xff, 0xf))
        self.assertEqual(0x123f, bench.registers[3, 0x8001])
        self.assertIsNotNone(sdk.soc_phyctrl_ext_phy_reset(UNIT, port(7)))
        self.assertEqual(0x8000, bench.registers[1, 0])
        self.assertIsNone(sdk.soc_phyctrl_ext_phy_reset(UNIT, port(8)))

    def test_the_accessor_keeps_the_object_that_nobody_else_does(self):
        bench = Bench()
        gone = weakref.ref(bench)
        install(7, bench)
        del bench
        gc.collect()
        self.assertIsNotNone(gone())
        self.assertEqual((0, 0), reg_read(7, 1))
        self.assertEqual(0, hooks.standin_mdio_remove(UNIT, 7, KIND_84328))
        self.assertIsNone(gone())
        self.assertEqual(sdk.BCM_E_NOT_FOUND,
                         hooks.standin_mdio_remove(UNIT, 7, KIND_84328))

    def test_the_accessor_comes_back_counted(self):
        bench = Bench()
        install(0x3ff, bench)
        arguments = (sdk.UnitId(UNIT), sdk.ExternalPhyId(0x3ff),
                     sdk.ManagedPhy(KIND_84328))
        accessor = sdk.TesselApiGetExtMdioAccess(*arguments)
        self.assertEqual(2, references(accessor))
        install(0x3ff, bench)  # takes its place
        self.assertEqual(1, references(accessor))
        self.assertIsNone(references(sdk.TesselApiGetExtMdioAccess(
            sdk.UnitId(UNIT), sdk.ExternalPhyId(0x3fe),
            sdk.ManagedPhy(KIND_84328))))
        sdk.TesselApiSetExtMdioAccess(UNIT, 0x3ff, bench, sdk.ManagedPhy(-5))
        self.assertEqual(2, hooks.standin_mdio_count())


if __name__ == '__main__':
    unittest.main()
