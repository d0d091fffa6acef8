// Which units a measured value may be shown in, and which is chosen: the unit conversion family (`Ucc`, command type 10).
//
// The records are plain structures; the messages that carry them write their fields into the log.
#ifndef KRM_MESSAGES_AUXILIARY_UNIT_CONVERSION_H_
#define KRM_MESSAGES_AUXILIARY_UNIT_CONVERSION_H_

#include "krm/core/list.h"
#include "krm/framework/message.h"
#include "krm/platform/platform.h"

/// A group, an item and a unit. Each message uses some of the fields and leaves the others alone.
class KRM_API CKRMCUnitConversionData {
public:
    void Clear() { *this = CKRMCUnitConversionData(); }

    unsigned char m_uchGroupId = 0;   ///< unit setting group
    CKRMString m_strGroupName;        ///< group name
    unsigned char m_uchItemId = 0;    ///< convertible item
    CKRMString m_strItemName;         ///< item name
    unsigned char m_uchUnitId = 0;    ///< unit
    CKRMString m_strUnitName;         ///< unit name
    unsigned short m_ushGenreId = 0;  ///< genre: kind of quantity, the same number as in CKRMCCommandConversionData
};
extern template class CKRMList<CKRMCUnitConversionData>;

/// A convertible item and the units that it may be shown in.
class KRM_API CKRMCUnitConvDataItemInfo {
public:
    void Clear() { *this = CKRMCUnitConvDataItemInfo(); }

    unsigned char m_uchItemId = 0;                  ///< convertible item
    CKRMString m_strItemName;                       ///< item name
    CKRMList<CKRMCUnitConversionData> m_cUnitList;  ///< its units; unit and unit name are used
};
extern template class CKRMList<CKRMCUnitConvDataItemInfo>;

/// The settings of a unit setting group: which item is shown in which unit.
class KRM_API CKRMCUnitConvDataSettingInfo {
public:
    void Clear() { *this = CKRMCUnitConvDataSettingInfo(); }

    unsigned char m_uchGroupId = 0;                    ///< unit setting group
    CKRMList<CKRMCUnitConversionData> m_cSettingList;  ///< its settings; item and unit are used
};
extern template class CKRMList<CKRMCUnitConvDataSettingInfo>;

/// One identifier that the unit conversion is created for.
class KRM_API CKRMCUnitConversionCreationData {
public:
    void Clear() { *this = CKRMCUnitConversionCreationData(); }

    unsigned short m_ushIdType = 0;  ///< kind of identifier; the codes are the engine's
    CKRMString m_strValue;           ///< the identifier's value
};
extern template class CKRMList<CKRMCUnitConversionCreationData>;

/// Asks the engine to set up unit conversion.
class KRM_API CKRMCCreateUnitConversionCommandUccAdaptDataSnd
    : public MessageOf<CKRMCCreateUnitConversionCommandUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::UnitConversion, "CreateUnitConversionCommand")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCUnitConversionCreationData> Data;  ///< what it is set up for
};

/// Unit conversion is set up.
class KRM_API CKRMCCreateUnitConversionCommandUccAdaptDataRcv
    : public MessageOf<CKRMCCreateUnitConversionCommandUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::UnitConversion, "CreateUnitConversionCommand")> {
public:
    ~CKRMCCreateUnitConversionCommandUccAdaptDataRcv() override;
};

/// Asks for the convertible items.
class KRM_API CKRMCGetUnitConversionInfoListUccAdaptDataSnd
    : public MessageOf<CKRMCGetUnitConversionInfoListUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::UnitConversion, "GetUnitConversionInfoList")> {
public:
    ~CKRMCGetUnitConversionInfoListUccAdaptDataSnd() override;
};

/// The convertible items with their units.
class KRM_API CKRMCGetUnitConversionInfoListUccAdaptDataRcv
    : public MessageOf<CKRMCGetUnitConversionInfoListUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::UnitConversion, "GetUnitConversionInfoList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCUnitConvDataItemInfo> Data;  ///< the items
};

/// Chooses the units of items.
class KRM_API CKRMCSetUnitConversionInfoUccAdaptDataSnd
    : public MessageOf<CKRMCSetUnitConversionInfoUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::UnitConversion, "SetUnitConversionInfo")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCUnitConversionData> Data;  ///< the choices; item and unit are used
};

/// The units that hold now.
class KRM_API CKRMCSetUnitConversionInfoUccAdaptDataRcv
    : public MessageOf<CKRMCSetUnitConversionInfoUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::UnitConversion, "SetUnitConversionInfo")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCUnitConversionData> Data;  ///< the units by genre; genre and unit are used
};

/// Asks for the unit setting groups.
class KRM_API CKRMCGetUnitSettingGroupListUccAdaptDataSnd
    : public MessageOf<CKRMCGetUnitSettingGroupListUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::UnitConversion, "GetUnitSettingGroupList")> {
public:
    ~CKRMCGetUnitSettingGroupListUccAdaptDataSnd() override;
};

/// The unit setting groups.
class KRM_API CKRMCGetUnitSettingGroupListUccAdaptDataRcv
    : public MessageOf<CKRMCGetUnitSettingGroupListUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::UnitConversion, "GetUnitSettingGroupList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCUnitConversionData> Data;  ///< the groups; group and group name are used
};

/// Asks for the settings of groups.
class KRM_API CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd
    : public MessageOf<CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::UnitConversion, "GetUnitSettingGroupParamList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCUnitConversionData> Data;  ///< the groups asked for; group is used
};

/// The settings of the groups.
class KRM_API CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv
    : public MessageOf<CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::UnitConversion, "GetUnitSettingGroupParamList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCUnitConvDataSettingInfo> Data;  ///< each group's settings
};

#endif  // KRM_MESSAGES_AUXILIARY_UNIT_CONVERSION_H_
