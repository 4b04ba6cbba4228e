// Commands on registers and memories, over the library's own calls.
#include <array>

#include "sdk/soc/mem.h"
#include "sdk/soc/reg.h"
#include "standin/base/number_text.h"
#include "standin/base/output.h"
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

// Takes a reference and finds its registers; false when a line of text has said why not.
bool take_registers(int unit, args_t &args, Registers &registers, cmd_result_t &result) {
    std::optional<std::string> word = args.take();
    std::optional<RegisterRef> ref = read_register_ref(word.value_or(""), unit_ports(unit));
    result = kUsage;
    if (!word) return false;
    result = kFail;
    if (!ref) {
        refuse(args, "no register '" + *word + '\'');
        return false;
    }
    registers.by_address = ref->address.has_value();
    int status = register_addresses(unit, *ref, kMostRegisters, registers.list);
    if (status >= 0) return true;
    report(args, status);
    return false;
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

// The fields of a register by name, with their values out of `value`.
void print_fields(int unit, int reg, WideValue &value) {
    for (const IdentifierName &field : identifiers(Identifier::kField)) {
        if (soc_reg_field_valid(unit, reg, field.id) == 0) continue;
        WideValue part{};
        soc_reg_above_64_field_get(unit, reg, value.data(), field.id, part.data());
        outf("  %s<%d> = %s\n", std::string(field.name).c_str(),
             soc_reg_field_length(unit, reg, field.id), words_text(part).c_str());
    }
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

std::optional<MemoryRef> take_memory(args_t &args) {
    std::optional<std::string> word = args.take();
    std::optional<MemoryRef> ref = read_memory_ref(word.value_or(""));
    if (word && !ref) refuse(args, "no memory '" + *word + '\'');
    return ref;
}

cmd_result_t list(args_t &args, Identifier kind, const std::function<std::string(int)> &detail,
                  const char *heading) {
    std::string pattern = args.take().value_or("");
    if (!args.empty()) return kUsage;
    Table table({"Name", ">Number", heading});
    for (const IdentifierName &entry : identifiers(kind)) {
        if (!name_matches(entry.name, pattern)) continue;
        table.row({std::string(entry.name), std::to_string(entry.id), detail(entry.id)});
    }
    if (table.size() == 0) return refuse(args, "no name like '" + pattern + '\'');
    table.print();
    return kOk;
}

}  // namespace

cmd_result_t cmd_listreg(int unit, args_t *args) {
    return list(
        *args, Identifier::kRegister,
        [&](int reg) {
            int bytes = soc_reg_bytes(unit, reg);
            return cell(bytes, bytes);
        },
        ">Bytes");
}

cmd_result_t cmd_getreg(int unit, args_t *args) {
    Registers registers;
    cmd_result_t result = kOk;
    if (!take_registers(unit, *args, registers, result)) return result;
    bool fields = args->take_word("fields");
    if (!args->empty()) return kUsage;
    PortNames names = unit_ports(unit);
    for (const soc_regaddrinfo_t &at : registers.list) {
        WideValue value{};
        int status = read_register(unit, at, registers.by_address, value);
        if (status < 0) return report(*args, status);
        std::string name = registers.by_address ? std::string() : register_text(at, names) + ' ';
        outf("%s(0x%08x) = %s\n", name.c_str(), at.addr, words_text(value).c_str());
        if (fields && !registers.by_address) print_fields(unit, at.reg, value);
    }
    return kOk;
}

cmd_result_t cmd_setreg(int unit, args_t *args) {
    Registers registers;
    cmd_result_t result = kOk;
    if (!take_registers(unit, *args, registers, result)) return result;
    WideValue value{};
    std::optional<std::string> word = args->take();
    if (!word || !args->empty() || !read_words(*word, value)) return kUsage;
    unsigned bits = bits_of(registers.list.front(), registers.by_address);
    if (!read_words(*word, value, bits))
        return refuse(*args, too_wide(*word, bits));
    for (const soc_regaddrinfo_t &at : registers.list) {
        int status = write_register(unit, at, registers.by_address, value);
        if (status < 0) return report(*args, status);
    }
    return kOk;
}

cmd_result_t cmd_modreg(int unit, args_t *args) {
    Registers registers;
    cmd_result_t result = kOk;
    if (!take_registers(unit, *args, registers, result)) return result;
    if (args->empty()) return kUsage;
    if (registers.by_address) return refuse(*args, "an address has no fields");
    // One reference means one register, on however many ports.
    int reg = registers.list.front().reg;
    std::vector<FieldChange> changes;
    while (std::optional<std::string> word = args->take()) {
        std::string fault;
        std::optional<FieldChange> change = read_change(unit, reg, *word, fault);
        if (!change) return refuse(*args, fault);
        changes.push_back(*change);
    }
    for (const soc_regaddrinfo_t &at : registers.list) {
        WideValue value{};
        int status = read_register(unit, at, false, value);
        for (FieldChange &change : changes)
            soc_reg_above_64_field_set(unit, reg, value.data(), change.field, change.value.data());
        if (status >= 0) status = write_register(unit, at, false, value);
        if (status < 0) return report(*args, status);
    }
    return kOk;
}

cmd_result_t cmd_listmem(int, args_t *args) {
    return list(
        *args, Identifier::kMemory,
        [](int memory) {
            std::string name = identifier_text(Identifier::kMemory, memory);
            return name.substr(0, name.find('_'));
        },
        "Block");
}

cmd_result_t cmd_dump(int unit, args_t *args) {
    std::optional<MemoryRef> ref = take_memory(*args);
    if (!ref) return kUsage;
    std::optional<std::int32_t> first = read_i32(args->take().value_or("0"));
    std::optional<std::int32_t> count = read_i32(args->take().value_or("1"));
    if (!first || !count || *first < 0 || *count < 1 || !args->empty()) return kUsage;
    const MemoryLayout *layout = find_memory(ref->memory);
    int entries = layout == nullptr ? 0 : layout->entries;
    if (*first >= entries || *count > entries - *first)
        return refuse(*args, "entries are 0 to " + std::to_string(entries - 1));
    for (std::int32_t at = 0; at < *count; ++at) {
        std::array<uint32, kEntryWords> entry{};
        int status = soc_mem_array_read(unit, ref->memory, ref->array_index, ref->copy, *first + at,
                                        entry.data());
        if (status < 0) return report(*args, status);
        outf("%s[%d] = %s\n", memory_ref_text(*ref).c_str(), *first + at,
             words_text(entry).c_str());
    }
    return kOk;
}

cmd_result_t cmd_write(int unit, args_t *args) {
    std::optional<MemoryRef> ref = take_memory(*args);
    if (!ref) return kUsage;
    std::optional<std::int32_t> index = read_i32(args->take().value_or(""));
    std::array<uint32, kEntryWords> entry{};
    std::optional<std::string> value = args->take();
    if (!index || !value || !read_words(*value, entry) || !args->empty()) return kUsage;
    const MemoryLayout *layout = find_memory(ref->memory);
    unsigned bits = layout == nullptr ? kWordBits : layout->bits;
    if (!read_words(*value, entry, bits)) return refuse(*args, too_wide(*value, bits));
    return report(*args, soc_mem_array_write(unit, ref->memory, ref->array_index, ref->copy, *index,
                                             entry.data()));
}

}  // namespace standin
