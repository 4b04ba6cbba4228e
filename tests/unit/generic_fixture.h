// A process with one started switch, unit 0, reached as an agent reaches it: by public calls only.
#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "helper/device.h"
#include "sdk/constants.h"
#include "sdk/sal/config.h"
#include "sdk/soc/init.h"
#include "standin/chapters/hooks.h"

constexpr int kNoUnit = 7;

class Generic : public ::testing::Test {
  protected:
    void SetUp() override {
        standin_reset();
        sal_config_flush();
        ASSERT_EQ(addOmbraDevice(0, 1, 0, 0), 0);
        ASSERT_EQ(soc_init(0), BCM_E_NONE);
    }
    void TearDown() override {
        standin_reset();
        sal_config_flush();
    }

    void set(std::string name, std::string value) {
        ASSERT_EQ(sal_config_set(name.data(), value.data()), 0);
    }
};
