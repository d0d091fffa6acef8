// The one source that makes an object of every message: so the library has all their virtual tables, and exports them.
#include "krm/messages/all_messages.h"

namespace krm {

namespace {

template <class Message>
std::unique_ptr<CKRMBaseAdaptationData> Make() {
    return std::make_unique<Message>();
}

struct Maker {
    krm_ulong commandType;
    krm_ulong commandId;
    Direction direction;
    std::unique_ptr<CKRMBaseAdaptationData> (*make)();
};

template <class... Messages>
std::unique_ptr<CKRMBaseAdaptationData> NewMessageOf(ClassList<Messages...>, krm_ulong commandType, krm_ulong commandId,
                                                     Direction direction) {
    static constexpr Maker kMakers[] = {
        {Messages::kCommandType, Messages::kCommandId, Messages::kDirection, &Make<Messages>}...};
    for (const Maker& maker : kMakers) {
        if (maker.commandType == commandType && maker.commandId == commandId && maker.direction == direction) {
            return maker.make();
        }
    }
    return nullptr;
}

}  // namespace

std::unique_ptr<CKRMBaseAdaptationData> NewMessage(krm_ulong commandType, krm_ulong commandId, Direction direction) {
    return NewMessageOf(AllMessageClasses(), commandType, commandId, direction);
}

}  // namespace krm
