// Making, finding and freeing packets and buffers.
#include "standin/chapters/packet_book.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <mutex>
#include <new>
#include <unordered_map>
#include <vector>

#include "sdk/constants.h"
#include "standin/model/model.h"

namespace standin {
namespace {

struct Buffer {
    int unit = 0;
    BufferKind kind{};
    bcm_pkt_t *owner = nullptr;
    std::unique_ptr<std::uint8_t[]> bytes;
};

struct Packet {
    int unit = 0;
    std::unique_ptr<bcm_pkt_t> record;
    std::vector<bcm_pkt_blk_t> blocks;
};

struct Book {
    std::mutex lock;
    std::unordered_map<const void *, Buffer> buffers;
    std::unordered_map<const bcm_pkt_t *, Packet> packets;
    int pool_count = 0;
    int pool_size = 0;
    int pool_out = 0;
};

Book &book() {
    static Book &one = *new Book;
    return one;
}

// REQUIRES: the book's lock.
void *add_buffer(Book &all, int unit, int size, BufferKind kind, bcm_pkt_t *owner) {
    Buffer made;
    made.unit = unit;
    made.kind = kind;
    made.owner = owner;
    made.bytes = std::make_unique<std::uint8_t[]>(static_cast<std::size_t>(size) + 1);
    void *const at = made.bytes.get();
    all.buffers.emplace(at, std::move(made));
    if (kind == BufferKind::kPool) ++all.pool_out;
    return at;
}

// The packet forgets a buffer that goes.
void unhook(Packet &packet, const void *buffer) {
    for (bcm_pkt_blk_t &block : packet.blocks)
        if (block.data == buffer) block = {};
    if (packet.record->alloc_ptr == buffer) packet.record->alloc_ptr = nullptr;
}

Packet &add_packet(Book &all, int unit, std::size_t blocks) {
    Packet made;
    made.unit = unit;
    made.record = std::make_unique<bcm_pkt_t>();
    made.blocks.resize(blocks);
    bcm_pkt_t *const at = made.record.get();
    Packet &packet = all.packets.emplace(at, std::move(made)).first->second;
    at->unit = static_cast<uint8>(unit);
    at->pkt_data = packet.blocks.data();
    at->blk_count = static_cast<uint8>(blocks);
    return packet;
}

}  // namespace

void *take_buffer(int unit, int size, BufferKind kind) {
    if (!within(size, 0, kLargestBuffer)) return nullptr;
    Book &all = book();
    const std::lock_guard<std::mutex> guard(all.lock);
    return add_buffer(all, unit, size, kind, nullptr);
}

int free_buffer(void *buffer) {
    if (buffer == nullptr) return BCM_E_PARAM;
    Book &all = book();
    const std::lock_guard<std::mutex> guard(all.lock);
    const auto found = all.buffers.find(buffer);
    if (found == all.buffers.end()) return BCM_E_NOT_FOUND;
    if (found->second.owner != nullptr) unhook(all.packets.at(found->second.owner), buffer);
    if (found->second.kind == BufferKind::kPool) --all.pool_out;
    all.buffers.erase(found);
    return BCM_E_NONE;
}

bcm_pkt_t *take_packet(int unit, int size, int blocks) {
    if (!within(size, 0, kLargestBuffer) || !within(blocks, 1, kMostBlocks)) return nullptr;
    Book &all = book();
    const std::lock_guard<std::mutex> guard(all.lock);
    Packet &packet = add_packet(all, unit, static_cast<std::size_t>(blocks));
    bcm_pkt_t &record = *packet.record;
    for (bcm_pkt_blk_t &block : packet.blocks) {
        block.data = static_cast<uint8 *>(add_buffer(all, unit, size, BufferKind::kPlain, &record));
        block.len = size;
    }
    record.alloc_ptr = packet.blocks[0].data;
    record.pkt_len = record.tot_len = static_cast<uint16>(size * blocks);
    return &record;
}

bcm_pkt_t *take_packet_around(int unit, void *data, int size) {
    Book &all = book();
    const std::lock_guard<std::mutex> guard(all.lock);
    Packet &packet = add_packet(all, unit, 1);
    packet.blocks[0] = {static_cast<uint8 *>(data), size};
    packet.record->alloc_ptr = data;
    packet.record->pkt_len = packet.record->tot_len = static_cast<uint16>(size);
    const auto found = all.buffers.find(data);
    if (found != all.buffers.end()) found->second.owner = packet.record.get();
    return packet.record.get();
}

int free_packet(bcm_pkt_t *packet) {
    if (packet == nullptr) return BCM_E_PARAM;
    Book &all = book();
    const std::lock_guard<std::mutex> guard(all.lock);
    const auto found = all.packets.find(packet);
    if (found == all.packets.end()) return BCM_E_NOT_FOUND;
    for (const bcm_pkt_blk_t &block : found->second.blocks) {
        const auto buffer = all.buffers.find(block.data);
        if (buffer != all.buffers.end() && buffer->second.owner == packet)
            all.buffers.erase(buffer);
    }
    all.packets.erase(found);
    return BCM_E_NONE;
}

int pool_setup(int count, int size) {
    if (count < 1 || !within(size, 1, kLargestBuffer)) return BCM_E_PARAM;
    Book &all = book();
    const std::lock_guard<std::mutex> guard(all.lock);
    if (all.pool_out > 0) return BCM_E_BUSY;
    all.pool_count = count;
    all.pool_size = size;
    return BCM_E_NONE;
}

int pool_cleanup() {
    Book &all = book();
    const std::lock_guard<std::mutex> guard(all.lock);
    if (all.pool_out > 0) return BCM_E_BUSY;
    all.pool_count = all.pool_size = 0;
    return BCM_E_NONE;
}

bool pool_is_set() {
    Book &all = book();
    const std::lock_guard<std::mutex> guard(all.lock);
    return all.pool_count > 0;
}

bool pool_has(int size) {
    Book &all = book();
    const std::lock_guard<std::mutex> guard(all.lock);
    return within(size, 0, all.pool_size) && all.pool_out < all.pool_count;
}

BookCounts counts_of(int unit) {
    Book &all = book();
    const std::lock_guard<std::mutex> guard(all.lock);
    BookCounts counts;
    for (const auto &[at, one] : all.packets) counts.packets += unit < 0 || one.unit == unit;
    for (const auto &[at, one] : all.buffers) counts.buffers += unit < 0 || one.unit == unit;
    return counts;
}

void forget_packets() {
    Book &all = book();
    const std::lock_guard<std::mutex> guard(all.lock);
    all.packets.clear();
    all.buffers.clear();
    all.pool_count = all.pool_size = all.pool_out = 0;
}

}  // namespace standin
