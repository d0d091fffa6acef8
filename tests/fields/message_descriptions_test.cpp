// Messages described at run time. What a program that doesn't know the classes reads and writes is compared with what one does
// that knows them.
#include "krm/fields/message_descriptions.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

#include "krm/fields/all_fields.h"
#include "krm/framework/dump.h"
#include "krm/messages/all_messages.h"
#include "tests/support/all_classes.h"
#include "tests/support/fields.h"

// A program's own message.
class PaintDescribed
    : public krm::MessageOf<PaintDescribed, CKRMCBaseCmdAdaptDataRcv, krm::CommandName("ReadPaintCode", 900)> {
public:
    void Dump(const krm::MessageLines&) {}

    CKRMString m_strPaintCode;
    CKRMList<CKRMList<signed char>> m_cTones;
};
template <>
struct krm::Fields<PaintDescribed> : krm::FieldList<&PaintDescribed::m_strPaintCode, &PaintDescribed::m_cTones> {};

namespace {

using krm::ConstValue;
using krm::Direction;
using krm::FieldDescription;
using krm::MessageDescription;
using krm::TypeDescription;
using krm::Value;
using krm::ValueKind;
using krm::test::Seed;
using testing::ElementsAre;
using Map = CKRMMap<CKRMString, CKRMString>;

void Write(krm_int64 number, std::string& out) {
    out += std::to_string(number) + ';';
}
void Write(double number, std::string& out) {
    CKRMString text;
    text.Format("%.17g;", number);
    out += text.GetText();
}
void Write(const CKRMString& text, std::string& out) {
    out += '"' + std::string(text.GetText()) + '"';
}
void Write(const Map& map, std::string& out) {
    for (const auto& [key, value] : map) {
        Write(key, out);
        out += ':';
        Write(value, out);
    }
}

/// All that `it` holds, by its class: `Class{field=...}`, elements in brackets.
template <class T>
void WriteTyped(const T& it, std::string& out) {
    if constexpr (std::is_integral_v<T>) {
        Write(static_cast<krm_int64>(it), out);
    } else if constexpr (krm::HasFields<T>) {
        out += std::string(krm::kClassName<T>) + '{';
        krm::ForEachField(it, [&](std::string_view name, const auto& field) {
            out += std::string(name) + '=';
            WriteTyped(field, out);
        });
        out += '}';
    } else if constexpr (krm::kIsList<T> || std::is_array_v<T>) {
        out += '[';
        for (const auto& element : it) {
            WriteTyped(element, out);
        }
        out += ']';
    } else {
        Write(it, out);
    }
}

template <class T>
void FillTyped(T& it, Seed& seed);

// One function for each class: a visitor would be one for each field, which the compiler takes far longer for.
template <class T, auto... members>
void FillFields(T& it, const krm::FieldList<members...>*, Seed& seed) {
    (FillTyped(it.*members, seed), ...);
}

/// Fills `it` and all it holds with values that are not its defaults; each list gets two elements.
template <class T>
void FillTyped(T& it, Seed& seed) {
    if constexpr (std::is_same_v<T, bool>) {
        it = true;
    } else if constexpr (std::is_integral_v<T>) {
        it = static_cast<T>(seed.Next() | 2U);
    } else if constexpr (std::is_same_v<T, double>) {
        it = static_cast<double>(static_cast<std::int32_t>(seed.Next())) / 1024.0 + 0.0625;
    } else if constexpr (std::is_same_v<T, CKRMString>) {
        it = ("text " + std::to_string(seed.Next())).c_str();
    } else if constexpr (std::is_array_v<T>) {
        for (auto& element : it) {
            FillTyped(element, seed);
        }
    } else if constexpr (std::is_same_v<T, Map>) {
        for (int i = 0; i < 2; ++i) {
            CKRMString key;
            CKRMString value;
            FillTyped(key, seed);
            FillTyped(value, seed);
            it.SetAt(key, value);
        }
    } else if constexpr (krm::kIsList<T>) {
        for (int i = 0; i < 2; ++i) {
            krm::ElementOf<T> element{};
            FillTyped(element, seed);
            it.AddTail(element);
        }
    } else {
        if constexpr (krm::HasFieldsOfBase<T>) {
            FillFields(it, static_cast<const krm::Fields<typename T::DirectionBase>*>(nullptr), seed);
        }
        FillFields(it, static_cast<const krm::Fields<T>*>(nullptr), seed);
    }
}

/// The same of a value of any class.
void WriteValue(ConstValue it, std::string& out) {
    switch (it.Kind()) {
        case ValueKind::Bool:
        case ValueKind::Signed:
        case ValueKind::Unsigned:
            Write(it.Integer().value(), out);
            return;
        case ValueKind::Double:
            Write(*it.As<double>(), out);
            return;
        case ValueKind::Text:
            Write(*it.As<CKRMString>(), out);
            return;
        case ValueKind::Map:
            Write(*it.As<Map>(), out);
            return;
        case ValueKind::Record:
            out += std::string(it.Type().className) + '{';
            it.ForEachField([&](std::string_view name, ConstValue field) {
                out += std::string(name) + '=';
                WriteValue(field, out);
            });
            out += '}';
            return;
        case ValueKind::List:
        case ValueKind::Array:
            out += '[';
            it.ForEachElement([&](ConstValue element) { WriteValue(element, out); });
            out += ']';
            return;
    }
}

/// Gives `to` what `from` holds, which is of the same class.
void Copy(ConstValue from, Value to) {
    ASSERT_EQ(&from.Type(), &to.Type());
    std::vector<Value> targets;
    switch (from.Kind()) {
        case ValueKind::Bool:
        case ValueKind::Signed:
        case ValueKind::Unsigned:
            EXPECT_TRUE(to.SetInteger(from.Integer().value()));
            return;
        case ValueKind::Double:
            *to.As<double>() = *from.As<double>();
            return;
        case ValueKind::Text:
            *to.As<CKRMString>() = *from.As<CKRMString>();
            return;
        case ValueKind::Map:
            *to.As<Map>() = *from.As<Map>();
            return;
        case ValueKind::Record:
            for (std::size_t i = 0; i < from.Type().fields.size(); ++i) {
                Copy(from.Field(i), to.Field(i));
            }
            return;
        case ValueKind::List:
            to.RemoveAll();
            from.ForEachElement([&](ConstValue element) { Copy(element, to.Append().value()); });
            return;
        case ValueKind::Array:
            to.ForEachElement([&](Value element) { targets.push_back(element); });
            from.ForEachElement([&, next = targets.begin()](ConstValue element) mutable { Copy(element, *next++); });
            return;
    }
}

template <class Message>
std::vector<std::string_view> FieldNames() {
    return {krm::kFieldNames<Message>.begin(), krm::kFieldNames<Message>.end()};
}
template <class Message>
const std::type_info& TypeInfo() {
    return typeid(Message);
}
template <class Message>
void FillMessage(CKRMBaseAdaptationData& message) {
    Seed seed(16);
    FillTyped(static_cast<Message&>(message), seed);
}
template <class Message>
std::string MessageText(const CKRMBaseAdaptationData& message) {
    std::string out;
    WriteTyped(static_cast<const Message&>(message), out);
    return out;
}

struct ListedMessage {
    std::string_view className;
    krm_ulong type;
    krm_ulong id;
    std::string_view command;
    const std::type_info& (*typeInfo)();
    std::vector<std::string_view> (*fieldNames)();
    void (*fill)(CKRMBaseAdaptationData& message);
    std::string (*text)(const CKRMBaseAdaptationData& message);

    Direction direction() const { return className.ends_with("Snd") ? Direction::Send : Direction::Receive; }
    std::unique_ptr<CKRMBaseAdaptationData> filled() const {
        std::unique_ptr<CKRMBaseAdaptationData> message = krm::NewMessage(type, id, direction());
        CKRMBaseAdaptationData* const object = message.get();
        if (object == nullptr || typeid(*object) != typeInfo()) {
            throw std::bad_cast();
        }
        fill(*object);
        return message;
    }
};

void PrintTo(const ListedMessage& message, std::ostream* out) {
    *out << message.className;
}

template <class Message>
constexpr ListedMessage Listed(std::string_view name, krm_ulong type, krm_ulong id, std::string_view command) {
    return {name,
            type,
            id,
            command,
            &TypeInfo<Message>,
            &FieldNames<Message>,
            &FillMessage<Message>,
            &MessageText<Message>};
}

#define KRM_LISTED(Class, Base, type, id, command) Listed<Class>(#Class, type, id, command),
constexpr ListedMessage kListed[] = {KRM_ALL_MESSAGES(KRM_LISTED)};
#undef KRM_LISTED

std::string TextOf(ConstValue value) {
    std::string out;
    WriteValue(value, out);
    return out;
}

std::vector<std::string_view> NamesOf(const TypeDescription& type) {
    std::vector<std::string_view> names;
    for (const FieldDescription& field : type.fields) {
        names.push_back(field.name);
    }
    return names;
}

TEST(AllMessages, AreThoseOfTheLibraryInItsOrder) {
    ASSERT_EQ(krm::AllMessages().size(), 158U);
    ASSERT_EQ(std::size(kListed), 158U);
    for (std::size_t i = 0; i < std::size(kListed); ++i) {
        const MessageDescription& message = krm::AllMessages()[i];
        EXPECT_EQ(message.className, kListed[i].className);
        EXPECT_EQ(message.command, kListed[i].command) << message.className;
        EXPECT_EQ(static_cast<krm_ulong>(message.family), kListed[i].type) << message.className;
        EXPECT_EQ(message.type, kListed[i].type) << message.className;
        EXPECT_EQ(message.id, kListed[i].id) << message.className;
        EXPECT_EQ(message.direction, kListed[i].direction()) << message.className;
    }
}

class EveryDescribedMessage : public testing::TestWithParam<ListedMessage> {
protected:
    const MessageDescription& Description() const {
        return *krm::FindMessage(GetParam().type, GetParam().id, GetParam().direction());
    }
};
INSTANTIATE_TEST_SUITE_P(All, EveryDescribedMessage, testing::ValuesIn(kListed),
                         [](const auto& test) { return std::string(test.param.className); });

TEST_P(EveryDescribedMessage, IsFound) {
    const MessageDescription* const found = krm::FindMessage(GetParam().type, GetParam().id, GetParam().direction());
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->className, GetParam().className);
    EXPECT_EQ(found->content->className, GetParam().className);
    EXPECT_EQ(found->content->kind, ValueKind::Record);
    EXPECT_EQ(NamesOf(*found->content), GetParam().fieldNames());
}

TEST_P(EveryDescribedMessage, IsCreated) {
    const std::unique_ptr<CKRMBaseAdaptationData> made = Description().create();
    ASSERT_NE(made, nullptr);
    const CKRMBaseAdaptationData& message = *made;
    EXPECT_TRUE(typeid(message) == GetParam().typeInfo()) << typeid(message).name();
    EXPECT_EQ(message.GetCommandType(), GetParam().type);
    EXPECT_EQ(message.GetCommandID(), GetParam().id);
}

TEST_P(EveryDescribedMessage, HoldsWhatItsClassSays) {
    const std::unique_ptr<const CKRMBaseAdaptationData> filled = GetParam().filled();
    EXPECT_EQ(TextOf(Description().ContentOf(*filled).value()), GetParam().text(*filled));
    const std::unique_ptr<const CKRMBaseAdaptationData> fresh = Description().create();
    EXPECT_EQ(TextOf(Description().ContentOf(*fresh).value()), GetParam().text(*fresh));
}

TEST_P(EveryDescribedMessage, IsFilledByItsDescription) {
    const std::unique_ptr<const CKRMBaseAdaptationData> filled = GetParam().filled();
    const std::unique_ptr<CKRMBaseAdaptationData> made = Description().create();
    Copy(Description().ContentOf(*filled).value(), Description().ContentOf(*made).value());
    EXPECT_EQ(GetParam().text(*made), GetParam().text(*filled));
}

TEST(FindMessage, GivesNullForWhatIsNoMessages) {
    const krm_ulong strange[][2] = {{0, 0}, {0, 2}, {1, 0}, {1, 1},  {1, 3},  {1, 128}, {1, 0xFFFFFFFFU},
                                    {2, 6}, {3, 1}, {8, 3}, {10, 6}, {14, 3}, {15, 1},  {0xFFFFFFFFU, 2}};
    for (const auto& [type, id] : strange) {
        EXPECT_EQ(krm::FindMessage(type, id, Direction::Send), nullptr) << type << ' ' << id;
        EXPECT_EQ(krm::FindMessage(type, id, Direction::Receive), nullptr) << type << ' ' << id;
    }
    EXPECT_EQ(krm::FindMessage(1, 2, static_cast<Direction>(2)), nullptr);
}

TEST(MessageDescription, SaysWhatTheMessageConsistsOf) {
    const MessageDescription* const answer = krm::FindMessage(1, 2, Direction::Receive);
    ASSERT_NE(answer, nullptr);
    EXPECT_EQ(answer->className, "CKRMCGetDTCCmdAdaptDataRcv");
    EXPECT_EQ(answer->command, "GetDTC");
    EXPECT_EQ(answer->family, krm::CommandFamily::Diagnostic);
    const auto& fields = answer->content->fields;
    ASSERT_THAT(NamesOf(*answer->content), ElementsAre("m_bNotSupport", "Data", "m_bDTCType", "m_ulReadynessStatus"));
    EXPECT_EQ(fields[0].type->kind, ValueKind::Bool);
    EXPECT_EQ(fields[1].type->kind, ValueKind::List);
    EXPECT_EQ(fields[3].type->kind, ValueKind::Unsigned);
    EXPECT_EQ(fields[3].type->size, 4U);
    const TypeDescription& code = *fields[1].type->element;
    EXPECT_EQ(code.kind, ValueKind::Record);
    EXPECT_EQ(code.className, "CKRMCCommandDTCData");
    ASSERT_EQ(code.fields.size(), 33U);
    EXPECT_EQ(code.fields[2].name, "m_strDTC");
    EXPECT_EQ(code.fields[2].type->kind, ValueKind::Text);
    EXPECT_EQ(code.fields[7].name, "m_chFFDType");
    EXPECT_EQ(code.fields[7].type->kind, ValueKind::Signed);
    EXPECT_EQ(code.fields[7].type->size, 1U);
    EXPECT_EQ(code.fields[24].name, "m_cTripTime");
    EXPECT_EQ(code.fields[24].type->className, "CKRMCCommandFFDData");
}

TEST(MessageDescription, SaysHowLongAnArrayIs) {
    const TypeDescription& stamp = krm::kTypeDescription<CKRMCStoredDataTimestamp>;
    ASSERT_THAT(NamesOf(stamp), ElementsAre("m_uchFirstStamp", "m_uchSecondStamp"));
    EXPECT_EQ(stamp.fields[0].type->kind, ValueKind::Array);
    EXPECT_EQ(stamp.fields[0].type->length, 7);
    EXPECT_EQ(stamp.fields[0].type->element->kind, ValueKind::Unsigned);
    EXPECT_EQ(stamp.fields[0].type->element->size, 1U);
}

TEST(MessageDescription, HasNothingToSayOfAnotherMessage) {
    const MessageDescription& description = *krm::FindMessage(1, 2, Direction::Receive);
    CKRMCClearDTCCmdAdaptDataRcv other;
    EXPECT_FALSE(description.ContentOf(other).has_value());
    EXPECT_FALSE(description.ContentOf(std::as_const(other)).has_value());
    CKRMCGetHelpInfoVdcAdptDataRcv ofAnotherFamily;  // with the ID of GetDTC
    EXPECT_FALSE(description.ContentOf(ofAnotherFamily).has_value());
}

TEST(MessageDescription, OfAProgramsOwnMessage) {
    constexpr const MessageDescription& kDescription = krm::kMessageDescription<PaintDescribed>;
    EXPECT_EQ(kDescription.className, "PaintDescribed");
    EXPECT_EQ(kDescription.command, "ReadPaintCode");
    EXPECT_EQ(kDescription.type, 1U);
    EXPECT_EQ(kDescription.id, 900U);
    EXPECT_EQ(kDescription.direction, Direction::Receive);
    const std::unique_ptr<CKRMBaseAdaptationData> made = kDescription.create();
    std::vector<Value> fields;
    kDescription.ContentOf(*made).value().ForEachField([&](std::string_view, Value field) { fields.push_back(field); });
    ASSERT_EQ(fields.size(), 3U);
    *fields[1].As<CKRMString>() = "1F7";
    fields[2].Append().value().Append().value().SetInteger(-128);
    EXPECT_EQ(TextOf(kDescription.ContentOf(*made).value()),
              "PaintDescribed{m_bNotSupport=0;m_strPaintCode=\"1F7\"m_cTones=[[-128;]]}");
}

/// `object` as a value of its class.
template <class T>
Value ValueOf(T& object) {
    return {krm::kTypeDescription<T>, &object};
}

TEST(Value, TakesTheIntegersOfItsType) {
    const auto takes = [](auto integer, krm_int64 value) {
        const auto before = integer;
        const bool taken = ValueOf(integer).SetInteger(value);
        EXPECT_EQ(static_cast<krm_int64>(integer), taken ? value : static_cast<krm_int64>(before));
        return taken;
    };
    using Byte = unsigned char;
    using SignedByte = signed char;
    using Short = unsigned short;
    EXPECT_TRUE(takes(false, 1) && takes(true, 0));
    EXPECT_FALSE(takes(false, 2) || takes(false, -1));
    EXPECT_TRUE(takes(Byte{7}, 0) && takes(Byte{7}, 255));
    EXPECT_FALSE(takes(Byte{7}, 256) || takes(Byte{7}, -1));
    EXPECT_TRUE(takes(SignedByte{7}, -128) && takes(SignedByte{7}, 127));
    EXPECT_FALSE(takes(SignedByte{7}, -129) || takes(SignedByte{7}, 128));
    EXPECT_TRUE(takes(Short{7}, 0) && takes(Short{7}, 65535));
    EXPECT_FALSE(takes(Short{7}, 65536) || takes(Short{7}, -1));
    EXPECT_TRUE(takes(krm_long{7}, -2147483647 - 1) && takes(krm_long{7}, 2147483647));
    EXPECT_FALSE(takes(krm_long{7}, 2147483648) || takes(krm_long{7}, -2147483649));
    EXPECT_TRUE(takes(krm_ulong{7}, 0) && takes(krm_ulong{7}, 4294967295));
    EXPECT_FALSE(takes(krm_ulong{7}, 4294967296) || takes(krm_ulong{7}, -1));
    EXPECT_TRUE(takes(krm_int64{7}, INT64_MAX) && takes(krm_int64{7}, INT64_MIN));
}

TEST(Value, IsNothingThatItIsNot) {
    unsigned char number = 5;
    double real = 0.5;
    CKRMString text("text");
    CKRMCCommandJ2534Config record;
    CKRMList<krm_ulong> list;
    list.AddTail(5);
    Map map;
    const auto never = [](auto&&...) { ADD_FAILURE(); };

    EXPECT_EQ(ValueOf(number).As<double>(), nullptr);
    EXPECT_EQ(ValueOf(number).As<CKRMString>(), nullptr);
    EXPECT_EQ(ValueOf(text).As<Map>(), nullptr);
    EXPECT_EQ(ValueOf(map).As<CKRMString>(), nullptr);
    for (const Value value : {ValueOf(real), ValueOf(text), ValueOf(record), ValueOf(list), ValueOf(map)}) {
        EXPECT_EQ(value.Integer(), std::nullopt);
        EXPECT_FALSE(value.SetInteger(0));
    }
    for (const Value value : {ValueOf(number), ValueOf(real), ValueOf(text), ValueOf(record), ValueOf(map)}) {
        EXPECT_EQ(value.Count(), 0);
        EXPECT_FALSE(value.Append().has_value());
        value.RemoveAll();
        value.ForEachElement(never);
    }
    for (const Value value : {ValueOf(number), ValueOf(real), ValueOf(text), ValueOf(list), ValueOf(map)}) {
        value.ForEachField(never);
    }
    EXPECT_EQ(real, 0.5);
    EXPECT_STREQ(text.GetText(), "text");
    EXPECT_EQ(list.GetCount(), 1);
}

TEST(Value, ReachesTheObjectItself) {
    CKRMCCommandJ2534Config config;
    std::vector<Value> fields;
    ValueOf(config).ForEachField([&](std::string_view, Value field) { fields.push_back(field); });
    ASSERT_EQ(fields.size(), 2U);
    EXPECT_TRUE(fields[1].SetInteger(4294967295));
    EXPECT_EQ(config.m_ulValue, 4294967295U);
    config.m_ulParameter = 3;
    EXPECT_EQ(fields[0].Integer(), 3);

    CKRMList<CKRMString> list;
    *ValueOf(list).Append().value().As<CKRMString>() = "first";
    *ValueOf(list).Append().value().As<CKRMString>() = "second";
    EXPECT_EQ(ValueOf(list).Count(), 2);
    ASSERT_EQ(list.GetCount(), 2);
    EXPECT_STREQ(list[1].GetText(), "second");
    ValueOf(list).ForEachElement([](Value element) { *element.As<CKRMString>() += "!"; });
    EXPECT_STREQ(list[0].GetText(), "first!");
    ValueOf(list).RemoveAll();
    EXPECT_EQ(list.GetCount(), 0);
}

template <class T>
concept MayChange = requires(T value) {
    value.SetInteger(1);
}
|| requires(T value) {
    value.Append();
}
|| requires(T value) {
    value.RemoveAll();
};

TEST(Value, OfAConstObjectIsConst) {
    static_assert(std::is_same_v<decltype(std::declval<ConstValue>().As<double>()), const double*>);
    static_assert(std::is_same_v<decltype(std::declval<Value>().As<double>()), double*>);
    static_assert(std::is_convertible_v<Value, ConstValue> && !std::is_convertible_v<ConstValue, Value>);
    static_assert(MayChange<Value> && !MayChange<ConstValue>);
    const CKRMCGetVinCodeCmdAdaptDataRcv answer;
    static_assert(std::is_same_v<decltype(krm::AllMessages()[0].ContentOf(answer)), std::optional<ConstValue>>);
}

}  // namespace
