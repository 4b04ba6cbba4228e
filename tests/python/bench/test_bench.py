"""What the bench can do for a test of an agent."""

import os
import unittest

import OmbraSdkV2Bench as bench
import OmbraSdkV2Helper as sdk
from proxy_support import run_child

FULL = sdk.BCM_E_FULL
STATION = '02:00:00:00:00:0a'


class BenchTest(unittest.TestCase):

    def setUp(self):
        bench.reset()
        for unit in 0, 1:
            sdk.check(sdk.addOmbraDevice(0, 1 + unit, 0, 0))
            sdk.check(sdk.soc_init(unit))
        bench.forget_faults()

    def tearDown(self):
        bench.reset()

    def test_calls_fail_as_told(self):
        def create(vlan, unit=0):
            return sdk.bcm_vlan_create(unit, vlan)

        with bench.fault('bcm_vlan_create', FULL, after=1, count=1, unit=0):
            self.assertEqual([create(10, 1), create(10), create(11),
                              create(12)], [0, 0, FULL, 0])
        with bench.fault('bcm_vlan_create', FULL, where={'vid': 20}) as fault:
            self.assertEqual((create(13), fault.met), (0, False))
            self.assertEqual((create(20), fault.met), (FULL, True))
        self.assertEqual(create(20), 0)
        with bench.capacity('vlan'):
            self.assertEqual(create(21), FULL)
        visited = []
        for last in range(1, 4):
            bench.learn(0, STATION[:-1] + str(last), 10, 3)
        with bench.fault('bcm_l2_traverse', FULL, callback=True, after=2):
            self.assertEqual(FULL, sdk.traverse(
                sdk.bcm_l2_traverse, 0,
                lambda unit, entry: visited.append(entry.mac)))
        self.assertEqual(visited, [STATION[:-1] + '1', STATION[:-1] + '2'])

    def test_a_fault_that_means_nothing_is_an_error(self):
        for fault, why in (
                (bench.fault('bcm_vlan_creat', FULL), 'there is no function'),
                (bench.fault('bcm_vlan_create', FULL, where={'vd': 1}),
                 "no fault is 'arg.vd:1'"),
                (bench.fault('bcm_vlan_create', FULL, count=0), "'count:0'"),
                (bench.capacity('vlan', 0), 'table vlan holds 1 entries'),
                (bench.capacity('vlans'), "there is no table 'vlans'")):
            with self.assertRaisesRegexp(ValueError, why):
                fault.__enter__()
        with self.assertRaisesRegexp(bench.NeverMet, r'^bcm_vlan_create \('):
            with bench.fault('bcm_vlan_create', FULL, unit=1):
                sdk.bcm_vlan_create(0, 30)
        _, errors = run_child('-c', (
            'import OmbraSdkV2Bench as bench\n'
            'bench.fault_set("bcm_vlan_create", "status:-6")\n'))
        self.assertEqual(errors, 'fault set, but never met: '
                                 'bcm_vlan_create (status:-6)\n')

    def test_calls_are_recorded(self):
        with bench.recording() as calls:
            sdk.bcm_vlan_create(0, 40)
            sdk.bcm_l2_addr_delete(1, STATION, 40)
            sdk.bcm_vlan_control_set(0, sdk.bcmVlanDropUnknown, 1)
            with bench.fault('bcm_port_enable_get', sdk.BCM_E_TIMEOUT):
                sdk.bcm_port_enable_get(0, 5, sdk.box('int'))
        sdk.bcm_vlan_create(0, 41)
        self.assertEqual([one[:1] + one[2:] for one in calls], [
            ('bcm_vlan_create', 0, 'chapters'),
            ('bcm_l2_addr_delete', sdk.BCM_E_NOT_FOUND, 'chapters'),
            ('bcm_vlan_control_set', 0, 'generic-pair'),
            ('bcm_port_enable_get', sdk.BCM_E_TIMEOUT, 'fault')])
        self.assertEqual(calls[1].arguments, [
            ('unit', 1), ('mac', STATION), ('vid', 40)])
        self.assertEqual(calls[3].arguments[2], ('enable', True))

    def test_states_are_saved_compared_and_loaded(self):
        before = bench.save(0)
        digest = bench.digest(0)
        sdk.check(sdk.bcm_vlan_create(0, 50))
        sdk.check(sdk.bcm_port_enable_set(0, 5, 0))
        self.assertEqual(bench.compare(before, bench.save(0)), [
            bench.Difference('vlan', '50', False, True,
                             [('members', 0, ''), ('stg', 0, 1),
                              ('untagged', 0, '')]),
            bench.Difference('port', '5', True, True, [('enable', 1, 0)])])
        with self.assertRaisesRegexp(AssertionError, 'vlan 51'):
            with bench.unchanged(0):
                sdk.bcm_vlan_create(0, 51)
        self.assertEqual(bench.load(0, before), 0)
        self.assertEqual(bench.digest(0), digest)
        self.assertEqual(sdk.bcm_vlan_destroy(0, 50), sdk.BCM_E_NOT_FOUND)
        self.assertIn(('vlan', '1'), [one[:2] for one in
                                      bench.objects(bench.first())])
        self.assertRaises(ValueError, bench.save, 7)
        self.assertRaises(ValueError, bench.load, 0, 'text')

    def test_the_world_around_a_unit(self):
        self.assertEqual(bench.link_set(0, 5, 0), 0)
        link = sdk.box('int')
        sdk.check(sdk.bcm_port_link_status_get(0, 5, link))
        self.assertEqual(link.value, 0)
        self.assertEqual(bench.learn(0, STATION, 1, 3), 0)
        self.assertEqual(bench.learn(0, STATION, 99, 3), sdk.BCM_E_NOT_FOUND)
        self.assertEqual(bench.traffic(0, 3, 0, 7, 700), 0)
        sdk.check(sdk.bcm_l2_age_timer_set(0, 10))
        self.assertEqual(bench.time_pass(0, 30 * 10 ** 6), 0)
        self.assertEqual(sdk.bcm_l2_addr_get(0, STATION, 1)[0],
                         sdk.BCM_E_NOT_FOUND)
        sdk.bcm_vlan_destroy(0, 1)
        self.assertIn('bcm_vlan_destroy(0): BADID', bench.last_refusal())
        for wrong in ((0, '02:00:00:00:00', 1, 3), (0, STATION, 70000, 3),
                      (0, STATION, 1), (0, None, 1, 3)):
            self.assertRaises((TypeError, ValueError, OverflowError),
                              bench.learn, *wrong)


if __name__ == '__main__':
    unittest.main()
