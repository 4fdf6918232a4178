#include "ui/StyledText.hpp"

#include <gtest/gtest.h>

#include "app/PermissionCard.hpp"
#include "app/PermissionCenter.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

using Runs = std::vector<StyledText::Run>;

TEST(StyledText, DoubleAsterisksMarkBoldRunsAndAnOpenPairStaysAsWritten) {
    EXPECT_EQ(StyledText::parse("1. Click **Open System Settings**."),
              (Runs{{"1. Click ", false}, {"Open System Settings", true}, {".", false}}));
    EXPECT_EQ(StyledText::parse("**Quorvane**"), (Runs{{"Quorvane", true}}));
    EXPECT_EQ(StyledText::parse("a ** b"), (Runs{{"a ** b", false}}));
    EXPECT_EQ(StyledText::parse("**a** ** b"), (Runs{{"a", true}, {" ** b", false}}));
    EXPECT_EQ(StyledText::parse("a****b"), (Runs{{"ab", false}}));
    EXPECT_TRUE(StyledText::parse("").empty());
}

TEST(StyledText, EveryPermissionStepHasItsBoldPartsClosed) {
    FakePlatform fakes;
    PermissionCenter center(fakes.permissionProbe, fakes.scheduler, fakes.workspace);
    for (const auto permission : kAllPermissions) {
        for (const auto& step : PermissionCard::make(permission, center).steps) {
            for (const auto& run : StyledText::parse(step)) {
                EXPECT_EQ(run.text.find("**"), std::string::npos) << step;
            }
        }
    }
}

}  // namespace
}  // namespace quorvane
