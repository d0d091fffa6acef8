#include "krm/exchange/recording.h"

#include <algorithm>
#include <fstream>
#include <mutex>
#include <system_error>
#include <utility>

#include "krm/exchange/internal/json_form.h"
#include "krm/exchange/internal/line_file.h"
#include "krm/exchange/internal/recording_lines.h"

namespace krm {

std::string ToText(const RecordingFault& fault) {
    std::string text;
    if (fault.line != 0) {
        text = "line " + std::to_string(fault.line) + ", offset " + std::to_string(fault.offset);
        if (!fault.path.empty()) {
            text += ", " + fault.path;
        }
        text += ": ";
    }
    return text + fault.text;
}

namespace recording {

/// What a Recorder is.
class Writer {
public:
    Writer(Recorder::Sink sink, Recorder::Clock now) : m_sink(std::move(sink)), m_now(std::move(now)) {
        if (m_sink) {
            WriteHeader();
        } else {
            m_error = "there is no sink";
        }
    }

    Writer(const std::filesystem::path& file, RecordingMode mode, Recorder::Clock now) : m_now(std::move(now)) {
        bool isBegun = false;
        if (mode == RecordingMode::Append) {
            isBegun = FindEnd(file);
        }
        if (m_error.empty()) {
            m_error = m_file.Open(file, mode);
        }
        m_isOpen = m_error.empty();
        if (m_isOpen && !isBegun) {
            WriteHeader();
        }
    }

    std::string Error() {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_error;
    }

    std::uint64_t BeginExchange() {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return ++m_lastExchange;
    }

    /// `time` is null for now.
    RecordingResult Write(std::uint64_t exchange, const RecordedTime* time, const CKRMBaseAdaptationData& message,
                          const MessageDescription& description) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_bytes = m_header;
        if (m_isTorn) {
            m_bytes += '\n';
        }
        const RecordedTime when = time != nullptr ? *time : std::chrono::floor<std::chrono::microseconds>(m_now());
        if (!AppendLine(exchange, when, message, description, m_bytes)) {
            return Fail("the message is no " + std::string(description.className) + ": its " +
                        TypeAndIdOf(message.GetCommandType(), message.GetCommandID()));
        }
        m_lastExchange = std::max(m_lastExchange, exchange);
        RecordingResult result = HandOver();
        if (m_bytes.capacity() > kMostKept) {
            m_bytes = std::string();
        }
        return result;
    }

    RecordingResult FailAs(std::string error) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return Fail(std::move(error));
    }

    static std::string TypeAndIdOf(krm_ulong type, krm_ulong id) {
        return "type is " + std::to_string(type) + ", its ID " + std::to_string(id);
    }

private:
    // Room for a line that is kept for the next one.
    static constexpr std::size_t kMostKept = std::size_t{1024} * 1024;

    RecordingResult Fail(std::string error) {
        m_error = std::move(error);
        return {m_error};
    }

    void WriteHeader() {
        m_header = Header();
        m_bytes = m_header;
        HandOver();
    }

    /// Goes through a recording that is to be continued. Whether there is one; m_error says what is wrong with it.
    bool FindEnd(const std::filesystem::path& file) {
        std::error_code ignored;
        if (!std::filesystem::exists(file, ignored)) {
            return false;
        }
        if (!std::filesystem::is_regular_file(file, ignored)) {
            m_error = "what isn't a regular file can't be continued";
            return false;
        }
        std::ifstream in(file, std::ios::binary);
        if (!in) {
            m_error = "the file can't be read: " + SystemError();
            return false;
        }
        if (in.peek() == std::ifstream::traits_type::eof() && !in.bad()) {
            return false;  // of a program that ended before its first line
        }
        in.clear();
        Lines lines(in, kMaxRecordingLine);
        m_error = ReadFirstLine(lines).fault.text;
        m_isTorn = !lines.Ended();
        RecordingFault fault;
        while (m_error.empty() && lines.Next()) {
            m_isTorn = !lines.Ended();
            if (const std::optional<Envelope> envelope = ReadEnvelope(lines, fault)) {
                m_lastExchange = std::max(m_lastExchange, envelope->exchange);
            }
        }
        if (m_error.empty() && lines.Failed()) {
            m_error = "the file can't be read";
        }
        return m_error.empty();
    }

    /// Hands over m_bytes, which begin with m_header.
    RecordingResult HandOver() {
        if (!m_sink && !m_isOpen) {
            return {m_error};
        }
        std::string error;
        const bool wasTorn = std::exchange(m_isTorn, true);  // as a sink that throws leaves it
        std::size_t taken = 0;
        if (m_sink) {
            taken = std::min(m_sink(m_bytes), m_bytes.size());
            if (taken < m_bytes.size()) {
                error = "the sink took " + std::to_string(taken) + " of " + std::to_string(m_bytes.size()) + " bytes";
            }
        } else {
            taken = m_file.Write(m_bytes, error);
        }
        // The first line goes on where it stopped. The rest of any other is lost, and the next begins behind it.
        const std::size_t ofHeader = std::min(taken, m_header.size());
        m_isTorn = taken > ofHeader ? m_bytes[taken - 1] != '\n' : wasTorn;
        m_header.erase(0, ofHeader);
        return error.empty() ? RecordingResult() : Fail(std::move(error));
    }

    std::mutex m_mutex;
    Recorder::Sink m_sink;  // empty for a file
    LineFile m_file;
    bool m_isOpen = false;
    Recorder::Clock m_now;
    std::string m_header;   // what the file still lacks of the first line
    bool m_isTorn = false;  // whether the file ends within a line other than the first
    std::string m_bytes;    // what is handed over
    std::string m_error;
    std::uint64_t m_lastExchange = 0;
};

/// What a RecordingReader is.
class Reader {
public:
    Reader(const std::filesystem::path& file, const RecordingReadOptions& options)
        : m_file(std::make_unique<std::ifstream>(file, std::ios::binary)),
          m_openError(*m_file ? std::string() : "the file can't be opened: " + SystemError()),
          m_lines(*m_file, options.maxLine),
          m_own(options.ownMessages) {}
    Reader(std::istream& in, const RecordingReadOptions& options)
        : m_lines(in, options.maxLine), m_own(options.ownMessages) {}

    const std::string& Library() const { return m_library; }

    std::optional<RecordedMessage> Next() {
        RecordedMessage recorded;
        if (m_isAtEnd) {
            return std::nullopt;
        }
        if (!std::exchange(m_isBegun, true)) {
            if (!m_openError.empty()) {
                recorded.fault.text = m_openError;
            } else {
                FirstLine first = ReadFirstLine(m_lines);
                m_library = std::move(first.library);
                recorded.fault = std::move(first.fault);
            }
            if (!recorded.fault.text.empty()) {
                m_isAtEnd = true;
                recorded.line = recorded.fault.line;
                return recorded;
            }
        }
        if (!m_lines.Next()) {
            m_isAtEnd = true;
            if (m_lines.Failed()) {
                recorded.fault.text = "the rest of the file can't be read";
                return recorded;
            }
            return std::nullopt;
        }
        recorded.line = m_lines.Number();
        recorded.offset = m_lines.Offset();
        if (const std::optional<Envelope> envelope = ReadEnvelope(m_lines, recorded.fault)) {
            recorded.exchange = envelope->exchange;
            recorded.time = envelope->time;
            MessageFromJson read = ReadMessage(*envelope, m_own, recorded.fault);
            recorded.message = std::move(read.message);
            recorded.description = read.description;
        }
        return recorded;
    }

private:
    std::unique_ptr<std::ifstream> m_file;  // null where the stream is the caller's
    std::string m_openError;
    Lines m_lines;
    std::span<const MessageDescription> m_own;
    bool m_isBegun = false;
    bool m_isAtEnd = false;
    std::string m_library;
};

}  // namespace recording

Recorder::Recorder(const std::filesystem::path& file, RecordingMode mode, Clock now)
    : m_writer(std::make_unique<recording::Writer>(file, mode, std::move(now))) {}
Recorder::Recorder(Sink sink, Clock now)
    : m_writer(std::make_unique<recording::Writer>(std::move(sink), std::move(now))) {}
Recorder::~Recorder() = default;
Recorder::Recorder(Recorder&& other) noexcept = default;
Recorder& Recorder::operator=(Recorder&& other) noexcept = default;

std::string Recorder::Error() const {
    return m_writer->Error();
}

std::uint64_t Recorder::BeginExchange() {
    return m_writer->BeginExchange();
}

RecordingResult Recorder::Write(std::uint64_t exchange, const CKRMBaseAdaptationData& message,
                                const MessageDescription& description) {
    return m_writer->Write(exchange, nullptr, message, description);
}

RecordingResult Recorder::Write(std::uint64_t exchange, const CKRMBaseAdaptationData& message, Direction direction) {
    const krm_ulong type = message.GetCommandType();
    const krm_ulong id = message.GetCommandID();
    const MessageDescription* const description = FindMessage(type, id, direction);
    if (description == nullptr) {
        return m_writer->FailAs("the library has no such " + std::string(json::NameOf(direction)) + ": its " +
                                recording::Writer::TypeAndIdOf(type, id));
    }
    return m_writer->Write(exchange, nullptr, message, *description);
}

RecordingResult Recorder::Write(const RecordedMessage& recorded) {
    if (!recorded) {
        return m_writer->FailAs("there is no message: " + ToText(recorded.fault));
    }
    return m_writer->Write(recorded.exchange, &recorded.time, *recorded.message, *recorded.description);
}

RecordingReader::RecordingReader(const std::filesystem::path& file, const RecordingReadOptions& options)
    : m_reader(std::make_unique<recording::Reader>(file, options)) {}
RecordingReader::RecordingReader(std::istream& in, const RecordingReadOptions& options)
    : m_reader(std::make_unique<recording::Reader>(in, options)) {}
RecordingReader::~RecordingReader() = default;
RecordingReader::RecordingReader(RecordingReader&& other) noexcept = default;
RecordingReader& RecordingReader::operator=(RecordingReader&& other) noexcept = default;

const std::string& RecordingReader::Library() const {
    return m_reader->Library();
}

std::optional<RecordedMessage> RecordingReader::Next() {
    return m_reader->Next();
}

}  // namespace krm
