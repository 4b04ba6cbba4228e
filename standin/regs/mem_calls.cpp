// Memories: entries by copy, array and index; and single words of the bus, below everything.
#include <bit>

#include "helper/bus.h"
#include "sdk/soc/chip.h"
#include "sdk/soc/mem.h"
#include "sdk/soc/reg.h"
#include "standin/regs/access.h"
#include "standin/regs/words.h"

using namespace standin;

extern "C" {

int soc_mem_read(int unit, int mem, int copyno, int index, unsigned int *entry_data) {
    return access_memory(__func__, {unit, mem, 0, copyno, index, Direction::kRead}, entry_data);
}

int soc_mem_write(int unit, int mem, int copyno, int index, unsigned int *entry_data) {
    return access_memory(__func__, {unit, mem, 0, copyno, index, Direction::kWrite}, entry_data);
}

int soc_mem_array_read(int unit, int mem, unsigned int array_index, int copyno, int index,
                       void *entry_data) {
    return access_memory(__func__, {unit, mem, array_index, copyno, index, Direction::kRead},
                         static_cast<std::uint32_t *>(entry_data));
}

int soc_mem_array_write(int unit, int mem, unsigned int array_index, int copyno, int index,
                        void *entry_data) {
    return access_memory(__func__, {unit, mem, array_index, copyno, index, Direction::kWrite},
                         static_cast<std::uint32_t *>(entry_data));
}

// What hardware holds, whatever the shadow says. All ones where nothing answers: no unit, a
// device that is not mapped, an address with nothing behind it.
unsigned int korvel_read_low(int unit, uint32 addr) {
    return unit_value(__func__, unit, kNoAddress, [&](const Unit &view) {
        std::uint32_t value = 0;
        if (word_mask(addr) == 0 || hardware_read(view, addr, value) < 0) return kNoAddress;
        return value;
    });
}

// Changes hardware behind the shadow's back. BCM_E_NOT_FOUND: nothing at that address.
int korvel_write_low(int unit, uint32 addr, uint32 data) {
    return on_unit(__func__, unit, Need::kDevice, [&](const Unit &view) {
        const std::uint32_t mask = word_mask(addr);
        return mask == 0 ? BCM_E_NOT_FOUND : hardware_write(view, addr, data & mask);
    });
}

// The chip's internal bus has the offset above and the number of the block in the low 7 bits.
U32 sbusFormatAddress(int unit, U32 addr) {
    constexpr int kBlockBits = 32 - kBlockShift;
    return unit_value(__func__, unit, addr,
                      [&](const Unit &) { return std::rotl(addr, kBlockBits); });
}

// Types 0, 1 and 2 are the counters of frames, bytes and multicast frames of the port.
void soc_fe1600_stat_write(int unit, int port, int type, uint64 value) {
    constexpr int counters[] = {RBCAr, RBYTr, RMCAr};
    if (within(type, 0, 2)) soc_reg64_set(unit, counters[type], port, 0, value);
}

}  // extern "C"
