#include <new>

#include "krm/convert/specialised.h"

namespace {

/// Null when memory runs out.
template <class Converter, class... Arguments>
CKRMCCommandConvSignalData* Make(Arguments... arguments) {
    return new (std::nothrow) Converter(arguments...);
}

}  // namespace

CKRMCCommandConvSignalData* CKRMCCommandConvSignalData::CreateConverter(unsigned char uchConvType) {
    switch (uchConvType) {
        case 1:
        case 20:
        case 22:
            return Make<CKRMCCommandConvSignalDataStringPattern>();
        case 3:
            return Make<CKRMCCommandConvSignalDataHex>();
        case 4:
            return Make<CKRMCCommandConvSignalDataAscii>();
        case 5:
            return Make<CKRMCCommandConvSignalDataDiagCode>();
        case 6:
            return Make<CKRMCCommandConvSignalDataIlluminance>();
        case 7:
            return Make<CKRMCCommandConvSignalDataChassis>(krm_ulong{10}, true);
        case 8:
            return Make<CKRMCCommandConvSignalDataChassis>(krm_ulong{12}, true);
        case 9:
            return Make<CKRMCCommandConvSignalDataChassis>(krm_ulong{10}, false);
        case 10:
            return Make<CKRMCCommandConvSignalDataChassis>(krm_ulong{8}, true);
        case 11:
            return Make<CKRMCCommandConvSignalDataChassis>(krm_ulong{16}, false);
        case 12:
            return Make<CKRMCCommandConvSignalDataReversal>();
        case 13:
            return Make<CKRMCCommandConvSignalDataMinMax>();
        case 15:
            return Make<CKRMCCommandConvSignalDataDate>();
        case 16:
            return Make<CKRMCCommandConvSignalDataTime>();
        case 19:
            return Make<CKRMCCommandConvSignalDataTimeHHMM>();
        case 24:
            return Make<CKRMCCommandConvSignalDataIlluminanceMinMax>();
        case 101:
            return Make<CKRMCCommandConvSignalDataBcd>();
        case 102:
            return Make<CKRMCCommandConvSignalDataIncline>();
        case 103:
            return Make<CKRMCCommandConvSignalDataLsbPattern>();
        case 104:
            return Make<CKRMCCommandConvSignalDataArrayHex>();
        case 105:
            return Make<CKRMCCommandConvSignalDataDate2>();
        case 106:
            return Make<CKRMCCommandConvSignalDataTime2>();
        case 107:
            return Make<CKRMCCommandConvSignalDataLatitude>();
        case 108:
            return Make<CKRMCCommandConvSignalDataLongitude>();
        case 109:
            return Make<CKRMCCommandConvSignalDataSoftwareVersion>();
        case 110:
            return Make<CKRMCCommandConvSignalDataSpecial2>();
        case 111:
            return Make<CKRMCCommandConvSignalDataTimeHHMM2>();
        case 112:
            return Make<CKRMCCommandConvSignalDataHex2>();
        case 113:
            return Make<CKRMCCommandConvSignalDataBin>();
        case 114:
            return Make<CKRMCCommandConvSignalDataSpecial3>();
        case 115:
            return Make<CKRMCCommandConvSignalDataTimeHHMM3>();
        default:
            return Make<CKRMCCommandConvSignalData>();
    }
}
