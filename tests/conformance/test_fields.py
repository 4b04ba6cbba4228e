"""Every field of every class: round trips, refusals that leave the field as it
was, a null structure, and who owns what."""

import ctypes
import struct

from kinds import FORMATS, KINDS, in_method, kind_of, null_reference
from support import (BY_NAME, CLASSES, DEBUG, TALLY, TYPES, ConformanceTest,
                     address_of, disown, display_name, module, pattern,
                     pointer, storage, stranger)

# Setters that store nothing in a null structure, and say nothing.
SKIPPING = set(FORMATS) | set(['port-bitmap', 'nested-struct', 'by-value',
                               'pointer-field', 'function-pointer'])


class Instance(object):
    """A new structure of a class, whose memory the test sees."""

    def __init__(self, record):
        self.record = record
        self.object = getattr(module, 'new_' + record.name)()
        self.address = address_of(self.object)

    def memory(self):
        return ctypes.string_at(self.address, self.record.size)

    def write(self, block):
        ctypes.memmove(self.address, block, len(block))

    def clear(self):
        ctypes.memset(self.address, 0, self.record.size)

    def delete(self):
        return getattr(module, 'delete_' + self.record.name)(self.object)


class FieldTest(ConformanceTest):
    """Goes over all fields whose kind a test names."""

    def fields(self, *kinds):
        for record in CLASSES:
            instance = Instance(record)
            for field in record.fields:
                if field['kind'] in kinds:
                    self.field(record, field)
                    yield instance
                    instance.clear()
            instance.delete()

    def field(self, record, field):
        base = record.name + '_' + field['name']
        self.setter = BY_NAME[base + '_set']
        self.getter = BY_NAME[base + '_get']
        self.value = self.setter.arguments[1]
        self.offset = field['offset']
        self.bytes = field['size'] * field['count']

    def stored(self, instance):
        return instance.memory()[self.offset:self.offset + self.bytes]

    def sets(self, instance, value, expected):
        """The setter changes the field's bytes as expected and no others."""
        background = pattern(instance.record.size, 5)
        instance.write(background)
        self.same(self.setter.call(instance.object, value), None,
                  self.setter.name)
        memory = instance.memory()
        end = self.offset + self.bytes
        self.same(memory, background[:self.offset] + expected +
                  background[end:], '%s(%r)' % (self.setter.name, value))

    def refuses_values(self, instance, refusals):
        """All refusals, with the whole structure as it was, also when the
        structure is null: values are converted first."""
        memory = pattern(instance.record.size, 6)
        instance.write(memory)
        for refused in refusals:
            self.refuses(self.setter, [instance.object, refused.value],
                         refused.exception, refused.text)
            self.refuses(self.setter, [None, refused.value],
                         refused.exception, refused.text)
        self.same(instance.memory(), memory, self.setter.name)
        TALLY.places.update([(self.setter.name, 0), (self.setter.name, 1),
                             (self.getter.name, 0)])


class PlainFieldTest(FieldTest):
    """Numbers, port lists and MAC addresses."""

    empty = {'strict-bool': False, 'port-bitmap': [],
             'mac-string': '00:00:00:00:00:00'}

    def forms(self, valid):
        """The bytes that are stored, and what the getter makes of them."""
        if self.value.kind == 'port-bitmap':
            return valid.arrives, [long(port) for port in range(571)
                                   if port in valid.value]
        if self.value.kind == 'mac-string':
            return valid.arrives, ':'.join('%02x' % ord(c)
                                           for c in valid.arrives)
        form = '<' + FORMATS[self.value.kind]
        native = struct.pack('<Q', valid.arrives)[:struct.calcsize(form)]
        number, = struct.unpack(form, native)
        small = form != '<?' and number < 2 ** 63
        return native, int(number) if small else number

    def test_round_trips_and_refusals(self):
        for instance in self.fields('port-bitmap', 'mac-string', *FORMATS):
            kind = kind_of(self.value)
            if self.value.kind == 'mac-string':
                self.bytes = 6
            self.same(self.getter.call(instance.object),
                      self.empty.get(self.value.kind, 0), self.getter.name)
            for valid in kind.valid(self.value, 1):
                native, expected = self.forms(valid)
                self.sets(instance, valid.value, native)
                self.same(self.getter.call(instance.object), expected,
                          self.getter.name)
            self.refuses_values(instance, kind.refused(self.setter, 1))
        self.finish()


class TextFieldTest(FieldTest):
    def held(self, instance):
        return struct.unpack('<Q', self.stored(instance))[0]

    def test_round_trips_and_refusals(self):
        for instance in self.fields('text'):
            self.same(self.getter.call(instance.object), None,
                      self.getter.name)
            for valid in KINDS['text'].valid(self.value, 1):
                text = valid.keep or valid.value
                self.same(self.setter.call(instance.object, valid.value), None,
                          self.setter.name)
                expected = text if text is None else text.split('\0')[0]
                self.same(self.getter.call(instance.object), expected,
                          self.getter.name)
                if text is not None:
                    self.same(self.held(instance) == storage(text), False,
                              self.setter.name + ' keeps the string itself')
            # A bad value leaves the text: refuses_values() would fill the
            # pointer with a pattern that a later setter frees.
            self.setter.call(instance.object, 'kept')
            memory = instance.memory()
            for refused in KINDS['text'].refused(self.setter, 1):
                self.refuses(self.setter, [instance.object, refused.value],
                             refused.exception, refused.text)
            self.same(instance.memory(), memory, self.setter.name)
            self.setter.call(instance.object, None)
            TALLY.places.update([(self.setter.name, 0), (self.setter.name, 1),
                                 (self.getter.name, 0)])
        self.finish()

    def test_only_a_changeable_text_frees_the_old_one(self):
        texts = ['%02d' % i + 'x' * 60000 for i in range(20)]
        for instance in self.fields('text'):
            held = []
            for text in texts:
                self.setter.call(instance.object, text)
                held.append(self.held(instance))
            # Freed memory comes back sooner or later; what nobody frees
            # cannot, and still reads as it was.
            if self.value.type == 'char const *':
                self.same([ctypes.string_at(address) for address in held],
                          texts, self.setter.name)
            elif not DEBUG:
                self.same(len(set(held)) < len(held) / 2, True,
                          self.setter.name + ' keeps what it replaces')
            self.same(self.getter.call(instance.object), texts[-1],
                      self.getter.name)
            self.setter.call(instance.object, None)
        self.finish()


class ArrayFieldTest(FieldTest):
    def null_text(self):
        return ("invalid null reference in variable '%s' of type '%s'"
                % (self.value.name, self.value.type))

    def test_copies_and_refusals(self):
        for instance in self.fields('fixed-array'):
            slot = self.value.slot
            alias = self.getter.call(instance.object)
            self.is_pointer(alias, slot, False, self.getter.name,
                            instance.address + self.offset)
            block = pattern(self.bytes, 9)
            source = pointer(slot, storage(block))
            self.sets(instance, source, block)
            if TYPES[slot].twin:
                self.sets(instance,
                          pointer(TYPES[slot].twin, storage(block)), block)
            # Onto itself, as the getter gives it.
            self.setter.call(instance.object, alias)
            self.same(self.stored(instance), block, self.setter.name)
            self.refuses_values(instance,
                                KINDS['fixed-array'].refused(self.setter, 1))
            memory = instance.memory()
            for null in (None, pointer(slot, 0)):
                for self_ in (instance.object, None):
                    self.refuses(self.setter, [self_, null], ValueError,
                                 self.null_text())
            self.same(instance.memory(), memory, self.setter.name)
        self.finish()


class NestedFieldTest(FieldTest):
    def test_aliases_whole_copies_and_refusals(self):
        kind = KINDS['nested-struct']
        for instance in self.fields('nested-struct'):
            self.is_pointer(self.getter.call(instance.object),
                            self.value.slot, False, self.getter.name,
                            instance.address + self.offset)
            for valid in kind.valid(self.value, 1):
                self.sets(instance, valid.value, valid.arrives)
            self.refuses_values(instance, kind.refused(self.setter, 1))
        self.finish()


class PointerFieldTest(FieldTest):
    def test_stored_pointers_and_refusals(self):
        for instance in self.fields('pointer-field', 'function-pointer'):
            self.same(self.getter.call(instance.object), None,
                      self.getter.name)
            for valid in kind_of(self.value).valid(self.value, 1):
                self.sets(instance, valid.value,
                          struct.pack('<Q', valid.arrives))
                if valid.arrives:
                    self.is_pointer(self.getter.call(instance.object),
                                    self.getter.result.result_slot, False,
                                    self.getter.name, valid.arrives)
                else:
                    self.same(self.getter.call(instance.object), None,
                              self.getter.name)
            self.refuses_values(instance,
                                kind_of(self.value).refused(self.setter, 1))
        self.finish()

    def test_data_pointers_change_hands(self):
        for instance in self.fields('pointer-field', 'function-pointer'):
            data = self.value.kind == 'pointer-field'
            for self_ in (instance.object, None):
                value = pointer(self.value.slot, 0x1230, 1)
                self.setter.call(self_, value)
                self.same(value.own(), not data, self.setter.name)
                value.disown()
        self.finish()


class ValueFieldTest(FieldTest):
    def test_owned_copies_and_refusals(self):
        kind = KINDS['by-value']
        for instance in self.fields('by-value'):
            for valid in kind.valid(self.value, 1):
                self.sets(instance, valid.value, valid.arrives)
                copies = [self.getter.call(instance.object) for _ in '12']
                for copy in copies:
                    self.is_pointer(copy, self.value.slot, True,
                                    self.getter.name)
                    self.same(ctypes.string_at(long(copy), self.bytes),
                              valid.arrives, self.getter.name)
                addresses = [long(copies[0]), long(copies[1]),
                             instance.address + self.offset]
                self.same(len(set(addresses)), 3, self.getter.name)
                disown(copies)
            self.refuses_values(instance, kind.refused(self.setter, 1))
        self.finish()


class SelfTest(FieldTest):
    """The structure itself as an argument."""

    every = sorted(set(field['kind'] for record in CLASSES
                       for field in record.fields))

    def test_another_type_is_refused(self):
        for instance in self.fields(*self.every):
            slot = instance.record.slot
            for row in (self.setter, self.getter):
                behind = [Ellipsis] * (len(row.arguments) - 1)
                for wrong in (0, 'x', stranger(slot), instance.record.name):
                    self.refuses(row, [wrong] + behind, TypeError,
                                 in_method(row, 0))
        self.finish()

    def test_null_is_never_read_or_written_through(self):
        for instance in self.fields(*self.every):
            for null in (None, pointer(instance.record.slot, 0)):
                self.refuses(self.getter, [null], ValueError,
                             null_reference(self.getter, 0))
                value = self.source()
                if self.value.kind in SKIPPING:
                    self.same(self.setter.call(null, value), None,
                              self.setter.name)
                else:
                    self.refuses(self.setter, [null, value], ValueError,
                                 null_reference(self.setter, 0))
        self.finish()

    def source(self):
        """A value that passes, with memory behind it."""
        if self.value.kind == 'fixed-array':
            self.block = pattern(self.bytes, 1)
            return pointer(self.value.slot, storage(self.block))
        self.valid = kind_of(self.value).valid(self.value, 1)[0]
        return self.valid.value

    def test_no_kind_is_left_out(self):
        tried = SKIPPING | set(['text', 'mac-string', 'fixed-array'])
        self.assertEqual(set(self.every) - tried, set())


class StructureTest(ConformanceTest):
    """Constructors and destructors."""

    def test_new_structures_are_zero_and_owned(self):
        for record in CLASSES:
            instance = Instance(record)
            self.same(instance.memory(), '\0' * record.size, record.name)
            self.is_pointer(instance.object, record.slot, True, record.name)
            self.same(instance.delete(), None, record.name)
            self.same(instance.object.own(), False, record.name)
        self.finish()

    def test_delete_takes_null_and_nothing_else(self):
        for record in CLASSES:
            row = BY_NAME['delete_' + record.name]
            self.same(row.call(None), None, row.name)
            for wrong in (0, 'x', stranger(record.slot)):
                self.refuses(row, [wrong], TypeError, in_method(row, 0))
            TALLY.places.add((row.name, 0))
        self.finish()

    def test_a_bound_is_spelled_as_declared(self):
        name = 'bcm_oam_pm_stats_t_bin_counters'
        kind = 'uint32 [7+1]'
        self.assertEqual(getattr(module, name + '_get').__doc__,
                         name + '_get(self) -> ' + kind)
        stats = module.new_bcm_oam_pm_stats_t()
        for value, text in (
                (5, "in method '%s_set', argument 2 of type '%s'" % (name,
                                                                     kind)),
                (None, "invalid null reference in variable 'bin_counters' of "
                       "type '%s'" % kind)):
            with self.assertRaises((TypeError, ValueError)) as caught:
                getattr(module, name + '_set')(stats, value)
            self.assertEqual(str(caught.exception), text)
        module.delete_bcm_oam_pm_stats_t(stats)
