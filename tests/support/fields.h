// What tests do with any record or message by way of its fields: fill an object, change it, describe all that it holds, see
// whether anything is set. The test of a class includes the header of krm/fields/ that has it.
#ifndef KRM_TESTS_SUPPORT_FIELDS_H_
#define KRM_TESTS_SUPPORT_FIELDS_H_

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "krm/fields/fields.h"
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

/// Fills `it` and all it holds with values that are not its defaults; each list gets two elements more.
template <class T>
void Fill(T& it, Seed& seed) {
    if constexpr (std::is_same_v<T, bool>) {
        it = true;
    } else if constexpr (std::is_same_v<T, double>) {
        it = static_cast<double>(static_cast<std::int32_t>(seed.Next())) / 1024.0 + 0.0625;
    } else if constexpr (std::is_integral_v<T>) {
        it = static_cast<T>(seed.Next() | 2U);
    } else if constexpr (std::is_same_v<T, CKRMString>) {
        it = ("text " + std::to_string(seed.Next())).c_str();
    } else if constexpr (std::is_array_v<T>) {
        for (auto& element : it) {
            Fill(element, seed);
        }
    } else if constexpr (std::is_same_v<T, CKRMMap<CKRMString, CKRMString>>) {
        for (int i = 0; i < 2; ++i) {
            CKRMString key;
            CKRMString value;
            Fill(key, seed);
            Fill(value, seed);
            it.SetAt(key, value);
        }
    } else if constexpr (kIsList<T>) {
        for (int i = 0; i < 2; ++i) {
            ElementOf<T> element{};
            Fill(element, seed);
            it.AddTail(element);
        }
    } else {
        ForEachField(it, [&](std::string_view, auto& field) { Fill(field, seed); });
    }
}

/// Changes every value that `it` holds, at any depth; lists and maps keep their length.
template <class T>
void Change(T& it, Seed& seed) {
    if constexpr (std::is_same_v<T, bool>) {
        it = !it;
    } else if constexpr (std::is_integral_v<T>) {
        it = static_cast<T>(it ^ 1);
    } else if constexpr (std::is_arithmetic_v<T> || std::is_same_v<T, CKRMString>) {
        Fill(it, seed);
    } else if constexpr (std::is_same_v<T, CKRMMap<CKRMString, CKRMString>>) {
        for (auto& [key, value] : it) {
            Fill(value, seed);
        }
    } else if constexpr (kIsList<T> || std::is_array_v<T>) {
        for (auto& element : it) {
            Change(element, seed);
        }
    } else {
        ForEachField(it, [&](std::string_view, auto& field) { Change(field, seed); });
    }
}

/// Whether every field of `it`, at any depth, is 0, false or empty.
template <class T>
bool IsZero(T& it) {
    if constexpr (std::is_arithmetic_v<T>) {
        return it == T{};
    } else if constexpr (std::is_same_v<T, CKRMString>) {
        return it.GetLength() == 0;
    } else if constexpr (std::is_array_v<T>) {
        bool zero = true;
        for (auto& element : it) {
            zero = zero && IsZero(element);
        }
        return zero;
    } else if constexpr (kIsList<T> || std::is_same_v<T, CKRMMap<CKRMString, CKRMString>>) {
        return it.GetCount() == 0;
    } else {
        bool zero = true;
        ForEachField(it, [&](std::string_view, auto& field) { zero = zero && IsZero(field); });
        return zero;
    }
}

/// Whether `it` has a list, at any depth, that is empty, or a value that is 0: after Fill there is none.
template <class T>
bool HasUnfilled(T& it) {
    if constexpr (std::is_arithmetic_v<T> || std::is_same_v<T, CKRMString> ||
                  std::is_same_v<T, CKRMMap<CKRMString, CKRMString>>) {
        return IsZero(it);
    } else if constexpr (kIsList<T> || std::is_array_v<T>) {
        bool unfilled = kIsList<T> && IsZero(it);
        for (auto& element : it) {
            unfilled = unfilled || HasUnfilled(element);
        }
        return unfilled;
    } else {
        bool unfilled = false;
        ForEachField(it, [&](std::string_view, auto& field) { unfilled = unfilled || HasUnfilled(field); });
        return unfilled;
    }
}

/// All that `it` holds, written out one value after the other: equal texts mean equal contents.
template <class T>
void Describe(T& it, std::string& out) {
    if constexpr (std::is_integral_v<T>) {
        out += std::to_string(static_cast<std::int64_t>(it)) + ';';
    } else if constexpr (std::is_same_v<T, double>) {
        CKRMString text;
        text.Format("%.17g;", it);
        out += text.GetText();
    } else if constexpr (std::is_same_v<T, CKRMString>) {
        out += '"' + std::string(it.GetText()) + "\";";
    } else if constexpr (std::is_array_v<T>) {
        for (auto& element : it) {
            Describe(element, out);
        }
    } else if constexpr (std::is_same_v<T, CKRMMap<CKRMString, CKRMString>>) {
        for (const auto& [key, value] : it) {
            out += std::string(key.GetText()) + '=' + value.GetText() + ';';
        }
    } else if constexpr (kIsList<T>) {
        out += '[' + std::to_string(it.GetCount()) + ':';
        for (auto& element : it) {
            Describe(element, out);
        }
        out += ']';
    } else {
        out += '{';
        if constexpr (std::is_base_of_v<CKRMBaseAdaptationData, T>) {
            out += std::to_string(it.GetCommandType()) + '/' + std::to_string(it.GetCommandID()) + ' ';
        }
        ForEachField(it, [&](std::string_view, auto& field) { Describe(field, out); });
        out += '}';
    }
}

template <class T>
std::string Described(T& it) {
    std::string out;
    Describe(it, out);
    return out;
}

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_FIELDS_H_
