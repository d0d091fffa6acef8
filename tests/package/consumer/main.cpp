#include <cstdio>

#include "krm/adaptation_data.h"

// Uses the library from outside: a message, a record in a list, a converter, a list of the user's own.
int main() {
    CKRMCCommandConversionData rule;
    rule.m_cPatternDispList.AddTail(CKRMCCommandDispData());
    const CKRMCCommandConversionData copy = rule;
    CKRMCBaseCmdAdaptDataSnd request(2);
    CKRMList<int> numbers;
    numbers.AddTail(7);
    CKRMCCommandDispData shown;
    CKRMCCommandConvSignalData* const converter = CKRMCCommandConvSignalData::CreateConverter(3);
    const krm_ulong status =
        converter->ConvCommandDispData(&shown, 10, 0, 12, 1, 1, 0, 0, 0xFFF, 0, nullptr, nullptr, 0);
    CKRMCCommandConvSignalData::DeleteConverter(converter);
    const bool right = copy.m_cPatternDispList.GetCount() == 1 && request.GetCommandID() == 2 && numbers[0] == 7 &&
                       status == 0 && shown.m_strDataPhys.Compare("0x00A") == 0;
    std::printf("%s\n", right ? "the library works from outside" : "wrong");
    return right ? 0 : 1;
}
