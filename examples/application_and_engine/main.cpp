// An application and its diagnosis engine in one process. The application asks for the vehicle's ECUs and for their trouble
// codes; requests and answers travel as untyped messages, and all of them go to the operation log, which is written for
// people on standard error and counted by a sink of this program's own.
#include <exception>
#include <iostream>
#include <map>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "krm/core/list_tools.h"
#include "krm/framework/log_sinks.h"
#include "krm/messages/describe.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/messages/diag/vehicle.h"
#include "krm/platform/string.h"

namespace {

using Message = std::unique_ptr<CKRMBaseAdaptationData>;

struct Code {
    std::string_view number;
    std::string_view text;
};
struct Ecu {
    krm_ulong id;
    std::string_view name;
    std::vector<Code> codes;
};

/// Answers for a vehicle that it knows by heart.
class Engine {
public:
    /// The answer to `request`; throws where it has none.
    Message Answer(const CKRMBaseAdaptationData& request) const {
        if (krm::MessageAs<CKRMCGetGroupEcuListCmdAdaptDataSnd>(&request) != nullptr) {
            auto answer = std::make_unique<CKRMCGetGroupEcuListCmdAdaptDataRcv>();
            CKRMCCommandEcuGroupData group;
            for (const Ecu& ecu : m_ecus) {
                CKRMCCommandEcuData data;
                data.m_ulEcuId = ecu.id;
                data.m_strEcuName = krm::MakeString(ecu.name);
                group.m_cEcuList.AddTail(data);
            }
            answer->Data.AddTail(group);
            return answer;
        }
        if (const auto* asked = krm::MessageAs<CKRMCGetDTCCmdAdaptDataSnd>(&request)) {
            auto answer = std::make_unique<CKRMCGetDTCCmdAdaptDataRcv>();
            for (const Ecu& ecu : m_ecus) {
                for (const Code& code : ecu.id == asked->m_ulEcuId ? ecu.codes : std::vector<Code>()) {
                    CKRMCCommandDTCData data;
                    data.m_strDTC = krm::MakeString(code.number);
                    data.m_strDTCName = krm::MakeString(code.text);
                    krm::Append(data.m_uchSSRNo, {1, 2});
                    answer->Data.AddTail(data);
                }
            }
            return answer;
        }
        throw std::runtime_error("no answer to " + krm::NameOf(request, krm::Direction::Send));
    }

private:
    std::vector<Ecu> m_ecus = {
        {2016, "Engine", {{"P0301", "Cylinder 1 misfire detected"}, {"P0420", "Catalyst efficiency below threshold"}}},
        {2017, "Transmission", {}},
        {2020, "Brakes", {{"C1201", "Engine control system"}, {"P0301", "Cylinder 1 misfire detected"}}},
    };
};

/// Sends `request` and gives the answer as the class that the application expects; both go to the operation log.
template <class Answer, class Request>
std::unique_ptr<Answer> Ask(const Engine& engine, Request& request) {
    request.ErrWriteOperationLog();
    Message message = engine.Answer(request);
    auto* const answer = krm::MessageAs<Answer>(message.get());
    if (answer == nullptr) {
        throw std::runtime_error("unexpected: " + krm::DescribeShort(*message, krm::Direction::Receive));
    }
    message.release();
    answer->ErrWriteOperationLog();
    std::cout << krm::DescribeShort(request) << ": " << krm::DescribeShort(*answer) << '\n';
    return std::unique_ptr<Answer>(answer);
}

/// The application's own sink: how many lines, and how many of them about trouble codes.
struct LineCount {
    krm_long Write(std::string_view line, int, int) {
        ++all;
        codes += line.find(".m_strDTC=") != std::string_view::npos ? 1 : 0;
        return 0;
    }
    int all = 0;
    int codes = 0;
};

void Run() {
    LineCount count;
    krm::HeadedLog headed(std::clog);
    krm::TeeLog log(count, headed);
    const krm::ScopedLogSink scope(log);

    const Engine engine;
    CKRMCGetGroupEcuListCmdAdaptDataSnd forEcus;
    const auto ecus = Ask<CKRMCGetGroupEcuListCmdAdaptDataRcv>(engine, forEcus);
    std::map<CKRMString, CKRMString> holders;  // by trouble code
    for (const CKRMCCommandEcuData& ecu : krm::At(ecus->Data, 0).m_cEcuList) {
        CKRMCGetDTCCmdAdaptDataSnd forCodes;
        forCodes.m_ulEcuId = ecu.m_ulEcuId;
        const auto codes = Ask<CKRMCGetDTCCmdAdaptDataRcv>(engine, forCodes);
        for (const CKRMCCommandDTCData& code : codes->Data) {
            CKRMString& names = holders[code.m_strDTC];
            names = names == "" ? ecu.m_strEcuName : names + ", " + ecu.m_strEcuName;
        }
    }
    for (const auto& [code, names] : holders) {
        std::cout << code << ": " << names << '\n';
    }
    std::cout << count.all << " lines of the log, " << count.codes << " trouble codes\n";
}

}  // namespace

int main() {
    try {
        Run();
    } catch (const std::exception& error) {
        std::cerr << "application_and_engine: " << error.what() << '\n';
        return 2;
    }
    return 0;
}
