#include "recorded_session.h"

#include <utility>

#include "krm/fields/fields.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/dump.h"
#include "krm/framework/message.h"
#include "krm/messages/all_messages.h"
#include "krm/platform/string.h"
#include "output_file.h"

namespace diagnosis_session {
namespace {

constexpr krm::CommandName kStartCommand("StartSession", 900);
constexpr krm::CommandName kEndCommand("EndSession", 901);

}  // namespace

// Messages of this program's own, first and last in the recording. They don't go to the operation log.

class StartSessionRequest : public krm::MessageOf<StartSessionRequest, CKRMCBaseCmdAdaptDataSnd, kStartCommand> {
public:
    void Dump(const krm::MessageLines&) {}
};

class StartSessionAnswer : public krm::MessageOf<StartSessionAnswer, CKRMCBaseCmdAdaptDataRcv, kStartCommand> {
public:
    void Dump(const krm::MessageLines&) {}

    CKRMString m_strFile;
    bool m_bIsEmpty = false;
    CKRMString m_strUnits;
    krm_ulong m_ulLongestName = 0;
    krm_int64 m_nFirst = 0;
};

class EndSessionRequest : public krm::MessageOf<EndSessionRequest, CKRMCBaseCmdAdaptDataSnd, kEndCommand> {
public:
    void Dump(const krm::MessageLines&) {}
};

class EndSessionAnswer : public krm::MessageOf<EndSessionAnswer, CKRMCBaseCmdAdaptDataRcv, kEndCommand> {
public:
    void Dump(const krm::MessageLines&) {}

    krm_int64 m_nFaults = 0;
    bool m_bInterrupted = false;
    CKRMString m_strBreakOff;
};

}  // namespace diagnosis_session

template <>
struct krm::Fields<diagnosis_session::StartSessionRequest> : krm::FieldList<> {};
template <>
struct krm::Fields<diagnosis_session::StartSessionAnswer>
    : krm::FieldList<
          &diagnosis_session::StartSessionAnswer::m_strFile, &diagnosis_session::StartSessionAnswer::m_bIsEmpty,
          &diagnosis_session::StartSessionAnswer::m_strUnits, &diagnosis_session::StartSessionAnswer::m_ulLongestName,
          &diagnosis_session::StartSessionAnswer::m_nFirst> {};
template <>
struct krm::Fields<diagnosis_session::EndSessionRequest> : krm::FieldList<> {};
template <>
struct krm::Fields<diagnosis_session::EndSessionAnswer>
    : krm::FieldList<&diagnosis_session::EndSessionAnswer::m_nFaults,
                     &diagnosis_session::EndSessionAnswer::m_bInterrupted,
                     &diagnosis_session::EndSessionAnswer::m_strBreakOff> {};

namespace diagnosis_session {
namespace {

constexpr krm::MessageDescription kOwnMessages[] = {
    krm::kMessageDescription<StartSessionRequest>, krm::kMessageDescription<StartSessionAnswer>,
    krm::kMessageDescription<EndSessionRequest>, krm::kMessageDescription<EndSessionAnswer>};

/// The path, where a recording may be written to it.
std::filesystem::path Emptied(const std::string& path) {
    OutputFile(path, "{\"format\":\"krm recording\",", "a recording of a session").Close();
    return path;
}

/// Records a request of this program and its answer.
template <class Request, class Reply>
void Record(krm::Recorder& recorder, const Request& request, const Reply& reply) {
    const std::uint64_t exchange = recorder.BeginExchange();
    recorder.Write(exchange, request, krm::kMessageDescription<Request>);
    recorder.Write(exchange, reply, krm::kMessageDescription<Reply>);
}

krm::PlayerOptions InOrder() {
    krm::PlayerOptions options;
    options.usedUp = krm::PlayerOptions::UsedUp::Fail;
    options.reading.ownMessages = kOwnMessages;
    return options;
}

template <class Message>
bool CopyAs(const krm::PlayedAnswer& played, CKRMBaseAdaptationData& answer) {
    if constexpr (Message::kDirection == krm::Direction::Receive) {
        const Message* const from = played.As<Message>();
        Message* const to = from != nullptr ? krm::MessageAs<Message>(&answer) : nullptr;
        if (to != nullptr) {
            *to = *from;
        }
        return to != nullptr;
    }
    return false;
}

template <class... Classes>
bool Copy(krm::ClassList<Classes...>, const krm::PlayedAnswer& played, CKRMBaseAdaptationData& answer) {
    return (CopyAs<Classes>(played, answer) || ...);
}

}  // namespace

RecordingEngine::RecordingEngine(Engine& engine, const std::string& path, const SessionStart& start)
    : m_engine(engine), m_path(path), m_recorder(Emptied(path), krm::RecordingMode::Overwrite) {
    StartSessionAnswer answer;
    answer.m_strFile = krm::MakeString(start.file);
    answer.m_bIsEmpty = start.isEmpty;
    answer.m_strUnits = krm::MakeString(start.units);
    answer.m_ulLongestName = static_cast<krm_ulong>(start.longestName);
    answer.m_nFirst = start.first;
    Record(m_recorder, StartSessionRequest(), answer);
}

void RecordingEngine::Answer(CKRMBaseAdaptationData& request, CKRMBaseAdaptationData& answer) {
    const std::uint64_t exchange = m_recorder.BeginExchange();
    m_recorder.Write(exchange, request, krm::Direction::Send);
    m_engine.Answer(request, answer);
    m_recorder.Write(exchange, answer, krm::Direction::Receive);
}

void RecordingEngine::End(const SessionEnd& end) {
    EndSessionAnswer answer;
    answer.m_nFaults = static_cast<krm_int64>(end.faults);
    answer.m_bInterrupted = end.interrupted;
    answer.m_strBreakOff = krm::MakeString(end.breakOff);
    Record(m_recorder, EndSessionRequest(), answer);
    if (const std::string error = m_recorder.Error(); !error.empty()) {
        throw FileError(m_path + ": not all was recorded: " + error);
    }
}

ReplayingEngine::ReplayingEngine(const std::string& path) : m_path(path), m_player(path, InOrder()) {
    if (!m_player.Error().empty()) {
        throw FileError(m_path + ": " + m_player.Error());
    }
    StartSessionAnswer start;
    if (const std::string error = m_player.Answer(StartSessionRequest(), start); !error.empty()) {
        throw FileError(m_path + ": is no recording of a session: " + error);
    }
    m_start.file = krm::ToString(start.m_strFile);
    m_start.isEmpty = start.m_bIsEmpty;
    m_start.units = krm::ToString(start.m_strUnits);
    m_start.longestName = start.m_ulLongestName;
    m_start.first = start.m_nFirst;
    m_recorded = m_player.Count() - 1;
    EndSessionAnswer end;
    if (m_player.Answer(EndSessionRequest(), end).empty()) {
        m_end = {static_cast<std::size_t>(end.m_nFaults), end.m_bInterrupted, krm::ToString(end.m_strBreakOff)};
        --m_recorded;
    } else {
        m_end.interrupted = true;
    }
}

void ReplayingEngine::Answer(CKRMBaseAdaptationData& request, CKRMBaseAdaptationData& answer) {
    ++m_played;
    krm::PlayedAnswer played = m_player.Answer(request);
    if (played && !Copy(krm::AllMessageClasses(), played, answer)) {
        played.error = "the recorded answer is of another class: " + std::string(played.description->className);
    }
    if (!played.error.empty()) {
        throw FileError(m_path + ": " + played.error);
    }
}

}  // namespace diagnosis_session
