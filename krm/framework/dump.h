// How a record or message writes its fields into the operation log. For the sources of records and messages, a user's own
// among them; no header needs it.
//
//     line("%s.m_ulEcuId=%d", m_ulEcuId);            // a number, a text or a double: one line
//     line("%s.m_cTripTime", m_cTripTime);           // an embedded record: its own lines under this prefix
//     line("%s.m_cEcuList[%d]", m_cEcuList);         // a list of records: each element's lines
//     line("[%s] m_uchSSRNo[%d]=%d", m_uchSSRNo);    // a list of numbers: a line each
//     line.ForEach(Data, [](const auto& itemLine, auto& item) {    // elements whose fields the holder writes:
//         itemLine("[%s] Data[%d].m_ushId=%d", item.m_ushId);      // one index more per level
//     });
//
// Every literal is checked while compiling against the types of its fields and the number of indices.
#ifndef KRM_FRAMEWORK_DUMP_H_
#define KRM_FRAMEWORK_DUMP_H_

#include <array>
#include <cstdarg>
#include <cstddef>
#include <string_view>
#include <type_traits>
#include <utility>

#include "krm/core/list.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/platform/platform.h"

namespace krm {

/// What a field is to the log.
enum class FieldKind {
    Number,      ///< an integer of up to 32 bits, or a bool: %d, %u or %X
    Real,        ///< a double: %lf
    Text,        ///< a CKRMString: %s
    Record,      ///< an embedded record: writes its own lines
    RecordList,  ///< a list of records: each writes its own lines
    NumberList   ///< a list of numbers: a line each
};

/// The element type of a list; void for what is no list.
template <class T>
struct ListElement {
    using Type = void;  ///< no list
};
/// Of a list its elements' type.
template <class T>
struct ListElement<CKRMList<T>> {
    using Type = T;  ///< what the list holds
};

/// A number that the log can show.
template <class T>
concept IsNumber = std::is_integral_v<T> && sizeof(T) <= 4;
/// A record that can dump itself.
template <class T>
concept IsRecord = std::is_base_of_v<CKRMCBaseAdaptDataStructure, T>;

/// The kind of a field of type `T`; a type that has none can't be written and doesn't compile.
template <class T>
consteval FieldKind KindOf() {
    if constexpr (IsNumber<T>) {
        return FieldKind::Number;
    } else if constexpr (std::is_same_v<T, double>) {
        return FieldKind::Real;
    } else if constexpr (std::is_same_v<T, CKRMString>) {
        return FieldKind::Text;
    } else if constexpr (IsRecord<T>) {
        return FieldKind::Record;
    } else if constexpr (IsNumber<typename ListElement<T>::Type>) {
        return FieldKind::NumberList;
    } else {
        static_assert(IsRecord<typename ListElement<T>::Type>, "this type has no place in the operation log");
        return FieldKind::RecordList;
    }
}

// Called when a literal doesn't fit its field. Not constexpr, so that the compiler stops there and shows the name.
void TheLineMustBeginWithItsPrefixPlaceholder();          ///< neither "%s" nor "[%s]" in front
void TheLineMustHaveOneIndexInBracketsPerLevelAndList();  ///< an index is missing or not in brackets
void TheConversionDoesNotFitTheField();                   ///< another letter than the field's type asks for
void TheLineHasAConversionTooMany();                      ///< more conversions than indices and fields
void ARecordWritesItsOwnValues();                         ///< "=" in the line of a record

/// Takes "%s", "[%s]" off the front of `text`. Constexpr, not consteval: Clang 14 refuses a consteval helper here.
constexpr void SkipPrefix(std::string_view& text) {
    if (text.starts_with("%s")) {
        text.remove_prefix(2);
    } else if (text.starts_with("[%s]")) {
        text.remove_prefix(4);
    } else {
        TheLineMustBeginWithItsPrefixPlaceholder();
    }
}

/// Takes all up to the next index, "[%d]" or "[%u]", off the front of `text`.
constexpr void SkipIndex(std::string_view& text) {
    const std::size_t percent = text.find('%');
    if (percent == std::string_view::npos || percent == 0 || text[percent - 1] != '[' ||
        !(text.substr(percent).starts_with("%d]") || text.substr(percent).starts_with("%u]"))) {
        TheLineMustHaveOneIndexInBracketsPerLevelAndList();
    }
    text.remove_prefix(percent + 3);
}

/// Takes all up to the next conversion, which must fit `kind`, off the front of `text`.
constexpr void SkipValue(std::string_view& text, FieldKind kind) {
    std::size_t letter = text.find('%');
    if (letter == std::string_view::npos || letter == 0 || text[letter - 1] == '[') {
        TheConversionDoesNotFitTheField();
    }
    ++letter;
    const std::size_t width = letter;
    while (letter < text.size() && text[letter] >= '0' && text[letter] <= '9') {
        ++letter;
    }
    const std::string_view rest = text.substr(letter);
    if (kind == FieldKind::Text || kind == FieldKind::Real) {
        const std::string_view wanted = kind == FieldKind::Text ? "s" : "lf";
        if (letter != width || !rest.starts_with(wanted)) {
            TheConversionDoesNotFitTheField();
        }
        text.remove_prefix(letter + wanted.size());
        return;
    }
    if (rest.empty() || std::string_view("duX").find(rest.front()) == std::string_view::npos) {
        TheConversionDoesNotFitTheField();
    }
    text.remove_prefix(letter + 1);
}

/// Checks `text` against the number of indices in force and the kinds of its fields.
constexpr void CheckLine(std::string_view text, int indices, const FieldKind* kinds, std::size_t count) {
    SkipPrefix(text);
    for (int i = 0; i < indices; ++i) {
        SkipIndex(text);
    }
    for (std::size_t i = 0; i < count; ++i) {
        if (kinds[i] == FieldKind::RecordList || kinds[i] == FieldKind::NumberList) {
            SkipIndex(text);
        }
        if (kinds[i] != FieldKind::Record && kinds[i] != FieldKind::RecordList) {
            SkipValue(text, kinds[i]);
        } else if (text.find('=') != std::string_view::npos) {
            ARecordWritesItsOwnValues();
        }
    }
    if (text.find('%') != std::string_view::npos) {
        TheLineHasAConversionTooMany();
    }
}

/// A format literal that fits `Fields` under `Depth` indices; nothing else compiles.
template <int Depth, class... Fields>
class LineFormat {
public:
    /// The literal, checked.
    consteval LineFormat(const char* literal) : m_literal(literal) {  // NOLINT: a literal converts by itself
        constexpr std::array<FieldKind, sizeof...(Fields)> kinds{KindOf<Fields>()...};
        CheckLine(literal, Depth, kinds.data(), kinds.size());
    }
    /// The literal, with a NUL behind it.
    constexpr const char* Text() const { return m_literal; }

private:
    const char* m_literal;
};

/// Numbers reach the log's `...` as 32 bits of their own signedness, texts as their text.
template <IsNumber Number>
auto Passed(Number value) {
    return static_cast<std::conditional_t<std::is_signed_v<Number> || std::is_same_v<Number, bool>, int, unsigned>>(
        value);
}
/// A double goes as it is.
inline double Passed(double value) {
    return value;
}
/// A text goes as its characters, valid as long as `text`.
inline const char* Passed(const CKRMString& text) {
    return text.GetText();
}

/// Writes the lines of one record or message: each a single virtual call on the object itself.
///
/// `Owner` is the base whose log operation is called; `Depth` counts the list elements that enclose the lines.
template <class Owner, int Depth>
class DumpLines {
public:
    /// `prefix` is the first argument of every line: a record's prefix or a message's log name. Both must outlive this.
    DumpLines(Owner& owner, const char* prefix, std::array<int, Depth> indices = {})
        : m_owner(owner), m_prefix(prefix), m_indices(indices) {}

    /// Writes the line, or the lines, of a field. Several fields may share one line.
    template <class... Fields>
    void operator()(LineFormat<Depth, std::remove_cvref_t<Fields>...> format, Fields&&... fields) const {
        if constexpr (sizeof...(Fields) == 1) {
            Write(format.Text(), fields...);
        } else {
            Line(format.Text(), Passed(fields)...);
        }
    }

    /// Calls `write(elementLine, element)` for each element of `list`, with lines that have the element's index added.
    template <class T, class Function>
    void ForEach(CKRMList<T>& list, Function write) const {
        std::array<int, Depth + 1> indices{};
        for (int i = 0; i < Depth; ++i) {
            indices[static_cast<std::size_t>(i)] = m_indices[static_cast<std::size_t>(i)];
        }
        for (T& element : list) {
            write(DumpLines<Owner, Depth + 1>(m_owner, m_prefix, indices), element);
            ++indices[Depth];
        }
    }

private:
    template <class... Values>
    void Line(const char* format, Values... values) const {
        WithIndices([&](auto... indices) { CallLog(m_owner, format, m_prefix, indices..., values...); });
    }

    template <class Record, class... Index>
    void Nested(const char* format, Record& record, Index... index) const {
        WithIndices(
            [&](auto... indices) { record.ErrWriteOperationLogStructure(format, m_prefix, indices..., index...); });
    }

    template <class Function>
    void WithIndices(Function function) const {
        [&]<std::size_t... I>(std::index_sequence<I...>) {
            function(m_indices[I]...);
        }
        (std::make_index_sequence<static_cast<std::size_t>(Depth)>());
    }

    template <class Field>
    void Write(const char* format, Field& field) const {
        constexpr FieldKind kKind = KindOf<std::remove_const_t<Field>>();
        if constexpr (kKind == FieldKind::Record) {
            Nested(format, field);
        } else if constexpr (kKind == FieldKind::RecordList || kKind == FieldKind::NumberList) {
            int index = 0;
            for (auto& element : field) {
                if constexpr (kKind == FieldKind::RecordList) {
                    Nested(format, element, index);
                } else {
                    Line(format, index, Passed(element));
                }
                ++index;
            }
        } else {
            Line(format, Passed(field));
        }
    }

    template <class... Values>
    static void CallLog(CKRMCBaseAdaptDataStructure& record, const char* format, Values... values) {
        record.ER_WriteOperationLogFormatStructure(format, values...);
    }
    template <class... Values>
    static void CallLog(LoggedMessage& message, const char* format, Values... values) {
        message.ER_WriteOperationLogFormat(format, values...);
    }

    Owner& m_owner;
    const char* m_prefix;
    std::array<int, Depth> m_indices;
};

/// Formats one line and hands it to the operation log; the one place where that happens.
krm_long WriteOperationLogLine(const char* format, std::va_list arguments);

}  // namespace krm

#endif  // KRM_FRAMEWORK_DUMP_H_
