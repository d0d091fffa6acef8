// error: TheLineMustHaveOneIndexInBracketsPerLevelAndList
#include "tests/must_not_compile/fixture.h"

void Sample::Dump(const krm::RecordLines& line) {
    line("[%s] m_uchRaw%d]=%d", m_uchRaw);
}
