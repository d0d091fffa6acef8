// CKRMString::Format against snprintf: a fixed set of formats, everything else from the input.
#include <cmath>
#include <cstdarg>
#include <cstdio>

#include "fuzz/support/input.h"
#include "krm/platform/platform.h"

namespace {

using krm::fuzz::Input;

std::string Expected(const char* format, ...) KRM_PRINTF_LIKE(1, 2);
std::string Expected(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    std::va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    KRM_FUZZ_CHECK(length >= 0);
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    std::vsnprintf(text.data(), text.size(), format, again);
    va_end(again);
    text.pop_back();
    return text;
}

/// As the log does it: a list of arguments goes on to FormatV, twice.
void ByList(CKRMString& out, CKRMString& again, const char* format, ...) KRM_PRINTF_LIKE(3, 4);
void ByList(CKRMString& out, CKRMString& again, const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    out.FormatV(format, arguments);
    va_end(arguments);
    va_start(arguments, format);
    again.FormatV(format, arguments);
    va_end(arguments);
}

// A macro, so that the format stays a literal that the compiler checks against the arguments.
#define KRM_SAME_AS_PRINTED(...)                            \
    do {                                                    \
        CKRMString text = "before";                         \
        CKRMString listed;                                  \
        CKRMString listedAgain = "before";                  \
        text.Format(__VA_ARGS__);                           \
        ByList(listed, listedAgain, __VA_ARGS__);           \
        const std::string expected = Expected(__VA_ARGS__); \
        KRM_FUZZ_CHECK(Bytes(text) == expected);            \
        KRM_FUZZ_CHECK(Bytes(listed) == expected);          \
        KRM_FUZZ_CHECK(Bytes(listedAgain) == expected);     \
    } while (false)

std::string Bytes(const CKRMString& text) {
    return std::string(text.GetText(), text.GetLength());
}

/// Widths and precisions: negative ones have a meaning of their own.
int Size(Input& input) {
    return static_cast<int>(input.Byte()) * 2 - 100;
}

void Integers(Input& input) {
    const int width = Size(input);
    const int precision = Size(input);
    const auto small = input.Number<std::int32_t>();
    const auto large = input.Number<std::int64_t>();
    const auto smallUnsigned = static_cast<std::uint32_t>(small);
    KRM_SAME_AS_PRINTED("[%s] %s.m_lValue=%d,%u|%i", "Class::Function", "prefix", small, smallUnsigned, small);
    KRM_SAME_AS_PRINTED("%*.*d|%-*d|%+d|% d", width, precision, small, width, small, small, small);
    KRM_SAME_AS_PRINTED("%02X|%04X|%08X|0x%X|%x", smallUnsigned, smallUnsigned, smallUnsigned, smallUnsigned,
                        smallUnsigned);
    KRM_SAME_AS_PRINTED("%#*x|%#.*o|%0*u|%o", width, smallUnsigned, precision, smallUnsigned, width, smallUnsigned,
                        smallUnsigned);
    KRM_SAME_AS_PRINTED("%lld|%llu|%ld|%lX|%jd", static_cast<long long>(large), static_cast<unsigned long long>(large),
                        static_cast<long>(large), static_cast<unsigned long>(large), static_cast<std::intmax_t>(large));
    KRM_SAME_AS_PRINTED("%zu|%td|%+lld", static_cast<std::size_t>(large), static_cast<std::ptrdiff_t>(large),
                        static_cast<long long>(large));
    KRM_SAME_AS_PRINTED("%hhd|%hd|%hhu|%hX", static_cast<signed char>(small), static_cast<short>(small),
                        static_cast<unsigned char>(small), static_cast<unsigned short>(small));
    const int character = small % 127 == 0 ? 'x' : small & 0x7F;
    KRM_SAME_AS_PRINTED("%c|%*c|%%", character == 0 ? 'x' : character, width, 'y');
}

/// What "%#.*g" prints by the C standard. The C library's own drops the zeros of a value that rounds up to the next power
/// of ten: it makes "1.e+06" of 999999.99, where "1.00000e+06" is due.
std::string General(double value, int precision, bool upper) {
    if (!std::isfinite(value)) {
        return upper ? Expected("%#G", value) : Expected("%#g", value);
    }
    const int significant = precision < 0 ? 6 : precision == 0 ? 1 : precision;
    const std::string scientific =
        upper ? Expected("%#.*E", significant - 1, value) : Expected("%#.*e", significant - 1, value);
    const int exponent = std::stoi(scientific.substr(scientific.find(upper ? 'E' : 'e') + 1));
    return exponent < -4 || exponent >= significant ? scientific : Expected("%#.*f", significant - 1 - exponent, value);
}

void Reals(Input& input) {
    const int width = Size(input);
    const int precision = Size(input);
    const double value = input.Flag() ? input.Double() : input.Number<std::int32_t>() / 1000.0;
    KRM_SAME_AS_PRINTED("%s.m_dDataPhys=%lf", "prefix", value);
    KRM_SAME_AS_PRINTED("%*.*f|%-*.*F|%+f|% f", width, precision, value, width, precision, value, value, value);
    KRM_SAME_AS_PRINTED("%*.*e|%E|%#.*e", width, precision, value, value, precision, value);
    KRM_SAME_AS_PRINTED("%*.*g|%G", width, precision, value, value);
    CKRMString general;
    general.Format("%#.*g|%#G", precision, value, value);
    KRM_FUZZ_CHECK(Bytes(general) == General(value, precision, false) + '|' + General(value, -1, true));
    KRM_SAME_AS_PRINTED("%0*.*f|%#.0f|%.0f", width, precision, value, value, value);
}

void Texts(Input& input) {
    const int width = Size(input);
    const int precision = Size(input);
    const std::string first = input.Text(100);
    const std::string second = input.Text(100);
    KRM_SAME_AS_PRINTED("%s.m_strEcuName=%s", first.c_str(), second.c_str());
    KRM_SAME_AS_PRINTED("%*.*s|%-*s|%.3s|%5s", width, precision, first.c_str(), width, second.c_str(), first.c_str(),
                        second.c_str());

    // With a precision, nothing behind it is read: these texts don't end with a NUL.
    const std::vector<char> unended(second.begin(), second.end());
    if (!unended.empty()) {
        KRM_SAME_AS_PRINTED("%.*s", static_cast<int>(unended.size()), unended.data());
    }

    // Arguments may be the string's own text.
    CKRMString own = first.c_str();
    own.Format("%s[%d]%s%s", own.GetText(), precision, second.c_str(), own.GetText());
    KRM_FUZZ_CHECK(Bytes(own) == first + '[' + std::to_string(precision) + ']' + second + first);

    // A text that looks like a format is a text.
    CKRMString null;
    null.Format("%s%s", static_cast<const char*>(nullptr), "%n%s%d");
    KRM_FUZZ_CHECK(Bytes(null) == "(null)%n%s%d");
}

/// The other operations of the string, against std::string.
void Edits(Input& input) {
    CKRMString text;
    std::string model;
    for (int steps = 0; steps < 12 && !input.IsEmpty(); ++steps) {
        const std::size_t operation = input.UpTo(7);
        const std::string argument = input.Text(60);
        const CKRMString other = argument.c_str();
        switch (operation) {
            case 0:
                text = argument.c_str();
                model = argument;
                break;
            case 1:
                text += argument.c_str();
                model += argument;
                break;
            case 2:
                text.Combine(other);
                model += argument;
                break;
            case 3:
                text.Copy(other);
                model = argument;
                break;
            case 4:
                if (model.size() < 4096) {
                    text += text;
                    text.Combine(text.GetText());
                    model += model;
                    model += model;
                }
                break;
            case 5:
                text = text.GetText() + model.size() / 2;  // a part of itself
                model.erase(0, model.size() / 2);
                break;
            case 6:
                text = static_cast<const char*>(nullptr);
                model.clear();
                break;
            default:
                text.Empty();
                model.clear();
                break;
        }
        KRM_FUZZ_CHECK(Bytes(text) == model);
        const int order = text.Compare(argument.c_str());
        const int expected = model.compare(argument);
        KRM_FUZZ_CHECK((order < 0) == (expected < 0) && (order > 0) == (expected > 0));
        KRM_FUZZ_CHECK((other.Compare(text.GetText()) > 0) == (expected < 0));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    switch (input.UpTo(3)) {
        case 0:
            Integers(input);
            break;
        case 1:
            Reals(input);
            break;
        case 2:
            Texts(input);
            break;
        default:
            Edits(input);
            break;
    }
    return 0;
}
