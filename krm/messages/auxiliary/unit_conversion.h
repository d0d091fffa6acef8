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
    : public krm::MessageOf<CKRMCCreateUnitConversionCommandUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd,
                            "CreateUnitConversionCommand"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCUnitConversionCreationData> Data;  ///< what it is set up for
};

/// Unit conversion is set up.
class KRM_API CKRMCCreateUnitConversionCommandUccAdaptDataRcv
    : public krm::MessageOf<CKRMCCreateUnitConversionCommandUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv,
                            "CreateUnitConversionCommand"> {};

/// Asks for the convertible items.
class KRM_API CKRMCGetUnitConversionInfoListUccAdaptDataSnd
    : public krm::MessageOf<CKRMCGetUnitConversionInfoListUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd,
                            "GetUnitConversionInfoList"> {};

/// The convertible items with their units.
class KRM_API CKRMCGetUnitConversionInfoListUccAdaptDataRcv
    : public krm::MessageOf<CKRMCGetUnitConversionInfoListUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv,
                            "GetUnitConversionInfoList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCUnitConvDataItemInfo> Data;  ///< the items
};

/// Chooses the units of items.
class KRM_API CKRMCSetUnitConversionInfoUccAdaptDataSnd
    : public krm::MessageOf<CKRMCSetUnitConversionInfoUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd,
                            "SetUnitConversionInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCUnitConversionData> Data;  ///< the choices; item and unit are used
};

/// The units that hold now.
class KRM_API CKRMCSetUnitConversionInfoUccAdaptDataRcv
    : public krm::MessageOf<CKRMCSetUnitConversionInfoUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv,
                            "SetUnitConversionInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCUnitConversionData> Data;  ///< the units by genre; genre and unit are used
};

/// Asks for the unit setting groups.
class KRM_API CKRMCGetUnitSettingGroupListUccAdaptDataSnd
    : public krm::MessageOf<CKRMCGetUnitSettingGroupListUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd,
                            "GetUnitSettingGroupList"> {};

/// The unit setting groups.
class KRM_API CKRMCGetUnitSettingGroupListUccAdaptDataRcv
    : public krm::MessageOf<CKRMCGetUnitSettingGroupListUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv,
                            "GetUnitSettingGroupList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCUnitConversionData> Data;  ///< the groups; group and group name are used
};

/// Asks for the settings of groups.
class KRM_API CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd
    : public krm::MessageOf<CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd,
                            "GetUnitSettingGroupParamList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCUnitConversionData> Data;  ///< the groups asked for; group is used
};

/// The settings of the groups.
class KRM_API CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv
    : public krm::MessageOf<CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv,
                            "GetUnitSettingGroupParamList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCUnitConvDataSettingInfo> Data;  ///< each group's settings
};

#endif  // KRM_MESSAGES_AUXILIARY_UNIT_CONVERSION_H_
