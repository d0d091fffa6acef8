#include "krm/framework/commands.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "tests/support/all_classes.h"

namespace {

// Two rows per command, for its request and its answer.
constexpr struct {
    krm_ulong type;
    krm_ulong id;
    const char* name;
} kRows[] = {
#define KRM_ROW(Class, Base, type, id, name) {type, id, name},
    KRM_ALL_MESSAGES(KRM_ROW)
#undef KRM_ROW
};

TEST(CommandsTest, TheTableHasAll79AndNoOther) {
    static_assert(std::size(krm::kCommands) == 79);
    static_assert(std::size(kRows) == 2 * 79);
    for (const auto& row : kRows) {
        const krm::Command* const command = krm::FindCommand(row.type, row.id);
        ASSERT_NE(command, nullptr) << row.name;
        EXPECT_EQ(static_cast<krm_ulong>(command->family), row.type) << row.name;
        EXPECT_EQ(command->id, row.id) << row.name;
        EXPECT_STREQ(command->name, row.name);
    }
}

TEST(CommandsTest, TheTableStandsByFamilyAndId) {
    for (std::size_t i = 0; i < std::size(kRows); ++i) {
        EXPECT_EQ(static_cast<krm_ulong>(krm::kCommands[i / 2].family), kRows[i].type) << i;
        EXPECT_EQ(krm::kCommands[i / 2].id, kRows[i].id) << i;
        EXPECT_STREQ(krm::kCommands[i / 2].name, kRows[i].name) << i;
    }
    for (std::size_t i = 1; i < std::size(krm::kCommands); ++i) {
        const krm::Command& before = krm::kCommands[i - 1];
        EXPECT_LT((std::pair(before.family, before.id)), (std::pair(krm::kCommands[i].family, krm::kCommands[i].id)));
    }
}

TEST(CommandsTest, IdsAndNamesAreUniqueWithinAFamily) {
    std::set<std::pair<krm::CommandFamily, krm_ulong>> ids;
    std::set<std::pair<krm::CommandFamily, std::string>> names;
    std::map<krm::CommandFamily, int> counts;
    for (const krm::Command& command : krm::kCommands) {
        EXPECT_TRUE(ids.insert({command.family, command.id}).second) << command.name;
        EXPECT_TRUE(names.insert({command.family, command.name}).second) << command.name;
        ++counts[command.family];
    }
    EXPECT_EQ(counts[krm::CommandFamily::Diagnostic], 65);
    EXPECT_EQ(counts[krm::CommandFamily::Viewer], 5);
    EXPECT_EQ(counts[krm::CommandFamily::StoredDataImport], 2);
    EXPECT_EQ(counts[krm::CommandFamily::UnitConversion], 5);
    EXPECT_EQ(counts[krm::CommandFamily::WordsTable], 2);
}

TEST(CommandsTest, GapsHaveNoCommand) {
    const std::pair<krm_ulong, krm_ulong> gaps[] = {
        {0, 0},  {0, 2},  {1, 0},  {1, 1}, {1, 3}, {1, 128}, {1, 0xFFFFFFFFU}, {2, 0},       {2, 6},      {8, 3},
        {10, 6}, {14, 0}, {14, 3}, {3, 1}, {9, 1}, {15, 1},  {0xFFFFFFFFU, 2}, {0x10001, 2}, {1, 0x10002}};
    for (const auto& [type, id] : gaps) {
        EXPECT_EQ(krm::FindCommand(type, id), nullptr) << type << ' ' << id;
    }
}

using krm::CommandFamily;
using krm::CommandName;
static_assert(static_cast<krm_ulong>(CommandFamily::Diagnostic) == 1);
static_assert(static_cast<krm_ulong>(CommandFamily::Viewer) == 2);
static_assert(static_cast<krm_ulong>(CommandFamily::StoredDataImport) == 8);
static_assert(static_cast<krm_ulong>(CommandFamily::UnitConversion) == 10);
static_assert(static_cast<krm_ulong>(CommandFamily::WordsTable) == 14);

// Every command by its name while compiling, also the name that two families have.
#define KRM_CHECK(Class, Base, type, number, name)                                     \
    static_assert(krm::CommandId(static_cast<CommandFamily>(type), name) == number);   \
    static_assert(CommandName(name).IdIn(static_cast<CommandFamily>(type)) == number); \
    static_assert(krm::FindCommand(type, number)->id == number);
KRM_ALL_MESSAGES(KRM_CHECK)
#undef KRM_CHECK

// A user's own command: neither its ID nor its name may be one of its family's, those of other families may.
static_assert(CommandName("ReadPaintCode", 900).IdIn(CommandFamily::Diagnostic) == 900);
static_assert(CommandName("ReadPaintCode", 0x10001).IdIn(CommandFamily::Diagnostic) == 0x10001);
static_assert(CommandName("ReadPaintCode", 0x10002).IdIn(CommandFamily::Diagnostic) == 0x10002);
static_assert(CommandName("ReadPaintCode", 900).name.View() == "ReadPaintCode");
static_assert(CommandName("GetHelpInfo", 900).IdIn(CommandFamily::Diagnostic) == 900);
static_assert(CommandName("ReadPaintCode", 127).IdIn(CommandFamily::Viewer) == 127);
static_assert(CommandName("NextToTheLast", 128).IdIn(CommandFamily::Diagnostic) == 128);

}  // namespace
