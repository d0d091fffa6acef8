#include "exchange.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <variant>

#include "can_recording.h"
#include "iso_tp.h"

namespace diagnosis_session {
namespace {

/// The second byte of a refusal names the service, the third the reason. This reason means: wait, the answer follows.
constexpr std::uint8_t kResponsePending = 0x78;

/// All ECUs listen to 7DF, each to one of 7E0 to 7E7; with 29 bits, to 18DB33F1 and 18DAxxF1.
bool IsRequestId(std::uint32_t id) {
    return id == 0x7DFU || (id >= 0x7E0U && id <= 0x7E7U) || id == 0x18DB33F1U || (id & 0xFFFF00FFU) == 0x18DA00F1U;
}

bool IsAnswerId(std::uint32_t id) {
    return (id >= 0x7E8U && id <= 0x7EFU) || (id & 0xFFFFFF00U) == 0x18DAF100U;
}

/// Whether `answer` is one that `request` asks for: the same service, and the same parameter ID where it has one.
bool Fits(const Bytes& request, const Bytes& answer) {
    if (answer[0] == 0x7F) {
        return answer.size() >= 2 && answer[1] == request[0];
    }
    if (answer[0] != static_cast<std::uint8_t>(request[0] + 0x40U)) {
        return false;
    }
    const auto echoes = [&](std::size_t count) {
        return request.size() > count && answer.size() > count &&
               std::equal(request.begin() + 1, request.begin() + 1 + static_cast<std::ptrdiff_t>(count),
                          answer.begin() + 1);
    };
    switch (request[0]) {
        case 0x01:
            // One request may name several parameters; the answer begins with any of them.
            return answer.size() > 1 && std::find(request.begin() + 1, request.end(), answer[1]) != request.end();
        case 0x02:
        case 0x22:
            return echoes(2);
        case 0x09:
        case 0x21:
            return echoes(1);
        default:
            return true;
    }
}

/// Sorts frames into exchanges as they come.
class Reader {
public:
    explicit Reader(const Complain& complain)
        : m_complain([this, complain](std::size_t line, const std::string& what) {
              m_faultSinceRequest = true;
              complain(line, what);
          }),
          m_assembler(m_complain) {}
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    void AddLine(std::string_view text, std::size_t line) {
        if (text.find_first_not_of(" \t\r") == std::string_view::npos) {
            return;
        }
        const std::variant<CanFrame, BadLine> parsed = ParseCandumpLine(text, line);
        if (const auto* bad = std::get_if<BadLine>(&parsed)) {
            m_complain(line, bad->what);
            return;
        }
        const auto& frame = std::get<CanFrame>(parsed);
        const bool isRequest = IsRequestId(frame.id);
        if (!isRequest && !IsAnswerId(frame.id)) {
            if (m_strangers.insert(frame.id).second) {
                m_complain(line, "CAN ID " + HexOfId(frame.id) +
                                     " is neither a request's nor an answer's; its frames are left out");
            }
            return;
        }
        if (const std::optional<IsoTpMessage> message = m_assembler.Add(frame)) {
            if (isRequest) {
                AddRequest(*message);
            } else {
                AddAnswer(*message);
            }
        }
    }

    std::vector<Exchange> Finish() {
        EndExchange();
        return std::move(m_exchanges);
    }

private:
    /// Nothing more comes for the exchange under way.
    void EndExchange() {
        m_assembler.End();
        // A fault that was told in between is why the answer is missing: no second line for it.
        if (!m_exchanges.empty() && m_exchanges.back().answers.empty() && !m_faultSinceRequest) {
            const Exchange& last = m_exchanges.back();
            m_complain(last.line, "request " + HexOf(last.request) +
                                      (m_pending ? " has no answer but \"response pending\"" : " has no answer"));
        }
    }

    void AddRequest(const IsoTpMessage& message) {
        EndExchange();
        m_faultSinceRequest = false;
        m_pending = false;
        m_exchanges.push_back({m_exchanges.size() + 1, message.line, message.id, message.bytes, {}});
    }

    void AddAnswer(const IsoTpMessage& message) {
        const std::string says = HexOfId(message.id) + " answers " +
                                 HexOf(std::span(message.bytes).first(std::min<std::size_t>(message.bytes.size(), 3)));
        if (m_exchanges.empty()) {
            m_complain(message.line, says + " before any request");
            return;
        }
        Exchange& exchange = m_exchanges.back();
        if (!Fits(exchange.request, message.bytes)) {
            m_complain(message.line, says + " to request " + HexOf(exchange.request));
            return;
        }
        if (message.bytes[0] == 0x7F && message.bytes.size() >= 3 && message.bytes[2] == kResponsePending) {
            m_pending = true;
            return;
        }
        const bool again = std::any_of(exchange.answers.begin(), exchange.answers.end(),
                                       [&](const EcuAnswer& answer) { return answer.ecu == message.id; });
        if (again) {
            m_complain(message.line,
                       HexOfId(message.id) + " answers request " + HexOf(exchange.request) + " a second time");
        }
        exchange.answers.push_back({message.line, message.id, message.bytes});
    }

    Complain m_complain;
    IsoTpAssembler m_assembler;
    std::vector<Exchange> m_exchanges;
    std::set<std::uint32_t> m_strangers;
    bool m_faultSinceRequest = false;
    bool m_pending = false;
};

}  // namespace

std::vector<Exchange> ReadExchanges(std::string_view recording, const Complain& complain) {
    Reader reader(complain);
    for (std::size_t line = 1; !recording.empty(); ++line) {
        const std::size_t end = std::min(recording.find('\n'), recording.size());
        reader.AddLine(recording.substr(0, end), line);
        recording.remove_prefix(std::min(end + 1, recording.size()));
    }
    return reader.Finish();
}

}  // namespace diagnosis_session
