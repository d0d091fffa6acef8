// How numbers look in the log, for each class that writes one: decimal and signed, whatever the field's type, but for the
// fields listed here. Each value must be that of a field of the object. And writing it succeeds, whatever the log says.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>

#include "krm/fields/all_fields.h"
#include "krm/framework/record.h"
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

template <class T>
void Collect(T& it, Shown& shown) {
    if constexpr (std::is_integral_v<T>) {
        const auto number = static_cast<std::uint32_t>(it);
        shown.signedNumbers.insert(Format("%d", number));
        shown.unsignedNumbers.insert(Format("%u", number));
        shown.hexadecimals.insert(Format("%X", number));
    } else if constexpr (std::is_same_v<T, double>) {
        CKRMString text;
        text.Format("%lf", it);
        shown.texts.insert(text.GetText());
    } else if constexpr (std::is_same_v<T, CKRMString>) {
        shown.texts.insert(it.GetText());
    } else if constexpr (std::is_array_v<T> || kIsList<T>) {
        if constexpr (kIsList<T>) {
            shown.signedNumbers.insert(std::to_string(it.GetCount()));
        }
        for (auto& element : it) {
            Collect(element, shown);
        }
    } else if constexpr (!std::is_same_v<T, CKRMMap<CKRMString, CKRMString>>) {
        if constexpr (std::is_base_of_v<CKRMBaseAdaptationData, T>) {
            shown.signedNumbers.insert(std::to_string(it.GetCommandType()));
            shown.signedNumbers.insert(std::to_string(it.GetCommandID()));
        }
        ForEachField(it, [&](std::string_view, auto& field) { Collect(field, shown); });
    }
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

template <class Class>
void ExpectEachNumberAsDocumented(const char* name) {
    SCOPED_TRACE(name);
    for (std::uint32_t first = 1; first <= 6; ++first) {
        Seed seed(first * 0x9E3779B9U);
        Class object{};
        Fill(object, seed);
        Shown shown;
        Collect(object, shown);
        LogCapture log(-1);
        if constexpr (std::is_base_of_v<CKRMCBaseAdaptDataStructure, Class>) {
            EXPECT_EQ(object.ErrWriteOperationLogStructure("%s", name), 0);
        } else if constexpr (requires { object.ErrWriteOperationLog(); }) {
            EXPECT_EQ(object.ErrWriteOperationLog(), 0);
        }
        for (const std::string& line : log.Texts()) {
            ExpectLineOf(shown, line);
        }
    }
}

TEST(LogNumbers, AreDecimalAndSignedButForTheListed) {
    KRM_NOT_UNDER(Memcheck, "it would take minutes");
#define KRM_CHECK(Class, ...) ExpectEachNumberAsDocumented<Class>(#Class);
    KRM_ALL_MESSAGES(KRM_CHECK)
    KRM_ALL_LIST_ELEMENTS(KRM_CHECK)
#undef KRM_CHECK
}

}  // namespace
}  // namespace krm::test
