// A tick of the data monitor: raw values of 200 items come in, are converted, put into the answer, and all of the answer goes
// to the log. The peer does it with a protobuf message, snprintf and TextFormat.
#include <google/protobuf/text_format.h>

#include <array>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "answer.pb.h"
#include "benchmarks/workload.h"
#include "krm/convert/signal.h"
#include "krm/framework/log_sinks.h"
#include "krm/messages/diag/data_monitor.h"

namespace krm::bench {
namespace {

constexpr unsigned kItems = 200;

// Conversion types, as CreateConverter takes them.
constexpr unsigned char kNumber = 0;
constexpr unsigned char kStringPattern = 1;
constexpr unsigned char kHex = 3;
constexpr unsigned char kTroubleCode = 5;
constexpr unsigned char kHoursMinutes = 19;
constexpr unsigned char kBits = 113;

constexpr std::array<const char*, 8> kStates = {"Off",      "On",       "Not available", "Error",
                                                "Learning", "Standing", "Completed",     "Out of the specified range"};

/// An item of the monitor: of ten, six are numbers, two are states, one is a hexadecimal number, and one a trouble code, a
/// time or single bits.
struct MonitorItem {
    unsigned short id;
    unsigned char type = kNumber;
    unsigned char decimals = 0;
    bool isSigned = false;
    unsigned short bits = 16;
    krm_long mul = 1;
    krm_long div = 1;
    krm_long offset = 0;
    std::string name;
    std::string unit;

    explicit MonitorItem(unsigned number) : id(static_cast<unsigned short>(0x100 + number)) {
        static constexpr std::array<const char*, 4> kNames = {
            "Engine coolant temperature", "Vehicle speed", "Injection volume feedback, cylinder", "Throttle position"};
        static constexpr std::array<const char*, 4> kUnits = {"degC", "km/h", "mm3/st", "%"};
        static constexpr std::array<unsigned char, 4> kOthers = {kTroubleCode, kHoursMinutes, kBits, kHex};
        name = std::string(kNames[number % 4]) + " " + std::to_string(number);
        switch (number % 10) {
            case 6:
            case 7:
                type = kStringPattern;
                bits = 3;
                break;
            case 8:
                type = kHex;
                break;
            case 9:
                type = kOthers[number / 10 % 4];
                bits = type == kBits ? 8 : type == kHoursMinutes ? 10 : 16;
                break;
            default:
                unit = kUnits[number % 4];
                decimals = static_cast<unsigned char>(number % 4);
                isSigned = number % 3 == 0;
                bits = number % 2 == 0 ? 16 : 8;
                mul = static_cast<krm_long>(number % 7 + 1);
                // Nothing that may be negative is divided: what rounds to zero from below shows a minus sign by printf, and
                // none by a converter.
                div = number % 3 == 2 ? static_cast<krm_long>(number % 5 + 1) : 1;
                offset = number % 3 == 1 ? -40 : 0;
        }
    }

    /// Its limits, which are those of its bits.
    krm_ulong Most() const { return 0xFFFFFFFFU >> (32U - bits + (isSigned ? 1U : 0U)); }
    krm_ulong Least() const { return isSigned ? Most() + 1U : 0; }

    /// The value that comes in at a tick.
    krm_ulong Raw(unsigned tick) const {
        return (id * 2654435761U + tick * 40503U) >> 7U & (0xFFFFFFFFU >> (32U - bits));
    }
};

std::vector<MonitorItem> MonitorItems() {
    std::vector<MonitorItem> items;
    for (unsigned number = 0; number < kItems; ++number) {
        items.emplace_back(number);
    }
    return items;
}

/// The monitor with this library.
class Monitor {
public:
    Monitor() {
        m_prepared.reserve(m_items.size());
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            const MonitorItem& item = m_items[i];
            m_converters.emplace_back(item.type);
            CKRMCCommandFFDData& record = m_prepared.emplace_back();
            record.m_ushId = item.id;
            record.m_ulNameId = item.id + 1000U;
            record.m_ulUnitPhysId = 11;
            record.m_ulUnitId = 12;
            record.m_strName = item.name.c_str();
            record.m_strUnitPhys = item.unit.c_str();
            record.m_strUnit = item.unit.c_str();
            record.m_uchDataType = item.type;
            record.m_uchDecPntCount = item.decimals;
            record.m_uchUnitConvDecPntCount = item.decimals;
            CKRMCCommandConversionData& rule = record.m_cConversionTbl;
            rule.m_lMul = item.mul;
            rule.m_lDiv = item.div;
            rule.m_lOffset = item.offset;
            rule.m_uchSigned = item.isSigned ? 1 : 0;
            rule.m_ushBitLength = item.bits;
            rule.m_ushGenreId = 7;
            rule.m_strDefaultPattern = "Unknown";
            if (item.type == kStringPattern) {
                for (krm_ulong raw = 0; raw < kStates.size(); ++raw) {
                    CKRMCCommandDispData pattern;
                    pattern.m_ulRawData = raw;
                    pattern.m_strDataPhys = kStates[raw];
                    rule.m_cPatternDispList.AddTail(pattern);
                }
            }
            Show(i, item.Most(), rule.m_cDataMax);
            Show(i, item.Least(), rule.m_cDataMin);
            rule.m_cGraphMax = rule.m_cDataMax;
            rule.m_cGraphMin = rule.m_cDataMin;
            Show(i, 1, record.m_cResolutionData);
            record.m_cDispDataList.AddTail(CKRMCCommandDispData());
            record.m_cDataLayout.m_ulPidNo = item.id;
            record.m_cDataLayout.m_ulDataLen = 2;
            record.m_cDataLayout.m_uchEndian = 1;
            record.m_cDataLayout.m_ulByteNum = 2;
            record.m_cDataLayout.m_ulBytePos = 4;
            record.m_cDataLayout.m_ulBitMask = 0xFFFF;
        }
    }

    void Tick(unsigned tick) {
        m_answer.Clear();
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            CKRMCCommandFFDData& record = *CKRMListIterator<CKRMCCommandFFDData>(m_answer.Data.AddTail(m_prepared[i]));
            Show(i, m_items[i].Raw(tick), *begin(record.m_cDispDataList));
        }
        // The message leaves its values out of the log.
        m_answer.ErrWriteOperationLog();
        int index = 0;
        for (CKRMCCommandFFDData& record : m_answer.Data) {
            record.ErrWriteOperationLogStructure("Data[%d]", index++);
        }
    }

    std::string Texts() {
        std::string texts;
        for (CKRMCCommandFFDData& record : m_answer.Data) {
            texts += std::string(begin(record.m_cDispDataList)->m_strDataPhys.GetText()) + '\n';
        }
        return texts;
    }

private:
    void Show(std::size_t item, krm_ulong raw, CKRMCCommandDispData& shown) const {
        ConvertSignal(m_converters[item], m_prepared[item], raw, &shown);
        shown.m_strData = shown.m_strDataPhys;
        shown.m_dData = shown.m_dDataPhys;
        shown.m_ulDispDataType = 1;
    }

    std::vector<MonitorItem> m_items = MonitorItems();
    std::vector<SignalConverter> m_converters;
    std::vector<CKRMCCommandFFDData> m_prepared;
    CKRMCGetDataMonitorValueCmdAdaptDataRcv m_answer;
};

/// The monitor without it. Its message keeps its memory from tick to tick.
class PeerMonitor {
public:
    PeerMonitor() {
        for (const MonitorItem& item : m_items) {
            proto::FFDData& record = m_prepared.emplace_back();
            record.set_id(item.id);
            record.set_name_id(item.id + 1000U);
            record.set_unit_phys_id(11);
            record.set_unit_id(12);
            record.set_name(item.name);
            record.set_unit_phys(item.unit);
            record.set_unit(item.unit);
            record.set_data_type(item.type);
            record.set_dec_pnt_count(item.decimals);
            record.set_unit_conv_dec_pnt_count(item.decimals);
            proto::ConversionData& rule = *record.mutable_conversion_tbl();
            rule.set_mul(item.mul);
            rule.set_div(item.div);
            rule.set_offset(item.offset);
            rule.set_sign_code(item.isSigned ? 1 : 0);
            rule.set_bit_length(item.bits);
            rule.set_genre_id(7);
            rule.set_default_pattern("Unknown");
            if (item.type == kStringPattern) {
                for (std::uint32_t raw = 0; raw < kStates.size(); ++raw) {
                    proto::DispData& pattern = *rule.add_pattern_disp();
                    pattern.set_raw_data(raw);
                    pattern.set_data_phys_text(kStates[raw]);
                }
            }
            Show(item, item.Most(), *rule.mutable_data_max());
            Show(item, item.Least(), *rule.mutable_data_min());
            *rule.mutable_graph_max() = rule.data_max();
            *rule.mutable_graph_min() = rule.data_min();
            Show(item, 1, *record.mutable_resolution_data());
            record.add_disp_data();
            proto::DataLayout& layout = *record.mutable_data_layout();
            layout.set_pid_no(item.id);
            layout.set_data_len(2);
            layout.set_endian(1);
            layout.set_byte_num(2);
            layout.set_byte_pos(4);
            layout.set_bit_mask(0xFFFF);
        }
    }

    void Tick(unsigned tick) {
        m_answer.Clear();
        m_answer.set_command_type(1);
        m_answer.set_command_id(2);
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            proto::FFDData& record = *m_answer.add_data();
            record = m_prepared[i];
            Show(m_items[i], m_items[i].Raw(tick), *record.mutable_disp_data(0));
        }
        google::protobuf::TextFormat::PrintToString(m_answer, &m_text);
        benchmark::DoNotOptimize(m_text.data());
    }

    std::string Texts() const {
        std::string texts;
        for (const proto::FFDData& record : m_answer.data()) {
            texts += record.disp_data(0).data_phys_text() + '\n';
        }
        return texts;
    }

private:
    static void Show(const MonitorItem& item, krm_ulong raw, proto::DispData& shown) {
        static constexpr std::array<double, 4> kPowers = {1, 10, 100, 1000};
        std::int64_t number = raw;
        if (item.isSigned && (raw >> (item.bits - 1U) & 1U) != 0) {
            number -= std::int64_t{1} << item.bits;
        }
        const double physical =
            (static_cast<double>(number) * item.mul / item.div + item.offset) / kPowers[item.decimals];
        char text[64];
        switch (item.type) {
            case kStringPattern:
                std::snprintf(text, sizeof text, "%s", kStates[raw]);
                break;
            case kHex:
                std::snprintf(text, sizeof text, "0x%04X", raw);
                break;
            case kTroubleCode:
                std::snprintf(text, sizeof text, "%c%04X", "PCBU"[raw >> 14U & 3U], raw & 0x3FFFU);
                break;
            case kHoursMinutes:
                std::snprintf(text, sizeof text, "%02d:%02d", static_cast<int>(raw / 60), static_cast<int>(raw % 60));
                break;
            case kBits:
                std::snprintf(text, sizeof text, "%d%d%d%d%d%d%d%d", raw >> 7U & 1U, raw >> 6U & 1U, raw >> 5U & 1U,
                              raw >> 4U & 1U, raw >> 3U & 1U, raw >> 2U & 1U, raw >> 1U & 1U, raw & 1U);
                break;
            default:
                std::snprintf(text, sizeof text, "%.*f", item.decimals, physical);
        }
        shown.set_raw_data(raw);
        shown.set_data_phys(physical);
        shown.set_data(physical);
        shown.set_data_phys_text(text);
        shown.set_data_text(text);
        shown.set_disp_data_type(1);
    }

    std::vector<MonitorItem> m_items = MonitorItems();
    std::vector<proto::FFDData> m_prepared;
    proto::GetDataMonitorValueAnswer m_answer;
    std::string m_text;
};

/// Counts for each thread by itself, so that threads share nothing.
struct SinkOfThreads {
    krm_long Write(std::string_view line, int, int) {
        thread_local std::size_t bytes = 0;
        bytes += line.size();
        benchmark::DoNotOptimize(bytes);
        return 0;
    }
};

/// Runs one of the two, once both show the same. Of several threads each has a monitor of its own, and all have one log.
template <class Side>
void RunTicks(benchmark::State& state) {
    static SinkOfThreads sink;
    if (state.thread_index() == 0) {
        KRMC_ER_SetOperationLogSink(&WriteToSink<SinkOfThreads>, &sink);
    }
    Side monitor;
    unsigned tick = 0;
    for (auto _ : state) {
        monitor.Tick(tick++);
    }
    state.SetItemsProcessed(state.iterations());
    if (state.thread_index() == 0) {
        KRMC_ER_SetOperationLogSink(nullptr, nullptr);
    }
}

/// The first tick at which the two show something else, as a text; empty where there is none.
std::string Difference() {
    SinkOfThreads sink;
    const ScopedLogSink scope(sink);
    Monitor monitor;
    PeerMonitor peer;
    for (unsigned tick = 0; tick < 256; ++tick) {
        monitor.Tick(tick);
        peer.Tick(tick);
        const std::string ours = monitor.Texts();
        const std::string theirs = peer.Texts();
        if (ours != theirs) {
            std::size_t at = 0;
            while (ours[at] == theirs[at]) {
                ++at;
            }
            return "at tick " + std::to_string(tick) + " the peer shows " + theirs.substr(at, 20) + ", not " +
                   ours.substr(at, 20);
        }
    }
    return {};
}

template <class Side>
void CheckedTicks(benchmark::State& state) {
    static const std::string difference = Difference();
    if (!difference.empty()) {
        state.SkipWithError(difference.c_str());
        return;
    }
    RunTicks<Side>(state);
}

}  // namespace

void RegisterTick() {
    constexpr double kGoal = 0.4;
    Compare("monitor tick: 200 values converted, answered and logged", CheckedTicks<Monitor>,
            {{"protobuf, snprintf and TextFormat", CheckedTicks<PeerMonitor>, kGoal}});
    Spread("monitor ticks, this library", RunTicks<Monitor>);
    Spread("monitor ticks, protobuf, snprintf and TextFormat", RunTicks<PeerMonitor>);
}

}  // namespace krm::bench
