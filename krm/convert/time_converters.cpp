#include "krm/convert/time_converters.h"

#include "krm/convert/internal/numbers.h"
#include "krm/convert/internal/short_text.h"
#include "krm/convert/internal/steps.h"
#include "krm/convert/internal/user_locale.h"

using krm::kNullArgument;
using krm::convert::BeginText;
using krm::convert::Scaling;
using krm::convert::ShortText;
using krm::convert::Steps;
using krm::convert::TruncateToLow32;
using krm::convert::UserLocale;

namespace {

constexpr unsigned char kUnsigned = 0;
constexpr unsigned short kBitsOfAPart = 8;
constexpr unsigned char kNoDecimals = 0;

/// Three bytes, each scaled by itself, put together again.
krm_ulong ThreeBytesValue(CKRMCCommandConvSignalData& converter, double* result, krm_ulong raw,
                          const Scaling& scaling) {
    if (result == nullptr) {
        return kNullArgument;
    }
    krm_ulong value = 0;
    for (unsigned shift = 0; shift < 24; shift += 8) {
        double part = 0;
        const krm_ulong status = Steps::Physical(converter, &part, (raw >> shift) & 0xFFU, scaling);
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
    ShortText()
        .LastDecimals((value >> 16U) & 0xFFU, 2)
        .Character('.')
        .LastDecimals((value >> 8U) & 0xFFU, 2)
        .Character('.')
        .LastDecimals(value & 0xFFU, 2)
        .AssignTo(*result);
    return 0;
}

/// A scaled count of minutes as hours above the minutes in the low byte.
krm_ulong HoursAndMinutesValue(CKRMCCommandConvSignalData& converter, double* result, krm_ulong raw,
                               const Scaling& scaling) {
    return krm::convert::ShapedValue(converter, result, raw, scaling, [](double count) -> double {
        const krm_ulong minutes = TruncateToLow32(count);
        return static_cast<krm_ulong>((minutes % 60) | ((minutes / 60) << 8U));
    });
}

void ShowSpan(CKRMString& result, krm_ulong hours, krm_ulong minutes) {
    ShortText().Decimal(hours).Words("hrs,").Decimal(minutes).Words("min").AssignTo(result);
}

bool IsInRange(krm::convert::CalendarDay day) {
    return day.year >= 1900 && day.month >= 1 && day.month <= 12 && day.day >= 1 && day.day <= 31;
}

bool IsInRange(krm::convert::TimeOfDay time) {
    return time.hour < 24 && time.minute < 60 && time.second < 60;
}

/// A day or time as the locale writes it, or `otherwise` where that can't be.
template <class When>
void ShowByLocale(CKRMString& result, const UserLocale* locale, When when, const char* otherwise) {
    if (!IsInRange(when) || locale == nullptr || !locale->Write(when, result)) {
        result = otherwise;
    }
}

}  // namespace

krm_ulong CKRMCCommandConvSignalDataDate::ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned,
                                                          unsigned short, krm_long lMul, krm_long lDiv,
                                                          krm_long lOffset, unsigned char) {
    return ThreeBytesValue(*this, result, ulRawData, {uchSigned, kBitsOfAPart, lMul, lDiv, lOffset, kNoDecimals});
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
    return ThreeBytesValue(*this, result, ulRawData, {uchSigned, kBitsOfAPart, lMul, lDiv, lOffset, kNoDecimals});
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
    return HoursAndMinutesValue(*this, result, ulRawData, {kUnsigned, ushBitLength, lMul, lDiv, lOffset, kNoDecimals});
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
    return HoursAndMinutesValue(*this, result, ulRawData, {kUnsigned, ushBitLength, lMul, lDiv, lOffset, kNoDecimals});
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
    return krm::convert::AssignValue(result, ulRawData);
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
    ShowByLocale(*result, m_locale.get(), day, "-");
    return 0;
}

CKRMCCommandConvSignalDataTime2::CKRMCCommandConvSignalDataTime2() : m_locale(UserLocale::Create()) {}

krm_ulong CKRMCCommandConvSignalDataTime2::ValueConversion(double* result, krm_ulong ulRawData, unsigned char,
                                                           unsigned short, krm_long, krm_long, krm_long,
                                                           unsigned char) {
    return krm::convert::AssignValue(result, ulRawData);
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
    ShowByLocale(*result, m_locale.get(), time, "");
    return 0;
}
