#include "engine.h"

#include <algorithm>
#include <cmath>

#include "krm/convert/converter.h"

namespace diagnosis_session {

/// Gives a converter back to the library that made it.
struct DeleteConverter {
    void operator()(CKRMCCommandConvSignalData* converter) const {
        CKRMCCommandConvSignalData::DeleteConverter(converter);
    }
};
using Converter = std::unique_ptr<CKRMCCommandConvSignalData, DeleteConverter>;

namespace {

// Conversion types, as CreateConverter takes them.
constexpr unsigned char kConvertNumber = 0;
constexpr unsigned char kConvertStringPattern = 1;
constexpr unsigned char kConvertHex = 3;
constexpr unsigned char kConvertTroubleCode = 5;

// The engine's codes for fields whose meaning the library leaves to it.
constexpr unsigned char kBigEndian = 1;
constexpr unsigned char kTwosComplement = 1;  // this one is the converters'
constexpr unsigned short kOnlyGroup = 1;
constexpr unsigned short kOnlyBus = 1;
constexpr unsigned short kEcuAnswers = 1;

constexpr std::size_t kVinLength = 17;

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

/// The parameter IDs that a request names, each as many bytes as the answer repeats of it. They lie in the request.
std::vector<std::span<const std::uint8_t>> KeysOf(const Bytes& request) {
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
    std::vector<std::span<const std::uint8_t>> keys;
    if (length == 0) {
        return keys;
    }
    for (std::size_t at = 1; at + length <= request.size(); at += length) {
        keys.push_back(std::span(request).subspan(at, length));
    }
    return keys;
}

/// The ID as a number: without the frame number that service 02 has behind it.
std::uint32_t PidOf(std::uint8_t service, std::span<const std::uint8_t> key) {
    return NumberOf(service == 0x02 ? key.first(1) : key);
}

/// Whether the item is a trouble code: by its unit, or because it is the one that stored a freeze frame, PID 02.
bool IsTroubleCode(const Item& item, const Bytes& request) {
    const bool storedFrame =
        request.size() == 2 && (request[0] == 0x01 || request[0] == 0x02) && request[1] == 0x02 && item.length == 16;
    return !item.hasMap && (item.unit == "dtc" || (storedFrame && item.unit == "hex"));
}

void AddPattern(CKRMCCommandConversionData& rule, krm_ulong raw, const char* text) {
    CKRMCCommandDispData pattern;
    pattern.m_ulRawData = raw;
    pattern.m_strDataPhys = text;
    rule.m_cPatternDispList.AddTail(pattern);
}

Converter MakeConverter(unsigned char type) {
    return Converter(CKRMCCommandConvSignalData::CreateConverter(type));
}

}  // namespace

/// An item made ready to take values: what every record of it has in common, and its converters.
struct DiagnosisEngine::Prepared {
    CKRMCCommandFFDData record;  ///< with one display value, still empty
    Converter physical;          ///< raw value to physical value and its text
    Converter display;           ///< to the text that is shown
    ShownUnit unit;
    DisplayKind kind = DisplayKind::Number;
    bool isMap = false;  ///< the table's own words, which are the physical value's text too

    void Describe(const Item& item, const Bytes& request, const UnitSettings& units);
    void Convert(krm_ulong raw, krm_long offset, CKRMCCommandDispData& shown) const;

private:
    krm_ulong RawLimit(std::optional<double> limit, krm_ulong otherwise) const;
    void FillLimits(const Item& item);

    /// The library's interface takes patterns and default text as pointers to what may change; it changes nothing.
    CKRMCCommandConversionData& Rule() const {
        return const_cast<CKRMCCommandConversionData&>(record.m_cConversionTbl);
    }
};

/// Names, unit, scaling, limits, patterns and where its value lies.
void DiagnosisEngine::Prepared::Describe(const Item& item, const Bytes& request, const UnitSettings& units) {
    const States* const states = item.hasMap ? nullptr : FindStates(item.unit);
    isMap = item.hasMap;
    unit = units.For(item.unit);
    record.m_ushId = item.number;
    record.m_strName = item.name.c_str();
    record.m_strFFDText = item.id.c_str();
    record.m_strUnitPhys = item.unit.c_str();
    record.m_strUnit = unit.name.c_str();
    record.m_uchDecPntCount = item.scaling.decimals;
    record.m_uchUnitConvDecPntCount =
        static_cast<unsigned char>(item.hasMap ? 0 : std::min(item.decimals + unit.moreDecimals, +kShownDecimals));
    if (item.hasMap || states != nullptr) {
        kind = DisplayKind::Words;
        record.m_uchDataType = kConvertStringPattern;
    } else if (IsTroubleCode(item, request)) {
        kind = DisplayKind::TroubleCode;
        record.m_uchDataType = kConvertTroubleCode;
    } else {
        record.m_uchDataType = item.unit == "hex" ? kConvertHex : kConvertNumber;
    }
    physical = MakeConverter(item.hasMap ? kConvertStringPattern : kConvertNumber);
    display = MakeConverter(record.m_uchDataType);

    // The conversion rule. A fresh record multiplies by 0, so multiplier and divisor are always set.
    CKRMCCommandConversionData& rule = record.m_cConversionTbl;
    rule.m_lMul = item.scaling.mul;
    rule.m_lDiv = item.scaling.div;
    rule.m_lOffset = item.scaling.offset;
    rule.m_ushGenreId = static_cast<unsigned short>(UnitSettings::GenreOf(item.unit));
    rule.m_uchSigned = item.isSigned ? kTwosComplement : 0;
    rule.m_ushBitLength = static_cast<unsigned short>(item.length);
    for (const auto& [raw, text] : item.map) {
        AddPattern(rule, raw, text.c_str());
    }
    if (states != nullptr) {
        AddPattern(rule, 0, states->off);
        AddPattern(rule, 1, states->on);
    }

    // Where the value lies. The mask applies to the bytes as one number; of five bytes it can show the lower four only.
    CKRMCCommandDataLayout& layout = record.m_cDataLayout;
    const std::size_t firstByte = item.bit / 8;
    const std::size_t endByte = (item.EndBit() + 7) / 8;
    layout.m_uchEndian = kBigEndian;
    layout.m_ulByteNum = static_cast<krm_ulong>(endByte - firstByte);
    layout.m_ulBytePos = static_cast<krm_ulong>(firstByte);
    layout.m_ulBitMask =
        static_cast<krm_ulong>(((std::uint64_t{1} << item.length) - 1) << (endByte * 8 - item.EndBit()) & 0xFFFFFFFFU);

    FillLimits(item);
    record.m_cDispDataList.AddTail(CKRMCCommandDispData());
}

/// Fills `shown` from a raw value: first the physical value, then how it is displayed. Every value goes through this.
void DiagnosisEngine::Prepared::Convert(krm_ulong raw, krm_long offset, CKRMCCommandDispData& shown) const {
    CKRMCCommandConversionData& rule = Rule();
    const krm_ulong rawMax = rule.m_cDataMax.m_ulRawData;
    const krm_ulong rawMin = rule.m_cDataMin.m_ulRawData;
    physical->ConvCommandDispData(&shown, raw, rule.m_uchSigned, rule.m_ushBitLength, rule.m_lMul, rule.m_lDiv, offset,
                                  record.m_uchDecPntCount, rawMax, rawMin, &rule.m_cPatternDispList,
                                  &rule.m_strDefaultPattern, 0);
    if (record.m_uchDecPntCount != kShownDecimals && !isMap) {
        // The scaling needed other decimals than a physical value is written with: its text once more, with those.
        physical->StringConversion(&shown.m_strDataPhys, &shown.m_ulDataStringId, shown.m_dDataPhys, raw,
                                   rule.m_uchSigned, rule.m_ushBitLength, kShownDecimals, rawMax, rawMin,
                                   &rule.m_cPatternDispList, &rule.m_strDefaultPattern, 0);
    }
    shown.m_ulDispDataType = static_cast<krm_ulong>(kind);
    shown.m_dData = shown.m_dDataPhys * unit.factor + unit.offset;
    display->StringConversion(&shown.m_strData, &shown.m_ulDataStringId, shown.m_dData, raw, rule.m_uchSigned,
                              rule.m_ushBitLength, record.m_uchUnitConvDecPntCount, rawMax, rawMin,
                              &rule.m_cPatternDispList, &rule.m_strDefaultPattern, 0);
    if (kind == DisplayKind::TroubleCode && raw == 0) {
        shown.m_strData = "none";  // no code has the number 0
    }
}

/// The raw value of a limit that the table gives as a physical value; what the bits can hold where it gives none.
krm_ulong DiagnosisEngine::Prepared::RawLimit(std::optional<double> limit, krm_ulong otherwise) const {
    const CKRMCCommandConversionData& rule = record.m_cConversionTbl;
    if (!limit || rule.m_lMul == 0) {
        return otherwise;
    }
    krm_ulong raw = 0;
    physical->ConvLogicalValue(&raw, *limit, rule.m_uchSigned, rule.m_ushBitLength, rule.m_lMul, rule.m_lDiv,
                               rule.m_lOffset, record.m_uchDecPntCount, *limit, *limit);
    // A negative raw value comes sign-extended to 32 bits.
    return raw & (0xFFFFFFFFU >> (32U - rule.m_ushBitLength));
}

/// What of an item needs its converters but no value: limits and resolution.
void DiagnosisEngine::Prepared::FillLimits(const Item& item) {
    CKRMCCommandConversionData& rule = record.m_cConversionTbl;
    const krm_ulong all = 0xFFFFFFFFU >> (32U - rule.m_ushBitLength);
    const krm_ulong largest = item.isSigned ? all >> 1U : all;
    const krm_ulong smallest = item.isSigned ? largest + 1U : 0U;
    Convert(RawLimit(item.max, largest), rule.m_lOffset, rule.m_cDataMax);
    Convert(RawLimit(item.min, smallest), rule.m_lOffset, rule.m_cDataMin);
    rule.m_cGraphMax = rule.m_cDataMax;
    rule.m_cGraphMin = rule.m_cDataMin;
    if (kind == DisplayKind::Number) {
        // One raw step: the scaling of 1 without the offset.
        Convert(1, 0, record.m_cResolutionData);
    }
}

DiagnosisEngine::DiagnosisEngine(const ItemTable& table, NextExchange next, TotalsUpToNow totals, Complain complain)
    : m_table(table), m_next(std::move(next)), m_totals(std::move(totals)), m_complain(std::move(complain)) {}

DiagnosisEngine::~DiagnosisEngine() = default;

const DiagnosisEngine::Prepared& DiagnosisEngine::Prepare(const Item& item, const Bytes& request) {
    if (m_prepared.size() <= item.number) {
        m_prepared.resize(item.number + std::size_t{1});
    }
    std::unique_ptr<Prepared>& prepared = m_prepared[item.number];
    if (!prepared) {
        prepared = std::make_unique<Prepared>();
        prepared->Describe(item, request, m_units);
    }
    return *prepared;
}

// ---- Messages by their command ----

template <class Request, class Reply>
bool DiagnosisEngine::AnswerAs(CKRMBaseAdaptationData& request, CKRMBaseAdaptationData& answer) {
    const auto* const asked = krm::MessageAs<Request>(&request);
    auto* const reply = krm::MessageAs<Reply>(&answer);
    if (asked == nullptr || reply == nullptr) {
        return false;
    }
    if constexpr (
        requires { m_units.Answer(*asked, *reply); } && !requires { this->Answer(*asked, *reply); }) {
        m_units.Answer(*asked, *reply);
    } else {
        Answer(*asked, *reply);
    }
    return true;
}

void DiagnosisEngine::Answer(CKRMBaseAdaptationData& request, CKRMBaseAdaptationData& answer) {
    static_cast<void>(
        AnswerAs<CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd, CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv>(
            request, answer) ||
        AnswerAs<CKRMCGetDataMonitorValueCmdAdaptDataSnd, CKRMCGetDataMonitorValueCmdAdaptDataRcv>(request, answer) ||
        AnswerAs<CKRMCGetCurrentDataValueCmdAdaptDataSnd, CKRMCGetCurrentDataValueCmdAdaptDataRcv>(request, answer) ||
        AnswerAs<CKRMCGetFFDCmdAdaptDataSnd, CKRMCGetFFDCmdAdaptDataRcv>(request, answer) ||
        AnswerAs<CKRMCGetDTCCmdAdaptDataSnd, CKRMCGetDTCCmdAdaptDataRcv>(request, answer) ||
        AnswerAs<CKRMCClearDTCCmdAdaptDataSnd, CKRMCClearDTCCmdAdaptDataRcv>(request, answer) ||
        AnswerAs<CKRMCGetVinCodeCmdAdaptDataSnd, CKRMCGetVinCodeCmdAdaptDataRcv>(request, answer) ||
        AnswerAs<CKRMCGetGroupEcuListCmdAdaptDataSnd, CKRMCGetGroupEcuListCmdAdaptDataRcv>(request, answer) ||
        AnswerAs<CKRMCEcuConnectCmdAdaptDataSnd, CKRMCEcuConnectCmdAdaptDataRcv>(request, answer) ||
        AnswerAs<CKRMCGetDataMonitorListCmdAdaptDataSnd, CKRMCGetDataMonitorListCmdAdaptDataRcv>(request, answer) ||
        AnswerAs<CKRMCStartDataMonitorCmdAdaptDataSnd, CKRMCStartDataMonitorCmdAdaptDataRcv>(request, answer) ||
        AnswerAs<CKRMCGetUnitConversionInfoListUccAdaptDataSnd, CKRMCGetUnitConversionInfoListUccAdaptDataRcv>(
            request, answer) ||
        AnswerAs<CKRMCGetUnitSettingGroupListUccAdaptDataSnd, CKRMCGetUnitSettingGroupListUccAdaptDataRcv>(request,
                                                                                                           answer) ||
        AnswerAs<CKRMCGetUnitSettingGroupParamListUccAdaptDataSnd, CKRMCGetUnitSettingGroupParamListUccAdaptDataRcv>(
            request, answer) ||
        AnswerAs<CKRMCSetUnitConversionInfoUccAdaptDataSnd, CKRMCSetUnitConversionInfoUccAdaptDataRcv>(request,
                                                                                                       answer));
}

void DiagnosisEngine::Answer(const CKRMCSetUnitConversionInfoUccAdaptDataSnd& request,
                             CKRMCSetUnitConversionInfoUccAdaptDataRcv& answer) {
    m_units.Answer(request, answer);
    m_prepared.clear();  // for the units that held before
}

// ---- What is heard ----

void DiagnosisEngine::Survey(const NextExchange& next, const TotalsUpToNow& totals) {
    while (const std::optional<Exchange> exchange = next()) {
        Learn(*exchange);
    }
    m_surveyed = true;
    m_totalsToTell = totals();
}

void DiagnosisEngine::Learn(const Exchange& exchange) {
    constexpr std::size_t kMostSeen = 1024;
    for (const EcuAnswer& said : exchange.answers) {
        Ecu& ecu = m_ecus[said.ecu];
        if (exchange.Service() != 0x01 || said.IsNegative() || ecu.seen.contains(exchange.request)) {
            continue;
        }
        if (ecu.seen.size() < kMostSeen) {
            ecu.seen.insert(exchange.request);
        }
        for (const Parameter& parameter : Split(exchange, said, [](const Place&, const std::string&) {})) {
            const std::uint32_t pid = NumberOf(parameter.key);
            ecu.answered.insert(pid);
            if (IsSupportMask(0x01, parameter.key) && parameter.data.size() >= kSupportMaskLength) {
                ecu.masks[pid] = NumberOf(parameter.data.first(kSupportMaskLength));
            }
        }
    }
}

void DiagnosisEngine::Answer(const CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd&,
                             CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv& answer) {
    if (m_totalsToTell) {
        Received received;
        received.hasTotals = true;
        received.totals = *std::exchange(m_totalsToTell, std::nullopt);
        WriteReceived(received, answer.m_cDmReceiveDataList);
        return;
    }
    EndExchange();
    m_exchange = m_next();
    if (!m_exchange) {
        Received received;
        received.hasTotals = true;
        received.totals = m_totals();
        received.isEnd = true;
        WriteReceived(received, answer.m_cDmReceiveDataList);
        return;
    }
    if (!m_surveyed) {
        Learn(*m_exchange);
    }
    m_taken.assign(m_exchange->answers.size(), false);
    m_received.number = m_exchange->number;
    m_received.request = m_exchange->request;
    m_received.answers.clear();
    for (const EcuAnswer& said : m_exchange->answers) {
        m_received.answers.push_back({said.ecu, said.IsNegative(), said.time});
    }
    WriteReceived(m_received, answer.m_cDmReceiveDataList);
}

/// All answers to the request were taken: tells which of its parameters nobody answered.
void DiagnosisEngine::EndExchange() {
    if (!m_exchange) {
        return;
    }
    const Exchange& exchange = *m_exchange;
    const bool someAnswered = std::any_of(exchange.answers.begin(), exchange.answers.end(),
                                          [](const EcuAnswer& answer) { return !answer.IsNegative(); });
    if (someAnswered && exchange.request.size() > 2) {
        const std::vector<std::span<const std::uint8_t>> keys = KeysOf(exchange.request);
        for (const std::span<const std::uint8_t> key : keys) {
            if (keys.size() > 1 && !m_answeredKeys.contains(Bytes(key.begin(), key.end()))) {
                m_complain(exchange.line,
                           "request " + HexOf(exchange.request) + " has no answer for parameter " + HexOf(key));
            }
        }
    }
    m_answeredKeys.clear();
    m_told.clear();
}

const EcuAnswer* DiagnosisEngine::Take(krm_ulong ecu) {
    for (std::size_t i = 0; m_exchange && i < m_exchange->answers.size(); ++i) {
        if (!m_taken[i] && m_exchange->answers[i].ecu == ecu) {
            m_taken[i] = true;
            return &m_exchange->answers[i];
        }
    }
    return nullptr;
}

/// Whether the ECU refused what was asked, which then is told and noted in the message.
bool DiagnosisEngine::Refused(const EcuAnswer& said, CKRMCBaseCmdAdaptDataRcv& answer) {
    if (!said.IsNegative()) {
        return false;
    }
    const std::string who = HexOfId(said.ecu) + " refuses request " + HexOf(m_exchange->request);
    if (said.bytes.size() < 3) {
        m_complain(said.line, who + " without a reason");
        return true;
    }
    const std::uint8_t reason = said.bytes[2];
    m_complain(said.line, who + ": " + HexOf(std::span(&reason, 1)) + ", " + ReasonText(reason));
    answer.m_bNotSupport = reason == 0x11 || reason == 0x12 || reason == 0x31;
    return true;
}

void DiagnosisEngine::Answer(const CKRMCGetGroupEcuListCmdAdaptDataSnd&, CKRMCGetGroupEcuListCmdAdaptDataRcv& answer) {
    CKRMCCommandEcuGroupData group;
    group.m_ushGroupId = kOnlyGroup;
    group.m_strGroupName = "On-board diagnostics";
    for (const auto& [ecu, known] : m_ecus) {
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
    answer.m_bConnect = m_ecus.contains(request.m_ulEcuId);
    answer.m_strDescription = answer.m_bConnect ? "the ECU answers" : "no answer from this ECU";
}

void DiagnosisEngine::Answer(const CKRMCGetVinCodeCmdAdaptDataSnd& request, CKRMCGetVinCodeCmdAdaptDataRcv& answer) {
    const EcuAnswer* const said = Take(request.m_ulEcuId);
    if (said == nullptr || Refused(*said, answer)) {
        return;
    }
    // 49 02, the number of data items, the VIN; what is shorter than 17 characters has zeros before it.
    std::string vin;
    for (std::size_t i = 3; i < said->bytes.size(); ++i) {
        if (!vin.empty() || said->bytes[i] != 0) {
            vin += static_cast<char>(said->bytes[i]);
        }
    }
    const bool clean =
        std::all_of(vin.begin(), vin.end(), [](char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z'); });
    if (vin.size() != kVinLength || !clean) {
        m_complain(said->line,
                   HexOfId(said->ecu) + " gives a vehicle identification number that is not 17 letters and digits");
        return;
    }
    answer.m_strVinCode = vin.c_str();
}

void DiagnosisEngine::Answer(const CKRMCGetDTCCmdAdaptDataSnd& request, CKRMCGetDTCCmdAdaptDataRcv& answer) {
    const EcuAnswer* const said = Take(request.m_ulEcuId);
    if (said == nullptr || Refused(*said, answer)) {
        return;
    }
    const std::string who = HexOfId(said->ecu) + " answers request " + HexOf(m_exchange->request);
    const std::span<const std::uint8_t> bytes(said->bytes);
    if (bytes.size() < 2) {
        m_complain(said->line, who + " without the number of trouble codes");
        return;
    }
    // The number of codes, then two bytes for each.
    const std::size_t announced = bytes[1];
    const std::span<const std::uint8_t> codes = bytes.subspan(2);
    if (codes.size() != announced * 2) {
        m_complain(said->line, who + " with " + std::to_string(codes.size()) + " bytes for " +
                                   std::to_string(announced) + " trouble codes");
    }
    const Converter converter = MakeConverter(kConvertTroubleCode);
    for (std::size_t i = 0; i < announced && i * 2 + 1 < codes.size(); ++i) {
        CKRMCCommandDTCData record;
        record.m_ulDTCCode = NumberOf(codes.subspan(i * 2, 2));
        CKRMCCommandDispData shown;
        converter->ConvCommandDispData(&shown, record.m_ulDTCCode, 0, 16, 1, 1, 0, 0, 0xFFFFU, 0, nullptr, nullptr, 0);
        record.m_strDTC = shown.m_strDataPhys;
        record.m_strDTCName = m_table.TroubleCodeText(record.m_strDTC.GetText()).c_str();
        record.m_uchDTCType = request.m_uchPhaseType;
        record.m_strDTCTypeName = PhaseName(request.m_uchPhaseType);
        answer.Data.AddTail(record);
    }
    answer.m_bDTCType = true;
}

void DiagnosisEngine::Answer(const CKRMCClearDTCCmdAdaptDataSnd& request, CKRMCClearDTCCmdAdaptDataRcv& answer) {
    const EcuAnswer* const said = Take(request.m_ulEcuId);
    if (said != nullptr && Refused(*said, answer)) {
        // The reason for which the ECU refused; 0 is success.
        answer.m_ulResult = said->bytes.size() < 3 ? 0x10U : said->bytes[2];
    }
}

void DiagnosisEngine::FillValues(const EcuAnswer* said, const std::set<std::uint32_t>* pids,
                                 CKRMCBaseCmdAdaptDataRcv& answer, CKRMList<CKRMCCommandFFDData>& items) {
    ListWriter<CKRMCCommandFFDData> writer(items);
    answer.m_bNotSupport = false;
    if (said == nullptr || Refused(*said, answer)) {
        return;
    }
    // What is wrong with the request itself is told once, however many ECUs answer it.
    const Complain once = [this](const Place& place, const std::string& what) {
        if (m_told.insert({place.line, what}).second) {
            m_complain(place, what);
        }
    };
    const std::uint8_t service = m_exchange->Service();
    bool anyKnown = false;
    for (const Parameter& parameter : Split(*m_exchange, *said, once)) {
        if (m_exchange->request.size() > 2) {
            // Only of several can some be missing.
            m_answeredKeys.emplace(parameter.key.begin(), parameter.key.end());
        }
        anyKnown = anyKnown || parameter.command != nullptr || IsSupportMask(service, parameter.key);
        if (pids == nullptr || pids->contains(PidOf(service, parameter.key))) {
            FillItems(*said, parameter, writer, once);
        }
    }
    answer.m_bNotSupport = !anyKnown;
}

void DiagnosisEngine::Answer(const CKRMCGetFFDCmdAdaptDataSnd& request, CKRMCGetFFDCmdAdaptDataRcv& answer) {
    FillValues(Take(request.m_ulEcuId), nullptr, answer, answer.Data);
}

void DiagnosisEngine::Answer(const CKRMCGetCurrentDataValueCmdAdaptDataSnd& request,
                             CKRMCGetCurrentDataValueCmdAdaptDataRcv& answer) {
    FillValues(Take(request.m_ulEcuId), nullptr, answer, answer.Data);
}

void DiagnosisEngine::Answer(const CKRMCGetDataMonitorValueCmdAdaptDataSnd& request,
                             CKRMCGetDataMonitorValueCmdAdaptDataRcv& answer) {
    const auto found = m_monitors.find(request.m_ushDataMonitorId);
    const bool isRunning = found != m_monitors.end();
    const bool isPolled = isRunning && m_exchange && m_exchange->Service() == 0x01;
    FillValues(isPolled ? Take(found->second.ecu) : nullptr, isRunning ? &found->second.pids : nullptr, answer,
               answer.Data);
    answer.m_bNotSupport = answer.m_bNotSupport || !isRunning;
}

void DiagnosisEngine::Answer(const CKRMCGetDataMonitorListCmdAdaptDataSnd& request,
                             CKRMCGetDataMonitorListCmdAdaptDataRcv& answer) {
    // Which live values are there? The ECU says so itself with its support masks; what it answers elsewhere in the
    // recording shows it too. Without a survey that is still to come, and may be anything.
    const auto known = m_ecus.find(request.m_ulEcuId);
    if (known == m_ecus.end()) {
        answer.m_bNotSupport = true;
        return;
    }
    const std::map<std::uint32_t, std::uint32_t>& masks = known->second.masks;
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
        return !m_surveyed || known->second.answered.contains(pid) ||
               (mask != masks.end() && (mask->second >> (0x1FU - (pid - 1U) % 0x20U) & 1U) != 0);
    };

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
            CKRMCCommandFFDData record = Prepare(item, command.request).record;
            record.m_cDispDataList.RemoveAll();
            record.m_cDataLayout.m_ulPidNo = pid;
            record.m_cDataLayout.m_ulDataLen = static_cast<krm_ulong>(command.DataLength());
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

/// Cuts an answer into its parameters. With several in one answer, the table tells how long each one's data is; the last
/// takes what is left.
std::vector<DiagnosisEngine::Parameter> DiagnosisEngine::Split(const Exchange& exchange, const EcuAnswer& answer,
                                                               const Complain& complain) const {
    const std::uint8_t service = exchange.Service();
    std::vector<std::span<const std::uint8_t>> keys = KeysOf(exchange.request);
    std::vector<Parameter> parameters;
    if (keys.empty()) {
        TellUnknown(exchange, {}, false, complain);
        return parameters;
    }
    const std::size_t keyLength = keys.front().size();
    std::span<const std::uint8_t> rest = std::span(answer.bytes).subspan(1);
    while (!rest.empty()) {
        const auto key = std::find_if(keys.begin(), keys.end(), [&](std::span<const std::uint8_t> wanted) {
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
            for (const std::span<const std::uint8_t> hidden : keys) {
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
    if (service != 0x02) {
        return m_table.Find(service, key, ecu);
    }
    // A freeze frame holds the parameters of service 01, unless the table says otherwise.
    const ItemCommand* const own = m_table.Find(0x02, key.first(1), ecu);
    return own != nullptr ? own : m_table.Find(0x01, key.first(1), ecu);
}

void DiagnosisEngine::FillItems(const EcuAnswer& answer, const Parameter& parameter,
                                ListWriter<CKRMCCommandFFDData>& items, const Complain& complain) {
    if (parameter.command == nullptr) {
        return;
    }
    const Exchange& exchange = *m_exchange;
    const auto where = [&] { return " of " + HexOfId(answer.ecu) + "'s answer to request " + HexOf(exchange.request); };
    const std::size_t bits = parameter.data.size() * 8;
    const std::vector<Item>& wanted = parameter.command->items;
    if (!wanted.empty() &&
        std::all_of(wanted.begin(), wanted.end(), [&](const Item& item) { return item.bit >= bits; })) {
        complain(answer.line, "the data" + where() +
                                  " is too short for any item: " + std::to_string(parameter.data.size()) + " bytes");
        return;
    }
    for (const Item& item : wanted) {
        if (item.EndBit() > bits && item.bit < bits) {
            complain(answer.line, "the data" + where() + " ends within item " + item.id);
            continue;
        }
        // Step 1: what the item is, into the message, unless it is there from an earlier answer.
        const Prepared& prepared = Prepare(item, parameter.command->request);
        CKRMCCommandFFDData& record = items.Put(prepared.record, [&](const CKRMCCommandFFDData& there) {
            return there.m_ushId == item.number && there.m_cDispDataList.GetCount() == 1;
        });
        record.m_cDataLayout.m_ulPidNo = PidOf(exchange.Service(), parameter.key);
        record.m_cDataLayout.m_ulDataLen = static_cast<krm_ulong>(parameter.data.size());
        // Step 2: its value. An ECU may leave out the last items of a parameter; such an item has no display value.
        if (item.EndBit() <= bits) {
            prepared.Convert(CutOut(item, parameter.data), prepared.record.m_cConversionTbl.m_lOffset,
                             *begin(record.m_cDispDataList));
        } else {
            record.m_cDispDataList.RemoveAll();
        }
    }
}

/// A file that isn't a table at all was told before: then nothing is known, and no request is told.
void DiagnosisEngine::TellUnknown(const Exchange& exchange, std::span<const std::uint8_t> key, bool hidesMore,
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
