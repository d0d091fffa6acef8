#include "krm/messages/diag/customize.h"

#include <cstddef>
#include <string>

#include "krm/core/internal/digits.h"
#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandCustomizeName>;
template class CKRMList<CKRMCCommandCustomizeItemValue>;
template class CKRMList<CKRMCCommandCustomizeItemData>;
template class CKRMList<CKRMCCommandCustomizeItemSetData>;
template class CKRMList<CKRMCCommandCustomizeItemResult>;

namespace {

/// The bytes of a customisation value as the log shows them: two lower-case hexadecimal digits each, in list order.
CKRMString HexOf(const CKRMList<unsigned char>& bytes) {
    std::string text(static_cast<std::size_t>(bytes.GetCount()) * 2, '\0');
    char* end = text.data();
    for (const unsigned char byte : bytes) {
        end = krm::core::WriteByte(end, byte, krm::core::kLowerCase);
    }
    return text.c_str();
}

}  // namespace

void CKRMCGetCustomizeSupportListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& name) {
        itemLine("[%s] Data[%d].m_ushCustomizeId=%d", name.m_ushCustomizeId);
        itemLine("[%s] Data[%d].m_ulCustomizeNameId=%d", name.m_ulCustomizeNameId);
        itemLine("[%s] Data[%d].m_strCustomizeName=%s", name.m_strCustomizeName);
    });
}

void CKRMCGetCustomizeItemListCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ushCustomizeId=%d", m_ushCustomizeId);
    line("[%s] m_bGetCurrentValue=%d", m_bGetCurrentValue);
    line("[%s] Data[%d].m_cSpecialFunctionKeyList=0x%04X", m_cSpecialFunctionKeyList);
    line("[%s] m_ulPersonalizeId=0x%08X", m_ulPersonalizeId);
}

void CKRMCGetCustomizeItemListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushCustomizeItemId=%d", item.m_ushCustomizeItemId);
        itemLine("[%s] Data[%d].m_ulCustomizeItemNameId=%d", item.m_ulCustomizeItemNameId);
        itemLine("[%s] Data[%d].m_strCustomizeItemName=%s", item.m_strCustomizeItemName);
        itemLine("[%s] Data[%d].m_bCurrentValue=%d", item.m_bCurrentValue);
        itemLine("[%s] Data[%d].m_ushCurrentValue=%d", item.m_ushCurrentValue);
        itemLine("[%s] Data[%d].m_uchCurrentValueList=0x%s", HexOf(item.m_uchCurrentValueList));
        itemLine("[%s] Data[%d].m_ulInfoId=%d", item.m_ulInfoId);
        itemLine("[%s] Data[%d].m_ulPersonalizeId=0x%08X", item.m_ulPersonalizeId);
        itemLine.ForEach(item.m_cCustomizeValueList, [](const auto& valueLine, auto& value) {
            valueLine("[%s] Data[%d].m_cCustomizeValueList[%d].m_strDispName=%s", value.m_strDispName);
            valueLine("[%s] Data[%d].m_cCustomizeValueList[%d].m_ulDispNameId=%d", value.m_ulDispNameId);
            valueLine("[%s] Data[%d].m_cCustomizeValueList[%d].m_ushCustomizeValue=%d", value.m_ushCustomizeValue);
            valueLine("[%s] Data[%d].m_cCustomizeValueList[%d].m_uchCustomizeValueList=0x%s",
                      HexOf(value.m_uchCustomizeValueList));
        });
    });
}

void CKRMCSetCustomizeItemCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushCustomizeId=%d", item.m_ushCustomizeId);
        itemLine("[%s] Data[%d].m_ushCustomizeItemId=%d", item.m_ushCustomizeItemId);
        itemLine("[%s] Data[%d].m_ushCustomizeValue=%d", item.m_ushCustomizeValue);
        itemLine("[%s] Data[%d].m_uchCustomizeValueList=0x%s", HexOf(item.m_uchCustomizeValueList));
    });
}

void CKRMCSetCustomizeItemCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& result) {
        itemLine("[%s] Data[%d].m_ushCustomizeId=%d", result.m_ushCustomizeId);
        itemLine("[%s] Data[%d].m_ushCustomizeItemId=%d", result.m_ushCustomizeItemId);
        itemLine("[%s] Data[%d].m_bSuccess=%d", result.m_bSuccess);
    });
}

void CKRMCGetCustomizeDestinationCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_bEnable=%d", m_bEnable);
    line("[%s] m_ulDestinationDispId=%d", m_ulDestinationDispId);
    line("[%s] m_strDestinationDisp=%s", m_strDestinationDisp);
}

void CKRMCSetCustomizeDestinationCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_strDestinationCode=%s", m_strDestinationCode);
}

void CKRMCSetCustomizeDestinationCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_bInvalidCode=%d", m_bInvalidCode);
}
