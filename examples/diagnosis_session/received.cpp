#include "received.h"

#include <algorithm>

#include "list_writer.h"

namespace diagnosis_session {
namespace {

/// What m_ulRidRecvValue is; the engine's codes for m_ushMessageType.
enum class What : unsigned short {
    Exchange = 1,   ///< number, low half and high half by m_ushRidId
    Request = 2,    ///< four bytes of the request; m_ushRidId says how many count
    Answer = 3,     ///< CAN ID of the ECU; m_ushRidId is 1 for a refusal
    Time = 4,       ///< of the answer before it, halves
    Frames = 5,     ///< heard in all, halves
    FirstTime = 6,  ///< of all frames, halves
    LastTime = 7,
    End = 8,  ///< nothing more will come
};

using Records = ListWriter<CKRMCCommandDmReceiveData>;

void Put(Records& records, What what, std::uint32_t value, std::size_t id = 0) {
    CKRMCCommandDmReceiveData record;
    record.m_ushMessageType = static_cast<unsigned short>(what);
    record.m_ulRidRecvValue = value;
    record.m_ushRidId = static_cast<unsigned short>(id);
    records.Put(record);
}

void PutHalves(Records& records, What what, std::uint64_t value) {
    Put(records, what, static_cast<std::uint32_t>(value & 0xFFFFFFFFU), 0);
    if (value >> 32U != 0) {
        Put(records, what, static_cast<std::uint32_t>(value >> 32U), 1);
    }
}

void PutTime(Records& records, What what, Microseconds time) {
    if (time != kNoTime) {
        PutHalves(records, what, static_cast<std::uint64_t>(time));
    }
}

/// Takes one half of a number.
template <class Number>
void TakeHalf(const CKRMCCommandDmReceiveData& record, Number& number) {
    const std::uint64_t half = record.m_ulRidRecvValue;
    number = static_cast<Number>(record.m_ushRidId == 0 ? half : static_cast<std::uint64_t>(number) | half << 32U);
}

}  // namespace

void WriteReceived(const Received& received, CKRMList<CKRMCCommandDmReceiveData>& list) {
    Records records(list);
    if (received.hasTotals) {
        PutHalves(records, What::Frames, received.totals.frames);
        PutTime(records, What::FirstTime, received.totals.first);
        PutTime(records, What::LastTime, received.totals.last);
    }
    if (received.isEnd) {
        Put(records, What::End, 0);
    }
    if (received.request.empty()) {
        return;
    }
    PutHalves(records, What::Exchange, received.number);
    for (std::size_t at = 0; at < received.request.size(); at += 4) {
        const std::size_t count = std::min<std::size_t>(4, received.request.size() - at);
        std::uint32_t bytes = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            bytes = bytes << 8U | (i < count ? received.request[at + i] : 0U);
        }
        Put(records, What::Request, bytes, count);
    }
    for (const Received::Answer& answer : received.answers) {
        Put(records, What::Answer, answer.ecu, answer.isRefusal ? 1 : 0);
        PutTime(records, What::Time, answer.time);
    }
}

Received ReadReceived(const CKRMList<CKRMCCommandDmReceiveData>& records) {
    Received received;
    received.request.reserve(4);
    for (const CKRMCCommandDmReceiveData& record : records) {
        switch (static_cast<What>(record.m_ushMessageType)) {
            case What::Exchange:
                TakeHalf(record, received.number);
                break;
            case What::Request:
                for (unsigned i = 0; i < record.m_ushRidId && i < 4; ++i) {
                    received.request.push_back(
                        static_cast<std::uint8_t>(record.m_ulRidRecvValue >> (24U - 8U * i) & 0xFFU));
                }
                break;
            case What::Answer:
                received.answers.push_back({record.m_ulRidRecvValue, record.m_ushRidId != 0});
                break;
            case What::Time:
                if (!received.answers.empty()) {
                    TakeHalf(record, received.answers.back().time);
                }
                break;
            case What::Frames:
                received.hasTotals = true;
                TakeHalf(record, received.totals.frames);
                break;
            case What::FirstTime:
                TakeHalf(record, received.totals.first);
                break;
            case What::LastTime:
                TakeHalf(record, received.totals.last);
                break;
            case What::End:
                received.isEnd = true;
                break;
        }
    }
    return received;
}

}  // namespace diagnosis_session
