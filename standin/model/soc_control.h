// The control record of a unit: the block of memory behind `soc_control[unit]`.
//
// Nobody outside the chip library knows more of it than the copy numbers of layout/sdk_words.h.
#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

namespace standin {

class ControlRecord {
  public:
    ControlRecord() = default;
    ControlRecord(const ControlRecord &) = delete;
    ControlRecord &operator=(const ControlRecord &) = delete;
    ~ControlRecord();

    // Fills the record and publishes it as `soc_control[unit]`, until this object dies.
    void attach(int unit);

  private:
    void put(std::size_t offset, std::int32_t value);

    int unit_ = -1;
    std::vector<std::uint32_t> words_;
};

}  // namespace standin
