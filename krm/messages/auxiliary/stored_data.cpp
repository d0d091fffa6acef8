#include "krm/messages/auxiliary/stored_data.h"

template class CKRMList<CKRMCStoredDataSystemTime>;
template class CKRMList<CKRMCStoredDataTimestamp>;
template class CKRMList<CKRMCStoredDataFileHeader>;
template class CKRMList<CKRMCStoredDataSystemInfo>;
template class CKRMList<CKRMCStoredDataFFD>;
template class CKRMList<CKRMCStoredDataAbsFFD>;
template class CKRMList<CKRMCStoredDataXPos>;
template class CKRMList<CKRMCStoredDataImportFileInfo>;
template class CKRMList<CKRMCStoredDataSystemData>;
template class CKRMList<CKRMCStoredDataImportFileData>;

// Defaulted here and not in the class, so that not even `CKRMCStoredDataFFD()` touches m_ushFFDNo.
CKRMCStoredDataFFD::CKRMCStoredDataFFD() = default;

void CKRMCStoredDataFFD::Clear() {
    m_uchFFDId = 0;
    m_uchFFDType = 0;
    m_uchSubFunction = 0;
    m_cFirstFFD.Clear();
    m_cSecondFFD.Clear();
    m_cDiagDetail.Clear();
}

void CKRMCGetImportStoredDataDsdiAdaptDataRcv::Clear() {
    CKRMCBaseDsdiAdaptDataRcv::Clear();
    SetCommandID(kCommandId);
}
