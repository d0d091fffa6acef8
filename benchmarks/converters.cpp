// The converters in Google Benchmark's table, where fmt is a peer too.
#include <fmt/format.h>

#include "benchmarks/conversions.h"
#include "benchmarks/workload.h"

namespace krm::bench {
namespace {

void PrintByFmt(ConversionBuffer& buffer, const ConversionResult& it) {
    *fmt::format_to_n(buffer.data(), buffer.size() - 1, "{:.2f}", it.physical).out = '\0';
}

}  // namespace

void RegisterConverters() {
    bool isBase = true;
    for (const ConversionWorkload& workload : ConversionWorkloads()) {
        std::vector<Peer> peers;
        for (const ConversionPeer& peer : workload.peers) {
            peers.push_back({peer.name, Timed(peer.make), peer.goal});
        }
        if (isBase) {
            peers.push_back({"fmt \"{:.2f}\"", Timed(PrintingBaseBy(&PrintByFmt))});
            isBase = false;
        }
        Compare(workload.name, Timed(workload.library), peers);
    }
}

}  // namespace krm::bench
