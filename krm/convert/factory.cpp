#include <algorithm>
#include <array>
#include <new>
#include <string_view>

#include "krm/convert/conversion_types.h"
#include "krm/convert/specialised.h"

namespace {

using Make = CKRMCCommandConvSignalData* (*)(const krm::ConversionType&);

/// Null when memory runs out.
template <class Converter>
CKRMCCommandConvSignalData* MakeOne(const krm::ConversionType&) {
    return new (std::nothrow) Converter;
}

template <>
CKRMCCommandConvSignalData* MakeOne<CKRMCCommandConvSignalDataChassis>(const krm::ConversionType& type) {
    return new (std::nothrow) CKRMCCommandConvSignalDataChassis(type.groupWidth, type.lastBitIsSign);
}

/// The classes by their names, which is how the table tells them.
struct Class {
    std::string_view name;
    Make make;
};

constexpr Class kClasses[] = {
#define KRM_CLASS(name)        \
    Class {                    \
#name, MakeOne < name> \
    }
    KRM_CLASS(CKRMCCommandConvSignalData),
    KRM_CLASS(CKRMCCommandConvSignalDataArrayHex),
    KRM_CLASS(CKRMCCommandConvSignalDataAscii),
    KRM_CLASS(CKRMCCommandConvSignalDataBcd),
    KRM_CLASS(CKRMCCommandConvSignalDataBin),
    KRM_CLASS(CKRMCCommandConvSignalDataChassis),
    KRM_CLASS(CKRMCCommandConvSignalDataDate),
    KRM_CLASS(CKRMCCommandConvSignalDataDate2),
    KRM_CLASS(CKRMCCommandConvSignalDataDiagCode),
    KRM_CLASS(CKRMCCommandConvSignalDataHex),
    KRM_CLASS(CKRMCCommandConvSignalDataHex2),
    KRM_CLASS(CKRMCCommandConvSignalDataIlluminance),
    KRM_CLASS(CKRMCCommandConvSignalDataIlluminanceMinMax),
    KRM_CLASS(CKRMCCommandConvSignalDataIncline),
    KRM_CLASS(CKRMCCommandConvSignalDataLatitude),
    KRM_CLASS(CKRMCCommandConvSignalDataLongitude),
    KRM_CLASS(CKRMCCommandConvSignalDataLsbPattern),
    KRM_CLASS(CKRMCCommandConvSignalDataMinMax),
    KRM_CLASS(CKRMCCommandConvSignalDataReversal),
    KRM_CLASS(CKRMCCommandConvSignalDataSoftwareVersion),
    KRM_CLASS(CKRMCCommandConvSignalDataSpecial2),
    KRM_CLASS(CKRMCCommandConvSignalDataSpecial3),
    KRM_CLASS(CKRMCCommandConvSignalDataStringPattern),
    KRM_CLASS(CKRMCCommandConvSignalDataTime),
    KRM_CLASS(CKRMCCommandConvSignalDataTime2),
    KRM_CLASS(CKRMCCommandConvSignalDataTimeHHMM),
    KRM_CLASS(CKRMCCommandConvSignalDataTimeHHMM2),
    KRM_CLASS(CKRMCCommandConvSignalDataTimeHHMM3),
#undef KRM_CLASS
};

constexpr bool IsListed(std::string_view className) {
    return std::ranges::find(kClasses, className, &Class::name) != std::end(kClasses);
}

// By name: the sanitizer for undefined behaviour takes the address of a function for no constant.
static_assert(IsListed(krm::kPlainNumber.className) &&
                  std::ranges::all_of(krm::kConversionTypes, IsListed, &krm::ConversionType::className),
              "the table of conversion types names a class that isn't listed here");

/// Of a class that is listed.
constexpr Make MakeOf(std::string_view className) {
    return std::ranges::find(kClasses, className, &Class::name)->make;
}

/// What makes the converter of each code.
struct Recipe {
    Make make;
    const krm::ConversionType* type;
};

constexpr auto kRecipes = [] {
    std::array<Recipe, 256> recipes{};
    recipes.fill({MakeOf(krm::kPlainNumber.className), &krm::kPlainNumber});
    for (const krm::ConversionType& type : krm::kConversionTypes) {
        recipes[type.code] = {MakeOf(type.className), &type};
    }
    return recipes;
}();

}  // namespace

CKRMCCommandConvSignalData* CKRMCCommandConvSignalData::CreateConverter(unsigned char uchConvType) {
    const Recipe& recipe = kRecipes[uchConvType];
    return recipe.make(*recipe.type);
}
