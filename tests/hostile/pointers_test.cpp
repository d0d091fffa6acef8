// Each pointer argument null in turn, and all together, where a null is allowed. What single operations do without a
// result or a list stands beside their own tests; here are the combinations that those don't have.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "krm/core/binary.h"
#include "krm/framework/message.h"
#include "krm/messages/diag/display.h"
#include "krm/messages/diag/translation.h"
#include "krm/messages/diag/words.h"
#include "krm/tree/element.h"
#include "krm/tree/element_group.h"
#include "tests/support/converters.h"
#include "tests/support/log_capture.h"

namespace krm::test {
namespace {

using ::testing::ElementsAre;

// A null that the compiler doesn't know to be one: it would refuse it as a format, and a format that isn't a literal
// without arguments too.
const char* NoText() {
    static const char* const volatile none = nullptr;
    return none;
}

bool WalksPlainList(int code) {
    return code == 1 || code == 20 || code == 22 || code == 13 || code == 24 || code == 103;
}
bool WalksVariableList(int code) {
    return code == 1 || code == 20 || code == 22;
}

TEST(NullPointers, OfCompositesInEveryCombination) {
    for (const int code : AllCodes()) {
        const ConverterPtr converter = Create(code);
        for (unsigned nulls = 0; nulls < 8; ++nulls) {
            SCOPED_TRACE(::testing::Message() << code << ' ' << nulls);
            CKRMCCommandDispData record;
            MarkAll(record);
            PatternLists lists;
            CKRMString defaultText = "default";
            CKRMCCommandDispData* const recordOrNull = (nulls & 1U) != 0 ? nullptr : &record;
            CKRMString* const defaultOrNull = (nulls & 4U) != 0 ? nullptr : &defaultText;
            const bool listIsNull = (nulls & 2U) != 0;

            const bool plainFails = recordOrNull == nullptr || (listIsNull && WalksPlainList(code));
            EXPECT_EQ(converter->ConvCommandDispData(recordOrNull, 2, 0, 8, 1, 1, 0, 0, 200, 1,
                                                     listIsNull ? nullptr : &lists.plain, defaultOrNull, 5),
                      plainFails ? kFailed : 0U);
            if (recordOrNull == nullptr) {
                EXPECT_TRUE(IsAllMarked(record));
            } else {
                // The number is converted before the text fails; the text is then left as it was.
                EXPECT_EQ(record.m_ulRawData, 2U);
                EXPECT_NE(record.m_dDataPhys, -1.25);
                EXPECT_EQ(record.m_strDataPhys.Compare("phys") == 0, plainFails);
                EXPECT_TRUE(OthersAreMarked(record));
            }

            MarkAll(record);
            const bool variableFails = recordOrNull == nullptr || (listIsNull && WalksVariableList(code));
            EXPECT_EQ(converter->ConvCommandDispVariableData(recordOrNull, 2, 0, 8, 1, 1, 0, 0, 200, 1,
                                                             listIsNull ? nullptr : &lists.variable, defaultOrNull, 5),
                      variableFails ? kFailed : 0U);
            EXPECT_EQ(record.m_strDataPhys.Compare("phys") == 0, variableFails);
            EXPECT_EQ(IsAllMarked(record), recordOrNull == nullptr);
        }
    }
}

TEST(NullPointers, OfBytesInEveryCombination) {
    const unsigned char bytes[] = {'A', 'B'};
    for (const int code : AllCodes()) {
        const ConverterPtr converter = Create(code);
        for (unsigned nulls = 0; nulls < 16; ++nulls) {
            SCOPED_TRACE(::testing::Message() << code << ' ' << nulls);
            CKRMCCommandDispData record;
            MarkAll(record);
            PatternLists lists;
            const bool fails = (nulls & 7U) != 0;
            EXPECT_EQ(converter->ConvCommandDispData((nulls & 1U) != 0 ? nullptr : &record,
                                                     (nulls & 2U) != 0 ? nullptr : bytes, (nulls & 4U) != 0 ? 0 : 2, 0,
                                                     8, 1, 1, 0, 0, 200, 1, (nulls & 8U) != 0 ? nullptr : &lists.plain),
                      fails ? kFailed : 0U);
            EXPECT_EQ(IsAllMarked(record), fails);
        }
    }
}

TEST(NullPointers, OfLogLinesAreEmptyTexts) {
    LogCapture log;
    CKRMCCommandWordsData record;
    record.ER_WriteOperationLogFormatStructure(NoText(), 0);
    CKRMCGetTranslationStringCmdAdaptDataSnd message;
    message.ER_WriteOperationLogFormat(NoText(), 0);
    record.ErrWriteOperationLogStructure(NoText(), 0);
    record.ErrWriteOperationLogStructure("%s", NoText());
    EXPECT_THAT(log.Texts(),
                ElementsAre("", "", ".m_ulWordsId=0", ".m_strWords=", "(null).m_ulWordsId=0", "(null).m_strWords="));
}

TEST(NullPointers, OfMessagesAreNoMessage) {
    CKRMBaseAdaptationData* const none = nullptr;
    const CKRMBaseAdaptationData* const constNone = nullptr;
    EXPECT_EQ(krm::MessageAs<CKRMCGetTranslationStringCmdAdaptDataSnd>(none), nullptr);
    EXPECT_EQ(krm::MessageAs<CKRMCGetTranslationStringCmdAdaptDataSnd>(constNone), nullptr);
}

TEST(NullPointers, OfAttributesInEveryCombination) {
    for (const bool withError : {false, true}) {
        CKRMError error;
        CKRMError* const passed = withError ? &error : nullptr;
        CKRMCAttribute attribute(NoText(), NoText());
        EXPECT_STREQ(attribute.GetName(), "");
        EXPECT_EQ(attribute.GetValueType(), tree::kEmptyValue);
        EXPECT_FALSE(attribute.CompareValue(passed, nullptr));
        EXPECT_EQ(error.a_ulReturnCode, withError ? tree::kNullArgument : 0U);
        EXPECT_TRUE(attribute.SetValue(passed, "text"));
        EXPECT_FALSE(attribute.SetValue(passed, NoText()));
        EXPECT_STREQ(attribute.GetString(), "text");
        EXPECT_FALSE(attribute.CompareValue(passed, nullptr));
        EXPECT_TRUE(attribute.SetValue(passed, 1.5));
        EXPECT_TRUE(attribute.SetValue(passed, krm_long{-1}));
        EXPECT_TRUE(attribute.SetValue(passed, krm_ulong{1}));
        EXPECT_EQ(attribute.GetULong(), 1U);
        EXPECT_EQ(error.a_ulReturnCode, 0U);
    }
}

TEST(NullPointers, OfSuccessfulTreeOperations) {
    CKRMCElement element("E");
    CKRMCElement* const child = element.CreateElement(nullptr, "C");
    ASSERT_NE(child, nullptr);
    CKRMCAttribute* const attribute = child->CreateAttribute(nullptr, "A");
    ASSERT_NE(attribute, nullptr);
    EXPECT_TRUE(attribute->SetValue(nullptr, krm_long{5}));
    EXPECT_EQ(child->GetAttribute(nullptr, "A"), attribute);
    CKRMCElementGroup* const group = element.GetElementGroup(nullptr, "C");
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(element.CreateElementGroup(nullptr, "C"), group);
    EXPECT_EQ(group->GetFirstElement(nullptr), child);
    EXPECT_EQ(group->GetElementByAttribute(nullptr, attribute), child);
    EXPECT_EQ(element.GetFirstElement(nullptr, "C"), child);
    EXPECT_EQ(element.GetElementByAttribute(nullptr, "C", attribute), child);
    EXPECT_TRUE(child->RemoveAttribute(nullptr, attribute));
    CKRMCElement* const second = group->CreateElement(nullptr);
    EXPECT_TRUE(group->RemoveElement(nullptr, second));
    EXPECT_TRUE(element.RemoveElement(nullptr, child));
    EXPECT_TRUE(element.RemoveElementGroup(nullptr, group));
    EXPECT_EQ(element.GetFirstGroup(), nullptr);
}

TEST(NullPointers, OfBuffersLeaveThemAsTheyAre) {
    unsigned char byte = 7;
    CKRMBinary binary;
    ASSERT_TRUE(binary.CreateBuffer(4));
    ASSERT_TRUE(binary.Write(&byte, 1));
    for (const unsigned count : {0U, 1U, 3U, 0xFFFFFFFFU}) {
        EXPECT_FALSE(binary.Write(nullptr, count));
        EXPECT_FALSE(binary.Read(nullptr, count));
    }
    EXPECT_EQ(binary.GetPos(), 1U);
    EXPECT_EQ(binary.GetSize(), 4U);
}

template <class Base>
void ExpectNullFormatIsAnEmptyLine() {
    const LogCapture log(-7);
    Base message;
    EXPECT_EQ(message.ER_WriteOperationLogFormat(NoText(), 0), -7);
    EXPECT_THAT(log.Texts(), ElementsAre(""));
}

TEST(NullPointers, OfFormatsInEveryFamily) {
    ExpectNullFormatIsAnEmptyLine<CKRMCBaseCmdAdaptData>();
    ExpectNullFormatIsAnEmptyLine<CKRMCBaseDsdiAdaptData>();
    ExpectNullFormatIsAnEmptyLine<CKRMCBaseUccAdaptData>();
    ExpectNullFormatIsAnEmptyLine<CKRMCBaseDwtAdaptData>();
}

TEST(NullPointers, OfNamesGiveEmptyNames) {
    const CKRMCAttribute text(NoText(), "x");
    const CKRMCAttribute real(NoText(), 2.5);
    const CKRMCAttribute number(NoText(), krm_ulong{7});
    EXPECT_STREQ(text.GetName(), "");
    EXPECT_STREQ(text.GetString(), "x");
    EXPECT_STREQ(real.GetName(), "");
    EXPECT_EQ(real.GetDouble(), 2.5);
    EXPECT_STREQ(number.GetName(), "");
    EXPECT_EQ(number.GetULong(), 7U);
    CKRMCElementGroup group(NoText());
    const CKRMCElement* const child = group.CreateElement(nullptr);
    ASSERT_NE(child, nullptr);
    EXPECT_STREQ(child->GetName(), "");
}

TEST(NullPointers, OfErrorsInFailingTreeOperations) {
    CKRMCElement element("E");
    CKRMCElement other("E");
    CKRMCElement stranger("C");
    CKRMCAttribute probe("A", krm_long{1});
    EXPECT_FALSE(element.RemoveElementGroup(nullptr, other.CreateElementGroup(nullptr, "C")));
    EXPECT_FALSE(element.RemoveElement(nullptr, &stranger));  // no group of its name
    CKRMCElement* const child = element.CreateElement(nullptr, "C");
    ASSERT_NE(child, nullptr);
    ASSERT_NE(child->CreateAttribute(nullptr, "A"), nullptr);
    EXPECT_FALSE(element.RemoveElement(nullptr, &stranger));  // not in that group
    EXPECT_FALSE(element.GetFirstGroup()->RemoveElement(nullptr, &stranger));
    EXPECT_EQ(element.GetAttribute(nullptr, "None"), nullptr);
    EXPECT_EQ(element.GetElementGroup(nullptr, "None"), nullptr);
    EXPECT_EQ(element.GetFirstElement(nullptr, "None"), nullptr);
    EXPECT_EQ(element.GetElementByAttribute(nullptr, "None", &probe), nullptr);
    EXPECT_EQ(element.GetElementByAttribute(nullptr, "C", &probe), nullptr);  // the only one there is empty
    EXPECT_EQ(element.GetElementByAttribute(nullptr, nullptr, nullptr), nullptr);
    CKRMString text;
    element.Description(text);
    EXPECT_STREQ(text.GetText(), "<E>\n<C A[0]=\"NULL\">\n</C>\n</E>\n");
}

}  // namespace
}  // namespace krm::test
