// The frames that passed a port, kept in memory as a capture file (pcap, microseconds, Ethernet).
#pragma once
#include <cstdint>

#include "standin/pipeline/bytes.h"

namespace standin {

class Capture {
  public:
    // `sides` are bits: 1 what comes in, 2 what goes out. No more than `limit` bytes are kept; what
    // does not fit is counted and left out.
    explicit Capture(int sides = kIn | kOut, std::size_t limit = 16u << 20);

    static constexpr int kIn = 1;
    static constexpr int kOut = 2;

    void add(int side, std::uint64_t microseconds, View frame);

    const Bytes &file() const { return file_; }
    std::uint64_t left_out() const { return left_out_; }

  private:
    Bytes file_;
    int sides_;
    std::size_t limit_;
    std::uint64_t left_out_ = 0;
};

}  // namespace standin
