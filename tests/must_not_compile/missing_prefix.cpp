// error: TheLineMustBeginWithItsPrefixPlaceholder
#include "tests/must_not_compile/fixture.h"

void Sample::Dump(const krm::RecordLines& line) {
    line("m_ulId=%d", m_ulId);
}
