// The check that a class is a plain value: its fields are all that it has, it starts as documented, its copies carry every
// field and share nothing, and Clear restores the start. A class of the library comes as a handful of functions, so that
// one test, compiled once, serves every class: a typed suite over all of them takes the compiler minutes.
#ifndef KRM_TESTS_SUPPORT_ANY_CLASS_H_
#define KRM_TESTS_SUPPORT_ANY_CLASS_H_

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "krm/messages/auxiliary/stored_data.h"
#include "krm/messages/auxiliary/viewer.h"
#include "krm/messages/diag/data_monitor.h"
#include "tests/support/fields.h"

namespace krm::test {

// A field that a new object doesn't have at zero: checks its documented start, then sets it to zero.
template <class T>
void CheckOtherStarts(T&) {}
inline void CheckOtherStarts(CKRMCGetPcViewerResourceVdcAdptDataSnd& fresh) {
    EXPECT_EQ(fresh.m_ulResourceType, 1U);
    fresh.m_ulResourceType = 0;
}
inline void CheckOtherStarts(CKRMCStoredDataFFD& fresh) {
    fresh.m_ushFFDNo = 0;  // has no start: nothing sets it before its user does
}

// What Clear keeps on purpose: gives `fresh` what `filled` has there.
template <class T>
void GiveWhatClearKeeps(T&, const T&) {}
inline void GiveWhatClearKeeps(CKRMCStoredDataFFD& fresh, const CKRMCStoredDataFFD& filled) {
    fresh.m_ushFFDNo = filled.m_ushFFDNo;
}
inline void GiveWhatClearKeeps(CKRMCCommandDmErrorData& fresh, const CKRMCCommandDmErrorData& filled) {
    fresh.m_cError = filled.m_cError;
}
inline void GiveWhatClearKeeps(CKRMCGetImportStoredDataDsdiAdaptDataRcv& fresh,
                               const CKRMCGetImportStoredDataDsdiAdaptDataRcv& filled) {
    fresh.Data = filled.Data;
}

/// Where a field lies in its object.
struct FieldPlace {
    std::size_t offset;
    std::size_t size;
    std::size_t alignment;
};

/// What tests do with an object of a class that they don't know. A list of a class counts as a class.
struct AnyClass {
    using Object = std::shared_ptr<void>;

    Object (*make)();
    Object (*copy)(const void* source);
    void (*assign)(void* target, const void* source);
    void (*fill)(void* it, Seed& seed);
    void (*change)(void* it, Seed& seed);
    std::string (*describe)(void* it);
    bool (*isZero)(void* it);
    bool (*hasUnfilled)(void* it);
    void (*clear)(void* it);
    void (*checkOtherStarts)(void* fresh);
    void (*giveWhatClearKeeps)(void* fresh, const void* filled);
    std::vector<FieldPlace> (*fields)(void* it);  ///< its own; none for a list
    std::size_t (*firstPlace)();                  ///< of a message: where its first field belongs; else null
    std::size_t size;
    std::size_t alignment;
    bool hasValues;  ///< false for messages that consist of type and ID alone
};

template <class T>
std::vector<FieldPlace> PlacesOfFields(T& it) {
    std::vector<FieldPlace> places;
    [[maybe_unused]] const auto* const start = reinterpret_cast<const char*>(&it);
    Fields<T>::ForEach([&](auto listed) {
        auto& field = listed.In(it);
        places.push_back({static_cast<std::size_t>(reinterpret_cast<const char*>(&field) - start), sizeof field,
                          alignof(std::remove_reference_t<decltype(field)>)});
    });
    return places;
}

/// Where the compiler puts the first of these fields behind `Base`, which may be in the padding at the base's end.
template <class Base, auto first, auto... others>
std::size_t PlaceBehind(const FieldList<first, others...>*) {
    struct WithThisFirst : Base {
        typename Field<first>::Type field;
    };
    const WithThisFirst probe{};
    return static_cast<std::size_t>(reinterpret_cast<const char*>(&probe.field) -
                                    reinterpret_cast<const char*>(&probe));
}
template <class Base>
std::size_t PlaceBehind(const FieldList<>*) {
    return sizeof(Base);
}

template <class T>
constexpr AnyClass AnyClassOf() {
    AnyClass any{};
    any.make = []() -> AnyClass::Object { return std::make_shared<T>(); };
    any.copy = [](const void* source) -> AnyClass::Object {
        return std::make_shared<T>(*static_cast<const T*>(source));
    };
    any.assign = [](void* target, const void* source) { *static_cast<T*>(target) = *static_cast<const T*>(source); };
    any.fill = [](void* it, Seed& seed) { Fill(*static_cast<T*>(it), seed); };
    any.change = [](void* it, Seed& seed) { Change(*static_cast<T*>(it), seed); };
    any.describe = [](void* it) { return Described(*static_cast<T*>(it)); };
    any.isZero = [](void* it) { return IsZero(*static_cast<T*>(it)); };
    any.hasUnfilled = [](void* it) { return HasUnfilled(*static_cast<T*>(it)); };
    any.size = sizeof(T);
    any.alignment = alignof(T);
    any.hasValues = true;
    if constexpr (!kIsList<T>) {
        any.clear = [](void* it) { static_cast<T*>(it)->Clear(); };
        any.checkOtherStarts = [](void* fresh) { CheckOtherStarts(*static_cast<T*>(fresh)); };
        any.giveWhatClearKeeps = [](void* fresh, const void* filled) {
            GiveWhatClearKeeps(*static_cast<T*>(fresh), *static_cast<const T*>(filled));
        };
        any.fields = [](void* it) { return PlacesOfFields(*static_cast<T*>(it)); };
        if constexpr (HasFieldsOfBase<T>) {
            any.firstPlace = []() -> std::size_t {
                return PlaceBehind<typename T::DirectionBase>(static_cast<const Fields<T>*>(nullptr));
            };
        }
        any.hasValues = kFieldCount<T> != 0;
    }
    return any;
}

constexpr std::size_t AlignUp(std::size_t offset, std::size_t alignment) {
    return (offset + alignment - 1) / alignment * alignment;
}

/// Whether the fields listed for the class are all of its fields, in their order: each begins where the one before ends,
/// and the last one ends where the object does. `base` is the size of what lies before the first.
inline void ExpectFieldsFillTheObject(const AnyClass& any, std::size_t base) {
    const AnyClass::Object it = any.make();
    std::size_t end = base;
    bool first = true;
    for (const FieldPlace& field : any.fields(it.get())) {
        if (first && any.firstPlace != nullptr) {
            EXPECT_EQ(field.offset, any.firstPlace()) << "there is a field before the first one listed";
        } else if (first) {
            EXPECT_LE(field.offset, AlignUp(end, field.alignment)) << "there is a field before the first one listed";
        } else {
            EXPECT_EQ(field.offset, AlignUp(end, field.alignment)) << "there is a field between two listed ones";
        }
        end = field.offset + field.size;
        first = false;
    }
    EXPECT_EQ(AlignUp(end, any.alignment), any.size) << "there is a field after the last one listed";
}

/// A new object is as documented: all zero and empty but for the exceptions above.
inline void ExpectDocumentedStart(const AnyClass& any) {
    const AnyClass::Object fresh = any.make();
    any.checkOtherStarts(fresh.get());
    EXPECT_TRUE(any.isZero(fresh.get())) << any.describe(fresh.get());
}

inline void ExpectClearRestoresTheStart(const AnyClass& any) {
    Seed seed(158);
    const AnyClass::Object fresh = any.make();
    const AnyClass::Object filled = any.make();
    any.checkOtherStarts(fresh.get());
    any.fill(filled.get(), seed);
    if (any.hasValues) {
        EXPECT_NE(any.describe(filled.get()), any.describe(fresh.get())) << "nothing was filled";
    }
    const AnyClass::Object expected = any.make();
    any.giveWhatClearKeeps(expected.get(), filled.get());
    any.clear(filled.get());
    EXPECT_EQ(any.describe(filled.get()), any.describe(expected.get()));
}

/// A copy made by `copyOf(source)` has all that the source has, and neither sees what happens to the other.
template <class Copy>
void ExpectNothingShared(const AnyClass& any, Copy copyOf) {
    Seed seed(79);
    AnyClass::Object source = any.make();
    any.fill(source.get(), seed);
    ASSERT_FALSE(any.hasUnfilled(source.get()));
    const std::string before = any.describe(source.get());
    const AnyClass::Object changed = copyOf(source.get());
    const AnyClass::Object kept = copyOf(source.get());
    EXPECT_EQ(any.describe(changed.get()), before) << "a copy lacks something";
    any.change(changed.get(), seed);
    if (any.hasValues) {
        EXPECT_NE(any.describe(changed.get()), before) << "nothing was changed";
    }
    EXPECT_EQ(any.describe(source.get()), before) << "a change of the copy reaches the source";
    any.change(source.get(), seed);
    source.reset();
    EXPECT_EQ(any.describe(kept.get()), before) << "the copy needs its source";
}

inline void ExpectCopiesShareNothing(const AnyClass& any) {
    ExpectNothingShared(any, any.copy);
}

inline void ExpectAssignmentsShareNothing(const AnyClass& any) {
    ExpectNothingShared(any, [&any](const void* source) {
        Seed seed(3);
        AnyClass::Object target = any.make();
        any.fill(target.get(), seed);  // what it held before must go
        any.assign(target.get(), source);
        return target;
    });
}

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_ANY_CLASS_H_
