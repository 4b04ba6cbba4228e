// Places of fields, elements and entries, made by rule from the rows, once a process.
#include "standin/regs/layout.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <map>

#include "standin/model/port_set.h"
#include "standin/regs/bits.h"

namespace standin {
namespace {

struct BlockRow {
    std::string_view name;
    Scope scope;
};

constexpr BlockRow kBlockRows[] = {
    {"CGM", Scope::kChip}, {"CLMAC", Scope::kPort}, {"CLP", Scope::kPort},  {"CRPS", Scope::kChip},
    {"ECI", Scope::kChip}, {"EDB", Scope::kChip},   {"EGQ", Scope::kCore},  {"EPNI", Scope::kChip},
    {"FDR", Scope::kChip}, {"FMAC", Scope::kChip},  {"IDR", Scope::kChip},  {"IHB", Scope::kCore},
    {"IHP", Scope::kCore}, {"IPS", Scope::kChip},   {"IPST", Scope::kChip}, {"IPT", Scope::kChip},
    {"IQM", Scope::kCore}, {"IQMT", Scope::kChip},  {"IRR", Scope::kChip},  {"MMU", Scope::kChip},
    {"NBI", Scope::kChip}, {"NBIH", Scope::kChip},  {"NBIL", Scope::kChip}, {"OAMP", Scope::kChip},
    {"OLP", Scope::kChip}, {"PORT", Scope::kPort},  {"SCH", Scope::kChip},  {"TAR", Scope::kChip},
};

// The block of names that have none: what the MAC of a port counts.
constexpr std::string_view kCounterBlock = "CLMAC";

std::vector<Block> make_blocks() {
    std::vector<Block> blocks;
    int number = 1;
    for (const BlockRow &row : kBlockRows) {
        const int count = row.scope == Scope::kCore ? kCores : 1;
        blocks.push_back({row.name, row.scope, number, count});
        number += count;
    }
    return blocks;
}

const std::vector<Block> &blocks() {
    static const std::vector<Block> &all = *new std::vector<Block>(make_blocks());
    return all;
}

const Block *block_of(std::string_view name) {
    const std::size_t end = name.find('_');
    const std::string_view wanted =
        end == std::string_view::npos ? kCounterBlock : name.substr(0, end);
    return &*std::ranges::find(blocks(), wanted, &Block::name);
}

// The block with number `number`, or null.
const Block *block_numbered(int number) {
    for (const Block &block : blocks())
        if (number >= block.number && number < block.number + block.count) return &block;
    return nullptr;
}

template <class Row>
void lay_out(const Row &row, Layout &layout) {
    layout.id = row.id;
    layout.name = row.name;
    layout.block = block_of(row.name);
    for (const FieldRow &field : row.fields) {
        layout.fields.push_back({field.id, field.name, layout.bits, field.bits});
        layout.bits += field.bits;
    }
}

// The address in a name like IHB_MEM_F30000, or nothing.
std::optional<std::uint32_t> named_offset(std::string_view name) {
    constexpr std::string_view mark = "_MEM_";
    const std::size_t at = name.find(mark);
    if (at == std::string_view::npos) return std::nullopt;
    name.remove_prefix(at + mark.size());
    std::uint32_t offset = 0;
    std::from_chars(name.data(), name.data() + name.size(), offset, 16);
    return offset;
}

std::vector<RegisterLayout> make_registers() {
    std::vector<RegisterLayout> all;
    std::map<const Block *, std::uint32_t> next;
    for (const RegisterRow &row : register_rows()) {
        RegisterLayout layout;
        lay_out(row, layout);
        layout.elements = row.elements;
        layout.is_volatile = row.kind == RegisterKind::kVolatile;
        layout.reset = row.reset;
        layout.offset = next[layout.block];
        next[layout.block] += kRegisterSlot;
        all.push_back(std::move(layout));
    }
    return all;
}

std::vector<MemoryLayout> make_memories() {
    std::vector<MemoryLayout> all;
    std::map<const Block *, std::uint32_t> taken;
    for (const MemoryRow &row : memory_rows()) {
        MemoryLayout layout;
        lay_out(row, layout);
        layout.entries = row.entries;
        layout.arrays = row.arrays;
        layout.kind = row.kind;
        if (const auto offset = named_offset(row.name)) {
            layout.offset = *offset;
        } else {
            layout.offset = kFirstMemory + taken[layout.block];
            taken[layout.block] += kMemorySlot;
        }
        all.push_back(std::move(layout));
    }
    return all;
}

// Layouts of a table, found by number or by place.
template <class L>
struct Index {
    explicit Index(std::vector<L> made) : all(std::move(made)) {
        for (const L &layout : all) places[{layout.block, layout.offset}] = &layout;
    }

    const L *find(int id) const {
        const auto found = std::ranges::lower_bound(all, id, {}, &L::id);
        return found != all.end() && found->id == id ? &*found : nullptr;
    }

    // The last one of the block that does not begin behind `offset`, or null.
    const L *before(const Block *block, std::uint32_t offset) const {
        auto at = places.upper_bound({block, offset});
        if (at == places.begin()) return nullptr;
        --at;
        return at->first.first == block ? at->second : nullptr;
    }

    std::vector<L> all;
    std::map<std::pair<const Block *, std::uint32_t>, const L *> places;
};

const Index<RegisterLayout> &registers() {
    static const auto &index = *new Index<RegisterLayout>(make_registers());
    return index;
}

const Index<MemoryLayout> &memories() {
    static const auto &index = *new Index<MemoryLayout>(make_memories());
    return index;
}

std::uint32_t bus_address(const Layout &layout, int core, std::uint32_t within) {
    return static_cast<std::uint32_t>(layout.block->number + core) << kBlockShift |
           (layout.offset + within);
}

}  // namespace

std::uint32_t Layout::mask(unsigned word) const {
    const unsigned first = word * kWordBits;
    return first >= bits ? 0 : static_cast<std::uint32_t>(low_mask(bits - first));
}

const FieldPlace *Layout::field(int field_id) const {
    const auto found = std::ranges::find(fields, field_id, &FieldPlace::id);
    return found == fields.end() ? nullptr : &*found;
}

std::uint32_t RegisterLayout::step() const { return std::bit_ceil(words() * 4); }

int RegisterLayout::instances() const {
    return block->scope == Scope::kPort ? kPorts : block->count;
}

const RegisterLayout *find_register(int id) { return registers().find(id); }
const MemoryLayout *find_memory(int id) { return memories().find(id); }
std::span<const RegisterLayout> all_registers() { return registers().all; }
std::span<const MemoryLayout> all_memories() { return memories().all; }

std::uint32_t element_address(const RegisterLayout &layout, int instance, int index) {
    const bool on_port = layout.block->scope == Scope::kPort;
    const int element = (on_port ? instance * layout.elements : 0) + index;
    return bus_address(layout, on_port ? 0 : instance,
                       static_cast<std::uint32_t>(element) * layout.step());
}

std::uint32_t entry_address(const MemoryLayout &layout, int core, int array, int index) {
    return bus_address(layout, core,
                       static_cast<std::uint32_t>(array) * layout.array_bytes() +
                           static_cast<std::uint32_t>(index) * layout.entry_bytes());
}

std::optional<RegisterPlace> find_register_at(std::uint32_t address) {
    const int number = static_cast<int>(address >> kBlockShift);
    const Block *const block = block_numbered(number);
    const std::uint32_t offset = address & kOffsetMask;
    if (block == nullptr || address % 4 != 0 || offset >= kRegistersEnd) return std::nullopt;
    const RegisterLayout *const layout = registers().before(block, offset);
    if (layout == nullptr) return std::nullopt;
    const std::uint32_t within = offset - layout->offset;
    const int element = static_cast<int>(within / layout->step());
    const unsigned word = within % layout->step() / 4;
    const bool on_port = block->scope == Scope::kPort;
    const int elements = layout->elements * (on_port ? kPorts : 1);
    if (element >= elements || word >= layout->words()) return std::nullopt;
    const int instance = on_port ? element / layout->elements : number - block->number;
    return RegisterPlace{layout, instance, element % layout->elements, word};
}

std::optional<MemoryPlace> find_memory_at(std::uint32_t address) {
    const int number = static_cast<int>(address >> kBlockShift);
    const Block *const block = block_numbered(number);
    const std::uint32_t offset = address & kOffsetMask;
    if (block == nullptr || address % 4 != 0 || offset < kRegistersEnd) return std::nullopt;
    const MemoryLayout *const layout = memories().before(block, offset);
    if (layout == nullptr) return std::nullopt;
    const std::uint32_t within = offset - layout->offset;
    const int array = static_cast<int>(within / layout->array_bytes());
    if (array >= layout->arrays) return std::nullopt;
    const std::uint32_t rest = within % layout->array_bytes();
    return MemoryPlace{layout, number - block->number, array,
                       static_cast<int>(rest / layout->entry_bytes()),
                       rest % layout->entry_bytes() / 4};
}

}  // namespace standin
