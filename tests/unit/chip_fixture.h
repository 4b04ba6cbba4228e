// A process with one started switch, unit 0, and nothing else.
#pragma once
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>

#include "helper/device.h"
#include "helper/platform.h"
#include "sdk/constants.h"
#include "sdk/soc/init.h"
#include "standin/base/config_store.h"
#include "standin/chapters/hooks.h"
#include "standin/model/port_set.h"

namespace standin {

class Chip : public ::testing::Test {
  protected:
    void SetUp() override {
        standin_reset();
        config_clear();
        ASSERT_EQ(addOmbraDevice(0, 1, 0, 0), 0);
        ASSERT_EQ(soc_init(0), BCM_E_NONE);
    }
    void TearDown() override {
        standin_reset();
        config_clear();
    }
};

// The address 02:00:00:xx:xx:xx that ends in `number`.
struct Mac {
    explicit Mac(std::uint32_t number)
        : bytes{2,
                0,
                0,
                static_cast<std::uint8_t>(number >> 16),
                static_cast<std::uint8_t>(number >> 8),
                static_cast<std::uint8_t>(number)} {}
    std::uint8_t *data() { return bytes.data(); }

    std::array<std::uint8_t, 6> bytes;
};

inline bcm_pbmp_t ports(std::initializer_list<int> numbers) {
    bcm_pbmp_t set{};
    for (const int number : numbers) add_port(set, number);
    return set;
}

}  // namespace standin

// Where the test macros look for it: beside the type.
inline bool operator==(const bcm_pbmp_t &one, const bcm_pbmp_t &other) {
    return standin::is_subset(one, other) && standin::is_subset(other, one);
}
