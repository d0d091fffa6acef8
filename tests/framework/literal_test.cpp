#include "krm/framework/literal.h"

#include <gtest/gtest.h>

#include <string_view>
#include <type_traits>

namespace {

using krm::Joined;
using krm::Literal;

template <Literal text>
struct Named {
    static constexpr std::string_view kName = text.View();
};

// Equal texts are one template argument.
static_assert(std::is_same_v<Named<"GetDTC">, Named<"GetDTC">>);
static_assert(!std::is_same_v<Named<"GetDTC">, Named<"GetDTc">>);
static_assert(!std::is_same_v<Named<"GetDTC">, Named<"GetDT">>);
static_assert(Named<"GetDTC">::kName == "GetDTC");

TEST(Literal, IsTheTextAndItsEnd) {
    static constexpr Literal kText("GetDTC");
    EXPECT_STREQ(kText.Text(), "GetDTC");
    EXPECT_EQ(kText.View(), "GetDTC");
    EXPECT_EQ(sizeof kText, 7U);
    static constexpr Literal kNone("");
    EXPECT_STREQ(kNone.Text(), "");
    EXPECT_TRUE(kNone.View().empty());
}

TEST(Joined, PutsTextsOneBehindTheOther) {
    static constexpr auto kThree = Joined<"CKRMC", "GetDTC", "Snd">();
    EXPECT_STREQ(kThree.Text(), "CKRMCGetDTCSnd");
    EXPECT_EQ(kThree.View().size(), 14U);
    static constexpr auto kOne = Joined<"GetDTC">();
    EXPECT_STREQ(kOne.Text(), "GetDTC");
    static_assert(std::is_same_v<decltype(kOne), const Literal<7>>);
}

TEST(Joined, EmptyTextsAddNothing) {
    static constexpr auto kEmptyOnes = Joined<"", "a", "", "b", "">();
    EXPECT_STREQ(kEmptyOnes.Text(), "ab");
    static constexpr auto kNothing = Joined<"", "">();
    EXPECT_STREQ(kNothing.Text(), "");
    EXPECT_EQ(sizeof kNothing, 1U);
}

}  // namespace
