// A started switch, unit 0, and nothing left over from another test.
#pragma once
#include "helper/bus.h"
#include "sdk/soc/mem.h"
#include "sdk/soc/reg.h"
#include "standin/phy/hooks.h"
#include "standin/regs/hooks.h"
#include "chip_fixture.h"

namespace standin {

class RegsTest : public Chip {
  protected:
    void SetUp() override {
        standin_shadow_reset();
        standin_mdio_clear();
        Chip::SetUp();
    }
    void TearDown() override {
        Chip::TearDown();
        standin_shadow_reset();
        standin_mdio_clear();
    }
};

// The value that a call leaves behind its last argument; the test fails if it has another status.
template <class Number, class Call>
Number value_of(Call &&call) {
    Number value{};
    EXPECT_EQ(call(&value), BCM_E_NONE);
    return value;
}

inline std::uint32_t get32(int reg, int port = REG_PORT_ANY, int index = 0, int unit = 0) {
    return value_of<std::uint32_t>(
        [&](auto *value) { return soc_reg32_get(unit, reg, port, index, value); });
}

}  // namespace standin
