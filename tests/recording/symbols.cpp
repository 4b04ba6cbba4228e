// What the module takes from the SDK beside the functions of rows: the data objects, and the
// functions that it calls by itself.

#include <cstring>

#include "native/symbols.h"
#include "sdk/variables.h"
#include "tests/recording/record.h"

namespace {

char text_one[] = "one";
char text_two[] = "two";

}  // namespace

soc_control_t *soc_control[SOC_MAX_NUM_DEVICES];

char *bcm_l2_flags_str[] = {text_one, text_two};
int bcm_l2_flags_count = 2;

int bcm_rx_token_check_us;
bcm_trans_ptr_t bcm_trans_ptr;
int bcm_rx_pktlist_count;

int sh_rcload_depth;
int sh_set_rcload;
int sh_set_rcerror;
int sh_set_lperror;
int sh_set_iferror;
int sh_set_rctest;
int sh_set_more_lines;
int sh_set_report_time;
int sh_set_report_status;

char *_build_release;
char *_build_user;
char *_build_host;
char *_build_date;
char *_build_datestamp;
char *_build_tree;

soc_phy_info_t *phy_port_info[SOC_MAX_NUM_DEVICES];
soc_port_t *phy_rmap[SOC_MAX_NUM_DEVICES];
int (*soc_phy_cb_xlate_port_func)(int unit, int *port);

char *soc_regtypenames[] = {text_two, text_one};
int soc_regtype_gran[] = {4, 8};

void SOC_PPC_LAG_MEMBER_clear(SOC_PPC_LAG_MEMBER *member) {
    std::memset(member, 0, sizeof *member);
}

// Recorded with the member itself, which lives no longer than the call.

int soc_ppd_lag_member_add(int unit, uint32 lag_ndx, SOC_PPC_LAG_MEMBER *member, int *success) {
    using recorder::given;
    return static_cast<int>(
        recorder::record("soc_ppd_lag_member_add", sizeof(int),
                         {given(unit), given(lag_ndx), given(*member), given(success)}));
}

int soc_ppd_lag_member_remove(int unit, uint32 lag_ndx, SOC_PPC_LAG_MEMBER *member) {
    using recorder::given;
    return static_cast<int>(recorder::record("soc_ppd_lag_member_remove", sizeof(int),
                                             {given(unit), given(lag_ndx), given(*member)}));
}
