"""What is measured, and the candidates: the module, the floor, and what people would use instead."""

from itertools import repeat

# Name, function, arguments, the target as a ratio to the floor, whether the peers bind it.
SHAPES = [
    ('0 arguments', 'getNumDevices', (), 1.03, True),
    ('1 int', 'soc_init', (0,), 1.03, True),
    ('3 ints', 'bcm_port_speed_set', (0, 1, 1000), 1.03, True),
    ('5 integers', 'bcm_field_action_add', (0, 5, 7, 1, 2), 1.03, True),
    ('9 integers', 'bcm_petra_tpid_profile_info_set', (0, 1, 2, 3, 4, 5, 6, 7, 8), 1.03, True),
    ('pointer', 'bcm_port_speed_get', (0, 1, 'box'), 1.03, True),
    ('text', 'bcm_field_show', (0, 'x'), 1.03, True),
    ('by value', 'bcm_field_group_create_id', (0, 'qset', 1, 2), 1.03, True),
    ('MAC text', 'bcm_l2_addr_delete', (0, '00:11:22:aa:bb:cc', 10), 1.03, True),
    ('two flags out', 'bcm_port_pause_get', (0, 1), 1.03, True),
    ('ports in, 0', 'bcm_vlan_port_add', (0, 10, [], []), 1.05, True),
    ('ports in, 1', 'bcm_vlan_port_add', (0, 10, [7], [7]), 1.05, True),
    ('ports in, 48', 'bcm_vlan_port_add', (0, 10, range(48), range(48)), 1.05, True),
    ('ports in, 571', 'bcm_vlan_port_add', (0, 10, range(571), range(571)), 1.05, True),
    ('ports out, 0', 'bcm_vlan_port_get', (0, 0), 1.05, True),
    ('ports out, 1', 'bcm_vlan_port_get', (0, 1), 1.05, True),
    ('ports out, 48', 'bcm_vlan_port_get', (0, 48), 1.05, True),
    ('ports out, 571', 'bcm_vlan_port_get', (0, 571), 1.05, True),
    ('get int field', 'bcm_l2_addr_t_port_get', ('entry',), 1.03, False),
    ('set int field', 'bcm_l2_addr_t_port_set', ('entry', 5), 1.03, False),
    ('get MAC field', 'bcm_l2_addr_t_mac_get', ('entry',), 1.03, False),
    ('set MAC field', 'bcm_l2_addr_t_mac_set', ('entry', '00:11:22:aa:bb:cc'), 1.03, False),
    ('get port field, 0', 'bcm_l2_addr_t_block_bitmap_get', ('ports 0',), 1.05, False),
    ('get port field, 1', 'bcm_l2_addr_t_block_bitmap_get', ('ports 1',), 1.05, False),
    ('get port field, 48', 'bcm_l2_addr_t_block_bitmap_get', ('ports 48',), 1.05, False),
    ('get port field, 571', 'bcm_l2_addr_t_block_bitmap_get', ('ports 571',), 1.05, False),
    ('set port field, 1', 'bcm_l2_addr_t_block_bitmap_set', ('entry', [7]), 1.05, False),
    ('set port field, 48', 'bcm_l2_addr_t_block_bitmap_set', ('entry', range(48)), 1.05, False),
    ('snapshot row', 'getHwMacTable', (4096,), 1.05, False),
]
ROWS = {'snapshot row': 4096}  # one call of these makes so many
PEERS = ['ctypes typed', 'ctypes', 'Cython', 'pybind11']


class Pointers(object):
    """The module's own objects for the words among the arguments; the floor takes the same."""

    def __init__(self, module, floor):
        owned = [module.new_intp(), module.new_bcm_field_qset_t(), module.new_bcm_l2_addr_t()]
        self.words = {'box': module.intp_cast(owned[0]), 'qset': owned[1], 'entry': owned[2]}
        for count in (0, 1, 48, 571):
            holder = module.new_bcm_l2_addr_t()
            module.bcm_l2_addr_t_block_bitmap_set(holder, range(count))
            self.words['ports %d' % count] = holder
            owned.append(holder)
        floor.bind(self.words['box'], self.words['qset'], self.words['entry'])
        for pointer in owned:
            pointer.disown()  # kept to the end: without a proxy nothing would free them


def candidates():
    """[(name, namespace, words)] of all that can be imported here, the module and the floor first."""
    import _OmbraSdkV2Helper as module
    import _ombra_floor as floor
    import peer_ctypes
    words = Pointers(module, floor).words
    found = [('module', module, words), ('floor', floor, words)]
    for name, typed in (('ctypes typed', True), ('ctypes', False)):
        peer = peer_ctypes.Peer(typed)
        found.append((name, peer, {'box': peer.box(), 'qset': peer.qset()}))
    for name in ('Cython', 'pybind11'):
        try:
            peer = __import__('peer_' + name.lower())
        except ImportError:
            continue
        found.append((name, peer, {'box': peer.Int(), 'qset': peer.QualifierSet()}))
    return found


def bound(shape, candidate):
    """(function, arguments), or None where the candidate has no such function."""
    _, function, arguments, _, peers_too = shape
    name, namespace, words = candidate
    if name in PEERS and not peers_too:
        return None
    return getattr(namespace, function), [
        words.get(value, value) if isinstance(value, str) else value for value in arguments]


def make_loop(arity):
    """A loop over one bound call; an arity of None gives the empty loop."""
    names = ['a%d' % i for i in range(arity or 0)]
    call = 'pass' if arity is None else 'f(%s)' % ', '.join(names)
    source = 'def loop(repeat, f, %s):\n    for _ in repeat:\n        %s\n' % (
        ', '.join(names) or 'none=None', call)
    space = {}
    exec source in space
    return space['loop']


LOOPS = dict((arity, make_loop(arity)) for arity in range(10))
EMPTY = make_loop(None)


def run(number, function, arguments):
    LOOPS[len(arguments)](repeat(None, number), function, *arguments)


def run_empty(number):
    EMPTY(repeat(None, number), None)


def number_of(shape, number):
    """Calls that take about as long as `number` of the usual ones."""
    name = shape[0]
    return max(number // ROWS.get(name, 20 if '571' in name else 1), 2)
