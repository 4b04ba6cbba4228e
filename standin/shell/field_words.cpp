// Words of the rule engine, both ways.
#include "standin/shell/field_words.h"

#include <arpa/inet.h>

#include <algorithm>
#include <array>

#include "standin/base/number_text.h"
#include "standin/base/scan.h"
#include "standin/shell/address_words.h"
#include "standin/text/address_text.h"
#include "standin/text/unit_ports.h"

namespace standin {
namespace {

// The lowest byte first, as numbers lie in memory.
std::string number_bytes(std::uint64_t number, std::size_t width) {
    std::string bytes;
    for (std::size_t at = 0; at < width; ++at)
        bytes += static_cast<char>(number >> (8 * at) & 0xff);
    return bytes;
}

std::uint64_t number_of(std::span<const std::uint8_t> bytes) {
    std::uint64_t number = 0;
    for (std::size_t at = bytes.size(); at-- > 0;) number = number << 8 | bytes[at];
    return number;
}

// Data and mask of these bytes, half and half.
std::string halves_text(std::span<const std::uint8_t> bytes) {
    const std::size_t width = bytes.size() / 2;
    const auto one = [&](std::span<const std::uint8_t> half) {
        if (width == 6) return mac_text(half.data());
        if (width == 16) return ip6_text(half.data());
        return text_of("0x%llx", static_cast<unsigned long long>(number_of(half)));
    };
    const bool plain = width == 4 || width == 6 || width == 16;
    return ' ' + one(bytes.first(width)) + ' ' + one(bytes.last(width)) +
           (plain ? "" : " width=" + std::to_string(width));
}

}  // namespace

const NameFamily &field_stat_names() {
    static const NameFamily &names = *new NameFamily("bcmFieldStat");
    return names;
}

const NameFamily &field_presel_names() {
    static const NameFamily &names = *new NameFamily("bcmFieldPresel");
    return names;
}

std::string names_text(std::span<const SHR_BITDCL> words, const NameFamily &names) {
    std::string text;
    for (std::size_t bit = 0; bit < 32 * words.size(); ++bit)
        if ((words[bit / 32] >> (bit % 32) & 1U) != 0)
            text += (text.empty() ? "" : ",") + names.name(static_cast<std::int32_t>(bit), true);
    return text.empty() ? "none" : text;
}

std::optional<std::string> value_bytes(std::string_view word, std::size_t width) {
    constexpr std::string_view kHex = "hex:";
    if (word.starts_with(kHex)) return bytes_of_hex(word.substr(kHex.size()));
    if (const std::optional<MacBytes> mac = read_mac(word); mac && word.find(':') != word.npos)
        return std::string(mac->begin(), mac->end());
    if (word.find(':') != std::string_view::npos) {
        std::string bytes(16, '\0');
        const bool good = ::inet_pton(AF_INET6, std::string(word).c_str(), bytes.data()) == 1;
        return good ? std::optional(bytes) : std::nullopt;
    }
    std::optional<std::uint64_t> number = read_u64(word);
    if (!number && word.find('.') != std::string_view::npos) number = read_ip(word);
    if (!number || width == 0 || width > 8) return std::nullopt;
    if (width < 8 && *number >> (8 * width) != 0) return std::nullopt;
    return number_bytes(*number, width);
}

std::string qualifier_words(int qualifier, std::span<const std::uint8_t> bytes) {
    const std::string name = field_qualifier_names().name(qualifier, true);
    constexpr std::array<std::size_t, 6> kSizes = {2, 4, 8, 12, 16, 32};
    if (std::find(kSizes.begin(), kSizes.end(), bytes.size()) != kSizes.end())
        return name + halves_text(bytes);
    return name + " hex:" + hex_text(bytes.data(), bytes.size());
}

std::string action_words(int action, const FieldAction &given, const PortNames &names) {
    std::string words = field_action_names().name(action, true);
    if (given.mac) return words + " mac=" + mac_text(given.mac->data());
    if (given.ports) return words + " ports=" + port_list_text(port_set_of(*given.ports), names);
    if (given.param0 != 0 || given.param1 != 0) words += ' ' + std::to_string(given.param0);
    if (given.param1 != 0) words += ' ' + std::to_string(given.param1);
    return words;
}

std::optional<FieldRange::Part> read_part(std::string_view word) {
    std::string_view range;
    std::string_view flags;
    std::string_view low;
    std::string_view high;
    const bool has_flags = cut(word, ':', range, flags);
    if (!cut(range, '-', low, high)) return std::nullopt;
    const std::optional<std::uint32_t> min = read_u32(low);
    const std::optional<std::uint32_t> max = read_u32(high);
    const std::optional<std::uint32_t> bits = has_flags ? read_u32(flags) : 0;
    if (!min || !max || !bits) return std::nullopt;
    return FieldRange::Part{*bits, *min, *max};
}

std::string part_text(const FieldRange::Part &part) {
    return text_of("%u-%u", part.min, part.max) +
           (part.flags == 0 ? "" : text_of(":%u", part.flags));
}

}  // namespace standin
