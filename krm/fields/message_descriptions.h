// What messages consist of, for programs that learn at run time alone which ones they deal with: a viewer, a writer of
// schemas, a filter.
//
//     const krm::MessageDescription* const description = krm::FindMessage(type, id, krm::Direction::Receive);
//     for (const krm::FieldDescription& field : description->content->fields) ...  // names and kinds
//
//     if (const std::optional<krm::ConstValue> answer = description->ContentOf(message)) {
//         answer->ForEachField([](std::string_view name, krm::ConstValue value) { ... });
//     }
//
// Who knows the class goes through its fields with krm::ForEachField (krm/fields/fields.h), which is faster and tells every
// type. Among the fields of a message are neither its type and ID nor the imported base's third member, m_uchStatus, which
// has no accessor.
#ifndef KRM_FIELDS_MESSAGE_DESCRIPTIONS_H_
#define KRM_FIELDS_MESSAGE_DESCRIPTIONS_H_

#include <array>
#include <concepts>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/fields/fields.h"
#include "krm/framework/commands.h"
#include "krm/framework/message.h"
#include "krm/messages/describe.h"
#include "krm/platform/platform.h"

namespace krm {

struct TypeDescription;

/// A field of a record or message.
struct FieldDescription {
    std::string_view name;        ///< as in the source; a NUL behind it
    const TypeDescription* type;  ///< what it holds; never null
    void* (*in)(void* object);    ///< the field of the object; for Value
};

/// How the elements of a list are reached, whatever they are; for Value.
struct ListAccess {
    int (*count)(const void* list);                                                           ///< how many
    void (*forEach)(void* list, void* context, void (*visit)(void* context, void* element));  ///< from head to tail
    void* (*append)(void* list);                                                              ///< a new last element
    void (*removeAll)(void* list);                                                            ///< empties it
};

/// How an integer is read and written, whatever its type; for Value.
struct IntegerAccess {
    krm_int64 (*get)(const void* integer);        ///< its value
    bool (*set)(void* integer, krm_int64 value);  ///< false, and no change, where the type can't hold `value`
};

/// What a field holds, or an element of a list.
struct TypeDescription {
    ValueKind kind;                            ///< decides which of the following there are
    std::size_t size;                          ///< in bytes; of an integer 1, 2, 4 or 8
    std::string_view className;                ///< of a record
    std::span<const FieldDescription> fields;  ///< of a record, in order, its base's first
    const TypeDescription* element;            ///< of a list or an array; else null
    int length;                                ///< of an array: its number of elements
    const IntegerAccess* integer;              ///< of an integer or a bool; else null; for Value
    const ListAccess* list;                    ///< of a list; else null; for Value
};

/// A value within an object of a class that is known at run time alone: what it is, and access to it. `Address` is `void`
/// for an object that may be changed, else `const void`. It refers to the object, which must outlive it; a list's elements
/// also end when they are removed.
///
/// Nothing here takes a value for what it isn't: what the value doesn't have is absent, empty or null.
template <class Address>
class BasicValue {
    template <class T>
    using Constness = std::conditional_t<std::is_const_v<Address>, const T, T>;

public:
    /// The value at `address`. REQUIRES: `type` describes what lies there.
    BasicValue(const TypeDescription& type, Address* address) : m_type(&type), m_address(address) {}
    /// The same value, not to be changed.
    operator BasicValue<const void>() const requires(!std::is_const_v<Address>) { return {*m_type, m_address}; }

    /// What it is, and for a record its fields.
    const TypeDescription& Type() const { return *m_type; }
    /// What it is.
    ValueKind Kind() const { return m_type->kind; }

    /// The value of an integer of any size, of a bool 0 or 1; nothing of what is neither.
    std::optional<krm_int64> Integer() const {
        return m_type->integer != nullptr ? std::optional(m_type->integer->get(m_address)) : std::nullopt;
    }
    /// Gives an integer or a bool this value; false, and no change, where it is neither or can't hold it.
    bool SetInteger(krm_int64 value) const requires(!std::is_const_v<Address>) {
        return m_type->integer != nullptr && m_type->integer->set(m_address, value);
    }

    /// The value itself, if it is a `double`, a `CKRMString` or a `CKRMMap<CKRMString, CKRMString>`, as `T` says; else null.
    template <class T>
    requires std::same_as<T, double> || std::same_as<T, CKRMString> || std::same_as<T, CKRMMap<CKRMString, CKRMString>>
        Constness<T>
    *As() const { return Kind() == kValueKind<T> ? static_cast<Constness<T>*>(m_address) : nullptr; }

    /// The field with this index in Type().fields.
    /// REQUIRES: the value is a record that has so many.
    BasicValue Field(std::size_t index) const {
        const FieldDescription& field = m_type->fields[index];
        return BasicValue(*field.type, field.in(Changeable()));
    }
    /// Calls `visitor(std::string_view name, BasicValue field)` for each field of a record, its base's first.
    template <class Visitor>
    void ForEachField(Visitor&& visitor) const {
        for (std::size_t i = 0; i < m_type->fields.size(); ++i) {
            visitor(m_type->fields[i].name, Field(i));
        }
    }

    /// The number of elements of a list or an array; of anything else 0.
    int Count() const { return m_type->list != nullptr ? m_type->list->count(m_address) : m_type->length; }

    /// Calls `visitor(BasicValue element)` for each element of a list or an array, which must keep its elements meanwhile.
    template <class Visitor>
    void ForEachElement(Visitor&& visitor) const {
        if (m_type->list != nullptr) {
            const auto visit = [&](void* element) { visitor(BasicValue(*m_type->element, element)); };
            m_type->list->forEach(
                Changeable(), const_cast<void*>(static_cast<const void*>(&visit)),
                [](void* context, void* element) { (*static_cast<const decltype(visit)*>(context))(element); });
        }
        for (int i = 0; i < m_type->length; ++i) {
            auto* const first = static_cast<Constness<char>*>(m_address);
            visitor(BasicValue(*m_type->element, first + static_cast<std::size_t>(i) * m_type->element->size));
        }
    }

    /// Appends an element to a list, as its default constructor leaves it, and returns it; nothing for what is no list.
    std::optional<BasicValue> Append() const requires(!std::is_const_v<Address>) {
        return m_type->list != nullptr ? std::optional(BasicValue(*m_type->element, m_type->list->append(m_address)))
                                       : std::nullopt;
    }
    /// Empties a list.
    void RemoveAll() const requires(!std::is_const_v<Address>) {
        if (m_type->list != nullptr) {
            m_type->list->removeAll(m_address);
        }
    }

private:
    /// What descriptions take, which know no const: what they give back becomes const again here.
    void* Changeable() const { return const_cast<void*>(m_address); }

    const TypeDescription* m_type;
    Address* m_address;
};

/// A value that may be changed.
using Value = BasicValue<void>;
/// A value that may be read alone.
using ConstValue = BasicValue<const void>;

/// A message's class.
struct MessageDescription {
    std::string_view className;  ///< "CKRMCGetDTCCmdAdaptDataSnd"
    std::string_view command;    ///< "GetDTC", as in krm::kCommands
    CommandFamily family;        ///< whose command type it carries
    Direction direction;         ///< whether it asks or answers
    krm_ulong type;              ///< the command type, a number
    krm_ulong id;                ///< the command ID
    /// What it consists of, a record: its fields in order, its base's first. Never null.
    const TypeDescription* content;
    /// A new message, as its default constructor leaves it. Throws std::bad_alloc when memory runs out.
    std::unique_ptr<CKRMBaseAdaptationData> (*create)();
    /// The object of this class that `message` is, or null where it carries another type or ID; for ContentOf.
    void* (*object)(CKRMBaseAdaptationData* message);

    /// The content of a message of this class; nothing where it carries another type or ID.
    /// REQUIRES: it has this direction, which it can't be asked for; see krm::MessageAs.
    std::optional<Value> ContentOf(CKRMBaseAdaptationData& message) const {
        void* const found = object(&message);
        return found != nullptr ? std::optional(Value(*content, found)) : std::nullopt;
    }
    /// The same of a message that may be read alone.
    std::optional<ConstValue> ContentOf(const CKRMBaseAdaptationData& message) const {
        return ContentOf(const_cast<CKRMBaseAdaptationData&>(message));
    }
};

/// Every message of the library, in the order of krm::kCommands, each command's request before its answer.
KRM_API std::span<const MessageDescription> AllMessages();

/// The message with this type, ID and direction; null where there is none. It lives as long as the program.
KRM_API const MessageDescription* FindMessage(krm_ulong commandType, krm_ulong commandId, Direction direction);

// How descriptions are made while compiling. A program's own message has one, too: krm::kMessageDescription<PaintAnswer>.

/// Makes kTypeDescription.
template <class Type>
consteval TypeDescription DescribeType();

/// What a field of this type holds.
template <class Type>
inline constexpr TypeDescription kTypeDescription = DescribeType<Type>();

/// The fields of a class, its base's first.
template <HasFields Class>
inline constexpr std::array<FieldDescription, kFieldCount<Class>> kFieldDescriptions = [] {
    std::array<FieldDescription, kFieldCount<Class>> descriptions{};
    std::size_t index = 0;
    ForEachField<Class>([&](auto field) {
        using Field = decltype(field);
        descriptions[index++] = {Field::name, &kTypeDescription<typename Field::Type>,
                                 [](void* object) -> void* { return &Field::In(*static_cast<Class*>(object)); }};
    });
    return descriptions;
}();

/// Access to integers of this type.
template <class Integer>
inline constexpr IntegerAccess kIntegerAccess = {
    [](const void* integer) { return static_cast<krm_int64>(*static_cast<const Integer*>(integer)); },
    [](void* integer, krm_int64 value) {
        const bool fits = static_cast<krm_int64>(static_cast<Integer>(value)) == value;
        if (fits) {
            *static_cast<Integer*>(integer) = static_cast<Integer>(value);
        }
        return fits;
    }};

/// Access to lists of these elements.
template <class Element>
inline constexpr ListAccess kListAccess = {
    [](const void* list) { return static_cast<const CKRMList<Element>*>(list)->GetCount(); },
    [](void* list, void* context, void (*visit)(void* context, void* element)) {
        for (Element& element : *static_cast<CKRMList<Element>*>(list)) {
            visit(context, &element);
        }
    },
    [](void* list) -> void* {
        auto* const elements = static_cast<CKRMList<Element>*>(list);
        _SKRMPOSITION* position = elements->AddTail(Element());
        return elements->GetNextPtr(position);
    },
    [](void* list) { static_cast<CKRMList<Element>*>(list)->RemoveAll(); }};

template <class Type>
consteval TypeDescription DescribeType() {
    TypeDescription type{};
    type.kind = kValueKind<Type>;
    type.size = sizeof(Type);
    if constexpr (std::is_integral_v<Type>) {
        static_assert(sizeof(Type) < sizeof(krm_int64) || std::is_signed_v<Type>,
                      "there are integers of this type that krm::Value can't give");
        type.integer = &kIntegerAccess<Type>;
    } else if constexpr (kValueKind<Type> == ValueKind::Record) {
        type.className = kClassName<Type>;
        type.fields = kFieldDescriptions<Type>;
    } else if constexpr (kValueKind<Type> == ValueKind::List) {
        type.element = &kTypeDescription<ElementOf<Type>>;
        type.list = &kListAccess<ElementOf<Type>>;
    } else if constexpr (kValueKind<Type> == ValueKind::Array) {
        type.element = &kTypeDescription<ElementOf<Type>>;
        type.length = static_cast<int>(std::extent_v<Type>);
    }
    return type;
}

/// The description of a message's class, objects of which `create` makes.
template <class Message>
consteval MessageDescription DescribeMessage(std::unique_ptr<CKRMBaseAdaptationData> (*create)()) {
    return {kClassName<Message>,
            CommandNameIn(static_cast<const Message*>(nullptr)),
            Message::kFamily,
            Message::kDirection,
            Message::kCommandType,
            Message::kCommandId,
            &kTypeDescription<Message>,
            create,
            [](CKRMBaseAdaptationData* message) -> void* { return MessageAs<Message>(message); }};
}

/// The description of a message's class that isn't the library's.
template <class Message>
inline constexpr MessageDescription kMessageDescription =
    DescribeMessage<Message>([]() -> std::unique_ptr<CKRMBaseAdaptationData> { return std::make_unique<Message>(); });

}  // namespace krm

#endif  // KRM_FIELDS_MESSAGE_DESCRIPTIONS_H_
