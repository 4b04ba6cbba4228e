"""Boxes and counted arrays."""

import ctypes
import struct

from kinds import FORMATS, in_method, kind_of, null_reference
from support import (BY_NAME, ROWS, TALLY, ConformanceTest, companion, disown,
                     display_name, module, pattern, pointer, storage,
                     stranger)

# Box, its element's slot, whether the box passes for the element's pointer.
BOXES = [('intp', '_p_int', True), ('uint16p', '_p_unsigned_short', True),
         ('uint32p', '_p_unsigned_int', False),
         ('uintp', '_p_unsigned_int', True),
         ('uint64p', '_p_COMPILER_UINT64', False),
         ('appl_dcmn_init_param_tp', '_p_appl_dcmn_init_param_s', False)]
ARRAYS = [('uint8Array', '_p_unsigned_char'), ('entrydata', '_p_unsigned_int'),
          ('trunkMember', '_p_bcm_trunk_member_s')]


class HelperTest(ConformanceTest):
    def native(self, argument, valid):
        """The bytes of an element."""
        if argument.kind in FORMATS:
            return struct.pack('<Q', valid.arrives)[:argument.size]
        return valid.arrives

    def reads(self, row, result, argument, valid):
        """The result of a row that returns an element."""
        if argument.kind not in FORMATS:
            self.is_pointer(result, argument.slot, True, row.name)
            self.same(ctypes.string_at(long(result), argument.size),
                      valid.arrives, row.name)
            disown(result)
            return
        expected = valid.arrives
        if expected >= 2 ** 63 and argument.kind.startswith('signed'):
            expected -= 2 ** 64
        if expected < 2 ** 63:
            expected = int(expected)
        self.same(result, expected, row.name)

    def refuses_all(self, row, before, place):
        """Everything that a place refuses, behind arguments that pass."""
        behind = [Ellipsis] * (len(row.arguments) - place - 1)
        for refused in kind_of(row.arguments[place]).refused(row, place):
            self.refuses(row, before + [refused.value] + behind,
                         refused.exception, refused.text)
        TALLY.places.add((row.name, place))


class BoxTest(HelperTest):
    def test_new_boxes_are_owned_by_bare_objects(self):
        for name, _, _ in BOXES:
            box = BY_NAME['new_' + name].call()
            self.is_pointer(box, '_p_' + name, True, name)
            self.same(BY_NAME['delete_' + name].call(box), None, name)
            self.same(box.own(), False, name)
            self.same(BY_NAME['delete_' + name].call(None), None, name)
        self.finish()

    def test_values(self):
        for name, _, _ in BOXES:
            assign, value = BY_NAME[name + '_assign'], BY_NAME[name + '_value']
            box = BY_NAME['new_' + name].call()
            argument = assign.arguments[1]
            for valid in kind_of(argument).valid(argument, 1):
                self.same(assign.call(box, valid.value), None, assign.name)
                self.same(ctypes.string_at(long(box), argument.size),
                          self.native(argument, valid), assign.name)
                self.reads(value, value.call(box), argument, valid)
            memory = ctypes.string_at(long(box), argument.size)
            self.refuses_all(assign, [box], 1)
            self.same(ctypes.string_at(long(box), argument.size), memory,
                      assign.name)
            BY_NAME['delete_' + name].call(box)
        self.finish()

    def test_casts_and_views_own_nothing(self):
        for name, slot, passes in BOXES:
            box = BY_NAME['new_' + name].call()
            cast = BY_NAME[name + '_cast'].call(box)
            self.is_pointer(cast, slot, False, name, int(long(box)))
            view = BY_NAME[name + '_frompointer'].call(cast)
            self.is_pointer(view, '_p_' + name, False, name, int(long(box)))
            self.same(box.own(), True, name)
            status, _ = companion.convert(box, slot)
            self.same(status == 0, passes, name)
            BY_NAME['delete_' + name].call(box)
            for form in ('_cast', '_frompointer'):
                self.same(BY_NAME[name + form].call(None), None, name + form)
        self.finish()

    def test_refused_boxes(self):
        for row in ROWS:
            if row.role == 'box' and row.arguments:
                behind = [5] * (len(row.arguments) - 1)
                if row.arguments[-1].kind == 'by-value':
                    block = pattern(row.arguments[-1].size, 1)
                    behind = [pointer(row.arguments[-1].slot, storage(block))]
                for wrong in (0, 5, 'x', [], stranger(row.arguments[0].slot)):
                    self.refuses(row, [wrong] + behind, TypeError,
                                 in_method(row, 0))
                if row.name.endswith(('_assign', '_value')):
                    for null in (None, pointer(row.arguments[0].slot, 0)):
                        self.refuses(row, [null] + behind, ValueError,
                                     null_reference(row, 0))
                TALLY.places.add((row.name, 0))
        self.finish()


class ArrayTest(HelperTest):
    def rows(self):
        for name, slot in ARRAYS:
            yield (slot, BY_NAME['new_' + name], BY_NAME['delete_' + name],
                   BY_NAME[name + '_getitem'], BY_NAME[name + '_setitem'])

    def test_elements(self):
        for slot, new, delete, getitem, setitem in self.rows():
            array = new.call(4)
            element = setitem.arguments[2]
            size = element.size
            self.is_pointer(array, slot, False, new.name)
            self.same(ctypes.string_at(long(array), 4 * size), '\0' * 4 * size,
                      new.name)
            for index in range(4):
                for valid in kind_of(element).valid(element, index):
                    expected = bytearray(
                        ctypes.string_at(long(array), 4 * size))
                    expected[index * size:(index + 1) * size] = self.native(
                        element, valid)
                    self.same(setitem.call(array, index, valid.value), None,
                              setitem.name)
                    self.same(ctypes.string_at(long(array), 4 * size),
                              str(expected), setitem.name)
                    self.reads(getitem, getitem.call(array, index), element,
                               valid)
            self.refuses_all(setitem, [array, 1], 2)
            self.same(delete.call(array), None, delete.name)
        self.finish()

    def test_indexes_outside(self):
        for _, new, delete, getitem, setitem in self.rows():
            array = new.call(3)
            element = setitem.arguments[2]
            valid = kind_of(element).valid(element, 0)[0]
            for index in (-1, 3, 2 ** 31 - 1, -2 ** 31):
                for row, behind in ((getitem, []), (setitem, [valid.value])):
                    self.refuses(row, [array, index] + behind, IndexError,
                                 'the index is outside the array')
            self.same(ctypes.string_at(long(array), 3 * element.size),
                      '\0' * 3 * element.size, setitem.name)
            delete.call(array)
        self.finish()

    def test_refused_arguments(self):
        for slot, new, delete, getitem, setitem in self.rows():
            array = new.call(2)
            self.refuses_all(new, [], 0)
            for row in (delete, getitem, setitem):
                self.refuses_all(row, [], 0)
            for row in (getitem, setitem):
                self.refuses_all(row, [array], 1)
                element = setitem.arguments[2]
                self.valid = kind_of(element).valid(element, 0)[0]
                behind = [0, self.valid.value][:len(row.arguments) - 1]
                for null in (None, pointer(slot, 0)):
                    self.refuses(row, [null] + behind, ValueError,
                                 null_reference(row, 0))
            delete.call(array)
        self.finish()

    def test_counts(self):
        for _, new, delete, _, _ in self.rows():
            empty = new.call(0)
            self.same(long(empty) != 0, True, new.name)
            delete.call(empty)
            self.refuses(new, [-1], ValueError,
                         'the element count is negative')
        self.finish()

    def test_only_live_arrays_are_deleted(self):
        for slot, new, delete, getitem, _ in self.rows():
            self.same(delete.call(None), None, delete.name)
            array = new.call(2)
            delete.call(array)
            for dead in (array, pointer(slot, 0x1230)):
                self.refuses(delete, [dead], ValueError,
                             'the pointer is no live array')
        array = module.new_trunkMember(1)
        self.refuses(BY_NAME['delete_bcm_trunk_member_t'], [array],
                     ValueError, 'a live array is deleted by its own row')
        module.delete_trunkMember(array)
        self.finish()

    def test_memory_that_is_no_array_has_no_bounds(self):
        block = ctypes.create_string_buffer('\1\2\3\4', 4)
        memory = pointer('_p_unsigned_char', ctypes.addressof(block))
        self.assertEqual(module.uint8Array_getitem(memory, 2), 3)
        module.uint8Array_setitem(memory, 3, 9)
        self.assertEqual(block.raw, '\1\2\3\x09')
        behind = pointer('_p_unsigned_char', ctypes.addressof(block) + 3)
        self.assertEqual(module.uint8Array_getitem(behind, -3), 1)

    def test_a_box_on_an_array_writes_its_first_element(self):
        array = module.new_entrydata(2)
        module.uintp_assign(module.uintp_frompointer(array), 7)
        self.assertEqual([module.entrydata_getitem(array, i) for i in (0, 1)],
                         [7, 0])
        module.delete_entrydata(array)
