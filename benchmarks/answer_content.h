// What the answer with trouble codes says, for whoever fills one.
#ifndef KRM_BENCHMARKS_ANSWER_CONTENT_H_
#define KRM_BENCHMARKS_ANSWER_CONTENT_H_

#include <array>
#include <vector>

#include "krm/core/types.h"

namespace krm::bench {

struct DispContent {
    krm_ulong stringId;
    const char* physText;
    const char* text;
    double phys;
    double value;
    krm_ulong raw;
};

struct ItemContent {
    unsigned short id;
    const char* name;
    const char* text;
    const char* unitPhys;
    const char* unit;
    DispContent most;
    DispContent least;
    DispContent resolution;
    DispContent shown;
    std::vector<DispContent> patterns;
};

struct CodeContent {
    krm_ulong code;
    const char* text;
    const char* name;
    const char* comment;
    std::array<ItemContent, 3> items;
};

/// The content of one code of a variant.
const CodeContent& ContentOf(unsigned variant, int code);

}  // namespace krm::bench

#endif  // KRM_BENCHMARKS_ANSWER_CONTENT_H_
