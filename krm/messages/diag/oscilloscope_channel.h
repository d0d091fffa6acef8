// A channel of the oscilloscope, as the data monitor is started with it.
#ifndef KRM_MESSAGES_DIAG_OSCILLOSCOPE_CHANNEL_H_
#define KRM_MESSAGES_DIAG_OSCILLOSCOPE_CHANNEL_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/record.h"

/// An oscilloscope channel with the voltage range that is chosen for it. Has a dump of its own, but
/// StartDataMonitor writes its fields.
class KRM_API CKRMCCommandOscInfo : public krm::RecordOf<CKRMCCommandOscInfo> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushChId = 0;  ///< channel ID, one of those that GetOscilloscopeList answers with
    krm_ulong m_ulVolId = 0;       ///< ID of its voltage range
};
extern template class CKRMList<CKRMCCommandOscInfo>;

#endif  // KRM_MESSAGES_DIAG_OSCILLOSCOPE_CHANNEL_H_
