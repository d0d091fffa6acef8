// The check that a class is a plain value: its fields are all that it has, it starts as documented, its copies carry every
// field and share nothing, and Clear restores the start. A class of the library comes as its description and the handful of
// operations that the compiler makes for it, so that one test, compiled once, serves every class: a typed suite over all of
// them takes the compiler minutes.
#ifndef KRM_TESTS_SUPPORT_ANY_CLASS_H_
#define KRM_TESTS_SUPPORT_ANY_CLASS_H_

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "krm/fields/message_descriptions.h"
#include "krm/messages/auxiliary/stored_data.h"
#include "krm/messages/auxiliary/viewer.h"
#include "krm/messages/diag/data_monitor.h"
#include "tests/support/fields.h"

namespace krm::test {

// A field that a new object doesn't have at zero: checks its documented start, then sets it to zero.
inline void CheckOtherStarts(CKRMCGetPcViewerResourceVdcAdptDataSnd& fresh) {
    EXPECT_EQ(fresh.m_ulResourceType, 1U);
    fresh.m_ulResourceType = 0;
}
inline void CheckOtherStarts(CKRMCStoredDataFFD& fresh) {
    fresh.m_ushFFDNo = 0;  // has no start: nothing sets it before its user does
}

// What Clear keeps on purpose: gives `fresh` what `filled` has there.
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

/// What tests do with an object of a class that they don't know. A list of a class counts as a class.
struct AnyClass {
    using Object = std::shared_ptr<void>;

    const TypeDescription* type;
    void* (*make)();
    void* (*copy)(const void* source);
    void (*destroy)(void* it);
    void (*assign)(void* target, const void* source);
    void (*clear)(void* it);
    void (*checkOtherStarts)(void* fresh);                        ///< null where there are none
    void (*giveWhatClearKeeps)(void* fresh, const void* filled);  ///< null where it keeps nothing
    std::span<const std::size_t> alignments;                      ///< of its own fields; of a list none
    std::size_t (*firstPlace)();  ///< of a message: where its first field belongs; else null
    std::size_t size;
    std::size_t alignment;

    Object Make() const { return Object(make(), destroy); }
    Object Copy(const void* source) const { return Object(copy(source), destroy); }
    void Fill(const Object& it, Seed& seed) const { test::Fill(*type, it.get(), seed); }
    void Change(const Object& it, Seed& seed) const { test::Change(*type, it.get(), seed); }
    bool IsZero(const Object& it) const { return test::IsZero(*type, it.get()); }
    bool HasUnfilled(const Object& it) const { return test::HasUnfilled(*type, it.get()); }
    std::string Described(const Object& it) const { return test::Described(*type, it.get()); }
    /// A message that consists of type and ID alone has none.
    bool HasValues() const { return type->kind != ValueKind::Record || !type->fields.empty(); }
    void CheckOtherStarts(const Object& fresh) const {
        if (checkOtherStarts != nullptr) {
            checkOtherStarts(fresh.get());
        }
    }
    void GiveWhatClearKeeps(const Object& fresh, const Object& filled) const {
        if (giveWhatClearKeeps != nullptr) {
            giveWhatClearKeeps(fresh.get(), filled.get());
        }
    }
};

template <auto... members>
constexpr std::array<std::size_t, sizeof...(members)> AlignmentsIn(const FieldList<members...>*) {
    return {alignof(typename Field<members>::Type)...};
}
/// What the fields that `Class` declares itself ask for.
template <class Class>
inline constexpr auto kAlignments = AlignmentsIn(static_cast<const Fields<Class>*>(nullptr));

/// Where the compiler puts a field of this alignment behind `Base`, which may be in the padding at the base's end.
template <class Base, std::size_t alignment>
std::size_t PlaceBehind() {
    struct WithField : Base {
        alignas(alignment) unsigned char field = 0;
    };
    const WithField probe{};
    return static_cast<std::size_t>(&probe.field - reinterpret_cast<const unsigned char*>(&probe));
}

// Functions, for each lambda would make three of them.
template <class T>
void* Make() {
    return new T();
}
template <class T>
void* Copy(const void* source) {
    return new T(*static_cast<const T*>(source));
}
template <class T>
void Destroy(void* it) {
    delete static_cast<T*>(it);
}
template <class T>
void Assign(void* target, const void* source) {
    *static_cast<T*>(target) = *static_cast<const T*>(source);
}
template <class T>
void Clear(void* it) {
    static_cast<T*>(it)->Clear();
}

/// `type` describes `T`. For a class of the library null: its own description is found as the program runs.
template <class T>
constexpr AnyClass AnyClassOf(const TypeDescription* type) {
    AnyClass any{};
    any.type = type;
    any.make = &Make<T>;
    any.copy = &Copy<T>;
    any.destroy = &Destroy<T>;
    any.assign = &Assign<T>;
    any.size = sizeof(T);
    any.alignment = alignof(T);
    if constexpr (!kIsList<T>) {
        any.clear = &Clear<T>;
        if constexpr (requires(T & fresh) { CheckOtherStarts(fresh); }) {
            any.checkOtherStarts = [](void* fresh) { CheckOtherStarts(*static_cast<T*>(fresh)); };
        }
        if constexpr (requires(T & fresh, const T& filled) { GiveWhatClearKeeps(fresh, filled); }) {
            any.giveWhatClearKeeps = [](void* fresh, const void* filled) {
                GiveWhatClearKeeps(*static_cast<T*>(fresh), *static_cast<const T*>(filled));
            };
        }
        any.alignments = kAlignments<T>;
        if constexpr (HasFieldsOfBase<T> && Fields<T>::kCount != 0) {
            any.firstPlace = &PlaceBehind<typename T::DirectionBase, kAlignments<T>[0]>;
        }
    }
    return any;
}

/// The description is that of the class: else no check can say anything.
inline void AssertDescribed(const AnyClass& any, std::string_view className) {
    ASSERT_NE(any.type, nullptr) << "no message of the library has it, and tests/support/fields.cpp doesn't name it";
    ASSERT_EQ(any.type->className, className);
    ASSERT_EQ(any.type->size, any.size);
}

constexpr std::size_t AlignUp(std::size_t offset, std::size_t alignment) {
    return (offset + alignment - 1) / alignment * alignment;
}

/// Whether the fields listed for the class are all of its fields, in their order: each begins where the one before ends,
/// and the last one ends where the object does. `base` is the size of what lies before the first.
inline void ExpectFieldsFillTheObject(const AnyClass& any, std::size_t base) {
    const AnyClass::Object it = any.Make();
    ASSERT_GE(any.type->fields.size(), any.alignments.size());
    const auto own = any.type->fields.last(any.alignments.size());
    std::size_t end = base;
    for (std::size_t i = 0; i < own.size(); ++i) {
        const std::size_t alignment = any.alignments[i];
        const auto offset = static_cast<std::size_t>(static_cast<const char*>(own[i].in(it.get())) -
                                                     static_cast<const char*>(it.get()));
        if (i == 0 && any.firstPlace != nullptr) {
            EXPECT_EQ(offset, any.firstPlace()) << "there is a field before the first one listed";
        } else if (i == 0) {
            EXPECT_LE(offset, AlignUp(end, alignment)) << "there is a field before the first one listed";
        } else {
            EXPECT_EQ(offset, AlignUp(end, alignment)) << "there is a field between two listed ones";
        }
        end = offset + own[i].type->size;
    }
    EXPECT_EQ(AlignUp(end, any.alignment), any.size) << "there is a field after the last one listed";
}

/// A new object is as documented: all zero and empty but for the exceptions above.
inline void ExpectDocumentedStart(const AnyClass& any) {
    const AnyClass::Object fresh = any.Make();
    any.CheckOtherStarts(fresh);
    EXPECT_TRUE(any.IsZero(fresh)) << any.Described(fresh);
}

inline void ExpectClearRestoresTheStart(const AnyClass& any) {
    Seed seed(158);
    const AnyClass::Object fresh = any.Make();
    const AnyClass::Object filled = any.Make();
    any.CheckOtherStarts(fresh);
    any.Fill(filled, seed);
    if (any.HasValues()) {
        EXPECT_NE(any.Described(filled), any.Described(fresh)) << "nothing was filled";
    }
    const AnyClass::Object expected = any.Make();
    any.GiveWhatClearKeeps(expected, filled);
    any.clear(filled.get());
    EXPECT_EQ(any.Described(filled), any.Described(expected));
}

/// A copy made by `copyOf(source)` has all that the source has, and neither sees what happens to the other.
template <class Copy>
void ExpectNothingShared(const AnyClass& any, Copy copyOf) {
    Seed seed(79);
    AnyClass::Object source = any.Make();
    any.Fill(source, seed);
    ASSERT_FALSE(any.HasUnfilled(source));
    const std::string before = any.Described(source);
    const AnyClass::Object changed = copyOf(source.get());
    const AnyClass::Object kept = copyOf(source.get());
    EXPECT_EQ(any.Described(changed), before) << "a copy lacks something";
    any.Change(changed, seed);
    if (any.HasValues()) {
        EXPECT_NE(any.Described(changed), before) << "nothing was changed";
    }
    EXPECT_EQ(any.Described(source), before) << "a change of the copy reaches the source";
    any.Change(source, seed);
    source.reset();
    EXPECT_EQ(any.Described(kept), before) << "the copy needs its source";
}

inline void ExpectCopiesShareNothing(const AnyClass& any) {
    ExpectNothingShared(any, [&any](const void* source) { return any.Copy(source); });
}

inline void ExpectAssignmentsShareNothing(const AnyClass& any) {
    ExpectNothingShared(any, [&any](const void* source) {
        Seed seed(3);
        AnyClass::Object target = any.Make();
        any.Fill(target, seed);  // what it held before must go
        any.assign(target.get(), source);
        return target;
    });
}

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_ANY_CLASS_H_
