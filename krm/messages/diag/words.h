// Words and their translations, as the diagnostic commands carry them.
//
// The words-table family asks the same question without an ECU; its messages live in krm/messages/auxiliary/.
#ifndef KRM_MESSAGES_DIAG_WORDS_H_
#define KRM_MESSAGES_DIAG_WORDS_H_

#include "krm/core/list.h"
#include "krm/framework/commands.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/platform/platform.h"

/// One entry of the vocabulary: a words ID and its text.
class KRM_API CKRMCCommandWordsData : public RecordOf<CKRMCCommandWordsData> {
public:
    ~CKRMCCommandWordsData() override;
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulWordsId = 0;  ///< words ID
    CKRMString m_strWords;      ///< its text
};
extern template class CKRMList<CKRMCCommandWordsData>;

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

// GetTranslationString

/// Asks for the translations of words IDs.
class KRM_API CKRMCGetTranslationStringCmdAdaptDataSnd
    : public MessageOf<CKRMCGetTranslationStringCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetTranslationString")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<krm_ulong> m_ulIdList;  ///< the words IDs
};

/// Answers with the translations.
class KRM_API CKRMCGetTranslationStringCmdAdaptDataRcv
    : public MessageOf<CKRMCGetTranslationStringCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetTranslationString")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandTranslationStringData> m_cTranslationStringDataList;  ///< the translations
};

#endif  // KRM_MESSAGES_DIAG_WORDS_H_
