// The base of every record that can dump itself, and the layer that gives all of them their regular operations.
//
// krm/framework/ has what records and messages are made of: this base, the messages' bases (message.h), the table of
// commands (commands.h) and the dump (dump.h). It includes krm/core/ and the platform.
#ifndef KRM_FRAMEWORK_RECORD_H_
#define KRM_FRAMEWORK_RECORD_H_

#include <cstdarg>
#include <type_traits>

#include "krm/core/list.h"
#include "krm/core/types.h"

class CKRMCBaseAdaptDataStructure;

namespace krm {

template <class Owner, int Depth>
class DumpLines;
/// What a record's Dump writes its lines with; see krm/framework/dump.h.
using RecordLines = DumpLines<CKRMCBaseAdaptDataStructure, 0>;

}  // namespace krm

/// Base of every record that has a dump. Records are plain values: created by default or by copy, changed through their
/// fields, reset by Clear.
///
/// The order of the virtual operations is part of the interface (docs/interface.md).
class KRM_API CKRMCBaseAdaptDataStructure {
public:
    /// The base has no data: there is nothing to set or to copy.
    CKRMCBaseAdaptDataStructure() = default;
    CKRMCBaseAdaptDataStructure(const CKRMCBaseAdaptDataStructure&) = default;             ///< copies nothing
    CKRMCBaseAdaptDataStructure& operator=(const CKRMCBaseAdaptDataStructure&) = default;  ///< copies nothing
    /// For deleting a record through its base.
    virtual ~CKRMCBaseAdaptDataStructure();

    /// Restores the values that the default constructor sets; in this base nothing.
    virtual void Clear();

    /// Writes the record to the operation log, one line per field. `format` and its arguments, as for printf, make the
    /// prefix that names this record in each line, for example "[%s] Data[%d]". Returns 0, whatever the log writer
    /// returned.
    virtual krm_long ErrWriteOperationLogStructure(const char* format, ...) KRM_PRINTF_LIKE(2, 3) = 0;

    /// Formats one line as printf does, writes it to the operation log and returns the log writer's result.
    virtual krm_long ER_WriteOperationLogFormatStructure(const char* format, ...) KRM_PRINTF_LIKE(2, 3);

protected:
    /// Makes the prefix of `format` and `arguments` and calls `dump` with this record and lines under that prefix.
    void DumpUnderPrefix(const char* format, std::va_list arguments,
                         void (*dump)(CKRMCBaseAdaptDataStructure& record, const krm::RecordLines& line));
};

namespace krm {

/// The regular operations of a record, written once: `class X : public krm::RecordOf<X>`. X adds its fields with their
/// defaults and `void Dump(const krm::RecordLines& line)`, which writes its log lines in order. It has no copy operations of
/// its own: lists count on it that a copy is the same as a new record assigned to.
///
/// Adds no data member and no virtual operation.
template <class Record>
class RecordOf : public CKRMCBaseAdaptDataStructure {
public:
    /// Assigns a new record: every field as the constructor sets it.
    void Clear() override { static_cast<Record&>(*this) = Record(); }

    /// Calls the record's Dump under the prefix that `format` and its arguments make. Returns 0.
    krm_long ErrWriteOperationLogStructure(const char* format, ...) override KRM_PRINTF_LIKE(2, 3) {
        std::va_list arguments;
        va_start(arguments, format);
        DumpUnderPrefix(format, arguments, [](CKRMCBaseAdaptDataStructure& record, const RecordLines& line) {
            static_cast<Record&>(record).Dump(line);
        });
        va_end(arguments);
        return 0;
    }
};

/// A record made as a copy can't be told from a new one that was assigned to.
template <class Record>
requires std::is_base_of_v<RecordOf<Record>, Record>
inline constexpr bool kCopiedInOneStep<Record> = true;

}  // namespace krm

#endif  // KRM_FRAMEWORK_RECORD_H_
