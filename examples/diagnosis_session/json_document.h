// A JSON document of which every part knows where it stands, so that a fault in it can be shown.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_JSON_DOCUMENT_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_JSON_DOCUMENT_H_

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "complaints.h"

namespace diagnosis_session {

/// A fault of a text, and where it is; columns count bytes.
struct FaultAt : std::runtime_error {
    FaultAt(const Place& where, const std::string& what) : std::runtime_error(what), place(where) {}
    Place place;
};

struct JsonMember;

/// One value of the document.
struct JsonValue {
    enum class Type { Null, Flag, Number, Text, Array, Object };
    Type type = Type::Null;
    Place place;
    std::string text;  ///< of a text; of anything else but arrays and objects, as it is written
    std::vector<JsonValue> elements;
    std::vector<JsonMember> members;  ///< in the document's order, and one name may be there twice

    bool IsObject() const { return type == Type::Object; }
    bool IsArray() const { return type == Type::Array; }
    /// The first member of that name, or null.
    const JsonMember* Find(std::string_view name) const;
};

struct JsonMember {
    std::string name;
    Place place;  ///< of the name
    JsonValue value;
};

/// Reads a document. Throws FaultAt where it is not JSON.
JsonValue ParseJson(std::string_view text);

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_JSON_DOCUMENT_H_
