// Units: as item tables name them, as people write them, and the ones that other people use.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_UNITS_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_UNITS_H_

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "krm/messages/auxiliary/unit_conversion.h"

namespace diagnosis_session {

/// Kind of quantity: the engine's codes for m_ushGenreId of conversion data and unit records, and for m_uchItemId.
enum class Genre : unsigned char {
    None,
    Temperature,
    Speed,
    Distance,
    Pressure,
    LowPressure,
    MassFlow,
    LargeMassFlow,
    Torque,
    VolumeFlow,
    Volume,
};

/// The engine's codes for m_uchUnitId, and for the setting groups that choose it for all items.
enum class UnitSystem : unsigned char { Metric = 1, Imperial = 2 };

/// How a value is shown in a unit: shown = value x factor + offset.
struct ShownUnit {
    std::string name;
    double factor = 1;
    double offset = 0;
    unsigned char moreDecimals = 0;  ///< than the value itself has, so that its steps are still seen
};

/// The words of a unit that names two states, for 0 and for 1.
struct States {
    std::string_view unit;
    const char* off;
    const char* on;
};

/// Null for a unit that doesn't name two states.
const States* FindStates(std::string_view tableUnit);

/// The units that values are shown in, as the unit conversion messages choose them.
class UnitSettings {
public:
    /// The kind of quantity of a unit that an item table names.
    static Genre GenreOf(std::string_view tableUnit);

    /// How a value in `tableUnit` is shown. A unit not known here is shown as the table has it.
    ShownUnit For(std::string_view tableUnit) const;

    // Each fills `answer`, a message fresh from its constructor, as `request` asks.
    void Answer(const CKRMCGetUnitConversionInfoListUccAdaptDataSnd& request,
                CKRMCGetUnitConversionInfoListUccAdaptDataRcv& answer) const;
    void Answer(const CKRMCGetUnitSettingGroupListUccAdaptDataSnd& request,
                CKRMCGetUnitSettingGroupListUccAdaptDataRcv& answer) const;
    void Answer(const CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd& request,
                CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv& answer) const;
    void Answer(const CKRMCSetUnitConversionInfoUccAdaptDataSnd& request,
                CKRMCSetUnitConversionInfoUccAdaptDataRcv& answer);

private:
    std::map<Genre, UnitSystem> m_chosen;
};

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_UNITS_H_
