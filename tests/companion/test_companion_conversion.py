"""From Python objects to native pointers."""

import gc
import unittest

import _swig_companion as companion
import _swig_neighbour as neighbour
from companion_support import (
    BASE, CompanionTest, DERIVED, FAILED, found, FUNCTION, INT, INTP, L2_ADDR,
    UNNAMED)


class Proxy(object):

    def __init__(self, this):
        self.this = this


class OldProxy:
    def __init__(self, this):
        self.this = this


class ConversionTest(CompanionTest):

    def test_none_is_a_null_pointer_of_every_type(self):
        for name in (BASE, INT, FUNCTION, None):
            for flags in (0, companion.FLAG_DISOWN, companion.FLAG_IMPLICIT):
                self.assertEqual(companion.convert(None, name, flags),
                                 found(0))
            self.assertEqual(companion.convert_function(None, name), found(0))

    def test_look_ups_that_let_go(self):
        # Keys of the same hash as 'this', whose comparison takes away what
        # the look-up stands on.
        class Key(object):
            def __init__(self, act):
                self.act = act

            def __hash__(self):
                return hash('this')

            def __eq__(self, other):
                self.act()
                return False

        def outer_lets_go():
            outer.__dict__.clear()
            gc.collect()

        def dictionary_goes():
            inner_of[0].__dict__ = {}

        for act in (outer_lets_go, dictionary_goes):
            for kind in (Proxy, OldProxy):
                inner = kind(None)
                del inner.this
                key = Key(lambda: None)
                inner.__dict__[key] = 1
                inner.__dict__['this'] = companion.make(BASE, 8)
                outer = Proxy(inner)
                inner_of = [inner] if act is dictionary_goes else []
                key.act = act
                del inner, key
                for _ in range(3):
                    companion.convert(outer, BASE)

    def test_types_and_casts(self):
        for source, wanted, expected in (
                (BASE, BASE, found(64)), (BASE, None, found(64)),
                (None, None, found(64)), (None, BASE, FAILED),
                (DERIVED, BASE, found(72)), (BASE, DERIVED, FAILED),
                (UNNAMED, BASE, found(64)), (UNNAMED, L2_ADDR, found(64)),
                (L2_ADDR, UNNAMED, FAILED), (INTP, INT, found(64)),
                (INT, INTP, FAILED), (INT, BASE, FAILED)):
            for module in (companion, neighbour):
                pointer = module.make(source, 64)
                self.assertEqual(companion.convert(pointer, wanted), expected)

    def test_chain_passes_by_the_link_that_fits(self):
        head = companion.make(INT, 8, 1)
        middle = companion.make(DERIVED, 64, 1)
        last = companion.make(BASE, 128, 1)
        head.append(middle)
        middle.append(last)
        self.assertEqual(companion.convert(head, INT), found(8))
        self.assertEqual(companion.convert(head, BASE), found(72))
        self.assertEqual(companion.convert(head, L2_ADDR), FAILED)
        self.assertEqual(
            companion.convert(Proxy(head), BASE, companion.FLAG_DISOWN),
            found(72))
        self.assertEqual([link.own() for link in (head, middle, last)],
                         [True, False, True])
        head.disown()
        last.disown()

    def test_disown(self):
        for value in (companion.make(BASE, 8, 1), neighbour.make(BASE, 8, 1)):
            self.assertEqual(
                companion.convert(value, INT, companion.FLAG_DISOWN), FAILED)
            self.assertIs(value.own(), True)
            self.assertEqual(
                companion.convert(value, BASE, companion.FLAG_DISOWN),
                found(8))
            self.assertIs(value.own(), False)


class FunctionConversionTest(CompanionTest):

    def test_exported_callback(self):
        text = companion.callback.__doc__
        self.assertRegexpMatches(
            text, r'^callback\(number\) -> int swig_ptr: _[0-9a-f]{16}%s$'
            % FUNCTION)
        for module in (companion, neighbour):
            status, address = companion.convert_function(module.callback,
                                                         FUNCTION)
            self.assertEqual(status, companion.STATUS_OK)
            self.assertEqual(address, int(module.callback_address))
            self.assertEqual(companion.call(address, 41), 42)


if __name__ == '__main__':
    unittest.main()
