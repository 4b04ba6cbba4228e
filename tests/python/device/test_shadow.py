"""The shadow: what it tells, how it is put right, and its objects."""

import itertools
import os
import tempfile
import unittest

from device_support import (ANY, DeviceTest, hooks, printed, read, references,
                            sdk)

REG = sdk.ECI_TEST_REGISTERr


class ShadowTest(DeviceTest):

    def behind_its_back(self, shadow, hardware):
        """One value through the API, another on the bus."""
        sdk.check(sdk.soc_reg32_set(0, REG, ANY, 0, shadow))
        sdk.check(sdk.korvel_write_low(
            0, sdk.soc_reg_addr(0, REG, ANY, 0), hardware))

    def test_forced_read_and_sync_tell_the_truth(self):
        self.behind_its_back(1, 2)
        self.assertEqual(1, read(0, REG))
        sdk.forceReadFromHardwareIs(True)
        self.assertIs(True, sdk.forceReadFromHardware())
        self.assertEqual(2, read(0, REG))
        sdk.forceReadFromHardwareIs(False)
        self.assertEqual(1, read(0, REG))
        self.assertEqual(1, int(sdk.syncRegisters(sdk.uint(0), False, False)))
        self.assertEqual(1, read(0, REG))
        text = printed(sdk.syncRegisters, sdk.uint(0), True, True)
        self.assertIn('ECI_TEST_REGISTER (0x', text)
        self.assertEqual(2, read(0, REG))
        self.assertEqual(0, int(sdk.syncSpecificRegister(sdk.uint(0),
                                                         sdk.U32(REG))))

    def test_dumps(self):
        self.behind_its_back(1, 2)
        sdk.syncSpecificRegister(sdk.uint(0), sdk.U32(REG))
        with tempfile.NamedTemporaryFile() as into:
            for dump, line in (
                    (sdk.dumpRegSyncData,
                     '# unit 0: 1 registers compared, 1 different, '
                     'shadow repaired'),
                    (sdk.TesselApiPrintDeviceMemInfoToFile,
                     '# unit 0: memories'),
                    (sdk.TesselApiPrintDeviceMemParityEccInfoToFile,
                     '# unit 0: parity and ECC')):
                self.assertStatus(0, dump(0, into.name))
                with open(into.name) as text:
                    self.assertEqual(line + '\n', text.readline())
                self.assertStatus(sdk.BCM_E_FAIL, dump(0, os.sep))
                self.assertStatus(sdk.BCM_E_PARAM, dump(0, None))
        self.assertEqual('', printed(sdk.printAllRegisters, sdk.uint(9)))
        self.assertIn('ECI_TEST_REGISTER (0x0a012000) = 0x2\n',
                      printed(sdk.printAllRegisters, sdk.uint(0)))

    def test_a_register_block(self):
        reg = sdk.CRPS_CRPS_SRC_MASKr
        sdk.check(sdk.soc_reg32_set(0, reg, ANY, 2, 7))
        size = sdk.box('uint32')
        self.assertStatus(0, sdk.getRegisterBlockFromShadow(
            0, reg, -1, 0, None, size))
        self.assertEqual(64, size.value)
        block = sdk.Array('uint32', 16)
        self.assertStatus(0, sdk.getRegisterBlockFromShadow(
            0, reg, -1, 0, block, size))
        self.assertEqual([0, 0, 7, 0], list(block)[:4])

    def test_tables_by_base_and_by_address(self):
        mem = sdk.IHB_TCAM_ACTIONm
        base = int(sdk.tableBaseAddr(0, mem, 1))
        table = sdk.findChipMemory(0, mem, base)
        self.assertEqual(2, references(table))
        within = sdk.findChipMemory(0, mem, sdk.ChipAddress(base + 12),
                                    sdk.U32(12))
        self.assertEqual(3, references(table))
        del within
        self.assertEqual(2, references(table))
        self.assertIs(False, sdk.tableNotManagedBySdk(table.pointer))
        for missing in (sdk.findChipMemory(0, mem, base + 1),
                        sdk.findChipMemory(5, mem, base),
                        sdk.findChipMemory(0, mem, sdk.ChipAddress(base - 1),
                                           sdk.U32(2 ** 32 - 1))):
            self.assertIsNone(references(missing))
        other = sdk.OAMP_MEM_100000m
        table = sdk.findChipMemory(0, other,
                                   int(sdk.tableBaseAddr(0, other, 0)))
        self.assertIs(True, sdk.tableNotManagedBySdk(table.pointer))

    def test_ten_thousand_holders_leave_nothing(self):
        shadow = sdk.getHwShadow(0)
        before = references(shadow), hooks.standin_live_objects()
        for _ in xrange(10000):
            sdk.getHwShadow(0)
        self.assertEqual(before,
                         (references(shadow), hooks.standin_live_objects()))
        hooks.standin_shadow_reset()
        self.assertEqual(1, references(shadow))

    def test_dynamic_shadow_of_one_table(self):
        mem = sdk.IQM_PQREDm
        base = int(sdk.tableBaseAddr(0, mem, 0))
        entry = sdk.Array('unsigned int', 2)
        sdk.dynamicShadowEnableIs(0, mem, 0, base, True)
        self.assertIs(True, sdk.dynamicShadowEnable(0, mem, 0, base))
        sdk.check(sdk.soc_mem_write(0, mem, -1, 0, entry))
        sdk.check(sdk.korvel_write_low(0, base, 9))
        sdk.check(sdk.soc_mem_read(0, mem, -1, 0, entry))
        self.assertEqual(0, entry[0])
        sdk.dynamicShadowEnableIs(0, mem, 0, base, False)
        sdk.check(sdk.soc_mem_read(0, mem, -1, 0, entry))
        self.assertEqual(9, entry[0])

    def test_a_fake_device_up_and_down_in_every_order(self):
        steps = (lambda: sdk.mapOmbraDevice(0),
                 lambda: sdk.unmapOmbraDevice(0),
                 lambda: sdk.setupShadowForHwInit(0, False),
                 lambda: sdk.teardownShadowForHwInit(0),
                 lambda: sdk.soc_init(0),
                 lambda: sdk.soc_deinit(0))
        for order in itertools.permutations(steps):
            hooks.standin_reset()
            sdk.check(sdk.addOmbraFapDeviceUnmapped(0, 3, 0, 0, 1))
            self.assertIs(False, sdk.initShadowDestroyed(0))
            for step in order:
                step()
                status = sdk.soc_reg32_set(0, REG, ANY, 0, 3)
                self.assertIn(status, (sdk.SOC_E_NONE, sdk.SOC_E_INIT))
            sdk.mapOmbraDevice(0)
            sdk.teardownShadowForHwInit(0)
            self.assertIs(True, sdk.initShadowDestroyed(0))
            self.assertStatus(0, sdk.soc_init(0))
            self.assertEqual(0, read(0, REG))


if __name__ == '__main__':
    unittest.main()
