// Help, resources and settings of the viewer: the viewer data control family (`Vdc`, command type 2). Nothing of it is
// written to the operation log.
//
// The interface knows these fields by their place: their types, order and defaults are fixed (docs/interface.md). The
// names are this library's choice and say what the commands are about. What the values mean, and which ones are
// valid, is between viewer and engine: the library stores and copies them unchanged.
//
// Four classes have `VdcAdpt` in their names where the others have `VdcAdapt`. They are exported under
// exactly these names, and programs are linked by them.
#ifndef KRM_MESSAGES_AUXILIARY_VIEWER_H_
#define KRM_MESSAGES_AUXILIARY_VIEWER_H_

#include "krm/core/list.h"
#include "krm/framework/message.h"
#include "krm/platform/platform.h"

/// A piece of help.
class KRM_API CKRMCDbHelpInfo {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCDbHelpInfo(); }

    unsigned char m_uchHelpType = 0;   ///< kind of help; the codes are the engine's
    unsigned char m_uchHelpIndex = 0;  ///< place of the piece; its meaning is the engine's
    CKRMString m_strHelpInfo;          ///< the help itself, or where to find it: the engine's choice
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCDbHelpInfo> = true;
extern template class CKRMList<CKRMCDbHelpInfo>;

/// CreateViewerDataCtrl asks to create the viewer's data control.
class KRM_API CKRMCCreateViewerDataCtrlVdcAdaptDataSnd
    : public krm::MessageOf<CKRMCCreateViewerDataCtrlVdcAdaptDataSnd, CKRMCBaseVdcAdaptDataSnd,
                            "CreateViewerDataCtrl"> {
public:
    CKRMString m_strDataName;  ///< which data to control; its meaning is the engine's
    CKRMString m_strLanguage;  ///< language to show it in; its meaning is the engine's
};

/// Answers CreateViewerDataCtrl; has only what every answer has.
class KRM_API CKRMCCreateViewerDataCtrlVdcAdaptDataRcv
    : public krm::MessageOf<CKRMCCreateViewerDataCtrlVdcAdaptDataRcv, CKRMCBaseVdcAdaptDataRcv,
                            "CreateViewerDataCtrl"> {};

/// GetHelpInfo asks for help.
class KRM_API CKRMCGetHelpInfoVdcAdptDataSnd
    : public krm::MessageOf<CKRMCGetHelpInfoVdcAdptDataSnd, CKRMCBaseVdcAdaptDataSnd, "GetHelpInfo"> {
public:
    krm_ulong m_ulHelpId = 0;  ///< help asked for, as in the help IDs of other messages
};

/// Answers GetHelpInfo with the pieces of the help.
class KRM_API CKRMCGetHelpInfoVdcAdptDataRcv
    : public krm::MessageOf<CKRMCGetHelpInfoVdcAdptDataRcv, CKRMCBaseVdcAdaptDataRcv, "GetHelpInfo"> {
public:
    CKRMList<CKRMCDbHelpInfo> Data;  ///< pieces of the help
};

/// GetPcViewerResource asks for resources of the PC viewer.
class KRM_API CKRMCGetPcViewerResourceVdcAdptDataSnd
    : public krm::MessageOf<CKRMCGetPcViewerResourceVdcAdptDataSnd, CKRMCBaseVdcAdaptDataSnd, "GetPcViewerResource"> {
public:
    krm_ulong m_ulResourceType = 1;  ///< kind of resource; 1, not 0, unless set. The codes are the engine's
    CKRMString m_strResourceName;    ///< resource asked for; its meaning is the engine's
    CKRMString m_strLanguage;        ///< language of the resource; its meaning is the engine's
};

/// Answers GetPcViewerResource with the resources.
class KRM_API CKRMCGetPcViewerResourceVdcAdptDataRcv
    : public krm::MessageOf<CKRMCGetPcViewerResourceVdcAdptDataRcv, CKRMCBaseVdcAdaptDataRcv, "GetPcViewerResource"> {
public:
    CKRMString m_strResourceName;                    ///< resource answered; its meaning is the engine's
    CKRMMap<CKRMString, CKRMString> m_cResourceMap;  ///< the resource's entries by key
};

/// GetHideAllData asks for the data to hide.
class KRM_API CKRMCGetHideAllDataVdcAdaptDataSnd
    : public krm::MessageOf<CKRMCGetHideAllDataVdcAdaptDataSnd, CKRMCBaseVdcAdaptDataSnd, "GetHideAllData"> {};

/// Answers GetHideAllData with the data to hide.
class KRM_API CKRMCGetHideAllDataVdcAdaptDataRcv
    : public krm::MessageOf<CKRMCGetHideAllDataVdcAdaptDataRcv, CKRMCBaseVdcAdaptDataRcv, "GetHideAllData"> {
public:
    CKRMList<unsigned short> m_ushHideDataList;  ///< IDs of the data to hide; their meaning is the engine's
};

/// GetSecurityLevel asks for the viewer's security level.
class KRM_API CKRMCGetSecurityLevelVdcAdaptDataSnd
    : public krm::MessageOf<CKRMCGetSecurityLevelVdcAdaptDataSnd, CKRMCBaseVdcAdaptDataSnd, "GetSecurityLevel"> {
public:
    CKRMString m_strTarget;  ///< what the level is asked for; its meaning is the engine's
};

/// Answers GetSecurityLevel with the level. It is an ordinary setting, carried as data.
class KRM_API CKRMCGetSecurityLevelVdcAdaptDataRcv
    : public krm::MessageOf<CKRMCGetSecurityLevelVdcAdaptDataRcv, CKRMCBaseVdcAdaptDataRcv, "GetSecurityLevel"> {
public:
    krm_ulong m_ulSecurityLevel = 0;  ///< security level; the scale is the engine's
};

#endif  // KRM_MESSAGES_AUXILIARY_VIEWER_H_
