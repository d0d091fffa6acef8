#include "krm/convert/time_converters.h"

#include "krm/convert/internal/numbers.h"
#include "krm/convert/internal/short_text.h"
#include "krm/convert/internal/user_locale.h"

using krm::kNullArgument;
using krm::convert::BeginText;
using krm::convert::ShortText;
using krm::convert::TruncateToLow32;
using krm::convert::UserLocale;

// Classes that convert alike are siblings, not relatives, so what they share stands in functions here.
namespace {

/// Three bytes, each scaled by itself with `physical(result, byte)`, put together again.
template <class Physical>
krm_ulong ThreeBytesValue(double* result, krm_ulong raw, Physical physical) {
    if (result == nullptr) {
        return kNullArgument;
    }
    krm_ulong value = 0;
    for (unsigned shift = 0; shift < 24; shift += 8) {
        double part = 0;
        const krm_ulong status = physical(&part, (raw >> shift) & 0xFFU);
        if (status != 0) {
            return status;
        }
        value |= TruncateToLow32(part) << shift;  // not masked: a part above 255 reaches into the next
    }
    *result = value;
    return 0;
}

krm_ulong ThreeBytesText(CKRMString* result, krm_ulong* stringId, double physical) {
    if (!BeginText(result, stringId)) {
        return kNullArgument;
    }
    const krm_ulong value = TruncateToLow32(physical);
    const auto part = [value](unsigned shift) { return ((value >> shift) & 0xFFU) % 100; };
    ShortText text;
    text.Decimal(part(16), 2).Character('.').Decimal(part(8), 2).Character('.').Decimal(part(0), 2);
    text.AssignTo(*result);
    return 0;
}

/// A count of minutes, from `physical(result)`, as hours above the minutes in the low byte.
template <class Physical>
krm_ulong HoursAndMinutesValue(double* result, Physical physical) {
    if (result == nullptr) {
        return kNullArgument;
    }
    double count = 0;
    const krm_ulong status = physical(&count);
    if (status != 0) {
        return status;
    }
    const krm_ulong minutes = TruncateToLow32(count);
    *result = static_cast<krm_ulong>((minutes % 60) | ((minutes / 60) << 8U));
    return 0;
}

void ShowSpan(CKRMString& result, krm_ulong hours, krm_ulong minutes) {
    ShortText().Decimal(hours).Words("hrs,").Decimal(minutes).Words("min").AssignTo(result);
}

krm_ulong RawValue(double* result, krm_ulong raw) {
    if (result == nullptr) {
        return kNullArgument;
    }
    *result = raw;
    return 0;
}

}  // namespace

krm_ulong CKRMCCommandConvSignalDataDate::ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned,
                                                          unsigned short, krm_long lMul, krm_long lDiv,
                                                          krm_long lOffset, unsigned char) {
    const auto scaled = [&](double* physical, krm_ulong byte) {
        constexpr unsigned short kBits = 8;
        return PhysicalConversion(physical, byte, uchSigned, kBits, lMul, lDiv, lOffset, 0);
    };
    return ThreeBytesValue(result, ulRawData, scaled);
}

krm_ulong CKRMCCommandConvSignalDataDate::StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys,
                                                           krm_ulong, unsigned char, unsigned short, unsigned char,
                                                           krm_ulong, krm_ulong, CKRMList<CKRMCCommandDispData>*,
                                                           CKRMString*, krm_ulong) {
    return ThreeBytesText(result, stringId, dPhys);
}

krm_ulong CKRMCCommandConvSignalDataTime::ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned,
                                                          unsigned short, krm_long lMul, krm_long lDiv,
                                                          krm_long lOffset, unsigned char) {
    const auto scaled = [&](double* physical, krm_ulong byte) {
        constexpr unsigned short kBits = 8;
        return PhysicalConversion(physical, byte, uchSigned, kBits, lMul, lDiv, lOffset, 0);
    };
    return ThreeBytesValue(result, ulRawData, scaled);
}

krm_ulong CKRMCCommandConvSignalDataTime::StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys,
                                                           krm_ulong, unsigned char, unsigned short, unsigned char,
                                                           krm_ulong, krm_ulong, CKRMList<CKRMCCommandDispData>*,
                                                           CKRMString*, krm_ulong) {
    return ThreeBytesText(result, stringId, dPhys);
}

krm_ulong CKRMCCommandConvSignalDataTimeHHMM::ValueConversion(double* result, krm_ulong ulRawData, unsigned char,
                                                              unsigned short ushBitLength, krm_long lMul, krm_long lDiv,
                                                              krm_long lOffset, unsigned char) {
    const auto minutes = [&](double* physical) {
        constexpr unsigned char kUnsigned = 0;
        return PhysicalConversion(physical, ulRawData, kUnsigned, ushBitLength, lMul, lDiv, lOffset, 0);
    };
    return HoursAndMinutesValue(result, minutes);
}

krm_ulong CKRMCCommandConvSignalDataTimeHHMM::StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys,
                                                               krm_ulong, unsigned char, unsigned short, unsigned char,
                                                               krm_ulong, krm_ulong, CKRMList<CKRMCCommandDispData>*,
                                                               CKRMString*, krm_ulong) {
    if (!BeginText(result, stringId)) {
        return kNullArgument;
    }
    const krm_ulong value = TruncateToLow32(dPhys);
    ShortText().Decimal(value >> 8U, 2).Character(':').Decimal(value & 0xFFU, 2).AssignTo(*result);
    return 0;
}

krm_ulong CKRMCCommandConvSignalDataTimeHHMM2::ValueConversion(double* result, krm_ulong ulRawData, unsigned char,
                                                               unsigned short ushBitLength, krm_long lMul,
                                                               krm_long lDiv, krm_long lOffset, unsigned char) {
    const auto minutes = [&](double* physical) {
        constexpr unsigned char kUnsigned = 0;
        return PhysicalConversion(physical, ulRawData, kUnsigned, ushBitLength, lMul, lDiv, lOffset, 0);
    };
    return HoursAndMinutesValue(result, minutes);
}

krm_ulong CKRMCCommandConvSignalDataTimeHHMM2::StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys,
                                                                krm_ulong, unsigned char, unsigned short, unsigned char,
                                                                krm_ulong, krm_ulong, CKRMList<CKRMCCommandDispData>*,
                                                                CKRMString*, krm_ulong) {
    if (!BeginText(result, stringId)) {
        return kNullArgument;
    }
    const krm_ulong value = TruncateToLow32(dPhys);
    ShowSpan(*result, value >> 8U, value & 0xFFU);
    return 0;
}

krm_ulong CKRMCCommandConvSignalDataTimeHHMM3::StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys,
                                                                krm_ulong, unsigned char, unsigned short, unsigned char,
                                                                krm_ulong, krm_ulong, CKRMList<CKRMCCommandDispData>*,
                                                                CKRMString*, krm_ulong) {
    if (!BeginText(result, stringId)) {
        return kNullArgument;
    }
    const krm_ulong minutes = TruncateToLow32(dPhys) / 60;
    ShowSpan(*result, minutes / 60, minutes % 60);
    return 0;
}

CKRMCCommandConvSignalDataDate2::CKRMCCommandConvSignalDataDate2() : m_locale(UserLocale::Create()) {}

krm_ulong CKRMCCommandConvSignalDataDate2::ValueConversion(double* result, krm_ulong ulRawData, unsigned char,
                                                           unsigned short, krm_long, krm_long, krm_long,
                                                           unsigned char) {
    return RawValue(result, ulRawData);
}

krm_ulong CKRMCCommandConvSignalDataDate2::StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys,
                                                            krm_ulong, unsigned char, unsigned short, unsigned char,
                                                            krm_ulong, krm_ulong, CKRMList<CKRMCCommandDispData>*,
                                                            CKRMString*, krm_ulong) {
    if (!BeginText(result, stringId)) {
        return kNullArgument;
    }
    const krm_ulong value = TruncateToLow32(dPhys);
    const krm::convert::CalendarDay day = {static_cast<int>(value >> 16U), static_cast<int>((value >> 8U) & 0xFFU),
                                           static_cast<int>(value & 0xFFU)};
    const bool valid = day.year >= 1900 && day.month >= 1 && day.month <= 12 && day.day >= 1 && day.day <= 31;
    if (!valid || m_locale == nullptr || !m_locale->Write(day, *result)) {
        *result = "-";
    }
    return 0;
}

CKRMCCommandConvSignalDataTime2::CKRMCCommandConvSignalDataTime2() : m_locale(UserLocale::Create()) {}

krm_ulong CKRMCCommandConvSignalDataTime2::ValueConversion(double* result, krm_ulong ulRawData, unsigned char,
                                                           unsigned short, krm_long, krm_long, krm_long,
                                                           unsigned char) {
    return RawValue(result, ulRawData);
}

krm_ulong CKRMCCommandConvSignalDataTime2::StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys,
                                                            krm_ulong, unsigned char, unsigned short, unsigned char,
                                                            krm_ulong, krm_ulong, CKRMList<CKRMCCommandDispData>*,
                                                            CKRMString*, krm_ulong) {
    if (!BeginText(result, stringId)) {
        return kNullArgument;
    }
    const krm_ulong value = TruncateToLow32(dPhys);
    const krm::convert::TimeOfDay time = {static_cast<int>(value >> 24U), static_cast<int>((value >> 16U) & 0xFFU),
                                          static_cast<int>((value >> 8U) & 0xFFU)};
    const bool valid = time.hour < 24 && time.minute < 60 && time.second < 60;
    if (!valid || m_locale == nullptr || !m_locale->Write(time, *result)) {
        result->Empty();
    }
    return 0;
}
