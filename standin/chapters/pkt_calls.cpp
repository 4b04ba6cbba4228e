// The calls of the packet chapter: making packets, filling their blocks, freeing them.
#include "sdk/bcm/pkt.h"

#include <algorithm>
#include <cstring>

#include "standin/chapters/packet_book.h"
#include "standin/model/model.h"

using namespace standin;

namespace {

// Answers a call that gives out packets; `make` gives null for a size that is none.
template <class T, class Make>
int give_made(const char *function, int unit, T **out, Make &&make) {
    return on_switch(function, unit, [&](Switch &) {
        if (out == nullptr) return int{BCM_E_PARAM};
        T *const made = make();
        return made == nullptr ? int{BCM_E_PARAM} : give(out, made);
    });
}

// Freeing works also while the chip is not ready.
template <class Free>
int take_back(const char *function, int unit, Free &&free) {
    if (const int fault = fault_check(function); fault != BCM_E_NONE) return fault;
    if (const int status = unit_status(unit); status == BCM_E_UNIT) return status;
    return free();
}

// The block and the place in it of a byte of the packet; null: there is none.
bcm_pkt_blk_t *find_byte(bcm_pkt_t *pkt, int offset, int &at) {
    if (pkt == nullptr || pkt->pkt_data == nullptr || offset < 0) return nullptr;
    at = offset;
    for (int i = 0; i < pkt->blk_count; ++i) {
        bcm_pkt_blk_t &block = pkt->pkt_data[i];
        if (block.len < 0 || block.data == nullptr) return nullptr;
        if (at < block.len) return &block;
        at -= block.len;
    }
    return nullptr;
}

}  // namespace

extern "C" {

int bcm_pkt_alloc(int unit, int size, uint32 /*flags*/, bcm_pkt_t **pkt_buf) {
    return give_made(__func__, unit, pkt_buf, [&] { return take_packet(unit, size); });
}

int bcm_pkt_free(int unit, bcm_pkt_t *pkt) {
    return take_back(__func__, unit, [&] { return free_packet(pkt); });
}

int bcm_pkt_rx_alloc(int unit, int len, bcm_pkt_t **pkt) {
    return give_made(__func__, unit, pkt, [&] { return take_packet(unit, len); });
}

int bcm_pkt_rx_free(int unit, bcm_pkt_t *pkt) {
    return take_back(__func__, unit, [&] { return free_packet(pkt); });
}

// An array of `count` packets, each of one block of `size` bytes. The array is a buffer.
int bcm_pkt_blk_alloc(int unit, int count, int size, uint32 /*flags*/, bcm_pkt_t ***pkt_array) {
    return give_made(__func__, unit, pkt_array, [&]() -> bcm_pkt_t ** {
        if (!within(count, 1, kMostBlocks) || !within(size, 0, kLargestBuffer)) return nullptr;
        const auto bytes = static_cast<int>(sizeof(bcm_pkt_t *)) * count;
        auto **const array = static_cast<bcm_pkt_t **>(take_buffer(unit, bytes));
        for (int i = 0; i < count; ++i) array[i] = take_packet(unit, size);
        return array;
    });
}

int bcm_pkt_blk_free(int unit, bcm_pkt_t **pkt_array, int count) {
    return take_back(__func__, unit, [&]() -> int {
        if (pkt_array == nullptr || count < 1) return BCM_E_PARAM;
        int status = BCM_E_NONE;
        for (int i = 0; i < count; ++i)
            if (const int one = free_packet(pkt_array[i]); one != BCM_E_NONE) status = one;
        const int last = free_buffer(pkt_array);
        return status != BCM_E_NONE ? status : last;
    });
}

// Puts a packet of the caller into its first state, around blocks of the caller. The packet goes to
// `pkt_buf` too, if that is there.
int bcm_pkt_clear(int unit, bcm_pkt_t *pkt, bcm_pkt_blk_t *blks, int blk_count, uint32 flags,
                  bcm_pkt_t **pkt_buf) {
    return on_switch(__func__, unit, [&](Switch &) {
        if (pkt == nullptr || !within(blk_count, 0, kMostBlocks) ||
            (blks == nullptr && blk_count > 0))
            return int{BCM_E_PARAM};
        *pkt = bcm_pkt_t{};
        pkt->unit = static_cast<uint8>(unit);
        pkt->pkt_data = blks;
        pkt->blk_count = static_cast<uint8>(blk_count);
        pkt->flags = flags;
        if (pkt_buf != nullptr) *pkt_buf = pkt;
        return int{BCM_E_NONE};
    });
}

int bcm_pkt_flags_init(int unit, bcm_pkt_t *pkt, uint32 init_flags) {
    return on_switch(__func__, unit, [&](Switch &) {
        return pkt == nullptr ? int{BCM_E_PARAM} : give(&pkt->flags, init_flags);
    });
}

// The first `blk_count` blocks are the packet, `len` bytes of it in the first.
int bcm_pkt_flags_len_setup(int unit, bcm_pkt_t *pkt, int blk_count, int len, uint32 flags) {
    return on_switch(__func__, unit, [&](Switch &) {
        if (pkt == nullptr || !within(blk_count, 0, kMostBlocks) || len < 0)
            return int{BCM_E_PARAM};
        if (pkt->pkt_data != nullptr && blk_count > 0) pkt->pkt_data[0].len = len;
        pkt->blk_count = static_cast<uint8>(blk_count);
        pkt->pkt_len = static_cast<uint16>(len);
        pkt->flags = flags;
        return int{BCM_E_NONE};
    });
}

int bcm_pkt_byte_index(bcm_pkt_t *pkt, int offset, int *buf_index, int *buf_offset, uint8 **data) {
    if (const int fault = fault_check(__func__); fault != BCM_E_NONE) return fault;
    int at = 0;
    bcm_pkt_blk_t *const block = find_byte(pkt, offset, at);
    if (block == nullptr) return BCM_E_PARAM;
    if (buf_index != nullptr) *buf_index = static_cast<int>(block - pkt->pkt_data);
    if (buf_offset != nullptr) *buf_offset = at;
    if (data != nullptr) *data = block->data + at;
    return BCM_E_NONE;
}

// Into the blocks from that byte on. Nothing is copied if it does not fit.
int bcm_pkt_memcpy(bcm_pkt_t *pkt, int offset, uint8 *src, int len) {
    if (const int fault = fault_check(__func__); fault != BCM_E_NONE) return fault;
    int at = 0;
    if (len < 0 || (src == nullptr && len > 0)) return BCM_E_PARAM;
    if (len == 0) return BCM_E_NONE;
    if (find_byte(pkt, offset, at) == nullptr || offset > 0x7fffffff - len) return BCM_E_PARAM;
    int end = 0;
    if (find_byte(pkt, offset + len - 1, end) == nullptr) return BCM_E_PARAM;
    for (int done = 0; done < len;) {
        bcm_pkt_blk_t *const block = find_byte(pkt, offset + done, at);
        const int part = std::min(len - done, block->len - at);
        std::memcpy(block->data + at, src + done, static_cast<std::size_t>(part));
        done += part;
    }
    return BCM_E_NONE;
}

}  // extern "C"
