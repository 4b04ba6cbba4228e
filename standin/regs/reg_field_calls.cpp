// Fields of registers and of table entries: of a value in hand, and of the register itself.
//
// A field that the register doesn't have reads as 0, is left alone when set, and is BCM_E_NOT_FOUND
// where there is a status. Setting a value in hand drops the bits that do not fit, and needs no
// unit that is started, since the layout is that of the chip.
//
// A modify call refuses bits that do not fit with BCM_E_PARAM and changes nothing. It is a read and
// a write: threads that change one register agree between themselves.
#include <algorithm>
#include <array>

#include "sdk/soc/mem.h"
#include "sdk/soc/reg.h"
#include "standin/regs/access.h"
#include "standin/regs/bits.h"

using namespace standin;

namespace {

using Value = std::array<std::uint32_t, kMostWords>;

std::array<std::uint32_t, 2> words_of(uint64 value) {
    return {static_cast<std::uint32_t>(value), static_cast<std::uint32_t>(value >> 32)};
}

uint64 number_of(std::span<const std::uint32_t> words) { return get_bits(words, 0, 64); }

const FieldPlace *find_field(soc_reg_t reg, soc_field_t field) {
    const RegisterLayout *const layout = find_register(reg);
    return layout == nullptr ? nullptr : layout->field(field);
}

bool fits(const FieldPlace &field, uint64 value) { return (value & ~low_mask(field.bits)) == 0; }

// The lowest bits, up to 64, of a field of `value`. 0 for a field that doesn't lie in it.
uint64 field_of(const char *function, int unit, soc_reg_t reg, std::span<const std::uint32_t> value,
                soc_field_t id) {
    const FieldPlace *const field = find_field(reg, id);
    const bool inside = field != nullptr && field->first + field->bits <= 32 * value.size();
    if (!inside) return 0;
    return unit_value(function, unit, uint64{0}, [&](const Unit &) {
        return get_bits(value, field->first, std::min(field->bits, 64u));
    });
}

// Puts a number into a field of `value`; zeros into the rest of a wider field.
void put_field(const FieldPlace &field, std::span<std::uint32_t> value, uint64 number) {
    put_bits(value, field.first, std::min(field.bits, 64u), number);
    for (unsigned done = 64; done < field.bits; done += 64)
        put_bits(value, field.first + done, std::min(field.bits - done, 64u), 0);
}

// The same by number; nothing for a field that doesn't lie in `value`.
void set_field(const char *function, int unit, soc_reg_t reg, std::span<std::uint32_t> value,
               soc_field_t id, uint64 number) {
    const FieldPlace *const field = find_field(reg, id);
    if (field == nullptr || field->first + field->bits > 32 * value.size()) return;
    on_unit(function, unit, Need::kDevice, [&](const Unit &) {
        put_field(*field, value, number);
        return BCM_E_NONE;
    });
}

// As many words of a caller's array as the register has.
template <class Word>
std::span<Word> value_words(soc_reg_t reg, Word *value) {
    const RegisterLayout *const layout = find_register(reg);
    if (layout == nullptr || value == nullptr) return {};
    return {value, layout->words()};
}

struct Change {
    soc_field_t field;
    uint64 value;
};

// Changes fields of the register itself, all or none.
int modify(const char *function, int unit, soc_reg_t reg, int port, int index,
           std::span<const Change> changes) {
    Value value{};
    const RegisterCall get{unit, reg, port, index, Direction::kRead};
    if (const int status = access_register(function, get, value); status < 0) return status;
    for (const Change &change : changes) {
        const FieldPlace *const field = find_field(reg, change.field);
        if (field == nullptr) return BCM_E_NOT_FOUND;
        if (!fits(*field, change.value)) return BCM_E_PARAM;
        put_field(*field, value, change.value);
    }
    const RegisterCall set{unit, reg, port, index, Direction::kWrite};
    return access_register(function, set, value);
}

// Reads a field of the register itself; `give(field, value)` hands it over.
template <class Give>
int read_field(const char *function, const RegisterCall &call, soc_field_t id, const void *out,
               Give &&give_field) {
    Value value{};
    if (const int status = access_register(function, call, value); status < 0) return status;
    const FieldPlace *const field = find_field(call.reg, id);
    if (field == nullptr) return BCM_E_NOT_FOUND;
    if (out == nullptr) return BCM_E_PARAM;
    give_field(*field, value);
    return BCM_E_NONE;
}

void copy_field(const FieldPlace &field, std::span<const std::uint32_t> value,
                unsigned int out[20]) {
    std::fill_n(out, kMostWords, 0u);
    for (unsigned done = 0; done < field.bits; done += 32) {
        const unsigned bits = std::min(field.bits - done, 32u);
        out[done / 32] = static_cast<unsigned int>(get_bits(value, field.first + done, bits));
    }
}

int validate(const char *function, int unit, soc_reg_t reg, soc_field_t id, uint64 value) {
    return on_unit(function, unit, Need::kDevice, [&](const Unit &) {
        const FieldPlace *const field = find_field(reg, id);
        if (field == nullptr) return BCM_E_NOT_FOUND;
        return fits(*field, value) ? BCM_E_NONE : BCM_E_PARAM;
    });
}

template <class Number>
void put_low(const FieldPlace &field, const Value &value, Number *out) {
    const unsigned bits = std::min(field.bits, unsigned{8 * sizeof(Number)});
    *out = static_cast<Number>(get_bits(value, field.first, bits));
}

}  // namespace

extern "C" {

// -- a value in hand ---------------------------------------------------------------------------

uint32 soc_reg_field_get(int unit, soc_reg_t reg, uint32 regval, soc_field_t field) {
    return static_cast<uint32>(field_of(__func__, unit, reg, {&regval, 1}, field));
}

void soc_reg_field_set(int unit, soc_reg_t reg, uint32 *regval, soc_field_t field, uint32 value) {
    if (regval != nullptr) set_field(__func__, unit, reg, {regval, 1}, field, value);
}

uint64 soc_reg64_field_get(int unit, soc_reg_t reg, uint64 regval, soc_field_t field) {
    return field_of(__func__, unit, reg, words_of(regval), field);
}

void soc_reg64_field_set(int unit, soc_reg_t reg, uint64 *regval, soc_field_t field, uint64 value) {
    if (regval == nullptr) return;
    auto words = words_of(*regval);
    set_field(__func__, unit, reg, words, field, value);
    *regval = number_of(words);
}

uint32 soc_reg64_field32_get(int unit, soc_reg_t reg, uint64 regval, soc_field_t field) {
    return static_cast<uint32>(soc_reg64_field_get(unit, reg, regval, field));
}

void soc_reg64_field32_set(int unit, soc_reg_t reg, uint64 *regval, soc_field_t field,
                           uint32 value) {
    soc_reg64_field_set(unit, reg, regval, field, value);
}

void soc_reg_above_64_field_get(int unit, soc_reg_t reg, unsigned int regval[20], soc_field_t field,
                                unsigned int field_val[20]) {
    if (field_val == nullptr) return;
    std::fill_n(field_val, kMostWords, 0u);
    const auto value = value_words<const unsigned int>(reg, regval);
    const FieldPlace *const found = value.empty() ? nullptr : find_field(reg, field);
    if (found == nullptr) return;
    on_unit(__func__, unit, Need::kDevice, [&](const Unit &) {
        copy_field(*found, value, field_val);
        return BCM_E_NONE;
    });
}

void soc_reg_above_64_field_set(int unit, soc_reg_t reg, unsigned int regval[20], soc_field_t field,
                                unsigned int const value[20]) {
    const auto whole = value_words(reg, regval);
    const FieldPlace *const found = whole.empty() ? nullptr : find_field(reg, field);
    if (found == nullptr || value == nullptr) return;
    on_unit(__func__, unit, Need::kDevice, [&](const Unit &) {
        for (unsigned done = 0; done < found->bits; done += 32) {
            put_bits(whole, found->first + done, std::min(found->bits - done, 32u),
                     value[done / 32]);
        }
        return BCM_E_NONE;
    });
}

uint64 soc_reg_above_64_field64_get(int unit, soc_reg_t reg, unsigned int regval[20],
                                    soc_field_t field) {
    return field_of(__func__, unit, reg, value_words<const unsigned int>(reg, regval), field);
}

uint32 soc_reg_above_64_field32_get(int unit, soc_reg_t reg, unsigned int regval[20],
                                    soc_field_t field) {
    return static_cast<uint32>(soc_reg_above_64_field64_get(unit, reg, regval, field));
}

void soc_reg_above_64_field64_set(int unit, soc_reg_t reg, unsigned int regval[20],
                                  soc_field_t field, uint64 value) {
    set_field(__func__, unit, reg, value_words(reg, regval), field, value);
}

void soc_reg_above_64_field32_set(int unit, soc_reg_t reg, unsigned int regval[20],
                                  soc_field_t field, uint32 value) {
    soc_reg_above_64_field64_set(unit, reg, regval, field, value);
}

// The lowest 32 bits of a field of an entry.
uint32 soc_mem_field32_get(int unit, int mem, unsigned int *entry_data, int field) {
    const MemoryLayout *const layout = find_memory(mem);
    const FieldPlace *const found = layout == nullptr ? nullptr : layout->field(field);
    if (found == nullptr || entry_data == nullptr) return 0;
    return unit_value(__func__, unit, uint32{0}, [&](const Unit &) {
        return get_bits({entry_data, layout->words()}, found->first, std::min(found->bits, 32u));
    });
}

// -- the register itself -----------------------------------------------------------------------

int soc_reg_above_64_field_read(int unit, soc_reg_t reg, soc_port_t port, int index,
                                soc_field_t field, unsigned int out_field_val[20]) {
    return read_field(
        __func__, {unit, reg, port, index, Direction::kRead}, field, out_field_val,
        [&](const FieldPlace &at, const Value &value) { copy_field(at, value, out_field_val); });
}

int soc_reg_above_64_field32_read(int unit, soc_reg_t reg, soc_port_t port, int index,
                                  soc_field_t field, uint32 *out_field_val) {
    return read_field(
        __func__, {unit, reg, port, index, Direction::kRead}, field, out_field_val,
        [&](const FieldPlace &at, const Value &value) { put_low(at, value, out_field_val); });
}

int soc_reg_above_64_field64_read(int unit, soc_reg_t reg, soc_port_t port, int index,
                                  soc_field_t field, uint64 *out_field_val) {
    return read_field(
        __func__, {unit, reg, port, index, Direction::kRead}, field, out_field_val,
        [&](const FieldPlace &at, const Value &value) { put_low(at, value, out_field_val); });
}

int soc_reg_field32_modify(int unit, soc_reg_t reg, soc_port_t port, soc_field_t field,
                           uint32 value) {
    const Change change{field, value};
    return modify(__func__, unit, reg, port, 0, {&change, 1});
}

int soc_reg_fields32_modify(int unit, soc_reg_t reg, soc_port_t port, int field_count,
                            soc_field_t *fields, uint32 *values) {
    if (const int status = unit_reachable(unit, Need::kReset); status < 0) return status;
    constexpr int most = 32 * static_cast<int>(kMostWords);  // no register has more
    if (!within(field_count, 0, most) ||
        (field_count > 0 && (fields == nullptr || values == nullptr))) {
        return BCM_E_PARAM;
    }
    std::vector<Change> changes;
    changes.reserve(static_cast<std::size_t>(field_count));
    for (int i = 0; i < field_count; ++i) changes.push_back({fields[i], values[i]});
    return modify(__func__, unit, reg, port, 0, changes);
}

int soc_reg_above_64_field32_modify(int unit, soc_reg_t reg, soc_port_t port, int index,
                                    soc_field_t field, uint32 value) {
    const Change change{field, value};
    return modify(__func__, unit, reg, port, index, {&change, 1});
}

int soc_reg_above_64_field64_modify(int unit, soc_reg_t reg, soc_port_t port, int index,
                                    soc_field_t field, uint64 value) {
    const Change change{field, value};
    return modify(__func__, unit, reg, port, index, {&change, 1});
}

// -- properties --------------------------------------------------------------------------------

// In bits; 0 for a field that the register doesn't have.
int soc_reg_field_length(int unit, soc_reg_t reg, soc_field_t field) {
    const FieldPlace *const found = find_field(reg, field);
    return unit_value(__func__, unit, 0,
                      [&](const Unit &) { return found == nullptr ? 0u : found->bits; });
}

int soc_reg_field_valid(int unit, soc_reg_t reg, soc_field_t field) {
    const bool valid = find_field(reg, field) != nullptr;
    return unit_value(__func__, unit, 0, [&](const Unit &) { return valid; });
}

int soc_reg_field_validate(int unit, soc_reg_t reg, soc_field_t field, uint32 value) {
    return validate(__func__, unit, reg, field, value);
}

int soc_reg64_field_validate(int unit, soc_reg_t reg, soc_field_t field, uint64 value) {
    return validate(__func__, unit, reg, field, value);
}

// The two's complement of `value_in` in the width of the field. BCM_E_PARAM: it does not fit.
int soc_reg_signed_field_mask(int unit, soc_reg_t reg, soc_field_t field, int32 value_in,
                              uint32 *value_out) {
    return on_unit(__func__, unit, Need::kDevice, [&](const Unit &) {
        const FieldPlace *const found = find_field(reg, field);
        if (found == nullptr) return BCM_E_NOT_FOUND;
        const unsigned bits = std::min(found->bits, 32u);
        const std::int64_t limit = std::int64_t{1} << (bits - 1);
        if (!within<std::int64_t>(value_in, -limit, limit - 1)) return BCM_E_PARAM;
        return give(value_out, static_cast<uint64>(value_in) & low_mask(bits));
    });
}

}  // extern "C"
