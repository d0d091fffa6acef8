// The table of words that the engine builds, and the texts of words IDs from it: the words table family (`Dwt`, command
// type 14).
//
// The records are plain structures but for their virtual destructor; the messages that carry them write their fields
// into the log.
#ifndef KRM_MESSAGES_AUXILIARY_WORDS_TABLE_H_
#define KRM_MESSAGES_AUXILIARY_WORDS_TABLE_H_

#include "krm/core/list.h"
#include "krm/framework/message.h"
#include "krm/platform/platform.h"

/// One identifier that the words table is built for.
class KRM_API CKRMCDiagWordsTableCreationData {
public:
    virtual ~CKRMCDiagWordsTableCreationData();
    void Clear() { *this = CKRMCDiagWordsTableCreationData(); }

    unsigned short m_ushIdType = 0;  ///< kind of identifier; the codes are the engine's
    CKRMString m_strValue;           ///< the identifier's value
};
extern template class CKRMList<CKRMCDiagWordsTableCreationData>;

/// A words ID and its text in the user's language. The log prints the fields as `ID` and `String`.
class KRM_API CKRMCDiagWordsTableTranslationStringData {
public:
    virtual ~CKRMCDiagWordsTableTranslationStringData();
    void Clear() { *this = CKRMCDiagWordsTableTranslationStringData(); }

    krm_ulong m_ulId = 0;    ///< words ID
    CKRMString m_strString;  ///< its text
};
extern template class CKRMList<CKRMCDiagWordsTableTranslationStringData>;

/// Asks the engine to build the words table.
class KRM_API CKRMCCreateDiagWordsTableDwtAdaptDataSnd
    : public krm::MessageOf<CKRMCCreateDiagWordsTableDwtAdaptDataSnd, CKRMCBaseDwtAdaptDataSnd,
                            "CreateDiagWordsTable"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCDiagWordsTableCreationData> Data;  ///< what it is built for
};

/// The words table is built.
class KRM_API CKRMCCreateDiagWordsTableDwtAdaptDataRcv
    : public krm::MessageOf<CKRMCCreateDiagWordsTableDwtAdaptDataRcv, CKRMCBaseDwtAdaptDataRcv,
                            "CreateDiagWordsTable"> {};

/// Asks for the texts of words IDs.
class KRM_API CKRMCGetTranslationStringDwtAdaptDataSnd
    : public krm::MessageOf<CKRMCGetTranslationStringDwtAdaptDataSnd, CKRMCBaseDwtAdaptDataSnd,
                            "GetTranslationString"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<krm_ulong> m_ulIdList;  ///< the words IDs
};

/// The texts.
class KRM_API CKRMCGetTranslationStringDwtAdaptDataRcv
    : public krm::MessageOf<CKRMCGetTranslationStringDwtAdaptDataRcv, CKRMCBaseDwtAdaptDataRcv,
                            "GetTranslationString"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCDiagWordsTableTranslationStringData> m_cTranslationStringDataList;  ///< words IDs with their texts
};

#endif  // KRM_MESSAGES_AUXILIARY_WORDS_TABLE_H_
