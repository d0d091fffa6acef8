// Every message class as JSON and back.
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "krm/exchange/json.h"
#include "krm/fields/message_descriptions.h"
#include "tests/exchange/random_content.h"
#include "tests/support/all_classes.h"
#include "tests/support/fields.h"
#include "tests/support/not_under.h"

namespace {

struct ListedMessage {
    std::string_view className;
    krm_ulong type;
    krm_ulong id;

    krm::Direction direction() const {
        return className.ends_with("Snd") ? krm::Direction::Send : krm::Direction::Receive;
    }
};

void PrintTo(const ListedMessage& message, std::ostream* out) {
    *out << message.className;
}

#define KRM_LISTED(Class, Base, type, id, command) {#Class, type, id},
constexpr ListedMessage kListed[] = {KRM_ALL_MESSAGES(KRM_LISTED)};
#undef KRM_LISTED

class JsonOfEveryMessage : public testing::TestWithParam<ListedMessage> {
protected:
    /// All that a message of the class holds.
    static std::string Described(const CKRMBaseAdaptationData& message) {
        const krm::TypeDescription* const type = krm::test::FindType(GetParam().className);
        EXPECT_NE(type, nullptr);
        return type != nullptr ? krm::test::Described(*type, dynamic_cast<const void*>(&message)) : "";
    }
};
INSTANTIATE_TEST_SUITE_P(All, JsonOfEveryMessage, testing::ValuesIn(kListed),
                         [](const auto& test) { return std::string(test.param.className); });

TEST_P(JsonOfEveryMessage, GivesAnEqualObject) {
    KRM_NOT_UNDER(Memcheck, "the sweep would take hours");
    const krm::MessageDescription* const description =
        krm::FindMessage(GetParam().type, GetParam().id, GetParam().direction());
    ASSERT_NE(description, nullptr);
    for (std::uint32_t seed = 1; seed <= 24; ++seed) {
        const std::unique_ptr<CKRMBaseAdaptationData> message = krm::test::RandomMessage(*description, seed);
        const std::string text = krm::ToJson(*message, GetParam().direction());
        const krm::MessageFromJson read = krm::FromJson(text);
        ASSERT_TRUE(read) << read.error.path << " @" << read.error.offset << ": " << read.error.text << '\n' << text;
        ASSERT_EQ(read.description, description);
        ASSERT_EQ(Described(*read.message), Described(*message)) << text;
        // It also tells apart what the description doesn't: the bits of NaNs.
        ASSERT_EQ(krm::ToJson(*read.message, *description), text);
    }
}

TEST_P(JsonOfEveryMessage, OfANewObjectGivesANewObject) {
    const krm::MessageDescription& description =
        *krm::FindMessage(GetParam().type, GetParam().id, GetParam().direction());
    const std::unique_ptr<CKRMBaseAdaptationData> fresh = description.create();
    const krm::MessageFromJson read = krm::FromJson(krm::ToJson(*fresh, description));
    const krm::MessageFromJson ofNothing = krm::FromJson(R"({"content":{}})", description);
    ASSERT_TRUE(read && ofNothing);
    EXPECT_EQ(Described(*read.message), Described(*fresh));
    EXPECT_EQ(Described(*ofNothing.message), Described(*fresh));
}

}  // namespace
