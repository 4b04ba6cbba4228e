"""Ports joined to interfaces of a network namespace: what a kernel does to
frames between the wire and a socket is undone."""

import ctypes
import os
import socket
import struct
import subprocess
import sys
import threading
import time
import unittest

import OmbraSdkV2Helper as sdk
from packet_support import (ONE, STANDIN, TWO, SwitchTest, checksum, frame_of)

ALL = 3  # ETH_P_ALL
PING = os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', '..', '..',
                    'examples', 'ping', 'ping.py')


def run(*words):
    subprocess.check_call(words)


def reason_for_none():
    """Why this process cannot have interfaces of its own; None if it can. From
    then on the thread is in a network namespace that nobody else sees."""
    if os.geteuid() != 0:
        return 'not root'
    if ctypes.CDLL(None, use_errno=True).unshare(0x40000000) != 0:
        return 'no namespaces: ' + os.strerror(ctypes.get_errno())
    try:
        run('ip', 'link', 'set', 'lo', 'up')
        run('ip', 'link', 'add', 'probe', 'type', 'veth', 'peer', 'name', 'eborp')
        run('ip', 'link', 'del', 'probe')
    except (EnvironmentError, subprocess.CalledProcessError) as error:
        return 'no interfaces: %s' % error
    return None


class WireTest(SwitchTest):
    """Interfaces p1 and p3 are joined to ports 1 and 3, h1 and h3 are their
    other ends."""

    @classmethod
    def setUpClass(cls):
        cls.why_not = reason_for_none()
        sys.stderr.write('real frames: %s\n' % (
            cls.why_not or 'on veth pairs in a namespace'))

    def setUp(self):
        if self.why_not:
            self.skipTest(self.why_not)
        SwitchTest.setUp(self)
        self.far = {}
        for port in 1, 3:
            run('ip', 'link', 'add', 'p%d' % port, 'type', 'veth', 'peer',
                'name', 'h%d' % port)
            self.addCleanup(run, 'ip', 'link', 'del', 'h%d' % port)
            with open('/proc/sys/net/ipv6/conf/h%d/disable_ipv6' % port, 'w') as f:
                f.write('1')
            run('ip', 'link', 'set', 'h%d' % port, 'up')
            self.far[port] = socket.socket(socket.AF_PACKET, socket.SOCK_RAW,
                                           socket.htons(ALL))
            self.far[port].bind(('h%d' % port, ALL))
            self.far[port].settimeout(2)

    def tearDown(self):
        for line in self.far.values():
            line.close()

    def join(self, *ports):
        for port in ports:
            self.assertEqual(STANDIN.standin_port_join(self.unit, port, 'p%d' % port), 0)
            self.addCleanup(STANDIN.standin_port_leave, self.unit, port)
            # A link that has just come up still drops what it is given.
            while 'state UP' not in subprocess.check_output(
                    ('ip', '-o', 'link', 'show', 'h%d' % port)):
                time.sleep(0.01)

    def hear(self, port, timeout=2):
        """The next frame at the far end that was not sent there."""
        deadline = time.time() + timeout
        while time.time() < deadline:
            self.far[port].settimeout(max(0.01, deadline - time.time()))
            try:
                frame, sender = self.far[port].recvfrom(70000)
            except socket.timeout:
                return None
            if sender[2] != socket.PACKET_OUTGOING:
                return frame
        return None

    def wait_for(self, port, count):
        deadline = time.time() + 3
        while len(self.captured(port)) < count and time.time() < deadline:
            time.sleep(0.01)
        return self.captured(port)

    def test_frames_cross_the_switch_with_and_without_their_tag(self):
        self.join(1, 3)
        self.capture(3, 1)
        # The kernel takes the tag out of what it hands to a socket.
        self.far[3].send(frame_of(100, target='\xff' * 6, payload='t' * 46))
        self.assertEqual(self.hear(1), frame_of(target='\xff' * 6, payload='t' * 46))
        self.assertEqual(self.captured(3),
                         [frame_of(100, target='\xff' * 6, payload='t' * 46)])
        self.far[1].send(frame_of(target=ONE, source=TWO))
        self.assertEqual(self.hear(3)[:14], ONE + TWO + '\x88\xb5', 'tag beside')

    def test_own_frames_do_not_come_back(self):
        self.join(1, 3)
        self.capture(3, 1)
        self.far[1].send(frame_of(target='\xff' * 6))
        self.assertIsNotNone(self.hear(3))
        time.sleep(0.05)
        self.assertEqual(self.captured(3), [])

    def test_sums_that_a_card_would_fill_in_are_right(self):
        self.join(1)
        self.capture(1, 1)
        run('ip', 'addr', 'add', '10.9.0.1/24', 'dev', 'h1')
        run('ip', 'neigh', 'add', '10.9.0.2', 'lladdr', '02:00:00:00:00:09', 'dev', 'h1')
        line = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        line.sendto('hello', ('10.9.0.2', 4000))
        frame = self.wait_for(1, 1)[0]
        pseudo = frame[26:34] + struct.pack('>BBH', 0, 17, len(frame) - 34)
        self.assertEqual(checksum(pseudo + frame[34:]), 0)
        self.assertEqual(frame[42:], 'hello')

    def test_the_kernel_does_not_speak_on_a_joined_interface(self):
        self.join(1)
        run('ip', 'link', 'set', 'p1', 'down')
        run('ip', 'link', 'set', 'p1', 'up')
        self.assertIsNone(self.hear(1, 1.5), 'neighbours, listeners, routers')
        request = frame_of(target='\xff' * 6, kind=0x806, payload=(
            '\0\x01\x08\0\x06\x04\0\x01' + ONE + '\x0a\0\0\x01' + '\0' * 6 + '\x7f\0\0\x01'))
        self.far[1].send(request)
        self.assertIsNone(self.hear(1, 0.3))

    def test_what_the_kernel_uses_is_refused(self):
        unit = self.unit
        self.assertEqual(STANDIN.standin_port_join(unit, 1, 'nothing'), sdk.BCM_E_NOT_FOUND)
        self.assertEqual(STANDIN.standin_port_join(unit, 0, 'p1'), sdk.BCM_E_PORT)
        run('ip', 'addr', 'add', '10.8.0.1/24', 'dev', 'p1')
        self.assertEqual(STANDIN.standin_port_join(unit, 1, 'p1'), sdk.BCM_E_BUSY)
        run('ip', 'addr', 'flush', 'dev', 'p1')
        if subprocess.call(('ip', 'link', 'add', 'b1', 'type', 'bridge')) == 0:
            self.addCleanup(run, 'ip', 'link', 'del', 'b1')
            run('ip', 'link', 'set', 'p1', 'master', 'b1')
            self.assertEqual(STANDIN.standin_port_join(unit, 1, 'p1'), sdk.BCM_E_BUSY)
            run('ip', 'link', 'set', 'p1', 'nomaster')
        self.join(1)
        self.assertEqual(STANDIN.standin_port_join(unit, 1, 'p3'), sdk.BCM_E_EXISTS)
        self.assertEqual(STANDIN.standin_port_join(unit, 2, 'p1'), sdk.BCM_E_EXISTS)
        self.assertEqual(STANDIN.standin_port_leave(unit, 1), 0)
        self.assertEqual(STANDIN.standin_port_leave(unit, 1), sdk.BCM_E_NOT_FOUND)
        with open('/proc/sys/net/ipv6/conf/p1/disable_ipv6') as setting:
            self.assertEqual(setting.read(), '0\n', 'as it was')

    def test_a_handler_runs_on_the_thread_that_reads(self):
        self.join(1)
        threads = []

        def handler(*_):
            threads.append(threading.current_thread().ident)
            return sdk.BCM_RX_HANDLED

        with self.receiving(handler):
            self.far[1].send(frame_of())
            deadline = time.time() + 3
            while not threads and time.time() < deadline:
                time.sleep(0.01)
        self.assertEqual(len(threads), 1)
        self.assertNotEqual(threads[0], threading.current_thread().ident)

    def test_nobody_waits_for_a_thread_that_wants_the_interpreter(self):
        # These calls keep the interpreter's lock, and the thread that reads
        # comes for it with every frame.
        self.join(1)
        with self.receiving(lambda *_: sdk.BCM_RX_HANDLED):
            for _ in range(200):
                self.far[1].send(frame_of())
            held = ctypes.PyDLL('libOmbraSdkV2Helper.so.0')
            for _ in range(20):
                sdk.check(sdk.bcm_rx_stop(self.unit, None))
                sdk.check(sdk.bcm_rx_start(self.unit, None))
                self.assertEqual(held.standin_port_leave(self.unit, 1), 0)
                self.assertEqual(held.standin_port_join(self.unit, 1, 'p1'), 0)
                self.far[1].send(frame_of())

    def test_no_join_no_threads(self):
        count = len(os.listdir('/proc/self/task'))
        self.inject(1, frame_of())
        self.assertEqual(len(os.listdir('/proc/self/task')), count)
        self.join(1)
        self.assertEqual(len(os.listdir('/proc/self/task')), count + 1)
        STANDIN.standin_port_leave(self.unit, 1)
        deadline = time.time() + 3
        while len(os.listdir('/proc/self/task')) > count and time.time() < deadline:
            time.sleep(0.01)
        self.assertEqual(len(os.listdir('/proc/self/task')), count)


class DemoTest(unittest.TestCase):

    def test_two_hosts_ping_in_memory_and_on_interfaces(self):
        for words in ([], ['memory']):
            child = subprocess.Popen([sys.executable, PING] + words,
                                     stdout=subprocess.PIPE)
            lines = child.communicate()[0].split('\n')
            self.assertEqual(child.returncode, 0)
            for line in ('bridged: 3 of 3 pings answered',
                         'with a rule: 0 of 3 pings answered, 3 dropped',
                         '  = dropped by rule 1: a rule drops it (rule_drop)',
                         'routed: 3 of 3 pings answered'):
                self.assertIn(line, lines)
            if 'the hosts are network namespaces on veth pairs' in lines:
                self.assertEqual(
                    lines.count('TCP: a megabyte each way, the same'), 2)
