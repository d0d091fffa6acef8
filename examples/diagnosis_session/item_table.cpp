#include "item_table.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <map>
#include <tuple>

#include "json_document.h"

namespace diagnosis_session {
namespace {

constexpr std::size_t kLongestValue = 32;

// The objects of the table, as the schema names them.
constexpr const char* kTableObject = "table";
constexpr const char* kCommandObject = "command";
constexpr const char* kSignalObject = "signal";
constexpr const char* kFormatObject = "format";
constexpr const char* kMapEntryObject = "mapEntry";

std::string InQuotes(std::string_view text) {
    return '"' + std::string(text) + '"';
}

/// How many letters must change to make one word of the other.
std::size_t Distance(std::string_view left, std::string_view right) {
    std::vector<std::size_t> row(right.size() + 1);
    for (std::size_t i = 0; i < row.size(); ++i) {
        row[i] = i;
    }
    for (std::size_t l = 0; l < left.size(); ++l) {
        std::size_t diagonal = row[0]++;
        for (std::size_t r = 0; r < right.size(); ++r) {
            const std::size_t above = row[r + 1];
            row[r + 1] = std::min({above + 1, row[r] + 1, diagonal + (left[l] == right[r] ? 0U : 1U)});
            // Two letters in the wrong order are the commonest slip of all.
            if (l > 0 && r > 0 && left[l] == right[r - 1] && left[l - 1] == right[r]) {
                row[r + 1] = std::min(row[r + 1], diagonal + (left[l] == right[r] ? 0U : 1U));
            }
            diagonal = above;
        }
    }
    return row.back();
}

/// Members that the object may not have, and members that it has twice.
void CheckMembers(const JsonValue& object, const char* kind) {
    const auto& all = KeysOfItemTable();
    const std::vector<const char*>& known = std::find_if(all.begin(), all.end(), [&](const ItemTableKeys& entry) {
                                                return std::string_view(entry.object) == kind;
                                            })->keys;
    for (const JsonMember& member : object.members) {
        if (std::find(known.begin(), known.end(), member.name) == known.end()) {
            const auto nearest = std::min_element(known.begin(), known.end(), [&](const char* left, const char* right) {
                return Distance(member.name, left) < Distance(member.name, right);
            });
            const std::string name = member.name.substr(0, 64);
            throw FaultAt(
                member.place,
                "unknown key " + InQuotes(name) +
                    (Distance(name, *nearest) <= 2 ? "; did you mean " + InQuotes(*nearest) + '?' : std::string()));
        }
    }
}

void CheckDoubles(const JsonValue& object) {
    std::vector<const JsonMember*> members;
    for (const JsonMember& member : object.members) {
        members.push_back(&member);
    }
    // Of one name twice, the first in the document first.
    std::sort(members.begin(), members.end(), [](const JsonMember* left, const JsonMember* right) {
        return std::tie(left->name, left) < std::tie(right->name, right);
    });
    const auto twice =
        std::adjacent_find(members.begin(), members.end(),
                           [](const JsonMember* left, const JsonMember* right) { return left->name == right->name; });
    if (twice != members.end()) {
        throw FaultAt((*std::next(twice))->place, "the key " + InQuotes((*twice)->name) +
                                                      " is there twice; the first is in line " +
                                                      std::to_string((*twice)->place.line));
    }
}

const JsonValue& Object(const JsonValue& object, const char* name) {
    const JsonMember* const member = object.Find(name);
    if (member == nullptr || !member->value.IsObject()) {
        throw FaultAt(member == nullptr ? object.place : member->value.place, InQuotes(name) + " is not an object");
    }
    return member->value;
}

std::string Text(const JsonValue& object, const char* name, const char* otherwise) {
    const JsonMember* const member = object.Find(name);
    if (member == nullptr && otherwise != nullptr) {
        return otherwise;
    }
    if (member == nullptr || member->value.type != JsonValue::Type::Text) {
        throw FaultAt(member == nullptr ? object.place : member->value.place, InQuotes(name) + " is not a text");
    }
    return member->value.text;
}

std::size_t Count(const JsonValue& object, const char* name, std::size_t most, std::optional<std::size_t> otherwise) {
    const JsonMember* const member = object.Find(name);
    if (member == nullptr && otherwise) {
        return *otherwise;
    }
    std::size_t number = 0;
    if (member != nullptr && member->value.type == JsonValue::Type::Number) {
        const std::string& text = member->value.text;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error == std::errc() && end == text.data() + text.size() && number <= most) {
            return number;
        }
    }
    throw FaultAt(member == nullptr ? object.place : member->value.place,
                  InQuotes(name) + " is not a whole number up to " + std::to_string(most));
}

/// A number as the table's author wrote it.
std::string NumberText(const JsonValue& object, const char* name, const char* otherwise) {
    const JsonMember* const member = object.Find(name);
    if (member == nullptr) {
        return otherwise;
    }
    if (member->value.type != JsonValue::Type::Number) {
        throw FaultAt(member->value.place, InQuotes(name) + " is not a number");
    }
    return member->value.text;
}

std::optional<double> Number(const JsonValue& object, const char* name) {
    const std::string text = NumberText(object, name, "");
    if (text.empty()) {
        return std::nullopt;
    }
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

bool Flag(const JsonValue& object, const char* name) {
    const JsonMember* const member = object.Find(name);
    if (member != nullptr && member->value.type != JsonValue::Type::Flag) {
        throw FaultAt(member->value.place, InQuotes(name) + " is not true or false");
    }
    return member != nullptr && member->value.text == "true";
}

/// {"0": {"value": "OFF"}, "1": {"value": "ON"}}
std::vector<std::pair<std::uint32_t, std::string>> ReadMap(const JsonValue& map) {
    CheckDoubles(map);
    std::multimap<std::uint32_t, std::string> entries;  // "1" and "01" are two keys
    for (const auto& [key, place, entry] : map.members) {
        std::uint32_t raw = 0;
        const auto [end, error] = std::from_chars(key.data(), key.data() + key.size(), raw);
        if (error != std::errc() || end != key.data() + key.size()) {
            throw FaultAt(place, "\"map\" has the key " + InQuotes(key) + ", not a raw value in decimal");
        }
        if (!entry.IsObject()) {
            throw FaultAt(entry.place, "\"map\" has no object for " + InQuotes(key));
        }
        CheckDoubles(entry);
        CheckMembers(entry, kMapEntryObject);
        entries.emplace(raw, Text(entry, "value", nullptr));
    }
    return {entries.begin(), entries.end()};
}

Item ReadItem(const JsonValue& signal) {
    CheckDoubles(signal);
    CheckMembers(signal, kSignalObject);
    Item item;
    item.id = Text(signal, "id", nullptr);
    item.name = Text(signal, "name", "");
    const JsonValue& format = Object(signal, "fmt");
    CheckDoubles(format);
    CheckMembers(format, kFormatObject);
    const auto placeOf = [&](const char* name) {
        const JsonMember* const member = format.Find(name);
        return member == nullptr ? format.place : member->value.place;
    };
    item.bit = Count(format, "bix", 8 * 4095, 0);
    item.length = Count(format, "len", std::numeric_limits<std::uint32_t>::max(), std::nullopt);
    if (item.length == 0) {
        throw FaultAt(placeOf("len"), "\"len\" is 0");
    }
    if (item.length > kLongestValue) {
        throw FaultAt(placeOf("len"), std::to_string(item.length) + " bits long; a value has at most 32");
    }
    item.isSigned = Flag(format, "sign");
    item.unit = Text(format, "unit", "");
    item.min = Number(format, "min");
    item.max = Number(format, "max");
    if (item.min && item.max && *item.min > *item.max) {
        throw FaultAt(placeOf("min"), "\"min\" is above \"max\"");
    }

    const std::string mul = NumberText(format, "mul", "1");
    const std::string div = NumberText(format, "div", "1");
    const std::string add = NumberText(format, "add", "0");
    if (format.Find("map") != nullptr) {
        item.hasMap = true;
        item.map = ReadMap(Object(format, "map"));
        // The raw value is the key: no scaling, no decimals.
        for (const auto& [name, without] : {std::pair{"mul", 1}, std::pair{"div", 1}, std::pair{"add", 0}}) {
            if (Number(format, name).value_or(without) != without) {
                throw FaultAt(placeOf(name), "\"map\" and a scaling exclude each other");
            }
        }
        item.scaling = Scaling{1, 1, 0, 0};
        return item;
    }
    const std::optional<Scaling> scaling = ScalingOf(mul, div, add, static_cast<unsigned>(item.length));
    if (!scaling) {
        const char* const bad = format.Find("div") != nullptr ? "div" : format.Find("mul") != nullptr ? "mul" : "add";
        throw FaultAt(placeOf(bad),
                      "the scaling " + mul + " / " + div + " + " + add + " doesn't fit numbers of 32 bits");
    }
    item.scaling = *scaling;
    item.decimals = DecimalsOf(*scaling);
    return item;
}

/// {"01": "0C"}: service and parameter ID.
Bytes ReadRequest(const JsonValue& command) {
    const JsonValue& request = Object(command, "cmd");
    std::optional<Bytes> bytes;
    for (const auto& [service, place, parameter] : request.members) {
        const std::optional<Bytes> serviceByte = BytesOfHex(service);
        const std::optional<Bytes> parameterBytes =
            parameter.type == JsonValue::Type::Text ? BytesOfHex(parameter.text) : std::nullopt;
        if (bytes || !serviceByte || serviceByte->size() != 1 || !parameterBytes) {
            throw FaultAt(place, "\"cmd\" is not one service with its parameter ID, in hexadecimal");
        }
        bytes = *serviceByte;
        bytes->insert(bytes->end(), parameterBytes->begin(), parameterBytes->end());
    }
    if (!bytes) {
        throw FaultAt(request.place, "\"cmd\" is empty");
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

const std::vector<ItemTableKeys>& KeysOfItemTable() {
    static const std::vector<ItemTableKeys> keys = {
        {kTableObject, {"$schema", "commands", "dtcs", "diagnosticLevel", "signalGroups", "parameters"}},
        {kCommandObject,
         {"cmd", "rax", "signals", "hdr", "freq", "name", "comment", "dbg", "debug", "dbgfilter", "filter", "eax",
          "fcm1", "pri", "proto", "tmo", "tst", "din"}},
        {kSignalObject, {"id", "name", "fmt", "path", "description", "hidden", "suggestedMetric", "comment"}},
        {kFormatObject,
         {"bix", "len", "mul", "div", "add", "sign", "min", "max", "unit", "map", "nullmin", "nullmax", "omin", "omax",
          "oval", "blsb", "bytes", "val"}},
        {kMapEntryObject, {"value", "description"}},
    };
    return keys;
}

ItemTable ItemTable::Parse(std::string_view text, const Complain& complain) {
    ItemTable table;
    const auto tell = [&](const FaultAt& fault, const std::string& about) {
        complain(fault.place, about + fault.what());
    };

    JsonValue document;
    try {
        document = ParseJson(text);
    } catch (const FaultAt& fault) {
        tell(fault, "no values are decoded: ");
        return table;
    }
    const JsonMember* const commands = document.Find("commands");
    if (commands == nullptr || !commands->value.IsArray()) {
        tell(FaultAt(commands == nullptr ? document.place : commands->value.place, "no array \"commands\""),
             "no values are decoded: ");
        return table;
    }
    table.m_usable = true;
    for (const auto check : {+[](const JsonValue& object) { CheckDoubles(object); },
                             +[](const JsonValue& object) { CheckMembers(object, kTableObject); }}) {
        try {
            check(document);
        } catch (const FaultAt& fault) {
            tell(fault, "");
        }
    }

    std::uint16_t number = 0;
    for (const JsonValue& entry : commands->value.elements) {
        ItemCommand command;
        const JsonValue* signals = nullptr;
        try {
            if (!entry.IsObject()) {
                throw FaultAt(entry.place, "not an object");
            }
            CheckDoubles(entry);
            CheckMembers(entry, kCommandObject);
            command.request = ReadRequest(entry);
            if (const std::string ecu = Text(entry, "rax", ""); !ecu.empty()) {
                command.ecu = NumberOfHex(ecu);
                if (!command.ecu) {
                    throw FaultAt(entry.Find("rax")->value.place, "\"rax\" is not a CAN ID in hexadecimal");
                }
            }
            const JsonMember* const member = entry.Find("signals");
            if (member == nullptr || !member->value.IsArray()) {
                throw FaultAt(member == nullptr ? entry.place : member->value.place, "\"signals\" is not an array");
            }
            signals = &member->value;
        } catch (const FaultAt& fault) {
            tell(fault, "command left out: ");
            continue;
        }
        for (const JsonValue& signal : signals->elements) {
            std::string id;
            try {
                if (!signal.IsObject()) {
                    throw FaultAt(signal.place, "not an object");
                }
                if (number == std::numeric_limits<std::uint16_t>::max()) {
                    throw FaultAt(signal.place, "more than 65535 items");
                }
                id = Text(signal, "id", nullptr) + ' ';
                command.items.push_back(ReadItem(signal));
                command.items.back().number = ++number;
            } catch (const FaultAt& fault) {
                tell(fault, "item " + id + "left out: ");
            }
        }
        table.m_commandsByRequest[std::string(command.request.begin(), command.request.end())].push_back(
            table.m_commands.size());
        table.m_commands.push_back(std::move(command));
    }

    if (const JsonMember* const codes = document.Find("dtcs")) {
        try {
            if (!codes->value.IsObject()) {
                throw FaultAt(codes->value.place, "\"dtcs\" is not an object");
            }
            for (const auto& [code, place, name] : codes->value.members) {
                if (name.type == JsonValue::Type::Text) {
                    table.m_troubleCodes.emplace(code, name.text);
                } else {
                    tell(FaultAt(name.place, "\"dtcs\" has no text for " + InQuotes(code)), "");
                }
            }
            CheckDoubles(codes->value);
        } catch (const FaultAt& fault) {
            tell(fault, "");
        }
    }
    return table;
}

const ItemCommand* ItemTable::Find(std::uint8_t service, std::span<const std::uint8_t> parameter,
                                   std::uint32_t ecu) const {
    const ItemCommand* ofAnother = nullptr;
    std::string request(1, static_cast<char>(service));
    request.append(parameter.begin(), parameter.end());
    const auto found = m_commandsByRequest.find(request);
    if (found == m_commandsByRequest.end()) {
        return nullptr;
    }
    for (const std::size_t index : found->second) {
        const ItemCommand& command = m_commands[index];
        if (!command.ecu || *command.ecu == ecu) {
            return &command;
        }
        if (ofAnother == nullptr) {
            ofAnother = &command;
        }
    }
    const bool standardised = service <= 0x0A;
    return standardised ? ofAnother : nullptr;
}

std::string ItemTable::TroubleCodeText(const std::string& code) const {
    const auto found = m_troubleCodes.find(code);
    return found == m_troubleCodes.end() ? std::string() : found->second;
}

}  // namespace diagnosis_session
