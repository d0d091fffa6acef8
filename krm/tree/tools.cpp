#include "krm/tree/tools.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <new>
#include <optional>
#include <system_error>
#include <utility>

#include "krm/tree/internal/chain.h"

namespace krm::tree {
namespace {

/// For what fails only when memory runs out.
void RequireMemory(bool done) {
    if (!done) {
        throw std::bad_alloc();
    }
}

/// A new node, as `Chain` appends it.
template <class Node>
Node& Made(Node* node) {
    RequireMemory(node != nullptr);
    return *node;
}

// ---- Walking without recursion ----

/// Calls `open` for every element and group from `root` down, and `close` for it when all below it is done.
template <class Open, class Close>
void Walk(const CKRMCNode& root, Open open, Close close) {
    std::vector<const CKRMCNode*> opened;
    const CKRMCNode* node = &root;
    while (node != nullptr) {
        const CKRMCNode* below = nullptr;
        bool skipped = false;
        if (const auto* const element = dynamic_cast<const CKRMCElement*>(node)) {
            open(*element);
            below = element->GetFirstGroup();
        } else if (const auto* const group = dynamic_cast<const CKRMCElementGroup*>(node)) {
            open(*group);
            below = Chain::FirstElement(*group);
        } else {
            skipped = true;
        }
        if (below != nullptr) {
            opened.push_back(node);
            node = below;
            continue;
        }
        if (!skipped) {
            close(*node);
        }
        while (node != &root && node->GetNext() == nullptr) {
            node = opened.back();
            opened.pop_back();
            close(*node);
        }
        node = node != &root ? node->GetNext() : nullptr;
    }
}

/// Calls `each` for every attribute of an element.
template <class Each>
void ForAttributes(const CKRMCElement& element, Each each) {
    for (const CKRMCNode* node = element.GetFirstAttribute(); node != nullptr; node = node->GetNext()) {
        if (const auto* const attribute = dynamic_cast<const CKRMCAttribute*>(node)) {
            each(*attribute);
        }
    }
}

// ---- Copies ----

void CopyValue(const CKRMCAttribute& from, CKRMCAttribute& to) {
    switch (from.GetValueType()) {
        case kStringValue:
            RequireMemory(to.SetValue(nullptr, from.GetString()));
            break;
        case kDoubleValue:
            RequireMemory(to.SetValue(nullptr, from.GetDouble()));
            break;
        case kLongValue:
            RequireMemory(to.SetValue(nullptr, from.GetLong()));
            break;
        case kULongValue:
            RequireMemory(to.SetValue(nullptr, from.GetULong()));
            break;
        default:
            break;
    }
}

/// Puts copies under copies.
class Copier {
public:
    void Open(const CKRMCElement& from) {
        auto& group = static_cast<CKRMCElementGroup&>(*m_open.back());
        CKRMCElement& element = Made(Chain::NewElement(group, from.GetName()));
        m_open.push_back(&element);
        CopyAttributes(from, element);
    }
    void Open(const CKRMCElementGroup& from) {
        auto& element = static_cast<CKRMCElement&>(*m_open.back());
        m_open.push_back(&Made(Chain::NewGroup(element, from.GetName())));
    }
    void Close() { m_open.pop_back(); }

    static void CopyAttributes(const CKRMCElement& from, CKRMCElement& to) {
        ForAttributes(from, [&to](const CKRMCAttribute& attribute) {
            CopyValue(attribute, Made(Chain::NewAttribute(to, attribute.GetName())));
        });
    }

    /// Copies what is below `from`.
    static void CopyBelow(const CKRMCNode& from, CKRMCNode& to) {
        Copier copier;
        copier.m_root = &from;
        copier.m_copy = &to;
        Walk(
            from, [&copier](const auto& node) { copier.Enter(node); }, [&copier](const CKRMCNode&) { copier.Close(); });
    }

private:
    template <class Node>
    void Enter(const Node& node) {
        if (&node == m_root) {
            m_open.push_back(m_copy);
        } else {
            Open(node);
        }
    }

    const CKRMCNode* m_root = nullptr;
    CKRMCNode* m_copy = nullptr;
    std::vector<CKRMCNode*> m_open;
};

// ---- Paths ----

struct Step {
    std::string name;
    std::optional<std::size_t> index;
    std::optional<std::string> attribute;
    std::string value;
};

template <class Number>
std::optional<Number> NumberOf(std::string_view text) {
    Number number = 0;
    const char* const end = text.data() + text.size();
    const auto [last, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && last == end ? std::optional(number) : std::nullopt;
}

/// Takes the first step off `path`; nothing where it has no such form.
std::optional<Step> TakeStep(std::string_view& path) {
    Step step;
    const std::size_t nameEnd = std::min(path.find_first_of("/["), path.size());
    step.name = path.substr(0, nameEnd);
    path.remove_prefix(nameEnd);
    if (step.name.empty()) {
        return std::nullopt;
    }
    if (path.substr(0, 1) == "[") {
        const std::size_t close = path.find(']');
        if (close == path.npos) {
            return std::nullopt;
        }
        const std::string_view inside = path.substr(1, close - 1);
        path.remove_prefix(close + 1);
        if (inside.substr(0, 1) == "@") {
            const std::size_t equals = inside.find('=');
            if (equals == inside.npos) {
                return std::nullopt;
            }
            step.attribute = inside.substr(1, equals - 1);
            step.value = inside.substr(equals + 1);
        } else {
            step.index = NumberOf<std::size_t>(inside);
            if (!step.index) {
                return std::nullopt;
            }
        }
    }
    if (!path.empty()) {
        if (path.front() != '/' || path.size() == 1) {
            return std::nullopt;
        }
        path.remove_prefix(1);
    }
    return step;
}

bool HasValue(const CKRMCAttribute& attribute, std::string_view value) {
    switch (attribute.GetValueType()) {
        case kStringValue:
            return value == attribute.GetString();
        case kDoubleValue:
            return NumberOf<double>(value) == attribute.GetDouble();
        case kLongValue:
            return NumberOf<krm_long>(value) == attribute.GetLong();
        case kULongValue:
            return NumberOf<krm_ulong>(value) == attribute.GetULong();
        default:
            return false;
    }
}

bool Fits(CKRMCElement& element, const Step& step, std::size_t index) {
    if (step.index) {
        return *step.index == index;
    }
    if (step.attribute) {
        const CKRMCAttribute* const attribute = element.GetAttribute(nullptr, step.attribute->c_str());
        return attribute != nullptr && HasValue(*attribute, step.value);
    }
    return true;
}

// ---- XML ----

constexpr std::string_view kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";

struct Escape {
    char character;
    std::string_view written;
};
constexpr Escape kEscapes[] = {{'&', "&amp;"}, {'<', "&lt;"},   {'>', "&gt;"},  {'"', "&quot;"},
                               {'\t', "&#9;"}, {'\n', "&#10;"}, {'\r', "&#13;"}};

/// The length of the character at the front of `text` if it is UTF-8 and XML may hold it, else 0.
std::size_t CharacterLength(std::string_view text) {
    const auto byte = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byte(0);
    if (lead < 0x80) {
        return lead >= 0x20 || lead == '\t' || lead == '\n' || lead == '\r' ? 1 : 0;
    }
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length) {
        return 0;
    }
    unsigned code = lead & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80) {
            return 0;
        }
        code = (code << 6U) | (byte(i) & 0x3FU);
    }
    const bool tooLong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return tooLong || surrogate || code == 0xFFFE || code == 0xFFFF || code > 0x10FFFF ? 0 : length;
}

bool FitsXml(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

void AppendHex(std::string& out, unsigned char byte) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    out += kDigits[byte >> 4U];
    out += kDigits[byte & 0xFU];
}

/// ` field="text"`, or ` field-hex="..."`.
void AppendField(std::string& out, std::string_view field, std::string_view text) {
    out += ' ';
    out += field;
    if (!FitsXml(text)) {
        out += "-hex=\"";
        for (const char character : text) {
            AppendHex(out, static_cast<unsigned char>(character));
        }
        out += '"';
        return;
    }
    out += "=\"";
    for (const char character : text) {
        std::string_view written(&character, 1);
        for (const Escape& escape : kEscapes) {
            written = escape.character == character ? escape.written : written;
        }
        out += written;
    }
    out += '"';
}

template <class Number>
void AppendNumberField(std::string& out, Number number) {
    char digits[32];
    const auto [end, error] = std::to_chars(digits, digits + sizeof digits, number);
    AppendField(out, "value", std::string_view(digits, static_cast<std::size_t>(end - digits)));
}

void AppendDoubleField(std::string& out, double number) {
    if (std::isfinite(number)) {
        AppendNumberField(out, number);
        return;
    }
    const auto bits = std::bit_cast<std::uint64_t>(number);
    out += " value-hex=\"";
    for (unsigned shift = 64; shift != 0;) {
        shift -= 8;
        AppendHex(out, static_cast<unsigned char>(bits >> shift));
    }
    out += '"';
}

void AppendLine(std::string& out, const CKRMCAttribute& attribute) {
    out += "<attribute";
    AppendField(out, "name", attribute.GetName());
    switch (attribute.GetValueType()) {
        case kStringValue:
            out += " type=\"string\"";
            AppendField(out, "value", attribute.GetString());
            break;
        case kDoubleValue:
            out += " type=\"double\"";
            AppendDoubleField(out, attribute.GetDouble());
            break;
        case kLongValue:
            out += " type=\"long\"";
            AppendNumberField(out, attribute.GetLong());
            break;
        case kULongValue:
            out += " type=\"ulong\"";
            AppendNumberField(out, attribute.GetULong());
            break;
        default:
            out += " type=\"empty\"";
            break;
    }
    out += "/>\n";
}

void AppendLine(std::string& out, std::string_view tag, const char* name) {
    out += '<';
    out += tag;
    AppendField(out, "name", name);
    out += ">\n";
}

bool TakeWords(std::string_view& line, std::string_view words) {
    if (line.substr(0, words.size()) != words) {
        return false;
    }
    line.remove_prefix(words.size());
    return true;
}

std::string Unescaped(std::string_view written) {
    std::string text;
    while (!written.empty()) {
        char character = written.front();
        std::size_t length = 1;
        for (const Escape& escape : kEscapes) {
            if (written.substr(0, escape.written.size()) == escape.written) {
                character = escape.character;
                length = escape.written.size();
            }
        }
        text += character;
        written.remove_prefix(length);
    }
    return text;
}

std::string FromHex(std::string_view digits) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
        unsigned byte = 0;
        std::from_chars(digits.data() + i, digits.data() + i + 2, byte, 16);
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

/// What stands between the quotes of ` field="..."`, decoded; lenient, as what was read is written again and compared.
std::optional<std::string> TakeField(std::string_view& line, std::string_view field) {
    if (!TakeWords(line, " ") || !TakeWords(line, field)) {
        return std::nullopt;
    }
    const bool isHex = TakeWords(line, "-hex");
    const std::size_t end = TakeWords(line, "=\"") ? line.find('"') : line.npos;
    if (end == line.npos) {
        return std::nullopt;
    }
    const std::string_view written = line.substr(0, end);
    line.remove_prefix(end + 1);
    return isHex ? FromHex(written) : Unescaped(written);
}

template <class Number>
bool SetNumber(CKRMCAttribute& attribute, const std::string& text) {
    const std::optional<Number> number = NumberOf<Number>(text);
    if (!number) {
        return false;
    }
    RequireMemory(attribute.SetValue(nullptr, *number));
    return true;
}

bool SetDouble(CKRMCAttribute& attribute, const std::string& text, bool isHex) {
    if (!isHex) {
        return SetNumber<double>(attribute, text);
    }
    std::uint64_t bits = 0;
    for (const char byte : text) {
        bits = (bits << 8U) | static_cast<unsigned char>(byte);
    }
    RequireMemory(attribute.SetValue(nullptr, std::bit_cast<double>(bits)));
    return true;
}

/// Reads one line after the other. Every line is read leniently; what was made of it is written again and must be the
/// line.
class Reader {
public:
    explicit Reader(std::string_view xml) : m_rest(xml), m_size(xml.size()) {}

    XmlTree Read() {
        if (TakeLine() != kDeclaration) {
            return Failed("this is no document of an element tree");
        }
        do {
            m_line = TakeLine();
            if (const char* const error = Add(m_line)) {
                return Failed(error);
            }
        } while (m_root == nullptr || !m_open.empty());
        if (!m_rest.empty()) {
            TakeLine();
            return Failed("there is something behind the end");
        }
        return {.root = std::move(m_root)};
    }

private:
    std::string_view TakeLine() {
        m_lineOffset = m_size - m_rest.size();
        const std::size_t end = m_rest.find('\n');
        const std::string_view line = m_rest.substr(0, end);
        m_cut = end == m_rest.npos;
        m_rest.remove_prefix(m_cut ? m_rest.size() : end + 1);
        return line;
    }

    XmlTree Failed(const char* error) const {
        XmlTree tree;
        tree.errorOffset = m_lineOffset;
        tree.error = m_cut ? "the document ends too early" : error;
        return tree;
    }

    /// Null, or what is wrong with the line.
    const char* Add(std::string_view line) {
        if (m_cut) {
            return "the document ends too early";
        }
        if (TakeWords(line, "<attribute")) {
            return AddAttribute(line);
        }
        if (TakeWords(line, "<element")) {
            return AddElement(line);
        }
        if (TakeWords(line, "<group")) {
            return AddGroup(line);
        }
        if (!m_open.empty() && line == (OpenElement() != nullptr ? "</element>" : "</group>")) {
            m_open.pop_back();
            return nullptr;
        }
        return "this tag has no place here";
    }

    const char* AddElement(std::string_view line) {
        const std::optional<std::string> name = TakeField(line, "name");
        if (!name) {
            return "the element has no name";
        }
        CKRMCElement* element = nullptr;
        if (m_root == nullptr) {
            m_root = std::make_unique<CKRMCElement>(name->c_str());
            element = m_root.get();
        } else if (OpenElement() == nullptr) {
            element = &Made(Chain::NewElement(static_cast<CKRMCElementGroup&>(*m_open.back()), name->c_str()));
        } else {
            return "an element stands in a group";
        }
        m_open.push_back(element);
        AppendLine(m_again, "element", element->GetName());
        return Compared();
    }

    const char* AddGroup(std::string_view line) {
        const std::optional<std::string> name = TakeField(line, "name");
        CKRMCElement* const parent = OpenElement();
        if (!name || parent == nullptr) {
            return !name ? "the group has no name" : "a group stands in an element";
        }
        m_open.push_back(&Made(Chain::NewGroup(*parent, name->c_str())));
        AppendLine(m_again, "group", m_open.back()->GetName());
        return Compared();
    }

    const char* AddAttribute(std::string_view line) {
        CKRMCElement* const parent = OpenElement();
        if (parent == nullptr || parent->GetFirstGroup() != nullptr) {
            return "an attribute stands in an element, before its groups";
        }
        const std::optional<std::string> name = TakeField(line, "name");
        const std::optional<std::string> type = TakeField(line, "type");
        if (!name || !type) {
            return "the attribute lacks its name or type";
        }
        CKRMCAttribute& attribute = Made(Chain::NewAttribute(*parent, name->c_str()));
        if (*type != "empty") {
            const bool isHex = line.substr(0, 11) == " value-hex=";
            const std::optional<std::string> value = TakeField(line, "value");
            if (!value || !SetValue(attribute, *type, *value, isHex)) {
                return "the attribute's value doesn't fit its type";
            }
        }
        AppendLine(m_again, attribute);
        return Compared();
    }

    static bool SetValue(CKRMCAttribute& attribute, const std::string& type, const std::string& value, bool isHex) {
        if (type == "string") {
            RequireMemory(attribute.SetValue(nullptr, value.c_str()));
            return true;
        }
        return type == "double"  ? SetDouble(attribute, value, isHex)
               : type == "long"  ? SetNumber<krm_long>(attribute, value)
               : type == "ulong" ? SetNumber<krm_ulong>(attribute, value)
                                 : false;
    }

    const char* Compared() {
        m_again.pop_back();  // the line's end
        const bool same = m_again == m_line;
        m_again.clear();
        return same ? nullptr : "this is not written as ToXml writes it";
    }

    /// The innermost open node if it is an element, else null.
    CKRMCElement* OpenElement() const {
        return !m_open.empty() && m_open.back()->GetKind() == kElementKind ? static_cast<CKRMCElement*>(m_open.back())
                                                                           : nullptr;
    }

    std::string_view m_rest;
    std::size_t m_size;
    std::string_view m_line;
    std::size_t m_lineOffset = 0;
    bool m_cut = false;  // the line has no end
    std::unique_ptr<CKRMCElement> m_root;
    std::vector<CKRMCNode*> m_open;
    std::string m_again;
};

}  // namespace

CKRMCElement* Find(CKRMCElement& from, std::string_view path) {
    const std::vector<CKRMCElement*> found = FindAll(from, path);
    return found.empty() ? nullptr : found.front();
}

std::vector<CKRMCElement*> FindAll(CKRMCElement& from, std::string_view path) {
    std::vector<CKRMCElement*> found = {&from};
    do {
        const std::optional<Step> step = TakeStep(path);
        if (!step) {
            return {};
        }
        std::vector<CKRMCElement*> below;
        for (CKRMCElement* const parent : found) {
            std::size_t index = 0;
            for (CKRMCElement& element : Children(*parent, step->name.c_str())) {
                if (Fits(element, *step, index++)) {
                    below.push_back(&element);
                }
            }
        }
        found.swap(below);
    } while (!path.empty());
    return found;
}

std::unique_ptr<CKRMCNode> Remove(CKRMCNode& node) {
    return std::unique_ptr<CKRMCNode>(Chain::Unlink(node) ? &node : nullptr);
}

std::unique_ptr<CKRMCAttribute> Clone(const CKRMCAttribute& attribute) {
    auto copy = std::make_unique<CKRMCAttribute>(attribute.GetName());
    CopyValue(attribute, *copy);
    return copy;
}

std::unique_ptr<CKRMCElement> Clone(const CKRMCElement& element) {
    auto copy = std::make_unique<CKRMCElement>(element.GetName());
    Copier::CopyAttributes(element, *copy);
    Copier::CopyBelow(element, *copy);
    return copy;
}

std::unique_ptr<CKRMCElementGroup> Clone(const CKRMCElementGroup& group) {
    auto copy = std::make_unique<CKRMCElementGroup>(group.GetName());
    Copier::CopyBelow(group, *copy);
    return copy;
}

std::string ToXml(const CKRMCElement& element) {
    std::string xml(kDeclaration);
    xml += '\n';
    struct Writer {
        void operator()(const CKRMCElement& opened) const {
            AppendLine(out, "element", opened.GetName());
            ForAttributes(opened, [this](const CKRMCAttribute& attribute) { AppendLine(out, attribute); });
        }
        void operator()(const CKRMCElementGroup& opened) const { AppendLine(out, "group", opened.GetName()); }
        std::string& out;
    };
    Walk(element, Writer{xml}, [&xml](const CKRMCNode& closed) {
        xml += dynamic_cast<const CKRMCElement*>(&closed) != nullptr ? "</element>\n" : "</group>\n";
    });
    return xml;
}

XmlTree FromXml(std::string_view xml) {
    return Reader(xml).Read();
}

}  // namespace krm::tree
