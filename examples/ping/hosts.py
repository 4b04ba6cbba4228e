"""The hosts of ping.py: network namespaces where they can be had, else a few
lines of Python, with the frames that both need."""

import ctypes
import hashlib
import os
import socket
import struct
import subprocess
import sys
import time

import OmbraSdkV2Helper  # loads the stand-in, which lies beside it

STANDIN = ctypes.CDLL('libOmbraSdkV2Helper.so.0')
STANDIN.standin_packet_trace.restype = ctypes.c_char_p
MEGABYTE = 1 << 20
TCP_PORT = 5001


# Frames, made and read.

def mac_bytes(mac):
    return ''.join(chr(int(part, 16)) for part in mac.split(':'))


def mac_text(data):
    return ':'.join('%02x' % ord(byte) for byte in data)


def ip_number(address):
    return struct.unpack('>I', socket.inet_aton(address))[0]


def same_net(one, other):
    return ip_number(one) >> 8 == ip_number(other) >> 8


def checksum(data):
    data += '\0' * (len(data) % 2)
    total = sum(struct.unpack('>%dH' % (len(data) // 2), data))
    while total >> 16:
        total = (total & 0xffff) + (total >> 16)
    return ~total & 0xffff


def ethernet(target, source, kind, payload):
    return mac_bytes(target) + mac_bytes(source) + struct.pack('>H', kind) + payload


def make_arp(operation, mac, sender, target_mac, target):
    payload = struct.pack('>HHBBH', 1, 0x800, 6, 4, operation)
    payload += mac_bytes(mac) + socket.inet_aton(sender)
    payload += mac_bytes(target_mac or '0:0:0:0:0:0') + socket.inet_aton(target)
    return ethernet(target_mac or 'ff:ff:ff:ff:ff:ff', mac, 0x806,
                    payload + '\0' * 18)


def without_tag(frame):
    return frame[:12] + frame[16:] if frame[12:14] == '\x81\0' else frame


def parse_arp(frame):
    """(operation, hardware address, sender, target) of an ARP frame, or None."""
    frame = without_tag(frame)
    if frame[12:14] != '\x08\x06' or len(frame) < 42:
        return None
    return (ord(frame[21]), mac_text(frame[22:28]),
            socket.inet_ntoa(frame[28:32]), socket.inet_ntoa(frame[38:42]))


def target_of(frame):
    frame = without_tag(frame)
    return socket.inet_ntoa(frame[30:34]) if frame[12:14] == '\x08\0' else None


def make_echo(kind, source, target, number):
    echo = struct.pack('>BBHHH', kind, 0, 0, 77, number) + '.' * 48
    echo = echo[:2] + struct.pack('>H', checksum(echo)) + echo[4:]
    head = struct.pack('>BBHHHBBH', 0x45, 0, 20 + len(echo), number, 0, 64, 1, 0)
    ends = socket.inet_aton(source) + socket.inet_aton(target)
    head = head[:10] + struct.pack('>H', checksum(head + ends))
    return head + ends + echo


class Hosts(object):
    """What both kinds do."""

    def __init__(self, unit):
        self.unit = unit

    def __enter__(self):
        return self

    def __exit__(self, *_):
        pass

    def frame(self, port, source, target):
        """The frame of a ping by the host on that port."""
        return ethernet(self.mac_of(3 - port), self.mac_of(port), 0x800,
                        make_echo(8, source, target, 1))

    def why(self, port, source, target):
        """The trace of such a ping, which stays dry."""
        frame = self.frame(port, source, target)
        return STANDIN.standin_packet_trace(self.unit, port, frame, len(frame),
                                            0, 0, None).rstrip()


class MemoryHosts(Hosts):
    """Hosts that know ARP and echo. What leaves a port is read out of its
    capture."""

    what = 'a few lines of Python, in memory'

    def set_up(self, addresses, gateways):
        self.addresses = addresses
        self.gateways = gateways
        self.known = dict((port, {}) for port in addresses)
        self.answers = 0
        self.read = {}
        for port in addresses:
            STANDIN.standin_packet_capture(self.unit, port, 2)
            self.read[port] = 24  # behind the head of the file

    @staticmethod
    def mac_of(port):
        return '02:00:00:00:01:%02x' % port

    def send(self, port, frame):
        STANDIN.standin_packet_inject(self.unit, port, frame, len(frame),
                                      None, None)

    def heard(self):
        """(port, frame) of what left since the last time."""
        for port in self.addresses:
            data = ctypes.POINTER(ctypes.c_char)()
            size = ctypes.c_int()
            STANDIN.standin_packet_capture_get(self.unit, port,
                                               ctypes.byref(data),
                                               ctypes.byref(size), None)
            records = data[:size.value]
            while self.read[port] < len(records):
                at = self.read[port] + 16
                end = at + struct.unpack('=I', records[at - 8:at - 4])[0]
                self.read[port] = end
                yield port, records[at:end]

    def settle(self):
        """Lets the hosts hear until it is quiet."""
        heard = list(self.heard())
        while heard:
            for port, frame in heard:
                self.hear(port, frame)
            heard = list(self.heard())

    def hear(self, port, frame):
        mine = self.addresses[port]
        arp = parse_arp(frame)
        if arp is not None:
            operation, mac, sender, target = arp
            if target == mine:
                self.known[port][sender] = mac
            if target == mine and operation == 1:
                self.send(port, make_arp(2, self.mac_of(port), mine, mac, sender))
        elif target_of(frame) == mine and frame[:6] == mac_bytes(self.mac_of(port)):
            source = socket.inet_ntoa(frame[26:30])
            if frame[34] == '\x08':
                self.send_ip(port, source, make_echo(
                    0, mine, source, struct.unpack('>H', frame[40:42])[0]))
            elif frame[34] == '\0':
                self.answers += 1

    def send_ip(self, port, target, packet):
        hop = target if same_net(target, self.addresses[port]) \
            else self.gateways[port]
        if hop not in self.known[port]:
            self.send(port, make_arp(1, self.mac_of(port),
                                     self.addresses[port], None, hop))
            self.settle()
        if hop in self.known[port]:
            self.send(port, ethernet(self.known[port][hop], self.mac_of(port),
                                     0x800, packet))

    def ping(self, port, target, count):
        self.answers = 0
        for number in range(count):
            self.send_ip(port, target, make_echo(8, self.addresses[port],
                                                 target, number))
            self.settle()
        return self.answers

    @staticmethod
    def exchange(_port, _other, _address):
        return 'not without namespaces'


class Namespace(object):
    """A network namespace, held by a process that does nothing."""

    def __init__(self, interface):
        self.holder = subprocess.Popen(['unshare', '-n', 'sleep', '600'])
        own = os.readlink('/proc/self/ns/net')
        there = '/proc/%d/ns/net' % self.holder.pid
        while os.readlink(there) == own:
            time.sleep(0.01)
        self.interface = interface
        subprocess.check_call(
            ['ip', 'link', 'add', interface, 'type', 'veth', 'peer', 'name',
             'eth0', 'netns', str(self.holder.pid)])

    def command(self, *words):
        return ['nsenter', '-t', str(self.holder.pid), '-n'] + list(words)

    def run(self, *words):
        subprocess.check_call(self.command(*words))

    def start(self, *words):
        """This file in the namespace."""
        return subprocess.Popen(
            self.command(sys.executable, __file__.replace('.pyc', '.py'), *words),
            stdout=subprocess.PIPE)

    def end(self):
        self.holder.kill()
        self.holder.wait()


class NamespaceHosts(Hosts):
    what = 'network namespaces on veth pairs'

    def __init__(self, unit):
        Hosts.__init__(self, unit)
        self.spaces = dict((port, Namespace('port%d' % port)) for port in (1, 2))
        for port, space in self.spaces.items():
            space.run('ip', 'link', 'set', 'eth0', 'up')
            status = STANDIN.standin_port_join(unit, port, space.interface)
            if status != 0:
                raise EnvironmentError('port %d cannot be joined: %d'
                                       % (port, status))

    def __exit__(self, *_):
        for port, space in self.spaces.items():
            STANDIN.standin_port_leave(self.unit, port)
            space.end()

    def set_up(self, addresses, gateways):
        for port, space in self.spaces.items():
            space.run('ip', 'addr', 'flush', 'dev', 'eth0')
            space.run('ip', 'addr', 'add', addresses[port] + '/24', 'dev', 'eth0')
            if port in gateways:
                space.run('ip', 'route', 'add', 'default', 'via', gateways[port])

    def mac_of(self, port):
        words = subprocess.check_output(self.spaces[port].command(
            'ip', '-o', 'link', 'show', 'eth0')).split()
        return words[words.index('link/ether') + 1]

    def ping(self, port, target, count):
        output = self.spaces[port].start('ping', target, str(count))
        return int(output.communicate()[0])

    def exchange(self, port, other, address):
        """A megabyte each way, compared."""
        server = self.spaces[other].start('serve')
        server.stdout.readline()  # it listens
        client = self.spaces[port].start('exchange', address)
        sent, got = client.communicate()[0].split()
        there_got, there_sent = server.communicate()[0].split()
        same = sent == there_got and got == there_sent
        return 'a megabyte each way, %s' % ('the same' if same else 'CHANGED')


def found(unit, in_memory):
    """Namespaces if this process may have them."""
    if in_memory:
        return MemoryHosts(unit)
    try:
        # Interfaces are made in a namespace of our own, so that no other
        # network of the machine sees them.
        if os.geteuid() == 0 and ctypes.CDLL(None).unshare(0x40000000) == 0:
            return NamespaceHosts(unit)
    except (EnvironmentError, subprocess.CalledProcessError):
        pass
    return MemoryHosts(unit)


# What runs in a namespace.

def ping(target, count):
    line = socket.socket(socket.AF_INET, socket.SOCK_RAW, socket.IPPROTO_ICMP)
    answers = 0
    for number in range(int(count)):
        echo = make_echo(8, '0.0.0.0', target, number)[20:]
        try:
            line.sendto(echo, (target, 0))
        except EnvironmentError:
            continue
        deadline = time.time() + 1
        while time.time() < deadline:
            line.settimeout(max(0.01, deadline - time.time()))
            try:
                packet = line.recv(2048)
            except socket.error:
                break
            if packet[20] == '\0' and packet[24:28] == echo[4:8]:
                answers += 1
                break
    print answers


def swap(connection, data, sends_first):
    got = ''
    for sends in (sends_first, not sends_first):
        if sends:
            connection.sendall(data)
            continue
        while len(got) < MEGABYTE:
            part = connection.recv(65536)
            if not part:
                break
            got += part
    return hashlib.sha1(got).hexdigest()


def serve():
    listener = socket.socket()
    listener.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
    listener.bind(('', TCP_PORT))
    listener.listen(1)
    listener.settimeout(20)
    print 'listening'
    sys.stdout.flush()
    connection = listener.accept()[0]
    connection.settimeout(20)
    data = os.urandom(MEGABYTE)
    print swap(connection, data, False), hashlib.sha1(data).hexdigest()


def exchange(address):
    connection = socket.create_connection((address, TCP_PORT), 20)
    data = os.urandom(MEGABYTE)
    got = swap(connection, data, True)
    print hashlib.sha1(data).hexdigest(), got


if __name__ == '__main__':
    {'ping': ping, 'serve': serve, 'exchange': exchange}[sys.argv[1]](*sys.argv[2:])
