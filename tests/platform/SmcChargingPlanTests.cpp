#include "platform/SmcChargingPlan.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "platform/SmcParameterBlock.hpp"

namespace quorvane {
namespace {

using Write = SmcChargingPlan::Write;

constexpr std::uint32_t kCHTE = 0x43485445;  // 'C' 'H' 'T' 'E', first character highest
constexpr std::uint32_t kCH0B = 0x43483042;
constexpr std::uint32_t kCH0C = 0x43483043;

// A controller that knows the given keys with the given sizes, and records what was asked.
struct Controller {
    explicit Controller(std::map<std::uint32_t, std::size_t> known = {})
        : sizes(std::move(known)) {}

    std::map<std::uint32_t, std::size_t> sizes;
    std::vector<std::uint32_t> asked;

    SmcChargingPlan::KeySize keySize() {
        return [this](std::uint32_t key) {
            asked.push_back(key);
            const auto found = sizes.find(key);
            return found == sizes.end() ? std::size_t{0} : found->second;
        };
    }
};

TEST(SmcChargingPlanTests, FourCharacterCodesPutTheFirstCharacterHighest) {
    EXPECT_EQ(fourCharCode("CHTE"), kCHTE);
    EXPECT_EQ(fourCharCode("CH0B"), kCH0B);
}

TEST(SmcChargingPlanTests, CurrentFirmwareHoldsAndReleasesThroughOneFourByteKeyLowByteFirst) {
    Controller smc({{kCHTE, 4}, {kCH0B, 1}, {kCH0C, 1}});
    EXPECT_EQ(SmcChargingPlan::writes(false, smc.keySize()),
              (std::vector<Write>{{kCHTE, {1, 0, 0, 0}}}));
    EXPECT_EQ(SmcChargingPlan::writes(true, smc.keySize()),
              (std::vector<Write>{{kCHTE, {0, 0, 0, 0}}}));
}

TEST(SmcChargingPlanTests, OlderFirmwareWritesBothOneByteKeys) {
    Controller smc({{kCH0B, 1}, {kCH0C, 1}});
    EXPECT_EQ(SmcChargingPlan::writes(false, smc.keySize()),
              (std::vector<Write>{{kCH0B, {2}}, {kCH0C, {2}}}));
    EXPECT_EQ(SmcChargingPlan::writes(true, smc.keySize()),
              (std::vector<Write>{{kCH0B, {0}}, {kCH0C, {0}}}));
}

// A key of another size is some other key by that name: writing a guess could set anything.
TEST(SmcChargingPlanTests, KeysOfUnexpectedSizesAreNeverWritten) {
    Controller wideLegacy({{kCHTE, 8}, {kCH0B, 1}, {kCH0C, 2}});
    EXPECT_EQ(SmcChargingPlan::writes(false, wideLegacy.keySize()), std::nullopt);

    Controller halfLegacy({{kCH0B, 1}});
    EXPECT_EQ(SmcChargingPlan::writes(false, halfLegacy.keySize()), std::nullopt);

    Controller none;
    EXPECT_EQ(SmcChargingPlan::writes(true, none.keySize()), std::nullopt);
    EXPECT_EQ(none.asked, (std::vector<std::uint32_t>{kCHTE, kCH0B}));
}

// A failed write must not stop the others: the battery would be left half switched.
TEST(SmcChargingPlanTests, ApplyingMakesEveryWriteAndSaysWhetherAllWereTaken) {
    Controller smc({{kCH0B, 1}, {kCH0C, 1}});
    std::vector<Write> made;
    const auto refuseCH0B = [&made](const Write& write) {
        made.push_back(write);
        return write.key != kCH0B;
    };
    EXPECT_FALSE(SmcChargingPlan::apply(false, smc.keySize(), refuseCH0B));
    EXPECT_EQ(made, (std::vector<Write>{{kCH0B, {2}}, {kCH0C, {2}}}));

    EXPECT_TRUE(SmcChargingPlan::apply(true, smc.keySize(), [](const Write&) { return true; }));

    Controller none;
    made.clear();
    EXPECT_FALSE(SmcChargingPlan::apply(true, none.keySize(), refuseCH0B));
    EXPECT_TRUE(made.empty());
}

TEST(SmcChargingPlanTests, RequestsCarryTheCommandKeyAndValue) {
    const auto info = SmcParameterBlock::keyInfoRequest(kCHTE);
    EXPECT_EQ(info.key, kCHTE);
    EXPECT_EQ(info.command, SmcParameterBlock::kCommandKeyInfo);

    const std::vector<std::uint8_t> value{1, 0, 0, 0};
    const auto write = SmcParameterBlock::writeRequest(kCHTE, value);
    ASSERT_TRUE(write);
    EXPECT_EQ(write->command, SmcParameterBlock::kCommandWriteKey);
    EXPECT_EQ(write->keyDataSize, 4u);
    EXPECT_EQ(write->bytes[0], 1);
    EXPECT_EQ(SmcParameterBlock::writeRequest(kCHTE, std::vector<std::uint8_t>(33)), std::nullopt);
}

}  // namespace
}  // namespace quorvane
