"""Bringing chips in and out, starting them, and the hardware shadow."""

import OmbraSdkV2Helper as sdk
from OmbraSdkV2Helper import check

# One chip is added and mapped at once, the other step by step.
first = check(sdk.addOmbraDevice(0, 1, 0, 0))
second = check(sdk.addOmbraFapDeviceUnmapped(0, 2, 0, 0, 0))
sdk.mapOmbraDevice(second)
print sdk.getNumDevices(), 'devices'

# Identities come back as values with a number in them.
for unit in (first, second):
    print 'unit %d: chip %#x, revision %#x' % (
        unit, sdk.getDevId(unit).value, sdk.getDevRev(unit).value)

# The shadow is set up around the start of a chip, and taken down after it.
sdk.configureHwPciConfigShadow()
for unit in (first, second):
    sdk.setupShadowForHwInit(unit, False)
    check(sdk.soc_init(unit))
    check(sdk.soc_misc_init(unit))
    sdk.teardownShadowForHwInit(unit)
    check(sdk.bcm_init(unit))
    print 'unit %d runs, start-up shadow gone: %s' % (
        unit, sdk.initShadowDestroyed(unit))

# Reads can be sent past the shadow, and its registers brought up to date.
sdk.forceReadFromHardwareIs(True)
print 'reads go to the hardware:', sdk.forceReadFromHardware()
sdk.forceReadFromHardwareIs(False)
print 'registers that differed:', int(
    sdk.syncRegisters(sdk.uint(first), False, True))

# A memory of the chip, found by the address of its table.
table = sdk.CGM_HAPMm
base = sdk.tableBaseAddr(first, table, 0)
memory = sdk.findChipMemory(first, table, sdk.ChipAddress(base.value),
                            sdk.U32(4))
print 'table at %#x is managed by the SDK: %s' % (
    base.value, not sdk.tableNotManagedBySdk(memory.pointer))

# The platform around the chips is told what goes on.
sdk.standbySupIs(True)
sdk.standbyDevIdIs(first, sdk.U32(0xA110))
print 'on standby unit %d is taken for %#x' % (
    first, sdk.getDevId(first).value)
sdk.standbySupIs(False)

# And down again.
for unit in (first, second):
    check(sdk.soc_deinit(unit))
    sdk.unmapOmbraDevice(unit)
