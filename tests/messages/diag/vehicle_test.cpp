#include "krm/messages/diag/vehicle.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "krm/messages/diag/j2534_config.h"
#include "tests/messages/diag/expected_lines.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::ExpectLog;
using krm::test::SampleItem;
using krm::test::SampleItemLines;

CKRMCCommandCarTypeCategoryData Category() {
    CKRMCCommandCarTypeCategoryContentsData contents;
    contents.m_ushSortIndex = 3;
    contents.m_ushCarTypeCategoryContentsId = 65535;
    contents.m_ulCarTypeCategoryContentsNameId = 4294967295U;
    contents.m_strCarTypeCategoryContentsName = "Saloon";
    CKRMCCommandCarTypeCategoryData category;
    category.m_ushCarTypeCategoryId = 7;
    category.m_cCarTypeOptionContentsList.AddTail(contents);
    category.m_cCarTypeOptionContentsList.AddTail(CKRMCCommandCarTypeCategoryContentsData());
    return category;
}

TEST(CarTypeCategoryData, WritesEachChoice) {
    CKRMCCommandCarTypeCategoryData category = Category();
    ExpectLog(category, {R"(
P.m_ushCarTypeCategoryId=7
P.m_cCarTypeOptionContentsList[0].m_ushSortIndex=3
P.m_cCarTypeOptionContentsList[0].m_ushCarTypeCategoryContentsId=65535
P.m_cCarTypeOptionContentsList[0].m_ulCarTypeCategoryContentsNameId=-1
P.m_cCarTypeOptionContentsList[0].m_strCarTypeCategoryContentsName=Saloon
P.m_cCarTypeOptionContentsList[1].m_ushSortIndex=0
P.m_cCarTypeOptionContentsList[1].m_ushCarTypeCategoryContentsId=0
P.m_cCarTypeOptionContentsList[1].m_ulCarTypeCategoryContentsNameId=0
P.m_cCarTypeOptionContentsList[1].m_strCarTypeCategoryContentsName=
)"});
}

CKRMCCommandCarTypeOptionData Option() {
    CKRMCCommandCarTypeOptionContentsData contents;
    contents.m_ushCarTypeOptionContentsId = 65535;
    contents.m_ulCarTypeOptionContentsNameId = 2147483648U;
    contents.m_strCarTypeOptionContentsName = "With 100 % towing";
    CKRMCCommandCarTypeOptionData option;
    option.m_ushCarTypeOptionIndex = 2;
    option.Data.AddTail(contents);
    option.Data.AddTail(CKRMCCommandCarTypeOptionContentsData());
    return option;
}

TEST(CarTypeOptionData, WritesEachChoice) {
    CKRMCCommandCarTypeOptionData option = Option();
    ExpectLog(option, {R"(
P.m_ushCarTypeOptionIndex=2
P.Data[0].m_ushCarTypeOptionContentsId=65535
P.Data[0].m_ulCarTypeOptionContentsNameId=-2147483648
P.Data[0].m_strCarTypeOptionContentsName=With 100 % towing
P.Data[1].m_ushCarTypeOptionContentsId=0
P.Data[1].m_ulCarTypeOptionContentsNameId=0
P.Data[1].m_strCarTypeOptionContentsName=
)"});
}

CKRMCCommandVariantData Variant(krm_ulong type, krm_ulong value, const char* words) {
    CKRMCCommandVariantData variant;
    variant.m_ulVarType = type;
    variant.m_ulValue = value;
    variant.m_cString.m_ulWordsId = 31;
    variant.m_cString.m_strWords = words;
    return variant;
}

TEST(VariantData, WritesTypeNumberAndWords) {
    CKRMCCommandVariantData variant = Variant(0xAB, 12, "on");
    ExpectLog(variant, {R"(
P.m_ulVarType=0xAB
P.m_ulValue=12(12)
P.m_cString.m_ulWordsId=31
P.m_cString.m_strWords=on
)"});
}

TEST(VariantData, WritesANumberOfAllBitsSignedAndUnsigned) {
    CKRMCCommandVariantData variant = Variant(4294967295U, 4294967295U, "");
    ExpectLog(variant, {R"(
P.m_ulVarType=0xFFFFFFFF
P.m_ulValue=-1(4294967295)
P.m_cString.m_ulWordsId=31
P.m_cString.m_strWords=
)"});
}

CKRMCCommandEcuData Ecu(krm_ulong id, const char* name) {
    CKRMCCommandEcuData ecu;
    ecu.m_ushEcuConnectionStatus = 1;
    ecu.m_ulEcuId = id;
    ecu.m_ushBusId = 65535;
    ecu.m_uchPhaseType = 255;
    ecu.m_ulEcuNameId = 4294967295U;
    ecu.m_strEcuName = name;
    ecu.m_strEcuShortName = "ECM";
    return ecu;
}

TEST(EcuGroupData, WritesEachEcu) {
    CKRMCCommandEcuGroupData group;
    group.m_ushGroupId = 65535;
    group.m_ulGroupNameId = 4294967295U;
    group.m_strGroupName = "Power train";
    group.m_cEcuList.AddTail(Ecu(2016, "Engine"));
    group.m_cEcuList.AddTail(Ecu(2147483648U, ""));
    ExpectLog(group, {R"(
P.m_ushGroupId=65535
P.m_ulGroupNameId=-1
P.m_strGroupName=Power train
P.m_cEcuList[0].m_ushEcuConnectionStatus=1
P.m_cEcuList[0].m_ulEcuId=2016
P.m_cEcuList[0].m_ushBusId=65535
P.m_cEcuList[0].m_uchPhaseType=255
P.m_cEcuList[0].m_ulEcuNameId=-1
P.m_cEcuList[0].m_strEcuName=Engine
P.m_cEcuList[0].m_strEcuShortName=ECM
P.m_cEcuList[1].m_ushEcuConnectionStatus=1
P.m_cEcuList[1].m_ulEcuId=-2147483648
P.m_cEcuList[1].m_ushBusId=65535
P.m_cEcuList[1].m_uchPhaseType=255
P.m_cEcuList[1].m_ulEcuNameId=-1
P.m_cEcuList[1].m_strEcuName=
P.m_cEcuList[1].m_strEcuShortName=ECM
)"});
}

TEST(EcuFunctionData, IsCopiedAndDestroyedLikeAnyValueAndHasNoLogLines) {
    static_assert(!std::is_polymorphic_v<CKRMCCommandEcuFunctionData>);
    static_assert(!std::is_base_of_v<CKRMCBaseAdaptDataStructure, CKRMCCommandEcuFunctionData>);
    CKRMCCommandEcuFunctionData copy;
    {
        CKRMCCommandEcuFunctionData function;
        function.m_ushId = 4;
        function.DetailList.AddTail(9);
        copy = function;
        function.DetailList[0] = 10;
    }
    EXPECT_EQ(copy.m_ushId, 4);
    ASSERT_EQ(copy.DetailList.GetCount(), 1);
    EXPECT_EQ(copy.DetailList[0], 9);
}

TEST(VehicleInfoItem, WritesItsValuesAsFreezeFrameItems) {
    CKRMCCommandVehicleInfoItem item;
    item.m_ulNameId = 4294967295U;
    item.m_strName = "Odometer";
    item.m_uchDispType = 255;
    item.m_cVehicleInfoList.AddTail(SampleItem());
    item.m_cVehicleInfoList.AddTail(SampleItem());
    ExpectLog(item, {
                        R"(
P.m_ulNameId=-1
P.m_strName=Odometer
P.m_uchDispType=255
)",
                        SampleItemLines("P.m_cVehicleInfoList[0]"),
                        SampleItemLines("P.m_cVehicleInfoList[1]"),
                    });
}

CKRMCCommandVehicleInfoData Info(unsigned short id, krm_ulong value, const char* text) {
    CKRMCCommandVehicleInfoData info;
    info.m_ushVehicleInfoId = id;
    info.m_ulVehicleInfo = value;
    info.m_strVehicleInfo = text;
    return info;
}

TEST(VehicleInfoSelectData, WritesNumbersUnsigned) {
    CKRMCCommandVehicleInfoSelectData select;
    select.m_ushVehicleInfoId = 65535;
    select.m_cVehicleInfoContentsList.AddTail(Info(65534, 4294967295U, "2021"));
    select.m_cVehicleInfoContentsList.AddTail(Info(0, 0, ""));
    ExpectLog(select, {R"(
P.m_ushVehicleInfoId=65535
P.m_cVehicleInfoContentsList[0].m_ushVehicleInfoId=65534
P.m_cVehicleInfoContentsList[0].m_ulVehicleInfo=4294967295
P.m_cVehicleInfoContentsList[0].m_strVehicleInfo=2021
P.m_cVehicleInfoContentsList[1].m_ushVehicleInfoId=0
P.m_cVehicleInfoContentsList[1].m_ulVehicleInfo=0
P.m_cVehicleInfoContentsList[1].m_strVehicleInfo=
)"});
}

TEST(VehicleSystemInfo, WritesEachValue) {
    CKRMCCommandVehicleSystemInfo info;
    info.m_ulInfoId = 4294967295U;
    info.m_cInfoData.AddTail(Variant(1, 2, "a"));
    info.m_cInfoData.AddTail(Variant(16, 2147483648U, "b"));
    ExpectLog(info, {R"(
P.m_ulInfoId=4294967295
P.m_cInfoData[0].m_ulVarType=0x1
P.m_cInfoData[0].m_ulValue=2(2)
P.m_cInfoData[0].m_cString.m_ulWordsId=31
P.m_cInfoData[0].m_cString.m_strWords=a
P.m_cInfoData[1].m_ulVarType=0x10
P.m_cInfoData[1].m_ulValue=-2147483648(2147483648)
P.m_cInfoData[1].m_cString.m_ulWordsId=31
P.m_cInfoData[1].m_cString.m_strWords=b
)"});
}

CKRMCCommandCarTypeCategoryIdData Choice(unsigned short category, unsigned short contents) {
    CKRMCCommandCarTypeCategoryIdData choice;
    choice.m_ushCarTypeCategoryId = category;
    choice.m_ushCarTypeCategoryContentsId = contents;
    return choice;
}

TEST(VehicleDecision, RequestWritesTheChoicesMade) {
    CKRMCVehicleDecisionCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_ushDivisionId = 65535;
    request.Data.AddTail(Choice(1, 2));
    request.Data.AddTail(Choice(65535, 65534));
    request.m_ushCarTypeOptionIndex = 3;
    request.m_ushCarTypeOptionContentsId = 65533;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=10
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCVehicleDecisionCmdAdaptDataSnd::ErrWriteOperationLog] m_ushDivisionId=65535
[CKRMCVehicleDecisionCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushCarTypeCategoryId=1
[CKRMCVehicleDecisionCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushCarTypeCategoryContentsId=2
[CKRMCVehicleDecisionCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ushCarTypeCategoryId=65535
[CKRMCVehicleDecisionCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ushCarTypeCategoryContentsId=65534
[CKRMCVehicleDecisionCmdAdaptDataSnd::ErrWriteOperationLog] m_ushCarTypeOptionIndex=3
[CKRMCVehicleDecisionCmdAdaptDataSnd::ErrWriteOperationLog] m_ushCarTypeOptionContentsId=65533
)"});
}

TEST(VehicleDecision, AnswerWritesTheOptionUnderTheBareLogName) {
    CKRMCVehicleDecisionCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    answer.Data.AddTail(Category());
    answer.m_uchStatusId = 255;
    answer.m_cCarTypeOption = Option();
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=10
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushCarTypeCategoryId=7
[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cCarTypeOptionContentsList[0].m_ushSortIndex=3
[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cCarTypeOptionContentsList[0].m_ushCarTypeCategoryContentsId=65535
[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cCarTypeOptionContentsList[0].m_ulCarTypeCategoryContentsNameId=-1
[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cCarTypeOptionContentsList[0].m_strCarTypeCategoryContentsName=Saloon
[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cCarTypeOptionContentsList[1].m_ushSortIndex=0
[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cCarTypeOptionContentsList[1].m_ushCarTypeCategoryContentsId=0
[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cCarTypeOptionContentsList[1].m_ulCarTypeCategoryContentsNameId=0
[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cCarTypeOptionContentsList[1].m_strCarTypeCategoryContentsName=
[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog] m_uchStatusId=255
[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog].m_ushCarTypeOptionIndex=2
[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog].Data[0].m_ushCarTypeOptionContentsId=65535
[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog].Data[0].m_ulCarTypeOptionContentsNameId=-2147483648
[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog].Data[0].m_strCarTypeOptionContentsName=With 100 % towing
[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog].Data[1].m_ushCarTypeOptionContentsId=0
[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog].Data[1].m_ulCarTypeOptionContentsNameId=0
[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog].Data[1].m_strCarTypeOptionContentsName=
)"});
}

TEST(GetGroupEcuList, RequestWritesTheBaseLinesOnly) {
    CKRMCGetGroupEcuListCmdAdaptDataSnd request;
    request.m_ulEcuId = 4294967295U;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=12
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=-1
)"});
}

TEST(GetGroupEcuList, AnswerWritesEachEcuOfEachGroup) {
    CKRMCGetGroupEcuListCmdAdaptDataRcv answer;
    answer.Data.AddTail(CKRMCCommandEcuGroupData());
    CKRMCCommandEcuGroupData group;
    group.m_ushGroupId = 2;
    group.m_ulGroupNameId = 300;
    group.m_strGroupName = "Body";
    group.m_cEcuList.AddTail(Ecu(1856, "Door"));
    group.m_cEcuList.AddTail(Ecu(1857, "Seat"));
    answer.Data.AddTail(group);
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=12
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushGroupId=0
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulGroupNameId=0
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strGroupName=
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushGroupId=2
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulGroupNameId=300
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strGroupName=Body
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cEcuList[0].m_ushEcuConnectionStatus=1
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cEcuList[0].m_ulEcuId=1856
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cEcuList[0].m_ushBusId=65535
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cEcuList[0].m_uchPhaseType=255
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cEcuList[0].m_ulEcuNameId=-1
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cEcuList[0].m_strEcuName=Door
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cEcuList[0].m_strEcuShortName=ECM
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cEcuList[1].m_ushEcuConnectionStatus=1
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cEcuList[1].m_ulEcuId=1857
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cEcuList[1].m_ushBusId=65535
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cEcuList[1].m_uchPhaseType=255
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cEcuList[1].m_ulEcuNameId=-1
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cEcuList[1].m_strEcuName=Seat
[CKRMCGetGroupEcuListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cEcuList[1].m_strEcuShortName=ECM
)"});
}

TEST(GetEcuFunctionList, RequestWritesThePhase) {
    CKRMCGetEcuFunctionListCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_uchPhaseType = 255;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=13
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCGetEcuFunctionListCmdAdaptDataSnd::ErrWriteOperationLog] m_uchPhaseType=255
)"});
}

TEST(GetEcuFunctionList, AnswerWritesTheDetailsOfEachFunction) {
    CKRMCCommandEcuFunctionData detailed;
    detailed.m_ushId = 65535;
    detailed.DetailList.AddTail(11);
    detailed.DetailList.AddTail(12);
    detailed.DetailList.AddTail(65534);
    CKRMCCommandEcuFunctionData bare;
    bare.m_ushId = 4;
    CKRMCGetEcuFunctionListCmdAdaptDataRcv answer;
    answer.Data.AddTail(detailed);
    answer.Data.AddTail(bare);
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=13
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetEcuFunctionListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushId=65535
[CKRMCGetEcuFunctionListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].DetailList[0].m_cEcuFunctionDetailId=11
[CKRMCGetEcuFunctionListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].DetailList[1].m_cEcuFunctionDetailId=12
[CKRMCGetEcuFunctionListCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].DetailList[2].m_cEcuFunctionDetailId=65534
[CKRMCGetEcuFunctionListCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushId=4
)"});
}

TEST(EcuConnect, RequestWritesGroupAndBus) {
    CKRMCEcuConnectCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_ushGroupId = 65535;
    request.m_ushBusId = 2;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=14
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCEcuConnectCmdAdaptDataSnd::ErrWriteOperationLog] m_ushGroupId=65535
[CKRMCEcuConnectCmdAdaptDataSnd::ErrWriteOperationLog] m_ushBusId=2
)"});
}

TEST(EcuConnect, AnswerWritesTheConnectedEcu) {
    CKRMCEcuConnectCmdAdaptDataRcv answer;
    answer.m_bConnect = true;
    answer.m_ulEcuId = 4294967295U;
    answer.m_ushBusId = 65535;
    answer.m_uchPhaseType = 255;
    answer.m_ulDescriptionId = 2147483648U;
    answer.m_strDescription = "Engine control";
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=14
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCEcuConnectCmdAdaptDataRcv::ErrWriteOperationLog] m_bConnect=1
[CKRMCEcuConnectCmdAdaptDataRcv::ErrWriteOperationLog] m_ulEcuId=-1
[CKRMCEcuConnectCmdAdaptDataRcv::ErrWriteOperationLog] m_ushBusId=65535
[CKRMCEcuConnectCmdAdaptDataRcv::ErrWriteOperationLog] m_uchPhaseType=255
[CKRMCEcuConnectCmdAdaptDataRcv::ErrWriteOperationLog] m_ulDescriptionId=-2147483648
[CKRMCEcuConnectCmdAdaptDataRcv::ErrWriteOperationLog] m_strDescription=Engine control
)"});
}

TEST(CreateCommCtrlMain, RequestWritesEachIdentifier) {
    CKRMCWrapperCreationData identifier;
    identifier.m_ushIdType = 65535;
    identifier.m_strValue = "C:\\data %s";
    CKRMCCreateCommCtrlMainCmdAdaptDataSnd request;
    request.m_ulEcuId = 1;
    request.Data.AddTail(identifier);
    request.Data.AddTail(CKRMCWrapperCreationData());
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=24
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=1
[CKRMCCreateCommCtrlMainCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushIdType=65535
[CKRMCCreateCommCtrlMainCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_strValue=C:\data %s
[CKRMCCreateCommCtrlMainCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ushIdType=0
[CKRMCCreateCommCtrlMainCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_strValue=
)"});
}

TEST(CreateCommCtrlMain, AnswerWritesTheBaseLinesOnly) {
    CKRMCCreateCommCtrlMainCmdAdaptDataRcv answer;
    answer.m_bNotSupport = true;
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=24
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=1
)"});
}

TEST(GetJ2534ConfigParam, RequestWritesTheBus) {
    CKRMCGetJ2534ConfigParamCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_ushBusId = 65535;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=27
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCGetJ2534ConfigParamCmdAdaptDataSnd::ErrWriteOperationLog] m_ushBusId=65535
)"});
}

TEST(GetJ2534ConfigParam, AnswerWritesEachParameter) {
    CKRMCCommandJ2534Config dataRate;
    dataRate.m_ulParameter = 1;
    dataRate.m_ulValue = 500000;
    CKRMCCommandJ2534Config large;
    large.m_ulParameter = 2147483648U;
    large.m_ulValue = 4294967295U;
    CKRMCGetJ2534ConfigParamCmdAdaptDataRcv answer;
    answer.Data.AddTail(dataRate);
    answer.Data.AddTail(large);
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=27
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetJ2534ConfigParamCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulParameter=1
[CKRMCGetJ2534ConfigParamCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulValue=500000
[CKRMCGetJ2534ConfigParamCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulParameter=-2147483648
[CKRMCGetJ2534ConfigParamCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulValue=-1
)"});
}

TEST(InitMountEcuList, RequestWritesTheModel) {
    CKRMCInitMountEcuListCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_ushModelId = 65535;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=40
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCInitMountEcuListCmdAdaptDataSnd::ErrWriteOperationLog] m_ushModelId=65535
)"});
}

TEST(InitMountEcuList, AnswerWritesTheResult) {
    CKRMCInitMountEcuListCmdAdaptDataRcv answer;
    answer.m_bInitialize = true;
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=40
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCInitMountEcuListCmdAdaptDataRcv::ErrWriteOperationLog] m_bInitialize=1
)"});
}

TEST(ReadVBatt, RequestWritesTheBaseLinesOnly) {
    CKRMCReadVBattCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=43
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
)"});
}

TEST(ReadVBatt, AnswerWritesTheVoltage) {
    CKRMCReadVBattCmdAdaptDataRcv answer;
    answer.m_ulVBattValue = 4294967295U;
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=43
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCReadVBattCmdAdaptDataRcv::ErrWriteOperationLog] m_ulVBattValue=-1
)"});
}

TEST(SelectCarId, RequestWritesTheChoicesMade) {
    CKRMCSelectCarIdCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_ushVehicleId = 65535;
    request.m_ulParentEcuId = 4294967295U;
    request.m_ushParentBusId = 65534;
    request.Data.AddTail(Choice(65533, 1));
    request.Data.AddTail(Choice(2, 65532));
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=46
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCSelectCarIdCmdAdaptDataSnd::ErrWriteOperationLog] m_ushVehicleId=65535
[CKRMCSelectCarIdCmdAdaptDataSnd::ErrWriteOperationLog] m_ulParentEcuId=-1
[CKRMCSelectCarIdCmdAdaptDataSnd::ErrWriteOperationLog] m_ushParentBusId=65534
[CKRMCSelectCarIdCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushCarTypeCategoryId=65533
[CKRMCSelectCarIdCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushCarTypeCategoryContentsId=1
[CKRMCSelectCarIdCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ushCarTypeCategoryId=2
[CKRMCSelectCarIdCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ushCarTypeCategoryContentsId=65532
)"});
}

TEST(SelectCarId, AnswerWritesEachOpenCategory) {
    CKRMCSelectCarIdCmdAdaptDataRcv answer;
    answer.Data.AddTail(CKRMCCommandCarTypeCategoryData());
    answer.Data.AddTail(Category());
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=46
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCSelectCarIdCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushCarTypeCategoryId=0
[CKRMCSelectCarIdCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushCarTypeCategoryId=7
[CKRMCSelectCarIdCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cCarTypeOptionContentsList[0].m_ushSortIndex=3
[CKRMCSelectCarIdCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cCarTypeOptionContentsList[0].m_ushCarTypeCategoryContentsId=65535
[CKRMCSelectCarIdCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cCarTypeOptionContentsList[0].m_ulCarTypeCategoryContentsNameId=-1
[CKRMCSelectCarIdCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cCarTypeOptionContentsList[0].m_strCarTypeCategoryContentsName=Saloon
[CKRMCSelectCarIdCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cCarTypeOptionContentsList[1].m_ushSortIndex=0
[CKRMCSelectCarIdCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cCarTypeOptionContentsList[1].m_ushCarTypeCategoryContentsId=0
[CKRMCSelectCarIdCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cCarTypeOptionContentsList[1].m_ulCarTypeCategoryContentsNameId=0
[CKRMCSelectCarIdCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cCarTypeOptionContentsList[1].m_strCarTypeCategoryContentsName=
)"});
}

TEST(GetDiagSession, RequestWritesTheBaseLinesOnly) {
    CKRMCGetDiagSessionCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=47
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
)"});
}

TEST(GetDiagSession, AnswerWritesTheSession) {
    CKRMCGetDiagSessionCmdAdaptDataRcv answer;
    answer.m_uchDiagSessionType = 255;
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=47
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetDiagSessionCmdAdaptDataRcv::ErrWriteOperationLog] m_uchDiagSessionType=255
)"});
}

TEST(SetDiagSession, RequestWritesSessionAndIgnitionCount) {
    CKRMCSetDiagSessionCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_uchDiagSessionType = 3;
    request.m_bIgOnOffCount = true;
    request.m_ushIgOnOffCount = 65535;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=48
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCSetDiagSessionCmdAdaptDataSnd::ErrWriteOperationLog] m_uchDiagSessionType=3
[CKRMCSetDiagSessionCmdAdaptDataSnd::ErrWriteOperationLog] m_bIgOnOffCount=1
[CKRMCSetDiagSessionCmdAdaptDataSnd::ErrWriteOperationLog] m_ushIgOnOffCount=65535
)"});
}

TEST(SetDiagSession, AnswerWritesTheResult) {
    CKRMCSetDiagSessionCmdAdaptDataRcv answer;
    answer.m_bResult = true;
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=48
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCSetDiagSessionCmdAdaptDataRcv::ErrWriteOperationLog] m_bResult=1
)"});
}

TEST(GetVehicleInfo, RequestWritesTheBaseLinesOnly) {
    CKRMCGetVehicleInfoCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=77
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
)"});
}

TEST(GetVehicleInfo, AnswerWritesEachItemWithItsValues) {
    CKRMCCommandVehicleInfoItem item;
    item.m_ulNameId = 15;
    item.m_strName = "Odometer";
    item.m_uchDispType = 1;
    item.m_cVehicleInfoList.AddTail(SampleItem());
    CKRMCGetVehicleInfoCmdAdaptDataRcv answer;
    answer.Data.AddTail(item);
    answer.Data.AddTail(CKRMCCommandVehicleInfoItem());
    ExpectLog(
        answer,
        {
            R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=77
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulNameId=15
[CKRMCGetVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strName=Odometer
[CKRMCGetVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_uchDispType=1
)",
            SampleItemLines("[CKRMCGetVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cVehicleInfoList[0]"),
            R"(
[CKRMCGetVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulNameId=0
[CKRMCGetVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strName=
[CKRMCGetVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_uchDispType=0
)",
        });
}

TEST(GetAllDtcSystemList, RequestWritesTheBaseLinesOnly) {
    CKRMCGetAllDtcSystemListCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=78
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
)"});
}

TEST(GetAllDtcSystemList, AnswerWritesEachSystem) {
    CKRMCGetAllDtcSystemListCmdAdaptDataRcv answer;
    answer.m_ulSystemIdList.AddTail(7);
    answer.m_ulSystemIdList.AddTail(4294967295U);
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=78
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetAllDtcSystemListCmdAdaptDataRcv::ErrWriteOperationLog] m_ulSystemIdList[0]=7
[CKRMCGetAllDtcSystemListCmdAdaptDataRcv::ErrWriteOperationLog] m_ulSystemIdList[1]=-1
)"});
}

TEST(GetAllDtcSystemList, AnswerWithoutSystemsWritesTheBaseLinesOnly) {
    CKRMCGetAllDtcSystemListCmdAdaptDataRcv answer;
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=78
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
)"});
}

TEST(GetVinCode, RequestWritesTheBaseLinesOnly) {
    CKRMCGetVinCodeCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=79
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
)"});
}

TEST(GetVinCode, AnswerWritesTheVin) {
    CKRMCGetVinCodeCmdAdaptDataRcv answer;
    answer.m_strVinCode = "1M8GDM9AXKP042788";
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=79
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetVinCodeCmdAdaptDataRcv::ErrWriteOperationLog] m_strVinCode=1M8GDM9AXKP042788
)"});
}

TEST(GetCarCategoryVin, RequestWritesEachCategory) {
    CKRMCGetCarCategoryVinCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.Data.AddTail(CKRMCCommandCarTypeCategoryData());
    request.Data.AddTail(Category());
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=80
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCGetCarCategoryVinCmdAdaptDataSnd::ErrWriteOperationLog] Data[0].m_ushCarTypeCategoryId=0
[CKRMCGetCarCategoryVinCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_ushCarTypeCategoryId=7
[CKRMCGetCarCategoryVinCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_cCarTypeOptionContentsList[0].m_ushSortIndex=3
[CKRMCGetCarCategoryVinCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_cCarTypeOptionContentsList[0].m_ushCarTypeCategoryContentsId=65535
[CKRMCGetCarCategoryVinCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_cCarTypeOptionContentsList[0].m_ulCarTypeCategoryContentsNameId=-1
[CKRMCGetCarCategoryVinCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_cCarTypeOptionContentsList[0].m_strCarTypeCategoryContentsName=Saloon
[CKRMCGetCarCategoryVinCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_cCarTypeOptionContentsList[1].m_ushSortIndex=0
[CKRMCGetCarCategoryVinCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_cCarTypeOptionContentsList[1].m_ushCarTypeCategoryContentsId=0
[CKRMCGetCarCategoryVinCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_cCarTypeOptionContentsList[1].m_ulCarTypeCategoryContentsNameId=0
[CKRMCGetCarCategoryVinCmdAdaptDataSnd::ErrWriteOperationLog] Data[1].m_cCarTypeOptionContentsList[1].m_strCarTypeCategoryContentsName=
)"});
}

TEST(GetCarCategoryVin, AnswerWritesEachCategory) {
    CKRMCGetCarCategoryVinCmdAdaptDataRcv answer;
    CKRMCCommandCarTypeCategoryData category;
    category.m_ushCarTypeCategoryId = 65535;
    answer.Data.AddTail(category);
    answer.Data.AddTail(CKRMCCommandCarTypeCategoryData());
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=80
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetCarCategoryVinCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ushCarTypeCategoryId=65535
[CKRMCGetCarCategoryVinCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ushCarTypeCategoryId=0
)"});
}

TEST(GetVehicleSystemInfo, RequestWritesTheSystemUnsigned) {
    CKRMCGetVehicleSystemInfoCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_ulSystemId = 4294967295U;
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=84
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCGetVehicleSystemInfoCmdAdaptDataSnd::ErrWriteOperationLog] m_ulSystemId=4294967295
)"});
}

TEST(GetVehicleSystemInfo, AnswerWritesEachInformation) {
    CKRMCCommandVehicleSystemInfo info;
    info.m_ulInfoId = 4294967295U;
    info.m_cInfoData.AddTail(Variant(10, 4294967295U, "fitted"));
    CKRMCGetVehicleSystemInfoCmdAdaptDataRcv answer;
    answer.Data.AddTail(CKRMCCommandVehicleSystemInfo());
    answer.Data.AddTail(info);
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=84
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCGetVehicleSystemInfoCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_ulInfoId=0
[CKRMCGetVehicleSystemInfoCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_ulInfoId=4294967295
[CKRMCGetVehicleSystemInfoCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cInfoData[0].m_ulVarType=0xA
[CKRMCGetVehicleSystemInfoCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cInfoData[0].m_ulValue=-1(4294967295)
[CKRMCGetVehicleSystemInfoCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cInfoData[0].m_cString.m_ulWordsId=31
[CKRMCGetVehicleSystemInfoCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_cInfoData[0].m_cString.m_strWords=fitted
)"});
}

TEST(SelectVehicleInfo, RequestWritesWhatIsChosen) {
    CKRMCSelectVehicleInfoCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    request.m_cVehicleInfoList.AddTail(Info(1, 2021, "2021"));
    request.m_cVehicleInfoList.AddTail(Info(65535, 4294967295U, ""));
    ExpectLog(request, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=107
[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
[CKRMCSelectVehicleInfoCmdAdaptDataSnd::ErrWriteOperationLog] m_cVehicleInfoList[0].m_ushVehicleInfoId=1
[CKRMCSelectVehicleInfoCmdAdaptDataSnd::ErrWriteOperationLog] m_cVehicleInfoList[0].m_ulVehicleInfo=2021
[CKRMCSelectVehicleInfoCmdAdaptDataSnd::ErrWriteOperationLog] m_cVehicleInfoList[0].m_strVehicleInfo=2021
[CKRMCSelectVehicleInfoCmdAdaptDataSnd::ErrWriteOperationLog] m_cVehicleInfoList[1].m_ushVehicleInfoId=65535
[CKRMCSelectVehicleInfoCmdAdaptDataSnd::ErrWriteOperationLog] m_cVehicleInfoList[1].m_ulVehicleInfo=4294967295
[CKRMCSelectVehicleInfoCmdAdaptDataSnd::ErrWriteOperationLog] m_cVehicleInfoList[1].m_strVehicleInfo=
)"});
}

TEST(SelectVehicleInfo, AnswerWritesWhatIsSettledAndWhatIsOpen) {
    CKRMCCommandVehicleInfoSelectData select;
    select.m_ushVehicleInfoId = 65535;
    select.m_cVehicleInfoContentsList.AddTail(Info(3, 30, "diesel"));
    CKRMCSelectVehicleInfoCmdAdaptDataRcv answer;
    answer.m_cVehicleInfoList.AddTail(Info(1, 2021, "2021"));
    answer.m_cVehicleInfoSelectList.AddTail(select);
    answer.m_cVehicleInfoSelectList.AddTail(CKRMCCommandVehicleInfoSelectData());
    answer.m_uchStatusId = 255;
    ExpectLog(answer, {R"(
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=107
[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0
[CKRMCSelectVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cVehicleInfoList[0].m_ushVehicleInfoId=1
[CKRMCSelectVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cVehicleInfoList[0].m_ulVehicleInfo=2021
[CKRMCSelectVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cVehicleInfoList[0].m_strVehicleInfo=2021
[CKRMCSelectVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cVehicleInfoSelectList[0].m_ushVehicleInfoId=65535
[CKRMCSelectVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cVehicleInfoSelectList[0].m_cVehicleInfoContentsList[0].m_ushVehicleInfoId=3
[CKRMCSelectVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cVehicleInfoSelectList[0].m_cVehicleInfoContentsList[0].m_ulVehicleInfo=30
[CKRMCSelectVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cVehicleInfoSelectList[0].m_cVehicleInfoContentsList[0].m_strVehicleInfo=diesel
[CKRMCSelectVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_cVehicleInfoSelectList[1].m_ushVehicleInfoId=0
[CKRMCSelectVehicleInfoCmdAdaptDataRcv::ErrWriteOperationLog] m_uchStatusId=255
)"});
}

}  // namespace
