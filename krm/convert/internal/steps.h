// The steps of a conversion with an item's arguments in one piece, and what several converters make of them. Part of the
// library's inside.
//
// No converter derives from another, so what converters share stands in functions here and beside them. Each step is the
// virtual operation of the converter that it is given.
#ifndef KRM_CONVERT_INTERNAL_STEPS_H_
#define KRM_CONVERT_INTERNAL_STEPS_H_

#include <string_view>

#include "krm/convert/converter.h"

namespace krm::convert {

/// How an item's raw bits become a number; see CKRMCCommandConvSignalData.
struct Scaling {
    unsigned char signCode;
    unsigned short bitLength;
    krm_long mul;
    krm_long div;
    krm_long offset;
    unsigned char decimals;
};

/// All that tells how an item is shown, but its raw value. `Pattern` is the record of its pattern table.
template <class Pattern>
struct Signal {
    Scaling scaling;
    krm_ulong max;
    krm_ulong min;
    CKRMList<Pattern>* patterns;
    CKRMString* defaultText;
    krm_ulong defaultStringId;
};

struct Steps {
    static krm_ulong Physical(CKRMCCommandConvSignalData& converter, double* result, krm_ulong raw,
                              const Scaling& scaling) {
        return converter.PhysicalConversion(result, raw, scaling.signCode, scaling.bitLength, scaling.mul, scaling.div,
                                            scaling.offset, scaling.decimals);
    }
    static krm_ulong Decimal(CKRMCCommandConvSignalData& converter, CKRMString* result, double value,
                             unsigned char decimals) {
        return converter.DecStringConversion(result, value, decimals);
    }
    static krm_ulong Hexadecimal(CKRMCCommandConvSignalData& converter, CKRMString* result, double value,
                                 unsigned short bitLength) {
        return converter.HexStringConversion(result, value, bitLength);
    }
};

/// What `shape` makes of the scaled value.
template <class Shape>
krm_ulong ShapedValue(CKRMCCommandConvSignalData& converter, double* result, krm_ulong raw, const Scaling& scaling,
                      Shape shape) {
    if (result == nullptr) {
        return kNullArgument;
    }
    double physical = 0;
    if (const krm_ulong status = Steps::Physical(converter, &physical, raw, scaling); status != 0) {
        return status;
    }
    *result = shape(physical);
    return 0;
}

}  // namespace krm::convert

#endif  // KRM_CONVERT_INTERNAL_STEPS_H_
