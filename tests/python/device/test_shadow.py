"""The objects of the shadow, counted from Python."""

import unittest

from device_support import DeviceTest, bench, references, sdk


class ShadowTest(DeviceTest):

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
        before = references(shadow), bench.live_objects()
        for _ in xrange(10000):
            sdk.getHwShadow(0)
        self.assertEqual(before,
                         (references(shadow), bench.live_objects()))
        bench.shadow_reset()
        self.assertEqual(1, references(shadow))


if __name__ == '__main__':
    unittest.main()
