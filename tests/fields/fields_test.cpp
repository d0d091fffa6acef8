// Fields by name: how they are spelled, in which order they come, what a visitor gets.
#include "krm/fields/fields.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>
#include <cstring>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "krm/fields/all_fields.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/dump.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "tests/support/all_classes.h"
#include "tests/support/any_class.h"
#include "tests/support/fields.h"
#include "tests/support/not_under.h"

// A program's own classes: a record in a namespace, with a member of every kind; one nested in a message; and a message with
// a command of its own.
namespace paint {

class Layer : public krm::RecordOf<Layer> {
public:
    void Dump(const krm::RecordLines&) {}

    bool m_bDry = false;
    signed char m_chTone = 0;
    unsigned char m_uchGloss = 0;
    short m_shGrain = 0;
    unsigned short m_ushThickness = 0;
    krm_long m_lOffset = 0;
    krm_ulong m_ulCode = 0;
    krm_int64 m_llMixedAt = 0;
    double m_dWeight = 0;
    CKRMString m_strColour;
    unsigned char m_uchSpectrum[4] = {};
    CKRMList<unsigned short> m_ushBatchList;
    CKRMList<CKRMList<CKRMString>> m_cNoteLists;
    CKRMMap<CKRMString, CKRMString> m_cLabels;
};

class Answer : public krm::MessageOf<Answer, CKRMCBaseCmdAdaptDataRcv, krm::CommandName("ReadPaintCode", 900)> {
public:
    struct Plate {
        CKRMString m_strPaintCode;
    };

    void Dump(const krm::MessageLines&) {}

    Plate Data;
    CKRMList<Layer> m_cLayerList;
};

// A record that adds to another one lists the other's members too.
class Primer : public Layer {
public:
    bool m_bZinc = false;
};

}  // namespace paint

template <>
struct krm::Fields<paint::Layer>
    : krm::FieldList<&paint::Layer::m_bDry, &paint::Layer::m_chTone, &paint::Layer::m_uchGloss,
                     &paint::Layer::m_shGrain, &paint::Layer::m_ushThickness, &paint::Layer::m_lOffset,
                     &paint::Layer::m_ulCode, &paint::Layer::m_llMixedAt, &paint::Layer::m_dWeight,
                     &paint::Layer::m_strColour, &paint::Layer::m_uchSpectrum, &paint::Layer::m_ushBatchList,
                     &paint::Layer::m_cNoteLists, &paint::Layer::m_cLabels> {};
template <>
struct krm::Fields<paint::Answer::Plate> : krm::FieldList<&paint::Answer::Plate::m_strPaintCode> {};
template <>
struct krm::Fields<paint::Answer> : krm::FieldList<&paint::Answer::Data, &paint::Answer::m_cLayerList> {};
template <>
struct krm::Fields<paint::Primer> : krm::FieldList<&paint::Primer::m_bZinc, &paint::Primer::m_strColour> {};

namespace {

using krm::ElementOf;
using krm::Field;
using krm::ForEachField;
using krm::kFieldCount;
using krm::kFieldNames;
using krm::kValueKind;
using krm::ValueKind;

// How each kind of member is spelled.
static_assert(Field<&CKRMCCommandEcuData::m_ulEcuId>::name == "m_ulEcuId");
static_assert(Field<&CKRMCCommandEcuData::m_strEcuName>::name == "m_strEcuName");
static_assert(Field<&CKRMCCommandEcuGroupData::m_cEcuList>::name == "m_cEcuList");
static_assert(Field<&CKRMCStoredDataTimestamp::m_uchFirstStamp>::name == "m_uchFirstStamp");
static_assert(Field<&CKRMCGetPcViewerResourceVdcAdptDataRcv::m_cResourceMap>::name == "m_cResourceMap");
static_assert(Field<&CKRMCStoredDataSystemData::m_cDTC>::name == "m_cDTC");
static_assert(Field<&CKRMCGetDTCCmdAdaptDataRcv::Data>::name == "Data");
static_assert(Field<&CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd::EOPData::m_ulEOPData>::name == "m_ulEOPData");
static_assert(Field<&CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd::Data>::name == "Data");
static_assert(Field<&CKRMCBaseCmdAdaptDataRcv::m_bNotSupport>::name == "m_bNotSupport");
static_assert(Field<&CKRMCGetDTCCmdAdaptDataSnd::m_ulEcuId>::name == "m_ulEcuId", "a base's");
static_assert(Field<&CKRMError::a_strMessage>::name == "a_strMessage", "the platform's");
static_assert(Field<&paint::Layer::m_dWeight>::name == "m_dWeight", "in a namespace");
static_assert(Field<&paint::Answer::Plate::m_strPaintCode>::name == "m_strPaintCode");

// What a field knows of itself.
static_assert(std::is_same_v<Field<&CKRMCCommandEcuData::m_ulEcuId>::Class, CKRMCCommandEcuData>);
static_assert(std::is_same_v<Field<&CKRMCCommandEcuData::m_ulEcuId>::Type, krm_ulong>);
static_assert(std::is_same_v<Field<&CKRMCGetDTCCmdAdaptDataSnd::m_ulEcuId>::Class, CKRMCBaseCmdAdaptDataSnd>);
static_assert(Field<&CKRMCCommandEcuData::m_ulEcuId>::pointer == &CKRMCCommandEcuData::m_ulEcuId);

// How classes are spelled.
static_assert(krm::kClassName<CKRMCCommandEcuData> == "CKRMCCommandEcuData");
static_assert(krm::kClassName<CKRMCGetHelpInfoVdcAdptDataSnd> == "CKRMCGetHelpInfoVdcAdptDataSnd");
static_assert(krm::kClassName<CKRMCStoredDataXPos> == "CKRMCStoredDataXPos");
static_assert(krm::kClassName<CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd::EOPData> ==
              "CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd::EOPData");
static_assert(krm::kClassName<paint::Answer::Plate> == "paint::Answer::Plate");

struct NobodysFields {
    int m_number;
};
static_assert(krm::HasFields<CKRMCCommandEcuData> && krm::HasFields<CKRMCCreateDiagWordsTableDwtAdaptDataRcv>);
static_assert(!krm::HasFields<NobodysFields> && !krm::HasFields<int> && !krm::HasFields<CKRMString>);
static_assert(kFieldCount<CKRMCCommandEcuData> == 7 && kFieldCount<CKRMCGetDTCCmdAdaptDataRcv> == 4);
static_assert(kFieldCount<CKRMCCreateDiagWordsTableDwtAdaptDataRcv> == 0);

TEST(FieldNames, HaveAnEnd) {
    EXPECT_EQ(std::strlen(Field<&CKRMCGetDTCCmdAdaptDataRcv::Data>::name.data()), 4U);
    EXPECT_EQ(std::strlen(Field<&CKRMError::a_strMessage>::name.data()), 12U);
}

// Classes of every header, as their declarations have them.

using Names = std::vector<std::string_view>;

template <class Class>
Names NamesOf() {
    return {kFieldNames<Class>.begin(), kFieldNames<Class>.end()};
}

TEST(FieldNames, OfTheBases) {
    EXPECT_EQ(NamesOf<CKRMCBaseCmdAdaptDataSnd>(), (Names{"m_ulEcuId"}));
    EXPECT_EQ(NamesOf<CKRMCBaseCmdAdaptDataRcv>(), (Names{"m_bNotSupport"}));
    EXPECT_EQ(NamesOf<CKRMCBaseVdcAdaptDataSnd>(), (Names{"m_ulVdcSndValue"}));
    EXPECT_EQ(NamesOf<CKRMCBaseDsdiAdaptDataSnd>(), (Names{"m_ulEcuId"}));
    EXPECT_EQ(NamesOf<CKRMCBaseVdcAdaptDataRcv>(), (Names{}));
    EXPECT_EQ(NamesOf<CKRMCBaseDsdiAdaptDataRcv>(), (Names{}));
    EXPECT_EQ(NamesOf<CKRMCBaseUccAdaptDataSnd>(), (Names{}));
    EXPECT_EQ(NamesOf<CKRMCBaseUccAdaptDataRcv>(), (Names{}));
    EXPECT_EQ(NamesOf<CKRMCBaseDwtAdaptDataSnd>(), (Names{}));
    EXPECT_EQ(NamesOf<CKRMCBaseDwtAdaptDataRcv>(), (Names{}));
}

TEST(FieldNames, OfThePlatformsError) {
    EXPECT_EQ(NamesOf<CKRMError>(), (Names{"a_ulReturnCode", "a_strErrorModuleName", "a_strErrorClassName",
                                           "a_strErrorFunctionName", "a_strErrorFunctionArgs", "a_strMessage"}));
}

TEST(FieldNames, OfMessagesBeginWithTheirBases) {
    EXPECT_EQ(NamesOf<CKRMCGetDTCCmdAdaptDataSnd>(), (Names{"m_ulEcuId", "m_uchPhaseType", "m_uchGetFFDType"}));
    EXPECT_EQ(NamesOf<CKRMCGetDTCCmdAdaptDataRcv>(),
              (Names{"m_bNotSupport", "Data", "m_bDTCType", "m_ulReadynessStatus"}));
    EXPECT_EQ(NamesOf<CKRMCClearDTCCmdAdaptDataSnd>(), (Names{"m_ulEcuId"}));
    EXPECT_EQ(NamesOf<CKRMCCreateViewerDataCtrlVdcAdaptDataSnd>(),
              (Names{"m_ulVdcSndValue", "m_strDataName", "m_strLanguage"}));
    EXPECT_EQ(NamesOf<CKRMCCreateViewerDataCtrlVdcAdaptDataRcv>(), (Names{}));
    EXPECT_EQ(NamesOf<CKRMCGetImportFileInfoDsdiAdaptDataSnd>(), (Names{"m_ulEcuId", "m_strPath", "m_ulFileType"}));
    EXPECT_EQ(NamesOf<CKRMCGetImportFileInfoDsdiAdaptDataRcv>(), (Names{"Data"}));
    EXPECT_EQ(NamesOf<CKRMCSetUnitConversionInfoUccAdaptDataSnd>(), (Names{"Data"}));
    EXPECT_EQ(NamesOf<CKRMCGetTranslationStringDwtAdaptDataSnd>(), (Names{"m_ulIdList"}));
}

TEST(FieldNames, OfTheDiagnosticCommandsClasses) {
    EXPECT_EQ(NamesOf<CKRMCCommandButtonData>(), (Names{"m_ulSpecialDriveType", "m_ulCaptionId", "m_strCaption",
                                                        "m_ulPressRawData", "m_ulReleaseRawData", "m_uchInvalidFlag"}));
    EXPECT_EQ(NamesOf<CKRMCCommandCanBusCategoryInfo>(),
              (Names{"m_ulEcuId", "m_ulEcuNameId", "m_strEcuName", "m_ulCategoryId", "m_uchHistPidSupport"}));
    EXPECT_EQ(NamesOf<CKRMCCommandCancelCodeData>(),
              (Names{"m_uchKind", "m_uchStatus", "m_ulCode", "m_strCode", "m_ulExplanationId", "m_strExplanation",
                     "m_bTripCount", "m_cTripCount", "m_bTimeCount", "m_cTimeCount", "m_bTripGroup", "m_cTripGroup",
                     "m_bOccurrenceCount", "m_cOccurrenceCount", "m_bMainUnitTemperature", "m_cMainUnitTemperature",
                     "m_bCameraUnitTemperature", "m_cCameraUnitTemperature"}));
    EXPECT_EQ(NamesOf<CKRMCCommandCustomizeItemValue>(),
              (Names{"m_strDispName", "m_ulDispNameId", "m_ushCustomizeValue", "m_uchCustomizeValueList"}));
    EXPECT_EQ(NamesOf<CKRMCCommandWriteData>(), (Names{"m_ushId", "m_uchType", "m_ulData"}));
    EXPECT_EQ(NamesOf<CKRMCCommandTriggerData>(),
              (Names{"m_ushTriggerItemId", "m_ulNameId", "m_strName", "m_ushPidId", "m_cBeginCondition",
                     "m_uchSlopeCondition", "m_cTriggerCondition", "m_uchSlopeDef", "m_cResolutionData"}));
    EXPECT_EQ(NamesOf<CKRMCCommandDmErrorData>(), (Names{"m_ushType", "m_cError", "m_ulHelpId1", "m_ulHelpId2"}));
    EXPECT_EQ(NamesOf<CKRMCCommandDataLayout>(),
              (Names{"m_ulPidNo", "m_ulDataLen", "m_uchEndian", "m_ulByteNum", "m_ulBytePos", "m_ulBitMask"}));
    EXPECT_EQ(NamesOf<CKRMCCommandEventRecordDataItem>(),
              (Names{"m_ushEventRecordDataItemId", "m_ulEventRecordDataItemNameId", "m_strEventRecordDataItemName",
                     "m_bRecordData"}));
    EXPECT_EQ(
        NamesOf<CKRMCCommandFFDData>(),
        (Names{"m_ushId", "m_ulNameId", "m_strName", "m_strFFDText", "m_ulUnitPhysId", "m_strUnitPhys", "m_ulUnitId",
               "m_strUnit", "m_ulFFDReserved", "m_uchDataType", "m_uchDecPntCount", "m_uchUnitConvDecPntCount",
               "m_cConversionTbl", "m_cResolutionData", "m_cDispDataList", "m_cDataLayout"}));
    EXPECT_EQ(NamesOf<CKRMCAbsoluteTimeInfo>(),
              (Names{"m_cTripTime", "m_cInternalClock", "m_cGPSTimeYear", "m_cGPSTimeMonth", "m_cGPSTimeDay",
                     "m_cGPSTimeHour", "m_cGPSTimeMinute", "m_cGPSTimeSecond", "m_cTimeDifferenceSign",
                     "m_cTimeDifferenceHour", "m_cTimeDifferenceMinute", "m_cDST"}));
    EXPECT_EQ(NamesOf<CKRMCCommandJ2534Config>(), (Names{"m_ulParameter", "m_ulValue"}));
    EXPECT_EQ(NamesOf<CKRMCWriteMemoryCmdAdaptDataSnd>(), (Names{"m_ulEcuId", "m_ulAddress", "m_uchData"}));
    EXPECT_EQ(NamesOf<CKRMCCommandOnBoardMonitorInfo>(),
              (Names{"m_ushId", "m_strName", "m_ulDescriptionId", "m_strDescription", "m_strScalingId",
                     "m_ulUnitPhysId", "m_strUnitPhys", "m_ulUnitId", "m_strUnit", "m_uchDataType", "m_uchDecPntCount",
                     "m_uchUnitConvDecPntCount", "m_cConversionTbl", "m_cTestValData", "m_cTestMinData",
                     "m_cTestMaxData", "m_bResult"}));
    EXPECT_EQ(NamesOf<CKRMCCommandOscInfo>(), (Names{"m_ushChId", "m_ulVolId"}));
    EXPECT_EQ(NamesOf<CKRMCCommandOscTimeInfo>(),
              (Names{"m_ushTimeId", "m_ulSamplingHz", "m_ulRecordTime", "m_bSyncFlag"}));
    EXPECT_EQ(NamesOf<CKRMCSpGroup>(), (Names{"m_ushGroupId", "m_ulGroupNameId", "m_strGroupName"}));
    EXPECT_EQ(NamesOf<CKRMCCommandTranslationStringData>(), (Names{"m_ulId", "m_strString"}));
    EXPECT_EQ(NamesOf<CKRMCCommandDTCData>(),
              (Names{"m_uchDTCKind",        "m_ulDTCCode",         "m_strDTC",
                     "m_ulDTCNameId",       "m_strDTCName",        "m_ulDTCDivNameId",
                     "m_strDTCDivName",     "m_chFFDType",         "m_uchFFDId",
                     "m_strComment",        "m_uchSSRNo",          "m_uchSDRNo",
                     "m_uchDTCType",        "m_ulDTCTypeNameId",   "m_strDTCTypeName",
                     "m_ulDTCTypeToolId",   "m_strDTCTypeTool",    "m_uchDTCStatus",
                     "m_ulDTCStatusNameId", "m_strDTCStatusName",  "m_ulDTCStatusToolId",
                     "m_strDTCStatusTool",  "m_bTripTime",         "m_bFailTripTime",
                     "m_cTripTime",         "m_bAfterIgOnTime",    "m_bFailAfterIgOnTime",
                     "m_cAfterIgOnTime",    "m_ulOriginalCountId", "m_cClockType",
                     "m_bStatusOfDTC",      "m_uchStatusOfDTC",    "m_ulDTCGroupId"}));
    EXPECT_EQ(NamesOf<CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd>(), (Names{"m_ulEcuId", "Data"}));
    EXPECT_EQ(NamesOf<CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd::EOPData>(), (Names{"m_ulEOPData"}));
    EXPECT_EQ(NamesOf<CKRMCCommandCustomListData>(),
              (Names{"m_strFileName", "m_strName", "m_ushDataType", "m_ushSortIndex", "m_uchInitialDispFlag"}));
    EXPECT_EQ(NamesOf<CKRMCCommandEcuData>(),
              (Names{"m_ushEcuConnectionStatus", "m_ulEcuId", "m_ushBusId", "m_uchPhaseType", "m_ulEcuNameId",
                     "m_strEcuName", "m_strEcuShortName"}));
    EXPECT_EQ(NamesOf<CKRMCEcuConnectCmdAdaptDataRcv>(),
              (Names{"m_bNotSupport", "m_bConnect", "m_ulEcuId", "m_ushBusId", "m_uchPhaseType", "m_ulDescriptionId",
                     "m_strDescription"}));
    EXPECT_EQ(NamesOf<CKRMCCommandWordsData>(), (Names{"m_ulWordsId", "m_strWords"}));
}

TEST(FieldNames, OfTheAuxiliaryFamiliesClasses) {
    EXPECT_EQ(NamesOf<CKRMCStoredDataFFD>(), (Names{"m_ushFFDNo", "m_uchFFDId", "m_uchFFDType", "m_uchSubFunction",
                                                    "m_cFirstFFD", "m_cSecondFFD", "m_cDiagDetail"}));
    EXPECT_EQ(NamesOf<CKRMCStoredDataTimestamp>(), (Names{"m_uchFirstStamp", "m_uchSecondStamp"}));
    EXPECT_EQ(NamesOf<CKRMCUnitConvDataItemInfo>(), (Names{"m_uchItemId", "m_strItemName", "m_cUnitList"}));
    EXPECT_EQ(NamesOf<CKRMCGetPcViewerResourceVdcAdptDataRcv>(), (Names{"m_strResourceName", "m_cResourceMap"}));
    EXPECT_EQ(NamesOf<CKRMCDiagWordsTableCreationData>(), (Names{"m_ushIdType", "m_strValue"}));
}

TEST(ForEachField, GivesTheFieldsThemselves) {
    CKRMCGetDTCCmdAdaptDataRcv answer;
    std::vector<const void*> fields;
    ForEachField(answer, [&](std::string_view, auto& field) { fields.push_back(&field); });
    EXPECT_EQ(fields, (std::vector<const void*>{&answer.m_bNotSupport, &answer.Data, &answer.m_bDTCType,
                                                &answer.m_ulReadynessStatus}));
    ForEachField(answer, [](std::string_view name, auto& field) {
        if constexpr (std::is_same_v<decltype(field), krm_ulong&>) {
            EXPECT_EQ(name, "m_ulReadynessStatus");
            field = 0x07E5;
        }
    });
    EXPECT_EQ(answer.m_ulReadynessStatus, 0x07E5U);
}

TEST(ForEachField, GivesConstFieldsOfAConstObject) {
    const CKRMCStoredDataTimestamp stamp;
    std::vector<const void*> fields;
    ForEachField(stamp, [&](std::string_view, auto& field) {
        static_assert(std::is_same_v<decltype(field), const unsigned char(&)[7]>);
        fields.push_back(&field);
    });
    EXPECT_EQ(fields, (std::vector<const void*>{&stamp.m_uchFirstStamp, &stamp.m_uchSecondStamp}));
    const CKRMCGetFFDCmdAdaptDataRcv answer;
    ForEachField(answer, [](std::string_view, auto& field) {
        static_assert(std::is_const_v<std::remove_reference_t<decltype(field)>>);
    });
}

TEST(ForEachField, GoesThroughTwoObjectsAtOnce) {
    CKRMCCommandEcuData left;
    CKRMCCommandEcuData right;
    right.m_ushBusId = 3;
    right.m_strEcuShortName = "ABS";
    const CKRMCCommandEcuData& constant = right;
    Names different;
    ForEachField<CKRMCCommandEcuData>([&](auto field) {
        static_assert(std::is_same_v<decltype(field.In(left)), typename decltype(field)::Type&>);
        static_assert(std::is_same_v<decltype(field.In(constant)), const typename decltype(field)::Type&>);
        if constexpr (std::is_integral_v<typename decltype(field)::Type>) {
            if (field.In(left) != field.In(constant)) {
                different.push_back(field.name);
            }
        } else if (field.In(constant).Compare(field.In(left).GetText()) != 0) {
            different.push_back(field.name);
        }
    });
    EXPECT_EQ(different, (Names{"m_ushBusId", "m_strEcuShortName"}));
}

TEST(ForEachField, OfAProgramsOwnClasses) {
    EXPECT_EQ(NamesOf<paint::Answer>(), (Names{"m_bNotSupport", "Data", "m_cLayerList"}));
    EXPECT_EQ(NamesOf<paint::Answer::Plate>(), (Names{"m_strPaintCode"}));
    EXPECT_EQ(NamesOf<paint::Primer>(), (Names{"m_bZinc", "m_strColour"}));
    paint::Primer primer;
    primer.m_strColour = "grey";
    std::string texts;
    ForEachField(primer, [&](std::string_view, const auto& field) {
        if constexpr (kValueKind<std::remove_cvref_t<decltype(field)>> == ValueKind::Text) {
            texts += field.GetText();
        }
    });
    EXPECT_EQ(texts, "grey");
}

TEST(ValueKinds, AreThoseOfTheTypes) {
    std::vector<ValueKind> kinds;
    std::vector<std::size_t> sizes;
    ForEachField<paint::Layer>([&](auto field) {
        kinds.push_back(kValueKind<typename decltype(field)::Type>);
        sizes.push_back(sizeof(typename decltype(field)::Type));
    });
    EXPECT_EQ(kinds, (std::vector<ValueKind>{ValueKind::Bool, ValueKind::Signed, ValueKind::Unsigned, ValueKind::Signed,
                                             ValueKind::Unsigned, ValueKind::Signed, ValueKind::Unsigned,
                                             ValueKind::Signed, ValueKind::Double, ValueKind::Text, ValueKind::Array,
                                             ValueKind::List, ValueKind::List, ValueKind::Map}));
    sizes.resize(9);
    EXPECT_EQ(sizes, (std::vector<std::size_t>{1, 1, 1, 2, 2, 4, 4, 8, 8}));
    static_assert(kValueKind<paint::Layer> == ValueKind::Record && kValueKind<CKRMError> == ValueKind::Record);
    static_assert(kValueKind<CKRMCGetFFDCmdAdaptDataRcv> == ValueKind::Record, "a message that another one holds");
    static_assert(std::is_same_v<ElementOf<CKRMList<CKRMCCommandEcuData>>, CKRMCCommandEcuData>);
    static_assert(std::is_same_v<ElementOf<CKRMList<CKRMList<CKRMString>>>, CKRMList<CKRMString>>);
    static_assert(std::is_same_v<ElementOf<unsigned char[16]>, unsigned char>);
}

// Every class has its fields (that they are all, in order, say the tests of completeness), each with a name of its own.
TEST(EveryClass, HasFieldsOfDifferentNames) {
#define KRM_LISTED(Class, ...) {krm::kClassName<Class>, #Class},
    constexpr std::string_view kClasses[][2] = {KRM_ALL_MESSAGES(KRM_LISTED) KRM_ALL_LIST_ELEMENTS(KRM_LISTED)};
#undef KRM_LISTED
    for (const auto& [className, listed] : kClasses) {
        EXPECT_EQ(className, listed);
        const krm::TypeDescription* const type = krm::test::FindType(listed);
        ASSERT_NE(type, nullptr) << listed;
        std::set<std::string_view> names;
        for (const krm::FieldDescription& field : type->fields) {
            EXPECT_TRUE(std::all_of(field.name.begin(), field.name.end(),
                                    [](unsigned char c) { return std::isalnum(c) != 0 || c == '_'; }))
                << listed << ' ' << field.name;
            EXPECT_NE(field.name, "");
            EXPECT_TRUE(names.insert(field.name).second) << listed << ' ' << field.name;
        }
    }
}

// The classes that no list of the library holds: their fields are all that they have, too.

/// What ExpectFieldsFillTheObject asks for.
template <class Class>
krm::test::AnyClass PlacesOf() {
    krm::test::AnyClass any{};
    any.type = &krm::kTypeDescription<Class>;
    any.make = &krm::test::Make<Class>;
    any.destroy = &krm::test::Destroy<Class>;
    any.alignments = krm::test::kAlignments<Class>;
    any.size = sizeof(Class);
    any.alignment = alignof(Class);
    return any;
}

TEST(OtherClasses, ErrorHasItsFieldsInOrderAndNoOther) {
    KRM_NOT_UNDER(OtherPlatform, "its error may have its fields in another order, and fields of its own");
    krm::test::ExpectFieldsFillTheObject(PlacesOf<CKRMError>(), sizeof(void*));
}

TEST(OtherClasses, HaveTheirFieldsInOrderAndNoOther) {
    krm::test::ExpectFieldsFillTheObject(PlacesOf<CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd::EOPData>(), 0);
}

template <class Base>
void ExpectFieldsFillTheBase() {
    krm::test::AnyClass any = PlacesOf<Base>();
    if constexpr (krm::Fields<Base>::kCount != 0) {
        any.firstPlace = &krm::test::PlaceBehind<CKRMBaseAdaptationData, krm::test::kAlignments<Base>[0]>;
    }
    krm::test::ExpectFieldsFillTheObject(any, sizeof(CKRMBaseAdaptationData));
}

TEST(TheBases, HaveTheirFieldsInOrderAndNoOther) {
    ExpectFieldsFillTheBase<CKRMCBaseCmdAdaptDataSnd>();
    ExpectFieldsFillTheBase<CKRMCBaseCmdAdaptDataRcv>();
    ExpectFieldsFillTheBase<CKRMCBaseVdcAdaptDataSnd>();
    ExpectFieldsFillTheBase<CKRMCBaseVdcAdaptDataRcv>();
    ExpectFieldsFillTheBase<CKRMCBaseDsdiAdaptDataSnd>();
    ExpectFieldsFillTheBase<CKRMCBaseDsdiAdaptDataRcv>();
    ExpectFieldsFillTheBase<CKRMCBaseUccAdaptDataSnd>();
    ExpectFieldsFillTheBase<CKRMCBaseUccAdaptDataRcv>();
    ExpectFieldsFillTheBase<CKRMCBaseDwtAdaptDataSnd>();
    ExpectFieldsFillTheBase<CKRMCBaseDwtAdaptDataRcv>();
}

}  // namespace
