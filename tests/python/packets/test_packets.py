"""Packets of Python: made of bytes, sent, received, kept; frames by a library
that has nothing to do with this one."""

import json
import os
import subprocess
import sys
from StringIO import StringIO

import OmbraSdkV2Helper as sdk
from packet_support import STANDIN, SwitchTest, frame_of

HERE = os.path.dirname(os.path.abspath(__file__))


class PacketTest(SwitchTest):

    def setUp(self):
        SwitchTest.setUp(self)
        self.errors = sys.stderr = StringIO()
        self.addCleanup(setattr, sys, 'stderr', sys.__stderr__)

    def test_bytes_make_a_packet_and_come_back(self):
        for data in ('', 'x', '\0\xff' * 700):
            made = sdk.packet(data, vlan=7)
            self.assertEqual(sdk.packet_bytes(made), data)
            self.assertEqual((made.vlan, made.pkt_len), (7, len(data)))
        self.assertRaises(AttributeError, sdk.packet, 'x', color_of=1)

    def test_a_packet_leaves_by_its_ports_or_through_the_switch(self):
        self.capture(1, 2)
        self.capture(3, 2)
        sdk.check(sdk.bcm_tx(self.unit, sdk.packet(
            frame_of(100), tx_pbmp=[1, 3], tx_upbmp=[1]), None))
        self.assertEqual(self.captured(1), [frame_of()])
        self.assertEqual(self.captured(3), [frame_of(100)])
        through = frame_of(100, target='\xff' * 6)
        sdk.check(sdk.bcm_tx(self.unit, sdk.packet(through), None))
        self.assertEqual(self.captured(3)[1:], [through])
        self.assertEqual(len(self.captured(1)), 2)
        self.assertEqual(sdk.bcm_tx(self.unit, sdk.packet(''), None),
                         sdk.BCM_E_PARAM)

    def test_a_handler_of_python_hears_of_packets(self):
        heard = []

        def first(unit, packet):
            heard.append((unit, packet.rx_port, packet.vlan,
                          sdk.packet_bytes(packet)))

        def second(unit, packet):
            # Answers by the port that it came from, while it handles it.
            answer = frame_of(target=packet_source(packet))
            sdk.check(sdk.bcm_tx(unit, sdk.packet(
                answer, tx_pbmp=[packet.rx_port]), None))
            return sdk.BCM_RX_HANDLED

        def packet_source(packet):
            return sdk.packet_bytes(packet)[6:12]

        self.capture(1, 2)
        with self.receiving(second, 10):
            with self.receiving(first, 20):
                self.inject(1, frame_of())
            self.inject(1, frame_of())
        self.inject(1, frame_of())
        self.assertEqual(heard, [(self.unit, 1, 100, frame_of())])
        self.assertEqual(len(self.captured(1)), 2)

        def broken(*_):
            raise KeyError('broken')

        with self.receiving(broken):
            self.inject(1, frame_of())
        self.assertIn("KeyError: 'broken'", self.errors.getvalue())

    def test_a_kept_packet_is_freed_by_who_kept_it(self):
        kept = []

        def keep(_, packet):
            kept.append(packet)
            return sdk.BCM_RX_HANDLED_OWNED

        with self.receiving(keep):
            self.inject(1, frame_of())
        self.assertEqual(sdk.packet_bytes(kept[0]), frame_of())
        sdk.check(sdk.bcm_rx_free(self.unit, kept[0].alloc_ptr))
        sdk.check(sdk.bcm_pkt_free(self.unit, kept[0]))
        self.assertEqual(sdk.bcm_pkt_free(self.unit, kept[0]),
                         sdk.BCM_E_NOT_FOUND)

    def test_a_trace_is_data(self):
        told = self.trace(3, frame_of(100))
        self.assertEqual(told['reason'], 'to_processor')
        self.assertEqual([step['stage'] for step in told['steps']],
                         ['parse', 'vlan', 'stp', 'l2', 'processor'])
        self.assertEqual(self.ended('to_processor'), 0)


class ScapyTest(SwitchTest):
    """Frames by scapy, which runs under Python 3 in a process of its own, and
    reads what became of them."""

    PYTHON3 = '/usr/bin/python3'

    def scapy(self, *words):
        """What the helper prints, or the end of the test where it cannot."""
        environment = dict(os.environ)
        environment.pop('PYTHONPATH', None)
        try:
            child = subprocess.Popen(
                (self.PYTHON3, os.path.join(HERE, 'by_scapy.py')),
                stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                stderr=subprocess.PIPE, env=environment)
        except EnvironmentError as error:
            self.skipTest('no Python 3: %s' % error)
        output, errors = child.communicate(json.dumps(words))
        if 'No module named' in errors:
            self.skipTest('no scapy: python3-scapy is not installed')
        self.assertEqual(child.returncode, 0, errors)
        return json.loads(output)

    def test_what_scapy_makes_is_understood_and_routed(self):
        for vid in 100, 1:
            interface = sdk.bcm_l3_intf_t(l3a_mac_addr='02:00:00:00:00:fe',
                                          l3a_vid=vid)
            sdk.check(sdk.bcm_l3_intf_create(self.unit, interface))
        hop = sdk.box('bcm_if_t')
        sdk.check(sdk.bcm_l3_egress_create(self.unit, 0, sdk.bcm_l3_egress_t(
            intf=interface.l3a_intf_id, mac_addr='02:00:00:00:00:52',
            port=9), hop))
        sdk.check(sdk.bcm_l3_route_add(self.unit, sdk.bcm_l3_route_t(
            l3a_intf=hop.value)))
        sdk.check(sdk.bcm_l3_route_add(self.unit, sdk.bcm_l3_route_t(
            l3a_intf=hop.value, l3a_flags=2)))
        for port in 1, 3:
            sdk.check(sdk.bcm_port_l3_enable_set(self.unit, port, 1))
        made = self.scapy('make')
        self.assertGreater(len(made), 10)
        routed = []
        for name, port, data, outcome in made:
            frame = data.decode('hex')
            told = self.trace(port, frame)
            self.assertEqual(told.get('reason', 'flooded'), outcome, name)
            copies = self.inject(port, frame)
            if outcome == 'sent':
                self.assertEqual([out for out, _ in copies], [9], name)
                self.assertEqual(told['frame'], copies[0][1].encode('hex'))
                routed.append((name, data, copies[0][1].encode('hex')))
        self.assertGreater(len(routed), 5)
        self.assertEqual(self.scapy('read', routed), [])

    def test_scapy_reads_a_capture(self):
        self.capture(1, 3)
        frames = [frame_of(payload='.' * size) for size in (46, 100, 1500)]
        for frame in frames:
            self.inject(1, frame)
        import ctypes
        data = ctypes.POINTER(ctypes.c_char)()
        size = ctypes.c_int()
        STANDIN.standin_packet_capture_get(
            self.unit, 1, ctypes.byref(data), ctypes.byref(size), None)
        self.assertEqual(
            self.scapy('pcap', data[:size.value].encode('hex')),
            [frame.encode('hex') for frame in frames])
