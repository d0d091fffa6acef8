#include "examples/diagnosis_session/engine.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "examples/diagnosis_session/received.h"
#include "tests/support/log_capture.h"

namespace {

using diagnosis_session::DiagnosisEngine;
using diagnosis_session::Exchange;
using diagnosis_session::ItemTable;
using diagnosis_session::ReadExchanges;

class Engine : public ::testing::Test {
protected:
    static diagnosis_session::Complain NoFault() {
        return [](const diagnosis_session::Place& line, const std::string& what) {
            ADD_FAILURE() << line.line << ": " << what;
        };
    }

    /// An engine on that recording, which has heard all of it beforehand.
    std::unique_ptr<DiagnosisEngine> EngineOn(const std::vector<Exchange>& recording,
                                              diagnosis_session::Complain complain) {
        const auto oneByOne = [&recording] {
            return [&recording, next = std::size_t{0}]() mutable {
                return next < recording.size() ? std::optional(recording[next++]) : std::nullopt;
            };
        };
        const auto totals = [] { return diagnosis_session::RecordingTotals{4, 1, 2}; };
        auto engine = std::make_unique<DiagnosisEngine>(m_table, oneByOne(), totals, std::move(complain));
        engine->Survey(oneByOne(), totals);
        EXPECT_EQ(GoOn(*engine).totals.frames, 4U);
        return engine;
    }
    /// What was heard next.
    static diagnosis_session::Received GoOn(DiagnosisEngine& engine) {
        CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd request;
        CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv answer;
        engine.Answer(request, answer);
        return diagnosis_session::ReadReceived(answer.m_cDmReceiveDataList);
    }

    const ItemTable m_table = ItemTable::Parse(R"({"commands": [
        {"cmd": {"01": "0F"}, "signals": [
            {"id": "IAT", "name": "Intake air", "fmt": {"bix": 4, "len": 8, "add": -40, "max": 215, "min": -40,
                                                         "unit": "celsius"}},
            {"id": "MODE", "fmt": {"bix": 12, "len": 4, "map": {"0": {"value": "OFF"}, "5": {"value": "ON"}}}},
            {"id": "TRIM", "fmt": {"bix": 16, "len": 8, "div": 2, "sign": true, "max": 10, "min": -10}}]},
        {"cmd": {"01": "0D"}, "signals": [{"id": "VSS", "fmt": {"len": 8}}]}]})",
                                               NoFault());
};

TEST_F(Engine, AnItemCarriesItsWholeConversion) {
    const std::vector<Exchange> recording = ReadExchanges(
        "(1.0) can0 7DF#02010F\n"
        "(1.0) can0 7E8#05410F0645FF\n",
        NoFault());
    ASSERT_EQ(recording.size(), 1U);
    const auto engineOn = EngineOn(recording, NoFault());
    DiagnosisEngine& engine = *engineOn;
    GoOn(engine);
    CKRMCGetFFDCmdAdaptDataSnd request;
    request.m_ulEcuId = 0x7E8;
    CKRMCGetFFDCmdAdaptDataRcv answer;
    engine.Answer(request, answer);

    EXPECT_FALSE(answer.m_bNotSupport);
    ASSERT_EQ(answer.Data.GetCount(), 3);
    CKRMCCommandFFDData& temperature = answer.Data[0];
    EXPECT_STREQ(temperature.m_strName.GetText(), "Intake air");
    EXPECT_STREQ(temperature.m_strUnitPhys.GetText(), "celsius");
    EXPECT_STREQ(temperature.m_strUnit.GetText(), "°C");
    EXPECT_EQ(temperature.m_uchDataType, 0);
    EXPECT_EQ(temperature.m_uchDecPntCount, 5);
    EXPECT_EQ(temperature.m_cConversionTbl.m_lMul, 100000);
    EXPECT_EQ(temperature.m_cConversionTbl.m_lDiv, 1);
    EXPECT_EQ(temperature.m_cConversionTbl.m_lOffset, -4000000);
    EXPECT_EQ(temperature.m_cConversionTbl.m_ushBitLength, 8);
    EXPECT_EQ(temperature.m_cConversionTbl.m_uchSigned, 0);
    EXPECT_EQ(temperature.m_cConversionTbl.m_cDataMax.m_ulRawData, 255U);
    EXPECT_STREQ(temperature.m_cConversionTbl.m_cDataMax.m_strDataPhys.GetText(), "215.00000");
    EXPECT_EQ(temperature.m_cConversionTbl.m_cGraphMin.m_dDataPhys, -40.0);
    EXPECT_STREQ(temperature.m_cResolutionData.m_strDataPhys.GetText(), "1.00000");
    EXPECT_EQ(temperature.m_cDataLayout.m_ulPidNo, 0x0FU);
    EXPECT_EQ(temperature.m_cDataLayout.m_ulDataLen, 3U);
    EXPECT_EQ(temperature.m_cDataLayout.m_ulByteNum, 2U);
    EXPECT_EQ(temperature.m_cDataLayout.m_ulBytePos, 0U);
    EXPECT_EQ(temperature.m_cDataLayout.m_ulBitMask, 0x0FF0U);
    ASSERT_EQ(temperature.m_cDispDataList.GetCount(), 1);
    EXPECT_EQ(temperature.m_cDispDataList[0].m_ulRawData, 0x64U);
    EXPECT_EQ(temperature.m_cDispDataList[0].m_dDataPhys, 60.0);
    EXPECT_STREQ(temperature.m_cDispDataList[0].m_strDataPhys.GetText(), "60.00000");
    EXPECT_STREQ(temperature.m_cDispDataList[0].m_strData.GetText(), "60");
    EXPECT_EQ(temperature.m_uchUnitConvDecPntCount, 0);

    CKRMCCommandFFDData& mode = answer.Data[1];
    EXPECT_EQ(mode.m_uchDataType, 1);
    EXPECT_EQ(mode.m_cConversionTbl.m_cPatternDispList.GetCount(), 2);
    EXPECT_STREQ(mode.m_cDispDataList[0].m_strDataPhys.GetText(), "ON");

    CKRMCCommandFFDData& trim = answer.Data[2];
    EXPECT_EQ(trim.m_cConversionTbl.m_uchSigned, 1);
    EXPECT_EQ(trim.m_cConversionTbl.m_cDataMax.m_ulRawData, 20U);
    EXPECT_EQ(trim.m_cConversionTbl.m_cDataMin.m_ulRawData, 0xECU);
    EXPECT_STREQ(trim.m_cConversionTbl.m_cDataMin.m_strDataPhys.GetText(), "-10.00000");
    EXPECT_STREQ(trim.m_cDispDataList[0].m_strDataPhys.GetText(), "-0.50000");
    EXPECT_STREQ(trim.m_cDispDataList[0].m_strData.GetText(), "-0.5");
}

/// All of a record: its log lines, and the texts that the log leaves out.
std::vector<std::string> AllOf(const CKRMList<CKRMCCommandFFDData>& items) {
    std::vector<std::string> all;
    for (CKRMCCommandFFDData item : items) {
        const std::vector<std::string> lines = krm::test::RecordLinesOf(item);
        all.insert(all.end(), lines.begin(), lines.end());
        all.emplace_back(item.m_strFFDText.GetText());
    }
    return all;
}

TEST_F(Engine, AnAnswerFilledAgainIsLikeANewOne) {
    const auto faults = [](const diagnosis_session::Place&, const std::string&) {};
    // Other values, other items, fewer of them, an item left out, a refusal, nothing known.
    const std::vector<Exchange> recording = ReadExchanges(
        "(1.0) can0 7DF#02010F\n"
        "(1.0) can0 7E8#05410F0645FF\n"
        "(1.0) can0 7DF#02010F\n"
        "(1.0) can0 7E8#05410F0A9003\n"
        "(1.0) can0 7DF#02010D\n"
        "(1.0) can0 7E8#03410D22\n"
        "(1.0) can0 7DF#02010F\n"
        "(1.0) can0 7E8#04410F0A90\n"
        "(1.0) can0 7DF#02010F\n"
        "(1.0) can0 7E8#05410F064501\n"
        "(1.0) can0 7DF#03010D0F\n"
        "(1.0) can0 7E8#07410D210F0A9003\n"
        "(1.0) can0 7DF#02010F\n"
        "(1.0) can0 7E8#037F0111\n"
        "(1.0) can0 7DF#02010F\n"
        "(1.0) can0 7E8#05410F0645FE\n"
        "(1.0) can0 7DF#020133\n"
        "(1.0) can0 7E8#03413301\n",
        faults);
    const auto engine = EngineOn(recording, faults);
    const auto other = EngineOn(recording, faults);
    CKRMCGetCurrentDataValueCmdAdaptDataSnd request;
    request.m_ulEcuId = 0x7E8;
    CKRMCGetCurrentDataValueCmdAdaptDataRcv again;
    std::vector<int> counts;
    for (std::size_t i = 0; i < recording.size(); ++i) {
        GoOn(*engine);
        engine->Answer(request, again);
        GoOn(*other);
        CKRMCGetCurrentDataValueCmdAdaptDataRcv fresh;
        other->Answer(request, fresh);
        EXPECT_EQ(AllOf(again.Data), AllOf(fresh.Data)) << i;
        EXPECT_EQ(again.m_bNotSupport, fresh.m_bNotSupport) << i;
        counts.push_back(fresh.Data.GetCount());
    }
    EXPECT_EQ(counts, (std::vector<int>{3, 3, 1, 3, 3, 4, 0, 3, 0}));
    // Nobody answers any more.
    engine->Answer(request, again);
    EXPECT_EQ(again.Data.GetCount(), 0);
    EXPECT_FALSE(again.m_bNotSupport);
}

TEST_F(Engine, TroubleCodesOfAllSystems) {
    const std::vector<Exchange> recording = ReadExchanges(
        "(1.0) can0 7DF#0107\n"
        "(1.0) can0 7E8#100A470403014123\n"
        "(1.0) can0 7E8#2192ABFFFE\n",
        NoFault());
    const auto engineOn = EngineOn(recording, NoFault());
    DiagnosisEngine& engine = *engineOn;
    GoOn(engine);
    CKRMCGetDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = 0x7E8;
    request.m_uchPhaseType = static_cast<unsigned char>(diagnosis_session::DtcPhase::Pending);
    CKRMCGetDTCCmdAdaptDataRcv answer;
    engine.Answer(request, answer);
    std::vector<std::string> codes;
    for (const CKRMCCommandDTCData& code : answer.Data) {
        codes.emplace_back(code.m_strDTC.GetText());
        EXPECT_STREQ(code.m_strDTCTypeName.GetText(), "pending");
    }
    EXPECT_EQ(codes, (std::vector<std::string>{"P0301", "C0123", "B12AB", "U3FFE"}));
    EXPECT_EQ(answer.Data[2].m_ulDTCCode, 0x92ABU);
    EXPECT_TRUE(answer.m_bDTCType);
}

TEST_F(Engine, ARefusalIsNotSupportedOnlyWhereItSaysSo) {
    const auto faults = [](const diagnosis_session::Place&, const std::string&) {};
    const std::vector<Exchange> recording = ReadExchanges(
        "(1.0) can0 7DF#0104\n"
        "(1.0) can0 7E8#037F0411\n"
        "(1.0) can0 7E9#037F0422\n",
        faults);
    ASSERT_EQ(recording[0].answers.size(), 2U);
    const auto engineOn = EngineOn(recording, faults);
    DiagnosisEngine& engine = *engineOn;
    CKRMCClearDTCCmdAdaptDataSnd request;
    CKRMCClearDTCCmdAdaptDataRcv unsupported;
    GoOn(engine);
    request.m_ulEcuId = 0x7E8;
    engine.Answer(request, unsupported);
    EXPECT_TRUE(unsupported.m_bNotSupport);
    EXPECT_EQ(unsupported.m_ulResult, 0x11U);
    CKRMCClearDTCCmdAdaptDataRcv refused;
    request.m_ulEcuId = 0x7E9;
    engine.Answer(request, refused);
    EXPECT_FALSE(refused.m_bNotSupport);
    EXPECT_EQ(refused.m_ulResult, 0x22U);
}

TEST_F(Engine, TheMonitorGivesTheValuesOfItsPidsInOrderAndThenNone) {
    const std::vector<Exchange> recording = ReadExchanges(
        "(1.0) can0 7DF#020100\n"
        "(1.0) can0 7E8#06410000080000\n"
        "(1.0) can0 7DF#02010D\n"
        "(1.0) can0 7E8#03410D01\n"
        "(1.0) can0 7E9#03410D09\n"
        "(1.0) can0 7DF#02010D\n"
        "(1.0) can0 7E8#03410D02\n",
        NoFault());
    const auto engineOn = EngineOn(recording, NoFault());
    DiagnosisEngine& engine = *engineOn;
    CKRMCGetDataMonitorListCmdAdaptDataSnd listRequest;
    listRequest.m_ulEcuId = 0x7E8;
    CKRMCGetDataMonitorListCmdAdaptDataRcv list;
    engine.Answer(listRequest, list);
    ASSERT_EQ(list.Data.GetCount(), 1);
    EXPECT_STREQ(list.Data[0].m_strFFDText.GetText(), "VSS");
    EXPECT_EQ(list.Data[0].m_cDispDataList.GetCount(), 0);
    ASSERT_EQ(list.m_uchA8SupportData.GetCount(), 4);
    EXPECT_EQ(list.m_uchA8SupportData[1], 0x08);

    CKRMCGetDataMonitorValueCmdAdaptDataSnd poll;
    poll.m_ushDataMonitorId = 3;
    CKRMCGetDataMonitorValueCmdAdaptDataRcv before;
    engine.Answer(poll, before);
    EXPECT_TRUE(before.m_bNotSupport);

    CKRMCStartDataMonitorCmdAdaptDataSnd start;
    CKRMCCommandStartDataMonitorData watched;
    watched.m_ushDataMonitorId = 3;
    watched.m_ulEcuId = 0x7E8;
    watched.m_cPidIdList.AddTail(0x0D);
    start.Data.AddTail(watched);
    CKRMCStartDataMonitorCmdAdaptDataRcv started;
    engine.Answer(start, started);
    EXPECT_TRUE(started.m_bDataMonitorEnable);
    ASSERT_EQ(started.Data.GetCount(), 1);
    EXPECT_EQ(started.Data[0].m_ushDataMonitorId, 3);

    GoOn(engine);  // the support mask, which has no values
    CKRMCGetDataMonitorValueCmdAdaptDataRcv none;
    engine.Answer(poll, none);
    EXPECT_EQ(none.Data.GetCount(), 0);
    for (const krm_ulong expected : {1U, 2U}) {
        GoOn(engine);
        CKRMCGetDataMonitorValueCmdAdaptDataRcv values;
        engine.Answer(poll, values);
        ASSERT_EQ(values.Data.GetCount(), 1);
        EXPECT_EQ(values.Data[0].m_cDispDataList[0].m_ulRawData, expected);
    }
    EXPECT_TRUE(GoOn(engine).isEnd);
    CKRMCGetDataMonitorValueCmdAdaptDataRcv end;
    engine.Answer(poll, end);
    EXPECT_EQ(end.Data.GetCount(), 0);
    EXPECT_FALSE(end.m_bNotSupport);
}

}  // namespace
