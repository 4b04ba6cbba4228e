"""The classes of structures: fields, construction, equality, ownership."""

import gc
import unittest
import weakref

import OmbraSdkV2Helper as sdk
import _OmbraSdkV2Classes as tables
import _OmbraSdkV2Helper as native
from proxy_support import run_child
from totals import TOTALS


class FieldTest(unittest.TestCase):

    def test_a_new_structure_is_zero_and_takes_fields_as_keywords(self):
        entry = sdk.bcm_l2_addr_t(mac='0:11:22:33:44:55', vid=5,
                                  block_bitmap=(3, 70))
        self.assertEqual(entry.mac, '00:11:22:33:44:55')
        self.assertEqual((entry.vid, entry.port), (5, 0))
        self.assertEqual(entry.block_bitmap, [3, 70])
        self.assertEqual(repr(entry),
                         "bcm_l2_addr_t(mac='00:11:22:33:44:55', vid=5, "
                         "block_bitmap=[3, 70])")
        self.assertTrue(eval(repr(entry), vars(sdk)).equals(entry))

    def test_values_that_do_not_fit_leave_the_field_alone(self):
        entry = sdk.bcm_l2_addr_t(vid=5)
        for value, error in ((65536, OverflowError), ('5', TypeError)):
            with self.assertRaises(error) as caught:
                entry.vid = value
            self.assertIn("'bcm_l2_addr_t_vid_set', argument 2",
                          str(caught.exception))
        self.assertEqual(entry.vid, 5)

    def test_a_misspelled_field_is_refused(self):
        with self.assertRaises(AttributeError):
            sdk.bcm_l2_addr_t(vdi=5)
        entry = sdk.bcm_l2_addr_t()
        with self.assertRaises(AttributeError):
            entry.vdi = 5

    def test_port_lists_go_out_and_in_again(self):
        entry = sdk.bcm_l2_addr_t(block_bitmap=[1L, 2])
        entry.sa_source_filter_pbmp = entry.block_bitmap
        self.assertEqual(entry.sa_source_filter_pbmp, [1, 2])
        with self.assertRaises(TypeError):
            entry.block_bitmap = ['1']

    def test_union_members_share_their_memory(self):
        self.assertEqual(sdk.any_t(u8=255).u64, 255)

    def test_texts_and_values(self):
        command = sdk.cmd_t(c_help='what it does',
                            c_cmd=sdk.parse_key_t('show'))
        self.assertEqual(command.c_help, 'what it does')
        self.assertEqual(command.c_cmd.value, 'show')
        self.assertIsNone(sdk.cmd_t().c_help)

    def test_every_class_is_there_with_all_its_fields(self):
        fields = 0
        for name, table in tables.CLASSES:
            made = getattr(sdk, name)()
            for line in table.splitlines():
                field, _, declared = line.partition(': ')
                getattr(made, field)
                self.assertEqual(getattr(type(made), field).__doc__, declared)
                fields += 1
            self.assertTrue(made.copy().equals(made), name)
            self.assertEqual(repr(made), name + '()')
        self.assertEqual((len(tables.CLASSES), fields),
                         (TOTALS['classes'], TOTALS['fields']))


class EqualityTest(unittest.TestCase):

    def test_two_structures_are_equal_by_fields_on_request(self):
        one = sdk.bcm_ip_addr_t(protocol=4)
        two = sdk.bcm_ip_addr_t(protocol=4)
        self.assertTrue(one.equals(two))
        two.addr.ipv4_addr = 1
        self.assertFalse(one.equals(two))
        self.assertFalse(one.equals(sdk.bcm_l2_addr_t()))
        self.assertFalse(one.equals(None))

    def test_otherwise_the_native_object_counts(self):
        address = sdk.bcm_ip_addr_t()
        self.assertEqual(address.addr, address.addr)
        self.assertEqual(len({address.addr, address.addr}), 1)
        self.assertNotEqual(address, address.copy())
        self.assertNotEqual(address, 5)

    def test_a_copy_goes_its_own_way(self):
        one = sdk.bcm_ip_addr_t(protocol=4)
        two = one.copy()
        two.addr.ipv4_addr = 7
        self.assertEqual(one.addr.ipv4_addr, 0)
        self.assertEqual(two.protocol, 4)


class LifetimeTest(unittest.TestCase):

    def test_an_alias_writes_into_its_parent_and_keeps_it(self):
        address = sdk.bcm_ip_addr_t()
        inner = address.addr
        inner.ipv4_addr = 0x0a000001
        self.assertEqual(address.addr.ipv4_addr, 0x0a000001)
        gone = weakref.ref(address)
        del address
        gc.collect()
        self.assertIsNotNone(gone())
        self.assertEqual(inner.ipv4_addr, 0x0a000001)
        del inner
        self.assertIsNone(gone())

    def test_a_new_structure_owns_its_memory_and_an_alias_does_not(self):
        address = sdk.bcm_ip_addr_t()
        self.assertTrue(address.this.own())
        self.assertFalse(address.addr.this.own())
        native.delete_bcm_ip_addr_t(address)
        self.assertFalse(address.this.own())

    def test_the_module_frees_what_dies(self):
        # Without a destructor the runtime would say so, once for each.
        output, _ = run_child('-c', '''if True:
            import OmbraSdkV2Helper as sdk
            sdk.bcm_l2_addr_t()
            sdk.intp()
            sdk.U32(5)
            sdk.getDevId(0)
            sdk.getHwShadow(0)
            sdk.findChipMemory(0, 1, 2)
            sdk.bcm_port_info_t().interface
            sdk.bcm_l2_addr_get(0, '0:0:0:0:0:0', 1)''')
        self.assertNotIn('memory leak', output)

    def test_results_come_back_as_instances(self):
        status, entry = sdk.bcm_l2_addr_get(99, '0:0:0:0:0:0', 1)
        self.assertEqual(status, sdk.BCM_E_UNIT)
        self.assertIs(type(entry), sdk.bcm_l2_addr_t)
        self.assertTrue(entry.this.own())

    def test_a_weak_proxy_passes_as_the_structure(self):
        entry = sdk.bcm_l2_addr_t(vid=9)
        weak = weakref.proxy(entry)
        self.assertEqual(native.bcm_l2_addr_t_vid_get(weak), 9)
        del entry
        with self.assertRaises(TypeError):
            native.bcm_l2_addr_t_vid_get(weak)

    def test_a_stored_structure_belongs_to_its_new_parent(self):
        packet = sdk.bcm_pkt_s()
        block = sdk.bcm_pkt_blk_t(len=64)
        packet.pkt_data = block
        self.assertFalse(block.this.own())
        self.assertEqual(packet.pkt_data.len, 64)
        self.assertEqual(packet.pkt_data, block)
        block.this.own(True)
        packet.pkt_data = None
        self.assertIsNone(packet.pkt_data)

    def test_a_stored_array_is_kept(self):
        block = sdk.bcm_pkt_blk_t(data=sdk.Array('uint8', 'abc'), len=3)
        gc.collect()
        data = sdk.view('uint8', block.data, block.len)
        self.assertEqual(data.bytes(), 'abc')

    def test_a_subclass_is_a_structure_too(self):
        class Station(sdk.bcm_l2_addr_t):
            label = ''

        station = Station(vid=5)
        station.label = 'printer'
        self.assertEqual(native.bcm_l2_addr_t_vid_get(station), 5)
        self.assertEqual(station.label, 'printer')


ARRAY_DELETERS = ('delete_uint8Array', 'delete_entrydata',
                  'delete_trunkMember')


class NamesTest(unittest.TestCase):

    def test_everything_of_the_module_is_here(self):
        for name, value in vars(native).iteritems():
            if name.startswith('delete_') and name not in ARRAY_DELETERS:
                self.assertEqual(getattr(sdk, name).__doc__, value.__doc__)
            elif not name.startswith('__'):
                self.assertIs(getattr(sdk, name), value, name)

    def test_a_star_brings_what_people_use(self):
        names = set(sdk.__all__)
        self.assertLessEqual(
            {'bcm_l2_addr_t', 'bcm_l2_addr_get', 'check', 'find', 'U32',
             'intp_value', 'new_uint8Array', 'cvar', 'BCM_E_NONE',
             'bcm_l2_traverse_cb', 'Array', 'bcm_l2_addr_t_init'}, names)
        self.assertFalse(names & {
            'new_bcm_l2_addr_t', 'delete_bcm_l2_addr_t', 'bcm_l2_addr_t_vid_get',
            'bcm_l2_addr_t_vid_set', 'bcm_l2_addr_t_swigregister', '__all__'})
        for name in names:
            getattr(sdk, name)

    def test_what_was_deleted_is_not_read_any_more(self):
        before = sdk.Array('int', 1)  # another allocation of the size
        for made, alias in (
                (sdk.bcm_ip_addr_t(), lambda made: made.addr),
                (sdk.bcm_l3_host_t(), lambda made: made.l3a_ip6_addr),
                (sdk.intp(3), lambda made: made.this)):
            part = alias(made)
            delete = getattr(sdk, 'delete_' + type(made).__name__)
            self.assertRaises(TypeError, delete, before)
            delete(made)
            self.assertFalse(made.this.own())
            self.assertEqual(int(made.this), 0)
            for field in getattr(made, '_fields', ('value',)):
                self.assertRaises(ValueError, getattr, made, field)
            repr(part)  # the memory lasts as long as its part
            if isinstance(part, sdk.Struct):
                part.ipv4_addr = 7
                self.assertEqual(part.ipv4_addr, 7)
            self.assertIsNone(delete(made))  # a null pointer by now
            self.assertIsNone(delete(None))
            self.assertRaises(TypeError, delete, 5)
        entry = sdk.bcm_l2_addr_t()
        twin = sdk.Array('bcm_l2_addr_t', 1)
        self.assertRaises(ValueError, sdk.delete_bcm_l2_addr_t, twin)
        self.assertRaises(ValueError, sdk.delete_bcm_l2_addr_t, twin[0])
        entry.this.disown()
        sdk.delete_bcm_l2_addr_t(entry)
        self.assertEqual(len(twin), 1)

    def test_dir_and_help_read_well(self):
        names = dir(sdk.bcm_ip_addr_t)
        self.assertLessEqual({'protocol', 'addr', 'copy', 'equals', 'items'},
                             set(names))
        self.assertIn('protocol: int\naddr: bcm_ipv4_ipv6_addr_t',
                      sdk.bcm_ip_addr_t.__doc__)
        self.assertEqual(sdk.bcm_ip_addr_t.__module__, 'OmbraSdkV2Helper')
        self.assertEqual(
            [name for name, _ in sdk.bcm_ip_addr_t(protocol=4).items()],
            ['protocol', 'addr'])


if __name__ == '__main__':
    unittest.main()
