// The chip that stands in for a unit's, by thread.
#include "standin/model/rehearsal.h"

#include <utility>

#include "standin/model/switch.h"

namespace standin {
namespace {

struct Stage {
    int unit = -1;
    Switch *chip = nullptr;
};
thread_local Stage stage;

}  // namespace

Rehearsal::Rehearsal(int unit, SavedState state) : unit_(unit), state_(std::move(state)) {
    state_->unit = unit_;
    stage = {unit_, state_.get()};
}

Rehearsal::~Rehearsal() { stage = {}; }

Switch *Rehearsal::chip_of(int unit) { return stage.unit == unit ? stage.chip : nullptr; }

bool Rehearsal::is_on() { return stage.chip != nullptr; }

}  // namespace standin
