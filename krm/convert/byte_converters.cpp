#include "krm/convert/byte_converters.h"

#include <array>
#include <cstddef>

#include "krm/convert/numbers.h"

using krm::kNullPointer;

bool CKRMCCommandConvSignalDataAscii::IsBinaryDataType() {
    return true;
}

krm_ulong CKRMCCommandConvSignalDataAscii::ConvCommandDispData(CKRMCCommandDispData* record, const unsigned char* data,
                                                               krm_ulong dataLen, unsigned char, unsigned short,
                                                               krm_long, krm_long, krm_long, unsigned char, krm_ulong,
                                                               krm_ulong, CKRMList<CKRMCCommandDispData>*) {
    if (!krm::convert::TakeFirstByte(record, data, dataLen)) {
        return kNullPointer;
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
        return kNullPointer;
    }
    constexpr const char* kDigits = "0123456789ABCDEF";
    // Appended in pieces, so that a long array is neither cut nor grown byte by byte.
    std::array<char, 512 + 1> piece;
    std::size_t length = 0;
    for (krm_ulong i = 0; i < dataLen; ++i) {
        piece[length++] = kDigits[data[i] >> 4U];
        piece[length++] = kDigits[data[i] & 0xFU];
        if (length == piece.size() - 1 || i + 1 == dataLen) {
            piece[length] = '\0';
            record->m_strDataPhys += piece.data();
            length = 0;
        }
    }
    return 0;
}
