#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "krm/platform/platform.h"

namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

using Map = CKRMMap<CKRMString, CKRMString>;

std::vector<std::pair<std::string, std::string>> Pairs(const Map& map) {
    std::vector<std::pair<std::string, std::string>> pairs;
    for (const auto& [key, value] : map) {
        pairs.emplace_back(key.GetText(), value.GetText());
    }
    return pairs;
}

TEST(MapTest, IsEmptyWhenNew) {
    const Map map;
    EXPECT_EQ(map.GetCount(), 0);
    EXPECT_TRUE(map.IsEmpty());
    CKRMString value("untouched");
    EXPECT_FALSE(map.Lookup("key", value));
    EXPECT_STREQ(value.GetText(), "untouched");
}

TEST(MapTest, SetAtAddsOrReplaces) {
    Map map;
    map.SetAt("b", "2");
    map.SetAt("a", "1");
    EXPECT_EQ(map.GetCount(), 2);
    map.SetAt("b", "3");
    EXPECT_EQ(map.GetCount(), 2);
    EXPECT_FALSE(map.IsEmpty());
    CKRMString value;
    EXPECT_TRUE(map.Lookup("b", value));
    EXPECT_STREQ(value.GetText(), "3");
    EXPECT_TRUE(map.Lookup("a", value));
    EXPECT_STREQ(value.GetText(), "1");
    EXPECT_FALSE(map.Lookup("A", value));
}

TEST(MapTest, NullAndEmptyKeysAreOne) {
    Map map;
    map.SetAt(static_cast<const char*>(nullptr), "first");
    map.SetAt("", "second");
    EXPECT_THAT(Pairs(map), ElementsAre(Pair("", "second")));
}

TEST(MapTest, SubscriptAddsAnEmptyValue) {
    Map map;
    EXPECT_STREQ(map["key"].GetText(), "");
    map["key"] = "value";
    EXPECT_THAT(Pairs(map), ElementsAre(Pair("key", "value")));
}

TEST(MapTest, RemoveKeyTellsWhetherItWasThere) {
    Map map;
    map.SetAt("a", "1");
    EXPECT_FALSE(map.RemoveKey("b"));
    EXPECT_TRUE(map.RemoveKey("a"));
    EXPECT_EQ(map.GetCount(), 0);
}

TEST(MapTest, RemoveAllEmpties) {
    Map map;
    map.RemoveAll();
    map.SetAt("a", "1");
    map.SetAt("b", "2");
    map.RemoveAll();
    EXPECT_EQ(map.GetCount(), 0);
    map.SetAt("c", "3");
    EXPECT_THAT(Pairs(map), ElementsAre(Pair("c", "3")));
}

TEST(MapTest, WalksInTheOrderOfItsKeys) {
    Map map;
    for (const char* key : {"b", "a", "ab", "B", ""}) {
        map.SetAt(key, key);
    }
    EXPECT_THAT(Pairs(map),
                ElementsAre(Pair("", ""), Pair("B", "B"), Pair("a", "a"), Pair("ab", "ab"), Pair("b", "b")));
}

TEST(MapTest, CopiesAreDeep) {
    Map map;
    map.SetAt("a", "1");
    Map copy(map);
    copy.SetAt("a", "2");
    copy.SetAt("b", "3");
    EXPECT_THAT(Pairs(map), ElementsAre(Pair("a", "1")));
    map = copy;
    copy.RemoveAll();
    EXPECT_THAT(Pairs(map), ElementsAre(Pair("a", "2"), Pair("b", "3")));
}

TEST(MapTest, HoldsAMegabyteOfText) {
    const std::string large(1024 * 1024, 'z');
    Map map;
    map.SetAt(large.c_str(), large.c_str());
    CKRMString value;
    ASSERT_TRUE(map.Lookup(large.c_str(), value));
    EXPECT_EQ(value.GetText(), large);
}

}  // namespace
