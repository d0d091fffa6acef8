#include "krm/convert/byte_converters.h"

#include <cstddef>
#include <string>

#include "krm/convert/internal/numbers.h"
#include "krm/core/internal/digits.h"

using krm::kNullArgument;

bool CKRMCCommandConvSignalDataAscii::IsBinaryDataType() {
    return true;
}

krm_ulong CKRMCCommandConvSignalDataAscii::ConvCommandDispData(CKRMCCommandDispData* record, const unsigned char* data,
                                                               krm_ulong dataLen, unsigned char, unsigned short,
                                                               krm_long, krm_long, krm_long, unsigned char, krm_ulong,
                                                               krm_ulong, CKRMList<CKRMCCommandDispData>*) {
    if (!krm::convert::TakeFirstByte(record, data, dataLen)) {
        return kNullArgument;
    }
    if (data[0] == 0) {
        record->m_strDataPhys = "-";
    } else {
        krm::convert::AssignBytesAsText(record->m_strDataPhys, data, dataLen);
    }
    return 0;
}

bool CKRMCCommandConvSignalDataArrayHex::IsBinaryDataType() {
    return true;
}

krm_ulong CKRMCCommandConvSignalDataArrayHex::ConvCommandDispData(CKRMCCommandDispData* record,
                                                                  const unsigned char* data, krm_ulong dataLen,
                                                                  unsigned char, unsigned short, krm_long, krm_long,
                                                                  krm_long, unsigned char, krm_ulong, krm_ulong,
                                                                  CKRMList<CKRMCCommandDispData>*) {
    if (!krm::convert::TakeFirstByte(record, data, dataLen)) {
        return kNullArgument;
    }
    // Whole before it is appended: the bytes may be those of the record's own text.
    std::string digits(std::size_t{dataLen} * 2, '\0');
    char* end = digits.data();
    for (krm_ulong i = 0; i < dataLen; ++i) {
        end = krm::core::WriteByte(end, data[i], krm::core::kUpperCase);
    }
    record->m_strDataPhys += digits.c_str();
    return 0;
}
