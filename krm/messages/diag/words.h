// An entry of the vocabulary, which other records carry. Its messages are in translation.h.
#ifndef KRM_MESSAGES_DIAG_WORDS_H_
#define KRM_MESSAGES_DIAG_WORDS_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/record.h"
#include "krm/platform/platform.h"

/// One entry of the vocabulary: a words ID and its text.
class KRM_API CKRMCCommandWordsData : public krm::RecordOf<CKRMCCommandWordsData> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulWordsId = 0;  ///< words ID
    CKRMString m_strWords;      ///< its text
};
extern template class CKRMList<CKRMCCommandWordsData>;

#endif  // KRM_MESSAGES_DIAG_WORDS_H_
