#include "item_table.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>
#include <nlohmann/json.hpp>

namespace diagnosis_session {
namespace {

using Json = nlohmann::json;

/// Where each object of the document begins is kept in the object itself, under this name.
constexpr const char* kLine = "(line)";

constexpr std::size_t kLongestValue = 32;

/// Walks the text and counts the lines that the JSON parser has read.
class LineCounter {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    LineCounter(const char* at, std::size_t* line) : m_at(at), m_line(line) {}
    reference operator*() const { return *m_at; }
    LineCounter& operator++() {
        *m_line += *m_at == '\n' ? 1U : 0U;
        ++m_at;
        return *this;
    }
    LineCounter operator++(int) {
        LineCounter before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const LineCounter& left, const LineCounter& right) { return left.m_at == right.m_at; }

private:
    const char* m_at;
    std::size_t* m_line;
};

/// What can't be read of one command or item: thrown where it is found, told where the object is known.
struct Unreadable {
    std::string what;
};

std::size_t LineOf(const Json& object, std::size_t otherwise) {
    if (object.is_object()) {
        if (const auto line = object.find(kLine); line != object.end()) {
            return line->get<std::size_t>();
        }
    }
    return otherwise;
}

/// The member `name`, or null where it is absent.
const Json* Member(const Json& object, const char* name) {
    const auto found = object.find(name);
    return found == object.end() ? nullptr : &*found;
}

const Json& Object(const Json& object, const char* name) {
    const Json* const member = Member(object, name);
    if (member == nullptr || !member->is_object()) {
        throw Unreadable{'"' + std::string(name) + "\" is not an object"};
    }
    return *member;
}

std::string Text(const Json& object, const char* name, const char* otherwise) {
    const Json* const member = Member(object, name);
    if (member == nullptr && otherwise != nullptr) {
        return otherwise;
    }
    if (member == nullptr || !member->is_string()) {
        throw Unreadable{'"' + std::string(name) + "\" is not a text"};
    }
    return member->get<std::string>();
}

std::size_t Count(const Json& object, const char* name, std::size_t most, std::optional<std::size_t> otherwise) {
    const Json* const member = Member(object, name);
    if (member == nullptr && otherwise) {
        return *otherwise;
    }
    if (member == nullptr || !member->is_number_unsigned() || member->get<std::uint64_t>() > most) {
        throw Unreadable{'"' + std::string(name) + "\" is not a whole number up to " + std::to_string(most)};
    }
    return member->get<std::size_t>();
}

/// A number as its decimal text: the shortest that names it, and so the one that the table's author wrote.
std::string NumberText(const Json& object, const char* name, const char* otherwise) {
    const Json* const member = Member(object, name);
    if (member == nullptr) {
        return otherwise;
    }
    if (!member->is_number()) {
        throw Unreadable{'"' + std::string(name) + "\" is not a number"};
    }
    return member->dump();
}

std::optional<double> Number(const Json& object, const char* name) {
    const Json* const member = Member(object, name);
    if (member == nullptr) {
        return std::nullopt;
    }
    if (!member->is_number()) {
        throw Unreadable{'"' + std::string(name) + "\" is not a number"};
    }
    return member->get<double>();
}

bool Flag(const Json& object, const char* name) {
    const Json* const member = Member(object, name);
    if (member != nullptr && !member->is_boolean()) {
        throw Unreadable{'"' + std::string(name) + "\" is not true or false"};
    }
    return member != nullptr && member->get<bool>();
}

/// {"0": {"value": "OFF"}, "1": {"value": "ON"}}
std::vector<std::pair<std::uint32_t, std::string>> ReadMap(const Json& map) {
    std::vector<std::pair<std::uint32_t, std::string>> entries;
    for (const auto& [key, entry] : map.items()) {
        if (key == kLine) {
            continue;
        }
        std::uint32_t raw = 0;
        const auto [end, error] = std::from_chars(key.data(), key.data() + key.size(), raw);
        if (error != std::errc() || end != key.data() + key.size()) {
            throw Unreadable{"\"map\" has the key \"" + key + "\", not a raw value in decimal"};
        }
        if (!entry.is_object()) {
            throw Unreadable{"\"map\" has no object for \"" + key + '"'};
        }
        entries.emplace_back(raw, Text(entry, "value", nullptr));
    }
    std::sort(entries.begin(), entries.end());
    return entries;
}

Item ReadItem(const Json& signal) {
    Item item;
    item.id = Text(signal, "id", nullptr);
    item.name = Text(signal, "name", "");
    const Json& format = Object(signal, "fmt");
    item.bit = Count(format, "bix", 8 * 4095, 0);
    item.length = Count(format, "len", std::numeric_limits<std::uint32_t>::max(), std::nullopt);
    if (item.length == 0) {
        throw Unreadable{"\"len\" is 0"};
    }
    if (item.length > kLongestValue) {
        throw Unreadable{std::to_string(item.length) + " bits long; a value has at most 32"};
    }
    item.isSigned = Flag(format, "sign");
    item.unit = Text(format, "unit", "");
    item.min = Number(format, "min");
    item.max = Number(format, "max");

    const std::string mul = NumberText(format, "mul", "1");
    const std::string div = NumberText(format, "div", "1");
    const std::string add = NumberText(format, "add", "0");
    if (Member(format, "map") != nullptr) {
        item.hasMap = true;
        item.map = ReadMap(Object(format, "map"));
        // The raw value is the key: no scaling, no decimals.
        if (Number(format, "mul").value_or(1) != 1 || Number(format, "div").value_or(1) != 1 ||
            Number(format, "add").value_or(0) != 0) {
            throw Unreadable{"\"map\" and a scaling exclude each other"};
        }
        item.scaling = Scaling{1, 1, 0, 0};
        return item;
    }
    const std::optional<Scaling> scaling = ScalingOf(mul, div, add, static_cast<unsigned>(item.length));
    if (!scaling) {
        throw Unreadable{"the scaling " + mul + " / " + div + " + " + add + " doesn't fit numbers of 32 bits"};
    }
    item.scaling = *scaling;
    return item;
}

/// {"01": "0C"}: service and parameter ID.
Bytes ReadRequest(const Json& command) {
    const Json& request = Object(command, "cmd");
    std::optional<Bytes> bytes;
    for (const auto& [service, parameter] : request.items()) {
        if (service == kLine) {
            continue;
        }
        const std::optional<Bytes> serviceByte = BytesOfHex(service);
        const std::optional<Bytes> parameterBytes =
            parameter.is_string() ? BytesOfHex(parameter.get<std::string>()) : std::nullopt;
        if (bytes || !serviceByte || serviceByte->size() != 1 || !parameterBytes) {
            throw Unreadable{"\"cmd\" is not one service with its parameter ID, in hexadecimal"};
        }
        bytes = *serviceByte;
        bytes->insert(bytes->end(), parameterBytes->begin(), parameterBytes->end());
    }
    if (!bytes) {
        throw Unreadable{"\"cmd\" is empty"};
    }
    return *bytes;
}

}  // namespace

std::size_t ItemCommand::DataLength() const {
    std::size_t bits = 0;
    for (const Item& item : items) {
        bits = std::max(bits, item.EndBit());
    }
    return (bits + 7) / 8;
}

ItemTable ItemTable::Parse(std::string_view text, const Complain& complain) {
    ItemTable table;

    std::size_t line = 1;
    std::vector<std::size_t> begins;
    const auto noteLines = [&](int, Json::parse_event_t event, Json& parsed) {
        if (event == Json::parse_event_t::object_start) {
            begins.push_back(line);
        } else if (event == Json::parse_event_t::object_end) {
            parsed[kLine] = begins.back();
            begins.pop_back();
        }
        return true;
    };
    Json document;
    try {
        document =
            Json::parse(LineCounter(text.data(), &line), LineCounter(text.data() + text.size(), &line), noteLines);
    } catch (const Json::exception&) {
        // The parser has read up to the place that it doesn't understand.
        complain(line, "not JSON from here on; no values are decoded");
        return table;
    }

    const Json* const commands = document.is_object() ? Member(document, "commands") : nullptr;
    if (commands == nullptr || !commands->is_array()) {
        complain(1, "no array \"commands\", so no item table; no values are decoded");
        return table;
    }
    table.m_usable = true;

    std::uint16_t number = 0;
    std::size_t commandLine = LineOf(document, 1);
    for (const Json& entry : *commands) {
        commandLine = LineOf(entry, commandLine);
        ItemCommand command;
        const Json* signals = nullptr;
        try {
            if (!entry.is_object()) {
                throw Unreadable{"not an object"};
            }
            command.request = ReadRequest(entry);
            if (const std::string ecu = Text(entry, "rax", ""); !ecu.empty()) {
                command.ecu = NumberOfHex(ecu);
                if (!command.ecu) {
                    throw Unreadable{"\"rax\" is not a CAN ID in hexadecimal"};
                }
            }
            signals = Member(entry, "signals");
            if (signals == nullptr || !signals->is_array()) {
                throw Unreadable{"\"signals\" is not an array"};
            }
        } catch (const Unreadable& unreadable) {
            complain(commandLine, "command left out: " + unreadable.what);
            continue;
        }
        std::size_t itemLine = commandLine;
        for (const Json& signal : *signals) {
            itemLine = LineOf(signal, itemLine);
            std::string id;
            try {
                if (!signal.is_object()) {
                    throw Unreadable{"not an object"};
                }
                if (number == std::numeric_limits<std::uint16_t>::max()) {
                    throw Unreadable{"more than 65535 items"};
                }
                id = Text(signal, "id", nullptr) + ' ';
                command.items.push_back(ReadItem(signal));
                command.items.back().number = ++number;
            } catch (const Unreadable& unreadable) {
                complain(itemLine, "item " + id + "left out: " + unreadable.what);
            }
        }
        table.m_commands.push_back(std::move(command));
    }

    if (const Json* const codes = Member(document, "dtcs")) {
        if (!codes->is_object()) {
            complain(LineOf(document, 1), "\"dtcs\" is not an object");
            return table;
        }
        for (const auto& [code, name] : codes->items()) {
            if (code == kLine) {
                continue;
            }
            if (name.is_string()) {
                table.m_troubleCodes[code] = name.get<std::string>();
            } else {
                complain(LineOf(*codes, 1), "\"dtcs\" has no text for \"" + code + '"');
            }
        }
    }
    return table;
}

const ItemCommand* ItemTable::Find(std::span<const std::uint8_t> request, std::uint32_t ecu) const {
    const ItemCommand* ofAnother = nullptr;
    for (const ItemCommand& command : m_commands) {
        if (!std::equal(request.begin(), request.end(), command.request.begin(), command.request.end())) {
            continue;
        }
        if (!command.ecu || *command.ecu == ecu) {
            return &command;
        }
        if (ofAnother == nullptr) {
            ofAnother = &command;
        }
    }
    const bool standardised = !request.empty() && request[0] <= 0x0A;
    return standardised ? ofAnother : nullptr;
}

std::string ItemTable::TroubleCodeText(const std::string& code) const {
    const auto found = m_troubleCodes.find(code);
    return found == m_troubleCodes.end() ? std::string() : found->second;
}

}  // namespace diagnosis_session
