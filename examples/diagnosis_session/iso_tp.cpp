#include "iso_tp.h"

#include <algorithm>

namespace diagnosis_session {
namespace {

// The upper half of a frame's first byte.
constexpr unsigned kSingleFrame = 0;
constexpr unsigned kFirstFrame = 1;
constexpr unsigned kConsecutiveFrame = 2;
constexpr unsigned kFlowControl = 3;

/// A single frame holds this many bytes; what is longer takes several.
constexpr std::size_t kSingleFrameBytes = 7;

std::string Number(std::size_t number) {
    return std::to_string(number);
}

}  // namespace

std::optional<IsoTpMessage> IsoTpAssembler::Add(const CanFrame& frame) {
    Sender& sender = m_senders[frame.id];
    if (frame.data.empty()) {
        GiveUp(sender, frame.line, HexOfId(frame.id) + " sends a frame without data");
        return std::nullopt;
    }
    const unsigned type = frame.data[0] >> 4U;
    switch (type) {
        case kSingleFrame:
            return AddSingle(sender, frame);
        case kFirstFrame:
            AddFirst(sender, frame);
            return std::nullopt;
        case kConsecutiveFrame:
            return AddConsecutive(sender, frame);
        case kFlowControl:
            return std::nullopt;
        default:
            GiveUp(sender, frame.line,
                   HexOfId(frame.id) + " sends a frame of type " + Number(type) + ", which ISO 15765-2 doesn't know");
            return std::nullopt;
    }
}

std::optional<IsoTpMessage> IsoTpAssembler::AddSingle(Sender& sender, const CanFrame& frame) {
    TellBrokenOff(sender);
    sender = Sender{};
    const std::size_t length = frame.data[0] & 0xFU;
    if (length == 0 || length > kSingleFrameBytes) {
        GiveUp(sender, frame.line, HexOfId(frame.id) + " sends a single frame of length " + Number(length));
        return std::nullopt;
    }
    const std::size_t carried = frame.data.size() - 1;
    if (length > carried) {
        GiveUp(sender, frame.line,
               HexOfId(frame.id) + " sends a single frame that promises " + Number(length) + " bytes and carries " +
                   Number(carried));
        return std::nullopt;
    }
    const std::uint8_t* const begin = frame.data.begin() + 1;
    return IsoTpMessage{frame.line, frame.id, Bytes(begin, begin + length), frame.time};
}

void IsoTpAssembler::AddFirst(Sender& sender, const CanFrame& frame) {
    TellBrokenOff(sender);
    sender = Sender{};
    if (frame.data.size() != 8) {
        GiveUp(sender, frame.line,
               HexOfId(frame.id) + " sends a first frame of " + Number(frame.data.size()) + " bytes, not 8");
        return;
    }
    const std::size_t length = (frame.data[0] & 0xFU) * std::size_t{256} + frame.data[1];
    if (length <= kSingleFrameBytes) {
        GiveUp(sender, frame.line,
               HexOfId(frame.id) + " sends a first frame that promises " + Number(length) +
                   " bytes, which take a single frame");
        return;
    }
    sender.state = State::Receiving;
    sender.promised = length;
    sender.message = {frame.line, frame.id, Bytes(frame.data.begin() + 2, frame.data.end()), frame.time};
}

std::optional<IsoTpMessage> IsoTpAssembler::AddConsecutive(Sender& sender, const CanFrame& frame) {
    const unsigned sequence = frame.data[0] & 0xFU;
    if (sender.state == State::GivenUp) {
        return std::nullopt;
    }
    if (sender.state == State::Idle) {
        GiveUp(sender, frame.line, HexOfId(frame.id) + " sends a consecutive frame without a first frame");
        return std::nullopt;
    }
    if (sender.state == State::Complete) {
        GiveUp(sender, frame.line,
               HexOfId(frame.id) + " sends more than the " + Number(sender.promised) +
                   " bytes that its first frame promised");
        return std::nullopt;
    }
    if (sequence != sender.nextSequence) {
        GiveUp(sender, frame.line,
               HexOfId(frame.id) + " sends consecutive frame " + Number(sequence) + " where " +
                   Number(sender.nextSequence) + " is due");
        return std::nullopt;
    }
    Bytes& bytes = sender.message.bytes;
    const std::size_t missing = sender.promised - bytes.size();
    const std::size_t carried = frame.data.size() - 1;
    if (carried < std::min(missing, kSingleFrameBytes)) {
        GiveUp(sender, frame.line,
               HexOfId(frame.id) + " sends a consecutive frame with " + Number(carried) + " bytes where " +
                   Number(std::min(missing, kSingleFrameBytes)) + " are due");
        return std::nullopt;
    }
    // What the last frame carries beyond the promised length is padding.
    const std::uint8_t* const begin = frame.data.begin() + 1;
    bytes.insert(bytes.end(), begin, begin + std::min(missing, carried));
    sender.nextSequence = (sender.nextSequence + 1) % 16;
    if (bytes.size() < sender.promised) {
        return std::nullopt;
    }
    sender.state = State::Complete;
    return std::move(sender.message);
}

std::size_t IsoTpAssembler::End() {
    std::size_t brokenOff = 0;
    for (auto& [id, sender] : m_senders) {
        brokenOff += TellBrokenOff(sender) ? 1U : 0U;
        sender = Sender{};
    }
    return brokenOff;
}

bool IsoTpAssembler::TellBrokenOff(const Sender& sender) {
    if (sender.state != State::Receiving) {
        return false;
    }
    m_complain(sender.message.line, HexOfId(sender.message.id) + " breaks off after " +
                                        Number(sender.message.bytes.size()) + " of " + Number(sender.promised) +
                                        " bytes");
    return true;
}

void IsoTpAssembler::GiveUp(Sender& sender, std::size_t line, const std::string& what) {
    m_complain(line, what);
    sender.state = State::GivenUp;
}

}  // namespace diagnosis_session
