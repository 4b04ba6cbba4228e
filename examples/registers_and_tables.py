"""Registers and memories of a chip, and the L2 table as Python data."""

import OmbraSdkV2Helper as sdk
from OmbraSdkV2Helper import check

unit = check(sdk.addOmbraDevice(0, 1, 0, 0))
check(sdk.soc_init(unit))
check(sdk.soc_misc_init(unit))
check(sdk.bcm_init(unit))

PORT, ELEMENT, COPY = 1, 0, 0

# A whole register, changed by field.
register = sdk.CLP_XMAC_PAUSE_CTRLr
value = sdk.box('uint32')
check(sdk.soc_reg32_get(unit, register, PORT, ELEMENT, value))
sdk.soc_reg_field_set(unit, register, value, sdk.TX_PAUSE_ENf, 1)
check(sdk.soc_reg32_set(unit, register, PORT, ELEMENT, value.value))
check(sdk.soc_reg32_get(unit, register, PORT, ELEMENT, value))
print 'register %#x, TX_PAUSE_EN %d' % (
    value.value, sdk.soc_reg_field_get(unit, register, value.value,
                                       sdk.TX_PAUSE_ENf))

# An entry of a memory is a few words.
table = sdk.CGM_HAPMm
check(sdk.soc_mem_write(unit, table, COPY, 3, sdk.Array('uint32', [42])))
entry = sdk.Array('uint32', 1)
check(sdk.soc_mem_read(unit, table, COPY, 3, entry))
print 'entry 3: words %r, VALUE %d' % (
    list(entry), sdk.soc_mem_field32_get(unit, table, entry, sdk.VALUEf))

# A register that is watched tells of every access.
accesses = []
cookie = sdk.cookie(lambda unit, reg, place, kind, high, low:
                    accesses.append('%#x at %#x' % (low, place.addr)))
sdk.soc_reg_snoop_register(unit, register, 0, sdk.soc_reg_snoop_cb_t, cookie)
check(sdk.soc_reg32_set(unit, register, PORT, ELEMENT, value.value | 1))
sdk.soc_reg_snoop_unregister(unit, register)
sdk.release(cookie)
print 'watched:', accesses

# The whole L2 table in one call: MAC, VLAN, where, age.
for number in range(3):
    check(sdk.bcm_l2_addr_add(unit, sdk.bcm_l2_addr_t(
        mac='02:00:00:00:00:%02x' % number, vid=1, port=number + 1)))
for mac, vid, gport, age in sdk.getHwMacTable(unit):
    print mac, vid, sdk.getGPortType(gport), hex(gport), age
