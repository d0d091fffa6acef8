// The bases of the five message families, and messages built on them.
#include "krm/framework/message.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <type_traits>
#include <vector>

#include "krm/framework/dump.h"
#include "krm/framework/record.h"
#include "krm/messages/auxiliary/unit_conversion.h"
#include "krm/messages/diag/display.h"
#include "krm/messages/diag/trouble_codes.h"
#include "tests/framework/log_results.h"
#include "tests/support/log_capture.h"
#include "tests/support/not_under.h"

namespace {

using krm::test::LogCapture;
using krm::test::MessageLines;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// What every base has, whatever its family.

template <class BaseT, class SendT, class ReceiveT, krm_ulong type>
struct Family {
    using Base = BaseT;
    using Send = SendT;
    using Receive = ReceiveT;
    static constexpr krm_ulong kType = type;
};

template <class T>
class FamilyTest : public ::testing::Test {};

struct FamilyName {
    template <class T>
    static std::string GetName(int) {
        return "Type" + std::to_string(T::kType);
    }
};
using Families =
    ::testing::Types<Family<CKRMCBaseCmdAdaptData, CKRMCBaseCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataRcv, 1>,
                     Family<CKRMCBaseVdcAdaptData, CKRMCBaseVdcAdaptDataSnd, CKRMCBaseVdcAdaptDataRcv, 2>,
                     Family<CKRMCBaseDsdiAdaptData, CKRMCBaseDsdiAdaptDataSnd, CKRMCBaseDsdiAdaptDataRcv, 8>,
                     Family<CKRMCBaseUccAdaptData, CKRMCBaseUccAdaptDataSnd, CKRMCBaseUccAdaptDataRcv, 10>,
                     Family<CKRMCBaseDwtAdaptData, CKRMCBaseDwtAdaptDataSnd, CKRMCBaseDwtAdaptDataRcv, 14>>;
TYPED_TEST_SUITE(FamilyTest, Families, FamilyName);

template <class Base>
void ExpectTypeAndNoId(krm_ulong type) {
    const Base fresh;
    EXPECT_EQ(fresh.GetCommandType(), type);
    EXPECT_EQ(fresh.GetCommandID(), 0U);
}

TYPED_TEST(FamilyTest, StartsWithItsTypeAndNoId) {
    if constexpr (TypeParam::kType == 14) {
        KRM_NOT_UNDER(OtherPlatform, "the words table's bases start with whatever ID the imported base starts with");
    }
    ExpectTypeAndNoId<typename TypeParam::Base>(TypeParam::kType);
    ExpectTypeAndNoId<typename TypeParam::Send>(TypeParam::kType);
    ExpectTypeAndNoId<typename TypeParam::Receive>(TypeParam::kType);
}

template <class Base>
void ExpectTypeAndIdOf(krm_ulong type) {
    Base numbered(7);
    EXPECT_EQ(numbered.GetCommandType(), type);
    EXPECT_EQ(numbered.GetCommandID(), 7U);

    const Base copy(numbered);
    EXPECT_EQ(copy.GetCommandType(), type);
    EXPECT_EQ(copy.GetCommandID(), 7U);
    Base assigned;
    assigned = numbered;
    EXPECT_EQ(assigned.GetCommandID(), 7U);

    // Clear gives the type back, but a base has no ID of its own.
    numbered.SetCommandType(99);
    CKRMBaseAdaptationData& message = numbered;
    message.Clear();
    EXPECT_EQ(numbered.GetCommandType(), type);
    EXPECT_EQ(numbered.GetCommandID(), 0U);
}

TYPED_TEST(FamilyTest, TypeAndIdOfTheFamilyBase) {
    ExpectTypeAndIdOf<typename TypeParam::Base>(TypeParam::kType);
}

TYPED_TEST(FamilyTest, TypeAndIdOfTheSendBase) {
    ExpectTypeAndIdOf<typename TypeParam::Send>(TypeParam::kType);
}

TYPED_TEST(FamilyTest, TypeAndIdOfTheReceiveBase) {
    ExpectTypeAndIdOf<typename TypeParam::Receive>(TypeParam::kType);
}

TYPED_TEST(FamilyTest, SingleInheritanceFromTheImportedBase) {
    static_assert(std::is_base_of_v<CKRMBaseAdaptationData, typename TypeParam::Base>);
    static_assert(std::is_base_of_v<typename TypeParam::Base, typename TypeParam::Send>);
    static_assert(std::is_base_of_v<typename TypeParam::Base, typename TypeParam::Receive>);
    static_assert(sizeof(CKRMBaseAdaptationData) == sizeof(typename TypeParam::Base));
    static_assert(std::has_virtual_destructor_v<typename TypeParam::Base>);
    // A command ID isn't a message.
    static_assert(!std::is_convertible_v<krm_ulong, typename TypeParam::Base>);
}

TYPED_TEST(FamilyTest, CopiesTakeTheThirdMemberOfTheImportedBaseAlong) {
    // It has no accessor here; it lies behind virtual table, type and ID.
    constexpr std::size_t kStatus = sizeof(void*) + 8;
    static_assert(sizeof(CKRMBaseAdaptationData) > kStatus);
    typename TypeParam::Send message(7);
    reinterpret_cast<unsigned char*>(&message)[kStatus] = 5;
    const typename TypeParam::Send copy(message);
    EXPECT_EQ(reinterpret_cast<const unsigned char*>(&copy)[kStatus], 5);
    typename TypeParam::Send assigned;
    assigned = message;
    EXPECT_EQ(reinterpret_cast<unsigned char*>(&assigned)[kStatus], 5);
    assigned.Clear();
    EXPECT_EQ(reinterpret_cast<unsigned char*>(&assigned)[kStatus], 0);
}

// The members and lines of single bases.

template <class Send>
void ExpectEcuId() {
    Send send(7);
    EXPECT_EQ(send.m_ulEcuId, 0U);
    send.m_ulEcuId = 5;
    const Send copy(send);
    EXPECT_EQ(copy.m_ulEcuId, 5U);
    send.Clear();
    EXPECT_EQ(send.m_ulEcuId, 0U);
}

TEST(MessageBaseTest, SendBasesOfDiagnosticAndImportHaveTheEcu) {
    ExpectEcuId<CKRMCBaseCmdAdaptDataSnd>();
    ExpectEcuId<CKRMCBaseDsdiAdaptDataSnd>();
}

TEST(MessageBaseTest, TheReceiveBaseOfDiagnosticHasNotSupport) {
    CKRMCBaseCmdAdaptDataRcv receive(7);
    EXPECT_FALSE(receive.m_bNotSupport);
    receive.m_bNotSupport = true;
    CKRMCBaseCmdAdaptDataRcv copy;
    copy = receive;
    EXPECT_TRUE(copy.m_bNotSupport);
    receive.Clear();
    EXPECT_FALSE(receive.m_bNotSupport);
}

TEST(MessageBaseTest, TheSendBaseOfTheViewerHasAValue) {
    CKRMCBaseVdcAdaptDataSnd send(3);
    EXPECT_EQ(send.m_ulVdcSndValue, 0U);
    send.m_ulVdcSndValue = 9;
    CKRMCBaseVdcAdaptDataSnd copy(send);
    EXPECT_EQ(copy.m_ulVdcSndValue, 9U);
    copy.m_ulVdcSndValue = 0;
    copy = send;
    EXPECT_EQ(copy.m_ulVdcSndValue, 9U);
    send.Clear();
    EXPECT_EQ(send.m_ulVdcSndValue, 0U);
}

TEST(MessageBaseTest, TheOtherBasesHaveNoMember) {
    static_assert(sizeof(CKRMCBaseVdcAdaptDataRcv) == sizeof(CKRMBaseAdaptationData));
    static_assert(sizeof(CKRMCBaseDsdiAdaptDataRcv) == sizeof(CKRMBaseAdaptationData));
    static_assert(sizeof(CKRMCBaseUccAdaptDataSnd) == sizeof(CKRMBaseAdaptationData));
    static_assert(sizeof(CKRMCBaseUccAdaptDataRcv) == sizeof(CKRMBaseAdaptationData));
    static_assert(sizeof(CKRMCBaseDwtAdaptDataSnd) == sizeof(CKRMBaseAdaptationData));
    static_assert(sizeof(CKRMCBaseDwtAdaptDataRcv) == sizeof(CKRMBaseAdaptationData));
}

template <class Message>
concept HasDump = requires(Message& it) {
    it.ErrWriteOperationLog();
}
|| requires(Message& it) {
    it.ER_WriteOperationLogFormat("%d", 1);
};
static_assert(!HasDump<CKRMCBaseVdcAdaptData> && !HasDump<CKRMCBaseVdcAdaptDataSnd> &&
              !HasDump<CKRMCBaseVdcAdaptDataRcv>);
static_assert(HasDump<CKRMCBaseCmdAdaptData> && HasDump<CKRMCBaseDsdiAdaptData> && HasDump<CKRMCBaseUccAdaptData> &&
              HasDump<CKRMCBaseDwtAdaptData>);

/// The lines of a base with ID 7.
template <class Base>
std::vector<std::string> LinesOf() {
    Base base(7);
    return MessageLines(base);
}

TEST(MessageBaseTest, LinesOfTheDiagnosticBases) {
    EXPECT_THAT(LinesOf<CKRMCBaseCmdAdaptData>(),
                ElementsAre("[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1",
                            "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=7"));
    EXPECT_THAT(LinesOf<CKRMCBaseCmdAdaptDataSnd>(),
                ElementsAre("[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1",
                            "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=7",
                            "[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=0"));
    EXPECT_THAT(LinesOf<CKRMCBaseCmdAdaptDataRcv>(),
                ElementsAre("[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1",
                            "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=7",
                            "[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0"));
}

TEST(MessageBaseTest, LinesOfTheImportBases) {
    EXPECT_THAT(LinesOf<CKRMCBaseDsdiAdaptData>(),
                ElementsAre("[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandType=8",
                            "[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandID=7"));
    EXPECT_THAT(LinesOf<CKRMCBaseDsdiAdaptDataSnd>(),
                ElementsAre("[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandType=8",
                            "[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandID=7",
                            "[CKRMCBaseDsdiAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=0"));
    EXPECT_THAT(LinesOf<CKRMCBaseDsdiAdaptDataRcv>(),
                ElementsAre("[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandType=8",
                            "[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandID=7"));
}

TEST(MessageBaseTest, LinesOfTheUnitConversionBases) {
    const std::vector<std::string> lines = {"[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10",
                                            "[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=7"};
    EXPECT_EQ(LinesOf<CKRMCBaseUccAdaptData>(), lines);
    EXPECT_EQ(LinesOf<CKRMCBaseUccAdaptDataSnd>(), lines);
    EXPECT_EQ(LinesOf<CKRMCBaseUccAdaptDataRcv>(), lines);
}

TEST(MessageBaseTest, LinesOfTheWordsTableBases) {
    const std::vector<std::string> lines = {"[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandType=14",
                                            "[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandID=7"};
    EXPECT_EQ(LinesOf<CKRMCBaseDwtAdaptData>(), lines);
    EXPECT_EQ(LinesOf<CKRMCBaseDwtAdaptDataSnd>(), lines);
    EXPECT_EQ(LinesOf<CKRMCBaseDwtAdaptDataRcv>(), lines);
}

template <class Base>
void ExpectLineIsFormattedAndWritten(krm_long result) {
    const LogCapture log(result);
    Base base;
    EXPECT_EQ(base.ER_WriteOperationLogFormat("[%s] m_ulEcuId=%d", "100%s", -1), result);
    ASSERT_THAT(log.Lines(), SizeIs(1));
    EXPECT_EQ(log.Lines()[0].text, "[100%s] m_ulEcuId=-1");
    EXPECT_EQ(log.Lines()[0].length, 20U);
    EXPECT_EQ(log.Lines()[0].first, 4);
    EXPECT_EQ(log.Lines()[0].second, 2);
    // The dump writes on when the writer fails, and says nothing of it.
    EXPECT_EQ(base.ErrWriteOperationLog(), 0);
    EXPECT_THAT(log.Lines(), SizeIs(3));
}

TEST(MessageBaseTest, OneLineIsFormattedAndWrittenWithFourAndTwo) {
    for (const krm_long result : krm::test::kLogResults) {
        ExpectLineIsFormattedAndWritten<CKRMCBaseCmdAdaptData>(result);
        ExpectLineIsFormattedAndWritten<CKRMCBaseDsdiAdaptData>(result);
        ExpectLineIsFormattedAndWritten<CKRMCBaseUccAdaptData>(result);
        ExpectLineIsFormattedAndWritten<CKRMCBaseDwtAdaptData>(result);
    }
}

TEST(MessageBaseTest, CommandTypeAndIdAreLoggedAsSignedNumbers) {
    CKRMCBaseCmdAdaptDataSnd send(0xFFFFFFFFU);
    send.m_ulEcuId = 0x80000000U;
    EXPECT_THAT(MessageLines(send),
                ElementsAre("[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1",
                            "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=-1",
                            "[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=-2147483648"));
}

// Messages of this test's own.

class Request : public krm::MessageOf<Request, CKRMCBaseCmdAdaptDataSnd, "GetDTC"> {
public:
    void Dump(const krm::MessageLines& line) {
        line("[%s] m_uchPhaseType=%d", m_uchPhaseType);
        line("[%s] m_ulIdList[%d]=%d", m_ulIdList);
    }

    unsigned char m_uchPhaseType = 3;  // a default that isn't 0
    CKRMList<krm_ulong> m_ulIdList;
};

class Answer : public krm::MessageOf<Answer, CKRMCBaseCmdAdaptDataRcv, "GetDTC"> {
public:
    void Dump(const krm::MessageLines& line) {
        line("[%s] Data[%d]", Data);
        line("[%s] m_bDTCType=%d", m_bDTCType);
    }

    CKRMList<CKRMCCommandDataLayout> Data;
    bool m_bDTCType = false;
};

class ViewerRequest : public krm::MessageOf<ViewerRequest, CKRMCBaseVdcAdaptDataSnd, "GetHelpInfo"> {};

class ImportRequest : public krm::MessageOf<ImportRequest, CKRMCBaseDsdiAdaptDataSnd, "GetImportStoredData"> {};

class UnitAnswer : public krm::MessageOf<UnitAnswer, CKRMCBaseUccAdaptDataRcv, "GetUnitSettingGroupParamList"> {
public:
    void Dump(const krm::MessageLines& line) { line("[%s] m_strUnit=%s", m_strUnit); }
    CKRMString m_strUnit;
};

class WordsAnswer : public krm::MessageOf<WordsAnswer, CKRMCBaseDwtAdaptDataRcv, "GetTranslationString"> {};

template <class Message>
void ExpectTypeAndIdStay(krm_ulong type, krm_ulong id) {
    Message message;
    EXPECT_EQ(message.GetCommandType(), type);
    EXPECT_EQ(message.GetCommandID(), id);
    message.SetCommandType(98);
    message.SetCommandID(99);
    EXPECT_EQ(message.GetCommandID(), 99U);
    CKRMBaseAdaptationData& base = message;
    base.Clear();
    EXPECT_EQ(message.GetCommandType(), type);
    EXPECT_EQ(message.GetCommandID(), id);
    static_assert(!std::is_constructible_v<Message, krm_ulong>);
}

TEST(MessageTest, TypeAndIdAreTheClasss) {
    ExpectTypeAndIdStay<Request>(1, 2);
    ExpectTypeAndIdStay<Answer>(1, 2);
    ExpectTypeAndIdStay<ViewerRequest>(2, 2);
    ExpectTypeAndIdStay<ImportRequest>(8, 2);
    ExpectTypeAndIdStay<UnitAnswer>(10, 5);
    ExpectTypeAndIdStay<WordsAnswer>(14, 2);
    static_assert(Request::kCommandType == 1 && Request::kCommandId == 2);
    static_assert(WordsAnswer::kCommandType == 14 && WordsAnswer::kCommandId == 2);
}

TEST(MessageTest, TheLayerAddsNoMember) {
    static_assert(sizeof(ViewerRequest) == sizeof(CKRMCBaseVdcAdaptDataSnd));
    static_assert(sizeof(WordsAnswer) == sizeof(CKRMCBaseDwtAdaptDataRcv));
}

TEST(MessageTest, ClearRestoresOwnMembersAndTheBases) {
    Request request;
    request.m_ulEcuId = 5;
    request.m_uchPhaseType = 6;
    request.m_ulIdList.AddTail(7);
    request.Clear();
    EXPECT_EQ(request.m_ulEcuId, 0U);
    EXPECT_EQ(request.m_uchPhaseType, 3);
    EXPECT_EQ(request.m_ulIdList.GetCount(), 0);
    Answer answer;
    answer.m_bNotSupport = true;
    answer.m_bDTCType = true;
    answer.Data.AddTail(CKRMCCommandDataLayout());
    answer.Clear();
    EXPECT_FALSE(answer.m_bNotSupport);
    EXPECT_FALSE(answer.m_bDTCType);
    EXPECT_EQ(answer.Data.GetCount(), 0);
    ViewerRequest viewer;
    viewer.m_ulVdcSndValue = 8;
    viewer.Clear();
    EXPECT_EQ(viewer.m_ulVdcSndValue, 0U);
}

TEST(MessageTest, CopiesAreWhole) {
    Request request;
    request.SetCommandType(50);
    request.SetCommandID(51);
    request.m_ulEcuId = 52;
    request.m_uchPhaseType = 53;
    request.m_ulIdList.AddTail(54);
    Request copy(request);
    Request assigned;
    assigned = request;
    request.m_ulIdList[0] = 0;
    request.Clear();
    for (Request* it : {&copy, &assigned}) {
        EXPECT_EQ(it->GetCommandType(), 50U);
        EXPECT_EQ(it->GetCommandID(), 51U);
        EXPECT_EQ(it->m_ulEcuId, 52U);
        EXPECT_EQ(it->m_uchPhaseType, 53);
        ASSERT_EQ(it->m_ulIdList.GetCount(), 1);
        EXPECT_EQ(it->m_ulIdList[0], 54U);
    }
    ViewerRequest viewer;
    viewer.m_ulVdcSndValue = 9;
    const ViewerRequest viewerCopy(viewer);
    EXPECT_EQ(viewerCopy.m_ulVdcSndValue, 9U);
}

TEST(MessageTest, ARequestWritesFamilyThenDirectionThenItsOwn) {
    Request request;
    request.m_ulEcuId = 12;
    request.m_ulIdList.AddTail(100);
    request.m_ulIdList.AddTail(0xFFFFFFFFU);
    EXPECT_THAT(MessageLines(request),
                ElementsAre("[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1",
                            "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=2",
                            "[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=12",
                            "[CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog] m_uchPhaseType=3",
                            "[CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog] m_ulIdList[0]=100",
                            "[CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog] m_ulIdList[1]=-1"));
}

TEST(MessageTest, AnAnswerWritesItsRecordsUnderItsLogName) {
    Answer answer;
    answer.m_bNotSupport = true;
    answer.m_bDTCType = true;
    CKRMCCommandDataLayout layout;
    layout.m_ulPidNo = 0x0C;
    answer.Data.AddTail(layout);
    layout.m_ulBitMask = 0xFF;
    answer.Data.AddTail(layout);
    EXPECT_THAT(MessageLines(answer),
                ElementsAre("[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1",
                            "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=2",
                            "[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1",
                            "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulPidNo=0xC",
                            "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulDataLen=0",
                            "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchEndian=0",
                            "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulByteNum=0",
                            "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulBytePos=0",
                            "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulBitMask=0x00000000",
                            "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulPidNo=0xC",
                            "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulDataLen=0",
                            "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_uchEndian=0",
                            "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulByteNum=0",
                            "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulBytePos=0",
                            "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulBitMask=0x000000FF",
                            "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] m_bDTCType=1"));
}

TEST(MessageTest, AnEmptyListWritesOnlyTheScalarLines) {
    Answer answer;
    EXPECT_THAT(MessageLines(answer), ElementsAre("[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1",
                                                  "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=2",
                                                  "[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0",
                                                  "[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] m_bDTCType=0"));
}

TEST(MessageTest, FamiliesWithoutAMemberWriteTwoLinesBeforeTheirOwn) {
    UnitAnswer unit;
    unit.m_strUnit = "100%d";
    EXPECT_THAT(
        MessageLines(unit),
        ElementsAre("[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10",
                    "[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=5",
                    "[CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv::ErrWriteOperationLog] m_strUnit=100%d"));
    WordsAnswer words;
    EXPECT_THAT(MessageLines(words), ElementsAre("[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandType=14",
                                                 "[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandID=2"));
}

TEST(MessageTest, ReturnsZeroWhenEveryLineFails) {
    for (const krm_long result : krm::test::kLogResults) {
        const LogCapture log(result);
        Answer answer;
        answer.Data.AddTail(CKRMCCommandDataLayout());
        EXPECT_EQ(answer.ErrWriteOperationLog(), 0);
        EXPECT_THAT(log.Lines(), SizeIs(4 + 6));
        for (const LogCapture::Line& line : log.Lines()) {
            EXPECT_EQ(line.length, line.text.size());
            EXPECT_EQ(line.first, 4);
            EXPECT_EQ(line.second, 2);
        }
    }
}

TEST(MessageTest, EachLineIsOneVirtualCallWithItsLiteral) {
    /// Notes the formats of its lines instead of writing them.
    class Noting : public Request {
    public:
        krm_long ER_WriteOperationLogFormat(const char* format, ...) override KRM_PRINTF_LIKE(2, 3) {
            m_formats.emplace_back(format);
            return -1;
        }
        std::vector<std::string> m_formats;
    };
    Noting request;
    request.m_ulIdList.AddTail(1);
    request.m_ulIdList.AddTail(2);
    const LogCapture log;
    EXPECT_EQ(request.ErrWriteOperationLog(), 0);
    EXPECT_THAT(request.m_formats,
                ElementsAre("[%s] m_dwCommandType=%d", "[%s] m_dwCommandID=%d", "[%s] m_ulEcuId=%d",
                            "[%s] m_uchPhaseType=%d", "[%s] m_ulIdList[%d]=%d", "[%s] m_ulIdList[%d]=%d"));
    EXPECT_THAT(log.Texts(), IsEmpty());
}

// Elements whose fields the message writes itself, lists within lists.

struct Point {
    krm_ulong m_ulX = 0;
    CKRMList<unsigned char> m_uchRaw;
    CKRMCCommandDataLayout m_cLayout;
    CKRMList<CKRMCCommandDataLayout> m_cLayoutList;
};
struct Curve {
    CKRMString m_strName;
    CKRMList<Point> m_cPoints;
};
struct Sheet {
    double m_dScale = 0;
    CKRMList<Curve> m_cCurves;
};

class Drawing : public krm::MessageOf<Drawing, CKRMCBaseUccAdaptDataSnd, krm::CommandName("Draw", 900)> {
public:
    void Dump(const krm::MessageLines& line) {
        line.ForEach(Data, [](const auto& sheetLine, Sheet& sheet) {
            sheetLine("[%s] Data[%d].m_dScale=%lf", sheet.m_dScale);
            sheetLine.ForEach(sheet.m_cCurves, [](const auto& curveLine, Curve& curve) {
                curveLine("[%s] Data[%d].m_cCurves[%d].m_strName=%s", curve.m_strName);
                curveLine.ForEach(curve.m_cPoints, [](const auto& pointLine, Point& point) {
                    pointLine("[%s] Data[%d].m_cCurves[%d].m_cPoints[%d].m_ulX=%u", point.m_ulX);
                    pointLine("[%s] Data[%d].m_cCurves[%d].m_cPoints[%d].m_uchRaw[%d]=%02X", point.m_uchRaw);
                    pointLine("[%s] Data[%d].m_cCurves[%d].m_cPoints[%d].m_cLayout", point.m_cLayout);
                    pointLine("[%s] Data[%d].m_cCurves[%d].m_cPoints[%d].m_cLayoutList[%d]", point.m_cLayoutList);
                });
            });
        });
        line("[%s] m_bDone=%d", m_bDone);
    }

    CKRMList<Sheet> Data;
    bool m_bDone = true;
};

/// The lines behind the family's two, without the log name, and of each record's six only the first.
std::vector<std::string> OwnLines(Drawing& drawing) {
    std::vector<std::string> own;
    for (const std::string& line : MessageLines(drawing)) {
        const std::string logName = "[CKRMCDrawUccAdaptDataSnd::ErrWriteOperationLog] ";
        if (line.compare(0, logName.size(), logName) == 0 &&
            (line.find("Layout") == std::string::npos || line.find("m_ulPidNo") != std::string::npos)) {
            own.push_back(line.substr(logName.size()));
        }
    }
    return own;
}

TEST(ForEachTest, AnEmptyListWritesNothing) {
    Drawing drawing;
    EXPECT_THAT(OwnLines(drawing), ElementsAre("m_bDone=1"));
    drawing.Data.AddTail(Sheet());
    EXPECT_THAT(OwnLines(drawing), ElementsAre("Data[0].m_dScale=0.000000", "m_bDone=1"));
}

TEST(ForEachTest, OneIndexPerLevel) {
    Drawing drawing;
    drawing.Data.AddTail(Sheet());
    drawing.Data.AddTail(Sheet());
    Sheet& sheet = drawing.Data[1];
    sheet.m_dScale = 0.5;
    sheet.m_cCurves.AddTail(Curve());
    sheet.m_cCurves.AddTail(Curve());
    sheet.m_cCurves.AddTail(Curve());
    sheet.m_cCurves[1].m_strName = "100%s";
    Point point;
    point.m_ulX = 10;
    point.m_uchRaw.AddTail(0xAB);
    point.m_uchRaw.AddTail(1);
    sheet.m_cCurves[2].m_cPoints.AddTail(point);
    Point last;
    last.m_ulX = 4294967295U;
    last.m_cLayout.m_ulPidNo = 0xC;
    last.m_cLayoutList.AddTail(CKRMCCommandDataLayout());
    last.m_cLayoutList.AddTail(last.m_cLayout);
    sheet.m_cCurves[2].m_cPoints.AddTail(last);
    EXPECT_THAT(OwnLines(drawing),
                ElementsAre("Data[0].m_dScale=0.000000", "Data[1].m_dScale=0.500000",
                            "Data[1].m_cCurves[0].m_strName=", "Data[1].m_cCurves[1].m_strName=100%s",
                            "Data[1].m_cCurves[2].m_strName=", "Data[1].m_cCurves[2].m_cPoints[0].m_ulX=10",
                            "Data[1].m_cCurves[2].m_cPoints[0].m_uchRaw[0]=AB",
                            "Data[1].m_cCurves[2].m_cPoints[0].m_uchRaw[1]=01",
                            "Data[1].m_cCurves[2].m_cPoints[0].m_cLayout.m_ulPidNo=0x0",
                            "Data[1].m_cCurves[2].m_cPoints[1].m_ulX=4294967295",
                            "Data[1].m_cCurves[2].m_cPoints[1].m_cLayout.m_ulPidNo=0xC",
                            "Data[1].m_cCurves[2].m_cPoints[1].m_cLayoutList[0].m_ulPidNo=0x0",
                            "Data[1].m_cCurves[2].m_cPoints[1].m_cLayoutList[1].m_ulPidNo=0xC", "m_bDone=1"));
}

TEST(ForEachTest, CountsPlainElementsAndWritesSeveralFieldsPerLine) {
    /// A record that writes the fields of its elements.
    class Table : public krm::RecordOf<Table> {
    public:
        void Dump(const krm::RecordLines& line) {
            line.ForEach(m_cRows, [](const auto& rowLine, Curve& row) {
                rowLine("%s.m_cRows[%u].m_strName=%s", row.m_strName);
                const int count = row.m_cPoints.GetCount();
                rowLine("%s.m_cRows[%d].m_strName=%s(%d)", row.m_strName, count);
            });
        }
        CKRMList<Curve> m_cRows;
    };
    Table table;
    table.m_cRows.AddTail(Curve());
    table.m_cRows.AddTail(Curve());
    table.m_cRows[1].m_strName = "b";
    table.m_cRows[1].m_cPoints.AddTail(Point());
    EXPECT_THAT(krm::test::RecordLinesOf(table),
                ElementsAre("P.m_cRows[0].m_strName=", "P.m_cRows[0].m_strName=(0)", "P.m_cRows[1].m_strName=b",
                            "P.m_cRows[1].m_strName=b(1)"));
}

// A command of the program's own.

class OwnRequest : public krm::MessageOf<OwnRequest, CKRMCBaseCmdAdaptDataSnd, krm::CommandName("ReadPaintCode", 900)> {
public:
    void Dump(const krm::MessageLines& line) { line("[%s] m_uchLayer=%d", m_uchLayer); }
    unsigned char m_uchLayer = 0;
};

TEST(MessageTest, ACommandOfOnesOwnHasItsIdAndItsLogName) {
    ExpectTypeAndIdStay<OwnRequest>(1, 900);
    static_assert(OwnRequest::kCommandType == 1 && OwnRequest::kCommandId == 900);
    OwnRequest request;
    request.m_ulEcuId = 5;
    request.m_uchLayer = 2;
    EXPECT_THAT(MessageLines(request),
                ElementsAre("[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1",
                            "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=900",
                            "[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=5",
                            "[CKRMCReadPaintCodeCmdAdaptDataSnd::ErrWriteOperationLog] m_uchLayer=2"));
    CKRMBaseAdaptationData* const message = &request;
    EXPECT_EQ(krm::MessageAs<OwnRequest>(message), &request);
    EXPECT_EQ(krm::MessageAs<Request>(message), nullptr);
}

// Messages without a Dump.

template <class Base>
class Silent : public krm::MessageOf<Silent<Base>, Base, krm::CommandName("KeepSilent", 901)> {};

template <class Base>
std::vector<std::string> SilentLines() {
    Silent<Base> message;
    return MessageLines(message);
}

TEST(MessageTest, WithoutADumpTheBasesLinesAreAll) {
    EXPECT_THAT(SilentLines<CKRMCBaseCmdAdaptDataSnd>(),
                ElementsAre("[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1",
                            "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=901",
                            "[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=0"));
    EXPECT_THAT(SilentLines<CKRMCBaseCmdAdaptDataRcv>(),
                ElementsAre("[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1",
                            "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=901",
                            "[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0"));
    EXPECT_THAT(SilentLines<CKRMCBaseDsdiAdaptDataSnd>(),
                ElementsAre("[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandType=8",
                            "[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandID=901",
                            "[CKRMCBaseDsdiAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=0"));
    const std::vector<std::string> import = {"[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandType=8",
                                             "[CKRMCBaseDsdiAdaptData::ErrWriteOperationLog] m_dwCommandID=901"};
    EXPECT_EQ(SilentLines<CKRMCBaseDsdiAdaptDataRcv>(), import);
    const std::vector<std::string> unit = {"[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10",
                                           "[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=901"};
    EXPECT_EQ(SilentLines<CKRMCBaseUccAdaptDataSnd>(), unit);
    EXPECT_EQ(SilentLines<CKRMCBaseUccAdaptDataRcv>(), unit);
    const std::vector<std::string> words = {"[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandType=14",
                                            "[CKRMCBaseDwtAdaptData::ErrWriteOperationLog] m_dwCommandID=901"};
    EXPECT_EQ(SilentLines<CKRMCBaseDwtAdaptDataSnd>(), words);
    EXPECT_EQ(SilentLines<CKRMCBaseDwtAdaptDataRcv>(), words);
    // The viewer family has no dump to inherit.
    static_assert(!HasDump<Silent<CKRMCBaseVdcAdaptDataSnd>> && !HasDump<Silent<CKRMCBaseVdcAdaptDataRcv>>);
    static_assert(HasDump<Silent<CKRMCBaseCmdAdaptDataSnd>>);
}

// Asking an untyped message for a class.

TEST(MessageAsTest, GivesTheClassThatTheMessageIs) {
    Request request;
    CKRMBaseAdaptationData* const message = &request;
    EXPECT_EQ(krm::MessageAs<Request>(message), &request);
    const CKRMBaseAdaptationData* const constant = &request;
    EXPECT_EQ(krm::MessageAs<Request>(constant), &request);
    static_assert(std::is_same_v<decltype(krm::MessageAs<Request>(message)), Request*>);
    static_assert(std::is_same_v<decltype(krm::MessageAs<Request>(constant)), const Request*>);
}

TEST(MessageAsTest, GivesNullForAnotherFamilyOrId) {
    Request request;
    CKRMBaseAdaptationData* message = &request;
    EXPECT_EQ(krm::MessageAs<ViewerRequest>(message), nullptr);
    EXPECT_EQ(krm::MessageAs<WordsAnswer>(message), nullptr);
    EXPECT_EQ(krm::MessageAs<UnitAnswer>(message), nullptr);
    CKRMCBaseCmdAdaptDataSnd base(Request::kCommandId + 1);
    message = &base;
    EXPECT_EQ(krm::MessageAs<Request>(message), nullptr);
    message = nullptr;
    EXPECT_EQ(krm::MessageAs<Request>(message), nullptr);
}

TEST(MessageAsTest, GivesNullForAMessageThatSaysItIsAnother) {
    Request request;
    CKRMBaseAdaptationData* const message = &request;
    request.SetCommandID(99);
    EXPECT_EQ(krm::MessageAs<Request>(message), nullptr);
    request.Clear();
    EXPECT_EQ(krm::MessageAs<Request>(message), &request);
    request.SetCommandType(2);
    EXPECT_EQ(krm::MessageAs<Request>(message), nullptr);
}

}  // namespace
