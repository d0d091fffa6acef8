#include "krm/messages/auxiliary/unit_conversion.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCUnitConversionData>;
template class CKRMList<CKRMCUnitConvDataItemInfo>;
template class CKRMList<CKRMCUnitConvDataSettingInfo>;
template class CKRMList<CKRMCUnitConversionCreationData>;

void CKRMCCreateUnitConversionCommandUccAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushIdType=%d", item.m_ushIdType);
        itemLine("[%s] Data[%d].m_strValue=%s", item.m_strValue);
    });
}

void CKRMCGetUnitConversionInfoListUccAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_uchItemId=%d", item.m_uchItemId);
        itemLine("[%s] Data[%d].m_strItemName=%s", item.m_strItemName);
        itemLine.ForEach(item.m_cUnitList, [](const auto& unitLine, auto& unit) {
            unitLine("[%s] Data[%d].m_cUnitList[%d].m_uchUnitId=%d", unit.m_uchUnitId);
            unitLine("[%s] Data[%d].m_cUnitList[%d].m_strUnitName=%s", unit.m_strUnitName);
        });
    });
}

void CKRMCSetUnitConversionInfoUccAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_uchItemId=%d", item.m_uchItemId);
        itemLine("[%s] Data[%d].m_uchUnitId=%d", item.m_uchUnitId);
    });
}

void CKRMCSetUnitConversionInfoUccAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushGenreId=%d", item.m_ushGenreId);
        itemLine("[%s] Data[%d].m_uchUnitId=%d", item.m_uchUnitId);
    });
}

void CKRMCGetUnitSettingGroupListUccAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_uchGroupId=%d", item.m_uchGroupId);
        itemLine("[%s] Data[%d].m_strGroupName=%s", item.m_strGroupName);
    });
}

void CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line.ForEach(
        Data, [](const auto& itemLine, auto& item) { itemLine("[%s] Data[%d].m_uchGroupId=%d", item.m_uchGroupId); });
}

void CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_uchGroupId=%d", item.m_uchGroupId);
        itemLine.ForEach(item.m_cSettingList, [](const auto& settingLine, auto& setting) {
            settingLine("[%s] Data[%d].m_cSettingList[%d].m_uchItemId=%d", setting.m_uchItemId);
            settingLine("[%s] Data[%d].m_cSettingList[%d].m_uchUnitId=%d", setting.m_uchUnitId);
        });
    });
}
