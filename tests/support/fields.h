// What tests do with any record or message by way of its fields: fill an object, change it, describe all that it holds, see
// whether anything is set.
//
// An object comes as its description at run time (krm/fields/message_descriptions.h) and its address, so that all this is
// compiled once for all classes: a template for each of them takes the compiler minutes. That the description of a class
// says what the class has is tested by fields/message_descriptions_test.cpp. For a class of the library it is the one that
// the library itself has compiled; the test of such a class includes the header of krm/fields/ that has it.
#ifndef KRM_TESTS_SUPPORT_FIELDS_H_
#define KRM_TESTS_SUPPORT_FIELDS_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "krm/fields/message_descriptions.h"
#include "krm/platform/platform.h"

namespace krm::test {

/// A repeatable stream of numbers (xorshift), the same on every platform.
class Seed {
public:
    explicit Seed(std::uint32_t value) : m_state(value | 1U) {}
    std::uint32_t Next() {
        m_state ^= m_state << 13U;
        m_state ^= m_state >> 17U;
        m_state ^= m_state << 5U;
        return m_state;
    }

private:
    std::uint32_t m_state;
};

/// The library's description of its class of this name; null where it has none.
const TypeDescription* FindType(std::string_view className);
/// The library's description of the list of this class; null where it has none.
const TypeDescription* FindListOf(std::string_view className);
/// The message that a record is; null for what is no message of the library.
const CKRMBaseAdaptationData* MessageAt(const TypeDescription& type, const void* it);

/// Calls `visitor(const TypeDescription& type, void* address)` for each field of a record and each element of a list or an
/// array. What krm::Value does, but for the address.
template <class Visitor>
void ForEachPart(const TypeDescription& type, void* it, const Visitor& visitor) {
    for (const FieldDescription& field : type.fields) {
        visitor(*field.type, field.in(it));
    }
    if (type.list != nullptr) {
        const auto visit = [&](void* element) { visitor(*type.element, element); };
        type.list->forEach(it, const_cast<void*>(static_cast<const void*>(&visit)), [](void* context, void* element) {
            (*static_cast<const decltype(visit)*>(context))(element);
        });
    }
    for (int i = 0; i < type.length; ++i) {
        visitor(*type.element, static_cast<char*>(it) + static_cast<std::size_t>(i) * type.element->size);
    }
}

/// Fills `it` and all it holds with values that are not its defaults; each list gets two elements more.
void Fill(const TypeDescription& type, void* it, Seed& seed);
/// A message of this class, filled.
std::unique_ptr<CKRMBaseAdaptationData> FilledMessage(const MessageDescription& description, std::uint32_t seed);
/// Changes every value that `it` holds, at any depth; lists and maps keep their length.
void Change(const TypeDescription& type, void* it, Seed& seed);
/// Whether every field of `it`, at any depth, is 0, false or empty.
bool IsZero(const TypeDescription& type, const void* it);
/// Whether `it` has a list, at any depth, that is empty, or a value that is 0: after Fill there is none.
bool HasUnfilled(const TypeDescription& type, const void* it);
/// All that `it` holds, written out one value after the other: equal texts mean equal contents.
std::string Described(const TypeDescription& type, const void* it);

/// The library's description of its class of this name. Throws std::logic_error where it has none of this size.
const TypeDescription& LibraryType(std::string_view className, std::size_t size);

/// The description of a number, a text, a list or a class of the library; a test's own class has krm::kTypeDescription.
template <class T>
const TypeDescription& TypeOf() {
    if constexpr (HasFields<T>) {
        return LibraryType(kClassName<T>, sizeof(T));
    } else {
        return kTypeDescription<T>;
    }
}

// The same for an object whose class the test knows.
template <class T>
void Fill(T& it, Seed& seed) {
    Fill(TypeOf<T>(), &it, seed);
}
template <class T>
void Change(T& it, Seed& seed) {
    Change(TypeOf<T>(), &it, seed);
}
template <class T>
bool IsZero(const T& it) {
    return IsZero(TypeOf<T>(), &it);
}
template <class T>
std::string Described(const T& it) {
    return Described(TypeOf<T>(), &it);
}

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_FIELDS_H_
