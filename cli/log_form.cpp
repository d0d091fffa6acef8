#include "cli/log_form.h"

#include <charconv>
#include <cstdint>
#include <utility>

#include "cli/patterns.h"

namespace krm_cli {
namespace {

/// The class of a field, or of its elements.
const std::string& ClassOf(const CatalogueField& field) {
    return field.element.empty() ? field.type : field.element;
}

/// The class of the record that `path`, in shape, leads to from a class; empty where it is none.
std::string ClassAt(const Catalogue& catalogue, std::string className, std::string_view path) {
    while (!path.empty() && !className.empty()) {
        const std::size_t end = std::min(path.find('.'), path.size());
        std::string_view name = path.substr(0, end);
        name = name.substr(0, name.find('['));
        const CatalogueField* const field = catalogue.FindField(className, name);
        className = field == nullptr ? std::string() : ClassOf(*field);
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return className;
}

/// A format of the dump: its path in shape, and the letter of its conversion; 0 for a record.
struct Format {
    std::string path;
    char conversion = 0;
};
Format FormatOf(std::string_view literal) {
    Format format;
    literal.remove_prefix(std::min(literal.starts_with("[%s]") ? std::size_t{4} : std::size_t{2}, literal.size()));
    if (literal.starts_with(' ') || literal.starts_with('.')) {
        literal.remove_prefix(1);
    }
    const std::size_t equals = literal.find('=');
    for (std::size_t i = 0; i < std::min(equals, literal.size()); ++i) {
        if (literal[i] == '%') {
            ++i;  // %d, %u
        } else {
            format.path += literal[i];
        }
    }
    if (equals == std::string_view::npos) {
        return format;
    }
    const std::string_view value = literal.substr(equals + 1);
    const std::size_t letter = value.find_first_of("duXsl", value.find('%') + 1);
    if (letter != std::string_view::npos) {
        const char found = value[letter];
        format.conversion = found == 'l' ? 'f' : found == 'u' ? 'd' : found;
        if (value.starts_with("0x") && found == 's') {
            format.conversion = 'x';
        }
    }
    return format;
}

std::string Joined(const std::string& front, const std::string& back) {
    return front.empty() || back.empty() ? front + back : front + '.' + back;
}

std::optional<krm_int64> IntegerIn(std::string_view text, bool isHex) {
    const bool hasPrefix = text.starts_with("0x");
    text.remove_prefix(hasPrefix ? 2 : 0);
    krm_int64 number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, isHex || hasPrefix ? 16 : 10);
    const std::string_view rest = text.substr(static_cast<std::size_t>(stop - text.data()));
    return error == std::errc() && IsEndOfNumber(rest) ? std::optional(number) : std::nullopt;
}

}  // namespace

PathShape ShapeOf(std::string_view path) {
    PathShape shape;
    shape.isGood = true;
    for (std::size_t i = 0; i < path.size(); ++i) {
        shape.path += path[i];
        if (path[i] != '[') {
            continue;
        }
        const std::size_t close = std::min(path.find(']', i), path.size());
        std::size_t index = 0;
        const auto [stop, error] = std::from_chars(path.data() + i + 1, path.data() + close, index);
        shape.isGood = shape.isGood && error == std::errc() && stop == path.data() + close && close < path.size();
        shape.indices.push_back(index);
        i = close - 1;
    }
    return shape;
}

LogForm::LogForm(const krm::MessageDescription& description, const Catalogue& catalogue) {
    const std::string className(description.className);
    const CatalogueClass* const known = catalogue.Find(className);
    if (known != nullptr) {
        Add(catalogue, known->base, "", "", 0);
    }
    Add(catalogue, className, "", "", 0);
    for (const auto& [path, place] : m_places) {
        if (!place.isAmbiguous && path.find(':') == std::string::npos) {
            m_logged[place.field] = true;
        }
    }
    FindNotLogged(*description.content, "", "");
}

void LogForm::Add(const Catalogue& catalogue, const std::string& className, const std::string& log,
                  const std::string& field, int depth) {
    constexpr int kDeepest = 12;
    const CatalogueClass* const known = catalogue.Find(className);
    if (known == nullptr || depth == kDeepest) {
        return;
    }
    for (const CatalogueLine& line : known->lines) {
        const Format format = FormatOf(line.format);
        const std::string path = Joined(log, format.path);
        const std::string itsField = Joined(field, line.field);
        if (format.conversion == 0) {
            Add(catalogue, ClassAt(catalogue, className, line.field), path, itsField, depth + 1);
            continue;
        }
        const auto [found, isNew] = m_places.try_emplace(path, Place{itsField, format.conversion, false});
        found->second.isAmbiguous = found->second.isAmbiguous || (!isNew && found->second.field != itsField);
    }
}

/// Whether some of what lies there is in the log; patterns of what isn't are added, of as much at once as there is.
bool LogForm::FindNotLogged(const krm::TypeDescription& type, const std::string& path, const std::string& pattern) {
    if (m_logged.contains(path)) {
        return true;
    }
    const std::size_t before = m_notLogged.size();
    bool isLogged = false;
    if (type.kind == krm::ValueKind::Record) {
        for (const krm::FieldDescription& field : type.fields) {
            const std::string name(field.name);
            isLogged = FindNotLogged(*field.type, Joined(path, name), Joined(pattern, name)) || isLogged;
        }
    } else if (type.element != nullptr) {
        isLogged = FindNotLogged(*type.element, path + "[]", pattern + "[*]");
    }
    if (!isLogged && !pattern.empty()) {
        m_notLogged.resize(before);
        m_notLogged.push_back(pattern);
    }
    return isLogged;
}

const LogForm::Place* LogForm::Find(const std::string& shape) const {
    const auto found = m_places.find(shape);
    return found == m_places.end() ? nullptr : &found->second;
}

const LogForm& LogForm::Of(const krm::MessageDescription& description) {
    static std::map<const krm::MessageDescription*, std::unique_ptr<const LogForm>> forms;
    std::unique_ptr<const LogForm>& form = forms[&description];
    if (form == nullptr) {
        form = std::make_unique<const LogForm>(description, Catalogue::Get());
    }
    return *form;
}

RebuiltMessage::RebuiltMessage(const krm::MessageDescription& description)
    : m_description(&description), m_form(&LogForm::Of(description)), m_message(description.create()) {}

krm::ConstValue RebuiltMessage::Content() const {
    return *m_description->ContentOf(static_cast<const CKRMBaseAdaptationData&>(*m_message));
}

void RebuiltMessage::Take(const FieldText& field) {
    if (field.path == "m_dwCommandType" || field.path == "m_dwCommandID") {
        return;
    }
    const PathShape shape = ShapeOf(field.path);
    const LogForm::Place* const place = shape.isGood && field.cutBytes == 0 ? m_form->Find(shape.path) : nullptr;
    if (place != nullptr && !place->isAmbiguous) {
        const std::optional<krm::Value> value = Find(place->field, shape.indices);
        if (value && Set(*value, place->conversion, field.value)) {
            return;
        }
    }
    m_rests.push_back({std::string(field.path), std::string(field.value)});
}

/// The value at a path in shape, with these indices. An element behind a list's last one is added; one further behind, as
/// where lines are missing, is nothing.
std::optional<krm::Value> RebuiltMessage::Find(std::string_view field, const std::vector<std::size_t>& indices) {
    krm::Value value = *m_description->ContentOf(*m_message);
    std::string path;
    std::size_t depth = 0;
    while (!field.empty()) {
        const bool isElement = field.starts_with("[]");
        if (!isElement) {
            const std::size_t end = std::min(field.find_first_of(".["), field.size());
            const std::string_view name = field.substr(0, end);
            std::optional<krm::Value> found;
            for (std::size_t i = 0; i < value.Type().fields.size() && !found; ++i) {
                if (value.Type().fields[i].name == name) {
                    found = value.Field(i);
                }
            }
            if (!found) {
                return std::nullopt;
            }
            value = *found;
            path.append(name);
            field.remove_prefix(end + (end < field.size() && field[end] == '.' ? 1 : 0));
            continue;
        }
        if (depth == indices.size()) {
            return std::nullopt;
        }
        const std::size_t index = indices[depth];
        path += '[' + std::to_string(index) + ']';
        const bool isKnown = depth < m_elements.size() && m_elements[depth].path == path;
        if (!isKnown) {
            const auto count = static_cast<std::size_t>(value.Count());
            std::optional<krm::Value> element;
            if (index == count) {
                element = value.Append();
            } else if (index < count) {
                std::size_t i = 0;
                value.ForEachElement([&](krm::Value candidate) {
                    if (i++ == index) {
                        element = candidate;
                    }
                });
            }
            if (!element) {
                return std::nullopt;
            }
            m_elements.erase(m_elements.begin() + static_cast<std::ptrdiff_t>(std::min(depth, m_elements.size())),
                             m_elements.end());
            m_elements.push_back({path, *element});
        }
        value = m_elements[depth++].value;
        field.remove_prefix(2 + (field.size() > 2 && field[2] == '.' ? 1 : 0));
    }
    return value;
}

bool RebuiltMessage::Set(krm::Value value, char conversion, std::string_view text) {
    if (auto* const string = value.As<CKRMString>()) {
        if (conversion != 's' || text.find('\0') != std::string_view::npos) {
            return false;
        }
        *string = std::string(text).c_str();
        return true;
    }
    if (auto* const number = value.As<double>()) {
        const char* const end = text.data() + text.size();
        const auto [stop, error] = std::from_chars(text.data(), end, *number);
        return conversion == 'f' && error == std::errc() && stop == end;
    }
    if (conversion == 'x') {
        if (!text.starts_with("0x") || text.size() % 2 != 0) {
            return false;
        }
        value.RemoveAll();
        for (std::size_t i = 2; i < text.size(); i += 2) {
            const std::optional<krm_int64> byte = IntegerIn(text.substr(i, 2), true);
            const std::optional<krm::Value> element = byte ? value.Append() : std::nullopt;
            if (!element || !element->SetInteger(*byte)) {
                return false;
            }
        }
        return true;
    }
    const std::optional<krm_int64> integer = IntegerIn(text, conversion == 'X');
    if (!integer || (conversion != 'd' && conversion != 'X')) {
        return false;
    }
    if (value.SetInteger(*integer)) {
        return true;
    }
    // The log has 32 bits of a number, signed or not, whichever its type is.
    constexpr krm_int64 kAll = krm_int64{1} << 32U;
    return *integer >= -kAll / 2 && *integer < kAll &&
           value.SetInteger(*integer < 0 ? *integer + kAll : *integer - kAll);
}

}  // namespace krm_cli
