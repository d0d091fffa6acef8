// Records what an application and its engine say to each other, and then runs the application on the recording alone:
//
//     record_and_replay FILE
//
// FILE must not exist; it holds the recording afterwards. The application reads trouble codes, clears them and reads them
// again. It asks through a function, and doesn't notice whether an engine answers or a recording.
#include <cstdint>
#include <exception>
#include <filesystem>
#include <functional>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "krm/exchange/player.h"
#include "krm/exchange/recording.h"
#include "krm/messages/describe.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/platform/string.h"

namespace {

using Message = std::unique_ptr<CKRMBaseAdaptationData>;
/// Gives the answer to a request; throws where there is none.
using Ask = std::function<Message(const CKRMBaseAdaptationData& request)>;

/// The engine of a vehicle with one trouble code, which can be cleared.
class Engine {
public:
    Message Answer(const CKRMBaseAdaptationData& request) {
        if (krm::MessageAs<CKRMCClearDTCCmdAdaptDataSnd>(&request) != nullptr) {
            m_hasCode = false;
            return std::make_unique<CKRMCClearDTCCmdAdaptDataRcv>();
        }
        if (krm::MessageAs<CKRMCGetDTCCmdAdaptDataSnd>(&request) != nullptr) {
            auto answer = std::make_unique<CKRMCGetDTCCmdAdaptDataRcv>();
            if (m_hasCode) {
                CKRMCCommandDTCData code;
                code.m_strDTC = "P0301";
                answer->Data.AddTail(code);
            }
            return answer;
        }
        throw std::runtime_error("no answer to " + krm::NameOf(request, krm::Direction::Send));
    }

private:
    bool m_hasCode = true;
};

void ReadCodes(const Ask& ask) {
    CKRMCGetDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = 2016;
    const Message answer = ask(request);
    if (const auto* const codes = krm::MessageAs<CKRMCGetDTCCmdAdaptDataRcv>(answer.get())) {
        std::cout << codes->Data.GetCount() << " trouble codes";
        for (const CKRMCCommandDTCData& code : codes->Data) {
            std::cout << ' ' << code.m_strDTC;
        }
        std::cout << '\n';
    }
}

void RunApplication(const Ask& ask) {
    ReadCodes(ask);
    CKRMCClearDTCCmdAdaptDataSnd clear;
    clear.m_ulEcuId = 2016;
    ask(clear);
    ReadCodes(ask);
}

void Record(const std::filesystem::path& file) {
    Engine engine;
    krm::Recorder recorder(file);
    RunApplication([&](const CKRMBaseAdaptationData& request) {
        const std::uint64_t exchange = recorder.BeginExchange();
        recorder.Write(exchange, request, krm::Direction::Send);
        Message answer = engine.Answer(request);
        recorder.Write(exchange, *answer, krm::Direction::Receive);
        return answer;
    });
    if (!recorder.Error().empty()) {
        throw std::runtime_error("not recorded: " + recorder.Error());
    }
}

void Replay(const std::filesystem::path& file) {
    krm::Player player(file);
    RunApplication([&](const CKRMBaseAdaptationData& request) {
        krm::PlayedAnswer played = player.Answer(request);
        return played ? std::move(played.message) : throw std::runtime_error(played.error);
    });
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: record_and_replay FILE\n";
        return 2;
    }
    try {
        std::cout << "With the engine:\n";
        Record(argv[1]);
        std::cout << "With the recording alone:\n";
        Replay(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "record_and_replay: " << error.what() << '\n';
        return 2;
    }
    return 0;
}
