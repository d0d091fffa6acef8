#include "cli/outline.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "cli/patterns.h"

namespace krm_cli {
namespace {

/// A number that is 0, or no text: what a new message has as well.
bool IsNothing(std::string_view value) {
    if (value.starts_with("0x")) {
        value.remove_prefix(2);
    }
    return std::all_of(value.begin(), value.end(), [](char character) { return character == '0' || character == '.'; });
}

/// Appends the text as Shown has it.
void AppendShown(std::string_view text, std::string& out) {
    const bool isPlain =
        std::all_of(text.begin(), text.end(), [](char character) { return ' ' <= character && character <= '~'; });
    if (isPlain) {
        out += text;
    } else {
        out += Shown(text);
    }
}

}  // namespace

void Outline::Begin() {
    m_entryCount = 0;
    m_moreEntries = 0;
    m_codes.clear();
    m_codeCount = 0;
    m_element.clear();
}

void Outline::TakeCode(const FieldText& field) {
    const bool mayBe = field.path.ends_with(kCodeName) || field.path.find('[') != std::string_view::npos;
    if (!mayBe || LastName(field.path) != kCodeName || field.value.empty()) {
        return;
    }
    ++m_codeCount;
    if (m_codes.size() < kMostCodes) {
        m_codes.emplace_back(FirstOf(field.value, kMostOfValue));
    }
}

Outline::Entry& Outline::Add(std::string_view name, Kind kind) {
    if (m_entryCount == m_entries.size()) {
        m_entries.emplace_back();
    }
    Entry& entry = m_entries[m_entryCount++];
    entry.name = name;
    entry.kind = kind;
    entry.count = 0;
    entry.value.clear();
    return entry;
}

void Outline::TakeOther(const FieldText& field) {
    TakeCode(field);
    const std::string_view path = field.path;
    if (path == "m_dwCommandType" || path == "m_dwCommandID") {
        return;
    }
    const auto first =
        std::find_if(path.begin(), path.end(), [](char character) { return character == '.' || character == '['; });
    const auto end = static_cast<std::size_t>(first - path.begin());
    const std::string_view name = path.substr(0, end);
    const Kind kind = first == path.end() ? Kind::Value : *first == '[' ? Kind::List : Kind::Record;
    const auto isIt = [&](const Entry& known) { return known.kind == kind && known.name == name; };
    Entry* entry = nullptr;
    if (kind != Kind::Value) {
        const auto newest =
            std::find_if(m_entries.rend() - static_cast<std::ptrdiff_t>(m_entryCount), m_entries.rend(), isIt);
        entry = newest == m_entries.rend() ? nullptr : &*newest;
    }
    if (entry == nullptr) {
        if (m_entryCount == kMostEntries) {
            ++m_moreEntries;
            return;
        }
        entry = &Add(name, kind);
        entry->isCut = field.cutBytes != 0;
    }
    switch (kind) {
        case Kind::Value:
            entry->value = FirstOf(field.value, kMostOfValue);
            entry->isCut = entry->isCut || field.value.size() > kMostOfValue;
            return;
        case Kind::Record:
            m_element = path.substr(0, end + 1);
            return;
        case Kind::List:
            break;
    }
    const std::string_view digits = path.substr(end + 1);
    const std::size_t close = path.find(']', end);
    std::uint64_t index = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), index);
    entry->count = read.ec == std::errc() ? std::max(entry->count, index + 1) : entry->count + 1;
    if (close != std::string_view::npos && close + 1 < path.size()) {
        m_element = path.substr(0, close + 2);
    }
}

const std::string& Outline::StandingOut() {
    std::string& text = m_standingOut;
    text.clear();
    const auto part = [&]() -> std::string& {
        text += text.empty() ? "" : "; ";
        return text;
    };
    if (m_codeCount != 0) {
        part().append(std::to_string(m_codeCount)).append(m_codeCount == 1 ? " code: " : " codes: ");
        for (const std::string& code : m_codes) {
            text += &code == &m_codes.front() ? "" : ", ";
            AppendShown(code, text);
        }
        text += m_codeCount > m_codes.size() ? ", ..." : "";
    }
    constexpr std::size_t kEnough = 100;
    for (const Entry& entry : Entries()) {
        if (entry.name == "m_ulEcuId") {
            continue;  // stands in front
        }
        const bool isNothing = entry.kind == Kind::Value && IsNothing(entry.value);
        if (entry.name == "m_bNotSupport") {
            if (!isNothing) {
                part() += "not supported";
            }
            continue;
        }
        const bool isResult = entry.kind == Kind::Value && entry.name.find("Result") != std::string::npos;
        if (isNothing && !isResult) {
            continue;
        }
        if (entry.kind == Kind::Record ||
            (entry.kind == Kind::List && m_codeCount != 0 && entry.count == m_codeCount)) {
            continue;
        }
        if (text.size() > kEnough) {
            text += "; ...";
            break;
        }
        AppendShown(entry.name, part());
        if (entry.kind == Kind::List) {
            text.append("[").append(std::to_string(entry.count)).append("]");
            continue;
        }
        constexpr std::size_t kLongest = 40;
        text += '=';
        AppendShown(FirstOf(entry.value, kLongest), text);
        text += entry.value.size() > kLongest || entry.isCut ? "..." : "";
    }
    return text;
}

}  // namespace krm_cli
