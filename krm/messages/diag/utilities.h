// The utility functions that an application offers, the lists that its user has put together, and special function keys.
//
// Records come first, then the messages by command ID.
#ifndef KRM_MESSAGES_DIAG_UTILITIES_H_
#define KRM_MESSAGES_DIAG_UTILITIES_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/j2534_config.h"
#include "krm/platform/platform.h"

/// One utility function, with the communication parameters of the ECU that it runs on, so that the engine can open
/// the session for it.
class KRM_API CKRMCCommandUtilityData : public krm::RecordOf<CKRMCCommandUtilityData> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulFunctionNameId = 0;           ///< words ID of the function's name
    CKRMString m_strFunctionName;               ///< text of the function's name
    unsigned short m_ushFunctionId = 0;         ///< ID of the function
    unsigned short m_ushPhaseType = 0;          ///< phase of the ECU; the codes are the engine's
    krm_ulong m_ulEcuId = 0;                    ///< ECU that the function runs on
    unsigned short m_ushBusId = 0;              ///< bus that the ECU is on
    krm_ulong m_ulHelpId = 0;                   ///< ID of the function's help
    krm_ulong m_ulBaudrate = 0;                 ///< baud rate of the bus
    unsigned short m_ushP2Max = 0;              ///< timing P2max; its unit is the engine's
    krm_ulong m_ulFcCode = 0;                   ///< FC code; logged as six hexadecimal digits
    krm_ulong m_ulPhysAddr = 0;                 ///< physical address; logged in hexadecimal
    krm_ulong m_ul5bpsAddr = 0;                 ///< address of the 5-baud initialisation; logged in hexadecimal
    krm_ulong m_ulFuncAddr = 0;                 ///< functional address; logged in hexadecimal
    krm_ulong m_ulNTA = 0;                      ///< network target address; logged as two hexadecimal digits
    krm_ulong m_ulToolAddr = 0;                 ///< address of the tool; logged in hexadecimal
    unsigned char m_uchSecurityTargetFlag = 0;  ///< not 0: the function is subject to security
    krm_ulong m_ulSpecialFunctionKey = 0;       ///< special function key of the function
    krm_ulong m_ulLegislatedAddr = 0;           ///< legislated address; logged in hexadecimal
    krm_ulong m_ulP3Min = 0;                    ///< timing P3min; its unit is the engine's
    krm_ulong m_ulStminTx = 0;                  ///< timing STmin when sending; its unit is the engine's
    krm_ulong m_ulNBrMin = 0;                   ///< timing N_Br min; its unit is the engine's
    krm_ulong m_ulCanP3Min = 0;                 ///< timing P3min on CAN; its unit is the engine's
};
extern template class CKRMList<CKRMCCommandUtilityData>;

/// A special function key and the function that it belongs to.
class KRM_API CKRMCCommandSpecialFunctionKeyInfo : public krm::RecordOf<CKRMCCommandSpecialFunctionKeyInfo> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushScreenId = 0;          ///< screen that the key belongs to
    unsigned short m_ushFunctionId = 0;        ///< function that the key belongs to
    unsigned short m_ushFunctionDetailId = 0;  ///< detail of that function
    krm_ulong m_ulKeycode = 0;                 ///< code of the key; logged in hexadecimal
    CKRMString m_strKeyText;                   ///< text of the key; stored, copied and cleared only; not logged
    krm_ulong m_ulCompareOptions = 0;  ///< how the key is compared; the codes are the engine's; logged in hexadecimal
};
extern template class CKRMList<CKRMCCommandSpecialFunctionKeyInfo>;

/// A list that a user has put together. Has no dump: the message that holds it writes its fields.
class KRM_API CKRMCCommandCustomListData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCustomListData(); }

    CKRMString m_strFileName;                ///< file that holds the list
    CKRMString m_strName;                    ///< name that the list is shown under
    unsigned short m_ushDataType = 0;        ///< kind of data that it lists; the codes are the engine's
    unsigned short m_ushSortIndex = 0;       ///< place among the lists
    unsigned char m_uchInitialDispFlag = 0;  ///< not 0: displayed initially
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCCommandCustomListData> = true;
extern template class CKRMList<CKRMCCommandCustomListData>;

/// GetUtilityList asks for the utility functions.
class KRM_API CKRMCGetUtilityListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetUtilityListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetUtilityList"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned char m_uchConnectLevel = 0;  ///< level of the connection; the codes are the engine's
    krm_ulong m_ulSecurityLevel = 0;      ///< security level; the codes are the engine's; logged in hexadecimal
    CKRMList<krm_ulong>
        m_cSpecialFunctionKeyList;  ///< special function keys; logged under the name Data, in hexadecimal
};

/// Answers GetUtilityList with the utility functions and the J2534 configuration for them.
class KRM_API CKRMCGetUtilityListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetUtilityListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetUtilityList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandUtilityData> Data;  ///< utility functions with their communication parameters
    CKRMList<CKRMCCommandJ2534Config>
        m_cJ2534ConfigList;  ///< J2534 parameters; logged under the name Data too, counted from 0 again
};

/// GetCustomList asks for the lists that the user has put together.
class KRM_API CKRMCGetCustomListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCustomListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetCustomList"> {};

/// Answers GetCustomList with the user's lists.
class KRM_API CKRMCGetCustomListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCustomListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetCustomList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCustomListData> Data;  ///< lists, by name and file
};

/// GetSpecialFunctionKeyList asks for the special function keys.
class KRM_API CKRMCGetSpecialFunctionKeyListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetSpecialFunctionKeyListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetSpecialFunctionKeyList"> {};

/// Answers GetSpecialFunctionKeyList with the keys.
class KRM_API CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetSpecialFunctionKeyList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandSpecialFunctionKeyInfo> Data;  ///< special function keys with their functions
};

#endif  // KRM_MESSAGES_DIAG_UTILITIES_H_
