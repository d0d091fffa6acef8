// The translation of words IDs into the user's language, as a diagnostic command.
//
// The words-table family asks the same question without an ECU; its messages live in krm/messages/auxiliary/.
#ifndef KRM_MESSAGES_DIAG_TRANSLATION_H_
#define KRM_MESSAGES_DIAG_TRANSLATION_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/platform/platform.h"

/// A words ID and its text in the user's language. A plain value without a dump: the message that holds it writes its
/// fields, as `ID` and `String`.
class KRM_API CKRMCCommandTranslationStringData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandTranslationStringData(); }

    krm_ulong m_ulId = 0;    ///< words ID
    CKRMString m_strString;  ///< its translation
};
extern template class CKRMList<CKRMCCommandTranslationStringData>;

/// Asks for the translations of words IDs.
class KRM_API CKRMCGetTranslationStringCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetTranslationStringCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetTranslationString"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<krm_ulong> m_ulIdList;  ///< the words IDs
};

/// Answers with the translations.
class KRM_API CKRMCGetTranslationStringCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetTranslationStringCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetTranslationString"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandTranslationStringData> m_cTranslationStringDataList;  ///< the translations
};

#endif  // KRM_MESSAGES_DIAG_TRANSLATION_H_
