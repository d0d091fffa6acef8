// Fills messages of any class with random content that has all there is: every byte in texts, every limit of every number.
#ifndef KRM_TESTS_EXCHANGE_RANDOM_CONTENT_H_
#define KRM_TESTS_EXCHANGE_RANDOM_CONTENT_H_

#include <bit>
#include <cstdint>
#include <iterator>
#include <limits>
#include <memory>
#include <string>
#include <string_view>

#include "krm/fields/message_descriptions.h"
#include "krm/platform/platform.h"
#include "tests/support/fields.h"

namespace krm::test {

inline std::string RandomText(Seed& seed) {
    std::string text;
    const std::uint32_t length = seed.Next() % 40;
    switch (seed.Next() % 6) {
        case 0:
            for (int byte = 1; byte < 256; ++byte) {
                text += static_cast<char>(byte);
            }
            break;
        case 1:
            for (std::uint32_t i = 0; i < length; ++i) {
                text += static_cast<char>(1 + seed.Next() % 255);
            }
            break;
        case 2:
            for (int byte = 1; byte < 128; ++byte) {
                text += static_cast<char>(byte);
            }
            break;
        case 3:
            text = "Temp\xC3\xA9rature \xE2\x82\xAC \xF0\x9F\x9A\x97";
            break;
        case 4:
            text = R"({"$bytes":"41"})";
            break;
        default:
            break;
    }
    return text;
}

inline double RandomDouble(Seed& seed) {
    using Limits = std::numeric_limits<double>;
    constexpr double kDoubles[] = {0.0,
                                   -0.0,
                                   0.1,
                                   Limits::denorm_min(),
                                   Limits::min(),
                                   Limits::max(),
                                   Limits::lowest(),
                                   Limits::infinity(),
                                   -Limits::infinity(),
                                   Limits::quiet_NaN()};
    const std::uint32_t choice = seed.Next() % 16;
    const std::uint64_t high = seed.Next();
    return choice < std::size(kDoubles) ? kDoubles[choice] : std::bit_cast<double>(high << 32U | seed.Next());
}

inline void FillAtRandom(Value value, Seed& seed) {
    switch (value.Kind()) {
        case ValueKind::Bool:
            value.SetInteger(seed.Next() % 2);
            return;
        case ValueKind::Signed:
        case ValueKind::Unsigned: {
            const std::size_t bits = value.Type().size * 8;
            const bool isSigned = value.Kind() == ValueKind::Signed;
            const auto highest = static_cast<krm_int64>((std::uint64_t{1} << (isSigned ? bits - 1 : bits)) - 1);
            const krm_int64 lowest = isSigned ? -highest - 1 : 0;
            const krm_int64 numbers[] = {lowest, highest, 0, 1, static_cast<krm_int64>(seed.Next() & 0x7FU)};
            value.SetInteger(numbers[seed.Next() % std::size(numbers)]);
            return;
        }
        case ValueKind::Double:
            *value.As<double>() = RandomDouble(seed);
            return;
        case ValueKind::Text:
            *value.As<CKRMString>() = RandomText(seed).c_str();
            return;
        case ValueKind::Map:
            for (std::uint32_t i = seed.Next() % 4; i > 0; --i) {
                const std::string key = RandomText(seed);
                value.As<CKRMMap<CKRMString, CKRMString>>()->SetAt(key.c_str(), RandomText(seed).c_str());
            }
            return;
        case ValueKind::Record:
            value.ForEachField([&](std::string_view, Value field) { FillAtRandom(field, seed); });
            return;
        case ValueKind::List:
            for (std::uint32_t i = seed.Next() % 3; i > 0; --i) {
                FillAtRandom(value.Append().value(), seed);
            }
            return;
        case ValueKind::Array:
            value.ForEachElement([&](Value element) { FillAtRandom(element, seed); });
            return;
    }
}

/// A message of this class, filled.
inline std::unique_ptr<CKRMBaseAdaptationData> RandomMessage(const MessageDescription& description,
                                                             std::uint32_t seed) {
    std::unique_ptr<CKRMBaseAdaptationData> message = description.create();
    Seed numbers(seed * 2654435761U);
    FillAtRandom(description.ContentOf(*message).value(), numbers);
    return message;
}

}  // namespace krm::test

#endif  // KRM_TESTS_EXCHANGE_RANDOM_CONTENT_H_
