// What calls the handlers of each registration. One line is: row, function, chapter, whether it can
// be called, cause.
#include "standin/model/registrations.h"

namespace standin {
namespace {

using enum Registration;

constexpr RegistrationRow kRows[] = {
    {kLinkscan, "bcm_linkscan_register", "bcm_linkscan_", true,
     "the link of a scanned port came or went"},
    {kLinkscanPort, "bcm_linkscan_port_register", "bcm_linkscan_", true,
     "a scan asks it for the link of its port"},
    {kL2Address, "bcm_l2_addr_register", "bcm_l2_", true,
     "a MAC address was added, deleted, learned or aged out"},
    {kSwitchEvent, "bcm_switch_event_register", "", true,
     "standin_switch_event, an interrupt of the chip"},
    {kAttach, "bcm_attach_register", "", true, "the unit was started or stopped"},
    {kHeartbeat, "bcm_time_heartbeat_register", "bcm_time_", true,
     "standin_time_pass past a beat of an interface whose heartbeat is on"},
    {kOam, "bcm_oam_event_register", "bcm_oam_", true, "standin_oam_event"},
    {kOamPerformance, "bcm_oam_performance_event_register", "bcm_oam_", true,
     "standin_oam_performance_event"},
    {kOamMeasurement, "bcm_oam_pm_event_register", "bcm_oam_", true, "standin_oam_pm_event"},
    {kCosq, "bcm_cosq_event_register", "bcm_cosq_", true, "standin_cosq_event"},
    {kPfcDeadlock, "bcm_cosq_pfc_deadlock_recovery_event_register", "bcm_cosq_", true,
     "standin_pfc_deadlock"},
    {kMediumStatus, "bcm_port_medium_status_register", "", true, "soc_phy_medium_status_notify"},
    {kPhyReset, "bcm_port_phy_reset_register", "", true, "bcm_port_phy_reset, soc_phy_reset"},
    {kSocMediumStatus, "soc_phy_medium_status_register", "", true, "soc_phy_medium_status_notify"},
    {kSocPhyReset, "soc_phy_reset_register", "", true, "bcm_port_phy_reset, soc_phy_reset"},
    {kRx, "bcm_rx_register", "bcm_rx_", true, "a packet for the processor"},
    {kRxQueue, "bcm_rx_queue_register", "bcm_rx_", true, "a packet for a queue of the processor"},
    {kRxSchedule, "bcm_rx_sched_register", "bcm_rx_", true,
     "the choice of the queue that is served next"},
    {kCustom, "bcm_custom_register", "", true, "bcm_custom_port_set, bcm_custom_port_get"},
    {kModuleMap, "bcm_stk_modmap_register", "bcm_stk_", true, "bcm_stk_modmap_map"},
    {kStackUpdate, "bcm_stk_update_callback_register", "bcm_stk_", true,
     "the module number or the stacking ports of the unit changed"},
    {kRegisterSnoop, "soc_reg_snoop_register", "", true, "an access to its register"},
    {kRegisterAccess, "soc_reg_access_func_register", "", true,
     "an access to any register or memory"},
    {kSubportErrors, "bcm_subport_linkphy_rx_error_register", "bcm_subport_", false,
     "no port has a link PHY that receives fragments"},
    {kIpfix, "bcm_ipfix_register", "bcm_ipfix_", false, "no flow is recorded"},
    {kFabricRedundancy, "bcm_fabric_control_redundancy_register", "bcm_fabric_", false,
     "the switch has no second fabric element to fall back on"},
    {kStableStorage, "bcm_switch_stable_register", "", false,
     "there is no warm boot, so nothing is stored for one"},
};

}  // namespace

std::span<const RegistrationRow> registrations() { return kRows; }

}  // namespace standin
