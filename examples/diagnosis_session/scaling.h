// Turns the decimal scaling of an item table into the whole numbers that a conversion record holds.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_SCALING_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_SCALING_H_

#include <optional>
#include <string_view>

#include "krm/core/types.h"

namespace diagnosis_session {

/// The decimal places of every physical value, and the most that a person is shown.
inline constexpr unsigned char kShownDecimals = 5;

/// The scaling of a conversion record: value = (raw x mul / div + offset) / 10^decimals.
struct Scaling {
    krm_long mul = 1;
    krm_long div = 1;     ///< at least 1
    krm_long offset = 0;  ///< in units of the last decimal place
    unsigned char decimals = kShownDecimals;
};

/// The whole numbers for value = raw x mul / div + add, where `raw` has `bits` bits and the three texts are decimal
/// numbers as JSON writes them ("0.079", "-40", "1e-3").
///
/// Takes kShownDecimals where the numbers then are exact in 32 bits. Where they are not, as with an offset beyond
/// 21474, it takes other decimal places with which they are; and as a last resort the nearest fraction, if no value
/// gets wrong by as much as a tenth of the last place shown. Nothing when that can't be had, a text is no number or
/// `div` is 0.
std::optional<Scaling> ScalingOf(std::string_view mul, std::string_view div, std::string_view add, unsigned bits);

/// The decimal places that show one raw step of the scaling: all that the step has, if they are few (0.25 has two), else as
/// many as it takes to see one step (0.392... takes one). At most kShownDecimals.
unsigned char DecimalsOf(const Scaling& scaling);

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_SCALING_H_
