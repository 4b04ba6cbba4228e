// What the parsers find in frames, and what they refuse.
#include <random>

#include "frames.h"
#include "standin/pipeline/headers.h"

namespace standin {
namespace {

const Frame kMacs = mac(2) + mac(1);
const Frame kFirst = kMacs + n16(0x0800);
const Frame kSix = kMacs + n16(0x86dd);

// An IPv6 header without its payload.
Frame ip6(unsigned next, std::size_t payload) {
    Frame last(32, 0);
    last[0] = last[16] = 0x20;
    return n32(0x6ab12345) + n16(static_cast<unsigned>(payload)) + n16(next << 8 | 9) + last;
}
Frame cut(Frame frame, std::size_t less) {
    frame.resize(frame.size() - less);
    return frame;
}
Frame with(Frame frame, std::size_t at, std::uint8_t byte) {
    frame[at] = byte;
    return frame;
}

struct Bad {
    const char *what;
    Frame frame;
    const char *reason;  // null: nothing is wrong
};

TEST(Parse, SaysWhatIsWrong) {
    const Frame tcp = n16(1) + n16(2) + n32(3) + n32(4) + n16(0x5002) + Frame(6, 0);
    const Frame whole = kFirst + ip4(1, 2, 17, udp(5, 6, {7}));
    const Bad cases[] = {
        {"nothing", {}, "too_short"},
        {"no type", cut(kFirst, 1), "too_short"},
        {"half a tag", kMacs + cut(tag(5), 1), "truncated"},
        {"a tag and no type", kMacs + tag(5), "truncated"},
        {"three tags", kMacs + tag(5) + tag(6) + tag(7), nullptr},
        {"a length that holds", kMacs + n16(3) + Frame(3), nullptr},
        {"a length with padding", kMacs + n16(3) + Frame(46), nullptr},
        {"a length that does not", kMacs + n16(4) + Frame(3), "truncated"},
        {"ARP", kMacs + n16(0x0806) + arp(1, 1, 2), nullptr},
        {"ARP that is cut off", kMacs + n16(0x0806) + cut(arp(1, 1, 2), 1), "truncated"},
        {"ARP with long names", kMacs + n16(0x0806) + with(arp(1, 1, 2), 4, 7), "bad_header"},
        {"ARP of another network", kMacs + n16(0x0806) + with(arp(1, 1, 2), 1, 6), nullptr},
        {"UDP over IPv4", whole, nullptr},
        {"padding behind it", whole + Frame(9), nullptr},
        {"IPv4 of version 5", with(whole, 14, 0x55), "bad_header"},
        {"four words", with(whole, 14, 0x44), "bad_header"},
        {"options that are not there", with(whole, 14, 0x4f), "bad_header"},
        {"a total above the frame", with(whole, 17, 0x40), "truncated"},
        {"a total below the header", with(whole, 17, 19), "bad_header"},
        {"half an IPv4 header", cut(whole, 20), "truncated"},
        {"half a UDP header", kFirst + ip4(1, 2, 17, {1, 2, 3, 4, 5, 6, 7}), "truncated"},
        {"UDP longer than IP", with(whole, 39, 10), "truncated"},
        {"UDP shorter than UDP", with(whole, 39, 7), "bad_header"},
        {"a later fragment has no ports", with(with(whole, 21, 1), 39, 7), nullptr},
        {"TCP", kFirst + ip4(1, 2, 6, tcp), nullptr},
        {"TCP of four words", kFirst + ip4(1, 2, 6, with(tcp, 12, 0x40)), "bad_header"},
        {"TCP options cut off", kFirst + ip4(1, 2, 6, with(tcp, 12, 0x60)), "truncated"},
        {"ICMP of three bytes", kFirst + ip4(1, 2, 1, Frame(3)), "truncated"},
        {"UDP over IPv6", kSix + ip6(17, 8) + udp(1, 2), nullptr},
        {"IPv6 that is cut off", kSix + ip6(17, 8) + cut(udp(1, 2), 1), "truncated"},
        {"IPv6 of version 4", with(kSix + ip6(59, 0), 14, 0x45), "bad_header"},
        {"options of 8 bytes", kSix + ip6(0, 16) + Frame{17} + Frame(7) + udp(1, 2), nullptr},
        {"options above the packet", kSix + ip6(0, 8) + Frame{17, 1} + Frame(6), "bad_header"},
        {"options cut off", kSix + ip6(60, 7) + Frame{17} + Frame(6), "bad_header"},
        {"a later fragment", kSix + ip6(44, 9) + Frame{17, 0, 1, 0} + Frame(5), nullptr}};
    for (const Bad &one : cases) {
        Headers headers;
        const auto reason = parse(one.frame, headers);
        EXPECT_STREQ(reason ? row_of(*reason).name : nullptr, one.reason) << one.what;
    }
}

TEST(Parse, FindsTheFields) {
    Headers one;
    ASSERT_FALSE(parse(kMacs + tag(5, 6) + n16(0x88a8) + n16(0xf007) + n16(0x0800) +
                           ip4(0x0a000001, 0x0a000002, 17, udp(80, 4000)),
                       one));
    EXPECT_EQ(one.ethernet.tags, 2);
    EXPECT_EQ(one.ethernet.tag[0].vlan(), 5);
    EXPECT_EQ(one.ethernet.tag[0].priority(), 6);
    EXPECT_EQ(one.ethernet.tag[1].vlan(), 7);
    EXPECT_EQ(one.ethernet.tag[1].drop_bit(), 1);
    EXPECT_EQ(one.ethernet.payload, 22u);
    EXPECT_EQ(one.ip->target, ip4_address(0x0a000002));
    EXPECT_TRUE(one.ip->checksum_right);
    EXPECT_EQ(one.ports->source, 80);
    EXPECT_EQ(one.ports->target, 4000);

    Headers six;
    ASSERT_FALSE(parse(kSix + ip6(0, 20) + Frame{58} + Frame(7) + Frame{135, 1} + Frame(10), six));
    EXPECT_EQ(six.ip->service, 0xab);
    EXPECT_EQ(six.ip->flow, 0x12345u);
    EXPECT_EQ(six.ip->hops, 9);
    EXPECT_TRUE(six.ip->options);
    EXPECT_EQ(six.icmp->type, 135);
    EXPECT_TRUE(six.is_ip6());
}

// Nothing is read outside the bytes, which a sanitizer sees: each frame has its own memory.
TEST(Parse, ReadsOnlyWhatIsThere) {
    std::mt19937 random(20);
    const Frame seeds[] = {kMacs + tag(1) + tag(2) + n16(0x0800) + ip4(1, 2, 6, Frame(20, 0x55)),
                           kSix + ip6(0, 40) + Frame{44} + Frame(7) + Frame{6} + Frame(31, 0x50),
                           kMacs + n16(0x0806) + arp(2, 3, 4)};
    for (int round = 0; round < 20'000; ++round) {
        Frame frame = seeds[random() % std::size(seeds)];
        frame.resize(random() % (frame.size() + 1));
        frame.shrink_to_fit();
        for (auto i = random() % 4; i > 0 && !frame.empty(); --i)
            frame[random() % frame.size()] = static_cast<std::uint8_t>(random());
        Headers headers;
        if (parse(frame, headers)) continue;
        EXPECT_LE(headers.ethernet.payload, frame.size());
        if (!headers.ip) continue;
        EXPECT_LE(headers.ip->at + headers.ip->total, frame.size());
    }
}

}  // namespace
}  // namespace standin
