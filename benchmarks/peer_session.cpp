#include "benchmarks/peer_session.h"

#include <google/protobuf/text_format.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "benchmarks/pass.h"

namespace krm::bench {
namespace {

using diagnosis_session::EcuAnswer;
using diagnosis_session::Exchange;
using diagnosis_session::Item;
using diagnosis_session::ItemCommand;
using diagnosis_session::kShownDecimals;

const diagnosis_session::States* StatesOf(const Item& item) {
    return item.hasMap ? nullptr : diagnosis_session::FindStates(item.unit);
}

std::uint32_t Bits(const Item& item, std::span<const std::uint8_t> data) {
    std::uint32_t raw = 0;
    for (std::size_t bit = item.bit; bit < item.EndBit(); ++bit) {
        raw = raw << 1U | (data[bit / 8] >> (7 - bit % 8) & 1U);
    }
    return raw;
}

double Power(unsigned char decimals) {
    constexpr double kPowers[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};
    return kPowers[decimals];
}

const char* WordOf(const Item& item, std::uint32_t raw) {
    if (const auto* const states = StatesOf(item)) {
        return raw == 0 ? states->off : raw == 1 ? states->on : "";
    }
    const auto found =
        std::find_if(item.map.begin(), item.map.end(), [raw](const auto& entry) { return entry.first == raw; });
    return found == item.map.end() ? "" : found->second.c_str();
}

unsigned char ShownDecimals(const Item& item, unsigned char more) {
    return static_cast<unsigned char>(item.hasMap ? 0 : std::min<int>(item.decimals + more, kShownDecimals));
}

}  // namespace

/// Physical value and text, shown value and text of a raw value.
void PeerSession::Show(const Item& item, std::uint32_t raw, std::int64_t offset, proto::DispData& shown) const {
    const diagnosis_session::ShownUnit& unit = m_shownUnits.at(item.number);
    std::int64_t number = raw;
    if (item.isSigned && (raw >> (item.length - 1) & 1U) != 0) {
        number -= std::int64_t{1} << item.length;
    }
    const auto& scaling = item.scaling;
    const double physical = (static_cast<double>(number) * scaling.mul / scaling.div + static_cast<double>(offset)) /
                            Power(scaling.decimals);
    const double value = physical * unit.factor + unit.offset;
    shown.set_raw_data(raw);
    shown.set_data_phys(physical);
    shown.set_data(value);
    char text[64];
    if (item.hasMap) {
        shown.set_data_phys_text(WordOf(item, raw));
    } else {
        std::snprintf(text, sizeof text, "%.*f", kShownDecimals, physical);
        shown.set_data_phys_text(text);
    }
    if (item.hasMap || StatesOf(item) != nullptr) {
        shown.set_disp_data_type(1);
        shown.set_data_text(WordOf(item, raw));
        return;
    }
    if (item.unit == "dtc") {
        shown.set_disp_data_type(2);
        std::snprintf(text, sizeof text, "%c%04X", "PCBU"[raw >> 14U & 3U], raw & 0x3FFFU);
        shown.set_data_text(raw == 0 ? "none" : text);
        return;
    }
    if (item.unit == "hex") {
        std::snprintf(text, sizeof text, "0x%0*X", static_cast<int>((item.length + 3) / 4), raw);
    } else {
        std::snprintf(text, sizeof text, "%.*f", ShownDecimals(item, unit.moreDecimals), value);
    }
    shown.set_data_text(text);
}

std::uint32_t PeerSession::RawLimit(const Item& item, bool isMost) const {
    const std::uint32_t all = 0xFFFFFFFFU >> (32U - item.length);
    const std::uint32_t largest = item.isSigned ? all >> 1U : all;
    const std::optional<double>& limit = isMost ? item.max : item.min;
    if (!limit || item.scaling.mul == 0) {
        return isMost ? largest : item.isSigned ? largest + 1U : 0U;
    }
    const double raw =
        (*limit * Power(item.scaling.decimals) - item.scaling.offset) * item.scaling.div / item.scaling.mul;
    return static_cast<std::uint32_t>(std::llround(raw)) & all;
}

/// What every value of the item has in common.
const proto::FFDData& PeerSession::Prepare(const Item& item) {
    const auto [place, isNew] = m_prepared.try_emplace(item.number);
    proto::FFDData& record = place->second;
    if (!isNew) {
        return record;
    }
    const diagnosis_session::ShownUnit& unit = m_shownUnits[item.number] = m_units.For(item.unit);
    record.set_id(item.number);
    record.set_name(item.name);
    record.set_ffd_text(item.id);
    record.set_unit_phys(item.unit);
    record.set_unit(unit.name);
    record.set_dec_pnt_count(item.scaling.decimals);
    record.set_unit_conv_dec_pnt_count(ShownDecimals(item, unit.moreDecimals));
    proto::ConversionData& rule = *record.mutable_conversion_tbl();
    rule.set_mul(item.scaling.mul);
    rule.set_div(item.scaling.div);
    rule.set_offset(item.scaling.offset);
    rule.set_genre_id(static_cast<unsigned>(diagnosis_session::UnitSettings::GenreOf(item.unit)));
    rule.set_sign_code(item.isSigned ? 1 : 0);
    rule.set_bit_length(static_cast<std::uint32_t>(item.length));
    const auto addPattern = [&](std::uint32_t raw, const char* text) {
        proto::DispData& pattern = *rule.add_pattern_disp();
        pattern.set_raw_data(raw);
        pattern.set_data_phys_text(text);
    };
    for (const auto& [raw, text] : item.map) {
        addPattern(raw, text.c_str());
    }
    if (const auto* const states = StatesOf(item)) {
        addPattern(0, states->off);
        addPattern(1, states->on);
    }
    Show(item, RawLimit(item, true), item.scaling.offset, *rule.mutable_data_max());
    Show(item, RawLimit(item, false), item.scaling.offset, *rule.mutable_data_min());
    *rule.mutable_graph_max() = rule.data_max();
    *rule.mutable_graph_min() = rule.data_min();
    if (!item.hasMap && StatesOf(item) == nullptr) {
        Show(item, 1, 0, *record.mutable_resolution_data());
    }
    proto::DataLayout& layout = *record.mutable_data_layout();
    layout.set_endian(1);
    layout.set_byte_num(static_cast<std::uint32_t>((item.EndBit() + 7) / 8 - item.bit / 8));
    layout.set_byte_pos(static_cast<std::uint32_t>(item.bit / 8));
    layout.set_bit_mask(0xFFFFFFFFU >> (32U - item.length));
    return record;
}

void PeerSession::Log(const google::protobuf::Message& message) {
    google::protobuf::TextFormat::PrintToString(message, &m_text);
    Keep(m_text);
}

/// What was heard, as GetDataMonitorReceiveInfo tells it.
void PeerSession::Hear(const Exchange& exchange) {
    m_heard.Clear();
    m_heard.set_command_type(1);
    m_heard.set_command_id(1);
    const auto put = [this](std::uint32_t type, std::uint32_t value, std::uint32_t id) {
        proto::DmReceiveData& record = *m_heard.add_dm_receive_data();
        record.set_message_type(type);
        record.set_rid_recv_value(value);
        record.set_rid_id(id);
    };
    put(1, static_cast<std::uint32_t>(exchange.number), 0);
    for (std::size_t at = 0; at < exchange.request.size(); at += 4) {
        const std::size_t count = std::min<std::size_t>(4, exchange.request.size() - at);
        std::uint32_t bytes = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            bytes = bytes << 8U | (i < count ? exchange.request[at + i] : 0U);
        }
        put(2, bytes, static_cast<std::uint32_t>(count));
    }
    for (const EcuAnswer& said : exchange.answers) {
        put(3, said.ecu, said.IsNegative() ? 1 : 0);
        put(4, static_cast<std::uint32_t>(said.time), 0);
        put(4, static_cast<std::uint32_t>(static_cast<std::uint64_t>(said.time) >> 32U), 1);
    }
    Log(m_heard);
}

void PeerSession::Decode(const Exchange& exchange, std::string* texts) {
    Hear(exchange);
    for (const EcuAnswer& said : exchange.answers) {
        proto::GetDataMonitorValueRequest request;
        request.set_command_type(1);
        request.set_command_id(2);
        request.set_ecu_id(said.ecu);
        request.set_data_monitor_id(1);
        Log(request);

        proto::GetDataMonitorValueAnswer& answer = m_answers[{said.ecu, exchange.request}];
        answer.set_command_type(1);
        answer.set_command_id(2);
        int count = 0;
        // Parameters, each its ID and its data; the last takes what is left.
        std::span<const std::uint8_t> rest = std::span(said.bytes).subspan(1);
        for (std::size_t left = exchange.request.size() - 1; left != 0 && !rest.empty(); --left) {
            const std::uint8_t pid = rest[0];
            const ItemCommand* const command = m_table.Find(0x01, rest.first(1), said.ecu);
            rest = rest.subspan(1);
            if (command == nullptr && pid % 0x20 != 0) {
                break;
            }
            const std::size_t length = left == 1 ? rest.size() : command != nullptr ? command->DataLength() : 4;
            const std::span<const std::uint8_t> data = rest.first(std::min(length, rest.size()));
            rest = rest.subspan(data.size());
            if (command == nullptr || pid % 0x20 == 0) {
                continue;  // which parameters there are
            }
            for (const Item& item : command->items) {
                if (item.EndBit() > data.size() * 8) {
                    continue;
                }
                const proto::FFDData& prepared = Prepare(item);
                proto::FFDData& record = count < answer.data_size() ? *answer.mutable_data(count) : *answer.add_data();
                ++count;
                if (record.id() != item.number) {
                    record = prepared;
                    record.add_disp_data();
                }
                record.mutable_data_layout()->set_pid_no(pid);
                record.mutable_data_layout()->set_data_len(static_cast<std::uint32_t>(data.size()));
                Show(item, Bits(item, data), item.scaling.offset, *record.mutable_disp_data(0));
                if (texts != nullptr) {
                    *texts += record.disp_data(0).data_phys_text() + '=' + record.disp_data(0).data_text() + '\n';
                }
            }
        }
        while (answer.data_size() > count) {
            answer.mutable_data()->RemoveLast();
        }
        m_values += static_cast<std::size_t>(count);
        Log(answer);
    }
}

}  // namespace krm::bench
