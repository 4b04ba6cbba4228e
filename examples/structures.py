"""Structures, constants and variables of the SDK."""

import OmbraSdkV2Helper as sdk

# A new structure is all zero, but for the fields that are given. Its text
# form shows what is not zero.
entry = sdk.bcm_l2_addr_t(mac='00:11:22:33:44:55', vid=100, port=3)
print entry

# Fields are attributes, checked against their types.
entry.block_bitmap = [7, 8]
try:
    entry.vid = 70000
except OverflowError as error:
    print 'OverflowError:', error
try:
    entry.vdi = 70
except AttributeError as error:
    print 'AttributeError:', error

# A nested structure and an array are parts of the whole: what is written to
# them is written into it.
route = sdk.bcm_l3_route_t(l3a_ip6_net=[0x20, 0x01] + [0] * 14)
route.l3a_ip6_net[15] = 1
address = sdk.bcm_ip_addr_t()
address.addr.ipv4_addr = 0x0A000001
print route.l3a_ip6_net[:2], hex(address.addr.ipv4_addr)

# Two structures are compared, and copied, when you say so.
twin = entry.copy()
print 'equal fields:', twin.equals(entry), '- the same object:', twin == entry

# Some types the SDK knows by name alone. They are made from plain numbers.
port = sdk.soc_port_t(3)
print port, int(port), sdk.bcm_rx_reasons_t([1, 0, 0, 0, 0, 0])

# Constants are numbers; the global variables are attributes of cvar.
print 'bcmColorRed =', sdk.bcmColorRed
sdk.cvar.sh_set_report_status = 1
print 'sh_set_report_status =', sdk.cvar.sh_set_report_status

# help(sdk.bcm_l2_addr_t) lists all fields with their types.
print ', '.join(name for name, _ in entry.items())
