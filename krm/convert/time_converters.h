// Converters of dates, times of day and spans of time.
#ifndef KRM_CONVERT_TIME_CONVERTERS_H_
#define KRM_CONVERT_TIME_CONVERTERS_H_

#include <memory>

#include "krm/convert/converter.h"

namespace krm::convert {
class UserLocale;
}

/// Conversion type 15: three bytes, each scaled by itself; the text is "YY.MM.DD" of the bytes from the highest down.
class KRM_API CKRMCCommandConvSignalDataDate : public CKRMCCommandConvSignalData {
protected:
    krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
                              krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount) override;
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;
};

/// Conversion type 16: the same as Date, for hours, minutes and seconds.
class KRM_API CKRMCCommandConvSignalDataTime : public CKRMCCommandConvSignalData {
protected:
    krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
                              krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount) override;
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;
};

/// Conversion type 19: a count of minutes; the physical value holds hours above the minutes in its low byte, the text is
/// "HH:MM".
class KRM_API CKRMCCommandConvSignalDataTimeHHMM : public CKRMCCommandConvSignalData {
protected:
    krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
                              krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount) override;
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;
};

/// Conversion type 111: a count of minutes as TimeHHMM, shown as "2hrs,15min".
class KRM_API CKRMCCommandConvSignalDataTimeHHMM2 : public CKRMCCommandConvSignalData {
protected:
    krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
                              krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount) override;
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;
};

/// Conversion type 115: a count of seconds, shown as "2hrs,15min".
class KRM_API CKRMCCommandConvSignalDataTimeHHMM3 : public CKRMCCommandConvSignalData {
protected:
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;
};

/// Conversion type 105: year in bits 16 to 31, month in 8 to 15, day in 0 to 7, shown as the user's locale writes a short
/// date; "-" where it is no date from 1900 on, or where the locale can't show it.
///
/// Takes the user's locale when it is constructed; copies share it, the last one releases it.
class KRM_API CKRMCCommandConvSignalDataDate2 : public CKRMCCommandConvSignalData {
public:
    CKRMCCommandConvSignalDataDate2();

protected:
    krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
                              krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount) override;
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;

private:
    std::shared_ptr<const krm::convert::UserLocale> m_locale;  // null where the user's locale doesn't exist
};

/// Conversion type 106: hour in bits 24 to 31, minute in 16 to 23, second in 8 to 15, shown as the user's locale writes a
/// time of day; empty where it is none, or where the locale can't show it.
///
/// Takes the user's locale when it is constructed; copies share it, the last one releases it.
class KRM_API CKRMCCommandConvSignalDataTime2 : public CKRMCCommandConvSignalData {
public:
    CKRMCCommandConvSignalDataTime2();

protected:
    krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
                              krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount) override;
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;

private:
    std::shared_ptr<const krm::convert::UserLocale> m_locale;  // null where the user's locale doesn't exist
};

#endif  // KRM_CONVERT_TIME_CONVERTERS_H_
