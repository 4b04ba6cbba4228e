"""What the tests of packets share: a switch, the hooks of the stand-in,
frames."""

import ctypes
import json
import struct
import unittest

import OmbraSdkV2Helper as sdk

STANDIN = ctypes.CDLL('libOmbraSdkV2Helper.so.0')
STANDIN.standin_packet_trace.restype = ctypes.c_char_p
TAKE = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_int,
                        ctypes.POINTER(ctypes.c_char), ctypes.c_int)
ONE = '\x02\0\0\0\0\x01'
TWO = '\x02\0\0\0\0\x02'


def frame_of(tag=None, payload='.' * 46, target=TWO, source=ONE, kind=0x88b5):
    tag = '' if tag is None else struct.pack('>HH', 0x8100, tag)
    return target + source + tag + struct.pack('>H', kind) + payload


def checksum(data):
    data += '\0' * (len(data) % 2)
    total = sum(struct.unpack('>%dH' % (len(data) // 2), data))
    while total >> 16:
        total = (total & 0xffff) + (total >> 16)
    return ~total & 0xffff


class SwitchTest(unittest.TestCase):
    """VLAN 100 with ports 1, 2 untagged and 3 tagged, and station 2 at the
    processor."""

    def setUp(self):
        STANDIN.standin_reset()
        self.unit = sdk.check(sdk.addOmbraDevice(0, 1, 0, 0))
        sdk.check(sdk.soc_init(self.unit))
        sdk.check(sdk.bcm_vlan_create(self.unit, 100))
        sdk.check(sdk.bcm_vlan_port_add(self.unit, 100, [0, 1, 2, 3], [1, 2]))
        for port in 1, 2:
            sdk.check(sdk.bcm_port_untagged_vlan_set(self.unit, port, 100))
        sdk.check(sdk.bcm_l2_addr_add(self.unit, sdk.bcm_l2_addr_t(
            mac='02:00:00:00:00:02', vid=100, port=0)))
        sdk.check(sdk.bcm_rx_start(self.unit, None))
        self.addCleanup(STANDIN.standin_reset)

    def inject(self, port, frame):
        """[(port, frame)] of the copies that left."""
        copies = []
        take = TAKE(lambda _, out, data, size:
                    copies.append((out, data[:size])))
        sdk.check(STANDIN.standin_packet_inject(
            self.unit, port, frame, len(frame), take, None))
        return copies

    def receiving(self, handler, priority=100):
        """A block with a handler of received packets."""
        return sdk.registered(sdk.bcm_rx_register, sdk.bcm_rx_unregister,
                              self.unit, 'test', handler, priority, 0)

    def trace(self, port, frame):
        return json.loads(STANDIN.standin_packet_trace(
            self.unit, port, frame, len(frame), 1, 0, None))

    def capture(self, port, sides):
        sdk.check(STANDIN.standin_packet_capture(self.unit, port, sides))

    def captured(self, port):
        """The frames of the capture file of a port."""
        data = ctypes.POINTER(ctypes.c_char)()
        size = ctypes.c_int()
        sdk.check(STANDIN.standin_packet_capture_get(
            self.unit, port, ctypes.byref(data), ctypes.byref(size), None))
        records = data[:size.value]
        frames = []
        at = 24
        while at < len(records):
            end = at + 16 + struct.unpack('=I', records[at + 8:at + 12])[0]
            frames.append(records[at + 16:end])
            at = end
        return frames

    def ended(self, reason):
        count = ctypes.c_ulonglong()
        sdk.check(STANDIN.standin_packet_ended(self.unit, reason,
                                               ctypes.byref(count)))
        return count.value
