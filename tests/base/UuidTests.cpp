#include <gtest/gtest.h>

#include <unordered_set>

#include "base/Uuid.hpp"

namespace quorvane {
namespace {

TEST(Uuid, RandomIdentifiersAreVersion4AndDistinct) {
    std::unordered_set<Uuid> seen;
    for (int i = 0; i < 1000; ++i) {
        const Uuid uuid = Uuid::random();
        EXPECT_EQ(uuid.bytes()[6] >> 4, 4);
        EXPECT_EQ(uuid.bytes()[8] >> 6, 0b10);
        const std::string text = uuid.text();
        EXPECT_EQ(text[14], '4');
        EXPECT_EQ(Uuid::parse(text), uuid);
        EXPECT_TRUE(seen.insert(uuid).second) << text;
    }
}

TEST(Uuid, ParsesEitherCaseAndWritesUpperCase) {
    const auto uuid = Uuid::parse("e621e1f8-c36c-495a-93fc-0c247a3e6e5f");
    ASSERT_TRUE(uuid.has_value());
    EXPECT_EQ(uuid->text(), "E621E1F8-C36C-495A-93FC-0C247A3E6E5F");
    EXPECT_EQ(uuid->bytes()[0], 0xE6);
    EXPECT_EQ(uuid->bytes()[15], 0x5F);
    EXPECT_EQ(Uuid::parse("E621E1F8-C36C-495A-93FC-0C247A3E6E5F"), uuid);
    EXPECT_EQ(Uuid().text(), "00000000-0000-0000-0000-000000000000");
    EXPECT_LT(Uuid(), *uuid);
    EXPECT_LT(*Uuid::parse("E621E1F8-C36C-495A-93FC-0C247A3E6E5E"), *uuid);

    for (const char* text :
         {"", "E621E1F8C36C495A93FC0C247A3E6E5F", "{E621E1F8-C36C-495A-93FC-0C247A3E6E5F}",
          "E621E1F8-C36C-495A-93FC-0C247A3E6E5", "E621E1F8-C36C-495A-93FC-0C247A3E6E5F0",
          "E621E1F-8C36C-495A-93FC-0C247A3E6E5F", "G621E1F8-C36C-495A-93FC-0C247A3E6E5F",
          "E621E1F8-C36C-495A-93FC+0C247A3E6E5F"}) {
        EXPECT_FALSE(Uuid::parse(text).has_value()) << text;
    }
}

}  // namespace
}  // namespace quorvane
