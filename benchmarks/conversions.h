// Raw value to physical value and text by every converter, beside the snprintf call that would print its result.
//
// The peer prints the finished physical value and does nothing else: no scaling, no choice, no record to fill. Before it is
// timed, its text is compared with the converter's for every raw value.
#ifndef KRM_BENCHMARKS_CONVERSIONS_H_
#define KRM_BENCHMARKS_CONVERSIONS_H_

#include <array>
#include <string>
#include <vector>

#include "benchmarks/pass.h"
#include "krm/core/types.h"

namespace krm::bench {

/// A finished conversion: what the peer prints.
struct ConversionResult {
    double physical;
    unsigned raw;
    unsigned integer;  ///< the physical value's low 32 bits
    std::string text;
    std::vector<unsigned char> bytes;
};
using ConversionBuffer = std::array<char, 128>;

struct ConversionPeer {
    std::string name;
    MakePass make;
    double goal = 0;  ///< as Peer::goal
};

struct ConversionWorkload {
    std::string name;
    MakePass library;
    std::vector<ConversionPeer> peers;
};

/// The physical value of the base converter, without a text and so without a peer: 16 signed bits x 3 / 7 - 40.
ConversionWorkload ValueAlone();

/// The base converter first. Some want the locale "C".
std::vector<ConversionWorkload> ConversionWorkloads();

/// A peer of the first of ConversionWorkloads() that prints with `print`.
MakePass PrintingBaseBy(void (*print)(ConversionBuffer& buffer, const ConversionResult& result));

}  // namespace krm::bench

#endif  // KRM_BENCHMARKS_CONVERSIONS_H_
