"""Registers and memories as an agent reaches them."""

import unittest

from device_support import ANY, DeviceTest, read, sdk


def identifiers(ending):
    """The names of the constants in capitals that end in this letter."""
    return [name for name in dir(sdk)
            if name[:-1].isupper() and name[-1] == ending
            and isinstance(getattr(sdk, name), int)]


class RegistersTest(DeviceTest):

    def test_widths_up_to_64_bits(self):
        address = sdk.soc_reg_addr(0, sdk.RBYTr, 7, 0)
        self.assertStatus(0, sdk.soc_reg_write(0, sdk.RBYTr, address,
                                               2 ** 64 - 1))
        self.assertEqual(2 ** 48 - 1, read(0, sdk.RBYTr, 7))
        self.assertEqual(0xffff, sdk.korvel_read_low(0, address + 4))
        self.assertEqual(2 ** 32 - 1, sdk.korvel_read_low(0, address))
        self.assertStatus(sdk.SOC_E_PARAM, sdk.soc_reg32_set(
            0, sdk.RBYTr, 7, 0, 1))

    def test_the_widest_in_an_array(self):
        reg = sdk.CGM_CGM_MC_DB_SP_TC_THr
        value = sdk.Array('unsigned int', 20)
        for i, field in enumerate((sdk.CGM_MC_DB_SP_TC_TH_0f,
                                   sdk.CGM_MC_DB_SP_TC_TH_1f,
                                   sdk.CGM_MC_DB_SP_TC_TH_15f)):
            sdk.soc_reg_above_64_field32_set(0, reg, value, field, 0xa000 + i)
        self.assertStatus(0, sdk.soc_reg_above_64_set(0, reg, ANY, 0, value))
        back = sdk.Array('unsigned int', 20)
        self.assertStatus(0, sdk.soc_reg_above_64_get(0, reg, ANY, 0, back))
        self.assertEqual(list(value), list(back))
        self.assertEqual(0xa002, sdk.soc_reg_above_64_field64_get(
            0, reg, back, sdk.CGM_MC_DB_SP_TC_TH_15f))

    def test_every_constant_has_a_register_and_others_a_status(self):
        names = identifiers('r')
        self.assertEqual(132, len(names))
        value = sdk.Array('unsigned int', 20)
        for name in names:
            self.assertStatus(0, sdk.soc_reg_above_64_get(
                0, getattr(sdk, name), 0, 0, value))
        self.assertStatus(sdk.SOC_E_NOT_FOUND,
                          sdk.soc_reg_above_64_get(0, 1, 0, 0, value))

    def test_every_memory_constant_has_a_table_and_others_a_status(self):
        names = identifiers('m')
        self.assertEqual(72, len(names))
        entry = sdk.Array('unsigned int', 20)
        for name in names:
            mem = getattr(sdk, name)
            self.assertStatus(0, sdk.soc_mem_read(
                0, mem, sdk.get_copyno_any(0, mem), 0, entry))
        self.assertStatus(sdk.SOC_E_NOT_FOUND,
                          sdk.soc_mem_read(0, 371, -1, 0, entry))

    def test_copies_of_a_table(self):
        entry = sdk.Array('unsigned int', 1)
        entry[0] = 5
        mem = sdk.IHB_PINFO_FLPm
        core1 = sdk.get_copyno_ihb(0, 1)
        self.assertStatus(0, sdk.soc_mem_write(
            0, mem, sdk.get_copyno_ihb(0, -17), 9, entry))
        entry[0] = 6
        self.assertStatus(0, sdk.soc_mem_write(0, mem, core1, 9, entry))
        for copy, expected in ((core1, 6), (sdk.get_copyno_ihb(0, 0), 5),
                               (sdk.get_copyno_any(0, mem), 5)):
            self.assertStatus(0, sdk.soc_mem_read(0, mem, copy, 9, entry))
            self.assertEqual(expected, entry[0])
        self.assertStatus(sdk.SOC_E_PARAM, sdk.soc_mem_read(
            0, mem, sdk.get_copyno_egq(0, 0), 9, entry))
        self.assertEqual(5, sdk.soc_mem_field32_get(
            0, mem, sdk.Array('unsigned int', [0x2a]), sdk.PROFILEf))

    def test_modify_takes_a_port_object(self):
        port = sdk.soc_phy_addr_to_port(0, 9)
        self.assertStatus(0, sdk.soc_reg_field32_modify(
            0, sdk.PORT_CNTMAXSIZEr, port, sdk.CNTMAXSIZEf, 9000))
        self.assertEqual(9000, read(0, sdk.PORT_CNTMAXSIZEr, 9))
        self.assertEqual(1518, read(0, sdk.PORT_CNTMAXSIZEr, 10))
        self.assertStatus(sdk.SOC_E_PARAM, sdk.soc_reg_field32_modify(
            0, sdk.PORT_CNTMAXSIZEr, port, sdk.CNTMAXSIZEf, 0x4000))
        self.assertEqual(1, sdk.soc_reg_port_idx_valid(
            0, sdk.PORT_CNTMAXSIZEr, port, 0))

    def test_texts_land_in_the_string_given(self):
        info = sdk.soc_regaddrinfo_t()
        sdk.soc_regaddrinfo_get(0, info,
                                sdk.soc_reg_addr(0, sdk.EGQ_TTL_SCOPEr, 1, 3))
        text = 'x' * 80
        sdk.soc_reg_sprint_addr(0, text, info)
        self.assertEqual('EGQ_TTL_SCOPE.1[3]', text.split('\0')[0])
        text = 'y' * 80
        sdk.soc_reg_sprint_data(0, text, '=', sdk.EGQ_TTL_SCOPEr, 5)
        self.assertEqual('TTL_SCOPE=0x5', text.split('\0')[0])

    def test_the_shell_reads_what_the_calls_wrote(self):
        sdk.check(sdk.soc_reg32_set(0, sdk.IHB_LEARNING_CFGr, 1, 0, 6))
        shown = sdk.sdc(0, 'getreg IHB_LEARNING_CFG.1 fields')
        self.assertIn(' = 0x6\n', shown)
        self.assertIn('  LEARN_ENABLE<1> = 0x0\n', shown)
        self.assertIn('  INGRESS_LEARNING<1> = 0x1\n', shown)
        sdk.sdc(0, 'modreg IHB_LEARNING_CFG.1 LEARN_ENABLE=1')
        self.assertEqual(7, read(0, sdk.IHB_LEARNING_CFGr, 1))

    def test_null_for_what_is_filled(self):
        self.assertStatus(sdk.SOC_E_PARAM,
                          sdk.soc_reg_get(0, sdk.RBYTr, 7, 0, None))
        self.assertStatus(sdk.SOC_E_PARAM,
                          sdk.soc_mem_read(0, sdk.CGM_HAPMm, -1, 0, None))
        sdk.soc_regaddrinfo_get(0, None, 0)
        sdk.soc_reg_above_64_datamask(0, sdk.RBYTr, 0, None)
        self.assertStatus(sdk.SOC_E_PARAM, sdk.soc_reg_iterate(0, None, None))



if __name__ == '__main__':
    unittest.main()
