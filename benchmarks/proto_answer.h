// The answer of benchmarks/answer.h as a protobuf message of the same fields and content.
#ifndef KRM_BENCHMARKS_PROTO_ANSWER_H_
#define KRM_BENCHMARKS_PROTO_ANSWER_H_

#include "answer.pb.h"
#include "benchmarks/answer.h"

namespace krm::bench {

using ProtoAnswer = krm::bench::proto::GetDTCAnswer;

}  // namespace krm::bench

namespace krm::bench::proto {

/// Fills an empty answer field by field: each code is appended empty and filled where it lies.
void Fill(GetDTCAnswer& answer, unsigned variant, int codes = kCodes);

}  // namespace krm::bench::proto

#endif  // KRM_BENCHMARKS_PROTO_ANSWER_H_
