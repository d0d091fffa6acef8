#include "krm/platform/internal/format.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "krm/core/internal/digits.h"

namespace krm::platform {
namespace {

/// One conversion specification, between its '%' and its letter.
struct Conversion {
    bool left = false;
    bool plus = false;
    bool space = false;
    bool alternative = false;
    bool zero = false;
    int width = 0;
    int precision = -1;  // below 0: not given
    enum class Size { Char, Short, Int, Long, LongLong, IntMax, SizeT, PtrDiff, LongDouble } size = Size::Int;
    char letter = '\0';
};

/// The arguments still to be read. Wrapped, because a va_list may be an array, which can't be passed on by reference.
struct Arguments {
    std::va_list list;
};

std::intmax_t NextSigned(Arguments& arguments, Conversion::Size size) {
    switch (size) {
        case Conversion::Size::Char:
            return static_cast<signed char>(va_arg(arguments.list, int));
        case Conversion::Size::Short:
            return static_cast<short>(va_arg(arguments.list, int));
        case Conversion::Size::Long:
            return va_arg(arguments.list, long);
        case Conversion::Size::LongLong:
            return va_arg(arguments.list, long long);
        case Conversion::Size::IntMax:
            return va_arg(arguments.list, std::intmax_t);
        case Conversion::Size::SizeT:
        case Conversion::Size::PtrDiff:
            return va_arg(arguments.list, std::ptrdiff_t);
        default:
            return va_arg(arguments.list, int);
    }
}

std::uintmax_t NextUnsigned(Arguments& arguments, Conversion::Size size) {
    switch (size) {
        case Conversion::Size::Char:
            return static_cast<unsigned char>(va_arg(arguments.list, unsigned int));
        case Conversion::Size::Short:
            return static_cast<unsigned short>(va_arg(arguments.list, unsigned int));
        case Conversion::Size::Long:
            return va_arg(arguments.list, unsigned long);
        case Conversion::Size::LongLong:
            return va_arg(arguments.list, unsigned long long);
        case Conversion::Size::IntMax:
            return va_arg(arguments.list, std::uintmax_t);
        case Conversion::Size::SizeT:
        case Conversion::Size::PtrDiff:
            return va_arg(arguments.list, std::size_t);
        default:
            return va_arg(arguments.list, unsigned int);
    }
}

void ToUpper(char* first, const char* last) {
    for (; first != last; ++first) {
        if (*first >= 'a' && *first <= 'z') {
            *first = static_cast<char>(*first - 'a' + 'A');
        }
    }
}

/// Appends `sign`, then zeros or blanks up to the width, then `digits`.
void AppendPadded(Output& out, const Conversion& conversion, std::string_view sign, std::string_view digits,
                  bool zeroFill) {
    const std::size_t length = sign.size() + digits.size();
    const std::size_t width = conversion.width > 0 ? static_cast<std::size_t>(conversion.width) : 0;
    const std::size_t padding = width > length ? width - length : 0;
    if (!conversion.left && !zeroFill) {
        out.Append(padding, ' ');
    }
    out.Append(sign);
    if (!conversion.left && zeroFill) {
        out.Append(padding, '0');
    }
    out.Append(digits);
    if (conversion.left) {
        out.Append(padding, ' ');
    }
}

std::string_view SignOf(const Conversion& conversion, bool negative) {
    if (negative) {
        return "-";
    }
    return conversion.plus ? "+" : conversion.space ? " " : "";
}

/// Writes an integer's digits as the conversion's letter asks; returns the end.
char* WriteMagnitude(char* first, char letter, std::uintmax_t magnitude) {
    switch (letter) {
        case 'o':
            return core::WriteBits<3>(first, magnitude);
        case 'x':
            return core::WriteHexadecimal(first, magnitude, core::kLowerCase);
        case 'X':
            return core::WriteHexadecimal(first, magnitude, core::kUpperCase);
        default:
            return core::WriteDecimal(first, magnitude);
    }
}

void AppendInteger(Output& out, const Conversion& conversion, std::uintmax_t magnitude, std::string_view sign) {
    std::array<char, 24> buffer;  // 22 octal digits of 64 bits are the longest
    char* const first = buffer.data();
    char* last = first;
    if (conversion.precision != 0 || magnitude != 0) {
        last = WriteMagnitude(first, conversion.letter, magnitude);
    }
    const std::string_view digits(first, static_cast<std::size_t>(last - first));
    std::string_view prefix = sign;
    if (conversion.alternative && magnitude != 0 && (conversion.letter == 'x' || conversion.letter == 'X')) {
        prefix = conversion.letter == 'X' ? "0X" : "0x";
    }
    std::size_t leading = 0;
    if (conversion.precision > 0 && static_cast<std::size_t>(conversion.precision) > digits.size()) {
        leading = static_cast<std::size_t>(conversion.precision) - digits.size();
    }
    if (conversion.alternative && conversion.letter == 'o' && leading == 0 &&
        (digits.empty() || digits.front() != '0')) {
        leading = 1;
    }
    const bool zeroFill = conversion.zero && conversion.precision < 0;
    if (leading == 0) {
        AppendPadded(out, conversion, prefix, digits, zeroFill);
    } else {
        AppendPadded(out, conversion, prefix, std::string(leading, '0').append(digits), zeroFill);
    }
}

/// Writes a finite magnitude as '%#g' asks: the shape of '%g', with its trailing zeros. Returns the end.
char* WriteGeneralWithZeros(char* first, char* end, double magnitude, int precision) {
    const int significant = precision == 0 ? 1 : precision;
    char* const last = std::to_chars(first, end, magnitude, std::chars_format::scientific, significant - 1).ptr;
    const char* const mark = std::find(first, last, 'e');
    int exponent = 0;
    std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, last, exponent);
    if (exponent < -4 || exponent >= significant) {
        return last;
    }
    return std::to_chars(first, end, magnitude, std::chars_format::fixed, significant - 1 - exponent).ptr;
}

/// Writes a finite magnitude as the conversion's letter asks; returns the end.
char* WriteReal(char* first, char* end, const Conversion& conversion, double magnitude) {
    const int precision = conversion.precision < 0 ? 6 : conversion.precision;
    char* last = first;
    switch (conversion.letter) {
        case 'f':
        case 'F':
            last = std::to_chars(first, end, magnitude, std::chars_format::fixed, precision).ptr;
            break;
        case 'e':
        case 'E':
            last = std::to_chars(first, end, magnitude, std::chars_format::scientific, precision).ptr;
            break;
        case 'a':
        case 'A':
            last = conversion.precision < 0
                       ? std::to_chars(first, end, magnitude, std::chars_format::hex).ptr
                       : std::to_chars(first, end, magnitude, std::chars_format::hex, conversion.precision).ptr;
            break;
        default:
            last = conversion.alternative
                       ? WriteGeneralWithZeros(first, end, magnitude, precision)
                       : std::to_chars(first, end, magnitude, std::chars_format::general, precision).ptr;
            break;
    }
    if (conversion.alternative && std::find(first, last, '.') == last) {
        const bool hexadecimal = conversion.letter == 'a' || conversion.letter == 'A';
        char* const point = std::find(first, last, hexadecimal ? 'p' : 'e');
        std::copy_backward(point, last, last + 1);
        *point = '.';
        ++last;
    }
    return last;
}

void AppendReal(Output& out, const Conversion& conversion, double value) {
    const bool upper = conversion.letter >= 'A' && conversion.letter <= 'Z';
    std::string sign(SignOf(conversion, std::signbit(value)));
    if (!std::isfinite(value)) {
        const std::string_view name = std::isnan(value) ? (upper ? "NAN" : "nan") : (upper ? "INF" : "inf");
        AppendPadded(out, conversion, sign, name, false);
        return;
    }
    // The largest double has 309 digits before the point; that and the usual decimals fit without an allocation.
    std::array<char, 384> usual;
    std::string large;
    char* first = usual.data();
    std::size_t room = usual.size();
    if (conversion.precision > 50) {
        large.resize(room + static_cast<std::size_t>(conversion.precision));
        first = large.data();
        room = large.size();
    }
    char* const last = WriteReal(first, first + room, conversion, std::fabs(value));
    if (upper) {
        ToUpper(first, last);
    }
    if (conversion.letter == 'a' || conversion.letter == 'A') {
        sign += upper ? "0X" : "0x";
    }
    AppendPadded(out, conversion, sign, {first, static_cast<std::size_t>(last - first)}, conversion.zero);
}

void AppendText(Output& out, const Conversion& conversion, const char* text) {
    if (text == nullptr) {
        text = "(null)";
    }
    std::size_t length = 0;
    if (conversion.precision < 0) {
        length = std::strlen(text);
    } else {
        // No more bytes are looked at than may be printed: a text with a precision need not end with a NUL.
        const auto most = static_cast<std::size_t>(conversion.precision);
        const void* const nul = std::memchr(text, '\0', most);
        length = nul == nullptr ? most : static_cast<std::size_t>(static_cast<const char*>(nul) - text);
    }
    AppendPadded(out, conversion, {}, {text, length}, false);
}

int ParseNumber(const char*& cursor) {
    int number = 0;
    for (; *cursor >= '0' && *cursor <= '9'; ++cursor) {
        if (number < 100'000'000) {
            number = number * 10 + (*cursor - '0');
        }
    }
    return number;
}

Conversion::Size ParseSize(const char*& cursor) {
    switch (*cursor) {
        case 'h':
            ++cursor;
            if (*cursor == 'h') {
                ++cursor;
                return Conversion::Size::Char;
            }
            return Conversion::Size::Short;
        case 'l':
            ++cursor;
            if (*cursor == 'l') {
                ++cursor;
                return Conversion::Size::LongLong;
            }
            return Conversion::Size::Long;
        case 'j':
            ++cursor;
            return Conversion::Size::IntMax;
        case 'z':
            ++cursor;
            return Conversion::Size::SizeT;
        case 't':
            ++cursor;
            return Conversion::Size::PtrDiff;
        case 'L':
            ++cursor;
            return Conversion::Size::LongDouble;
        default:
            return Conversion::Size::Int;
    }
}

/// Reads flags, width, precision, size and letter; `cursor` stands behind the '%' and ends behind the letter.
Conversion Parse(const char*& cursor, Arguments& arguments) {
    Conversion conversion;
    for (bool flags = true; flags;) {
        switch (*cursor) {
            case '-':
                conversion.left = true;
                break;
            case '+':
                conversion.plus = true;
                break;
            case ' ':
                conversion.space = true;
                break;
            case '#':
                conversion.alternative = true;
                break;
            case '0':
                conversion.zero = true;
                break;
            default:
                flags = false;
                continue;
        }
        ++cursor;
    }
    if (*cursor == '*') {
        ++cursor;
        conversion.width = va_arg(arguments.list, int);
        if (conversion.width < 0) {
            conversion.left = true;
            conversion.width = conversion.width == INT_MIN ? 0 : -conversion.width;
        }
    } else {
        conversion.width = ParseNumber(cursor);
    }
    if (*cursor == '.') {
        ++cursor;
        if (*cursor == '*') {
            ++cursor;
            conversion.precision = va_arg(arguments.list, int);
        } else {
            conversion.precision = ParseNumber(cursor);
        }
    }
    conversion.size = ParseSize(cursor);
    conversion.letter = *cursor;
    if (*cursor != '\0') {
        ++cursor;
    }
    return conversion;
}

void AppendConversion(Output& out, const Conversion& conversion, Arguments& arguments) {
    switch (conversion.letter) {
        case 'd':
        case 'i': {
            const std::intmax_t value = NextSigned(arguments, conversion.size);
            const std::uintmax_t magnitude =
                value < 0 ? std::uintmax_t{0} - static_cast<std::uintmax_t>(value) : static_cast<std::uintmax_t>(value);
            AppendInteger(out, conversion, magnitude, SignOf(conversion, value < 0));
            break;
        }
        case 'u':
        case 'o':
        case 'x':
        case 'X':
            AppendInteger(out, conversion, NextUnsigned(arguments, conversion.size), {});
            break;
        case 'f':
        case 'F':
        case 'e':
        case 'E':
        case 'g':
        case 'G':
        case 'a':
        case 'A':
            AppendReal(out, conversion,
                       conversion.size == Conversion::Size::LongDouble
                           ? static_cast<double>(va_arg(arguments.list, long double))
                           : va_arg(arguments.list, double));
            break;
        case 's':
            AppendText(out, conversion, va_arg(arguments.list, const char*));
            break;
        case 'c': {
            const char character = static_cast<char>(va_arg(arguments.list, int));
            AppendPadded(out, conversion, {}, {&character, 1}, false);
            break;
        }
        case 'p': {
            Conversion hexadecimal = conversion;
            hexadecimal.letter = 'x';
            hexadecimal.alternative = true;
            AppendInteger(out, hexadecimal, reinterpret_cast<std::uintptr_t>(va_arg(arguments.list, void*)), {});
            break;
        }
        case 'n':
            static_cast<void>(va_arg(arguments.list, void*));
            break;
        default:
            if (conversion.letter != '\0') {  // "%%", and what no conversion is, print as their last character
                out.Append({&conversion.letter, 1});
            }
            break;
    }
}

}  // namespace

void AppendFormatted(Output& out, const char* format, std::va_list arguments) {
    Arguments rest;
    va_copy(rest.list, arguments);
    const char* cursor = format;
    while (true) {
        const char* const plain = cursor;
        while (*cursor != '\0' && *cursor != '%') {
            ++cursor;
        }
        out.Append({plain, static_cast<std::size_t>(cursor - plain)});
        if (*cursor == '\0') {
            break;
        }
        ++cursor;
        // The two conversions of nearly every line of the log need none of the machinery.
        if (*cursor == 's') {
            ++cursor;
            const char* const text = va_arg(rest.list, const char*);
            out.Append(text == nullptr ? "(null)" : text);
        } else if (*cursor == 'd') {
            ++cursor;
            std::array<char, core::kDecimalRoom<int>> digits;
            const char* const end = core::WriteDecimal(digits.data(), va_arg(rest.list, int));
            out.Append({digits.data(), static_cast<std::size_t>(end - digits.data())});
        } else {
            AppendConversion(out, Parse(cursor, rest), rest);
        }
    }
    va_end(rest.list);
}

}  // namespace krm::platform
