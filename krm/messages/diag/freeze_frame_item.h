// The freeze-frame item: a named value with its unit, its conversion and its display values. Freeze frames are made of
// them, and so are monitor values, times and whatever else is shown the same way.
#ifndef KRM_MESSAGES_DIAG_FREEZE_FRAME_ITEM_H_
#define KRM_MESSAGES_DIAG_FREEZE_FRAME_ITEM_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/display.h"
#include "krm/platform/platform.h"

/// One freeze-frame item: a named value with its unit, how it is converted, and its display values. Also carries times,
/// monitor values and other values that are shown the same way.
class KRM_API CKRMCCommandFFDData : public krm::RecordOf<CKRMCCommandFFDData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushId = 0;          ///< ID of the item; the IDs are the engine's
    krm_ulong m_ulNameId = 0;            ///< words ID of the item's name
    CKRMString m_strName;                ///< text of the item's name
    CKRMString m_strFFDText;             ///< second text of the item; stored, copied and cleared only; not logged
    krm_ulong m_ulUnitPhysId = 0;        ///< words ID of the physical unit
    CKRMString m_strUnitPhys;            ///< text of the physical unit
    krm_ulong m_ulUnitId = 0;            ///< words ID of the display unit
    CKRMString m_strUnit;                ///< text of the display unit
    krm_ulong m_ulFFDReserved = 0;       ///< stored, copied and cleared only; not logged
    unsigned char m_uchDataType = 0;     ///< type of the value, as CreateConverter takes it
    unsigned char m_uchDecPntCount = 0;  ///< decimal places of the physical value
    unsigned char m_uchUnitConvDecPntCount = 0;      ///< decimal places after unit conversion
    CKRMCCommandConversionData m_cConversionTbl;     ///< conversion of the raw value
    CKRMCCommandDispData m_cResolutionData;          ///< smallest step, as a display value
    CKRMList<CKRMCCommandDispData> m_cDispDataList;  ///< display values of the item
    CKRMCCommandDataLayout m_cDataLayout;            ///< where the raw value lies in the ECU's response
};
extern template class CKRMList<CKRMCCommandFFDData>;

#endif  // KRM_MESSAGES_DIAG_FREEZE_FRAME_ITEM_H_
