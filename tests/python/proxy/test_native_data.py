"""Boxes, arrays and opaque values: native storage that Python makes."""

import gc
import unittest
import weakref

import OmbraSdkV2Helper as sdk
import _OmbraSdkV2Classes as tables
import _OmbraSdkV2Companion as companion
import _OmbraSdkV2Helper as native
from proxy_support import started_unit

LEAST, MOST = -1 << 31, (1 << 31) - 1


class ArrayTest(unittest.TestCase):

    def test_an_array_is_a_sequence(self):
        array = sdk.Array('int', [1, 2, 3])
        self.assertEqual((len(array), list(array)), (3, [1, 2, 3]))
        self.assertEqual((array[0], array[-1], array[1:]), (1, 3, [2, 3]))
        self.assertEqual(array[::-2], [3, 1])
        array[0:2] = (7, 8)
        array[-1] = 9
        self.assertEqual(array, [7, 8, 9])
        self.assertNotEqual(array, [7, 8])
        self.assertEqual(repr(array), "Array('int', [7, 8, 9])")
        self.assertEqual(array.type, 'int')
        self.assertRaises(TypeError, hash, array)

    def test_what_is_outside_is_refused(self):
        array = sdk.Array('uint8', 3)
        for index in (3, -4, 1 << 70):
            self.assertRaises(IndexError, array.__getitem__, index)
            self.assertRaises(IndexError, array.__setitem__, index, 0)
            self.assertRaises((IndexError, OverflowError),
                              sdk.uint8Array_getitem, array, index)
        for items in ([1], range(4)):
            self.assertRaises(ValueError, array.__setitem__,
                              slice(0, 3), items)
        self.assertRaises(TypeError, array.__delitem__, 0)
        self.assertRaises(ValueError, sdk.Array, 'int', -1)
        self.assertRaises(MemoryError, sdk.Array, 'int', 1 << 62)
        self.assertRaises(ValueError, sdk.Array, 'nothing', 1)
        self.assertRaises(IndexError, getattr, sdk.Array('int', 0), 'value')

    def test_values_that_empty_their_list(self):
        class Emptying(object):
            def __getattr__(self, name):
                del values[:]
                raise AttributeError(name)
            __slots__ = ()
        for form in ('bcm_l2_addr_t', 'char *', 'int'):
            array = sdk.Array(form, 3)
            for fill in (lambda: sdk.Array(form, values),
                         lambda: array.__setitem__(slice(None), values)):
                values = [Emptying(), Emptying(), Emptying()]
                self.assertRaises((TypeError, ValueError), fill)

    def test_nobody_else_frees_an_array(self):
        entries = sdk.Array('bcm_l2_addr_t', 2)
        numbers = sdk.Array('uint8', 4)
        values = sdk.Array('bcm_port_abil_t', 2)
        native_array = native.new_uint8Array(4)
        for delete, wrong in (
                (native.delete_bcm_l2_addr_t, entries),
                (native.delete_bcm_l2_addr_t, entries.this),
                (native.delete_uint8Array, numbers),
                (native.delete_uint8Array, numbers.this),
                (companion.delete_value, values),
                (companion.delete_value, values.this),
                (companion.delete_value, numbers),
                (companion.delete_value, native_array)):
            self.assertRaises(ValueError, delete, wrong)
        native.delete_uint8Array(native_array)
        value = sdk.U32(5)
        companion.delete_value(value)
        self.assertRaises(ValueError, companion.delete_value, value)

    def test_numbers_keep_to_their_range(self):
        for name, least, most in (('int', LEAST, MOST), ('uint8', 0, 255),
                                  ('uint16', 0, 65535),
                                  ('uint32', 0, (1 << 32) - 1),
                                  ('uint64', 0, (1 << 64) - 1),
                                  ('bcm_color_t', LEAST, MOST)):
            array = sdk.Array(name, [least, most])
            self.assertEqual(list(array), [least, most], name)
            for value in (least - 1, most + 1):
                self.assertRaises(OverflowError, array.__setitem__, 0, value)
            self.assertRaises(TypeError, array.__setitem__, 0, '1')
            self.assertRaises(TypeError, array.__setitem__, 0, 1.0)
            self.assertEqual(list(array), [least, most], name)

    def test_elements_of_every_form(self):
        for name, value in (('bcm_mac_t', '00:11:22:33:44:55'),
                            ('bcm_pbmp_t', [1, 70]), ('char *', 'text'),
                            ('bcm_ip6_t', range(16)), ('char *', None),
                            ('int [4]', [1, 2, 3, 4]), ('void *', None)):
            array = sdk.Array(name, 2)
            array[1] = value
            self.assertEqual(array[1], value, name)

    def test_structures_are_shown_in_place(self):
        array = sdk.Array('bcm_trunk_member_t', 3)
        array[1].gport = 5
        array[2] = sdk.bcm_trunk_member_t(gport=6)
        self.assertEqual([member.gport for member in array], [0, 5, 6])
        member = array[1]
        gone = weakref.ref(array)
        del array
        self.assertEqual(member.gport, 5)
        self.assertIsNotNone(gone())
        del member
        gc.collect()
        self.assertIsNone(gone())

    def test_the_sdk_reads_and_fills_arrays(self):
        unit = started_unit()
        trunk = sdk.check(sdk.bcm_trunk_create(unit, 0, 0))
        members = sdk.Array('bcm_trunk_member_t', [
            sdk.bcm_trunk_member_t(gport=port) for port in (4, 5)])
        sdk.check(sdk.bcm_trunk_set(unit, trunk, sdk.bcm_trunk_info_t(), 2,
                                    members))
        back = sdk.Array('bcm_trunk_member_t', 8)
        count = sdk.check(sdk.bcm_trunk_get(
            unit, trunk, sdk.bcm_trunk_info_t(), len(back), back))
        self.assertEqual([member.gport for member in back[:count]],
                         [0x4000000 | port for port in (4, 5)])
        sdk.check(sdk.bcm_trunk_destroy(unit, trunk))

    def test_bytes_and_texts(self):
        array = sdk.Array('uint8', 'ab\0c')
        self.assertEqual((array.bytes(), array.text()), ('ab\0c', 'ab'))
        self.assertEqual(sdk.Array('uint8', bytearray('ab')), [97, 98])
        self.assertEqual(sdk.Array('uint16', [1]).bytes(), '\1\0')

    def test_what_outlives_its_array_is_emptied(self):
        array = sdk.Array('bcm_l2_addr_t', 1)
        pointer = array.this
        del array
        self.assertRaises(ValueError, native.bcm_l2_addr_t_vid_get, pointer)

    def test_the_items_of_a_bad_list_are_reported(self):
        self.assertRaises(TypeError, sdk.Array, 'int', [1, None])
        self.assertRaises(TypeError, sdk.Array, 'int', None)
        self.assertRaises(ValueError, sdk.Array, 'bcm_ip6_t', [[1]])
        self.assertRaises(TypeError, sdk.Array, 'bcm_l2_addr_t', [None])

    def test_every_native_type_can_be_laid_out(self):
        for name in companion.native_types():
            array = sdk.Array(name, 2)
            self.assertEqual(array, array[:], name)
            self.assertEqual(array.bytes().strip('\0'), '', name)
            self.assertEqual(array.type, name)


class FieldArrayTest(unittest.TestCase):

    def test_an_array_field_is_read_and_written_in_place(self):
        host = sdk.bcm_l3_host_t(l3a_ip6_addr=range(16))
        host.l3a_ip6_addr[15] = 255
        self.assertEqual(host.l3a_ip6_addr[13:], [13, 14, 255])
        host.l3a_ip6_addr = '\1' * 16
        self.assertEqual(host.l3a_ip6_addr, [1] * 16)
        for wrong in ([1], range(17)):
            with self.assertRaises(ValueError):
                host.l3a_ip6_addr = wrong
        self.assertEqual(host.l3a_ip6_addr, [1] * 16)

    def test_it_keeps_its_structure(self):
        address = sdk.bcm_l3_host_t(l3a_ip6_addr=range(16)).l3a_ip6_addr
        gc.collect()
        self.assertEqual(list(address), range(16))

    def test_two_dimensions_are_rows(self):
        found = [(name, line.partition(': ')[0])
                 for name, table in tables.CLASSES
                 for line in table.splitlines() if '][' in line]
        self.assertEqual(len(found), 3)
        for name, field in found:
            made = getattr(sdk, name)()
            rows = getattr(made, field)
            rows[1][2] = 5
            setattr(made, field, rows[:])
            self.assertEqual(getattr(made, field)[1][2], 5)
            self.assertEqual(getattr(made, field)[0][2], 0)


class BoxTest(unittest.TestCase):

    def test_the_classes_of_the_module(self):
        for made in (sdk.intp, sdk.uint16p, sdk.uint32p, sdk.uintp,
                     sdk.uint64p):
            box = made(5)
            self.assertEqual((box.value, int(box)), (5, 5))
            box.value = 6
            self.assertEqual(repr(box), '%s(6)' % made.__name__)
            self.assertEqual(made.frompointer(box.cast()).value, 6)
            self.assertEqual(made().value, 0)
        self.assertRaises(OverflowError, sdk.uint16p, 65536)
        box = sdk.appl_dcmn_init_param_tp()
        self.assertIs(type(box.value), sdk.appl_dcmn_init_param_t)

    def test_a_box_of_any_type(self):
        unit = started_unit()
        speed = sdk.box('int')
        sdk.check(sdk.bcm_port_speed_set(unit, 1, 10000))
        sdk.check(sdk.bcm_port_speed_get(unit, 1, speed))
        self.assertEqual(speed.value, 10000)
        self.assertEqual(sdk.box('bcm_color_t', 2).value, 2)

    def test_texts_that_the_sdk_points_at(self):
        sdk.check(sdk.sal_config_flush())
        sdk.check(sdk.sal_config_set('colour', 'red'))
        name, value = sdk.box('char *'), sdk.box('char *')
        sdk.check(sdk.sal_config_get_next(name, value))
        self.assertEqual((name.value, value.value), ('colour', 'red'))

    def test_a_text_in_a_box_stays(self):
        box = sdk.box('char *', 'a' + str(5))
        gc.collect()
        self.assertEqual(box.value, 'a5')


class ValueTest(unittest.TestCase):

    def test_numbers_words_ports_and_texts(self):
        for made, value in ((sdk.soc_port_t, 3), (sdk.U32, (1 << 32) - 1),
                            (sdk.uint, 7), (sdk.UnitId, 255),
                            (sdk.ExternalPhyId, 0x3FF), (sdk.ManagedPhy, 3),
                            (sdk.Bcm84328Version, 0xFFFF),
                            (sdk.ChipAddress, 1 << 40), (sdk.ip_addr_t, 1),
                            (sdk.bcm_rx_reasons_t, range(6)),
                            (sdk.bcm_port_ability_t, range(16)),
                            (sdk.pbmp_t, [1, 5]), (sdk.soc_pbmp_t, []),
                            (sdk.parse_key_t, 'word')):
            one, two = made(value), made()
            self.assertEqual(one.value, value)
            two.value = value
            self.assertEqual(one, two)
            self.assertFalse(one != two)
            self.assertTrue(repr(one).startswith(made.__name__ + '('))
        self.assertNotEqual(sdk.U32(3), sdk.uint(3))
        self.assertEqual(int(sdk.U32(3)), 3)

    def test_what_does_not_fit(self):
        for made, value, error in ((sdk.U32, 1 << 32, OverflowError),
                                   (sdk.U32, '1', TypeError),
                                   (sdk.UnitId, 256, ValueError),
                                   (sdk.ExternalPhyId, 0x400, ValueError),
                                   (sdk.bcm_rx_reasons_t, [1], ValueError)):
            self.assertRaises(error, made, value)

    def test_values_go_in_and_come_out_of_the_sdk(self):
        started_unit()
        sdk.standbyDevIdIs(0, sdk.U32(0xabcd))
        self.assertIsInstance(sdk.getDevId(0), sdk.U32)
        first = sdk.bcm_port_info_t()
        first.interface = sdk.bcm_port_if_t(5)
        copy = first.interface
        copy.value = 6
        self.assertEqual(first.interface.value, 5)

    def test_a_list_of_blocks_is_kept(self):
        value = sdk.soc_block_types_t(sdk.Array('int', [1, 2, -1]))
        gc.collect()
        self.assertEqual(sdk.view('int', value.value, 3), [1, 2, -1])

    def test_holders_show_what_they_hold(self):
        started_unit()
        memory = sdk.CGM_HAPMm
        base = sdk.tableBaseAddr(0, memory, 0).value
        holder = sdk.findChipMemory(0, memory, sdk.ChipAddress(base),
                                    sdk.U32(4))
        self.assertTrue(holder)
        self.assertFalse(sdk.tableNotManagedBySdk(holder.pointer))
        nothing = sdk.findChipMemory(0, -1, 0)
        self.assertFalse(nothing)
        self.assertIsNone(nothing.pointer)
        self.assertRaises(TypeError, sdk.ChipMemoryPtr)
        self.assertRaises(TypeError, companion.held_pointer, sdk.U32(1))


class ViewTest(unittest.TestCase):

    def test_a_view_keeps_its_owner(self):
        array = sdk.Array('uint32', [1, 2, 3])
        view = sdk.view('uint32', array, 2)
        self.assertEqual(view, [1, 2])
        view[0] = 9
        self.assertEqual(array[0], 9)
        gone = weakref.ref(array)
        del array
        gc.collect()
        self.assertIsNotNone(gone())

    def test_it_is_asked_for_a_pointer_of_the_type(self):
        self.assertRaises(TypeError, sdk.view, 'uint8', sdk.box('int'), 1)
        self.assertRaises(ValueError, sdk.view, 'uint8', None, 1)
        self.assertRaises(ValueError, sdk.view, 'int', sdk.box('int'), -1)


if __name__ == '__main__':
    unittest.main()
