// A megabyte of every byte that a text may have, percent signs and control characters included, through whatever carries
// texts: it must arrive whole and unchanged.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "krm/core/binary.h"
#include "krm/messages/diag/display.h"
#include "krm/messages/diag/translation.h"
#include "krm/messages/diag/words.h"
#include "krm/tree/element.h"
#include "tests/support/converters.h"
#include "tests/support/log_capture.h"

namespace krm::test {
namespace {

using ::testing::SizeIs;

constexpr std::size_t kMegabyte = 1024 * 1024;

// Every byte but NUL, over and over, from `first` on.
std::string Every(unsigned first) {
    std::string text(kMegabyte, '\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        text[i] = static_cast<char>((i + first) % 255 + 1);
    }
    return text;
}

// A mismatch of two such texts would fill the screen.
void ExpectSame(const std::string& text, const std::string& expected) {
    EXPECT_EQ(text.size(), expected.size());
    EXPECT_TRUE(text == expected);
}
void ExpectSame(const CKRMString& text, const std::string& expected) {
    EXPECT_EQ(text.GetLength(), expected.size());
    ExpectSame(std::string(text.GetText()), expected);
}

TEST(Megabyte, OfAString) {
    const std::string all = Every(0);
    CKRMString text(all.c_str());
    ExpectSame(text, all);
    EXPECT_EQ(text.Compare(all.c_str()), 0);
    CKRMString copy = text;
    copy += text;
    copy.Combine(all.c_str());
    ExpectSame(copy, all + all + all);
    copy.Copy(text);
    ExpectSame(copy, all);
    text.Format("%s|%.10s|%s", copy.GetText(), copy.GetText(), all.c_str());
    ExpectSame(text, all + "|" + all.substr(0, 10) + "|" + all);
    ExpectSame(copy, all);
}

TEST(Megabyte, OfARecordAndItsPrefix) {
    const std::string all = Every(36);  // begins with '%'
    const std::string prefix = Every(99);
    CKRMCCommandWordsData record;
    record.m_strWords = all.c_str();
    const CKRMCCommandWordsData copy(record);
    ExpectSame(copy.m_strWords, all);
    LogCapture log;
    EXPECT_EQ(record.ErrWriteOperationLogStructure("%s", prefix.c_str()), 0);
    ASSERT_THAT(log.Lines(), SizeIs(2));
    ExpectSame(log.Lines()[0].text, prefix + ".m_ulWordsId=0");
    ExpectSame(log.Lines()[1].text, prefix + ".m_strWords=" + all);
    EXPECT_EQ(log.Lines()[1].length, prefix.size() + 12 + all.size());
}

TEST(Megabyte, OfAMessagesList) {
    const std::string all = Every(5);
    CKRMCGetTranslationStringCmdAdaptDataRcv message;
    CKRMCCommandTranslationStringData translation;
    translation.m_strString = all.c_str();
    message.m_cTranslationStringDataList.AddTail(translation);
    message.m_cTranslationStringDataList.AddTail(translation);
    const std::vector<std::string> lines = MessageLines(message);
    std::size_t whole = 0;
    for (const std::string& line : lines) {
        whole += line.size() > all.size() && line.ends_with("=" + all) ? 1U : 0U;
    }
    EXPECT_EQ(whole, 2U);
}

TEST(Megabyte, OfATree) {
    const std::string name = Every(1);
    const std::string value = Every(200);
    CKRMError error;
    CKRMCElement element(name.c_str());
    ASSERT_TRUE(element.CreateAttribute(&error, name.c_str())->SetValue(&error, value.c_str()));
    CKRMCElement* const child = element.CreateElement(&error, value.c_str());
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(element.GetFirstElement(&error, value.c_str()), child);
    EXPECT_STREQ(element.GetAttribute(&error, name.c_str())->GetString(), value.c_str());
    CKRMString text;
    EXPECT_EQ(element.Description(text), 0U);
    ExpectSame(
        text, "<" + name + " " + name + "[1]=\"" + value + "\">\n<" + value + ">\n</" + value + ">\n</" + name + ">\n");
}

TEST(Megabyte, OfAPatternAndTheDefaultText) {
    const std::string pattern = Every(36);
    const std::string defaultText = Every(77);
    Arguments arguments({.patterns = {{1, pattern, 8}}, .defaultText = defaultText, .defaultId = 9});
    for (const int code : {1, 20, 22}) {
        const ConverterPtr converter = Create(code);
        for (const bool variable : {false, true}) {
            for (const krm_ulong raw : {1U, 2U}) {
                CKRMCCommandDispData record;
                EXPECT_EQ(
                    variable ? arguments.Variable(*converter, &record, raw) : arguments.Raw(*converter, &record, raw),
                    0U);
                ExpectSame(record.m_strDataPhys, raw == 1 ? pattern : defaultText);
                EXPECT_EQ(record.m_ulDataStringId, raw == 1 ? 8U : 9U);
            }
        }
    }
}

TEST(Megabyte, OfAPatternsKey) {
    // So long a key is beyond every double.
    PatternLists lists;
    lists.AddBytes(std::vector<unsigned char>(kMegabyte, 0xFF), "infinite", 3);
    lists.AddBytes(std::vector<unsigned char>(kMegabyte, 0), "zero", 4);
    const ConverterPtr converter = Create(1);
    const auto textOf = [&](double phys) {
        CKRMString text;
        krm_ulong id = 0;
        EXPECT_EQ(converter->StringVariableConversion(&text, &id, phys, 0, 0, 8, 0, 0, 0, &lists.variable, nullptr, 0),
                  0U);
        return std::string(text.GetText());
    };
    EXPECT_EQ(textOf(std::numeric_limits<double>::infinity()), "infinite");
    EXPECT_EQ(textOf(std::numeric_limits<double>::quiet_NaN()), "0x00");
    EXPECT_EQ(textOf(std::numeric_limits<double>::max()), "0x00");
    EXPECT_EQ(textOf(0), "zero");
}

TEST(Megabyte, OfBytes) {
    std::vector<unsigned char> bytes(kMegabyte);
    std::string hex;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<unsigned char>(i + 1);  // the 256th is 0
        hex += "0123456789ABCDEF"[bytes[i] / 16];
        hex += "0123456789ABCDEF"[bytes[i] % 16];
    }
    const std::string until255 = std::string(bytes.begin(), bytes.begin() + 255);
    for (const int code : AllCodes()) {
        CKRMCCommandDispData record;
        EXPECT_EQ(Create(code)->ConvCommandDispData(&record, bytes.data(), static_cast<krm_ulong>(bytes.size()), 0, 8,
                                                    1, 1, 0, 0, 0, 0, nullptr),
                  0U);
        EXPECT_EQ(record.m_ulRawData, 1U);
        ExpectSame(record.m_strDataPhys, code == 104 ? hex : until255);
    }
}

TEST(Megabyte, OfABuffer) {
    const std::string all = Every(0);
    const auto size = static_cast<unsigned>(all.size());
    CKRMBinary binary;
    EXPECT_TRUE(binary.Write(all.data(), size));  // counted
    ASSERT_EQ(binary.GetPos(), size);
    ASSERT_TRUE(binary.CreateBuffer(size));
    EXPECT_TRUE(binary.Write(all.data(), size));
    EXPECT_FALSE(binary.Write(all.data(), 1));

    auto* const block = new unsigned char[all.size()];
    std::copy(all.begin(), all.end(), block);
    CKRMBinary filled;
    filled.SetBuffer(block, size);
    CKRMBinary copy(filled);
    std::string read(all.size(), '\0');
    ASSERT_TRUE(copy.Read(read.data(), size));
    ExpectSame(read, all);
    EXPECT_FALSE(copy.Read(read.data(), 1));
}

TEST(Megabyte, OfAnErrorsDetails) {
    const std::string all = Every(50);
    const CKRMString text(all.c_str());
    CKRMError error;
    error.SetError(5, text, text, text, text, text);
    const CKRMError copy(error);
    ExpectSame(copy.a_strMessage, all);
    ExpectSame(copy.a_strErrorFunctionArgs, all);
    EXPECT_EQ(copy.GetErrorCode(), 5U);
}

TEST(Megabyte, OfALineWithNuls) {
    std::string all(kMegabyte, '\0');
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i] = static_cast<char>(i % 256);
    }
    const LogCapture log;
    EXPECT_EQ(KRMC_ER_WriteOperationLog(all.data(), static_cast<krm_ulong>(all.size()), 4, 2), 0);
    ASSERT_THAT(log.Lines(), SizeIs(1));
    ExpectSame(log.Lines()[0].text, all);
}

TEST(Megabyte, OfFormattedLines) {
    const std::string all = Every(36);
    const LogCapture log;
    CKRMCCommandWordsData().ER_WriteOperationLogFormatStructure("<%s>", all.c_str());
    CKRMCGetTranslationStringCmdAdaptDataSnd().ER_WriteOperationLogFormat("<%s>", all.c_str());
    ASSERT_THAT(log.Lines(), SizeIs(2));
    ExpectSame(log.Lines()[0].text, "<" + all + ">");
    ExpectSame(log.Lines()[1].text, "<" + all + ">");
}

TEST(Megabyte, OfComparedAttributes) {
    const std::string all = Every(9);
    std::string differs = all;
    differs.back() = differs.back() == 'x' ? 'y' : 'x';
    CKRMError error;
    CKRMCAttribute one("A", all.c_str());
    CKRMCAttribute same("A", all.c_str());
    CKRMCAttribute other("A", differs.c_str());
    EXPECT_TRUE(one.CompareValue(&error, &same));
    EXPECT_FALSE(one.CompareValue(&error, &other));
    EXPECT_EQ(error.a_ulReturnCode, 0U);
}

}  // namespace
}  // namespace krm::test
