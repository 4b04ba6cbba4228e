// What a card would have done: sums filled in, segments cut.
#include "standin/pipeline/offload.h"
#include "frames.h"

namespace standin {
namespace {

Frame part(const Frame &frame, std::size_t from, std::size_t to) {
    return {frame.begin() + static_cast<std::ptrdiff_t>(from),
            frame.begin() + static_cast<std::ptrdiff_t>(to)};
}

// The sum over the pseudo header and what IPv4 carries: 0 when it is right.
unsigned sum_of(const Frame &frame, unsigned protocol) {
    return checksum(part(frame, 26, 34) + n16(protocol) +
                    n16(static_cast<unsigned>(frame.size()) - 34) + part(frame, 34, frame.size()));
}

TEST(Offload, TcpIsCutIntoSegments) {
    Frame data(2500, 0);
    for (std::size_t i = 0; i < data.size(); ++i) data[i] = static_cast<std::uint8_t>(i * 7);
    // Push, end, acknowledge and the sign of a reduced window.
    const Frame tcp = n16(80) + n16(4000) + n32(0xffffff00) + n32(9) + n16(0x5099) + Frame(6, 0);
    const Frame whole = mac(2) + mac(1) + n16(0x0800) + ip4(1, 2, 6, tcp + data);
    const auto segments = finish(whole, {.sums = true, .from = 34, .at = 16, .segment = 1000});
    ASSERT_EQ(segments.size(), 3u);
    Frame joined;
    const unsigned flags[] = {0x90, 0x10, 0x19};
    for (std::size_t i = 0; i < 3; ++i) {
        const Frame &one = segments[i];
        EXPECT_EQ(checksum(part(one, 14, 34)), 0u) << i;
        EXPECT_EQ(sum_of(one, 6), 0u) << i;
        EXPECT_EQ(part(one, 16, 18), n16(static_cast<unsigned>(one.size()) - 14));
        EXPECT_EQ(part(one, 18, 20), n16(0x1234 + static_cast<unsigned>(i)));
        EXPECT_EQ(part(one, 38, 42), n32(0xffffff00 + 1000 * static_cast<std::uint32_t>(i)));
        EXPECT_EQ(one[47], flags[i]) << i;
        joined = joined + part(one, 54, one.size());
    }
    EXPECT_EQ(joined, data);
}

TEST(Offload, SumsAreFilledInWhereTheyBelong) {
    // The kernel leaves the sum of the pseudo header in the field.
    Frame frame = mac(2) + mac(1) + n16(0x0800) + ip4(1, 2, 17, udp(5, 6, {1, 2, 3}));
    const unsigned pseudo = ~checksum(n32(1) + n32(2) + n16(17) + n16(11)) & 0xffff;
    frame[40] = static_cast<std::uint8_t>(pseudo >> 8);
    frame[41] = static_cast<std::uint8_t>(pseudo);
    const auto done = finish(frame, {.sums = true, .from = 34, .at = 6, .segment = 0});
    ASSERT_EQ(done.size(), 1u);
    EXPECT_EQ(sum_of(done[0], 17), 0u);
    EXPECT_TRUE(finish(frame, {.sums = true, .from = 44, .at = 6, .segment = 0}).empty());
    EXPECT_TRUE(finish(frame, {.sums = false, .from = 0, .at = 0, .segment = 100}).empty())
        << "not TCP";
    Frame tagged = plain();
    insert_tag(tagged, 0x8100, 100);
    EXPECT_EQ(tagged, plain(tag(100)));
}

}  // namespace
}  // namespace standin
