#include "platform/FirmwareVariables.hpp"

#include <gtest/gtest.h>

#include <string>

namespace quorvane {
namespace {

TEST(FirmwareVariables, TakesTheBytesOfDataOrTextOnly) {
    EXPECT_EQ(FirmwareVariables::bytes(PreferenceValue::Data{'%', 0x00, 0xff}),
              std::string("%\0\xff", 3));
    EXPECT_EQ(FirmwareVariables::bytes("en_GB"), "en_GB");
    EXPECT_EQ(FirmwareVariables::bytes(1), std::nullopt);
}

}  // namespace
}  // namespace quorvane
