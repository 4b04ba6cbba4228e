"""PHYs, with MDIO that is served by a Python object."""

import OmbraSdkV2Helper as sdk
from OmbraSdkV2Helper import check

unit = check(sdk.addOmbraDevice(0, 1, 0, 0))
check(sdk.soc_init(unit))
check(sdk.bcm_init(unit))
check(sdk.soc_phy_init(unit))

PORT = 3
PHY_84328 = 3


class Mdio(object):
    """Registers of an external PHY, by device and number. read() and write()
    are what the SDK calls, on whichever thread."""

    def __init__(self):
        self.registers = {(1, 2): 0x600D, (1, 3): 0x84F0}

    def read(self, bus, phy, device, register):
        print '    read  %d.%#x' % (device, register)
        return self.registers.get((device, register), 0)

    def write(self, bus, phy, device, register, value):
        print '    write %d.%#x = %#x' % (device, register, value)
        self.registers[device, register] = value


def address(device, register):
    """A register of an external PHY in the SDK's form."""
    return device << 16 | register


# From now on the PHY of this port is our object, which the SDK keeps alive.
sdk.TesselApiSetExtMdioAccess(unit, PORT, Mdio(), sdk.ManagedPhy(PHY_84328))

port = sdk.soc_port_t(PORT)
data = sdk.box('uint32')
print 'the SDK reads and changes the external PHY:'
check(sdk.soc_phyctrl_reg_read(unit, port, 0, address(1, 2), data))
print '  identifier %#x' % data.value
check(sdk.soc_phyctrl_reg_write(unit, port, 0, address(30, 0x8000), 0x1234))
check(sdk.soc_phyctrl_reg_modify(unit, port, 0, address(30, 0x8000), 1, 0xF))

# The PHY inside the chip needs no help.
word = sdk.uint16p(0)
sdk.TesselApiInternalPhyWrite(unit, PORT, 0, 0x10, 0xBEEF)
sdk.TesselApiInternalPhyRead(unit, PORT, 0, 0x10, word)
print 'internal PHY: %#x' % word.value

# Its driver is asked for what it knows.
print 'driver:', sdk.soc_phyctrl_drv_name(unit, port)
link = sdk.box('int')
check(sdk.soc_phyctrl_link_get(unit, port, link))
print 'link is', 'up' if link.value else 'down'
