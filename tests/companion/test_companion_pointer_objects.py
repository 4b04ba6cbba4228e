"""Pointer objects as Python sees them."""

import sys
import time
import unittest

import _swig_companion as companion
import _swig_neighbour as neighbour
from companion_support import BASE, CompanionTest, DERIVED, UNNAMED

class LyingTruth(object):

    def __nonzero__(self):
        raise ZeroDivisionError('no truth')


class PointerObjectTest(CompanionTest):

    def test_numbers(self):
        for address, as_hex, as_oct in (
                (0x1f0, '1f0', '760'),
                (2 ** 64 - 1, 'f' * 16, '1' + '7' * 21),
                (0, '0', '0')):
            pointer = companion.make(BASE, address)
            self.assertEqual(int(pointer), address)
            self.assertEqual(long(pointer), address)
            self.assertEqual(hex(pointer), as_hex)
            self.assertEqual(oct(pointer), as_oct)

    def test_repr_names_the_last_spelling(self):
        for name, shown in ((BASE, 'companion_base_t *'),
                            (DERIVED, 'CompanionDerived *'),
                            (UNNAMED, UNNAMED), (None, 'unknown')):
            pointer = companion.make(name, 8)
            text = ("<Swig Object of type '%s' at 0x%x>"
                    % (shown, id(pointer)))
            self.assertEqual(repr(pointer), text)
            self.assertEqual(str(pointer), text)
            self.assertEqual(pointer.__repr__(), text)

    def test_type_is_bare(self):
        kind = type(companion.make(BASE, 8))
        self.assertEqual(kind.__name__, 'SwigPyObject')
        self.assertEqual(kind.__doc__,
                         'Swig object carries a C/C++ instance pointer')
        self.assertRaises(TypeError, kind)
        self.assertRaises(TypeError, type, 'Derived', (kind,), {})
        pointer = companion.make(BASE, 8)
        self.assertRaises(TypeError, hash, pointer)
        self.assertRaises(AttributeError, setattr, pointer, 'x', 1)
        docs = dict((name, getattr(kind, name).__doc__) for name in
                    ('disown', 'acquire', 'own', 'append', 'next'))
        self.assertEqual(docs, {
            'disown': 'releases ownership of the pointer',
            'acquire': 'acquires ownership of the pointer',
            'own': 'returns/sets ownership of the pointer',
            'append': "appends another 'this' object",
            'next': "returns the next 'this' object"})

    def test_comparison_is_by_address_alone(self):
        eight = companion.make(BASE, 8)
        same = companion.make(DERIVED, 8)
        foreign = neighbour.make(BASE, 8)
        high = companion.make(BASE, 2 ** 63)
        self.assertIsNot(type(eight), type(foreign))
        for other in (eight, same, foreign):
            self.assertIs(eight.__eq__(other), True)
            self.assertIs(eight.__ne__(other), False)
            self.assertTrue(other == eight)
        self.assertIs(eight.__eq__(high), False)
        self.assertIs(eight.__ne__(high), True)
        self.assertTrue(eight < high and high > eight)
        self.assertEqual([cmp(eight, same), cmp(eight, high),
                          cmp(high, eight)], [0, -1, 1])

    def test_comparison_with_other_objects_is_not_implemented(self):
        eight = companion.make(BASE, 8)
        for other in (8, 8L, 8.0, 'x', None, object(), [eight], LyingTruth()):
            self.assertIs(eight.__eq__(other), NotImplemented)
            self.assertIs(eight.__ne__(other), NotImplemented)
            self.assertIs(eight == other, False)
            self.assertIs(eight != other, True)
        self.assertIs(eight.__lt__(eight), NotImplemented)

    def test_ownership_methods(self):
        pointer = companion.make(BASE, 8)
        self.assertIs(pointer.own(), False)
        self.assertIsNone(pointer.acquire())
        self.assertIs(pointer.own(), True)
        self.assertIs(pointer.own(), True)
        self.assertIs(pointer.own(0), True)
        self.assertIs(pointer.own('yes'), False)
        self.assertIsNone(pointer.disown())
        self.assertIs(pointer.own([]), False)
        self.assert_raises_text(
            TypeError, 'own expected at most 1 arguments, got 2',
            pointer.own, 1, 2)
        self.assertRaises(ZeroDivisionError, pointer.own, LyingTruth())
        pointer.disown()

    def test_chain(self):
        first, second, third = [companion.make(BASE, 8) for _ in range(3)]
        self.assertIsNone(first.next())
        second.append(third)
        count = sys.getrefcount(second)
        self.assertIsNone(first.append(second))
        self.assertEqual(sys.getrefcount(second), count + 1)
        self.assertIs(first.next(), second)
        self.assertEqual(repr(first), repr(companion.this_of(first)))
        texts = [repr(first), repr(second), repr(third)]
        self.assertTrue(texts[0].endswith(texts[1]))
        self.assertTrue(texts[1].endswith(texts[2]))
        self.assertEqual(texts[0].count('<Swig Object'), 3)
        self.assertNotIn('> <', texts[0])

    def test_append_takes_pointer_objects_only(self):
        pointer = companion.make(BASE, 8)
        foreign = neighbour.make(BASE, 16)
        pointer.append(foreign)
        for other in (5, None, 'this', object()):
            self.assert_raises_text(
                TypeError, 'Attempt to append a non SwigPyObject',
                pointer.append, other)
        self.assertIs(pointer.next(), foreign)

    def test_long_chain_is_shown_in_linear_time(self):
        # Links cost the same however many there are: the time of one round
        # is compared with that of a chain of a tenth, in the same process.
        def seconds(count):
            head = companion.make(BASE, 8)
            for _ in xrange(count):
                link = companion.make(BASE, 8)
                link.append(head)
                head = link
            start = time.clock()
            text = repr(head)
            self.assertEqual(text.count('<Swig'), count + 1)
            return time.clock() - start
        seconds(1000)
        self.assertLess(seconds(100000), 40 * seconds(10000) + 0.2)

    def test_class_of_the_same_name_is_no_pointer_object(self):
        slots = ('a', 'b', 'c', 'd', 'e')
        members = {'__slots__': slots}
        for name, bases in (('SwigPyObject', (object,)),
                            ('SwigPyPacked', (object,)),
                            ('SwigPyObject', (list,))):
            impostor = type(name, bases, members)()
            for slot in slots:
                setattr(impostor, slot, 2 ** 40)
            self.assertEqual(companion.convert(impostor, BASE)[0],
                             companion.STATUS_GENERIC)
            self.assertIsNone(companion.this_of(impostor))
            self.assertRaises(TypeError, companion.make(BASE, 8).append,
                              impostor)
            self.assertNotEqual(companion.make(BASE, 8), impostor)
            impostor.e = companion.make(BASE, 8)
            impostor = type(name, bases, {})()
            impostor.this = companion.make(BASE, 8)  # a proxy all the same
            self.assertEqual(companion.convert(impostor, BASE)[1], 8)

    def test_ring_has_an_end(self):
        first, second = companion.make(BASE, 8), companion.make(BASE, 16)
        first.append(second)
        second.append(first)
        self.assertTrue(repr(first).endswith('>...'))
        self.assertEqual(companion.convert(first, DERIVED)[0],
                         companion.STATUS_GENERIC)
        first.append(companion.make(BASE, 24))


if __name__ == '__main__':
    unittest.main()
