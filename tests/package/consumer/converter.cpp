#include "krm/convert/converter.h"

int main() {
    CKRMCCommandDispData shown;
    CKRMCCommandConvSignalData* const converter = CKRMCCommandConvSignalData::CreateConverter(3);
    const krm_ulong status =
        converter->ConvCommandDispData(&shown, 10, 0, 12, 1, 1, 0, 0, 0xFFF, 0, nullptr, nullptr, 0);
    CKRMCCommandConvSignalData::DeleteConverter(converter);
    return status == 0 && shown.m_strDataPhys.Compare("0x00A") == 0 ? 0 : 1;
}
