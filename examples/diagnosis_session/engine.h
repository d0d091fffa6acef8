// The diagnosis engine of the example: answers the messages of the application from what a recorded vehicle said.
//
// A real engine sends requests to the ECUs and hears their answers on the bus. Here the recording stands in for the bus:
// Hear() hands over the ECU's answer that the next message asks for. What the engine does with it is the real thing: it
// fills receive messages, their records, and through the converters every value in them.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_ENGINE_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_ENGINE_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "complaints.h"
#include "exchange.h"
#include "item_table.h"
#include "krm/messages/diag/data_monitor.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/messages/diag/freeze_frames.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/messages/diag/vehicle.h"

namespace diagnosis_session {

/// Which codes a GetDTC message asks for: its m_uchPhaseType, and the m_uchDTCType of each code in the answer.
enum class DtcPhase : unsigned char {
    Stored = 1,     ///< confirmed codes, service 03
    Pending = 2,    ///< seen in this or the last driving cycle, service 07
    Permanent = 3,  ///< can't be cleared by a tool, service 0A
};

class DiagnosisEngine {
public:
    /// Table and recording must outlive the engine. `complain` hears of every answer, or part of one, that the engine
    /// can't use, by the recording's lines.
    DiagnosisEngine(const ItemTable& table, const std::vector<Exchange>& recording, Complain complain);

    /// What the vehicle says to the next message of those that read from an ECU: GetVinCode, GetDTC, ClearDTC, GetFFD.
    /// Both must live until that message is answered.
    void Hear(const Exchange& exchange, const EcuAnswer& answer);

    /// All answers of `exchange` were heard: tells which parameters of its request nobody answered.
    void EndExchange(const Exchange& exchange);

    // Each fills `answer`, a message fresh from its constructor, as `request` asks. m_bNotSupport is set where the ECU or
    // the engine doesn't support what was asked.
    void Answer(const CKRMCGetGroupEcuListCmdAdaptDataSnd& request, CKRMCGetGroupEcuListCmdAdaptDataRcv& answer);
    void Answer(const CKRMCEcuConnectCmdAdaptDataSnd& request, CKRMCEcuConnectCmdAdaptDataRcv& answer);
    void Answer(const CKRMCGetVinCodeCmdAdaptDataSnd& request, CKRMCGetVinCodeCmdAdaptDataRcv& answer);
    void Answer(const CKRMCGetDTCCmdAdaptDataSnd& request, CKRMCGetDTCCmdAdaptDataRcv& answer);
    void Answer(const CKRMCClearDTCCmdAdaptDataSnd& request, CKRMCClearDTCCmdAdaptDataRcv& answer);
    void Answer(const CKRMCGetFFDCmdAdaptDataSnd& request, CKRMCGetFFDCmdAdaptDataRcv& answer);
    void Answer(const CKRMCGetDataMonitorListCmdAdaptDataSnd& request, CKRMCGetDataMonitorListCmdAdaptDataRcv& answer);
    void Answer(const CKRMCStartDataMonitorCmdAdaptDataSnd& request, CKRMCStartDataMonitorCmdAdaptDataRcv& answer);
    /// The values that the monitor's ECU said next in the recording; no values once the recording is at its end.
    void Answer(const CKRMCGetDataMonitorValueCmdAdaptDataSnd& request,
                CKRMCGetDataMonitorValueCmdAdaptDataRcv& answer);

private:
    /// One parameter of an answer, and the data behind its ID.
    struct Parameter {
        Bytes key;  ///< parameter ID as in the request; with the frame number for service 02
        std::span<const std::uint8_t> data;
        const ItemCommand* command = nullptr;  ///< null where the table has none
    };
    struct Monitor {
        std::uint32_t ecu = 0;
        std::set<std::uint32_t> pids;
        std::size_t next = 0;  ///< exchange to go on with
    };

    bool Refused(CKRMCBaseCmdAdaptDataRcv& answer);
    std::vector<Parameter> Split(const Exchange& exchange, const EcuAnswer& answer, const Complain& complain) const;
    const ItemCommand* FindCommand(std::uint8_t service, std::span<const std::uint8_t> key, std::uint32_t ecu) const;
    void FillItems(const Exchange& exchange, const EcuAnswer& answer, const Parameter& parameter,
                   CKRMList<CKRMCCommandFFDData>& items, const Complain& complain) const;
    void TellUnknown(const Exchange& exchange, const Bytes& key, bool hidesMore, const Complain& complain) const;

    const ItemTable& m_table;
    const std::vector<Exchange>& m_recording;
    Complain m_complain;
    const Exchange* m_exchange = nullptr;
    const EcuAnswer* m_answer = nullptr;
    std::set<Bytes> m_answeredKeys;
    std::map<unsigned short, Monitor> m_monitors;
    std::set<std::pair<std::size_t, std::string>> m_told;  ///< of the exchange that is heard
};

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_ENGINE_H_
