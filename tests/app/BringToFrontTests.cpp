#include "app/BringToFront.hpp"

#include <gtest/gtest.h>

#include "support/FakeAccessibility.hpp"
#include "support/FakeWorkspace.hpp"

namespace quorvane {
namespace {

TEST(BringToFrontTest, AccessibilityFirstAndTheWorkspaceOnlyWhenItRefuses) {
    FakeAccessibility accessibility;
    FakeWorkspace workspace;

    // Trusted: the application element is made frontmost, which works while another app is
    // active; a cooperative activation request would be ignored then, so none is made.
    EXPECT_TRUE(bringToFront(accessibility, workspace, 42));
    EXPECT_EQ(std::get<bool>(accessibility.attributes.at(
                  {accessibility.application(42).get(), "AXFrontmost"})),
              true);
    EXPECT_TRUE(workspace.activated.empty());

    // Refused (not trusted, or the process has gone): the workspace's activation is tried, and
    // its answer is the result.
    accessibility.writeAnswers["AXFrontmost"] = -25211;  // API disabled
    workspace.add(7, "com.example.editor");
    EXPECT_TRUE(bringToFront(accessibility, workspace, 7));
    EXPECT_FALSE(bringToFront(accessibility, workspace, 8)) << "no such application";
    EXPECT_EQ(workspace.activated, (std::vector<int>{7, 8}));
    EXPECT_FALSE(
        accessibility.attributes.contains({accessibility.application(7).get(), "AXFrontmost"}));
}

}  // namespace
}  // namespace quorvane
