// What holds for each message without exception. A class that is missing does not compile; one that is wrong fails by
// its name.

#include <gmock/gmock.h>

#include <cstddef>
#include <iterator>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <vector>

#include "krm/fields/all_fields.h"
#include "krm/framework/commands.h"
#include "krm/framework/message.h"
#include "krm/messages/all_messages.h"
#include "tests/support/all_classes.h"
#include "tests/support/any_class.h"

namespace {

using krm::test::AnyClass;
using krm::test::AnyClassOf;

// One line of the list of messages.
struct ListedMessage {
    const char* name;
    krm_ulong type;
    krm_ulong id;
    std::string_view command;
    AnyClass any;
    std::size_t baseSize;
    bool hasItsBase;
    krm::Direction direction;
    krm_ulong typeConstant;
    krm_ulong idConstant;
    CKRMBaseAdaptationData& (*untyped)(void* it);
    const std::type_info& (*typeInfo)();
};

void PrintTo(const ListedMessage& message, std::ostream* out) {
    *out << message.name;
}

template <class Message>
CKRMBaseAdaptationData& Untyped(void* it) {
    return *static_cast<Message*>(it);
}
template <class Message>
const std::type_info& TypeInfo() {
    return typeid(Message);
}

template <class Message, class Base>
constexpr ListedMessage Listed(const char* name, krm_ulong type, krm_ulong id, std::string_view command) {
    return {name,
            type,
            id,
            command,
            AnyClassOf<Message>(nullptr),
            sizeof(Base),
            std::is_base_of_v<Base, Message>,
            Message::kDirection,
            Message::kCommandType,
            Message::kCommandId,
            &Untyped<Message>,
            &TypeInfo<Message>};
}

#define KRM_LISTED(Class, Base, type, id, command) Listed<Class, Base>(#Class, type, id, command),
constexpr ListedMessage kListed[] = {KRM_ALL_MESSAGES(KRM_LISTED)};
#undef KRM_LISTED

const std::vector<ListedMessage> kMessages = [] {
    std::vector<ListedMessage> messages(std::begin(kListed), std::end(kListed));
    for (ListedMessage& message : messages) {
        message.any.type = krm::test::FindType(message.name);
    }
    return messages;
}();

class EveryMessage : public testing::TestWithParam<ListedMessage> {
protected:
    void SetUp() override { krm::test::AssertDescribed(GetParam().any, GetParam().name); }
};
INSTANTIATE_TEST_SUITE_P(All, EveryMessage, testing::ValuesIn(kMessages),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(EveryMessage, HasItsBaseTypeAndId) {
    EXPECT_TRUE(GetParam().hasItsBase);
    EXPECT_EQ(GetParam().typeConstant, GetParam().type);
    EXPECT_EQ(GetParam().idConstant, GetParam().id);
    const AnyClass::Object it = GetParam().any.Make();
    const CKRMBaseAdaptationData& message = GetParam().untyped(it.get());
    EXPECT_EQ(message.GetCommandType(), GetParam().type);
    EXPECT_EQ(message.GetCommandID(), GetParam().id);
    // By its address alone tests find type and ID of a message that another one holds.
    EXPECT_EQ(krm::test::MessageAt(*GetParam().any.type, it.get()), &message);
}

TEST_P(EveryMessage, ClearRestoresTypeAndId) {
    const AnyClass::Object it = GetParam().any.Make();
    CKRMBaseAdaptationData& message = GetParam().untyped(it.get());
    message.SetCommandID(99);
    message.SetCommandType(0);
    message.Clear();
    EXPECT_EQ(message.GetCommandType(), GetParam().type);
    EXPECT_EQ(message.GetCommandID(), GetParam().id);
}

TEST_P(EveryMessage, HasItsFieldsInOrderAndNoOther) {
    krm::test::ExpectFieldsFillTheObject(GetParam().any, GetParam().baseSize);
}

TEST_P(EveryMessage, StartsAsDocumented) {
    krm::test::ExpectDocumentedStart(GetParam().any);
}

TEST_P(EveryMessage, ClearRestoresTheStart) {
    krm::test::ExpectClearRestoresTheStart(GetParam().any);
}

TEST_P(EveryMessage, CopiesShareNothing) {
    krm::test::ExpectCopiesShareNothing(GetParam().any);
}

TEST_P(EveryMessage, AssignmentsShareNothing) {
    krm::test::ExpectAssignmentsShareNothing(GetParam().any);
}

// A message made from what stands in front of its content.

TEST_P(EveryMessage, IsMadeFromTypeIdAndDirection) {
    const std::string_view name = GetParam().name;
    const krm::Direction direction = name.ends_with("Snd") ? krm::Direction::Send : krm::Direction::Receive;
    EXPECT_EQ(GetParam().direction, direction);
    const std::unique_ptr<CKRMBaseAdaptationData> made = krm::NewMessage(GetParam().type, GetParam().id, direction);
    ASSERT_NE(made, nullptr);
    const CKRMBaseAdaptationData& object = *made;
    ASSERT_TRUE(typeid(object) == GetParam().typeInfo()) << typeid(object).name();
    const AnyClass::Object fresh = GetParam().any.Make();
    EXPECT_EQ(krm::test::Described(*GetParam().any.type, dynamic_cast<const void*>(&object)),
              GetParam().any.Described(fresh));
}

TEST(NewMessage, GivesNullForWhatIsNoMessages) {
    const krm_ulong strange[][2] = {{0, 0}, {0, 2}, {1, 0}, {1, 1},  {1, 3},  {1, 128}, {1, 0xFFFFFFFFU},
                                    {2, 6}, {3, 1}, {8, 3}, {10, 6}, {14, 3}, {15, 1},  {0xFFFFFFFFU, 2}};
    for (const auto& [type, id] : strange) {
        EXPECT_EQ(krm::NewMessage(type, id, krm::Direction::Send), nullptr) << type << ' ' << id;
        EXPECT_EQ(krm::NewMessage(type, id, krm::Direction::Receive), nullptr) << type << ' ' << id;
    }
    EXPECT_EQ(krm::NewMessage(1, 2, static_cast<krm::Direction>(2)), nullptr);
}

// The library's list of messages is the one of the tests, in its order.
template <class First, class... Others>
krm::ClassList<Others...> WithoutFirst(krm::ClassList<First, Others...>);
#define KRM_NEXT(Class, ...) , Class
static_assert(
    std::is_same_v<krm::AllMessageClasses, decltype(WithoutFirst(krm::ClassList<void KRM_ALL_MESSAGES(KRM_NEXT)>()))>);
#undef KRM_NEXT

// The name of the class of `command`'s request (`direction` "Snd") or answer ("Rcv").
std::string ClassName(const krm::Command& command, std::string_view direction) {
    std::string_view family;
    switch (command.family) {
        case krm::CommandFamily::Diagnostic:
            family = "CmdAdaptData";
            break;
        case krm::CommandFamily::Viewer:
            family = "VdcAdaptData";
            break;
        case krm::CommandFamily::StoredDataImport:
            family = "DsdiAdaptData";
            break;
        case krm::CommandFamily::UnitConversion:
            family = "UccAdaptData";
            break;
        case krm::CommandFamily::WordsTable:
            family = "DwtAdaptData";
            break;
    }
    const std::string_view name = command.name;
    if (command.family == krm::CommandFamily::Viewer && (name == "GetHelpInfo" || name == "GetPcViewerResource")) {
        family = "VdcAdptData";
    }
    return "CKRMC" + std::string(name) + std::string(family) + std::string(direction);
}

TEST(TableOfCommands, HasARequestAndAnAnswerForEachCommand) {
    for (const krm::Command& command : krm::kCommands) {
        std::vector<std::string> names;
        for (const ListedMessage& message : kMessages) {
            if (message.type == static_cast<krm_ulong>(command.family) && message.id == command.id) {
                names.emplace_back(message.name);
            }
        }
        EXPECT_THAT(names, testing::UnorderedElementsAre(ClassName(command, "Snd"), ClassName(command, "Rcv")));
    }
}

TEST(TableOfCommands, HasTheCommandOfEachMessage) {
    for (const ListedMessage& message : kMessages) {
        const krm::Command* const command = krm::FindCommand(message.type, message.id);
        ASSERT_NE(command, nullptr) << message.name;
        EXPECT_EQ(command->name, message.command) << message.name;
        EXPECT_THAT(message.name, testing::AnyOf(ClassName(*command, "Snd"), ClassName(*command, "Rcv")));
    }
}

TEST(TableOfCommands, Has79CommandsOf158Messages) {
    EXPECT_EQ(std::size(krm::kCommands), 79U);
    EXPECT_EQ(std::size(kMessages), 158U);
    std::set<std::string_view> names;
    for (const ListedMessage& message : kMessages) {
        EXPECT_TRUE(names.insert(message.name).second) << message.name << " is listed twice";
    }
}

}  // namespace
