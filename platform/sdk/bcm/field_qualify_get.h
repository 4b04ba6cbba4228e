/* Field qualifiers, get forms: each reads back what its set form has set. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/field_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* The entry as a whole, stages and user-defined data */
int bcm_field_qualify_BypassFilter_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_BypassFilter32_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                         uint32 *mask);
int bcm_field_qualify_BypassSrcMacFilter_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                             uint8 *mask);
int bcm_field_qualify_CascadedKeyValue_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                           uint32 *mask);
int bcm_field_qualify_CustomHeaderData_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                           uint32 *mask);
int bcm_field_qualify_CustomHeaderPkt_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                          uint8 *mask);
int bcm_field_qualify_data_get(int unit, bcm_field_entry_t eid, int qual_id, uint16 length_max,
                               uint8 *data, uint8 *mask, uint16 *length);
int bcm_field_qualify_EqualL4Port_get(int unit, bcm_field_entry_t entry, uint32 *flag);
int bcm_field_qualify_ExactMatchActionClassId_get(int unit, bcm_field_entry_t entry, int group_pri,
                                                  uint32 *data, uint32 *mask);
int bcm_field_qualify_ExactMatchGroupClassId_get(int unit, bcm_field_entry_t entry, int group_pri,
                                                 bcm_field_group_t *group);
int bcm_field_qualify_ExactMatchHitStatus_get(int unit, bcm_field_entry_t entry, int group_pri,
                                              uint8 *data, uint8 *mask);
int bcm_field_qualify_ExternalHit0_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_ExternalHit1_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_ExternalHit2_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_ExternalHit3_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_ExternalHit4_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_ExternalHit5_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_ExternalHit6_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_ExternalHit7_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_ExternalValue0_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                         uint64 *mask);
int bcm_field_qualify_ExternalValue1_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                         uint64 *mask);
int bcm_field_qualify_ExternalValue2_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                         uint64 *mask);
int bcm_field_qualify_ExternalValue3_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                         uint64 *mask);
int bcm_field_qualify_ExternalValue4_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                         uint64 *mask);
int bcm_field_qualify_ExternalValue5_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                         uint64 *mask);
int bcm_field_qualify_ExternalValue6_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                         uint64 *mask);
int bcm_field_qualify_ExternalValue7_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                         uint64 *mask);
int bcm_field_qualify_ForwardingHeaderOffset_get(int unit, bcm_field_entry_t entry,
                                                 bcm_field_data_offset_base_t *base_header,
                                                 uint32 *data, uint32 *mask);
int bcm_field_qualify_GroupClass_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_HeaderFormat_get(int unit, bcm_field_entry_t entry,
                                       bcm_field_header_format_t *header_format);
int bcm_field_qualify_HeaderFormatSet_get(int unit, bcm_field_entry_t entry,
                                          bcm_field_header_format_set_t *header_format_set);
int bcm_field_qualify_IsEqualValue_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_L2PayLoad_get(int unit, bcm_field_entry_t entry, uint32 length, uint8 *data,
                                    uint8 *mask);
int bcm_field_qualify_L2PayloadFirstEightBytes_get(int unit, bcm_field_entry_t entry, uint32 *data1,
                                                   uint32 *data2, uint32 *mask1, uint32 *mask2);
int bcm_field_qualify_PreselId_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_SrcIpEqualDstIp_get(int unit, bcm_field_entry_t entry, uint32 *flag);
int bcm_field_qualify_Stage_get(int unit, bcm_field_entry_t entry, bcm_field_stage_t *data);
int bcm_field_qualify_StaggeredDirectValue_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                               uint32 *mask);
int bcm_field_qualify_StaggeredPreselProfile0_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                                  uint32 *mask);
int bcm_field_qualify_StaggeredPreselProfile1_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                                  uint32 *mask);
int bcm_field_qualify_StaggeredPreselProfile2_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                                  uint32 *mask);
int bcm_field_qualify_StaggeredPreselProfile3_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                                  uint32 *mask);
int bcm_field_qualify_StaggeredPreselProfileDirect_get(int unit, bcm_field_entry_t entry,
                                                       uint32 *data, uint32 *mask);
int bcm_field_qualify_StaggeredValue0_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                          uint32 *mask);
int bcm_field_qualify_StaggeredValue1_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                          uint32 *mask);
int bcm_field_qualify_StaggeredValue2_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                          uint32 *mask);
int bcm_field_qualify_StaggeredValue3_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                          uint32 *mask);
int bcm_field_qualify_TcpSequenceZero_get(int unit, bcm_field_entry_t entry, uint32 *flag);
int bcm_field_qualify_udf_get(int unit, bcm_field_entry_t eid, bcm_udf_id_t udf_id, int max_length,
                              uint8 *data, uint8 *mask, int *actual_length);
int bcm_field_qualify_UdfClass_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);

/* Ports, modules and trunks */
int bcm_field_qualify_CpuQueue_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_DestVirtualPortValid_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                               uint8 *mask);
int bcm_field_qualify_DevicePortBitmap_get(int unit, bcm_field_entry_t entry, bcm_pbmp_t *data,
                                           bcm_pbmp_t *mask);
int bcm_field_qualify_DstGport_get(int unit, bcm_field_entry_t entry, bcm_gport_t *port_id);
int bcm_field_qualify_DstGports_get(int unit, bcm_field_entry_t entry, bcm_gport_t *port_id,
                                    bcm_gport_t *port_mask);
int bcm_field_qualify_DstPort_get(int unit, bcm_field_entry_t entry, bcm_module_t *data_modid,
                                  bcm_module_t *mask_modid, bcm_port_t *data_port,
                                  bcm_port_t *mask_port);
int bcm_field_qualify_DstRpfGport_get(int unit, bcm_field_entry_t entry, bcm_gport_t *data);
int bcm_field_qualify_DstSysPortExt_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                        uint16 *mask);
int bcm_field_qualify_DstTrunk_get(int unit, bcm_field_entry_t entry, bcm_trunk_t *data,
                                   bcm_trunk_t *mask);
int bcm_field_qualify_FabricQueueTag_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                         uint32 *mask);
int bcm_field_qualify_IngressVPortBridgeDisable_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                    uint8 *mask);
int bcm_field_qualify_InPort_get(int unit, bcm_field_entry_t entry, bcm_port_t *data,
                                 bcm_port_t *mask);
int bcm_field_qualify_InPorts_get(int unit, bcm_field_entry_t entry, bcm_pbmp_t *data,
                                  bcm_pbmp_t *mask);
int bcm_field_qualify_InterfaceInPorts_get(int unit, bcm_field_entry_t entry, bcm_pbmp_t *data,
                                           bcm_pbmp_t *mask);
int bcm_field_qualify_InVPort_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_InVPort32_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_InVPortWide_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                      uint64 *mask);
int bcm_field_qualify_LearnSrcPort_get(int unit, bcm_field_entry_t entry, bcm_gport_t *data);
int bcm_field_qualify_MixedSrcClassId_get(int unit, bcm_field_entry_t entry, bcm_pbmp_t pbmp,
                                          bcm_field_src_class_t *data, bcm_field_src_class_t *mask);
int bcm_field_qualify_OutPort_get(int unit, bcm_field_entry_t entry, bcm_port_t *data,
                                  bcm_port_t *mask);
int bcm_field_qualify_OutPorts_get(int unit, bcm_field_entry_t entry, bcm_pbmp_t *data,
                                   bcm_pbmp_t *mask);
int bcm_field_qualify_OutVPort_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_OutVPort32_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_PortOrientation_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                          uint8 *mask);
int bcm_field_qualify_Ptch_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_SourceGportBitmap_get(int unit, bcm_field_entry_t entry, bcm_pbmp_t *data,
                                            bcm_pbmp_t *mask);
int bcm_field_qualify_SrcGport_get(int unit, bcm_field_entry_t entry, bcm_gport_t *port_id);
int bcm_field_qualify_SrcGports_get(int unit, bcm_field_entry_t entry, bcm_gport_t *port_id,
                                    bcm_gport_t *port_mask);
int bcm_field_qualify_SrcModPortGport_get(int unit, bcm_field_entry_t entry, bcm_gport_t *data);
int bcm_field_qualify_SrcModPortGports_get(int unit, bcm_field_entry_t entry, bcm_gport_t *port_id,
                                           bcm_gport_t *port_mask);
int bcm_field_qualify_SrcModuleGport_get(int unit, bcm_field_entry_t entry, bcm_gport_t *data);
int bcm_field_qualify_SrcPort_get(int unit, bcm_field_entry_t entry, bcm_module_t *data_modid,
                                  bcm_module_t *mask_modid, bcm_port_t *data_port,
                                  bcm_port_t *mask_port);
int bcm_field_qualify_SrcTrunk_get(int unit, bcm_field_entry_t entry, bcm_trunk_t *data,
                                   bcm_trunk_t *mask);
int bcm_field_qualify_SrcTrunkMemberGport_get(int unit, bcm_field_entry_t entry, bcm_gport_t *data);
int bcm_field_qualify_SrcVirtualPortValid_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                              uint8 *mask);
int bcm_field_qualify_StackingRoute_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                        uint32 *mask);
int bcm_field_qualify_SystemPortBitmap_get(int unit, bcm_field_entry_t entry, bcm_pbmp_t *data,
                                           bcm_pbmp_t *mask);
int bcm_field_qualify_TrunkHashResult_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                          uint32 *mask);
int bcm_field_qualify_TrunkMemberSourceModuleId_get(int unit, bcm_field_entry_t entry, int *data,
                                                    int *mask);
int bcm_field_qualify_VpnUnknownDstMacDstPort_get(int unit, bcm_field_entry_t entry,
                                                  bcm_gport_t *port_id);
int bcm_field_qualify_VPortRangeCheck_get(int unit, bcm_field_entry_t entry, int max_count,
                                          bcm_field_range_t *range, int *invert, int *count);

/* Loopback and visibility of the processor */
int bcm_field_qualify_CpuVisibilityPacket_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                              uint8 *mask);
int bcm_field_qualify_Loopback_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_LoopBackColor_get(int unit, bcm_field_entry_t entry, uint8 *color);
int bcm_field_qualify_LoopBackCpuMasqueradePktProfile_get(int unit, bcm_field_entry_t entry,
                                                          uint8 *data, uint8 *mask);
int bcm_field_qualify_LoopBackPacketProcessingPort_get(int unit, bcm_field_entry_t entry,
                                                       bcm_gport_t *port_id,
                                                       bcm_gport_t *port_mask);
int bcm_field_qualify_LoopBackQueue_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_LoopBackSrcGport_get(int unit, bcm_field_entry_t entry, bcm_gport_t *port_id,
                                           bcm_gport_t *port_mask);
int bcm_field_qualify_LoopBackTrafficClass_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                               uint8 *mask);
int bcm_field_qualify_LoopbackType_get(int unit, bcm_field_entry_t entry,
                                       bcm_field_LoopbackType_t *loopback_type);
int bcm_field_qualify_PktIsVisible_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);

/* Classes of ports, interfaces and addresses */
int bcm_field_qualify_ClassId_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_DstClassField_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                        uint32 *mask);
int bcm_field_qualify_DstClassL2_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_DstClassL3_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_DstIp6Class_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                      bcm_class_t *mask);
int bcm_field_qualify_DstIp6ClassLower_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                           bcm_class_t *mask);
int bcm_field_qualify_DstIp6ClassMsbNibble_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                               bcm_class_t *mask);
int bcm_field_qualify_DstIp6ClassUpper_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                           bcm_class_t *mask);
int bcm_field_qualify_DstIpClass_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                     bcm_class_t *mask);
int bcm_field_qualify_DstIpClassLower_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                          bcm_class_t *mask);
int bcm_field_qualify_DstIpClassMsbNibble_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                              bcm_class_t *mask);
int bcm_field_qualify_DstIpClassUpper_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                          bcm_class_t *mask);
int bcm_field_qualify_EgressClass_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                      uint16 *mask);
int bcm_field_qualify_EgressClassL2Gre_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                           uint16 *mask);
int bcm_field_qualify_EgressClassL3Interface_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                                 uint16 *mask);
int bcm_field_qualify_EgressClassTrill_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                           uint16 *mask);
int bcm_field_qualify_EgressClassVxlan_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                           uint16 *mask);
int bcm_field_qualify_EgressClassWlan_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                          uint16 *mask);
int bcm_field_qualify_EtherTypeClass_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                         bcm_class_t *mask);
int bcm_field_qualify_IncomingIpIfClass_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                            uint32 *mask);
int bcm_field_qualify_IngressClassField_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                            uint32 *mask);
int bcm_field_qualify_IngressInterfaceClassPort_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                                    uint32 *mask);
int bcm_field_qualify_IngressInterfaceClassVPort_get(int unit, bcm_field_entry_t entry,
                                                     uint32 *data, uint32 *mask);
int bcm_field_qualify_InterfaceClassL2_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                           uint32 *mask);
int bcm_field_qualify_InterfaceClassL3_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                           uint32 *mask);
int bcm_field_qualify_InterfaceClassPort_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                             uint32 *mask);
int bcm_field_qualify_InterfaceClassProcessingPort_get(int unit, bcm_field_entry_t entry,
                                                       uint64 *data, uint64 *mask);
int bcm_field_qualify_InterfaceClassVPort_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                              uint32 *mask);
int bcm_field_qualify_InterfaceIngressKeySelectClassPort_get(int unit, bcm_field_entry_t entry,
                                                             uint32 *data, uint32 *mask);
int bcm_field_qualify_InterfaceLookupClassPort_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                                   uint32 *mask);
int bcm_field_qualify_IpProtocolClass_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                          bcm_class_t *mask);
int bcm_field_qualify_L4DstPortClass_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                         bcm_class_t *mask);
int bcm_field_qualify_L4SrcPortClass_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                         bcm_class_t *mask);
int bcm_field_qualify_SrcClassField_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                        uint32 *mask);
int bcm_field_qualify_SrcClassL2_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_SrcClassL3_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_SrcIp6Class_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                      bcm_class_t *mask);
int bcm_field_qualify_SrcIp6ClassLower_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                           bcm_class_t *mask);
int bcm_field_qualify_SrcIp6ClassMsbNibble_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                               bcm_class_t *mask);
int bcm_field_qualify_SrcIp6ClassUpper_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                           bcm_class_t *mask);
int bcm_field_qualify_SrcIpClass_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                     bcm_class_t *mask);
int bcm_field_qualify_SrcIpClassLower_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                          bcm_class_t *mask);
int bcm_field_qualify_SrcIpClassMsbNibble_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                              bcm_class_t *mask);
int bcm_field_qualify_SrcIpClassUpper_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                          bcm_class_t *mask);
int bcm_field_qualify_TcpClassOne_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                      bcm_class_t *mask);
int bcm_field_qualify_TcpClassZero_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                       bcm_class_t *mask);
int bcm_field_qualify_TosClassOne_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                      bcm_class_t *mask);
int bcm_field_qualify_TosClassZero_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                       bcm_class_t *mask);
int bcm_field_qualify_TtlClassOne_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                      bcm_class_t *mask);
int bcm_field_qualify_TtlClassZero_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                       bcm_class_t *mask);

/* CAPWAP and wireless */
int bcm_field_qualify_CapwapHdrRid_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_CapwapHdrType_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_CapwapPayloadDip_get(int unit, bcm_field_entry_t entry, bcm_ip_t *data,
                                           bcm_ip_t *mask);
int bcm_field_qualify_CapwapPayloadDip6_get(int unit, bcm_field_entry_t entry, bcm_ip6_t *data,
                                            bcm_ip6_t *mask);
int bcm_field_qualify_CapwapPayloadDstMac_get(int unit, bcm_field_entry_t entry, bcm_mac_t *data,
                                              bcm_mac_t *mask);
int bcm_field_qualify_CapwapPayloadEtherType_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                                 uint16 *mask);
int bcm_field_qualify_CapwapPayloadInnerVlan_get(int unit, bcm_field_entry_t entry,
                                                 bcm_vlan_t *data, bcm_vlan_t *mask);
int bcm_field_qualify_CapwapPayloadInnerVlanCfi_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                    uint8 *mask);
int bcm_field_qualify_CapwapPayloadInnerVlanId_get(int unit, bcm_field_entry_t entry,
                                                   bcm_vlan_t *data, bcm_vlan_t *mask);
int bcm_field_qualify_CapwapPayloadInnerVlanPri_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                    uint8 *mask);
int bcm_field_qualify_CapwapPayloadIpProtocol_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                  uint8 *mask);
int bcm_field_qualify_CapwapPayloadL3HdrParseable_get(int unit, bcm_field_entry_t entry,
                                                      uint8 *data, uint8 *mask);
int bcm_field_qualify_CapwapPayloadL4DstPort_get(int unit, bcm_field_entry_t entry,
                                                 bcm_l4_port_t *data, bcm_l4_port_t *mask);
int bcm_field_qualify_CapwapPayloadL4HdrParseable_get(int unit, bcm_field_entry_t entry,
                                                      uint8 *data, uint8 *mask);
int bcm_field_qualify_CapwapPayloadL4SrcPort_get(int unit, bcm_field_entry_t entry,
                                                 bcm_l4_port_t *data, bcm_l4_port_t *mask);
int bcm_field_qualify_CapwapPayloadOuterVlan_get(int unit, bcm_field_entry_t entry,
                                                 bcm_vlan_t *data, bcm_vlan_t *mask);
int bcm_field_qualify_CapwapPayloadOuterVlanCfi_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                    uint8 *mask);
int bcm_field_qualify_CapwapPayloadOuterVlanId_get(int unit, bcm_field_entry_t entry,
                                                   bcm_vlan_t *data, bcm_vlan_t *mask);
int bcm_field_qualify_CapwapPayloadOuterVlanPri_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                    uint8 *mask);
int bcm_field_qualify_CapwapPayloadSip_get(int unit, bcm_field_entry_t entry, bcm_ip_t *data,
                                           bcm_ip_t *mask);
int bcm_field_qualify_CapwapPayloadSip6_get(int unit, bcm_field_entry_t entry, bcm_ip6_t *data,
                                            bcm_ip6_t *mask);
int bcm_field_qualify_CapwapPayloadSOF_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                           uint8 *mask);
int bcm_field_qualify_CapwapPayloadSrcMac_get(int unit, bcm_field_entry_t entry, bcm_mac_t *data,
                                              bcm_mac_t *mask);
int bcm_field_qualify_CapwapPayloadTos_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                           uint8 *mask);
int bcm_field_qualify_CapwapPayloadVlanFormat_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                  uint8 *mask);
int bcm_field_qualify_DstWlanGport_get(int unit, bcm_field_entry_t entry,
                                       bcm_gport_t *wlan_port_id);
int bcm_field_qualify_DstWlanGports_get(int unit, bcm_field_entry_t entry,
                                        bcm_gport_t *wlan_port_id, bcm_gport_t *wlan_port_mask);
int bcm_field_qualify_SrcWlanGport_get(int unit, bcm_field_entry_t entry,
                                       bcm_gport_t *wlan_port_id);
int bcm_field_qualify_SrcWlanGports_get(int unit, bcm_field_entry_t entry,
                                        bcm_gport_t *wlan_port_id, bcm_gport_t *wlan_port_mask);

/* Fibre Channel */
int bcm_field_qualify_FcoeOxID_get(int unit, bcm_field_entry_t entry, uint16 *data, uint16 *mask);
int bcm_field_qualify_FcoeOxIDClass_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                        bcm_class_t *mask);
int bcm_field_qualify_FcoeRxID_get(int unit, bcm_field_entry_t entry, uint16 *data, uint16 *mask);
int bcm_field_qualify_FcoeRxIDClass_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                        bcm_class_t *mask);
int bcm_field_qualify_FcoeSOF_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_FcoeVersionIsZero_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                            uint8 *mask);
int bcm_field_qualify_FibreChanCSCtl_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                         uint8 *mask);
int bcm_field_qualify_FibreChanDFCtl_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                         uint8 *mask);
int bcm_field_qualify_FibreChanDstId_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                         uint32 *mask);
int bcm_field_qualify_FibreChanDstIdClass_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                              bcm_class_t *mask);
int bcm_field_qualify_FibreChanDstIdClassLower_get(int unit, bcm_field_entry_t entry,
                                                   bcm_class_t *data, bcm_class_t *mask);
int bcm_field_qualify_FibreChanDstIdClassMsbNibble_get(int unit, bcm_field_entry_t entry,
                                                       bcm_class_t *data, bcm_class_t *mask);
int bcm_field_qualify_FibreChanDstIdClassUpper_get(int unit, bcm_field_entry_t entry,
                                                   bcm_class_t *data, bcm_class_t *mask);
int bcm_field_qualify_FibreChanFCtl_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                        uint32 *mask);
int bcm_field_qualify_FibreChanInner_get(int unit, bcm_field_entry_t entry,
                                         bcm_field_FibreChan_t *fibre_chan_type);
int bcm_field_qualify_FibreChanOuter_get(int unit, bcm_field_entry_t entry,
                                         bcm_field_FibreChan_t *fibre_chan_type);
int bcm_field_qualify_FibreChanRCtl_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_FibreChanSrcBindCheck_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                uint8 *mask);
int bcm_field_qualify_FibreChanSrcFpmaCheck_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                uint8 *mask);
int bcm_field_qualify_FibreChanSrcId_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                         uint32 *mask);
int bcm_field_qualify_FibreChanSrcIdClass_get(int unit, bcm_field_entry_t entry, bcm_class_t *data,
                                              bcm_class_t *mask);
int bcm_field_qualify_FibreChanSrcIdClassLower_get(int unit, bcm_field_entry_t entry,
                                                   bcm_class_t *data, bcm_class_t *mask);
int bcm_field_qualify_FibreChanSrcIdClassMsbNibble_get(int unit, bcm_field_entry_t entry,
                                                       bcm_class_t *data, bcm_class_t *mask);
int bcm_field_qualify_FibreChanSrcIdClassUpper_get(int unit, bcm_field_entry_t entry,
                                                   bcm_class_t *data, bcm_class_t *mask);
int bcm_field_qualify_FibreChanType_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_FibreChanVFTFabricId_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                               uint16 *mask);
int bcm_field_qualify_FibreChanVFTHopCount_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                               uint8 *mask);
int bcm_field_qualify_FibreChanVFTPri_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                          uint8 *mask);
int bcm_field_qualify_FibreChanVFTValid_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                            uint8 *mask);
int bcm_field_qualify_FibreChanVFTVersion_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                              uint8 *mask);
int bcm_field_qualify_FibreChanVFTVsanId_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                             uint16 *mask);
int bcm_field_qualify_FibreChanVFTVsanPri_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                              uint8 *mask);
int bcm_field_qualify_FibreChanZoneCheck_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                             uint8 *mask);

/* MPLS OAM and OAM */
int bcm_field_qualify_BfdYourDiscriminator_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                               uint32 *mask);
int bcm_field_qualify_DownMepSatTerminated_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                               uint8 *mask);
int bcm_field_qualify_EthernetOamClassVlanTranslateKeyFirst_get(int unit, bcm_field_entry_t entry,
                                                                uint8 *data, uint8 *mask);
int bcm_field_qualify_EthernetOamClassVlanTranslateKeySecond_get(int unit, bcm_field_entry_t entry,
                                                                 uint8 *data, uint8 *mask);
int bcm_field_qualify_EthernetOamClassVpn_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                              uint8 *mask);
int bcm_field_qualify_EthernetOamDstClassL2_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                uint8 *mask);
int bcm_field_qualify_EthernetOamHeaderBits0_31_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                                    uint32 *mask);
int bcm_field_qualify_EthernetOamHeaderBits32_63_get(int unit, bcm_field_entry_t entry,
                                                     uint32 *data, uint32 *mask);
int bcm_field_qualify_EthernetOamInterfaceClassMim_get(int unit, bcm_field_entry_t entry,
                                                       uint8 *data, uint8 *mask);
int bcm_field_qualify_EthernetOamInterfaceClassMpls_get(int unit, bcm_field_entry_t entry,
                                                        uint8 *data, uint8 *mask);
int bcm_field_qualify_EthernetOamInterfaceClassNiv_get(int unit, bcm_field_entry_t entry,
                                                       uint8 *data, uint8 *mask);
int bcm_field_qualify_EthernetOamInterfaceClassPort_get(int unit, bcm_field_entry_t entry,
                                                        uint8 *data, uint8 *mask);
int bcm_field_qualify_EthernetOamInterfaceClassVlan_get(int unit, bcm_field_entry_t entry,
                                                        uint8 *data, uint8 *mask);
int bcm_field_qualify_EthernetOamInterfaceClassVxlan_get(int unit, bcm_field_entry_t entry,
                                                         uint8 *data, uint8 *mask);
int bcm_field_qualify_EthernetOamTxPktUPMEP_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                uint8 *mask);
int bcm_field_qualify_IngressDropEthernetOamControl_get(int unit, bcm_field_entry_t entry,
                                                        bcm_field_oam_drop_mep_type_t *mep_type);
int bcm_field_qualify_IngressDropEthernetOamData_get(int unit, bcm_field_entry_t entry,
                                                     bcm_field_oam_drop_mep_type_t *mep_type);
int bcm_field_qualify_IngressDropMplsOamControl_get(int unit, bcm_field_entry_t entry,
                                                    bcm_field_oam_drop_mep_type_t *mep_type);
int bcm_field_qualify_IngressDropMplsOamData_get(int unit, bcm_field_entry_t entry,
                                                 bcm_field_oam_drop_mep_type_t *mep_type);
int bcm_field_qualify_MplsOamACH_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_MplsOamClassMplsSwitchLabel_get(int unit, bcm_field_entry_t entry,
                                                      uint16 *data, uint16 *mask);
int bcm_field_qualify_MplsOamControlPktType_get(int unit, bcm_field_entry_t entry,
                                                bcm_field_MplsOam_Control_pktType_t *data);
int bcm_field_qualify_MplsOamGALExposed_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                            uint8 *mask);
int bcm_field_qualify_MplsOamGALLabelOnly_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                              uint8 *mask);
int bcm_field_qualify_MplsOamHeaderBits0_31_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                                uint32 *mask);
int bcm_field_qualify_MplsOamHeaderBits32_63_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                                 uint32 *mask);
int bcm_field_qualify_MplsOamUpperLabelDataDrop_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                    uint8 *mask);
int bcm_field_qualify_OamDownMEPLoopbackPacket_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                   uint8 *mask);
int bcm_field_qualify_OamEgressClass2Vxlt_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                              uint32 *mask);
int bcm_field_qualify_OamEgressClassPort_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                             uint16 *mask);
int bcm_field_qualify_OamEgressClassSrcMac_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                               uint32 *mask);
int bcm_field_qualify_OamEgressClassVxlt_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                             uint16 *mask);
int bcm_field_qualify_OamEgressEtherType_get(int unit, bcm_field_entry_t entry, uint16 *data);
int bcm_field_qualify_OamEgressMulticastMacHit_get(int unit, bcm_field_entry_t entry, uint8 *data);
int bcm_field_qualify_OamEgressPortUnicastDstMacHit_get(int unit, bcm_field_entry_t entry,
                                                        uint8 *data, uint8 *mask);
int bcm_field_qualify_OamEgressVxltFirstHit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                uint8 *mask);
int bcm_field_qualify_OamEgressVxltSecondHit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                 uint8 *mask);
int bcm_field_qualify_OamHeaderBits0_31_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                            uint32 *mask);
int bcm_field_qualify_OamHeaderBits32_63_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                             uint32 *mask);
int bcm_field_qualify_OamHeaderOffset_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                          uint32 *mask);
int bcm_field_qualify_OamInLifId_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_OamInLifIdValid_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                          uint8 *mask);
int bcm_field_qualify_OamMdl_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_OamMepId_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_OamMeterDisable_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                          uint8 *mask);
int bcm_field_qualify_OamStampOffset_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                         uint32 *mask);
int bcm_field_qualify_OamSubtype_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_OamTsSystemHeader_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                            uint64 *mask);
int bcm_field_qualify_OamType_get(int unit, bcm_field_entry_t entry,
                                  bcm_field_oam_type_t *oam_type);
int bcm_field_qualify_OamUpMep_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);

/* MPLS */
int bcm_field_qualify_DstMplsGport_get(int unit, bcm_field_entry_t entry,
                                       bcm_gport_t *mpls_port_id);
int bcm_field_qualify_DstMplsGports_get(int unit, bcm_field_entry_t entry,
                                        bcm_gport_t *mpls_port_id, bcm_gport_t *mpls_port_mask);
int bcm_field_qualify_GenericAssociatedChannelLabelValid_get(int unit, bcm_field_entry_t entry,
                                                             uint8 *data, uint8 *mask);
int bcm_field_qualify_HiGigMplsPkt_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_MplsBos_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_MplsControlWord_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                          uint32 *mask);
int bcm_field_qualify_MplsControlWordValid_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                               uint8 *mask);
int bcm_field_qualify_MplsForwardingLabel_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                              uint32 *mask);
int bcm_field_qualify_MplsForwardingLabelAction_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                    uint8 *mask);
int bcm_field_qualify_MplsForwardingLabelAction32_get(int unit, bcm_field_entry_t entry,
                                                      uint32 *data, uint32 *mask);
int bcm_field_qualify_MplsForwardingLabelBos_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                 uint8 *mask);
int bcm_field_qualify_MplsForwardingLabelExp_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                 uint8 *mask);
int bcm_field_qualify_MplsForwardingLabelId_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                                uint32 *mask);
int bcm_field_qualify_MplsForwardingLabelPayload_get(int unit, bcm_field_entry_t entry,
                                                     uint64 *data, uint64 *mask);
int bcm_field_qualify_MplsForwardingLabelTtl_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                 uint8 *mask);
int bcm_field_qualify_MplsLabel1_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_MplsLabel1Bos_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_MplsLabel1Exp_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_MplsLabel1Hit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_MplsLabel1Id_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                       uint32 *mask);
int bcm_field_qualify_MplsLabel1Ttl_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_MplsLabel2_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_MplsLabel2Bos_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_MplsLabel2Exp_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_MplsLabel2Hit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_MplsLabel2Id_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                       uint32 *mask);
int bcm_field_qualify_MplsLabel2Ttl_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_MplsLabel3_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_MplsLabel3Bos_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_MplsLabel3Exp_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_MplsLabel3Id_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                       uint32 *mask);
int bcm_field_qualify_MplsLabel3Ttl_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_MplsOuterLabelPop_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                            uint8 *mask);
int bcm_field_qualify_MplsStationHitTunnelUnterminated_get(int unit, bcm_field_entry_t entry,
                                                           uint8 *data, uint8 *mask);
int bcm_field_qualify_MplsTerminated_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                         uint8 *mask);
int bcm_field_qualify_MplsTerminatedHit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                            uint8 *mask);
int bcm_field_qualify_MplsTerminatedValue_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                              uint64 *mask);
int bcm_field_qualify_RouterAlertLabelValid_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                uint8 *mask);
int bcm_field_qualify_SrcMplsGport_get(int unit, bcm_field_entry_t entry,
                                       bcm_gport_t *mpls_port_id);
int bcm_field_qualify_SrcMplsGports_get(int unit, bcm_field_entry_t entry,
                                        bcm_gport_t *mpls_port_id, bcm_gport_t *mpls_port_mask);

/* MAC-in-MAC */
int bcm_field_qualify_DstMimGport_get(int unit, bcm_field_entry_t entry, bcm_gport_t *mim_port_id);
int bcm_field_qualify_DstMimGports_get(int unit, bcm_field_entry_t entry, bcm_gport_t *mim_port_id,
                                       bcm_gport_t *mim_port_mask);
int bcm_field_qualify_ISid_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_ITag_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_MimlDstMac_get(int unit, bcm_field_entry_t entry, bcm_mac_t *data,
                                     bcm_mac_t *mask);
int bcm_field_qualify_MimlInnerTag_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                       uint32 *mask);
int bcm_field_qualify_MimlPkt_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_MimlSrcMac_get(int unit, bcm_field_entry_t entry, bcm_mac_t *data,
                                     bcm_mac_t *mask);
int bcm_field_qualify_MimlVlan_get(int unit, bcm_field_entry_t entry, bcm_vlan_t *data,
                                   bcm_vlan_t *mask);
int bcm_field_qualify_MimlVlanCfi_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_MimlVlanId_get(int unit, bcm_field_entry_t entry, bcm_vlan_t *data,
                                     bcm_vlan_t *mask);
int bcm_field_qualify_MimlVlanPri_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_MimSrcGportHit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                         uint8 *mask);
int bcm_field_qualify_MimVfiHit_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_MimVlanCfi_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_MimVlanPri_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_SrcMimGport_get(int unit, bcm_field_entry_t entry, bcm_gport_t *mim_port_id);
int bcm_field_qualify_SrcMimGports_get(int unit, bcm_field_entry_t entry, bcm_gport_t *mim_port_id,
                                       bcm_gport_t *mim_port_mask);

/* TRILL */
int bcm_field_qualify_TrillEgressRbridge_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                             uint32 *mask);
int bcm_field_qualify_TrillEgressRbridgeHit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                uint8 *mask);
int bcm_field_qualify_TrillHopCount_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_TrillIngressRbridge_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                              uint16 *mask);
int bcm_field_qualify_TrillIngressRbridgeHit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                 uint8 *mask);
int bcm_field_qualify_TrillIVersion_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_TrillMultiDestination_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                uint8 *mask);
int bcm_field_qualify_TrillOpLength_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_TrillPayload_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                       uint64 *mask);

/* VXLAN, L2 GRE and NIV */
int bcm_field_qualify_CnTag_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_DstNivGport_get(int unit, bcm_field_entry_t entry, bcm_gport_t *niv_port_id);
int bcm_field_qualify_DstNivGports_get(int unit, bcm_field_entry_t entry, bcm_gport_t *niv_port_id,
                                       bcm_gport_t *niv_port_mask);
int bcm_field_qualify_DstVxlanGport_get(int unit, bcm_field_entry_t entry,
                                        bcm_gport_t *vxlan_port_id);
int bcm_field_qualify_DstVxlanGports_get(int unit, bcm_field_entry_t entry,
                                         bcm_gport_t *vxlan_port_id, bcm_gport_t *vxlan_port_mask);
int bcm_field_qualify_ECid_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_ETag_get(int unit, bcm_field_entry_t entry, uint64 *data, uint64 *mask);
int bcm_field_qualify_IngressECid_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                      uint32 *mask);
int bcm_field_qualify_L2GreFlowId_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_L2GreProtocolType_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                            uint16 *mask);
int bcm_field_qualify_L2GreSrcIpHit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_L2GreVfiHit_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_L2GreVsid_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_SrcNivGport_get(int unit, bcm_field_entry_t entry, bcm_gport_t *niv_port_id);
int bcm_field_qualify_SrcNivGports_get(int unit, bcm_field_entry_t entry, bcm_gport_t *niv_port_id,
                                       bcm_gport_t *niv_port_mask);
int bcm_field_qualify_SrcVxlanGport_get(int unit, bcm_field_entry_t entry,
                                        bcm_gport_t *vxlan_port_id);
int bcm_field_qualify_SrcVxlanGports_get(int unit, bcm_field_entry_t entry,
                                         bcm_gport_t *vxlan_port_id, bcm_gport_t *vxlan_port_mask);
int bcm_field_qualify_VnTag_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_VxlanClassValid_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                          uint8 *mask);
int bcm_field_qualify_VxlanFlags_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_VxlanHeaderBits56_63_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                               uint8 *mask);
int bcm_field_qualify_VxlanHeaderBits8_31_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                              uint32 *mask);
int bcm_field_qualify_VxlanNetworkId_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                         uint32 *mask);
int bcm_field_qualify_VxlanPacket_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_VxlanPayloadVlanFormat_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                 uint8 *mask);
int bcm_field_qualify_VxlanVnidVlanTranslateHit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                    uint8 *mask);

/* HiGig headers */
int bcm_field_qualify_HiGig_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_HiGigColor_get(int unit, bcm_field_entry_t entry, uint8 *color);
int bcm_field_qualify_HiGigDoNotFlags_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                          uint8 *mask);
int bcm_field_qualify_HiGigDstGport_get(int unit, bcm_field_entry_t entry, bcm_gport_t *port_id,
                                        bcm_gport_t *port_mask);
int bcm_field_qualify_HiGigDstModPortGport_get(int unit, bcm_field_entry_t entry,
                                               bcm_gport_t *port_id, bcm_gport_t *port_mask);
int bcm_field_qualify_HiGigDstModuleGport_get(int unit, bcm_field_entry_t entry,
                                              bcm_gport_t *port_id, bcm_gport_t *port_mask);
int bcm_field_qualify_HiGigDstMulticast_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                            uint8 *mask);
int bcm_field_qualify_HiGigDstMulticastGroupId_get(int unit, bcm_field_entry_t entry,
                                                   bcm_multicast_t *group, bcm_multicast_t *mask);
int bcm_field_qualify_HiGigDstPortGport_get(int unit, bcm_field_entry_t entry, bcm_gport_t *port_id,
                                            bcm_gport_t *port_mask);
int bcm_field_qualify_HiGigDstTrunk_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_HiGigDstTrunkId_get(int unit, bcm_field_entry_t entry, bcm_trunk_t *data,
                                          bcm_trunk_t *mask);
int bcm_field_qualify_HiGigDstType_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_HiGigEgressMcast_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                           uint8 *mask);
int bcm_field_qualify_HiGigExtendedHeaderPresent_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                     uint8 *mask);
int bcm_field_qualify_HiGigForwardingType_get(int unit, bcm_field_entry_t entry,
                                              bcm_field_HiGigForwardingType_t *type);
int bcm_field_qualify_HiGigIngressClassificationTag_get(int unit, bcm_field_entry_t entry,
                                                        uint16 *data, uint16 *mask);
int bcm_field_qualify_HiGigIngressL3SwitchPkt_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                  uint8 *mask);
int bcm_field_qualify_HiGigIngressTagged_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                             uint8 *mask);
int bcm_field_qualify_HiGigIntCongestionNotification_get(int unit, bcm_field_entry_t entry,
                                                         uint8 *data, uint8 *mask);
int bcm_field_qualify_HiGigLabel_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_HiGigLabelType_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                         uint8 *mask);
int bcm_field_qualify_HiGigLoadBalanceID_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                             uint8 *mask);
int bcm_field_qualify_HiGigMirrorOrSwitchPkt_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                 uint8 *mask);
int bcm_field_qualify_HiGigMirrorToVp_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                          uint8 *mask);
int bcm_field_qualify_HiGigMulticastIndex_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                              uint16 *mask);
int bcm_field_qualify_HiGigOffloadEngineClassificationTag_get(int unit, bcm_field_entry_t entry,
                                                              uint16 *data, uint16 *mask);
int bcm_field_qualify_HiGigOffloadEngineDeferredFlags_get(int unit, bcm_field_entry_t entry,
                                                          uint8 *data, uint8 *mask);
int bcm_field_qualify_HiGigOffloadEngineDscpNew_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                    uint8 *mask);
int bcm_field_qualify_HiGigOffloadEnginePktPriNew_get(int unit, bcm_field_entry_t entry,
                                                      uint8 *data, uint8 *mask);
int bcm_field_qualify_HiGigOffloadEnginePreserveDot1p_get(int unit, bcm_field_entry_t entry,
                                                          uint8 *data, uint8 *mask);
int bcm_field_qualify_HiGigOffloadEnginePreserveDscp_get(int unit, bcm_field_entry_t entry,
                                                         uint8 *data, uint8 *mask);
int bcm_field_qualify_HiGigOffloadEngineSrcType_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                    uint8 *mask);
int bcm_field_qualify_HiGigOffloadEngineVxltStatus_get(int unit, bcm_field_entry_t entry,
                                                       uint8 *data, uint8 *mask);
int bcm_field_qualify_HiGigPortFilteringMode_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                 uint8 *mask);
int bcm_field_qualify_HiGigPreserveFlags_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                             uint8 *mask);
int bcm_field_qualify_HiGigProtectionSwitchingStatus_get(int unit, bcm_field_entry_t entry,
                                                         uint8 *data, uint8 *mask);
int bcm_field_qualify_HiGigProxy_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_HiGigReplicationId_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                             uint32 *mask);
int bcm_field_qualify_HiGigSrcGport_get(int unit, bcm_field_entry_t entry, bcm_gport_t *port_id,
                                        bcm_gport_t *port_mask);
int bcm_field_qualify_HiGigSrcModPortGport_get(int unit, bcm_field_entry_t entry,
                                               bcm_gport_t *port_id, bcm_gport_t *port_mask);
int bcm_field_qualify_HiGigSrcModuleGport_get(int unit, bcm_field_entry_t entry,
                                              bcm_gport_t *port_id, bcm_gport_t *port_mask);
int bcm_field_qualify_HiGigSrcPortGport_get(int unit, bcm_field_entry_t entry, bcm_gport_t *port_id,
                                            bcm_gport_t *port_mask);
int bcm_field_qualify_HiGigSrcTrunk_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_HiGigSrcType_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_HiGigTrafficClass_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                            uint8 *mask);
int bcm_field_qualify_HiGigVlan_get(int unit, bcm_field_entry_t entry, uint16 *data, uint16 *mask);
int bcm_field_qualify_HiGigVni_get(int unit, bcm_field_entry_t entry, uint16 *data, uint16 *mask);
int bcm_field_qualify_HiGigVpLagFailoverPacket_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                   uint8 *mask);
int bcm_field_qualify_HiGigVpPreserveFlags_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                               uint8 *mask);
int bcm_field_qualify_HiGigVpReplicationId_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                               uint32 *mask);

/* Seamless redundancy */
int bcm_field_qualify_DstPortSRLanId_get(int unit, bcm_field_entry_t entry, uint8 *net_id);
int bcm_field_qualify_DstPortSRMode_get(int unit, bcm_field_entry_t entry,
                                        bcm_field_sr_port_mode_t *type, uint8 *mask);
int bcm_field_qualify_DstPortSRNetId_get(int unit, bcm_field_entry_t entry, uint8 *net_id,
                                         uint8 *mask);
int bcm_field_qualify_DstPortSRRoleInterlink_get(int unit, bcm_field_entry_t entry, uint8 *data);
int bcm_field_qualify_DstPortSRType_get(int unit, bcm_field_entry_t entry,
                                        bcm_field_port_sr_type_t *type);
int bcm_field_qualify_L2DestSRNodeType_get(int unit, bcm_field_entry_t entry,
                                           bcm_field_sr_node_type_t *type);
int bcm_field_qualify_SrcPortSRLanId_get(int unit, bcm_field_entry_t entry, uint8 *net_id);
int bcm_field_qualify_SrcPortSRMode_get(int unit, bcm_field_entry_t entry,
                                        bcm_field_sr_port_mode_t *type, uint8 *mask);
int bcm_field_qualify_SrcPortSRNetId_get(int unit, bcm_field_entry_t entry, uint8 *net_id,
                                         uint8 *mask);
int bcm_field_qualify_SrcPortSRRoleInterlink_get(int unit, bcm_field_entry_t entry, uint8 *data);
int bcm_field_qualify_SrcPortSRType_get(int unit, bcm_field_entry_t entry,
                                        bcm_field_port_sr_type_t *type);
int bcm_field_qualify_SRDuplicate_get(int unit, bcm_field_entry_t entry, uint8 *data);
int bcm_field_qualify_SRError_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_SRFlowId_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_SRLanId_get(int unit, bcm_field_entry_t entry, int *lan_id);
int bcm_field_qualify_SRNetId_get(int unit, bcm_field_entry_t entry, int *net_id);
int bcm_field_qualify_SRNetIdMatched_get(int unit, bcm_field_entry_t entry, uint8 *data);
int bcm_field_qualify_SRSrcNodeIsSan_get(int unit, bcm_field_entry_t entry, uint8 *data);
int bcm_field_qualify_SRSupervisionType_get(int unit, bcm_field_entry_t entry,
                                            bcm_field_sr_supervision_type_t *type);
int bcm_field_qualify_SRTagType_get(int unit, bcm_field_entry_t entry,
                                    bcm_field_sr_tag_type_t *type);
int bcm_field_qualify_VlanSREnable_get(int unit, bcm_field_entry_t entry, uint8 *data);
int bcm_field_qualify_VlanSRLanId_get(int unit, bcm_field_entry_t entry, uint8 *lan_id);

/* RoCE and time-sensitive networking */
int bcm_field_qualify_PreemptablePacket_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                            uint8 *mask);
int bcm_field_qualify_RoceBthDstQueuePair_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                              uint32 *mask);
int bcm_field_qualify_RoceBthFlags_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_RoceBthOpcode_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_RoceBthPartitionKey_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                              uint16 *mask);
int bcm_field_qualify_RoceVer1Pkt_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_RoceVer2Pkt_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_TsnFlowId_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);

/* Tunnels */
int bcm_field_qualify_IpTunnelHit_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_IpTunnelValue_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                        uint64 *mask);
int bcm_field_qualify_TunnelId_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_TunnelPayloadDip_get(int unit, bcm_field_entry_t entry, bcm_ip_t *data,
                                           bcm_ip_t *mask);
int bcm_field_qualify_TunnelPayloadDip6_get(int unit, bcm_field_entry_t entry, bcm_ip6_t *data,
                                            bcm_ip6_t *mask);
int bcm_field_qualify_TunnelPayloadDstMac_get(int unit, bcm_field_entry_t entry, bcm_mac_t *data,
                                              bcm_mac_t *mask);
int bcm_field_qualify_TunnelPayloadEtherType_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                                 uint16 *mask);
int bcm_field_qualify_TunnelPayloadIpProtocol_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                  uint8 *mask);
int bcm_field_qualify_TunnelPayloadL4DstPort_get(int unit, bcm_field_entry_t entry,
                                                 bcm_l4_port_t *data, bcm_l4_port_t *mask);
int bcm_field_qualify_TunnelPayloadL4SrcPort_get(int unit, bcm_field_entry_t entry,
                                                 bcm_l4_port_t *data, bcm_l4_port_t *mask);
int bcm_field_qualify_TunnelPayloadOuterVlan_get(int unit, bcm_field_entry_t entry,
                                                 bcm_vlan_t *data, bcm_vlan_t *mask);
int bcm_field_qualify_TunnelPayloadOuterVlanCfi_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                    uint8 *mask);
int bcm_field_qualify_TunnelPayloadOuterVlanId_get(int unit, bcm_field_entry_t entry,
                                                   bcm_vlan_t *data, bcm_vlan_t *mask);
int bcm_field_qualify_TunnelPayloadOuterVlanPri_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                    uint8 *mask);
int bcm_field_qualify_TunnelPayloadSip_get(int unit, bcm_field_entry_t entry, bcm_ip_t *data,
                                           bcm_ip_t *mask);
int bcm_field_qualify_TunnelPayloadSip6_get(int unit, bcm_field_entry_t entry, bcm_ip6_t *data,
                                            bcm_ip6_t *mask);
int bcm_field_qualify_TunnelPayloadSrcMac_get(int unit, bcm_field_entry_t entry, bcm_mac_t *data,
                                              bcm_mac_t *mask);
int bcm_field_qualify_TunnelTerminated_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                           uint8 *mask);
int bcm_field_qualify_TunnelTerminatedHit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                              uint8 *mask);
int bcm_field_qualify_TunnelTerminatedValue_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                                uint64 *mask);
int bcm_field_qualify_TunnelType_get(int unit, bcm_field_entry_t entry,
                                     bcm_field_TunnelType_t *tunnel_type);

/* VLANs */
int bcm_field_qualify_DstVlanGport_get(int unit, bcm_field_entry_t entry,
                                       bcm_gport_t *vlan_port_id);
int bcm_field_qualify_DstVlanGports_get(int unit, bcm_field_entry_t entry,
                                        bcm_gport_t *vlan_port_id, bcm_gport_t *vlan_port_mask);
int bcm_field_qualify_ForwardHdrVlanId_get(int unit, bcm_field_entry_t entry, bcm_vlan_t *data,
                                           bcm_vlan_t *mask);
int bcm_field_qualify_ForwardingVlanId_get(int unit, bcm_field_entry_t entry, bcm_vlan_t *data,
                                           bcm_vlan_t *mask);
int bcm_field_qualify_ForwardingVlanValid_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                              uint8 *mask);
int bcm_field_qualify_InnerTpid_get(int unit, bcm_field_entry_t entry, uint16 *tpid);
int bcm_field_qualify_InnerVlan_get(int unit, bcm_field_entry_t entry, bcm_vlan_t *data,
                                    bcm_vlan_t *mask);
int bcm_field_qualify_InnerVlanActionRange_get(int unit, bcm_field_entry_t entry, bcm_vlan_t *data,
                                               bcm_vlan_t *mask);
int bcm_field_qualify_InnerVlanCfi_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_InnerVlanId_get(int unit, bcm_field_entry_t entry, bcm_vlan_t *data,
                                      bcm_vlan_t *mask);
int bcm_field_qualify_InnerVlanPri_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_LearnVlan_get(int unit, bcm_field_entry_t entry, bcm_vlan_t *data,
                                    bcm_vlan_t *mask);
int bcm_field_qualify_LlidValue_get(int unit, bcm_field_entry_t entry, uint16 *data, uint16 *mask);
int bcm_field_qualify_NativeVSwitch_get(int unit, bcm_field_entry_t entry, bcm_vlan_t *data,
                                        bcm_vlan_t *mask);
int bcm_field_qualify_NativeVSwitchValid_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                             uint8 *mask);
int bcm_field_qualify_OuterTpid_get(int unit, bcm_field_entry_t entry, uint16 *tpid);
int bcm_field_qualify_OuterVlan_get(int unit, bcm_field_entry_t entry, bcm_vlan_t *data,
                                    bcm_vlan_t *mask);
int bcm_field_qualify_OuterVlanActionRange_get(int unit, bcm_field_entry_t entry, bcm_vlan_t *data,
                                               bcm_vlan_t *mask);
int bcm_field_qualify_OuterVlanCfi_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_OuterVlanId_get(int unit, bcm_field_entry_t entry, bcm_vlan_t *data,
                                      bcm_vlan_t *mask);
int bcm_field_qualify_OuterVlanPri_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_OuterVlanPriCfi_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                          uint8 *mask);
int bcm_field_qualify_SrcVlanGport_get(int unit, bcm_field_entry_t entry,
                                       bcm_gport_t *vlan_port_id);
int bcm_field_qualify_SrcVlanGports_get(int unit, bcm_field_entry_t entry,
                                        bcm_gport_t *vlan_port_id, bcm_gport_t *vlan_port_mask);
int bcm_field_qualify_SubportPktTag_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                        uint16 *mask);
int bcm_field_qualify_TranslatedInnerVlan_get(int unit, bcm_field_entry_t entry, bcm_vlan_t *data,
                                              bcm_vlan_t *mask);
int bcm_field_qualify_TranslatedInnerVlanCfi_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                 uint8 *mask);
int bcm_field_qualify_TranslatedInnerVlanId_get(int unit, bcm_field_entry_t entry, bcm_vlan_t *data,
                                                bcm_vlan_t *mask);
int bcm_field_qualify_TranslatedInnerVlanPri_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                 uint8 *mask);
int bcm_field_qualify_TranslatedOuterVlan_get(int unit, bcm_field_entry_t entry, bcm_vlan_t *data,
                                              bcm_vlan_t *mask);
int bcm_field_qualify_TranslatedOuterVlanCfi_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                 uint8 *mask);
int bcm_field_qualify_TranslatedOuterVlanId_get(int unit, bcm_field_entry_t entry, bcm_vlan_t *data,
                                                bcm_vlan_t *mask);
int bcm_field_qualify_TranslatedOuterVlanPri_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                 uint8 *mask);
int bcm_field_qualify_TranslatedVlanFormat_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                               uint8 *mask);
int bcm_field_qualify_VlanAction_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_VlanFormat_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_VlanTranslationHit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                             uint8 *mask);
int bcm_field_qualify_VlanTranslationValue_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                               uint64 *mask);
int bcm_field_qualify_Vpn_get(int unit, bcm_field_entry_t entry, bcm_vpn_t *data, bcm_vpn_t *mask);

/* Layer 2 */
int bcm_field_qualify_DstL2MulticastGroup_get(int unit, bcm_field_entry_t entry,
                                              bcm_multicast_t *group, bcm_multicast_t *mask);
int bcm_field_qualify_DstMac_get(int unit, bcm_field_entry_t entry, bcm_mac_t *data,
                                 bcm_mac_t *mask);
int bcm_field_qualify_EtherType_get(int unit, bcm_field_entry_t entry, uint16 *data, uint16 *mask);
int bcm_field_qualify_ForwardHdrDstMac_get(int unit, bcm_field_entry_t entry, bcm_mac_t *data,
                                           bcm_mac_t *mask);
int bcm_field_qualify_ForwardHdrSrcMac_get(int unit, bcm_field_entry_t entry, bcm_mac_t *data,
                                           bcm_mac_t *mask);
int bcm_field_qualify_IngressStpState_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                          uint8 *mask);
int bcm_field_qualify_InnerDstMac_get(int unit, bcm_field_entry_t entry, bcm_mac_t *data,
                                      bcm_mac_t *mask);
int bcm_field_qualify_InnerEtherType_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                         uint16 *mask);
int bcm_field_qualify_InnerSrcMac_get(int unit, bcm_field_entry_t entry, bcm_mac_t *data,
                                      bcm_mac_t *mask);
int bcm_field_qualify_L2CacheHit_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_L2DestHit_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_L2DestValue_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                      uint64 *mask);
int bcm_field_qualify_L2DstMulticastHit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                            uint8 *mask);
int bcm_field_qualify_L2Format_get(int unit, bcm_field_entry_t entry, bcm_field_L2Format_t *type);
int bcm_field_qualify_L2Learn_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_L2SrcHit_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_L2SrcMulticastHit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                            uint8 *mask);
int bcm_field_qualify_L2SrcStatic_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_L2SrcValue_get(int unit, bcm_field_entry_t entry, uint64 *data, uint64 *mask);
int bcm_field_qualify_L2StationMove_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_LearnExtension_get(int unit, bcm_field_entry_t entry, uint8 *data);
int bcm_field_qualify_LearnInVPort_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                       uint32 *mask);
int bcm_field_qualify_LearnSrcMac_get(int unit, bcm_field_entry_t entry, bcm_mac_t *data,
                                      bcm_mac_t *mask);
int bcm_field_qualify_Llc_get(int unit, bcm_field_entry_t entry, bcm_field_llc_header_t *data,
                              bcm_field_llc_header_t *mask);
int bcm_field_qualify_MacAddrsNormalized_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                             uint8 *mask);
int bcm_field_qualify_MyStation2Hit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_MyStationHit_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_Snap_get(int unit, bcm_field_entry_t entry, bcm_field_snap_header_t *data,
                               bcm_field_snap_header_t *mask);
int bcm_field_qualify_SrcMac_get(int unit, bcm_field_entry_t entry, bcm_mac_t *data,
                                 bcm_mac_t *mask);
int bcm_field_qualify_StpState_get(int unit, bcm_field_entry_t entry, uint8 *data);

/* IPv6 and its extension headers */
int bcm_field_qualify_DstIp6_get(int unit, bcm_field_entry_t entry, bcm_ip6_t *data,
                                 bcm_ip6_t *mask);
int bcm_field_qualify_DstIp6High_get(int unit, bcm_field_entry_t entry, bcm_ip6_t *data,
                                     bcm_ip6_t *mask);
int bcm_field_qualify_DstIp6Low_get(int unit, bcm_field_entry_t entry, bcm_ip6_t *data,
                                    bcm_ip6_t *mask);
int bcm_field_qualify_ExtensionHeader2Type_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                               uint8 *mask);
int bcm_field_qualify_ExtensionHeaderSubCode_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                 uint8 *mask);
int bcm_field_qualify_ExtensionHeaderType_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                              uint8 *mask);
int bcm_field_qualify_InnerDstIp6_get(int unit, bcm_field_entry_t entry, bcm_ip6_t *data,
                                      bcm_ip6_t *mask);
int bcm_field_qualify_InnerDstIp6High_get(int unit, bcm_field_entry_t entry, bcm_ip6_t *data,
                                          bcm_ip6_t *mask);
int bcm_field_qualify_InnerIp6FlowLabel_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                            uint32 *mask);
int bcm_field_qualify_InnerIp6HopLimit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                           uint8 *mask);
int bcm_field_qualify_InnerIp6NextHeader_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                             uint8 *mask);
int bcm_field_qualify_InnerSrcIp6_get(int unit, bcm_field_entry_t entry, bcm_ip6_t *data,
                                      bcm_ip6_t *mask);
int bcm_field_qualify_InnerSrcIp6High_get(int unit, bcm_field_entry_t entry, bcm_ip6_t *data,
                                          bcm_ip6_t *mask);
int bcm_field_qualify_Ip6FlowLabel_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                       uint32 *mask);
int bcm_field_qualify_Ip6HopLimit_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_Ip6NextHeader_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_Ip6TrafficClass_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                          uint8 *mask);
int bcm_field_qualify_SrcIp6_get(int unit, bcm_field_entry_t entry, bcm_ip6_t *data,
                                 bcm_ip6_t *mask);
int bcm_field_qualify_SrcIp6High_get(int unit, bcm_field_entry_t entry, bcm_ip6_t *data,
                                     bcm_ip6_t *mask);
int bcm_field_qualify_SrcIp6Low_get(int unit, bcm_field_entry_t entry, bcm_ip6_t *data,
                                    bcm_ip6_t *mask);

/* Layer 4 */
int bcm_field_qualify_AppType_get(int unit, bcm_field_entry_t entry, bcm_field_AppType_t *type);
int bcm_field_qualify_BigIcmpCheck_get(int unit, bcm_field_entry_t entry, uint32 *flag,
                                       uint32 *size);
int bcm_field_qualify_Dhcp_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_DosAttack_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_IcmpError_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_IcmpTypeCode_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                       uint16 *mask);
int bcm_field_qualify_IgmpTypeMaxRespTime_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                              uint16 *mask);
int bcm_field_qualify_InnerL4DstPort_get(int unit, bcm_field_entry_t entry, bcm_l4_port_t *data,
                                         bcm_l4_port_t *mask);
int bcm_field_qualify_InnerL4SrcPort_get(int unit, bcm_field_entry_t entry, bcm_l4_port_t *data,
                                         bcm_l4_port_t *mask);
int bcm_field_qualify_L4DstPort_get(int unit, bcm_field_entry_t entry, bcm_l4_port_t *data,
                                    bcm_l4_port_t *mask);
int bcm_field_qualify_L4PortRangeCheck_get(int unit, bcm_field_entry_t entry, int max_count,
                                           bcm_field_range_t *range, int *invert, int *count);
int bcm_field_qualify_L4Ports_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_L4SrcPort_get(int unit, bcm_field_entry_t entry, bcm_l4_port_t *data,
                                    bcm_l4_port_t *mask);
int bcm_field_qualify_PacketLengthRangeCheck_get(int unit, bcm_field_entry_t entry, int max_count,
                                                 bcm_field_range_t *range, int *invert, int *count);
int bcm_field_qualify_RangeCheck_get(int unit, bcm_field_entry_t entry, int max_count,
                                     bcm_field_range_t *range, int *invert, int *count);
int bcm_field_qualify_Rtag7AHashLower_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                          uint16 *mask);
int bcm_field_qualify_Rtag7AHashUpper_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                          uint16 *mask);
int bcm_field_qualify_Rtag7BHashLower_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                          uint16 *mask);
int bcm_field_qualify_Rtag7BHashUpper_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                          uint16 *mask);
int bcm_field_qualify_TcpControl_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_TcpHeaderSize_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);

/* Layer 3 */
int bcm_field_qualify_ArpOpcode_get(int unit, bcm_field_entry_t entry, bcm_field_ArpOpcode_t *data);
int bcm_field_qualify_ArpSenderIp4_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                       uint32 *mask);
int bcm_field_qualify_ArpTargetIp4_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                       uint32 *mask);
int bcm_field_qualify_DSCP_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_DstIp_get(int unit, bcm_field_entry_t entry, bcm_ip_t *data, bcm_ip_t *mask);
int bcm_field_qualify_DstIpLocal_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_DstL3Egress_get(int unit, bcm_field_entry_t entry, bcm_if_t *if_id);
int bcm_field_qualify_DstL3EgressNextHops_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                              uint32 *mask);
int bcm_field_qualify_DstL3MulticastGroup_get(int unit, bcm_field_entry_t entry,
                                              bcm_multicast_t *group, bcm_multicast_t *mask);
int bcm_field_qualify_DstMulticastGroup_get(int unit, bcm_field_entry_t entry,
                                            bcm_multicast_t *group);
int bcm_field_qualify_DstMulticastGroups_get(int unit, bcm_field_entry_t entry,
                                             bcm_multicast_t *group, bcm_multicast_t *mask);
int bcm_field_qualify_DstMultipath_get(int unit, bcm_field_entry_t entry, bcm_if_t *mpintf);
int bcm_field_qualify_DstMultipathOverlay_get(int unit, bcm_field_entry_t entry, bcm_if_t *data,
                                              bcm_if_t *mask);
int bcm_field_qualify_DstMultipathUnderlay_get(int unit, bcm_field_entry_t entry, bcm_if_t *data,
                                               bcm_if_t *mask);
int bcm_field_qualify_EcnValue_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_ForwardCopy_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_ForwardingType_get(int unit, bcm_field_entry_t entry,
                                         bcm_field_ForwardingType_t *type);
int bcm_field_qualify_GeneratedTtl_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                       uint32 *mask);
int bcm_field_qualify_InnerDSCP_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_InnerDstIp_get(int unit, bcm_field_entry_t entry, bcm_ip_t *data,
                                     bcm_ip_t *mask);
int bcm_field_qualify_InnerIpFrag_get(int unit, bcm_field_entry_t entry,
                                      bcm_field_IpFrag_t *frag_info);
int bcm_field_qualify_InnerIpProtocol_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                          uint8 *mask);
int bcm_field_qualify_InnerIpProtocolCommon_get(int unit, bcm_field_entry_t entry,
                                                bcm_field_IpProtocolCommon_t *protocol);
int bcm_field_qualify_InnerIpType_get(int unit, bcm_field_entry_t entry, bcm_field_IpType_t *type);
int bcm_field_qualify_InnerSrcIp_get(int unit, bcm_field_entry_t entry, bcm_ip_t *data,
                                     bcm_ip_t *mask);
int bcm_field_qualify_InnerTos_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_InnerTtl_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_IpAddrsNormalized_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                            uint8 *mask);
int bcm_field_qualify_IpAuth_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_IpFlags_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_IpFrag_get(int unit, bcm_field_entry_t entry, bcm_field_IpFrag_t *frag_info);
int bcm_field_qualify_IpFragNonOrFirst_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                           uint8 *mask);
int bcm_field_qualify_IpInfo_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_IpmcHit_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_IpmcStarGroupHit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                           uint8 *mask);
int bcm_field_qualify_IpmcStarGroupValue_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                             uint64 *mask);
int bcm_field_qualify_IpmcValue_get(int unit, bcm_field_entry_t entry, uint64 *data, uint64 *mask);
int bcm_field_qualify_IpMulticastCompatible_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                                uint32 *mask);
int bcm_field_qualify_IpProtocol_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_IpProtocolCommon_get(int unit, bcm_field_entry_t entry,
                                           bcm_field_IpProtocolCommon_t *protocol);
int bcm_field_qualify_IpType_get(int unit, bcm_field_entry_t entry, bcm_field_IpType_t *type);
int bcm_field_qualify_L3DestHostHit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_L3DestRouteHit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                         uint8 *mask);
int bcm_field_qualify_L3DestRouteValue_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                           uint64 *mask);
int bcm_field_qualify_L3Ingress_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_L3Routable_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_L3SrcBind_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_L3SrcHostHit_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_L3SrcRouteHit_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_L3SrcRouteValue_get(int unit, bcm_field_entry_t entry, uint64 *data,
                                          uint64 *mask);
int bcm_field_qualify_NatDstRealmId_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_NatNeeded_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_NatSrcRealmId_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_SrcIp_get(int unit, bcm_field_entry_t entry, bcm_ip_t *data, bcm_ip_t *mask);
int bcm_field_qualify_Tos_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_TosLower4Bits_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                        uint8 *mask);
int bcm_field_qualify_Ttl_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_Vrf_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);

/* Colour, priority and flow */
int bcm_field_qualify_Color_get(int unit, bcm_field_entry_t entry, uint8 *color);
int bcm_field_qualify_FlowId_get(int unit, bcm_field_entry_t entry, uint16 *data, uint16 *mask);
int bcm_field_qualify_IntCongestionNotification_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                                    uint8 *mask);
int bcm_field_qualify_IntPriority_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_PolicerIntPrio_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                         uint8 *mask);

/* Packets, copies and results */
int bcm_field_qualify_Drop_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_DstHiGig_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_Fhei_get(int unit, bcm_field_entry_t entry, uint64 *data, uint64 *mask);
int bcm_field_qualify_FheiSize_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_MHOpcode_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_MirrorCopy_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_MirrorEgressDisabled_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                               uint8 *mask);
int bcm_field_qualify_PacketLength_get(int unit, bcm_field_entry_t entry, uint16 *data,
                                       uint16 *mask);
int bcm_field_qualify_PacketRes_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_PacketSize_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_PacketTerminatedBytes_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                                uint32 *mask);
int bcm_field_qualify_RecoverableDrop_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                          uint8 *mask);
int bcm_field_qualify_RepCopy_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_ReplicantAny_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);
int bcm_field_qualify_ReplicantFirst_get(int unit, bcm_field_entry_t entry, uint8 *data,
                                         uint8 *mask);
int bcm_field_qualify_RxTrapCode_get(int unit, bcm_field_entry_t entry, bcm_rx_trap_t *data);
int bcm_field_qualify_RxTrapCode32_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                       uint32 *mask);
int bcm_field_qualify_RxTrapCodeForSnoop_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                             uint32 *mask);
int bcm_field_qualify_RxTrapData_get(int unit, bcm_field_entry_t entry, uint32 *data, uint32 *mask);
int bcm_field_qualify_RxTrapStrength_get(int unit, bcm_field_entry_t entry, uint32 *data,
                                         uint32 *mask);
int bcm_field_qualify_SnoopCopy_get(int unit, bcm_field_entry_t entry, uint8 *data, uint8 *mask);

OMBRA_END_DECLS
