// Puts ISO 15765-2 messages together from the CAN frames that carry them.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_ISO_TP_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_ISO_TP_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>

#include "can_recording.h"
#include "complaints.h"

namespace diagnosis_session {

/// A whole message of one sender.
struct IsoTpMessage {
    std::size_t line = 0;         ///< of its first frame
    std::uint32_t id = 0;         ///< the CAN ID it was sent with
    Bytes bytes;                  ///< without the protocol's own bytes and without padding
    Microseconds time = kNoTime;  ///< of its first frame
};

/// Collects the frames of every sender. A sender has one message at a time under way.
///
/// What breaks the protocol is told once, and the message it concerns is given up: frames of it that still follow are
/// passed over until the sender begins anew.
class IsoTpAssembler {
public:
    explicit IsoTpAssembler(Complain complain) : m_complain(std::move(complain)) {}

    /// Takes the next frame; the message that it completes, if it does. Flow control says nothing about the data and is
    /// passed over.
    std::optional<IsoTpMessage> Add(const CanFrame& frame);

    /// Nothing more belongs to what is under way: tells which messages broke off and lets every sender begin anew.
    /// Returns how many broke off.
    std::size_t End();

private:
    enum class State { Idle, Receiving, Complete, GivenUp };
    struct Sender {
        State state = State::Idle;
        IsoTpMessage message;
        std::size_t promised = 0;   ///< length that the first frame announced
        unsigned nextSequence = 1;  ///< of the next consecutive frame, modulo 16
    };

    std::optional<IsoTpMessage> AddSingle(Sender& sender, const CanFrame& frame);
    void AddFirst(Sender& sender, const CanFrame& frame);
    std::optional<IsoTpMessage> AddConsecutive(Sender& sender, const CanFrame& frame);
    bool TellBrokenOff(const Sender& sender);
    void GiveUp(Sender& sender, std::size_t line, const std::string& what);

    Complain m_complain;
    std::map<std::uint32_t, Sender> m_senders;
};

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_ISO_TP_H_
