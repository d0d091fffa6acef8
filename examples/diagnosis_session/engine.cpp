#include "engine.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>

#include "krm/convert/converter.h"

namespace diagnosis_session {
namespace {

// Conversion types, as CreateConverter takes them.
constexpr unsigned char kConvertNumber = 0;
constexpr unsigned char kConvertStringPattern = 1;

// The engine's codes for fields whose meaning the library leaves to it.
constexpr unsigned char kBigEndian = 1;
constexpr unsigned char kTwosComplement = 1;  // this one is the converters'
constexpr unsigned short kOnlyGroup = 1;
constexpr unsigned short kOnlyBus = 1;
constexpr unsigned short kEcuAnswers = 1;

constexpr std::size_t kVinLength = 17;

/// Gives a converter back to the library that made it.
struct DeleteConverter {
    void operator()(CKRMCCommandConvSignalData* converter) const {
        CKRMCCommandConvSignalData::DeleteConverter(converter);
    }
};
using Converter = std::unique_ptr<CKRMCCommandConvSignalData, DeleteConverter>;

std::string ReasonText(std::uint8_t reason) {
    switch (reason) {
        case 0x10:
            return "general reject";
        case 0x11:
            return "service not supported";
        case 0x12:
            return "sub-function not supported";
        case 0x13:
            return "incorrect message length or format";
        case 0x21:
            return "busy, repeat request";
        case 0x22:
            return "conditions not correct";
        case 0x31:
            return "request out of range";
        case 0x33:
            return "security access denied";
        default:
            return "reason not known here";
    }
}

std::uint32_t NumberOf(std::span<const std::uint8_t> bytes) {
    std::uint32_t number = 0;
    for (const std::uint8_t byte : bytes) {
        number = number << 8U | byte;
    }
    return number;
}

/// The bits of an item, right-aligned. The item lies within the data and has at most 32 bits, so at most 5 bytes.
std::uint32_t CutOut(const Item& item, std::span<const std::uint8_t> data) {
    std::uint64_t window = 0;
    for (std::size_t byte = item.bit / 8; byte * 8 < item.EndBit(); ++byte) {
        window = window << 8U | data[byte];
    }
    const std::size_t behind = (8 - item.EndBit() % 8) % 8;
    const std::uint64_t mask = (std::uint64_t{1} << item.length) - 1;
    return static_cast<std::uint32_t>(window >> behind & mask);
}

/// "P0301" of 0x0301: two bits name the system, two more the first digit.
std::string TroubleCodeName(std::uint32_t code) {
    const std::uint8_t low[] = {static_cast<std::uint8_t>(code >> 8U & 0x3FU), static_cast<std::uint8_t>(code)};
    return "PCBU"[code >> 14U & 3U] + HexOf(low);
}

const char* PhaseName(unsigned char phase) {
    switch (static_cast<DtcPhase>(phase)) {
        case DtcPhase::Stored:
            return "stored";
        case DtcPhase::Pending:
            return "pending";
        case DtcPhase::Permanent:
            return "permanent";
    }
    return "unknown";
}

/// PIDs 00, 20, 40 ... of services 01 and 02 answer with four bytes of which PIDs behind them the ECU supports.
bool IsSupportMask(std::uint8_t service, std::span<const std::uint8_t> key) {
    return (service == 0x01 || service == 0x02) && !key.empty() && key[0] % 0x20 == 0;
}
constexpr std::size_t kSupportMaskLength = 4;

/// The parameter IDs that a request names, each as many bytes as the answer repeats of it.
std::vector<Bytes> KeysOf(const Bytes& request) {
    std::size_t length = request.size() - 1;
    switch (request[0]) {
        case 0x01:
            length = 1;
            break;
        case 0x02:  // a PID and the number of the freeze frame
        case 0x22:
            length = 2;
            break;
        default:
            break;
    }
    std::vector<Bytes> keys;
    if (length == 0) {
        return keys;
    }
    for (std::size_t at = 1; at + length <= request.size(); at += length) {
        const auto begin = request.begin() + static_cast<std::ptrdiff_t>(at);
        keys.emplace_back(begin, begin + static_cast<std::ptrdiff_t>(length));
    }
    return keys;
}

/// The ID as a number: without the frame number that service 02 has behind it.
std::uint32_t PidOf(std::uint8_t service, std::span<const std::uint8_t> key) {
    return NumberOf(service == 0x02 ? key.first(1) : key);
}

/// Describes an item: names, unit, scaling, limits, patterns and where its value lies. No value yet.
CKRMCCommandFFDData DescribeItem(const Item& item, std::uint32_t pid, std::size_t dataLength) {
    CKRMCCommandFFDData record;
    record.m_ushId = item.number;
    record.m_strName = item.name.c_str();
    record.m_strFFDText = item.id.c_str();
    record.m_strUnitPhys = item.unit.c_str();
    record.m_strUnit = item.unit.c_str();
    record.m_uchDataType = item.hasMap ? kConvertStringPattern : kConvertNumber;
    record.m_uchDecPntCount = item.scaling.decimals;
    record.m_uchUnitConvDecPntCount = item.hasMap ? item.scaling.decimals : kShownDecimals;

    // The conversion rule. A fresh record multiplies by 0, so multiplier and divisor are always set.
    CKRMCCommandConversionData& rule = record.m_cConversionTbl;
    rule.m_lMul = item.scaling.mul;
    rule.m_lDiv = item.scaling.div;
    rule.m_lOffset = item.scaling.offset;
    rule.m_uchSigned = item.isSigned ? kTwosComplement : 0;
    rule.m_ushBitLength = static_cast<unsigned short>(item.length);
    for (const auto& [raw, text] : item.map) {
        CKRMCCommandDispData pattern;
        pattern.m_ulRawData = raw;
        pattern.m_strDataPhys = text.c_str();
        rule.m_cPatternDispList.AddTail(pattern);
    }

    // Where the value lies. The mask applies to the bytes as one number; of five bytes it can show the lower four only.
    CKRMCCommandDataLayout& layout = record.m_cDataLayout;
    const std::size_t firstByte = item.bit / 8;
    const std::size_t endByte = (item.EndBit() + 7) / 8;
    layout.m_ulPidNo = pid;
    layout.m_ulDataLen = static_cast<krm_ulong>(dataLength);
    layout.m_uchEndian = kBigEndian;
    layout.m_ulByteNum = static_cast<krm_ulong>(endByte - firstByte);
    layout.m_ulBytePos = static_cast<krm_ulong>(firstByte);
    layout.m_ulBitMask =
        static_cast<krm_ulong>(((std::uint64_t{1} << item.length) - 1) << (endByte * 8 - item.EndBit()) & 0xFFFFFFFFU);
    return record;
}

/// Fills `display` from a raw value by the rule of `record`. This is what every value goes through.
void Convert(CKRMCCommandConvSignalData& converter, CKRMCCommandFFDData& record, krm_ulong raw, krm_long offset,
             CKRMCCommandDispData& display) {
    CKRMCCommandConversionData& rule = record.m_cConversionTbl;
    const krm_ulong rawMax = rule.m_cDataMax.m_ulRawData;
    const krm_ulong rawMin = rule.m_cDataMin.m_ulRawData;
    converter.ConvCommandDispData(&display, raw, rule.m_uchSigned, rule.m_ushBitLength, rule.m_lMul, rule.m_lDiv,
                                  offset, record.m_uchDecPntCount, rawMax, rawMin, &rule.m_cPatternDispList,
                                  &rule.m_strDefaultPattern, 0);
    if (record.m_uchDecPntCount != record.m_uchUnitConvDecPntCount) {
        // The scaling needed other decimals than are shown: the physical value once more as text, with those.
        converter.StringConversion(&display.m_strDataPhys, &display.m_ulDataStringId, display.m_dDataPhys, raw,
                                   rule.m_uchSigned, rule.m_ushBitLength, record.m_uchUnitConvDecPntCount, rawMax,
                                   rawMin, &rule.m_cPatternDispList, &rule.m_strDefaultPattern, 0);
    }
    // There is no second unit system here: what is displayed is the physical value.
    display.m_dData = display.m_dDataPhys;
    display.m_strData = display.m_strDataPhys;
}

/// The raw value of a limit that the table gives as a physical value; what the bits can hold where it gives none.
krm_ulong RawLimit(CKRMCCommandConvSignalData& converter, const CKRMCCommandFFDData& record,
                   std::optional<double> physical, krm_ulong otherwise) {
    const CKRMCCommandConversionData& rule = record.m_cConversionTbl;
    if (!physical || rule.m_lMul == 0) {
        return otherwise;
    }
    krm_ulong raw = 0;
    converter.ConvLogicalValue(&raw, *physical, rule.m_uchSigned, rule.m_ushBitLength, rule.m_lMul, rule.m_lDiv,
                               rule.m_lOffset, record.m_uchDecPntCount, *physical, *physical);
    // A negative raw value comes sign-extended to 32 bits.
    return raw & (0xFFFFFFFFU >> (32U - rule.m_ushBitLength));
}

/// Fills what of an item needs its converter but no value: limits and resolution.
void FillLimits(CKRMCCommandConvSignalData& converter, const Item& item, CKRMCCommandFFDData& record) {
    CKRMCCommandConversionData& rule = record.m_cConversionTbl;
    const krm_ulong all = 0xFFFFFFFFU >> (32U - rule.m_ushBitLength);
    const krm_ulong largest = item.isSigned ? all >> 1U : all;
    const krm_ulong smallest = item.isSigned ? largest + 1U : 0U;
    Convert(converter, record, RawLimit(converter, record, item.max, largest), rule.m_lOffset, rule.m_cDataMax);
    Convert(converter, record, RawLimit(converter, record, item.min, smallest), rule.m_lOffset, rule.m_cDataMin);
    rule.m_cGraphMax = rule.m_cDataMax;
    rule.m_cGraphMin = rule.m_cDataMin;
    if (!item.hasMap) {
        // One raw step: the scaling of 1 without the offset.
        Convert(converter, record, 1, 0, record.m_cResolutionData);
    }
}

}  // namespace

DiagnosisEngine::DiagnosisEngine(const ItemTable& table, const std::vector<Exchange>& recording, Complain complain)
    : m_table(table), m_recording(recording), m_complain(std::move(complain)) {}

void DiagnosisEngine::Hear(const Exchange& exchange, const EcuAnswer& answer) {
    m_exchange = &exchange;
    m_answer = &answer;
}

void DiagnosisEngine::EndExchange(const Exchange& exchange) {
    const bool someAnswered = std::any_of(exchange.answers.begin(), exchange.answers.end(),
                                          [](const EcuAnswer& answer) { return !answer.IsNegative(); });
    const std::vector<Bytes> keys = KeysOf(exchange.request);
    if (someAnswered && keys.size() > 1) {
        for (const Bytes& key : keys) {
            if (!m_answeredKeys.contains(key)) {
                m_complain(exchange.line,
                           "request " + HexOf(exchange.request) + " has no answer for parameter " + HexOf(key));
            }
        }
    }
    m_answeredKeys.clear();
    m_told.clear();
    m_exchange = nullptr;
    m_answer = nullptr;
}

/// Whether the ECU refused what was asked, which then is told and noted in the message.
bool DiagnosisEngine::Refused(CKRMCBaseCmdAdaptDataRcv& answer) {
    if (!m_answer->IsNegative()) {
        return false;
    }
    const std::string who = HexOfId(m_answer->ecu) + " refuses request " + HexOf(m_exchange->request);
    if (m_answer->bytes.size() < 3) {
        m_complain(m_answer->line, who + " without a reason");
        return true;
    }
    const std::uint8_t reason = m_answer->bytes[2];
    m_complain(m_answer->line, who + ": " + HexOf(std::span(&reason, 1)) + ", " + ReasonText(reason));
    answer.m_bNotSupport = reason == 0x11 || reason == 0x12 || reason == 0x31;
    return true;
}

void DiagnosisEngine::Answer(const CKRMCGetGroupEcuListCmdAdaptDataSnd&, CKRMCGetGroupEcuListCmdAdaptDataRcv& answer) {
    std::set<std::uint32_t> ecus;
    for (const Exchange& exchange : m_recording) {
        for (const EcuAnswer& said : exchange.answers) {
            ecus.insert(said.ecu);
        }
    }
    CKRMCCommandEcuGroupData group;
    group.m_ushGroupId = kOnlyGroup;
    group.m_strGroupName = "On-board diagnostics";
    for (const std::uint32_t ecu : ecus) {
        CKRMCCommandEcuData record;
        record.m_ushEcuConnectionStatus = kEcuAnswers;
        record.m_ulEcuId = ecu;
        record.m_ushBusId = kOnlyBus;
        record.m_strEcuName = ("ECU answering as " + HexOfId(ecu)).c_str();
        record.m_strEcuShortName = HexOfId(ecu).c_str();
        group.m_cEcuList.AddTail(record);
    }
    answer.Data.AddTail(group);
}

void DiagnosisEngine::Answer(const CKRMCEcuConnectCmdAdaptDataSnd& request, CKRMCEcuConnectCmdAdaptDataRcv& answer) {
    answer.m_ulEcuId = request.m_ulEcuId;
    answer.m_ushBusId = request.m_ushBusId;
    for (const Exchange& exchange : m_recording) {
        for (const EcuAnswer& said : exchange.answers) {
            answer.m_bConnect = answer.m_bConnect || said.ecu == request.m_ulEcuId;
        }
    }
    answer.m_strDescription = answer.m_bConnect ? "the ECU answers" : "no answer from this ECU";
}

void DiagnosisEngine::Answer(const CKRMCGetVinCodeCmdAdaptDataSnd&, CKRMCGetVinCodeCmdAdaptDataRcv& answer) {
    if (Refused(answer)) {
        return;
    }
    // 49 02, the number of data items, the VIN; what is shorter than 17 characters has zeros before it.
    std::string vin;
    for (std::size_t i = 3; i < m_answer->bytes.size(); ++i) {
        if (!vin.empty() || m_answer->bytes[i] != 0) {
            vin += static_cast<char>(m_answer->bytes[i]);
        }
    }
    const bool clean =
        std::all_of(vin.begin(), vin.end(), [](char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z'); });
    if (vin.size() != kVinLength || !clean) {
        m_complain(m_answer->line,
                   HexOfId(m_answer->ecu) + " gives a vehicle identification number that is not 17 letters and digits");
        return;
    }
    answer.m_strVinCode = vin.c_str();
}

void DiagnosisEngine::Answer(const CKRMCGetDTCCmdAdaptDataSnd& request, CKRMCGetDTCCmdAdaptDataRcv& answer) {
    if (Refused(answer)) {
        return;
    }
    const std::string who = HexOfId(m_answer->ecu) + " answers request " + HexOf(m_exchange->request);
    const std::span<const std::uint8_t> bytes(m_answer->bytes);
    if (bytes.size() < 2) {
        m_complain(m_answer->line, who + " without the number of trouble codes");
        return;
    }
    // The number of codes, then two bytes for each.
    const std::size_t announced = bytes[1];
    const std::span<const std::uint8_t> codes = bytes.subspan(2);
    if (codes.size() != announced * 2) {
        m_complain(m_answer->line, who + " with " + std::to_string(codes.size()) + " bytes for " +
                                       std::to_string(announced) + " trouble codes");
    }
    for (std::size_t i = 0; i < announced && i * 2 + 1 < codes.size(); ++i) {
        CKRMCCommandDTCData record;
        record.m_ulDTCCode = NumberOf(codes.subspan(i * 2, 2));
        const std::string name = TroubleCodeName(record.m_ulDTCCode);
        record.m_strDTC = name.c_str();
        record.m_strDTCName = m_table.TroubleCodeText(name).c_str();
        record.m_uchDTCType = request.m_uchPhaseType;
        record.m_strDTCTypeName = PhaseName(request.m_uchPhaseType);
        answer.Data.AddTail(record);
    }
    answer.m_bDTCType = true;
}

void DiagnosisEngine::Answer(const CKRMCClearDTCCmdAdaptDataSnd&, CKRMCClearDTCCmdAdaptDataRcv& answer) {
    if (Refused(answer)) {
        // The reason for which the ECU refused; 0 is success.
        answer.m_ulResult = m_answer->bytes.size() < 3 ? 0x10U : m_answer->bytes[2];
    }
}

void DiagnosisEngine::Answer(const CKRMCGetFFDCmdAdaptDataSnd&, CKRMCGetFFDCmdAdaptDataRcv& answer) {
    if (Refused(answer)) {
        return;
    }
    // What is wrong with the request itself is told once, however many ECUs answer it.
    const Complain once = [this](std::size_t line, const std::string& what) {
        if (m_told.insert({line, what}).second) {
            m_complain(line, what);
        }
    };
    bool anyKnown = false;
    for (const Parameter& parameter : Split(*m_exchange, *m_answer, once)) {
        m_answeredKeys.insert(parameter.key);
        anyKnown = anyKnown || parameter.command != nullptr || IsSupportMask(m_exchange->Service(), parameter.key);
        FillItems(*m_exchange, *m_answer, parameter, answer.Data, once);
    }
    answer.m_bNotSupport = !anyKnown;
}

void DiagnosisEngine::Answer(const CKRMCGetDataMonitorListCmdAdaptDataSnd& request,
                             CKRMCGetDataMonitorListCmdAdaptDataRcv& answer) {
    // Which live values are there? The ECU says so itself with its support masks. Where the recording has none, what
    // it answers elsewhere in the recording shows it.
    std::set<std::uint32_t> answered;
    std::map<std::uint32_t, std::uint32_t> masks;  // by the PID that asked for it
    for (const Exchange& exchange : m_recording) {
        if (exchange.Service() != 0x01) {
            continue;
        }
        for (const EcuAnswer& said : exchange.answers) {
            if (said.ecu != request.m_ulEcuId || said.IsNegative()) {
                continue;
            }
            for (const Parameter& parameter : Split(exchange, said, [](std::size_t, const std::string&) {})) {
                const std::uint32_t pid = NumberOf(parameter.key);
                answered.insert(pid);
                if (IsSupportMask(0x01, parameter.key) && parameter.data.size() >= kSupportMaskLength) {
                    masks[pid] = NumberOf(parameter.data.first(kSupportMaskLength));
                }
            }
        }
    }
    // The support data: the masks of PID 00, 20, ... one behind the other, as far as the ECU gave them without a gap.
    for (const auto& [pid, mask] : masks) {
        if (pid / 0x20U * kSupportMaskLength != static_cast<std::size_t>(answer.m_uchA8SupportData.GetCount())) {
            break;
        }
        for (const unsigned shift : {24U, 16U, 8U, 0U}) {
            answer.m_uchA8SupportData.AddTail(static_cast<unsigned char>(mask >> shift & 0xFFU));
        }
    }
    const auto isSupported = [&](std::uint32_t pid) {
        // The first bit of the mask stands for the PID after the mask's own.
        const auto mask = masks.find((pid - 1U) / 0x20U * 0x20U);
        return answered.contains(pid) ||
               (mask != masks.end() && (mask->second >> (0x1FU - (pid - 1U) % 0x20U) & 1U) != 0);
    };

    std::set<std::uint32_t> listed;
    for (const ItemCommand& command : m_table.Commands()) {
        if (command.request.size() != 2 || command.request[0] != 0x01 ||
            m_table.Find(command.request, request.m_ulEcuId) != &command) {
            continue;
        }
        const std::uint32_t pid = command.request[1];
        if (pid % 0x20U == 0 || !isSupported(pid)) {
            continue;
        }
        for (const Item& item : command.items) {
            const Converter converter(
                CKRMCCommandConvSignalData::CreateConverter(item.hasMap ? kConvertStringPattern : kConvertNumber));
            CKRMCCommandFFDData record = DescribeItem(item, pid, command.DataLength());
            FillLimits(*converter, item, record);
            answer.Data.AddTail(record);
        }
    }
    answer.m_bNotSupport = answer.Data.GetCount() == 0;
}

void DiagnosisEngine::Answer(const CKRMCStartDataMonitorCmdAdaptDataSnd& request,
                             CKRMCStartDataMonitorCmdAdaptDataRcv& answer) {
    for (const CKRMCCommandStartDataMonitorData& wanted : request.Data) {
        Monitor monitor;
        monitor.ecu = wanted.m_ulEcuId;
        for (const unsigned short pid : wanted.m_cPidIdList) {
            monitor.pids.insert(pid);
        }
        m_monitors[wanted.m_ushDataMonitorId] = monitor;

        CKRMCCommandDataMonitorIdData started;
        started.m_ushDataMonitorId = wanted.m_ushDataMonitorId;
        started.m_ulEcuId = wanted.m_ulEcuId;
        answer.Data.AddTail(started);
    }
    answer.m_bDataMonitorEnable = answer.Data.GetCount() != 0;
}

void DiagnosisEngine::Answer(const CKRMCGetDataMonitorValueCmdAdaptDataSnd& request,
                             CKRMCGetDataMonitorValueCmdAdaptDataRcv& answer) {
    const auto found = m_monitors.find(request.m_ushDataMonitorId);
    if (found == m_monitors.end()) {
        answer.m_bNotSupport = true;
        return;
    }
    // What is wrong with an answer was told when the session read it; here its good values count.
    const Complain quiet = [](std::size_t, const std::string&) {};
    Monitor& monitor = found->second;
    while (answer.Data.GetCount() == 0 && monitor.next < m_recording.size()) {
        const Exchange& exchange = m_recording[monitor.next++];
        if (exchange.Service() != 0x01) {
            continue;
        }
        for (const EcuAnswer& said : exchange.answers) {
            if (said.ecu != monitor.ecu || said.IsNegative()) {
                continue;
            }
            for (const Parameter& parameter : Split(exchange, said, quiet)) {
                if (monitor.pids.contains(NumberOf(parameter.key))) {
                    FillItems(exchange, said, parameter, answer.Data, quiet);
                }
            }
        }
    }
}

/// Cuts an answer into its parameters. With several in one answer, the table tells how long each one's data is; the last
/// takes what is left.
std::vector<DiagnosisEngine::Parameter> DiagnosisEngine::Split(const Exchange& exchange, const EcuAnswer& answer,
                                                               const Complain& complain) const {
    const std::uint8_t service = exchange.Service();
    std::vector<Bytes> keys = KeysOf(exchange.request);
    std::vector<Parameter> parameters;
    if (keys.empty()) {
        TellUnknown(exchange, {}, false, complain);
        return parameters;
    }
    const std::size_t keyLength = keys.front().size();
    std::span<const std::uint8_t> rest = std::span(answer.bytes).subspan(1);
    while (!rest.empty()) {
        const auto key = std::find_if(keys.begin(), keys.end(), [&](const Bytes& wanted) {
            return rest.size() >= keyLength && std::equal(wanted.begin(), wanted.end(), rest.begin());
        });
        if (key == keys.end()) {
            complain(answer.line, HexOfId(answer.ecu) + " answers request " + HexOf(exchange.request) + " with " +
                                      HexOf(rest) + " where a parameter asked for is due");
            break;
        }
        rest = rest.subspan(keyLength);
        Parameter parameter{*key, rest, FindCommand(service, *key, answer.ecu)};
        keys.erase(key);
        if (parameter.command == nullptr && !IsSupportMask(service, parameter.key)) {
            // Without its length, nothing behind it can be told apart.
            TellUnknown(exchange, parameter.key, !keys.empty(), complain);
            parameters.push_back(parameter);
            for (const Bytes& hidden : keys) {
                parameters.push_back({hidden, {}, nullptr});
            }
            break;
        }
        if (!keys.empty()) {
            const std::size_t length =
                parameter.command != nullptr ? parameter.command->DataLength() : kSupportMaskLength;
            parameter.data = rest.first(std::min(length, rest.size()));
        }
        rest = rest.subspan(parameter.data.size());
        parameters.push_back(parameter);
    }
    return parameters;
}

const ItemCommand* DiagnosisEngine::FindCommand(std::uint8_t service, std::span<const std::uint8_t> key,
                                                std::uint32_t ecu) const {
    const auto find = [&](std::uint8_t tableService, std::span<const std::uint8_t> parameter) {
        Bytes request{tableService};
        request.insert(request.end(), parameter.begin(), parameter.end());
        return m_table.Find(request, ecu);
    };
    if (service != 0x02) {
        return find(service, key);
    }
    // A freeze frame holds the parameters of service 01, unless the table says otherwise.
    const ItemCommand* const own = find(0x02, key.first(1));
    return own != nullptr ? own : find(0x01, key.first(1));
}

void DiagnosisEngine::FillItems(const Exchange& exchange, const EcuAnswer& answer, const Parameter& parameter,
                                CKRMList<CKRMCCommandFFDData>& items, const Complain& complain) const {
    if (parameter.command == nullptr) {
        return;
    }
    const std::string where = " of " + HexOfId(answer.ecu) + "'s answer to request " + HexOf(exchange.request);
    const std::size_t bits = parameter.data.size() * 8;
    const std::vector<Item>& wanted = parameter.command->items;
    if (!wanted.empty() &&
        std::all_of(wanted.begin(), wanted.end(), [&](const Item& item) { return item.bit >= bits; })) {
        complain(answer.line, "the data" + where +
                                  " is too short for any item: " + std::to_string(parameter.data.size()) + " bytes");
        return;
    }
    for (const Item& item : wanted) {
        // Step 1: what the item is.
        const Converter converter(
            CKRMCCommandConvSignalData::CreateConverter(item.hasMap ? kConvertStringPattern : kConvertNumber));
        CKRMCCommandFFDData record =
            DescribeItem(item, PidOf(exchange.Service(), parameter.key), parameter.data.size());
        FillLimits(*converter, item, record);
        if (item.EndBit() > bits && item.bit < bits) {
            complain(answer.line, "the data" + where + " ends within item " + item.id);
            continue;
        }
        // Step 2: its value. An ECU may leave out the last items of a parameter; such an item has no display value.
        if (item.EndBit() <= bits) {
            CKRMCCommandDispData display;
            Convert(*converter, record, CutOut(item, parameter.data), record.m_cConversionTbl.m_lOffset, display);
            record.m_cDispDataList.AddTail(display);
        }
        // Step 3: into the message.
        items.AddTail(record);
    }
}

/// A file that isn't a table at all was told before: then nothing is known, and no request is told.
void DiagnosisEngine::TellUnknown(const Exchange& exchange, const Bytes& key, bool hidesMore,
                                  const Complain& complain) const {
    if (!m_table.IsUsable()) {
        return;
    }
    const bool several = KeysOf(exchange.request).size() > 1;
    complain(exchange.line, "request " + HexOf(exchange.request) + " is unknown: the item table has nothing for " +
                                (several ? "parameter " + HexOf(key) : std::string("it")) +
                                (hidesMore ? ", nor its length, so what follows it is left out" : ""));
}

}  // namespace diagnosis_session
