// The SDK's global variables, but for the control records.
#include "sdk/variables.h"

#include <cstring>
#include <new>

#include "standin/model/l2_table.h"

namespace {

// A text that whoever replaces it may free with `delete[]`. Null without memory: a throw while the
// library is loaded would end the process.
char *new_text(const char *text) {
    char *const made = new (std::nothrow) char[std::strlen(text) + 1];
    return made == nullptr ? nullptr : std::strcpy(made, text);
}

char no_name[] = "";
char black_hole[] = "blackhole";
char static_entry[] = "static";
char trunk[] = "trunk";

char generic[] = "GENERIC";
char of_port[] = "PORT";
char of_queue[] = "QUEUE";
char of_processor[] = "CPU";

}  // namespace

extern "C" {

// By bit; a bit without a meaning here has an empty name.
char *bcm_l2_flags_str[standin::kL2FlagTexts] = {no_name, no_name,      black_hole, no_name,
                                                 no_name, static_entry, no_name,    trunk};
int bcm_l2_flags_count = standin::kL2FlagTexts;

int bcm_rx_token_check_us = 10'000;
bcm_trans_ptr_t bcm_trans_ptr;
int bcm_rx_pktlist_count = 0;

int sh_rcload_depth = 0;
int sh_set_rcload = 1;
int sh_set_rcerror = 1;
int sh_set_lperror = 1;
int sh_set_iferror = 0;
int sh_set_rctest = 0;
int sh_set_more_lines = -1;
int sh_set_report_time = 0;
int sh_set_report_status = 0;

// The same in every build, so that two builds of one source are alike.
char *_build_release = new_text("stand-in");
char *_build_user = new_text("nobody");
char *_build_host = new_text("localhost");
char *_build_date = new_text("Thu Jan 1 00:00:00 1970");
char *_build_datestamp = new_text("19700101");
char *_build_tree = new_text("standin");

soc_phy_info_t *phy_port_info[SOC_MAX_NUM_DEVICES];
soc_port_t *phy_rmap[SOC_MAX_NUM_DEVICES];
int (*soc_phy_cb_xlate_port_func)(int unit, int *port);

char *soc_regtypenames[] = {generic, of_port, of_queue, of_processor, nullptr};
int soc_regtype_gran[] = {1, 1, 1, 1, 0};

}  // extern "C"
