// The writing of single items of data.
#ifndef KRM_MESSAGES_DIAG_DATA_ITEM_H_
#define KRM_MESSAGES_DIAG_DATA_ITEM_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"

/// A value to be written to an item. Has a dump of its own, but the message that holds it writes its fields.
class KRM_API CKRMCCommandWriteData : public krm::RecordOf<CKRMCCommandWriteData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushId = 0;   ///< item ID; the IDs are the engine's
    unsigned char m_uchType = 0;  ///< type of the value; the codes are the engine's
    krm_ulong m_ulData = 0;       ///< value to write
};
extern template class CKRMList<CKRMCCommandWriteData>;

/// WriteDataItem asks to write single items of an ECU.
class KRM_API CKRMCWriteDataItemCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCWriteDataItemCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "WriteDataItem"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandWriteData> Data;  ///< items and the values to write to them
};

/// Answers WriteDataItem; has only what every answer has.
class KRM_API CKRMCWriteDataItemCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCWriteDataItemCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "WriteDataItem"> {};

#endif  // KRM_MESSAGES_DIAG_DATA_ITEM_H_
