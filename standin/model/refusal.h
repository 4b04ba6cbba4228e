// Why a call was refused: a sentence beside its status, in the log and for whoever asks.
//
//     bcm_trunk_destroy(0): BUSY: trunk 3 is held by mirror destination 2, rule 14 and 7 more
//     bcm_l2_addr_add(0): PORT: field port is 999, unit 0 has 0 to 64
#pragma once
#include <string>
#include <string_view>

#include "native/values.h"

namespace standin {

struct Switch;

// One call of the API, from its name to its status. Calls do not nest.
class CallRecord {
  public:
    CallRecord(const char *function, int unit);

    // Ends the call: a negative status is a refusal, which is kept and logged. Gives it back.
    int close(int status) const;

  private:
    const char *function_;
    int unit_;
};

// Gives back `status` and keeps why the running call of this thread has it.
int refused(int status, std::string why);
int refused_port(std::string_view field, int port);
int refused_ports(const bcm_pbmp_t &ports);  // the first of them that is none

// The last refusal on this thread as a sentence; empty before the first, and once forgotten.
std::string last_refusal();
void forget_refusal();

// After its `_detach` or `_cleanup` a chapter answers BCM_E_INIT until its `_init`.
bool is_stopped(const Switch &chip, const char *function);
// Notes that `function` stopped a chapter or started it again, if it did.
void note_chapter(Switch &chip, const char *function);

}  // namespace standin
