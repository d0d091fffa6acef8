#include "krm/exchange/player.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <fstream>
#include <limits>
#include <map>
#include <mutex>
#include <optional>
#include <span>
#include <string_view>
#include <unordered_map>

#include "krm/exchange/compare.h"
#include "krm/exchange/internal/compare_rules.h"
#include "krm/exchange/internal/recording_lines.h"
#include "krm/exchange/internal/text.h"
#include "krm/platform/string.h"

// Nothing here is in a nameless namespace but functions: Index holds the types, and a unity build would warn of that.
namespace krm::playing {

/// Stands for a request's class and content: equal requests have equal ones, and that others have too is as good as
/// impossible.
struct Key {
    std::uint64_t first = 0x243F6A8885A308D3U;  // pi's digits: anything does
    std::uint64_t second = 0x13198A2E03707344U;

    friend bool operator==(const Key&, const Key&) = default;
};

struct HashOfKey {
    std::size_t operator()(const Key& key) const { return static_cast<std::size_t>(key.first); }
};

/// Makes the key of what it is given. Two sums that mix each number in differently, so that what agrees in one differs in
/// the other.
class KeyMaker {
public:
    void AddNumber(std::uint64_t number) {
        m_key.first = (m_key.first ^ number) * 0x9E3779B97F4A7C15U;
        m_key.first ^= m_key.first >> 32U;
        m_key.second = std::rotl(m_key.second + number * 0xC2B2AE3D27D4EB4FU, 31) * 0x165667B19E3779F9U;
        m_key.second ^= m_key.second >> 29U;
    }
    void AddText(std::string_view text) {
        AddNumber(text.size());
        while (!text.empty()) {
            std::uint64_t bytes = 0;
            const std::size_t count = std::min(text.size(), sizeof bytes);
            std::memcpy(&bytes, text.data(), count);
            AddNumber(bytes);
            text.remove_prefix(count);
        }
    }
    /// Adds what krm::Compare would compare under these rules, which may be null.
    void AddValue(ConstValue value, const comparing::Rules* rules) {
        switch (value.Kind()) {
            case ValueKind::Bool:
            case ValueKind::Signed:
            case ValueKind::Unsigned:
                AddNumber(static_cast<std::uint64_t>(*value.Integer()));
                return;
            case ValueKind::Double:
                AddDouble(*value.As<double>());
                return;
            case ValueKind::Text:
                AddText(View(*value.As<CKRMString>()));
                return;
            case ValueKind::Map:
                for (const auto& [entry, text] : *value.As<exchange::TextMap>()) {
                    if (!comparing::IgnoresEntry(rules, View(entry))) {
                        AddNumber(1);
                        AddText(View(entry));
                        AddText(View(text));
                    }
                }
                AddNumber(0);
                return;
            case ValueKind::Record:
                for (std::size_t i = 0; i < value.Type().fields.size(); ++i) {
                    const comparing::Rules* const ofField = comparing::OfField(rules, i);
                    if (!comparing::Ignores(ofField)) {
                        AddValue(value.Field(i), ofField);
                    }
                }
                return;
            case ValueKind::List:
            case ValueKind::Array: {
                int index = 0;
                value.ForEachElement([&](ConstValue element) {
                    const comparing::Rules* const ofElement = comparing::OfElement(rules, index++);
                    if (!comparing::Ignores(ofElement)) {
                        AddNumber(static_cast<std::uint64_t>(index));
                        AddValue(element, ofElement);
                    }
                });
                AddNumber(0);
                return;
            }
        }
    }

    Key Take() const { return m_key; }

private:
    /// Equal numbers have the same bits here, and so have all that are none.
    void AddDouble(double number) {
        const double canonical = std::isnan(number) ? std::numeric_limits<double>::quiet_NaN() : number + 0.0;
        AddNumber(std::bit_cast<std::uint64_t>(canonical));
    }

    Key m_key;
};

constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

/// Where a line lies.
struct Place {
    std::uint64_t offset = 0;
    std::uint64_t line = 0;
    std::uint32_t length = 0;  // 0 for none
};

/// What is held of an exchange.
struct Exchange {
    std::uint64_t number;
    Place answer;
    std::uint32_t next = kNone;  // exchange whose request is equal
};

/// Exchanges whose requests are equal.
struct Group {
    Place request;                // the first one's
    std::uint64_t number;         // of its exchange
    std::uint32_t count = 0;      // how many exchanges
    std::uint32_t last = kNone;   // exchange
    std::uint32_t turn = kNone;   // the exchange that is played next
    std::uint32_t again = kNone;  // the last one that was played and has an answer
};

namespace {

/// `text` as far as it is worth reading within a line of others.
std::string Shortened(std::string text) {
    constexpr std::size_t kMost = 200;
    if (text.size() > kMost) {
        std::size_t end = kMost;
        while ((static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80) {
            --end;  // not within a character
        }
        text.replace(end, std::string::npos, "...");
    }
    return text;
}

}  // namespace

/// What a Player is: where in the recording the answers to which requests lie.
class Index {
public:
    Index(const std::filesystem::path& file, PlayerOptions options)
        : m_file(std::make_unique<std::ifstream>(file, std::ios::binary)),
          m_in(m_file.get()),
          m_options(std::move(options)) {
        if (!*m_file) {
            m_error = "the file can't be opened: " + recording::SystemError();
            return;
        }
        Build();
    }
    Index(std::istream& in, PlayerOptions options) : m_in(&in), m_options(std::move(options)) { Build(); }

    const std::string& Error() const { return m_error; }
    const std::vector<RecordingFault>& Faults() const { return m_faults; }
    std::uint64_t FaultCount() const { return m_faultCount; }
    std::size_t Count() const { return m_exchanges.size(); }

    PlayedAnswer Answer(const CKRMBaseAdaptationData& request) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_error.empty()) {
            return Failed(m_error);
        }
        const krm_ulong type = request.GetCommandType();
        const krm_ulong id = request.GetCommandID();
        const MessageDescription* const description = recording::Find(Own(), type, id, Direction::Send);
        if (description == nullptr) {
            return Failed("there is no request of type " + std::to_string(type) + ", ID " + std::to_string(id));
        }
        const ConstValue content = description->ContentOf(request).value();
        const auto found = m_byKey.find(KeyOf(*description, content));
        return found != m_byKey.end() ? Play(m_groups[found->second], *description) : Miss(*description, content);
    }

private:
    // How many different requests of a command are looked at for the nearest one, and how many of its differences are told.
    static constexpr std::size_t kMostNear = 1000;
    static constexpr std::size_t kMostDifferences = 5;

    std::span<const MessageDescription> Own() const { return m_options.reading.ownMessages; }

    static PlayedAnswer Failed(std::string error, std::uint64_t exchange = 0) {
        return {nullptr, nullptr, exchange, std::move(error)};
    }

    void AddFault(RecordingFault fault) {
        if (m_faultCount++ < kMaxKeptFaults) {
            m_faults.push_back(std::move(fault));
        }
    }

    CompareOptions ComparedWith(bool forOtherClassesToo) const {
        CompareOptions options;
        options.ignore = m_options.leaveOut;
        options.forOtherClassesToo = forOtherClassesToo;
        return options;
    }

    /// Sets m_error where a pattern is wrong, or fits no request.
    void CheckPatterns() {
        for (const std::string& pattern : m_options.leaveOut) {
            CompareOptions options;
            options.ignore = {pattern};
            std::optional<std::string> error = "";
            for (const std::span<const MessageDescription> messages : {Own(), AllMessages()}) {
                for (const MessageDescription& message : messages) {
                    comparing::Rules rules;
                    if (error && message.direction == Direction::Send) {
                        error = comparing::Add(options, *message.content, rules);
                    }
                }
            }
            comparing::Rules rules;
            options.forOtherClassesToo = true;
            if (const std::optional<std::string> badlyWritten =
                    comparing::Add(options, *AllMessages().front().content, rules)) {
                m_error = *badlyWritten;
            } else if (error) {
                m_error = "no request has what \"" + pattern + "\" names";
            }
        }
    }

    const comparing::Rules* RulesOf(const MessageDescription& description) {
        if (m_options.leaveOut.empty()) {
            return nullptr;
        }
        const auto [entry, isNew] = m_rules.try_emplace(&description);
        if (isNew) {
            comparing::Add(ComparedWith(true), *description.content, entry->second);
        }
        return &entry->second;
    }

    Key KeyOf(const MessageDescription& description, ConstValue content) {
        KeyMaker maker;
        maker.AddNumber(description.type);
        maker.AddNumber(description.id);
        maker.AddValue(content, RulesOf(description));
        return maker.Take();
    }

    void Build() {
        CheckPatterns();
        if (!m_error.empty()) {
            return;
        }
        m_start = m_in->tellg();
        if (m_start == std::streampos(-1)) {
            m_error = "what is played must be a file that can be read at any place";
            return;
        }
        recording::Lines lines(*m_in, std::min<std::size_t>(m_options.reading.maxLine, kNone));
        const recording::FirstLine first = recording::ReadFirstLine(lines);
        if (!first.fault.text.empty()) {
            m_error = ToText(first.fault);
            return;
        }
        std::unordered_map<std::uint64_t, std::uint32_t> unanswered;  // by the exchange's number
        while (lines.Next()) {
            RecordingFault fault;
            if (const auto envelope = recording::ReadEnvelope(lines, fault)) {
                const Place place = {lines.Offset(), lines.Number(), static_cast<std::uint32_t>(lines.Text().size())};
                // Without a direction that is plain to see the message must be read to know.
                const MessageFromJson read = envelope->direction != Direction::Receive
                                                 ? recording::ReadMessage(*envelope, Own(), fault)
                                                 : MessageFromJson();
                if (read && read.description->direction == Direction::Send) {
                    AddRequest(*envelope, place, read, unanswered);
                } else if (fault.text.empty()) {
                    AddAnswer(*envelope, place, unanswered, fault);
                }
            }
            if (!fault.text.empty()) {
                AddFault(std::move(fault));
            }
        }
        if (lines.Failed()) {
            m_error = "the file can't be read";
        }
    }

    void AddRequest(const recording::Envelope& envelope, const Place& place, const MessageFromJson& request,
                    std::unordered_map<std::uint64_t, std::uint32_t>& unanswered) {
        const Key key = KeyOf(*request.description, request.description->ContentOf(*request.message).value());
        const auto index = static_cast<std::uint32_t>(m_exchanges.size());
        m_exchanges.push_back({envelope.exchange, {}});
        const auto [entry, isNew] = m_byKey.try_emplace(key, static_cast<std::uint32_t>(m_groups.size()));
        if (isNew) {
            m_groups.push_back({place, envelope.exchange, 0, index, index});
            std::vector<std::uint32_t>& ofCommand = m_byCommand[{envelope.type, envelope.id}];
            if (ofCommand.size() < kMostNear) {
                ofCommand.push_back(entry->second);
            }
        } else {
            m_exchanges[m_groups[entry->second].last].next = index;
            m_groups[entry->second].last = index;
        }
        ++m_groups[entry->second].count;
        unanswered[envelope.exchange] = index;
    }

    void AddAnswer(const recording::Envelope& envelope, const Place& place,
                   std::unordered_map<std::uint64_t, std::uint32_t>& unanswered, RecordingFault& fault) {
        const auto waiting = unanswered.find(envelope.exchange);
        if (waiting == unanswered.end()) {
            fault = {place.line, envelope.exchangeOffset, "$.exchange",
                     "the answer belongs to no request: none of exchange " + std::to_string(envelope.exchange) +
                         " waits for one",
                     false};
            return;
        }
        m_exchanges[waiting->second].answer = place;
        unanswered.erase(waiting);
    }

    /// Reads the message of a line; what is wrong is in `fault`, and there is no message then.
    MessageFromJson Read(const Place& place, RecordingFault& fault) {
        std::string text(place.length, '\0');
        m_in->clear();
        m_in->seekg(m_start + static_cast<std::streamoff>(place.offset));
        m_in->read(text.data(), static_cast<std::streamsize>(text.size()));
        if (static_cast<std::size_t>(m_in->gcount()) != text.size()) {
            fault = {place.line, place.offset, "", "the line can't be read any more", false};
            return {};
        }
        const auto envelope = recording::ReadEnvelope(text, place.line, place.offset, fault);
        return envelope ? recording::ReadMessage(*envelope, Own(), fault) : MessageFromJson();
    }

    PlayedAnswer Play(Group& group, const MessageDescription& description) {
        std::uint32_t index = group.turn;
        if (index == kNone && m_options.usedUp == PlayerOptions::UsedUp::LastAgain) {
            // Where none of them had an answer, the last one tells so.
            index = group.again != kNone ? group.again : group.last;
        }
        if (index == kNone) {
            return Failed("this " + std::string(description.command) + " request was recorded " +
                          std::to_string(group.count) + " times, and as often it has been answered");
        }
        const Exchange& exchange = m_exchanges[index];
        if (group.turn != kNone) {
            group.turn = exchange.next;
            group.again = exchange.answer.length != 0 ? index : group.again;
        }
        const std::string name = "exchange " + std::to_string(exchange.number);
        if (exchange.answer.length == 0) {
            return Failed(name + ": the recorded " + std::string(description.command) + " request has no answer",
                          exchange.number);
        }
        RecordingFault fault;
        MessageFromJson answer = Read(exchange.answer, fault);
        if (!answer) {
            return Failed(name + ": " + ToText(fault), exchange.number);
        }
        return {std::move(answer.message), answer.description, exchange.number, {}};
    }

    PlayedAnswer Miss(const MessageDescription& description, ConstValue content) {
        const std::string command(description.command);
        const auto ofCommand = m_byCommand.find({description.type, description.id});
        if (ofCommand == m_byCommand.end()) {
            return Failed("no " + command + " request was recorded");
        }
        const Comparer comparer(*description.content, ComparedWith(true));
        std::optional<Comparison> least;
        std::uint64_t nearest = 0;
        for (const std::uint32_t index : ofCommand->second) {
            RecordingFault fault;
            const MessageFromJson recorded = Read(m_groups[index].request, fault);
            if (recorded && recorded.description == &description) {
                Comparison comparison = comparer.Compare(description.ContentOf(*recorded.message).value(), content);
                if (!least || comparison.differences.size() < least->differences.size()) {
                    least = std::move(comparison);
                    nearest = m_groups[index].number;
                }
            }
        }
        std::string error = "no equal " + command + " request was recorded";
        if (least) {
            error += "; the nearest is that of exchange " + std::to_string(nearest);
            for (std::size_t i = 0; i < std::min(least->differences.size(), kMostDifferences); ++i) {
                error += (i == 0 ? ": " : "; ") + Shortened(ToText(least->differences[i]));
            }
            if (least->differences.size() > kMostDifferences) {
                error += "; and " + std::to_string(least->differences.size() - kMostDifferences) + " more";
            }
        }
        return Failed(std::move(error));
    }

    std::mutex m_mutex;
    std::unique_ptr<std::ifstream> m_file;  // null where the stream is the caller's
    std::istream* m_in;
    std::streampos m_start;
    PlayerOptions m_options;
    std::string m_error;
    std::vector<RecordingFault> m_faults;
    std::uint64_t m_faultCount = 0;
    std::map<const MessageDescription*, comparing::Rules> m_rules;  // of requests, as they are needed
    std::vector<Exchange> m_exchanges;
    std::vector<Group> m_groups;
    std::unordered_map<Key, std::uint32_t, HashOfKey> m_byKey;                          // groups
    std::map<std::pair<krm_ulong, krm_ulong>, std::vector<std::uint32_t>> m_byCommand;  // groups, by type and ID
};

}  // namespace krm::playing

namespace krm {

Player::Player(const std::filesystem::path& recording, PlayerOptions options)
    : m_index(std::make_unique<playing::Index>(recording, std::move(options))) {}
Player::Player(std::istream& recording, PlayerOptions options)
    : m_index(std::make_unique<playing::Index>(recording, std::move(options))) {}
Player::~Player() = default;
Player::Player(Player&& other) noexcept = default;
Player& Player::operator=(Player&& other) noexcept = default;

const std::string& Player::Error() const {
    return m_index->Error();
}

const std::vector<RecordingFault>& Player::Faults() const {
    return m_index->Faults();
}

std::uint64_t Player::FaultCount() const {
    return m_index->FaultCount();
}

std::size_t Player::Count() const {
    return m_index->Count();
}

PlayedAnswer Player::Answer(const CKRMBaseAdaptationData& request) {
    return m_index->Answer(request);
}

}  // namespace krm
