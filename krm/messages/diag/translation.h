// The translation of words IDs, as a diagnostic command.
//
// The words table family asks the same question without an ECU: krm/messages/auxiliary/words_table.h.
#ifndef KRM_MESSAGES_DIAG_TRANSLATION_H_
#define KRM_MESSAGES_DIAG_TRANSLATION_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/platform/platform.h"

/// A words ID and its translation. Has no dump: the message that holds it writes its fields, as `ID` and `String`.
class KRM_API CKRMCCommandTranslationStringData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandTranslationStringData(); }

    krm_ulong m_ulId = 0;    ///< words ID; logged under the name ID
    CKRMString m_strString;  ///< translation of that ID; logged under the name String
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCCommandTranslationStringData> = true;
extern template class CKRMList<CKRMCCommandTranslationStringData>;

/// GetTranslationString asks for the translations of words IDs.
class KRM_API CKRMCGetTranslationStringCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetTranslationStringCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetTranslationString"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<krm_ulong> m_ulIdList;  ///< words IDs to translate
};

/// Answers GetTranslationString with the translations.
class KRM_API CKRMCGetTranslationStringCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetTranslationStringCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetTranslationString"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandTranslationStringData> m_cTranslationStringDataList;  ///< words IDs with their translations
};

#endif  // KRM_MESSAGES_DIAG_TRANSLATION_H_
