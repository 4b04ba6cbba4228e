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


class Phy(Bench):
    """A PHY: identifiers, a reset bit that clears itself, a link that can be
    lost."""

    def __init__(self):
        Bench.__init__(self)
        self.registers.update({(1, 0): 0x0800, (1, 1): 4, (1, 2): 0x600d,
                               (1, 3): 0x8400})
        self.resets = 0

    def write(self, bus, port, device, register, value):
        if (device, register) == (1, 0) and value & 0x8000:
            self.resets += 1
            value &= 0x7fff
        Bench.write(self, bus, port, device, register, value)

    def is_on(self):
        return not self.registers[1, 0] & 0x0800


class MdioTest(DeviceTest):

    def test_an_object_that_answers(self):
        phy_object = Bench()
        install(7, phy_object)
        self.assertStatus(0, sdk.soc_phyctrl_reg_write(
            UNIT, port(7), 0, 3 << 16 | 0x8001, 0x1234))
        self.assertEqual({(3, 0x8001): 0x1234}, phy_object.registers)
        self.assertEqual((0, 0x1234), reg_read(7, 3 << 16 | 0x8001))
        self.assertEqual((0, 0), reg_read(8, 3 << 16 | 0x8001))

    def test_the_driver_speaks_to_its_phy(self):
        phy, link = Phy(), sdk.intp()
        install(7, phy)
        sdk.check(sdk.soc_phyctrl_probe(UNIT, port(7)))
        self.assertFalse(phy.is_on())
        sdk.check(sdk.soc_phyctrl_init(UNIT, port(7)))
        self.assertTrue(phy.is_on())
        self.assertEqual(0x600d, sdk.soc_phy_id0reg_get(UNIT, port(7)))
        self.assertEqual(0x8400, sdk.soc_phy_id1reg_get(UNIT, port(7)))
        for enable in (0, 1):
            sdk.check(sdk.soc_phyctrl_enable_set(UNIT, port(7), enable))
            self.assertEqual(bool(enable), phy.is_on())
        sdk.check(sdk.soc_phyctrl_reset(UNIT, port(7), None))
        sdk.check(sdk.bcm_port_phy_reset(UNIT, 7))
        self.assertEqual(2, phy.resets)
        seen = []
        sdk.bind(sdk.bcm_linkscan_handler_t,
                 lambda unit, number, info: seen.append(info.linkstatus))
        self.addCleanup(sdk.bind, sdk.bcm_linkscan_handler_t, None)
        sdk.check(sdk.bcm_linkscan_register(UNIT, sdk.bcm_linkscan_handler_t))
        sdk.check(sdk.bcm_linkscan_enable_set(UNIT, 1000))
        sdk.check(sdk.bcm_linkscan_mode_set(UNIT, 7, 1))
        for status in (0, 4):
            phy.registers[1, 1] = status
            bench.time_pass(UNIT, 1000)
            sdk.check(sdk.soc_phyctrl_link_get(UNIT, port(7), link))
            self.assertEqual(status // 4, link.value)
        self.assertEqual([1, 0, 1], seen)

    def test_a_phy_that_does_not_answer_has_no_driver(self):
        phy, link = Phy(), sdk.intp()
        install(7, phy)
        phy.registers.update({(1, 2): 0xffff, (1, 3): 0xffff})
        self.assertStatus(sdk.BCM_E_NOT_FOUND,
                          sdk.soc_phyctrl_probe(UNIT, port(7)))
        self.assertStatus(sdk.BCM_E_INIT, sdk.soc_phyctrl_link_get(
            UNIT, sdk.soc_port_t(7), link))
        self.assertStatus(sdk.BCM_E_NOT_FOUND, sdk.soc_phy_init(UNIT))
        self.assertEqual(0, bench.mdio_remove(UNIT, 7, KIND_84328))
        sdk.check(sdk.soc_phy_init(UNIT))
        install(7, Bench())  # one whose reset bit stays
        self.assertStatus(sdk.BCM_E_TIMEOUT,
                          sdk.soc_phyctrl_reset(UNIT, port(7), None))
        self.assertEqual(0, bench.mdio_remove(UNIT, 7, KIND_84328))
        sdk.check(sdk.soc_phyctrl_link_get(UNIT, port(7), link))
        self.assertEqual(1, link.value)  # that of the port itself again

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
