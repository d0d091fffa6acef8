#include "krm/exchange/json.h"

#include "krm/exchange/schema.h"
#include "krm/messages/diag/trouble_codes.h"

int main() {
    CKRMCClearDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    const krm::MessageFromJson read = krm::FromJson(krm::ToJson(request));
    const auto* const copy = read.As<CKRMCClearDTCCmdAdaptDataSnd>();
    return copy != nullptr && copy->m_ulEcuId == 2016 && !krm::FromJson("{}") && !krm::Schema().empty() ? 0 : 1;
}
