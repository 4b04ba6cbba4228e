"""MDIO served by Python objects, from the module through the helper library
to the object and back. What the object may do wrong is tested below, in
unit/toolkit/python_mdio_test.cpp."""

import gc
import unittest
import weakref

from device_support import KIND_84328, DeviceTest, bench, sdk

UNIT = 0


class Bench(object):
    """An MDIO bus over a dictionary."""

    def __init__(self):
        self.registers = {}

    def read(self, bus, port, device, register):
        return self.registers.get((device, register), 0)

    def write(self, bus, port, device, register, value):
        self.registers[device, register] = value


def install(phy, phy_object):
    """Makes an object the external PHY of the port with that number."""
    sdk.TesselApiSetExt84328MdioAccessWrapper(UNIT, phy, phy_object)


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
        phy_object = Bench()
        install(7, phy_object)
        self.assertStatus(0, sdk.soc_phyctrl_reg_write(
            UNIT, port(7), 0, 3 << 16 | 0x8001, 0x1234))
        self.assertEqual({(3, 0x8001): 0x1234}, phy_object.registers)
        self.assertEqual((0, 0x1234), reg_read(7, 3 << 16 | 0x8001))
        self.assertEqual((0, 0), reg_read(8, 3 << 16 | 0x8001))

    def test_the_accessor_keeps_the_object_that_nobody_else_does(self):
        phy_object = Bench()
        gone = weakref.ref(phy_object)
        install(7, phy_object)
        del phy_object
        gc.collect()
        self.assertIsNotNone(gone())
        self.assertEqual((0, 0), reg_read(7, 1))
        self.assertEqual(0, bench.mdio_remove(UNIT, 7, KIND_84328))
        self.assertIsNone(gone())
        self.assertEqual(sdk.BCM_E_NOT_FOUND,
                         bench.mdio_remove(UNIT, 7, KIND_84328))


if __name__ == '__main__':
    unittest.main()
