#include "krm/messages/diag/freeze_frame_item.h"

#include <gtest/gtest.h>

#include "krm/messages/diag/display.h"
#include "tests/support/log_text.h"

namespace {

using krm::test::ExpectLog;

TEST(FFDData, WritesItsFieldsInOrderWithoutSecondTextAndReservedField) {
    CKRMCCommandFFDData item;
    item.m_ushId = 65535;
    item.m_ulNameId = 102;
    item.m_strName = "Coolant temperature";
    item.m_strFFDText = "second text";
    item.m_ulUnitPhysId = 104;
    item.m_strUnitPhys = "degC";
    item.m_ulUnitId = 106;
    item.m_strUnit = "degF";
    item.m_ulFFDReserved = 108;
    item.m_uchDataType = 255;
    item.m_uchDecPntCount = 1;
    item.m_uchUnitConvDecPntCount = 2;
    item.m_cConversionTbl.m_lMul = 1;
    item.m_cConversionTbl.m_lDiv = 2;
    item.m_cConversionTbl.m_lOffset = -40;
    item.m_cConversionTbl.m_cDataMax.m_dDataPhys = 215;
    item.m_cResolutionData.m_strDataPhys = "1";
    CKRMCCommandDispData value;
    value.m_strDataPhys = "83";
    value.m_ulRawData = 123;
    item.m_cDispDataList.AddTail(value);
    value.m_strDataPhys = "84";
    value.m_ulRawData = 124;
    item.m_cDispDataList.AddTail(value);
    item.m_cDataLayout.m_ulPidNo = 0x05;
    item.m_cDataLayout.m_ulByteNum = 1;
    item.m_cDataLayout.m_ulBitMask = 0xFF;
    ExpectLog(item, {R"(
P.m_ushId=65535
P.m_ulNameId=102
P.m_strName=Coolant temperature
P.m_ulUnitPhysId=104
P.m_strUnitPhys=degC
P.m_ulUnitId=106
P.m_strUnit=degF
P.m_uchDataType=255
P.m_uchDecPntCount=1
P.m_uchUnitConvDecPntCount=2
P.m_cConversionTbl.m_lMul=1
P.m_cConversionTbl.m_lDiv=2
P.m_cConversionTbl.m_lOffset=-40
P.m_cConversionTbl.m_ushGenreId=0
P.m_cConversionTbl.m_uchSigned=0
P.m_cConversionTbl.m_ushBitLength=0
P.m_cConversionTbl.m_strDefaultPattern=
P.m_cConversionTbl.m_cDataMax.m_ulDataStringId=0
P.m_cConversionTbl.m_cDataMax.m_strDataPhys=
P.m_cConversionTbl.m_cDataMax.m_strData=
P.m_cConversionTbl.m_cDataMax.m_dDataPhys=215.000000
P.m_cConversionTbl.m_cDataMax.m_dData=0.000000
P.m_cConversionTbl.m_cDataMax.m_ulRawData=0
P.m_cConversionTbl.m_cDataMax.m_chIndex=0
P.m_cConversionTbl.m_cDataMax.m_lIndex=0
P.m_cConversionTbl.m_cDataMax.m_ulDispDataType=0
P.m_cConversionTbl.m_cDataMin.m_ulDataStringId=0
P.m_cConversionTbl.m_cDataMin.m_strDataPhys=
P.m_cConversionTbl.m_cDataMin.m_strData=
P.m_cConversionTbl.m_cDataMin.m_dDataPhys=0.000000
P.m_cConversionTbl.m_cDataMin.m_dData=0.000000
P.m_cConversionTbl.m_cDataMin.m_ulRawData=0
P.m_cConversionTbl.m_cDataMin.m_chIndex=0
P.m_cConversionTbl.m_cDataMin.m_lIndex=0
P.m_cConversionTbl.m_cDataMin.m_ulDispDataType=0
P.m_cConversionTbl.m_cGraphMax.m_ulDataStringId=0
P.m_cConversionTbl.m_cGraphMax.m_strDataPhys=
P.m_cConversionTbl.m_cGraphMax.m_strData=
P.m_cConversionTbl.m_cGraphMax.m_dDataPhys=0.000000
P.m_cConversionTbl.m_cGraphMax.m_dData=0.000000
P.m_cConversionTbl.m_cGraphMax.m_ulRawData=0
P.m_cConversionTbl.m_cGraphMax.m_chIndex=0
P.m_cConversionTbl.m_cGraphMax.m_lIndex=0
P.m_cConversionTbl.m_cGraphMax.m_ulDispDataType=0
P.m_cConversionTbl.m_cGraphMin.m_ulDataStringId=0
P.m_cConversionTbl.m_cGraphMin.m_strDataPhys=
P.m_cConversionTbl.m_cGraphMin.m_strData=
P.m_cConversionTbl.m_cGraphMin.m_dDataPhys=0.000000
P.m_cConversionTbl.m_cGraphMin.m_dData=0.000000
P.m_cConversionTbl.m_cGraphMin.m_ulRawData=0
P.m_cConversionTbl.m_cGraphMin.m_chIndex=0
P.m_cConversionTbl.m_cGraphMin.m_lIndex=0
P.m_cConversionTbl.m_cGraphMin.m_ulDispDataType=0
P.m_cResolutionData.m_ulDataStringId=0
P.m_cResolutionData.m_strDataPhys=1
P.m_cResolutionData.m_strData=
P.m_cResolutionData.m_dDataPhys=0.000000
P.m_cResolutionData.m_dData=0.000000
P.m_cResolutionData.m_ulRawData=0
P.m_cResolutionData.m_chIndex=0
P.m_cResolutionData.m_lIndex=0
P.m_cResolutionData.m_ulDispDataType=0
P.m_cDispDataList[0].m_ulDataStringId=0
P.m_cDispDataList[0].m_strDataPhys=83
P.m_cDispDataList[0].m_strData=
P.m_cDispDataList[0].m_dDataPhys=0.000000
P.m_cDispDataList[0].m_dData=0.000000
P.m_cDispDataList[0].m_ulRawData=123
P.m_cDispDataList[0].m_chIndex=0
P.m_cDispDataList[0].m_lIndex=0
P.m_cDispDataList[0].m_ulDispDataType=0
P.m_cDispDataList[1].m_ulDataStringId=0
P.m_cDispDataList[1].m_strDataPhys=84
P.m_cDispDataList[1].m_strData=
P.m_cDispDataList[1].m_dDataPhys=0.000000
P.m_cDispDataList[1].m_dData=0.000000
P.m_cDispDataList[1].m_ulRawData=124
P.m_cDispDataList[1].m_chIndex=0
P.m_cDispDataList[1].m_lIndex=0
P.m_cDispDataList[1].m_ulDispDataType=0
P.m_cDataLayout.m_ulPidNo=0x5
P.m_cDataLayout.m_ulDataLen=0
P.m_cDataLayout.m_uchEndian=0
P.m_cDataLayout.m_ulByteNum=1
P.m_cDataLayout.m_ulBytePos=0
P.m_cDataLayout.m_ulBitMask=0x000000FF
)"});
}

}  // namespace
