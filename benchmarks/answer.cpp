#include "benchmarks/answer.h"

#include <array>
#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

#include "benchmarks/answer_content.h"
#include "krm/fields/diag/trouble_codes.h"

namespace krm::bench {
namespace {

// As a vehicle answers: few texts, short values, names of a phrase's length. Both sides get them as `const char*`, as they
// come out of a words table.
const std::vector<CodeContent>& Contents() {
    static const std::vector<CodeContent> contents = [] {
        static constexpr std::array<const char*, 8> kCodeTexts = {"P0171", "C1201", "B1421", "U0100",
                                                                  "P0A0F", "P0300", "U0129", "C1511"};
        static constexpr std::array<const char*, 5> kNames = {
            "System Too Lean (Bank 1)", "Engine Control System Malfunction", "Solar Sensor Circuit (Passenger Side)",
            "Lost Communication with ECM/PCM \"A\"", "Random/Multiple Cylinder Misfire Detected"};
        static constexpr std::array<const char*, 3> kComments = {"see repair manual", "test failed",
                                                                 "confirmed in this trip"};
        static constexpr std::array<const char*, 4> kPhysical = {"123456.7", "98.25", "1045.50", "7"};
        static constexpr std::array<const char*, 4> kConverted = {"76712.4", "61.05", "649.64", "4"};
        std::vector<CodeContent> made;
        for (unsigned i = 0; i < 32; ++i) {
            const auto shown = [i](unsigned k) {
                return DispContent{1000 + i * 16 + k,  kPhysical[(i + k) % 4], kConverted[(i + k) % 4],
                                   1.25 * (i + 1) + k, 0.75 * (i + 2) + k + 1, 0x100 + i * 31 + k};
            };
            const auto item = [&](unsigned k, const char* name, const char* text, const char* unit) {
                ItemContent content{static_cast<unsigned short>(0x200 + i * 3 + k),
                                    name,
                                    text,
                                    unit,
                                    unit,
                                    shown(k),
                                    shown(k + 1),
                                    shown(k + 2),
                                    shown(k + 3),
                                    {}};
                content.patterns.push_back({300 + k, "not available", "not available", 255, 255, 255});
                return content;
            };
            CodeContent content{0x20000 + i * 257,
                                kCodeTexts[i % kCodeTexts.size()],
                                kNames[i % kNames.size()],
                                kComments[i % kComments.size()],
                                {item(0, "Trip time since the first detection", "trip counter", "min"),
                                 item(1, "Time after IG on", "at the time of detection", "sec"),
                                 item(2, "Type of clock", "source of the time stamp", "--")}};
            content.items[2].patterns.push_back({400, "internal clock", "internal clock", 1, 1, 1});
            content.items[2].patterns.push_back({401, "GPS clock (coordinated universal time)", "GPS clock", 2, 2, 2});
            content.items[2].patterns.push_back({402, "no clock", "no clock", 3, 3, 3});
            made.push_back(content);
        }
        return made;
    }();
    return contents;
}

// benchmarks/proto_answer.cpp fills the same field by field.

void Fill(CKRMCCommandDispData& record, const DispContent& content) {
    record.m_ulDataStringId = content.stringId;
    record.m_strDataPhys = content.physText;
    record.m_strData = content.text;
    record.m_dDataPhys = content.phys;
    record.m_dData = content.value;
    record.m_ulRawData = content.raw;
    record.m_ulDispReserved = 1;
    record.m_chIndex = 2;
    record.m_lIndex = 3;
    record.m_ulDispDataType = 4;
}

// Appends an empty element and gives it out to be filled in place.
template <class T>
T& Append(CKRMList<T>& list) {
    _SKRMPOSITION* position = list.AddTail(T());
    return list.GetNext(position);
}

void Fill(CKRMCCommandConversionData& record, const ItemContent& content) {
    record.m_lMul = 5;
    record.m_lDiv = 3;
    record.m_lOffset = -40;
    record.m_ushGenreId = 7;
    record.m_uchSigned = 1;
    record.m_ushBitLength = 16;
    record.m_ulConvReserved = 9;
    record.m_strDefaultPattern = "out of the specified range";
    Fill(record.m_cDataMax, content.most);
    Fill(record.m_cDataMin, content.least);
    Fill(record.m_cGraphMax, content.most);
    Fill(record.m_cGraphMin, content.least);
    for (const DispContent& pattern : content.patterns) {
        Fill(Append(record.m_cPatternDispList), pattern);
    }
}

void Fill(CKRMCCommandFFDData& record, const ItemContent& content) {
    record.m_ushId = content.id;
    record.m_ulNameId = content.id + 1000U;
    record.m_strName = content.name;
    record.m_strFFDText = content.text;
    record.m_ulUnitPhysId = 11;
    record.m_strUnitPhys = content.unitPhys;
    record.m_ulUnitId = 12;
    record.m_strUnit = content.unit;
    record.m_ulFFDReserved = 13;
    record.m_uchDataType = 14;
    record.m_uchDecPntCount = 2;
    record.m_uchUnitConvDecPntCount = 1;
    Fill(record.m_cConversionTbl, content);
    Fill(record.m_cResolutionData, content.resolution);
    Fill(Append(record.m_cDispDataList), content.shown);
    record.m_cDataLayout.m_ulPidNo = content.id + 2000U;
    record.m_cDataLayout.m_ulDataLen = 8;
    record.m_cDataLayout.m_uchEndian = 1;
    record.m_cDataLayout.m_ulByteNum = 2;
    record.m_cDataLayout.m_ulBytePos = 4;
    record.m_cDataLayout.m_ulBitMask = 0xFFFF;
}

void Fill(CKRMCCommandDTCData& record, const CodeContent& content) {
    record.m_uchDTCKind = 1;
    record.m_ulDTCCode = content.code;
    record.m_strDTC = content.text;
    record.m_ulDTCNameId = content.code + 1;
    record.m_strDTCName = content.name;
    record.m_ulDTCDivNameId = content.code + 2;
    record.m_strDTCDivName = "Powertrain";
    record.m_chFFDType = 3;
    record.m_uchFFDId = 4;
    record.m_strComment = content.comment;
    for (unsigned char number = 1; number <= 2; ++number) {
        record.m_uchSSRNo.AddTail(number);
        record.m_uchSDRNo.AddTail(number);
    }
    record.m_uchDTCType = 5;
    record.m_ulDTCTypeNameId = 6;
    record.m_strDTCTypeName = "Emission related";
    record.m_ulDTCTypeToolId = 7;
    record.m_strDTCTypeTool = "Emission";
    record.m_uchDTCStatus = 8;
    record.m_ulDTCStatusNameId = 9;
    record.m_strDTCStatusName = "Confirmed";
    record.m_ulDTCStatusToolId = 10;
    record.m_strDTCStatusTool = "Current";
    record.m_bTripTime = true;
    record.m_bFailTripTime = true;
    Fill(record.m_cTripTime, content.items[0]);
    record.m_bAfterIgOnTime = true;
    record.m_bFailAfterIgOnTime = true;
    Fill(record.m_cAfterIgOnTime, content.items[1]);
    record.m_ulOriginalCountId = 11;
    Fill(record.m_cClockType, content.items[2]);
    record.m_bStatusOfDTC = true;
    record.m_uchStatusOfDTC = 0x2F;
    record.m_ulDTCGroupId = 12;
}

void FillHead(Answer& answer) {
    answer.m_bNotSupport = true;
    answer.m_bDTCType = true;
    answer.m_ulReadynessStatus = 0x07E5;
}

/// Adds what `it` needs on the heap, at any depth.
template <class T>
void AddNeeded(T& it, std::size_t& bytes) {
    if constexpr (std::is_same_v<T, CKRMString>) {
        static const std::size_t inlineRoom = std::string().capacity();
        bytes += it.GetLength() > inlineRoom ? it.GetLength() + 1 : 0;
    } else if constexpr (krm::kIsList<T>) {
        struct Node {
            std::remove_cvref_t<decltype(it.GetAt(0))> element;
            void* next;
            void* prev;
        };
        for (auto& element : it) {
            bytes += sizeof(Node);
            AddNeeded(element, bytes);
        }
    } else if constexpr (std::is_class_v<T>) {
        krm::ForEachField(it, [&](std::string_view, auto& field) { AddNeeded(field, bytes); });
    }
}

}  // namespace

const CodeContent& ContentOf(unsigned variant, int code) {
    const std::vector<CodeContent>& contents = Contents();
    return contents[(variant + static_cast<unsigned>(code)) % contents.size()];
}

void Fill(Answer& answer, unsigned variant, int codes) {
    FillHead(answer);
    for (int i = 0; i < codes; ++i) {
        Fill(Append(answer.Data), ContentOf(variant, i));
    }
}

void FillByCopies(Answer& answer, unsigned variant, int codes) {
    FillHead(answer);
    for (int i = 0; i < codes; ++i) {
        CKRMCCommandDTCData code;
        Fill(code, ContentOf(variant, i));
        answer.Data.AddTail(code);
    }
}

std::size_t NeededBytes(Answer& answer) {
    std::size_t bytes = 0;
    AddNeeded(answer, bytes);
    return bytes;
}

}  // namespace krm::bench
