// What calls the handlers of each registration. One line is: row, function, chapter, whether it can
// be called, cause.
#include "standin/model/registrations.h"

namespace standin {
namespace {

using Is = Registration;

constexpr RegistrationRow kRows[] = {
    {Is::kLinkscan, "bcm_linkscan_register", "bcm_linkscan_", true,
     "the link of a scanned port came or went"},
    {Is::kLinkscanPort, "bcm_linkscan_port_register", "bcm_linkscan_", true,
     "a scan asks it for the link of its port"},
    {Is::kL2Address, "bcm_l2_addr_register", "bcm_l2_", true,
     "a MAC address was added, deleted, learned or aged out"},
    {Is::kSwitchEvent, "bcm_switch_event_register", "", true,
     "standin_switch_event, an interrupt of the chip"},
    {Is::kAttach, "bcm_attach_register", "", true, "the unit was started or stopped"},
    {Is::kHeartbeat, "bcm_time_heartbeat_register", "bcm_time_", true,
     "time that passes, in an interface whose heartbeat is on"},
    {Is::kOam, "bcm_oam_event_register", "bcm_oam_", true, "standin_oam_event"},
    {Is::kOamPerformance, "bcm_oam_performance_event_register", "bcm_oam_", true,
     "standin_oam_performance_event"},
    {Is::kOamMeasurement, "bcm_oam_pm_event_register", "bcm_oam_", true, "standin_oam_pm_event"},
    {Is::kCosq, "bcm_cosq_event_register", "bcm_cosq_", true, "standin_cosq_event"},
    {Is::kPfcDeadlock, "bcm_cosq_pfc_deadlock_recovery_event_register", "bcm_cosq_", true,
     "standin_pfc_deadlock"},
    {Is::kMediumStatus, "bcm_port_medium_status_register", "", true,
     "soc_phy_medium_status_notify"},
    {Is::kPhyReset, "bcm_port_phy_reset_register", "", true, "bcm_port_phy_reset, soc_phy_reset"},
    {Is::kSocMediumStatus, "soc_phy_medium_status_register", "", true,
     "soc_phy_medium_status_notify"},
    {Is::kSocPhyReset, "soc_phy_reset_register", "", true, "bcm_port_phy_reset, soc_phy_reset"},
    {Is::kRx, "bcm_rx_register", "bcm_rx_", true, "a packet for the processor"},
    {Is::kRxQueue, "bcm_rx_queue_register", "bcm_rx_", true,
     "a packet for a queue of the processor"},
    {Is::kRxSchedule, "bcm_rx_sched_register", "bcm_rx_", false,
     "a packet for the processor goes to its handlers at once, so no queue waits to be chosen"},
    {Is::kCustom, "bcm_custom_register", "", true, "bcm_custom_port_set, bcm_custom_port_get"},
    {Is::kModuleMap, "bcm_stk_modmap_register", "bcm_stk_", true, "bcm_stk_modmap_map"},
    {Is::kStackUpdate, "bcm_stk_update_callback_register", "bcm_stk_", true,
     "the module number or the stacking ports of the unit changed"},
    {Is::kRegisterSnoop, "soc_reg_snoop_register", "", true, "an access to its register"},
    {Is::kRegisterAccess, "soc_reg_access_func_register", "", true,
     "an access to any register or memory"},
    {Is::kSubportErrors, "bcm_subport_linkphy_rx_error_register", "bcm_subport_", false,
     "no port has a link PHY that receives fragments"},
    {Is::kIpfix, "bcm_ipfix_register", "bcm_ipfix_", false, "no flow is recorded"},
    {Is::kFabricRedundancy, "bcm_fabric_control_redundancy_register", "bcm_fabric_", false,
     "the switch has no second fabric element to fall back on"},
    {Is::kStableStorage, "bcm_switch_stable_register", "", false,
     "there is no warm boot, so nothing is stored for one"},
};

}  // namespace

std::span<const RegistrationRow> registrations() { return kRows; }

}  // namespace standin
