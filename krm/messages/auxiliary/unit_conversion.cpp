#include "krm/messages/auxiliary/unit_conversion.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCUnitConversionData>;
template class CKRMList<CKRMCUnitConvDataItemInfo>;
template class CKRMList<CKRMCUnitConvDataSettingInfo>;
template class CKRMList<CKRMCUnitConversionCreationData>;

CKRMCCreateUnitConversionCommandUccAdaptDataRcv::~CKRMCCreateUnitConversionCommandUccAdaptDataRcv() = default;
CKRMCGetUnitConversionInfoListUccAdaptDataSnd::~CKRMCGetUnitConversionInfoListUccAdaptDataSnd() = default;
CKRMCGetUnitSettingGroupListUccAdaptDataSnd::~CKRMCGetUnitSettingGroupListUccAdaptDataSnd() = default;

krm_long CKRMCCreateUnitConversionCommandUccAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCCreateUnitConversionCommandUccAdaptDataSnd::ErrWriteOperationLog");
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushIdType=%d", item.m_ushIdType);
        itemLine("[%s] Data[%d].m_strValue=%s", item.m_strValue);
    });
    return 0;
}

krm_long CKRMCGetUnitConversionInfoListUccAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetUnitConversionInfoListUccAdaptDataRcv::ErrWriteOperationLog");
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_uchItemId=%d", item.m_uchItemId);
        itemLine("[%s] Data[%d].m_strItemName=%s", item.m_strItemName);
        itemLine.ForEach(item.m_cUnitList, [](const auto& unitLine, auto& unit) {
            unitLine("[%s] Data[%d].m_cUnitList[%d].m_uchUnitId=%d", unit.m_uchUnitId);
            unitLine("[%s] Data[%d].m_cUnitList[%d].m_strUnitName=%s", unit.m_strUnitName);
        });
    });
    return 0;
}

krm_long CKRMCSetUnitConversionInfoUccAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCSetUnitConversionInfoUccAdaptDataSnd::ErrWriteOperationLog");
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_uchItemId=%d", item.m_uchItemId);
        itemLine("[%s] Data[%d].m_uchUnitId=%d", item.m_uchUnitId);
    });
    return 0;
}

krm_long CKRMCSetUnitConversionInfoUccAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCSetUnitConversionInfoUccAdaptDataRcv::ErrWriteOperationLog");
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushGenreId=%d", item.m_ushGenreId);
        itemLine("[%s] Data[%d].m_uchUnitId=%d", item.m_uchUnitId);
    });
    return 0;
}

krm_long CKRMCGetUnitSettingGroupListUccAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetUnitSettingGroupListUccAdaptDataRcv::ErrWriteOperationLog");
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_uchGroupId=%d", item.m_uchGroupId);
        itemLine("[%s] Data[%d].m_strGroupName=%s", item.m_strGroupName);
    });
    return 0;
}

krm_long CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd::ErrWriteOperationLog");
    line.ForEach(
        Data, [](const auto& itemLine, auto& item) { itemLine("[%s] Data[%d].m_uchGroupId=%d", item.m_uchGroupId); });
    return 0;
}

krm_long CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv::ErrWriteOperationLog");
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_uchGroupId=%d", item.m_uchGroupId);
        itemLine.ForEach(item.m_cSettingList, [](const auto& settingLine, auto& setting) {
            settingLine("[%s] Data[%d].m_cSettingList[%d].m_uchItemId=%d", setting.m_uchItemId);
            settingLine("[%s] Data[%d].m_cSettingList[%d].m_uchUnitId=%d", setting.m_uchUnitId);
        });
    });
    return 0;
}
