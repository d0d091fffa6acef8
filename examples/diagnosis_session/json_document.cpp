#include "json_document.h"

#include <algorithm>
#include <iterator>
#include <nlohmann/json.hpp>

namespace diagnosis_session {
namespace {

using Json = nlohmann::json;

/// Nested deeper than this a document is no table, and would take the stack.
constexpr std::size_t kDeepest = 64;

/// Walks the text for the parser and tells how far it has read.
class Reader {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    Reader(const char* at, const char** furthest) : m_at(at), m_furthest(furthest) {}
    reference operator*() const { return *m_at; }
    Reader& operator++() {
        *m_furthest = ++m_at;
        return *this;
    }
    Reader operator++(int) {
        Reader before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const Reader& left, const Reader& right) { return left.m_at == right.m_at; }

private:
    const char* m_at;
    const char** m_furthest;
};

/// Builds the document from the parser's events. Each event comes when the parser has read the token that it is about,
/// and at most one character more: the token begins behind the one before it.
class Builder : public nlohmann::json_sax<Json> {
public:
    Builder(std::string_view text, const char* const* furthest)
        : m_at(text.data()), m_lineBegin(text.data()), m_end(text.data() + text.size()), m_furthest(furthest) {}

    JsonValue Take() { return std::move(m_root); }

    bool null() override { return Add(JsonValue::Type::Null, "null"); }
    bool boolean(bool value) override { return Add(JsonValue::Type::Flag, value ? "true" : "false"); }
    bool number_integer(number_integer_t) override { return AddNumber(); }
    bool number_unsigned(number_unsigned_t) override { return AddNumber(); }
    bool number_float(number_float_t, const string_t&) override { return AddNumber(); }
    bool string(string_t& value) override { return Add(JsonValue::Type::Text, std::move(value)); }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override { return Open(JsonValue::Type::Object); }
    bool start_array(std::size_t) override { return Open(JsonValue::Type::Array); }
    bool end_object() override { return Shut(); }
    bool end_array() override { return Shut(); }

    bool key(string_t& name) override {
        const Place place = Begin();
        m_open.back()->members.push_back({std::move(name), place, {}});
        End();
        return true;
    }

    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
        // What the parser read last is what it doesn't understand.
        Begin();
        const char* const fault = *m_furthest > m_at ? m_at : std::min(*m_furthest, m_end);
        while (m_at < fault) {
            Step();
        }
        throw FaultAt(
            Here(), m_at == m_end ? "not JSON: the file ends here, before the document does" : "not JSON from here on");
    }

private:
    Place Here() const { return {m_line, static_cast<std::size_t>(m_at - m_lineBegin) + 1}; }
    void Step() {
        if (*m_at == '\n') {
            ++m_line;
            m_lineBegin = m_at + 1;
        }
        ++m_at;
    }

    /// Goes to the begin of the token that the parser has just read.
    Place Begin() {
        while (m_at < m_end && std::string_view(" \t\r\n,:\xEF\xBB\xBF").find(*m_at) != std::string_view::npos) {
            Step();
        }
        return Here();
    }
    /// Goes to its end. A number's is only known by a character that doesn't belong to it.
    void End() {
        while (m_at < std::min(*m_furthest, m_end)) {
            Step();
        }
    }

    JsonValue& Put(JsonValue value) {
        if (m_open.empty()) {
            m_root = std::move(value);
            return m_root;
        }
        JsonValue& holder = *m_open.back();
        if (holder.IsObject()) {
            holder.members.back().value = std::move(value);
            return holder.members.back().value;
        }
        holder.elements.push_back(std::move(value));
        return holder.elements.back();
    }
    bool Add(JsonValue::Type type, std::string text) {
        const Place place = Begin();
        Put({type, place, std::move(text), {}, {}});
        End();
        return true;
    }
    bool AddNumber() {
        const Place place = Begin();
        const char* const begin = m_at;
        while (m_at < m_end && std::string_view("+-.eE0123456789").find(*m_at) != std::string_view::npos) {
            Step();
        }
        Put({JsonValue::Type::Number, place, std::string(begin, m_at), {}, {}});
        return true;
    }
    bool Open(JsonValue::Type type) {
        const Place place = Begin();
        if (m_open.size() == kDeepest) {
            throw FaultAt(place, "nested deeper than " + std::to_string(kDeepest));
        }
        // The holder grows no more while this one is open, so the pointer stays good.
        m_open.push_back(&Put({type, place, {}, {}, {}}));
        Step();
        return true;
    }
    bool Shut() {
        m_open.pop_back();
        Begin();
        Step();
        return true;
    }

    JsonValue m_root;
    std::vector<JsonValue*> m_open;
    const char* m_at;
    const char* m_lineBegin;
    const char* m_end;
    std::size_t m_line = 1;
    const char* const* m_furthest;
};

}  // namespace

const JsonMember* JsonValue::Find(std::string_view name) const {
    const auto found =
        std::find_if(members.begin(), members.end(), [&](const JsonMember& member) { return member.name == name; });
    return found == members.end() ? nullptr : &*found;
}

JsonValue ParseJson(std::string_view text) {
    const char* furthest = text.data();
    Builder builder(text, &furthest);
    Json::sax_parse(Reader(text.data(), &furthest), Reader(text.data() + text.size(), &furthest), &builder);
    return builder.Take();
}

}  // namespace diagnosis_session
