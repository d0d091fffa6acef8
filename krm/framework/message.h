// The bases of all messages: five families, each with a base for requests (Snd) and one for answers (Rcv), and the layer
// that gives every message its regular operations.
#ifndef KRM_FRAMEWORK_MESSAGE_H_
#define KRM_FRAMEWORK_MESSAGE_H_

#include "krm/framework/commands.h"
#include "krm/platform/platform.h"

// Each base can be constructed from nothing, or from a command ID, which it then has. Its Clear resets the imported base,
// sets the family's command type and resets the own member; an ID of its own has only a message.
//
// The order of the virtual operations is part of the interface: destructor, Clear, ErrWriteOperationLog,
// ER_WriteOperationLogFormat. The viewer family has the first two only.
//
// ErrWriteOperationLog writes the object to the operation log, a line per field, and returns 0 whatever the log writer
// returned. ER_WriteOperationLogFormat formats one line as printf does, writes it and returns the log writer's result.

/// Base of the diagnostic commands messages.
class KRM_API CKRMCBaseCmdAdaptData : public CKRMBaseAdaptationData {
public:
    using FamilyBase = CKRMCBaseCmdAdaptData;
    static constexpr krm::CommandFamily kFamily = krm::CommandFamily::Diagnostic;

    CKRMCBaseCmdAdaptData();
    explicit CKRMCBaseCmdAdaptData(krm_ulong commandId);

    void Clear() override;
    virtual krm_long ErrWriteOperationLog();
    virtual krm_long ER_WriteOperationLogFormat(const char* format, ...) KRM_PRINTF_LIKE(2, 3);
};

/// Base of that family's requests.
class KRM_API CKRMCBaseCmdAdaptDataSnd : public CKRMCBaseCmdAdaptData {
public:
    using DirectionBase = CKRMCBaseCmdAdaptDataSnd;

    CKRMCBaseCmdAdaptDataSnd();
    explicit CKRMCBaseCmdAdaptDataSnd(krm_ulong commandId);

    void Clear() override;
    krm_long ErrWriteOperationLog() override;

    /// The ECU that the request is for.
    krm_ulong m_ulEcuId = 0;
};

/// Base of that family's answers.
class KRM_API CKRMCBaseCmdAdaptDataRcv : public CKRMCBaseCmdAdaptData {
public:
    using DirectionBase = CKRMCBaseCmdAdaptDataRcv;

    CKRMCBaseCmdAdaptDataRcv();
    explicit CKRMCBaseCmdAdaptDataRcv(krm_ulong commandId);

    void Clear() override;
    krm_long ErrWriteOperationLog() override;

    /// The engine doesn't support the command.
    bool m_bNotSupport = false;
};

/// Base of the viewer data control messages.
class KRM_API CKRMCBaseVdcAdaptData : public CKRMBaseAdaptationData {
public:
    using FamilyBase = CKRMCBaseVdcAdaptData;
    static constexpr krm::CommandFamily kFamily = krm::CommandFamily::Viewer;

    CKRMCBaseVdcAdaptData();
    explicit CKRMCBaseVdcAdaptData(krm_ulong commandId);

    void Clear() override;
};

/// Base of that family's requests.
class KRM_API CKRMCBaseVdcAdaptDataSnd : public CKRMCBaseVdcAdaptData {
public:
    using DirectionBase = CKRMCBaseVdcAdaptDataSnd;

    CKRMCBaseVdcAdaptDataSnd();
    explicit CKRMCBaseVdcAdaptDataSnd(krm_ulong commandId);

    void Clear() override;

    /// A number of the viewer's; the library only resets and copies it.
    krm_ulong m_ulVdcSndValue = 0;
};

/// Base of that family's answers.
class KRM_API CKRMCBaseVdcAdaptDataRcv : public CKRMCBaseVdcAdaptData {
public:
    using DirectionBase = CKRMCBaseVdcAdaptDataRcv;

    CKRMCBaseVdcAdaptDataRcv();
    explicit CKRMCBaseVdcAdaptDataRcv(krm_ulong commandId);

    void Clear() override;
};

/// Base of the stored-data import messages.
class KRM_API CKRMCBaseDsdiAdaptData : public CKRMBaseAdaptationData {
public:
    using FamilyBase = CKRMCBaseDsdiAdaptData;
    static constexpr krm::CommandFamily kFamily = krm::CommandFamily::StoredDataImport;

    CKRMCBaseDsdiAdaptData();
    explicit CKRMCBaseDsdiAdaptData(krm_ulong commandId);

    void Clear() override;
    virtual krm_long ErrWriteOperationLog();
    virtual krm_long ER_WriteOperationLogFormat(const char* format, ...) KRM_PRINTF_LIKE(2, 3);
};

/// Base of that family's requests.
class KRM_API CKRMCBaseDsdiAdaptDataSnd : public CKRMCBaseDsdiAdaptData {
public:
    using DirectionBase = CKRMCBaseDsdiAdaptDataSnd;

    CKRMCBaseDsdiAdaptDataSnd();
    explicit CKRMCBaseDsdiAdaptDataSnd(krm_ulong commandId);

    void Clear() override;
    krm_long ErrWriteOperationLog() override;

    /// The ECU that the request is for.
    krm_ulong m_ulEcuId = 0;
};

/// Base of that family's answers.
class KRM_API CKRMCBaseDsdiAdaptDataRcv : public CKRMCBaseDsdiAdaptData {
public:
    using DirectionBase = CKRMCBaseDsdiAdaptDataRcv;

    CKRMCBaseDsdiAdaptDataRcv();
    explicit CKRMCBaseDsdiAdaptDataRcv(krm_ulong commandId);

    void Clear() override;
};

/// Base of the unit conversion messages.
class KRM_API CKRMCBaseUccAdaptData : public CKRMBaseAdaptationData {
public:
    using FamilyBase = CKRMCBaseUccAdaptData;
    static constexpr krm::CommandFamily kFamily = krm::CommandFamily::UnitConversion;

    CKRMCBaseUccAdaptData();
    explicit CKRMCBaseUccAdaptData(krm_ulong commandId);

    void Clear() override;
    virtual krm_long ErrWriteOperationLog();
    virtual krm_long ER_WriteOperationLogFormat(const char* format, ...) KRM_PRINTF_LIKE(2, 3);
};

/// Base of that family's requests.
class KRM_API CKRMCBaseUccAdaptDataSnd : public CKRMCBaseUccAdaptData {
public:
    using DirectionBase = CKRMCBaseUccAdaptDataSnd;

    CKRMCBaseUccAdaptDataSnd();
    explicit CKRMCBaseUccAdaptDataSnd(krm_ulong commandId);

    void Clear() override;
};

/// Base of that family's answers.
class KRM_API CKRMCBaseUccAdaptDataRcv : public CKRMCBaseUccAdaptData {
public:
    using DirectionBase = CKRMCBaseUccAdaptDataRcv;

    CKRMCBaseUccAdaptDataRcv();
    explicit CKRMCBaseUccAdaptDataRcv(krm_ulong commandId);

    void Clear() override;
};

/// Base of the words table messages.
class KRM_API CKRMCBaseDwtAdaptData : public CKRMBaseAdaptationData {
public:
    using FamilyBase = CKRMCBaseDwtAdaptData;
    static constexpr krm::CommandFamily kFamily = krm::CommandFamily::WordsTable;

    CKRMCBaseDwtAdaptData();
    explicit CKRMCBaseDwtAdaptData(krm_ulong commandId);

    void Clear() override;
    virtual krm_long ErrWriteOperationLog();
    virtual krm_long ER_WriteOperationLogFormat(const char* format, ...) KRM_PRINTF_LIKE(2, 3);
};

/// Base of that family's requests.
class KRM_API CKRMCBaseDwtAdaptDataSnd : public CKRMCBaseDwtAdaptData {
public:
    using DirectionBase = CKRMCBaseDwtAdaptDataSnd;

    CKRMCBaseDwtAdaptDataSnd();
    explicit CKRMCBaseDwtAdaptDataSnd(krm_ulong commandId);

    void Clear() override;
};

/// Base of that family's answers.
class KRM_API CKRMCBaseDwtAdaptDataRcv : public CKRMCBaseDwtAdaptData {
public:
    using DirectionBase = CKRMCBaseDwtAdaptDataRcv;

    CKRMCBaseDwtAdaptDataRcv();
    explicit CKRMCBaseDwtAdaptDataRcv(krm_ulong commandId);

    void Clear() override;
};

/// The regular operations of a message, written once: a message named `Message` with the request or answer base
/// `Direction` and the ID `id` is
///
///     class X : public MessageOf<X, CKRMCBaseCmdAdaptDataSnd, krm::CommandId(krm::CommandFamily::Diagnostic, "...")>
///
/// and adds its fields with their defaults and its log lines. Adds no data member and no virtual operation.
template <class Message, class Direction, krm_ulong id>
class MessageOf : public Direction {
public:
    /// The type and ID that every object of this class has after construction and after Clear.
    static constexpr krm_ulong kCommandType = static_cast<krm_ulong>(Direction::kFamily);
    static constexpr krm_ulong kCommandId = id;

    /// Restores type, ID, the base's member and every field to what the constructor sets.
    void Clear() override {
        static_cast<Message&>(*this) = Message();
        // Not all families' constructors reset the imported base, but every Clear does.
        Direction::Clear();
        this->SetCommandID(id);
    }

protected:
    MessageOf() : Direction(id) {}
};

namespace krm {

/// `message` as the class that the caller expects, or null where it is null or carries another type or ID. Needs no
/// run-time type information.
///
///     if (auto* answer = krm::MessageAs<CKRMCGetDTCCmdAdaptDataRcv>(message)) ...
///
/// A request and its answer carry the same type and ID: whether requests or answers arrive is for the caller to know. He
/// must not ask for a request's class where answers arrive, nor the other way round.
template <class Message>
const Message* MessageAs(const CKRMBaseAdaptationData* message) {
    if (message == nullptr || message->GetCommandType() != Message::kCommandType ||
        message->GetCommandID() != Message::kCommandId) {
        return nullptr;
    }
    return static_cast<const Message*>(message);
}
template <class Message>
Message* MessageAs(CKRMBaseAdaptationData* message) {
    return const_cast<Message*>(MessageAs<Message>(static_cast<const CKRMBaseAdaptationData*>(message)));
}

}  // namespace krm

#endif  // KRM_FRAMEWORK_MESSAGE_H_
