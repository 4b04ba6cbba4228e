"""Proxy classes: registration, instances, implicit conversion, and the death
of objects that own."""

import abc
import StringIO
import sys
import unittest

import _swig_companion as companion
import _swig_neighbour as neighbour
from companion_support import (
    BASE, CompanionTest, DERIVED, FAILED, found, INT, run_child, UNNAMED)


class Base(object):
    __swig_destroy__ = companion.delete_object

    def __init__(self, value=None):
        if not isinstance(value, int):
            raise ValueError('needs an integer')
        self.this = companion.make(BASE, value, 1)


class OldBase:
    __swig_destroy__ = companion.delete_object

    def __init__(self, *values):
        raise AssertionError('not for pointers that are there already')


class NoDestroy(object):
    pass


class SlotBase(object):
    __slots__ = ()
    __swig_destroy__ = companion.delete_object


class RaisingNew(object):
    __swig_destroy__ = companion.delete_object

    def __new__(cls):
        raise KeyError('new')


class DictionaryFirst(object):
    __swig_destroy__ = companion.delete_object

    def __new__(cls):
        instance = object.__new__(cls)
        instance.early = True
        return instance


class RegistrationTest(CompanionTest):

    def test_record(self):
        self.assertEqual(companion.registered(BASE), (None, 0, 0))
        self.assertIsNone(companion.register_class(BASE, Base))
        self.assertEqual(companion.registered(BASE), (Base, 1, 1))
        # A type that converts unchanged inherits the pointer, not the mark;
        # one with a converter gets nothing.
        self.assertEqual(companion.registered(UNNAMED), (Base, 0, 1))
        self.assertEqual(companion.registered(DERIVED), (None, 0, 0))
        companion.register_class(BASE, OldBase)
        self.assertEqual(companion.registered(BASE), (OldBase, 1, 1))
        self.assertEqual(companion.registered(UNNAMED), (Base, 0, 1))

    def test_destroy_forms(self):
        for destroy, takes_tuple in (
                (companion.delete_object, 1), (companion.delete_directly, 0),
                (lambda this: None, 1), (None, 1)):
            kind = type('Kind', (object,), {'__swig_destroy__': destroy})
            companion.register_class(BASE, kind)
            self.assertEqual(companion.registered(BASE),
                             (kind, 1, takes_tuple))
        companion.register_class(BASE, NoDestroy)
        self.assertEqual(companion.registered(BASE), (NoDestroy, 1, 0))

    def test_what_makes_no_instances_is_refused(self):
        abstract = abc.ABCMeta('abstract', (object,), {
            'rest': abc.abstractmethod(lambda self: None)})
        for kind in (5, 'x', len, lambda value: value, companion,
                     type(None), type(companion.make(BASE, 8)),
                     type('Meta', (type,), {}), abstract):
            self.assertRaises(TypeError, companion.register_class, BASE, kind)
            self.assertEqual(companion.registered(BASE), (None, 0, 0))


class InstanceTest(CompanionTest):

    def test_bare_object_until_registered(self):
        self.assertEqual(type(companion.present(BASE, 8)).__name__,
                         'SwigPyObject')
        for kind in (Base, OldBase, NoDestroy):
            companion.register_class(BASE, kind)
            proxy = companion.present(BASE, 8)
            self.assertIs(proxy.__class__, kind)
            self.assertEqual(proxy.__dict__.keys(), ['this'])
            self.assertEqual(sys.getrefcount(proxy.this), 2)
            self.assertIs(proxy.this.own(), False)
            self.assertEqual(companion.convert(proxy, BASE), found(8))
            bare = companion.present(BASE, 8, companion.FLAG_NOPROXY)
            self.assertEqual(type(bare).__name__, 'SwigPyObject')

    def test_null_is_none(self):
        companion.register_class(BASE, RaisingNew)
        for flags in range(8):
            self.assertIsNone(companion.present(BASE, 0, flags))

    def test_instances_that_get_no_this(self):
        for kind in (SlotBase, DictionaryFirst):
            companion.register_class(BASE, kind)
            proxy = companion.present(BASE, 8, companion.FLAG_OWN)
            self.assertIs(type(proxy), kind)
            self.assertFalse(hasattr(proxy, 'this'))
            self.assertEqual(companion.destroyed(), [8])

    def test_failing_new(self):
        companion.register_class(BASE, RaisingNew)
        self.assertRaises(KeyError, companion.present, BASE, 8)
        self.assertRaises(KeyError, companion.present, BASE, 8,
                          companion.FLAG_OWN)
        self.assertEqual(companion.destroyed(), [8])


class ImplicitConversionTest(CompanionTest):

    def test_constructor_is_tried(self):
        self.assertEqual(companion.convert(8, BASE, companion.FLAG_IMPLICIT),
                         FAILED)
        companion.register_class(BASE, Base)
        self.assertEqual(companion.convert(8, BASE), FAILED)
        self.assertEqual(companion.convert(8, BASE, companion.FLAG_IMPLICIT),
                         (companion.STATUS_NEWOBJ, 8))
        # The pointer is the caller's: the temporary did not destroy it.
        self.assertEqual(companion.destroyed(), [])
        self.assertEqual(
            companion.convert('x', BASE, companion.FLAG_IMPLICIT), FAILED)
        self.assertEqual(
            companion.convert(None, BASE, companion.FLAG_IMPLICIT), found(0))

    def test_constructor_that_comes_back(self):
        answers = []

        class Recursive(Base):

            def __init__(self, value):
                answers.append(companion.convert(value, BASE,
                                                 companion.FLAG_IMPLICIT))
                Base.__init__(self, value)

        companion.register_class(BASE, Recursive)
        for _ in range(2):
            self.assertEqual(
                companion.convert(8, BASE, companion.FLAG_IMPLICIT),
                (companion.STATUS_NEWOBJ, 8))
        self.assertEqual(answers, [FAILED, FAILED])

    def test_wrong_result(self):
        companion.register_class(BASE, int)
        self.assertEqual(companion.convert(8, BASE, companion.FLAG_IMPLICIT),
                         FAILED)
        class OtherType(object):
            def __new__(cls, value=0):
                return companion.make(INT, value)
        companion.register_class(BASE, OtherType)
        self.assertEqual(companion.convert(8, BASE, companion.FLAG_IMPLICIT),
                         FAILED)


class DeathTest(CompanionTest):

    def register(self, destroy):
        kind = type('Kind', (object,), {'__swig_destroy__': destroy})
        companion.register_class(BASE, kind)

    def test_owner_runs_the_destructor_once(self):
        for destroy in (companion.delete_object, companion.delete_directly):
            self.register(destroy)
            companion.make(BASE, 8, 1)
            companion.present(BASE, 16, companion.FLAG_OWN)
            self.assertEqual(companion.destroyed(), [8, 16])

    def test_no_owner_no_destructor(self):
        self.register(companion.delete_object)
        companion.make(BASE, 8)
        companion.make(BASE, 8, 1).disown()
        companion.make(BASE, 8, 2)
        explicitly = companion.make(BASE, 16, 1)
        companion.delete_object(explicitly)
        del explicitly
        self.assertEqual(companion.destroyed(), [16])

    def test_chain_dies_with_its_head(self):
        self.register(companion.delete_object)
        head, middle = companion.make(BASE, 8, 1), companion.make(BASE, 16)
        kept = companion.make(BASE, 24, 1)
        middle.append(kept)
        head.append(middle)
        del middle, head
        self.assertEqual(companion.destroyed(), [8])
        del kept
        self.assertEqual(companion.destroyed(), [24])

    def test_long_chain_of_two_modules(self):
        # Their objects know each other's layout, and die in a row.
        head = companion.make(BASE, 8)
        for number in xrange(200000):
            link = (neighbour, companion)[number % 2].make(BASE, 8)
            link.append(head)
            head = link
        del head, link

    def test_python_destructor(self):
        seen = []
        self.register(staticmethod(lambda this: seen.append(int(this))))
        companion.make(BASE, 8, 1)
        self.assertEqual(seen, [8])

    def test_raising_destructor(self):
        self.register(companion.delete_and_raise)
        errors, sys.stderr = sys.stderr, StringIO.StringIO()
        try:
            companion.make(BASE, 8, 1)
            text = sys.stderr.getvalue()
            with self.assertRaises(KeyError) as caught:
                companion.raise_and_empty([companion.make(BASE, 16, 1)])
        finally:
            sys.stderr = errors
        self.assertEqual(caught.exception.args, ('pending',))
        self.assertEqual(companion.destroyed(), [8, 16])
        self.assertRegexpMatches(
            text, r'^Exception ValueError: .*refused by the destructor.* in '
            r'<built-in function delete_and_raise> ignored\n$')

    def test_destructor_and_pending_exception(self):
        for destroy in (companion.delete_object, companion.delete_directly):
            self.register(destroy)
            with self.assertRaises(KeyError) as caught:
                companion.raise_and_empty([companion.make(BASE, 8, 1)])
            self.assertEqual(caught.exception.args, ('pending',))
            self.assertEqual(companion.destroyed(), [8])

    def test_leak_message(self):
        text = run_child(
            'import _swig_companion as companion\n'
            'class NoDestroy(object): pass\n'
            'companion.make(%r, 8, 1)\n'
            'companion.make(None, 8, 1)\n'
            'companion.make(%r, 8, 0)\n'
            'companion.register_class(%r, NoDestroy)\n'
            'companion.present(%r, 8, companion.FLAG_OWN)\n'
            % (BASE, BASE, INT, INT))
        line = ("swig/python detected a memory leak of type '%s', "
                "no destructor found.\n")
        self.assertEqual(text, ''.join(
            line % name for name in ('companion_base_t *', 'unknown',
                                     'int *')))

    def test_objects_that_outlive_the_interpreter(self):
        # The capsule's destructor may run before these die.
        run_child(
            'import sys\n'
            'import _swig_companion as companion\n'
            'class Kind(object):\n'
            '    __swig_destroy__ = companion.delete_object\n'
            'class Old:\n'
            '    __swig_destroy__ = companion.delete_directly\n'
            'companion.register_class(%r, Kind)\n'
            'companion.register_class(%r, Old)\n'
            'sys.kept = [companion.present(name, 8, companion.FLAG_OWN)\n'
            '            for name in (%r, %r) for _ in range(3)]\n'
            % (BASE, INT, BASE, INT))


if __name__ == '__main__':
    unittest.main()
