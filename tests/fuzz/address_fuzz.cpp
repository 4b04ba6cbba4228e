// Any bytes as addresses, global ports, ranges and blocks.
#include "fuzz.h"
#include "standin/text/address_text.h"
#include "standin/text/block_text.h"

using namespace standin;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    std::string_view text = fuzz::text_of(data, size);
    if (std::optional<std::uint32_t> address = read_ip(text)) {
        fuzz::must(read_ip(ip_text(*address)) == address, "address");
        fuzz::must(read_ip(ip_mask_text(*address, ~*address)) == address, "address with mask");
    }
    if (std::optional<MacBytes> mac = read_mac(text))
        fuzz::must(read_mac(mac_text(mac->data())) == mac, "MAC address");
    if (std::optional<std::int32_t> gport = read_gport(text, {}))
        fuzz::must(read_gport(gport_text(*gport), {}) == gport, "global port");
    for (Range legal :
         {Range{0, 100}, Range{-5, 5}, Range{-0x7fffffff - 1, 0x7fffffff}, Range{9, 3}}) {
        std::optional<Range> range = read_range(text, legal);
        fuzz::must(!range || (legal.low <= range->low && range->low <= range->high &&
                              range->high <= legal.high),
                   "a range is legal");
    }
    std::optional<BlockRange> blocks = read_block_range(text);
    fuzz::must(!blocks || blocks->type == kAnyBlock || !block_type_name(blocks->type).empty(),
               "a block has a name");
    return 0;
}
