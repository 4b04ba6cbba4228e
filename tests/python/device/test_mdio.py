"""PHYs, and MDIO served by Python objects."""

import contextlib
import gc
import StringIO
import sys
import threading
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


class Broken(object):
    """Fails in the way that it is told to."""

    def __init__(self, answer):
        self.answer = answer

    def read(self, *_):
        return self.answer()

    def write(self, *_):
        raise IOError('no such bus')


@contextlib.contextmanager
def errors_into(text):
    """Collects what Python reports as ignored."""
    kept, sys.stderr = sys.stderr, text
    try:
        yield
    finally:
        sys.stderr = kept


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

    def test_an_object_that_fails(self):
        def raises():
            raise ValueError('bad bench')
        for answer, said in ((raises, 'bad bench'),
                             (lambda: 'text', 'TypeError'),
                             (lambda: 0x10000, 'MDIO read returned 65536'),
                             (lambda: -1, 'MDIO read returned -1'),
                             (lambda: 2 ** 70, 'OverflowError')):
            install(7, Broken(answer))
            text = StringIO.StringIO()
            with errors_into(text):
                self.assertEqual((sdk.BCM_E_FAIL, 0x7777), reg_read(7, 1))
                self.assertStatus(sdk.BCM_E_FAIL, sdk.soc_phyctrl_reg_write(
                    UNIT, port(7), 0, 1, 1))
            self.assertIn(said, text.getvalue())
            self.assertIn('no such bus', text.getvalue())
        text = StringIO.StringIO()
        install(7, None)
        with errors_into(text):
            self.assertEqual((sdk.BCM_E_FAIL, 0x7777), reg_read(7, 1))
        self.assertIn('AttributeError', text.getvalue())

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

    def test_an_object_may_remove_or_replace_itself(self):
        class Fickle(Bench):
            def read(self, *_):
                install(7, Bench())
                hooks.standin_mdio_clear()
                return 5
        install(7, Fickle())
        self.assertEqual((0, 5), reg_read(7, 1))
        self.assertEqual(0, hooks.standin_mdio_count())

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

    def test_a_number_out_of_range_installs_nothing(self):
        bench = Bench()
        before = sys.getrefcount(bench), hooks.standin_live_objects()
        for unit, phy in ((0, 0x400), (0, -1), (256, 0), (-1, 0)):
            self.assertRaises(ValueError,
                              sdk.TesselApiSetExt84328MdioAccessWrapper,
                              unit, phy, bench)
        self.assertEqual(before, (sys.getrefcount(bench),
                                  hooks.standin_live_objects()))
        self.assertEqual(0, hooks.standin_mdio_count())

    def test_ten_thousand_installs_leave_nothing(self):
        bench = Bench()
        install(7, bench)
        hooks.standin_mdio_clear()
        before = sys.getrefcount(bench), hooks.standin_live_objects()
        for i in xrange(10000):
            install(i % 5, bench)
            if i % 3 == 0:
                hooks.standin_mdio_remove(UNIT, i % 5, KIND_84328)
        hooks.standin_mdio_clear()
        self.assertEqual(before, (sys.getrefcount(bench),
                                  hooks.standin_live_objects()))

    def test_two_threads_and_one_object(self):
        bench = Bench()
        install(7, bench)
        failures = []

        def work(device):
            for register in xrange(500):
                address = device << 16 | register
                sdk.soc_phyctrl_reg_write(UNIT, port(7), 0, address, register)
                if reg_read(7, address) != (0, register):
                    failures.append(address)

        threads = [threading.Thread(target=work, args=(device,))
                   for device in (1, 2)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual([], failures)
        self.assertEqual(1000, len(bench.registers))

    def test_the_internal_phy_and_the_version_on_standby(self):
        value = sdk.box('uint16')
        sdk.TesselApiInternalPhyWrite(UNIT, 60, 3, 0x8000, 0xbeef)
        sdk.TesselApiInternalPhyRead(UNIT, 60, 3, 0x8000, value)
        self.assertEqual(0xbeef, value.value)
        sdk.TesselApiInternalPhyRead(UNIT, 60, 3, 0x8000, None)
        sdk.standbyBcm84328VersionIs(sdk.UnitId(UNIT), sdk.ExternalPhyId(7),
                                     sdk.Bcm84328Version(0xb0b0))
        self.assertNotEqual(0xb0b0, sdk.soc_phy_id1reg_get(UNIT, port(7)))
        sdk.standbySupIs(True)
        self.assertEqual(0xb0b0, sdk.soc_phy_id1reg_get(UNIT, port(7)))


if __name__ == '__main__':
    unittest.main()
