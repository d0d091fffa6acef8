// Recordings: any bytes are read to their end, what is read writes a recording that reads back the same, whole lines don't
// depend on what follows them, a player answers, and a redacted copy holds nothing of the VIN.
#include <algorithm>
#include <cstdlib>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "fuzz/support/input.h"
#include "krm/exchange/json.h"
#include "krm/exchange/player.h"
#include "krm/exchange/recording.h"
#include "krm/exchange/redact.h"
#include "krm/messages/diag/vehicle.h"
#include "krm/platform/string.h"

namespace {

/// What a line says.
struct Entry {
    std::uint64_t line;
    std::uint64_t exchange;
    krm::RecordedTime time;
    std::string json;

    friend bool operator==(const Entry&, const Entry&) = default;
};

/// What a reader gives.
struct Content {
    std::vector<krm::RecordedMessage> messages;
    std::vector<krm::RecordingFault> faults;

    std::vector<Entry> Entries() const {
        std::vector<Entry> entries;
        for (const krm::RecordedMessage& one : messages) {
            entries.push_back({one.line, one.exchange, one.time, krm::ToJson(*one.message, *one.description)});
        }
        return entries;
    }
};

Content Read(const std::string& bytes) {
    std::istringstream in(bytes);
    krm::RecordingReader reader(in);
    Content content;
    std::uint64_t line = 0;
    while (std::optional<krm::RecordedMessage> recorded = reader.Next()) {
        const std::uint64_t here = *recorded ? recorded->line : recorded->fault.line;
        // That a file is empty is about no line of it, and the only fault.
        KRM_FUZZ_CHECK(here > line || (here == 0 && content.faults.empty() && content.messages.empty()));
        line = here;
        if (*recorded) {
            KRM_FUZZ_CHECK(recorded->description != nullptr && recorded->fault.text.empty());
            KRM_FUZZ_CHECK(recorded->offset < bytes.size());
            content.messages.push_back(std::move(*recorded));
        } else {
            KRM_FUZZ_CHECK(!recorded->fault.text.empty() && recorded->fault.offset <= bytes.size());
            KRM_FUZZ_CHECK(krm::ToText(recorded->fault).find('\n') == std::string::npos);
            content.faults.push_back(recorded->fault);
        }
    }
    KRM_FUZZ_CHECK(!reader.Next().has_value());
    return content;
}

/// What a recorder makes of it.
std::string Written(const Content& content) {
    std::string bytes;
    krm::Recorder recorder([&](std::string_view line) {
        KRM_FUZZ_CHECK(std::count(line.begin(), line.end(), '\n') == 1 && line.back() == '\n');
        bytes += line;
        return line.size();
    });
    for (const krm::RecordedMessage& message : content.messages) {
        KRM_FUZZ_CHECK(recorder.Write(message));
    }
    return bytes;
}

void CheckWritten(const Content& content) {
    const std::string written = Written(content);
    const Content again = Read(written);
    KRM_FUZZ_CHECK(again.faults.empty() && again.messages.size() == content.messages.size());
    std::vector<Entry> expected = content.Entries();
    for (std::size_t i = 0; i < expected.size(); ++i) {
        expected[i].line = i + 2;
    }
    KRM_FUZZ_CHECK(again.Entries() == expected);
    KRM_FUZZ_CHECK(Written(again) == written);
}

/// The whole lines of a part from the beginning are read as they are in the whole; at most one line more is told about.
void CheckPrefix(const std::string& bytes, const Content& content, std::size_t length) {
    const std::string prefix = bytes.substr(0, length);
    const auto lines = static_cast<std::uint64_t>(std::count(prefix.begin(), prefix.end(), '\n'));
    const Content part = Read(prefix);
    const auto ofWholeLines = [&](const Content& one) {
        std::vector<Entry> entries = one.Entries();
        std::erase_if(entries, [&](const Entry& entry) { return entry.line > lines; });
        return entries;
    };
    KRM_FUZZ_CHECK(ofWholeLines(part) == ofWholeLines(content));
    for (const krm::RecordingFault& fault : part.faults) {
        KRM_FUZZ_CHECK(fault.line <= lines + 1);
    }
}

void CheckPlayer(const std::string& bytes, const Content& content, bool again) {
    std::istringstream in(bytes);
    krm::PlayerOptions options;
    options.usedUp = again ? krm::PlayerOptions::UsedUp::LastAgain : krm::PlayerOptions::UsedUp::Fail;
    krm::Player player(in, std::move(options));
    KRM_FUZZ_CHECK(player.Faults().size() <= player.FaultCount());
    std::size_t requests = 0;
    for (const krm::RecordedMessage& message : content.messages) {
        if (message.description->direction == krm::Direction::Send) {
            ++requests;
            const krm::PlayedAnswer played = player.Answer(*message.message);
            KRM_FUZZ_CHECK(static_cast<bool>(played) == played.error.empty());
            KRM_FUZZ_CHECK(!played || played.description->direction == krm::Direction::Receive);
            KRM_FUZZ_CHECK(played.error.find('\n') == std::string::npos);
        }
    }
    KRM_FUZZ_CHECK(!player.Error().empty() || player.Count() == requests);
}

void CheckRedaction(const std::string& bytes, const Content& content) {
    std::istringstream in(bytes);
    std::ostringstream out;
    krm::Redactor redactor({.secret = "fuzz"});
    const krm::RedactedRecording done = krm::RedactRecording(in, out, redactor);
    if (!done) {
        return;
    }
    KRM_FUZZ_CHECK(done.messages == content.messages.size() && done.faultCount == content.faults.size());
    const Content redacted = Read(out.str());
    KRM_FUZZ_CHECK(redacted.faults.empty() && redacted.messages.size() == content.messages.size());
    for (std::size_t i = 0; i < content.messages.size(); ++i) {
        const krm::RecordedMessage& before = content.messages[i];
        const krm::RecordedMessage& after = redacted.messages[i];
        KRM_FUZZ_CHECK(before.description == after.description && before.time == after.time &&
                       before.exchange == after.exchange);
        const auto* const original = before.As<CKRMCGetVinCodeCmdAdaptDataRcv>();
        if (original == nullptr) {
            continue;
        }
        const std::string_view vin = krm::View(original->m_strVinCode);
        const std::string_view other = krm::View(after.As<CKRMCGetVinCodeCmdAdaptDataRcv>()->m_strVinCode);
        KRM_FUZZ_CHECK(other.size() == vin.size());
        const bool isPlain =
            std::ranges::all_of(vin, [](char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z'); });
        if (isPlain && vin.size() == 17 && vin.find_first_not_of(vin.front()) != std::string_view::npos) {
            KRM_FUZZ_CHECK(out.str().find(vin) == std::string::npos);
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    const Content content = Read(bytes);
    CheckWritten(content);
    // Where it is cut depends on the input, but on nothing that a small change would keep.
    std::size_t cut = size;
    for (const char c : bytes) {
        cut = cut * 31 + static_cast<unsigned char>(c);
    }
    CheckPrefix(bytes, content, cut % (size + 1));
    CheckPlayer(bytes, content, size % 2 == 0);
    CheckRedaction(bytes, content);
    return 0;
}
