#include "benchmarks/element_values.h"

#include <array>
#include <string_view>
#include <type_traits>

#include "krm/fields/all_fields.h"
#include "tests/support/all_classes.h"

namespace krm::bench {

template <class T>
void SetFields(T& it, unsigned& number) {
    constexpr std::array<const char*, 3> kTexts = {"P0171", "12345.67 km/h", "System Too Lean (Bank 1)"};
    ++number;
    if constexpr (std::is_arithmetic_v<T>) {
        it = static_cast<T>(number % 100 + 1);
    } else if constexpr (std::is_same_v<T, CKRMString>) {
        it = kTexts[number % kTexts.size()];
    } else if constexpr (std::is_same_v<T, CKRMMap<CKRMString, CKRMString>>) {
        it.SetAt("key", kTexts[number % kTexts.size()]);
    } else if constexpr (kIsList<T>) {
        for (int i = 0; i < 2; ++i) {
            it.AddTail(ElementOf<T>{});
        }
        for (auto& element : it) {
            SetFields(element, number);
        }
    } else if constexpr (std::is_array_v<T>) {
        for (auto& element : it) {
            SetFields(element, number);
        }
    } else {
        ForEachField(it, [&](std::string_view, auto& field) { SetFields(field, number); });
    }
}

#define KRM_SET_FIELDS(Class, kind) template void SetFields(Class&, unsigned&);
KRM_ALL_LIST_ELEMENTS(KRM_SET_FIELDS)
#undef KRM_SET_FIELDS

}  // namespace krm::bench
