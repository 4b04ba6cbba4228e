/* Field qualifiers, set forms: what an entry matches; field_qualify_get.h has the get forms. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/field_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* The entry as a whole, stages and user-defined data */
int bcm_field_qualify_clear(int unit, bcm_field_entry_t entry);
int bcm_field_qualify_BypassFilter(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_BypassFilter32(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_BypassSrcMacFilter(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_CascadedKeyValue(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_CustomHeaderData(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_CustomHeaderPkt(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_data(int unit, bcm_field_entry_t eid, int qual_id, uint8 *data, uint8 *mask,
                           uint16 length);
int bcm_field_qualify_EqualL4Port(int unit, bcm_field_entry_t entry, uint32 flag);
int bcm_field_qualify_ExactMatchActionClassId(int unit, bcm_field_entry_t entry, int group_pri,
                                              uint32 data, uint32 mask);
int bcm_field_qualify_ExactMatchGroupClassId(int unit, bcm_field_entry_t entry, int group_pri,
                                             bcm_field_group_t group);
int bcm_field_qualify_ExactMatchHitStatus(int unit, bcm_field_entry_t entry, int group_pri,
                                          uint8 data, uint8 mask);
int bcm_field_qualify_ExternalHit0(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_ExternalHit1(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_ExternalHit2(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_ExternalHit3(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_ExternalHit4(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_ExternalHit5(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_ExternalHit6(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_ExternalHit7(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_ExternalValue0(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);
int bcm_field_qualify_ExternalValue1(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);
int bcm_field_qualify_ExternalValue2(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);
int bcm_field_qualify_ExternalValue3(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);
int bcm_field_qualify_ExternalValue4(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);
int bcm_field_qualify_ExternalValue5(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);
int bcm_field_qualify_ExternalValue6(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);
int bcm_field_qualify_ExternalValue7(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);
int bcm_field_qualify_ForwardingHeaderOffset(int unit, bcm_field_entry_t entry,
                                             bcm_field_data_offset_base_t base_header, uint32 data,
                                             uint32 mask);
int bcm_field_qualify_GroupClass(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_HeaderFormat(int unit, bcm_field_entry_t entry,
                                   bcm_field_header_format_t header_format);
int bcm_field_qualify_HeaderFormatSet(int unit, bcm_field_entry_t entry,
                                      bcm_field_header_format_set_t header_format_set);
int bcm_field_qualify_IsEqualValue(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L2PayLoad(int unit, bcm_field_entry_t entry, uint32 length, uint8 const *data,
                                uint8 const *mask);
int bcm_field_qualify_L2PayloadFirstEightBytes(int unit, bcm_field_entry_t entry, uint32 data1,
                                               uint32 data2, uint32 mask1, uint32 mask2);
int bcm_field_qualify_PreselId(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_SrcIpEqualDstIp(int unit, bcm_field_entry_t entry, uint32 flag);
int bcm_field_qualify_Stage(int unit, bcm_field_entry_t entry, bcm_field_stage_t data);
int bcm_field_qualify_StaggeredDirectValue(int unit, bcm_field_entry_t entry, uint32 data,
                                           uint32 mask);
int bcm_field_qualify_StaggeredPreselProfile0(int unit, bcm_field_entry_t entry, uint32 data,
                                              uint32 mask);
int bcm_field_qualify_StaggeredPreselProfile1(int unit, bcm_field_entry_t entry, uint32 data,
                                              uint32 mask);
int bcm_field_qualify_StaggeredPreselProfile2(int unit, bcm_field_entry_t entry, uint32 data,
                                              uint32 mask);
int bcm_field_qualify_StaggeredPreselProfile3(int unit, bcm_field_entry_t entry, uint32 data,
                                              uint32 mask);
int bcm_field_qualify_StaggeredPreselProfileDirect(int unit, bcm_field_entry_t entry, uint32 data,
                                                   uint32 mask);
int bcm_field_qualify_StaggeredValue0(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_StaggeredValue1(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_StaggeredValue2(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_StaggeredValue3(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_TcpSequenceZero(int unit, bcm_field_entry_t entry, uint32 flag);
int bcm_field_qualify_udf(int unit, bcm_field_entry_t eid, bcm_udf_id_t udf_id, int length,
                          uint8 *data, uint8 *mask);
int bcm_field_qualify_UdfClass(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);

/* Ports, modules and trunks */
int bcm_field_qualify_CpuQueue(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_DestVirtualPortValid(int unit, bcm_field_entry_t entry, uint8 data,
                                           uint8 mask);
int bcm_field_qualify_DevicePortBitmap(int unit, bcm_field_entry_t entry, bcm_pbmp_t data,
                                       bcm_pbmp_t mask);
int bcm_field_qualify_DstGport(int unit, bcm_field_entry_t entry, bcm_gport_t port_id);
int bcm_field_qualify_DstGports(int unit, bcm_field_entry_t entry, bcm_gport_t port_id,
                                bcm_gport_t port_mask);
int bcm_field_qualify_DstPort(int unit, bcm_field_entry_t entry, bcm_module_t data_modid,
                              bcm_module_t mask_modid, bcm_port_t data_port, bcm_port_t mask_port);
int bcm_field_qualify_DstRpfGport(int unit, bcm_field_entry_t entry, bcm_gport_t data);
int bcm_field_qualify_DstSysPortExt(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_DstTrunk(int unit, bcm_field_entry_t entry, bcm_trunk_t data,
                               bcm_trunk_t mask);
int bcm_field_qualify_FabricQueueTag(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_IngressVPortBridgeDisable(int unit, bcm_field_entry_t entry, uint8 data,
                                                uint8 mask);
int bcm_field_qualify_InPort(int unit, bcm_field_entry_t entry, bcm_port_t data, bcm_port_t mask);
int bcm_field_qualify_InPorts(int unit, bcm_field_entry_t entry, bcm_pbmp_t data, bcm_pbmp_t mask);
int bcm_field_qualify_InterfaceInPorts(int unit, bcm_field_entry_t entry, bcm_pbmp_t data,
                                       bcm_pbmp_t mask);
int bcm_field_qualify_InVPort(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_InVPort32(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_InVPortWide(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);
int bcm_field_qualify_LearnSrcPort(int unit, bcm_field_entry_t entry, bcm_gport_t data);
int bcm_field_qualify_MixedSrcClassId(int unit, bcm_field_entry_t entry, bcm_pbmp_t pbmp,
                                      bcm_field_src_class_t data, bcm_field_src_class_t mask);
int bcm_field_qualify_OutPort(int unit, bcm_field_entry_t entry, bcm_port_t data, bcm_port_t mask);
int bcm_field_qualify_OutPorts(int unit, bcm_field_entry_t entry, bcm_pbmp_t data, bcm_pbmp_t mask);
int bcm_field_qualify_OutVPort(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_OutVPort32(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_PortOrientation(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_Ptch(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_SourceGportBitmap(int unit, bcm_field_entry_t entry, bcm_pbmp_t data,
                                        bcm_pbmp_t mask);
int bcm_field_qualify_SrcGport(int unit, bcm_field_entry_t entry, bcm_gport_t port_id);
int bcm_field_qualify_SrcGports(int unit, bcm_field_entry_t entry, bcm_gport_t port_id,
                                bcm_gport_t port_mask);
int bcm_field_qualify_SrcModPortGport(int unit, bcm_field_entry_t entry, bcm_gport_t data);
int bcm_field_qualify_SrcModPortGports(int unit, bcm_field_entry_t entry, bcm_gport_t port_id,
                                       bcm_gport_t port_mask);
int bcm_field_qualify_SrcModuleGport(int unit, bcm_field_entry_t entry, bcm_gport_t data);
int bcm_field_qualify_SrcPort(int unit, bcm_field_entry_t entry, bcm_module_t data_modid,
                              bcm_module_t mask_modid, bcm_port_t data_port, bcm_port_t mask_port);
int bcm_field_qualify_SrcTrunk(int unit, bcm_field_entry_t entry, bcm_trunk_t data,
                               bcm_trunk_t mask);
int bcm_field_qualify_SrcTrunkMemberGport(int unit, bcm_field_entry_t entry, bcm_gport_t data);
int bcm_field_qualify_SrcVirtualPortValid(int unit, bcm_field_entry_t entry, uint8 data,
                                          uint8 mask);
int bcm_field_qualify_StackingRoute(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_SystemPortBitmap(int unit, bcm_field_entry_t entry, bcm_pbmp_t data,
                                       bcm_pbmp_t mask);
int bcm_field_qualify_TrunkHashResult(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_TrunkMemberSourceModuleId(int unit, bcm_field_entry_t entry, int data,
                                                int mask);
int bcm_field_qualify_VpnUnknownDstMacDstPort(int unit, bcm_field_entry_t entry,
                                              bcm_gport_t port_id);
int bcm_field_qualify_VPortRangeCheck(int unit, bcm_field_entry_t entry, bcm_field_range_t range,
                                      int invert);

/* Loopback and visibility of the processor */
int bcm_field_qualify_CpuVisibilityPacket(int unit, bcm_field_entry_t entry, uint8 data,
                                          uint8 mask);
int bcm_field_qualify_Loopback(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_LoopBackColor(int unit, bcm_field_entry_t entry, uint8 color);
int bcm_field_qualify_LoopBackCpuMasqueradePktProfile(int unit, bcm_field_entry_t entry, uint8 data,
                                                      uint8 mask);
int bcm_field_qualify_LoopBackPacketProcessingPort(int unit, bcm_field_entry_t entry,
                                                   bcm_gport_t port_id, bcm_gport_t port_mask);
int bcm_field_qualify_LoopBackQueue(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_LoopBackSrcGport(int unit, bcm_field_entry_t entry, bcm_gport_t port_id,
                                       bcm_gport_t port_mask);
int bcm_field_qualify_LoopBackTrafficClass(int unit, bcm_field_entry_t entry, uint8 data,
                                           uint8 mask);
int bcm_field_qualify_LoopbackType(int unit, bcm_field_entry_t entry,
                                   bcm_field_LoopbackType_t loopback_type);
int bcm_field_qualify_PktIsVisible(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);

/* Classes of ports, interfaces and addresses */
int bcm_field_qualify_ClassId(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_DstClassField(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_DstClassL2(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_DstClassL3(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_DstIp6Class(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                  bcm_class_t mask);
int bcm_field_qualify_DstIp6ClassLower(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                       bcm_class_t mask);
int bcm_field_qualify_DstIp6ClassMsbNibble(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                           bcm_class_t mask);
int bcm_field_qualify_DstIp6ClassUpper(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                       bcm_class_t mask);
int bcm_field_qualify_DstIpClass(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                 bcm_class_t mask);
int bcm_field_qualify_DstIpClassLower(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                      bcm_class_t mask);
int bcm_field_qualify_DstIpClassMsbNibble(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                          bcm_class_t mask);
int bcm_field_qualify_DstIpClassUpper(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                      bcm_class_t mask);
int bcm_field_qualify_EgressClass(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_EgressClassL2Gre(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_EgressClassL3Interface(int unit, bcm_field_entry_t entry, uint16 data,
                                             uint16 mask);
int bcm_field_qualify_EgressClassTrill(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_EgressClassVxlan(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_EgressClassWlan(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_EtherTypeClass(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                     bcm_class_t mask);
int bcm_field_qualify_IncomingIpIfClass(int unit, bcm_field_entry_t entry, uint32 data,
                                        uint32 mask);
int bcm_field_qualify_IngressClassField(int unit, bcm_field_entry_t entry, uint32 data,
                                        uint32 mask);
int bcm_field_qualify_IngressInterfaceClassPort(int unit, bcm_field_entry_t entry, uint32 data,
                                                uint32 mask);
int bcm_field_qualify_IngressInterfaceClassVPort(int unit, bcm_field_entry_t entry, uint32 data,
                                                 uint32 mask);
int bcm_field_qualify_InterfaceClassL2(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_InterfaceClassL3(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_InterfaceClassPort(int unit, bcm_field_entry_t entry, uint32 data,
                                         uint32 mask);
int bcm_field_qualify_InterfaceClassProcessingPort(int unit, bcm_field_entry_t entry, uint64 data,
                                                   uint64 mask);
int bcm_field_qualify_InterfaceClassVPort(int unit, bcm_field_entry_t entry, uint32 data,
                                          uint32 mask);
int bcm_field_qualify_InterfaceIngressKeySelectClassPort(int unit, bcm_field_entry_t entry,
                                                         uint32 data, uint32 mask);
int bcm_field_qualify_InterfaceLookupClassPort(int unit, bcm_field_entry_t entry, uint32 data,
                                               uint32 mask);
int bcm_field_qualify_IpProtocolClass(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                      bcm_class_t mask);
int bcm_field_qualify_L4DstPortClass(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                     bcm_class_t mask);
int bcm_field_qualify_L4SrcPortClass(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                     bcm_class_t mask);
int bcm_field_qualify_SrcClassField(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_SrcClassL2(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_SrcClassL3(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_SrcIp6Class(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                  bcm_class_t mask);
int bcm_field_qualify_SrcIp6ClassLower(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                       bcm_class_t mask);
int bcm_field_qualify_SrcIp6ClassMsbNibble(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                           bcm_class_t mask);
int bcm_field_qualify_SrcIp6ClassUpper(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                       bcm_class_t mask);
int bcm_field_qualify_SrcIpClass(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                 bcm_class_t mask);
int bcm_field_qualify_SrcIpClassLower(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                      bcm_class_t mask);
int bcm_field_qualify_SrcIpClassMsbNibble(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                          bcm_class_t mask);
int bcm_field_qualify_SrcIpClassUpper(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                      bcm_class_t mask);
int bcm_field_qualify_TcpClassOne(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                  bcm_class_t mask);
int bcm_field_qualify_TcpClassZero(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                   bcm_class_t mask);
int bcm_field_qualify_TosClassOne(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                  bcm_class_t mask);
int bcm_field_qualify_TosClassZero(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                   bcm_class_t mask);
int bcm_field_qualify_TtlClassOne(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                  bcm_class_t mask);
int bcm_field_qualify_TtlClassZero(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                   bcm_class_t mask);

/* CAPWAP and wireless */
int bcm_field_qualify_CapwapHdrRid(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_CapwapHdrType(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_CapwapPayloadDip(int unit, bcm_field_entry_t entry, bcm_ip_t data,
                                       bcm_ip_t mask);
int bcm_field_qualify_CapwapPayloadDip6(int unit, bcm_field_entry_t entry, unsigned char data[16],
                                        unsigned char mask[16]);
int bcm_field_qualify_CapwapPayloadDstMac(int unit, bcm_field_entry_t entry, bcm_mac_t data,
                                          bcm_mac_t mask);
int bcm_field_qualify_CapwapPayloadEtherType(int unit, bcm_field_entry_t entry, uint16 data,
                                             uint16 mask);
int bcm_field_qualify_CapwapPayloadInnerVlan(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                             bcm_vlan_t mask);
int bcm_field_qualify_CapwapPayloadInnerVlanCfi(int unit, bcm_field_entry_t entry, uint8 data,
                                                uint8 mask);
int bcm_field_qualify_CapwapPayloadInnerVlanId(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                               bcm_vlan_t mask);
int bcm_field_qualify_CapwapPayloadInnerVlanPri(int unit, bcm_field_entry_t entry, uint8 data,
                                                uint8 mask);
int bcm_field_qualify_CapwapPayloadIpProtocol(int unit, bcm_field_entry_t entry, uint8 data,
                                              uint8 mask);
int bcm_field_qualify_CapwapPayloadL3HdrParseable(int unit, bcm_field_entry_t entry, uint8 data,
                                                  uint8 mask);
int bcm_field_qualify_CapwapPayloadL4DstPort(int unit, bcm_field_entry_t entry, bcm_l4_port_t data,
                                             bcm_l4_port_t mask);
int bcm_field_qualify_CapwapPayloadL4HdrParseable(int unit, bcm_field_entry_t entry, uint8 data,
                                                  uint8 mask);
int bcm_field_qualify_CapwapPayloadL4SrcPort(int unit, bcm_field_entry_t entry, bcm_l4_port_t data,
                                             bcm_l4_port_t mask);
int bcm_field_qualify_CapwapPayloadOuterVlan(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                             bcm_vlan_t mask);
int bcm_field_qualify_CapwapPayloadOuterVlanCfi(int unit, bcm_field_entry_t entry, uint8 data,
                                                uint8 mask);
int bcm_field_qualify_CapwapPayloadOuterVlanId(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                               bcm_vlan_t mask);
int bcm_field_qualify_CapwapPayloadOuterVlanPri(int unit, bcm_field_entry_t entry, uint8 data,
                                                uint8 mask);
int bcm_field_qualify_CapwapPayloadSip(int unit, bcm_field_entry_t entry, bcm_ip_t data,
                                       bcm_ip_t mask);
int bcm_field_qualify_CapwapPayloadSip6(int unit, bcm_field_entry_t entry, unsigned char data[16],
                                        unsigned char mask[16]);
int bcm_field_qualify_CapwapPayloadSOF(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_CapwapPayloadSrcMac(int unit, bcm_field_entry_t entry, bcm_mac_t data,
                                          bcm_mac_t mask);
int bcm_field_qualify_CapwapPayloadTos(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_CapwapPayloadVlanFormat(int unit, bcm_field_entry_t entry, uint8 data,
                                              uint8 mask);
int bcm_field_qualify_DstWlanGport(int unit, bcm_field_entry_t entry, bcm_gport_t wlan_port_id);
int bcm_field_qualify_DstWlanGports(int unit, bcm_field_entry_t entry, bcm_gport_t wlan_port_id,
                                    bcm_gport_t wlan_port_mask);
int bcm_field_qualify_SrcWlanGport(int unit, bcm_field_entry_t entry, bcm_gport_t wlan_port_id);
int bcm_field_qualify_SrcWlanGports(int unit, bcm_field_entry_t entry, bcm_gport_t wlan_port_id,
                                    bcm_gport_t wlan_port_mask);

/* Fibre Channel */
int bcm_field_qualify_FcoeOxID(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_FcoeOxIDClass(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                    bcm_class_t mask);
int bcm_field_qualify_FcoeRxID(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_FcoeRxIDClass(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                    bcm_class_t mask);
int bcm_field_qualify_FcoeSOF(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_FcoeVersionIsZero(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_FibreChanCSCtl(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_FibreChanDFCtl(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_FibreChanDstId(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_FibreChanDstIdClass(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                          bcm_class_t mask);
int bcm_field_qualify_FibreChanDstIdClassLower(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                               bcm_class_t mask);
int bcm_field_qualify_FibreChanDstIdClassMsbNibble(int unit, bcm_field_entry_t entry,
                                                   bcm_class_t data, bcm_class_t mask);
int bcm_field_qualify_FibreChanDstIdClassUpper(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                               bcm_class_t mask);
int bcm_field_qualify_FibreChanFCtl(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_FibreChanInner(int unit, bcm_field_entry_t entry,
                                     bcm_field_FibreChan_t fibre_chan_type);
int bcm_field_qualify_FibreChanOuter(int unit, bcm_field_entry_t entry,
                                     bcm_field_FibreChan_t fibre_chan_type);
int bcm_field_qualify_FibreChanRCtl(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_FibreChanSrcBindCheck(int unit, bcm_field_entry_t entry, uint8 data,
                                            uint8 mask);
int bcm_field_qualify_FibreChanSrcFpmaCheck(int unit, bcm_field_entry_t entry, uint8 data,
                                            uint8 mask);
int bcm_field_qualify_FibreChanSrcId(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_FibreChanSrcIdClass(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                          bcm_class_t mask);
int bcm_field_qualify_FibreChanSrcIdClassLower(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                               bcm_class_t mask);
int bcm_field_qualify_FibreChanSrcIdClassMsbNibble(int unit, bcm_field_entry_t entry,
                                                   bcm_class_t data, bcm_class_t mask);
int bcm_field_qualify_FibreChanSrcIdClassUpper(int unit, bcm_field_entry_t entry, bcm_class_t data,
                                               bcm_class_t mask);
int bcm_field_qualify_FibreChanType(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_FibreChanVFTFabricId(int unit, bcm_field_entry_t entry, uint16 data,
                                           uint16 mask);
int bcm_field_qualify_FibreChanVFTHopCount(int unit, bcm_field_entry_t entry, uint8 data,
                                           uint8 mask);
int bcm_field_qualify_FibreChanVFTPri(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_FibreChanVFTValid(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_FibreChanVFTVersion(int unit, bcm_field_entry_t entry, uint8 data,
                                          uint8 mask);
int bcm_field_qualify_FibreChanVFTVsanId(int unit, bcm_field_entry_t entry, uint16 data,
                                         uint16 mask);
int bcm_field_qualify_FibreChanVFTVsanPri(int unit, bcm_field_entry_t entry, uint8 data,
                                          uint8 mask);
int bcm_field_qualify_FibreChanZoneCheck(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);

/* MPLS OAM and OAM */
int bcm_field_qualify_BfdYourDiscriminator(int unit, bcm_field_entry_t entry, uint32 data,
                                           uint32 mask);
int bcm_field_qualify_DownMepSatTerminated(int unit, bcm_field_entry_t entry, uint8 data,
                                           uint8 mask);
int bcm_field_qualify_EthernetOamClassVlanTranslateKeyFirst(int unit, bcm_field_entry_t entry,
                                                            uint8 data, uint8 mask);
int bcm_field_qualify_EthernetOamClassVlanTranslateKeySecond(int unit, bcm_field_entry_t entry,
                                                             uint8 data, uint8 mask);
int bcm_field_qualify_EthernetOamClassVpn(int unit, bcm_field_entry_t entry, uint8 data,
                                          uint8 mask);
int bcm_field_qualify_EthernetOamDstClassL2(int unit, bcm_field_entry_t entry, uint8 data,
                                            uint8 mask);
int bcm_field_qualify_EthernetOamHeaderBits0_31(int unit, bcm_field_entry_t entry, uint32 data,
                                                uint32 mask);
int bcm_field_qualify_EthernetOamHeaderBits32_63(int unit, bcm_field_entry_t entry, uint32 data,
                                                 uint32 mask);
int bcm_field_qualify_EthernetOamInterfaceClassMim(int unit, bcm_field_entry_t entry, uint8 data,
                                                   uint8 mask);
int bcm_field_qualify_EthernetOamInterfaceClassMpls(int unit, bcm_field_entry_t entry, uint8 data,
                                                    uint8 mask);
int bcm_field_qualify_EthernetOamInterfaceClassNiv(int unit, bcm_field_entry_t entry, uint8 data,
                                                   uint8 mask);
int bcm_field_qualify_EthernetOamInterfaceClassPort(int unit, bcm_field_entry_t entry, uint8 data,
                                                    uint8 mask);
int bcm_field_qualify_EthernetOamInterfaceClassVlan(int unit, bcm_field_entry_t entry, uint8 data,
                                                    uint8 mask);
int bcm_field_qualify_EthernetOamInterfaceClassVxlan(int unit, bcm_field_entry_t entry, uint8 data,
                                                     uint8 mask);
int bcm_field_qualify_EthernetOamTxPktUPMEP(int unit, bcm_field_entry_t entry, uint8 data,
                                            uint8 mask);
int bcm_field_qualify_IngressDropEthernetOamControl(int unit, bcm_field_entry_t entry,
                                                    bcm_field_oam_drop_mep_type_t mep_type);
int bcm_field_qualify_IngressDropEthernetOamData(int unit, bcm_field_entry_t entry,
                                                 bcm_field_oam_drop_mep_type_t mep_type);
int bcm_field_qualify_IngressDropMplsOamControl(int unit, bcm_field_entry_t entry,
                                                bcm_field_oam_drop_mep_type_t mep_type);
int bcm_field_qualify_IngressDropMplsOamData(int unit, bcm_field_entry_t entry,
                                             bcm_field_oam_drop_mep_type_t mep_type);
int bcm_field_qualify_MplsOamACH(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_MplsOamClassMplsSwitchLabel(int unit, bcm_field_entry_t entry, uint16 data,
                                                  uint16 mask);
int bcm_field_qualify_MplsOamControlPktType(int unit, bcm_field_entry_t entry,
                                            bcm_field_MplsOam_Control_pktType_t data);
int bcm_field_qualify_MplsOamGALExposed(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MplsOamGALLabelOnly(int unit, bcm_field_entry_t entry, uint8 data,
                                          uint8 mask);
int bcm_field_qualify_MplsOamHeaderBits0_31(int unit, bcm_field_entry_t entry, uint32 data,
                                            uint32 mask);
int bcm_field_qualify_MplsOamHeaderBits32_63(int unit, bcm_field_entry_t entry, uint32 data,
                                             uint32 mask);
int bcm_field_qualify_MplsOamUpperLabelDataDrop(int unit, bcm_field_entry_t entry, uint8 data,
                                                uint8 mask);
int bcm_field_qualify_OamDownMEPLoopbackPacket(int unit, bcm_field_entry_t entry, uint8 data,
                                               uint8 mask);
int bcm_field_qualify_OamEgressClass2Vxlt(int unit, bcm_field_entry_t entry, uint32 data,
                                          uint32 mask);
int bcm_field_qualify_OamEgressClassPort(int unit, bcm_field_entry_t entry, uint16 data,
                                         uint16 mask);
int bcm_field_qualify_OamEgressClassSrcMac(int unit, bcm_field_entry_t entry, uint32 data,
                                           uint32 mask);
int bcm_field_qualify_OamEgressClassVxlt(int unit, bcm_field_entry_t entry, uint16 data,
                                         uint16 mask);
int bcm_field_qualify_OamEgressEtherType(int unit, bcm_field_entry_t entry, uint16 data);
int bcm_field_qualify_OamEgressMulticastMacHit(int unit, bcm_field_entry_t entry, uint8 data);
int bcm_field_qualify_OamEgressPortUnicastDstMacHit(int unit, bcm_field_entry_t entry, uint8 data,
                                                    uint8 mask);
int bcm_field_qualify_OamEgressVxltFirstHit(int unit, bcm_field_entry_t entry, uint8 data,
                                            uint8 mask);
int bcm_field_qualify_OamEgressVxltSecondHit(int unit, bcm_field_entry_t entry, uint8 data,
                                             uint8 mask);
int bcm_field_qualify_OamHeaderBits0_31(int unit, bcm_field_entry_t entry, uint32 data,
                                        uint32 mask);
int bcm_field_qualify_OamHeaderBits32_63(int unit, bcm_field_entry_t entry, uint32 data,
                                         uint32 mask);
int bcm_field_qualify_OamHeaderOffset(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_OamInLifId(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_OamInLifIdValid(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_OamMdl(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_OamMepId(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_OamMeterDisable(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_OamStampOffset(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_OamSubtype(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_OamTsSystemHeader(int unit, bcm_field_entry_t entry, uint64 data,
                                        uint64 mask);
int bcm_field_qualify_OamType(int unit, bcm_field_entry_t entry, bcm_field_oam_type_t oam_type);
int bcm_field_qualify_OamUpMep(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);

/* MPLS */
int bcm_field_qualify_Decap(int unit, bcm_field_entry_t entry, bcm_field_decap_t decap);
int bcm_field_qualify_DstMplsGport(int unit, bcm_field_entry_t entry, bcm_gport_t mpls_port_id);
int bcm_field_qualify_DstMplsGports(int unit, bcm_field_entry_t entry, bcm_gport_t mpls_port_id,
                                    bcm_gport_t mpls_port_mask);
int bcm_field_qualify_GenericAssociatedChannelLabelValid(int unit, bcm_field_entry_t entry,
                                                         uint8 data, uint8 mask);
int bcm_field_qualify_HiGigMplsPkt(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MplsBos(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MplsControlWord(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_MplsControlWordValid(int unit, bcm_field_entry_t entry, uint8 data,
                                           uint8 mask);
int bcm_field_qualify_MplsForwardingLabel(int unit, bcm_field_entry_t entry, uint32 data,
                                          uint32 mask);
int bcm_field_qualify_MplsForwardingLabelAction(int unit, bcm_field_entry_t entry, uint8 data,
                                                uint8 mask);
int bcm_field_qualify_MplsForwardingLabelAction32(int unit, bcm_field_entry_t entry, uint32 data,
                                                  uint32 mask);
int bcm_field_qualify_MplsForwardingLabelBos(int unit, bcm_field_entry_t entry, uint8 data,
                                             uint8 mask);
int bcm_field_qualify_MplsForwardingLabelExp(int unit, bcm_field_entry_t entry, uint8 data,
                                             uint8 mask);
int bcm_field_qualify_MplsForwardingLabelId(int unit, bcm_field_entry_t entry, uint32 data,
                                            uint32 mask);
int bcm_field_qualify_MplsForwardingLabelPayload(int unit, bcm_field_entry_t entry, uint64 data,
                                                 uint64 mask);
int bcm_field_qualify_MplsForwardingLabelTtl(int unit, bcm_field_entry_t entry, uint8 data,
                                             uint8 mask);
int bcm_field_qualify_MplsLabel1(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_MplsLabel1Bos(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MplsLabel1Exp(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MplsLabel1Hit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MplsLabel1Id(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_MplsLabel1Ttl(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MplsLabel2(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_MplsLabel2Bos(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MplsLabel2Exp(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MplsLabel2Hit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MplsLabel2Id(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_MplsLabel2Ttl(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MplsLabel3(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_MplsLabel3Bos(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MplsLabel3Exp(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MplsLabel3Id(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_MplsLabel3Ttl(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MplsOuterLabelPop(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MplsStationHitTunnelUnterminated(int unit, bcm_field_entry_t entry,
                                                       uint8 data, uint8 mask);
int bcm_field_qualify_MplsTerminated(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MplsTerminatedHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MplsTerminatedValue(int unit, bcm_field_entry_t entry, uint64 data,
                                          uint64 mask);
int bcm_field_qualify_RouterAlertLabelValid(int unit, bcm_field_entry_t entry, uint8 data,
                                            uint8 mask);
int bcm_field_qualify_SrcMplsGport(int unit, bcm_field_entry_t entry, bcm_gport_t mpls_port_id);
int bcm_field_qualify_SrcMplsGports(int unit, bcm_field_entry_t entry, bcm_gport_t mpls_port_id,
                                    bcm_gport_t mpls_port_mask);

/* MAC-in-MAC */
int bcm_field_qualify_DstMimGport(int unit, bcm_field_entry_t entry, bcm_gport_t mim_port_id);
int bcm_field_qualify_DstMimGports(int unit, bcm_field_entry_t entry, bcm_gport_t mim_port_id,
                                   bcm_gport_t mim_port_mask);
int bcm_field_qualify_ISid(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_ITag(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_MimlDstMac(int unit, bcm_field_entry_t entry, bcm_mac_t data, bcm_mac_t mask);
int bcm_field_qualify_MimlInnerTag(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_MimlPkt(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MimlSrcMac(int unit, bcm_field_entry_t entry, bcm_mac_t data, bcm_mac_t mask);
int bcm_field_qualify_MimlVlan(int unit, bcm_field_entry_t entry, bcm_vlan_t data, bcm_vlan_t mask);
int bcm_field_qualify_MimlVlanCfi(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MimlVlanId(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                 bcm_vlan_t mask);
int bcm_field_qualify_MimlVlanPri(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MimSrcGportHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MimVfiHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MimVlanCfi(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MimVlanPri(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_SrcMimGport(int unit, bcm_field_entry_t entry, bcm_gport_t mim_port_id);
int bcm_field_qualify_SrcMimGports(int unit, bcm_field_entry_t entry, bcm_gport_t mim_port_id,
                                   bcm_gport_t mim_port_mask);

/* TRILL */
int bcm_field_qualify_TrillEgressRbridge(int unit, bcm_field_entry_t entry, uint32 data,
                                         uint32 mask);
int bcm_field_qualify_TrillEgressRbridgeHit(int unit, bcm_field_entry_t entry, uint8 data,
                                            uint8 mask);
int bcm_field_qualify_TrillHopCount(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_TrillIngressRbridge(int unit, bcm_field_entry_t entry, uint16 data,
                                          uint16 mask);
int bcm_field_qualify_TrillIngressRbridgeHit(int unit, bcm_field_entry_t entry, uint8 data,
                                             uint8 mask);
int bcm_field_qualify_TrillIVersion(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_TrillMultiDestination(int unit, bcm_field_entry_t entry, uint8 data,
                                            uint8 mask);
int bcm_field_qualify_TrillOpLength(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_TrillPayload(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);

/* VXLAN, L2 GRE and NIV */
int bcm_field_qualify_CnTag(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_DstNivGport(int unit, bcm_field_entry_t entry, bcm_gport_t niv_port_id);
int bcm_field_qualify_DstNivGports(int unit, bcm_field_entry_t entry, bcm_gport_t niv_port_id,
                                   bcm_gport_t niv_port_mask);
int bcm_field_qualify_DstVxlanGport(int unit, bcm_field_entry_t entry, bcm_gport_t vxlan_port_id);
int bcm_field_qualify_DstVxlanGports(int unit, bcm_field_entry_t entry, bcm_gport_t vxlan_port_id,
                                     bcm_gport_t vxlan_port_mask);
int bcm_field_qualify_ECid(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_ETag(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);
int bcm_field_qualify_IngressECid(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_L2GreFlowId(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L2GreProtocolType(int unit, bcm_field_entry_t entry, uint16 data,
                                        uint16 mask);
int bcm_field_qualify_L2GreSrcIpHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L2GreVfiHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L2GreVsid(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_SrcNivGport(int unit, bcm_field_entry_t entry, bcm_gport_t niv_port_id);
int bcm_field_qualify_SrcNivGports(int unit, bcm_field_entry_t entry, bcm_gport_t niv_port_id,
                                   bcm_gport_t niv_port_mask);
int bcm_field_qualify_SrcVxlanGport(int unit, bcm_field_entry_t entry, bcm_gport_t vxlan_port_id);
int bcm_field_qualify_SrcVxlanGports(int unit, bcm_field_entry_t entry, bcm_gport_t vxlan_port_id,
                                     bcm_gport_t vxlan_port_mask);
int bcm_field_qualify_VnTag(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_VxlanClassValid(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_VxlanFlags(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_VxlanHeaderBits56_63(int unit, bcm_field_entry_t entry, uint8 data,
                                           uint8 mask);
int bcm_field_qualify_VxlanHeaderBits8_31(int unit, bcm_field_entry_t entry, uint32 data,
                                          uint32 mask);
int bcm_field_qualify_VxlanNetworkId(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_VxlanPacket(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_VxlanPayloadVlanFormat(int unit, bcm_field_entry_t entry, uint8 data,
                                             uint8 mask);
int bcm_field_qualify_VxlanVnidVlanTranslateHit(int unit, bcm_field_entry_t entry, uint8 data,
                                                uint8 mask);

/* HiGig headers */
int bcm_field_qualify_HiGig(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_HiGigColor(int unit, bcm_field_entry_t entry, uint8 color);
int bcm_field_qualify_HiGigDoNotFlags(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_HiGigDstGport(int unit, bcm_field_entry_t entry, bcm_gport_t port_id,
                                    bcm_gport_t port_mask);
int bcm_field_qualify_HiGigDstModPortGport(int unit, bcm_field_entry_t entry, bcm_gport_t port_id,
                                           bcm_gport_t port_mask);
int bcm_field_qualify_HiGigDstModuleGport(int unit, bcm_field_entry_t entry, bcm_gport_t port_id,
                                          bcm_gport_t port_mask);
int bcm_field_qualify_HiGigDstMulticast(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_HiGigDstMulticastGroupId(int unit, bcm_field_entry_t entry,
                                               bcm_multicast_t group, bcm_multicast_t mask);
int bcm_field_qualify_HiGigDstPortGport(int unit, bcm_field_entry_t entry, bcm_gport_t port_id,
                                        bcm_gport_t mask);
int bcm_field_qualify_HiGigDstTrunk(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_HiGigDstTrunkId(int unit, bcm_field_entry_t entry, bcm_trunk_t data,
                                      bcm_trunk_t mask);
int bcm_field_qualify_HiGigDstType(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_HiGigEgressMcast(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_HiGigExtendedHeaderPresent(int unit, bcm_field_entry_t entry, uint8 data,
                                                 uint8 mask);
int bcm_field_qualify_HiGigForwardingType(int unit, bcm_field_entry_t entry,
                                          bcm_field_HiGigForwardingType_t type);
int bcm_field_qualify_HiGigIngressClassificationTag(int unit, bcm_field_entry_t entry, uint16 data,
                                                    uint16 mask);
int bcm_field_qualify_HiGigIngressL3SwitchPkt(int unit, bcm_field_entry_t entry, uint8 data,
                                              uint8 mask);
int bcm_field_qualify_HiGigIngressTagged(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_HiGigIntCongestionNotification(int unit, bcm_field_entry_t entry, uint8 data,
                                                     uint8 mask);
int bcm_field_qualify_HiGigLabel(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_HiGigLabelType(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_HiGigLoadBalanceID(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_HiGigMirrorOrSwitchPkt(int unit, bcm_field_entry_t entry, uint8 data,
                                             uint8 mask);
int bcm_field_qualify_HiGigMirrorToVp(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_HiGigMulticastIndex(int unit, bcm_field_entry_t entry, uint16 data,
                                          uint16 mask);
int bcm_field_qualify_HiGigOffloadEngineClassificationTag(int unit, bcm_field_entry_t entry,
                                                          uint16 data, uint16 mask);
int bcm_field_qualify_HiGigOffloadEngineDeferredFlags(int unit, bcm_field_entry_t entry, uint8 data,
                                                      uint8 mask);
int bcm_field_qualify_HiGigOffloadEngineDscpNew(int unit, bcm_field_entry_t entry, uint8 data,
                                                uint8 mask);
int bcm_field_qualify_HiGigOffloadEnginePktPriNew(int unit, bcm_field_entry_t entry, uint8 data,
                                                  uint8 mask);
int bcm_field_qualify_HiGigOffloadEnginePreserveDot1p(int unit, bcm_field_entry_t entry, uint8 data,
                                                      uint8 mask);
int bcm_field_qualify_HiGigOffloadEnginePreserveDscp(int unit, bcm_field_entry_t entry, uint8 data,
                                                     uint8 mask);
int bcm_field_qualify_HiGigOffloadEngineSrcType(int unit, bcm_field_entry_t entry, uint8 data,
                                                uint8 mask);
int bcm_field_qualify_HiGigOffloadEngineVxltStatus(int unit, bcm_field_entry_t entry, uint8 data,
                                                   uint8 mask);
int bcm_field_qualify_HiGigPortFilteringMode(int unit, bcm_field_entry_t entry, uint8 data,
                                             uint8 mask);
int bcm_field_qualify_HiGigPreserveFlags(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_HiGigProtectionSwitchingStatus(int unit, bcm_field_entry_t entry, uint8 data,
                                                     uint8 mask);
int bcm_field_qualify_HiGigProxy(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_HiGigReplicationId(int unit, bcm_field_entry_t entry, uint32 data,
                                         uint32 mask);
int bcm_field_qualify_HiGigSrcGport(int unit, bcm_field_entry_t entry, bcm_gport_t port_id,
                                    bcm_gport_t port_mask);
int bcm_field_qualify_HiGigSrcModPortGport(int unit, bcm_field_entry_t entry, bcm_gport_t port_id,
                                           bcm_gport_t port_mask);
int bcm_field_qualify_HiGigSrcModuleGport(int unit, bcm_field_entry_t entry, bcm_gport_t port_id,
                                          bcm_gport_t port_mask);
int bcm_field_qualify_HiGigSrcPortGport(int unit, bcm_field_entry_t entry, bcm_gport_t port_id,
                                        bcm_gport_t port_mask);
int bcm_field_qualify_HiGigSrcTrunk(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_HiGigSrcType(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_HiGigTrafficClass(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_HiGigVlan(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_HiGigVni(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_HiGigVpLagFailoverPacket(int unit, bcm_field_entry_t entry, uint8 data,
                                               uint8 mask);
int bcm_field_qualify_HiGigVpPreserveFlags(int unit, bcm_field_entry_t entry, uint8 data,
                                           uint8 mask);
int bcm_field_qualify_HiGigVpReplicationId(int unit, bcm_field_entry_t entry, uint32 data,
                                           uint32 mask);

/* Seamless redundancy */
int bcm_field_qualify_DstPortSRLanId(int unit, bcm_field_entry_t entry, uint8 net_id);
int bcm_field_qualify_DstPortSRMode(int unit, bcm_field_entry_t entry,
                                    bcm_field_sr_port_mode_t type, uint8 mask);
int bcm_field_qualify_DstPortSRNetId(int unit, bcm_field_entry_t entry, uint8 net_id, uint8 mask);
int bcm_field_qualify_DstPortSRRoleInterlink(int unit, bcm_field_entry_t entry, uint8 data);
int bcm_field_qualify_DstPortSRType(int unit, bcm_field_entry_t entry,
                                    bcm_field_port_sr_type_t type);
int bcm_field_qualify_L2DestSRNodeType(int unit, bcm_field_entry_t entry,
                                       bcm_field_sr_node_type_t type);
int bcm_field_qualify_SrcPortSRLanId(int unit, bcm_field_entry_t entry, uint8 net_id);
int bcm_field_qualify_SrcPortSRMode(int unit, bcm_field_entry_t entry,
                                    bcm_field_sr_port_mode_t type, uint8 mask);
int bcm_field_qualify_SrcPortSRNetId(int unit, bcm_field_entry_t entry, uint8 net_id, uint8 mask);
int bcm_field_qualify_SrcPortSRRoleInterlink(int unit, bcm_field_entry_t entry, uint8 data);
int bcm_field_qualify_SrcPortSRType(int unit, bcm_field_entry_t entry,
                                    bcm_field_port_sr_type_t type);
int bcm_field_qualify_SRDuplicate(int unit, bcm_field_entry_t entry, uint8 data);
int bcm_field_qualify_SRError(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_SRFlowId(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_SRLanId(int unit, bcm_field_entry_t entry, int lan_id);
int bcm_field_qualify_SRNetId(int unit, bcm_field_entry_t entry, int net_id);
int bcm_field_qualify_SRNetIdMatched(int unit, bcm_field_entry_t entry, uint8 data);
int bcm_field_qualify_SRSrcNodeIsSan(int unit, bcm_field_entry_t entry, uint8 data);
int bcm_field_qualify_SRSupervisionType(int unit, bcm_field_entry_t entry,
                                        bcm_field_sr_supervision_type_t type);
int bcm_field_qualify_SRTagType(int unit, bcm_field_entry_t entry, bcm_field_sr_tag_type_t type);
int bcm_field_qualify_VlanSREnable(int unit, bcm_field_entry_t entry, uint8 data);
int bcm_field_qualify_VlanSRLanId(int unit, bcm_field_entry_t entry, uint8 lan_id);

/* RoCE and time-sensitive networking */
int bcm_field_qualify_PreemptablePacket(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_RoceBthDstQueuePair(int unit, bcm_field_entry_t entry, uint32 data,
                                          uint32 mask);
int bcm_field_qualify_RoceBthFlags(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_RoceBthOpcode(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_RoceBthPartitionKey(int unit, bcm_field_entry_t entry, uint16 data,
                                          uint16 mask);
int bcm_field_qualify_RoceVer1Pkt(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_RoceVer2Pkt(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_TsnFlowId(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);

/* Tunnels */
int bcm_field_qualify_IpTunnelHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_IpTunnelValue(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);
int bcm_field_qualify_TunnelId(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_TunnelPayloadDip(int unit, bcm_field_entry_t entry, bcm_ip_t data,
                                       bcm_ip_t mask);
int bcm_field_qualify_TunnelPayloadDip6(int unit, bcm_field_entry_t entry, unsigned char data[16],
                                        unsigned char mask[16]);
int bcm_field_qualify_TunnelPayloadDstMac(int unit, bcm_field_entry_t entry, bcm_mac_t data,
                                          bcm_mac_t mask);
int bcm_field_qualify_TunnelPayloadEtherType(int unit, bcm_field_entry_t entry, uint16 data,
                                             uint16 mask);
int bcm_field_qualify_TunnelPayloadIpProtocol(int unit, bcm_field_entry_t entry, uint8 data,
                                              uint8 mask);
int bcm_field_qualify_TunnelPayloadL4DstPort(int unit, bcm_field_entry_t entry, bcm_l4_port_t data,
                                             bcm_l4_port_t mask);
int bcm_field_qualify_TunnelPayloadL4SrcPort(int unit, bcm_field_entry_t entry, bcm_l4_port_t data,
                                             bcm_l4_port_t mask);
int bcm_field_qualify_TunnelPayloadOuterVlan(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                             bcm_vlan_t mask);
int bcm_field_qualify_TunnelPayloadOuterVlanCfi(int unit, bcm_field_entry_t entry, uint8 data,
                                                uint8 mask);
int bcm_field_qualify_TunnelPayloadOuterVlanId(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                               bcm_vlan_t mask);
int bcm_field_qualify_TunnelPayloadOuterVlanPri(int unit, bcm_field_entry_t entry, uint8 data,
                                                uint8 mask);
int bcm_field_qualify_TunnelPayloadSip(int unit, bcm_field_entry_t entry, bcm_ip_t data,
                                       bcm_ip_t mask);
int bcm_field_qualify_TunnelPayloadSip6(int unit, bcm_field_entry_t entry, unsigned char data[16],
                                        unsigned char mask[16]);
int bcm_field_qualify_TunnelPayloadSrcMac(int unit, bcm_field_entry_t entry, bcm_mac_t data,
                                          bcm_mac_t mask);
int bcm_field_qualify_TunnelTerminated(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_TunnelTerminatedHit(int unit, bcm_field_entry_t entry, uint8 data,
                                          uint8 mask);
int bcm_field_qualify_TunnelTerminatedValue(int unit, bcm_field_entry_t entry, uint64 data,
                                            uint64 mask);
int bcm_field_qualify_TunnelType(int unit, bcm_field_entry_t entry,
                                 bcm_field_TunnelType_t tunnel_type);

/* VLANs */
int bcm_field_qualify_DstVlanGport(int unit, bcm_field_entry_t entry, bcm_gport_t vlan_port_id);
int bcm_field_qualify_DstVlanGports(int unit, bcm_field_entry_t entry, bcm_gport_t vlan_port_id,
                                    bcm_gport_t vlan_port_mask);
int bcm_field_qualify_ForwardHdrVlanId(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                       bcm_vlan_t mask);
int bcm_field_qualify_ForwardingVlanId(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                       bcm_vlan_t mask);
int bcm_field_qualify_ForwardingVlanValid(int unit, bcm_field_entry_t entry, uint8 data,
                                          uint8 mask);
int bcm_field_qualify_InnerTpid(int unit, bcm_field_entry_t entry, uint16 tpid);
int bcm_field_qualify_InnerVlan(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                bcm_vlan_t mask);
int bcm_field_qualify_InnerVlanActionRange(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                           bcm_vlan_t mask);
int bcm_field_qualify_InnerVlanCfi(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_InnerVlanId(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                  bcm_vlan_t mask);
int bcm_field_qualify_InnerVlanPri(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_LearnVlan(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                bcm_vlan_t mask);
int bcm_field_qualify_LlidValue(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_NativeVSwitch(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                    bcm_vlan_t mask);
int bcm_field_qualify_NativeVSwitchValid(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_OuterTpid(int unit, bcm_field_entry_t entry, uint16 tpid);
int bcm_field_qualify_OuterVlan(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                bcm_vlan_t mask);
int bcm_field_qualify_OuterVlanActionRange(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                           bcm_vlan_t mask);
int bcm_field_qualify_OuterVlanCfi(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_OuterVlanId(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                  bcm_vlan_t mask);
int bcm_field_qualify_OuterVlanPri(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_OuterVlanPriCfi(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_SrcVlanGport(int unit, bcm_field_entry_t entry, bcm_gport_t vlan_port_id);
int bcm_field_qualify_SrcVlanGports(int unit, bcm_field_entry_t entry, bcm_gport_t vlan_port_id,
                                    bcm_gport_t vlan_port_mask);
int bcm_field_qualify_SubportPktTag(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_TranslatedInnerVlan(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                          bcm_vlan_t mask);
int bcm_field_qualify_TranslatedInnerVlanCfi(int unit, bcm_field_entry_t entry, uint8 data,
                                             uint8 mask);
int bcm_field_qualify_TranslatedInnerVlanId(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                            bcm_vlan_t mask);
int bcm_field_qualify_TranslatedInnerVlanPri(int unit, bcm_field_entry_t entry, uint8 data,
                                             uint8 mask);
int bcm_field_qualify_TranslatedOuterVlan(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                          bcm_vlan_t mask);
int bcm_field_qualify_TranslatedOuterVlanCfi(int unit, bcm_field_entry_t entry, uint8 data,
                                             uint8 mask);
int bcm_field_qualify_TranslatedOuterVlanId(int unit, bcm_field_entry_t entry, bcm_vlan_t data,
                                            bcm_vlan_t mask);
int bcm_field_qualify_TranslatedOuterVlanPri(int unit, bcm_field_entry_t entry, uint8 data,
                                             uint8 mask);
int bcm_field_qualify_TranslatedVlanFormat(int unit, bcm_field_entry_t entry, uint8 data,
                                           uint8 mask);
int bcm_field_qualify_VlanAction(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_VlanFormat(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_VlanTranslationHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_VlanTranslationValue(int unit, bcm_field_entry_t entry, uint64 data,
                                           uint64 mask);
int bcm_field_qualify_Vpn(int unit, bcm_field_entry_t entry, bcm_vpn_t data, bcm_vpn_t mask);

/* Layer 2 */
int bcm_field_qualify_DstL2MulticastGroup(int unit, bcm_field_entry_t entry, bcm_multicast_t group,
                                          bcm_multicast_t mask);
int bcm_field_qualify_DstMac(int unit, bcm_field_entry_t entry, bcm_mac_t data, bcm_mac_t mask);
int bcm_field_qualify_EtherType(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_ForwardHdrDstMac(int unit, bcm_field_entry_t entry, bcm_mac_t data,
                                       bcm_mac_t mask);
int bcm_field_qualify_ForwardHdrSrcMac(int unit, bcm_field_entry_t entry, bcm_mac_t data,
                                       bcm_mac_t mask);
int bcm_field_qualify_IngressStpState(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_InnerDstMac(int unit, bcm_field_entry_t entry, bcm_mac_t data,
                                  bcm_mac_t mask);
int bcm_field_qualify_InnerEtherType(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_InnerSrcMac(int unit, bcm_field_entry_t entry, bcm_mac_t data,
                                  bcm_mac_t mask);
int bcm_field_qualify_L2CacheHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L2DestHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L2DestValue(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);
int bcm_field_qualify_L2DstMulticastHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L2Format(int unit, bcm_field_entry_t entry, bcm_field_L2Format_t type);
int bcm_field_qualify_L2Learn(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L2SrcHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L2SrcMulticastHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L2SrcStatic(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L2SrcValue(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);
int bcm_field_qualify_L2StationMove(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_LearnExtension(int unit, bcm_field_entry_t entry, uint8 data);
int bcm_field_qualify_LearnInVPort(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_LearnSrcMac(int unit, bcm_field_entry_t entry, bcm_mac_t data,
                                  bcm_mac_t mask);
int bcm_field_qualify_Llc(int unit, bcm_field_entry_t entry, bcm_field_llc_header_t data,
                          bcm_field_llc_header_t mask);
int bcm_field_qualify_MacAddrsNormalized(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MyStation2Hit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MyStationHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_Snap(int unit, bcm_field_entry_t entry, bcm_field_snap_header_t data,
                           bcm_field_snap_header_t mask);
int bcm_field_qualify_SrcMac(int unit, bcm_field_entry_t entry, bcm_mac_t data, bcm_mac_t mask);
int bcm_field_qualify_StpState(int unit, bcm_field_entry_t entry, uint8 data);

/* IPv6 and its extension headers */
int bcm_field_qualify_DstIp6(int unit, bcm_field_entry_t entry, unsigned char data[16],
                             unsigned char mask[16]);
int bcm_field_qualify_DstIp6High(int unit, bcm_field_entry_t entry, unsigned char data[16],
                                 unsigned char mask[16]);
int bcm_field_qualify_DstIp6Low(int unit, bcm_field_entry_t entry, unsigned char data[16],
                                unsigned char mask[16]);
int bcm_field_qualify_ExtensionHeader2Type(int unit, bcm_field_entry_t entry, uint8 data,
                                           uint8 mask);
int bcm_field_qualify_ExtensionHeaderSubCode(int unit, bcm_field_entry_t entry, uint8 data,
                                             uint8 mask);
int bcm_field_qualify_ExtensionHeaderType(int unit, bcm_field_entry_t entry, uint8 data,
                                          uint8 mask);
int bcm_field_qualify_InnerDstIp6(int unit, bcm_field_entry_t entry, unsigned char data[16],
                                  unsigned char mask[16]);
int bcm_field_qualify_InnerDstIp6High(int unit, bcm_field_entry_t entry, unsigned char data[16],
                                      unsigned char mask[16]);
int bcm_field_qualify_InnerIp6FlowLabel(int unit, bcm_field_entry_t entry, uint32 data,
                                        uint32 mask);
int bcm_field_qualify_InnerIp6HopLimit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_InnerIp6NextHeader(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_InnerSrcIp6(int unit, bcm_field_entry_t entry, unsigned char data[16],
                                  unsigned char mask[16]);
int bcm_field_qualify_InnerSrcIp6High(int unit, bcm_field_entry_t entry, unsigned char data[16],
                                      unsigned char mask[16]);
int bcm_field_qualify_Ip6FlowLabel(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_Ip6HopLimit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_Ip6NextHeader(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_Ip6TrafficClass(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_SrcIp6(int unit, bcm_field_entry_t entry, unsigned char data[16],
                             unsigned char mask[16]);
int bcm_field_qualify_SrcIp6High(int unit, bcm_field_entry_t entry, unsigned char data[16],
                                 unsigned char mask[16]);
int bcm_field_qualify_SrcIp6Low(int unit, bcm_field_entry_t entry, unsigned char data[16],
                                unsigned char mask[16]);

/* Layer 4 */
int bcm_field_qualify_AppType(int unit, bcm_field_entry_t entry, bcm_field_AppType_t type);
int bcm_field_qualify_BigIcmpCheck(int unit, bcm_field_entry_t entry, uint32 flag, uint32 size);
int bcm_field_qualify_Dhcp(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_DosAttack(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_IcmpError(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_IcmpTypeCode(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_IgmpTypeMaxRespTime(int unit, bcm_field_entry_t entry, uint16 data,
                                          uint16 mask);
int bcm_field_qualify_InnerL4DstPort(int unit, bcm_field_entry_t entry, bcm_l4_port_t data,
                                     bcm_l4_port_t mask);
int bcm_field_qualify_InnerL4SrcPort(int unit, bcm_field_entry_t entry, bcm_l4_port_t data,
                                     bcm_l4_port_t mask);
int bcm_field_qualify_L4DstPort(int unit, bcm_field_entry_t entry, bcm_l4_port_t data,
                                bcm_l4_port_t mask);
int bcm_field_qualify_L4PortRangeCheck(int unit, bcm_field_entry_t entry, bcm_field_range_t range,
                                       int invert);
int bcm_field_qualify_L4Ports(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L4SrcPort(int unit, bcm_field_entry_t entry, bcm_l4_port_t data,
                                bcm_l4_port_t mask);
int bcm_field_qualify_PacketLengthRangeCheck(int unit, bcm_field_entry_t entry,
                                             bcm_field_range_t range, int invert);
int bcm_field_qualify_RangeCheck(int unit, bcm_field_entry_t entry, bcm_field_range_t range,
                                 int invert);
int bcm_field_qualify_Rtag7AHashLower(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_Rtag7AHashUpper(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_Rtag7BHashLower(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_Rtag7BHashUpper(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_TcpControl(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_TcpHeaderSize(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);

/* Layer 3 */
int bcm_field_qualify_ArpOpcode(int unit, bcm_field_entry_t entry, bcm_field_ArpOpcode_t data);
int bcm_field_qualify_ArpSenderIp4(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_ArpTargetIp4(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_DSCP(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_DstIp(int unit, bcm_field_entry_t entry, bcm_ip_t data, bcm_ip_t mask);
int bcm_field_qualify_DstIpLocal(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_DstL3Egress(int unit, bcm_field_entry_t entry, bcm_if_t if_id);
int bcm_field_qualify_DstL3EgressNextHops(int unit, bcm_field_entry_t entry, uint32 data,
                                          uint32 mask);
int bcm_field_qualify_DstL3MulticastGroup(int unit, bcm_field_entry_t entry, bcm_multicast_t group,
                                          bcm_multicast_t mask);
int bcm_field_qualify_DstMulticastGroup(int unit, bcm_field_entry_t entry, bcm_multicast_t group);
int bcm_field_qualify_DstMulticastGroups(int unit, bcm_field_entry_t entry, bcm_multicast_t group,
                                         bcm_multicast_t mask);
int bcm_field_qualify_DstMultipath(int unit, bcm_field_entry_t entry, bcm_if_t mpintf);
int bcm_field_qualify_DstMultipathOverlay(int unit, bcm_field_entry_t entry, bcm_if_t data,
                                          bcm_if_t mask);
int bcm_field_qualify_DstMultipathUnderlay(int unit, bcm_field_entry_t entry, bcm_if_t data,
                                           bcm_if_t mask);
int bcm_field_qualify_EcnValue(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_ForwardCopy(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_ForwardingType(int unit, bcm_field_entry_t entry,
                                     bcm_field_ForwardingType_t type);
int bcm_field_qualify_GeneratedTtl(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_InnerDSCP(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_InnerDstIp(int unit, bcm_field_entry_t entry, bcm_ip_t data, bcm_ip_t mask);
int bcm_field_qualify_InnerIpFrag(int unit, bcm_field_entry_t entry, bcm_field_IpFrag_t frag_info);
int bcm_field_qualify_InnerIpProtocol(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_InnerIpProtocolCommon(int unit, bcm_field_entry_t entry,
                                            bcm_field_IpProtocolCommon_t protocol);
int bcm_field_qualify_InnerIpType(int unit, bcm_field_entry_t entry, bcm_field_IpType_t type);
int bcm_field_qualify_InnerSrcIp(int unit, bcm_field_entry_t entry, bcm_ip_t data, bcm_ip_t mask);
int bcm_field_qualify_InnerTos(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_InnerTtl(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_IpAddrsNormalized(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_IpAuth(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_IpFlags(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_IpFrag(int unit, bcm_field_entry_t entry, bcm_field_IpFrag_t frag_info);
int bcm_field_qualify_IpFragNonOrFirst(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_IpInfo(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_IpmcHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_IpmcStarGroupHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_IpmcStarGroupValue(int unit, bcm_field_entry_t entry, uint64 data,
                                         uint64 mask);
int bcm_field_qualify_IpmcValue(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);
int bcm_field_qualify_IpMulticastCompatible(int unit, bcm_field_entry_t entry, uint32 data,
                                            uint32 mask);
int bcm_field_qualify_IpProtocol(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_IpProtocolCommon(int unit, bcm_field_entry_t entry,
                                       bcm_field_IpProtocolCommon_t protocol);
int bcm_field_qualify_IpType(int unit, bcm_field_entry_t entry, bcm_field_IpType_t type);
int bcm_field_qualify_L3DestHostHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L3DestRouteHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L3DestRouteValue(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);
int bcm_field_qualify_L3Ingress(int unit, bcm_field_entry_t entry, uint32 intf_id, uint32 mask);
int bcm_field_qualify_L3Routable(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L3SrcBind(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L3SrcHostHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L3SrcRouteHit(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_L3SrcRouteValue(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);
int bcm_field_qualify_NatDstRealmId(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_NatNeeded(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_NatSrcRealmId(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_SrcIp(int unit, bcm_field_entry_t entry, bcm_ip_t data, bcm_ip_t mask);
int bcm_field_qualify_Tos(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_TosLower4Bits(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_Ttl(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_Vrf(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);

/* Colour, priority and flow */
int bcm_field_qualify_Color(int unit, bcm_field_entry_t entry, uint8 color);
int bcm_field_qualify_FlowId(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_IntCongestionNotification(int unit, bcm_field_entry_t entry, uint8 data,
                                                uint8 mask);
int bcm_field_qualify_IntPriority(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_PolicerIntPrio(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);

/* Packets, copies and results */
int bcm_field_qualify_Drop(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_DstHiGig(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_Fhei(int unit, bcm_field_entry_t entry, uint64 data, uint64 mask);
int bcm_field_qualify_FheiSize(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_MHOpcode(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MirrorCopy(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_MirrorEgressDisabled(int unit, bcm_field_entry_t entry, uint8 data,
                                           uint8 mask);
int bcm_field_qualify_PacketLength(int unit, bcm_field_entry_t entry, uint16 data, uint16 mask);
int bcm_field_qualify_PacketRes(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_PacketSize(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_PacketTerminatedBytes(int unit, bcm_field_entry_t entry, uint32 data,
                                            uint32 mask);
int bcm_field_qualify_RecoverableDrop(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_RepCopy(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_ReplicantAny(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_ReplicantFirst(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);
int bcm_field_qualify_RxTrapCode(int unit, bcm_field_entry_t entry, bcm_rx_trap_t data);
int bcm_field_qualify_RxTrapCode32(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_RxTrapCodeForSnoop(int unit, bcm_field_entry_t entry, uint32 data,
                                         uint32 mask);
int bcm_field_qualify_RxTrapData(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_RxTrapStrength(int unit, bcm_field_entry_t entry, uint32 data, uint32 mask);
int bcm_field_qualify_SnoopCopy(int unit, bcm_field_entry_t entry, uint8 data, uint8 mask);

OMBRA_END_DECLS
