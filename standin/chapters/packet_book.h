// The packets and buffers that are out: each is known by its address, so that a second free, or one
// of something else, is answered and does no harm, and what was never freed can be counted.
//
//     packet   the record and its blocks in one piece: | bcm_pkt_t | blocks |, and a buffer each
//     buffer   memory for bytes, of a packet or alone
//
// A packet goes with those of its buffers that are still there. Thread-safe.
#pragma once
#include <cstddef>

#include "sdk/bcm/pkt_types.h"

namespace standin {

constexpr int kMostBlocks = 255;
constexpr int kLargestBuffer = 65'536;

// Where buffers come from. The pool holds as many of a size as bcm_rx_pool_setup says.
enum class BufferKind : unsigned char { kPlain, kPool };

// Null: `size` is out of range.
void *take_buffer(int unit, int size, BufferKind kind = BufferKind::kPlain);
// BCM_E_PARAM for null, BCM_E_NOT_FOUND for what is not out.
int free_buffer(void *buffer);

// A packet with `blocks` blocks of `size` bytes each, zeroed.
bcm_pkt_t *take_packet(int unit, int size, int blocks = 1);
// A packet whose one block is memory of somebody else.
bcm_pkt_t *take_packet_around(int unit, void *data, int size);
int free_packet(bcm_pkt_t *packet);

// BCM_E_BUSY while buffers of the pool are out.
int pool_setup(int count, int size);
int pool_cleanup();
bool pool_is_set();
// Whether the pool has another buffer of that size.
bool pool_has(int size);

// How many are out; of all units for -1.
struct BookCounts {
    int packets = 0;
    int buffers = 0;
};
BookCounts counts_of(int unit);

// Frees all of it.
void forget_packets();

}  // namespace standin
