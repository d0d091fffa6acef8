// Writes an example of every message to standard output, for the catalogue's pages: a line "== " with the name of its class,
// the message as JSON in one line, and the lines that it writes into the operation log, none of a family that has no dump.
//
// Every list has an element, every number its own value as far as its type permits, so that a line of the log can be told
// from its neighbours.

#include <cctype>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "krm/core/types.h"
#include "krm/exchange/json.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/commands.h"
#include "krm/framework/message.h"
#include "krm/platform/platform.h"

namespace {

using Map = CKRMMap<CKRMString, CKRMString>;

constexpr struct {
    std::string_view field;
    const char* text;
} kTexts[] = {{"m_strDTC", "P0301"},      {"m_strDTCName", "Cylinder 1 misfire detected"},
              {"m_strEcuName", "Engine"}, {"m_strEcuShortName", "ENG"},
              {"m_strUnit", "°C"},        {"m_strVinCode", "KRM00000000000001"}};

constexpr struct {
    std::string_view field;
    krm_int64 value;
} kNumbers[] = {{"m_bNotSupport", 0}, {"m_ulDTCCode", 769}, {"m_ulEcuId", 2024}, {"m_ulVBattValue", 12350}};

/// "m_strGroupName" as "Group name".
std::string WordsOf(std::string_view field) {
    const std::size_t prefix = field.find("_str");
    field.remove_prefix(prefix == std::string_view::npos ? 0 : prefix + 4);
    std::string words;
    for (const char letter : field) {
        const auto code = static_cast<unsigned char>(letter);
        const bool begins =
            !words.empty() && std::isupper(code) != 0 && std::islower(static_cast<unsigned char>(words.back())) != 0;
        words += begins ? " " : "";
        words += begins ? static_cast<char>(std::tolower(code)) : letter;
    }
    return words;
}

class Example {
public:
    /// Fills `value`, which is the field of this name, or an element of it.
    void Fill(std::string_view field, const krm::Value& value) {
        switch (value.Kind()) {
            case krm::ValueKind::Bool:
                value.SetInteger(KnownNumber(field).value_or(1));
                break;
            case krm::ValueKind::Signed:
                value.SetInteger(value.Type().size == 1 ? -(Next() % 128) : -Next());
                break;
            case krm::ValueKind::Unsigned:
                value.SetInteger(NumberOf(field, value.Type().size));
                break;
            case krm::ValueKind::Double:
                *value.As<double>() = static_cast<double>(Next()) + 0.5;
                break;
            case krm::ValueKind::Text:
                *value.As<CKRMString>() = TextOf(field).c_str();
                break;
            case krm::ValueKind::Record:
                value.ForEachField([&](std::string_view name, const krm::Value& inner) { Fill(name, inner); });
                break;
            case krm::ValueKind::List:
                value.RemoveAll();
                for (int i = value.Type().element->kind == krm::ValueKind::Record ? 1 : 0; i < 2; ++i) {
                    Fill(field, *value.Append());
                }
                break;
            case krm::ValueKind::Array:
                value.ForEachElement([&](const krm::Value& element) { Fill(field, element); });
                break;
            case krm::ValueKind::Map:
                value.As<Map>()->SetAt("button.ok", "OK");
                break;
        }
    }

private:
    krm_int64 Next() { return m_number++; }

    krm_int64 NumberOf(std::string_view field, std::size_t size) {
        if (const std::optional<krm_int64> known = KnownNumber(field)) {
            return *known;
        }
        return size == 1 ? Next() % 256 : Next();
    }

    static std::optional<krm_int64> KnownNumber(std::string_view field) {
        for (const auto& known : kNumbers) {
            if (known.field == field) {
                return known.value;
            }
        }
        return std::nullopt;
    }

    static std::string TextOf(std::string_view field) {
        for (const auto& known : kTexts) {
            if (known.field == field) {
                return known.text;
            }
        }
        return WordsOf(field);
    }

    krm_int64 m_number = 10;
};

krm_long WriteLine(void*, const char* text, krm_ulong length, int, int) {
    std::printf("%.*s\n", static_cast<int>(length), text);
    return 0;
}

bool Write(const krm::MessageDescription& description) {
    const std::unique_ptr<CKRMBaseAdaptationData> message = description.create();
    const std::optional<krm::Value> content = description.ContentOf(*message);
    if (!content) {
        return false;
    }
    Example().Fill({}, *content);
    const std::string json = krm::ToJson(*message, description);
    std::printf("== %.*s\n%s\n", static_cast<int>(description.className.size()), description.className.data(),
                json.c_str());
    // The viewer's messages have no dump; every other family's have.
    if (description.family != krm::CommandFamily::Viewer) {
        static_cast<krm::LoggedMessage&>(*message).ErrWriteOperationLog();
    }
    return !json.empty();
}

}  // namespace

int main() {
    KRMC_ER_SetOperationLogSink(&WriteLine, nullptr);
    for (const krm::MessageDescription& description : krm::AllMessages()) {
        if (!Write(description)) {
            std::fprintf(stderr, "krm_catalogue_examples: no example of %.*s\n",
                         static_cast<int>(description.className.size()), description.className.data());
            return 1;
        }
    }
    return std::fflush(stdout) == 0 ? 0 : 1;
}
