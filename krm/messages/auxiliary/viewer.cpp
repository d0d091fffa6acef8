#include "krm/messages/auxiliary/viewer.h"

template class CKRMList<CKRMCDbHelpInfo>;

CKRMCCreateViewerDataCtrlVdcAdaptDataSnd::~CKRMCCreateViewerDataCtrlVdcAdaptDataSnd() = default;
CKRMCCreateViewerDataCtrlVdcAdaptDataRcv::~CKRMCCreateViewerDataCtrlVdcAdaptDataRcv() = default;
CKRMCGetHelpInfoVdcAdptDataSnd::~CKRMCGetHelpInfoVdcAdptDataSnd() = default;
CKRMCGetHelpInfoVdcAdptDataRcv::~CKRMCGetHelpInfoVdcAdptDataRcv() = default;
CKRMCGetPcViewerResourceVdcAdptDataSnd::~CKRMCGetPcViewerResourceVdcAdptDataSnd() = default;
CKRMCGetPcViewerResourceVdcAdptDataRcv::~CKRMCGetPcViewerResourceVdcAdptDataRcv() = default;
CKRMCGetHideAllDataVdcAdaptDataSnd::~CKRMCGetHideAllDataVdcAdaptDataSnd() = default;
CKRMCGetHideAllDataVdcAdaptDataRcv::~CKRMCGetHideAllDataVdcAdaptDataRcv() = default;
CKRMCGetSecurityLevelVdcAdaptDataSnd::~CKRMCGetSecurityLevelVdcAdaptDataSnd() = default;
CKRMCGetSecurityLevelVdcAdaptDataRcv::~CKRMCGetSecurityLevelVdcAdaptDataRcv() = default;
