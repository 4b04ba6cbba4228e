"""Every registration of the API: its callable hears of its cause, or the call
says that nothing can ever call it."""

import threading
import unittest

import OmbraSdkV2Helper as sdk
from device_support import DeviceTest, bench

COOKIE = object()
PORT = 5
PHY = sdk.soc_port_t(PORT)
REGISTER = sdk.EGQ_TTL_SCOPEr


def types_of(kind, *bits):
    """A set of event types."""
    made = kind()
    for bit in bits:
        made.w[bit // 32] |= 1 << bit % 32
    return made


def link_is(present):
    return lambda: bench.link_set(0, PORT, present)


def add_station():
    return sdk.bcm_l2_addr_add(0, sdk.bcm_l2_addr_t(
        mac='02:00:00:00:00:01', vid=1, port=PORT))


def a_second():
    return bench.time_pass(0, 1000000)


def map_module():
    mod, port = sdk.intp(), sdk.intp()
    status = sdk.bcm_stk_modmap_map(0, 1, 3, 4, mod, port)
    return status or (mod.value - 30 or port.value - 40)


def custom_get():
    values = sdk.Array('unsigned int', 4)
    return sdk.bcm_custom_port_get(0, PORT, 7, 4, values, sdk.intp())


def map_to(unit, way, module, port, module_out, port_out):
    sdk.intp_frompointer(module_out).value = 10 * module
    sdk.intp_frompointer(port_out).value = 10 * port
    return (unit, way, module, port)


def read_link(unit, port, link):
    sdk.intp_frompointer(link).value = 0
    return (unit, port)


def override(callback):
    """Takes over the reads of registers of 32 bits; None gives them back."""
    functions = sdk.soc_reg_access_t()
    if callback is not None:
        functions.reg32_get = callback
    return sdk.soc_reg_access_func_register(0, functions)


def first(count):
    return lambda *told: told[:count]


OAM = types_of(sdk.bcm_oam_event_types_t, 3, 40)
COSQ = types_of(sdk.bcm_cosq_event_types_t, 1)

# By function: the callback; its arguments after the unit, with None for the
# callback and COOKIE; those of the call that takes it back; the cause; what
# is kept of the callback's arguments; what it hears.
CALLED = {
    'bcm_linkscan_register': (
        'bcm_linkscan_handler_t', (None,), (None,), link_is(0),
        lambda unit, port, info: (unit, port, info.linkstatus), (0, PORT, 0)),
    'bcm_linkscan_port_register': (
        'bcm_linkscan_port_handler_t', (PORT, None), (PORT, None), a_second,
        read_link, (0, PORT)),
    'bcm_l2_addr_register': (
        'bcm_l2_addr_callback_t', (None, COOKIE), (None, COOKIE), add_station,
        lambda unit, entry, operation: (entry.mac, operation),
        ('02:00:00:00:00:01', 1)),
    'bcm_switch_event_register': (
        'bcm_switch_event_cb_t', (None, COOKIE), (None, COOKIE),
        lambda: bench.switch_event(
            0, sdk.BCM_SWITCH_EVENT_PARITY_ERROR, 7, 8, 9),
        first(5), (0, sdk.BCM_SWITCH_EVENT_PARITY_ERROR, 7, 8, 9)),
    'bcm_attach_register': (
        'bcm_attach_cb_t', (None, COOKIE), (None, COOKIE),
        lambda: sdk.soc_deinit(0),
        lambda unit, state, info: (unit, state, info.type), (0, 1, 'switch')),
    'bcm_time_heartbeat_register': (
        'bcm_time_heartbeat_cb', (6, None, COOKIE), (6,), a_second,
        lambda unit, number, at: (number, at.synchronous.seconds), (6, 3)),
    'bcm_oam_event_register': (
        'bcm_oam_event_cb', (OAM, None, COOKIE), (OAM, None),
        lambda: bench.oam_event(0, 40, 1, 2, 3), first(5),
        (0, 1, 40, 2, 3)),
    'bcm_oam_performance_event_register': (
        'bcm_oam_performance_event_cb', (OAM, None, COOKIE), (OAM, None),
        lambda: bench.oam_performance_event(0, 3, 8, 9), first(4),
        (0, 3, 8, 9)),
    'bcm_oam_pm_event_register': (
        'bcm_oam_pm_event_cb', (OAM, None, COOKIE), (OAM, None),
        lambda: bench.oam_pm_event(0, 3), first(2), (0, 3)),
    'bcm_cosq_event_register': (
        'bcm_cosq_event_cb', (COSQ, PORT, 2, None, COOKIE),
        (COSQ, PORT, 2, None),
        lambda: bench.cosq_event(0, 1, PORT, 2, 30, 40), first(4),
        (0, 1, 30, 40)),
    'bcm_cosq_pfc_deadlock_recovery_event_register': (
        'bcm_cosq_pfc_deadlock_recovery_event_cb_t', (None, COOKIE),
        (None, COOKIE), lambda: bench.pfc_deadlock(0, PORT, 6, 1),
        first(4), (0, PORT, 6, 1)),
    'bcm_port_medium_status_register': (
        'bcm_port_medium_status_cb_t', (PORT, None, COOKIE),
        (PORT, None, COOKIE), lambda: sdk.soc_phy_medium_status_notify(
            0, PHY, sdk.soc_port_medium_t(1)),
        first(3), (0, PORT, 1)),
    'soc_phy_medium_status_register': (
        'soc_port_medium_status_cb_t', (PHY, None, COOKIE),
        (PHY, None, COOKIE), lambda: sdk.soc_phy_medium_status_notify(
            0, PHY, sdk.soc_port_medium_t(2)),
        first(3), (0, PORT, 2)),
    'soc_phy_reset_register': (
        'soc_port_phy_reset_cb_t', (PHY, None, COOKIE, 1),
        (PHY, None, COOKIE), lambda: sdk.bcm_port_phy_reset(0, PORT),
        first(2), (0, PORT)),
    'bcm_port_phy_reset_register': (
        'bcm_port_phy_reset_cb_t', (PORT, None, COOKIE), (PORT, None, COOKIE),
        lambda: sdk.bcm_port_phy_reset(0, PORT), first(2), (0, PORT)),
    'bcm_custom_register': (
        'bcm_custom_cb_t', (None, COOKIE), (), custom_get, first(5),
        (0, PORT, 0, 7, 4)),
    'bcm_stk_modmap_register': (
        'bcm_stk_modmap_cb_t', (None,), (), map_module, map_to, (0, 1, 3, 4)),
    'bcm_stk_update_callback_register': (
        'bcm_stk_cb_f', (None, COOKIE), (None, COOKIE),
        lambda: sdk.bcm_stk_modid_set(0, 9), first(3), (0, 9, 1)),
    'soc_reg_snoop_register': (
        'soc_reg_snoop_cb_t', (REGISTER, 2, None, COOKIE), (REGISTER,),
        lambda: sdk.soc_reg32_write(
            0, sdk.soc_reg_addr(0, REGISTER, 1, 3), 9),
        lambda unit, register, info, kind, high, low:
        (register, info.port, info.idx, kind, low), (REGISTER, 1, 3, 2, 9)),
}

# What no call of a handler ever comes to, with arguments that would do.
UNCALLABLE = {
    'bcm_subport_linkphy_rx_error_register': (
        (sdk.bcm_subport_linkphy_rx_errors_t(), None, None),
        (sdk.bcm_subport_linkphy_rx_errors_t(),)),
    'bcm_ipfix_register': (
        (sdk.bcm_ipfix_callback_t, None), (sdk.bcm_ipfix_callback_t, None)),
    'bcm_fabric_control_redundancy_register': (
        (sdk.bcm_fabric_control_redundancy_handler_t,),
        (sdk.bcm_fabric_control_redundancy_handler_t,)),
    'bcm_rx_sched_register': ((sdk.bcm_rx_sched_cb,), ()),
    'bcm_switch_stable_register': (
        (sdk.bcm_switch_read_func_t, sdk.bcm_switch_write_func_t), None),
}

# Told by the packets that arrive.
PACKETS = {'bcm_rx_register', 'bcm_rx_queue_register'}
ACCESS = 'soc_reg_access_func_register'


class EventTest(DeviceTest):

    def setUp(self):
        DeviceTest.setUp(self)
        sdk.check(sdk.bcm_linkscan_enable_set(0, 1000))
        sdk.check(sdk.bcm_linkscan_mode_set(0, PORT, sdk.BCM_LINKSCAN_MODE_SW))
        sdk.check(sdk.bcm_time_interface_add(0, sdk.bcm_time_interface_t(
            id=6, heartbeat_hz=1, offset=sdk.bcm_time_spec_t(seconds=2))))
        sdk.check(sdk.bcm_time_heartbeat_enable_set(0, 6, 1))

    def test_the_table_of_registrations_is_the_one_of_this_test(self):
        rows = bench.registrations()
        self.assertEqual(len(rows), 27)
        self.assertEqual({name for name, _, _ in rows},
                         PACKETS.union(CALLED, UNCALLABLE, [ACCESS]))
        self.assertEqual({name for name, _, callable_ in rows
                          if not callable_}, set(UNCALLABLE))
        self.assertTrue(all(cause for _, cause, _ in rows))

    def test_each_callable_hears_of_its_cause_until_it_is_taken_back(self):
        for name, row in sorted(CALLED.iteritems()):
            callback, given, back, cause, pick, expected = row
            self.tearDown()
            self.setUp()
            heard = []

            def hear(*told):
                heard.append((pick(*told), threading.currentThread()))

            function = getattr(sdk, name)
            callback = getattr(sdk, callback)
            if isinstance(callback, type):  # one that travels as a value
                callback = callback()
            cookie = sdk.cookie(hear)

            def filled(arguments):
                return [callback if one is None else
                        cookie if one is COOKIE else one for one in arguments]

            if COOKIE not in given:
                sdk.bind(callback, hear)
            try:
                status = function(0, *filled(given))
                self.assertIn(status, (None, 0), (name, status))
                heard[:] = []  # a handler of a port is asked at once
                self.assertIn(cause(), (None, 0), name)
                self.assertEqual(heard,
                                 [(expected, threading.currentThread())], name)
                undo = getattr(sdk, name[:-8] + 'unregister')
                status = undo(0, *filled(back))
                self.assertIn(status, (None, 0), (name, status))
                cause()
                self.assertEqual(len(heard), 1, name)
                status = undo(0, *filled(back))
                self.assertIn(status, (None, sdk.BCM_E_NOT_FOUND), name)
            finally:
                if COOKIE not in given:
                    sdk.bind(callback, None)
                sdk.release(cookie)

    def test_what_nothing_can_call_is_refused(self):
        for name, (given, back) in UNCALLABLE.iteritems():
            self.assertEqual(getattr(sdk, name)(0, *given),
                             sdk.BCM_E_UNAVAIL, name)
            if back is not None:
                undo = getattr(sdk, name[:-8] + 'unregister')
                self.assertEqual(undo(0, *back), sdk.BCM_E_UNAVAIL, name)

    def test_an_access_function_serves_in_our_place(self):
        heard, value = [], sdk.uintp()

        def read(unit, register, port, index, out):
            heard.append((unit, register, port, index))
            sdk.uintp_frompointer(out).value = 77

        sdk.bind(sdk.soc_reg32_get_f, read)
        self.addCleanup(sdk.bind, sdk.soc_reg32_get_f, None)
        sdk.check(override(sdk.soc_reg32_get_f))
        for road in (lambda: sdk.soc_reg32_get(0, REGISTER, 1, 3, value),
                     lambda: sdk.soc_reg32_read(
                         0, sdk.soc_reg_addr(0, REGISTER, 1, 3), value)):
            sdk.check(road())
            self.assertEqual(heard.pop(), (0, REGISTER, 1, 3))
            self.assertEqual(value.value, 77)
            self.assertEqual(heard, [])
        sdk.check(override(None))
        sdk.check(sdk.soc_reg32_get(0, REGISTER, 1, 3, value))
        self.assertEqual(heard, [])

    def test_interrupts_that_are_masked_tell_nothing(self):
        sdk.maskDeviceInterrupts(1)
        self.assertEqual(bench.switch_event(0, 2, 0, 0, 0),
                         sdk.BCM_E_DISABLED)
        self.assertEqual(bench.oam_pm_event(0, 3), sdk.BCM_E_DISABLED)


if __name__ == '__main__':
    unittest.main()
