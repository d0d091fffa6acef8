// The bases of all messages: five families, each with a base for requests (Snd) and one for answers (Rcv), and the layer
// that gives every message its regular operations. What krm/framework/ is, and what it may include, says record.h.
#ifndef KRM_FRAMEWORK_MESSAGE_H_
#define KRM_FRAMEWORK_MESSAGE_H_

#include <type_traits>

#include "krm/core/types.h"
#include "krm/framework/commands.h"
#include "krm/framework/literal.h"
#include "krm/platform/platform.h"

// Whether krm::MessageAs makes sure, at the price of run-time type information, that a message is what it is asked for.
#if !defined(NDEBUG) && (defined(__cpp_rtti) || defined(_CPPRTTI))
#define KRM_CHECKS_MESSAGE_AS
#include <cstdio>
#include <cstdlib>
#include <string>
#include <typeinfo>
#if defined(__GNUC__)
#include <cxxabi.h>
#endif
#endif

namespace krm {

class LoggedMessage;
template <class Owner, int Depth>
class DumpLines;
/// What a message's Dump writes its lines with; see krm/framework/dump.h.
using MessageLines = DumpLines<LoggedMessage, 0>;

/// Whether a message asks or answers. Type and ID don't tell: a request and its answer have the same.
enum class Direction {
    Send,    ///< a request, `...Snd`
    Receive  ///< an answer, `...Rcv`
};

/// What the families with a dump add to the imported base: two virtual operations, behind destructor and Clear. The viewer
/// family has neither.
class KRM_API LoggedMessage : public CKRMBaseAdaptationData {
public:
    /// Writes the message to the operation log, a line per field. Returns 0, whatever the log writer returned.
    virtual krm_long ErrWriteOperationLog() = 0;
    /// Formats one line as printf does, writes it to the operation log and returns the log writer's result.
    virtual krm_long ER_WriteOperationLogFormat(const char* format, ...) KRM_PRINTF_LIKE(2, 3);

protected:
    /// Writes command type and ID under `logName`.
    void DumpTypeAndId(const char* logName);
    /// Calls `dump` with this message and lines under `logName`, which must outlive the call.
    void DumpUnder(const char* logName, void (*dump)(LoggedMessage& message, const MessageLines& line));
};

/// What a family's base does when it is constructed, before its command type is set.
enum class Start {
    Cleared,    ///< calls the imported base's Clear
    AsImported  ///< leaves the imported base as its own constructor left it
};

/// The regular operations of a family's base, written once. `word` stands in the names of all its classes. Adds no data
/// member and no virtual operation.
template <CommandFamily family, Literal word, class Imported, Start start = Start::Cleared>
class FamilyOf : public Imported {
public:
    static constexpr CommandFamily kFamily = family;  ///< the command type of all the family's messages
    static constexpr Literal kFamilyWord = word;      ///< "Cmd" and so on, as its class names have it

    /// The family's type, and what the imported base has for an ID when it is new.
    FamilyOf() {
        if constexpr (start == Start::Cleared) {
            Imported::Clear();
        }
        SetFamily();
    }
    /// The same with the ID `commandId`.
    explicit FamilyOf(krm_ulong commandId) : FamilyOf() { this->SetCommandID(commandId); }

    /// Resets the imported base and sets the family's type; an ID of its own has only a message.
    void Clear() override {
        Imported::Clear();
        SetFamily();
    }

private:
    void SetFamily() { this->SetCommandType(static_cast<krm_ulong>(family)); }
};

/// The same for a family with a dump: its base writes type and ID.
template <CommandFamily family, Literal word, Start start = Start::Cleared>
class LoggedFamilyOf : public FamilyOf<family, word, LoggedMessage, start> {
public:
    using FamilyOf<family, word, LoggedMessage, start>::FamilyOf;

    /// Writes type and ID; the lines of the classes below follow. Returns 0.
    krm_long ErrWriteOperationLog() override {
        static constexpr auto kLogName = Joined<"CKRMCBase", word, "AdaptData::ErrWriteOperationLog">();
        this->DumpTypeAndId(kLogName.Text());
        return 0;
    }
};

}  // namespace krm

// Each base can be constructed from nothing, or from a command ID, which it then has. Its Clear resets the imported base,
// sets the family's command type and resets the own member; an ID of its own has only a message.
//
// The order of the virtual operations is part of the interface (docs/interface.md): destructor, Clear,
// ErrWriteOperationLog, ER_WriteOperationLogFormat. The viewer family has the first two only.

/// Base of the diagnostic commands' messages: command type 1.
class KRM_API CKRMCBaseCmdAdaptData : public krm::LoggedFamilyOf<krm::CommandFamily::Diagnostic, "Cmd"> {
public:
    using LoggedFamilyOf::LoggedFamilyOf;
};

/// Base of the diagnostic commands' requests.
class KRM_API CKRMCBaseCmdAdaptDataSnd : public CKRMCBaseCmdAdaptData {
public:
    using DirectionBase = CKRMCBaseCmdAdaptDataSnd;                     ///< this class, as a message's own name for it
    static constexpr krm::Direction kDirection = krm::Direction::Send;  ///< its messages ask
    using CKRMCBaseCmdAdaptData::CKRMCBaseCmdAdaptData;

    /// As the family's base, and the ECU is 0.
    void Clear() override;
    /// Writes the family's lines, then the ECU. Returns 0.
    krm_long ErrWriteOperationLog() override;

    /// The ECU that the request is for.
    krm_ulong m_ulEcuId = 0;
};

/// Base of the diagnostic commands' answers.
class KRM_API CKRMCBaseCmdAdaptDataRcv : public CKRMCBaseCmdAdaptData {
public:
    using DirectionBase = CKRMCBaseCmdAdaptDataRcv;  ///< this class, as a message's own name for it
    static constexpr krm::Direction kDirection = krm::Direction::Receive;  ///< its messages answer
    using CKRMCBaseCmdAdaptData::CKRMCBaseCmdAdaptData;

    /// As the family's base, and the command counts as supported.
    void Clear() override;
    /// Writes the family's lines, then the flag. Returns 0.
    krm_long ErrWriteOperationLog() override;

    /// The engine says that it doesn't support the command.
    bool m_bNotSupport = false;
};

/// Base of the viewer data control messages: command type 2. They have no dump.
class KRM_API CKRMCBaseVdcAdaptData : public krm::FamilyOf<krm::CommandFamily::Viewer, "Vdc", CKRMBaseAdaptationData> {
public:
    using FamilyOf::FamilyOf;
};

/// Base of the viewer data control family's requests.
class KRM_API CKRMCBaseVdcAdaptDataSnd : public CKRMCBaseVdcAdaptData {
public:
    using DirectionBase = CKRMCBaseVdcAdaptDataSnd;                     ///< this class, as a message's own name for it
    static constexpr krm::Direction kDirection = krm::Direction::Send;  ///< its messages ask
    using CKRMCBaseVdcAdaptData::CKRMCBaseVdcAdaptData;

    /// As the family's base, and the number is 0.
    void Clear() override;

    /// A number of the viewer's; the library only resets and copies it.
    krm_ulong m_ulVdcSndValue = 0;
};

/// Base of the viewer data control family's answers.
class KRM_API CKRMCBaseVdcAdaptDataRcv : public CKRMCBaseVdcAdaptData {
public:
    using DirectionBase = CKRMCBaseVdcAdaptDataRcv;  ///< this class, as a message's own name for it
    static constexpr krm::Direction kDirection = krm::Direction::Receive;  ///< its messages answer
    using CKRMCBaseVdcAdaptData::CKRMCBaseVdcAdaptData;
};

/// Base of the stored-data import messages: command type 8. The messages themselves write nothing into the log.
class KRM_API CKRMCBaseDsdiAdaptData : public krm::LoggedFamilyOf<krm::CommandFamily::StoredDataImport, "Dsdi"> {
public:
    using LoggedFamilyOf::LoggedFamilyOf;
};

/// Base of the stored-data import family's requests.
class KRM_API CKRMCBaseDsdiAdaptDataSnd : public CKRMCBaseDsdiAdaptData {
public:
    using DirectionBase = CKRMCBaseDsdiAdaptDataSnd;                    ///< this class, as a message's own name for it
    static constexpr krm::Direction kDirection = krm::Direction::Send;  ///< its messages ask
    using CKRMCBaseDsdiAdaptData::CKRMCBaseDsdiAdaptData;

    /// As the family's base, and the ECU is 0.
    void Clear() override;
    /// Writes the family's lines, then the ECU. Returns 0.
    krm_long ErrWriteOperationLog() override;

    /// The ECU that the request is for.
    krm_ulong m_ulEcuId = 0;
};

/// Base of the stored-data import family's answers.
class KRM_API CKRMCBaseDsdiAdaptDataRcv : public CKRMCBaseDsdiAdaptData {
public:
    using DirectionBase = CKRMCBaseDsdiAdaptDataRcv;  ///< this class, as a message's own name for it
    static constexpr krm::Direction kDirection = krm::Direction::Receive;  ///< its messages answer
    using CKRMCBaseDsdiAdaptData::CKRMCBaseDsdiAdaptData;
};

/// Base of the unit conversion messages: command type 10.
class KRM_API CKRMCBaseUccAdaptData : public krm::LoggedFamilyOf<krm::CommandFamily::UnitConversion, "Ucc"> {
public:
    using LoggedFamilyOf::LoggedFamilyOf;
};

/// Base of the unit conversion family's requests.
class KRM_API CKRMCBaseUccAdaptDataSnd : public CKRMCBaseUccAdaptData {
public:
    using DirectionBase = CKRMCBaseUccAdaptDataSnd;                     ///< this class, as a message's own name for it
    static constexpr krm::Direction kDirection = krm::Direction::Send;  ///< its messages ask
    using CKRMCBaseUccAdaptData::CKRMCBaseUccAdaptData;
};

/// Base of the unit conversion family's answers.
class KRM_API CKRMCBaseUccAdaptDataRcv : public CKRMCBaseUccAdaptData {
public:
    using DirectionBase = CKRMCBaseUccAdaptDataRcv;  ///< this class, as a message's own name for it
    static constexpr krm::Direction kDirection = krm::Direction::Receive;  ///< its messages answer
    using CKRMCBaseUccAdaptData::CKRMCBaseUccAdaptData;
};

/// Base of the words table messages: command type 14. It alone starts without a Clear: with the imported base's own
/// state, and the type.
class KRM_API CKRMCBaseDwtAdaptData
    : public krm::LoggedFamilyOf<krm::CommandFamily::WordsTable, "Dwt", krm::Start::AsImported> {
public:
    using LoggedFamilyOf::LoggedFamilyOf;
};

/// Base of the words table family's requests.
class KRM_API CKRMCBaseDwtAdaptDataSnd : public CKRMCBaseDwtAdaptData {
public:
    using DirectionBase = CKRMCBaseDwtAdaptDataSnd;                     ///< this class, as a message's own name for it
    static constexpr krm::Direction kDirection = krm::Direction::Send;  ///< its messages ask
    using CKRMCBaseDwtAdaptData::CKRMCBaseDwtAdaptData;
};

/// Base of the words table family's answers.
class KRM_API CKRMCBaseDwtAdaptDataRcv : public CKRMCBaseDwtAdaptData {
public:
    using DirectionBase = CKRMCBaseDwtAdaptDataRcv;  ///< this class, as a message's own name for it
    static constexpr krm::Direction kDirection = krm::Direction::Receive;  ///< its messages answer
    using CKRMCBaseDwtAdaptData::CKRMCBaseDwtAdaptData;
};

namespace krm {

/// The dump of a message of `Base`'s family: its bases' lines, then its own, if it has a Dump. For MessageOf.
template <class Message, class Base, Literal name>
class DumpOf : public Base {
public:
    using Base::Base;

    /// Writes the bases' lines, then the message's own. Returns 0.
    krm_long ErrWriteOperationLog() override {
        Base::ErrWriteOperationLog();
        if constexpr (requires(Message & message, const MessageLines& line) { message.Dump(line); }) {
            static constexpr auto kLogName = Joined < "CKRMC", name, Base::kFamilyWord, "AdaptData",
                                  Base::kDirection == Direction::Send ? Literal("Snd") : Literal("Rcv"),
                                  "::ErrWriteOperationLog" > ();
            this->DumpUnder(kLogName.Text(), [](LoggedMessage& message, const MessageLines& line) {
                static_cast<Message&>(message).Dump(line);
            });
        }
        return 0;
    }
};

/// The regular operations of a message, written once. A request of the command GetDTC is
///
///     class X : public krm::MessageOf<X, CKRMCBaseCmdAdaptDataSnd, "GetDTC">
///
/// X adds its fields with their defaults and, where it has some to write into the log, `void Dump(const
/// krm::MessageLines& line)`. Its log lines carry the class name that command, family and direction make.
///
/// A command that krm::kCommands doesn't have brings its ID: `krm::CommandName("ReadPaintCode", 900)`.
///
/// Adds no data member and no virtual operation.
template <class Message, class Base, CommandName command>
class MessageOf
    : public std::conditional_t<std::is_base_of_v<LoggedMessage, Base>, DumpOf<Message, Base, command.name>, Base> {
public:
    /// The type that every object of this class has after construction and after Clear.
    static constexpr krm_ulong kCommandType = static_cast<krm_ulong>(Base::kFamily);
    /// The ID that every object of this class has after construction and after Clear.
    static constexpr krm_ulong kCommandId = command.IdIn(Base::kFamily);

    /// Restores type, ID, the base's member and every field to what the constructor sets.
    void Clear() override {
        static_cast<Message&>(*this) = Message();
        // Not all families' constructors reset the imported base, but every Clear does.
        Base::Clear();
        this->SetCommandID(kCommandId);
    }

protected:
    /// The base as it starts, with the command's ID.
    MessageOf() { this->SetCommandID(kCommandId); }
};

// The two builds of MessageAs are two functions, each with a name of its own: parts of a program that are built for debugging
// and parts that aren't can be linked together, and with any build of the library.
#ifdef KRM_CHECKS_MESSAGE_AS
inline namespace checked {

/// The class name as it is written in the source. GCOVR_EXCL_START: the program ends before its coverage is counted.
inline std::string ReadableName(const std::type_info& type) {
#if defined(__GNUC__)
    char* const text = abi::__cxa_demangle(type.name(), nullptr, nullptr, nullptr);
    const std::string name = text != nullptr ? text : type.name();
    std::free(text);
    return name;
#else
    return type.name();
#endif
}

/// Writes both class names to standard error and stops the program; for MessageAs.
[[noreturn]] inline void StopAtAnotherClass(const std::type_info& asked, const std::type_info& actual) {
    std::fprintf(stderr, "krm::MessageAs: asked for %s, but the message is %s\n", ReadableName(asked).c_str(),
                 ReadableName(actual).c_str());
    std::abort();
}  // GCOVR_EXCL_STOP

#else
inline namespace unchecked {
#endif

/// `message` as the class that the caller expects, or null where it is null or carries another type or ID. Needs no
/// run-time type information.
///
///     if (auto* answer = krm::MessageAs<CKRMCGetDTCCmdAdaptDataRcv>(message)) ...
///
/// A request and its answer carry the same type and ID: whether requests or answers arrive is for the caller to know. He
/// must not ask for a request's class where answers arrive, nor the other way round. Where he does, a debug build (NDEBUG
/// not defined, run-time type information on) stops the program and names both classes.
template <class Message>
const Message* MessageAs(const CKRMBaseAdaptationData* message) {
    if (message == nullptr || message->GetCommandType() != Message::kCommandType ||
        message->GetCommandID() != Message::kCommandId) {
        return nullptr;
    }
#ifdef KRM_CHECKS_MESSAGE_AS
    if (dynamic_cast<const Message*>(message) == nullptr) {
        StopAtAnotherClass(typeid(Message), typeid(*message));  // GCOVR_EXCL_LINE
    }
#endif
    return static_cast<const Message*>(message);
}
/// The same for a message that may be changed.
template <class Message>
Message* MessageAs(CKRMBaseAdaptationData* message) {
    return const_cast<Message*>(MessageAs<Message>(static_cast<const CKRMBaseAdaptationData*>(message)));
}

}  // namespace

}  // namespace krm

#endif  // KRM_FRAMEWORK_MESSAGE_H_
