// What a network card would do to a frame that the kernel left half done: checksums that are to be
// filled in, and segments that are to be cut.
#pragma once
#include <vector>

#include "standin/pipeline/bytes.h"

namespace standin {

struct Offload {
    bool sums = false;  // the sum from `from` to the end goes to `from + at`
    std::size_t from = 0;
    std::size_t at = 0;
    std::size_t segment = 0;  // payload of a TCP segment; 0: the frame is one
};

// The frames as they would be on a wire. Nothing for one that contradicts its own offload.
std::vector<Bytes> finish(Bytes frame, const Offload &offload);

// The sum of a TCP or UDP header with its pseudo header, complemented: what belongs into the
// header when the field was 0.
std::uint16_t transport_sum(View source, View target, unsigned protocol, View data);

// A tag goes behind the addresses.
void insert_tag(Bytes &frame, unsigned type, unsigned control);

}  // namespace standin
