// Which units a measured value may be shown in, and which is chosen: the unit conversion family (`Ucc`, command type 10).
//
// The records are plain structures; the messages that carry them write their fields into the log.
#ifndef KRM_MESSAGES_AUXILIARY_UNIT_CONVERSION_H_
#define KRM_MESSAGES_AUXILIARY_UNIT_CONVERSION_H_

#include "krm/core/list.h"
#include "krm/framework/message.h"
#include "krm/platform/platform.h"

/// A group, an item and a unit. Each message uses some of the fields and leaves the others alone. Has no dump: the
/// message that holds it writes the fields it uses.
class KRM_API CKRMCUnitConversionData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCUnitConversionData(); }

    unsigned char m_uchGroupId = 0;   ///< number of the unit setting group
    CKRMString m_strGroupName;        ///< text of the group's name
    unsigned char m_uchItemId = 0;    ///< number of the convertible item
    CKRMString m_strItemName;         ///< text of the item's name
    unsigned char m_uchUnitId = 0;    ///< number of the unit
    CKRMString m_strUnitName;         ///< text of the unit's name
    unsigned short m_ushGenreId = 0;  ///< genre: kind of quantity, the same number as in CKRMCCommandConversionData
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCUnitConversionData> = true;
extern template class CKRMList<CKRMCUnitConversionData>;

/// A convertible item and the units that it may be shown in.
class KRM_API CKRMCUnitConvDataItemInfo {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCUnitConvDataItemInfo(); }

    unsigned char m_uchItemId = 0;                  ///< number of the convertible item
    CKRMString m_strItemName;                       ///< text of the item's name
    CKRMList<CKRMCUnitConversionData> m_cUnitList;  ///< units that it may be shown in; unit and unit name are used
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCUnitConvDataItemInfo> = true;
extern template class CKRMList<CKRMCUnitConvDataItemInfo>;

/// The settings of a unit setting group: which item is shown in which unit.
class KRM_API CKRMCUnitConvDataSettingInfo {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCUnitConvDataSettingInfo(); }

    unsigned char m_uchGroupId = 0;                    ///< number of the unit setting group
    CKRMList<CKRMCUnitConversionData> m_cSettingList;  ///< settings of the group; item and unit are used
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCUnitConvDataSettingInfo> = true;
extern template class CKRMList<CKRMCUnitConvDataSettingInfo>;

/// An identifier that the unit conversion is created for.
class KRM_API CKRMCUnitConversionCreationData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCUnitConversionCreationData(); }

    unsigned short m_ushIdType = 0;  ///< kind of identifier; the codes are the engine's
    CKRMString m_strValue;           ///< value of the identifier
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCUnitConversionCreationData> = true;
extern template class CKRMList<CKRMCUnitConversionCreationData>;

/// CreateUnitConversionCommand asks to set up unit conversion.
class KRM_API CKRMCCreateUnitConversionCommandUccAdaptDataSnd
    : public krm::MessageOf<CKRMCCreateUnitConversionCommandUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd,
                            "CreateUnitConversionCommand"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCUnitConversionCreationData> Data;  ///< identifiers that it is set up for
};

/// Answers CreateUnitConversionCommand; has only what every answer has.
class KRM_API CKRMCCreateUnitConversionCommandUccAdaptDataRcv
    : public krm::MessageOf<CKRMCCreateUnitConversionCommandUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv,
                            "CreateUnitConversionCommand"> {};

/// GetUnitConversionInfoList asks for the convertible items.
class KRM_API CKRMCGetUnitConversionInfoListUccAdaptDataSnd
    : public krm::MessageOf<CKRMCGetUnitConversionInfoListUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd,
                            "GetUnitConversionInfoList"> {};

/// Answers GetUnitConversionInfoList with the items and the units of each.
class KRM_API CKRMCGetUnitConversionInfoListUccAdaptDataRcv
    : public krm::MessageOf<CKRMCGetUnitConversionInfoListUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv,
                            "GetUnitConversionInfoList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCUnitConvDataItemInfo> Data;  ///< convertible items with their units
};

/// SetUnitConversionInfo asks to show items in other units.
class KRM_API CKRMCSetUnitConversionInfoUccAdaptDataSnd
    : public krm::MessageOf<CKRMCSetUnitConversionInfoUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd,
                            "SetUnitConversionInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCUnitConversionData> Data;  ///< units to set; item and unit are used
};

/// Answers SetUnitConversionInfo with the units that were set.
class KRM_API CKRMCSetUnitConversionInfoUccAdaptDataRcv
    : public krm::MessageOf<CKRMCSetUnitConversionInfoUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv,
                            "SetUnitConversionInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCUnitConversionData> Data;  ///< units that were set; genre and unit are used
};

/// GetUnitSettingGroupList asks for the unit setting groups.
class KRM_API CKRMCGetUnitSettingGroupListUccAdaptDataSnd
    : public krm::MessageOf<CKRMCGetUnitSettingGroupListUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd,
                            "GetUnitSettingGroupList"> {};

/// Answers GetUnitSettingGroupList with the groups.
class KRM_API CKRMCGetUnitSettingGroupListUccAdaptDataRcv
    : public krm::MessageOf<CKRMCGetUnitSettingGroupListUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv,
                            "GetUnitSettingGroupList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCUnitConversionData> Data;  ///< unit setting groups; group and group name are used
};

/// GetUnitSettingGroupParamList asks for the settings of groups.
class KRM_API CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd
    : public krm::MessageOf<CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd, CKRMCBaseUccAdaptDataSnd,
                            "GetUnitSettingGroupParamList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCUnitConversionData> Data;  ///< groups asked for; only the group is used
};

/// Answers GetUnitSettingGroupParamList with the settings of each group.
class KRM_API CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv
    : public krm::MessageOf<CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv, CKRMCBaseUccAdaptDataRcv,
                            "GetUnitSettingGroupParamList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCUnitConvDataSettingInfo> Data;  ///< groups with their settings
};

#endif  // KRM_MESSAGES_AUXILIARY_UNIT_CONVERSION_H_
