#include "application.h"

#include <algorithm>
#include <set>

#include "hex.h"

namespace diagnosis_session {

/// Asks the engine one question. With a log, both messages go into it, a heading and a line for each of their fields.
template <class Request, class Reply>
void Application::Ask(Request& request, Reply& reply) {
    if (m_settings.log == nullptr) {
        m_engine.Answer(request, reply);
        return;
    }
    if (m_now != kNoTime) {
        m_settings.log->SetTime(m_now);
    }
    request.ErrWriteOperationLog();
    m_engine.Answer(request, reply);
    reply.ErrWriteOperationLog();
}

SessionSummary Application::Run() {
    m_summary.recording = m_settings.recording;
    ChooseUnits();
    ListEcus();
    bool begun = false;
    const auto begin = [&](bool isKnown) {
        if (!begun) {
            begun = true;
            Tell([&](Output& output) { output.Begin(m_summary.recording, isKnown); });
        }
    };
    CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd request;
    CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv reply;
    while (m_settings.goOn(m_summary.exchanges)) {
        Ask(request, reply);
        const Received received = ReadReceived(reply.m_cDmReceiveDataList);
        if (received.hasTotals) {
            m_summary.recording.totals = received.totals;
            m_start = received.totals.first;
        }
        if (received.isEnd) {
            begin(false);
            return m_summary;
        }
        begin(received.hasTotals);
        if (m_summary.exchanges == 0) {
            // The ECUs that are known beforehand; others are connected to when they are heard.
            const std::vector<std::uint32_t> ecus = m_summary.recording.ecus;
            for (const std::uint32_t ecu : ecus) {
                Connect(ecu);
            }
        }
        if (received.request.empty()) {
            continue;
        }
        m_summary.exchanges = received.number;
        for (const Received::Answer& said : received.answers) {
            HearAnswer(received, said);
        }
    }
    begin(false);
    m_summary.interrupted = true;
    return m_summary;
}

/// Sets every item to the unit that the chosen group of settings has for it.
void Application::ChooseUnits() {
    if (m_settings.units.empty()) {
        return;
    }
    CKRMCGetUnitSettingGroupListUccAdaptDataSnd listRequest;
    CKRMCGetUnitSettingGroupListUccAdaptDataRcv groups;
    Ask(listRequest, groups);
    CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd settingsRequest;
    for (const CKRMCUnitConversionData& group : groups.Data) {
        if (m_settings.units == group.m_strGroupName.GetText()) {
            settingsRequest.Data.AddTail(group);
        }
    }
    CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv settings;
    Ask(settingsRequest, settings);
    CKRMCSetUnitConversionInfoUccAdaptDataSnd choice;
    for (const CKRMCUnitConvDataSettingInfo& group : settings.Data) {
        choice.Data.AddTail(&group.m_cSettingList);
    }
    CKRMCSetUnitConversionInfoUccAdaptDataRcv chosen;
    Ask(choice, chosen);
}

void Application::ListEcus() {
    CKRMCGetGroupEcuListCmdAdaptDataSnd request;
    CKRMCGetGroupEcuListCmdAdaptDataRcv list;
    Ask(request, list);
    for (const CKRMCCommandEcuGroupData& group : list.Data) {
        for (const CKRMCCommandEcuData& ecu : group.m_cEcuList) {
            m_summary.recording.ecus.push_back(ecu.m_ulEcuId);
        }
    }
}

/// Connects to an ECU, unless that was done, and runs a data monitor on all live values that it has.
void Application::Connect(krm_ulong ecu) {
    const auto [monitor, isNew] = m_monitors.try_emplace(ecu);
    if (!isNew) {
        return;
    }
    auto& ecus = m_summary.recording.ecus;
    if (std::find(ecus.begin(), ecus.end(), ecu) == ecus.end()) {
        ecus.insert(std::upper_bound(ecus.begin(), ecus.end(), ecu), ecu);
    }
    CKRMCEcuConnectCmdAdaptDataSnd connectRequest;
    connectRequest.m_ulEcuId = ecu;
    CKRMCEcuConnectCmdAdaptDataRcv connected;
    Ask(connectRequest, connected);

    CKRMCGetDataMonitorListCmdAdaptDataSnd listRequest;
    listRequest.m_ulEcuId = ecu;
    CKRMCGetDataMonitorListCmdAdaptDataRcv list;
    Ask(listRequest, list);
    Tell([&](Output& output) { output.Supported(ecu, list.m_uchA8SupportData); });

    // Watch everything that is listed. Several items may lie in the answer to one PID.
    std::set<krm_ulong> pids;
    for (const CKRMCCommandFFDData& item : list.Data) {
        pids.insert(item.m_cDataLayout.m_ulPidNo);
    }
    if (pids.empty()) {
        return;
    }
    CKRMCCommandStartDataMonitorData watched;
    watched.m_ushDataMonitorId = static_cast<unsigned short>(m_monitors.size());
    watched.m_ulEcuId = ecu;
    for (const krm_ulong pid : pids) {
        watched.m_cPidIdList.AddTail(static_cast<unsigned short>(pid));
    }
    CKRMCStartDataMonitorCmdAdaptDataSnd start;
    start.m_ulEcuId = ecu;
    start.Data.AddTail(watched);
    CKRMCStartDataMonitorCmdAdaptDataRcv started;
    Ask(start, started);
    monitor->second = started.m_bDataMonitorEnable ? watched.m_ushDataMonitorId : 0;
}

void Application::HearAnswer(const Received& received, const Received::Answer& said) {
    m_now = said.time;
    if (m_start == kNoTime) {
        m_start = said.time;
    }
    Connect(said.ecu);
    Moment moment;
    moment.exchange = received.number;
    moment.request = HexOf(received.request);
    moment.ecu = said.ecu;
    moment.time = said.time;
    moment.start = m_start;

    const Bytes& request = received.request;
    if (request == Bytes{0x09, 0x02}) {
        CKRMCGetVinCodeCmdAdaptDataSnd ask;
        ask.m_ulEcuId = said.ecu;
        CKRMCGetVinCodeCmdAdaptDataRcv reply;
        Ask(ask, reply);
        if (reply.m_strVinCode.GetLength() != 0) {
            Tell([&](Output& output) { output.Vin(moment, reply.m_strVinCode.GetText()); });
        }
    } else if (request == Bytes{0x03}) {
        ReadTroubleCodes(moment, said.isRefusal, DtcPhase::Stored, "stored");
    } else if (request == Bytes{0x07}) {
        ReadTroubleCodes(moment, said.isRefusal, DtcPhase::Pending, "pending");
    } else if (request == Bytes{0x0A}) {
        ReadTroubleCodes(moment, said.isRefusal, DtcPhase::Permanent, "permanent");
    } else if (request == Bytes{0x04}) {
        CKRMCClearDTCCmdAdaptDataSnd ask;
        ask.m_ulEcuId = said.ecu;
        CKRMCClearDTCCmdAdaptDataRcv reply;
        Ask(ask, reply);
        Tell([&](Output& output) { output.Clearing(moment, reply.m_ulResult); });
    } else if (request[0] == 0x02) {
        ReadFreezeFrame(received, moment);
    } else if (const unsigned short monitor = m_monitors[said.ecu]; request[0] == 0x01 && monitor != 0) {
        CKRMCGetDataMonitorValueCmdAdaptDataSnd poll;
        poll.m_ulEcuId = said.ecu;
        poll.m_ushDataMonitorId = monitor;
        ReadValues(moment, poll, m_polled);
    } else {
        ReadCurrentValues(received, moment);
    }
}

void Application::ReadTroubleCodes(const Moment& moment, bool refused, DtcPhase phase, const char* kind) {
    // Step 1: construct the request, which has its command type and ID by that, and set its fields.
    CKRMCGetDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = moment.ecu;
    request.m_uchPhaseType = static_cast<unsigned char>(phase);
    // Step 2: the engine fills the answer, a record for each code.
    CKRMCGetDTCCmdAdaptDataRcv reply;
    Ask(request, reply);
    // Step 3: read the records.
    if (!refused) {
        Tell([&](Output& output) { output.TroubleCodes(moment, kind, reply); });
    }
}

/// Service 02: pairs of a PID and the number of the freeze frame.
void Application::ReadFreezeFrame(const Received& received, const Moment& moment) {
    CKRMCGetFFDCmdAdaptDataSnd request;
    request.m_ulEcuId = moment.ecu;
    Moment inFrame = moment;
    for (std::size_t i = 1; i + 1 < received.request.size(); i += 2) {
        request.m_cPidId.AddTail(received.request[i]);
        request.m_uchFFDId = received.request[i + 1];
        inFrame.freezeFrame = received.request[i + 1];
    }
    ReadValues(inFrame, request, m_frozen);
}

/// Any other service: parameter IDs of two bytes in service 22, else of one.
void Application::ReadCurrentValues(const Received& received, const Moment& moment) {
    CKRMCGetCurrentDataValueCmdAdaptDataSnd request;
    request.m_ulEcuId = moment.ecu;
    const Bytes& bytes = received.request;
    const std::size_t length = bytes[0] == 0x22 ? 2 : 1;
    for (std::size_t i = 1; i + length <= bytes.size(); i += length) {
        request.m_cPidIdList.AddTail(
            static_cast<unsigned short>(length == 2 ? bytes[i] << 8U | bytes[i + 1] : bytes[i]));
    }
    ReadValues(moment, request, m_current);
}

template <class Request, class Reply>
void Application::ReadValues(const Moment& moment, Request& request, Replies<Reply>& replies) {
    // Few requests repeat; who asks for ever new ones must not fill the memory.
    constexpr std::size_t kMostReplies = 1024;
    const std::pair<krm_ulong, std::string> key(moment.ecu, moment.request);
    if (replies.size() == kMostReplies && !replies.contains(key)) {
        replies.clear();
    }
    Reply& reply = replies[key];
    Ask(request, reply);
    for (const CKRMCCommandFFDData& item : reply.Data) {
        m_summary.values += static_cast<std::uint64_t>(item.m_cDispDataList.GetCount());
    }
    Tell([&](Output& output) { output.Values(moment, reply.Data); });
}

}  // namespace diagnosis_session
