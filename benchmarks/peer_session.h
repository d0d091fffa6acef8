// The session of benchmarks/session.cpp as a program writes it that has protobuf and snprintf instead of this library.
//
// It reads the recording, sorts it into exchanges and knows the items by the example's own code, as the example does; from
// there on everything is its own: it scales in `double`, prints with snprintf, and keeps the values in protobuf messages,
// which go to the log as TextFormat. A message is kept from one poll to the next, and only its values change.
#ifndef KRM_BENCHMARKS_PEER_SESSION_H_
#define KRM_BENCHMARKS_PEER_SESSION_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "answer.pb.h"
#include "examples/diagnosis_session/exchange.h"
#include "examples/diagnosis_session/item_table.h"
#include "examples/diagnosis_session/units.h"

namespace krm::bench {

class PeerSession {
public:
    explicit PeerSession(const diagnosis_session::ItemTable& table) : m_table(table) {}

    /// Decodes service 01, which is all that the recording has. With `texts`, appends each value's two texts to it.
    void Decode(const diagnosis_session::Exchange& exchange, std::string* texts = nullptr);

    std::size_t Values() const { return m_values; }

private:
    using Item = diagnosis_session::Item;

    void Hear(const diagnosis_session::Exchange& exchange);
    void Log(const google::protobuf::Message& message);
    const proto::FFDData& Prepare(const Item& item);
    void Show(const Item& item, std::uint32_t raw, std::int64_t offset, proto::DispData& shown) const;
    std::uint32_t RawLimit(const Item& item, bool isMost) const;

    const diagnosis_session::ItemTable& m_table;
    diagnosis_session::UnitSettings m_units;
    std::map<std::uint16_t, diagnosis_session::ShownUnit> m_shownUnits;  ///< by the item's number
    std::map<std::uint16_t, proto::FFDData> m_prepared;
    std::map<std::pair<std::uint32_t, diagnosis_session::Bytes>, proto::GetDataMonitorValueAnswer> m_answers;
    proto::GetDataMonitorReceiveInfoAnswer m_heard;
    std::string m_text;
    std::size_t m_values = 0;
};

}  // namespace krm::bench

#endif  // KRM_BENCHMARKS_PEER_SESSION_H_
