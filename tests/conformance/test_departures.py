"""The rows that no prototype describes: results made by hand, arguments that
no kind reads."""

import ctypes
import struct
import sys

from kinds import in_method, null_reference
from support import (BY_NAME, BYTES, CLASSES, FUNCTIONS, MODULE_FILE, OBJECT,
                     RECORDER, TALLY, ConformanceTest, disown, display_name,
                     module, pattern, pointer, storage, stranger)
from test_types import run_python

MAC = '0a:0b:0c:0d:0e:0f'


def size_of(name):
    return [record.size for record in CLASSES if record.name == name][0]


class DepartureTest(ConformanceTest):
    def recorded(self):
        """The values of the last call's arguments."""
        return [RECORDER.argument(i).value for i in range(RECORDER.last.count)]

    def assert_called(self, name, *values):
        self.assertEqual(RECORDER.last.name, name)
        self.assertEqual(self.recorded()[:len(values)], list(values))


class CoverageTest(DepartureTest):
    def test_every_departure_is_tried_here(self):
        tried = set(['bcm_trunk_create', 'bcm_l2_addr_get',
                     'bcm_port_config_get', 'bcm_port_pause_get',
                     'bcm_port_untagged_vlan_get', 'bcm_vlan_port_get',
                     'bcm_stg_stp_get', 'bcm_stg_list', 'bcm_stg_vlan_list',
                     'getHwMacTable', 'getGPortType', 'l2_traverse_cb',
                     'getTrace', 'sdc', 'getHwShadow', 'findChipMemory',
                     'TesselApiGetExtMdioAccess', 'TesselApiSetExtMdioAccess',
                     'TesselApiSetExt84328MdioAccessWrapper',
                     'format_ipaddr'])
        self.assertEqual(set(row.name for row in FUNCTIONS
                             if row.hand_written), tried)


class TrunkCreateTest(DepartureTest):
    def test_a_number_goes_in_and_comes_back(self):
        for status in (0, -4):
            RECORDER.set_result(status)
            self.assertEqual(module.bcm_trunk_create(0, 9, 5), [status, 5])
            self.assert_called('bcm_trunk_create', 0, 9)
            RECORDER.fill(2, struct.pack('<i', -70000))
            self.assertEqual(module.bcm_trunk_create(0, 9, -6),
                             [status, -70000])
            RECORDER.reset()

    def test_a_box_is_filled_and_comes_back_as_a_pointer(self):
        box = module.new_intp()
        module.intp_assign(box, 5)
        for argument in (box, module.intp_cast(box)):
            RECORDER.fill(2, struct.pack('<i', 17))
            status, result = module.bcm_trunk_create(3, 2 ** 32 - 1, argument)
            self.assert_called('bcm_trunk_create', 3, 2 ** 32 - 1, long(box))
            self.assertEqual((status, long(result), result.own()),
                             (0, long(box), False))
            self.assertEqual(module.intp_value(box), 17)
            self.assertIn("'%s'" % display_name('_p_int'), repr(result))
        self.assertTrue(box.own())
        module.delete_intp(box)

    def test_null(self):
        self.assertEqual(module.bcm_trunk_create(0, 0, None), [0, None])
        self.assert_called('bcm_trunk_create', 0, 0, 0)

    def test_anything_else_is_refused(self):
        row = BY_NAME['bcm_trunk_create']
        for wrong in ('x', 1.0, [], stranger('_p_int')):
            self.refuses(row, [0, 0, wrong], TypeError, in_method(row, 2))
        for beyond in (2 ** 31, -2 ** 31 - 1, 2 ** 64):
            self.refuses(row, [0, 0, beyond], OverflowError, in_method(row, 2))
        self.finish()


class AppendedStructureTest(DepartureTest):
    def test_l2_addr_get(self):
        size = size_of('bcm_l2_addr_t')
        block = pattern(size, 4)
        for status in (0, -7):
            RECORDER.set_result(status)
            RECORDER.fill(3, block)
            result = module.bcm_l2_addr_get(1, MAC, 70000)
            self.assertEqual(result[0], status)
            self.assertIs(type(result), list)
            self.assert_called('bcm_l2_addr_get', 1)
            self.assertEqual(RECORDER.bytes_of(1), '\x0a\x0b\x0c\x0d\x0e\x0f')
            self.assertEqual(RECORDER.argument(2).value, 70000 & 0xffff)
            self.assertEqual(RECORDER.argument(3).value, long(result[1]))
            self.assertTrue(result[1].own())
            self.assertIn("'bcm_l2_addr_t *'", repr(result[1]))
            self.assertEqual(ctypes.string_at(long(result[1]), size), block)
            module.delete_bcm_l2_addr_t(result[1])

    def test_the_vlan_is_any_integer_cut_to_16_bits(self):
        for vid, cut in ((-1, 65535), (2 ** 40 + 3, 3), (7L, 7), (True, 1),
                         (1.9, 1), (65536, 0)):
            _, entry = module.bcm_l2_addr_get(0, MAC, vid)
            self.assertEqual(RECORDER.argument(2).value, cut)
            module.delete_bcm_l2_addr_t(entry)

    def test_other_vlans_leave_the_interpreters_exception(self):
        for vid, exception in (('1', TypeError), (None, TypeError),
                               (2 ** 64, OverflowError)):
            calls = RECORDER.last.calls
            with self.assertRaises(exception) as caught:
                module.bcm_l2_addr_get(0, MAC, vid)
            self.assertNotIn('in method', str(caught.exception))
            self.assertEqual(RECORDER.last.calls, calls)

    def test_port_config_get(self):
        block = pattern(min(size_of('bcm_port_config_t'), 4096), 8)
        for status in (0, -3):
            RECORDER.set_result(status)
            RECORDER.fill(1, block)
            result = module.bcm_port_config_get(-5)
            self.assertEqual(result[0], status)
            self.assertIs(type(result), list)
            self.assert_called('bcm_port_config_get', 2 ** 64 - 5,
                               long(result[1]))
            self.assertTrue(result[1].own())
            self.assertIn("'bcm_port_config_t *'", repr(result[1]))
            self.assertEqual(ctypes.string_at(long(result[1]), len(block)),
                             block)
            module.delete_bcm_port_config_t(result[1])

    def test_a_refusal_keeps_no_structure(self):
        """It is there before the arguments are looked at."""
        class Usage(ctypes.Structure):
            _fields_ = [('sizes', ctypes.c_int * 10)]
        mallinfo = ctypes.CDLL(None).mallinfo
        mallinfo.restype = Usage

        def used():
            return mallinfo().sizes[4] + mallinfo().sizes[7]
        used()
        before = used()
        for _ in xrange(100):
            self.assertRaises(TypeError, module.bcm_port_config_get, 'x')
        self.assertLess(used() - before, 50 * size_of('bcm_port_config_t'))


class TupleTest(DepartureTest):
    def assert_result(self, result, expected):
        self.assertIs(type(result), tuple)
        self.assertEqual(result, expected)
        self.assertEqual([type(item) for item in result],
                         [type(item) for item in expected])

    def test_port_pause_get(self):
        for status in (0, -4):
            RECORDER.set_result(status)
            for tx, rx in ((0, 1), (5, 0), (-1, 2 ** 31 - 1)):
                RECORDER.fill(2, struct.pack('<i', tx))
                RECORDER.fill(3, struct.pack('<i', rx))
                self.assert_result(module.bcm_port_pause_get(1, 2),
                                   (status, bool(tx), bool(rx)))
                self.assert_called('bcm_port_pause_get', 1, 2)

    def test_port_untagged_vlan_get(self):
        for status in (0, -4):
            RECORDER.set_result(status)
            RECORDER.fill(2, struct.pack('<H', 65535))
            self.assert_result(module.bcm_port_untagged_vlan_get(1, 2),
                               (status, 65535))
            self.assert_called('bcm_port_untagged_vlan_get', 1, 2)

    def test_vlan_port_get_after_a_failure(self):
        RECORDER.set_result(-7)
        self.assert_result(module.bcm_vlan_port_get(0, 4095),
                           (-7, None, None))
        self.assert_called('bcm_vlan_port_get', 0, 4095)

    def test_stg_stp_get(self):
        words = {0: 'disable', 1: 'discarding', 2: 'listening', 3: 'learning',
                 4: 'forwarding', 5: 'unknown', -1: 'unknown'}
        for state, word in words.items():
            RECORDER.fill(3, struct.pack('<i', state))
            self.assert_result(module.bcm_stg_stp_get(1, 2, 3), (0, word))
            self.assert_called('bcm_stg_stp_get', 1, 2, 3)
        RECORDER.set_result(-7)
        self.assert_result(module.bcm_stg_stp_get(1, 2, 3), (-7,))

    def lists(self, name, form, elements, *arguments):
        """Hands a native array out; the row has to give it back."""
        array = struct.pack('<%d%s' % (len(elements), form), *elements)
        count = len(arguments)
        RECORDER.fill(count, struct.pack('<Q', storage(array)))
        RECORDER.fill(count + 1, struct.pack('<i', len(elements)))
        self.assert_result(getattr(module, name)(*arguments),
                           (0, list(elements)))
        self.assertEqual(RECORDER.last.calls, 2)
        self.assert_called(name + '_destroy', arguments[0], storage(array),
                           len(elements))
        RECORDER.reset()

    def test_lists(self):
        for elements in ([], [1, -1, 2 ** 31 - 1, -2 ** 31]):
            self.lists('bcm_stg_list', 'i', elements, 6)
        for elements in ([], [1, 4095, 65535]):
            self.lists('bcm_stg_vlan_list', 'H', elements, 6, 7)

    def test_lists_after_a_failure(self):
        RECORDER.set_result(-3)
        self.assert_result(module.bcm_stg_list(9), (-3,))
        self.assert_called('bcm_stg_list', 9)
        self.assert_result(module.bcm_stg_vlan_list(9, 2), (-3,))
        self.assert_called('bcm_stg_vlan_list', 9, 2)
        self.assertEqual(RECORDER.last.calls, 2)

    def test_an_array_that_cannot_be_given_back_ends_the_process(self):
        for call, function in (
                ('bcm_stg_list(0)', 'PyObject* bcm_stg_list_wrapper(int)'),
                ('bcm_stg_vlan_list(0, 1)',
                 'PyObject* bcm_stg_vlan_list_wrapper(int, bcm_stg_t)')):
            status, _, errors = run_python(
                'import _OmbraSdkV2Helper as module, ctypes\n'
                'sdk = ctypes.CDLL("libOmbraSdkV2Helper.so.0")\n'
                'sdk.recording_set_result_of(%r, ctypes.c_uint64(-1))\n'
                'module.%s' % (call.split('(')[0] + '_destroy', call))
            self.assertLess(status, 0, errors)
            self.assertIn('rc == BCM_E_NONE', errors)
            self.assertIn(function, errors)


class SnapshotTest(DepartureTest):
    def entry(self, **fields):
        entry = module.new_bcm_l2_addr_t()
        for name, value in fields.items():
            getattr(module, 'bcm_l2_addr_t_%s_set' % name)(entry, value)
        block = ctypes.string_at(long(entry), size_of('bcm_l2_addr_t'))
        module.delete_bcm_l2_addr_t(entry)
        return block

    def walk(self, entries):
        block = ''.join(entries)
        size = len(entries[0]) if entries else 1
        RECORDER.call_back(1, storage(block), size, len(entries))
        return module.getHwMacTable(3)

    def test_rows(self):
        entries = [self.entry(mac=MAC, vid=10, port=5, flags=0x20),
                   self.entry(mac='FF:EE:DD:CC:BB:AA', vid=65535, port=0x1805),
                   self.entry(mac=MAC, vid=1, flags=0x80, tgid=7, port=3),
                   self.entry(mac=MAC, vid=1, flags=0xa0, tgid=-1),
                   self.entry(mac=MAC, vid=0, flags=0x84, tgid=7, port=3),
                   self.entry(mac=MAC, vid=2, port=-1, modid=9)]
        rows = [(MAC, 10, 0x4000005, 'static'),
                ('ff:ee:dd:cc:bb:aa', 65535, 0x4000005, 'dynamic'),
                (MAC, 1, 0xc000007, 'dynamic'), (MAC, 1, 0xfffffff, 'static'),
                (MAC, 0, 0x10000000, 'dynamic'),
                (MAC, 2, 0x40007ff, 'dynamic')]
        table = self.walk(entries)
        self.assertEqual(table, rows)
        self.assertIs(type(table), list)
        self.assertEqual(set(type(row) for row in table), set([tuple]))
        self.assertEqual(RECORDER.last.name, 'bcm_l2_traverse')
        self.assertEqual(RECORDER.argument(0).value, 3)
        kinds = [module.getGPortType(row[2]) for row in table]
        self.assertEqual(kinds, ['local', 'local', 'lag', 'lag', 'blackhole',
                                 'local'])

    def test_the_status_is_dropped(self):
        RECORDER.set_result(-3)
        self.assertEqual(module.getHwMacTable(99), [])
        self.assertEqual(len(self.walk([self.entry(mac=MAC)] * 3)), 3)

    def test_gport_types(self):
        for gport, word in ((0x4000005, 'local'), (0xc000007, 'lag'),
                            (0x10000000, 'blackhole'), (0, 'unknown'),
                            (0x6c000001, 'unknown'), (0x4200000, 'unknown'),
                            (0x10400000, 'unknown'), (2 ** 32, 'unknown'),
                            (2 ** 32 + 0x4000005, 'local'),
                            (2 ** 32 + 0xc000007, 'unknown'),
                            (2 ** 64 - 1, 'unknown')):
            self.assertEqual(module.getGPortType(gport), word, hex(gport))

    def test_the_callback_as_a_row_touches_nothing(self):
        for user_data in (None, pointer('_p_void', 8)):
            with self.assertRaises(ValueError):
                module.l2_traverse_cb(0, pointer('_p_bcm_l2_addr_s', 8),
                                      user_data)


class ExportedHelperTest(DepartureTest):
    SETS = [('bcm_field_qset', '_p_bcm_field_qset_s', 160, 961),
            ('bcm_field_aset', '_p_bcm_field_aset_s', 256, 498)]

    def test_sets(self):
        for name, slot, size, count in self.SETS:
            init, add, remove, test = [
                getattr(module, name + form)
                for form in ('_init', '_add', '_remove', '_test')]
            block = ctypes.create_string_buffer(pattern(size, 1), size)
            members = pointer(slot, ctypes.addressof(block))
            self.assertIsNone(init(members))
            self.assertEqual(block.raw, '\0' * size)
            for e in range(count):
                bit = 1 << e % 32
                self.assertEqual(test(members, e), 0)
                self.assertIsNone(add(members, e))
                self.assertIsNone(add(members, e))
                self.assertEqual(test(members, e), bit)
                word, = struct.unpack_from('<I', block.raw, e // 32 * 4)
                self.assertEqual(word, bit)
                self.assertIsNone(remove(members, e))
                self.assertEqual(block.raw, '\0' * size)
            block.raw = '\xff' * size
            for e in (-1, count, 2 ** 31 - 1, -2 ** 31):
                add(members, e)
                remove(members, e)
                self.assertEqual(test(members, e), 0)
            self.assertEqual(block.raw, '\xff' * size)

    def test_system_ports(self):
        to_gport = module.bcm_get_gport_from_sys_port_id
        from_gport = module.bcm_get_sys_port_id_from_gport
        for port, gport in ((5, 0x6c000005), (0x1000005, 0x6c000005),
                            (-1, 0x6cffffff), (0, 0x6c000000)):
            self.assertEqual(to_gport(port), gport)
            self.assertEqual(from_gport(gport), port & 0xffffff)
        for gport in (0x4000005, -1, -2 ** 31, 0, 0x70000000, 0x6bffffff):
            self.assertEqual(from_gport(gport), -1)

    def test_copy_numbers(self):
        cells = {'egq': (0x1c0e0, 0x1c620), 'ihb': (0x1c104, 0x1c628),
                 'ihp': (0x1c10c, 0x1c62c), 'iqm': (0x1c120, 0x1c634)}
        control = ctypes.create_string_buffer(0x40000)
        units = RECORDER.variable(ctypes.c_void_p * 66, 'soc_control')
        units[7] = ctypes.addressof(control)
        for name, (cores, all_cores) in cells.items():
            struct.pack_into('<iii', control, cores, 11, -12, 13)
            struct.pack_into('<i', control, all_cores, 17)
            read = getattr(module, 'get_copyno_' + name)
            self.assertEqual([read(7, core) for core in (0, 1, -17)],
                             [11, -12, 17], name)
            for core in (2, -1, -2, -16, 17, 2 ** 31 - 1, -2 ** 31):
                self.assertEqual(read(7, core), -1)
            for unit in (-1, 6, 66, 2 ** 31 - 1, -2 ** 31):
                self.assertEqual(read(unit, 0), -1)
        struct.pack_into('<iii', control, 0x3560c, 21, -22, 23)
        self.assertEqual([module.get_copyno_any(7, mem) for mem in range(3)],
                         [21, -22, 23])
        for unit, mem in ((7, -1), (7, 2 ** 31 - 1), (7, -2 ** 31), (6, 0),
                          (66, 0), (-1, 0)):
            self.assertEqual(module.get_copyno_any(unit, mem), -1)
        units[7] = None

    def test_lag_members(self):
        for form in ('add', 'remove'):
            RECORDER.set_result(-5)
            row = getattr(module, 'soc_ppd_lag_member_%s_wrapper' % form)
            self.assertIsNone(row(-1, 2 ** 32 - 1, 2 ** 32 - 2, 9))
            self.assert_called('soc_ppd_lag_member_' + form, 2 ** 64 - 1,
                               2 ** 32 - 1)
            self.assertEqual(RECORDER.argument(2).what, BYTES)
            self.assertEqual(
                RECORDER.bytes_of(2),
                struct.pack('<16I', 0, 2 ** 32 - 2, 9, *[0] * 13))
            if form == 'add':
                self.assertNotEqual(RECORDER.argument(3).value, 0)


class CountedResultTest(DepartureTest):
    """Counted pointers come out in holders that Python owns; the recorder
    holds the object as well."""

    def value(self, slot, size, seed):
        block = pattern(size, seed)
        self.blocks = getattr(self, 'blocks', []) + [block]
        return pointer(slot, storage(block))

    def assert_holder(self, call, type_name):
        RECORDER.set_result(1)
        holder = call()
        self.assertTrue(holder.own())
        self.assertIn("'%s *'" % type_name, repr(holder))
        self.assertEqual(RECORDER.object_references(), 2)
        again = call()
        self.assertEqual(RECORDER.object_references(), 2)
        RECORDER.set_result(0)
        empty = call()
        self.assertTrue(empty.own())
        self.assertEqual(ctypes.c_void_p.from_address(long(empty)).value, None)
        disown([holder, again, empty])

    def test_shadow(self):
        self.assert_holder(lambda: module.getHwShadow(4),
                           'Hardware::HardwareShadow::Ptr')
        self.assert_called('getHwShadow', 4)

    def test_accessor(self):
        objects = [
            self.value('_p_Hardware__TesselApi__UnitId', 4, 1),
            self.value('_p_Hardware__TesselApi__ExternalPhyId', 2, 2),
            self.value('_p_Hardware__PhyBcm__ManagedPhy', 4, 3)]
        self.assert_holder(lambda: module.TesselApiGetExtMdioAccess(*objects),
                           'MdioHamImpl::HamImpl::Ptr')
        self.assertEqual(RECORDER.last.name, 'TesselApiGetExtMdioAccess')
        self.assertEqual([RECORDER.bytes_of(i) for i in range(3)], self.blocks)

    def test_chip_memory_by_base(self):
        self.assert_holder(lambda: module.findChipMemory(1, -2, 3),
                           'Hardware::ChipMemory::Ptr')
        self.assert_called('TesselApi::findChipMemory', 1, 2 ** 64 - 2, 3)
        self.assertEqual(RECORDER.last.count, 3)

    def test_chip_memory_by_address(self):
        objects = [self.value('_p_Hardware__ChipAddress', 8, 1),
                   self.value('_p_U32', 4, 2)]
        self.assert_holder(lambda: module.findChipMemory(1, -2, *objects),
                           'Hardware::ChipMemory::Ptr')
        self.assert_called('TesselApi::findChipMemory', 1, 2 ** 64 - 2)
        self.assertEqual([RECORDER.bytes_of(i) for i in (2, 3)], self.blocks)

    def test_a_holder_is_no_memory(self):
        RECORDER.set_result(1)
        holder = module.findChipMemory(1, 2, 3)
        with self.assertRaises(TypeError):
            module.tableNotManagedBySdk(holder)
        disown(holder)


class FindChipMemoryTest(DepartureTest):
    TEXT = ("Wrong number or type of arguments for overloaded function "
            "'findChipMemory'.\n"
            "  Possible C/C++ prototypes are:\n"
            "    TesselApi::findChipMemory"
            "(int,int,Hardware::ChipAddress,U32)\n"
            "    TesselApi::findChipMemory(int,int,int)\n")

    def test_no_shape_fits(self):
        row = BY_NAME['findChipMemory']
        address = pointer('_p_Hardware__ChipAddress', 8)
        size = pointer('_p_U32', 8)
        for arguments in ([], [1], [1, 2], [1, 2, 3, 4, 5], [1, 2, 'x'],
                          [1, 2, 2 ** 31], [2 ** 64, 2, 3], [1, None, 3],
                          [0, 1, 2, None], [1, 2, size, size],
                          [1, 2, address, address], [1, 2, address, 4],
                          [2 ** 31, 2, address, size], [1.0, 2, 3],
                          [1, '2', address, size], [1, 2, address]):
            self.refuses(row, arguments, NotImplementedError, self.TEXT)
        TALLY.rows.add(row.name)
        self.finish()

    def test_null_passes_the_choice_and_is_refused_behind_it(self):
        row = BY_NAME['findChipMemory']
        block = pattern(8, 1)
        address = pointer('_p_Hardware__ChipAddress', storage(block))
        size = pointer('_p_U32', storage(block))
        for null in (None, pointer('_p_Hardware__ChipAddress', 0)):
            for last in (size, None):
                self.refuses(row, [1, 2, null, last], ValueError,
                             null_reference(row, 2))
        for null in (None, pointer('_p_U32', 0)):
            self.refuses(row, [1, 2, address, null], ValueError,
                         null_reference(row, 3))
        self.finish()

    def test_the_texts_that_the_choice_never_lets_out_are_there(self):
        """A shape has the messages of any row, though the choice refuses what
        they are about; nothing but the module's file shows them."""
        row = BY_NAME['findChipMemory']
        texts = [in_method(row, place) for place in range(4)]
        texts.append("in method 'findChipMemory', argument 3 of type 'int'")
        with open(MODULE_FILE, 'rb') as module_file:
            content = module_file.read()
        for text in texts:
            self.assertIn(text + '\0', content)
            TALLY.note(text)


class TextResultTest(DepartureTest):
    def test_toolkit_texts(self):
        for text in ('', 'a trace', 'x' * 100000):
            RECORDER.set_text(text)
            self.assertEqual(module.getTrace(), text)
            self.assert_called('getTrace')
            self.assertEqual(module.sdc(-1, 'help'), text)
            self.assert_called('sdc', 2 ** 64 - 1)
            self.assertEqual(RECORDER.bytes_of(1), 'help')
        RECORDER.set_text('cut\0off')
        self.assertEqual(module.getTrace(), 'cut')
        self.assertIs(type(module.sdc(0, None)), str)
        self.assert_called('sdc', 0, 0)

    def test_native_exceptions(self):
        RECORDER.throw()
        for call in (module.getTrace, lambda: module.sdc(0, 'x'),
                     lambda: module.getHwShadow(0),
                     lambda: module.findChipMemory(0, 1, 2),
                     lambda: module.bcm_port_config_get(0),
                     lambda: module.bcm_l2_addr_get(0, MAC, 1),
                     lambda: module.bcm_trunk_create(0, 0, 0),
                     lambda: module.bcm_stg_list(0),
                     lambda: module.getHwMacTable(0)):
            with self.assertRaisesRegexp(RuntimeError, '^recorded$'):
                call()


class FormatAddressTest(DepartureTest):
    def address(self):
        self.block = '\1\2\3\4'
        return pointer('_p_ip_addr_t', storage(self.block))

    def test_the_text_goes_in_and_does_not_come_back(self):
        for text in ('', '10.0.0.1', 'x' * 15):
            given = ''.join([text])
            RECORDER.fill(0, 'overwritten\0')
            self.assertIsNone(module.format_ipaddr(given, self.address()))
            self.assertEqual(given, text)
            self.assert_called('format_ipaddr')
            self.assertNotEqual(RECORDER.argument(0).value, storage(given))
            self.assertEqual(RECORDER.bytes_of(1), self.block)
        self.assertIsNone(module.format_ipaddr(None, self.address()))
        native = 'native'
        module.format_ipaddr(pointer('_p_char', storage(native)),
                             self.address())

    def test_refusals(self):
        row = BY_NAME['format_ipaddr']
        for wrong in ('x' * 16, 'x' * 1000, '\0' * 16, 5, u'10.0.0.1', [],
                      stranger('_p_char')):
            self.refuses(row, [wrong, self.address()], TypeError,
                         in_method(row, 0))
        self.finish()


class BridgeTest(DepartureTest):
    """The MDIO bridge up to the helper library, which keeps nothing here but
    what the recorder holds."""

    def setUp(self):
        DepartureTest.setUp(self)
        self.accessor = [object]  # a new one, with a count of its own
        self.phy = pointer('_p_Hardware__PhyBcm__ManagedPhy',
                           storage('\5\0\0\0'))

    def set_access(self, unit, phy_id):
        return module.TesselApiSetExtMdioAccess(unit, phy_id, self.accessor,
                                                self.phy)

    def set_84328(self, unit, phy_id):
        return module.TesselApiSetExt84328MdioAccessWrapper(unit, phy_id,
                                                            self.accessor)

    def test_the_accessor_arrives(self):
        for call, kind in ((self.set_access, 5), (self.set_84328, 3)):
            for unit, phy_id, arrives in ((3, 17, 17), (0, 0, 0),
                                          (255, 0x3ff, 0x3ff), (1, 65536, 0)):
                before = sys.getrefcount(self.accessor)
                self.assertIsNone(call(unit, phy_id))
                self.assertEqual(RECORDER.last.name,
                                 'TesselApiSetExtMdioAccess')
                self.assertEqual(
                    [RECORDER.bytes_of(i) for i in (0, 1, 3)],
                    [struct.pack('<I', unit), struct.pack('<H', arrives),
                     struct.pack('<I', kind)])
                ham = RECORDER.argument(2)
                self.assertEqual(ham.what, OBJECT)
                self.assertEqual(ctypes.string_at(ham.bytes),
                                 'PythonAccess-%d-%d' % (unit, phy_id))
                self.assertEqual(RECORDER.object_references(), 1)
                self.assertEqual(sys.getrefcount(self.accessor), before + 1)
                RECORDER.reset()  # the last reference: the accessor dies
                self.assertEqual(sys.getrefcount(self.accessor), before)
