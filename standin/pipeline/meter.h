// Token buckets: the colours of a policer, and the rates of the receiver.
#pragma once
#include <cstdint>

#include "sdk/bcm/policer_types.h"

namespace standin {

// Fills at `rate` a second up to `depth`; full at the start. Whole numbers only, so that a result
// does not depend on when it was asked for.
class Bucket {
  public:
    // What is in it at `now` (microseconds, never going back).
    std::uint64_t level(std::uint64_t now, std::uint64_t rate, std::uint64_t depth) const;
    // Takes `amount` out. REQUIRES: it is there.
    void take(std::uint64_t now, std::uint64_t rate, std::uint64_t depth, std::uint64_t amount);

  private:
    std::uint64_t missing_ = 0;  // of a full bucket, when last asked
    std::uint64_t since_ = 0;    // then; moves by whole tokens only
};

// The colours of RFC 2697, RFC 2698 and of a single rate. Sizes are counted in bits.
struct Meter {
    Bucket committed;
    Bucket excess;

    // bcmColorGreen, bcmColorYellow or bcmColorRed. Takes nothing out when `dry`.
    int color(const bcm_policer_config_t &config, std::uint64_t now, std::uint64_t bytes, bool dry);
};

}  // namespace standin
