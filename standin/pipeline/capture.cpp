// Writing the records of a capture file.
//
//     header   magic 0xa1b2c3d4 | 2, 4 | zone | accuracy | largest frame | link type 1
//     record   seconds | microseconds | bytes kept | bytes on the wire | the frame
//
// All numbers in the order of this machine; the magic says which that is.
#include "standin/pipeline/capture.h"

#include <array>

namespace standin {
namespace {

constexpr std::uint32_t kMagic = 0xa1b2c3d4;
constexpr std::uint32_t kVersion = 2 | 4u << 16;
constexpr std::uint32_t kLongest = 65'535;
constexpr std::uint32_t kEthernetLink = 1;
constexpr std::size_t kRecordSize = 16;

template <std::size_t N>
void append(Bytes &file, const std::array<std::uint32_t, N> &words) {
    const auto *const first = reinterpret_cast<const std::uint8_t *>(words.data());
    file.insert(file.end(), first, first + sizeof words);
}

}  // namespace

Capture::Capture(int sides, std::size_t limit) : sides_(sides), limit_(limit) {
    append(file_, std::array{kMagic, kVersion, 0u, 0u, kLongest, kEthernetLink});
}

void Capture::add(int side, std::uint64_t microseconds, View frame) {
    if ((sides_ & side) == 0) return;
    if (file_.size() + kRecordSize + frame.size() > limit_) {
        ++left_out_;
        return;
    }
    const auto size = static_cast<std::uint32_t>(frame.size());
    append(file_, std::array{static_cast<std::uint32_t>(microseconds / 1'000'000),
                             static_cast<std::uint32_t>(microseconds % 1'000'000), size, size});
    file_.insert(file_.end(), frame.begin(), frame.end());
}

}  // namespace standin
