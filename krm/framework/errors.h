// The codes that converters and tree report, in words, and ways from a CKRMError to an exception or to a result.
//
//     throw std::runtime_error(krm::ErrorText(status));
//
//     CKRMCElement* const ecu = vehicle.CreateElement(krm::ThrowOnError(), "Ecu");            // throws krm::Failure
//
//     const krm::Result made = krm::Try([&](CKRMError* error) { return vehicle.CreateElement(error, "Ecu"); });
//     if (!made) std::cerr << krm::ErrorText(made.error().GetErrorCode());
//
// The library itself throws none of these.
#ifndef KRM_FRAMEWORK_ERRORS_H_
#define KRM_FRAMEWORK_ERRORS_H_

#include <concepts>
#include <exception>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

#include "krm/core/error_codes.h"
#include "krm/core/types.h"
#include "krm/platform/platform.h"

namespace krm {

/// What a status or error code of the library means, in a few words without a full stop; never null. A code that the
/// library doesn't have is an "unknown error".
constexpr const char* ErrorText(krm_ulong code) {
    struct Row {
        krm_ulong code;
        const char* text;
    };
    constexpr Row kRows[] = {
        {0, "no error"},
        {kNullArgument, "a required argument is null, or data has no bytes or too many bits"},
        {kOutOfMemory, "out of memory"},
        {kNoSuchAttribute, "the attribute is not in this element"},
        {kNoSuchElement, "the element is not in this group"},
        {kNoSuchGroup, "no element group of that name, or it is not in this element"},
        {kUnknownValueType, "values of this type can't be compared"},
        {kDifferentTypes, "values of different types can't be compared"},
        {kValueUnset, "one of the two values is unset"},
    };
    for (const Row& row : kRows) {
        if (row.code == code) {
            return row.text;
        }
    }
    return "unknown error";
}

/// A set CKRMError as an exception.
class Failure : public std::runtime_error {
public:
    /// With the error's code and TextOf it.
    explicit Failure(const CKRMError& error) : std::runtime_error(TextOf(error)), m_code(error.GetErrorCode()) {}

    /// The error's code, never 0 where the error was set; see krm/core/error_codes.h.
    krm_ulong Code() const { return m_code; }

    /// "error 2100100002: out of memory", then, where they are set, the error's function and message.
    static std::string TextOf(const CKRMError& error) {
        const krm_ulong code = error.GetErrorCode();
        std::string text = "error " + std::to_string(code) + ": " + ErrorText(code);
        if (error.a_strErrorFunctionName.GetLength() != 0) {
            text += ", in ";
            if (error.a_strErrorClassName.GetLength() != 0) {
                text += error.a_strErrorClassName.GetText();
                text += "::";
            }
            text += error.a_strErrorFunctionName.GetText();
        }
        if (error.a_strMessage.GetLength() != 0) {
            text += ": ";
            text += error.a_strMessage.GetText();
        }
        return text;
    }

private:
    krm_ulong m_code;
};

/// Throws where `error` is set.
inline void ThrowIfSet(const CKRMError& error) {
    if (error.GetErrorCode() != 0) {
        throw Failure(error);
    }
}

/// Stands for the error object of one call and throws a Failure at its own end, if the call has set an error: made within
/// the call, at the end of the statement. While another exception is on its way it doesn't throw.
///
/// Each operation starts by clearing the error, so that one of these for several calls would see the last one's alone.
class ThrowOnError {
public:
    ThrowOnError() = default;
    ThrowOnError(const ThrowOnError&) = delete;
    ThrowOnError& operator=(const ThrowOnError&) = delete;
    ~ThrowOnError() noexcept(false) {
        if (std::uncaught_exceptions() == m_exceptions) {
            ThrowIfSet(m_error);
        }
    }

    /// The error object, for the call.
    operator CKRMError*() { return &m_error; }  // NOLINT: it is there to be passed as one

private:
    CKRMError m_error;
    int m_exceptions = std::uncaught_exceptions();
};

/// The value that a call returned, or the error that it set; to be used as a std::expected<Value, CKRMError>.
template <class Value>
class [[nodiscard]] Result {
public:
    /// What a call returned.
    Result(Value value) : m_outcome(std::in_place_index<0>, std::move(value)) {}  // NOLINT: either is a result
    /// What it set instead; a copy.
    Result(const CKRMError& error) : m_outcome(std::in_place_index<1>, error) {}  // NOLINT

    bool has_value() const { return m_outcome.index() == 0; }  ///< whether there is a value, and no error
    explicit operator bool() const { return has_value(); }     ///< the same

    /// The value. REQUIRES: has_value().
    const Value& operator*() const { return *std::get_if<0>(&m_outcome); }
    /// The value's members. REQUIRES: has_value().
    const Value* operator->() const { return std::get_if<0>(&m_outcome); }
    /// The value; throws the error as a Failure where there is none.
    const Value& value() const {
        if (!has_value()) {
            throw Failure(error());
        }
        return **this;
    }
    /// The value, or `other` where there is none.
    Value value_or(Value other) const { return has_value() ? **this : std::move(other); }
    /// The error. REQUIRES: !has_value().
    const CKRMError& error() const { return *std::get_if<1>(&m_outcome); }

private:
    std::variant<Value, CKRMError> m_outcome;
};

/// Calls `operation` with an error object of its own. What it returns is the value, unless it sets the error. Where an
/// operation says false or null without an error, as a search that finds nothing, that is the value.
template <std::invocable<CKRMError*> Operation>
auto Try(Operation&& operation) -> Result<std::decay_t<std::invoke_result_t<Operation, CKRMError*>>> {
    CKRMError error;
    auto value = std::forward<Operation>(operation)(&error);
    if (error.GetErrorCode() != 0) {
        return error;
    }
    return value;
}

}  // namespace krm

#endif  // KRM_FRAMEWORK_ERRORS_H_
