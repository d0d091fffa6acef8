// The diagnosis engine of the example: answers the messages of the application from what a recorded vehicle said.
//
// A real engine sends requests to the ECUs and hears their answers on the bus. Here the recording stands in for the bus:
// GetDataMonitorReceiveInfo goes on to the next request that was heard in it, and the messages that read from an ECU are
// answered by what the ECU said to that request. What the engine does with it is the real thing: it fills receive
// messages, their records, and through the converters every value in them.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_ENGINE_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_ENGINE_H_

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
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
#include "list_writer.h"
#include "received.h"
#include "units.h"

namespace diagnosis_session {

/// Which codes a GetDTC message asks for: its m_uchPhaseType, and the m_uchDTCType of each code in the answer.
enum class DtcPhase : unsigned char {
    Stored = 1,     ///< confirmed codes, service 03
    Pending = 2,    ///< seen in this or the last driving cycle, service 07
    Permanent = 3,  ///< can't be cleared by a tool, service 0A
};

/// What a display value is: the engine's codes for m_ulDispDataType.
enum class DisplayKind : krm_ulong {
    Number = 0,       ///< m_strData is the number as people read it
    Words = 1,        ///< m_strData names the state that the number stands for
    TroubleCode = 2,  ///< m_strData is the code, such as P0301
};

/// Who answers the application's messages.
class Engine {
public:
    virtual ~Engine() = default;
    /// Fills `answer`, fresh from its constructor, as `request` asks; it is the receive message of the same command.
    /// A command that the engine doesn't know stays unanswered. An answer that is given again and again may be the one of
    /// an earlier call, filled anew: GetDataMonitorReceiveInfo, GetDataMonitorValue, GetCurrentDataValue, GetFFD. Items that
    /// were in it then and are now stay, but for their values, which saves most of the work.
    virtual void Answer(CKRMBaseAdaptationData& request, CKRMBaseAdaptationData& answer) = 0;
};

class DiagnosisEngine : public Engine {
public:
    /// Gives the next exchange of the recording; nothing at its end.
    using NextExchange = std::function<std::optional<Exchange>()>;
    using TotalsUpToNow = std::function<RecordingTotals()>;

    /// The table must outlive the engine. `complain` hears of every answer, or part of one, that the engine can't use, by
    /// the recording's lines.
    DiagnosisEngine(const ItemTable& table, NextExchange next, TotalsUpToNow totals, Complain complain);
    ~DiagnosisEngine() override;

    /// Learns from a whole recording, before the session, which ECUs answer and what they support. Without it the engine
    /// learns while it goes on.
    void Survey(const NextExchange& next, const TotalsUpToNow& totals);

    void Answer(CKRMBaseAdaptationData& request, CKRMBaseAdaptationData& answer) override;

    // Each fills `answer` as `request` asks. m_bNotSupport is set where the ECU or the engine doesn't support what was
    // asked.

    /// The next request that was heard, as ReadReceived reads it. After a survey the first answer holds its totals and no
    /// request.
    void Answer(const CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd& request,
                CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv& answer);
    void Answer(const CKRMCGetGroupEcuListCmdAdaptDataSnd& request, CKRMCGetGroupEcuListCmdAdaptDataRcv& answer);
    void Answer(const CKRMCEcuConnectCmdAdaptDataSnd& request, CKRMCEcuConnectCmdAdaptDataRcv& answer);
    // These take the ECU's answer to the request that was heard: where it gave several, the next one at each call.
    void Answer(const CKRMCGetVinCodeCmdAdaptDataSnd& request, CKRMCGetVinCodeCmdAdaptDataRcv& answer);
    void Answer(const CKRMCGetDTCCmdAdaptDataSnd& request, CKRMCGetDTCCmdAdaptDataRcv& answer);
    void Answer(const CKRMCClearDTCCmdAdaptDataSnd& request, CKRMCClearDTCCmdAdaptDataRcv& answer);
    void Answer(const CKRMCGetFFDCmdAdaptDataSnd& request, CKRMCGetFFDCmdAdaptDataRcv& answer);
    void Answer(const CKRMCGetCurrentDataValueCmdAdaptDataSnd& request,
                CKRMCGetCurrentDataValueCmdAdaptDataRcv& answer);
    /// The values of the monitor's ECU and PIDs; none where the ECU's answer is not to such a request.
    void Answer(const CKRMCGetDataMonitorValueCmdAdaptDataSnd& request,
                CKRMCGetDataMonitorValueCmdAdaptDataRcv& answer);
    void Answer(const CKRMCGetDataMonitorListCmdAdaptDataSnd& request, CKRMCGetDataMonitorListCmdAdaptDataRcv& answer);
    void Answer(const CKRMCStartDataMonitorCmdAdaptDataSnd& request, CKRMCStartDataMonitorCmdAdaptDataRcv& answer);
    void Answer(const CKRMCSetUnitConversionInfoUccAdaptDataSnd& request,
                CKRMCSetUnitConversionInfoUccAdaptDataRcv& answer);

private:
    struct Prepared;

    /// One parameter of an answer, and the data behind its ID.
    struct Parameter {
        std::span<const std::uint8_t> key;  ///< parameter ID as in the request; with the frame number for service 02
        std::span<const std::uint8_t> data;
        const ItemCommand* command = nullptr;  ///< null where the table has none
    };
    /// What is known of an ECU.
    struct Ecu {
        std::set<std::uint32_t> answered;              ///< PIDs of service 01
        std::map<std::uint32_t, std::uint32_t> masks;  ///< of what it supports, by the PID that asked for it
        std::set<Bytes> seen;                          ///< requests of service 01 that were learned from
    };
    struct Monitor {
        std::uint32_t ecu = 0;
        std::set<std::uint32_t> pids;
    };

    template <class Request, class Reply>
    bool AnswerAs(CKRMBaseAdaptationData& request, CKRMBaseAdaptationData& answer);
    void EndExchange();
    void Learn(const Exchange& exchange);
    /// Goes on to the next answer of the ECU; null where there is none.
    const EcuAnswer* Take(krm_ulong ecu);
    bool Refused(const EcuAnswer& said, CKRMCBaseCmdAdaptDataRcv& answer);
    /// Fills in what the ECU said, nothing where it said nothing; of the parameters only `pids`, where they are given.
    void FillValues(const EcuAnswer* said, const std::set<std::uint32_t>* pids, CKRMCBaseCmdAdaptDataRcv& answer,
                    CKRMList<CKRMCCommandFFDData>& items);
    std::vector<Parameter> Split(const Exchange& exchange, const EcuAnswer& answer, const Complain& complain) const;
    const ItemCommand* FindCommand(std::uint8_t service, std::span<const std::uint8_t> key, std::uint32_t ecu) const;
    void FillItems(const EcuAnswer& answer, const Parameter& parameter, ListWriter<CKRMCCommandFFDData>& items,
                   const Complain& complain);
    void TellUnknown(const Exchange& exchange, std::span<const std::uint8_t> key, bool hidesMore,
                     const Complain& complain) const;
    const Prepared& Prepare(const Item& item, const Bytes& request);

    const ItemTable& m_table;
    NextExchange m_next;
    TotalsUpToNow m_totals;
    Complain m_complain;
    bool m_surveyed = false;
    std::optional<RecordingTotals> m_totalsToTell;
    std::map<std::uint32_t, Ecu> m_ecus;
    std::optional<Exchange> m_exchange;  ///< that was heard last
    Received m_received;                 ///< what was told of it
    std::vector<bool> m_taken;           ///< of its answers
    std::set<Bytes> m_answeredKeys;
    std::map<unsigned short, Monitor> m_monitors;
    std::set<std::pair<std::size_t, std::string>> m_told;  ///< of the exchange that was heard last
    UnitSettings m_units;
    std::vector<std::unique_ptr<Prepared>> m_prepared;  ///< by the item's number
};

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_ENGINE_H_
