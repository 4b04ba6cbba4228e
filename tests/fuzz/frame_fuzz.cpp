// Any bytes as a frame, and as one that a kernel left half done.
#include "fuzz.h"
#include "standin/pipeline/headers.h"
#include "standin/pipeline/offload.h"

using namespace standin;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    std::string_view text = fuzz::text_of(data, size);
    Offload offload;
    const unsigned choice = fuzz::take_choice(text);
    offload.sums = (choice & 1) != 0;
    offload.from = fuzz::take_choice(text);
    offload.at = choice >> 2;
    if ((choice & 2) != 0) offload.segment = 1 + offload.from;
    const auto *const bytes = reinterpret_cast<const std::uint8_t *>(text.data());
    const Bytes frame(bytes, bytes + text.size());
    Headers headers;
    const bool good = !parse(frame, headers);
    if (good) {
        fuzz::must(headers.ethernet.payload <= frame.size(), "the payload is in the frame");
        fuzz::must(!headers.ip || headers.ip->at + headers.ip->total <= frame.size(),
                   "the packet is in the frame");
        fuzz::must(!headers.ip || headers.ip->size <= headers.ip->total, "so is its header");
    }
    for (const Bytes &one : finish(frame, offload)) {
        Headers cut;
        fuzz::must(one.size() <= frame.size(), "a segment is no longer than the whole");
        fuzz::must(offload.segment == 0 || !parse(one, cut), "a segment is a frame");
    }
    return 0;
}
