// Every class's fields by name: krm::Fields<Class> lists them, krm::ForEachField goes through them.
//
//     krm::ForEachField(answer, [](std::string_view name, const auto& field) { ... });
//
// krm/fields/ has the fields of every message, record and plain structure, in a header for each one of krm/messages/, all
// of them in all_fields.h, and what they are at run time in message_descriptions.h. It includes krm/core/, krm/framework/,
// krm/messages/ and the platform, and nothing but what is built upon it includes it: who doesn't ask for fields doesn't pay
// for them.
//
// A class's fields are written down once, in the order of their declaration; the compiler knows their names. A class of
// one's own gets them in the same way:
//
//     template <>
//     struct krm::Fields<PaintLayer> : krm::FieldList<&PaintLayer::m_ushThickness, &PaintLayer::m_strColour> {};
//
// A message lists its own; the member of its family's request or answer base comes in front by itself.
//
// Three things that every message has are no fields: its type and its ID, which belong to its class, and the imported base's
// third member, m_uchStatus, which has no accessor. A message that is made anew from the fields of another therefore has
// the status of a new message, while a copy has the other's.
#ifndef KRM_FIELDS_FIELDS_H_
#define KRM_FIELDS_FIELDS_H_

#include <array>
#include <concepts>
#include <cstddef>
#include <initializer_list>
#include <string_view>
#include <type_traits>

#include "krm/core/list.h"
#include "krm/framework/literal.h"
#include "krm/framework/message.h"
#include "krm/platform/platform.h"

namespace krm {

// How the compiler spells the names of members and classes. Not for use by others.
namespace spelling {

template <class Member>
struct MemberPointer;
template <class Owner, class Member>
struct MemberPointer<Member Owner::*> {
    using Class = Owner;
    using Type = Member;
};

#if defined(__GNUC__) || defined(__clang__)
template <auto member>
constexpr auto TextWith() {
    return std::string_view(__PRETTY_FUNCTION__);
}
#else
// MSVC writes a pointer to a member as a number, but the address of an object's member by its name. The object is never
// defined: nobody reads it. Its class is an argument of its own, as MSVC takes equal offsets in two classes for one text.
template <class Class>
struct Nowhere {
    static const Class object;
};
template <class Class, auto address>
constexpr auto TextWithAddress() {
    return std::string_view(__FUNCSIG__);
}
template <auto member>
constexpr auto TextWith() {
    using Class = typename MemberPointer<decltype(member)>::Class;
    return TextWithAddress<Class, &(Nowhere<Class>::object.*member)>();
}
#endif

struct Known {
    int knownName;
};

/// What stands behind the member's name in every such text.
constexpr std::size_t LengthBehindName() {
    constexpr std::string_view text = TextWith<&Known::knownName>();
    return text.size() - text.rfind("knownName") - std::string_view("knownName").size();
}

template <auto member>
constexpr std::string_view NameInText() {
    std::string_view text = TextWith<member>();
    text.remove_suffix(LengthBehindName());
    return text.substr(text.find_last_of(":>.& ") + 1);
}

template <class Type>
constexpr auto TextWithType() {
#if defined(__GNUC__) || defined(__clang__)
    return std::string_view(__PRETTY_FUNCTION__);
#else
    return std::string_view(__FUNCSIG__);
#endif
}

template <class Class>
constexpr std::string_view ClassInText() {
    constexpr std::string_view text = TextWithType<int>();
    constexpr std::size_t begin = text.rfind("int");
    std::string_view name = TextWithType<Class>();
    name.remove_suffix(text.size() - begin - std::string_view("int").size());
    name.remove_prefix(begin);
    for (const std::string_view key : {"struct ", "class "}) {  // MSVC's
        if (name.starts_with(key)) {
            name.remove_prefix(key.size());
        }
    }
    return name;
}

/// A name alone: the compiler's text, several times as long, stays out of the program.
template <std::size_t length>
constexpr Literal<length + 1> Copied(std::string_view name) {
    Literal<length + 1> copy;
    for (std::size_t i = 0; i < length; ++i) {
        copy.characters[i] = name[i];
    }
    return copy;
}
template <auto member>
inline constexpr auto kName = Copied<NameInText<member>().size()>(NameInText<member>());
template <class Class>
inline constexpr auto kClass = Copied<ClassInText<Class>().size()>(ClassInText<Class>());

}  // namespace spelling

/// One field of a class, as an empty object.
template <auto member>
requires std::is_member_object_pointer_v<decltype(member)>
struct Field {
    /// The class that declares it: a base, where the field was listed by way of a derived class.
    using Class = typename spelling::MemberPointer<decltype(member)>::Class;
    /// What it holds.
    using Type = typename spelling::MemberPointer<decltype(member)>::Type;

    static constexpr auto pointer = member;                                   ///< as in the list
    static constexpr std::string_view name = spelling::kName<member>.View();  ///< as in the source; a NUL behind it

    /// The field of `object`; const where the object is.
    template <class Object>
    static constexpr auto& In(Object& object) {
        return object.*member;
    }
};

/// Fields in order; what krm::Fields of a class derives from.
template <auto... members>
struct FieldList {
    static constexpr std::size_t kCount = sizeof...(members);  ///< how many

    /// Calls `visitor(krm::Field<member>())` for each.
    template <class Visitor>
    static constexpr void ForEach([[maybe_unused]] Visitor&& visitor) {
        (visitor(Field<members>()), ...);
    }
};

/// The fields that `Class` declares itself, in order: specialised for every class that has fields to go through.
template <class Class>
struct Fields;

/// Whether krm::Fields knows `Class`: it is a message, a record, a plain structure or one of the messages' bases, and the
/// header with its fields is included.
template <class Class>
concept HasFields = requires {
    Fields<Class>::kCount;
};

/// The name of `Class` as in the source, with its namespaces and the classes around it; a NUL behind it.
template <HasFields Class>
inline constexpr std::string_view kClassName = spelling::kClass<Class>.View();

/// Whether `Class` derives from a family's request or answer base, whose member is the first of its fields.
template <class Class>
concept HasFieldsOfBase = requires {
    typename Class::DirectionBase;
}
&&!std::same_as<Class, typename Class::DirectionBase>;

/// Calls `visitor(krm::Field<member>())` for each field of `Class`, the base's first. For what is done with a class, or with
/// the same field of two objects.
template <HasFields Class, class Visitor>
constexpr void ForEachField(Visitor&& visitor) {
    if constexpr (HasFieldsOfBase<Class>) {
        Fields<typename Class::DirectionBase>::ForEach(visitor);
    }
    Fields<Class>::ForEach(visitor);
}

/// Calls `visitor(name, field)` for each field of `object`, the base's first: the name as std::string_view that is valid for
/// ever, and a reference to the field, const where the object is.
template <class Class, class Visitor>
requires HasFields<std::remove_const_t<Class>>
constexpr void ForEachField(Class& object, Visitor&& visitor) {
    ForEachField<std::remove_const_t<Class>>([&](auto field) { visitor(field.name, field.In(object)); });
}

/// The number of fields of `Class`, its base's among them.
template <HasFields Class>
inline constexpr std::size_t kFieldCount = [] {
    std::size_t count = 0;
    ForEachField<Class>([&](auto) { ++count; });
    return count;
}();

/// The names of the fields of `Class` in order, its base's first.
template <HasFields Class>
inline constexpr std::array<std::string_view, kFieldCount<Class>> kFieldNames = [] {
    std::array<std::string_view, kFieldCount<Class>> names{};
    std::size_t index = 0;
    ForEachField<Class>([&](auto field) { names[index++] = field.name; });
    return names;
}();

/// What a field holds, or an element of a list.
enum class ValueKind {
    Bool,      ///< `bool`
    Signed,    ///< a signed integer; the type's size says which
    Unsigned,  ///< an unsigned integer; the type's size says which
    Double,    ///< `double`
    Text,      ///< `CKRMString`: any bytes but NUL
    Record,    ///< a class with fields of its own, which may be a message
    List,      ///< `CKRMList` of any kind
    Array,     ///< a fixed number of elements of any kind
    Map        ///< `CKRMMap<CKRMString, CKRMString>`
};

template <class Type>
inline constexpr bool kIsList = false;  ///< whether `Type` is a `CKRMList`
template <class Element>
inline constexpr bool kIsList<CKRMList<Element>> = true;  ///< it is

/// The kind of a field of this type. A type of no kind doesn't compile.
template <class Type>
inline constexpr ValueKind kValueKind = [] {
    if constexpr (std::is_same_v<Type, bool>) {
        return ValueKind::Bool;
    } else if constexpr (std::is_integral_v<Type>) {
        return std::is_signed_v<Type> ? ValueKind::Signed : ValueKind::Unsigned;
    } else if constexpr (std::is_same_v<Type, double>) {
        return ValueKind::Double;
    } else if constexpr (std::is_same_v<Type, CKRMString>) {
        return ValueKind::Text;
    } else if constexpr (kIsList<Type>) {
        return ValueKind::List;
    } else if constexpr (std::is_array_v<Type>) {
        return ValueKind::Array;
    } else if constexpr (std::is_same_v<Type, CKRMMap<CKRMString, CKRMString>>) {
        return ValueKind::Map;
    } else {
        static_assert(HasFields<Type>, "a field's type is a number, a text, a list, a map, or has krm::Fields");
        return ValueKind::Record;
    }
}();

template <class Type>
struct ElementTrait {};  ///< what ElementOf goes by
/// Of a list.
template <class Element>
struct ElementTrait<CKRMList<Element>> {
    using Type = Element;  ///< of a list
};
/// Of an array.
template <class Element, std::size_t count>
struct ElementTrait<Element[count]> {
    using Type = Element;  ///< of an array
};
/// What a list or an array consists of.
template <class Type>
using ElementOf = typename ElementTrait<Type>::Type;

// The fields of what lies below the messages: the families' request and answer bases, and the platform's error object.

template <>
struct Fields<CKRMCBaseCmdAdaptDataSnd> : FieldList<&CKRMCBaseCmdAdaptDataSnd::m_ulEcuId> {};
template <>
struct Fields<CKRMCBaseCmdAdaptDataRcv> : FieldList<&CKRMCBaseCmdAdaptDataRcv::m_bNotSupport> {};
template <>
struct Fields<CKRMCBaseVdcAdaptDataSnd> : FieldList<&CKRMCBaseVdcAdaptDataSnd::m_ulVdcSndValue> {};
template <>
struct Fields<CKRMCBaseVdcAdaptDataRcv> : FieldList<> {};
template <>
struct Fields<CKRMCBaseDsdiAdaptDataSnd> : FieldList<&CKRMCBaseDsdiAdaptDataSnd::m_ulEcuId> {};
template <>
struct Fields<CKRMCBaseDsdiAdaptDataRcv> : FieldList<> {};
template <>
struct Fields<CKRMCBaseUccAdaptDataSnd> : FieldList<> {};
template <>
struct Fields<CKRMCBaseUccAdaptDataRcv> : FieldList<> {};
template <>
struct Fields<CKRMCBaseDwtAdaptDataSnd> : FieldList<> {};
template <>
struct Fields<CKRMCBaseDwtAdaptDataRcv> : FieldList<> {};
template <>
struct Fields<CKRMError>
    : FieldList<&CKRMError::a_ulReturnCode, &CKRMError::a_strErrorModuleName, &CKRMError::a_strErrorClassName,
                &CKRMError::a_strErrorFunctionName, &CKRMError::a_strErrorFunctionArgs, &CKRMError::a_strMessage> {};

static_assert(Field<&CKRMError::a_strErrorModuleName>::name == "a_strErrorModuleName" &&
                  kClassName<CKRMError> == "CKRMError",
              "this compiler writes names in a way that krm/fields/fields.h doesn't know");

}  // namespace krm

#endif  // KRM_FIELDS_FIELDS_H_
