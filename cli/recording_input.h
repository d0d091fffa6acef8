// A recording as an exchange of messages.
#ifndef KRM_CLI_RECORDING_INPUT_H_
#define KRM_CLI_RECORDING_INPUT_H_

#include <cstddef>
#include <istream>
#include <string>
#include <vector>

#include "cli/input.h"
#include "krm/exchange/recording.h"

namespace krm_cli {

/// Its fields have the log's notation, also those that the log doesn't show: numbers in decimal, bools as 0 and 1, doubles
/// with the fewest digits that read back to the same bits, `m_cResourceMap["key"]` for a map's entry. Type and ID come in
/// front, as in the log.
class RecordingInput : public Input {
public:
    explicit RecordingInput(ByteSource& source);

    Event Next() override;
    bool IsRecording() const override { return true; }
    const CKRMBaseAdaptationData* Message() const override { return m_recorded.message.get(); }

private:
    struct Flat {
        std::string path;
        std::string value;
    };
    void Begin();
    void Flatten(krm::ConstValue value);
    void AddField(std::string value);

    SourceBuffer m_buffer;
    std::istream m_stream;
    std::string m_name;
    krm::RecordingReader m_reader;
    krm::RecordedMessage m_recorded;
    std::string m_faultText;
    std::string m_path;  ///< while a message is taken apart
    std::vector<Flat> m_fields;
    std::size_t m_next = 0;  ///< of these
    bool m_isOpen = false;
    EcusOfRequests m_ecus;
};

}  // namespace krm_cli

#endif  // KRM_CLI_RECORDING_INPUT_H_
