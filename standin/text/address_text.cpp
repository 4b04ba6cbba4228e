// Parsers and formatters of addresses, global ports and ranges.
#include "standin/text/address_text.h"

#include <bit>

#include "layout/sdk_words.h"
#include "standin/base/number_text.h"
#include "standin/base/scan.h"

namespace standin {
namespace {

using namespace sdk_words;

constexpr std::pair<std::string_view, Gport> kGportTypes[] = {
    {"local", kLocalGport}, {"trunk", kTrunkGport}, {"sysport", kSystemGport}};
constexpr std::int32_t kBlackHole = kBlackHoleGport.of(0);

std::optional<std::uint32_t> read_dotted(std::string_view text) {
    std::vector<std::string_view> parts = split(text, ".");
    if (parts.size() != 4) return std::nullopt;
    std::uint32_t address = 0;
    for (std::string_view part : parts) {
        if (part.empty() || part.size() > 3) return std::nullopt;
        for (char sign : part)
            if (!is_digit(sign)) return std::nullopt;
        std::optional<std::uint64_t> byte = read_u64(part);
        if (!byte || *byte > 255) return std::nullopt;
        address = address << 8 | static_cast<std::uint32_t>(*byte);
    }
    return address;
}

std::optional<std::uint32_t> read_address(std::string_view text) {
    if (std::optional<std::uint32_t> address = read_dotted(text)) return address;
    std::optional<std::uint64_t> number = read_u64(text);
    if (!number || *number > 0xffffffffU) return std::nullopt;
    return static_cast<std::uint32_t>(*number);
}

std::optional<std::int32_t> read_end(std::string_view text, Range legal) {
    text = trim(text);
    if (same_word(text, "min")) return legal.low;
    if (same_word(text, "max")) return legal.high;
    std::optional<std::int32_t> number = read_i32(text);
    if (!number || *number < legal.low || *number > legal.high) return std::nullopt;
    return number;
}

}  // namespace

std::optional<std::uint32_t> read_ip(std::string_view text) {
    std::string_view address;
    std::string_view mask;
    if (cut(trim(text), '/', address, mask)) {
        std::optional<std::uint64_t> length = read_u64(mask);
        bool ok = (length && *length <= 32) || read_dotted(mask);
        if (!ok) return std::nullopt;
    }
    return read_address(address);
}

std::string ip_text(std::uint32_t address) {
    return text_of("%u.%u.%u.%u", address >> 24, address >> 16 & 255U, address >> 8 & 255U,
                   address & 255U);
}

std::string ip_mask_text(std::uint32_t address, std::uint32_t mask) {
    int length = std::countl_one(mask);
    bool plain = length == 32 || (mask << length) == 0;
    return ip_text(address) + '/' + (plain ? std::to_string(length) : ip_text(mask));
}

std::optional<MacBytes> read_mac(std::string_view text) {
    std::vector<std::string_view> parts = split(text, ":-");
    if (parts.size() != 6) return std::nullopt;
    MacBytes bytes{};
    for (std::size_t at = 0; at < 6; ++at) {
        if (parts[at].empty() || parts[at].size() > 2) return std::nullopt;
        int byte = 0;
        for (char sign : parts[at]) {
            if (hex_digit(sign) < 0) return std::nullopt;
            byte = byte * 16 + hex_digit(sign);
        }
        bytes[at] = static_cast<std::uint8_t>(byte);
    }
    return bytes;
}

std::string gport_text(std::int32_t gport) {
    if (gport == kBlackHole) return "blackhole";
    for (const auto &[word, type] : kGportTypes)
        if (type.cut(gport) == gport)
            return std::string(word) + '.' + std::to_string(gport & type.mask);
    return text_of("0x%x", static_cast<std::uint32_t>(gport));
}

std::optional<std::int32_t> read_gport(std::string_view text, const PortNames &names) {
    text = trim(text);
    if (same_word(text, "blackhole")) return kBlackHole;
    std::string_view word;
    std::string_view number_text;
    cut(text, '.', word, number_text);
    for (const auto &[name, type] : kGportTypes) {
        if (!same_word(word, name)) continue;
        std::optional<std::uint64_t> number = read_u64(number_text);
        if (!number || *number > static_cast<std::uint64_t>(type.mask)) return std::nullopt;
        return type.of(static_cast<std::int32_t>(*number));
    }
    for (const PortName &entry : names)
        if (same_word(entry.name, text)) return entry.port;
    std::optional<std::uint32_t> number = read_u32(text);
    if (!number) return std::nullopt;
    return static_cast<std::int32_t>(*number);
}

std::optional<ModPort> read_mod_port(std::string_view text, const PortNames &names) {
    std::string_view mod_text;
    std::string_view port_part;
    text = trim(text);
    bool both =
        cut(text, text.find(':') != std::string_view::npos ? ':' : '.', mod_text, port_part);
    std::optional<std::int32_t> mod = both ? read_i32(mod_text) : 0;
    if (!both) port_part = text;
    if (!mod) return std::nullopt;
    if (*mod == 0) {
        if (std::optional<int> port = read_port(port_part, names)) return ModPort{0, *port};
    }
    std::optional<std::int32_t> port = read_i32(port_part);
    if (!port) return std::nullopt;
    return ModPort{*mod, *port};
}

std::string mod_port_text(ModPort at, const PortNames &names) {
    std::string port = at.mod == 0 ? port_text(at.port, names) : std::to_string(at.port);
    return std::to_string(at.mod) + ':' + port;
}

std::optional<Range> read_range(std::string_view text, Range legal) {
    text = trim(text);
    if (text == "*" || same_word(text, "all")) return read_range("min", "max", legal);
    // The '-' of a negative number starts an end; it does not part two.
    std::size_t at = text.find('-', 1);
    if (at == std::string_view::npos) return read_range(text, {}, legal);
    std::string_view high = text.substr(at + 1);
    if (trim(high).empty()) return std::nullopt;
    return read_range(text.substr(0, at), high, legal);
}

std::optional<Range> read_range(std::string_view low, std::string_view high, Range legal) {
    if (legal.low > legal.high) return std::nullopt;
    std::optional<std::int32_t> first = read_end(low, legal);
    std::optional<std::int32_t> last = trim(high).empty() ? first : read_end(high, legal);
    if (!first || !last || *first > *last) return std::nullopt;
    return Range{*first, *last};
}

}  // namespace standin
