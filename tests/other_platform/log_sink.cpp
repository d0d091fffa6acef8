#include "tests/support/log_sink.h"

#include "krm/platform/platform.h"

void krm::test::SetLogSink(LogSink sink, void* context) {
    other_platform::WatchLog(sink, context);
}
