// Whole registers, by number and by address.
#include <algorithm>
#include <array>

#include "sdk/soc/reg.h"
#include "standin/regs/access.h"

using namespace standin;

namespace {

constexpr auto kRead = Direction::kRead;
constexpr auto kWrite = Direction::kWrite;

constexpr std::uint32_t low_word(uint64 value) { return static_cast<std::uint32_t>(value); }
constexpr std::uint32_t high_word(uint64 value) { return static_cast<std::uint32_t>(value >> 32); }

// Reads through `read(words)` into the caller's number, which a failure leaves alone.
template <std::size_t kWords, class Number, class Read>
int read_number(Number *data, Read &&read) {
    std::array<std::uint32_t, kWords> words{};
    const int status = read(std::span<std::uint32_t>(words));
    if (status < 0) return status;
    if (data == nullptr) return BCM_E_PARAM;
    uint64 value = words[0];
    if constexpr (kWords > 1) value |= uint64{words[1]} << 32;
    *data = static_cast<Number>(value);
    return status;
}

template <std::size_t kWords, class Number>
int get_register(const char *function, const RegisterCall &call, Number *data) {
    return read_number<kWords>(data,
                               [&](auto words) { return access_register(function, call, words); });
}

int set_register(const char *function, const RegisterCall &call, uint64 data) {
    std::array words{low_word(data), high_word(data)};
    return access_register(function, call, words);
}

// Finds the element that begins at `address`. BCM_E_NOT_FOUND: no such register; BCM_E_PARAM:
// none of its elements does.
int call_at(int unit, soc_reg_t reg, uint32 address, Direction direction, RegisterCall &call) {
    if (find_register(reg) == nullptr) return BCM_E_NOT_FOUND;
    const auto place = find_register_at(address);
    if (!place || place->layout->id != reg || place->word != 0) return BCM_E_PARAM;
    call = {unit, reg, port_of(*place->layout, place->instance), place->index, direction};
    return BCM_E_NONE;
}

// call_at once the unit is known to be there.
int checked_call_at(int unit, soc_reg_t reg, uint32 address, Direction direction,
                    RegisterCall &call) {
    const int status = unit_reachable(unit, Need::kReset);
    return status < 0 ? status : call_at(unit, reg, address, direction, call);
}

}  // namespace

extern "C" {

int soc_reg_read(int unit, soc_reg_t reg, uint32 addr, uint64 *data) {
    RegisterCall call{};
    const int status = checked_call_at(unit, reg, addr, kRead, call);
    return status < 0 ? status : get_register<2>(__func__, call, data);
}

int soc_reg_write(int unit, soc_reg_t reg, uint32 addr, uint64 data) {
    RegisterCall call{};
    const int status = checked_call_at(unit, reg, addr, kWrite, call);
    return status < 0 ? status : set_register(__func__, call, data);
}

int soc_reg_get(int unit, soc_reg_t reg, int port, int index, uint64 *data) {
    return get_register<2>(__func__, {unit, reg, port, index, kRead}, data);
}

int soc_reg_set(int unit, soc_reg_t reg, int port, int index, uint64 data) {
    return set_register(__func__, {unit, reg, port, index, kWrite}, data);
}

int soc_reg32_get(int unit, soc_reg_t reg, int port, int index, uint32 *data) {
    return get_register<1>(__func__, {unit, reg, port, index, kRead}, data);
}

int soc_reg32_set(int unit, soc_reg_t reg, int port, int index, uint32 data) {
    return access_register(__func__, {unit, reg, port, index, kWrite}, {&data, 1});
}

int soc_reg64_get(int unit, soc_reg_t reg, int port, int index, uint64 *data) {
    return get_register<2>(__func__, {unit, reg, port, index, kRead}, data);
}

int soc_reg64_set(int unit, soc_reg_t reg, int port, int index, uint64 data) {
    return set_register(__func__, {unit, reg, port, index, kWrite}, data);
}

int soc_reg32_read(int unit, uint32 addr, uint32 *data) {
    return read_number<1>(
        data, [&](auto words) { return access_words(__func__, unit, addr, kRead, words); });
}

int soc_reg32_write(int unit, uint32 addr, uint32 data) {
    return access_words(__func__, unit, addr, kWrite, {&data, 1});
}

int soc_reg64_read(int unit, uint32 addr, uint64 *data) {
    return read_number<2>(
        data, [&](auto words) { return access_words(__func__, unit, addr, kRead, words); });
}

int soc_reg64_write(int unit, uint32 addr, uint64 data) {
    std::array words{low_word(data), high_word(data)};
    return access_words(__func__, unit, addr, kWrite, words);
}

int soc_reg_above_64_get(int unit, soc_reg_t reg, int port, int index, unsigned int data[20]) {
    std::array<std::uint32_t, kMostWords> words{};
    const int status = access_register(__func__, {unit, reg, port, index, kRead}, words);
    if (status < 0) return status;
    if (data == nullptr) return BCM_E_PARAM;
    std::ranges::copy(words, data);
    return status;
}

// Reads no more of `data` than the register has words.
int soc_reg_above_64_set(int unit, soc_reg_t reg, int port, int index, unsigned int data[20]) {
    const RegisterLayout *const layout = find_register(reg);
    std::array<std::uint32_t, kMostWords> words{};
    if (data == nullptr) {
        const int status = unit_reachable(unit, Need::kReset);
        return status < 0 ? status : BCM_E_PARAM;
    }
    if (layout != nullptr) std::copy_n(data, layout->words(), words.begin());
    return access_register(__func__, {unit, reg, port, index, kWrite}, words);
}

}  // extern "C"
