// Items of port modes and abilities, and their words in both directions.
#include "standin/phy/mode_text.h"

#include <algorithm>
#include <array>

#include "sdk/constants.h"
#include "standin/base/number_text.h"
#include "standin/base/scan.h"

namespace standin {
namespace {

enum class Sort : std::uint8_t { kFull, kHalf, kPause, kLoopback, kMedium, kOther };

struct Mode {
    std::string_view name;
    std::string_view brief;
    Sort sort;
};

// By bit.
constexpr std::array kModes = {
    Mode{"10hd", "10h", Sort::kHalf},       Mode{"10fd", "10f", Sort::kFull},
    Mode{"100hd", "100h", Sort::kHalf},     Mode{"100fd", "100f", Sort::kFull},
    Mode{"1000hd", "1gh", Sort::kHalf},     Mode{"1000fd", "1gf", Sort::kFull},
    Mode{"2500fd", "2500f", Sort::kFull},   Mode{"5000fd", "5gf", Sort::kFull},
    Mode{"400000fd", "400gf", Sort::kFull}, Mode{"10000fd", "10gf", Sort::kFull},
    Mode{"20000fd", "20gf", Sort::kFull},   Mode{"25000fd", "25gf", Sort::kFull},
    Mode{"40000fd", "40gf", Sort::kFull},   Mode{"50000fd", "50gf", Sort::kFull},
    Mode{"100000fd", "100gf", Sort::kFull}, Mode{"200000fd", "200gf", Sort::kFull},
    Mode{"pause_tx", "ptx", Sort::kPause},  Mode{"pause_rx", "prx", Sort::kPause},
    Mode{"an", "an", Sort::kOther},         Mode{"lb_mac", "lbm", Sort::kLoopback},
    Mode{"lb_phy", "lbp", Sort::kLoopback}, Mode{"fec", "fec", Sort::kOther},
    Mode{"eee", "eee", Sort::kOther},       Mode{"copper", "cu", Sort::kMedium},
    Mode{"fiber", "fi", Sort::kMedium},     Mode{"backplane", "bp", Sort::kMedium},
};

constexpr std::array kLongReach = {
    Mode{"10M_1PAIR", {}, Sort::kOther},  Mode{"10M_2PAIR", {}, Sort::kOther},
    Mode{"20M_1PAIR", {}, Sort::kOther},  Mode{"20M_2PAIR", {}, Sort::kOther},
    Mode{"25M_1PAIR", {}, Sort::kOther},  Mode{"25M_2PAIR", {}, Sort::kOther},
    Mode{"33M_1PAIR", {}, Sort::kOther},  Mode{"33M_2PAIR", {}, Sort::kOther},
    Mode{"50M_1PAIR", {}, Sort::kOther},  Mode{"50M_2PAIR", {}, Sort::kOther},
    Mode{"100M_1PAIR", {}, Sort::kOther}, Mode{"100M_2PAIR", {}, Sort::kOther},
    Mode{"100M_4PAIR", {}, Sort::kOther}, Mode{"PAUSE_RX", {}, Sort::kOther},
    Mode{"PAUSE_TX", {}, Sort::kOther},
};
static_assert(SOC_PHY_CONTROL_LONGREACH_ABILITY_100M_4PAIR == 1 << 12);
static_assert(SOC_PHY_CONTROL_LONGREACH_ABILITY_PAUSE_TX == 1 << (kLongReach.size() - 1));

using ModeList = std::span<const Mode>;

std::optional<std::uint32_t> bit_of(ModeList modes, std::string_view item) {
    for (std::size_t at = 0; at < modes.size(); ++at)
        if (same_word(item, modes[at].name) || same_word(item, modes[at].brief)) return 1U << at;
    return std::nullopt;
}

std::optional<std::uint32_t> read_bits(ModeList modes, std::string_view text) {
    std::uint32_t bits = 0;
    bool any = false;
    for (std::string_view item : split(text, ", \t")) {
        if (item.empty()) continue;
        any = true;
        std::optional<std::uint32_t> more = same_word(item, "none") ? 0U : bit_of(modes, item);
        if (!more) more = read_u32(item);
        if (!more) return std::nullopt;
        bits |= *more;
    }
    return any ? std::optional(bits) : std::nullopt;
}

std::string bits_text(ModeList modes, std::uint32_t bits, bool brief) {
    std::string text;
    for (std::size_t at = 0; at < modes.size(); ++at) {
        if ((bits >> at & 1U) == 0) continue;
        text += text.empty() ? "" : ",";
        text += brief ? modes[at].brief : modes[at].name;
        bits &= ~(1U << at);
    }
    if (bits != 0) text += (text.empty() ? "" : ",") + text_of("0x%x", bits);
    return text.empty() ? "none" : text;
}

}  // namespace

std::optional<std::uint32_t> read_port_mode(std::string_view text) {
    return read_bits(kModes, text);
}

std::string port_mode_text(std::uint32_t mode, bool abbreviated) {
    return bits_text(kModes, mode, abbreviated);
}

void ability_words(std::uint32_t mode, std::span<std::uint32_t> words) {
    std::fill(words.begin(), words.end(), 0U);
    for (std::size_t at = 0; at < kModes.size(); ++at)
        words[static_cast<std::size_t>(kModes[at].sort)] |= mode & 1U << at;
    words[static_cast<std::size_t>(Sort::kOther)] |= mode & ~((1U << kModes.size()) - 1U);
}

std::optional<std::int32_t> read_long_reach(std::string_view text) {
    constexpr std::string_view kPrefix = "SOC_PHY_CONTROL_LONGREACH_ABILITY_";
    if (starts_with_word(text, kPrefix)) text.remove_prefix(kPrefix.size());
    std::optional<std::uint32_t> bits = read_bits(kLongReach, text);
    if (!bits) return std::nullopt;
    return static_cast<std::int32_t>(*bits);
}

std::string long_reach_text(std::int32_t ability) {
    return bits_text(kLongReach, static_cast<std::uint32_t>(ability), false);
}

}  // namespace standin
