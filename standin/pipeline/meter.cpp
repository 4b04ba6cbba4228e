// Filling and emptying token buckets, and what colour that makes a frame.
#include "standin/pipeline/meter.h"

#include <algorithm>

#include "sdk/constants.h"

namespace standin {
namespace {

constexpr std::uint64_t kSecond = 1'000'000;

// Tokens that came in `time` microseconds, without overflow for any rate below 2^44 a second.
std::uint64_t filled(std::uint64_t time, std::uint64_t rate) {
    return time / kSecond * rate + time % kSecond * rate / kSecond;
}

struct Rate {
    std::uint64_t rate;
    std::uint64_t depth;
};

Rate committed_of(const bcm_policer_config_t &config) {
    return {std::uint64_t{config.ckbits_sec} * 1000 + config.cbits_sec_lower,
            std::uint64_t{config.ckbits_burst} * 1000 + config.cbits_burst_lower};
}

Rate peak_of(const bcm_policer_config_t &config) {
    return {std::uint64_t{config.pkbits_sec} * 1000 + config.pbits_sec_lower,
            std::uint64_t{config.pkbits_burst} * 1000 + config.pbits_burst_lower};
}

// Whether the bucket has `bits`; takes them unless `dry`.
bool take(Bucket &bucket, std::uint64_t now, Rate rate, std::uint64_t bits, bool dry) {
    if (bucket.level(now, rate.rate, rate.depth) < bits) return false;
    if (!dry) bucket.take(now, rate.rate, rate.depth, bits);
    return true;
}

}  // namespace

std::uint64_t Bucket::level(std::uint64_t now, std::uint64_t rate, std::uint64_t depth) const {
    const std::uint64_t come = filled(now - since_, rate);
    return depth - std::min(depth, missing_ - std::min(missing_, come));
}

void Bucket::take(std::uint64_t now, std::uint64_t rate, std::uint64_t depth,
                  std::uint64_t amount) {
    const std::uint64_t come = filled(now - since_, rate);
    // The time behind the last whole token counts for the next one.
    if (come >= missing_)
        since_ = now;
    else if (rate > 0)
        since_ += come / rate * kSecond + (come % rate * kSecond + rate - 1) / rate;
    since_ = std::min(since_, now);
    missing_ = std::min(depth, missing_ - std::min(missing_, come)) + amount;
}

int Meter::color(const bcm_policer_config_t &config, std::uint64_t now, std::uint64_t bytes,
                 bool dry) {
    const std::uint64_t bits = bytes * 8;
    const Rate low = committed_of(config);
    const Rate high = peak_of(config);
    switch (config.mode) {
        case bcmPolicerModeGreen:
        case bcmPolicerModePassThrough:
            return bcmColorGreen;
        case bcmPolicerModeSrTcm:
        case bcmPolicerModeSrTcmModified:  // the second bucket fills from the same rate
            if (take(committed, now, low, bits, dry)) return bcmColorGreen;
            return take(excess, now, {low.rate, high.depth}, bits, dry) ? bcmColorYellow
                                                                        : bcmColorRed;
        case bcmPolicerModeTrTcm:
        case bcmPolicerModeTrTcmDs:
            if (!take(excess, now, high, bits, true)) return bcmColorRed;
            take(excess, now, high, bits, dry);
            return take(committed, now, low, bits, dry) ? bcmColorGreen : bcmColorYellow;
        case bcmPolicerModePeak:
            return take(excess, now, high, bits, dry) ? bcmColorGreen : bcmColorRed;
        default:  // a committed rate alone
            return take(committed, now, low, bits, dry) ? bcmColorGreen : bcmColorRed;
    }
}

}  // namespace standin
