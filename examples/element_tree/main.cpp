// Builds a description of a vehicle as an element tree, searches it by attribute and prints it.
//
// What the vehicle says comes from the engine of the diagnosis session, which reads a recording; here its answers become
// elements:
//
//     Vehicle Vin
//       Ecu Id Name
//         Dtc Code Kind Text
//         Value Id Value Unit
//         FreezeFrame Number
//           Value Id Value Unit
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "../diagnosis_session/complaints.h"
#include "../diagnosis_session/engine.h"
#include "../diagnosis_session/exchange.h"
#include "../diagnosis_session/item_table.h"
#include "../diagnosis_session/received.h"
#include "krm/tree/element.h"
#include "krm/tree/element_group.h"

namespace {

using diagnosis_session::DiagnosisEngine;
using diagnosis_session::DtcPhase;
using diagnosis_session::Exchange;
using diagnosis_session::Received;

// ---- What the tree needs ----

/// Every operation of the tree reports through an error object; here a failure ends the program.
void Check(const CKRMError& error) {
    if (error.GetErrorCode() != 0) {
        throw std::runtime_error("the tree reports error " + std::to_string(error.GetErrorCode()));
    }
}

CKRMCElement& AddElement(CKRMCElement& parent, const char* name) {
    CKRMError error;
    CKRMCElement* const element = parent.CreateElement(&error, name);
    Check(error);
    return *element;
}

/// Sets the attribute `name`, which is created where it is missing. `Value` decides its type.
template <class Value>
void SetAttribute(CKRMCElement& element, const char* name, Value value) {
    CKRMError error;
    CKRMCAttribute* const attribute = element.CreateAttribute(&error, name);
    Check(error);
    attribute->SetValue(&error, value);
    Check(error);
}

/// The child `name` whose attribute has the name and the value of `wanted`; null where there is none.
CKRMCElement* FindElement(CKRMCElement& parent, const char* name, CKRMCAttribute* wanted) {
    CKRMError error;
    CKRMCElement* const found = parent.GetElementByAttribute(&error, name, wanted);
    Check(error);
    return found;
}

/// That child, created where it is missing.
template <class Value>
CKRMCElement& FindOrAddElement(CKRMCElement& parent, const char* name, const char* attribute, Value value) {
    CKRMCAttribute wanted(attribute, value);
    CKRMCElement* element = FindElement(parent, name, &wanted);
    if (element == nullptr) {
        element = &AddElement(parent, name);
        SetAttribute(*element, attribute, value);
    }
    return *element;
}

// ---- Answers into elements ----

void AddEcus(DiagnosisEngine& engine, CKRMCElement& vehicle) {
    CKRMCGetGroupEcuListCmdAdaptDataSnd request;
    CKRMCGetGroupEcuListCmdAdaptDataRcv answer;
    engine.Answer(request, answer);
    for (const CKRMCCommandEcuGroupData& group : answer.Data) {
        for (const CKRMCCommandEcuData& data : group.m_cEcuList) {
            CKRMCElement& ecu = FindOrAddElement(vehicle, "Ecu", "Id", data.m_ulEcuId);
            SetAttribute(ecu, "Name", data.m_strEcuName.GetText());
        }
    }
}

void AddVin(DiagnosisEngine& engine, krm_ulong ecuId, CKRMCElement& vehicle) {
    CKRMCGetVinCodeCmdAdaptDataSnd request;
    request.m_ulEcuId = ecuId;
    CKRMCGetVinCodeCmdAdaptDataRcv answer;
    engine.Answer(request, answer);
    SetAttribute(vehicle, "Vin", answer.m_strVinCode.GetText());
}

/// A code stays in the description when it is cleared later in the recording.
void AddTroubleCodes(DiagnosisEngine& engine, krm_ulong ecuId, DtcPhase phase, CKRMCElement& ecu) {
    CKRMCGetDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = ecuId;
    request.m_uchPhaseType = static_cast<unsigned char>(phase);
    CKRMCGetDTCCmdAdaptDataRcv answer;
    engine.Answer(request, answer);
    for (const CKRMCCommandDTCData& code : answer.Data) {
        CKRMCElement& dtc = AddElement(ecu, "Dtc");
        SetAttribute(dtc, "Code", code.m_strDTC.GetText());
        SetAttribute(dtc, "Kind", code.m_strDTCTypeName.GetText());
        SetAttribute(dtc, "Text", code.m_strDTCName.GetText());
    }
}

/// The values of an answer. One that was there already takes its newer value.
void AddValues(DiagnosisEngine& engine, const Received& received, krm_ulong ecuId, CKRMCElement& ecu) {
    CKRMCGetFFDCmdAdaptDataSnd request;
    request.m_ulEcuId = ecuId;
    CKRMCGetFFDCmdAdaptDataRcv answer;
    engine.Answer(request, answer);
    if (answer.Data.GetCount() == 0) {
        return;
    }
    // In service 02 the number of the freeze frame follows the parameter ID.
    const bool isFreezeFrame = received.request[0] == 0x02 && received.request.size() > 2;
    CKRMCElement& holder =
        isFreezeFrame ? FindOrAddElement(ecu, "FreezeFrame", "Number", krm_ulong{received.request[2]}) : ecu;
    for (const CKRMCCommandFFDData& item : answer.Data) {
        for (const CKRMCCommandDispData& shown : item.m_cDispDataList) {
            CKRMCElement& value = FindOrAddElement(holder, "Value", "Id", item.m_strFFDText.GetText());
            // A state is its words, a trouble code its name, any other item its number.
            if (shown.m_ulDispDataType != static_cast<krm_ulong>(diagnosis_session::DisplayKind::Number)) {
                SetAttribute(value, "Value", shown.m_strData.GetText());
            } else {
                SetAttribute(value, "Value", shown.m_dData);
            }
            SetAttribute(value, "Unit", item.m_strUnit.GetText());
        }
    }
}

void AddAnswer(DiagnosisEngine& engine, const Received& received, krm_ulong ecuId, CKRMCElement& vehicle) {
    CKRMCElement& ecu = FindOrAddElement(vehicle, "Ecu", "Id", ecuId);
    switch (received.request[0]) {
        case 0x01:
        case 0x02:
        case 0x22:
            AddValues(engine, received, ecuId, ecu);
            break;
        case 0x03:
            AddTroubleCodes(engine, ecuId, DtcPhase::Stored, ecu);
            break;
        case 0x07:
            AddTroubleCodes(engine, ecuId, DtcPhase::Pending, ecu);
            break;
        case 0x09:
            if (received.request == diagnosis_session::Bytes{0x09, 0x02}) {
                AddVin(engine, ecuId, vehicle);
            }
            break;
        case 0x0A:
            AddTroubleCodes(engine, ecuId, DtcPhase::Permanent, ecu);
            break;
        default:  // says nothing about what the vehicle is
            break;
    }
}

// ---- The program ----

std::string ReadFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    if (!file) {
        throw std::runtime_error(path + ": cannot be read");
    }
    return text;
}

/// Which ECU has stored that trouble code?
void TellTroubleCode(CKRMCElement& vehicle, const char* code) {
    CKRMError error;
    CKRMCAttribute wanted("Code", code);
    for (CKRMCNode* node = vehicle.GetFirstElement(&error, "Ecu"); node != nullptr; node = node->GetNext()) {
        auto& ecu = static_cast<CKRMCElement&>(*node);
        if (CKRMCElement* const dtc = FindElement(ecu, "Dtc", &wanted)) {
            std::cout << code << ": " << dtc->GetAttribute(&error, "Text")->GetString() << ", "
                      << dtc->GetAttribute(&error, "Kind")->GetString() << " by "
                      << ecu.GetAttribute(&error, "Name")->GetString() << '\n';
        }
    }
}

/// What was a value when the freeze frame was taken, and what is it now?
void CompareWithFreezeFrame(CKRMCElement& ecu, const char* id) {
    CKRMError error;
    CKRMCElement* const frame = ecu.GetFirstElement(&error, "FreezeFrame");
    CKRMCAttribute wanted("Id", id);
    CKRMCElement* const now = FindElement(ecu, "Value", &wanted);
    CKRMCElement* const then = frame != nullptr ? FindElement(*frame, "Value", &wanted) : nullptr;
    if (now != nullptr && then != nullptr) {
        CKRMCAttribute* const valueNow = now->GetAttribute(&error, "Value");
        CKRMCAttribute* const valueThen = then->GetAttribute(&error, "Value");
        std::cout << id << ": " << valueThen->GetDouble() << " in the freeze frame, " << valueNow->GetDouble() << " now"
                  << (valueNow->CompareValue(&error, valueThen) ? ", unchanged" : "") << '\n';
    }
}

void Run(const std::string& recordingFile, const std::string& itemsFile) {
    diagnosis_session::Complaints complaints(std::cerr);
    const auto table = diagnosis_session::ItemTable::Parse(ReadFile(itemsFile), complaints.About(itemsFile));
    const std::vector<Exchange> recording =
        diagnosis_session::ReadExchanges(ReadFile(recordingFile), complaints.About(recordingFile));
    const auto oneByOne = [&] {
        return [&recording, next = std::size_t{0}]() mutable {
            return next < recording.size() ? std::optional(recording[next++]) : std::nullopt;
        };
    };
    const auto noTotals = [] { return diagnosis_session::RecordingTotals(); };
    DiagnosisEngine engine(table, oneByOne(), noTotals, complaints.About(recordingFile));
    engine.Survey(oneByOne(), noTotals);

    CKRMCElement vehicle("Vehicle");
    AddEcus(engine, vehicle);
    while (true) {
        // What was heard next? Then ask for what each ECU said.
        CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd request;
        CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv answer;
        engine.Answer(request, answer);
        const Received received = diagnosis_session::ReadReceived(answer.m_cDmReceiveDataList);
        if (received.isEnd) {
            break;
        }
        for (const Received::Answer& said : received.answers) {
            AddAnswer(engine, received, said.ecu, vehicle);
        }
    }

    TellTroubleCode(vehicle, "P0301");
    CKRMCAttribute engineEcu("Id", krm_ulong{0x7E8});
    if (CKRMCElement* const ecu = FindElement(vehicle, "Ecu", &engineEcu)) {
        CompareWithFreezeFrame(*ecu, "RPM");
    }

    CKRMString description;
    vehicle.Description(description);
    std::cout << '\n' << description.GetText();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 1 && argc != 3) {
        std::cerr << "usage: element_tree [RECORDING ITEMS]\n";
        return 2;
    }
    try {
        Run(argc == 3 ? argv[1] : KRM_EXAMPLE_DATA_DIR "/session.log",
            argc == 3 ? argv[2] : KRM_EXAMPLE_DATA_DIR "/session.items.json");
    } catch (const std::exception& error) {
        std::cerr << "element_tree: " << error.what() << '\n';
        return 2;
    }
    return 0;
}
