// How a message's fields stand in the log, and the way back: a message made anew from its lines.
#ifndef KRM_CLI_LOG_FORM_H_
#define KRM_CLI_LOG_FORM_H_

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "cli/catalogue.h"
#include "cli/input.h"
#include "krm/fields/message_descriptions.h"
#include "krm/platform/platform.h"

namespace krm_cli {

/// The path with nothing between the brackets, and what stood there: "Data[].m_uchSSRNo[]", 0 and 1.
struct PathShape {
    std::string path;
    std::vector<std::size_t> indices;
    bool isGood = false;  ///< what stands in brackets are numbers
};
PathShape ShapeOf(std::string_view path);

/// The log's form of one message class.
class LogForm {
public:
    /// Where a line's value belongs.
    struct Place {
        std::string field;  ///< the class's path, in shape: "Data[].m_cError.a_ulReturnCode"
        char conversion;    ///< d, X, s or f (%lf); x: bytes in hexadecimal, for a list
        bool isAmbiguous;   ///< two fields stand in the log by the same path
    };

    LogForm(const krm::MessageDescription& description, const Catalogue& catalogue);

    /// Null where no line of the class has this path.
    const Place* Find(const std::string& shape) const;
    /// Patterns, for krm::CompareOptions, of what isn't in the log, or can't be told from it.
    const std::vector<std::string>& NotLogged() const { return m_notLogged; }

    /// The form of a class, made when it is first asked for.
    static const LogForm& Of(const krm::MessageDescription& description);

private:
    void Add(const Catalogue& catalogue, const std::string& className, const std::string& log, const std::string& field,
             int depth);
    bool FindNotLogged(const krm::TypeDescription& type, const std::string& path, const std::string& pattern);

    std::unordered_map<std::string, Place> m_places;
    std::map<std::string, bool> m_logged;  ///< fields by shape; whether the log tells all of it
    std::vector<std::string> m_notLogged;
};

/// A message made anew from the lines of the log.
class RebuiltMessage {
public:
    /// A line that the message's class has no place for.
    struct Rest {
        std::string path;
        std::string value;

        friend bool operator==(const Rest&, const Rest&) = default;
    };

    explicit RebuiltMessage(const krm::MessageDescription& description);

    void Take(const FieldText& field);
    krm::ConstValue Content() const;
    const std::vector<Rest>& Rests() const { return m_rests; }

private:
    /// A list's element that a line was about: lines of the same one follow each other.
    struct Element {
        std::string path;
        krm::Value value;
    };
    std::optional<krm::Value> Find(std::string_view field, const std::vector<std::size_t>& indices);
    static bool Set(krm::Value value, char conversion, std::string_view text);

    const krm::MessageDescription* m_description;
    const LogForm* m_form;
    std::unique_ptr<CKRMBaseAdaptationData> m_message;
    std::vector<Element> m_elements;  ///< by depth
    std::vector<Rest> m_rests;
};

}  // namespace krm_cli

#endif  // KRM_CLI_LOG_FORM_H_
