"""Two hosts behind a switch that an agent configures: they ping each other,
are parted by a rule, and are routed.

`make demo-ping` runs it. As root on Linux the hosts are network namespaces,
and real frames travel; elsewhere, and with the argument `memory`, the hosts
are a few lines of Python, and the same frames travel in memory.
"""

import sys

import hosts
import OmbraSdkV2Helper as sdk
from OmbraSdkV2Helper import call, check

ROUTER = '02:00:00:00:00:fe'
BRIDGED = {1: '10.0.1.1', 2: '10.0.1.2'}
ROUTED = {1: '10.0.1.1', 2: '10.0.2.2'}
GATEWAYS = {1: '10.0.1.254', 2: '10.0.2.254'}
VLANS = {1: 100, 2: 200}


class Agent(object):
    """Everything here is done by the SDK's own calls."""

    def __init__(self):
        self.unit = check(sdk.addOmbraDevice(0, 1, 0, 0))
        check(sdk.soc_init(self.unit))
        self.interfaces = {}  # by VLAN
        self.neighbours = {}  # hardware addresses by IP address

    def bridge(self):
        """Both ports in VLAN 100, forwarding in a spanning tree group of
        their own."""
        unit = self.unit
        check(sdk.bcm_vlan_create(unit, 100))
        check(sdk.bcm_vlan_port_add(unit, 100, [1, 2], [1, 2]))
        group = sdk.box('bcm_stg_t')
        check(sdk.bcm_stg_create(unit, group))
        check(sdk.bcm_stg_vlan_add(unit, group.value, 100))
        for port in 1, 2:
            check(sdk.bcm_port_untagged_vlan_set(unit, port, 100))
            check(sdk.bcm_stg_stp_set(unit, group.value, port,
                                      sdk.BCM_STG_STP_FORWARD))

    def stations(self):
        """(MAC address, VLAN, port) of all that were heard."""
        found = []
        check(sdk.traverse(sdk.bcm_l2_traverse, self.unit,
                           lambda _, entry: found.append(
                               (entry.mac, entry.vid, entry.port))))
        return sorted(found)

    def drop_icmp(self, source):
        """A rule that drops and counts ICMP from that address; its number and
        that of its counter."""
        unit = self.unit
        qset = sdk.bcm_field_qset_t()
        for qualifier in (sdk.bcmFieldQualifyStageIngress,
                          sdk.bcmFieldQualifySrcIp,
                          sdk.bcmFieldQualifyIpProtocol):
            sdk.bcm_field_qset_add(qset, qualifier)
        group = call(sdk.bcm_field_group_create, unit, qset, 1)
        rule = call(sdk.bcm_field_entry_create, unit, group)
        check(sdk.bcm_field_qualify_SrcIp(
            unit, rule, hosts.ip_number(source), 0xffffffff))
        check(sdk.bcm_field_qualify_IpProtocol(unit, rule, 1, 0xff))
        check(sdk.bcm_field_action_add(unit, rule, sdk.bcmFieldActionDrop,
                                       0, 0))
        kinds = sdk.Array('bcm_field_stat_t', [sdk.bcmFieldStatPackets])
        counter = sdk.box('int')
        check(sdk.bcm_field_stat_create(unit, group, 1, kinds, counter))
        check(sdk.bcm_field_entry_stat_attach(unit, rule, counter.value))
        check(sdk.bcm_field_entry_install(unit, rule))
        return rule, counter.value

    def counted(self, counter):
        value = sdk.box('uint32')
        check(sdk.bcm_field_stat_get32(self.unit, counter,
                                       sdk.bcmFieldStatPackets, value))
        return value.value

    def route(self):
        """Port 2 moves to VLAN 200, each VLAN gets an interface and a net, and
        what names an unknown station comes to the processor."""
        unit = self.unit
        check(sdk.bcm_vlan_create(unit, 200))
        check(sdk.bcm_vlan_port_remove(unit, 100, [2]))
        check(sdk.bcm_vlan_port_add(unit, 200, [2], [2]))
        check(sdk.bcm_port_untagged_vlan_set(unit, 2, 200))
        for port, vid in VLANS.items():
            check(sdk.bcm_port_l3_enable_set(unit, port, 1))
            interface = sdk.bcm_l3_intf_t(l3a_mac_addr=ROUTER, l3a_vid=vid)
            check(sdk.bcm_l3_intf_create(unit, interface))
            self.interfaces[vid] = interface.l3a_intf_id
            net = hosts.ip_number(GATEWAYS[port]) & 0xffffff00
            check(sdk.bcm_l3_route_add(unit, sdk.bcm_l3_route_t(
                l3a_subnet=net, l3a_ip_mask=0xffffff00,
                l3a_intf=interface.l3a_intf_id)))
        for kind in sdk.bcmSwitchArpRequestToCpu, sdk.bcmSwitchArpReplyToCpu:
            check(sdk.bcm_switch_control_set(unit, kind, 1))
        check(sdk.bcm_rx_start(unit, None))
        return sdk.registered(sdk.bcm_rx_register, sdk.bcm_rx_unregister,
                              unit, 'agent', self.packet_came, 100, 0)

    def packet_came(self, unit, packet):
        """Answers ARP for the gateways, notes who asks or answers, and asks
        for whoever a packet wants and nobody knows."""
        frame = sdk.packet_bytes(packet)
        arp = hosts.parse_arp(frame)
        if arp is not None:
            operation, mac, sender, target = arp
            self.note(mac, sender, packet.vlan, packet.rx_port)
            if operation == 1 and target in GATEWAYS.values():
                self.send(packet.rx_port, hosts.make_arp(
                    2, ROUTER, target, mac, sender))
            return sdk.BCM_RX_HANDLED
        wanted = hosts.target_of(frame)
        for port, gateway in GATEWAYS.items():
            if wanted and hosts.same_net(wanted, gateway):
                self.send(port, hosts.make_arp(
                    1, ROUTER, gateway, None, wanted))
        return sdk.BCM_RX_HANDLED

    def send(self, port, frame):
        check(sdk.bcm_tx(self.unit, sdk.packet(frame, tx_pbmp=[port]), None))

    def note(self, mac, address, vid, port):
        """A host of one hop."""
        if self.neighbours.get(address) == mac:
            return
        self.neighbours[address] = mac
        hop = sdk.box('bcm_if_t')
        check(sdk.bcm_l3_egress_create(self.unit, 0, sdk.bcm_l3_egress_t(
            intf=self.interfaces[vid], mac_addr=mac, port=port), hop))
        check(sdk.bcm_l3_host_add(self.unit, sdk.bcm_l3_host_t(
            l3a_ip_addr=hosts.ip_number(address), l3a_intf=hop.value)))


def pings(net, addresses, count=3):
    answered = net.ping(1, addresses[2], count)
    return '%d of %d pings answered' % (answered, count)


def main():
    agent = Agent()
    agent.bridge()
    net = hosts.found(agent.unit, 'memory' in sys.argv)
    print 'the hosts are', net.what
    with net:
        net.set_up(BRIDGED, {})
        print 'bridged:', pings(net, BRIDGED)
        for mac, vid, port in agent.stations():
            print '  %s  VLAN %d  port %d' % (mac, vid, port)
        print 'TCP:', net.exchange(1, 2, BRIDGED[2])

        rule, counter = agent.drop_icmp(BRIDGED[1])
        print 'with a rule: %s, %d dropped' % (
            pings(net, BRIDGED), agent.counted(counter))
        print 'why, as the switch tells it:'
        print net.why(1, BRIDGED[1], BRIDGED[2])
        check(sdk.bcm_field_entry_destroy(agent.unit, rule))

        net.set_up(ROUTED, GATEWAYS)
        with agent.route():
            net.ping(1, ROUTED[2], 2)  # until the addresses are resolved
            print 'routed:', pings(net, ROUTED)
            for address, mac in sorted(agent.neighbours.items()):
                print '  %s is %s' % (address, mac)
            print 'TCP:', net.exchange(1, 2, ROUTED[2])


if __name__ == '__main__':
    main()
