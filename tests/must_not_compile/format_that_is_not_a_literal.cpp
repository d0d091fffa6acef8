// error: constant expression
#include "tests/must_not_compile/fixture.h"

extern const char* const g_format;

void Sample::Dump(const krm::RecordLines& line) {
    line(g_format, m_ulId);
}
