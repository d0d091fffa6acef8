#include "units.h"

#include <algorithm>

namespace diagnosis_session {
namespace {

struct TableUnit {
    std::string_view name;
    const char* written;
    Genre genre = Genre::None;
};
constexpr TableUnit kTableUnits[] = {
    {"percent", "%"},
    {"celsius", "°C", Genre::Temperature},
    {"kilometersPerHour", "km/h", Genre::Speed},
    {"kilometers", "km", Genre::Distance},
    {"kilopascal", "kPa", Genre::Pressure},
    {"pascal", "Pa", Genre::LowPressure},
    {"gramsPerSecond", "g/s", Genre::MassFlow},
    {"kilogramsPerHour", "kg/h", Genre::LargeMassFlow},
    {"newtonMeters", "N·m", Genre::Torque},
    {"litersPerHour", "L/h", Genre::VolumeFlow},
    {"liters", "L", Genre::Volume},
    {"rpm", "rpm"},
    {"volts", "V"},
    {"millivolts", "mV"},
    {"amps", "A"},
    {"milliamps", "mA"},
    {"degrees", "°"},
    {"seconds", "s"},
    {"minutes", "min"},
    {"hours", "h"},
    {"hertz", "Hz"},
    {"ohms", "Ω"},
    {"watts", "W"},
    {"kilowatts", "kW"},
    {"kilowattHours", "kWh"},
    {"ampereHours", "Ah"},
    {"meters", "m"},
    {"bars", "bar"},
    {"grams", "g"},
    {"milligramsPerStroke", "mg/stroke"},
    // These say how the value is to be read, and have nothing to write behind it.
    {"scalar", ""},
    {"hex", ""},
    {"dtc", ""},
    {"offon", ""},
    {"onoff", ""},
    {"noyes", ""},
    {"yesno", ""},
};

struct Quantity {
    Genre genre;
    const char* name;
    const char* metric;
    const char* imperial;
    double factor;
    double offset = 0;
    unsigned char moreDecimals = 0;
};
constexpr Quantity kQuantities[] = {
    {Genre::Temperature, "temperature", "°C", "°F", 1.8, 32},
    {Genre::Speed, "speed", "km/h", "mph", 0.621371192, 0, 1},
    {Genre::Distance, "distance", "km", "mi", 0.621371192, 0, 1},
    {Genre::Pressure, "pressure", "kPa", "psi", 0.145037738, 0, 1},
    {Genre::LowPressure, "low pressure", "Pa", "inH2O", 0.00401463076, 0, 2},
    {Genre::MassFlow, "mass flow", "g/s", "lb/min", 0.132277357, 0, 1},
    {Genre::LargeMassFlow, "large mass flow", "kg/h", "lb/h", 2.20462262},
    {Genre::Torque, "torque", "N·m", "lb·ft", 0.737562149, 0, 1},
    {Genre::VolumeFlow, "volume flow", "L/h", "gal/h", 0.264172052, 0, 1},
    {Genre::Volume, "volume", "L", "gal", 0.264172052, 0, 1},
};

const TableUnit* FindUnit(std::string_view name) {
    const auto* const found = std::find_if(std::begin(kTableUnits), std::end(kTableUnits),
                                           [&](const TableUnit& unit) { return unit.name == name; });
    return found == std::end(kTableUnits) ? nullptr : found;
}

CKRMCUnitConversionData UnitRecord(UnitSystem system, const char* name) {
    CKRMCUnitConversionData record;
    record.m_uchUnitId = static_cast<unsigned char>(system);
    record.m_strUnitName = name;
    return record;
}

constexpr States kStates[] = {
    {"offon", "off", "on"}, {"onoff", "on", "off"}, {"noyes", "no", "yes"}, {"yesno", "yes", "no"}};

}  // namespace

const States* FindStates(std::string_view tableUnit) {
    const auto* const found = std::find_if(std::begin(kStates), std::end(kStates),
                                           [&](const States& states) { return states.unit == tableUnit; });
    return found == std::end(kStates) ? nullptr : found;
}

Genre UnitSettings::GenreOf(std::string_view tableUnit) {
    const TableUnit* const unit = FindUnit(tableUnit);
    return unit == nullptr ? Genre::None : unit->genre;
}

ShownUnit UnitSettings::For(std::string_view tableUnit) const {
    const TableUnit* const unit = FindUnit(tableUnit);
    if (unit == nullptr) {
        return {std::string(tableUnit)};
    }
    const auto chosen = m_chosen.find(unit->genre);
    if (chosen != m_chosen.end() && chosen->second == UnitSystem::Imperial) {
        const auto* const quantity =
            std::find_if(std::begin(kQuantities), std::end(kQuantities),
                         [&](const Quantity& candidate) { return candidate.genre == unit->genre; });
        if (quantity != std::end(kQuantities)) {
            return {quantity->imperial, quantity->factor, quantity->offset, quantity->moreDecimals};
        }
    }
    return {unit->written};
}

void UnitSettings::Answer(const CKRMCGetUnitConversionInfoListUccAdaptDataSnd&,
                          CKRMCGetUnitConversionInfoListUccAdaptDataRcv& answer) const {
    for (const Quantity& quantity : kQuantities) {
        CKRMCUnitConvDataItemInfo item;
        item.m_uchItemId = static_cast<unsigned char>(quantity.genre);
        item.m_strItemName = quantity.name;
        item.m_cUnitList.AddTail(UnitRecord(UnitSystem::Metric, quantity.metric));
        item.m_cUnitList.AddTail(UnitRecord(UnitSystem::Imperial, quantity.imperial));
        answer.Data.AddTail(item);
    }
}

void UnitSettings::Answer(const CKRMCGetUnitSettingGroupListUccAdaptDataSnd&,
                          CKRMCGetUnitSettingGroupListUccAdaptDataRcv& answer) const {
    for (const auto& [system, name] :
         {std::pair{UnitSystem::Metric, "metric"}, std::pair{UnitSystem::Imperial, "imperial"}}) {
        CKRMCUnitConversionData group;
        group.m_uchGroupId = static_cast<unsigned char>(system);
        group.m_strGroupName = name;
        answer.Data.AddTail(group);
    }
}

void UnitSettings::Answer(const CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd& request,
                          CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv& answer) const {
    for (const CKRMCUnitConversionData& wanted : request.Data) {
        CKRMCUnitConvDataSettingInfo group;
        group.m_uchGroupId = wanted.m_uchGroupId;
        for (const Quantity& quantity : kQuantities) {
            CKRMCUnitConversionData setting;
            setting.m_uchItemId = static_cast<unsigned char>(quantity.genre);
            setting.m_uchUnitId = wanted.m_uchGroupId;
            group.m_cSettingList.AddTail(setting);
        }
        answer.Data.AddTail(group);
    }
}

void UnitSettings::Answer(const CKRMCSetUnitConversionInfoUccAdaptDataSnd& request,
                          CKRMCSetUnitConversionInfoUccAdaptDataRcv& answer) {
    for (const CKRMCUnitConversionData& wanted : request.Data) {
        m_chosen[static_cast<Genre>(wanted.m_uchItemId)] = static_cast<UnitSystem>(wanted.m_uchUnitId);
        CKRMCUnitConversionData set;
        set.m_ushGenreId = wanted.m_uchItemId;
        set.m_uchUnitId = wanted.m_uchUnitId;
        answer.Data.AddTail(set);
    }
}

}  // namespace diagnosis_session
