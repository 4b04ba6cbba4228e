"""Every result kind of every row, from a result register whose unused bits are
all set."""

import ctypes
import struct

from kinds import bitmap, valid_objects, values
from support import (PLAIN, RECORDER, ConformanceTest, disown,
                     display_name, module, pattern)
from totals import TOTALS

SIGNED = [0, 1, -1, -16, 2 ** 31 - 1, -2 ** 31]


def zero_extended(bits):
    return [0, 1, 2 ** (bits - 1), 2 ** bits - 1]


# What a row of each kind returns, by the number that its function returns.
NUMBERS = {
    'signed-32': [(value, value) for value in SIGNED],
    'unsigned-8': [(value, value) for value in zero_extended(8)],
    'unsigned-16': [(value, value) for value in zero_extended(16)],
    'unsigned-32': [(value, value) for value in zero_extended(32)],
    'address-32': [(value, value) for value in zero_extended(32)],
    'unsigned-64': [(0, 0), (2 ** 63 - 1, int(2 ** 63 - 1)),
                    (2 ** 63, 2 ** 63), (2 ** 64 - 1, 2 ** 64 - 1)],
    'strict-bool': [(0, False), (1, True)]}


class ResultTest(ConformanceTest):
    def rows(self, *kinds):
        """The plain rows of these result kinds, with arguments that pass."""
        found = [row for row in PLAIN
                 if (row.result.kind if row.result_type else 'nothing')
                 in kinds and not row.appended]
        self.assertTrue(found)
        for row in found:
            valids = valid_objects(row)
            yield row, values(valids), valids

    def test_numbers(self):
        for row, arguments, _ in self.rows(*NUMBERS):
            for native, expected in NUMBERS[row.result.kind]:
                RECORDER.set_result(native)
                self.same(row.call(*arguments), expected, row.name)
        self.finish()

    def test_nothing(self):
        for row, arguments, _ in self.rows('nothing'):
            self.same(row.call(*arguments), None, row.name)
        self.finish()

    def test_texts(self):
        for row, arguments, _ in self.rows('text'):
            RECORDER.set_result(0)
            self.same(row.call(*arguments), None, row.name)
            for text in ('', 'a text', 'x' * 5000):
                RECORDER.set_text(text)
                self.same(row.call(*arguments), text, row.name)
            RECORDER.set_text('cut\0off')
            self.same(row.call(*arguments), 'cut', row.name)
        self.finish()

    def test_pointers(self):
        for row, arguments, _ in self.rows('pointer', 'function-pointer'):
            RECORDER.set_result(0)
            self.same(row.call(*arguments), None, row.name)
            RECORDER.set_result(0xffff800000001230)
            result = row.call(*arguments)
            self.is_pointer(result, row.result.result_slot, False, row.name,
                            0xffff800000001230)
        self.finish()

    def test_owned_copies(self):
        for row, arguments, _ in self.rows('by-value'):
            block = pattern(row.result.size, 3)
            RECORDER.set_block(block)
            if row.result.size <= 8:
                RECORDER.set_result(
                    struct.unpack('<Q', block.ljust(8, '\0'))[0])
            results = [row.call(*arguments), row.call(*arguments)]
            self.same(long(results[0]) == long(results[1]), False, row.name)
            for result in results:
                self.is_pointer(result, row.result.result_slot, True,
                                row.name)
                self.same(ctypes.string_at(long(result), row.result.size),
                          block, row.name)
            disown(results)
        self.finish()

    def test_appended_numbers(self):
        appended = [row for row in PLAIN if row.appended]
        self.assertEqual(len(appended), TOTALS['appended outputs'])
        for row in appended:
            valids = valid_objects(row)
            for number in SIGNED:
                for status in (0, -7):
                    RECORDER.set_result(status)
                    RECORDER.fill(len(valids), struct.pack('<i', number))
                    self.same(row.call(*values(valids)), [status, number],
                              row.name)
        self.finish()

    def test_no_result_kind_is_left_out(self):
        tried = set(NUMBERS) | set(['text', 'pointer', 'function-pointer',
                                    'by-value'])
        for row in PLAIN:
            if row.result_type and row.result.kind not in tried:
                self.fault('%s: %s' % (row.name, row.result.kind))
        self.finish()


class PortListResultTest(ConformanceTest):
    """Port lists come out of the one row that returns them."""

    def test_ports_are_ascending_longs_up_to_570(self):
        lists = [[], [0, 31, 32, 570], range(576), [571, 575]]
        for ports, others in zip(lists, lists[1:] + lists[:1]):
            RECORDER.fill(2, bitmap(ports))
            RECORDER.fill(3, bitmap(others))
            status, pbmp, ubmp = module.bcm_vlan_port_get(0, 1)
            for got, native in ((pbmp, ports), (ubmp, others)):
                self.same(got, [port for port in native if port < 571], native)
                self.same(set(type(port) for port in got) - set([long]),
                          set(), native)
            self.same(status, 0, ports)
        self.finish()
