"""No operation of the proxy and its companion gains references."""

import ctypes
import sys
import unittest
from copy import deepcopy

import leaks
import OmbraSdkV2Helper as sdk
from proxy_support import pointer_of, started_unit

ENTRY = sdk.bcm_l2_addr_t(vid=3, block_bitmap=[1])
HOST = sdk.bcm_l3_host_t()
MEMBERS = sdk.Array('bcm_trunk_member_t', 2)
TEXTS = sdk.Array('char *', ['a', 'b'])


def refused(function, *args):
    try:
        function(*args)
    except (TypeError, ValueError, IndexError, OverflowError, MemoryError,
            AttributeError):
        return
    raise AssertionError('%r took %r' % (function, args))


def cookie_round():
    made = sdk.cookie(lambda *_: None)
    sdk.bcm_l2_traverse(0, sdk.bcm_l2_traverse_cb, made)
    sdk.release(made)


def raising_visit():
    try:
        sdk.traverse(sdk.bcm_l2_traverse, 0, lambda *_: {}[0])
    except KeyError:
        sys.exc_clear()


def native_call():
    native = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_int, ctypes.c_int,
                              ctypes.POINTER(ctypes.c_int))(
                                  pointer_of(sdk.bcm_topo_map_f))
    sdk.bind(sdk.bcm_topo_map_f, lambda unit, module, port: port.value)
    native(0, 0, ctypes.c_int())
    sdk.bind(sdk.bcm_topo_map_f, None)


OPERATIONS = {
    'a structure': lambda: sdk.bcm_l2_addr_t(vid=5, mac='0:0:0:0:0:1'),
    'a copy': ENTRY.copy,
    'a text form': lambda: (repr(ENTRY), repr(MEMBERS), repr(sdk.U32(1))),
    'a comparison': lambda: (ENTRY.equals(ENTRY.copy()), ENTRY == ENTRY,
                             MEMBERS == [1, 2], sdk.U32(1) == sdk.U32(2)),
    'a nested structure': lambda: sdk.bcm_ip_addr_t().addr.ipv4_addr,
    'an array field': lambda: setattr(HOST, 'l3a_ip6_addr', range(16)),
    'a misfit array field': lambda: refused(setattr, HOST, 'l3a_ip6_addr',
                                            [1]),
    'a misspelled field': lambda: refused(setattr, HOST, 'nothing', 1),
    'arrays': lambda: [sdk.Array(name, 2)[:] for name in (
        'int', 'bcm_mac_t', 'bcm_pbmp_t', 'bcm_ip6_t', 'bcm_l2_addr_t',
        'void *', 'char *', 'int [4]')],
    'an item': lambda: (MEMBERS[0].gport, MEMBERS[-1:], list(MEMBERS)),
    'an assignment': lambda: MEMBERS.__setitem__(slice(0, 2), MEMBERS[::-1]),
    'a kept text': lambda: TEXTS.__setitem__(0, 'x' * 50),
    'a bad item': lambda: refused(MEMBERS.__setitem__, 0, 5),
    'a bad index': lambda: refused(MEMBERS.__getitem__, 9),
    'a bad array': lambda: (refused(sdk.Array, 'int', ['x']),
                            refused(sdk.Array, 'int', -1),
                            refused(sdk.Array, 'none', 1),
                            refused(sdk.Array, 'int', 1 << 62)),
    'a view': lambda: sdk.view('bcm_trunk_member_t', MEMBERS, 1)[0],
    'a bad view': lambda: refused(sdk.view, 'int', MEMBERS, 1),
    'values': lambda: [made() for made in (sdk.U32, sdk.pbmp_t, sdk.UnitId,
                                           sdk.bcm_rx_reasons_t,
                                           sdk.bcm_port_phy_reset_cb_t)],
    'a bad value': lambda: (refused(sdk.U32, 'x'), refused(sdk.UnitId, 256)),
    'a result': lambda: (sdk.getDevId(0).value, sdk.bcm_port_info_t().ability,
                         bool(sdk.getHwShadow(0)),
                         sdk.bcm_l2_addr_get(0, '0:0:0:0:0:0', 1)),
    'a cookie': cookie_round,
    'a traversal': lambda: sdk.traverse(sdk.bcm_l2_traverse, 0,
                                        lambda unit, entry:
                                        len(entry.block_bitmap)),
    'a traversal that raises': raising_visit,
    'deep copies': lambda: deepcopy([ENTRY, MEMBERS, TEXTS, sdk.U32(1)]),
    'a hook': lambda: (sdk.callback_errors(max), sdk.callback_errors(None)),
    'a field of each shape': lambda: (
        setattr(ENTRY, 'block_bitmap', [1L]), ENTRY.block_bitmap,
        setattr(ENTRY, 'vid', 4), refused(setattr, ENTRY, 'vid', 'x'),
        refused(delattr, ENTRY, 'vid'), sdk.bcm_l2_addr_t.vid.__doc__,
        hash(ENTRY), len({ENTRY, ENTRY}), HOST.l3a_ip6_addr[3],
        setattr(sdk.bcm_pkt_blk_t(), 'data', None)),
    'a binding': native_call,
    'a refused callback': lambda: (refused(sdk.bind, 'none', max),
                                   refused(sdk.bcm_topo_map_f)),
}


class ReferenceTest(unittest.TestCase):

    def test_no_operation_gains_references(self):
        unit = started_unit()
        sdk.check(sdk.bcm_l2_addr_add(unit, sdk.bcm_l2_addr_t(vid=1, port=1)))
        for name, operation in sorted(OPERATIONS.items()):
            self.assertIsNone(leaks.hunt('proxy', name, operation,
                                         [ENTRY, HOST, MEMBERS, TEXTS]))


if __name__ == '__main__':
    unittest.main()
