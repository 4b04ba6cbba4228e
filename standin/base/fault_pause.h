// For calls that are made on trial.
#pragma once

namespace standin {

// While one lives, no fault meets the calls of its thread, and none is counted down. They nest.
class FaultPause {
  public:
    FaultPause();
    ~FaultPause();
    FaultPause(const FaultPause &) = delete;
    FaultPause &operator=(const FaultPause &) = delete;
};

}  // namespace standin
