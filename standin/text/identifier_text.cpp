// References to registers and memories taken apart and put together.
#include "standin/text/identifier_text.h"

#include "standin/base/number_text.h"
#include "standin/base/scan.h"
#include "standin/text/name_text.h"

namespace standin {
namespace {

constexpr Range kIndexes = {0, 0x7ffffffe};

struct CmicRegister {
    std::string_view name;
    std::uint32_t offset;
};
constexpr std::array kCmicRegisters = {
    CmicRegister{"CMIC_DEV_REV_ID", 0x0000},     CmicRegister{"CMIC_RESET", 0x0004},
    CmicRegister{"CMIC_CONFIG", 0x0008},         CmicRegister{"CMIC_STATUS", 0x000c},
    CmicRegister{"CMIC_IRQ_STATUS", 0x0010},     CmicRegister{"CMIC_IRQ_MASK", 0x0014},
    CmicRegister{"CMIC_SCHAN_CTRL", 0x0100},     CmicRegister{"CMIC_SCHAN_MESSAGE", 0x0104},
    CmicRegister{"CMIC_MIIM_CTRL", 0x0200},      CmicRegister{"CMIC_MIIM_PARAM", 0x0204},
    CmicRegister{"CMIC_MIIM_READ_DATA", 0x0208}, CmicRegister{"CMIC_MIIM_ADDRESS", 0x020c},
    CmicRegister{"CMIC_LED_CTRL", 0x0300},       CmicRegister{"CMIC_RATE_ADJUST", 0x0400},
};

// Takes "[...]" off the end of `text`; false when there is an open bracket alone.
bool take_index(std::string_view &text, std::optional<std::string_view> &index) {
    std::size_t open = text.find('[');
    index.reset();
    if (open == std::string_view::npos) return text.find(']') == std::string_view::npos;
    if (text.back() != ']') return false;
    index = text.substr(open + 1, text.size() - open - 2);
    text = text.substr(0, open);
    return !trim(*index).empty();
}

std::vector<int> members_of(const PortSet &set) {
    std::vector<int> ports;
    for (std::size_t at = 0; at < set.size(); ++at)
        if (set[at]) ports.push_back(static_cast<int>(at));
    return ports;
}

}  // namespace

std::optional<MemoryRef> read_memory_ref(std::string_view text) {
    MemoryRef ref{0, kEveryCopy, 0};
    std::string_view base = trim(text);
    std::string_view copy;
    if (cut(base, '.', base, copy)) {
        std::optional<Range> one = read_range(copy, kIndexes);
        bool every = copy == "*" || same_word(copy, "all");
        if (!every && (!one || one->low != one->high)) return std::nullopt;
        if (!every) ref.copy = one->low;
    }
    std::optional<std::string_view> index;
    if (!take_index(base, index)) return std::nullopt;
    if (index) {
        std::optional<std::uint64_t> number = read_u64(*index);
        if (!number || *number > 0xffffffffU) return std::nullopt;
        ref.array_index = static_cast<std::uint32_t>(*number);
    }
    std::optional<std::int32_t> memory = identifier_of(Identifier::kMemory, base);
    if (!memory || *memory < 0) return std::nullopt;
    ref.memory = *memory;
    return ref;
}

std::string memory_ref_text(const MemoryRef &ref) {
    std::string text = identifier_text(Identifier::kMemory, ref.memory);
    if (ref.array_index != 0) text += '[' + std::to_string(ref.array_index) + ']';
    if (ref.copy != kEveryCopy) text += '.' + std::to_string(ref.copy);
    return text;
}

std::optional<RegisterRef> read_register_ref(std::string_view text, const PortNames &names) {
    RegisterRef ref{std::nullopt, 0, {kNoPort}, {0, 0}};
    text = trim(text);
    if (starts_with_word(text, "0x")) {
        std::optional<std::uint64_t> address = read_u64(text);
        if (!address || *address > 0xffffffffU) return std::nullopt;
        ref.address = static_cast<std::uint32_t>(*address);
        return ref;
    }
    std::optional<std::string_view> index;
    if (!take_index(text, index)) return std::nullopt;
    if (index) {
        std::optional<Range> range = read_range(*index, kIndexes);
        if (!range) return std::nullopt;
        ref.index = *range;
    }
    std::string_view base;
    std::string_view port_part;
    if (cut(text, '.', base, port_part)) {
        std::string fault;
        std::optional<PortSet> set = read_port_list(port_part, names, fault);
        if (!set || set->none()) return std::nullopt;
        ref.ports = members_of(*set);
    }
    std::optional<std::int32_t> reg = identifier_of(Identifier::kRegister, base);
    if (!reg || *reg < 0) return std::nullopt;
    ref.reg = *reg;
    return ref;
}

std::optional<std::uint32_t> read_cmic_register(std::string_view text) {
    text = trim(text);
    for (const CmicRegister &entry : kCmicRegisters)
        if (same_word(text, entry.name)) return entry.offset;
    std::optional<std::uint64_t> offset = read_u64(text);
    if (!offset || *offset >= 0x40000 || *offset % 4 != 0) return std::nullopt;
    return static_cast<std::uint32_t>(*offset);
}

}  // namespace standin
