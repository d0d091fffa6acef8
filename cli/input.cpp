#include "cli/input.h"

#include <algorithm>

#include "cli/log_input.h"
#include "cli/recording_input.h"

namespace krm_cli {

const krm::MessageDescription* FindMessage(std::string_view className) {
    const auto messages = krm::AllMessages();
    const auto found = std::ranges::find(messages, className, &krm::MessageDescription::className);
    return found == messages.end() ? nullptr : &*found;
}

bool IsRecording(ByteSource& source) {
    constexpr std::size_t kFirst = 256;
    std::string_view begin = source.Peek(kFirst);
    if (begin.starts_with("\xEF\xBB\xBF")) {
        begin.remove_prefix(3);
    }
    begin.remove_prefix(std::min(begin.find_first_not_of(" \t\r\n"), begin.size()));
    return begin.starts_with('{') && begin.find("\"krm recording\"") != std::string_view::npos;
}

std::unique_ptr<Input> OpenInput(ByteSource& source) {
    if (IsRecording(source)) {
        return std::make_unique<RecordingInput>(source);
    }
    return std::make_unique<LogInput>(source);
}

void EcusOfRequests::Complete(MessageHead& head) {
    const auto found = std::find_if(m_requests.begin(), m_requests.end(), [&](const Request& request) {
        return request.type == head.type && request.id == head.id && request.exchange == head.exchange &&
               request.source == head.source;
    });
    if (head.direction == krm::Direction::Receive) {
        if (!head.ecu && found != m_requests.end()) {
            head.ecu = found->ecu;
        }
    } else if (head.direction == krm::Direction::Send) {
        if (found != m_requests.end()) {
            m_requests.erase(found);
        } else if (m_requests.size() == kMost) {
            m_requests.erase(m_requests.begin());
        }
        m_requests.push_back({head.type, head.id, head.exchange, head.source, head.ecu});
    }
}

}  // namespace krm_cli
