"""Native callbacks that call Python."""

import ctypes
import gc
import os
import sys
import unittest
import weakref
from StringIO import StringIO

import OmbraSdkV2Helper as sdk
from proxy_support import pointer_of, run_child, started_unit
from totals import TOTALS

STATIONS = 65536


class CallbackTest(unittest.TestCase):

    def setUp(self):
        self.unit = started_unit()
        for vid in xrange(2, 5):
            sdk.check(sdk.bcm_vlan_create(self.unit, vid))
        self.errors = sys.stderr = StringIO()
        self.addCleanup(setattr, sys, 'stderr', sys.__stderr__)

    def add_stations(self, count):
        entry = sdk.bcm_l2_addr_t(port=1)
        for number in xrange(count):
            entry.vid = 1 + number % 4
            entry.mac = '02:00:00:%02x:%02x:%02x' % (
                number >> 16, number >> 8 & 255, number & 255)
            sdk.check(sdk.bcm_l2_addr_add(self.unit, entry))

    def cookie(self, callable_):
        made = sdk.cookie(callable_)
        self.addCleanup(sdk.release, made)
        return made


class TraversalTest(CallbackTest):

    def test_every_station_of_a_full_table_is_visited(self):
        self.add_stations(STATIONS)
        seen = set()

        def visit(unit, entry):
            self.assertEqual(unit, self.unit)
            seen.add((entry.mac, entry.vid))

        status = sdk.bcm_l2_traverse(self.unit, sdk.bcm_l2_traverse_cb,
                                     self.cookie(visit))
        self.assertEqual(status, 0)
        self.assertEqual(len(seen), STATIONS)
        self.assertIn(('02:00:00:00:ff:ff', 4), seen)

    def test_an_exception_is_reported_and_ends_the_walk(self):
        self.add_stations(20)
        seen = []

        def visit(_, entry):
            seen.append(entry.mac)
            if len(seen) == 10:
                raise KeyError('the tenth')

        status = sdk.bcm_l2_traverse(self.unit, sdk.bcm_l2_traverse_cb,
                                     self.cookie(visit))
        self.assertLess(status, 0)
        self.assertEqual(len(seen), 10)
        self.assertIn("KeyError: 'the tenth'", self.errors.getvalue())
        self.assertIn('in visit', self.errors.getvalue())  # the traceback
        told = []
        self.assertIsNone(sdk.callback_errors(lambda *error:
                                              told.append(error)))
        sdk.bcm_l2_traverse(self.unit, sdk.bcm_l2_traverse_cb,
                            self.cookie(lambda *_: {}[0]))
        self.assertIs(told[0][0], KeyError)
        self.assertIsNotNone(told[0][2])
        sdk.callback_errors(None)
        self.assertRaises(TypeError, sdk.callback_errors, 5)

    def test_traverse_makes_the_cookie_and_raises_what_was_raised(self):
        self.add_stations(20)
        seen = []

        def visit(_, entry):
            seen.append(entry.copy())
            if len(seen) == 10:
                raise KeyError('the tenth')

        with self.assertRaises(KeyError):
            sdk.traverse(sdk.bcm_l2_traverse, self.unit, visit)
        self.assertEqual(len(seen), 10)
        self.assertEqual(self.errors.getvalue(), '')
        self.assertEqual(
            sdk.traverse(sdk.bcm_l2_traverse, self.unit, lambda *_: None), 0)
        self.assertEqual(
            sdk.traverse(sdk.bcm_l2_traverse, self.unit, lambda *_: -5), -5)
        for wrong in ((sdk.bcm_l2_traverse, self.unit, lambda *_: 'x'),
                      (sdk.bcm_l2_traverse, self.unit, 5),
                      (sdk.soc_init, self.unit)):
            self.assertRaises(TypeError, sdk.traverse, *wrong)

    def test_what_the_callable_returns_is_the_answer(self):
        self.add_stations(1)
        for answer, status in ((None, 0), (0, 0), (-7, -7), (-7L, -7)):
            got = sdk.bcm_l2_traverse(self.unit, sdk.bcm_l2_traverse_cb,
                                      self.cookie(lambda *_: answer))
            self.assertEqual(got, status)
        for wrong in ('x', 1 << 31):
            got = sdk.bcm_l2_traverse(self.unit, sdk.bcm_l2_traverse_cb,
                                      self.cookie(lambda *_: wrong))
            self.assertEqual(got, sdk.BCM_E_FAIL)
        self.assertIn('TypeError', self.errors.getvalue())

    def test_an_entry_that_is_kept_is_emptied(self):
        self.add_stations(1)
        kept = []
        sdk.traverse(sdk.bcm_l2_traverse, self.unit,
                     lambda _, entry: kept.append(entry))
        with self.assertRaises(ValueError):
            kept[0].mac  # pylint: disable=pointless-statement
        self.assertEqual(repr(kept[0]), '<bcm_l2_addr_t that is gone>')

    def test_a_call_within_the_callable_is_a_call(self):
        self.add_stations(2)
        ports = []

        def visit(unit, entry):
            status, found = sdk.bcm_l2_addr_get(unit, entry.mac, entry.vid)
            ports.append((status, found.port))

        self.assertEqual(sdk.traverse(sdk.bcm_l2_traverse, self.unit, visit),
                         0)
        self.assertEqual(ports, [(0, 1), (0, 1)])


class RegistrationTest(CallbackTest):

    def register(self, callable_):
        made = sdk.cookie(callable_)
        for function in (sdk.bcm_l2_addr_unregister, sdk.bcm_l2_addr_register):
            status = function(self.unit, sdk.bcm_l2_addr_callback_t, made)
        sdk.check(status)
        return made

    def test_a_registered_callable_is_called_and_let_go(self):
        seen = []
        made = self.register(lambda unit, entry, operation:
                             seen.append((unit, entry.mac, operation)))
        self.add_stations(1)
        self.assertEqual(seen, [(self.unit, '02:00:00:00:00:00', 1)])
        sdk.check(sdk.bcm_l2_addr_unregister(
            self.unit, sdk.bcm_l2_addr_callback_t, made))
        self.assertTrue(sdk.release(made))
        self.assertFalse(sdk.release(made))
        self.add_stations(2)
        self.assertEqual(len(seen), 1)

    def test_a_cookie_that_is_dropped_keeps_its_callable(self):
        seen = []

        def handler(*_):
            seen.append(True)

        alive = weakref.ref(handler)
        made = int(self.register(handler))
        del handler
        gc.collect()
        self.assertIsNotNone(alive())
        self.add_stations(1)
        self.assertEqual(seen, [True])
        # The number is all that is needed to take it back.
        back = sdk.Array('void *', 1)
        ctypes.c_void_p.from_address(int(back.this)).value = made
        sdk.check(sdk.bcm_l2_addr_unregister(
            self.unit, sdk.bcm_l2_addr_callback_t, back.value))
        self.assertTrue(sdk.release(back.value))
        self.assertIsNone(alive())

    def test_a_released_cookie_that_is_still_registered_does_nothing(self):
        seen = []
        made = self.register(lambda *_: seen.append(True))
        sdk.release(made)
        self.add_stations(1)
        self.assertEqual(seen, [])
        sdk.bcm_l2_addr_unregister(self.unit, sdk.bcm_l2_addr_callback_t, made)


class ThreadTest(CallbackTest):

    def setUp(self):
        CallbackTest.setUp(self)
        self.library = ctypes.CDLL(os.environ['OMBRA_NATIVE_CALLER'])

    def test_a_link_change_comes_from_a_native_thread(self):
        seen = []
        self.assertIsNone(sdk.bind(
            sdk.bcm_linkscan_handler_t,
            lambda unit, port, info: seen.append((unit, port, info.speed))))
        self.addCleanup(sdk.bind, sdk.bcm_linkscan_handler_t, None)
        info = sdk.bcm_port_info_t(speed=40000)
        self.library.report_link(
            ctypes.c_void_p(pointer_of(sdk.bcm_linkscan_handler_t)), 0, 7,
            ctypes.c_void_p(int(info.this)))
        self.assertEqual(seen, [(0, 7, 40000)])

    def test_many_threads_take_turns(self):
        seen = []
        made = self.cookie(lambda unit, entry, operation:
                           seen.append((unit, entry.port)))
        self.library.report_stations(
            ctypes.c_void_p(pointer_of(sdk.bcm_l2_addr_callback_t)), 4, 500,
            ctypes.c_void_p(int(made)))
        self.assertEqual(sorted(seen), [(unit, port) for unit in range(4)
                                        for port in range(500)])

    def test_an_exception_in_a_native_thread_is_reported(self):
        made = self.cookie(lambda *_: {}['nothing'])
        self.library.report_stations(
            ctypes.c_void_p(pointer_of(sdk.bcm_l2_addr_callback_t)), 1, 1,
            ctypes.c_void_p(int(made)))
        self.assertIn('KeyError', self.errors.getvalue())

    def test_a_callback_after_the_interpreter_has_ended_is_harmless(self):
        run_child('-c', '''if True:
            import ctypes
            import OmbraSdkV2Helper as sdk
            from proxy_support import pointer_of
            sdk.bind(sdk.bcm_linkscan_handler_t, lambda *_: None)
            # Runs when the process exits, after the interpreter.
            ctypes.CDLL(None).__cxa_atexit(
                ctypes.c_void_p(pointer_of(sdk.bcm_linkscan_handler_t)),
                None, None)''')


class NamesTest(CallbackTest):

    def test_a_bound_callable_takes_the_calls_without_a_cookie(self):
        self.add_stations(1)
        seen = []
        sdk.bind('bcm_l2_traverse_cb',
                 lambda *entry: seen.append(entry[2] and int(entry[2])))
        self.addCleanup(sdk.bind, 'bcm_l2_traverse_cb', None)
        self.assertEqual(sdk.bcm_l2_traverse(
            self.unit, sdk.bcm_l2_traverse_cb, None), 0)
        other = sdk.Array('int', 1)
        self.assertEqual(sdk.bcm_l2_traverse(
            self.unit, sdk.bcm_l2_traverse_cb, other), 0)
        self.assertEqual(seen, [None, int(other.this)])

    def test_without_any_callable_the_answer_is_a_failure(self):
        self.add_stations(1)
        self.assertEqual(sdk.bcm_l2_traverse(
            self.unit, sdk.bcm_l2_traverse_cb, None), sdk.BCM_E_FAIL)

    def test_bind_gives_back_what_was_bound(self):
        self.assertIsNone(sdk.bind(sdk.bcm_topo_map_f, max))
        self.assertIs(sdk.bind(sdk.bcm_topo_map_f, min), max)
        self.assertIs(sdk.bind(sdk.bcm_topo_map_f, None), min)
        for callback, callable_, error in (('nothing', max, ValueError),
                                           (sdk.bcm_topo_map_f, 5, TypeError),
                                           (None, max, AttributeError)):
            with self.assertRaises((error, ValueError)):
                sdk.bind(callback, callable_)
        with self.assertRaises(TypeError):
            sdk.cookie(5)

    def test_a_number_behind_a_pointer_can_be_written(self):
        def choose(unit, module, port):
            port.value = unit + module

        sdk.bind(sdk.bcm_topo_map_f, choose)
        self.addCleanup(sdk.bind, sdk.bcm_topo_map_f, None)
        native = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_int, ctypes.c_int,
                                  ctypes.POINTER(ctypes.c_int))(
                                      pointer_of(sdk.bcm_topo_map_f))
        port = ctypes.c_int()
        self.assertEqual((native(2, 40, port), port.value), (0, 42))

    def test_each_of_the_signatures_has_a_callback(self):
        types = set()
        for name, value in vars(sdk).iteritems():
            text = getattr(value, '__doc__', None) or ''
            if isinstance(text, str) and 'swig_ptr: _' in text:
                self.assertEqual(value.__name__, name)
                self.assertRaises(TypeError, value)
                types.add(text.split('swig_ptr: _')[1][16:])
        self.assertEqual(len(types), TOTALS['callback types'])

    def test_a_callback_passes_for_its_own_type_alone(self):
        with self.assertRaises(TypeError):
            sdk.bcm_l2_traverse(self.unit, sdk.bcm_linkscan_handler_t, None)

    def test_callbacks_travel_as_values_too(self):
        seen = []
        made = self.cookie(lambda *event: seen.append(event))
        value = sdk.bcm_port_phy_reset_cb_t()
        native = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_int, ctypes.c_int,
                                  ctypes.c_void_p)(value.value)
        self.assertEqual(native(0, 3, int(made)), 0)
        self.assertEqual(seen, [(0, 3)])
        self.assertIs(sdk.soc_port_phy_reset_cb_t, type(value))


if __name__ == '__main__':
    unittest.main()
