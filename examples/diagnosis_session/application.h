// The diagnosis application of the example. All that it knows of the vehicle it learns from the engine's answers.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_APPLICATION_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_APPLICATION_H_

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "engine.h"
#include "operation_log_file.h"
#include "output.h"
#include "received.h"

namespace diagnosis_session {

class Application {
public:
    struct Settings {
        RecordingInfo recording;  ///< what is known beforehand
        std::string units;        ///< "metric", "imperial", or empty for the engine's own
        OperationLogFile* log = nullptr;
        std::vector<Output*> outputs;
        /// Called before each request that was heard; false ends the session there.
        std::function<bool(std::uint64_t exchanges)> goOn = [](std::uint64_t) { return true; };
    };

    /// The engine, the log and the outputs must outlive the application.
    Application(Engine& engine, Settings settings) : m_engine(engine), m_settings(std::move(settings)) {}

    /// The whole session, in the recording's order. Returns what it counted; what was written and what was wrong is for
    /// the caller to add, and to end the outputs.
    SessionSummary Run();

private:
    template <class Request, class Reply>
    void Ask(Request& request, Reply& reply);
    template <class Call>
    void Tell(Call call) {
        for (Output* const output : m_settings.outputs) {
            call(*output);
        }
    }

    /// The last answers, by ECU and request that was heard: the engine changes the values in them, and not the rest.
    template <class Reply>
    using Replies = std::map<std::pair<krm_ulong, std::string>, Reply>;

    void ChooseUnits();
    void ListEcus();
    void Connect(krm_ulong ecu);
    void HearAnswer(const Received& received, const Received::Answer& said);
    void ReadTroubleCodes(const Moment& moment, bool refused, DtcPhase phase, const char* kind);
    void ReadFreezeFrame(const Received& received, const Moment& moment);
    void ReadCurrentValues(const Received& received, const Moment& moment);
    /// Asks for values and tells them.
    template <class Request, class Reply>
    void ReadValues(const Moment& moment, Request& request, Replies<Reply>& replies);

    Engine& m_engine;
    Settings m_settings;
    SessionSummary m_summary;
    std::map<krm_ulong, unsigned short> m_monitors;  ///< by ECU; 0 where none runs
    Replies<CKRMCGetDataMonitorValueCmdAdaptDataRcv> m_polled;
    Replies<CKRMCGetCurrentDataValueCmdAdaptDataRcv> m_current;
    Replies<CKRMCGetFFDCmdAdaptDataRcv> m_frozen;
    Microseconds m_now = kNoTime;
    Microseconds m_start = kNoTime;
};

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_APPLICATION_H_
