// Where the operation log's lines go while a test runs. How lines are caught is the platform's own affair and no part of
// what the library asks of one, so each platform that the tests run on defines this in a source of its own:
// tests/platform/log_sink.cpp for the stand-in.
#ifndef KRM_TESTS_SUPPORT_LOG_SINK_H_
#define KRM_TESTS_SUPPORT_LOG_SINK_H_

#include "krm/core/types.h"

namespace krm::test {

/// Receives the arguments of KRMC_ER_WriteOperationLog, whose result it gives. `text` is valid during the call only.
using LogSink = krm_long (*)(void* context, const char* text, krm_ulong textLength, int first, int second);

/// Hands every line to `sink` from now on; null restores what the platform does by itself.
void SetLogSink(LogSink sink, void* context);

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_LOG_SINK_H_
