// Commands on registers and memories, over the library's own calls.
#include <array>

#include "sdk/soc/mem.h"
#include "sdk/soc/reg.h"
#include "standin/base/number_text.h"
#include "standin/base/rows.h"
#include "standin/base/scan.h"
#include "standin/regs/layout.h"
#include "standin/shell/commands.h"
#include "standin/text/identifier_text.h"
#include "standin/text/name_text.h"
#include "standin/text/register_list.h"
#include "standin/text/unit_ports.h"

namespace standin {
namespace {

// Words that an entry of a memory can have: more than any has, since no call tells the width.
constexpr std::size_t kEntryWords = 64;
constexpr std::size_t kMostRegisters = 4096;  // that one command goes through
constexpr int kRegisterWords = SOC_REG_ABOVE_64_MAX_SIZE_U32;
using WideValue = std::array<uint32, kRegisterWords>;

std::string register_text(const soc_regaddrinfo_t &at, const PortNames &names) {
    std::string text = identifier_text(Identifier::kRegister, at.reg);
    const RegisterLayout *layout = find_register(at.reg);
    bool on_port = layout == nullptr || layout->block->scope == Scope::kPort;
    // The instances of other registers are cores, which have numbers alone.
    if (at.port >= 0) text += '.' + (on_port ? port_text(at.port, names) : std::to_string(at.port));
    if (at.idx > 0) text += '[' + std::to_string(at.idx) + ']';
    return text;
}

// What a reference means. One that is an address has no name, no width and no fields.
struct Registers {
    std::vector<soc_regaddrinfo_t> list;
    bool by_address = false;
};

// Finds the registers that a call names; kOk, or what the command ends with.
cmd_result_t find_registers(const CommandCall &call, Registers &registers) {
    const std::optional<RegisterRef> ref =
        read_register_ref(call.text("REGISTER"), unit_ports(call.unit()));
    if (!ref) return kUsage;
    registers.by_address = ref->address.has_value();
    return report(call, register_addresses(call.unit(), *ref, kMostRegisters, registers.list));
}

int read_register(int unit, const soc_regaddrinfo_t &at, bool by_address, WideValue &value) {
    value = {};
    if (by_address) return soc_reg32_read(unit, at.addr, value.data());
    if (soc_reg_bytes(unit, at.reg) > 8)
        return soc_reg_above_64_get(unit, at.reg, at.port, at.idx, value.data());
    uint64 narrow = 0;
    int status = soc_reg_get(unit, at.reg, at.port, at.idx, &narrow);
    value[0] = static_cast<uint32>(narrow);
    value[1] = static_cast<uint32>(narrow >> 32);
    return status;
}

int write_register(int unit, const soc_regaddrinfo_t &at, bool by_address, WideValue value) {
    if (by_address) return soc_reg32_write(unit, at.addr, value[0]);
    if (soc_reg_bytes(unit, at.reg) > 8)
        return soc_reg_above_64_set(unit, at.reg, at.port, at.idx, value.data());
    return soc_reg_set(unit, at.reg, at.port, at.idx, uint64{value[1]} << 32 | value[0]);
}

std::string too_wide(const std::string &text, unsigned bits) {
    return '\'' + text + "' is more than " + std::to_string(bits) + " bits";
}

// "FIELD=VALUE", read.
struct FieldChange {
    std::int32_t field;
    WideValue value;
};

// Nothing, with `fault` set, for a field that the register has not or that the value does not fit.
std::optional<FieldChange> read_change(int unit, int reg, const std::string &word,
                                       std::string &fault) {
    std::string_view name;
    std::string_view text;
    FieldChange change{};
    bool whole = cut(word, '=', name, text);
    std::optional<std::int32_t> field = identifier_of(Identifier::kField, name);
    fault = "no field in '" + word + '\'';
    if (!whole || !field || soc_reg_field_valid(unit, reg, *field) == 0) return std::nullopt;
    auto bits = static_cast<unsigned>(soc_reg_field_length(unit, reg, *field));
    fault = too_wide(word, bits);
    if (!read_words(text, change.value, bits)) return std::nullopt;
    change.field = *field;
    return change;
}

// The bits of a register that can be written; all 32 at an address where nothing lies.
unsigned bits_of(const soc_regaddrinfo_t &at, bool by_address) {
    const RegisterLayout *layout = find_register(at.reg);
    return by_address || layout == nullptr ? kWordBits : layout->bits;
}

constexpr RowColumn kRegisterList[] = {{"name", "Name", CellKind::kText},
                                       {"number", ">Number", CellKind::kNumber},
                                       {"bytes", ">Bytes", CellKind::kNumber}};
constexpr RowColumn kMemoryList[] = {{"name", "Name", CellKind::kText},
                                     {"number", ">Number", CellKind::kNumber},
                                     {"block", "Block", CellKind::kText}};

cmd_result_t list(const CommandCall &call, Identifier kind, std::span<const RowColumn> columns,
                  const std::function<Cell(int)> &detail) {
    const std::string pattern = call.text("PATTERN");
    Rows rows(columns);
    for (const IdentifierName &entry : identifiers(kind))
        if (name_matches(entry.name, pattern))
            rows.row({std::string(entry.name), entry.id, detail(entry.id)});
    if (rows.size() == 0) return refuse(call, "no name like '" + pattern + '\'');
    rows.show();
    return kOk;
}

cmd_result_t do_listreg(CommandCall &call) {
    return list(call, Identifier::kRegister, kRegisterList, [&](int reg) {
        const int bytes = soc_reg_bytes(call.unit(), reg);
        return cell(bytes, bytes);
    });
}

cmd_result_t do_listmem(CommandCall &call) {
    return list(call, Identifier::kMemory, kMemoryList, [](int memory) {
        std::string name = identifier_text(Identifier::kMemory, memory);
        return Cell(name.substr(0, name.find('_')));
    });
}

constexpr RowColumn kRegisterColumns[] = {
    {"register", "Register", CellKind::kText}, {"address", "Address", CellKind::kNumber},
    {"field", "Field", CellKind::kText},       {"bits", "Bits", CellKind::kNumber},
    {"value", "Value", CellKind::kText},       {"line", nullptr, CellKind::kText}};

// The fields of a register by name, with their values out of `value`.
void add_fields(int unit, const soc_regaddrinfo_t &at, const std::string &name, WideValue &value,
                Rows &rows) {
    for (const IdentifierName &field : identifiers(Identifier::kField)) {
        if (soc_reg_field_valid(unit, at.reg, field.id) == 0) continue;
        WideValue part{};
        soc_reg_above_64_field_get(unit, at.reg, value.data(), field.id, part.data());
        const int bits = soc_reg_field_length(unit, at.reg, field.id);
        const std::string text = words_text(part);
        rows.row({name, at.addr, std::string(field.name), bits, text,
                  text_of("  %s<%d> = %s", std::string(field.name).c_str(), bits, text.c_str())});
    }
}

cmd_result_t do_getreg(CommandCall &call) {
    Registers registers;
    const cmd_result_t result = find_registers(call, registers);
    if (result != kOk) return result;
    const PortNames names = unit_ports(call.unit());
    Rows rows(kRegisterColumns, "{line}");
    for (const soc_regaddrinfo_t &at : registers.list) {
        WideValue value{};
        const int status = read_register(call.unit(), at, registers.by_address, value);
        if (status < 0) return report(call, status);
        const std::string name = registers.by_address ? "" : register_text(at, names);
        const std::string text = words_text(value);
        rows.row({name, at.addr, Cell(), Cell(), text,
                  text_of("%s%s(0x%08x) = %s", name.c_str(), name.empty() ? "" : " ", at.addr,
                          text.c_str())});
        if (call.flag("fields") && !registers.by_address)
            add_fields(call.unit(), at, name, value, rows);
    }
    rows.show();
    return kOk;
}

cmd_result_t do_setreg(CommandCall &call) {
    Registers registers;
    const cmd_result_t result = find_registers(call, registers);
    if (result != kOk) return result;
    WideValue value{};
    const std::string word = call.text("VALUE");
    const unsigned bits = bits_of(registers.list.front(), registers.by_address);
    if (!read_words(word, value, bits)) return refuse(call, too_wide(word, bits));
    for (const soc_regaddrinfo_t &at : registers.list) {
        const int status = write_register(call.unit(), at, registers.by_address, value);
        if (status < 0) return report(call, status);
    }
    return kOk;
}

cmd_result_t do_modreg(CommandCall &call) {
    Registers registers;
    const cmd_result_t result = find_registers(call, registers);
    if (result != kOk) return result;
    if (registers.by_address) return refuse(call, "an address has no fields");
    // One reference means one register, on however many ports.
    const int reg = registers.list.front().reg;
    std::vector<FieldChange> changes;
    for (const Value *word : call.all("FIELD=VALUE")) {
        std::string fault;
        std::optional<FieldChange> change = read_change(call.unit(), reg, word->text, fault);
        if (!change) return refuse(call, fault);
        changes.push_back(*change);
    }
    for (const soc_regaddrinfo_t &at : registers.list) {
        WideValue value{};
        int status = read_register(call.unit(), at, false, value);
        for (FieldChange &change : changes)
            soc_reg_above_64_field_set(call.unit(), reg, value.data(), change.field,
                                       change.value.data());
        if (status >= 0) status = write_register(call.unit(), at, false, value);
        if (status < 0) return report(call, status);
    }
    return kOk;
}

constexpr RowColumn kEntryColumns[] = {{"memory", "Memory", CellKind::kText},
                                       {"index", "Index", CellKind::kNumber},
                                       {"value", "Value", CellKind::kText}};

cmd_result_t do_dump(CommandCall &call) {
    const std::optional<MemoryRef> ref = read_memory_ref(call.text("MEMORY"));
    if (!ref) return kUsage;
    const int first = call.number("INDEX");
    const int count = call.number("COUNT", 1);
    const MemoryLayout *layout = find_memory(ref->memory);
    const int entries = layout == nullptr ? 0 : layout->entries;
    if (first >= entries || count > entries - first)
        return refuse(call, "entries are 0 to " + std::to_string(entries - 1));
    Rows rows(kEntryColumns, "{memory}[{index}] = {value}");
    for (int at = first; at < first + count; ++at) {
        std::array<uint32, kEntryWords> entry{};
        const int status = soc_mem_array_read(call.unit(), ref->memory, ref->array_index, ref->copy,
                                              at, entry.data());
        if (status < 0) return report(call, status);
        rows.row({memory_ref_text(*ref), at, words_text(entry)});
    }
    rows.show();
    return kOk;
}

cmd_result_t do_write(CommandCall &call) {
    const std::optional<MemoryRef> ref = read_memory_ref(call.text("MEMORY"));
    if (!ref) return kUsage;
    std::array<uint32, kEntryWords> entry{};
    const MemoryLayout *layout = find_memory(ref->memory);
    const unsigned bits = layout == nullptr ? kWordBits : layout->bits;
    const std::string value = call.text("VALUE");
    if (!read_words(value, entry, bits)) return refuse(call, too_wide(value, bits));
    return report(call, soc_mem_array_write(call.unit(), ref->memory, ref->array_index, ref->copy,
                                            call.number("INDEX"), entry.data()));
}

constexpr Param kPattern =
    place("PATTERN", Kind::kText, "A part of the name, or a pattern with '*'");
constexpr Param kRegister = place("REGISTER", Kind::kRegister, "The register, or several").need();
constexpr Param kMemory = place("MEMORY", Kind::kMemory, "The memory").need();
constexpr Param kValue = place("VALUE", Kind::kWide, "The value").need();

constexpr Param kListParams[] = {kPattern};
constexpr Form kListregForms[] = {
    {"", "Registers by name", "listreg pause", do_listreg, kListParams, kRegisterList}};
constexpr Form kListmemForms[] = {
    {"", "Memories by name", "listmem ihp*", do_listmem, kListParams, kMemoryList}};
constexpr Param kGetregParams[] = {kRegister, flag("fields", "Also its fields")};
constexpr Form kGetregForms[] = {{"", "Read registers", "getreg CLP_XMAC_PAUSE_CTRL.xe1 fields",
                                  do_getreg, kGetregParams, kRegisterColumns}};
constexpr Param kSetregParams[] = {kRegister, kValue};
constexpr Form kSetregForms[] = {{"",
                                  "Write registers",
                                  "setreg CLP_XMAC_PAUSE_CTRL.xe1-xe3 0x3",
                                  do_setreg,
                                  kSetregParams,
                                  {},
                                  nullptr,
                                  true}};
constexpr Param kModregParams[] = {
    kRegister,
    place("FIELD=VALUE", Kind::kFieldValue, "A field, and what it shall be").need().many()};
constexpr Form kModregForms[] = {{"",
                                  "Change fields of registers",
                                  "modreg CLP_XMAC_PAUSE_CTRL.xe1 RX_PAUSE_EN=1",
                                  do_modreg,
                                  kModregParams,
                                  {},
                                  nullptr,
                                  true}};
constexpr Param kDumpParams[] = {kMemory, place("INDEX", 0, 0x7fffffff, "The first entry"),
                                 place("COUNT", 1, 0x7fffffff, "How many entries")};
constexpr Form kDumpForms[] = {
    {"", "Entries of a memory", "dump IHP_RESERVED_MC 1 2", do_dump, kDumpParams, kEntryColumns}};
constexpr Param kWriteParams[] = {kMemory, place("INDEX", 0, 0x7fffffff, "The entry").need(),
                                  kValue};
constexpr Form kWriteForms[] = {
    {"", "Write an entry of a memory", "write IHP_RESERVED_MC 1 0x1", do_write, kWriteParams}};

constexpr const char *kReference =
    "A register is NAME, NAME.PORTS, NAME[INDEX] or an address 0x...";
constexpr Command kListreg = {"listreg", "Registers by name", kListregForms};
constexpr Command kListmem = {"listmem", "Memories by name", kListmemForms};
constexpr Command kGetreg = {"getreg", "Read registers", kGetregForms, "", false, kReference};
constexpr Command kSetreg =
    configuring({"setreg", "Write registers", kSetregForms, "", false, kReference});
constexpr Command kModreg = configuring({"modreg", "Change fields of registers", kModregForms});
constexpr Command kDump = {"dump", "Entries of a memory", kDumpForms};
constexpr Command kWrite = configuring({"write", "Write an entry of a memory", kWriteForms});

constexpr const Command *kCommands[] = {&kDump,   &kGetreg, &kListmem, &kListreg,
                                        &kModreg, &kSetreg, &kWrite};
static_assert(complete(kCommands));

}  // namespace

std::span<const Command *const> register_commands() { return kCommands; }

}  // namespace standin
