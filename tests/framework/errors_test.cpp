// Error codes in words, and a set CKRMError as an exception or a result.
#include "krm/framework/errors.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <type_traits>

#include "krm/convert/converter.h"
#include "krm/platform/platform.h"
#include "krm/tree/attribute.h"
#include "krm/tree/element.h"

namespace {

constexpr krm_ulong kNull = 1100100001;

TEST(ErrorTextTest, SaysWhatEveryCodeMeans) {
    EXPECT_STREQ(krm::ErrorText(0), "no error");
    EXPECT_STREQ(krm::ErrorText(1100100001), "a required argument is null, or data has no bytes or too many bits");
    EXPECT_STREQ(krm::ErrorText(2100100002), "out of memory");
    EXPECT_STREQ(krm::ErrorText(2100100101), "the attribute is not in this element");
    EXPECT_STREQ(krm::ErrorText(2100100102), "the element is not in this group");
    EXPECT_STREQ(krm::ErrorText(2100100103), "no element group of that name, or it is not in this element");
    EXPECT_STREQ(krm::ErrorText(2100100121), "values of this type can't be compared");
    EXPECT_STREQ(krm::ErrorText(2100100122), "values of different types can't be compared");
    EXPECT_STREQ(krm::ErrorText(2100100123), "one of the two values is unset");
    EXPECT_STREQ(krm::ErrorText(1), "unknown error");
    EXPECT_STREQ(krm::ErrorText(0xFFFFFFFFU), "unknown error");
}

TEST(ErrorTextTest, KnowsTheCodesOfTheTree) {
    for (const krm_ulong code :
         {krm::tree::kNullArgument, krm::tree::kOutOfMemory, krm::tree::kNoSuchAttribute, krm::tree::kNoSuchElement,
          krm::tree::kNoSuchGroup, krm::tree::kUnknownValueType, krm::tree::kDifferentTypes, krm::tree::kValueUnset}) {
        EXPECT_STRNE(krm::ErrorText(code), "unknown error") << code;
    }
}

TEST(ErrorTextTest, KnowsTheStatusOfTheConverters) {
    CKRMCCommandConvSignalData converter;
    EXPECT_STREQ(
        krm::ErrorText(converter.ConvCommandDispData(nullptr, 0, 0, 8, 1, 1, 0, 0, 255, 0, nullptr, nullptr, 0)),
        "a required argument is null, or data has no bytes or too many bits");
}

TEST(FailureTest, SaysCodeFunctionAndMessage) {
    CKRMError error;
    error.SetErrorCode(2100100002);
    EXPECT_STREQ(krm::Failure(error).what(), "error 2100100002: out of memory");
    EXPECT_EQ(krm::Failure(error).Code(), 2100100002U);
    error.SetError(2100100103, "module", "Element", "Remove", "(x)", "no such thing");
    EXPECT_STREQ(krm::Failure(error).what(),
                 "error 2100100103: no element group of that name, or it is not in this element, in Element::Remove: "
                 "no such thing");
    error.SetError(7, "", "", "Remove", "", "");
    EXPECT_STREQ(krm::Failure(error).what(), "error 7: unknown error, in Remove");
}

TEST(ThrowIfSetTest, ThrowsOnlyASetError) {
    CKRMError error;
    EXPECT_NO_THROW(krm::ThrowIfSet(error));
    error.SetErrorCode(9);
    EXPECT_THROW(krm::ThrowIfSet(error), krm::Failure);
    static_assert(std::is_base_of_v<std::runtime_error, krm::Failure>);
}

TEST(ThrowOnErrorTest, ThrowsAtTheEndOfTheFailedCall) {
    CKRMCElement vehicle("Vehicle");
    CKRMCElement* const ecu = vehicle.CreateElement(krm::ThrowOnError(), "Ecu");
    ASSERT_NE(ecu, nullptr);
    try {
        vehicle.CreateElement(krm::ThrowOnError(), nullptr);
        ADD_FAILURE() << "null is no name";
    } catch (const krm::Failure& failure) {
        EXPECT_EQ(failure.Code(), kNull);
    }
    // Nothing found is no error.
    EXPECT_EQ(vehicle.GetFirstElement(krm::ThrowOnError(), "None"), nullptr);
}

TEST(ThrowOnErrorTest, LetsAnExceptionPassThatIsOnItsWay) {
    const auto fail = [] {
        krm::ThrowOnError error;
        static_cast<CKRMError*>(error)->SetErrorCode(9);
        throw std::logic_error("first");
    };
    EXPECT_THROW(fail(), std::logic_error);
}

/// Fails with a Failure in its destructor's own scope, as the clean-up of a program might.
struct CleanUp {
    ~CleanUp() {
        try {
            krm::ThrowOnError error;
            static_cast<CKRMError*>(error)->SetErrorCode(9);
        } catch (const krm::Failure&) {
            ++caught;
        }
    }
    int& caught;
};

TEST(ThrowOnErrorTest, ThrowsWithinACleanUpTheErrorThatAroseThere) {
    int caught = 0;
    EXPECT_THROW(
        {
            const CleanUp cleanUp{caught};
            throw std::logic_error("first");
        },
        std::logic_error);
    EXPECT_EQ(caught, 1);
}

TEST(TryTest, GivesTheValueOrTheError) {
    CKRMCElement vehicle("Vehicle");
    const krm::Result made = krm::Try([&](CKRMError* error) { return vehicle.CreateElement(error, "Ecu"); });
    ASSERT_TRUE(made);
    EXPECT_TRUE(made.has_value());
    EXPECT_STREQ((*made)->GetName(), "Ecu");
    EXPECT_EQ(made.value(), *made);
    static_assert(std::is_same_v<decltype(made), const krm::Result<CKRMCElement*>>);

    const krm::Result failed = krm::Try([&](CKRMError* error) { return vehicle.CreateElement(error, nullptr); });
    EXPECT_FALSE(failed);
    EXPECT_FALSE(failed.has_value());
    EXPECT_EQ(failed.error().GetErrorCode(), kNull);
    EXPECT_EQ(failed.value_or(*made), *made);
    EXPECT_THROW(failed.value(), krm::Failure);
}

TEST(TryTest, WhatIsNotFoundWithoutAnErrorIsAValue) {
    CKRMCElement vehicle("Vehicle");
    const auto found = krm::Try([&](CKRMError* error) { return vehicle.GetFirstElement(error, "None"); });
    ASSERT_TRUE(found);
    EXPECT_EQ(*found, nullptr);

    CKRMCAttribute seven("Number", krm_long(7));
    CKRMCAttribute eight("Number", krm_long(8));
    const auto same = krm::Try([&](CKRMError* error) { return seven.CompareValue(error, &eight); });
    ASSERT_TRUE(same);
    EXPECT_FALSE(*same);
    CKRMCAttribute empty("Number");
    const auto unset = krm::Try([&](CKRMError* error) { return seven.CompareValue(error, &empty); });
    ASSERT_FALSE(unset);
    EXPECT_EQ(unset.error().GetErrorCode(), 2100100123U);
}

TEST(TryTest, AValueMayHaveMembers) {
    const auto text = krm::Try([](CKRMError*) { return std::string("abc"); });
    EXPECT_EQ(text->size(), 3U);
}

}  // namespace
