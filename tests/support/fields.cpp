#include "tests/support/fields.h"

#include <map>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>

#include "krm/fields/all_fields.h"

namespace krm::test {

namespace {

using Map = CKRMMap<CKRMString, CKRMString>;

// Lists that no message has.
constexpr const TypeDescription* kOthers[] = {&kTypeDescription<CKRMList<CKRMCCommandCarTypeOptionData>>,
                                              &kTypeDescription<CKRMList<CKRMCCommandConversionData>>,
                                              &kTypeDescription<CKRMList<CKRMCCommandDataLayout>>,
                                              &kTypeDescription<CKRMList<CKRMCCommandDispVariableData>>,
                                              &kTypeDescription<CKRMList<CKRMCStoredDataFileHeader>>,
                                              &kTypeDescription<CKRMList<CKRMCStoredDataImportFileData>>,
                                              &kTypeDescription<CKRMList<CKRMCStoredDataSystemTime>>,
                                              &kTypeDescription<CKRMList<CKRMCStoredDataTimestamp>>};

/// All that the library describes, by the names of its classes.
class Library {
public:
    std::map<std::string_view, const TypeDescription*> classes;
    std::map<std::string_view, const TypeDescription*> lists;  ///< by the class of their elements
    std::set<std::string_view> messages;

    static const Library& Get() {
        static const Library library;
        return library;
    }

private:
    Library() {
        for (const MessageDescription& message : AllMessages()) {
            messages.insert(message.className);
            Add(*message.content);
        }
        for (const TypeDescription* const type : kOthers) {
            Add(*type);
        }
    }

    void Add(const TypeDescription& type) {
        if (type.kind == ValueKind::Record) {
            if (!classes.emplace(type.className, &type).second) {
                return;
            }
        } else if (type.kind == ValueKind::List && type.element->kind == ValueKind::Record) {
            lists.emplace(type.element->className, &type);
        }
        for (const FieldDescription& field : type.fields) {
            Add(*field.type);
        }
        if (type.element != nullptr) {
            Add(*type.element);
        }
    }
};

const TypeDescription* Find(const std::map<std::string_view, const TypeDescription*>& types, std::string_view name) {
    const auto found = types.find(name);
    return found != types.end() ? found->second : nullptr;
}

/// For krm::Value and ForEachPart, which don't change what they aren't asked to.
void* Changeable(const void* it) {
    return const_cast<void*>(it);
}

void FillText(CKRMString& text, Seed& seed) {
    text = ("text " + std::to_string(seed.Next())).c_str();
}

/// `number` as an integer of this type takes it, its higher bits left out.
krm_int64 Truncated(const TypeDescription& type, std::uint32_t number) {
    switch (type.size) {
        case 1:
            return type.kind == ValueKind::Signed ? static_cast<std::int8_t>(number)
                                                  : static_cast<std::uint8_t>(number);
        case 2:
            return type.kind == ValueKind::Signed ? static_cast<std::int16_t>(number)
                                                  : static_cast<std::uint16_t>(number);
        case 4:
            return type.kind == ValueKind::Signed ? krm_int64{static_cast<std::int32_t>(number)} : krm_int64{number};
        default:
            return number;
    }
}

void Set(const TypeDescription& type, void* it, krm_int64 number) {
    if (!Value(type, it).SetInteger(number)) {
        throw std::logic_error("an integer doesn't take " + std::to_string(number));
    }
}

void Describe(const TypeDescription& type, const void* it, std::string& out) {
    const auto describeParts = [&] {
        ForEachPart(type, Changeable(it), [&](const TypeDescription& part, void* at) { Describe(part, at, out); });
    };
    const ConstValue value(type, it);
    switch (type.kind) {
        case ValueKind::Bool:
        case ValueKind::Signed:
        case ValueKind::Unsigned:
            out += std::to_string(value.Integer().value()) + ';';
            return;
        case ValueKind::Double: {
            CKRMString text;
            text.Format("%.17g;", *value.As<double>());
            out += text.GetText();
            return;
        }
        case ValueKind::Text:
            out += '"' + std::string(value.As<CKRMString>()->GetText()) + "\";";
            return;
        case ValueKind::Map:
            for (const auto& [key, text] : *value.As<Map>()) {
                out += std::string(key.GetText()) + '=' + text.GetText() + ';';
            }
            return;
        case ValueKind::Array:
            describeParts();
            return;
        case ValueKind::List:
            out += '[' + std::to_string(value.Count()) + ':';
            describeParts();
            out += ']';
            return;
        case ValueKind::Record:
            out += '{';
            if (const CKRMBaseAdaptationData* const message = MessageAt(type, it)) {
                out += std::to_string(message->GetCommandType()) + '/' + std::to_string(message->GetCommandID()) + ' ';
            }
            describeParts();
            out += '}';
            return;
    }
}

}  // namespace

const TypeDescription* FindType(std::string_view className) {
    return Find(Library::Get().classes, className);
}

const TypeDescription* FindListOf(std::string_view className) {
    return Find(Library::Get().lists, className);
}

const TypeDescription& LibraryType(std::string_view className, std::size_t size) {
    const TypeDescription* const type = FindType(className);
    if (type == nullptr || type->size != size) {
        throw std::logic_error("the library doesn't describe " + std::string(className));
    }
    return *type;
}

const CKRMBaseAdaptationData* MessageAt(const TypeDescription& type, const void* it) {
    // An object of a message's class begins with its imported base, which has the first virtual operations.
    return Library::Get().messages.contains(type.className) ? static_cast<const CKRMBaseAdaptationData*>(it) : nullptr;
}

void Fill(const TypeDescription& type, void* it, Seed& seed) {
    const Value value(type, it);
    switch (type.kind) {
        case ValueKind::Bool:
            Set(type, it, 1);
            return;
        case ValueKind::Signed:
        case ValueKind::Unsigned:
            Set(type, it, Truncated(type, seed.Next() | 2U));
            return;
        case ValueKind::Double:
            *value.As<double>() = static_cast<double>(static_cast<std::int32_t>(seed.Next())) / 1024.0 + 0.0625;
            return;
        case ValueKind::Text:
            FillText(*value.As<CKRMString>(), seed);
            return;
        case ValueKind::Map:
            for (int i = 0; i < 2; ++i) {
                CKRMString key;
                CKRMString text;
                FillText(key, seed);
                FillText(text, seed);
                value.As<Map>()->SetAt(key, text);
            }
            return;
        case ValueKind::List:
            for (int i = 0; i < 2; ++i) {
                Fill(*type.element, type.list->append(it), seed);
            }
            return;
        case ValueKind::Record:
        case ValueKind::Array:
            ForEachPart(type, it, [&](const TypeDescription& part, void* at) { Fill(part, at, seed); });
            return;
    }
}

std::unique_ptr<CKRMBaseAdaptationData> FilledMessage(const MessageDescription& description, std::uint32_t seed) {
    std::unique_ptr<CKRMBaseAdaptationData> message = description.create();
    Seed numbers(seed);
    Fill(*description.content, description.object(message.get()), numbers);
    return message;
}

void Change(const TypeDescription& type, void* it, Seed& seed) {
    const Value value(type, it);
    switch (type.kind) {
        case ValueKind::Bool:
        case ValueKind::Signed:
        case ValueKind::Unsigned:
            Set(type, it, value.Integer().value() ^ 1);
            return;
        case ValueKind::Double:
        case ValueKind::Text:
            Fill(type, it, seed);
            return;
        case ValueKind::Map:
            for (auto& [key, text] : *value.As<Map>()) {
                FillText(text, seed);
            }
            return;
        case ValueKind::List:
        case ValueKind::Record:
        case ValueKind::Array:
            ForEachPart(type, it, [&](const TypeDescription& part, void* at) { Change(part, at, seed); });
            return;
    }
}

bool IsZero(const TypeDescription& type, const void* it) {
    const ConstValue value(type, it);
    switch (type.kind) {
        case ValueKind::Bool:
        case ValueKind::Signed:
        case ValueKind::Unsigned:
            return value.Integer().value() == 0;
        case ValueKind::Double:
            return *value.As<double>() == 0;
        case ValueKind::Text:
            return value.As<CKRMString>()->GetLength() == 0;
        case ValueKind::Map:
            return value.As<Map>()->GetCount() == 0;
        case ValueKind::List:
            return value.Count() == 0;
        case ValueKind::Record:
        case ValueKind::Array: {
            bool zero = true;
            ForEachPart(type, Changeable(it),
                        [&](const TypeDescription& part, void* at) { zero = zero && IsZero(part, at); });
            return zero;
        }
    }
    return false;
}

bool HasUnfilled(const TypeDescription& type, const void* it) {
    switch (type.kind) {
        case ValueKind::List:
        case ValueKind::Record:
        case ValueKind::Array: {
            bool unfilled = type.kind == ValueKind::List && IsZero(type, it);
            ForEachPart(type, Changeable(it),
                        [&](const TypeDescription& part, void* at) { unfilled = unfilled || HasUnfilled(part, at); });
            return unfilled;
        }
        default:
            return IsZero(type, it);
    }
}

std::string Described(const TypeDescription& type, const void* it) {
    std::string out;
    Describe(type, it, out);
    return out;
}

}  // namespace krm::test
