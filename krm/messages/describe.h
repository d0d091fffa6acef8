// Names and one-line descriptions of messages, for a log or a tool of one's own:
//
//     krm::NameOf(answer)           CKRMCGetDTCCmdAdaptDataRcv
//     krm::DescribeShort(answer)    GetDTC answer, 3 in Data
//     krm::DescribeShort(request)   GetDTC request, ECU 2016
//
// A request and its answer carry the same type and ID. So the direction comes from the static type, or, where that is only
// CKRMBaseAdaptationData, from the caller. Includes no message's header: it serves those that the caller has, his own
// among them.
#ifndef KRM_MESSAGES_DESCRIBE_H_
#define KRM_MESSAGES_DESCRIBE_H_

#include <concepts>
#include <string>
#include <string_view>
#include <type_traits>

#include "krm/core/types.h"
#include "krm/framework/commands.h"
#include "krm/framework/literal.h"
#include "krm/framework/message.h"
#include "krm/platform/platform.h"

namespace krm {

/// What stands behind the family's word in the class names of a command: "AdaptData", but for two commands of the viewer,
/// whose four classes are exported as `VdcAdptData` (krm/messages/auxiliary/viewer.h).
constexpr std::string_view DataWordOf(CommandFamily family, std::string_view command) {
    const bool isShort =
        family == CommandFamily::Viewer && (command == "GetHelpInfo" || command == "GetPcViewerResource");
    return isShort ? "AdptData" : "AdaptData";
}

/// The word of `family` in its class names, "Cmd" and so on; empty for a family that there isn't.
constexpr std::string_view FamilyWordOf(CommandFamily family) {
    switch (family) {
        case CommandFamily::Diagnostic:
            return CKRMCBaseCmdAdaptData::kFamilyWord.View();
        case CommandFamily::Viewer:
            return CKRMCBaseVdcAdaptData::kFamilyWord.View();
        case CommandFamily::StoredDataImport:
            return CKRMCBaseDsdiAdaptData::kFamilyWord.View();
        case CommandFamily::UnitConversion:
            return CKRMCBaseUccAdaptData::kFamilyWord.View();
        case CommandFamily::WordsTable:
            return CKRMCBaseDwtAdaptData::kFamilyWord.View();
    }
    return {};  // GCOVR_EXCL_LINE: every family has its case
}

/// Whether an object of this static type is known to ask, or known to answer: a message, or its family's Snd or Rcv base.
template <class Message>
concept HasDirection = std::derived_from<Message, CKRMBaseAdaptationData> && requires {
    { Message::kDirection } -> std::convertible_to<Direction>;
};

/// The command's name that the message's class was given; a NUL behind it. For what knows a class by its type alone.
template <class Message, class Base, CommandName command>
constexpr std::string_view CommandNameIn(const MessageOf<Message, Base, command>*) {
    return {command.name.characters, command.name.View().size()};
}

/// The name of the command with this type and ID, as in krm::kCommands; "type 1, ID 900" where that has none.
inline std::string CommandNameOf(krm_ulong type, krm_ulong id) {
    if (const Command* const command = FindCommand(type, id); command != nullptr) {
        return command->name;
    }
    std::string unknown = "type ";
    unknown += std::to_string(type);
    unknown += ", ID ";
    unknown += std::to_string(id);
    return unknown;
}

/// The name of the message's command. A class of one's own knows its command's, though the table doesn't.
template <HasDirection Message>
std::string CommandNameOf(const Message& message) {
    if constexpr (requires { CommandNameIn(&message); }) {
        return std::string(CommandNameIn(&message));
    } else {
        return CommandNameOf(message.GetCommandType(), message.GetCommandID());
    }
}

/// The class name that family, command and direction make.
inline std::string ClassName(CommandFamily family, std::string_view command, Direction direction) {
    std::string name = "CKRMC";
    name += command;
    name += FamilyWordOf(family);
    name += DataWordOf(family, command);
    name += direction == Direction::Send ? "Snd" : "Rcv";
    return name;
}

/// The name of the message's class as its log lines carry it. A message with a type and ID that krm::kCommands doesn't have
/// is "type 1, ID 900".
inline std::string NameOf(const CKRMBaseAdaptationData& message, Direction direction) {
    const Command* const command = FindCommand(message.GetCommandType(), message.GetCommandID());
    return command != nullptr ? ClassName(command->family, command->name, direction)
                              : CommandNameOf(message.GetCommandType(), message.GetCommandID());
}
/// The same of a message whose static type says its direction. Of a class of one's own the name is made of its command.
template <HasDirection Message>
std::string NameOf(const Message& message) {
    if constexpr (requires { CommandNameIn(&message); }) {
        return ClassName(Message::kFamily, CommandNameIn(&message), Message::kDirection);
    } else {
        return NameOf(message, Message::kDirection);
    }
}

/// One line: command, direction, the ECU of a request, whether an answer says "not supported", and the number of elements
/// in the message's main list, `Data`, as far as the static type has these.
template <HasDirection Message>
std::string DescribeShort(const Message& message) {
    std::string text = CommandNameOf(message);
    text += Message::kDirection == Direction::Send ? " request" : " answer";
    if constexpr (requires { std::to_string(message.m_ulEcuId); }) {
        text += ", ECU " + std::to_string(message.m_ulEcuId);
    }
    if constexpr (requires { message.m_bNotSupport ? 1 : 0; }) {
        text += message.m_bNotSupport ? ", not supported" : "";
    }
    if constexpr (requires { message.Data.GetCount(); }) {
        text += ", " + std::to_string(message.Data.GetCount()) + " in Data";
    }
    return text;
}

/// The same for an untyped message. What lies in its lists isn't counted: that takes its class (krm::MessageAs).
/// REQUIRES: it is a message of `direction`, or a family's Snd or Rcv base.
inline std::string DescribeShort(const CKRMBaseAdaptationData& message, Direction direction) {
    const bool send = direction == Direction::Send;
    switch (static_cast<CommandFamily>(message.GetCommandType())) {
        case CommandFamily::Diagnostic:
            return send ? DescribeShort(static_cast<const CKRMCBaseCmdAdaptDataSnd&>(message))
                        : DescribeShort(static_cast<const CKRMCBaseCmdAdaptDataRcv&>(message));
        case CommandFamily::StoredDataImport:
            if (send) {
                return DescribeShort(static_cast<const CKRMCBaseDsdiAdaptDataSnd&>(message));
            }
            break;
        case CommandFamily::Viewer:
        case CommandFamily::UnitConversion:
        case CommandFamily::WordsTable:
            break;
    }
    return CommandNameOf(message.GetCommandType(), message.GetCommandID()) + (send ? " request" : " answer");
}

}  // namespace krm

#endif  // KRM_MESSAGES_DESCRIBE_H_
