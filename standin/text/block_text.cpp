// Names of block types, and ranges of copies read and written.
#include "standin/text/block_text.h"

#include "standin/base/scan.h"

namespace standin {
namespace {

constexpr std::array<std::string_view, 28> kBlocks = {
    "CGM", "CLMAC", "CLP",  "CRPS", "ECI",  "EDB",  "EGQ", "EPNI", "FDR", "FMAC",
    "IDR", "IHB",   "IHP",  "IPS",  "IPST", "IPT",  "IQM", "IQMT", "IRR", "MMU",
    "NBI", "NBIH",  "NBIL", "OAMP", "OLP",  "PORT", "SCH", "TAR"};

// Takes the name of a block off the front of `text`: the longest that fits, since IPS and IPST
// begin alike.
int take_block(std::string_view &text) {
    std::size_t end = 0;
    while (end < text.size() && is_alpha(text[end])) ++end;
    for (std::size_t at = 0; at < kBlocks.size(); ++at) {
        if (!same_word(kBlocks[at], text.substr(0, end))) continue;
        text.remove_prefix(end);
        return static_cast<int>(at);
    }
    return kAnyBlock;
}

}  // namespace

std::optional<BlockRange> read_block_range(std::string_view text) {
    text = trim(text);
    std::string_view rest = text;
    int type = take_block(rest);
    if (type != kAnyBlock && rest.empty()) return BlockRange{type, kBlockCopies};
    std::string_view low;
    std::string_view high;
    if (type != kAnyBlock && cut(rest, '-', low, high)) {
        std::string_view second = high;
        if (take_block(second) == type) high = second;
        if (trim(high).empty()) return std::nullopt;
        std::optional<Range> copies = read_range(low, high, kBlockCopies);
        return copies ? std::optional(BlockRange{type, *copies}) : std::nullopt;
    }
    std::optional<Range> copies = read_range(rest, kBlockCopies);
    return copies ? std::optional(BlockRange{type, *copies}) : std::nullopt;
}

std::string_view block_type_name(int type) {
    bool known = type >= 0 && static_cast<std::size_t>(type) < kBlocks.size();
    return known ? kBlocks[static_cast<std::size_t>(type)] : std::string_view();
}

bool block_type_in(int type, const int *list) {
    if (type == kAnyBlock || list == nullptr) return true;
    for (; *list >= 0; ++list)
        if (*list == type) return true;
    return false;
}

}  // namespace standin
