// An entry of the vocabulary, which other records carry. The command that translates words IDs is in translation.h.
#ifndef KRM_MESSAGES_DIAG_WORDS_H_
#define KRM_MESSAGES_DIAG_WORDS_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/record.h"
#include "krm/platform/platform.h"

/// One entry of the vocabulary.
class KRM_API CKRMCCommandWordsData : public krm::RecordOf<CKRMCCommandWordsData> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulWordsId = 0;  ///< words ID; logged unsigned
    CKRMString m_strWords;      ///< text of that ID
};
extern template class CKRMList<CKRMCCommandWordsData>;

#endif  // KRM_MESSAGES_DIAG_WORDS_H_
