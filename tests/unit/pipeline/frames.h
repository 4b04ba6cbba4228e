// Frames made byte by byte, beside the parsers that they test, and what becomes of them in a
// switch.
#pragma once
#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <regex>
#include <string>
#include <vector>

#include "chip_fixture.h"
#include "sdk/bcm/switch.h"
#include "standin/chapters/packet_hooks.h"

namespace standin {

using Frame = std::vector<std::uint8_t>;

inline Frame operator+(Frame one, const Frame &other) {
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

inline Frame n16(unsigned number) {
    return {static_cast<std::uint8_t>(number >> 8), static_cast<std::uint8_t>(number)};
}
inline Frame n32(std::uint32_t number) { return n16(number >> 16) + n16(number & 0xffff); }

// The Internet checksum of RFC 1071, as in its section 4.1.
inline unsigned checksum(const Frame &bytes) {
    std::uint64_t sum = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        sum += std::uint64_t{bytes[i]} << (i % 2 == 0 ? 8 : 0);
    while (sum >> 16 != 0) sum = (sum & 0xffff) + (sum >> 16);
    return ~static_cast<unsigned>(sum) & 0xffff;
}

inline Frame mac(std::uint32_t number) {
    Mac made(number);
    return {made.bytes.begin(), made.bytes.end()};
}
inline Frame tag(unsigned vid, unsigned priority = 0) {
    return n16(0x8100) + n16(priority << 13 | vid);
}

inline Frame ip4(std::uint32_t source, std::uint32_t target, unsigned protocol, const Frame &data,
                 unsigned hops = 64) {
    const Frame first = n16(0x4500) + n16(static_cast<unsigned>(20 + data.size())) +
                        n32(0x12340000) + n16(hops << 8 | protocol);
    const Frame last = n32(source) + n32(target);
    return first + n16(checksum(first + n16(0) + last)) + last + data;
}
inline Frame udp(unsigned source, unsigned target, const Frame &data = {}) {
    return n16(source) + n16(target) + n16(static_cast<unsigned>(8 + data.size())) + n16(0) + data;
}
inline Frame arp(unsigned operation, std::uint32_t sender, std::uint32_t target) {
    return n16(1) + n16(0x0800) + n16(0x0604) + n16(operation) + mac(1) + n32(sender) + mac(0) +
           n32(target);
}

// A frame of a type for experiments, from station 1 to station 2.
inline Frame plain(const Frame &tags = {}, std::size_t size = 46) {
    return mac(2) + mac(1) + tags + n16(0x88b5) + Frame(size, 0x5a);
}

inline int control(int kind, int value = 1) {
    return bcm_switch_control_set(0, static_cast<bcm_switch_control_t>(kind), value);
}

struct Sent {
    int port;
    Frame frame;
};

inline std::vector<Sent> inject(int port, const Frame &frame, int expected = BCM_E_NONE) {
    std::vector<Sent> copies;
    const auto keep = [](void *context, int out, const uint8 *bytes, int size) {
        static_cast<std::vector<Sent> *>(context)->push_back({out, Frame(bytes, bytes + size)});
    };
    EXPECT_EQ(
        standin_packet_inject(0, port, frame.data(), static_cast<int>(frame.size()), keep, &copies),
        expected);
    return copies;
}

// By name of the reason, those that are not 0.
inline std::map<std::string, unsigned long long> ended() {
    std::map<std::string, unsigned long long> counts;
    for (int i = 0; const char *const row = standin_packet_reason(i); ++i) {
        const std::string name(row, std::string(row).find('\t'));
        unsigned long long count = 0;
        EXPECT_EQ(standin_packet_ended(0, name.c_str(), &count), BCM_E_NONE);
        if (count != 0) counts[name] = count;
    }
    return counts;
}

// A copy in one word: "3" left port 3 untagged, "3:100" with a tag, "3:100p5" with priority 5.
inline std::string word_of_copy(int port, const Frame &frame) {
    std::string word = std::to_string(port);
    if (frame.size() < 16 || frame[12] != 0x81 || frame[13] != 0) return word;
    word += ":" + std::to_string((frame[14] << 8 | frame[15]) & 0xfff);
    if (frame[14] >> 5 != 0) word += "p" + std::to_string(frame[14] >> 5);
    return word;
}

inline std::string joined(std::vector<std::string> words) {
    std::ranges::sort(words);
    std::string text;
    for (const std::string &word : words) text += (text.empty() ? "" : " ") + word;
    return text;
}

// The copies that left and the reasons for which others ended, sorted.
inline std::string outcome(int port, const Frame &frame) {
    auto before = ended();
    std::vector<std::string> words;
    for (const Sent &one : inject(port, frame)) words.push_back(word_of_copy(one.port, one.frame));
    for (const auto &[name, count] : ended())
        for (auto i = before[name]; i < count && name != "sent"; ++i) words.push_back(name);
    return joined(words);
}

// The same as a trace tells it beforehand.
inline std::string foretold(int port, const Frame &frame) {
    int status = 0;
    const char *const json =
        standin_packet_trace(0, port, frame.data(), static_cast<int>(frame.size()), 1, 0, &status);
    EXPECT_EQ(status, BCM_E_NONE);
    if (json == nullptr) return {};
    static const std::regex leaf(
        R"re("reason": "(\w+)", "object": "[^"]*"(?:, "port": (\d+), "frame": "(\w+)")?)re");
    const std::string text = json;
    std::vector<std::string> words;
    for (std::sregex_iterator at(text.begin(), text.end(), leaf), end; at != end; ++at) {
        if ((*at)[1] != "sent") {
            words.push_back((*at)[1]);
            continue;
        }
        Frame bytes;
        const std::string hex = (*at)[3];
        for (std::size_t i = 0; i + 1 < hex.size(); i += 2)
            bytes.push_back(static_cast<std::uint8_t>(std::stoi(hex.substr(i, 2), nullptr, 16)));
        words.push_back(word_of_copy(std::stoi((*at)[2]), bytes));
    }
    return joined(words);
}

}  // namespace standin
