"""A short look at each kind of memory, for valgrind."""

import gc

import _OmbraSdkV2Companion as companion
import _OmbraSdkV2Helper as m
import OmbraSdkV2Helper as sdk
from calls import start

start(m)
entry = sdk.bcm_l2_addr_t(mac='0:0:0:0:0:1', vid=1, port=1)
sdk.check(sdk.bcm_l2_addr_add(0, entry))
assert m.getHwMacTable(0)
seen = []
sdk.traverse(sdk.bcm_l2_traverse, 0, lambda unit, found: seen.append(
    found.copy()))
assert seen[0].vid == 1 and entry.copy().equals(entry)
repr((entry, seen, sdk.Array('int', range(5))[1:], m.cvar))

address = sdk.bcm_ip_addr_t()
part = address.addr
sdk.delete_bcm_ip_addr_t(address)
part.ipv4_addr = 5
raw = m.new_intp()
m.delete_intp(raw)
for refused in (m.delete_intp, m.delete_uint8Array, m.soc_init):
    try:
        refused(raw)
    except (TypeError, ValueError):
        pass
array = m.new_uint8Array(4)
m.uint8Array_setitem(array, 3, 255)
m.delete_uint8Array(array)
command = m.new_cmd_t()
m.cmd_t_c_help_set(command, 'x' * 100)
m.sal_config_set('soak.setting', 'value')
m.sal_config_get('soak.setting')
m.sh_process_command(0, 'show units')
companion.release(companion.cookie(len))
value = sdk.U32(5)
value.value = 7
chain = m.new_intp()
for _ in range(1000):
    link = m.new_intp()
    link.append(chain)
    chain = link
repr(chain)
del chain, link, value, address, part, raw
gc.collect()
