"""Allocations that fail by number, at every step of each kind of call, of
import, of proxies, callbacks and the snapshot.

Two layers fail, each by the n-th call of it for n = 1, 2, 3 ... until none
fails any more: `process`, all of malloc, and `module`, what the module asks of
the interpreter. Each step runs in a child of its own, a fork, with one failure
and again with all later ones failing too. It has to end in the result or in an
exception that stands for memory, and everything has to work afterwards.

usage: allocations.py [most steps of an operation]
with the library of fail_allocations.cpp preloaded.
"""

import ctypes
import gc
import os
import py_compile
import shutil
import signal
import sys
import tempfile
import traceback

from calls import start

FAIL = ctypes.CDLL(None)
LAYER = ctypes.c_int.in_dll(FAIL, 'soak_layer')
LAYERS = {'process': 1, 'module': 2}
OWN = []
MEMORY = ('bad_alloc', 'emory')  # in the text of what stands for memory


def told_of_memory(error):
    # The interpreter's own code says many things where it has no memory: that
    # it finds no module, or that one ends in the middle of a text.
    if isinstance(error, MemoryError) or not FAIL.soak_module_asked():
        return True
    text = str(error)
    return any(word in text for word in MEMORY)


def call_operations():
    """Name and operation, of each kind of call."""
    import _OmbraSdkV2Companion as companion
    import _OmbraSdkV2Helper as m
    import OmbraSdkV2Helper as sdk
    start(m)
    entry = m.new_bcm_l2_addr_t()
    info = m.new_bcm_port_info_t()
    command = m.new_cmd_t()
    proxy = sdk.bcm_l2_addr_t(vid=1)
    host = sdk.bcm_l3_host_t()
    array = sdk.Array('bcm_l2_addr_t', 2)
    box = m.new_intp()
    for number in range(20):
        sdk.bcm_l2_addr_add(0, sdk.bcm_l2_addr_t(
            mac='00:00:00:00:01:%02x' % number, vid=1, port=1))

    class Mdio(object):
        def read(self, *_):
            return 0

        def write(self, *_):
            pass

    def traverse():
        sdk.traverse(sdk.bcm_l2_traverse, 0, lambda *_: None)

    class Kind(object):
        __swig_destroy__ = m.delete_uint64p

    def set_text():
        m.cvar.sh_set_rctest = 1
        str(m.cvar)

    def value():
        made = sdk.U32(1)
        made.value = 2
        return made.value

    def keep_callback():
        key = companion.cookie(len)
        companion.bind(companion.bcm_linkscan_handler_t, len)
        companion.bind(companion.bcm_linkscan_handler_t, None)
        companion.release(key)

    def delete():
        made = sdk.bcm_l2_addr_t(vid=5)
        sdk.delete_bcm_l2_addr_t(made)

    return [
        ('a call of numbers', lambda: m.bcm_port_speed_set(0, 1, 1000)),
        ('a pointer', lambda: m.bcm_port_speed_get(0, 1, box)),
        ('a structure', lambda: m.bcm_l2_addr_add(0, entry)),
        ('a new structure', m.new_bcm_l2_addr_t),
        ('a box', m.new_intp),
        ('an array', lambda: m.delete_uint8Array(m.new_uint8Array(9))),
        ('a copy of an element', lambda: m.trunkMember_getitem(
            m.new_trunkMember(1), 0)),
        ('a port list', lambda: m.bcm_l2_addr_t_block_bitmap_set(
            entry, range(99))),
        ('a port list back', lambda: m.bcm_l2_addr_t_block_bitmap_get(entry)),
        ('a MAC text', lambda: m.bcm_l2_addr_t_mac_get(entry)),
        ('a MAC of unicode', lambda: m.bcm_l2_addr_t_mac_set(
            entry, u'1:2:3:4:5:6')),
        ('a text field', lambda: m.cmd_t_c_help_set(command, 'help')),
        ('a text field back', lambda: m.cmd_t_c_help_get(command)),
        ('a value field', lambda: m.bcm_port_info_t_interface_get(info)),
        ('an array field', lambda: m.bcm_l3_host_t_l3a_ip6_addr_get(host)),
        ('a text result', lambda: m.sal_config_get('x')),
        ('a setting', lambda: m.sal_config_set('soak.setting', 'value')),
        ('an appended structure', lambda: m.bcm_l2_addr_get(
            0, '00:00:00:00:01:01', 1)),
        ('an appended number', lambda: m.bcm_field_qset_t_init(
            sdk.Array('bcm_field_qset_t', 1))),
        ('the snapshot', lambda: m.getHwMacTable(0)),
        ('variables', set_text), ('a registration', lambda: m.uint64p_swigregister(Kind)),
        ('a proxy', lambda: sdk.bcm_l2_addr_t(vid=5, mac='0:0:0:0:0:1')),
        ('a nested proxy', lambda: sdk.bcm_ip_addr_t().addr.ipv4_addr),
        ('a text form', lambda: (repr(proxy), repr(array), repr(entry))),
        ('an element', lambda: array[0].vid),
        ('an array of values', lambda: sdk.Array('int', range(50))),
        ('a view', lambda: host.l3a_ip6_addr[:]),
        ('a value', value), ('a traversal', traverse),
        ('callbacks', keep_callback), ('a deletion', delete),
        ('a holder', lambda: m.getHwShadow(0)),
        ('a chain', lambda: repr(m.new_intp().append(m.new_intp()))),
        ('an accessor', lambda: m.TesselApiSetExt84328MdioAccessWrapper(
            0, 1, Mdio())),
        ('the shell', lambda: m.sh_process_command(0, 'help')),
        ('the end', gc.collect),
    ]


def import_operation(name, whole):
    """An import that fails leaves nothing: the next one is complete."""
    def operation():
        __import__(name)

    def check():
        module = __import__(name)
        size, links = whole
        if len(vars(module)) != size:
            raise AssertionError('%s has %d names, not %d' % (
                name, len(vars(module)), size))
        if links is not None and len(str(module.cvar)) != links:
            raise AssertionError('%s: %s' % (name, module.cvar))
    return operation, check


def step(name, operation, check, layer, n, later):
    """One failure in a child; whether there was one. False at the end."""
    sys.stdout.flush()
    child = os.fork()
    if child != 0:
        status = os.waitpid(child, 0)[1]
        if status not in (0, 3 << 8) and not FAIL.soak_module_asked():
            OWN.append(status)  # the interpreter's own fault
            return True
        if status not in (0, 3 << 8):
            raise AssertionError('%s: %s allocation %d%s: status %#x' % (
                name, layer, n, ' and later' if later else '', status))
        return status != 0
    signal.alarm(120)  # a step that hangs ends by it
    error = None
    null = os.open(os.devnull, os.O_WRONLY)
    errors = os.dup(2)
    os.dup2(null, 1)
    os.dup2(null, 2)
    try:
        FAIL.soak_fail(LAYERS[layer], ctypes.c_long(n), later)
        try:
            operation()
        except BaseException as caught:
            error = caught
        finally:
            LAYER.value = 0  # takes no memory
        failed = FAIL.soak_failed()
        os.dup2(errors, 2)
        if error is not None and not told_of_memory(error):
            raise error
        sys.exc_clear()
        if check is not None:
            check()
        else:
            operation()
        os._exit(3 if failed else 0)
    except BaseException:
        os.dup2(errors, 2)
        traceback.print_exc()
        os._exit(1)


def steps(name, operation, check, most):
    """All steps of an operation, or the first `most` and some of the others."""
    done = 0
    for layer in sorted(LAYERS):
        for later in (0, 1):
            n = 1
            while step(name, operation, check, layer, n, later):
                done += 1
                n += 1 if n < most else n // 2
    return done


def main(most):
    total = died = 0
    # Compiled before, since the interpreter's compiler ends the process by its
    # own faults.
    folder = tempfile.mkdtemp()
    path = os.path.dirname(__import__('imp').find_module(
        'OmbraSdkV2Helper')[1])
    for name in os.listdir(path):
        if name.endswith('.py'):
            py_compile.compile(os.path.join(path, name), os.path.join(
                folder, name + 'c'), doraise=True)
    sys.path.insert(0, folder)
    FAIL.soak_module_asked()
    # The libraries outside have their own start, which is theirs to prove.
    for name in ('liblumo', 'libTesselApiTypes', 'libOmbraSdkV2Helper',
                 'libOmbraSdkV2HelperPythonMdioAccess'):
        for path in sys.path:
            if os.path.exists(os.path.join(path, name + '.so.0')):
                ctypes.CDLL(os.path.join(path, name + '.so.0'))
    # Imports first, while nothing is there. A child counts what is whole.
    for name in ('_OmbraSdkV2Helper', '_OmbraSdkV2Companion',
                 'OmbraSdkV2Helper'):
        reader, writer = os.pipe()
        if os.fork() == 0:
            module = __import__(name)
            links = (len(str(module.cvar)) if name == '_OmbraSdkV2Helper'
                     else None)
            os.write(writer, repr((len(vars(module)), links)))
            os._exit(0)
        os.wait()
        whole = eval(os.read(reader, 100))
        operation, check = import_operation(name, whole)
        try:
            count = steps('import ' + name, operation, check, most)
        except AssertionError as fault:
            print fault
            died += 1
        else:
            print 'import %s: %d steps' % (name, count)
            total += count
    for name, operation in call_operations():
        operation()
        try:
            count = steps(name, operation, None, most)
        except AssertionError as fault:
            print fault
            died += 1
        else:
            total += count
    shutil.rmtree(folder)
    print '%d failed allocations, %d operations with a fault; the interpreter ' \
        'itself died in %d' % (total, died, len(OWN))
    return died


if __name__ == '__main__':
    sys.exit(1 if main(int((sys.argv[1:] or ['1000000'])[0])) else 0)
