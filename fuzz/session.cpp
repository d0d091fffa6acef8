// The example's diagnosis session on input that nobody wrote: recordings, item tables, scalings, and whole sessions.
//
// The first byte says which, so that corpus files are texts: 0 a recording, 1 an item table, 2 a scaling (lines: factor,
// divisor, offset, bits), 3 a session with the example's own item table, 4 a session with a table of the input's own,
// which ends at the first line that begins with "====".
#include <sys/mman.h>
#include <unistd.h>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <sstream>

#include "examples/diagnosis_session/exchange.h"
#include "examples/diagnosis_session/item_table.h"
#include "examples/diagnosis_session/scaling.h"
#include "examples/diagnosis_session/session.h"
#include "fuzz/support/input.h"

namespace {

using namespace diagnosis_session;
using krm::fuzz::Input;

std::size_t LinesOf(const std::string& text) {
    return 1 + static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

/// Complaints name a line of the text that they are about, and say something.
class Heard {
public:
    explicit Heard(const std::string& text) : m_lines(LinesOf(text)) {}

    Complain Complain() {
        return [this](const Place& place, const std::string& what) {
            KRM_FUZZ_CHECK(place.line >= 1 && place.line <= m_lines && !what.empty());
            ++m_count;
        };
    }
    std::size_t Count() const { return m_count; }

private:
    std::size_t m_lines;
    std::size_t m_count = 0;
};

void ReadRecording(const std::string& text) {
    Heard heard(text);
    const std::vector<Exchange> exchanges = ReadExchanges(text, heard.Complain());
    std::size_t number = 0;
    std::size_t line = 0;
    std::size_t bytes = 0;
    for (const Exchange& exchange : exchanges) {
        KRM_FUZZ_CHECK(exchange.number == ++number);
        KRM_FUZZ_CHECK(exchange.line > line && exchange.line <= LinesOf(text));
        KRM_FUZZ_CHECK(!exchange.request.empty() && exchange.request.size() <= 4095);
        line = exchange.line;
        bytes += exchange.request.size();
        for (const EcuAnswer& answer : exchange.answers) {
            KRM_FUZZ_CHECK(answer.line > exchange.line && !answer.bytes.empty() && answer.bytes.size() <= 4095);
            KRM_FUZZ_CHECK(answer.IsNegative()
                               ? answer.bytes.size() >= 2 && answer.bytes[1] == exchange.Service()
                               : answer.bytes[0] == static_cast<std::uint8_t>(exchange.Service() + 0x40U));
            bytes += answer.bytes.size();
        }
    }
    KRM_FUZZ_CHECK(bytes * 2 <= text.size());  // every byte stood there, as two digits
}

void ReadTable(const std::string& text) {
    Heard heard(text);
    const ItemTable table = ItemTable::Parse(text, heard.Complain());
    KRM_FUZZ_CHECK(table.IsUsable() || (heard.Count() == 1 && table.Commands().empty()));
    unsigned number = 0;
    for (const ItemCommand& command : table.Commands()) {
        KRM_FUZZ_CHECK(!command.request.empty());
        const ItemCommand* const found = table.Find(command.request, command.ecu.value_or(0x7E8));
        KRM_FUZZ_CHECK(found != nullptr && found->request == command.request);
        for (const Item& item : command.items) {
            KRM_FUZZ_CHECK(item.number == ++number);
            KRM_FUZZ_CHECK(item.length >= 1 && item.length <= 32 && item.EndBit() <= command.DataLength() * 8);
            KRM_FUZZ_CHECK(item.scaling.div >= 1);
            KRM_FUZZ_CHECK(item.hasMap || item.map.empty());
            KRM_FUZZ_CHECK(std::is_sorted(item.map.begin(), item.map.end()));
        }
    }
}

std::string TakeLine(std::string& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string line = text.substr(0, end);
    text.erase(0, end + 1);
    return line;
}

/// The number of a text that is one in every grammar.
std::optional<long double> NumberOf(const std::string& text) {
    if (text.find_first_not_of("0123456789.eE+-") != std::string::npos || text.find('+') == 0) {
        return std::nullopt;
    }
    char* end = nullptr;
    const long double number = std::strtold(text.c_str(), &end);
    return text.empty() || *end != '\0' ? std::nullopt : std::optional(number);
}

void Scale(std::string text) {
    const std::string mul = TakeLine(text);
    const std::string div = TakeLine(text);
    const std::string add = TakeLine(text);
    const unsigned bits = static_cast<unsigned>(std::atoi(text.substr(0, 2).c_str())) % 32U + 1U;
    const std::optional<Scaling> scaling = ScalingOf(mul, div, add, bits);
    if (!scaling) {
        return;
    }
    KRM_FUZZ_CHECK(scaling->div >= 1);
    const auto factor = NumberOf(mul);
    const auto divisor = NumberOf(div);
    const auto offset = NumberOf(add);
    if (!factor || !divisor || !offset || *divisor == 0) {
        return;
    }
    for (const long double raw : {0.0L, 1.0L, std::ldexp(1.0L, static_cast<int>(bits)) - 1}) {
        const long double scaled = raw * *factor / *divisor;
        const long double asked = scaled + *offset;
        const long double got =
            (raw * scaling->mul / scaling->div + scaling->offset) / std::pow(10.0L, scaling->decimals);
        // A tenth of the last place shown; beside it only what a number of so many digits loses anyway.
        const long double allowed = 0.1L * std::pow(10.0L, -kShownDecimals) * 1.001L;
        KRM_FUZZ_CHECK(!std::isfinite(asked) ||
                       std::fabs(got - asked) <= allowed + 1e-12L * (std::fabs(scaled) + std::fabs(*offset)));
    }
}

/// A file in memory, with a path like any other.
class MemoryFile {
public:
    explicit MemoryFile(const char* name) : m_descriptor(memfd_create(name, 0)) { KRM_FUZZ_CHECK(m_descriptor >= 0); }
    ~MemoryFile() { close(m_descriptor); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    std::string Path() const { return "/proc/self/fd/" + std::to_string(m_descriptor); }
    void Write(const std::string& text) const {
        KRM_FUZZ_CHECK(ftruncate(m_descriptor, 0) == 0);
        KRM_FUZZ_CHECK(pwrite(m_descriptor, text.data(), text.size(), 0) == static_cast<ssize_t>(text.size()));
    }
    std::string Read() const {
        std::string text(static_cast<std::size_t>(lseek(m_descriptor, 0, SEEK_END)), '\0');
        KRM_FUZZ_CHECK(pread(m_descriptor, text.data(), text.size(), 0) == static_cast<ssize_t>(text.size()));
        return text;
    }

private:
    int m_descriptor;
};

/// The number of records; each has as many fields as the header.
std::size_t RecordsOfCsv(const std::string& text) {
    std::size_t records = 0;
    std::size_t commas = 0;
    bool quoted = false;
    for (const char character : text) {
        if (character == '"') {
            quoted = !quoted;  // two in a row, which stand for one, leave it as it was
        } else if (!quoted && character == ',') {
            ++commas;
        } else if (!quoted && character == '\n') {
            KRM_FUZZ_CHECK(commas == 9);
            commas = 0;
            ++records;
        }
    }
    KRM_FUZZ_CHECK(!quoted && commas == 0);
    return records - 1;
}

void RunSession(const std::string* table, const std::string& recording) {
    static const MemoryFile recordingFile("recording");
    static const MemoryFile tableFile("table");
    static const MemoryFile valuesFile("values");
    recordingFile.Write(recording);
    valuesFile.Write("");
    std::vector<std::string> arguments = {"diagnosis_session", recordingFile.Path()};
    if (table != nullptr) {
        tableFile.Write(*table);
        arguments.push_back(tableFile.Path());
    }
    arguments.insert(arguments.end(), {"--operation-log", "/dev/null", "--values", valuesFile.Path()});
    std::ostringstream out;
    std::ostringstream err;
    const int status = RunDiagnosisSession(arguments, out, err);

    // What is no recording at all is said to be something else. Else every line told names a file and a line of it, but
    // for the last ones, which count what is not told; and there is none where all was good.
    std::string told = err.str();
    const bool isPacked = recording.rfind("\x1F\x8B", 0) == 0;
    if (status == kFailed) {
        // Nothing is decoded then, but of packed data that is damaged further on.
        const std::size_t failure = told.find("diagnosis_session: " + recordingFile.Path() + ": ");
        KRM_FUZZ_CHECK(isPacked ? failure != std::string::npos : failure == 0 && out.str().empty());
        return;
    }
    KRM_FUZZ_CHECK(status == (told.empty() ? kGood : kBadInput));
    while (!told.empty()) {
        const std::string line = TakeLine(told);
        const bool isTable = table != nullptr && line.rfind(tableFile.Path() + ':', 0) == 0;
        const std::string path = isTable ? tableFile.Path() : recordingFile.Path();
        KRM_FUZZ_CHECK(line.rfind(path + ':', 0) == 0);
        if (line.find(" not shown") != std::string::npos && line.rfind(path + ": ", 0) == 0) {
            continue;
        }
        char* end = nullptr;
        const unsigned long number = std::strtoul(line.c_str() + path.size() + 1, &end, 10);
        // How many lines were packed is not seen here.
        KRM_FUZZ_CHECK(number >= 1 && ((isPacked && !isTable) || number <= LinesOf(isTable ? *table : recording)));
        KRM_FUZZ_CHECK(end[0] == ':');
        if (end[1] != ' ') {
            KRM_FUZZ_CHECK(std::strtoul(end + 1, &end, 10) >= 1 && end[0] == ':');
        }
        KRM_FUZZ_CHECK(end[1] == ' ' && end[2] != '\0');
    }

    // The last line counts, and the values are as many as it says.
    std::string text = out.str();
    KRM_FUZZ_CHECK(!text.empty() && text.back() == '\n');
    text.pop_back();
    const std::size_t lastLine = text.rfind('\n') + 1;  // npos + 1 is 0
    std::size_t exchanges = 0;
    std::size_t values = 0;
    KRM_FUZZ_CHECK(std::sscanf(text.c_str() + lastLine, "%zu exchange%*[s,] %zu value", &exchanges, &values) == 2);
    KRM_FUZZ_CHECK(RecordsOfCsv(valuesFile.Read()) == values);
}

void RunSessionWithTable(std::string text) {
    constexpr const char* kMark = "\n====";
    const std::size_t mark = std::min(text.find(kMark), text.size());
    const std::string table = text.substr(0, mark);
    text.erase(0, mark + 1);
    TakeLine(text);
    RunSession(&table, text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const std::uint8_t what = input.Byte();
    std::string text = input.Rest();
    switch (what % 8) {
        case 0:
            ReadRecording(text);
            break;
        case 1:
            ReadTable(text);
            break;
        case 2:
            Scale(std::move(text));
            break;
        case 3:
            RunSession(nullptr, text);
            break;
        default:
            RunSessionWithTable(std::move(text));
            break;
    }
    return 0;
}
