# Runs under Python 3: makes frames with scapy, reads routed ones and captures. A list of words comes
# by standard input, a list of findings goes to standard output, all in JSON.
import io
import json
import sys

from scapy.all import (ARP, ICMP, IP, IPv6, TCP, UDP, Dot1AD, Dot1Q, Ether,
                       ICMPv6ND_NS, IPv6ExtHdrHopByHop, PcapReader, fragment)

ROUTER = '02:00:00:00:00:fe'
TWO = '02:00:00:00:00:02'
HOST = Ether(src='02:00:00:00:00:01', dst=ROUTER)
NET = IP(src='10.1.0.1', dst='10.2.0.1')
NET6 = IPv6(src='2001:db8::1', dst='2001:db8:1::1')


def make():
    """[name, port, frame, reason]; 'flooded' stands for several copies."""
    last = IP(src='10.1.0.1', dst='10.2.0.1', ttl=1)
    wrong = bytearray(bytes(HOST / NET / UDP()))
    wrong[24] ^= 0x55
    pieces = fragment(NET / UDP(dport=9) / (b'x' * 2000), fragsize=800)
    frames = [
        ('UDP', 1, HOST / NET / UDP() / b'data', 'sent'),
        ('TCP with options', 1,
         HOST / NET / TCP(options=[('MSS', 1460), ('WScale', 7)]), 'sent'),
        ('echo', 1, HOST / NET / ICMP() / (b'.' * 56), 'sent'),
        ('a tag', 3, HOST / Dot1Q(vlan=100, prio=3) / NET / UDP(), 'sent'),
        ('a service tag', 3,
         HOST / Dot1AD(vlan=100) / Dot1Q(vlan=7) / NET / UDP(), 'sent'),
        ('options of IPv4', 1, HOST / IP(src='10.1.0.1', dst='10.2.0.1',
                                         options=b'\x01\x01\x01\x00') / UDP(), 'sent'),
        ('IPv6', 1, HOST / NET6 / UDP() / b'data', 'sent'),
        ('IPv6 with options', 1,
         HOST / NET6 / IPv6ExtHdrHopByHop() / TCP(), 'sent'),
        ('the last hop', 1, HOST / last / UDP(), 'ttl_expired'),
        ('a wrong sum', 1, bytes(wrong), 'bad_checksum'),
        ('to the processor', 1, HOST.__class__(src='02:00:00:00:00:01', dst=TWO) / NET,
         'to_processor'),
        ('ARP', 1, Ether(src='02:00:00:00:00:01', dst='ff:ff:ff:ff:ff:ff') /
         ARP(pdst='10.1.0.254'), 'flooded'),
        ('neighbours', 1, Ether(src='02:00:00:00:00:01', dst='33:33:ff:00:00:01') / NET6 /
         ICMPv6ND_NS(tgt='2001:db8::2'), 'flooded'),
        ('cut off', 1, bytes(HOST / NET / UDP() / (b'x' * 100))[:60], 'truncated'),
        ('no VLAN', 3, HOST / Dot1Q(vlan=300) / NET / UDP(), 'unknown_vlan'),
    ]
    frames += [('fragment %d' % i, 1, HOST / piece, 'sent')
               for i, piece in enumerate(pieces)]
    return [(name, port, bytes(frame).hex(), reason)
            for name, port, frame, reason in frames]


def differs(before, after):
    """What is wrong with a routed packet; None if it is right."""
    old, new = Ether(bytes.fromhex(before)), Ether(bytes.fromhex(after))
    if (new.src, new.dst) != (ROUTER, '02:00:00:00:00:52'):
        return 'addresses'
    kind = IP if IP in old else IPv6
    was, is_now = old[kind].copy(), new[kind].copy()
    hops = 'ttl' if kind is IP else 'hlim'
    if getattr(is_now, hops) != getattr(was, hops) - 1:
        return 'hops'
    if kind is IP:
        sum_found = is_now.chksum
        del is_now.chksum
        if IP(bytes(is_now)).chksum != sum_found:
            return 'checksum'
        del was.chksum
    setattr(was, hops, getattr(is_now, hops))
    return None if bytes(was) == bytes(is_now) else 'payload'


def read(routed):
    found = [(name, differs(before, after)) for name, before, after in routed]
    return [one for one in found if one[1]]


def pcap(data):
    return [bytes(packet).hex() for packet in PcapReader(io.BytesIO(bytes.fromhex(data)))]


words = json.load(sys.stdin)
json.dump({'make': make, 'read': read, 'pcap': pcap}[words[0]](*words[1:]), sys.stdout)
