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

/// An identifier that the words table is built for.
class KRM_API CKRMCDiagWordsTableCreationData {
public:
    /// Virtual, as the interface has it; nothing derives from the record.
    virtual ~CKRMCDiagWordsTableCreationData();
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCDiagWordsTableCreationData(); }

    unsigned short m_ushIdType = 0;  ///< kind of identifier; the codes are the engine's
    CKRMString m_strValue;           ///< value of the identifier
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCDiagWordsTableCreationData> = true;
extern template class CKRMList<CKRMCDiagWordsTableCreationData>;

/// A words ID and its translation. Logged as `ID` and `String`.
class KRM_API CKRMCDiagWordsTableTranslationStringData {
public:
    /// Virtual, as the interface has it; nothing derives from the record.
    virtual ~CKRMCDiagWordsTableTranslationStringData();
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCDiagWordsTableTranslationStringData(); }

    krm_ulong m_ulId = 0;    ///< words ID; logged under the name ID
    CKRMString m_strString;  ///< translation of that ID; logged under the name String
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCDiagWordsTableTranslationStringData> = true;
extern template class CKRMList<CKRMCDiagWordsTableTranslationStringData>;

/// CreateDiagWordsTable asks to build the table of words.
class KRM_API CKRMCCreateDiagWordsTableDwtAdaptDataSnd
    : public krm::MessageOf<CKRMCCreateDiagWordsTableDwtAdaptDataSnd, CKRMCBaseDwtAdaptDataSnd,
                            "CreateDiagWordsTable"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCDiagWordsTableCreationData> Data;  ///< identifiers that the table is built for
};

/// Answers CreateDiagWordsTable; has only what every answer has.
class KRM_API CKRMCCreateDiagWordsTableDwtAdaptDataRcv
    : public krm::MessageOf<CKRMCCreateDiagWordsTableDwtAdaptDataRcv, CKRMCBaseDwtAdaptDataRcv,
                            "CreateDiagWordsTable"> {};

/// GetTranslationString asks for the translations of words IDs from the table of words.
class KRM_API CKRMCGetTranslationStringDwtAdaptDataSnd
    : public krm::MessageOf<CKRMCGetTranslationStringDwtAdaptDataSnd, CKRMCBaseDwtAdaptDataSnd,
                            "GetTranslationString"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<krm_ulong> m_ulIdList;  ///< words IDs to translate
};

/// Answers GetTranslationString with the translations.
class KRM_API CKRMCGetTranslationStringDwtAdaptDataRcv
    : public krm::MessageOf<CKRMCGetTranslationStringDwtAdaptDataRcv, CKRMCBaseDwtAdaptDataRcv,
                            "GetTranslationString"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCDiagWordsTableTranslationStringData>
        m_cTranslationStringDataList;  ///< words IDs with their translations
};

#endif  // KRM_MESSAGES_AUXILIARY_WORDS_TABLE_H_
