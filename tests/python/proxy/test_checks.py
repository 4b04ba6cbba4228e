"""Statuses as exceptions, and the small helpers around a call."""

import copy
import logging
import pickle
import unittest
import weakref

import OmbraSdkV2Helper as sdk
from proxy_support import started_unit


class CheckTest(unittest.TestCase):

    def test_a_refusal_says_what_it_means(self):
        with self.assertRaises(sdk.SdkError) as caught:
            sdk.check(sdk.bcm_vlan_create(99, 1))
        error = caught.exception
        self.assertEqual((error.status, error.name), (-3, 'BCM_E_UNIT'))
        self.assertIn('BCM_E_UNIT (-3): there is no such unit', str(error))

    def test_every_status_of_the_sdk_has_a_meaning(self):
        for name, status in vars(sdk).iteritems():
            family = 'CMD_' if name.startswith('CMD_') else 'BCM_E_'
            if name.startswith(('BCM_E_', 'SOC_E_', 'CMD_')) and status < 0:
                error = sdk.SdkError(status, None, family)
                self.assertEqual(error.name[4:], name[4:])
                self.assertNotIn('unknown', error.meaning)
        self.assertIn('-99', str(sdk.SdkError(-99)))

    def test_what_is_left_of_a_result(self):
        row = ('00:11:22:33:44:55', 100, 0x4000003, 'dynamic')
        for result, rest in (
                (0, 0), (5, 5), ([0, 7], 7), ((0, 'x'), 'x'),
                ((0, 1, 2), (1, 2)), ((0,), ()), (None, None), ('a', 'a'),
                ([], []), ([1L, 2L], [1L, 2L]), ([row], [row]), (row, row),
                ((True, 1), (True, 1))):
            self.assertEqual(sdk.check(result), rest)
            self.assertIs(type(sdk.check(result)), type(rest))
        for result in (-1, [-1, 7], (-1,), (-1, None, None)):
            self.assertRaises(sdk.SdkError, sdk.check, result)

    def test_an_error_can_be_copied_and_sent(self):
        error = sdk.SdkError(-6, 'bcm_l2_addr_add')
        for twin in (copy.copy(error), copy.deepcopy(error),
                     pickle.loads(pickle.dumps(error, 2))):
            self.assertEqual(str(twin), str(error))
            self.assertEqual(twin.function, 'bcm_l2_addr_add')

    def test_a_call_names_the_function_and_knows_what_it_returns(self):
        with self.assertRaises(sdk.SdkError) as caught:
            sdk.call(sdk.bcm_vlan_create, 99, 1)
        self.assertIn('bcm_vlan_create: BCM_E_UNIT (-3): there is no such unit',
                      str(caught.exception))
        with self.assertRaisesRegexp(TypeError, r'got 1: it is bcm_vlan_create'
                                     r'\(unit, vid\)'):
            sdk.call(sdk.bcm_vlan_create, 100)
        with self.assertRaises(sdk.SdkError) as caught:
            sdk.call(sdk.sh_process_command, started_unit(), 'no-such-word')
        self.assertTrue(caught.exception.name.startswith('CMD_'))
        # A number that is no status, though it is declared as one would be.
        self.assertEqual(sdk.call(sdk.get_copyno_egq, 99, 0), -1)


class ResultFormTest(unittest.TestCase):
    """What check() and call() leave of each function that gives more than a
    status."""

    def setUp(self):
        self.unit = started_unit()
        sdk.bcm_vlan_create(self.unit, 7)
        sdk.call(sdk.bcm_l2_addr_add, self.unit,
                 sdk.bcm_l2_addr_t(mac='0:0:0:0:0:7', vid=7, port=1))
        self.addCleanup(sdk.bcm_vlan_destroy, self.unit, 7)
        self.addCleanup(sdk.bcm_field_init, self.unit)
        sdk.bcm_field_init(self.unit)

    def good(self, function, *args):
        rest = sdk.call(function, self.unit, *args)
        self.assertEqual(sdk.check((0, rest)), rest)
        return rest

    def refused(self, function, *args):
        self.assertRaises(sdk.SdkError, sdk.call, function, 99, *args)
        self.assertRaises(sdk.SdkError, sdk.check, function(99, *args))

    def test_appended_numbers(self):
        qset = sdk.bcm_field_qset_t()
        group = self.good(sdk.bcm_field_group_create, qset, 1)
        entry = self.good(sdk.bcm_field_entry_create, group)
        self.assertEqual(map(type, (group, entry)), [int, int])
        for function, args in (
                (sdk.bcm_field_entry_create, (group,)),
                (sdk.bcm_field_group_default_entry_get, (group,)),
                (sdk.bcm_field_group_create, (qset, 1)),
                (sdk.bcm_field_group_create_mode, (qset, 1, 0)),
                (sdk.bcm_field_group_wlan_create_mode, (qset, 1, 0)),
                (sdk.bcm_field_group_port_create_mode, (1, qset, 1, 0)),
                (sdk.bcm_field_group_ports_create_mode, ([1], qset, 1, 0)),
                (sdk.bcm_field_qualify_ExactMatchGroupClassId_get,
                 (entry, 1)),
                (sdk.bcm_trunk_psc_get, (1,)),
                (sdk.bcm_trunk_get, (1, sdk.bcm_trunk_info_t(), 0, None)),
                (sdk.bcm_trunk_create, (0, 5))):
            self.refused(function, *args)
        trunk = self.good(sdk.bcm_trunk_create, 0, 5)
        self.addCleanup(sdk.bcm_trunk_destroy, self.unit, trunk)
        info = sdk.bcm_trunk_info_t()
        self.assertEqual(self.good(sdk.bcm_trunk_get, trunk, info, 0, None), 0)

    def test_appended_structures(self):
        entry = self.good(sdk.bcm_l2_addr_get, '0:0:0:0:0:7', 7)
        self.assertEqual((type(entry), entry.vid), (sdk.bcm_l2_addr_t, 7))
        self.assertIs(type(self.good(sdk.bcm_port_config_get)),
                      sdk.bcm_port_config_t)
        self.refused(sdk.bcm_l2_addr_get, '0:0:0:0:0:7', 7)
        self.refused(sdk.bcm_port_config_get)

    def test_tuples(self):
        unit = self.unit
        pause = sdk.call(sdk.bcm_port_pause_get, unit, 1)
        self.assertEqual(map(type, pause), [bool, bool])
        self.assertIs(type(self.good(sdk.bcm_port_untagged_vlan_get, 1)), int)
        sdk.call(sdk.bcm_vlan_port_add, unit, 7, [1, 2], [2])
        self.assertEqual(sdk.call(sdk.bcm_vlan_port_get, unit, 7),
                         ([1L, 2L], [2L]))
        group = self.good(sdk.bcm_stg_list)[0]
        self.assertIs(type(self.good(sdk.bcm_stg_stp_get, group, 1)), str)
        self.assertIn(7, self.good(sdk.bcm_stg_vlan_list, group))
        for function, args in (
                (sdk.bcm_port_pause_get, (1,)),
                (sdk.bcm_port_untagged_vlan_get, (1,)),
                (sdk.bcm_vlan_port_get, (7,)), (sdk.bcm_stg_list, ()),
                (sdk.bcm_stg_stp_get, (1, 1)), (sdk.bcm_stg_vlan_list, (1,))):
            self.refused(function, *args)

    def test_what_has_no_status_comes_back_whole(self):
        rows = [('00:00:00:00:00:07', 7, 0x4000001, 'dynamic')]
        for checked in (sdk.check(sdk.getHwMacTable(self.unit)),
                        sdk.call(sdk.getHwMacTable, self.unit)):
            self.assertEqual(checked, rows)
        self.assertEqual(sdk.check(sdk.getHwMacTable(99)), [])
        self.assertEqual(sdk.call(sdk.getGPortType, rows[0][2]), 'local')
        self.assertIsNone(sdk.call(sdk.bcm_l2_addr_t_init,
                                   sdk.bcm_l2_addr_t(), '0:0:0:0:0:1', 1))


class AidTest(unittest.TestCase):

    def test_port_lists_go_round(self):
        unit = started_unit()
        sdk.bcm_vlan_create(unit, 8)
        self.addCleanup(sdk.bcm_vlan_destroy, unit, 8)
        sdk.check(sdk.bcm_vlan_port_add(unit, 8, [3, 1], []))
        members, _ = sdk.check(sdk.bcm_vlan_port_get(unit, 8))
        self.assertRaises(TypeError, sdk.bcm_vlan_port_remove, unit, 8,
                          members)
        sdk.check(sdk.bcm_vlan_port_remove(unit, 8, sdk.ports(members)))
        self.assertEqual(sdk.ports(x for x in (1L, 2)), [1, 2])
        self.assertRaises(TypeError, sdk.ports, ['1'])

    def test_global_ports_go_both_ways(self):
        for kind, number, whole in (
                ('local', 5, 0x4000005), ('lag', 7, 0xc000007),
                ('blackhole', 0, 0x10000000), ('system', 9, 0x6c000009)):
            self.assertEqual(sdk.gport(kind, number), whole)
            self.assertEqual(sdk.gport_parts(whole), (kind, number))
            if kind != 'system':
                self.assertEqual(sdk.getGPortType(whole), kind)
        self.assertEqual(sdk.gport('system', 9),
                         sdk.bcm_get_gport_from_sys_port_id(9))
        for value in (0, 5, -1, 0x10000001, 0x4000800):
            self.assertEqual(sdk.gport_parts(value), ('unknown', value))
        for wrong in (('local', 2048), ('lag', -1), ('blackhole', 1),
                      ('port', 1)):
            self.assertRaises(ValueError, sdk.gport, *wrong)

    def test_flags_are_those_of_the_table(self):
        unit = started_unit()
        for flags, port, word in (
                (sdk.L2_FLAG_STATIC, 'local', 'static'),
                (sdk.L2_FLAG_BLACKHOLE, 'blackhole', 'dynamic')):
            sdk.call(sdk.bcm_l2_addr_add, unit, sdk.bcm_l2_addr_t(
                mac='0:0:0:0:0:1', vid=1, port=1, flags=flags))
            row, = sdk.getHwMacTable(unit)
            self.assertEqual((sdk.gport_parts(row[2])[0], row[3]),
                             (port, word))

    def test_fields_of_table_entries_are_set(self):
        unit = started_unit()
        table, field = sdk.CGM_HAPMm, sdk.VALUEf
        entry = sdk.Array('uint32', [0xffffffff] * 2)
        sdk.mem_field_set(unit, table, entry, field, 5)
        self.assertEqual(sdk.mem_field_get(unit, table, entry, field), 5)
        others = entry.copy()
        sdk.mem_field_set(unit, table, entry, field, 6)
        sdk.mem_field_set(unit, table, entry, field, 5)
        self.assertEqual(entry, others)
        for wrong in (-1, 1 << 40):
            self.assertRaises(ValueError, sdk.mem_field_set, unit, table,
                              entry, field, wrong)
        self.assertRaises(ValueError, sdk.mem_field_set, unit, table, entry,
                          -5, 1)
        self.assertEqual(entry, others)

    def test_callbacks_are_registered_for_a_block(self):
        unit = started_unit()
        sdk.check(sdk.bcm_vlan_create(unit, 4))
        heard = []
        with sdk.registered(sdk.bcm_l2_addr_register,
                            sdk.bcm_l2_addr_unregister, unit,
                            lambda _, entry, event: heard.append(entry.vid)):
            sdk.call(sdk.bcm_l2_addr_add, unit, sdk.bcm_l2_addr_t(
                mac='0:0:0:0:0:1', vid=4, port=1))
        sdk.call(sdk.bcm_l2_addr_delete, unit, '0:0:0:0:0:1', 4)
        self.assertEqual(heard, [4])

    def test_each_registration_ends_with_its_block(self):
        unit = started_unit()
        ended = []
        tables = dict(sdk._tables.CALLBACKS, **sdk._tables.BOUND)
        for name, entry in tables.iteritems():
            twin = getattr(sdk, name[:-8] + 'unregister', None)
            register = getattr(sdk, name)
            if not name.endswith('_register') or twin is None:
                continue
            names = register.__doc__.partition('(')[2].split(')')[0].split(', ')
            family = 'cosq' if '_cosq_' in name else 'oam'
            types = getattr(sdk, 'bcm_%s_event_types_t' % family)()
            args = [{'unit': unit, 'port': 1, 'name': name,
                     'event_types': types, 'reg': sdk.CLP_XMAC_PAUSE_CTRLr
                     }.get(one, 0) for one in names]
            args[entry[1]] = max
            if len(entry) == 3:
                del args[entry[2]]
            try:
                with sdk.registered(register, twin, *args):
                    ended.append(name)
            except sdk.SdkError as error:
                self.assertEqual(error.function, name)
        self.assertGreater(len(ended), 10, ended)

    def test_a_callback_without_a_cookie_is_bound_for_a_block(self):
        unit = started_unit()
        with sdk.registered(sdk.bcm_linkscan_register,
                            sdk.bcm_linkscan_unregister, unit, max):
            self.assertIs(sdk.bind(sdk.bcm_linkscan_handler_t, max), max)
            with self.assertRaises(sdk.SdkError):
                sdk.registered(sdk.bcm_linkscan_register,
                               sdk.bcm_linkscan_unregister, 99,
                               min).__enter__()
            self.assertIs(sdk.bind(sdk.bcm_linkscan_handler_t, max), max)
        self.assertIsNone(sdk.bind(sdk.bcm_linkscan_handler_t, None))

    def test_a_unit_is_started_for_a_block(self):
        unit = started_unit()
        with sdk.started(unit):
            self.assertEqual(sdk.bcm_vlan_create(unit, 5), 0)
        self.assertEqual(sdk.bcm_vlan_create(unit, 6), sdk.BCM_E_INIT)
        with self.assertRaises(KeyError), sdk.started(unit):
            sdk.soc_deinit(unit)
            raise KeyError
        with self.assertRaises(sdk.SdkError), sdk.started(unit):
            sdk.soc_deinit(unit)
        with self.assertRaises(sdk.SdkError), sdk.started(99):
            pass

    def test_an_mdio_object_serves_for_a_block(self):
        class Mdio(object):
            write = None

            def __init__(self, value):
                self.read = lambda *_: value

        def read():
            value = sdk.box('uint32')
            status = sdk.soc_phyctrl_reg_read(unit, sdk.soc_port_t(9), 0, 1,
                                              value)
            return status or value.value

        unit = started_unit()
        sdk.call(sdk.soc_phy_init, unit)
        with sdk.mdio_access(unit, 9, Mdio(7)) as outer:
            with sdk.mdio_access(unit, 9, Mdio(8)):
                self.assertEqual(read(), 8)
            self.assertEqual(read(), 7)
        gone = weakref.ref(outer)
        del outer
        self.assertIsNone(gone())
        self.assertEqual(read(), sdk.BCM_E_FAIL)

    def test_trace_and_log_go_to_a_logger(self):
        unit = started_unit()
        lines = []
        logger = logging.Logger('trace')
        handler = logging.Handler()
        handler.emit = lambda record: lines.append(record.getMessage())
        logger.addHandler(handler)
        with sdk.trace_to(logger):
            sdk.sh_process_command(unit, 'echo traced')
        self.assertIn('traced', '\n'.join(lines))
        sdk.KorvelSetTraceLevel(5, 22, 4)
        with sdk.log_to(logger):
            sdk.KorvelWriteBslLogMsg('f', 1, 'm', 4, 5, 22, unit, 'logged\n')
        self.assertIn('logged', lines[-1])

    def test_values_compare_with_numbers(self):
        five = sdk.U32(5)
        self.assertTrue(five == 5 and five != 6 and five < 6 and five >= 5L)
        self.assertTrue(five == sdk.U32(5) and five != sdk.U32(6))
        self.assertFalse(five == 'five' or five == sdk.UnitId(5))
        self.assertEqual(int(sdk.box('int', 7)), 7)
        self.assertRaises(TypeError, int, sdk.Array('int', 2))

    def test_deep_copies_share_no_memory(self):
        address = sdk.bcm_ip_addr_t(protocol=4)
        array = sdk.Array('int', [1, 2])
        one, two, value = copy.deepcopy([address, array, sdk.U32(5)])
        address.addr.ipv4_addr, array[0] = 9, 9
        self.assertEqual((one.protocol, one.addr.ipv4_addr), (4, 0))
        self.assertEqual((list(two), value), ([1, 2], 5))


if __name__ == '__main__':
    unittest.main()
