// The number types of the interface: where `long` has 32 bits they are `long` itself, so that names, overloads and
// exported symbols are the documented ones.
#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <type_traits>

#include "krm/adaptation_data.h"

namespace {

#if defined(_WIN32) || ULONG_MAX == 0xFFFFFFFFUL
static_assert(std::is_same_v<krm_ulong, unsigned long>);
static_assert(std::is_same_v<krm_long, long>);
#else
static_assert(std::is_same_v<krm_ulong, std::uint32_t>);
static_assert(std::is_same_v<krm_long, std::int32_t>);
#endif
static_assert(std::is_same_v<krm_int64, std::int64_t>);
static_assert(std::is_same_v<decltype(CKRMCCommandDispData::m_ulRawData), krm_ulong>);
static_assert(std::is_same_v<decltype(CKRMCCommandDispData::m_lIndex), krm_long>);

// Objects may cross the border of the library: it is a DLL on Windows, and this program is outside of it. What one side
// allocates the other may free.

TEST(AcrossTheBorder, MadeInTheLibraryDestroyedHere) {
    CKRMCCommandConvSignalData* const converter = CKRMCCommandConvSignalData::CreateConverter(105);
    ASSERT_NE(converter, nullptr);
    delete converter;

    CKRMCElement root("Root");
    CKRMError error;
    CKRMCElement* const element = root.CreateElement(&error, "Child");
    ASSERT_NE(element, nullptr);
    CKRMCAttribute* const attribute = element->CreateAttribute(&error, "A text that is no short one");
    ASSERT_TRUE(attribute->SetValue(&error, "a text long enough to be allocated on its own"));

    CKRMCGetDTCCmdAdaptDataRcv filled;
    CKRMCCommandDTCData code;
    code.m_strDTC.Format("a text made in the library, number %d", 1);
    filled.Data.AddTail(code);
    auto* const copy = new CKRMCGetDTCCmdAdaptDataRcv(filled);
    EXPECT_STREQ(copy->Data[0].m_strDTC.GetText(), "a text made in the library, number 1");
    delete copy;
}

TEST(AcrossTheBorder, MadeHereDestroyedInTheLibrary) {
    CKRMCCommandConvSignalData::DeleteConverter(new CKRMCCommandConvSignalDataTime2);

    CKRMBinary buffer;
    buffer.SetBuffer(new unsigned char[8]{1, 2, 3, 4, 5, 6, 7, 8}, 8);
    unsigned char first = 0;
    ASSERT_TRUE(buffer.Read(&first, 1));
    EXPECT_EQ(first, 1);
    ASSERT_TRUE(buffer.CreateBuffer(4));  // frees the block above

    CKRMList<CKRMCCommandDTCData> codes;
    CKRMCCommandDTCData code;
    code.m_strComment = "a text long enough to be allocated on its own";
    codes.AddTail(code);
    codes.RemoveAll();
    EXPECT_EQ(codes.GetCount(), 0);
}

TEST(AcrossTheBorder, ClassesAreKnownOnBothSides) {
    CKRMCCommandConvSignalData* const converter = CKRMCCommandConvSignalData::CreateConverter(3);
    EXPECT_NE(dynamic_cast<CKRMCCommandConvSignalDataHex*>(converter), nullptr);
    EXPECT_EQ(dynamic_cast<CKRMCCommandConvSignalDataBin*>(converter), nullptr);
    CKRMCCommandConvSignalData::DeleteConverter(converter);

    CKRMCGetDTCCmdAdaptDataRcv answer;
    CKRMBaseAdaptationData* const untyped = &answer;
    EXPECT_EQ(dynamic_cast<CKRMCGetDTCCmdAdaptDataRcv*>(untyped), &answer);
    EXPECT_EQ(dynamic_cast<CKRMCBaseCmdAdaptDataSnd*>(untyped), nullptr);
    EXPECT_EQ(krm::MessageAs<CKRMCGetDTCCmdAdaptDataRcv>(untyped), &answer);
}

// A list of the user's own takes the template as any other does.
struct OwnElement {
    int number = 0;
};

TEST(AcrossTheBorder, AListOfTheUsersOwn) {
    CKRMList<OwnElement> own;
    own.AddTail(OwnElement{7});
    CKRMList<int> numbers;
    numbers.AddTail(own[0].number);
    EXPECT_EQ(numbers[0], 7);
}

}  // namespace
