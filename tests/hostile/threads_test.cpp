// Distinct objects on several threads at once: each gives what it gives alone. Built with the thread sanitizer this also
// shows that the objects share nothing behind the scenes.
#include <gtest/gtest.h>

#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "krm/core/binary.h"
#include "krm/fields/auxiliary/stored_data.h"
#include "krm/fields/auxiliary/unit_conversion.h"
#include "krm/fields/auxiliary/words_table.h"
#include "krm/fields/diag/translation.h"
#include "krm/fields/diag/trouble_codes.h"
#include "krm/tree/element.h"
#include "krm/tree/element_group.h"
#include "tests/support/converters.h"
#include "tests/support/fields.h"
#include "tests/support/log_sink.h"

namespace krm::test {
namespace {

constexpr unsigned kThreads = 8;
constexpr unsigned kRounds = 5;

/// Keeps the lines of each thread apart, with a lock of its own as a sink must have.
class LogByThread {
public:
    LogByThread() { SetLogSink(&Write, this); }
    ~LogByThread() { SetLogSink(nullptr, nullptr); }
    LogByThread(const LogByThread&) = delete;
    LogByThread& operator=(const LogByThread&) = delete;

    /// The lines of the calling thread, which are forgotten.
    std::string TakeLines() {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return std::move(m_lines[std::this_thread::get_id()]);
    }

private:
    static krm_long Write(void* context, const char* text, krm_ulong textLength, int, int) {
        auto& self = *static_cast<LogByThread*>(context);
        const std::lock_guard<std::mutex> lock(self.m_mutex);
        self.m_lines[std::this_thread::get_id()].append(text, textLength).append(1, '\n');
        return 0;
    }

    std::mutex m_mutex;
    std::map<std::thread::id, std::string> m_lines;
};

void Convert(Seed& seed, std::string& out) {
    const unsigned char bytes[] = {'A', static_cast<unsigned char>(seed.Next()), 'B'};
    for (const int code : AllCodes()) {
        const ConverterPtr converter = Create(code);
        Arguments arguments({.sign = static_cast<unsigned char>(seed.Next() % 4),
                             .bits = static_cast<unsigned short>(seed.Next() % 33),
                             .mul = static_cast<krm_long>(seed.Next() % 100) - 50,
                             .div = static_cast<krm_long>(seed.Next() % 100) - 50,
                             .offset = static_cast<krm_long>(seed.Next()),
                             .decimals = static_cast<unsigned char>(seed.Next() % 20),
                             .patterns = {{0, "low", 1}, {1, "high", 2}}});
        for (const krm_ulong raw :
             {krm_ulong{0}, krm_ulong{0x07E70C1F}, krm_ulong{0x0D071E00}, krm_ulong{seed.Next()}}) {
            CKRMCCommandDispData record;
            arguments.Raw(*converter, &record, raw);
            out += Described(record.m_strDataPhys);
            out += Described(record.m_dDataPhys);
            arguments.Variable(*converter, &record, raw);
            out += Described(record.m_strDataPhys);
            krm_ulong back = 0;
            const Item& item = arguments.item;
            converter->ConvLogicalValue(&back, record.m_dDataPhys, item.sign, item.bits, item.mul, item.div,
                                        item.offset, item.decimals, item.max, item.min);
            out += Described(back);
            converter->ConvLogicalValue(&back, record.m_dDataPhys, item.sign, item.bits, item.mul, item.div,
                                        item.offset, item.decimals, 1e6, -1e6);
            out += Described(back);
        }
        CKRMCCommandDispData record;
        converter->ConvCommandDispData(&record, bytes, sizeof bytes, 0, 8, 1, 1, 0, 0, 0, 0, nullptr);
        out += Described(record.m_strDataPhys);
    }
}

// The locale is shared among the copies of one thread.
void CopyConvertersOfLocales(std::string& out) {
    CKRMCCommandConvSignalDataDate2 date;
    CKRMCCommandConvSignalDataTime2 time;
    for (int i = 0; i < 20; ++i) {
        CKRMCCommandConvSignalDataDate2 dateCopy(date);
        CKRMCCommandConvSignalDataTime2 timeCopy;
        timeCopy = time;
        CKRMCCommandDispData record;
        Arguments({}).Raw(dateCopy, &record, 0x07E70C1F);
        out += Described(record.m_strDataPhys);
        Arguments({}).Raw(timeCopy, &record, 0x0D071E00);
        out += Described(record.m_strDataPhys);
        date = CKRMCCommandConvSignalDataDate2();
    }
}

template <class Message>
void CopyAndDump(Seed& seed, LogByThread& log, std::string& out) {
    Message message;
    Fill(message, seed);
    Message copy(message);
    message.Clear();
    out += Described(copy);
    copy.ErrWriteOperationLog();
    message.ErrWriteOperationLog();
    out += log.TakeLines();
}

void UseLists(Seed& seed, std::string& out) {
    CKRMList<CKRMCCommandWordsData> words;
    CKRMList<krm_ulong> numbers;
    for (int i = 0; i < 50; ++i) {
        CKRMCCommandWordsData element;
        Fill(element, seed);
        words.InsertAt(static_cast<int>(seed.Next() % 60), element);
        numbers.AddTail(krm_ulong{seed.Next()});
        if (i % 5 == 0) {
            words.RemoveAt(static_cast<int>(seed.Next() % 10));
        }
    }
    CKRMList<CKRMCCommandWordsData> copy(words);
    copy.AddTail(&words);
    out += Described(copy);
    out += Described(numbers);
}

void UseTree(Seed& seed, std::string& out) {
    CKRMError error;
    CKRMCElement root("Vehicle");
    for (int i = 0; i < 20; ++i) {
        const std::string name = "Ecu" + std::to_string(seed.Next() % 4);
        CKRMCElement* const child = root.CreateElement(&error, name.c_str());
        child->CreateAttribute(&error, "Id")->SetValue(&error, krm_ulong{seed.Next() % 5});
        child->CreateAttribute(&error, "Value")->SetValue(&error, seed.Next() / 7.0);
        child->CreateAttribute(&error, "Name")->SetValue(&error, name.c_str());
    }
    CKRMCAttribute wanted("Id", krm_ulong{3});
    const CKRMCElement* const found = root.GetElementByAttribute(&error, "Ecu1", &wanted);
    out += found == nullptr ? "none" : found->GetName();
    CKRMString text;
    root.Description(text);
    out += text.GetText();
}

void UseBufferAndMap(Seed& seed, std::string& out) {
    CKRMBinary binary;
    binary.CreateBuffer(100);
    CKRMMap<CKRMString, CKRMString> map;
    for (int i = 0; i < 30; ++i) {
        const std::uint32_t number = seed.Next();
        binary.Write(&number, sizeof number);
        CKRMString key;
        key.Format("%05u|%.3f", static_cast<unsigned>(number % 100000), number / 3.0);
        map.SetAt(key, "value");
    }
    const CKRMBinary copy(binary);
    out += std::to_string(copy.GetPos());
    out += Described(map);
}

/// All that a thread does with objects of its own, as a text of the results.
std::string Work(unsigned number, LogByThread& log) {
    Seed seed(number * 2 + 1);
    std::string out;
    for (unsigned round = 0; round < kRounds; ++round) {
        Convert(seed, out);
        CopyConvertersOfLocales(out);
        CopyAndDump<CKRMCGetDTCCmdAdaptDataRcv>(seed, log, out);
        CopyAndDump<CKRMCGetTranslationStringCmdAdaptDataRcv>(seed, log, out);
        CopyAndDump<CKRMCGetImportFileInfoDsdiAdaptDataRcv>(seed, log, out);
        CopyAndDump<CKRMCGetUnitConversionInfoListUccAdaptDataRcv>(seed, log, out);
        CopyAndDump<CKRMCGetTranslationStringDwtAdaptDataRcv>(seed, log, out);
        UseLists(seed, out);
        UseTree(seed, out);
        UseBufferAndMap(seed, out);
    }
    return out;
}

TEST(Threads, DistinctObjectsGiveWhatTheyGiveAlone) {
    LogByThread log;
    std::vector<std::string> alone;
    for (unsigned i = 0; i < kThreads; ++i) {
        alone.push_back(Work(i, log));
    }
    EXPECT_NE(alone[0], alone[1]);
    EXPECT_GT(alone[0].size(), 10'000U);

    std::vector<std::string> together(kThreads);
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < kThreads; ++i) {
        threads.emplace_back([&log, &result = together[i], i] { result = Work(i, log); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (unsigned i = 0; i < kThreads; ++i) {
        EXPECT_TRUE(together[i] == alone[i]) << "thread " << i;
    }
}

// Reading needs no lock: nothing that is const changes anything.
TEST(Threads, SharedObjectsMayBeReadTogether) {
    Seed seed(5);
    CKRMCGetDTCCmdAdaptDataRcv message;
    Fill(message, seed);
    const CKRMCGetDTCCmdAdaptDataRcv& shared = message;
    const CKRMCCommandConvSignalDataDate2 date;
    std::vector<std::string> results(kThreads);
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < kThreads; ++i) {
        threads.emplace_back([&, i] {
            for (int round = 0; round < 20; ++round) {
                CKRMCGetDTCCmdAdaptDataRcv copy(shared);
                results[i] += Described(copy);
                CKRMCCommandConvSignalDataDate2 converter(date);  // counts the owners of one locale
                CKRMCCommandDispData record;
                Arguments({}).Raw(converter, &record, 0x07E70C1F);
                results[i] += Described(record.m_strDataPhys);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_FALSE(results[0].empty());
    for (const std::string& result : results) {
        EXPECT_TRUE(result == results[0]);
    }
}

}  // namespace
}  // namespace krm::test
