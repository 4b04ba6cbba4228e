// Items of port lists read into sets, and sets written as short lists.
#include "standin/text/port_text.h"

#include <algorithm>
#include <array>

#include "standin/base/number_text.h"
#include "standin/base/scan.h"

namespace standin {
namespace {

constexpr std::size_t kWords = kPortBits / 32;

bool port_number_ok(int port) { return port >= 0 && port < kPortBits; }

std::size_t bit(int port) { return static_cast<std::size_t>(port); }

// "xe12" as "xe" and 12; nothing without both parts.
struct NameParts {
    std::string_view type;
    int index;
};
std::optional<NameParts> parts_of(std::string_view name) {
    std::size_t end = name.find_last_not_of("0123456789") + 1;
    if (end == 0 || end == name.size() || name.size() - end > 6) return std::nullopt;
    std::optional<std::int32_t> index = read_i32(name.substr(end));
    if (!index) return std::nullopt;
    return NameParts{name.substr(0, end), *index};
}

const PortName *find_name(std::string_view text, const PortNames &names) {
    for (const PortName &entry : names)
        if (same_word(entry.name, text)) return &entry;
    return nullptr;
}

PortSet all_ports(const PortNames &names) {
    PortSet set;
    for (const PortName &entry : names)
        if (port_number_ok(entry.port)) set.set(bit(entry.port));
    return set;
}

// Every port of the type, with an index in the range.
PortSet ports_of_type(std::string_view type, int low, int high, const PortNames &names) {
    PortSet set;
    for (const PortName &entry : names) {
        std::optional<NameParts> parts = parts_of(entry.name);
        if (!parts || !port_number_ok(entry.port) || !same_word(parts->type, type)) continue;
        if (parts->index >= low && parts->index <= high) set.set(bit(entry.port));
    }
    return set;
}

std::optional<PortSet> read_bitmap(std::string_view text) {
    // One word of head room shows a bitmap that is too wide.
    std::array<std::uint32_t, kWords + 1> words{};
    if (text.size() > 2 * (2 + kPortBits / 4) || !read_words(text, words)) return std::nullopt;
    if (words.back() != 0) return std::nullopt;
    return port_set(words);
}

std::optional<PortSet> read_range(std::string_view low, std::string_view high,
                                  const PortNames &names) {
    std::optional<std::int32_t> first = read_i32(low);
    std::optional<std::int32_t> last = read_i32(high);
    PortSet set;
    if (first && last) {
        if (!port_number_ok(*first) || !port_number_ok(*last) || *first > *last)
            return std::nullopt;
        for (int port = *first; port <= *last; ++port) set.set(bit(port));
        return set;
    }
    std::optional<NameParts> from = parts_of(low);
    std::optional<NameParts> to = parts_of(high);
    if (!from || !to || !same_word(from->type, to->type) || from->index > to->index)
        return std::nullopt;
    if (find_name(low, names) == nullptr || find_name(high, names) == nullptr) return std::nullopt;
    return ports_of_type(from->type, from->index, to->index, names);
}

std::optional<PortSet> read_item(std::string_view item, const PortNames &names) {
    if (same_word(item, "none")) return PortSet();
    if (starts_with_word(item, "0x")) return read_bitmap(item);
    if ((same_word(item, "all") || item == "*") && !names.empty()) return all_ports(names);
    std::string_view low;
    std::string_view high;
    if (cut(item, '-', low, high)) return read_range(trim(low), trim(high), names);
    if (std::optional<int> port = read_port(item, names)) return PortSet().set(bit(*port));
    PortSet of_type = ports_of_type(item, 0, kPortBits, names);
    if (of_type.none()) return std::nullopt;
    return of_type;
}

// Whether `next` goes on where `entry` ends, in number and in name.
bool neighbours(const PortName &entry, const PortName &next) {
    std::optional<NameParts> left = parts_of(entry.name);
    std::optional<NameParts> right = parts_of(next.name);
    return left && right && next.port == entry.port + 1 && same_word(left->type, right->type) &&
           right->index == left->index + 1;
}

}  // namespace

PortSet port_set(std::span<const std::uint32_t> words) {
    PortSet set;
    for (std::size_t at = 0; at < kPortBits && at / 32 < words.size(); ++at)
        set[at] = (words[at / 32] >> (at % 32) & 1U) != 0;
    return set;
}

void port_words(const PortSet &set, std::span<std::uint32_t> words) {
    std::fill(words.begin(), words.end(), 0U);
    for (std::size_t at = 0; at < kPortBits; ++at)
        if (set[at]) words[at / 32] |= 1U << (at % 32);
}

std::optional<PortSet> read_port_list(std::string_view text, const PortNames &names,
                                      std::string &fault) {
    PortSet set;
    bool any = false;
    for (std::string_view item : split(text, ", \t")) {
        if (item.empty()) continue;
        any = true;
        bool take_out = item.front() == '!' || item.front() == '~';
        std::optional<PortSet> ports = read_item(item.substr(take_out ? 1 : 0), names);
        if (!ports) {
            fault = '\'' + std::string(item) + "' is no port";
            return std::nullopt;
        }
        set = take_out ? set & ~*ports : set | *ports;
    }
    if (any) return set;
    fault = "no port";
    return std::nullopt;
}

std::string port_list_text(const PortSet &set, const PortNames &names) {
    // Every member with the name it goes by; one without a name is its own kind of type.
    PortNames members;
    for (int port = 0; port < kPortBits; ++port)
        if (set[bit(port)]) members.push_back({port, port_text(port, names)});
    std::string text;
    for (std::size_t at = 0; at < members.size();) {
        bool number = is_digit(members[at].name.front());
        std::size_t last = at;
        while (last + 1 < members.size()) {
            const PortName &next = members[last + 1];
            bool goes_on = number
                               ? is_digit(next.name.front()) && next.port == members[last].port + 1
                               : neighbours(members[last], next);
            if (!goes_on) break;
            ++last;
        }
        text += text.empty() ? "" : ",";
        text += members[at].name;
        if (last > at) text += '-' + members[last].name;
        at = last + 1;
    }
    return text.empty() ? "none" : text;
}

std::optional<int> read_port(std::string_view text, const PortNames &names) {
    text = trim(text);
    if (const PortName *entry = find_name(text, names)) return entry->port;
    std::optional<std::int32_t> port = read_i32(text);
    if (!port || !port_number_ok(*port)) return std::nullopt;
    return *port;
}

std::string port_text(int port, const PortNames &names) {
    for (const PortName &entry : names)
        if (entry.port == port) return entry.name;
    return std::to_string(port);
}

}  // namespace standin
