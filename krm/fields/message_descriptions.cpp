#include "krm/fields/message_descriptions.h"

#include "krm/fields/all_fields.h"
#include "krm/messages/all_messages.h"

namespace krm {

namespace {

// krm::NewMessage has the constructors already.
template <class Message>
std::unique_ptr<CKRMBaseAdaptationData> Create() {
    return NewMessage(Message::kCommandType, Message::kCommandId, Message::kDirection);
}

template <class... Messages>
consteval std::array<MessageDescription, sizeof...(Messages)> DescribeAll(ClassList<Messages...>) {
    return {DescribeMessage<Messages>(&Create<Messages>)...};
}

constexpr auto kMessages = DescribeAll(AllMessageClasses());

}  // namespace

std::span<const MessageDescription> AllMessages() {
    return kMessages;
}

const MessageDescription* FindMessage(krm_ulong commandType, krm_ulong commandId, Direction direction) {
    for (const MessageDescription& message : kMessages) {
        if (message.type == commandType && message.id == commandId && message.direction == direction) {
            return &message;
        }
    }
    return nullptr;
}

}  // namespace krm
