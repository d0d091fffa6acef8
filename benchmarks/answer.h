// An answer with trouble codes.
#ifndef KRM_BENCHMARKS_ANSWER_H_
#define KRM_BENCHMARKS_ANSWER_H_

#include <cstddef>

#include "krm/messages/diag/trouble_codes.h"

namespace krm::bench {

/// Each code has all its fields set, three freeze-frame items (trip time, time since ignition-on, type of the clock)
/// among them. Texts have 1 to 41 bytes; many are longer than what a std::string holds inline.
inline constexpr int kCodes = 20;

using Answer = CKRMCGetDTCCmdAdaptDataRcv;

/// Fills an empty answer field by field: each code is appended empty and filled where it lies, as protobuf does it.
/// The content differs from code to code, and with `variant`.
void Fill(Answer& answer, unsigned variant, int codes = kCodes);

/// The same content, each code filled in a local record and appended as a copy.
void FillByCopies(Answer& answer, unsigned variant, int codes = kCodes);

/// The least that the content of `answer` needs beside the message itself: the nodes of its lists, and each text that a
/// string can't hold inline with its NUL.
std::size_t NeededBytes(Answer& answer);

}  // namespace krm::bench

#endif  // KRM_BENCHMARKS_ANSWER_H_
