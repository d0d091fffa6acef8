// How numbers look in the log, for each class that writes one: decimal and signed, whatever the field's type, but for the
// fields listed here. Each value must be that of a field of the object. And writing it succeeds, whatever the log says.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>

#include "krm/fields/message_descriptions.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/all_messages.h"
#include "tests/support/all_classes.h"
#include "tests/support/fields.h"
#include "tests/support/log_capture.h"
#include "tests/support/not_under.h"

namespace krm::test {
namespace {

// Ends of what stands before the '=' of a line, indices left out.

constexpr std::string_view kUnsigned[] = {
    ".m_ulDataLen",
    ".m_ulByteNum",
    ".m_ulBytePos",
    ".m_ulCategoryNameId",
    "CKRMCCommandVehicleSystemInfo.m_ulInfoId",
    "GetVehicleSystemInfoCmdAdaptDataRcv::ErrWriteOperationLog] Data.m_ulInfoId",
    ".m_ulRecordTime",
    ".m_ulSamplingHz",
    ".m_ulVehicleInfo",
    ".m_ulWarningMessageId",
    "CKRMCCommandWordsData.m_ulWordsId",
    "m_cString.m_ulWordsId",
    ".a_ulReturnCode",
    ".m_ulHelpId1",
    ".m_ulHelpId2",
    "] m_ulAddressByte",
    "] m_ulSystemId",
    "m_ulErrorCode",  // with leading zeros
};

// Hexadecimal without "0x" in front.
constexpr std::string_view kHexadecimal[] = {
    ".m_ul5bpsAddr", ".m_ulFcCode",   ".m_ulFuncAddr", ".m_ulLegislatedAddr",
    ".m_ulNTA",      ".m_ulPhysAddr", ".m_ulToolAddr", ".m_uchRawDataList",
};

// The bytes of a list in one.
constexpr std::string_view kBytes[] = {".m_uchCurrentValueList", ".m_uchCustomizeValueList"};

// What the values of one object look like.
struct Shown {
    std::set<std::string> texts;  // as they are, doubles with six decimals
    std::set<std::string> signedNumbers;
    std::set<std::string> unsignedNumbers;
    std::set<std::string> hexadecimals;  // without leading zeros
};

std::string Format(const char* format, std::uint32_t number) {
    char text[20];
    std::snprintf(text, sizeof text, format, static_cast<unsigned>(number));
    return text;
}

void Collect(const TypeDescription& type, void* it, Shown& shown) {
    const ConstValue value(type, it);
    if (const std::optional<krm_int64> integer = value.Integer()) {
        const auto number = static_cast<std::uint32_t>(*integer);
        shown.signedNumbers.insert(Format("%d", number));
        shown.unsignedNumbers.insert(Format("%u", number));
        shown.hexadecimals.insert(Format("%X", number));
    } else if (const double* const real = value.As<double>()) {
        CKRMString text;
        text.Format("%lf", *real);
        shown.texts.insert(text.GetText());
    } else if (const CKRMString* const text = value.As<CKRMString>()) {
        shown.texts.insert(text->GetText());
    } else if (value.Kind() == ValueKind::List) {
        shown.signedNumbers.insert(std::to_string(value.Count()));
    } else if (const CKRMBaseAdaptationData* const message = MessageAt(type, it)) {
        shown.signedNumbers.insert(std::to_string(message->GetCommandType()));
        shown.signedNumbers.insert(std::to_string(message->GetCommandID()));
    }
    ForEachPart(type, it, [&](const TypeDescription& part, void* at) { Collect(part, at, shown); });
}

std::string WithoutIndices(std::string_view name) {
    std::string plain;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (name[i] == '[' && i > 0) {
            i = name.find(']', i);
        } else {
            plain += name[i];
        }
    }
    return plain;
}

void ExpectLineOf(const Shown& shown, const std::string& line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos) {
        return;
    }
    const std::string name = WithoutIndices(std::string_view(line).substr(0, equals));
    std::string value = line.substr(equals + 1);
    const auto named = [&](std::string_view end) { return name.ends_with(end); };
    if (std::any_of(std::begin(kBytes), std::end(kBytes), named)) {
        return;
    }
    if (const std::size_t twice = value.find('('); named(".m_ulValue") && twice != std::string::npos) {
        EXPECT_TRUE(shown.unsignedNumbers.contains(value.substr(twice + 1, value.size() - twice - 2))) << line;
        value.resize(twice);
    }
    const bool prefixed = value.starts_with("0x");
    if (prefixed || std::any_of(std::begin(kHexadecimal), std::end(kHexadecimal), named)) {
        const std::size_t first = value.find_first_not_of('0', prefixed ? 2 : 0);
        EXPECT_TRUE(shown.hexadecimals.contains(first == std::string::npos ? "0" : value.substr(first))) << line;
    } else if (std::any_of(std::begin(kUnsigned), std::end(kUnsigned), named)) {
        EXPECT_TRUE(shown.unsignedNumbers.contains(value.substr(value.find_first_not_of('0')))) << line;
    } else {
        EXPECT_TRUE(shown.signedNumbers.contains(value) || shown.texts.contains(value)) << line;
    }
}

/// The object is filled with `seed`; `write` returns what its own operation does.
void ExpectAsDocumented(const TypeDescription& type, void* it, Seed seed, const std::function<krm_long()>& write) {
    Fill(type, it, seed);
    Shown shown;
    Collect(type, it, shown);
    LogCapture log(-1);
    EXPECT_EQ(write(), 0);
    for (const std::string& line : log.Texts()) {
        ExpectLineOf(shown, line);
    }
}

constexpr std::uint32_t kObjects = 6;  // of each class

Seed SeedOf(std::uint32_t number) {
    return Seed(number * 0x9E3779B9U);
}

void ExpectMessagesAsDocumented(const char* name, krm_ulong commandType, krm_ulong commandId) {
    SCOPED_TRACE(name);
    const Direction direction = std::string_view(name).ends_with("Snd") ? Direction::Send : Direction::Receive;
    const MessageDescription* const description = FindMessage(commandType, commandId, direction);
    ASSERT_NE(description, nullptr);
    ASSERT_EQ(description->className, name);
    for (std::uint32_t number = 1; number <= kObjects; ++number) {
        const std::unique_ptr<CKRMBaseAdaptationData> message = description->create();
        auto* const logged = dynamic_cast<LoggedMessage*>(message.get());
        EXPECT_EQ(logged == nullptr, description->family == CommandFamily::Viewer);
        ExpectAsDocumented(*description->content, description->object(message.get()), SeedOf(number),
                           [&] { return logged != nullptr ? logged->ErrWriteOperationLog() : 0; });
    }
}

// How a record is made; null for a class that has no dump.
using NewRecord = std::unique_ptr<CKRMCBaseAdaptDataStructure> (*)();
template <class Element>
constexpr NewRecord NewRecordOf() {
    if constexpr (std::is_base_of_v<CKRMCBaseAdaptDataStructure, Element>) {
        return []() -> std::unique_ptr<CKRMCBaseAdaptDataStructure> { return std::make_unique<Element>(); };
    } else {
        static_assert(!requires(Element element) { element.ErrWriteOperationLog(); });
        return nullptr;
    }
}

void ExpectRecordsAsDocumented(const char* name, NewRecord newRecord) {
    SCOPED_TRACE(name);
    const TypeDescription* const type = FindType(name);
    ASSERT_NE(type, nullptr);
    for (std::uint32_t number = 1; newRecord != nullptr && number <= kObjects; ++number) {
        const std::unique_ptr<CKRMCBaseAdaptDataStructure> record = newRecord();
        ExpectAsDocumented(*type, dynamic_cast<void*>(record.get()), SeedOf(number),
                           [&] { return record->ErrWriteOperationLogStructure("%s", name); });
    }
}

TEST(LogNumbers, AreDecimalAndSignedButForTheListed) {
    KRM_NOT_UNDER(Memcheck, "it would take minutes");
#define KRM_CHECK(Class, Base, type, id, ...) ExpectMessagesAsDocumented(#Class, type, id);
    KRM_ALL_MESSAGES(KRM_CHECK)
#undef KRM_CHECK
#define KRM_CHECK(Class, kind) ExpectRecordsAsDocumented(#Class, NewRecordOf<Class>());
    KRM_ALL_LIST_ELEMENTS(KRM_CHECK)
#undef KRM_CHECK
}

}  // namespace
}  // namespace krm::test
