// What holds for every record and message: it is a plain value. Checked with the fields of tests/support/fields.h.
#ifndef KRM_TESTS_SUPPORT_VALUE_CHECKS_H_
#define KRM_TESTS_SUPPORT_VALUE_CHECKS_H_

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "tests/support/fields.h"

namespace krm::test {

/// Changes every value that `it` holds, at any depth; lists keep their length.
template <class T>
void Change(T& it, Seed& seed) {
    if constexpr (std::is_same_v<T, bool>) {
        it = !it;
    } else if constexpr (std::is_integral_v<T>) {
        it = static_cast<T>(it ^ 1);
    } else if constexpr (std::is_arithmetic_v<T> || std::is_same_v<T, CKRMString>) {
        Fill(it, seed);
    } else if constexpr (IsList<T> || std::is_array_v<T>) {
        for (auto& element : it) {
            Change(element, seed);
        }
    } else {
        ForEachField(it, [&](auto& field) { Change(field, seed); });
    }
}

/// Whether `it` has a list, at any depth, that is empty, or a value that is 0: after Fill there is none.
template <class T>
bool HasUnfilled(T& it) {
    if constexpr (IsList<T>) {
        bool unfilled = it.GetCount() == 0;
        for (auto& element : it) {
            unfilled = unfilled || HasUnfilled(element);
        }
        return unfilled;
    } else if constexpr (std::is_arithmetic_v<T> || std::is_same_v<T, CKRMString>) {
        return IsZero(it);
    } else {
        bool unfilled = false;
        ForEachField(it, [&](auto& field) { unfilled = unfilled || HasUnfilled(field); });
        return unfilled;
    }
}

/// Checks that a new `T` is all zero, that copies and assignments carry every field and share nothing, and that Clear
/// restores the new state.
template <class T>
void ExpectPlainValue() {
    T fresh;
    EXPECT_TRUE(IsZero(fresh));

    Seed seed(20211);
    auto source = std::make_unique<T>();
    Fill(*source, seed);
    ASSERT_FALSE(HasUnfilled(*source));
    const std::string before = Described(*source);

    T copy(*source);
    EXPECT_EQ(Described(copy), before);
    T assigned;
    Fill(assigned, seed);
    assigned = *source;
    EXPECT_EQ(Described(assigned), before);

    const std::string unchanged = Described(fresh);
    Change(copy, seed);
    if (before != unchanged) {  // but for a message without any field
        EXPECT_NE(Described(copy), before);
    }
    EXPECT_EQ(Described(*source), before) << "the copy shares state with its source";
    copy.Clear();
    EXPECT_EQ(Described(copy), unchanged);
    EXPECT_EQ(Described(*source), before);

    source.reset();
    EXPECT_EQ(Described(assigned), before) << "the assigned object needs its source";
}

/// Checks that a list holds copies of its own, and that a copied list does.
template <class T>
void ExpectCopiedIntoLists() {
    Seed seed(20212);
    T element;
    Fill(element, seed);
    const std::string before = Described(element);
    CKRMList<T> list;
    list.AddTail(element);
    CKRMList<T> copy(list);
    Change(element, seed);
    Change(copy[0], seed);
    EXPECT_NE(Described(element), before);
    EXPECT_EQ(Described(list[0]), before);
}

/// Checks that a `Message` has type and ID when it is new and again after Clear, whatever it was told in between.
template <class Message>
void ExpectTypeAndId(krm_ulong type, krm_ulong id) {
    Message message;
    EXPECT_EQ(message.GetCommandType(), type);
    EXPECT_EQ(message.GetCommandID(), id);
    message.SetCommandType(77);
    message.SetCommandID(99);
    Message copy(message);
    EXPECT_EQ(copy.GetCommandType(), 77U);
    EXPECT_EQ(copy.GetCommandID(), 99U);
    CKRMBaseAdaptationData& untyped = message;
    untyped.Clear();
    EXPECT_EQ(message.GetCommandType(), type);
    EXPECT_EQ(message.GetCommandID(), id);
}

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_VALUE_CHECKS_H_
