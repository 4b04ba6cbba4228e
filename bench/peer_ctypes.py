"""The twelve measured functions through ctypes, with and without argtypes.

ctypes knows numbers, texts, pointers and structures; what else a row converts stands here in
Python, as its user would write it."""

from ctypes import CDLL, POINTER, Structure, byref, c_char_p, c_int, c_ubyte, c_uint, c_ushort

SDK = 'libOmbraSdkV2Helper.so.0'
MacAddress = c_ubyte * 6


class Bitmap(Structure):
    _fields_ = [('words', c_uint * 18)]


class QualifierSet(Structure):
    _fields_ = [('words', c_uint * 40)]


ARGTYPES = {
    'getNumDevices': [],
    'soc_init': [c_int],
    'bcm_port_speed_set': [c_int] * 3,
    'bcm_field_action_add': [c_int, c_uint, c_int, c_uint, c_uint],
    'bcm_petra_tpid_profile_info_set': [c_int] * 7 + [c_ubyte] * 2,
    'bcm_port_speed_get': [c_int, c_int, POINTER(c_int)],
    'bcm_field_show': [c_int, c_char_p],
    'bcm_field_group_create_id': [c_int, QualifierSet, c_int, c_uint],
    'bcm_l2_addr_delete': [c_int, MacAddress, c_ushort],
    'bcm_vlan_port_add': [c_int, c_ushort, Bitmap, Bitmap],
    'bcm_port_pause_get': [c_int, c_int, POINTER(c_int), POINTER(c_int)],
    'bcm_vlan_port_get': [c_int, c_ushort, POINTER(Bitmap), POINTER(Bitmap)],
}


def mac_of(text):
    groups = text.split(':')
    if len(groups) != 6:
        raise ValueError("Expected a string of the form 'AA:BB:CC:DD:EE:FF'")
    return MacAddress(*[int(group, 16) for group in groups])


def bitmap_of(ports):
    bitmap = Bitmap()
    words = bitmap.words
    for port in ports:
        if not isinstance(port, int):
            raise TypeError('Port list must contain integers')
        if not 0 <= port < 576:
            raise ValueError('Port number out of range')
        words[port // 32] |= 1 << port % 32
    return bitmap


def ports_of(bitmap):
    return [32 * index + bit for index, word in enumerate(bitmap.words) if word
            for bit in range(32) if word >> bit & 1 and 32 * index + bit < 571]


class Peer(object):
    """The functions under their names, as the shapes call them."""

    def __init__(self, argtypes):
        sdk = CDLL(SDK)
        for name, types in ARGTYPES.items():
            function = sdk[name]  # a new object: its argtypes are its own
            if argtypes:
                function.argtypes = types
            setattr(self, name, function)
        delete, add = self.bcm_l2_addr_delete, self.bcm_vlan_port_add
        pause, ports_get = self.bcm_port_pause_get, self.bcm_vlan_port_get

        def bcm_l2_addr_delete(unit, mac, vid):
            return delete(unit, mac_of(mac), vid)

        def bcm_vlan_port_add(unit, vid, ports, untagged):
            return add(unit, vid, bitmap_of(ports), bitmap_of(untagged))

        def bcm_port_pause_get(unit, port):
            sent, received = c_int(), c_int()
            status = pause(unit, port, byref(sent), byref(received))
            return status, sent.value != 0, received.value != 0

        def bcm_vlan_port_get(unit, vid):
            ports, untagged = Bitmap(), Bitmap()
            status = ports_get(unit, vid, byref(ports), byref(untagged))
            if status:
                return status, None, None
            return status, ports_of(ports), ports_of(untagged)

        self.bcm_l2_addr_delete = bcm_l2_addr_delete
        self.bcm_vlan_port_add = bcm_vlan_port_add
        self.bcm_port_pause_get = bcm_port_pause_get
        self.bcm_vlan_port_get = bcm_vlan_port_get

    @staticmethod
    def box():
        return byref(c_int())

    @staticmethod
    def qset():
        return QualifierSet()
