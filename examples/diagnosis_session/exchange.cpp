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

// A bus that nobody answers on in the way of diagnosis must not fill the memory.
constexpr std::size_t kMostStrangers = 4096;
constexpr std::size_t kMostAnswers = 1024;

}  // namespace

/// Takes lines; holds the exchange under way and the one that is complete.
class ExchangeReader::Sorter {
public:
    explicit Sorter(Complain complain)
        : m_complain([this, complain = std::move(complain)](std::size_t line, const std::string& what) {
              m_faultSinceRequest = true;
              complain(line, what);
          }),
          m_assembler(m_complain) {}
    Sorter(const Sorter&) = delete;
    Sorter& operator=(const Sorter&) = delete;

    /// Whether the line completes an exchange, which Take then gives.
    bool AddLine(std::string_view text, std::size_t line) {
        if (std::all_of(text.begin(), text.end(), [](char c) { return c == ' ' || c == '\t' || c == '\r'; })) {
            return false;
        }
        const std::variant<CanFrame, BadLine> parsed = ParseCandumpLine(text, line);
        if (const auto* bad = std::get_if<BadLine>(&parsed)) {
            m_complain(line, bad->what);
            return false;
        }
        const auto& frame = std::get<CanFrame>(parsed);
        ++m_totals.frames;
        if (frame.time != kNoTime) {
            m_totals.first = m_totals.first == kNoTime ? frame.time : m_totals.first;
            m_totals.last = frame.time;
        }
        const bool isRequest = IsRequestId(frame.id);
        if (!isRequest && !IsAnswerId(frame.id)) {
            if (m_strangers.size() < kMostStrangers && m_strangers.insert(frame.id).second) {
                m_complain(line, "CAN ID " + HexOfId(frame.id) +
                                     " is neither a request's nor an answer's; its frames are left out");
            }
            return false;
        }
        if (std::optional<IsoTpMessage> message = m_assembler.Add(frame)) {
            if (isRequest) {
                AddRequest(*std::move(message));
            } else {
                AddAnswer(*std::move(message));
            }
        }
        return m_complete.has_value();
    }

    /// The exchange that is complete, once.
    std::optional<Exchange> Take() { return std::exchange(m_complete, std::nullopt); }

    /// Nothing more comes at all.
    void End() {
        EndExchange();
        m_complete = std::exchange(m_current, std::nullopt);
    }

    const RecordingTotals& Totals() const { return m_totals; }

private:
    /// Nothing more comes for the exchange under way.
    void EndExchange() {
        m_assembler.End();
        // A fault that was told in between is why the answer is missing: no second line for it.
        if (m_current && m_current->answers.empty() && !m_faultSinceRequest) {
            m_complain(m_current->line, "request " + HexOf(m_current->request) +
                                            (m_pending ? " has no answer but \"response pending\"" : " has no answer"));
        }
    }

    void AddRequest(IsoTpMessage message) {
        EndExchange();
        m_complete = std::move(m_current);
        m_faultSinceRequest = false;
        m_pending = false;
        m_current = Exchange{++m_number, message.line, message.id, std::move(message.bytes), {}, message.time};
    }

    void AddAnswer(IsoTpMessage message) {
        const auto says = [&] {
            return HexOfId(message.id) + " answers " +
                   HexOf(std::span(message.bytes).first(std::min<std::size_t>(message.bytes.size(), 3)));
        };
        if (!m_current) {
            m_complain(message.line, says() + " before any request");
            return;
        }
        Exchange& exchange = *m_current;
        if (!Fits(exchange.request, message.bytes)) {
            m_complain(message.line, says() + " to request " + HexOf(exchange.request));
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
        if (exchange.answers.size() == kMostAnswers) {
            m_complain(message.line, says() + " behind " + std::to_string(kMostAnswers) + " answers; it is left out");
            return;
        }
        exchange.answers.push_back({message.line, message.id, std::move(message.bytes), message.time});
    }

    Complain m_complain;
    IsoTpAssembler m_assembler;
    std::optional<Exchange> m_current;
    std::optional<Exchange> m_complete;
    std::size_t m_number = 0;
    std::set<std::uint32_t> m_strangers;
    bool m_faultSinceRequest = false;
    bool m_pending = false;
    RecordingTotals m_totals;
};

ExchangeReader::ExchangeReader(ReadBytes read, Complain complain)
    : m_lines(std::move(read)), m_sorter(std::make_unique<Sorter>(std::move(complain))) {}

ExchangeReader::~ExchangeReader() = default;

std::optional<Exchange> ExchangeReader::Next() {
    for (std::string_view line; m_lines.Next(line);) {
        if (m_sorter->AddLine(line, ++m_line)) {
            return m_sorter->Take();
        }
    }
    m_sorter->End();
    return m_sorter->Take();
}

const RecordingTotals& ExchangeReader::Totals() const {
    return m_sorter->Totals();
}

std::vector<Exchange> ReadExchanges(std::string_view recording, const Complain& complain) {
    ExchangeReader reader(
        [&](char* buffer, std::size_t size) {
            const std::size_t count = recording.copy(buffer, size);
            recording.remove_prefix(count);
            return count;
        },
        complain);
    std::vector<Exchange> exchanges;
    while (std::optional<Exchange> exchange = reader.Next()) {
        exchanges.push_back(*std::move(exchange));
    }
    return exchanges;
}

}  // namespace diagnosis_session
