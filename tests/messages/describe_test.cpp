// Names and short descriptions of messages.
#include "krm/messages/describe.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>

#include "krm/framework/commands.h"
#include "krm/framework/dump.h"
#include "krm/messages/all_messages.h"
#include "tests/support/log_capture.h"

namespace {

using krm::DescribeShort;
using krm::Direction;
using krm::NameOf;

TEST(NameOfMessage, IsItsClass) {
    EXPECT_EQ(NameOf(CKRMCGetDTCCmdAdaptDataSnd()), "CKRMCGetDTCCmdAdaptDataSnd");
    EXPECT_EQ(NameOf(CKRMCGetDTCCmdAdaptDataRcv()), "CKRMCGetDTCCmdAdaptDataRcv");
    EXPECT_EQ(NameOf(CKRMCGetImportFileInfoDsdiAdaptDataRcv()), "CKRMCGetImportFileInfoDsdiAdaptDataRcv");
    EXPECT_EQ(NameOf(CKRMCSetUnitConversionInfoUccAdaptDataSnd()), "CKRMCSetUnitConversionInfoUccAdaptDataSnd");
    EXPECT_EQ(NameOf(CKRMCGetTranslationStringDwtAdaptDataSnd()), "CKRMCGetTranslationStringDwtAdaptDataSnd");
    EXPECT_EQ(NameOf(CKRMCGetTranslationStringCmdAdaptDataSnd()), "CKRMCGetTranslationStringCmdAdaptDataSnd");
    EXPECT_EQ(NameOf(CKRMCGetHideAllDataVdcAdaptDataRcv()), "CKRMCGetHideAllDataVdcAdaptDataRcv");
}

TEST(NameOfMessage, FourOfTheViewerAreSpelledTheirOwnWay) {
    EXPECT_EQ(NameOf(CKRMCGetHelpInfoVdcAdptDataSnd()), "CKRMCGetHelpInfoVdcAdptDataSnd");
    EXPECT_EQ(NameOf(CKRMCGetHelpInfoVdcAdptDataRcv()), "CKRMCGetHelpInfoVdcAdptDataRcv");
    EXPECT_EQ(NameOf(CKRMCGetPcViewerResourceVdcAdptDataSnd()), "CKRMCGetPcViewerResourceVdcAdptDataSnd");
    EXPECT_EQ(NameOf(CKRMCGetPcViewerResourceVdcAdptDataRcv()), "CKRMCGetPcViewerResourceVdcAdptDataRcv");
}

/// The name of a message's class in the compiler's text with it.
#if defined(__GNUC__)
std::string NameIn(std::string_view text) {  // ... [with Message = CKRMCGetDTC...Snd; ...
    const std::size_t start = text.find("Message = ") + 10;
    return std::string(text.substr(start, text.find_first_of(";]", start) - start));
}
#define KRM_TEXT_WITH_MESSAGE __PRETTY_FUNCTION__
#else
std::string NameIn(std::string_view text) {  // ...ExpectName<class CKRMCGetDTC...Snd>(void)
    const std::size_t start = text.find("<class ") + 7;
    return std::string(text.substr(start, text.find('>', start) - start));
}
#define KRM_TEXT_WITH_MESSAGE __FUNCSIG__
#endif

std::unique_ptr<CKRMBaseAdaptationData> MessageOf(krm_ulong type, krm_ulong id, Direction direction) {
    std::unique_ptr<CKRMBaseAdaptationData> message = krm::NewMessage(type, id, direction);
    if (message == nullptr) {
        throw std::logic_error("a message that NewMessage doesn't know");
    }
    return message;
}

void ExpectBoth(const std::string& typed, const std::string& untyped, const std::string& compilers) {
    EXPECT_EQ(typed, compilers);
    EXPECT_EQ(untyped, compilers);
}

template <class Message>
void ExpectName() {
    const std::unique_ptr<CKRMBaseAdaptationData> made =
        MessageOf(Message::kCommandType, Message::kCommandId, Message::kDirection);
    ExpectBoth(NameOf(static_cast<const Message&>(*made)), NameOf(*made, Message::kDirection),
               NameIn(KRM_TEXT_WITH_MESSAGE));
}

template <class... Messages>
void ExpectNames(krm::ClassList<Messages...>) {
    static_assert(sizeof...(Messages) == 158);
    (ExpectName<Messages>(), ...);
}

TEST(NameOfMessage, IsTheClassOfEveryMessage) {
    ExpectNames(krm::AllMessageClasses());
}

TEST(NameOfMessage, OfAnUntypedMessageNeedsTheDirection) {
    const CKRMCGetDTCCmdAdaptDataSnd request;
    const CKRMBaseAdaptationData& message = request;
    EXPECT_EQ(NameOf(message, Direction::Send), "CKRMCGetDTCCmdAdaptDataSnd");
    EXPECT_EQ(NameOf(message, Direction::Receive), "CKRMCGetDTCCmdAdaptDataRcv");
    const CKRMCBaseCmdAdaptDataSnd& base = request;
    EXPECT_EQ(NameOf(base), "CKRMCGetDTCCmdAdaptDataSnd");
    static_assert(!krm::HasDirection<CKRMBaseAdaptationData> && !krm::HasDirection<CKRMCBaseCmdAdaptData>);
}

TEST(NameOfMessage, OfATypeAndIdThatThereArentIsTheNumbers) {
    CKRMBaseAdaptationData message;
    message.Clear();  // how it starts is the platform's own
    EXPECT_EQ(NameOf(message, Direction::Send), "type 0, ID 0");
    message.SetCommandType(1);
    message.SetCommandID(4294967295U);
    EXPECT_EQ(NameOf(message, Direction::Receive), "type 1, ID 4294967295");
    EXPECT_EQ(NameOf(CKRMCBaseUccAdaptDataRcv(9)), "type 10, ID 9");
}

// A message of a user's own, with a command of his own.
class PaintAnswer : public krm::MessageOf<PaintAnswer, CKRMCBaseCmdAdaptDataRcv, krm::CommandName("ReadPaint", 900)> {
public:
    void Dump(const krm::MessageLines& line) { line("[%s] Data[%d]=%d", Data); }
    CKRMList<krm_ulong> Data;
};

TEST(NameOfMessage, OfAUsersOwnIsWhatItsLogLinesCarry) {
    PaintAnswer answer;
    answer.Data.AddTail(7);
    EXPECT_EQ(NameOf(answer), "CKRMCReadPaintCmdAdaptDataRcv");
    EXPECT_EQ(krm::test::MessageLines(answer).back(),
              "[CKRMCReadPaintCmdAdaptDataRcv::ErrWriteOperationLog] Data[0]=7");
    EXPECT_EQ(DescribeShort(answer), "ReadPaint answer, 1 in Data");
    const CKRMBaseAdaptationData& message = answer;
    EXPECT_EQ(DescribeShort(message, Direction::Receive), "type 1, ID 900 answer");
}

TEST(DescribeMessage, SaysCommandDirectionEcuAndCount) {
    CKRMCGetDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    EXPECT_EQ(DescribeShort(request), "GetDTC request, ECU 2016");
    CKRMCGetDTCCmdAdaptDataRcv answer;
    EXPECT_EQ(DescribeShort(answer), "GetDTC answer, 0 in Data");
    answer.Data.AddTail(CKRMCCommandDTCData());
    answer.Data.AddTail(CKRMCCommandDTCData());
    EXPECT_EQ(DescribeShort(answer), "GetDTC answer, 2 in Data");
    answer.m_bNotSupport = true;
    EXPECT_EQ(DescribeShort(answer), "GetDTC answer, not supported, 2 in Data");
    request.m_ulEcuId = 4294967295U;
    EXPECT_EQ(DescribeShort(request), "GetDTC request, ECU 4294967295");
}

TEST(DescribeMessage, InTheFamiliesWithoutTheseMembers) {
    EXPECT_EQ(DescribeShort(CKRMCGetHelpInfoVdcAdptDataSnd()), "GetHelpInfo request");
    EXPECT_EQ(DescribeShort(CKRMCGetHelpInfoVdcAdptDataRcv()), "GetHelpInfo answer, 0 in Data");
    CKRMCGetImportFileInfoDsdiAdaptDataSnd import;
    import.m_ulEcuId = 3;
    EXPECT_EQ(DescribeShort(import), "GetImportFileInfo request, ECU 3");
}

/// `message` described as the untyped message that it is.
template <class Message>
std::string Untyped(const Message& message) {
    return DescribeShort(static_cast<const CKRMBaseAdaptationData&>(message), Message::kDirection);
}

TEST(DescribeMessage, UntypedItSaysTheSameWithoutTheCount) {
    CKRMCGetDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = 7;
    EXPECT_EQ(Untyped(request), "GetDTC request, ECU 7");
    CKRMCGetDTCCmdAdaptDataRcv answer;
    EXPECT_EQ(Untyped(answer), "GetDTC answer");
    answer.m_bNotSupport = true;
    EXPECT_EQ(Untyped(answer), "GetDTC answer, not supported");
    CKRMCGetImportStoredDataDsdiAdaptDataSnd import;
    import.m_ulEcuId = 8;
    EXPECT_EQ(Untyped(import), "GetImportStoredData request, ECU 8");
    EXPECT_EQ(Untyped(CKRMCGetImportStoredDataDsdiAdaptDataRcv()), "GetImportStoredData answer");
    EXPECT_EQ(Untyped(CKRMCGetHelpInfoVdcAdptDataSnd()), "GetHelpInfo request");
    EXPECT_EQ(Untyped(CKRMCSetUnitConversionInfoUccAdaptDataRcv()), "SetUnitConversionInfo answer");
    EXPECT_EQ(Untyped(CKRMCCreateDiagWordsTableDwtAdaptDataSnd()), "CreateDiagWordsTable request");
    CKRMBaseAdaptationData cleared;
    cleared.Clear();
    EXPECT_EQ(DescribeShort(cleared, Direction::Send), "type 0, ID 0 request");
}

}  // namespace
