// A trial of calls: they meet a copy of a chip, and nobody sees what they did.
//
// While a rehearsal lives, the calls of its thread on its unit work on a state of its own. They
// tell nobody, since it has no handlers, and no fault meets them: the same calls are to be made in
// earnest afterwards. What belongs to the device and not to its chip is not copied.
#pragma once
#include "standin/base/fault_pause.h"
#include "standin/model/state.h"

namespace standin {

class Rehearsal {
  public:
    // REQUIRES: the state is nobody else's; no rehearsal lives on this thread.
    Rehearsal(int unit, SavedState state);
    ~Rehearsal();
    Rehearsal(const Rehearsal &) = delete;
    Rehearsal &operator=(const Rehearsal &) = delete;

    // Of this thread: the chip that takes the place of the unit's, or null.
    static Switch *chip_of(int unit);
    static bool is_on();

  private:
    int unit_;
    SavedState state_;
    FaultPause pause_;
};

}  // namespace standin
