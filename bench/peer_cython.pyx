# cython: language_level=2, binding=False
"""The twelve measured functions as one binds them with Cython, with the checks of its own readers
and, for MAC texts and port lists, those of the module."""

from libc.string cimport memset

cdef extern from "sdk/bcm/field.h":
    ctypedef struct bcm_field_qset_t:
        pass
    ctypedef enum bcm_field_action_t:
        pass
    int c_bcm_field_action_add "bcm_field_action_add"(int, unsigned, bcm_field_action_t, unsigned, unsigned)
    int c_bcm_field_show "bcm_field_show"(int, const char *)
    int c_bcm_field_group_create_id "bcm_field_group_create_id"(int, bcm_field_qset_t, int, unsigned)

cdef extern from "sdk/bcm/l2.h":
    int c_bcm_l2_addr_delete "bcm_l2_addr_delete"(int, unsigned char *, unsigned short)

cdef extern from "sdk/bcm/petra.h":
    ctypedef enum _bcm_petra_tpid_profile_t:
        pass
    ctypedef enum _bcm_petra_dtag_mode_t:
        pass
    ctypedef enum _bcm_petra_ac_key_map_type_t:
        pass
    int c_bcm_petra_tpid_profile_info_set "bcm_petra_tpid_profile_info_set"(
        int, int, int, _bcm_petra_tpid_profile_t, int, _bcm_petra_dtag_mode_t,
        _bcm_petra_ac_key_map_type_t, unsigned char, unsigned char)

cdef extern from "sdk/bcm/port.h":
    int c_bcm_port_speed_set "bcm_port_speed_set"(int, int, int)
    int c_bcm_port_speed_get "bcm_port_speed_get"(int, int, int *)
    int c_bcm_port_pause_get "bcm_port_pause_get"(int, int, int *, int *)

cdef extern from "sdk/bcm/vlan.h":
    ctypedef struct bcm_pbmp_t:
        unsigned pbits[18]
    int c_bcm_vlan_port_add "bcm_vlan_port_add"(int, unsigned short, bcm_pbmp_t, bcm_pbmp_t)
    int c_bcm_vlan_port_get "bcm_vlan_port_get"(int, unsigned short, bcm_pbmp_t *, bcm_pbmp_t *)

cdef extern from "sdk/soc/init.h":
    int c_soc_init "soc_init"(int)

cdef extern from "helper/device.h":
    int c_getNumDevices "getNumDevices"()


cdef class Int:
    cdef int value


cdef class QualifierSet:
    cdef bcm_field_qset_t value


cdef int digit(unsigned char c) except -1:
    if c'0' <= c <= c'9':
        return c - c'0'
    c |= 32
    if c'a' <= c <= c'f':
        return c - c'a' + 10
    raise ValueError("Expected a string of the form 'AA:BB:CC:DD:EE:FF'")


cdef int read_mac(bytes text, unsigned char *mac) except -1:
    cdef const char *characters = text
    cdef int i
    if len(text) < 17:
        raise ValueError("Expected a string of the form 'AA:BB:CC:DD:EE:FF'")
    for i in range(6):
        if i < 5 and characters[3 * i + 2] != c':':
            raise ValueError("Expected a string of the form 'AA:BB:CC:DD:EE:FF'")
        mac[i] = digit(characters[3 * i]) * 16 + digit(characters[3 * i + 1])
    return 0


cdef int read_ports(list ports, bcm_pbmp_t *bitmap) except -1:
    cdef unsigned port
    memset(bitmap, 0, sizeof(bcm_pbmp_t))
    for number in ports:
        if not isinstance(number, int):
            raise TypeError('Port list must contain integers')
        port = number
        if port >= 576:
            raise ValueError('Port number out of range')
        bitmap.pbits[port // 32] |= 1u << (port % 32)
    return 0


cdef list list_of(bcm_pbmp_t *bitmap):
    cdef unsigned word, bit, bits
    ports = []
    for word in range(18):
        bits = bitmap.pbits[word]
        bit = word * 32
        while bits and bit < 571:
            if bits & 1:
                ports.append(<unsigned long>bit)
            bits >>= 1
            bit += 1
    return ports


def getNumDevices():
    return c_getNumDevices()


def soc_init(int unit):
    return c_soc_init(unit)


def bcm_port_speed_set(int unit, int port, int speed):
    return c_bcm_port_speed_set(unit, port, speed)


def bcm_field_action_add(int unit, unsigned entry, int action, unsigned param0, unsigned param1):
    return c_bcm_field_action_add(unit, entry, <bcm_field_action_t>action, param0, param1)


def bcm_petra_tpid_profile_info_set(int unit, int port, int index, int profile, int other, int mode,
                                    int key, unsigned char outer, unsigned char inner):
    return c_bcm_petra_tpid_profile_info_set(
        unit, port, index, <_bcm_petra_tpid_profile_t>profile, other, <_bcm_petra_dtag_mode_t>mode,
        <_bcm_petra_ac_key_map_type_t>key, outer, inner)


def bcm_port_speed_get(int unit, int port, Int speed):
    return c_bcm_port_speed_get(unit, port, NULL if speed is None else &speed.value)


def bcm_field_show(int unit, bytes text):
    return c_bcm_field_show(unit, text)


def bcm_field_group_create_id(int unit, QualifierSet qset not None, int pri, unsigned group):
    return c_bcm_field_group_create_id(unit, qset.value, pri, group)


def bcm_l2_addr_delete(int unit, bytes mac not None, unsigned short vid):
    cdef unsigned char address[6]
    read_mac(mac, address)
    return c_bcm_l2_addr_delete(unit, address, vid)


def bcm_vlan_port_add(int unit, unsigned short vid, list ports not None, list untagged not None):
    cdef bcm_pbmp_t bitmaps[2]
    read_ports(ports, &bitmaps[0])
    read_ports(untagged, &bitmaps[1])
    return c_bcm_vlan_port_add(unit, vid, bitmaps[0], bitmaps[1])


def bcm_port_pause_get(int unit, int port):
    cdef int sent = 0, received = 0
    status = c_bcm_port_pause_get(unit, port, &sent, &received)
    return status, sent != 0, received != 0


def bcm_vlan_port_get(int unit, unsigned short vid):
    cdef bcm_pbmp_t bitmaps[2]
    memset(bitmaps, 0, sizeof(bitmaps))
    status = c_bcm_vlan_port_get(unit, vid, &bitmaps[0], &bitmaps[1])
    if status != 0:
        return status, None, None
    return status, list_of(&bitmaps[0]), list_of(&bitmaps[1])
